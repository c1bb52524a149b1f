#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QComboBox>
#include <QLibrary>
#include <QMessageBox>
#include <QMimeData>
#include <QPageSize>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>
#include <QTextFrame>
#include <QTimer>

#include "casefile/HeirFields.h"
#include "support/FakePorts.h"
#include "windows/division/DivisionWords.h"
#include "windows/division/PaperCommands.h"
#include "windows/division/PaperSignatures.h"
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

/// The pages on this paper; 0 if a table is torn between two or is wider than they are.
int PagesOn(QPageSize::PageSizeId paper, const DivisionDocument& document) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setPageSize(QPageSize(paper));
  writer.setPageMargins(QMarginsF(PaperMargin, PaperMargin, PaperMargin, PaperMargin),
                        QPageLayout::Millimeter);
  const std::unique_ptr<QTextDocument> text = document.LaidOutFor(writer);
  const QSizeF page = text->pageSize();
  if (text->size().width() > 1.01 * page.width()) return 0;
  for (QTextFrame* table : text->rootFrame()->childFrames()) {
    const QRectF place = text->documentLayout()->frameBoundingRect(table).adjusted(2, 2, -2, -2);
    if (int(place.top() / page.height()) != int(place.bottom() / page.height())) return 0;
  }
  return text->pageCount();
}

DivisionView Supposed(DivisionView view) {
  view.Supposed = {{faraid::Kind::FullBrothers, 2, 2}, {faraid::Kind::Daughters, 1, 3}};
  return view;
}

struct Family {
  const char* Name;
  DivisionView View;
  int Pages;
};

