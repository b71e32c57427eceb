#include "sample/Portrait.h"

#include <cmath>

#include <QPainterPath>

#include "sample/Hair.h"
#include "sample/Plane.h"
#include "sample/Random.h"

namespace tavrin::sample {

namespace {

const QColor kSkin(226, 174, 146), kSkinLight(252, 218, 194), kSkinShade(150, 88, 68), kBlush(214, 108, 92);
const QColor kKnit(118, 42, 62), kKnitLight(176, 82, 100), kKnitShade(58, 16, 32);

// An airbrushed spot that fades like a bell.
void soft(QPainter& painter, QPointF centre, double rx, double ry, QColor color, double strength) {
    QRadialGradient bell(QPointF(0, 0), 1.0);
    for (int i = 0; i <= 10; ++i) {
        const double r = i / 10.0;
        color.setAlphaF(
            static_cast<float>(strength * (std::exp(-3.2 * r * r) - std::exp(-3.2)) / (1 - std::exp(-3.2))));
        bell.setColorAt(r, color);
    }
    painter.save();
    painter.translate(centre);
    painter.scale(rx, ry);
    painter.setPen(Qt::NoPen);
    painter.setBrush(bell);
    painter.drawEllipse(QPointF(0, 0), 1.0, 1.0);
    painter.restore();
}

void stroke(QPainter& painter, const QPainterPath& path, QColor color, double width, double strength) {
    color.setAlphaF(static_cast<float>(strength));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
}

QPainterPath faceOutline() {
    QPainterPath face(QPointF(800, 452));
    face.cubicTo(940, 452, 1014, 560, 1012, 720);
    face.cubicTo(1011, 830, 1000, 896, 972, 958);
    face.cubicTo(940, 1026, 878, 1092, 800, 1092);
    face.cubicTo(722, 1092, 660, 1026, 628, 958);
    face.cubicTo(600, 896, 589, 830, 588, 720);
    face.cubicTo(586, 560, 660, 452, 800, 452);
    return face;
}

QPainterPath bodyOutline() {
    QPainterPath body(QPointF(606, 1254));
    body.cubicTo(520, 1300, 372, 1330, 290, 1420);
    body.cubicTo(206, 1512, 178, 1780, 150, 2120);
    body.lineTo(1450, 2120);
    body.cubicTo(1422, 1780, 1394, 1512, 1310, 1420);
    body.cubicTo(1228, 1330, 1080, 1300, 994, 1254);
    body.cubicTo(920, 1420, 680, 1420, 606, 1254);
    return body;
}

// The knitted pullover: ribs that follow the body, folds, the collar.
void paintBody(QPainter& painter) {
    const QPainterPath body = bodyOutline();
    QLinearGradient across(200, 0, 1420, 0);
    across.setColorAt(0.0, kKnit.darker(118));
    across.setColorAt(0.28, kKnit.lighter(128));
    across.setColorAt(0.6, kKnit);
    across.setColorAt(1.0, kKnitShade);
    painter.setPen(Qt::NoPen);
    painter.setBrush(across);
    painter.drawPath(body);
    painter.save();
    painter.setClipPath(body);
    Random random(21);
    for (int i = -62; i <= 62; ++i) {
        const double x = 800.0 + i * 11.0, spread = i * 3.1;
        QPainterPath rib(QPointF(x, 1250));
        rib.cubicTo(x + spread, 1450, x + spread * 1.2, 1700, x + spread * 1.15, 2120);
        stroke(painter, rib, kKnitShade, 3.4, 0.26 + 0.05 * random.unit());
        rib.translate(-4.0, 0.0);
        stroke(painter, rib, kKnitLight, 2.4, 0.16 + 0.08 * random.unit());
    }
    soft(painter, {470, 1500}, 300, 260, kKnitLight, 0.42);
    soft(painter, {1250, 1560}, 260, 420, kKnitShade, 0.55);
    soft(painter, {800, 1420}, 330, 130, kKnitShade, 0.55);
    for (const double side : {-1.0, 1.0}) {  // where the arms begin, and what the cloth does there
        QPainterPath fold(QPointF(800 + side * 392, 1600));
        fold.cubicTo(800 + side * 420, 1720, 800 + side * 430, 1860, 800 + side * 412, 2120);
        for (double width = 64; width > 6; width *= 0.72)
            stroke(painter, fold, kKnitShade, width, 0.075);
        soft(painter, {800 + side * 250, 1770}, 120, 300, kKnitLight, side < 0 ? 0.24 : 0.12);
        soft(painter, {800 + side * 345, 1560}, 60, 190, kKnitShade, 0.30);
    }
    painter.restore();
    QPainterPath collar(QPointF(606, 1254));
    collar.cubicTo(680, 1420, 920, 1420, 994, 1254);
    for (double width = 58; width > 4; width -= 6) {
        const double light = 1.0 - std::abs(width - 30) / 40.0;
        stroke(painter, collar, width > 52 ? kKnitShade : kKnit.lighter(static_cast<int>(92 + 42 * light)), width,
               1.0);
    }
    for (double t = 0.015; t < 1.0; t += 0.0165) {  // the ribs of the collar stand across it
        const QPointF place = collar.pointAtPercent(t);
        const double angle = (collar.angleAtPercent(t) - 90.0) * 3.14159265358979 / 180.0;
        const QPointF half(25.0 * std::cos(angle), -25.0 * std::sin(angle));
        QPainterPath rib(place - half);
        rib.lineTo(place + half);
        stroke(painter, rib, kKnitShade, 3.0, 0.42);
    }
}

void paintNeck(QPainter& painter) {
    QPainterPath neck(QPointF(694, 930));
    neck.cubicTo(704, 1120, 704, 1190, 590, 1268);
    neck.cubicTo(680, 1430, 920, 1430, 1010, 1268);
    neck.cubicTo(896, 1190, 896, 1120, 906, 930);
    QLinearGradient across(680, 0, 930, 0);
    across.setColorAt(0.0, kSkin.darker(112));
    across.setColorAt(0.35, kSkin);
    across.setColorAt(1.0, kSkinShade);
    painter.setPen(Qt::NoPen);
    painter.setBrush(across);
    painter.drawPath(neck);
    painter.save();
    painter.setClipPath(neck);
    soft(painter, {815, 1075}, 190, 150, kSkinShade.darker(120), 0.80);  // the shadow of the chin
    soft(painter, {880, 1130}, 90, 200, kSkinShade.darker(120), 0.45);
    soft(painter, {760, 1290}, 110, 46, kSkinLight, 0.34);
    for (const double side : {-1.0, 1.0}) {
        QPainterPath bone(QPointF(800 + side * 22, 1318));
        bone.quadTo(800 + side * 70, 1296, 800 + side * 130, 1290);
        for (double width = 22; width > 4; width *= 0.7)
            stroke(painter, bone, kSkinShade, width, 0.06);
    }
    painter.restore();
}

void paintEye(QPainter& painter, double side) {
    painter.save();
    painter.translate(800 + side * 92, 764);
    painter.scale(side * 0.94, 0.98);  // drawn as the eye at the right of the picture, outer corner at +x
    soft(painter, {0, -16}, 96, 52, kSkinShade, 0.40);
    soft(painter, {-58, 2}, 44, 46, kSkinShade, 0.30);
    QPainterPath lid(QPointF(-52, 8));
    lid.cubicTo(-34, -22, 12, -38, 56, -8);
    QPainterPath eye = lid;
    eye.cubicTo(34, 22, -22, 28, -52, 8);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(238, 230, 224));
    painter.drawPath(eye);
    painter.save();
    painter.setClipPath(eye);
    QRadialGradient iris(QPointF(0, -5), 26);
    iris.setColorAt(0.0, QColor(60, 34, 20));
    iris.setColorAt(0.45, QColor(122, 76, 40));
    iris.setColorAt(0.85, QColor(96, 56, 30));
    iris.setColorAt(1.0, QColor(44, 24, 16));
    painter.setBrush(iris);
    painter.drawEllipse(QPointF(0, -5), 26, 26);
    painter.setBrush(QColor(14, 9, 8));
    painter.drawEllipse(QPointF(0, -5), 11.5, 11.5);
    for (double width = 34; width > 6; width *= 0.7)
        stroke(painter, lid, QColor(60, 30, 24), width, 0.13);
    soft(painter, {-48, 8}, 16, 12, kBlush, 0.6);
    soft(painter, {6, 10}, 16, 8, QColor(214, 160, 100), 0.35);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 253, 248, 235));
    painter.drawEllipse(QPointF(-side * 9, -14), 5.6, 6.2);  // the light stands at the left for both eyes
    painter.setBrush(QColor(255, 253, 248, 110));
    painter.drawEllipse(QPointF(side * 9, 5), 3.0, 3.0);
    painter.restore();
    stroke(painter, lid, QColor(36, 18, 14), 5.6, 0.92);
    QPainterPath lower(QPointF(-50, 10));
    lower.cubicTo(-22, 29, 34, 23, 56, -7);
    stroke(painter, lower, QColor(92, 48, 38), 2.4, 0.55);
    QPainterPath crease(QPointF(-52, -10));
    crease.cubicTo(-30, -42, 16, -58, 62, -24);
    stroke(painter, crease, kSkinShade.darker(125), 3.4, 0.55);
    QPainterPath lashes(QPointF(-30, -14));  // seen as one dark wedge that grows outwards
    lashes.cubicTo(-4, -36, 30, -36, 66, -17);
    lashes.cubicTo(58, -10, 56, -8, 54, -6);
    lashes.cubicTo(30, -26, 0, -31, -30, -14);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(28, 14, 12, 225));
    painter.drawPath(lashes);
    painter.restore();
}

