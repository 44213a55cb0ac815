// SPDX-License-Identifier: MIT
//
// The geometry of the picture, and choosing in it with mouse and keyboard.
#include "window/picture/picture.h"

#include <QApplication>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include "window/registry.h"

namespace ztk::window {

namespace {

using model::Source;
using model::Tap;

using Indexes = std::array<std::uint32_t, kWires>;

constexpr std::array<std::uint32_t, kWires> kChoices = {7, 7, 7, 7, 8};

PictureState StateOf(const Indexes &indexes) {
  PictureState state;
  for (std::uint32_t channel = 0; channel < kWires; ++channel) {
    state.channels[channel].tap = model::TapOf(channel, indexes[channel]);
  }
  return state;
}

QString Written(const Indexes &indexes) {
  QStringList words;
  for (const std::uint32_t index : indexes) {
    words.append(QString::number(index));
  }
  return words.join(QLatin1Char(' '));
}

// The lines of a wire as boxes of the width that it is drawn with.
QList<QRectF> BoxesOf(const Wire &wire, qreal unit) {
  const qreal half = unit * 0.12;
  QList<QRectF> boxes;
  for (std::size_t i = 1; i < wire.points.size(); ++i) {
    boxes.append(QRectF(wire.points[i - 1], wire.points[i])
                     .normalized()
                     .adjusted(-half, -half, half, half));
  }
  return boxes;
}

// What a wire must not cover, with its name.
struct Obstacle {
  QString name;
  QRectF box;
};

QList<Obstacle> ObstaclesOf(const PictureLayout &layout) {
  QList<Obstacle> obstacles;
  for (const PictureLabel &label : layout.labels) {
    obstacles.append({.name = label.text, .box = label.box});
  }
  for (const Knob &knob : layout.knobs) {
    // A wire starts on the upper edge of the cross fader.
    const QRectF box = knob.kind == KnobKind::CrossFader
                           ? knob.box.adjusted(0, layout.unit * 0.2, 0, 0)
                           : knob.box;
    obstacles.append(
        {.name = QStringLiteral("knob %1").arg(knob.lane), .box = box});
  }
  return obstacles;
}

// The first label or knob that a wire covers; empty where none does.
QString FirstCrossing(const Picture &picture) {
  for (const Wire &wire : picture.wires()) {
    for (const QRectF &line : BoxesOf(wire, picture.parts().unit)) {
      for (const Obstacle &obstacle : ObstaclesOf(picture.parts())) {
        if (!line.intersects(obstacle.box)) continue;
        return QStringLiteral("wire %1 crosses %2")
            .arg(QString::number(wire.channel + 1), obstacle.name);
      }
    }
  }
  return {};
}

bool RunAlongEachOther(const QRectF &one, const QRectF &other, qreal unit) {
  const QRectF common = one.intersected(other);
  return std::max(common.width(), common.height()) > unit * 0.5;
}

// Two wires that lie on each other; empty where no two do.
QString FirstOverlap(const Picture &picture) {
  const qreal unit = picture.parts().unit;
  const QList<Wire> &wires = picture.wires();
  for (qsizetype i = 0; i < wires.size(); ++i) {
    for (qsizetype k = i + 1; k < wires.size(); ++k) {
      for (const QRectF &one : BoxesOf(wires[i], unit)) {
        for (const QRectF &other : BoxesOf(wires[k], unit)) {
          if (!RunAlongEachOther(one, other, unit)) continue;
          return QStringLiteral("wires %1 and %2")
              .arg(wires[i].channel + 1)
              .arg(wires[k].channel + 1);
        }
      }
    }
  }
  return {};
}

// Numbers on taps that cover another number, a label or a knob they are not
// part of.
QString FirstHiddenNumber(const Picture &picture) {
  const qreal radius = picture.parts().numberRadius * 0.9;
  const QList<Wire> &wires = picture.wires();
  for (const Wire &wire : wires) {
    const QPointF centre = wire.points.front();
    for (const Wire &other : wires) {
      const QPointF way = other.points.front() - centre;
      if (other.channel != wire.channel &&
          QPointF::dotProduct(way, way) < 4 * radius * radius) {
        return QStringLiteral("numbers %1 and %2")
            .arg(wire.channel + 1)
            .arg(other.channel + 1);
      }
    }
    const QRectF circle(centre - QPointF(radius, radius),
                        QSizeF(2 * radius, 2 * radius));
    for (const PictureLabel &label : picture.parts().labels) {
      if (circle.intersects(label.box)) {
        return QStringLiteral("number %1 on %2")
            .arg(QString::number(wire.channel + 1), label.text);
      }
    }
  }
  return {};
}

}  // namespace

class PictureTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void WiresCrossNothingAndLieOnNothing_data();
  void WiresCrossNothingAndLieOnNothing();
  void TextsDoNotTouchEachOther_data();
  void TextsDoNotTouchEachOther();
  void FiveNumbersFitOnTheCrossFader();
  void GrowsWithTheFont();
  void AClickChoosesForTheActiveChannel();
  void AClickOnTheNameOfASignalChoosesIt();
  void AClickOnATapOfAnotherLaneChoosesNothing();
  void DraggingTheNumberChoosesForItsChannel();
  void DraggingTheArrowChoosesForItsChannel();
  void ADragThatEndsNowhereChoosesNothing();
  void AClickOnAnArrowMakesItsChannelActive();
  void AClickOnANumberThatIsOutOfReachMakesItsChannelActive();
  void EnterOnANumberThatIsOutOfReachMakesItsChannelActive();
  void TheKeyboardReachesEveryTap();
  void DigitsNameTheActiveChannel();
  void DescribesTheTapWithTheFocus();

