<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ur" sourcelanguage="en">
<context>
    <name>Differences</name>
    <message>
        <source>The commands read an amount only up to its first comma.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The commands round funeral expenses, debts and wills to whole numbers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The commands refuse funeral expenses, debts and wills above 2,147,483,647.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Funeral expenses and debts exceed the estate. The commands refuse it, or divide a negative estate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The commands limit the wills to a third of the gross estate, as a whole number, and not to a third of what funeral expenses and debts leave.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No other heir is alive beside husband or wife. The commands show no figures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The fixed shares use up the estate exactly. The commands show no figures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The estate is too large for the commands: they cannot round the spouse&apos;s amount and show no figures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The family is too large for the fractions of the commands: they show no final figures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The commands give a consanguine brother beside daughters nothing, unless a consanguine sister is alive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The commands let son&apos;s daughters share with the son&apos;s son&apos;s son instead of taking their fixed share.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The commands let son&apos;s daughters share with the son&apos;s son&apos;s son instead of taking their sixth. A son&apos;s son&apos;s daughter then takes nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The commands leave the son&apos;s son&apos;s daughter out of the residue that she shares with her brother.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The commands give a son&apos;s son&apos;s daughter a sixth, though two daughters have taken the two thirds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The commands give a consanguine sister beside her brother and one full sister a sixth, and then her part of the residue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beside a grandfather the commands give the sixth of the great grandmothers to nobody, or also to the grandfather&apos;s mother.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text of Aul has no line for a grandfather.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The commands follow Hanafi law, from which this school differs here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Heirs</name>
    <message>
        <source>Wife</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wives</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Husband</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Daughter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Daughters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Son&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sons&apos; sons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Son&apos;s daughter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sons&apos; daughters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Son&apos;s son&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sons&apos; sons&apos; sons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Son&apos;s son&apos;s daughter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sons&apos; sons&apos; daughters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Father</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grandfather</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Great-grandfather</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mother&apos;s mother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mother&apos;s mother&apos;s mother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Father&apos;s mother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grandfather&apos;s mother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Father&apos;s mother&apos;s mother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full brother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full brothers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full sister</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full sisters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Consanguine sister</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Consanguine sisters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Consanguine brother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Consanguine brothers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uterine sister</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uterine sisters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uterine brother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uterine brothers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full brother&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Consanguine brother&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full brother&apos;s son&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Consanguine brother&apos;s son&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full uncle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Consanguine uncle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full uncle&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Consanguine uncle&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full uncle&apos;s son&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Consanguine uncle&apos;s son&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full uncle&apos;s son&apos;s son&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Consanguine uncle&apos;s son&apos;s son&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remainder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HeirsInSentences</name>
    <message>
        <source>wife</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>husband</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>daughter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>son&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>son&apos;s daughter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>son&apos;s son&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>son&apos;s son&apos;s daughter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>father</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>grandfather</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>great-grandfather</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mother&apos;s mother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mother&apos;s mother&apos;s mother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>father&apos;s mother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>grandfather&apos;s mother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>father&apos;s mother&apos;s mother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>full brother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>full sister</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>consanguine sister</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>consanguine brother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>uterine sister</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>uterine brother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>full brother&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>consanguine brother&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>full brother&apos;s son&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>consanguine brother&apos;s son&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>full uncle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>consanguine uncle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>full uncle&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>consanguine uncle&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>full uncle&apos;s son&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>consanguine uncle&apos;s son&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>full uncle&apos;s son&apos;s son&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>consanguine uncle&apos;s son&apos;s son&apos;s son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remainder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>{share} because there are {descendants}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share} because there are no descendants</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share}, one without a son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share}, two or more without a son</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share}, one in {a heir}&apos;s place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share}, two or more in {a heir}&apos;s place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share} completes two thirds beside one {heir}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share} in the father&apos;s place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share} because there are two or more siblings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share}, neither descendants nor two siblings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share}, al-Umariyyatan: a third of what {a heir} leaves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share} as grandmother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share} together with the other grandmothers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share}, one without a brother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share}, two or more without a brother</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share}, one uterine sibling alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share} together, men and women alike</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share}, al-Mushtaraka: full and uterine siblings alike</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>takes {left}, nearest male</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>takes {left}, two parts to {a heir}&apos;s one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>takes {left}, one part to {a heir}&apos;s two</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>takes {left} beside {a heir}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>al-Akdariyya: his 1/6 and her 1/2 joined, two parts to one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>al-Malikiyya: takes {left}, siblings would have nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share}, his least beside siblings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shares as a brother with the siblings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{share} of the whole, more than a brother&apos;s part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1/3 of the remainder, more than a brother&apos;s part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>takes what the grandfather leaves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>takes up to {share} of what the grandfather leaves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mu&apos;adda: takes what the full sisters leave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>excluded by {a heir}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>two thirds are taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not an heir in this school</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing is left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to distant kindred; if there is none, later Hanafi jurists return it to the spouse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to distant kindred; if there is none, to the treasury</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Sources</name>
    <message>
        <source>Quran 4:11</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quran 4:12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quran 4:176</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quran 8:75</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>report of Ibn Abbas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>report of Ibn Masud</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reports of al-Mughira and Ubada</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>report of Ali</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ruling of Abu Bakr</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ruling of Umar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ruling of Zayd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ruling of Malik</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Companions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>consensus</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>the %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the whole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what is left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>children</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>children of sons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a reason and its source</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, and what is left beyond it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; nothing is left beyond it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; after Awl %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; after Radd %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gross estate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Funeral expenses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bequests</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The fixed shares exceed the estate: Awl raises the base from %1 to %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The fixed shares leave something and there is no residuary: Radd returns it to the sharers other than the spouse.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beside the spouse there is no other heir: %1 is left over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The fixed shares fit the estate exactly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The residuaries take what the fixed shares leave.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 − %2 %3</source>
        <comment>an estate, what is paid from it, the amount</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <comment>amounts</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sharer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>residuary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sharer and residuary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>excluded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>two thirds are taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not an heir in this school</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing is left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hanafi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maliki</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shafi&apos;i</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hanbali</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 law</source>
        <comment>of a school</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yields to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is divided while a field cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is left to divide: funeral expenses and debts exceed the estate by %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is left, and no heir is alive who takes it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 goes to one heir.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is left. One heir takes a share. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is divided among %2 heirs. %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a whole number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is more than %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not an amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; has more than two decimals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Base %1, corrected base %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Base %1, raised to %2, corrected base %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>less %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>funeral expenses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>debts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bequests</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net estate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gross estate %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bequests of %1 are limited to %2, all that funeral expenses and debts leave.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bequests of %1 are limited to %2, a third of what funeral expenses and debts leave. More needs the consent of the heirs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Still the example with which Case Study opens: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the items of a list</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Heir</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Heads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>parts of a base</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Together</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Why</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Case Study</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The commands of Case Study answer otherwise.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where Qismora differs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