void paintNose(QPainter& painter) {
    soft(painter, {845, 840}, 40, 130, kSkinShade, 0.36);
    soft(painter, {792, 810}, 16, 110, kSkinLight, 0.75);
    soft(painter, {795, 893}, 30, 25, kSkinLight, 0.62);
    soft(painter, {802, 932}, 70, 22, kSkinShade, 0.50);
    for (const double side : {-1.0, 1.0}) {
        QPainterPath wing(QPointF(800 + side * 47, 888));
        wing.cubicTo(800 + side * 62, 906, 800 + side * 54, 930, 800 + side * 34, 924);
        for (double width = 13; width > 2; width *= 0.66)
            stroke(painter, wing, kSkinShade.darker(115), width, side < 0 ? 0.075 : 0.12);
        soft(painter, {800 + side * 23, 925}, 17, 9, QColor(88, 36, 28), 0.85);
    }
}

void paintMouth(QPainter& painter) {
    painter.save();
    painter.translate(800, 0);
    painter.scale(0.92, 1.0);
    painter.translate(-800, 0);
    QPainterPath line(QPointF(712, 983));
    line.cubicTo(740, 1003, 768, 1001, 800, 1006);
    line.cubicTo(832, 1001, 860, 1003, 888, 982);
    QPainterPath upper = line;
    upper.cubicTo(860, 979, 838, 966, 822, 966);
    upper.cubicTo(810, 966, 806, 973, 800, 973);
    upper.cubicTo(794, 973, 790, 966, 778, 966);
    upper.cubicTo(762, 966, 740, 980, 712, 983);
    QPainterPath lower = line;
    lower.cubicTo(866, 1020, 838, 1040, 800, 1040);
    lower.cubicTo(762, 1040, 730, 1019, 712, 983);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(172, 74, 76));
    painter.drawPath(upper);
    QLinearGradient down(0, 995, 0, 1042);
    down.setColorAt(0.0, QColor(176, 76, 80));
    down.setColorAt(0.5, QColor(206, 104, 104));
    down.setColorAt(1.0, QColor(178, 84, 80));
    painter.setBrush(down);
    painter.drawPath(lower);
    soft(painter, {786, 1019}, 38, 9, QColor(255, 214, 206), 0.62);
    soft(painter, {772, 972}, 30, 6, QColor(232, 150, 140), 0.55);
    stroke(painter, line, QColor(92, 26, 32), 4.2, 0.85);
    for (const double side : {-1.0, 1.0})
        soft(painter, {800 + side * 96, 980}, 20, 16, kSkinShade, 0.30);
    soft(painter, {804, 1054}, 66, 20, kSkinShade, 0.48);
    soft(painter, {800, 950}, 13, 24, kSkinShade, 0.24);
    soft(painter, {790, 1074}, 60, 24, kSkinLight, 0.34);
    painter.restore();
}

