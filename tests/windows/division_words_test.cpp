#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include "casefile/HeirFields.h"
#include "faraid/Families.h"
#include "support/FakePorts.h"
#include "windows/division/DivisionWords.h"
#include "windows/platform/QtPorts.h"
#include "windows/platform/Utf8.h"

using namespace qismora;
using faraid::Kind;

namespace {

const QString project = QStringLiteral(PROJECT_DIRECTORY);

struct TsMessage {
  QString Context;
  QString Source;
  QString Translation;
  bool Finished = false;
};

QList<TsMessage> Messages(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QXmlStreamReader xml(&file);
  QList<TsMessage> messages;
  QString context;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QLatin1String("name")) context = xml.readElementText();
    if (xml.name() == QLatin1String("source")) messages.append({context, xml.readElementText(), {}, false});
    if (xml.name() == QLatin1String("translation")) {
      messages.last().Finished = !xml.attributes().hasAttribute(QLatin1String("type"));
      messages.last().Translation = xml.readElementText();
    }
  }
  return messages;
}

/// The places that are filled in, sorted: %1, {a heir}.
QStringList Placeholders(const QString& text) {
  static const QRegularExpression place(QStringLiteral("%L?\\d|\\{[^}]*\\}"));
  QStringList places;
  for (auto found = place.globalMatch(text); found.hasNext();) places.append(found.next().captured());
  places.sort();
  return places;
}

/// The names in a language of the one table of terms, by their field.
QHash<QString, QString> Terms(int column) {
  QFile file(project + QStringLiteral("/pictures/terms.tsv"));
  QHash<QString, QString> terms;
  if (!file.open(QIODevice::ReadOnly)) return terms;
  for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
    const QStringList cells = line.split(QLatin1Char('\t'));
    if (cells.size() > column) terms.insert(cells[0], cells[column]);
  }
  return terms;
}

}  // namespace

class DivisionWordsTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { SetLanguage(Language::English); }

  void translations_data() {
    QTest::addColumn<QString>("file");
    for (const char* language : {"ur", "ar"}) {
      QTest::newRow(language) << QStringLiteral("qismora_%1.ts").arg(QLatin1String(language));
    }
  }
  // What the sources hold now, collected afresh, is all translated, with the same places to fill in.
  void translations() {
    QFETCH(QString, file);
    const QTemporaryDir folder;
    for (const char* language : {"ur", "ar"}) {
      const QString name = QStringLiteral("qismora_%1.ts").arg(QLatin1String(language));
      QVERIFY(QFile::copy(project + QStringLiteral("/translations/") + name, folder.filePath(name)));
    }
    QCOMPARE(QProcess::execute(QStringLiteral("/usr/bin/python3"),
                               {project + QStringLiteral("/tools/translations"), folder.path()}),
             0);
    const QList<TsMessage> messages = Messages(folder.filePath(file));
    QVERIFY(messages.size() > 200);
    QStringList faults;
    for (const TsMessage& message : messages) {
      if (!message.Finished || message.Translation.isEmpty()) faults.append(message.Source);
      if (Placeholders(message.Source) != Placeholders(message.Translation))
        faults.append(message.Translation);
      // The menu bar of Case Study draws underlined letters, which Arabic script cannot bear.
      static const QStringList titles = {QStringLiteral("&Case"), QStringLiteral("&Division"),
                                         QStringLiteral("&Help")};
      const auto keys = titles.contains(message.Source) ? 0 : message.Source.count(QLatin1Char('&'));
      if (keys != message.Translation.count(QLatin1Char('&'))) faults.append(message.Translation);
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
  }

  // Every reason that a family can have reads as the library words it, and differs in the other languages.
  void reasons() {
    QSet<QString> sentences;
    faraid::RandomFamilies random(1);
    for (int i = 0; i < 4000; ++i) {
      const faraid::Family family = random.Next();
      for (const faraid::Row& row : faraid::Divide(family, static_cast<faraid::School>(i % 4)).Rows) {
        SetLanguage(Language::English);
        const QString english = words::Why(row.Why);
        QCOMPARE(english, ToQt(faraid::English(row.Why)));
        if (sentences.contains(english)) continue;
        sentences.insert(english);
        for (const Language language : {Language::Urdu, Language::Arabic}) {
          SetLanguage(language);
          static const QRegularExpression untranslated(QStringLiteral("[A-Za-z{%]"));
          const QString sentence = words::Why(row.Why);
          QVERIFY2(!sentence.contains(untranslated), qPrintable(sentence));
        }
      }
    }
    QVERIFY(sentences.size() > 100);
  }

  // The captions of the screen and the words of the division have one table of terms.
  void heirsAreThoseOfTheTable_data() {
    QTest::addColumn<int>("language");
    QTest::addColumn<int>("column");
    QTest::newRow("Urdu") << static_cast<int>(Language::Urdu) << 3;
    QTest::newRow("Arabic") << static_cast<int>(Language::Arabic) << 5;
  }
  void heirsAreThoseOfTheTable() {
    QFETCH(int, language);
    QFETCH(int, column);
    SetLanguage(static_cast<Language>(language));
    const QHash<QString, QString> terms = Terms(column);
    const auto hold = [&](Kind kind, const QString& field) {
      QVERIFY2(terms.contains(field), qPrintable(field));
      QCOMPARE(words::Heir(kind, faraid::MostOf(kind)), terms.value(field));
    };
    for (const HeirField& heir : HeirFields) {
      const QString field = heir.Heir == Kind::Wives     ? QStringLiteral("wives")
                            : heir.Heir == Kind::Husband ? QStringLiteral("husband")
                                                         : QString::number(heir.Index);
      hold(heir.Heir, field);
    }
    for (int check = 0; check < 12; ++check)
      hold(ClassIIKind(check), QStringLiteral("classII-%1").arg(check));
  }

  // Digits and groups are those of the language; a fraction stays one number.
  void figures() {
    QCOMPARE(words::Amount(184000050), QStringLiteral("1,840,000.50"));
    QCOMPARE(words::Amount(5), QStringLiteral("0.05"));
    QCOMPARE(words::Amount(-12345), QStringLiteral("-123.45"));
    QCOMPARE(words::Share({1234, 98765}), QStringLiteral("1234/98765"));
    SetLanguage(Language::Arabic);
    QCOMPARE(words::Amount(184000050), QStringLiteral("١٬٨٤٠٬٠٠٠٫٥٠"));
    QCOMPARE(words::Share({3, 8}), QStringLiteral("٣/٨"));
    QCOMPARE(words::SourceOf(faraid::Source::Quran4_176), QStringLiteral("النساء: ١٧٦"));
  }

  // Other languages have a word for a man and one for a woman.
  void theDeceasedIsAManOrAWoman() {
    QCOMPARE(words::Deceased(Male), words::Deceased(Female));
    SetLanguage(Language::Urdu);
    QCOMPARE(words::Deceased(Male), QStringLiteral("متوفی"));
    QCOMPARE(words::Deceased(Female), QStringLiteral("متوفیہ"));
    SetLanguage(Language::Arabic);
    QCOMPARE(words::Deceased(Male), QStringLiteral("المتوفى"));
    QCOMPARE(words::Deceased(Female), QStringLiteral("المتوفاة"));
  }

  // They are a list within the sentence, which takes the plain name and not the inflected one.
  void thoseSupposedDeadAreNotInflected() {
    DivisionView view;
    view.Supposed = {{Kind::Sons, 1, 1}, {Kind::Grandfather, 1, 1}};
    SetLanguage(Language::Urdu);
    QVERIFY(words::Supposition(view).contains(QStringLiteral(": بیٹا اور دادا")));
    SetLanguage(Language::Arabic);
    QVERIFY(words::Supposition(view).contains(QStringLiteral("الابن والجد أبو الأب")));
  }

  // What is typed keeps its direction within a sentence from the right.
  void faultsQuoteWhatIsTyped() {
    const UnreadableField field = {"Sons", "12 x", FieldFault::NotWhole, 100};
    QCOMPARE(words::Unreadable(field), QStringLiteral("Sons: \"12 x\" is not a whole number"));
    QCOMPARE(words::Unreadable({"Wives", " ", FieldFault::NotWhole, 4}),
             QStringLiteral("Wives: the field is empty"));
    SetLanguage(Language::Urdu);
    QCOMPARE(words::Unreadable(field), QStringLiteral("بیٹے: \"\u206812 x\u2069\" پورا عدد نہیں"));
  }

  void headlines_data() {
    QTest::addColumn<QString>("heirs");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("nobody") << ""
                            << "1,000.00 is left, and no heir is alive who takes it.";
    QTest::newRow("an empty case") << "25=0"
                                   << "Type who survives and what is left.";
    QTest::newRow("one son") << "2=1"
                             << "1,000.00 goes to one heir.";
    QTest::newRow("a spouse alone")
        << "1=1"
        << "1,000.00 is left. One heir takes a share. Beside the spouse there is no "
           "other heir: 750.00 is left over.";
    QTest::newRow("Radd")
        << "3=1 16=1"
        << "1,000.00 is divided among 2 heirs. The fixed shares leave something and there is no "
           "residuary: Radd returns it to the sharers other than the spouse.";
    QTest::newRow("Awl")
        << "1=1 3=2 13=1 16=1"
        << "1,000.00 is divided among 5 heirs. The fixed shares exceed the estate: Awl raises the "
           "base from 24 to 27.";
    QTest::newRow("unreadable") << "2=x"
                                << "Nothing is divided while a field cannot be read.";
    QTest::newRow("debts")
        << "27=1500"
        << "Nothing is left to divide: funeral expenses and debts exceed the estate by 500.00.";
  }
  void headlines() {
    QFETCH(QString, heirs);
    QFETCH(QString, sentence);
    CaseTexts texts;
    texts.Fields[25] = std::string("1000");
    for (const QString& field : heirs.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
      texts.Fields[field.section(QLatin1Char('='), 0, 0).toUInt()] =
          FromQt(field.section(QLatin1Char('='), 1));
    }
    QCOMPARE(words::Headline(ViewDivision(texts, faraid::School::Hanafi)), sentence);
  }

  // The choice outlives the program; without one the desktop decides.
  void choice() {
    testing::FakeSettings store;
    QCOMPARE(ChosenLanguage(store), std::optional<Language>());
    ChooseLanguage(store, Language::Urdu);
    QCOMPARE(CurrentLanguage(), Language::Urdu);
    QCOMPARE(CurrentDirection(), Qt::RightToLeft);
    QCOMPARE(ChosenLanguage(store), std::optional<Language>(Language::Urdu));
    ChooseLanguage(store, std::nullopt);
    QCOMPARE(CurrentLanguage(), DesktopLanguage());
    for (auto& [key, value] : store.Values) value = "xx";
    QCOMPARE(ChosenLanguage(store), std::optional<Language>());
  }
};

QTEST_MAIN(DivisionWordsTest)
#include "division_words_test.moc"
