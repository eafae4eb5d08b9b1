#pragma once
// The game's own icons and pictures, drawn with QPainter: no image files.
#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QSize>

namespace trovane::screens {

enum class Glyph {
    play,       // continue the game
    news,       // a folded newspaper
    label,      // the label's building
    find,       // a magnifying glass
    charts,     // rising bars
    options,    // a cog
    power,      // quit
    more,       // three dots: the options of what is on screen
    ok,         // a tick
    no,         // a cross
    defend,     // a shield
    condemn,    // a thumb down, drawn as a downward arrow in a circle
    noComment,  // a speech bubble with a bar through it
    help,       // a question mark in a circle
    trash,      // delete
    save,       // a floppy disk
    load,       // an open folder
    back,       // an arrow to the left
    calendar,   // a page of a calendar
    coins,      // a stack of coins
    star,       // credits
    info,       // an "i" in a circle
    record,     // a vinyl record, the game's emblem
    person,     // head and shoulders: a picture not yet taken
    chevron,    // a small downward chevron: the arrow of a drop-down list
};

// The glyph on a transparent square of the given size in logical pixels.
QPixmap glyphPixmap(Glyph glyph, const QColor& color, int size, qreal devicePixelRatio = 1.0);
// An icon with a normal and a disabled look.
QIcon glyphIcon(Glyph glyph, const QColor& color);

// The stand-in for a picture of an act, a member of staff or a label logo
// that has no picture of its own: a neutral silhouette on a soft card.
QPixmap placeholderPicture(QSize size, Glyph glyph = Glyph::person);

// The game's logo: a record with the name beside it.
QPixmap logoPixmap(int height, qreal devicePixelRatio = 1.0);

}  // namespace trovane::screens