void paintFace(QPainter& painter) {
    const QPainterPath face = faceOutline();
    QLinearGradient across(590, 700, 1020, 800);
    across.setColorAt(0.0, kSkin);
    across.setColorAt(0.30, kSkin.lighter(106));
    across.setColorAt(0.62, kSkin);
    across.setColorAt(1.0, QColor(188, 126, 102));
    painter.setPen(Qt::NoPen);
    painter.setBrush(across);
    painter.drawPath(face);
    painter.save();
    painter.setClipPath(face);
    for (double width = 150; width > 10; width *= 0.78)  // the cheeks turn away from the light
        stroke(painter, face, kSkinShade, width, 0.045);
    soft(painter, {990, 850}, 150, 330, kSkinShade, 0.42);
    soft(painter, {800, 500}, 300, 110, kSkinShade, 0.42);  // under the hair
    soft(painter, {770, 630}, 150, 84, kSkinLight, 0.55);
    soft(painter, {690, 865}, 95, 62, kSkinLight, 0.50);
    soft(painter, {898, 860}, 70, 52, kSkinLight, 0.30);
    soft(painter, {672, 905}, 110, 84, kBlush, 0.30);
    soft(painter, {924, 905}, 110, 84, kBlush, 0.30);
    for (const double side : {-1.0, 1.0})
        paintEye(painter, side);
    paintNose(painter);
    paintMouth(painter);
    paintBrow(painter, {746, 694}, {690, 652}, {626, 700});
    paintBrow(painter, {854, 694}, {910, 652}, {974, 700});
    painter.restore();
}

constexpr double kLift = 40.0;

QImage paintOn(int factor, double tilt, const auto& paint) {
    QImage image(kWidth * factor, kHeight * factor, QImage::Format_RGBA64_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(factor, factor);
    painter.translate(800, 2000);
    painter.scale(1.14, 1.14);  // the figures of this file leave much room above the head
    painter.translate(0, -800 + kLift);
    painter.rotate(tilt);
    painter.translate(-800, -1200);
    if (tilt == 0.0) painter.translate(0, -44);
    paint(painter);
    return image;
}

}  // namespace

QImage paintPortrait(int factor) {
    constexpr double kTilt = -2.5;  // degrees; the head leans a little
    QImage picture = paintOn(factor, kTilt, paintBackHair);
    QImage body = paintOn(factor, 0.0, [](QPainter& painter) {
        paintNeck(painter);
        paintBody(painter);
    });
    blur(body, 1.1 * factor);  // behind the plane of focus
    QPainter painter(&picture);
    painter.drawImage(0, 0, body);
    painter.drawImage(0, 0, paintOn(factor, kTilt, paintFace));
    painter.drawImage(0, 0, paintOn(factor, kTilt, paintFrontHair));
    return picture;
}

}  // namespace tavrin::sample
