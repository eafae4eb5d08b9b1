// The discs of an act and their songs. An album's tracks are its songs; a
// single names songs of the act's albums by title and may bring songs of its
// own (B-sides). Every song is a record of its own, numbered across the world.
#include <algorithm>
#include <map>

#include "world/dates.h"
#include "worldtool/act_catalogue.h"

namespace trovane::worldtool {
namespace {

using enum FileNo;

constexpr std::array<std::string_view, 5> kTerritories = {"UK", "US", "Europe", "Oceania", "Global"};
// A song's singleDisc keeps the territories in the order UK, US, Other, Europe, Oceania.
constexpr std::array<std::size_t, 5> kSingleSlot = {0, 1, 3, 4, 2};
constexpr std::size_t kAlbumTracks = 20;
constexpr std::size_t kSingleTracks = 3;

const FieldRules& discRules() {
    static const FieldRules rules{
        .refs = {{"studio", fileBusiness}, {"distributor", fileBusiness}},
        .ranges = {{"hype", 0, 100}, {"promotion", 0, 100}, {"quality", 0, 100}, {"commerciality", 0, 100}},
        .required = {"title"},
        .bespokeKeys = {"isSingle", "released", "tracks"},
        .hidden = {"isSingle", "releaseDate", "band", "label", "trackCount", "tracksRecorded", "tracks"}};
    return rules;
}

const FieldRules& trackRules() {
    static const FieldRules rules{
        .ranges = {{"quality", 0, 100}, {"commerciality", 0, 100}},
        .required = {"title", "quality", "commerciality"},
        .bespokeKeys = {"writer"},
        .hidden = {"writerForename", "writerSurname", "writer", "band", "disc", "style", "singleDisc"}};
    return rules;
}

// released = { UK = 2003-09-15, US = 2003-10-06 }: a territory left out is not released there.
void readReleased(FieldReader& r, const toml::table& t, DiscRecord& disc) {
    const toml::node* n = t.get("released");
    if (!n) return;
    const toml::table* dates = n->as_table();
    if (!dates) {
        r.problem(*n, "`released` should be a table of dates by territory, such as { UK = 2003-09-15 }");
        return;
    }
    for (const auto& [key, value] : *dates) {
        auto at = std::find(kTerritories.begin(), kTerritories.end(), key.str());
        if (at == kTerritories.end()) {
            r.problem(value, fmt::format("unknown territory `released.{}` (the territories are {})", key.str(),
                                         fmt::join(kTerritories, ", ")));
            continue;
        }
        const auto* date = value.as_date();
        if (!date) {
            r.problem(value, fmt::format("`released.{}` should be a date such as 2003-09-15", key.str()));
            continue;
        }
        disc.releaseDate[static_cast<std::size_t>(at - kTerritories.begin())] =
            serialFromCivil(date->get().year, date->get().month, date->get().day);
    }
}

// A disc's studio is a studio, its distributors distribution firms.
void checkFirmKind(FieldReader& r, CompileContext& ctx, const toml::node& n, std::string_view what, int64_t kind,
                   std::string_view kindName) {
    auto name = n.value<std::string>();
    if (!name || name->empty()) return;
    const toml::table* firm = ctx.sourceOf(fileBusiness, *name);
    if (firm && (*firm)["kind"].value<int64_t>() != kind)
        r.problem(n, fmt::format("`{}` \"{}\" is not a {}", what, *name, kindName));
}

class ActDiscs {
public:
    ActDiscs(CompileContext& ctx, const SourceRecord& act, int16_t bandNumber, const BandRecord& band,
             std::span<const Compiled<ArtistRecord>> members, Catalogue& out)
        : ctx_(ctx),
          act_(act),
          bandNumber_(bandNumber),
          band_(band),
          members_(members),
          out_(out),
          reader_(ctx, *act.file, discRules()) {}

