#include "talent/contract_news.h"

#include "floor/grammar.h"
#include "floor/news_post.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

struct Words {
    std::string they, They, are, were, have, their, them, theBand, TheBand, s;
};

Words wordsOf(Game& g) {
    return {grammarWord(g, 1, false), grammarWord(g, 1, true),  grammarWord(g, 0, false), grammarWord(g, 3, false),
            grammarWord(g, 7, false), grammarWord(g, 5, false), grammarWord(g, 4, false), grammarWord(g, 6, false),
            grammarWord(g, 6, true),  grammarWord(g, 2, false)};
}

std::string verdictOf(const Words& w, int score) {
    if (score <= 0) return "laughable.";
    if (score <= 60) return "way short of what " + w.they + " " + w.were + " hoping for.";
    if (score <= 79)
        return "short of what " + w.they + " wanted but " + w.they + " would welcome an improved offer from you.";
    if (score <= 89)
        return "a little below what " + w.they + " " + w.were + " after but at the same time " + w.they +
               " made it known it would only take a small improvement to clinch the deal.";
    return {};
}

std::string harshReason(const Words& w, int reason) {
    switch (reason) {
    case 1:
        return " The initial advance offered has been singled out by " + w.theBand +
               " as being particularly disappointing.";
    case 2:
        return " " + w.They + " " + w.have + " indicated " + w.their +
               " main criticism of the deal concerns the additional advances offered.";
    case 3: return " The royalty rate in particular is way below what " + w.they + " " + w.were + " hoping for.";
    case 4:
    case 5:
        return " " + w.They + " " + w.have + " indicated " + w.them +
               " would require a much better deal to consider representing a label of your size.";
    default: return {};
    }
}

std::string mildReason(const Words& w, int reason) {
    switch (reason) {
    case 1:
        return "It is believed an increase in the initial advance offered is what " + w.they + " " + w.are + " after.";
    case 2:
        return w.TheBand + " " + w.have +
               " informed you that the additional advances package you offered is proving "
               "the sticking point.";
    case 3:
        return w.TheBand + " " + w.have +
               " indicated an improved royalty rate should be enough to make your offer acceptable.";
    case 4:
        return "It is believed " + w.their + " main concern is the size of your label, however, " + w.theBand + " " +
               w.have + " indicated an improved contract offer would help overcome this problem.";
    case 5:
        return w.They + " " + w.are + " concerned about under-representation in " + w.their +
               " main market, however it is believed an improved contract would do much to ease the problem.";
    default: return {};
    }
}

std::string clincherOf(Game& g, const Words& w, int reason) {
    switch (reason) {
    case 1: return "initial advance offered by the label, guaranteeing " + w.them + " a sizeable guaranteed income.";
    case 2:
        return std::string("advance") + (g.offer->additionalAdvanceCount > 1 ? "s" : "") + " " + w.they + " stand" +
               w.s + " to receive after " + w.their + " initial album is completed.";
    case 3: return "royalty rate the label offered.";
    case 4: return w.they + " " + w.are + " looking forward to working with such a prestigious label.";
    case 5:
        return w.they + " " + w.are + " looking forward to working with a label so well equipped to represent " +
               w.them + " in " + w.their + " main market.";
    default: return {};
    }
}

}  // namespace

std::string rejectionText(Game& g, int score, int worstReason) {
    const Words w = wordsOf(g);
    const bool harsh = score <= 60;
    return trim(g.band->name.value) + " " + w.have + " rejected your contract offer as " + verdictOf(w, score) + " " +
           (harsh ? harshReason(w, worstReason) : mildReason(w, worstReason));
}

void postRejection(Game& g, int score, int worstReason) {
    const std::string text = rejectionText(g, score, worstReason);
    const std::string title =
        trim(g.band->name.value) + " reject" + grammarWord(g, 2, false) + " " + trim(g.label->name.value) + " deal.";
    postNews(g, {.date = g.gameDate + 1, .title = title, .text = text});
}

std::string agreementText(Game& g, int bestReason) {
    const Words w = wordsOf(g);
    const std::string label = trim(g.label->name.value);
    return trim(g.band->name.value) + " today announed " + w.they + " " + w.are + " delighted to have agreed to " +
           label + "'s contract terms and " + w.they + " " + w.are + " due to sign a " +
           std::to_string(g.offer->additionalAdvanceCount + 1) + " album deal with them tomorrow morning. " + w.They +
           " added the clincher was the particularly good " + clincherOf(g, w, bestReason);
}

void postAgreement(Game& g, int bestReason, bool playersWin, int32_t entry) {
    std::string text = agreementText(g, bestReason);
    const std::string title = trim(g.band->name.value) + " agree" + grammarWord(g, 2, false) + " terms with " +
                              trim(g.label->name.value) + ".";
    if (!playersWin) {
        postNews(g, {.date = g.gameDate + 1, .title = title, .text = text});
        return;
    }
    postNews(g, {.date = g.gameDate + 1,
                 .title = title,
                 .text = text + " Confirm the deal?",
                 .kind = kNewsYesNo,
                 .scheduleLink = entry,
                 .mustReply = true});
}

}  // namespace trovane
