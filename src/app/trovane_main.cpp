// trovane: the desktop game.
#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <optional>

#include <CLI/CLI.hpp>

#include "screens/mdi_parent_form.h"
#include "screens/theme.h"
#include "world/game.h"

namespace fs = std::filesystem;

namespace {

// The Data folder beside the program, as the game has always looked for it.
fs::path dataBesideProgram() {
    std::error_code ec;
    fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    return ec ? fs::path("Data") : exe.parent_path() / "Data";
}

uint64_t clockSeed() { return static_cast<uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()); }

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);  // takes Qt's own options (-platform and the like) out first
    QApplication::setApplicationName(QStringLiteral("Trovane 3"));

    CLI::App cli{"Trovane 3: a game of the music business"};
    fs::path dataDir = dataBesideProgram();
    std::optional<uint64_t> seed;
    cli.add_option("--data", dataDir, "The data folder: the base world (*.gam), the game in play and the saves")
        ->capture_default_str();
    cli.add_option("--seed", seed, "Seed of the game's random source (default: the clock)");
    try {
        cli.parse(argc, argv);
    } catch (const CLI::ParseError& e) { return cli.exit(e); }

    trovane::screens::applyTheme(app);
    if (!fs::exists(dataDir / "country.gam")) {
        QMessageBox::critical(nullptr, QStringLiteral("Trovane 3"),
                              QStringLiteral("The data folder %1 holds no base world (country.gam and the rest of "
                                             "the *.gam files). Build the game, or start it with --data FOLDER.")
                                  .arg(QString::fromStdString(dataDir.string())));
        return 1;
    }

    trovane::Game game(dataDir, seed.value_or(clockSeed()));
    trovane::screens::mdiParentForm window(game);
    QSize room = app.primaryScreen() ? app.primaryScreen()->availableSize() : QSize(1280, 800);
    if (room.width() > 1360 && room.height() > 860) {
        window.resize(1280, 800);
        window.show();
    } else {
        window.showMaximized();
    }
    window.showSplash();
    return app.exec();
}
