#include "events/story_text.h"

#include <algorithm>
#include <optional>

#include "label/finances.h"
#include "schedule/schedule.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

struct Person {
    bool present = false;
    ArtistRecord a{};
    std::optional<BandRecord> band;
};

Person personOf(Game& g, int16_t n) {
    Person p;
    if (n < 1 || n >= g.artist.recordCount()) return p;
    g.artist.read(n);
    p.present = true;
    p.a = g.artist.rec;
    if (p.a.band > 0 && p.a.band < g.band.recordCount()) {
        g.band.read(p.a.band);
        p.band = g.band.rec;
    }
    return p;
}

std::string labelName(Game& g, int16_t label) {
    if (label < 1 || label >= g.label.recordCount()) return {};
    g.label.read(label);
    return trim(g.label->name.value);
}

std::string jobName(Game& g, const ArtistRecord& a) {
    if (a.job < 1 || a.job >= g.job.recordCount()) return {};
    g.job.read(a.job);
    return trim(a.male != kFalse ? g.job->title.value : g.job->titleFemale.value);
}

// The tag of a participant (name without its final digit), or nullopt.
std::optional<std::string> personTag(Game& g, const std::string& tag, const Person& p) {
    const ArtistRecord& a = p.a;
    const bool male = a.male != kFalse;
    const std::string bandName = p.band ? trim(p.band->name.value) : std::string();
    const bool solo = p.band && p.band->memberCount == 1;
    if (tag == "ast") return p.band ? "a member of " + bandName : std::string("independent");
    if (tag == "ac") {
        if (a.city > 0 && a.city < g.city.recordCount()) {
            g.city.read(a.city);
            return trim(g.city->name.value);
        }
        if (a.country > 0 && a.country < g.country.recordCount()) {
            g.country.read(a.country);
            return trim(g.country->name.value);
        }
        return std::string();
    }
    if (tag == "al") {
        std::string label = p.band ? labelName(g, p.band->label) : std::string();
        return label.empty() ? std::string("unsigned") : label;
    }
    if (tag == "afn") return trim(a.forename.value);
    if (tag == "asn") return trim(a.surname.value);
    if (tag == "ab") return !p.band ? std::string("independent artist") : solo ? std::string("soloist") : bandName;
    if (tag == "abr") {
        const std::string job = jobName(g, a);
        if (!p.band) return "independent " + job;
        return solo ? job : bandName + " " + job;
    }
    if (tag == "abn") return bandName;
    if (tag == "an") {
        std::string nick = trim(a.nickname.value);
        return nick.empty() ? trim(trim(a.forename.value) + " " + trim(a.surname.value)) : nick;
    }
    if (tag == "as") {
        if (a.style < 1 || a.style >= g.style.recordCount()) return std::string();
        g.style.read(a.style);
        return trim(g.style->name.value);
    }
    if (tag == "aj") return jobName(g, a);
    if (tag == "ahh") return std::string(male ? "him" : "her");
    if (tag == "ahha") return std::string(male ? "his" : "her");
    if (tag == "ahs") return std::string(male ? "he" : "she");
    if (tag == "aa") return std::to_string(a.age);
    return std::nullopt;
}

}  // namespace

