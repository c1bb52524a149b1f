#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QLibrary>
#include <QMessageBox>
#include <QMimeData>
#include <QPageSize>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "casefile/HeirFields.h"
#include "support/FakePorts.h"
#include "windows/division/DivisionWords.h"
#include "windows/division/PaperCommands.h"
#include "windows/division/PaperTree.h"
#include "windows/platform/Utf8.h"
#include "windows/print/PrintDialogs.h"

using namespace qismora;
using faraid::School;

namespace {

CaseTexts CaseOf(std::initializer_list<std::pair<std::size_t, const char*>> fields) {
  CaseTexts texts;
  for (const auto& [field, text] : fields) texts.Fields[field] = std::string(text);
  return texts;
}

/// A wife, two daughters, a grandfather, the mother and a consanguine brother.
CaseTexts Abdullah() {
  CaseTexts texts = CaseOf(
      {{1, "1"}, {3, "2"}, {14, "1"}, {16, "1"}, {31, "1"}, {25, "1840000"}, {27, "240000"}, {28, "100000"}});
  texts.Fields[NameField] = std::string("Abdullah");
  return texts;
}

/// Whoever can be alive at once.
CaseTexts Everybody() {
  CaseTexts texts;
  for (const HeirField& heir : HeirFields) {
    texts.Fields[static_cast<std::size_t>(heir.Index)] = std::to_string(faraid::MostOf(heir.Heir));
  }
  texts.Fields[25] = std::string("999999999999999.99");
  texts.ClassII.fill(true);
  texts.Fields[NameField] =
      std::string("Zaynab bint Abd al-Rahman ibn Muhammad ibn Abdullah of the old town");
  return texts;
}

const QDate date(2026, 11, 21);

DivisionView ViewOf(const CaseTexts& texts, School school = School::Hanafi) {
  testing::FakePorts ports;
  CaseScreen screen(ports.Ports);
  TypeIntoScreen(texts, screen);
  return ViewDivision(screen, false, school);
}

DivisionDocument DocumentOf(const CaseTexts& texts) { return {ViewOf(texts), date}; }

qsizetype PagesOn(QPageSize::PageSizeId paper, const DivisionDocument& document) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(paper));
    writer.setPageMargins(QMarginsF(PaperMargin, PaperMargin, PaperMargin, PaperMargin),
                          QPageLayout::Millimeter);
    document.Print(writer);
  }
  return buffer.data().count("/Type /Page\n");
}

/// Where pictures of the pages are wanted, the directory for the PDF files.
QString KeptPath(const QString& name, const QTemporaryDir& folder) {
  const QString kept = qEnvironmentVariable("QISMORA_KEEP_PAPER");
  return kept.isEmpty() ? folder.filePath(name) : kept + QLatin1Char('/') + name;
}

}  // namespace

class DivisionPaperTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { SetLanguage(Language::English); }

  // One page for a family, a supposition or debts above the estate, two for all heirs at once, in every
  // language.
  void fitsItsPages_data() {
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("what");
    for (const Language language : AllLanguages) {
      for (const char* what : {"family", "supposition", "debts", "everybody"}) {
        QTest::addRow("%d %s", static_cast<int>(language), what)
            << static_cast<int>(language) << QString::fromLatin1(what);
      }
    }
  }
  void fitsItsPages() {
    QFETCH(int, language);
    QFETCH(QString, what);
    SetLanguage(static_cast<Language>(language));
    CaseTexts texts = Abdullah();
    if (what == QLatin1String("everybody")) texts = Everybody();
    if (what == QLatin1String("debts")) texts.Fields[27] = std::string("1900000");
    DivisionView view = ViewOf(texts);
    if (what == QLatin1String("supposition")) {
      view.Supposed = {{faraid::Kind::FullBrothers, 2, 2}, {faraid::Kind::Daughters, 1, 3}};
    }
    const DivisionDocument document(view, date);
    const QTemporaryDir folder;
    const QString path = KeptPath(QStringLiteral("%1-%2.pdf").arg(language).arg(what), folder);
    QCOMPARE(document.SavePdf(path), std::optional<QString>());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(content.startsWith("%PDF-"));
    QVERIFY(content.trimmed().endsWith("%%EOF"));
    for (const QPageSize::PageSizeId paper : {QPageSize::A4, QPageSize::Letter})
      QCOMPARE(PagesOn(paper, document), what == QLatin1String("everybody") ? 2 : 1);
  }

  // All heirs at once have their names in at least seven points, on A4 and Letter: those who yield to a son,
  // and those who yield to a grandfather, which takes more words.
  void keepsTheTreeReadable() {
    CaseTexts withoutSons = Everybody();
    for (const std::size_t field : {2U, 4U, 6U, 13U}) withoutSons.Fields[field] = std::string("0");
    for (const Language language : AllLanguages) {
      SetLanguage(language);
      for (const CaseTexts& texts : {Everybody(), withoutSons}) {
        const DivisionView view = ViewOf(texts, School::Shafii);
        for (const QSizeF page : {QSizeF(504, 727), QSizeF(521, 677)}) {
          const PaperTree tree(view, QString(), FontOfLanguage(QGuiApplication::font()), page, nullptr);
          QVERIFY2(tree.TextSize() >= 6.99, qPrintable(QString::number(tree.TextSize())));
        }
      }
    }
  }

  // A file that cannot be written is reported, and what stood there stays.
  void reportsWhatIsNotSaved() {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("missing/division.pdf"));
    const auto fault = DocumentOf(Abdullah()).SavePdf(path);
    QVERIFY(fault.has_value());
    QVERIFY(fault->contains(QStringLiteral("division.pdf")));
    QVERIFY(!QFile::exists(path));
  }

  // The spreadsheet computes with what it is given: fractions are no dates, amounts no texts, and the amounts
  // come to the net estate.
  void copiesTheTable() {
    CopyPaper(DocumentOf(Abdullah()));
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    const QStringList parts = data->text().split(QStringLiteral("\n\n"));
    QCOMPARE(parts.size(), 2);
    QVERIFY(parts[0].startsWith(QStringLiteral(
        "The deceased: Abdullah, a man\nDate: Saturday, November 21, 2026\nSchool: Hanafi law\n1,500,000.00 is")));
    const QStringList lines = parts[1].split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 7);
    QCOMPARE(lines.front(), QStringLiteral("Heir\tHeads\tShare\tof 27\tTogether\tEach\tWhy\tSource"));
    QVERIFY(lines[1].startsWith(QStringLiteral("Wife\t1\t=1/9\t3\t166666.67\t166666.67\t1/8 because")));
    QVERIFY(lines[5].startsWith(QStringLiteral("Consanguine brother\t1\t0\t0\t0.00")));
    double sum = 0;
    for (const QString& line : lines.mid(0, 6)) sum += line.section(QLatin1Char('\t'), 4, 4).toDouble();
    QCOMPARE(sum, 1500000.0);
    QCOMPARE(lines.back(), QStringLiteral("Sum\t5\t1\t27\t1500000.00\t\t\t"));
    QVERIFY(data->html().startsWith(QStringLiteral("<p>The deceased: Abdullah, a man</p>")));
    QVERIFY(data->html().contains(QStringLiteral("mso-number-format:'\\@'\" sdnum=\"0;0;@\">1/9</td>")));
    QVERIFY(data->html().contains(QStringLiteral("x:num=\"166666.67\"")));
    QVERIFY(data->html().contains(QStringLiteral("excluded by the grandfather")));
  }

  // What would be if an heir had died before cannot be taken for the division: not on paper, not in a letter,
  // and not in a directory.
  void marksASupposition() {
    DivisionView view = ViewDivision(Abdullah(), School::Hanafi);
    view.Supposed = {
        {faraid::Kind::Wives, 1, 1}, {faraid::Kind::Daughters, 2, 3}, {faraid::Kind::Sons, 2, 2}};
    const DivisionDocument document(view, date);
    const QString sentence = QStringLiteral(
        "Supposition: as if the wife, 2 of 3 daughters and the 2 sons had died before the deceased.");
    QVERIFY(document.Html().indexOf(sentence) < document.Html().indexOf(QStringLiteral("Division of an")));
    QVERIFY(document.Html().contains(sentence));
    QVERIFY(!document.Html().contains(QStringLiteral("....")));
    QVERIFY(DocumentOf(Abdullah()).Html().contains(QStringLiteral("....")));
    const std::unique_ptr<QMimeData> copied = document.ForClipboard();
    QVERIFY(copied->text().startsWith(sentence));
    QVERIFY(copied->html().startsWith(QStringLiteral("<p>%1").arg(sentence)));
    QCOMPARE(document.FileName(), QStringLiteral("Supposition - Abdullah"));
  }

  // The other report is named below the table, in words for a reader who has never seen the program.
  void namesTheOtherReportBelowTheTable() {
    const QString html = DocumentOf(Abdullah()).Html();
    const auto place =
        html.indexOf(QStringLiteral("the full report file of Case Study, gives other amounts"));
    QVERIFY(place > html.indexOf(QStringLiteral("corrected base 27")));
    QVERIFY(html.indexOf(QStringLiteral("no line for a grandfather")) > place);
    CaseTexts wife = CaseOf({{1, "1"}, {25, "100"}});
    QVERIFY(DocumentOf(wife).Html().contains(QStringLiteral("gives no amounts for this family")));
    wife.Fields[2] = std::string("1");
    QVERIFY(!DocumentOf(wife).Html().contains(QStringLiteral("Case Study")));
  }

  // Heads of a line that differ by a hundredth are counted.
  void saysHowManyReceiveTheHundredth() {
    const auto html = [](const char* sons) { return DocumentOf(CaseOf({{2, sons}, {25, "200"}})).Html(); };
    const QString agree = QStringLiteral("The heirs agree who takes it.");
    QVERIFY(html("3").contains(QStringLiteral("66.66; 2 of them 66.67")));
    QVERIFY(html("3").contains(agree));
    QVERIFY(html("7").contains(QStringLiteral("28.57; one of them 28.58")));
    QVERIFY(!html("4").contains(agree));
  }

  // The remainder has no heads, so that nobody receives a part of it each.
  void theRemainderHasNoHeads() {
    const QString text = DocumentOf(CaseOf({{1, "1"}, {25, "100"}})).ForClipboard()->text();
    QVERIFY(text.contains(QStringLiteral("Remainder\t\t=3/4\t3\t75.00\t–\t")));
  }

  // Who settles the debts can print that nothing is left, and who is alive.
  void printsThatDebtsExceedTheEstate() {
    const DivisionDocument document =
        DocumentOf(CaseOf({{1, "1"}, {3, "2"}, {25, "1000"}, {26, "500"}, {27, "900"}}));
    for (const QString& words : {QStringLiteral(">400.00<"), QStringLiteral("no heir owes what it lacks"),
                                 QStringLiteral("Alive: Wife, 2 Daughters."), QStringLiteral("....")}) {
      QVERIFY2(document.Html().contains(words), qPrintable(words));
    }
    QVERIFY(!document.Html().contains(QStringLiteral("corrected base")));
    QVERIFY(document.ForClipboard()->text().contains(QStringLiteral("by 400.00.\nFuneral expenses")));
  }

  // A second page that is found alone says whose it is, even where the name is too long for a line.
  void namesTheDeceasedOnEveryPage() {
    QCOMPARE(DocumentOf(Abdullah()).Foot(2, 2),
             QStringLiteral("Abdullah - Saturday, November 21, 2026 - Qismora - page 2 of 2"));
    const QString foot = DocumentOf(Everybody()).Foot(1, 2);
    QVERIFY(foot.startsWith(QStringLiteral("Zaynab bint Abd al-Rahman")));
    QVERIFY(foot.size() < 120);
  }

  // The preview lays out the same pages as the file, for the paper that the user sets.
  void previews() {
    QLibrary plugin(QStringLiteral(PRINT_PLUGIN));
    const auto show = reinterpret_cast<ShowPrintDialog>(plugin.resolve(ShowPrintDialogName));
    QVERIFY2(show != nullptr, qPrintable(plugin.errorString()));
    const DivisionDocument document = DocumentOf(Abdullah());
    int paints = 0;
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [&] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (dialog != nullptr && paints > 0) dialog->close();
    });
    closer.start(20);
    show(nullptr,
         {document.FileName(), UsualPaper(), PaperMargin,
          [&](QPagedPaintDevice& device) {
            document.Print(device);
            ++paints;
          }},
         true);
    QVERIFY(paints > 0);
  }

  // Without the plugin, as here beside the test, the user is told what to do instead.
  void saysThatPrintingIsMissing() {
    QString words;
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      words = box->text();
      box->close();
    });
    closer.start(20);
    PreviewPaper(DocumentOf(Abdullah()), nullptr);
    QVERIFY(words.contains(QStringLiteral("PDF")));
  }

  // What the user typed as a name is text, and no part of a path.
  void namesAreText() {
    CaseTexts texts = Abdullah();
    texts.Fields[NameField] = std::string("../<b>A&B</b>\"");
    const DivisionDocument document = DocumentOf(texts);
    QCOMPARE(document.FileName(), QStringLiteral("Division - b A B b"));
    const QTemporaryDir folder;
    QCOMPARE(document.SavePdf(KeptPath(QStringLiteral("name.pdf"), folder)), std::optional<QString>());
  }
};

QTEST_MAIN(DivisionPaperTest)
#include "division_paper_test.moc"
