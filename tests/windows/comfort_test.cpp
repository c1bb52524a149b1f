#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <QTest>

#include "base/Files.h"
#include "shell/SessionLog.h"
#include "windows/MessageBoxSpy.h"
#include "windows/ProgramFixture.h"
#include "windows/style/Colours.h"

namespace qismora {

using testing::Find;
using testing::MessageBoxSpy;
using testing::ProgramFixture;

namespace {

/// The colours that a desktop sets; others, such as links, keep their defaults.
struct Theme {
  const char* Name;
  QRgb Window;
  QRgb Base;
  QRgb Text;
  QRgb Highlight;
  QRgb Highlighted;
};

constexpr Theme themes[] = {
    {"bright", 0xFFEFEFEF, 0xFFFFFFFF, 0xFF000000, 0xFF308CC6, 0xFFFFFFFF},
    {"dark", 0xFF353535, 0xFF232323, 0xFFFFFFFF, 0xFF2A82DA, 0xFF000000},
    {"white on black", 0xFF000000, 0xFF000000, 0xFFFFFFFF, 0xFF1AEBFF, 0xFF000000},
    {"black on white", 0xFFFFFFFF, 0xFFFFFFFF, 0xFF000000, 0xFF37006E, 0xFFFFFFFF},
};

QPalette PaletteOf(const Theme& theme) {
  QPalette palette(QColor(theme.Window), QColor(theme.Window));
  palette.setColor(QPalette::Base, theme.Base);
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      palette.setColor(group, role, theme.Text);
    }
  }
  palette.setColor(QPalette::Link, Qt::blue);
  palette.setColor(QPalette::Highlight, theme.Highlight);
  palette.setColor(QPalette::HighlightedText, theme.Highlighted);
  return palette;
}

/// The colour of a widget's text; none without text.
QColor TextColourOf(const QWidget* widget) {
  const auto colour = [widget](const QString& words, QPalette::ColorRole role) {
    return words.isEmpty() ? QColor() : widget->palette().color(role);
  };
  if (const auto* label = qobject_cast<const QLabel*>(widget))
    return colour(label->text(), label->foregroundRole());
  if (const auto* group = qobject_cast<const QGroupBox*>(widget))
    return colour(group->title(), QPalette::WindowText);
  if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
    return colour(button->text(), button->foregroundRole());
  }
  const QString any = QStringLiteral("any");
  if (qobject_cast<const QComboBox*>(widget) || qobject_cast<const QMenuBar*>(widget)) {
    return colour(any, QPalette::ButtonText);
  }
  const bool writes = qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget) ||
                      qobject_cast<const QTableWidget*>(widget);
  return writes ? colour(any, QPalette::Text) : QColor();
}

QRect PlaceIn(const QImage& picture, const QWidget* widget) {
  const qreal scale = picture.devicePixelRatio();
  const QPoint corner = widget->mapTo(widget->window(), QPoint());
  return QRect(corner * scale, widget->size() * scale).intersected(picture.rect());
}

/// The most frequent colour within a widget; a gradient counts as one.
QColor BackgroundOf(const QImage& picture, const QRect& place) {
  constexpr QRgb alike = 0xFFF0F0F0;
  QHash<QRgb, int> counts;
  QRgb most = 0;
  const QRect inside = place.marginsRemoved({3, 3, 3, 3});
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    for (int x = inside.left(); x <= inside.right(); ++x) {
      const QRgb colour = picture.pixel(x, y);
      const int count = ++counts[colour & alike];
      if (count > counts.value(most & alike)) most = colour;
    }
  }
  return most;
}

/// Whether all pixels have the same colour.
bool IsPlain(const QImage& picture) {
  QImage plain = picture;
  plain.fill(picture.pixelColor(0, 0));
  return picture == plain;
}

/// How many pixels changed so much that a user sees it.
int PlainChanges(const QImage& one, const QImage& other) {
  int changes = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      if (one.pixel(x, y) == other.pixel(x, y)) continue;
      if (Contrast(one.pixel(x, y), other.pixel(x, y)) >= 3) ++changes;
    }
  }
  return changes;
}

}  // namespace

class ComfortTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    bright_ = QApplication::palette();
    program_ = std::make_unique<ProgramFixture>();
    windows_ = &program_->Start();
    menu_ = &windows_->MainMenu();
    program_->KeepDivisionClosed();
    InhMain& form = menu_->Form();
    form.ShowCaseStudy();
    study_ = windows_->Study();
  }
  void cleanup() {
    program_.reset();
    QApplication::setPalette(bright_);
    QCOMPARE(boxes_.Take(), QStringList());
  }

  void textCanBeRead_data() { EachTheme(); }
  // Also when the desktop changes its colours while the windows are open.
  void textCanBeRead() {
    const QList<QWidget*> windows = OpenAll();
    Change();
    study_->Form().Frame5.Visible = false;
    study_->Form().Text3.ForeColor = Red;
    study_->Form().Text3.Visible = true;
    menu_->Form().Option1_MouseMove(3);
    QMenu* analysis = Find<QAction>(study_, "CaseAnalysis")->menu();
    QVERIFY(!analysis->actions().constLast()->isEnabled());
    analysis->popup(QPoint(0, 0));
    const QColor faint = analysis->palette().color(QPalette::Disabled, QPalette::Text);
    const QImage entries = analysis->grab().toImage();
    QVERIFY(Contrast(faint, BackgroundOf(entries, entries.rect())) >= 4.5);
    analysis->close();
    for (QWidget* window : windows) {
      const QImage picture = window->grab().toImage();
      for (const QWidget* widget : window->findChildren<QWidget*>()) {
        const QColor text = TextColourOf(widget);
        if (!widget->isVisible() || widget->window() != window || !text.isValid()) continue;
        const QColor background = BackgroundOf(picture, PlaceIn(picture, widget));
        const QString message = QStringLiteral("%1 %2: %3 on %4")
                                    .arg(QString::fromLatin1(widget->metaObject()->className()),
                                         widget->objectName(), text.name(), background.name());
        QVERIFY2(Contrast(text, background) >= 4.5, qPrintable(message));
      }
    }
    const QColor red = Find(study_, "Text3")->palette().color(QPalette::Text);
    QVERIFY2(red.red() > red.green() + 60 && red.red() > red.blue() + 60, "it is still red");
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
      const QPalette palette = QApplication::palette();
      QVERIFY(Contrast(palette.color(group, QPalette::Highlight),
                       palette.color(group, QPalette::HighlightedText)) >= 4.5);
    }
  }

  void focusCanBeSeen_data() { EachTheme(); }
  // Tab goes through a whole window and back to its start, and the focus can be seen at each stop.
  void focusCanBeSeen() {
    const QList<QWidget*> windows = OpenAll();
    Change();
    study_->Form().Label4_Click(2);
    study_->Form().Frame5.Visible = false;
    for (QWidget* window : windows) {
      window->activateWindow();
      QVERIFY(QTest::qWaitForWindowActive(window));
      window->grab();  // pictures come after the first painting
      QTest::keyClick(window, Qt::Key_Tab);
      const QWidget* first = window->focusWidget();
      QSet<QWidget*> stops;
      for (QWidget* stop = window->focusWidget(); !stops.contains(stop); stop = window->focusWidget()) {
        stops.insert(stop);
        const QRect place(stop->mapTo(window, QPoint()), stop->size());
        const QImage with = window->grab(place).toImage();
        QTest::keyClick(window, Qt::Key_Tab);
        if (window->focusWidget() == stop && stops.size() == 1) break;  // it is the only one
        const QImage without = window->grab(place).toImage();
        QVERIFY2(PlainChanges(with, without) > 16, qPrintable(stop->objectName()));
      }
      QCOMPARE(window->focusWidget(), first);
    }
  }

  // Only keys do this: enter the menu bar, go back although two entries share a mnemonic, go to the answer.
  void everythingIsReachedByKeys() {
    study_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(study_));
    auto* field = Find(study_, "Text1(2)");
    field->setFocus();
    QTest::keyClick(field, Qt::Key_F10);
    QCOMPARE(study_->menuBar()->activeAction(), Find<QAction>(study_, "Back"));
    QTest::keyClick(study_->menuBar(), Qt::Key_Escape);
    QVERIFY(field->hasFocus());
    QTest::keyClick(field, Qt::Key_F7);
    QVERIFY2(field->hasFocus(), "there is no answer yet");
    QTest::keyClick(field, Qt::Key_F5);
    QTest::keyClick(field, Qt::Key_F7);
    QVERIFY(Find(study_, "Text3")->hasFocus());
    QTest::keyClick(Find(study_, "Text3"), Qt::Key_Backtab);
    QCOMPARE(study_->focusWidget()->objectName(), QStringLiteral("FullReportxx"));
    for (int time = 0; time < 2; ++time) {
      QTest::keyClick(study_->focusWidget(), Qt::Key_B, Qt::AltModifier);
      QTRY_VERIFY(!study_->isVisible());
      QVERIFY(windows_->Catalogue() == nullptr);
      menu_->Form().ShowCaseStudy();
      study_->activateWindow();
      QVERIFY(QTest::qWaitForWindowActive(study_));
    }
  }

  void resultsAreCopiedWhole() {
    QClipboard* clipboard = QApplication::clipboard();
    clipboard->setText(QStringLiteral("before"));
    auto* copy = Find<QAction>(study_, "CopyResults");
    QVERIFY2(!copy->isEnabled(), "there is no answer yet");
    Find<QLineEdit>(study_, "Text1(3)")->setText(QStringLiteral("2"));
    study_->Form().Label1_DblClick(3);
    QCOMPARE(boxes_.Take(), QStringList{QStringLiteral("Current data executed successfully.")});
    study_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(study_));
    auto* narrative = Find<QPlainTextEdit>(study_, "Text2");
    QTest::keyClick(narrative, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard->text(), narrative->toPlainText());
    QTest::keyClick(narrative, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(clipboard->text(),
             QStringLiteral("DAUGHTERS' SHARE\n6667  (2/3)\n\n") + narrative->toPlainText());
    QTest::keyClick(narrative, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(narrative, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard->text().size(), 1);

    study_->Form().Resid_Click();
    QCOMPARE(boxes_.Take().size(), 1);
    auto* report = Find<QPlainTextEdit>(study_, "Text3");
    copy->trigger();
    QVERIFY(clipboard->text().endsWith(report->toPlainText()));
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(report, &menuKey);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu != nullptr && menu->actions().contains(copy));
    menu->close();
    for (const char* line : {"Label2", "Label3"}) QVERIFY(Find(study_, line)->actions().contains(copy));
  }

  void noLabelIsCut() {
    for (QWidget* window : OpenAll()) {
      if (window == study_) continue;
      window->show();
      QVERIFY(QTest::qWaitForWindowExposed(window));
      for (const QLabel* label : window->findChildren<QLabel*>()) {
        if (!label->isVisible() || label->wordWrap()) continue;
        const QSize needed = label->sizeHint();
        QVERIFY2(label->width() >= needed.width() && label->height() >= needed.height(),
                 qPrintable(label->text()));
      }
    }
  }

  // An amount is broken into lines; in a field, which has but one, dots show that there is more.
  void noFigureIsCut() {
    auto* amount = Find<QLabel>(study_, "Label3");
    auto* text = Find(study_, "Text2");
    study_->Form().Frame5.Visible = false;
    study_->Form().Text2.Visible = true;
    const QSize size = study_->size();
    const std::string digits(300, '9');
    study_->Form().Label3.Caption = digits + "  (1/2)";
    QTRY_VERIFY(amount->height() >= amount->fontMetrics().horizontalAdvance(amount->text()) /
                                        amount->width() * amount->fontMetrics().height());
    QVERIFY(text->y() > amount->geometry().bottom());
    const QImage half = amount->grab().toImage();
    study_->Form().Label3.Caption = digits + "  (2/3)";
    QVERIFY2(amount->grab().toImage() != half, "the fraction is seen");
    QCOMPARE(study_->size(), size);

    auto* net = Find<QLineEdit>(study_, "Text1(29)");
    // A digit reaches here, and dots do not.
    const QRect upperEnd(net->width() - 12, 4, 8, net->height() / 2 - 4);
    net->setText(QStringLiteral("8"));
    QVERIFY(!IsPlain(net->grab(upperEnd).toImage()));
    net->setText(QString(40, QLatin1Char('8')));
    QVERIFY(IsPlain(net->grab(upperEnd).toImage()));
  }

 private:
  static void EachTheme() {
    QTest::addColumn<int>("theme");
    int number = 0;
    for (const Theme& theme : themes) QTest::newRow(theme.Name) << number++;
  }

  void Change() {
    QFETCH(const int, theme);
    QPalette palette = PaletteOf(themes[theme]);
    QApplication::style()->polish(palette);
    QApplication::setPalette(palette);
    QTRY_COMPARE(study_->palette().color(QPalette::Window), QColor(themes[theme].Window));
  }

  QList<QWidget*> OpenAll() {
    AppendLine(FromQt(program_->File(QStringLiteral("popuQism.ppl"))),
               SessionLine(Integer(1), {}, {}, Long(1)));
    menu_->Form().ShowQurLaws();
    menu_->Form().ShowSession();
    menu_->Form().ShowCatalogue();
    menu_->Form().ShowZummy();
    return {menu_, study_, windows_->Laws(), windows_->Log(), windows_->Resources(), windows_->Catalogue()};
  }

  MessageBoxSpy boxes_;
  QPalette bright_;
  std::unique_ptr<ProgramFixture> program_;
  ProgramWindows* windows_ = nullptr;
  InhMainWindow* menu_ = nullptr;
  CaseStudyWindow* study_ = nullptr;
};

}  // namespace qismora

int main(int argc, char** argv) { return qismora::testing::RunWindowTest<qismora::ComfortTest>(argc, argv); }

#include "comfort_test.moc"
