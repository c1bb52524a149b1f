#include "CaseStudyFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>

#include "base/NumberText.h"

namespace qismora::testing {

CaseStudyFixture::CaseStudyFixture() : before_(QDir::currentPath()) {
  // Qt looks up the directory of the settings once.
  static const QTemporaryDir settings;
  qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
  QDir(settings.filePath(QStringLiteral("Qismora"))).removeRecursively();
  QDir::setCurrent(home_.path());
  QObject::connect(&watchdog_, &QTimer::timeout, &watchdog_, [this] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) Answer(*box);
  });
  watchdog_.start(1);
  Open();
}

CaseStudyFixture::~CaseStudyFixture() {
  delete window_;
  QDir::setCurrent(before_);
}

void CaseStudyFixture::Open() {
  delete window_;
  const Double view = ParsePrefix(Store.Read(ApplicationTitle, "LanguageSetting", "LblPressed"));
  window_ = new CaseStudyWindow(Record, ports_, static_cast<int>(view.Value()));
  window_->show();
  if (!QTest::qWaitForWindowActive(window_)) qFatal("the window does not become active");
}

void CaseStudyFixture::Answer(QMessageBox& box) {
  QAbstractButton* button = box.buttons().constFirst();
  if (!ignore_) {
    const bool known = !expected_.empty() && box.text().contains(expected_.front().Words);
    if (known) {
      button = box.button(expected_.front().Answer);
      expected_.pop_front();
    } else {
      ++surprises_;
      qWarning("unexpected message box: %s", qPrintable(box.text()));
    }
  }
  QTest::mouseClick(button, Qt::LeftButton);
}

void CaseStudyFixture::Expect(const QString& words, QMessageBox::StandardButton answer) {
  expected_.push_back({words, answer});
}

void CaseStudyFixture::Type(const char* field, const QString& text) {
  window_->activateWindow();
  auto* widget = Find<QLineEdit>(field);
  QTest::mouseClick(widget, Qt::LeftButton);
  QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(widget, text);
}

void CaseStudyFixture::Click(const char* name) { QTest::mouseClick(Find(name), Qt::LeftButton); }

void CaseStudyFixture::DoubleClick(const char* name) { QTest::mouseDClick(Find(name), Qt::LeftButton); }

void CaseStudyFixture::DoubleClickAt(const char* name) {
  QWidget* widget = Find(name);
  const QPoint place = widget->mapTo(window_.data(), widget->rect().center());
  QTest::mouseDClick(window_->windowHandle(), Qt::LeftButton, {}, place);
}

void CaseStudyFixture::MoveTo(const char* name, QPoint place) {
  QWidget* widget = Find(name);
  if (place.isNull()) place = widget->rect().center();
  QTest::mouseMove(window_->windowHandle(), widget->mapTo(window_.data(), place));
}

void CaseStudyFixture::Key(const char* name, Qt::Key key) {
  window_->activateWindow();
  Find(name)->setFocus(Qt::TabFocusReason);
  QTest::keyClick(Find(name), key);
}

QString CaseStudyFixture::TextOf(const char* name) { return Find(name)->property("text").toString(); }

}  // namespace qismora::testing
