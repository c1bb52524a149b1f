<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ur" sourcelanguage="en">
<context>
    <name>Case</name>
    <message>
        <source>State of the answer</source>
        <translation>جواب کی کیفیت</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;نیا</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;کھولیں...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;محفوظ کریں</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>نئے نام &amp;سے محفوظ کریں...</translation>
    </message>
    <message>
        <source>No case was saved or opened yet</source>
        <translation>ابھی تک کوئی صورت محفوظ کی یا کھولی نہیں گئی</translation>
    </message>
    <message>
        <source>&amp;Case</source>
        <translation>صورت</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>&amp;حالیہ</translation>
    </message>
    <message>
        <source>&amp;Division</source>
        <translation>تقسیم</translation>
    </message>
    <message>
        <source>Who receives what: F8</source>
        <translation>کس کو کیا ملتا ہے: F8</translation>
    </message>
    <message>
        <source>Who receives what: opens the division</source>
        <translation>کس کو کیا ملتا ہے: تقسیم کھولتا ہے</translation>
    </message>
    <message>
        <source>The final division in one table, with its reasons (F8)</source>
        <translation>آخری تقسیم ایک جدول میں، وجوہات کے ساتھ (F8)</translation>
    </message>
    <message>
        <source>Qismora cases (*.qismora)</source>
        <translation>Qismora کی صورتیں (*.qismora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>تمام فائلیں (*)</translation>
    </message>
    <message>
        <source>Open case</source>
        <translation>صورت کھولیں</translation>
    </message>
    <message>
        <source>Save case</source>
        <translation>صورت محفوظ کریں</translation>
    </message>
    <message>
        <source>The text is not UTF-8.</source>
        <translation>متن UTF-8 میں نہیں ہے۔</translation>
    </message>
    <message>
        <source>There is a control character in the line.</source>
        <translation>سطر میں ایک کنٹرول علامت ہے۔</translation>
    </message>
    <message>
        <source>There is no equals sign in &quot;{text}&quot;.</source>
        <translation>&quot;{text}&quot; میں مساوی کی علامت نہیں ہے۔</translation>
    </message>
    <message>
        <source>&quot;{text}&quot; is not a caption of the Case Study screen.</source>
        <translation>&quot;{text}&quot; Case Study کے کسی خانے کا عنوان نہیں ہے۔</translation>
    </message>
    <message>
        <source>&quot;{text}&quot; is given twice.</source>
        <translation>&quot;{text}&quot; دو بار درج ہے۔</translation>
    </message>
    <message>
        <source>&quot;{text}&quot; is not quoted correctly.</source>
        <translation>&quot;{text}&quot; میں واوین درست نہیں ہیں۔</translation>
    </message>
    <message>
        <source>&quot;{text}&quot; is not a version of case files.</source>
        <translation>&quot;{text}&quot; صورتوں کی فائلوں کا کوئی نسخہ نہیں ہے۔</translation>
    </message>
    <message>
        <source>The line is too long.</source>
        <translation>سطر بہت لمبی ہے۔</translation>
    </message>
    <message>
        <source>The file is too large for a case.</source>
        <translation>فائل ایک صورت کے لیے بہت بڑی ہے۔</translation>
    </message>
    <message>
        <source>&quot;{text}&quot; takes the word ticked, or 0.</source>
        <translation>&quot;{text}&quot; میں لفظ ticked یا 0 آتا ہے۔</translation>
    </message>
    <message>
        <source>&quot;{text}&quot; takes yes or no.</source>
        <translation>&quot;{text}&quot; میں yes یا no آتا ہے۔</translation>
    </message>
    <message>
        <source>Both Wives and Husband are given.</source>
        <translation>Wives اور Husband دونوں درج ہیں۔</translation>
    </message>
    <message>
        <source>Wives are given, but the deceased is female.</source>
        <translation>Wives درج ہیں مگر میت عورت ہے۔</translation>
    </message>
    <message>
        <source>A husband is given, but the deceased is male.</source>
        <translation>Husband درج ہے مگر میت مرد ہے۔</translation>
    </message>
    <message>
        <source>the folder does not exist</source>
        <translation>فولڈر موجود نہیں</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>آپ کو اجازت نہیں</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>یہ نام پہلے سے موجود ہے</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>ڈسک پر لکھا نہیں جا سکتا</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>ڈسک بھری ہوئی ہے</translation>
    </message>
    <message>
        <source>your share of the disk is full</source>
        <translation>ڈسک میں آپ کا حصہ بھر چکا ہے</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>فائل بہت بڑی ہے</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>نام بہت لمبا ہے</translation>
    </message>
    <message>
        <source>the name is not possible on this disk</source>
        <translation>اس ڈسک پر یہ نام ممکن نہیں</translation>
    </message>
    <message>
        <source>a folder has this name</source>
        <translation>یہ ایک فولڈر کا نام ہے</translation>
    </message>
    <message>
        <source>the name is a link</source>
        <translation>یہ نام ایک لنک ہے</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>ڈسک خرابی بتاتی ہے</translation>
    </message>
    <message>
        <source>the name belongs to a pipe or a device</source>
        <translation>یہ نام کسی پائپ یا آلے کا ہے</translation>
    </message>
    <message>
        <source>The case could not be worked out.</source>
        <translation>صورت حل نہ ہو سکی۔</translation>
    </message>
    <message>
        <source>Aul/ Radd worked on figures that it had adjusted already. Choose Residuaries again.</source>
        <translation>Aul/ Radd نے ان اعداد پر کام کیا جنھیں وہ پہلے ہی بدل چکا تھا۔ دوبارہ Residuaries چنیں۔</translation>
    </message>
    <message>
        <source>Aul/ Radd was applied to other shares. Choose Residuaries first.</source>
        <translation>Aul/ Radd دوسرے حصوں پر لاگو کیا گیا۔ پہلے Residuaries چنیں۔</translation>
    </message>
    <message>
        <source>No answer yet.</source>
        <translation>ابھی کوئی جواب نہیں۔</translation>
    </message>
    <message>
        <source>Answer of {command}: not the whole distribution, which Residuaries (F5) gives.</source>
        <translation>{command} کا جواب: یہ پوری تقسیم نہیں، وہ Residuaries (F5) دیتا ہے۔</translation>
    </message>
    <message>
        <source>Answer of {command}, not final: Radd is still to be applied (Aul/ Radd, F6).</source>
        <translation>{command} کا جواب، آخری نہیں: رد ابھی باقی ہے (Aul/ Radd، F6)۔</translation>
    </message>
    <message>
        <source>Answer of {command}, not final: Aul is still to be applied (Aul/ Radd, F6).</source>
        <translation>{command} کا جواب، آخری نہیں: عول ابھی باقی ہے (Aul/ Radd، F6)۔</translation>
    </message>
    <message>
        <source>Answer of {command}: final.</source>
        <translation>{command} کا جواب: آخری۔</translation>
    </message>
    <message>
        <source>Answer of {command}: the net estate is below 0, nothing is left to divide.</source>
        <translation>{command} کا جواب: خالص ترکہ 0 سے کم ہے، تقسیم کے لیے کچھ نہیں بچا۔</translation>
    </message>
    <message>
        <source>Refused; fields have changed since. Choose Residuaries (F5).</source>
        <translation>نامنظور؛ اس کے بعد خانے بدل گئے ہیں۔ Residuaries (F5) چنیں۔</translation>
    </message>
    <message>
        <source>Refused: these figures are not your case. {reason}</source>
        <translation>نامنظور: یہ اعداد آپ کی صورت کے نہیں۔ {reason}</translation>
    </message>
    <message>
        <source>Fields have changed since the answer of {command}.</source>
        <translation>{command} کے جواب کے بعد خانے بدل گئے ہیں۔</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>فائل نہیں ملی</translation>
    </message>
    <message>
        <source>Line {line}: {text}</source>
        <translation>سطر {line}: {text}</translation>
    </message>
    <message>
        <source>and {number} more</source>
        <translation>اور مزید {number}</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>محفوظ نہیں</translation>
    </message>
    <message>
        <source>{file}, changed</source>
        <translation>{file}، تبدیل شدہ</translation>
    </message>
    <message>
        <source>{file} could not be saved.</source>
        <translation>{file} محفوظ نہ ہو سکی۔</translation>
    </message>
    <message>
        <source>This case has not been saved.</source>
        <translation>یہ صورت محفوظ نہیں کی گئی۔</translation>
    </message>
    <message>
        <source>{file} has changed since it was saved.</source>
        <translation>{file} محفوظ ہونے کے بعد بدل گئی ہے۔</translation>
    </message>
    <message>
        <source>Save it before it is closed?</source>
        <translation>کیا بند کرنے سے پہلے اسے محفوظ کیا جائے؟</translation>
    </message>
    <message>
        <source>The command was not finished.</source>
        <translation>کمانڈ پوری نہیں ہوئی۔</translation>
    </message>
    <message>
        <source>{field} {text} is too large and will be refused</source>
        <translation>{field} {text} بہت بڑا ہے اور قبول نہیں کیا جائے گا</translation>
    </message>
    <message>
        <source>{field} {text} is read as {number}</source>
        <translation>{field} {text} کو {number} پڑھا جاتا ہے</translation>
    </message>
    <message>
        <source>{field} without a text is not read: {number} stays</source>
        <translation>{field} خالی ہے اور پڑھا نہیں جاتا: {number} باقی رہتا ہے</translation>
    </message>
    <message>
        <source>{field} without a text is not read: the figure of the run before stays</source>
        <translation>{field} خالی ہے اور پڑھا نہیں جاتا: پچھلی بار کا عدد باقی رہتا ہے</translation>
    </message>
    <message>
        <source>{field} {text} is not read: {number} stays</source>
        <translation>{field} {text} پڑھا نہیں جاتا: {number} باقی رہتا ہے</translation>
    </message>
    <message>
        <source>{field} {text} is not read: the figure of the run before stays</source>
        <translation>{field} {text} پڑھا نہیں جاتا: پچھلی بار کا عدد باقی رہتا ہے</translation>
    </message>
    <message>
        <source>A newer version of Qismora has written this file. These lines are not known here and were not read:</source>
        <translation>یہ فائل Qismora کے ایک نئے نسخے نے لکھی ہے۔ یہ سطریں یہاں معلوم نہیں اور پڑھی نہیں گئیں:</translation>
    </message>
    <message>
        <source>Save asks for a name, so that the file keeps them.</source>
        <translation>محفوظ کرتے وقت نام پوچھا جائے گا تاکہ یہ سطریں فائل میں باقی رہیں۔</translation>
    </message>
    <message>
        <source>{file} was not opened.</source>
        <translation>{file} نہیں کھولی گئی۔</translation>
    </message>
    <message>
        <source>The division differs: F8.</source>
        <translation>تقسیم مختلف ہے: F8۔</translation>
    </message>
    <message>
        <source>%1, and %2 more</source>
        <translation>%1، اور %2 مزید</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>OK</source>
        <translation>ٹھیک ہے</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>محفوظ کریں</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>کھولیں</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>محفوظ نہ کریں</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>منسوخ کریں</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;ہاں</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;نہیں</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;کھولیں</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;محفوظ کریں</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>مقام:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>فائل کا &amp;نام:</translation>
    </message>
    <message>
        <source>&amp;File name:</source>
        <translation>فائل کا &amp;نام:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>فائل کی قسم:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>نئے نام سے محفوظ کریں</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>نام</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>حجم</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>قسم</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>تاریخِ ترمیم</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>کمپیوٹر</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;طباعت</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>طباعت</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>طباعت کا پیش منظر</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 پہلے سے موجود ہے۔
کیا اسے بدل دیا جائے؟</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>پرنٹر</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;نام:</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>&amp;خصوصیات</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>مقام:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>قسم:</translation>
    </message>
    <message>
        <source>Output &amp;file:</source>
        <translation>فائل کا &amp;پتا:</translation>
    </message>
    <message>
        <source>&amp;Options &gt;&gt;</source>
        <translation>&amp;اختیارات &gt;&gt;</translation>
    </message>
    <message>
        <source>&amp;Options &lt;&lt;</source>
        <translation>&amp;اختیارات &lt;&lt;</translation>
    </message>
    <message>
        <source>Print to File (PDF)</source>
        <translation>فائل میں طباعت (PDF)</translation>
    </message>
    <message>
        <source>Local file</source>
        <translation>مقامی فائل</translation>
    </message>
    <message>
        <source>Write PDF file</source>
        <translation>PDF فائل لکھیں</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>چوڑائی کے برابر</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>پورا صفحہ</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>بڑا کریں</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>چھوٹا کریں</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>عمودی</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>افقی</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>پہلا صفحہ</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>پچھلا صفحہ</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>اگلا صفحہ</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>آخری صفحہ</translation>
    </message>
    <message>
        <source>Show single page</source>
        <translation>ایک صفحہ دکھائیں</translation>
    </message>
    <message>
        <source>Show facing pages</source>
        <translation>آمنے سامنے کے صفحے دکھائیں</translation>
    </message>
    <message>
        <source>Show overview of all pages</source>
        <translation>تمام صفحے ایک ساتھ دکھائیں</translation>
    </message>
    <message>
        <source>Page setup</source>
        <translation>صفحے کی ترتیب</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نقل کریں</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;لنک کا پتا نقل کریں</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>سب منتخب کریں</translation>
    </message>
</context>
<context>
    <name>Differences</name>
    <message>
        <source>The commands read an amount only up to its first comma.</source>
        <translation>کمانڈیں رقم کو صرف پہلے کوما تک پڑھتی ہیں۔</translation>
    </message>
    <message>
        <source>The commands round funeral expenses, debts and wills to whole numbers.</source>
        <translation>کمانڈیں تجہیز و تکفین، قرض اور وصیت کی رقم کو قریب ترین پورے عدد میں بدل دیتی ہیں۔</translation>
    </message>
    <message>
        <source>The commands refuse funeral expenses, debts and wills above 2,147,483,647.</source>
        <translation>کمانڈیں 2,147,483,647 سے زیادہ تجہیز و تکفین، قرض اور وصیت قبول نہیں کرتیں۔</translation>
    </message>
    <message>
        <source>Funeral expenses and debts exceed the estate. The commands refuse it, or divide a negative estate.</source>
        <translation>تجہیز و تکفین اور قرض ترکے سے زیادہ ہیں۔ کمانڈیں اسے قبول نہیں کرتیں یا منفی ترکہ تقسیم کرتی ہیں۔</translation>
    </message>
    <message>
        <source>The commands limit the wills to a third of the gross estate, as a whole number, and not to a third of what funeral expenses and debts leave.</source>
        <translation>کمانڈیں وصیت کو کل ترکے کے ایک تہائی تک، پورے عدد میں، محدود کرتی ہیں، نہ کہ تجہیز و تکفین اور قرض کے بعد بچنے والے مال کے ایک تہائی تک۔</translation>
    </message>
    <message>
        <source>No other heir is alive beside husband or wife. The commands show no figures.</source>
        <translation>شوہر یا بیوی کے سوا کوئی وارث نہیں۔ کمانڈیں کوئی رقم نہیں دکھاتیں۔</translation>
    </message>
    <message>
        <source>The fixed shares use up the estate exactly. The commands show no figures.</source>
        <translation>مقررہ حصے ترکے کے عین برابر ہیں۔ کمانڈیں کوئی رقم نہیں دکھاتیں۔</translation>
    </message>
    <message>
        <source>The estate is too large for the commands: they cannot round the spouse&apos;s amount and show no figures.</source>
        <translation>ترکہ کمانڈوں کے لیے بہت بڑا ہے: وہ شوہر یا بیوی کی رقم کو پورے عدد میں نہیں بدل سکتیں اور کوئی رقم نہیں دکھاتیں۔</translation>
    </message>
    <message>
        <source>The family is too large for the fractions of the commands: they show no final figures.</source>
        <translation>خاندان کمانڈوں کی کسور کے لیے بہت بڑا ہے: وہ آخری رقوم نہیں دکھاتیں۔</translation>
    </message>
    <message>
        <source>The commands give a consanguine brother beside daughters nothing, unless a consanguine sister is alive.</source>
        <translation>کمانڈیں بیٹیوں کے ساتھ علاتی بھائی کو کچھ نہیں دیتیں، سوائے اس کے کہ علاتی بہن زندہ ہو۔</translation>
    </message>
    <message>
        <source>The commands let son&apos;s daughters share with the son&apos;s son&apos;s son instead of taking their fixed share.</source>
        <translation>کمانڈیں پوتیوں کو مقررہ حصہ دینے کے بجائے پڑپوتے کے ساتھ شریک کرتی ہیں۔</translation>
    </message>
    <message>
        <source>The commands let son&apos;s daughters share with the son&apos;s son&apos;s son instead of taking their sixth. A son&apos;s son&apos;s daughter then takes nothing.</source>
        <translation>کمانڈیں پوتیوں کو چھٹا حصہ دینے کے بجائے پڑپوتے کے ساتھ شریک کرتی ہیں۔ پھر پڑپوتی کو کچھ نہیں ملتا۔</translation>
    </message>
    <message>
        <source>The commands leave the son&apos;s son&apos;s daughter out of the residue that she shares with her brother.</source>
        <translation>کمانڈیں پڑپوتی کو اس باقی مال سے خارج رکھتی ہیں جس میں وہ اپنے بھائی کے ساتھ شریک ہے۔</translation>
    </message>
    <message>
        <source>The commands give a son&apos;s son&apos;s daughter a sixth, though two daughters have taken the two thirds.</source>
        <translation>کمانڈیں پڑپوتی کو چھٹا حصہ دیتی ہیں حالانکہ دو بیٹیاں دو تہائی لے چکی ہیں۔</translation>
    </message>
    <message>
        <source>The commands give a consanguine sister beside her brother and one full sister a sixth, and then her part of the residue.</source>
        <translation>کمانڈیں علاتی بہن کو، جب اس کا بھائی اور ایک حقیقی بہن ساتھ ہوں، چھٹا حصہ دیتی ہیں اور پھر باقی مال میں سے اس کا حصہ بھی۔</translation>
    </message>
    <message>
        <source>Beside a grandfather the commands give the sixth of the great grandmothers to nobody, or also to the grandfather&apos;s mother.</source>
        <translation>دادا کے ساتھ کمانڈیں اوپر کی جدات (نانی کی ماں، دادی کی ماں اور دادا کی ماں) کا چھٹا حصہ کسی کو نہیں دیتیں، یا دادا کی ماں کو بھی دے دیتی ہیں۔</translation>
    </message>
    <message>
        <source>The text of Aul has no line for a grandfather.</source>
        <translation>عول کی عبارت میں دادا کی سطر نہیں۔</translation>
    </message>
    <message>
        <source>The commands follow Hanafi law, from which this school differs here.</source>
        <translation>کمانڈیں حنفی فقہ پر چلتی ہیں، جس سے یہ مسلک یہاں مختلف ہے۔</translation>
    </message>
</context>
<context>
    <name>DivisionTable</name>
    <message>
        <source>Difference</source>
        <translation>فرق</translation>
    </message>
    <message>
        <source>not alive in this case</source>
        <translation>اس صورت میں زندہ نہیں</translation>
    </message>
    <message>
        <source>has no line</source>
        <translation>کوئی سطر نہیں</translation>
    </message>
    <message>
        <source>Where they differ, and why</source>
        <translation>اختلاف کہاں ہے اور کیوں</translation>
    </message>
    <message>
        <source>all four alike</source>
        <translation>چاروں متفق</translation>
    </message>
</context>
<context>
    <name>DivisionWindow</name>
    <message>
        <source>Division</source>
        <translation>تقسیم</translation>
    </message>
    <message>
        <source>&amp;School</source>
        <translation>&amp;فقہی مسلک</translation>
    </message>
    <message>
        <source>&amp;Four schools</source>
        <translation>&amp;چاروں مسالک</translation>
    </message>
    <message>
        <source>The four schools side by side, and why they differ (Ctrl+4)</source>
        <translation>چاروں مسالک ایک ساتھ، اور ان کے اختلاف کی وجہ (Ctrl+4)</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;محفوظ رکھیں</translation>
    </message>
    <message>
        <source>Keep this division and compare the next ones with it (Ctrl+K)</source>
        <translation>یہ تقسیم رکھیں اور بعد کی تقسیموں کا اس سے موازنہ کریں (Ctrl+K)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نقل</translation>
    </message>
    <message>
        <source>Copy the table for a letter or a spreadsheet (Ctrl+Shift+C)</source>
        <translation>خط یا اسپریڈ شیٹ کے لیے جدول نقل کریں (Ctrl+Shift+C)</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;طباعت...</translation>
    </message>
    <message>
        <source>Pre&amp;view...</source>
        <translation>طباعت کا &amp;پیش منظر...</translation>
    </message>
    <message>
        <source>Save as P&amp;DF...</source>
        <translation>&amp;PDF میں محفوظ کریں...</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;زبان</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>ڈیسک ٹاپ کے مطابق</translation>
    </message>
    <message>
        <source>The &amp;heirs consent to more than a third</source>
        <translation>&amp;ورثاء ایک تہائی سے زیادہ پر راضی ہیں</translation>
    </message>
    <message>
        <source>Who receives what</source>
        <translation>کس کو کیا ملتا ہے</translation>
    </message>
    <message>
        <source>The estate as a bar</source>
        <translation>ترکہ پٹی کی صورت میں</translation>
    </message>
    <message>
        <source>Family tree</source>
        <translation>شجرۂ نسب</translation>
    </message>
    <message>
        <source>Division - %1</source>
        <translation>تقسیم - %1</translation>
    </message>
    <message>
        <source>The fields of Case Study are as they were.</source>
        <translation>Case Study کے خانے جوں کے توں ہیں۔</translation>
    </message>
    <message>
        <source>Back to the case (Esc)</source>
        <translation>اصل صورت پر واپس (Esc)</translation>
    </message>
    <message>
        <source>the fields of Case Study as they stand now</source>
        <translation>Case Study کے خانے جیسے اس وقت ہیں</translation>
    </message>
    <message>
        <source>a supposition, not the case of the fields</source>
        <translation>فرضی صورت، خانوں میں درج صورت نہیں</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>محفوظ</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>اصل</translation>
    </message>
    <message>
        <source>What if one of them had died before: %1</source>
        <translation>اگر ان میں سے کسی ایک کی وفات پہلے ہو چکی ہوتی: %1</translation>
    </message>
    <message>
        <source>What if all of them had died before: %1</source>
        <translation>اگر ان سب کی وفات پہلے ہو چکی ہوتی: %1</translation>
    </message>
    <message>
        <source>What if this heir had died before: %1</source>
        <translation>اگر اس وارث کی وفات پہلے ہو چکی ہوتی: %1</translation>
    </message>
    <message>
        <source>Go to the field of Case Study</source>
        <translation>Case Study کے خانے پر جائیں</translation>
    </message>
    <message>
        <source>Back to the case</source>
        <translation>اصل صورت پر واپس</translation>
    </message>
    <message>
        <source>Type what is true</source>
        <translation>اصل معلومات درج کریں</translation>
    </message>
    <message>
        <source>Copied. The table can be pasted into a letter or a spreadsheet.</source>
        <translation>نقل ہو گئی۔ جدول خط یا اسپریڈ شیٹ میں چسپاں کیا جا سکتا ہے۔</translation>
    </message>
    <message>
        <source>More commands</source>
        <translation>مزید کمانڈیں</translation>
    </message>
</context>
<context>
    <name>FamilyTreeView</name>
    <message>
        <source>Family tree</source>
        <translation>شجرۂ نسب</translation>
    </message>
    <message>
        <source>%1, and in the picture from the top: %2</source>
        <translation>%1، اور تصویر میں اوپر سے: %2</translation>
    </message>
</context>
<context>
    <name>Heirs</name>
    <message>
        <source>Wife</source>
        <translation>بیوی</translation>
    </message>
    <message>
        <source>Wives</source>
        <translation>بیویاں</translation>
    </message>
    <message>
        <source>Husband</source>
        <translation>شوہر</translation>
    </message>
    <message>
        <source>Son</source>
        <translation>بیٹا</translation>
    </message>
    <message>
        <source>Sons</source>
        <translation>بیٹے</translation>
    </message>
    <message>
        <source>Daughter</source>
        <translation>بیٹی</translation>
    </message>
    <message>
        <source>Daughters</source>
        <translation>بیٹیاں</translation>
    </message>
    <message>
        <source>Son&apos;s son</source>
        <translation>پوتا</translation>
    </message>
    <message>
        <source>Sons&apos; sons</source>
        <translation>پوتے</translation>
    </message>
    <message>
        <source>Son&apos;s daughter</source>
        <translation>پوتی</translation>
    </message>
    <message>
        <source>Sons&apos; daughters</source>
        <translation>پوتیاں</translation>
    </message>
    <message>
        <source>Son&apos;s son&apos;s son</source>
        <translation>پڑپوتا</translation>
    </message>
    <message>
        <source>Sons&apos; sons&apos; sons</source>
        <translation>پڑپوتے</translation>
    </message>
    <message>
        <source>Son&apos;s son&apos;s daughter</source>
        <translation>پڑپوتی</translation>
    </message>
    <message>
        <source>Sons&apos; sons&apos; daughters</source>
        <translation>پڑپوتیاں</translation>
    </message>
    <message>
        <source>Father</source>
        <translation>باپ</translation>
    </message>
    <message>
        <source>Grandfather</source>
        <translation>دادا</translation>
    </message>
    <message>
        <source>Great-grandfather</source>
        <translation>پردادا</translation>
    </message>
    <message>
        <source>Mother</source>
        <translation>ماں</translation>
    </message>
    <message>
        <source>Mother&apos;s mother</source>
        <translation>نانی</translation>
    </message>
    <message>
        <source>Mother&apos;s mother&apos;s mother</source>
        <translation>نانی کی ماں</translation>
    </message>
    <message>
        <source>Father&apos;s mother</source>
        <translation>دادی</translation>
    </message>
    <message>
        <source>Grandfather&apos;s mother</source>
        <translation>دادا کی ماں</translation>
    </message>
    <message>
        <source>Father&apos;s mother&apos;s mother</source>
        <translation>دادی کی ماں</translation>
    </message>
    <message>
        <source>Full brother</source>
        <translation>حقیقی بھائی</translation>
    </message>
    <message>
        <source>Full brothers</source>
        <translation>حقیقی بھائی</translation>
    </message>
    <message>
        <source>Full sister</source>
        <translation>حقیقی بہن</translation>
    </message>
    <message>
        <source>Full sisters</source>
        <translation>حقیقی بہنیں</translation>
    </message>
    <message>
        <source>Consanguine sister</source>
        <translation>علاتی بہن</translation>
    </message>
    <message>
        <source>Consanguine sisters</source>
        <translation>علاتی بہنیں</translation>
    </message>
    <message>
        <source>Consanguine brother</source>
        <translation>علاتی بھائی</translation>
    </message>
    <message>
        <source>Consanguine brothers</source>
        <translation>علاتی بھائی</translation>
    </message>
    <message>
        <source>Uterine sister</source>
        <translation>اخیافی بہن</translation>
    </message>
    <message>
        <source>Uterine sisters</source>
        <translation>اخیافی بہنیں</translation>
    </message>
    <message>
        <source>Uterine brother</source>
        <translation>اخیافی بھائی</translation>
    </message>
    <message>
        <source>Uterine brothers</source>
        <translation>اخیافی بھائی</translation>
    </message>
    <message>
        <source>Full brother&apos;s son</source>
        <translation>حقیقی بھائی کا بیٹا</translation>
    </message>
    <message>
        <source>Consanguine brother&apos;s son</source>
        <translation>علاتی بھائی کا بیٹا</translation>
    </message>
    <message>
        <source>Full brother&apos;s son&apos;s son</source>
        <translation>حقیقی بھائی کا پوتا</translation>
    </message>
    <message>
        <source>Consanguine brother&apos;s son&apos;s son</source>
        <translation>علاتی بھائی کا پوتا</translation>
    </message>
    <message>
        <source>Full uncle</source>
        <translation>حقیقی چچا</translation>
    </message>
    <message>
        <source>Consanguine uncle</source>
        <translation>علاتی چچا</translation>
    </message>
    <message>
        <source>Full uncle&apos;s son</source>
        <translation>حقیقی چچا کا بیٹا</translation>
    </message>
    <message>
        <source>Consanguine uncle&apos;s son</source>
        <translation>علاتی چچا کا بیٹا</translation>
    </message>
    <message>
        <source>Full uncle&apos;s son&apos;s son</source>
        <translation>حقیقی چچا کا پوتا</translation>
    </message>
    <message>
        <source>Consanguine uncle&apos;s son&apos;s son</source>
        <translation>علاتی چچا کا پوتا</translation>
    </message>
    <message>
        <source>Full uncle&apos;s son&apos;s son&apos;s son</source>
        <translation>حقیقی چچا کا پڑپوتا</translation>
    </message>
    <message>
        <source>Consanguine uncle&apos;s son&apos;s son&apos;s son</source>
        <translation>علاتی چچا کا پڑپوتا</translation>
    </message>
    <message>
        <source>Remainder</source>
        <translation>باقی</translation>
    </message>
</context>
<context>
    <name>HeirsInSentences</name>
    <message>
        <source>wife</source>
        <translation>بیوی</translation>
    </message>
    <message>
        <source>husband</source>
        <translation>شوہر</translation>
    </message>
    <message>
        <source>son</source>
        <translation>بیٹے</translation>
    </message>
    <message>
        <source>daughter</source>
        <translation>بیٹی</translation>
    </message>
    <message>
        <source>son&apos;s son</source>
        <translation>پوتے</translation>
    </message>
    <message>
        <source>son&apos;s daughter</source>
        <translation>پوتی</translation>
    </message>
    <message>
        <source>son&apos;s son&apos;s son</source>
        <translation>پڑپوتے</translation>
    </message>
    <message>
        <source>son&apos;s son&apos;s daughter</source>
        <translation>پڑپوتی</translation>
    </message>
    <message>
        <source>father</source>
        <translation>باپ</translation>
    </message>
    <message>
        <source>grandfather</source>
        <translation>دادا</translation>
    </message>
    <message>
        <source>great-grandfather</source>
        <translation>پردادا</translation>
    </message>
    <message>
        <source>mother</source>
        <translation>ماں</translation>
    </message>
    <message>
        <source>mother&apos;s mother</source>
        <translation>نانی</translation>
    </message>
    <message>
        <source>mother&apos;s mother&apos;s mother</source>
        <translation>نانی کی ماں</translation>
    </message>
    <message>
        <source>father&apos;s mother</source>
        <translation>دادی</translation>
    </message>
    <message>
        <source>grandfather&apos;s mother</source>
        <translation>دادا کی ماں</translation>
    </message>
    <message>
        <source>father&apos;s mother&apos;s mother</source>
        <translation>دادی کی ماں</translation>
    </message>
    <message>
        <source>full brother</source>
        <translation>حقیقی بھائی</translation>
    </message>
    <message>
        <source>full sister</source>
        <translation>حقیقی بہن</translation>
    </message>
    <message>
        <source>consanguine sister</source>
        <translation>علاتی بہن</translation>
    </message>
    <message>
        <source>consanguine brother</source>
        <translation>علاتی بھائی</translation>
    </message>
    <message>
        <source>uterine sister</source>
        <translation>اخیافی بہن</translation>
    </message>
    <message>
        <source>uterine brother</source>
        <translation>اخیافی بھائی</translation>
    </message>
    <message>
        <source>full brother&apos;s son</source>
        <translation>حقیقی بھائی کے بیٹے</translation>
    </message>
    <message>
        <source>consanguine brother&apos;s son</source>
        <translation>علاتی بھائی کے بیٹے</translation>
    </message>
    <message>
        <source>full brother&apos;s son&apos;s son</source>
        <translation>حقیقی بھائی کے پوتے</translation>
    </message>
    <message>
        <source>consanguine brother&apos;s son&apos;s son</source>
        <translation>علاتی بھائی کے پوتے</translation>
    </message>
    <message>
        <source>full uncle</source>
        <translation>حقیقی چچا</translation>
    </message>
    <message>
        <source>consanguine uncle</source>
        <translation>علاتی چچا</translation>
    </message>
    <message>
        <source>full uncle&apos;s son</source>
        <translation>حقیقی چچا کے بیٹے</translation>
    </message>
    <message>
        <source>consanguine uncle&apos;s son</source>
        <translation>علاتی چچا کے بیٹے</translation>
    </message>
    <message>
        <source>full uncle&apos;s son&apos;s son</source>
        <translation>حقیقی چچا کے پوتے</translation>
    </message>
    <message>
        <source>consanguine uncle&apos;s son&apos;s son</source>
        <translation>علاتی چچا کے پوتے</translation>
    </message>
    <message>
        <source>full uncle&apos;s son&apos;s son&apos;s son</source>
        <translation>حقیقی چچا کے پڑپوتے</translation>
    </message>
    <message>
        <source>consanguine uncle&apos;s son&apos;s son&apos;s son</source>
        <translation>علاتی چچا کے پڑپوتے</translation>
    </message>
    <message>
        <source>remainder</source>
        <translation>باقی</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>User&apos;s &amp;guide</source>
        <translation>رہنمائے &amp;استعمال</translation>
    </message>
    <message>
        <source>Where Qismora &amp;differs</source>
        <translation>Qismora کہاں &amp;مختلف ہے</translation>
    </message>
    <message>
        <source>The division and its &amp;law</source>
        <translation>تقسیم اور اس کی &amp;فقہ</translation>
    </message>
    <message>
        <source>All &amp;keys</source>
        <translation>تمام &amp;کنجیاں</translation>
    </message>
    <message>
        <source>Help - Qismora</source>
        <translation>مدد - Qismora</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مدد</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>صفحہ</translation>
    </message>
    <message>
        <source>Headings of the page</source>
        <translation>صفحے کی سرخیاں</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>فہرست</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>پیچھے</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>آگے</translation>
    </message>
    <message>
        <source>Find (Ctrl+F)</source>
        <translation>تلاش (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>تلاش</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>اگلا</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>پچھلا</translation>
    </message>
    <message>
        <source>%1 is not installed.</source>
        <translation>%1 نصب نہیں ہے۔</translation>
    </message>
    <message>
        <source>Continued from the other end of the page.</source>
        <translation>صفحے کے دوسرے سرے سے جاری۔</translation>
    </message>
    <message>
        <source>Found on another page.</source>
        <translation>دوسرے صفحے پر ملا۔</translation>
    </message>
    <message>
        <source>No page contains &quot;%1&quot;.</source>
        <translation>کسی صفحے میں &quot;%1&quot; نہیں ملا۔</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>مدد</translation>
    </message>
</context>
<context>
    <name>Paper</name>
    <message>
        <source>Division</source>
        <translation>تقسیمِ ترکہ</translation>
    </message>
    <message>
        <source>Division - %1</source>
        <comment>name of a file</comment>
        <translation>تقسیمِ ترکہ - %1</translation>
    </message>
    <message>
        <source>a man</source>
        <translation>مرد</translation>
    </message>
    <message>
        <source>a woman</source>
        <translation>عورت</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a name, a man or a woman</comment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>تاریخ</translation>
    </message>
    <message>
        <source>School</source>
        <translation>فقہی مسلک</translation>
    </message>
    <message>
        <source>Alive, and receive nothing</source>
        <translation>زندہ ہیں مگر حصہ نہیں پاتے</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>نام</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>دستخط</translation>
    </message>
    <message>
        <source>The family</source>
        <translation>خاندان</translation>
    </message>
    <message>
        <source>Division of an estate</source>
        <translation>ترکے کی تقسیم</translation>
    </message>
    <message>
        <source>Computed by %1 from the figures above. This paper is no judgment of a court and no fatwa: ask a scholar before the estate is divided.</source>
        <translation>اوپر کے اعداد سے %1 کے مطابق حساب کیا گیا۔ یہ کاغذ نہ عدالت کا فیصلہ ہے نہ فتویٰ: ترکہ تقسیم کرنے سے پہلے کسی عالم سے پوچھیے۔</translation>
    </message>
    <message>
        <source>%1 is not saved: %2.</source>
        <translation>%1 محفوظ نہیں ہوئی: %2۔</translation>
    </message>
    <message>
        <source>Printing is not installed with this program. A PDF file can be saved and printed elsewhere.</source>
        <translation>اس پروگرام کے ساتھ طباعت کی سہولت نصب نہیں۔ PDF فائل محفوظ کر کے کہیں اور چھاپی جا سکتی ہے۔</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>PDF میں محفوظ کریں</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF فائلیں (*.pdf)</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>محفوظ ہوئی: %1</translation>
    </message>
    <message>
        <source>Supposition</source>
        <translation>فرضی صورت</translation>
    </message>
    <message>
        <source>Supposition - %1</source>
        <comment>name of a file</comment>
        <translation>فرضی صورت - %1</translation>
    </message>
    <message>
        <source>This page is a supposition and not the division of the estate. It is not signed.</source>
        <translation>یہ صفحہ ایک فرضی صورت ہے، ترکے کی اصل تقسیم نہیں۔ اس پر دستخط نہیں کیے جاتے۔</translation>
    </message>
    <message>
        <source>%1 - %2 - Qismora - page %3 of %4</source>
        <comment>the deceased, the date</comment>
        <translation>%1 - %2 - Qismora - صفحہ %3 از %4</translation>
    </message>
    <message>
        <source>Another report of the program, the full report file of Case Study, gives other amounts for this family. They are not part of this page. The reason:</source>
        <translation>پروگرام کی ایک اور رپورٹ، یعنی Case Study کی مکمل رپورٹ فائل، اس خاندان کے لیے مختلف رقوم دیتی ہے۔ وہ اس صفحے کا حصہ نہیں۔ وجہ:</translation>
    </message>
    <message>
        <source>Another report of the program, the full report file of Case Study, gives no amounts for this family. It is not part of this page. The reason:</source>
        <translation>پروگرام کی ایک اور رپورٹ، یعنی Case Study کی مکمل رپورٹ فائل، اس خاندان کے لیے کوئی رقم نہیں دیتی۔ وہ اس صفحے کا حصہ نہیں۔ وجہ:</translation>
    </message>
    <message>
        <source>This page divides by classical %1.</source>
        <comment>law of a school</comment>
        <translation>اس صفحے پر تقسیم %1 کی معروف کتابوں کے مطابق کی گئی ہے۔</translation>
    </message>
    <message>
        <source>Amounts that cannot be divided evenly differ by one hundredth. The heirs agree who takes it.</source>
        <translation>جو رقوم برابر تقسیم نہیں ہو سکتیں ان میں اکائی کے سوویں حصے کا فرق رہتا ہے۔ ورثاء باہم طے کریں کہ یہ کون لے۔</translation>
    </message>
    <message>
        <source>Funeral expenses and debts are paid before the heirs (%1). Nobody receives anything from this estate, and no heir owes what it lacks.</source>
        <translation>تجہیز و تکفین اور قرض وارثوں کے حصوں سے پہلے ادا ہوتے ہیں (%1)۔ اس ترکے سے کسی کو کچھ نہیں ملتا، اور جو کمی ہے وہ کسی وارث کے ذمے نہیں۔</translation>
    </message>
    <message>
        <source>Alive: %1.</source>
        <comment>a list of heirs</comment>
        <translation>زندہ وارث: %1۔</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>one of several heirs: daughter 2</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>names and signatures on a list, attached to this paper</source>
        <translation>نام اور دستخط اس کاغذ سے منسلک فہرست میں</translation>
    </message>
    <message>
        <source>Prepared by</source>
        <translation>مرتب کنندہ</translation>
    </message>
    <message>
        <source>Witness %1</source>
        <translation>گواہ %1</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>{share} because there are {descendants}</source>
        <translation>{share} کیونکہ {descendants} موجود ہے</translation>
    </message>
    <message>
        <source>{share} because there are no descendants</source>
        <translation>{share} کیونکہ اولاد موجود نہیں</translation>
    </message>
    <message>
        <source>{share}, one without a son</source>
        <translation>{share}، ایک ہے اور بیٹا نہیں</translation>
    </message>
    <message>
        <source>{share}, two or more without a son</source>
        <translation>{share}، دو یا زیادہ ہیں اور بیٹا نہیں</translation>
    </message>
    <message>
        <source>{share}, one in {a heir}&apos;s place</source>
        <translation>{share}، ایک ہے، {a heir} کی جگہ</translation>
    </message>
    <message>
        <source>{share}, two or more in {a heir}&apos;s place</source>
        <translation>{share}، دو یا زیادہ ہیں، {a heir} کی جگہ</translation>
    </message>
    <message>
        <source>{share} completes two thirds beside one {heir}</source>
        <translation>{share}، ایک {heir} کے ساتھ دو تہائی کی تکمیل کے لیے</translation>
    </message>
    <message>
        <source>{share} in the father&apos;s place</source>
        <translation>{share}، باپ کی جگہ</translation>
    </message>
    <message>
        <source>{share} because there are two or more siblings</source>
        <translation>{share} کیونکہ دو یا زیادہ بھائی بہن ہیں</translation>
    </message>
    <message>
        <source>{share}, neither descendants nor two siblings</source>
        <translation>{share}، نہ اولاد ہے نہ دو بھائی بہن</translation>
    </message>
    <message>
        <source>{share}, al-Umariyyatan: a third of what {a heir} leaves</source>
        <translation>{share}، عمریتان: {a heir} کے حصے کے بعد باقی کا ایک تہائی</translation>
    </message>
    <message>
        <source>{share} as grandmother</source>
        <translation>{share} بطور جدہ</translation>
    </message>
    <message>
        <source>{share} together with the other grandmothers</source>
        <translation>{share}، دوسری جدات کے ساتھ مشترک</translation>
    </message>
    <message>
        <source>{share}, one without a brother</source>
        <translation>{share}، ایک ہے اور بھائی نہیں</translation>
    </message>
    <message>
        <source>{share}, two or more without a brother</source>
        <translation>{share}، دو یا زیادہ ہیں اور بھائی نہیں</translation>
    </message>
    <message>
        <source>{share}, one uterine sibling alone</source>
        <translation>{share}، اکیلا اخیافی بھائی یا بہن</translation>
    </message>
    <message>
        <source>{share} together, men and women alike</source>
        <translation>{share} مشترک، مرد اور عورت برابر</translation>
    </message>
    <message>
        <source>{share}, al-Mushtaraka: full and uterine siblings alike</source>
        <translation>{share}، مسئلۂ مشترکہ: حقیقی اور اخیافی برابر</translation>
    </message>
    <message>
        <source>takes {left}, nearest male</source>
        <translation>عصبہ، قریب ترین مرد: {left}</translation>
    </message>
    <message>
        <source>takes {left}, two parts to {a heir}&apos;s one</source>
        <translation>عصبہ: {left}، {a heir} کے ایک حصے کے مقابل دو حصے</translation>
    </message>
    <message>
        <source>takes {left}, one part to {a heir}&apos;s two</source>
        <translation>عصبہ بالغیر: {left}، {a heir} کے دو حصوں کے مقابل ایک حصہ</translation>
    </message>
    <message>
        <source>takes {left} beside {a heir}</source>
        <translation>عصبہ مع الغیر، {a heir} کے ساتھ: {left}</translation>
    </message>
    <message>
        <source>al-Akdariyya: his 1/6 and her 1/2 joined, two parts to one</source>
        <translation>مسئلۂ اکدریہ: دادا کا 1/6 اور بہن کا 1/2 ملا کر، دادا کے دو حصے اور بہن کا ایک</translation>
    </message>
    <message>
        <source>al-Malikiyya: takes {left}, siblings would have nothing</source>
        <translation>مسئلۂ مالکیہ: {left}، کیونکہ دادا نہ ہوتا تب بھی ان بھائی بہنوں کو کچھ نہ ملتا</translation>
    </message>
    <message>
        <source>{share}, his least beside siblings</source>
        <translation>{share}، بھائی بہنوں کے ساتھ دادا کا کم سے کم حصہ</translation>
    </message>
    <message>
        <source>shares as a brother with the siblings</source>
        <translation>بھائی بہنوں کے ساتھ بھائی کی طرح مقاسمہ</translation>
    </message>
    <message>
        <source>{share} of the whole, more than a brother&apos;s part</source>
        <translation>کل مال کا {share}، بھائی کے حصے سے زیادہ</translation>
    </message>
    <message>
        <source>1/3 of the remainder, more than a brother&apos;s part</source>
        <translation>باقی کا 1/3، بھائی کے حصے سے زیادہ</translation>
    </message>
    <message>
        <source>takes what the grandfather leaves</source>
        <translation>دادا کے بعد جو بچے</translation>
    </message>
    <message>
        <source>takes what the grandfather leaves, up to {share} of the whole</source>
        <translation>دادا کے بعد بچنے والے مال سے، کل مال کے {share} تک</translation>
    </message>
    <message>
        <source>mu&apos;adda: takes what the full sisters leave</source>
        <translation>معادہ: حقیقی بہنوں کے بعد جو بچے</translation>
    </message>
    <message>
        <source>excluded by {a heir}</source>
        <translation>{a heir} کی وجہ سے محجوب</translation>
    </message>
    <message>
        <source>two thirds are taken</source>
        <translation>دو تہائی پورے ہو چکے</translation>
    </message>
    <message>
        <source>not an heir in this school</source>
        <translation>اس مسلک میں وارث نہیں</translation>
    </message>
    <message>
        <source>nothing is left</source>
        <translation>کچھ باقی نہیں</translation>
    </message>
    <message>
        <source>to distant kindred; if there is none, later Hanafi jurists return it to the spouse</source>
        <translation>ذوی الارحام کو؛ وہ نہ ہوں تو متاخرینِ احناف کے نزدیک شوہر یا بیوی پر رد</translation>
    </message>
    <message>
        <source>to distant kindred; if there is none, to the treasury</source>
        <translation>ذوی الارحام کو؛ وہ نہ ہوں تو بیت المال کو</translation>
    </message>
</context>
<context>
    <name>Sources</name>
    <message>
        <source>Quran 4:11</source>
        <translation>النساء: 11</translation>
    </message>
    <message>
        <source>Quran 4:12</source>
        <translation>النساء: 12</translation>
    </message>
    <message>
        <source>Quran 4:176</source>
        <translation>النساء: 176</translation>
    </message>
    <message>
        <source>Quran 8:75</source>
        <translation>الانفال: 75</translation>
    </message>
    <message>
        <source>report of Ibn Abbas</source>
        <translation>حدیثِ ابن عباسؓ</translation>
    </message>
    <message>
        <source>report of Ibn Masud</source>
        <translation>حدیثِ ابن مسعودؓ</translation>
    </message>
    <message>
        <source>reports of al-Mughira and Ubada</source>
        <translation>احادیثِ مغیرہؓ و عبادہؓ</translation>
    </message>
    <message>
        <source>report of Ali</source>
        <translation>حدیثِ علیؓ</translation>
    </message>
    <message>
        <source>ruling of Abu Bakr</source>
        <translation>فیصلۂ ابوبکرؓ</translation>
    </message>
    <message>
        <source>ruling of Umar</source>
        <translation>فیصلۂ عمرؓ</translation>
    </message>
    <message>
        <source>ruling of Zayd</source>
        <translation>قولِ زیدؓ</translation>
    </message>
    <message>
        <source>ruling of Malik</source>
        <translation>قولِ امام مالکؒ</translation>
    </message>
    <message>
        <source>Companions</source>
        <translation>آثارِ صحابہؓ</translation>
    </message>
    <message>
        <source>consensus</source>
        <translation>اجماع</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1 %2</source>
        <comment>heads of an heir: 2 daughters</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>the %1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>a %1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>the whole</source>
        <translation>کل مال</translation>
    </message>
    <message>
        <source>what is left</source>
        <translation>باقی مال</translation>
    </message>
    <message>
        <source>children</source>
        <translation>اولاد</translation>
    </message>
    <message>
        <source>children of sons</source>
        <translation>بیٹوں کی اولاد</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a reason and its source</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1, and what is left beyond it</source>
        <translation>%1، اور اس کے بعد جو بچے</translation>
    </message>
    <message>
        <source>%1; nothing is left beyond it</source>
        <translation>%1؛ اس کے بعد کچھ نہیں بچتا</translation>
    </message>
    <message>
        <source>%1; after Awl %2</source>
        <translation>%1؛ عول کے بعد %2</translation>
    </message>
    <message>
        <source>%1; after Radd %2</source>
        <translation>%1؛ رد کے بعد %2</translation>
    </message>
    <message>
        <source>Gross estate</source>
        <translation>کل ترکہ</translation>
    </message>
    <message>
        <source>Funeral expenses</source>
        <translation>تجہیز و تکفین</translation>
    </message>
    <message>
        <source>Debts</source>
        <translation>قرض</translation>
    </message>
    <message>
        <source>Bequests</source>
        <translation>وصیت</translation>
    </message>
    <message>
        <source>The fixed shares exceed the estate: Awl raises the base from %1 to %2.</source>
        <translation>مقررہ حصے ترکے سے بڑھ گئے: عول سے اصلِ مسئلہ %1 سے %2 ہوا۔</translation>
    </message>
    <message>
        <source>The fixed shares leave something and there is no residuary: Radd returns it to the sharers other than the spouse.</source>
        <translation>مقررہ حصوں کے بعد کچھ بچا اور کوئی عصبہ نہیں: رد کے ذریعے وہ شوہر یا بیوی کے سوا باقی ذوی الفروض کو لوٹایا گیا۔</translation>
    </message>
    <message>
        <source>Beside the spouse there is no other heir: %1 is left over.</source>
        <translation>شوہر یا بیوی کے سوا کوئی وارث نہیں: %1 باقی رہا۔</translation>
    </message>
    <message>
        <source>The fixed shares fit the estate exactly.</source>
        <translation>مقررہ حصے ترکے کے عین برابر ہیں۔</translation>
    </message>
    <message>
        <source>The residuaries take what the fixed shares leave.</source>
        <translation>مقررہ حصوں کے بعد جو بچے وہ عصبہ لیتے ہیں۔</translation>
    </message>
    <message>
        <source>%1 − %2 %3</source>
        <comment>an estate, what is paid from it, the amount</comment>
        <translation>%1 − %2 %3</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <comment>amounts</comment>
        <translation>%1 یا %2</translation>
    </message>
    <message>
        <source>sharer</source>
        <translation>صاحبِ فرض</translation>
    </message>
    <message>
        <source>residuary</source>
        <translation>عصبہ</translation>
    </message>
    <message>
        <source>sharer and residuary</source>
        <translation>صاحبِ فرض اور عصبہ</translation>
    </message>
    <message>
        <source>excluded</source>
        <translation>محجوب</translation>
    </message>
    <message>
        <source>two thirds are taken</source>
        <translation>دو تہائی پورے ہو چکے</translation>
    </message>
    <message>
        <source>not an heir in this school</source>
        <translation>اس مسلک میں وارث نہیں</translation>
    </message>
    <message>
        <source>nothing is left</source>
        <translation>کچھ باقی نہیں</translation>
    </message>
    <message>
        <source>Hanafi</source>
        <translation>حنفی</translation>
    </message>
    <message>
        <source>Maliki</source>
        <translation>مالکی</translation>
    </message>
    <message>
        <source>Shafi&apos;i</source>
        <translation>شافعی</translation>
    </message>
    <message>
        <source>Hanbali</source>
        <translation>حنبلی</translation>
    </message>
    <message>
        <source>%1 law</source>
        <comment>of a school</comment>
        <translation>فقہ %1</translation>
    </message>
    <message>
        <source>yields to %1</source>
        <translation>%1 کی وجہ سے محجوب</translation>
    </message>
    <message>
        <source>Nothing is divided while a field cannot be read.</source>
        <translation>جب تک کوئی خانہ پڑھا نہ جا سکے، کچھ تقسیم نہیں ہوتا۔</translation>
    </message>
    <message>
        <source>Nothing is left to divide: funeral expenses and debts exceed the estate by %1.</source>
        <translation>تقسیم کے لیے کچھ نہیں بچا: تجہیز و تکفین اور قرض ترکے سے %1 زیادہ ہیں۔</translation>
    </message>
    <message>
        <source>%1 is left, and no heir is alive who takes it.</source>
        <translation>%1 باقی ہے اور اسے لینے والا کوئی وارث زندہ نہیں۔</translation>
    </message>
    <message>
        <source>%1 goes to one heir.</source>
        <translation>%1 ایک وارث کو ملتا ہے۔</translation>
    </message>
    <message>
        <source>%1 is left. One heir takes a share. %2</source>
        <translation>%1 باقی ہے۔ ایک وارث حصہ لیتا ہے۔ %2</translation>
    </message>
    <message>
        <source>%1 is divided among %2 heirs. %3</source>
        <translation>%1 کی تقسیم %2 وارثوں میں ہوتی ہے۔ %3</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a whole number</source>
        <translation>%1: &quot;%2&quot; پورا عدد نہیں</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is more than %3</source>
        <translation>%1: &quot;%2&quot; حد سے زیادہ ہے، زیادہ سے زیادہ %3</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not an amount</source>
        <translation>%1: &quot;%2&quot; رقم نہیں</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; has more than two decimals</source>
        <translation>%1: &quot;%2&quot; میں دو سے زیادہ اعشاری ہندسے ہیں</translation>
    </message>
    <message>
        <source>Base %1, corrected base %2</source>
        <translation>اصلِ مسئلہ %1، تصحیح %2</translation>
    </message>
    <message>
        <source>Base %1, raised to %2, corrected base %3</source>
        <translation>اصلِ مسئلہ %1، عول ہو کر %2، تصحیح %3</translation>
    </message>
    <message>
        <source>less %1</source>
        <translation>منہا: %1</translation>
    </message>
    <message>
        <source>funeral expenses</source>
        <translation>تجہیز و تکفین</translation>
    </message>
    <message>
        <source>debts</source>
        <translation>قرض</translation>
    </message>
    <message>
        <source>bequests</source>
        <translation>وصیت</translation>
    </message>
    <message>
        <source>Net estate</source>
        <translation>خالص ترکہ</translation>
    </message>
    <message>
        <source>Gross estate %1</source>
        <translation>کل ترکہ %1</translation>
    </message>
    <message>
        <source>Bequests of %1 are limited to %2, all that funeral expenses and debts leave.</source>
        <translation>%1 کی وصیت %2 تک محدود ہے، یعنی تجہیز و تکفین اور قرض کے بعد جو کچھ بچا۔</translation>
    </message>
    <message>
        <source>Bequests of %1 are limited to %2, a third of what funeral expenses and debts leave. More needs the consent of the heirs.</source>
        <translation>%1 کی وصیت %2 تک محدود ہے، یعنی تجہیز و تکفین اور قرض کے بعد بچنے والے مال کا ایک تہائی۔ اس سے زیادہ کے لیے ورثاء کی اجازت چاہیے۔</translation>
    </message>
    <message>
        <source>Still the example with which Case Study opens: %1.</source>
        <translation>ابھی وہی مثال ہے جس کے ساتھ Case Study کھلتی ہے: %1۔</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the items of a list</comment>
        <translation>، </translation>
    </message>
    <message>
        <source>Heir</source>
        <translation>وارث</translation>
    </message>
    <message>
        <source>Heads</source>
        <translation>تعداد</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>حصہ</translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>parts of a base</comment>
        <translation>%1 میں سے</translation>
    </message>
    <message>
        <source>Together</source>
        <translation>کل رقم</translation>
    </message>
    <message>
        <source>Each</source>
        <translation>فی کس</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>وجہ</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>دلیل</translation>
    </message>
    <message>
        <source>Case Study</source>
        <translation>Case Study</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>میزان</translation>
    </message>
    <message>
        <source>The commands of Case Study answer otherwise.</source>
        <translation>Case Study کی کمانڈوں کا جواب مختلف ہے۔</translation>
    </message>
    <message>
        <source>Where Qismora differs</source>
        <translation>Qismora کہاں مختلف ہے</translation>
    </message>
    <message>
        <source>the %1 %2</source>
        <comment>all heads of an heir: the 3 daughters</comment>
        <translation>تمام %1 %2</translation>
    </message>
    <message>
        <source>%1 of %2 %3</source>
        <comment>some heads of an heir: 2 of 3 daughters</comment>
        <translation>%3 (%2 میں سے %1)</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>the items of a list, the last item</comment>
        <translation>%1 اور %2</translation>
    </message>
    <message>
        <source>Supposition: as if %1 had died before the deceased.</source>
        <translation>فرضی صورت: گویا ان کی وفات میت سے پہلے ہو چکی ہو: %1۔</translation>
    </message>
    <message>
        <source>%1; one of them %2</source>
        <comment>amounts</comment>
        <translation>%1؛ ان میں سے ایک کو %2</translation>
    </message>
    <message>
        <source>%1; %2 of them %3</source>
        <comment>an amount, heads, their amount</comment>
        <translation>%1؛ ان میں سے %2 کو %3</translation>
    </message>
    <message>
        <source>The deceased</source>
        <comment>a woman</comment>
        <translation>متوفیہ</translation>
    </message>
    <message>
        <source>The deceased</source>
        <comment>a man</comment>
        <translation>متوفی</translation>
    </message>
    <message>
        <source>Name of the deceased</source>
        <translation>میت کا نام</translation>
    </message>
    <message>
        <source>Type who survives and what is left.</source>
        <translation>درج کریں کہ کون کون زندہ ہے اور ترکہ کتنا ہے۔</translation>
    </message>
    <message>
        <source>%1: the field is empty</source>
        <translation>%1: خانہ خالی ہے</translation>
    </message>
    <message>
        <source>The heirs consent to bequests of more than a third.</source>
        <translation>ورثاء ایک تہائی سے زیادہ کی وصیت پر راضی ہیں۔</translation>
    </message>
    <message>
        <source>Shortfall</source>
        <translation>کمی</translation>
    </message>
    <message>
        <source>Bequests of %1 lapse: funeral expenses and debts leave nothing for them.</source>
        <translation>%1 کی وصیت ساقط ہو جاتی ہے: تجہیز و تکفین اور قرض کے بعد اس کے لیے کچھ نہیں بچتا۔</translation>
    </message>
</context>
</TS>