QList<Family> Families() {
  CaseTexts debts = Abdullah();
  debts.Fields[27] = std::string("1900000");
  const CaseTexts wivesAndChildren =
      CaseOf({{1, "4"}, {2, "10"}, {3, "10"}, {25, "987654321.55"}, {26, "12000"}, {27, "340000"}});
  return {
      {"hanafi", ViewOf(Abdullah()), 1},
      {"maliki", ViewOf(Abdullah(), School::Maliki), 1},
      {"shafii", ViewOf(Abdullah(), School::Shafii), 1},
      {"hanbali", ViewOf(Abdullah(), School::Hanbali), 1},
      {"supposition", Supposed(ViewOf(Abdullah())), 1},
      {"debts", ViewOf(debts), 1},
      {"17 heads", ViewOf(CaseOf({{1, "1"}, {2, "6"}, {3, "8"}, {13, "1"}, {16, "1"}, {25, "1234567.89"}})),
       2},
      {"24 heads", ViewOf(wivesAndChildren), 2},
      {"everybody", ViewOf(Everybody(), School::Shafii), 2},
  };
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

  // One page for a family, a supposition or debts above the estate, two for many heads or all heirs at once,
  // in every language and on both papers. No table is torn.
  void fitsItsPages_data() {
    QTest::addColumn<int>("language");
    QTest::addColumn<int>("family");
    const QList<Family> families = Families();
    for (const Language language : AllLanguages) {
      for (int i = 0; i < families.size(); ++i)
        QTest::addRow("%d-%s", static_cast<int>(language), families[i].Name)
            << static_cast<int>(language) << i;
    }
  }
  void fitsItsPages() {
    QFETCH(int, language);
    QFETCH(int, family);
    SetLanguage(static_cast<Language>(language));
    const Family tested = Families()[family];
    const DivisionDocument document(tested.View, date);
    const QTemporaryDir folder;
    QFile file(KeptPath(QStringLiteral("%1.pdf").arg(QLatin1String(QTest::currentDataTag())), folder));
    QCOMPARE(document.SavePdf(file.fileName()), std::optional<QString>());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(content.startsWith("%PDF-"));
    QVERIFY(content.trimmed().endsWith("%%EOF"));
    for (const QPageSize::PageSizeId paper : {QPageSize::A4, QPageSize::Letter})
      QCOMPARE(PagesOn(paper, document), tested.Pages);
  }

  // Each head has a line to sign. Where a page has not so many, the most numerous heirs sign a list.
  void hasALineForEachWhoTakes() {
    const auto signers = [](const CaseTexts& texts) {
      QStringList lines;
      for (const SignatureLine& line : SignatureLines(ViewOf(texts)))
        lines.append(line.Who + (line.OnAList ? QStringLiteral(" on a list") : QString()));
      return lines.join(QStringLiteral(", "));
    };
    QCOMPARE(signers(Abdullah()), QStringLiteral("Wife, Daughter 1, Daughter 2, Grandfather, Mother"));
    QCOMPARE(signers(CaseOf({{1, "2"}, {2, "22"}, {3, "1"}, {25, "100"}})),
             QStringLiteral("Wife 1, Wife 2, 22 Sons on a list, Daughter"));
    QCOMPARE(signers(CaseOf({{1, "1"}, {25, "100"}})), QStringLiteral("Wife"));
  }

  // All heirs at once have their names in at least seven points, on A4 and Letter: those whom a son
  // excludes, and those whom a grandfather excludes, which takes more words.
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
    CaseTexts texts = Abdullah();
    texts.Fields[28] = std::string("700000");
    CopyPaper(DocumentOf(texts));
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    const QStringList parts = data->text().split(QStringLiteral("\n\n"));
    QCOMPARE(parts.size(), 5);
    QCOMPARE(parts[0], QStringLiteral("The deceased: Abdullah, a man\nDate: Saturday, November 21, 2026\n"
                                      "School: Hanafi law"));
    QCOMPARE(parts[1], QStringLiteral("Gross estate\t1840000.00\nless debts\t240000.00\n"
                                      "less bequests\t533333.33\nNet estate\t1066666.67"));
    QVERIFY(parts[2].startsWith(QStringLiteral("Bequests of 700,000.00 are limited to 533,333.33")));
    const QStringList lines = parts[3].split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 7);
    QCOMPARE(lines.front(), QStringLiteral("Heir\tHeads\tShare\tof 27\tTogether\tEach\tWhy\tSource"));
    QVERIFY(lines[1].startsWith(QStringLiteral("Wife\t1\t1/9\t3\t118518.52\t118518.52\t1/8 because")));
    QVERIFY(lines[5].startsWith(QStringLiteral("Consanguine brother\t1\t0\t0\t0.00")));
    double sum = 0;
    for (const QString& line : lines.mid(1, 5)) sum += line.section(QLatin1Char('\t'), 4, 4).toDouble();
    QCOMPARE(sum, 1066666.67);
    QCOMPARE(lines.back(), QStringLiteral("Sum\t5\t1\t27\t1066666.67\t\tBase 24, raised to 27, corrected "
                                          "base 27\t"));
    QVERIFY(parts[4].contains(QStringLiteral("no line for a grandfather")));
    QVERIFY(data->html().startsWith(QStringLiteral("<p>The deceased: Abdullah, a man</p>")));
    for (const char* words : {"mso-number-format:'\\@'\" sdnum=\"0;0;@\">1/9</td>", "x:num=\"118518.52\"",
                              "sdval=\"1066666.67\">1,066,666.67</th>", "sdval=\"240000.00\">240,000.00</td>",
                              "corrected base 27", "excluded by the grandfather", "are limited to",
                              "no line for a grandfather"}) {
      QVERIFY2(data->html().contains(QLatin1String(words)), words);
    }
    QVERIFY2(!data->html().contains(QStringLiteral("<br>")), "a spreadsheet would make two cells of it");
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
    QVERIFY(!document.Html().contains(QStringLiteral("Witness 1")));
    QVERIFY(DocumentOf(Abdullah()).Html().contains(QStringLiteral("Witness 1")));
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
    QVERIFY(html("3").contains(QStringLiteral("66.66;<br>2 of them<br>66.67")));
    QVERIFY(html("3").contains(agree));
    QVERIFY(html("7").contains(QStringLiteral("28.57;<br>one of them<br>28.58")));
    QVERIFY(!html("4").contains(agree));
    // The mother and the grandfather have a sixth each, and one of them a hundredth more.
    const auto sixths = CaseOf({{1, "1"}, {3, "2"}, {14, "1"}, {16, "1"}, {25, "24000"}});
    QVERIFY(DocumentOf(sixths).Html().contains(agree));
  }

  // The remainder has no heads, so that nobody receives a part of it each.
  void theRemainderHasNoHeads() {
    const QString text = DocumentOf(CaseOf({{1, "1"}, {25, "100"}})).ForClipboard()->text();
    QVERIFY(text.contains(QStringLiteral("Remainder\t\t3/4\t3\t75.00\t–\t")));
  }

  // Who settles the debts can print that nothing is left, and who is alive.
  void printsThatDebtsExceedTheEstate() {
    const DivisionDocument document =
        DocumentOf(CaseOf({{1, "1"}, {3, "2"}, {25, "1000"}, {26, "500"}, {27, "900"}, {28, "60"}}));
    for (const QString& words : {QStringLiteral(">400.00<"), QStringLiteral("no heir owes what it lacks"),
                                 QStringLiteral("Alive: Wife, 2 Daughters."), QStringLiteral("Witness 2"),
                                 QStringLiteral("Bequests of 60.00 lapse")}) {
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

  // The preview lays out the same pages as the file, for the paper that the user sets, and opens so that they
  // can be read.
  void previews() {
    QLibrary plugin(QStringLiteral(PRINT_PLUGIN));
    const auto show = reinterpret_cast<ShowPrintDialog>(plugin.resolve(ShowPrintDialogName));
    QVERIFY2(show != nullptr, qPrintable(plugin.errorString()));
    const DivisionDocument document = DocumentOf(Abdullah());
    int paints = 0;
    double percent = 0;
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [&] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (dialog == nullptr || paints == 0) return;
      for (const QComboBox* box : dialog->findChildren<QComboBox*>()) {
        if (box->currentText().endsWith(QLatin1Char('%'))) percent = box->currentText().chopped(1).toDouble();
      }
      dialog->close();
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
    QVERIFY2(percent > 80, qPrintable(QString::number(percent)));
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
