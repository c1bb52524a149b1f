#include "windows/ProgramWindows.h"

#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

#include "base/Text.h"
#include "windows/division/DivisionOpener.h"
#include "windows/platform/QtPorts.h"
#include "windows/platform/SessionEnd.h"
#include "windows/platform/Utf8.h"

namespace qismora {

namespace {

constexpr QPoint besideTheMenu{40, 60};

ProgramFacts Facts() {
  const std::string qt = FromQt(QString::fromLatin1(qVersion()));
  ProgramFacts facts = {QISMORA_VERSION, {Join("Qt Widgets ", qt), Join("Qt SVG ", qt)}};
#ifdef QISMORA_VIDEO
  facts.Libraries.push_back(Join("Qt Multimedia ", qt, " for the videos"));
#endif
  facts.Libraries.emplace_back("the C++ standard library");
  return facts;
}

// Shows a window in front. A window that was hidden keeps its position.
void BringUp(QWidget* window) {
  if (QWindow* shown = window->windowHandle(); shown != nullptr && !shown->isVisible()) {
    shown->setFramePosition(shown->framePosition());
  }
  window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
  window->show();
  window->raise();
  window->activateWindow();
}

}  // namespace

ProgramWindows::ProgramWindows(ShellPorts& ports, QtVideoPlayer& player)
    : ports_(ports), menu_(record_, shell_, ports, player) {
  InhMain& form = menu_.Form();
  form.ShowQurLaws = [this] { ShowQurLaws(); };
  form.FocusText5OfQurLaws = [this] { laws_->Form().Text5.SetFocus(); };
  form.ShowCaseStudy = [this] { ShowCaseStudy(); };
  form.ShowZummy = [this] { ShowZummy(); };
  form.ShowSession = [this] { ShowSession(); };
  form.ShowCatalogue = [this] { ShowCatalogue(&menu_); };
  QGuiApplication::setQuitOnLastWindowClosed(false);  // only the exit routine ends the program
  form.MayEnd = [this] { return MayEnd(); };
  WhenSessionEnds(&menu_, [this] {
    sessionEnds_ = true;
    menu_.Form().Exitz_Click();
  });
}

ProgramWindows::~ProgramWindows() {
  delete catalogue_;
  delete laws_;
  delete study_;
}

void ProgramWindows::ShowMainMenu() { BringUp(&menu_); }

void ProgramWindows::OpenCase(const std::string& path) {
  ShowCaseStudy();
  study_->Document().OpenFile(path);
}

// Case Study may be hidden with a changed case. When the desktop session ends, nobody can answer a question.
bool ProgramWindows::MayEnd() { return sessionEnds_ || study_ == nullptr || study_->Document().MayLeave(); }

// If a page is open, its form loads the new page.
void ProgramWindows::ShowQurLaws() {
  if (laws_ == nullptr) {
    laws_ = new QurLawsWindow(shell_, ports_.Boxes);
    laws_->Form().ShowMainMenu = [this] { ShowMainMenu(); };
    laws_->move(menu_.pos());
  } else {
    laws_->Form().Form_Load();
  }
  BringUp(laws_);
}

void ProgramWindows::ShowCaseStudy() {
  if (study_ == nullptr) {
    study_ = new CaseStudyWindow(record_, ports_, static_cast<int>(shell_.SavedLanguage.Value()));
    CaseStudy& form = study_->Form();
    form.ShowMainMenu = [this] { ShowMainMenu(); };
    form.ShowCatalogue = [this] { ShowCatalogue(study_); };
    form.HideCatalogue = [this] { HideCatalogue(); };
    // After Case Study has its position and is painted.
    QTimer::singleShot(0, study_, [study = study_.data()] { study->Division().OpenBeside(); });
  }
  BringUp(study_);
}

void ProgramWindows::ShowZummy() {
  if (zummy_ == nullptr) {
    zummy_ = std::make_unique<ZummyWindow>(record_, shell_, ports_);
    zummy_->Form().ShowMainMenu = [this] { ShowMainMenu(); };
    zummy_->Form().MayEnd = [this] { return MayEnd(); };
  }
  zummy_->move(menu_.pos());
  BringUp(zummy_.get());
}

void ProgramWindows::ShowSession() {
  if (session_ == nullptr) {
    session_ = std::make_unique<SessionWindow>(ports_);
    session_->move(menu_.pos() + besideTheMenu);
  }
  BringUp(session_.get());
  const MessageBoxOwner owner(session_.get());
  session_->Form().Open();
}

void ProgramWindows::ShowCatalogue(QWidget* from) {
  delete catalogue_;
  catalogue_ = new ProgramInfoWindow(Facts(), ports_.clsMemory, from);
  BringUp(catalogue_);
}

void ProgramWindows::HideCatalogue() {
  if (catalogue_ != nullptr) catalogue_->close();
}

}  // namespace qismora
