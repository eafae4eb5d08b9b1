#pragma once
// The game's own rules run on compiled records. The rules that derive an act's
// figures from its members, or a department's rating from its head, read those
// records through the game's tables; the bench is a game whose tables hold the
// compiled records, on a scratch folder of its own that goes when it does.
#include <filesystem>
#include <span>

#include "world/game.h"

namespace trovane::worldtool {

class RuleBench {
public:
    RuleBench();
    ~RuleBench();
    RuleBench(const RuleBench&) = delete;
    RuleBench& operator=(const RuleBench&) = delete;

    // Replaces every record of the table with these, numbered from 1.
    template <PackedRecord R>
    void fill(Table<R>& table, std::span<const R> records) {
        table.clearAll();
        for (std::size_t i = 0; i < records.size(); ++i) {
            table.rec = records[i];
            table.write(static_cast<int32_t>(i + 1));
        }
    }

    Game g;

private:
    std::filesystem::path folder_;
};

}  // namespace trovane::worldtool
