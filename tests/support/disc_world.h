#pragma once
// A label, a band of two, a style, a distributor, a plant and discs, made by
// hand for the release, sales and chart tests.
#include "support/amend.h"
#include "support/empty_game.h"
#include "world/dates.h"
#include "world/record_store.h"

namespace trovane::test {

class DiscWorld {
public:
    EmptyGame eg;
    Game& g = eg.g;
    int16_t label = 0, rival = 0, band = 0, style = 0, distributor = 0, plant = 0;

    DiscWorld() {
        g.style.rec = StyleRecord{.lifeSpan = 20, .popularity = {60, 60, 60, 60, 60}, .abilityWeight = 50};
        style = static_cast<int16_t>(g.style.append());
        label = addLabel("Our Records");
        rival = addLabel("Their Records");
        g.player.playerLabel = label;
        band = addBand("The Testers", label);
        distributor = addFirm(2, 50, 0);  // 2 x 50^3 = 250000 a day
        plant = addFirm(1, 20, 0);        // 2 x 20^3 = 16000 a day
    }

    int16_t addLabel(const char* name) {
        g.label.rec = LabelRecord{.name = name};
        return static_cast<int16_t>(g.label.append());
    }

    int16_t addFirm(uint8_t kind, uint8_t quality, int16_t owner) {
        g.business.rec = BusinessRecord{
            .name = kind == 1 ? "Press Co" : "Ship Co", .kind = kind, .quality = quality, .owner = owner, .open = -1};
        return static_cast<int16_t>(g.business.append());
    }

    // Two members with an image of 80; ability 80, reputation 50 everywhere.
    int16_t addBand(const char* name, int16_t bandLabel) {
        g.band.rec = BandRecord{.name = name,
                                .ability = 80,
                                .style = static_cast<uint8_t>(style),
                                .label = bandLabel,
                                .memberCount = 2,
                                .reputation = {50, 50, 50, 50, 50}};
        int16_t id = static_cast<int16_t>(g.band.append());
        for (std::size_t i = 0; i < 2; ++i) {
            g.artist.rec = ArtistRecord{.band = id, .imageRating = 80, .royaltyShare = 50};
            amend(g.band, id, [&] { g.band->members[i] = static_cast<int16_t>(g.artist.append()); });
        }
        return id;
    }

    // An album of quality and commerciality 80, hype 50 and promotion 20,
    // out in every territory with the given stock and the distributor.
    int16_t addDisc(const char* title, int32_t stock = 1000000, int16_t discBand = 0, uint8_t single = 0) {
        const uint8_t tracks = single ? 3 : 10;
        const double out = g.gameDate - 7;
        g.disc.rec = DiscRecord{.title = title,
                                .hype = {50, 50, 50, 50, 50},
                                .promotion = {20, 20, 20, 20, 20},
                                .stock = {stock, stock, stock, stock, stock},
                                .distributor = {distributor, distributor, distributor, distributor, distributor},
                                .releaseDate = {out, out, out, out, out},
                                .isSingle = single,
                                .quality = 80,
                                .commerciality = 80,
                                .band = discBand ? discBand : band,
                                .label = label,
                                .trackCount = tracks,
                                .tracksRecorded = tracks};
        return static_cast<int16_t>(g.disc.append());
    }

    // Appends a row for the disc to chart N.
    void addRow(int chart, int16_t disc, uint8_t lastHype = 50) {
        openChart(g, chart);
        g.chart.rec = ChartRow{};
        g.chart->disc = disc;
        g.chart->lastHype = lastHype;
        g.chart->territory = static_cast<uint8_t>(chart % 5);
        g.chart->row = g.chart.recordCount();
        g.chart.write(g.chart.recordCount());
        closeChart(g);
    }

    // The discs of chart N in chart order.
    std::vector<int16_t> chartDiscs(int chart) {
        std::vector<int16_t> out;
        openChart(g, chart);
        for (int32_t n = 1; n < g.chart.recordCount(); ++n) {
            g.chart.read(n);
            out.push_back(g.chart->disc);
        }
        closeChart(g);
        return out;
    }

    DiscRecord disc(int16_t n) {
        g.disc.read(n);
        return g.disc.rec;
    }
    BandRecord bandRec(int16_t n) {
        g.band.read(n);
        return g.band.rec;
    }
    LabelRecord labelRec(int16_t n) {
        g.label.read(n);
        return g.label.rec;
    }
};

}  // namespace trovane::test
