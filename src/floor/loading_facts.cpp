#include "floor/loading_facts.h"

#include "world/game.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane {

std::string loadingFact(Game& g, uint32_t draw) {
    std::filesystem::path file = dataFile(g, "fact", "gam");
    std::error_code ec;
    if (!std::filesystem::exists(file, ec)) return {};
    g.fact.open(file, IfMissing::fail);
    int32_t count = g.fact.recordCount() - 1;
    std::string line;
    if (count > 0) {
        g.fact.read(static_cast<int32_t>(draw % static_cast<uint32_t>(count)) + 1);
        line = trim(g.fact->text.value);
    }
    g.fact.close();
    return line;
}

}  // namespace trovane
