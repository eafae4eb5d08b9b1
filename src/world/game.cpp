#include "world/game.h"

#include "world/act_names.h"
#include "world/artist_sets.h"
#include "world/band_lookups.h"
#include "world/dates.h"
#include "world/disc_title_lookups.h"
#include "world/journal.h"
#include "world/news_lookups.h"
#include "world/shortlist_lookups.h"

namespace trovane {

Game::Game(std::filesystem::path dataFolder, uint64_t seed)
    : dataDir(std::move(dataFolder)),
      rng(seed),
      clock([] {
          return std::chrono::duration_cast<std::chrono::milliseconds>(
                     std::chrono::steady_clock::now().time_since_epoch())
              .count();
      }),
      clockDate([] {
          auto today = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
          std::chrono::year_month_day ymd{today};
          return serialFromCivil(static_cast<int>(ymd.year()), static_cast<unsigned>(ymd.month()),
                                 static_cast<unsigned>(ymd.day()));
      }) {
    keepLargeImagesApart();
    recoverJournal(dataDir);
#define TROVANE_DEFER(member, Record, fileNo) member.deferWrites(&parked);
    TROVANE_WORKING_TABLES(TROVANE_DEFER)
#undef TROVANE_DEFER
    // Tables whose old records pile up over a long game and are seldom read.
    for (TableBase* t : std::initializer_list<TableBase*>{&news, &schedule, &song, &gig, &chartrun, &achieve})
        t->holdOnlyPagesInUse();
    dayIndex.deferWrites(&parked);
    chart.deferWrites(&parked);
    dayIndex.keepCleanImages(&cleanDayFiles);
    chart.keepCleanImages(&cleanCharts);
    highscore.deferWrites(&parked);
    watchDiscDates(*this);
    watchActNames(*this);
    watchArtistSets(*this);
    watchHeldNews(*this);
    watchShortlistPairs(*this);
    watchDiscTitles(*this);
}

}  // namespace trovane
