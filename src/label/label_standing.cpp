#include "label/label_standing.h"

#include "world/game.h"

namespace trovane {

int32_t labelValue(const Game& g) {
    const auto& r = g.label.rec.reputation;
    return r[0] * 8 + r[1] * 10 + r[2] * 7 + r[3] * 5 + r[4] * 3;
}

void countLabelBands(Game& g) {
    int16_t label = g.label->id;
    LabelRecord keep = g.label.rec;
    int32_t count = 0;
    for (int32_t n = 1; n != g.band.recordCount(); ++n) {
        g.band.read(n);
        if (g.band->label == label) ++count;
    }
    g.label.rec = keep;
    g.label->bandCount = narrow<int16_t>(count);
}

void setRivalStrength(Game& g) {
    double v = labelValue(g);
    g.label->strengthClass = roundTo<uint8_t>(v * v / 87120.0);
}

void setInitialHype(Game& g) {
    for (std::size_t m = 0; m < 5; ++m) g.label->hype[m] = static_cast<int16_t>(-g.label->reputation[m]);
}

}  // namespace trovane