    void compile(const toml::array& discs) {
        std::size_t first = out_.discs.size();
        std::vector<const toml::table*> tables;
        for (const toml::node& n : discs) {
            const toml::table* t = n.as_table();
            if (!t) {
                reader_.problem(n, "a disc should be a table of its fields ([[band.disc]])");
                continue;
            }
            tables.push_back(t);
            readDisc(*t);
        }
        // Albums first, so that a single may name songs of any album of the act.
        for (std::size_t i = 0; i < tables.size(); ++i)
            if (!out_.discs[first + i].rec.isSingle) readAlbumTracks(*tables[i], out_.discs[first + i].rec);
        for (std::size_t i = 0; i < tables.size(); ++i)
            if (out_.discs[first + i].rec.isSingle) readSingleTracks(*tables[i], out_.discs[first + i].rec);
        for (std::size_t i = 0; i < tables.size(); ++i) rateDisc(*tables[i], out_.discs[first + i].rec);
    }

private:
    const SourceRecord& sourceAt(const toml::node& n) {
        return out_.sources.emplace_back(SourceRecord{act_.file, &n, lineOf(n), {}, nullptr});
    }

    std::string actName() const { return band_.name.str(); }

    void readDisc(const toml::table& t) {
        DiscRecord disc{};
        if (const toml::node* n = t.get("isSingle"))
            if (auto flag = reader_.byteFlag(*n, "isSingle", 1)) disc.isSingle = *flag;
        readReleased(reader_, t, disc);
        reader_.bind(t, lineOf(t), disc);
        disc.band = bandNumber_;
        disc.label = band_.label;
        if (!t.contains("lifetimeSales")) disc.lifetimeSales = disc.totalSales;
        if (const toml::node* n = t.get("studio")) checkFirmKind(reader_, ctx_, *n, "studio", 0, "studio");
        if (const toml::array* firms = t["distributor"].as_array())
            for (const toml::node& n : *firms) checkFirmKind(reader_, ctx_, n, "distributor", 2, "distribution firm");
        auto [first, fresh] = discTitles_.try_emplace(disc.title.str(), lineOf(t));
        if (!fresh && !disc.title.empty())
            reader_.problemAt(lineOf(t), fmt::format("\"{}\" has two discs titled \"{}\" (first at line {})", actName(),
                                                     disc.title.str(), first->second));
        disc.id = static_cast<int16_t>(std::min<std::size_t>(out_.discs.size() + 1, INT16_MAX));
        out_.discs.push_back(Compiled<DiscRecord>{std::move(disc), &sourceAt(t)});
    }

    const toml::array* trackList(const toml::table& t, std::size_t most, std::string_view kind) {
        const toml::node* n = t.get("tracks");
        const toml::array* tracks = n ? n->as_array() : nullptr;
        if (!tracks) {
            reader_.problemAt(n ? lineOf(*n) : lineOf(t), fmt::format("{} should list its `tracks`", kind));
            return nullptr;
        }
        if (tracks->empty() || tracks->size() > most) {
            reader_.problem(*n, fmt::format("{} has {} tracks; it takes 1 to {}", kind, tracks->size(), most));
            return nullptr;
        }
        return tracks;
    }

    // A song of this act: who wrote it decides its writer's names and its style.
    int32_t readSong(const toml::table& t, const DiscRecord& disc) {
        FieldReader r(ctx_, *act_.file, trackRules());
        SongRecord song{};
        r.bind(t, lineOf(t), song);
        song.band = bandNumber_;
        song.disc = static_cast<uint16_t>(disc.id);
        song.style = band_.style;
        song.writerForename = "Unknown";
        if (const toml::node* n = t.get("writer")) {
            auto name = r.text(*n, "writer", 65);
            auto member = std::find_if(members_.begin(), members_.end(), [&](const auto& m) {
                return name && m.rec.forename.str() + " " + m.rec.surname.str() == *name;
            });
            if (name && member == members_.end())
                r.problem(*n, fmt::format("`writer` \"{}\" is not a member of \"{}\" (write \"Forename Surname\")",
                                          *name, actName()));
            if (member != members_.end()) {
                song.writer = member->rec.id;
                song.writerForename = member->rec.forename;
                song.writerSurname = member->rec.surname;
                if (member->rec.style != 0) song.style = member->rec.style;
            }
        }
        auto number = static_cast<int32_t>(out_.songs.size() + 1);
        song.id = number;
        auto [first, fresh] = songTitles_.try_emplace(song.title.str(), number);
        if (!fresh && !song.title.empty()) {
            const SourceRecord& earlier = *out_.songs[static_cast<std::size_t>(first->second - 1)].src;
            r.problemAt(lineOf(t), fmt::format("\"{}\" has two songs titled \"{}\" (first at line {})", actName(),
                                               song.title.str(), earlier.line));
        }
        out_.songs.push_back(Compiled<SongRecord>{std::move(song), &sourceAt(t)});
        return number;
    }

