#include "session/preferences.h"

#include "world/record_store.h"

namespace trovane {

void setDeliveredPrefs(Game& g) {
    g.prefs.rec = PrefsRecord{};
    g.prefs->currencySymbol = "£";
    g.prefs->exchangeRate = 1.0f;
}

void readPrefs(Game& g) {
    g.prefs.open(dataFile(g, "prefs", "gam"), IfMissing::createEmpty);
    bool present = g.prefs.readIfPresent(1);
    g.prefs.close();
    if (!present) setDeliveredPrefs(g);
}

void writePrefs(Game& g) {
    g.prefs.open(dataFile(g, "prefs", "gam"), IfMissing::createEmpty);
    g.prefs.write(1);
    g.prefs.close();
}

}  // namespace trovane
