<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Case</name>
    <message>
        <source>State of the answer</source>
        <translation>حالة الجواب</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;جديد</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;فتح...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;حفظ</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>حفظ &amp;باسم...</translation>
    </message>
    <message>
        <source>No case was saved or opened yet</source>
        <translation>لم تُحفظ ولم تُفتح أي مسألة بعد</translation>
    </message>
    <message>
        <source>&amp;Case</source>
        <translation>المسألة</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>&amp;الأخيرة</translation>
    </message>
    <message>
        <source>&amp;Division</source>
        <translation>القسمة</translation>
    </message>
    <message>
        <source>Who receives what: F8</source>
        <translation>ما يأخذه كل وارث: F8</translation>
    </message>
    <message>
        <source>Who receives what: opens the division</source>
        <translation>ما يأخذه كل وارث: يفتح القسمة</translation>
    </message>
    <message>
        <source>The final division in one table, with its reasons (F8)</source>
        <translation>القسمة النهائية في جدول واحد مع أسبابها (F8)</translation>
    </message>
    <message>
        <source>Qismora cases (*.qismora)</source>
        <translation>مسائل Qismora (*.qismora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>كل الملفات (*)</translation>
    </message>
    <message>
        <source>Open case</source>
        <translation>فتح مسألة</translation>
    </message>
    <message>
        <source>Save case</source>
        <translation>حفظ المسألة</translation>
    </message>
    <message>
        <source>The text is not UTF-8.</source>
        <translation>النص ليس بترميز UTF-8.</translation>
    </message>
    <message>
        <source>There is a control character in the line.</source>
        <translation>في السطر محرف تحكم.</translation>
    </message>
    <message>
        <source>There is no equals sign in &quot;{text}&quot;.</source>
        <translation>لا توجد علامة مساواة في &quot;{text}&quot;.</translation>
    </message>
    <message>
        <source>&quot;{text}&quot; is not a caption of the Case Study screen.</source>
        <translation>&quot;{text}&quot; ليس عنوان حقل في شاشة Case Study.</translation>
    </message>
    <message>
        <source>&quot;{text}&quot; is given twice.</source>
        <translation>&quot;{text}&quot; مذكور مرتين.</translation>
    </message>
    <message>
        <source>&quot;{text}&quot; is not quoted correctly.</source>
        <translation>علامتا الاقتباس في &quot;{text}&quot; غير صحيحتين.</translation>
    </message>
    <message>
        <source>&quot;{text}&quot; is not a version of case files.</source>
        <translation>&quot;{text}&quot; ليس إصدارًا لملفات المسائل.</translation>
    </message>
    <message>
        <source>The line is too long.</source>
        <translation>السطر طويل جدًّا.</translation>
    </message>
    <message>
        <source>The file is too large for a case.</source>
        <translation>الملف أكبر من أن يكون مسألة.</translation>
    </message>
    <message>
        <source>&quot;{text}&quot; takes the word ticked, or 0.</source>
        <translation>&quot;{text}&quot; يُكتب له ticked أو 0.</translation>
    </message>
    <message>
        <source>&quot;{text}&quot; takes yes or no.</source>
        <translation>&quot;{text}&quot; يُكتب له yes أو no.</translation>
    </message>
    <message>
        <source>Both Wives and Husband are given.</source>
        <translation>ذُكر Wives و Husband معًا.</translation>
    </message>
    <message>
        <source>Wives are given, but the deceased is female.</source>
        <translation>ذُكر Wives لكن الميت امرأة.</translation>
    </message>
    <message>
        <source>A husband is given, but the deceased is male.</source>
        <translation>ذُكر Husband لكن الميت رجل.</translation>
    </message>
    <message>
        <source>the folder does not exist</source>
        <translation>المجلد غير موجود</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>ليست لديك صلاحية</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>الاسم مستعمل</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>القرص للقراءة فقط</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>القرص ممتلئ</translation>
    </message>
    <message>
        <source>your share of the disk is full</source>
        <translation>حصتك من القرص ممتلئة</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>الملف كبير جدًّا</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>الاسم طويل جدًّا</translation>
    </message>
    <message>
        <source>the name is not possible on this disk</source>
        <translation>هذا الاسم غير ممكن على هذا القرص</translation>
    </message>
    <message>
        <source>a folder has this name</source>
        <translation>هذا اسم مجلد</translation>
    </message>
    <message>
        <source>the name is a link</source>
        <translation>الاسم رابط</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>القرص يبلّغ عن خطأ</translation>
    </message>
    <message>
        <source>the name belongs to a pipe or a device</source>
        <translation>الاسم لأنبوب أو لجهاز</translation>
    </message>
    <message>
        <source>The case could not be worked out.</source>
        <translation>تعذّر حل المسألة.</translation>
    </message>
    <message>
        <source>Aul/ Radd worked on figures that it had adjusted already. Choose Residuaries again.</source>
        <translation>عمل Aul/ Radd في أرقام عدّلها من قبل. اختر Residuaries مرة أخرى.</translation>
    </message>
    <message>
        <source>Aul/ Radd was applied to other shares. Choose Residuaries first.</source>
        <translation>طُبّق Aul/ Radd على أنصبة أخرى. اختر Residuaries أولًا.</translation>
    </message>
    <message>
        <source>No answer yet.</source>
        <translation>لا جواب بعد.</translation>
    </message>
    <message>
        <source>Answer of {command}: not the whole distribution, which Residuaries (F5) gives.</source>
        <translation>جواب {command}: ليس القسمة كلها، ويعطيها Residuaries (F5).</translation>
    </message>
    <message>
        <source>Answer of {command}, not final: Radd is still to be applied (Aul/ Radd, F6).</source>
        <translation>جواب {command}، ليس نهائيًّا: بقي الرد (Aul/ Radd، F6).</translation>
    </message>
    <message>
        <source>Answer of {command}, not final: Aul is still to be applied (Aul/ Radd, F6).</source>
        <translation>جواب {command}، ليس نهائيًّا: بقي العول (Aul/ Radd، F6).</translation>
    </message>
    <message>
        <source>Answer of {command}: final.</source>
        <translation>جواب {command}: نهائي.</translation>
    </message>
    <message>
        <source>Answer of {command}: the net estate is below 0, nothing is left to divide.</source>
        <translation>جواب {command}: صافي التركة أقل من 0 فلم يبق ما يُقسم.</translation>
    </message>
    <message>
        <source>Refused; fields have changed since. Choose Residuaries (F5).</source>
        <translation>مرفوض؛ وقد تغيّرت الحقول بعد ذلك. اختر Residuaries (F5).</translation>
    </message>
    <message>
        <source>Refused: these figures are not your case. {reason}</source>
        <translation>مرفوض: هذه الأرقام ليست أرقام مسألتك. {reason}</translation>
    </message>
    <message>
        <source>Fields have changed since the answer of {command}.</source>
        <translation>تغيّرت الحقول بعد جواب {command}.</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>الملف غير موجود</translation>
    </message>
    <message>
        <source>Line {line}: {text}</source>
        <translation>السطر {line}: {text}</translation>
    </message>
    <message>
        <source>and {number} more</source>
        <translation>و{number} غيرها</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>غير محفوظة</translation>
    </message>
    <message>
        <source>{file}, changed</source>
        <translation>{file}، معدَّلة</translation>
    </message>
    <message>
        <source>{file} could not be saved.</source>
        <translation>تعذّر حفظ {file}.</translation>
    </message>
    <message>
        <source>This case has not been saved.</source>
        <translation>لم تُحفظ هذه المسألة.</translation>
    </message>
    <message>
        <source>{file} has changed since it was saved.</source>
        <translation>تغيّر {file} منذ حفظه.</translation>
    </message>
    <message>
        <source>Save it before it is closed?</source>
        <translation>أتريد الحفظ قبل الإغلاق؟</translation>
    </message>
    <message>
        <source>The command was not finished.</source>
        <translation>لم يكتمل الأمر.</translation>
    </message>
    <message>
        <source>{field} {text} is too large and will be refused</source>
        <translation>{field} {text} كبير جدًّا وسيُرفض</translation>
    </message>
    <message>
        <source>{field} {text} is read as {number}</source>
        <translation>{field} {text} يُقرأ {number}</translation>
    </message>
    <message>
        <source>{field} without a text is not read: {number} stays</source>
        <translation>{field} فارغ فلا يُقرأ: يبقى {number}</translation>
    </message>
    <message>
        <source>{field} without a text is not read: the figure of the run before stays</source>
        <translation>{field} فارغ فلا يُقرأ: يبقى رقم المرة السابقة</translation>
    </message>
    <message>
        <source>{field} {text} is not read: {number} stays</source>
        <translation>{field} {text} لا يُقرأ: يبقى {number}</translation>
    </message>
    <message>
        <source>{field} {text} is not read: the figure of the run before stays</source>
        <translation>{field} {text} لا يُقرأ: يبقى رقم المرة السابقة</translation>
    </message>
    <message>
        <source>A newer version of Qismora has written this file. These lines are not known here and were not read:</source>
        <translation>كُتب هذا الملف بإصدار أحدث من Qismora. هذه الأسطر غير معروفة هنا ولم تُقرأ:</translation>
    </message>
    <message>
        <source>Save asks for a name, so that the file keeps them.</source>
        <translation>سيُسأل عن اسم عند الحفظ، ليبقى الملف محتفظًا بها.</translation>
    </message>
    <message>
        <source>{file} was not opened.</source>
        <translation>لم يُفتح {file}.</translation>
    </message>
    <message>
        <source>The division differs: F8.</source>
        <translation>القسمة تختلف عنه: F8.</translation>
    </message>
    <message>
        <source>%1, and %2 more</source>
        <translation>%1، و%2 غيره</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>عدم الحفظ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;نعم</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;لا</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;فتح</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;حفظ</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>البحث في:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>ا&amp;سم الملف:</translation>
    </message>
    <message>
        <source>&amp;File name:</source>
        <translation>ا&amp;سم الملف:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>نوع الملفات:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>حفظ باسم</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>تاريخ التعديل</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>الحاسوب</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;طباعة</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>طباعة</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>معاينة الطباعة</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 موجود من قبل.
أتريد استبداله؟</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>الطابعة</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>الا&amp;سم:</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>&amp;خصائص</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>الموقع:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>النوع:</translation>
    </message>
    <message>
        <source>Output &amp;file:</source>
        <translation>&amp;مسار الملف:</translation>
    </message>
    <message>
        <source>&amp;Options &gt;&gt;</source>
        <translation>&amp;خيارات &gt;&gt;</translation>
    </message>
    <message>
        <source>&amp;Options &lt;&lt;</source>
        <translation>&amp;خيارات &lt;&lt;</translation>
    </message>
    <message>
        <source>Print to File (PDF)</source>
        <translation>الطباعة إلى ملف (PDF)</translation>
    </message>
    <message>
        <source>Local file</source>
        <translation>ملف محلي</translation>
    </message>
    <message>
        <source>Write PDF file</source>
        <translation>كتابة ملف PDF</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>ملاءمة العرض</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>ملاءمة الصفحة</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>عمودي</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>أفقي</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>الصفحة الأولى</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>الصفحة السابقة</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>الصفحة التالية</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>الصفحة الأخيرة</translation>
    </message>
    <message>
        <source>Show single page</source>
        <translation>عرض صفحة واحدة</translation>
    </message>
    <message>
        <source>Show facing pages</source>
        <translation>عرض صفحتين متقابلتين</translation>
    </message>
    <message>
        <source>Show overview of all pages</source>
        <translation>عرض كل الصفحات معًا</translation>
    </message>
    <message>
        <source>Page setup</source>
        <translation>إعداد الصفحة</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>نسخ &amp;عنوان الرابط</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
</context>
<context>
    <name>Differences</name>
    <message>
        <source>The commands read an amount only up to its first comma.</source>
        <translation>الأوامر تقرأ المبلغ إلى أول فاصلة فيه فقط.</translation>
    </message>
    <message>
        <source>The commands round funeral expenses, debts and wills to whole numbers.</source>
        <translation>الأوامر تقرّب نفقات التجهيز والديون والوصايا إلى أعداد صحيحة.</translation>
    </message>
    <message>
        <source>The commands refuse funeral expenses, debts and wills above 2,147,483,647.</source>
        <translation>الأوامر ترفض ما زاد على 2٬147٬483٬647 من نفقات التجهيز والديون والوصايا.</translation>
    </message>
    <message>
        <source>Funeral expenses and debts exceed the estate. The commands refuse it, or divide a negative estate.</source>
        <translation>نفقات التجهيز والديون تزيد على التركة. الأوامر ترفضها أو تقسم تركة سالبة.</translation>
    </message>
    <message>
        <source>The commands limit the wills to a third of the gross estate, as a whole number, and not to a third of what funeral expenses and debts leave.</source>
        <translation>الأوامر تحدّ الوصايا بثلث التركة كلها، عددًا صحيحًا، لا بثلث ما يبقى بعد نفقات التجهيز والديون.</translation>
    </message>
    <message>
        <source>No other heir is alive beside husband or wife. The commands show no figures.</source>
        <translation>لا وارث مع أحد الزوجين. الأوامر لا تعرض أي مبالغ.</translation>
    </message>
    <message>
        <source>The fixed shares use up the estate exactly. The commands show no figures.</source>
        <translation>الفروض تستغرق التركة تمامًا. الأوامر لا تعرض أي مبالغ.</translation>
    </message>
    <message>
        <source>The estate is too large for the commands: they cannot round the spouse&apos;s amount and show no figures.</source>
        <translation>التركة أكبر مما تحتمله الأوامر: لا تستطيع تقريب مبلغ أحد الزوجين ولا تعرض أي مبالغ.</translation>
    </message>
    <message>
        <source>The family is too large for the fractions of the commands: they show no final figures.</source>
        <translation>الأسرة أكبر مما تحتمله كسور الأوامر: لا تعرض مبالغ نهائية.</translation>
    </message>
    <message>
        <source>The commands give a consanguine brother beside daughters nothing, unless a consanguine sister is alive.</source>
        <translation>الأوامر لا تعطي الأخ لأب مع البنات شيئًا ما لم تكن معه أخت لأب.</translation>
    </message>
    <message>
        <source>The commands let son&apos;s daughters share with the son&apos;s son&apos;s son instead of taking their fixed share.</source>
        <translation>الأوامر تُشرك بنات الابن مع ابن ابن الابن بدل أن يأخذن فرضهن.</translation>
    </message>
    <message>
        <source>The commands let son&apos;s daughters share with the son&apos;s son&apos;s son instead of taking their sixth. A son&apos;s son&apos;s daughter then takes nothing.</source>
        <translation>الأوامر تُشرك بنات الابن مع ابن ابن الابن بدل أن يأخذن السدس. فلا تأخذ بنت ابن الابن شيئًا.</translation>
    </message>
    <message>
        <source>The commands leave the son&apos;s son&apos;s daughter out of the residue that she shares with her brother.</source>
        <translation>الأوامر تُخرج بنت ابن الابن من الباقي الذي تشارك فيه أخاها.</translation>
    </message>
    <message>
        <source>The commands give a son&apos;s son&apos;s daughter a sixth, though two daughters have taken the two thirds.</source>
        <translation>الأوامر تعطي بنت ابن الابن السدس مع أن البنتين استكملتا الثلثين.</translation>
    </message>
    <message>
        <source>The commands give a consanguine sister beside her brother and one full sister a sixth, and then her part of the residue.</source>
        <translation>الأوامر تعطي الأخت لأب مع أخيها وأخت شقيقة واحدة السدس، ثم نصيبها من الباقي.</translation>
    </message>
    <message>
        <source>Beside a grandfather the commands give the sixth of the great grandmothers to nobody, or also to the grandfather&apos;s mother.</source>
        <translation>مع الجد لا تعطي الأوامر سدس الجدات البعيدات لأحد، أو تعطيه لأم الجد أيضًا.</translation>
    </message>
    <message>
        <source>The text of Aul has no line for a grandfather.</source>
        <translation>ليس في نص العول سطر للجد.</translation>
    </message>
    <message>
        <source>The commands follow Hanafi law, from which this school differs here.</source>
        <translation>الأوامر تتبع المذهب الحنفي، وهذا المذهب يخالفه هنا.</translation>
    </message>
</context>
<context>
    <name>DivisionTable</name>
    <message>
        <source>Difference</source>
        <translation>الفرق</translation>
    </message>
    <message>
        <source>not alive in this case</source>
        <translation>من غير الأحياء في هذه المسألة</translation>
    </message>
    <message>
        <source>has no line</source>
        <translation>بلا سطر</translation>
    </message>
    <message>
        <source>Where they differ, and why</source>
        <translation>موضع الخلاف وسببه</translation>
    </message>
    <message>
        <source>all four alike</source>
        <translation>الأربعة متفقة</translation>
    </message>
</context>
<context>
    <name>DivisionWindow</name>
    <message>
        <source>Division</source>
        <translation>القسمة</translation>
    </message>
    <message>
        <source>&amp;School</source>
        <translation>ال&amp;مذهب</translation>
    </message>
    <message>
        <source>&amp;Four schools</source>
        <translation>المذاهب الأر&amp;بعة</translation>
    </message>
    <message>
        <source>The four schools side by side, and why they differ (Ctrl+4)</source>
        <translation>المذاهب الأربعة جنبًا إلى جنب وسبب اختلافها (Ctrl+4)</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>ا&amp;حتفاظ</translation>
    </message>
    <message>
        <source>Keep this division and compare the next ones with it (Ctrl+K)</source>
        <translation>الاحتفاظ بهذه القسمة ومقارنة ما بعدها بها (Ctrl+K)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
    <message>
        <source>Copy the table for a letter or a spreadsheet (Ctrl+Shift+C)</source>
        <translation>نسخ الجدول لرسالة أو جدول بيانات (Ctrl+Shift+C)</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;طباعة...</translation>
    </message>
    <message>
        <source>Pre&amp;view...</source>
        <translation>&amp;معاينة الطباعة...</translation>
    </message>
    <message>
        <source>Save as P&amp;DF...</source>
        <translation>حفظ بصيغة &amp;PDF...</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>ال&amp;لغة</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>كلغة سطح المكتب</translation>
    </message>
    <message>
        <source>The &amp;heirs consent to more than a third</source>
        <translation>أجاز ال&amp;ورثة ما زاد على الثلث</translation>
    </message>
    <message>
        <source>Who receives what</source>
        <translation>ما يأخذه كل وارث</translation>
    </message>
    <message>
        <source>The estate as a bar</source>
        <translation>التركة في شريط</translation>
    </message>
    <message>
        <source>Family tree</source>
        <translation>شجرة العائلة</translation>
    </message>
    <message>
        <source>Division - %1</source>
        <translation>القسمة - %1</translation>
    </message>
    <message>
        <source>The fields of Case Study are as they were.</source>
        <translation>حقول Case Study كما كانت.</translation>
    </message>
    <message>
        <source>Back to the case (Esc)</source>
        <translation>العودة إلى المسألة (Esc)</translation>
    </message>
    <message>
        <source>the fields of Case Study as they stand now</source>
        <translation>حقول Case Study كما هي الآن</translation>
    </message>
    <message>
        <source>a supposition, not the case of the fields</source>
        <translation>افتراض وليس المسألة المُدخلة</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>المحفوظ</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>الأصل</translation>
    </message>
    <message>
        <source>What if one of them had died before: %1</source>
        <translation>افتراض وفاة أحد هؤلاء قبل المورِّث: %1</translation>
    </message>
    <message>
        <source>What if all of them had died before: %1</source>
        <translation>افتراض وفاة هؤلاء جميعًا قبل المورِّث: %1</translation>
    </message>
    <message>
        <source>What if this heir had died before: %1</source>
        <translation>افتراض وفاة هذا الوارث قبل المورِّث: %1</translation>
    </message>
    <message>
        <source>Go to the field of Case Study</source>
        <translation>الانتقال إلى حقل Case Study</translation>
    </message>
    <message>
        <source>Back to the case</source>
        <translation>العودة إلى المسألة</translation>
    </message>
    <message>
        <source>Type what is true</source>
        <translation>أدخل القيم الصحيحة</translation>
    </message>
    <message>
        <source>Copied. The table can be pasted into a letter or a spreadsheet.</source>
        <translation>نُسخ الجدول، ويمكن لصقه في رسالة أو في جدول بيانات.</translation>
    </message>
    <message>
        <source>More commands</source>
        <translation>أوامر أخرى</translation>
    </message>
</context>
<context>
    <name>FamilyTreeView</name>
    <message>
        <source>Family tree</source>
        <translation>شجرة العائلة</translation>
    </message>
    <message>
        <source>%1, and in the picture from the top: %2</source>
        <translation>%1، وفي الصورة من الأعلى: %2</translation>
    </message>
</context>
<context>
    <name>Heirs</name>
    <message>
        <source>Wife</source>
        <translation>الزوجة</translation>
    </message>
    <message>
        <source>Wives</source>
        <translation>الزوجات</translation>
    </message>
    <message>
        <source>Husband</source>
        <translation>الزوج</translation>
    </message>
    <message>
        <source>Son</source>
        <translation>الابن</translation>
    </message>
    <message>
        <source>Sons</source>
        <translation>الأبناء</translation>
    </message>
    <message>
        <source>Daughter</source>
        <translation>البنت</translation>
    </message>
    <message>
        <source>Daughters</source>
        <translation>البنات</translation>
    </message>
    <message>
        <source>Son&apos;s son</source>
        <translation>ابن الابن</translation>
    </message>
    <message>
        <source>Sons&apos; sons</source>
        <translation>أبناء الابن</translation>
    </message>
    <message>
        <source>Son&apos;s daughter</source>
        <translation>بنت الابن</translation>
    </message>
    <message>
        <source>Sons&apos; daughters</source>
        <translation>بنات الابن</translation>
    </message>
    <message>
        <source>Son&apos;s son&apos;s son</source>
        <translation>ابن ابن الابن</translation>
    </message>
    <message>
        <source>Sons&apos; sons&apos; sons</source>
        <translation>أبناء ابن الابن</translation>
    </message>
    <message>
        <source>Son&apos;s son&apos;s daughter</source>
        <translation>بنت ابن الابن</translation>
    </message>
    <message>
        <source>Sons&apos; sons&apos; daughters</source>
        <translation>بنات ابن الابن</translation>
    </message>
    <message>
        <source>Father</source>
        <translation>الأب</translation>
    </message>
    <message>
        <source>Grandfather</source>
        <translation>الجد أبو الأب</translation>
    </message>
    <message>
        <source>Great-grandfather</source>
        <translation>أبو أبي الأب</translation>
    </message>
    <message>
        <source>Mother</source>
        <translation>الأم</translation>
    </message>
    <message>
        <source>Mother&apos;s mother</source>
        <translation>أم الأم</translation>
    </message>
    <message>
        <source>Mother&apos;s mother&apos;s mother</source>
        <translation>أم أم الأم</translation>
    </message>
    <message>
        <source>Father&apos;s mother</source>
        <translation>أم الأب</translation>
    </message>
    <message>
        <source>Grandfather&apos;s mother</source>
        <translation>أم أبي الأب</translation>
    </message>
    <message>
        <source>Father&apos;s mother&apos;s mother</source>
        <translation>أم أم الأب</translation>
    </message>
    <message>
        <source>Full brother</source>
        <translation>الأخ الشقيق</translation>
    </message>
    <message>
        <source>Full brothers</source>
        <translation>الإخوة الأشقاء</translation>
    </message>
    <message>
        <source>Full sister</source>
        <translation>الأخت الشقيقة</translation>
    </message>
    <message>
        <source>Full sisters</source>
        <translation>الأخوات الشقيقات</translation>
    </message>
    <message>
        <source>Consanguine sister</source>
        <translation>الأخت لأب</translation>
    </message>
    <message>
        <source>Consanguine sisters</source>
        <translation>الأخوات لأب</translation>
    </message>
    <message>
        <source>Consanguine brother</source>
        <translation>الأخ لأب</translation>
    </message>
    <message>
        <source>Consanguine brothers</source>
        <translation>الإخوة لأب</translation>
    </message>
    <message>
        <source>Uterine sister</source>
        <translation>الأخت لأم</translation>
    </message>
    <message>
        <source>Uterine sisters</source>
        <translation>الأخوات لأم</translation>
    </message>
    <message>
        <source>Uterine brother</source>
        <translation>الأخ لأم</translation>
    </message>
    <message>
        <source>Uterine brothers</source>
        <translation>الإخوة لأم</translation>
    </message>
    <message>
        <source>Full brother&apos;s son</source>
        <translation>ابن الأخ الشقيق</translation>
    </message>
    <message>
        <source>Consanguine brother&apos;s son</source>
        <translation>ابن الأخ لأب</translation>
    </message>
    <message>
        <source>Full brother&apos;s son&apos;s son</source>
        <translation>ابن ابن الأخ الشقيق</translation>
    </message>
    <message>
        <source>Consanguine brother&apos;s son&apos;s son</source>
        <translation>ابن ابن الأخ لأب</translation>
    </message>
    <message>
        <source>Full uncle</source>
        <translation>العم الشقيق</translation>
    </message>
    <message>
        <source>Consanguine uncle</source>
        <translation>العم لأب</translation>
    </message>
    <message>
        <source>Full uncle&apos;s son</source>
        <translation>ابن العم الشقيق</translation>
    </message>
    <message>
        <source>Consanguine uncle&apos;s son</source>
        <translation>ابن العم لأب</translation>
    </message>
    <message>
        <source>Full uncle&apos;s son&apos;s son</source>
        <translation>ابن ابن العم الشقيق</translation>
    </message>
    <message>
        <source>Consanguine uncle&apos;s son&apos;s son</source>
        <translation>ابن ابن العم لأب</translation>
    </message>
    <message>
        <source>Full uncle&apos;s son&apos;s son&apos;s son</source>
        <translation>ابن ابن ابن العم الشقيق</translation>
    </message>
    <message>
        <source>Consanguine uncle&apos;s son&apos;s son&apos;s son</source>
        <translation>ابن ابن ابن العم لأب</translation>
    </message>
    <message>
        <source>Remainder</source>
        <translation>الباقي</translation>
    </message>
</context>
<context>
    <name>HeirsInSentences</name>
    <message>
        <source>wife</source>
        <translation>الزوجة</translation>
    </message>
    <message>
        <source>husband</source>
        <translation>الزوج</translation>
    </message>
    <message>
        <source>son</source>
        <translation>الابن</translation>
    </message>
    <message>
        <source>daughter</source>
        <translation>البنت</translation>
    </message>
    <message>
        <source>son&apos;s son</source>
        <translation>ابن الابن</translation>
    </message>
    <message>
        <source>son&apos;s daughter</source>
        <translation>بنت الابن</translation>
    </message>
    <message>
        <source>son&apos;s son&apos;s son</source>
        <translation>ابن ابن الابن</translation>
    </message>
    <message>
        <source>son&apos;s son&apos;s daughter</source>
        <translation>بنت ابن الابن</translation>
    </message>
    <message>
        <source>father</source>
        <translation>الأب</translation>
    </message>
    <message>
        <source>grandfather</source>
        <translation>الجد أبي الأب</translation>
    </message>
    <message>
        <source>great-grandfather</source>
        <translation>أبي أبي الأب</translation>
    </message>
    <message>
        <source>mother</source>
        <translation>الأم</translation>
    </message>
    <message>
        <source>mother&apos;s mother</source>
        <translation>أم الأم</translation>
    </message>
    <message>
        <source>mother&apos;s mother&apos;s mother</source>
        <translation>أم أم الأم</translation>
    </message>
    <message>
        <source>father&apos;s mother</source>
        <translation>أم الأب</translation>
    </message>
    <message>
        <source>grandfather&apos;s mother</source>
        <translation>أم أبي الأب</translation>
    </message>
    <message>
        <source>father&apos;s mother&apos;s mother</source>
        <translation>أم أم الأب</translation>
    </message>
    <message>
        <source>full brother</source>
        <translation>الأخ الشقيق</translation>
    </message>
    <message>
        <source>full sister</source>
        <translation>الأخت الشقيقة</translation>
    </message>
    <message>
        <source>consanguine sister</source>
        <translation>الأخت لأب</translation>
    </message>
    <message>
        <source>consanguine brother</source>
        <translation>الأخ لأب</translation>
    </message>
    <message>
        <source>uterine sister</source>
        <translation>الأخت لأم</translation>
    </message>
    <message>
        <source>uterine brother</source>
        <translation>الأخ لأم</translation>
    </message>
    <message>
        <source>full brother&apos;s son</source>
        <translation>ابن الأخ الشقيق</translation>
    </message>
    <message>
        <source>consanguine brother&apos;s son</source>
        <translation>ابن الأخ لأب</translation>
    </message>
    <message>
        <source>full brother&apos;s son&apos;s son</source>
        <translation>ابن ابن الأخ الشقيق</translation>
    </message>
    <message>
        <source>consanguine brother&apos;s son&apos;s son</source>
        <translation>ابن ابن الأخ لأب</translation>
    </message>
    <message>
        <source>full uncle</source>
        <translation>العم الشقيق</translation>
    </message>
    <message>
        <source>consanguine uncle</source>
        <translation>العم لأب</translation>
    </message>
    <message>
        <source>full uncle&apos;s son</source>
        <translation>ابن العم الشقيق</translation>
    </message>
    <message>
        <source>consanguine uncle&apos;s son</source>
        <translation>ابن العم لأب</translation>
    </message>
    <message>
        <source>full uncle&apos;s son&apos;s son</source>
        <translation>ابن ابن العم الشقيق</translation>
    </message>
    <message>
        <source>consanguine uncle&apos;s son&apos;s son</source>
        <translation>ابن ابن العم لأب</translation>
    </message>
    <message>
        <source>full uncle&apos;s son&apos;s son&apos;s son</source>
        <translation>ابن ابن ابن العم الشقيق</translation>
    </message>
    <message>
        <source>consanguine uncle&apos;s son&apos;s son&apos;s son</source>
        <translation>ابن ابن ابن العم لأب</translation>
    </message>
    <message>
        <source>remainder</source>
        <translation>الباقي</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>User&apos;s &amp;guide</source>
        <translation>&amp;دليل المستخدم</translation>
    </message>
    <message>
        <source>Where Qismora &amp;differs</source>
        <translation>أين &amp;يختلف Qismora</translation>
    </message>
    <message>
        <source>The division and its &amp;law</source>
        <translation>القسمة و&amp;فقهها</translation>
    </message>
    <message>
        <source>All &amp;keys</source>
        <translation>كل &amp;المفاتيح</translation>
    </message>
    <message>
        <source>Help - Qismora</source>
        <translation>مساعدة - Qismora</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>الصفحة</translation>
    </message>
    <message>
        <source>Headings of the page</source>
        <translation>عناوين الصفحة</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>المحتويات</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>تقدم</translation>
    </message>
    <message>
        <source>Find (Ctrl+F)</source>
        <translation>بحث (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>السابق</translation>
    </message>
    <message>
        <source>%1 is not installed.</source>
        <translation>%1 غير مثبّت.</translation>
    </message>
    <message>
        <source>Continued from the other end of the page.</source>
        <translation>استُؤنف من الطرف الآخر للصفحة.</translation>
    </message>
    <message>
        <source>Found on another page.</source>
        <translation>وُجد في صفحة أخرى.</translation>
    </message>
    <message>
        <source>No page contains &quot;%1&quot;.</source>
        <translation>لا تحتوي أي صفحة على &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>مساعدة</translation>
    </message>
</context>
<context>
    <name>Paper</name>
    <message>
        <source>Division</source>
        <translation>قسمة التركة</translation>
    </message>
    <message>
        <source>Division - %1</source>
        <comment>name of a file</comment>
        <translation>قسمة تركة - %1</translation>
    </message>
    <message>
        <source>a man</source>
        <translation>رجل</translation>
    </message>
    <message>
        <source>a woman</source>
        <translation>امرأة</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a name, a man or a woman</comment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>School</source>
        <translation>المذهب</translation>
    </message>
    <message>
        <source>Alive, and receive nothing</source>
        <translation>أحياء لا يأخذون شيئًا</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>التوقيع</translation>
    </message>
    <message>
        <source>The family</source>
        <translation>الأسرة</translation>
    </message>
    <message>
        <source>Division of an estate</source>
        <translation>قسمة تركة</translation>
    </message>
    <message>
        <source>Computed by %1 from the figures above. This paper is no judgment of a court and no fatwa: ask a scholar before the estate is divided.</source>
        <translation>حُسبت وفق %1 من الأرقام أعلاه. وليست هذه الورقة حكم محكمة ولا فتوى، فاسأل عالمًا قبل قسمة التركة.</translation>
    </message>
    <message>
        <source>%1 is not saved: %2.</source>
        <translation>لم يُحفظ %1: %2.</translation>
    </message>
    <message>
        <source>Printing is not installed with this program. A PDF file can be saved and printed elsewhere.</source>
        <translation>دعم الطباعة غير مثبّت مع هذا البرنامج. يمكن حفظ ملف PDF وطباعته في مكان آخر.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>حفظ بصيغة PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>ملفات PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>حُفظ: %1</translation>
    </message>
    <message>
        <source>Supposition</source>
        <translation>افتراض</translation>
    </message>
    <message>
        <source>Supposition - %1</source>
        <comment>name of a file</comment>
        <translation>افتراض - %1</translation>
    </message>
    <message>
        <source>This page is a supposition and not the division of the estate. It is not signed.</source>
        <translation>هذه الصفحة افتراض وليست قسمة التركة، فلا تُوقَّع.</translation>
    </message>
    <message>
        <source>%1 - %2 - Qismora - page %3 of %4</source>
        <comment>the deceased, the date</comment>
        <translation>%1 - %2 - Qismora - صفحة %3 من %4</translation>
    </message>
    <message>
        <source>Another report of the program, the full report file of Case Study, gives other amounts for this family. They are not part of this page. The reason:</source>
        <translation>للبرنامج تقرير آخر، وهو ملف التقرير الكامل لشاشة Case Study، يعطي لهذه الأسرة مبالغ أخرى. وليست جزءًا من هذه الصفحة. والسبب:</translation>
    </message>
    <message>
        <source>Another report of the program, the full report file of Case Study, gives no amounts for this family. It is not part of this page. The reason:</source>
        <translation>للبرنامج تقرير آخر، وهو ملف التقرير الكامل لشاشة Case Study، لا يعطي لهذه الأسرة أي مبالغ. وليس جزءًا من هذه الصفحة. والسبب:</translation>
    </message>
    <message>
        <source>This page divides by classical %1.</source>
        <comment>law of a school</comment>
        <translation>القسمة في هذه الصفحة على ما في كتب الفقه وفق %1.</translation>
    </message>
    <message>
        <source>Amounts that cannot be divided evenly differ by one hundredth. The heirs agree who takes it.</source>
        <translation>المبالغ التي لا تنقسم بالتساوي تختلف بجزء من مئة من وحدة النقد. ويتفق الورثة على من يأخذه.</translation>
    </message>
    <message>
        <source>Funeral expenses and debts are paid before the heirs (%1). Nobody receives anything from this estate, and no heir owes what it lacks.</source>
        <translation>تُقدَّم نفقات التجهيز والديون على حقوق الورثة (%1). فلا يأخذ أحد من هذه التركة شيئًا، ولا يلزم أحدًا من الورثة ما نقص منها.</translation>
    </message>
    <message>
        <source>Alive: %1.</source>
        <comment>a list of heirs</comment>
        <translation>الأحياء: %1.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>one of several heirs: daughter 2</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>names and signatures on a list, attached to this paper</source>
        <translation>الأسماء والتوقيعات في كشف مرفق بهذه الورقة</translation>
    </message>
    <message>
        <source>Prepared by</source>
        <translation>مُعِدّ الورقة</translation>
    </message>
    <message>
        <source>Witness %1</source>
        <translation>الشاهد %1</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>{share} because there are {descendants}</source>
        <translation>{share} لوجود {descendants}</translation>
    </message>
    <message>
        <source>{share} because there are no descendants</source>
        <translation>{share} لعدم الفرع الوارث</translation>
    </message>
    <message>
        <source>{share}, one without a son</source>
        <translation>{share} للواحدة عند عدم الابن</translation>
    </message>
    <message>
        <source>{share}, two or more without a son</source>
        <translation>{share} للاثنتين فأكثر عند عدم الابن</translation>
    </message>
    <message>
        <source>{share}, one in {a heir}&apos;s place</source>
        <translation>{share} للواحدة بمنزلة {a heir}</translation>
    </message>
    <message>
        <source>{share}, two or more in {a heir}&apos;s place</source>
        <translation>{share} للاثنتين فأكثر بمنزلة {a heir}</translation>
    </message>
    <message>
        <source>{share} completes two thirds beside one {heir}</source>
        <translation>{share} تكملة للثلثين مع {heir} الواحدة</translation>
    </message>
    <message>
        <source>{share} in the father&apos;s place</source>
        <translation>{share} بمنزلة الأب</translation>
    </message>
    <message>
        <source>{share} because there are two or more siblings</source>
        <translation>{share} لوجود اثنين فأكثر من الإخوة أو الأخوات</translation>
    </message>
    <message>
        <source>{share}, neither descendants nor two siblings</source>
        <translation>{share} لعدم الفرع الوارث وعدم العدد من الإخوة أو الأخوات</translation>
    </message>
    <message>
        <source>{share}, al-Umariyyatan: a third of what {a heir} leaves</source>
        <translation>{share}، العمريتان: ثلث الباقي بعد نصيب {a heir}</translation>
    </message>
    <message>
        <source>{share} as grandmother</source>
        <translation>{share} فرض الجدة</translation>
    </message>
    <message>
        <source>{share} together with the other grandmothers</source>
        <translation>{share} مشتركًا بين الجدات</translation>
    </message>
    <message>
        <source>{share}, one without a brother</source>
        <translation>{share} للواحدة عند عدم الأخ</translation>
    </message>
    <message>
        <source>{share}, two or more without a brother</source>
        <translation>{share} للاثنتين فأكثر عند عدم الأخ</translation>
    </message>
    <message>
        <source>{share}, one uterine sibling alone</source>
        <translation>{share} للمنفرد من الإخوة لأم</translation>
    </message>
    <message>
        <source>{share} together, men and women alike</source>
        <translation>{share} مشتركًا، الذكر والأنثى سواء</translation>
    </message>
    <message>
        <source>{share}, al-Mushtaraka: full and uterine siblings alike</source>
        <translation>{share}، المشتركة: الأشقاء والإخوة لأم سواء</translation>
    </message>
    <message>
        <source>takes {left}, nearest male</source>
        <translation>{left} تعصيبًا لأقرب ذكر</translation>
    </message>
    <message>
        <source>takes {left}, two parts to {a heir}&apos;s one</source>
        <translation>{left} تعصيبًا بالاشتراك مع {a heir}، للذكر مثل حظ الأنثيين</translation>
    </message>
    <message>
        <source>takes {left}, one part to {a heir}&apos;s two</source>
        <translation>{left} تعصيبًا بالغير مع {a heir}، للذكر مثل حظ الأنثيين</translation>
    </message>
    <message>
        <source>takes {left} beside {a heir}</source>
        <translation>{left} تعصيبًا مع الغير لوجود {a heir}</translation>
    </message>
    <message>
        <source>al-Akdariyya: his 1/6 and her 1/2 joined, two parts to one</source>
        <translation>الأكدرية: يُجمع سدس الجد ونصف الأخت، ثم يُقسم المجموع بينهما للذكر مثل حظ الأنثيين</translation>
    </message>
    <message>
        <source>al-Malikiyya: takes {left}, siblings would have nothing</source>
        <translation>المالكية: {left}، إذ لا شيء للإخوة ولو لم يكن الجد</translation>
    </message>
    <message>
        <source>{share}, his least beside siblings</source>
        <translation>{share}، أقل ما للجد مع الإخوة</translation>
    </message>
    <message>
        <source>shares as a brother with the siblings</source>
        <translation>يقاسم الإخوة كأخ منهم</translation>
    </message>
    <message>
        <source>{share} of the whole, more than a brother&apos;s part</source>
        <translation>{share} من جميع المال، خير له من المقاسمة</translation>
    </message>
    <message>
        <source>1/3 of the remainder, more than a brother&apos;s part</source>
        <translation>1/3 من الباقي، خير له من المقاسمة</translation>
    </message>
    <message>
        <source>takes what the grandfather leaves</source>
        <translation>ما يبقى بعد الجد</translation>
    </message>
    <message>
        <source>takes what the grandfather leaves, up to {share} of the whole</source>
        <translation>مما يبقى بعد الجد، إلى تمام {share} من جميع المال</translation>
    </message>
    <message>
        <source>mu&apos;adda: takes what the full sisters leave</source>
        <translation>المعادّة: ما يبقى بعد الشقيقات</translation>
    </message>
    <message>
        <source>excluded by {a heir}</source>
        <translation>حجب ب{a heir}</translation>
    </message>
    <message>
        <source>two thirds are taken</source>
        <translation>استُكمل الثلثان</translation>
    </message>
    <message>
        <source>not an heir in this school</source>
        <translation>غير وارثة في هذا المذهب</translation>
    </message>
    <message>
        <source>nothing is left</source>
        <translation>لم يبق شيء</translation>
    </message>
    <message>
        <source>to distant kindred; if there is none, later Hanafi jurists return it to the spouse</source>
        <translation>لذوي الأرحام، فإن لم يوجدوا ردّه متأخرو الحنفية على أحد الزوجين</translation>
    </message>
    <message>
        <source>to distant kindred; if there is none, to the treasury</source>
        <translation>لذوي الأرحام، فإن لم يوجدوا فلبيت المال</translation>
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
        <translation>الأنفال: 75</translation>
    </message>
    <message>
        <source>report of Ibn Abbas</source>
        <translation>حديث ابن عباس</translation>
    </message>
    <message>
        <source>report of Ibn Masud</source>
        <translation>حديث ابن مسعود</translation>
    </message>
    <message>
        <source>reports of al-Mughira and Ubada</source>
        <translation>حديثا المغيرة وعبادة</translation>
    </message>
    <message>
        <source>report of Ali</source>
        <translation>حديث علي</translation>
    </message>
    <message>
        <source>ruling of Abu Bakr</source>
        <translation>قضاء أبي بكر</translation>
    </message>
    <message>
        <source>ruling of Umar</source>
        <translation>قضاء عمر</translation>
    </message>
    <message>
        <source>ruling of Zayd</source>
        <translation>قول زيد</translation>
    </message>
    <message>
        <source>ruling of Malik</source>
        <translation>قول مالك</translation>
    </message>
    <message>
        <source>Companions</source>
        <translation>آثار الصحابة</translation>
    </message>
    <message>
        <source>consensus</source>
        <translation>الإجماع</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1 %2</source>
        <comment>heads of an heir: 2 daughters</comment>
        <translation>%2 (%1)</translation>
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
        <translation>المال كله</translation>
    </message>
    <message>
        <source>what is left</source>
        <translation>الباقي</translation>
    </message>
    <message>
        <source>children</source>
        <translation>الفرع الوارث</translation>
    </message>
    <message>
        <source>children of sons</source>
        <translation>الفرع الوارث من أولاد الابن</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a reason and its source</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1, and what is left beyond it</source>
        <translation>%1، وما يبقى بعده</translation>
    </message>
    <message>
        <source>%1; nothing is left beyond it</source>
        <translation>%1؛ ولا يبقى بعده شيء</translation>
    </message>
    <message>
        <source>%1; after Awl %2</source>
        <translation>%1؛ وبعد العول %2</translation>
    </message>
    <message>
        <source>%1; after Radd %2</source>
        <translation>%1؛ وبعد الرد %2</translation>
    </message>
    <message>
        <source>Gross estate</source>
        <translation>إجمالي التركة</translation>
    </message>
    <message>
        <source>Funeral expenses</source>
        <translation>نفقات التجهيز</translation>
    </message>
    <message>
        <source>Debts</source>
        <translation>الديون</translation>
    </message>
    <message>
        <source>Bequests</source>
        <translation>الوصايا</translation>
    </message>
    <message>
        <source>The fixed shares exceed the estate: Awl raises the base from %1 to %2.</source>
        <translation>زادت الفروض على التركة، فعالت المسألة من %1 إلى %2.</translation>
    </message>
    <message>
        <source>The fixed shares leave something and there is no residuary: Radd returns it to the sharers other than the spouse.</source>
        <translation>بقي شيء بعد الفروض ولا عاصب، فيُرد على أصحاب الفروض غير الزوجين.</translation>
    </message>
    <message>
        <source>Beside the spouse there is no other heir: %1 is left over.</source>
        <translation>لا وارث مع أحد الزوجين، فيبقى %1.</translation>
    </message>
    <message>
        <source>The fixed shares fit the estate exactly.</source>
        <translation>الفروض تساوي التركة تمامًا.</translation>
    </message>
    <message>
        <source>The residuaries take what the fixed shares leave.</source>
        <translation>يأخذ العصبة ما يبقى بعد الفروض.</translation>
    </message>
    <message>
        <source>%1 − %2 %3</source>
        <comment>an estate, what is paid from it, the amount</comment>
        <translation>%1 − %2 %3</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <comment>amounts</comment>
        <translation>%1 أو %2</translation>
    </message>
    <message>
        <source>sharer</source>
        <translation>فرض</translation>
    </message>
    <message>
        <source>residuary</source>
        <translation>تعصيب</translation>
    </message>
    <message>
        <source>sharer and residuary</source>
        <translation>فرض وتعصيب</translation>
    </message>
    <message>
        <source>excluded</source>
        <translation>حجب</translation>
    </message>
    <message>
        <source>two thirds are taken</source>
        <translation>استُكمل الثلثان</translation>
    </message>
    <message>
        <source>not an heir in this school</source>
        <translation>غير وارثة في هذا المذهب</translation>
    </message>
    <message>
        <source>nothing is left</source>
        <translation>لم يبق شيء</translation>
    </message>
    <message>
        <source>Hanafi</source>
        <translation>الحنفي</translation>
    </message>
    <message>
        <source>Maliki</source>
        <translation>المالكي</translation>
    </message>
    <message>
        <source>Shafi&apos;i</source>
        <translation>الشافعي</translation>
    </message>
    <message>
        <source>Hanbali</source>
        <translation>الحنبلي</translation>
    </message>
    <message>
        <source>%1 law</source>
        <comment>of a school</comment>
        <translation>المذهب %1</translation>
    </message>
    <message>
        <source>yields to %1</source>
        <translation>حجب ب%1</translation>
    </message>
    <message>
        <source>Nothing is divided while a field cannot be read.</source>
        <translation>لا يُقسم شيء ما دام أحد الحقول غير مقروء.</translation>
    </message>
    <message>
        <source>Nothing is left to divide: funeral expenses and debts exceed the estate by %1.</source>
        <translation>لم يبق ما يُقسم: نفقات التجهيز والديون تزيد على التركة بمقدار %1.</translation>
    </message>
    <message>
        <source>%1 is left, and no heir is alive who takes it.</source>
        <translation>يبقى %1 ولا وارث حيّ يأخذه.</translation>
    </message>
    <message>
        <source>%1 goes to one heir.</source>
        <translation>%1 لوارث واحد.</translation>
    </message>
    <message>
        <source>%1 is left. One heir takes a share. %2</source>
        <translation>يبقى %1. يأخذ وارث واحد نصيبًا. %2</translation>
    </message>
    <message>
        <source>%1 is divided among %2 heirs. %3</source>
        <translation>يُقسم %1 على الورثة وعددهم %2. %3</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a whole number</source>
        <translation>%1: &quot;%2&quot; ليس عددًا صحيحًا</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is more than %3</source>
        <translation>%1: &quot;%2&quot; أكثر من %3</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not an amount</source>
        <translation>%1: &quot;%2&quot; ليس مبلغًا</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; has more than two decimals</source>
        <translation>%1: &quot;%2&quot; فيه أكثر من منزلتين عشريتين</translation>
    </message>
    <message>
        <source>Base %1, corrected base %2</source>
        <translation>أصل المسألة %1، وتصح من %2</translation>
    </message>
    <message>
        <source>Base %1, raised to %2, corrected base %3</source>
        <translation>أصل المسألة %1، وتعول إلى %2، وتصح من %3</translation>
    </message>
    <message>
        <source>less %1</source>
        <translation>يُطرح: %1</translation>
    </message>
    <message>
        <source>funeral expenses</source>
        <translation>نفقات التجهيز</translation>
    </message>
    <message>
        <source>debts</source>
        <translation>الديون</translation>
    </message>
    <message>
        <source>bequests</source>
        <translation>الوصايا</translation>
    </message>
    <message>
        <source>Net estate</source>
        <translation>صافي التركة</translation>
    </message>
    <message>
        <source>Gross estate %1</source>
        <translation>إجمالي التركة %1</translation>
    </message>
    <message>
        <source>Bequests of %1 are limited to %2, all that funeral expenses and debts leave.</source>
        <translation>تُنفَّذ الوصايا البالغة %1 في حدود %2، وهو كل ما يبقى بعد نفقات التجهيز والديون.</translation>
    </message>
    <message>
        <source>Bequests of %1 are limited to %2, a third of what funeral expenses and debts leave. More needs the consent of the heirs.</source>
        <translation>تُنفَّذ الوصايا البالغة %1 في حدود %2، وهو ثلث ما يبقى بعد نفقات التجهيز والديون. وما زاد فموقوف على إجازة الورثة.</translation>
    </message>
    <message>
        <source>Still the example with which Case Study opens: %1.</source>
        <translation>لا تزال هذه قيم المثال الذي تُفتح به شاشة Case Study: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the items of a list</comment>
        <translation>، </translation>
    </message>
    <message>
        <source>Heir</source>
        <translation>الوارث</translation>
    </message>
    <message>
        <source>Heads</source>
        <translation>العدد</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>النصيب</translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>parts of a base</comment>
        <translation>من %1</translation>
    </message>
    <message>
        <source>Together</source>
        <translation>المجموع</translation>
    </message>
    <message>
        <source>Each</source>
        <translation>لكل واحد</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>السبب</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>الدليل</translation>
    </message>
    <message>
        <source>Case Study</source>
        <translation>Case Study</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>الجملة</translation>
    </message>
    <message>
        <source>The commands of Case Study answer otherwise.</source>
        <translation>أوامر Case Study تجيب بغير ذلك.</translation>
    </message>
    <message>
        <source>Where Qismora differs</source>
        <translation>أين يختلف Qismora</translation>
    </message>
    <message>
        <source>the %1 %2</source>
        <comment>all heads of an heir: the 3 daughters</comment>
        <translation>جميع %2 (%1)</translation>
    </message>
    <message>
        <source>%1 of %2 %3</source>
        <comment>some heads of an heir: 2 of 3 daughters</comment>
        <translation>%3 (%1 من %2)</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>the items of a list, the last item</comment>
        <translation>%1 و%2</translation>
    </message>
    <message>
        <source>Supposition: as if %1 had died before the deceased.</source>
        <translation>افتراض: كما لو مات قبل المورِّث %1.</translation>
    </message>
    <message>
        <source>%1; one of them %2</source>
        <comment>amounts</comment>
        <translation>%1؛ وأحد الأنصبة %2</translation>
    </message>
    <message>
        <source>%1; %2 of them %3</source>
        <comment>an amount, heads, their amount</comment>
        <translation>%1؛ و%2 من الأنصبة %3</translation>
    </message>
    <message>
        <source>The deceased</source>
        <comment>a woman</comment>
        <translation>المتوفاة</translation>
    </message>
    <message>
        <source>The deceased</source>
        <comment>a man</comment>
        <translation>المتوفى</translation>
    </message>
    <message>
        <source>Name of the deceased</source>
        <translation>اسم المتوفى</translation>
    </message>
    <message>
        <source>Type who survives and what is left.</source>
        <translation>أدخل الورثة الأحياء ومقدار التركة.</translation>
    </message>
    <message>
        <source>%1: the field is empty</source>
        <translation>%1: الحقل فارغ</translation>
    </message>
    <message>
        <source>The heirs consent to bequests of more than a third.</source>
        <translation>أجاز الورثة ما زاد على الثلث من الوصايا.</translation>
    </message>
    <message>
        <source>Shortfall</source>
        <translation>العجز</translation>
    </message>
    <message>
        <source>Bequests of %1 lapse: funeral expenses and debts leave nothing for them.</source>
        <translation>تسقط الوصايا البالغة %1، إذ لا يبقى لها شيء بعد نفقات التجهيز والديون.</translation>
    </message>
</context>
</TS>
