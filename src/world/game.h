#pragma once
// The one context object of a running game: every table with its record
// buffer, the session state, the preferences, the random source and the clock.
// Every operation of the game takes it first.
#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "world/matching_records.h"
#include "world/name_indexes.h"
#include "world/random.h"
#include "world/records.h"
#include "world/side_index.h"
#include "world/table.h"

namespace trovane {

// Screens the logic can ask the shell to show; named after the game's screens.
enum class Screen {
    none,
    frmQuellmarkGames,
    frmStartForm,
    frmStartNewGame,
    frmCreateNewLabel,
    frmManageExistingLabel,
    frmNews,
    frmNewsFull,
    frmAwardCeremony,
    frmLoading,
    frmBandOptionDecision,
    frmChooseDistributor,
    frmChartForm,
    frmSaveGame,
    frmCredits,
    frmDisclaimer,
    frmBandDetails,
    frmBandContract,
    frmDiscDetails,
    frmLabelDetails,
    frmStaffDetails,
    frmBandBrowse,
    frmArtistBrowse,
    frmRichList,
    frmStaffBrowse,
    frmLabelBrowse,
    frmVenueBrowse,
    frmBusinessBrowse,
    frmMediaBrowse,
    frmSongBrowse,
    frmFestivalBrowse,
    frmCeremonyBrowse,
    frmArtistDetails,
    frmFestivalDetails,
    frmHistoricalFestivalDetails,
    frmCeremonyDetails,
    frmHistoricalCeremonyDetails,
};

// The tables that openAllTables opens: member name, record, file number.
#define TROVANE_WORKING_TABLES(X)                \
    X(country, CountryRecord, fileCountry)       \
    X(city, CityRecord, fileCity)                \
    X(venue, VenueRecord, fileVenue)             \
    X(forename, ForenameRecord, fileForename)    \
    X(surname, SurnameRecord, fileSurname)       \
    X(job, JobRecord, fileJob)                   \
    X(style, StyleRecord, fileStyle)             \
    X(artist, ArtistRecord, fileArtist)          \
    X(band, BandRecord, fileBand)                \
    X(product, ProductRecord, fileProduct)       \
    X(label, LabelRecord, fileLabel)             \
    X(staff, StaffRecord, fileStaff)             \
    X(look, LookRecord, fileLook)                \
    X(asslook, AssRecord, fileAssLook)           \
    X(newband, NewBandRecord, fileNewBand)       \
    X(news, NewsRecord, fileNews)                \
    X(schedule, ScheduleRecord, fileSchedule)    \
    X(disc, DiscRecord, fileDisc)                \
    X(song, SongRecord, fileSong)                \
    X(assstyle, AssRecord, fileAssStyle)         \
    X(offer, OfferRecord, fileOffer)             \
    X(assnation, AssRecord, fileAssNation)       \
    X(business, BusinessRecord, fileBusiness)    \
    X(newsong, NewSongRecord, fileNewSong)       \
    X(tour, TourRecord, fileTour)                \
    X(gig, GigRecord, fileGig)                   \
    X(festival, FestivalRecord, fileFestival)    \
    X(event, EventRecord, fileEvent)             \
    X(crime, CrimeRecord, fileCrime)             \
    X(award, AwardRecord, fileAward)             \
    X(ceremony, CeremonyRecord, fileCeremony)    \
    X(shortlist, ShortlistRecord, fileShortlist) \
    X(chartrecs, ChartRecords, fileChartRecs)    \
    X(media, MediaRecord, fileMedia)             \
    X(achieve, AchievementRecord, fileAchieve)   \
    X(newalbum, NewAlbumRecord, fileNewAlbum)    \
    X(thank, ThankRecord, fileThank)             \
    X(chartrun, ChartRunRecord, fileChartRun)    \
    X(ledger, LedgerRecord, fileLedger)

// Tables opened by the operation that needs them and closed right after.
#define TROVANE_PER_USE_TABLES(X)                \
    X(dayIndex, DayRecord, fileDay)              \
    X(prefs, PrefsRecord, filePrefs)             \
    X(svar, SvarRecord, fileSvar)                \
    X(chart, ChartRow, fileChart)                \
    X(fact, FactRecord, fileFact)                \
    X(highscore, HighScoreRecord, fileHighScore) \
    X(cb, BandRecord, fileCb)                    \
    X(ca, ArtistRecord, fileCa)

class Game {
public:
    // Replays or drops the journal a killed run left in the data folder before
    // anything is read from it. The tables of the working set, the day index,
    // the charts and the high scores (which a day updates) defer their writes
    // to the commit (flushAllTables).
    explicit Game(std::filesystem::path dataFolder, uint64_t seed = 1);
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    std::filesystem::path dataDir;
    Random rng;
    // Milliseconds of real time; the desktop game uses the system clock, tests a fake one.
    std::function<int64_t()> clock;