 private:
  QPoint PlaceOf(const Tap &tap) const {
    return picture_->parts().Spot(tap)->centre.toPoint();
  }
  const Wire &WireOf(int channel) const {
    for (const Wire &wire : picture_->wires()) {
      if (wire.channel == channel) return wire;
    }
    qFatal("There is no such wire");
  }
  void Drag(QPoint from, QPoint to);
  void Place(qreal scale, qreal rowPitch);

  QFont font_;
  std::unique_ptr<Picture> picture_;
};

void PictureTest::init() {
  font_ = QApplication::font();
  picture_ = std::make_unique<Picture>();
  Place(1, 5);
  picture_->showState(StateOf({2, 1, 3, 1, 0}));
  QApplication::setActiveWindow(picture_.get());
}

void PictureTest::cleanup() { picture_.reset(); }

// Rows this many units apart.
void PictureTest::Place(qreal scale, qreal rowPitch) {
  QFont font = font_;
  font.setPointSizeF(font_.pointSizeF() * scale);
  picture_->setFont(font);
  picture_->resize(picture_->minimumSizeHint());
  std::array<qreal, kWires> rows{};
  for (std::size_t i = 0; i < rows.size(); ++i) {
    rows[i] = (2 + rowPitch * static_cast<qreal>(i)) * picture_->parts().unit;
  }
  picture_->setRows(rows);
  picture_->show();
}

void PictureTest::WiresCrossNothingAndLieOnNothing_data() {
  QTest::addColumn<qreal>("scale");
  QTest::addColumn<qreal>("rowPitch");
  for (const qreal scale : {1.0, 2.0}) {
    for (const qreal pitch : {3.5, 4.7, 5.0, 6.2}) {
      QTest::addRow("letters of %g, rows %g apart", scale, pitch)
          << scale << pitch;
    }
  }
}

