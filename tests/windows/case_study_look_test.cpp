#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <optional>

#include "CaseStudyFixture.h"

using qismora::testing::CaseStudyFixture;

namespace {
/// The width that a widget needs for its text, 0 without text.
int WidthOfText(const QWidget* widget) {
  if (const auto* label = qobject_cast<const QLabel*>(widget)) {
    return label->text().isEmpty() ? 0 : label->sizeHint().width();
  }
  if (const auto* group = qobject_cast<const QGroupBox*>(widget)) {
    return group->fontMetrics().horizontalAdvance(group->title());
  }
  const bool sized = qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QComboBox*>(widget);
  return sized ? widget->minimumSizeHint().width() : 0;
}

}  // namespace

class CaseStudyLookTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { qismora::testing::UseFont(); }
  void init() { fixture_.emplace(); }
  void cleanup() { fixture_.reset(); }

  // Whatever can be reached or read aloud has a name; some controls are never shown or never typed into.
  void ControlsAreNamedHiddenAndReadOnly() {
    for (const QWidget* widget : fixture_->Find("Frame111")->findChildren<QWidget*>()) {
      if (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_")) continue;
      QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
    }
    for (const char* name : {"AulRaddxx", "TestValues"}) QVERIFY(!fixture_->Find<QAction>(name)->isVisible());
    for (const char* name : {"SelectedReport", "Residuaries"}) QVERIFY(!fixture_->Find(name)->isVisible());
    QVERIFY(fixture_->Find<QLineEdit>("Text1(29)")->isReadOnly());
    QVERIFY(fixture_->Window().windowFlags() & Qt::WindowStaysOnTopHint);
  }

  // Tab moves from the gender through all fields, then through everything else, and back to the gender.
  void TabGoesRound() {
    QWidget* first = fixture_->Find("Combo1");
    first->setFocus();
    QStringList way;
    do {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      way += QApplication::focusWidget()->objectName();
    } while (QApplication::focusWidget() != first && way.size() < 200);
    QVERIFY(way.size() < 100);
    QCOMPARE(way.mid(0, 4), QStringList({"Text1(24)", "Text1(1)", "Text1(2)", "Text1(3)"}));
    for (const char* name : {"Check1(11)", "FullReportxx", "Image2", "Label1(33)", "Label4(0)", "Label13",
                             "Label6", "Image37(2)", "AboutLink"}) {
      QVERIFY2(way.contains(QLatin1String(name)), name);
    }
    QVERIFY(!way.contains("Text2"));
  }

  void NothingIsClipped_data() {
    QTest::addColumn<int>("view");
    QTest::addColumn<bool>("result");
    for (const int view : {0, 1, 2}) {
      QTest::addRow("view %d", view) << view << false;
      QTest::addRow("view %d with a result", view) << view << true;
    }
  }
  void NothingIsClipped() {
    QFETCH(const int, view);
    QFETCH(const bool, result);
    fixture_->Form().Label4_Click(view);
    fixture_->Form().Frame5.Visible = !result;
    fixture_->Form().AulRadd.Visible = result;
    QApplication::processEvents();
    const QWidget* window = fixture_->Window().centralWidget();
    const QRect space(QPoint(), QSize(799, window->height()));
    for (const QWidget* widget : fixture_->Find("Frame111")->findChildren<QWidget*>()) {
      if (!widget->isVisible()) continue;
      const QByteArray name = widget->objectName().toUtf8();
      QVERIFY2(space.contains(QRect(widget->mapTo(window, QPoint()), widget->size())), name);
      if (name != "Label2" && name != "Label3") QVERIFY2(WidthOfText(widget) <= widget->width(), name);
    }
    QCOMPARE(fixture_->Window().size(), QSize(799, 599));
  }

  void FieldsHoldTheirFigures() {
    for (const auto* field : fixture_->Find("Frame1")->findChildren<QLineEdit*>()) {
      const QString widest = field->width() > 60 ? QStringLiteral("-2147483647") : QStringLiteral("100");
      const int frame = 2 * field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth) + 4;
      QVERIFY(field->fontMetrics().horizontalAdvance(widest) + frame <= field->width());
      QVERIFY(field->fontMetrics().height() <= field->height() - 4);
      for (const auto* caption : fixture_->Find("Frame1")->findChildren<QWidget*>()) {
        if (!caption->property("text").toString().isEmpty() && caption->objectName().startsWith("Label1"))
          QVERIFY(!caption->geometry().intersects(field->geometry()));
      }
    }
  }

 private:
  std::optional<CaseStudyFixture> fixture_;
};

int main(int argc, char** argv) { return qismora::testing::RunWindowTest<CaseStudyLookTest>(argc, argv); }

#include "case_study_look_test.moc"