    void readAlbumTracks(const toml::table& t, DiscRecord& album) {
        const toml::array* tracks = trackList(t, kAlbumTracks, "an album");
        if (!tracks) return;
        for (const toml::node& n : *tracks) {
            const toml::table* song = n.as_table();
            if (!song) {
                reader_.problem(n, "an album's track should be a table: { title = \"...\", quality = 50, ... }");
                continue;
            }
            album.tracks[album.trackCount++] = readSong(*song, album);
        }
        album.tracksRecorded = album.trackCount;
    }

    // The lead song (the first track) records the single in each territory it is released in.
    void readSingleTracks(const toml::table& t, DiscRecord& single) {
        const toml::array* tracks = trackList(t, kSingleTracks, "a single");
        if (!tracks) return;
        for (const toml::node& n : *tracks) {
            int32_t song = 0;
            if (const toml::table* own = n.as_table()) {
                song = readSong(*own, single);
            } else if (auto title = n.value<std::string>()) {
                auto it = songTitles_.find(*title);
                bool onAlbum =
                    it != songTitles_.end() &&
                    out_.discs[out_.songs[static_cast<std::size_t>(it->second - 1)].rec.disc - 1u].rec.isSingle == 0;
                if (!onAlbum) {
                    reader_.problem(n, fmt::format("no song \"{}\" on an album of \"{}\"", *title, actName()));
                    continue;
                }
                song = it->second;
            } else {
                reader_.problem(n, "a single's track is the title of an album song or a table of a new song");
                continue;
            }
            if (single.trackCount == 0) markLeadSong(n, song, single);
            single.tracks[single.trackCount++] = song;
        }
        single.tracksRecorded = single.trackCount;
    }

    void markLeadSong(const toml::node& at, int32_t number, const DiscRecord& single) {
        SongRecord& song = out_.songs[static_cast<std::size_t>(number - 1)].rec;
        if (std::any_of(song.singleDisc.begin(), song.singleDisc.end(), [](int16_t d) { return d > 0; })) {
            reader_.problem(at, fmt::format("\"{}\" already leads a single of \"{}\"", song.title.str(), actName()));
            return;
        }
        for (std::size_t t = 0; t < kTerritories.size(); ++t)
            if (single.releaseDate[t] > 0) song.singleDisc[kSingleSlot[t]] = single.id;
    }

    // An album's figures are its tracks' means; a single's are its lead song's.
    void rateDisc(const toml::table& t, DiscRecord& disc) {
        if (disc.trackCount == 0) return;
        auto songOf = [&](std::size_t i) -> const SongRecord& {
            return out_.songs[static_cast<std::size_t>(disc.tracks[i] - 1)].rec;
        };
        int32_t quality = songOf(0).quality, commerciality = songOf(0).commerciality;
        std::size_t count = disc.isSingle ? 1 : disc.trackCount;
        for (std::size_t i = 1; i < count; ++i) {
            quality += songOf(i).quality;
            commerciality += songOf(i).commerciality;
        }
        if (!t.contains("quality")) disc.quality = roundTo<uint8_t>(quality / static_cast<double>(count));
        if (!t.contains("commerciality"))
            disc.commerciality = roundTo<uint8_t>(commerciality / static_cast<double>(count));
    }

    CompileContext& ctx_;
    const SourceRecord& act_;
    int16_t bandNumber_;
    const BandRecord& band_;
    std::span<const Compiled<ArtistRecord>> members_;
    Catalogue& out_;
    FieldReader reader_;
    std::map<std::string, int64_t, std::less<>> discTitles_;
    std::map<std::string, int32_t, std::less<>> songTitles_;
};

}  // namespace

void compileActDiscs(CompileContext& ctx, const SourceRecord& act, int16_t bandNumber, const BandRecord& band,
                     std::span<const Compiled<ArtistRecord>> members, Catalogue& out) {
    const toml::node* n = act.node->as_table()->get("disc");
    if (!n) return;
    ActDiscs discs(ctx, act, bandNumber, band, members, out);
    if (const toml::array* list = n->as_array())
        discs.compile(*list);
    else
        ctx.report(*act.file, lineOf(*n), "`disc` should be a list of discs ([[band.disc]])");
}

}  // namespace trovane::worldtool