void PictureTest::WiresCrossNothingAndLieOnNothing() {
  QFETCH(const qreal, scale);
  QFETCH(const qreal, rowPitch);
  Place(scale, rowPitch);
  QList<Indexes> all;
  for (std::uint32_t channel = 0; channel < kWires; ++channel) {
    for (std::uint32_t index = 0; index < kChoices[channel]; ++index) {
      Indexes indexes = {2, 1, 3, 1, 0};
      indexes[channel] = index;
      all.append(indexes);
    }
  }
  // Everything on one tap: both ends of the cross fader, MIC and REC OUT.
  all.append({{3, 3, 3, 3, 5}, {4, 4, 4, 4, 6}, {5, 5, 5, 5, 7}});
  all.append({6, 6, 6, 6, 0});
  QRandomGenerator random(20261122);
  for (int i = 0; i < 300; ++i) {
    Indexes indexes{};
    for (std::size_t channel = 0; channel < indexes.size(); ++channel) {
      indexes[channel] = random.bounded(kChoices[channel]);
    }
    all.append(indexes);
  }
  for (const Indexes &indexes : all) {
    picture_->showState(StateOf(indexes));
    QCOMPARE(picture_->wires().size(), 5);
    const QString choices = QStringLiteral("choices ") + Written(indexes);
    QVERIFY2(FirstCrossing(*picture_).isEmpty(),
             qPrintable(choices + ": " + FirstCrossing(*picture_)));
    QVERIFY2(FirstOverlap(*picture_).isEmpty(),
             qPrintable(choices + ": " + FirstOverlap(*picture_)));
    QVERIFY2(FirstHiddenNumber(*picture_).isEmpty(),
             qPrintable(choices + ": " + FirstHiddenNumber(*picture_)));
  }
}

void PictureTest::TextsDoNotTouchEachOther_data() {
  QTest::addColumn<QString>("inputs");
  QTest::addColumn<QString>("selector");
  QTest::addColumn<QString>("fader");
  QTest::addColumn<QString>("crossFader");
  QTest::addRow("English") << "Inputs"
                           << "Selector"
                           << "Fader"
                           << "Cross fader";
  QTest::addRow("long words") << "Eingangsanschluesse"
                              << "Eingangswahlschalter"
                              << "Kanalpegelregler"
                              << "Ueberblendregler der Kanaele";
}

void PictureTest::TextsDoNotTouchEachOther() {
  QFETCH(const QString, inputs);
  QFETCH(const QString, selector);
  QFETCH(const QString, fader);
  QFETCH(const QString, crossFader);
  const PictureLayout layout = LayOutPicture({.inputs = inputs,
                                              .selector = selector,
                                              .fader = fader,
                                              .crossFader = crossFader},
                                             font_);
  const QRectF whole(QPointF(0, 0), layout.size);
  const QList<Obstacle> all = ObstaclesOf(layout);
  for (qsizetype i = 0; i < layout.labels.size(); ++i) {
    const PictureLabel &label = layout.labels[i];
    QVERIFY2(whole.contains(label.box), qPrintable(label.text));
    // A and B stand inside the cross fader.
    if (label.text.size() == 1) continue;
    for (qsizetype k = 0; k < all.size(); ++k) {
      if (i == k) continue;
      QVERIFY2(!label.box.intersects(all[k].box),
               qPrintable(label.text + " touches " + all[k].name));
    }
  }
}

void PictureTest::FiveNumbersFitOnTheCrossFader() {
  for (const Source source : {Source::CrossFaderA, Source::CrossFaderB}) {
    Indexes indexes{};
    for (std::uint32_t channel = 0; channel < kWires; ++channel) {
      indexes[channel] = *model::IndexOf(channel, {.source = source});
    }
    picture_->showState(StateOf(indexes));
    const PictureLayout &parts = picture_->parts();
    const QRectF box = parts.knobs.last().box;
    QVERIFY(parts.knobs.last().kind == KnobKind::CrossFader);
    for (const Wire &wire : picture_->wires()) {
      QVERIFY(wire.points.front().x() - parts.numberRadius > box.left());
      QVERIFY(wire.points.front().x() + parts.numberRadius < box.right());
    }
  }
}

