#include "world/act_names.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <span>
#include <utility>

#include "world/fatal_error.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/strings.h"

namespace trovane {

namespace {

const std::size_t kBandName = offsetIn<BandRecord>("name");
const std::size_t kBandRetired = offsetIn<BandRecord>("retired");
const std::size_t kNewBandName = offsetIn<NewBandRecord>("name");
const std::size_t kNewBandStyle = offsetIn<NewBandRecord>("style");

// The name an act bears while it has not retired, or none.
std::optional<std::string> activeName(std::span<const uint8_t> bytes) {
    if (fieldAt<int16_t>(bytes, kBandRetired) != kFalse) return std::nullopt;
    return textAt<decltype(BandRecord::name)>(bytes, kBandName);
}

const NameIndex& refreshNames(Game& g) {
    NameIndex& index = g.activeActNames;
    if (index.generation == g.band.generation()) return index;
    index.reset(g.band.generation());
    for (int32_t n = 1; n < g.band.recordCount(); ++n)
        if (auto name = activeName(g.band.bytesOf(n))) index.add(*name);
    return index;
}

template <class R, class Index>
void forgetRowsOnWrite(Table<R>& table, Index& rows) {
    table.watchWrites(
        &rows, [&rows](int32_t, std::span<const uint8_t>, std::span<const uint8_t>) { rows.generation = UINT64_MAX; });
}

}  // namespace

bool actNameInUse(Game& g, const std::string& name) { return refreshNames(g).has(trim(name)); }

std::vector<std::string> activeActNameList(Game& g) {
    std::vector<std::string> out;
    for (const auto& [name, count] : refreshNames(g).counts)
        out.insert(out.end(), static_cast<std::size_t>(count), name);
    std::sort(out.begin(), out.end());
    return out;
}

const std::vector<std::string>& newBandNamesFor(Game& g, int style) {
    NameBank& bank = g.newBandNames;
    if (bank.generation != g.newband.generation() || bank.records != g.newband.recordCount()) {
        bank.byKey.clear();
        bank.all.clear();
        bank.generation = g.newband.generation();
        bank.records = g.newband.recordCount();
        for (int32_t n = 1; n < g.newband.recordCount(); ++n) {
            const auto bytes = g.newband.bytesOf(n);
            std::string name = textAt<decltype(NewBandRecord::name)>(bytes, kNewBandName);
            bank.byKey[bytes[kNewBandStyle]].push_back(name);
            bank.all.push_back(std::move(name));
        }
    }
    auto it = bank.byKey.find(style);
    return it == bank.byKey.end() ? bank.all : it->second;
}

void watchActNames(Game& g) {
    constexpr std::size_t kNameBytes = decltype(BandRecord::name)::width;
    g.band.watchWrites(&g.activeActNames,
                       [&g](int32_t, std::span<const uint8_t> before, std::span<const uint8_t> after) {
                           NameIndex& index = g.activeActNames;
                           // An index not built for the table as it is now is built whole at the next lookup.
                           if (index.generation != g.band.generation()) return;
                           // Most writes are a week's figures: the name and the mark of retirement stand as they were.
                           if (!before.empty() &&
                               std::memcmp(before.data() + kBandName, after.data() + kBandName, kNameBytes) == 0 &&
                               fieldAt<int16_t>(before, kBandRetired) == fieldAt<int16_t>(after, kBandRetired))
                               return;
                           const auto was = before.empty() ? std::nullopt : activeName(before);
                           const auto now = activeName(after);
                           if (was == now) return;
                           if (was) index.remove(*was);
                           if (now) index.add(*now);
                       },
                       {{kBandName, kNameBytes}, {kBandRetired, sizeof(int16_t)}});
    // The banks of names and the cities do not change in play; a write to one
    // all the same has what is kept of it read again.
    forgetRowsOnWrite(g.newband, g.newBandNames);
    forgetRowsOnWrite(g.forename, g.forenameRows);
    forgetRowsOnWrite(g.surname, g.surnameRows);
    forgetRowsOnWrite(g.city, g.cityRows);
    forgetRowsOnWrite(g.assnation, g.nationLinks);
    forgetRowsOnWrite(g.look, g.lookRows);
    forgetRowsOnWrite(g.asslook, g.lookRows);
}

}  // namespace trovane