    // Session state (saved in the session record of a save slot).
    double gameDate = 0;
    double gameStartDate = 0;
    int16_t firstScheduleYear = 0;
    int16_t lastScheduleYear = 0;
    uint8_t eventRollsPerDay = 0;
    PlayerBlock player{};
    int16_t currentYear = 0;
    Screen currentScreen = Screen::none;
    Screen previousScreen = Screen::none;
    // The number of acts that had not retired when this game was made, loaded
    // or opened; every act that ends makes another, so it holds all game.
    // -1 for a world built by hand, which the count's rule leaves alone.
    int32_t activeActsAtStart = -1;
    // The last ceremony night the player attended, as frmAwardCeremony plays
    // it: the ceremony's number and its lines, step by step. Not saved.
    int16_t showCeremony = 0;
    std::vector<std::vector<std::string>> showSteps;

    // The computer's calendar date as a day serial (the player's age and first
    // contract are reckoned from it when a game starts); tests fix it.
    std::function<double()> clockDate;

    // Told the name of each step of the day as it runs (trovane-sim --trace).
    std::function<void(std::string_view)> trace;
    // Told how far long work (a new game, a save, a load) has come, 0 to 100.
    std::function<void(int percent)> progress;
    // Told each schedule handler by name, with its entry, just before it runs.
    std::function<void(std::string_view handler, const ScheduleRecord& entry)> onScheduleHandler;

    // The offers of each band, by record number (see offersOnBand).
    SideIndex offersByBand;
    // Songs and discs by band, discs by release day (see band_lookups.h).
    SideIndex songsByBand;
    SideIndex discsByBand;
    DayIndex discsByDay;
    // The names that acts not retired bear, and the bank of names for new
    // bands by style (see act_names.h).
    NameIndex activeActNames;
    NameBank newBandNames;
    // What a draw of an artist's names reads of each forename and surname
    // (see talent/artist_names.h), and of each city and nation for a birthplace.
    NameRows forenameRows;
    NameRows surnameRows;
    CityRows cityRows;
    NationLinks nationLinks;
    // The looks a new artist's look is chosen from (see label/image.h).
    LookRows lookRows;
    ArtistSets artistSets;
    // Which entries may engage each band on each day (see band_calendar.h).
    EngagementIndex engagements;
    // The discs of the charts' rows, for a rise of hype (see chart_hype.h).
    ChartRowKeys chartRowKeys;
    // The bands each chart's record holders have yet to be tested against (see chart_records.cpp).
    ChangedBands changedBands;
    // The news items waiting for a reply (see news_lookups.h).
    MatchingRecords heldNews;
    // The schedule's entries that are stages of a story, by each artist of
    // their cast (see story_events.cpp).
    KeyedRecords<int16_t> storyStages;
    // The shortlist's records by (band, label) pair (see shortlist_lookups.h).
    KeyedRecords<uint32_t> shortlistPairs;
    // The discs by title (see disc_title_lookups.h).
    KeyedRecords<std::string> discTitles;
    // The paths of the years' day files and of the charts, each made once
    // (see dayFilePath and openChart).
    mutable std::map<int, std::filesystem::path> dayFilePaths;
    mutable std::array<std::filesystem::path, 10> chartPaths;
    // The chart openChart last opened, and the chart table's generation then:
    // while that stands, the chart is still the one open.
    int openedChart = -1;
    uint64_t openedChartGeneration = 0;
    // The bytes of working-set tables closed since the last commit; declared
    // before the tables, which park here when they close.
    ParkedFiles parked;
    // Commits since the pages of the tables that hold only the pages in use
    // last went back to the system (see flushAllTables).
    int commitsSincePagesWentBack = 0;
    // The day files and the charts last closed unchanged (see table.h): a
    // year's calendar, the next and the last; a week's ten charts.
    CleanImages cleanDayFiles{3};
    CleanImages cleanCharts{10};

#define TROVANE_TABLE_MEMBER(member, Record, fileNo) Table<Record> member{FileNo::fileNo};
    TROVANE_WORKING_TABLES(TROVANE_TABLE_MEMBER)
    TROVANE_PER_USE_TABLES(TROVANE_TABLE_MEMBER)
#undef TROVANE_TABLE_MEMBER
};

}  // namespace trovane