void PictureTest::GrowsWithTheFont() {
  const QSize usual = picture_->minimumSizeHint();
  Place(2, 5);
  const QSize large = picture_->minimumSizeHint();
  QVERIFY(large.width() > usual.width() * 1.9);
  QVERIFY(large.height() > usual.height() * 1.9);
}

void PictureTest::AClickChoosesForTheActiveChannel() {
  QSignalSpy chosen(picture_.get(), &Picture::tapChosen);
  picture_->setActiveChannel(1);
  QTest::mouseClick(picture_.get(), Qt::LeftButton, {},
                    PlaceOf({.source = Source::PostFader, .lane = 1}));
  QCOMPARE(chosen.size(), 1);
  QCOMPARE(chosen[0][0].toInt(), 1);
  QVERIFY(chosen[0][1].value<Tap>() ==
          (Tap{.source = Source::PostFader, .lane = 1}));
}

void PictureTest::AClickOnTheNameOfASignalChoosesIt() {
  QSignalSpy chosen(picture_.get(), &Picture::tapChosen);
  picture_->setActiveChannel(1);
  for (const PictureLabel &label : picture_->parts().labels) {
    if (label.text != QLatin1String("LINE")) continue;
    QTest::mouseClick(picture_.get(), Qt::LeftButton, {},
                      label.box.center().toPoint());
  }
  // CH2 is the only one of the four that channel 2 can record.
  QCOMPARE(chosen.size(), 1);
  QVERIFY(chosen[0][1].value<Tap>() ==
          (Tap{.source = Source::Line, .lane = 1}));
}

void PictureTest::AClickOnATapOfAnotherLaneChoosesNothing() {
  QSignalSpy chosen(picture_.get(), &Picture::tapChosen);
  picture_->setActiveChannel(1);
  QTest::mouseClick(picture_.get(), Qt::LeftButton, {},
                    PlaceOf({.source = Source::Phono, .lane = 2}));
  QCOMPARE(chosen.size(), 0);
}

void PictureTest::Drag(QPoint from, QPoint to) {
  QTest::mousePress(picture_.get(), Qt::LeftButton, {}, from);
  QTest::mouseMove(picture_.get(), (from + to) / 2);
  QTest::mouseMove(picture_.get(), to);
  QTest::mouseRelease(picture_.get(), Qt::LeftButton, {}, to);
}

void PictureTest::DraggingTheNumberChoosesForItsChannel() {
  QSignalSpy chosen(picture_.get(), &Picture::tapChosen);
  QSignalSpy active(picture_.get(), &Picture::activeChannelChanged);
  Drag(WireOf(3).points.front().toPoint(), PlaceOf({.source = Source::Mic}));
  QCOMPARE(chosen.size(), 1);
  QCOMPARE(chosen[0][0].toInt(), 3);
  QVERIFY(chosen[0][1].value<Tap>() == Tap{.source = Source::Mic});
  QCOMPARE(active[0][0].toInt(), 3);
}

void PictureTest::DraggingTheArrowChoosesForItsChannel() {
  QSignalSpy chosen(picture_.get(), &Picture::tapChosen);
  Drag(WireOf(4).points.back().toPoint() - QPoint(3, 0),
       PlaceOf({.source = Source::PostFader, .lane = 2}));
  QCOMPARE(chosen.size(), 1);
  QCOMPARE(chosen[0][0].toInt(), 4);
  QVERIFY(chosen[0][1].value<Tap>() ==
          (Tap{.source = Source::PostFader, .lane = 2}));
}

void PictureTest::ADragThatEndsNowhereChoosesNothing() {
  QSignalSpy chosen(picture_.get(), &Picture::tapChosen);
  Drag(WireOf(3).points.front().toPoint(), QPoint(2, 2));
  QCOMPARE(chosen.size(), 0);
}

