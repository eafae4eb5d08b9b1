#include "screens/glyphs.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include "screens/theme.h"

namespace trovane::screens {

namespace {

// Every glyph is drawn on a 24 by 24 grid with round 2-unit strokes.
void drawGlyph(QPainter& p, Glyph glyph, const QColor& c) {
    QPen pen(c, 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    p.setPen(pen);
    p.setBrush(Qt::NoBrush);
    auto filled = [&] {
        p.setBrush(c);
        p.setPen(Qt::NoPen);
    };
    switch (glyph) {
    case Glyph::play: {
        QPainterPath t;
        t.moveTo(7, 4.5);
        t.lineTo(19.5, 12);
        t.lineTo(7, 19.5);
        t.closeSubpath();
        p.setBrush(c);
        p.drawPath(t);
        break;
    }
    case Glyph::news:
        p.drawRoundedRect(QRectF(3, 5, 15, 15), 1.5, 1.5);
        p.drawLine(QPointF(18, 9), QPointF(21, 9));
        p.drawLine(QPointF(21, 9), QPointF(21, 18));
        p.drawArc(QRectF(18, 16, 3, 4), 180 * 16, 180 * 16);
        p.drawLine(QPointF(6, 9), QPointF(15, 9));
        p.drawLine(QPointF(6, 13), QPointF(15, 13));
        p.drawLine(QPointF(6, 16.5), QPointF(12, 16.5));
        break;
    case Glyph::label:
        p.drawRect(QRectF(4, 8, 16, 12));
        p.drawLine(QPointF(2.5, 8), QPointF(12, 3));
        p.drawLine(QPointF(12, 3), QPointF(21.5, 8));
        p.drawRect(QRectF(10, 14, 4, 6));
        p.drawPoint(QPointF(7.5, 12));
        p.drawPoint(QPointF(16.5, 12));
        break;
    case Glyph::find:
        p.drawEllipse(QRectF(4, 4, 11, 11));
        p.setPen(QPen(c, 3.0, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(14, 14), QPointF(20, 20));
        break;
    case Glyph::charts:
        filled();
        p.drawRoundedRect(QRectF(4, 13, 4, 7), 1, 1);
        p.drawRoundedRect(QRectF(10, 8, 4, 12), 1, 1);
        p.drawRoundedRect(QRectF(16, 4, 4, 16), 1, 1);
        break;
    case Glyph::options: {
        QPainterPath cog;
        const int teeth = 8;
        for (int i = 0; i < teeth * 2; ++i) {
            qreal a = i * M_PI / teeth;
            qreal r1 = (i % 2 == 0) ? 9.5 : 7.0;
            qreal a0 = a - M_PI / (teeth * 2), a1 = a + M_PI / (teeth * 2);
            QPointF p0(12 + r1 * qCos(a0), 12 + r1 * qSin(a0)), p1(12 + r1 * qCos(a1), 12 + r1 * qSin(a1));
            if (i == 0)
                cog.moveTo(p0);
            else
                cog.lineTo(p0);
            cog.lineTo(p1);
        }
        cog.closeSubpath();
        QPainterPath hole;
        hole.addEllipse(QPointF(12, 12), 3.2, 3.2);
        filled();
        p.drawPath(cog.subtracted(hole));
        break;
    }
    case Glyph::power:
        p.drawArc(QRectF(4, 5, 16, 16), 120 * 16, 300 * 16);
        p.drawLine(QPointF(12, 3), QPointF(12, 12));
        break;
    case Glyph::more:
        filled();
        for (int i = 0; i < 3; ++i) p.drawEllipse(QPointF(5.5 + i * 6.5, 12), 2.1, 2.1);
        break;
    case Glyph::ok:
        p.setPen(QPen(c, 2.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPolyline(QPolygonF({QPointF(4.5, 12.5), QPointF(9.5, 17.5), QPointF(19.5, 6.5)}));
        break;
    case Glyph::no:
        p.setPen(QPen(c, 2.6, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(6, 6), QPointF(18, 18));
        p.drawLine(QPointF(18, 6), QPointF(6, 18));
        break;
    case Glyph::defend: {
        QPainterPath s;
        s.moveTo(12, 3);
        s.lineTo(20, 6);
        s.cubicTo(20, 13, 17, 18, 12, 21);
        s.cubicTo(7, 18, 4, 13, 4, 6);
        s.closeSubpath();
        p.drawPath(s);
        p.drawPolyline(QPolygonF({QPointF(8.5, 12), QPointF(11, 14.5), QPointF(15.5, 9.5)}));
        break;
    }
    case Glyph::condemn:
        p.drawEllipse(QRectF(3, 3, 18, 18));
        p.drawLine(QPointF(12, 7), QPointF(12, 17));
        p.drawPolyline(QPolygonF({QPointF(8, 13), QPointF(12, 17), QPointF(16, 13)}));
        break;
    case Glyph::noComment: {
        QPainterPath b;
        b.addRoundedRect(QRectF(3, 4, 18, 12), 3, 3);
        b.moveTo(8, 16);
        b.lineTo(7, 20.5);
        b.lineTo(12, 16);
        p.drawPath(b);
        p.drawLine(QPointF(8, 10), QPointF(16, 10));
        break;
    }
    case Glyph::help: {
        p.drawEllipse(QRectF(3, 3, 18, 18));
        QFont f;
        f.setPixelSize(13);
        f.setBold(true);
        p.setFont(f);
        p.drawText(QRectF(3, 3, 18, 18), Qt::AlignCenter, QStringLiteral("?"));
        break;
    }
    case Glyph::trash:
        p.drawLine(QPointF(4, 6.5), QPointF(20, 6.5));
        p.drawPolyline(QPolygonF({QPointF(9, 6.5), QPointF(9.5, 3.5), QPointF(14.5, 3.5), QPointF(15, 6.5)}));
        p.drawPolyline(QPolygonF({QPointF(6, 6.5), QPointF(7, 20), QPointF(17, 20), QPointF(18, 6.5)}));
        p.drawLine(QPointF(10, 10), QPointF(10, 16.5));
        p.drawLine(QPointF(14, 10), QPointF(14, 16.5));
        break;
    case Glyph::save:
        p.drawPolygon(QPolygonF({QPointF(4, 4), QPointF(17, 4), QPointF(20, 7), QPointF(20, 20), QPointF(4, 20)}));
        p.drawRect(QRectF(8, 4, 7, 5));
        p.drawRect(QRectF(7, 13, 10, 7));
        break;
    case Glyph::load:
        p.drawPolyline(QPolygonF(
            {QPointF(3, 19), QPointF(3, 5), QPointF(9, 5), QPointF(11, 7.5), QPointF(18, 7.5), QPointF(18, 10)}));
        p.drawPolygon(QPolygonF({QPointF(3, 19), QPointF(6.5, 10.5), QPointF(21.5, 10.5), QPointF(18, 19)}));
        break;
    case Glyph::back:
        p.drawLine(QPointF(5, 12), QPointF(19, 12));
        p.drawPolyline(QPolygonF({QPointF(11, 6), QPointF(5, 12), QPointF(11, 18)}));
        break;
    case Glyph::calendar:
        p.drawRoundedRect(QRectF(3.5, 5, 17, 15), 2, 2);
        p.drawLine(QPointF(3.5, 10), QPointF(20.5, 10));
        p.drawLine(QPointF(8, 3), QPointF(8, 7));
        p.drawLine(QPointF(16, 3), QPointF(16, 7));
        filled();
        p.drawRect(QRectF(7, 13, 3, 3));
        break;
    case Glyph::coins:
        for (int i = 0; i < 3; ++i) {
            qreal y = 15 - i * 4.5;
            p.drawEllipse(QRectF(5, y, 14, 5));
        }
        break;
    case Glyph::star: {
        QPolygonF s;
        for (int i = 0; i < 10; ++i) {
            qreal a = -M_PI / 2 + i * M_PI / 5;
            qreal r = (i % 2 == 0) ? 9.5 : 4.0;
            s << QPointF(12 + r * qCos(a), 12.5 + r * qSin(a));
        }
        p.drawPolygon(s);
        break;
    }
    case Glyph::info:
        p.drawEllipse(QRectF(3, 3, 18, 18));
        p.drawLine(QPointF(12, 11), QPointF(12, 16.5));
        filled();
        p.drawEllipse(QPointF(12, 7.6), 1.4, 1.4);
        break;
    case Glyph::record: {
        p.setPen(Qt::NoPen);
        p.setBrush(c);
        QPainterPath disc;
        disc.addEllipse(QPointF(12, 12), 10.5, 10.5);
        QPainterPath hole;
        hole.addEllipse(QPointF(12, 12), 1.3, 1.3);
        p.drawPath(disc.subtracted(hole));
        p.setBrush(Qt::NoBrush);
        QColor groove = c.darker(140);
        p.setPen(QPen(groove, 0.6));
        for (qreal r : {8.8, 7.4, 6.0}) p.drawEllipse(QPointF(12, 12), r, r);
        p.setPen(Qt::NoPen);
        p.setBrush(palette::accent);
        p.drawEllipse(QPointF(12, 12), 4.0, 4.0);
        p.setBrush(palette::window);
        p.drawEllipse(QPointF(12, 12), 1.2, 1.2);
        break;
    }
    case Glyph::chevron:
        p.setPen(QPen(c, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPolyline(QPolygonF({QPointF(6.5, 9.5), QPointF(12, 15), QPointF(17.5, 9.5)}));
        break;
    case Glyph::person:
        filled();
        p.drawEllipse(QPointF(12, 8.5), 4.5, 4.5);
        {
            QPainterPath body;
            body.moveTo(3.5, 21.5);
            body.cubicTo(4.5, 15, 8, 14, 12, 14);
            body.cubicTo(16, 14, 19.5, 15, 20.5, 21.5);
            body.closeSubpath();
            p.drawPath(body);
        }
        break;
    }
}

}  // namespace

QPixmap glyphPixmap(Glyph glyph, const QColor& color, int size, qreal devicePixelRatio) {
    QPixmap pm(QSize(size, size) * devicePixelRatio);
    pm.setDevicePixelRatio(devicePixelRatio);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 24.0, size / 24.0);
    drawGlyph(p, glyph, color);
    return pm;
}

QIcon glyphIcon(Glyph glyph, const QColor& color) {
    QIcon icon;
    for (int size : {16, 20, 24, 32, 48, 64}) {
        icon.addPixmap(glyphPixmap(glyph, color, size), QIcon::Normal);
        icon.addPixmap(glyphPixmap(glyph, palette::disabledText, size), QIcon::Disabled);
    }
    return icon;
}

QPixmap placeholderPicture(QSize size, Glyph glyph) {
    QPixmap pm(size);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    QRectF r(0.5, 0.5, size.width() - 1.0, size.height() - 1.0);
    p.setPen(QPen(palette::border, 1));
    p.setBrush(palette::surfaceRaised);
    p.drawRoundedRect(r, 8, 8);
    int side = qMin(size.width(), size.height()) * 3 / 5;
    QPixmap g = glyphPixmap(glyph, palette::mutedText, side);
    p.drawPixmap((size.width() - side) / 2, size.height() - side - (size.height() - side) / 4, g);
    return pm;
}

QPixmap logoPixmap(int height, qreal devicePixelRatio) {
    QFont f;
    f.setPixelSize(height * 6 / 10);
    f.setBold(true);
    f.setLetterSpacing(QFont::PercentageSpacing, 104);
    QFontMetrics fm(f);
    const QString name = QStringLiteral("TROVANE 3");
    int textWidth = fm.horizontalAdvance(name);
    int width = height + height / 3 + textWidth + 4;
    QPixmap pm(QSize(width, height) * devicePixelRatio);
    pm.setDevicePixelRatio(devicePixelRatio);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.drawPixmap(0, 0, glyphPixmap(Glyph::record, palette::text, height, devicePixelRatio));
    p.setFont(f);
    p.setPen(palette::text);
    p.drawText(QRect(height + height / 3, 0, textWidth + 4, height), Qt::AlignVCenter | Qt::AlignLeft, name);
    return pm;
}

}  // namespace trovane::screens