std::string expandMacros(Game& g, std::string_view text, int16_t firstArtist, int16_t secondArtist) {
    const ScheduleRecord entry = g.schedule.rec;
    const Person people[2] = {personOf(g, firstArtist), personOf(g, secondArtist)};
    // An artist with no band speaks for one person.
    const bool many = people[0].band && people[0].band->memberCount > 1;
    std::string out;
    std::size_t i = 0;
    while (i < text.size()) {
        if (text[i] != '<') {
            out += text[i++];
            continue;
        }
        const std::size_t close = text.find('>', i);
        if (close == std::string_view::npos) break;  // an unclosed tag drops the rest
        const std::string whole(text.substr(i, close - i + 1));
        const std::string tag(text.substr(i + 1, close - i - 1));
        i = close + 1;
        std::optional<std::string> value;
        if (tag == "acn" || tag == "acv") {
            if (entry.value > 0 && entry.value < g.crime.recordCount()) {
                g.crime.read(entry.value);
                value = tag == "acn" ? trim(g.crime->crimeName.value) : std::to_string(g.crime->sentence);
            } else {
                value = std::string();
            }
        } else if (tag == "ap1" || tag == "ap2") {
            value = std::string();
            const ScheduleRecord held = g.schedule.rec;
            const int32_t root = entry.offer;
            if (root > 0 && root < g.schedule.recordCount()) {
                g.schedule.read(root);
                const int16_t ev = g.schedule->eventRecord;
                if (ev > 0 && ev < g.event.recordCount()) {
                    g.event.read(ev);
                    value = trim(tag == "ap1" ? g.event->noun1.value : g.event->noun2.value);
                }
            }
            g.schedule.rec = held;
        } else if (tag == "pn") {
            value = trim(trim(g.player.playerForename.value) + " " + trim(g.player.playerSurname.value));
        } else if (tag == "phs") {
            bool male = true;
            if (g.player.playerStaff > 0 && g.player.playerStaff < g.staff.recordCount()) {
                g.staff.read(g.player.playerStaff);
                male = g.staff->male != kFalse;
            }
            value = male ? "he" : "she";
        } else if (tag == "pl") {
            value = trim(g.player.playerLabelName.value);
        } else if (tag == "biw") {
            value = many ? "we" : "I";
        } else if (tag == "bn") {
            value = people[0].band ? trim(people[0].band->name.value) : std::string();
        } else if (tag == "baa") {
            value = many ? "are" : "am";
        } else if (tag == "bmo") {
            value = many ? "our" : "my";
        } else if (tag == "bl") {
            value = people[0].band ? labelName(g, people[0].band->label) : std::string();
        } else if (tag == "bmu") {
            value = many ? "us" : "me";
        } else if (!tag.empty() && (tag.back() == '1' || tag.back() == '2')) {
            const Person& p = people[tag.back() == '1' ? 0 : 1];
            if (p.present) value = personTag(g, tag.substr(0, tag.size() - 1), p);
        }
        out += value ? *value : whole;
    }
    g.schedule.rec = entry;
    return out;
}

void applyStoryReply(Game& g, int choice) {
    if (choice < 0 || choice > 2) return;
    const EventRecord ev = g.event.rec;
    const ScheduleRecord stage = g.schedule.rec;
    const auto at = [&](int i) { return ev.replyEffect[static_cast<std::size_t>(3 * choice + i)]; };
    const int chance = at(0), next = at(1), money = at(2);
    const int16_t player = g.player.playerLabel;
    if (money != 0 && player > 0 && player < g.label.recordCount()) {
        g.label.read(player);
        if (money > 0)
            addIncome(g, moneyUnits(money), 113);
        else
            addExpense(g, moneyUnits(-money), 107);
    }
    if (next > 0 && next < g.event.recordCount() && stage.type == 12 && g.rng.between(0, 99) < chance) {
        ScheduleRecord e = stage;
        e.id = 0;
        e.date = g.gameDate;
        e.eventRecord = narrow<int16_t>(next);
        addSchedule(g, e);
        // The story is under way again for its cast, under its root's type.
        int type = ev.eventType;
        if (stage.offer > 0 && stage.offer < g.schedule.recordCount()) {
            g.schedule.read(stage.offer);
            const int16_t root = g.schedule->eventRecord;
            if (root > 0 && root < g.event.recordCount()) {
                g.event.read(root);
                type = g.event->eventType;
            }
        }
        if (type >= 0 && type <= 10) {
            for (int16_t n : {stage.artist, stage.artist2}) {
                if (n < 1 || n >= g.artist.recordCount()) continue;
                g.artist.read(n);
                g.artist->storyUnderWay[static_cast<std::size_t>(type)] =
                    narrow<int16_t>(std::min<int32_t>(stage.offer, 32767));
                g.artist.write();
            }
        }
    }
    g.event.rec = ev;
    g.schedule.rec = stage;
}

}  // namespace trovane