void PictureTest::AClickOnAnArrowMakesItsChannelActive() {
  QSignalSpy active(picture_.get(), &Picture::activeChannelChanged);
  QSignalSpy chosen(picture_.get(), &Picture::tapChosen);
  QTest::mouseClick(picture_.get(), Qt::LeftButton, {},
                    WireOf(2).points.back().toPoint() - QPoint(3, 0));
  QCOMPARE(active.size(), 1);
  QCOMPARE(active[0][0].toInt(), 2);
  QCOMPARE(chosen.size(), 0);
}

void PictureTest::AClickOnANumberThatIsOutOfReachMakesItsChannelActive() {
  QSignalSpy active(picture_.get(), &Picture::activeChannelChanged);
  QSignalSpy chosen(picture_.get(), &Picture::tapChosen);
  QTest::mouseClick(picture_.get(), Qt::LeftButton, {},
                    PlaceOf({.source = Source::Line, .lane = 1}));
  QCOMPARE(active.size(), 1);
  QCOMPARE(active[0][0].toInt(), 1);
  // REC OUT, where the number 5 stands, can be recorded on channel 1 too.
  QTest::mouseClick(picture_.get(), Qt::LeftButton, {},
                    PlaceOf({.source = Source::RecOut}));
  QCOMPARE(chosen.size(), 1);
  QCOMPARE(chosen[0][0].toInt(), 0);
}

void PictureTest::EnterOnANumberThatIsOutOfReachMakesItsChannelActive() {
  QSignalSpy active(picture_.get(), &Picture::activeChannelChanged);
  QSignalSpy chosen(picture_.get(), &Picture::tapChosen);
  picture_->setActiveChannel(0);
  picture_->setFocus();
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Left}) {
    QTest::keyClick(picture_.get(), key);
  }
  QVERIFY2(picture_->accessibleDescription().startsWith(
               QLatin1String("CH2 LINE, recorded by USB 2")),
           qPrintable(picture_->accessibleDescription()));
  QTest::keyClick(picture_.get(), Qt::Key_Return);
  QCOMPARE(active.size(), 1);
  QCOMPARE(active[0][0].toInt(), 1);
  QCOMPARE(chosen.size(), 0);
}

void PictureTest::TheKeyboardReachesEveryTap() {
  picture_->setActiveChannel(4);
  picture_->setFocus();
  QSignalSpy chosen(picture_.get(), &Picture::tapChosen);
  // Channel 5 starts at REC OUT.
  QTest::keyClick(picture_.get(), Qt::Key_Up);
  QTest::keyClick(picture_.get(), Qt::Key_Return);
  QCOMPARE(chosen.size(), 1);
  QVERIFY(chosen[0][1].value<Tap>() != Tap{.source = Source::RecOut});
  constexpr std::array kKeys = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left,
                                Qt::Key_Right};
  QSet<QString> seen;
  QRandomGenerator random(16);
  for (int i = 0; i < 500; ++i) {
    QTest::keyClick(picture_.get(), kKeys[random.bounded(4U)]);
    seen.insert(picture_->accessibleDescription());
  }
  QCOMPARE(seen.size(), 16);
}

void PictureTest::DigitsNameTheActiveChannel() {
  QSignalSpy active(picture_.get(), &Picture::activeChannelChanged);
  QTest::keyClick(picture_.get(), Qt::Key_5);
  QCOMPARE(active.size(), 1);
  QCOMPARE(active[0][0].toInt(), 4);
  QTest::keyClick(picture_.get(), Qt::Key_6);
  QCOMPARE(active.size(), 1);
}

void PictureTest::DescribesTheTapWithTheFocus() {
  picture_->setActiveChannel(1);
  picture_->setFocus();
  QCOMPARE(picture_->accessibleName(),
           QStringLiteral("Picture of the routing"));
  QCOMPARE(picture_->accessibleDescription(),
           QStringLiteral("CH2 LINE, recorded by USB 2"));
}

namespace {
const bool kRegistered = Register<PictureTest>("PictureTest");
}  // namespace

}  // namespace ztk::window

#include "picture_test.moc"
