#pragma once

#include <QMainWindow>
#include <QTextBrowser>

class QLabel;
class QLineEdit;
class QListWidget;
class QMenuBar;

namespace qismora {

/// The pages of the help, files of the documentation.
inline constexpr const char* GuidePage = "guide.md";
inline constexpr const char* DifferencesPage = "peculiarities.md";
inline constexpr const char* DivisionPage = "division.md";
inline constexpr const char* KeysAnchor = "keys";

/// Shows a page in the one window of the help, at the heading that a link names so (lower case, hyphens for
/// blanks); without a heading at its top. The window appears above the one from which it was asked for.
void ShowHelp(const QString& page, const QString& anchor = {}, QWidget* from = nullptr);

/// Adds the menu of the help to a menu bar, F1 for the keys among its entries.
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

 private:
  void NameHeadings();

  QList<Heading> headings_;
};

/// A window to read the guides in: the headings of the page, links between the pages, back, forward, find.
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

/// The directory of the pages: that of the installed documentation, or that of the sources.
QString HelpFolder();

/// How a link names a heading: "9. Answers without figures" is 9-answers-without-figures.
QString AnchorOf(const QString& heading);

}  // namespace qismora
