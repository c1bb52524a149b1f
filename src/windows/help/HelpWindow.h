#pragma once

#include <QMainWindow>
#include <QTextBrowser>

class QLabel;
class QLineEdit;
class QListWidget;
class QMenuBar;

namespace qismora {

/// The pages of the help, which are files of the documentation.
inline constexpr const char* GuidePage = "guide.md";
inline constexpr const char* DifferencesPage = "peculiarities.md";
inline constexpr const char* DivisionPage = "division.md";
inline constexpr const char* KeysAnchor = "keys";

/// Shows a page in the help window, at the heading with this anchor (AnchorOf) or else at its top. The window
/// appears above the one from which it is opened.
void ShowHelp(const QString& page, const QString& anchor = {}, QWidget* from = nullptr);

/// Adds the help menu to a menu bar. F1 shows the list of keys.
void AddHelpMenu(QMenuBar* bar);

/// A page of Markdown whose headings can be linked to.
class HelpPage : public QTextBrowser {
 public:
  explicit HelpPage(QWidget* parent);

  struct Heading {
    QString Title;
    QString Anchor;
    int Level = 1;
  };
  const QList<Heading>& Headings() const { return headings_; }

  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  /// Copy and Select All in the current language.
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void NameHeadings();

  QList<Heading> headings_;
};

/// A window that shows the guides, with the headings of the page, links between the pages, back, forward and
/// find.
class HelpWindow : public QMainWindow {
 public:
  /// Takes the directory of the pages.
  explicit HelpWindow(const QString& pages);

  void Show(const QString& page, const QString& anchor);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void BuildToolBar();
  void ListHeadings();
  void Find(bool backward);
  void Translate();
  void Follow(const QUrl& link);

  QString folder_;
  HelpPage* page_;
  QListWidget* list_;
  QLineEdit* words_;
  QLabel* found_;
  QAction* back_;
  QAction* forward_;
  QAction* next_;
  QAction* previous_;
  QList<QAction*> pages_;
};

/// The directory of the pages: the installed documentation, or docs/ of the sources.
QString HelpFolder();

/// The anchor of a heading in a link: "9. Answers without figures" has 9-answers-without-figures.
QString AnchorOf(const QString& heading);

}  // namespace qismora
