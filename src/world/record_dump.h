#pragma once
// Records as text: one "field: value" line each, or one JSON object.
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <type_traits>

#include "world/catalogue.h"
#include "world/records.h"

namespace trovane {

enum class DumpFormat { text, json };

// Calls f(std::type_identity<R>{}) with the record type of a file number.
template <class F>
decltype(auto) withRecordType(FileNo n, F&& f);

std::string jsonQuote(std::string_view s);

namespace dump {

// A date field shown with its calendar day when it holds a plausible one.
std::string dateValue(double serial);
// A number as the shortest text that reads back as the same value. JSON has no
// NaN or infinity (a damaged file may hold them): there they are null.
std::string realValue(double v, DumpFormat fmt);
std::string realValue(float v, DumpFormat fmt);

template <class T>
void value(std::string& out, const T& v, DumpFormat fmt);

struct FieldPrinter {
    std::string& out;
    DumpFormat fmt;
    bool first = true;
    template <class T>
    void operator()(const char* name, const T& v) {
        if (fmt == DumpFormat::json) {
            if (!first) out += ',';
            out += '"';
            out += name;
            out += "\":";
        } else {
            if (!first) out += '\n';
            out += name;
            out += ": ";
        }
        first = false;
        value(out, v, fmt);
    }
};

template <class T>
void value(std::string& out, const T& v, DumpFormat fmt) {
    if constexpr (IsText<T>::value) {
        out += jsonQuote(v.value);
    } else if constexpr (IsStdArray<T>::value) {
        out += '[';
        bool first = true;
        for (const auto& e : v) {
            if (!first) out += fmt == DumpFormat::json ? "," : ", ";
            first = false;
            value(out, e, fmt);
        }
        out += ']';
    } else if constexpr (PackedRecord<T>) {
        out += '{';
        FieldPrinter inner{out, DumpFormat::json};
        T::forEachField(v, inner);
        out += '}';
    } else if constexpr (std::is_same_v<T, double>) {
        out += fmt == DumpFormat::json ? realValue(v, fmt) : dateValue(v);
    } else if constexpr (std::is_same_v<T, float>) {
        out += realValue(v, fmt);
    } else {
        out += std::to_string(static_cast<int64_t>(v));
    }
}

}  // namespace dump

template <PackedRecord R>
std::string recordToString(const R& rec, DumpFormat fmt) {
    std::string out;
    if (fmt == DumpFormat::json) out += '{';
    dump::FieldPrinter p{out, fmt};
    R::forEachField(rec, p);
    if (fmt == DumpFormat::json) out += '}';
    return out;
}

// Every record of a table file as text ("# record N" headers) or a JSON array.
// The file's record length must fit its table.
std::string dumpTableFile(const std::filesystem::path& file, FileNo n, DumpFormat fmt);

template <class F>
decltype(auto) withRecordType(FileNo n, F&& f) {
    using enum FileNo;
    switch (n) {
    case fileCountry: return f(std::type_identity<CountryRecord>{});
    case fileCity: return f(std::type_identity<CityRecord>{});
    case fileVenue: return f(std::type_identity<VenueRecord>{});
    case fileForename: return f(std::type_identity<ForenameRecord>{});
    case fileSurname: return f(std::type_identity<SurnameRecord>{});
    case fileJob: return f(std::type_identity<JobRecord>{});
    case fileStyle: return f(std::type_identity<StyleRecord>{});
    case fileArtist:
    case fileCa: return f(std::type_identity<ArtistRecord>{});
    case fileBand:
    case fileCb: return f(std::type_identity<BandRecord>{});
    case fileProduct: return f(std::type_identity<ProductRecord>{});
    case fileLabel: return f(std::type_identity<LabelRecord>{});
    case fileStaff: return f(std::type_identity<StaffRecord>{});
    case fileLook: return f(std::type_identity<LookRecord>{});
    case fileAssLook:
    case fileAssStyle:
    case fileAssNation: return f(std::type_identity<AssRecord>{});
    case fileDay: return f(std::type_identity<DayRecord>{});
    case fileNewBand: return f(std::type_identity<NewBandRecord>{});
    case fileNews: return f(std::type_identity<NewsRecord>{});
    case fileSchedule: return f(std::type_identity<ScheduleRecord>{});
    case fileDisc: return f(std::type_identity<DiscRecord>{});
    case fileSong: return f(std::type_identity<SongRecord>{});
    case fileOffer: return f(std::type_identity<OfferRecord>{});
    case fileBusiness: return f(std::type_identity<BusinessRecord>{});
    case fileNewSong: return f(std::type_identity<NewSongRecord>{});
    case filePrefs: return f(std::type_identity<PrefsRecord>{});
    case fileSvar: return f(std::type_identity<SvarRecord>{});
    case fileTour: return f(std::type_identity<TourRecord>{});
    case fileGig: return f(std::type_identity<GigRecord>{});
    case fileFestival: return f(std::type_identity<FestivalRecord>{});
    case fileEvent: return f(std::type_identity<EventRecord>{});
    case fileCrime: return f(std::type_identity<CrimeRecord>{});
    case fileAward: return f(std::type_identity<AwardRecord>{});
    case fileCeremony: return f(std::type_identity<CeremonyRecord>{});
    case fileShortlist: return f(std::type_identity<ShortlistRecord>{});
    case fileChart: return f(std::type_identity<ChartRow>{});
    case fileChartRecs: return f(std::type_identity<ChartRecords>{});
    case fileMedia: return f(std::type_identity<MediaRecord>{});
    case fileAchieve: return f(std::type_identity<AchievementRecord>{});
    case fileThank: return f(std::type_identity<ThankRecord>{});
    case fileFact: return f(std::type_identity<FactRecord>{});
    case fileHighScore: return f(std::type_identity<HighScoreRecord>{});
    case fileNewAlbum: return f(std::type_identity<NewAlbumRecord>{});
    case fileChartRun: return f(std::type_identity<ChartRunRecord>{});
    case fileLedger: return f(std::type_identity<LedgerRecord>{});
    case fileTemp2: return f(std::type_identity<Scratch4Record>{});
    case fileTemp: break;
    }
    throw FatalError("No record format for file number " + std::to_string(static_cast<int>(n)));
}

}  // namespace trovane
