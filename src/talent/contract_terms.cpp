#include "talent/contract_terms.h"

#include <algorithm>

#include "floor/number_helpers.h"
#include "talent/band_functions.h"
#include "world/game.h"

namespace trovane {

namespace {

constexpr int32_t kLowestAdvance = 60'000;

Money steppedMoney(Money m) {
    int32_t whole = roundTo<int32_t>(moneyToDouble(m));
    roundToMoneyStep(whole);
    return moneyUnits(whole);
}

double whole(Money m) { return moneyToDouble(m); }

}  // namespace

void setAskingTerms(Game& g) {
    BandRecord& b = g.band.rec;
    const double v = bandValue(g);
    int32_t initial = roundTo<int32_t>(v * v / 1089 * 1500);
    if (initial < kLowestAdvance) initial = kLowestAdvance;
    b.initialAdvance = moneyUnits(initial);
    b.additionalAdvance = b.initialAdvance;
    b.royaltyRate = narrow<uint8_t>(static_cast<int>(intFloor(intFloor(v / 33) / 6)) + 9);
    b.offerStage = 1;
    b.additionalAdvanceCount = 3;
    b.optionLength = 18;
    roundAskedTerms(g);
}

void roundAskedTerms(Game& g) {
    BandRecord& b = g.band.rec;
    b.initialAdvance = steppedMoney(b.initialAdvance);
    b.additionalAdvance = steppedMoney(b.additionalAdvance);
    b.advanceToPay = steppedMoney(b.advanceToPay);
}

Standing labelStanding(int bandMainRep, int labelMainRep, int bandTotal, int labelTotal) {
    const int d = bandMainRep - labelMainRep;
    const int gap = d >= 0 ? 2 * d : 0;
    if (bandTotal == 0) bandTotal = 1;
    return {roundTo<int>(100.0 * labelTotal / bandTotal) - gap, gap};
}

int careerAgeOf(Game& g) {
    const int age = g.band->age;
    g.style.read(g.band->style);
    return std::min(roundTo<int>(age * 100.0 / (g.style->lifeSpan / 2.0)), 100);
}

ContractRating rateContract(Game& g, int mode) {
    const BandRecord& band = g.band.rec;
    const OfferRecord& offer = g.offer.rec;
    const LabelRecord& label = g.label.rec;

    const MainMarket main = bandMainMarket(g);
    const int labelMain = label.reputation[static_cast<std::size_t>(main.market - 1)];
    const int bandTotal = bandReputationSum(g);
    int labelTotal = 0;
    for (uint8_t r : label.reputation) labelTotal += r;
    const Standing s = labelStanding(main.reputation, labelMain, bandTotal, labelTotal);

    const double askedInitial = whole(band.initialAdvance);
    const double askedAdditional = whole(band.additionalAdvance);
    int initialScore = 100;
    if (mode == 1)
        initialScore = roundTo<int>(roundHalfEven(static_cast<double>(offer.initialAdvance) / offer.optionLength) *
                                    100 / (askedInitial / band.optionLength));
    const int additionalScore = roundTo<int>(offer.additionalAdvance / askedInitial * 100);
    const double optionsFactor = static_cast<double>(offer.additionalAdvanceCount) / band.additionalAdvanceCount - 1;
    const int careerAge = careerAgeOf(g);
    const int optionsScore = roundTo<int>(additionalScore + optionsFactor * (careerAge - 60) * 2);
    const int royaltyDelta = roundTo<int>(offer.royalty * 100.0 / band.royaltyRate - 100);
    double a = mode == 1 ? offer.initialAdvance / askedInitial : 1;
    a = (offer.additionalAdvance / askedAdditional * offer.additionalAdvanceCount + a) /
        (offer.additionalAdvanceCount + 1) * 100;
    if (a > 100) a = 100;
    const int royaltyScore = 100 + roundTo<int>(roundHalfEven((200 - a) * royaltyDelta) / 100);
    int mean = roundTo<int>((optionsScore + initialScore + royaltyScore) / 3.0);
    mean = roundTo<int>(mean * 0.9);
    int score = roundTo<int>(s.standing * mean / 100.0 * 0.1 + mean);

    int best = 0;
    int worst = 0;
    if (mode == 1) {
        int high = 0;
        int low = 0;
        if (initialScore > optionsScore) {
            high = initialScore, best = 1, low = optionsScore, worst = 2;
        } else {
            high = optionsScore, best = 2, low = initialScore, worst = 1;
        }
        if (royaltyScore > high) {
            high = royaltyScore;
            best = 3;
        } else if (royaltyScore < low) {
            worst = 3;
        }
        if (s.standing > high)
            best = labelTotal < bandTotal + 100 ? 5 : 4;
        else if (s.standing < high)  // below high, not below low: kept as the game has it
            worst = s.gap > 20 ? 5 : 4;
    }
    if (score < 0) score = 0;
    return {score, best, worst};
}

}  // namespace trovane
