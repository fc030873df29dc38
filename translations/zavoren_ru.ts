<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Zavoren!</source>
        <translation>О программе Zavoren!</translation>
    </message>
    <message>
        <source>Zavoren! icon</source>
        <translation>Значок Zavoren!</translation>
    </message>
    <message>
        <source>Zavoren! Kanji Learning Program</source>
        <translation>Zavoren! Программа для изучения кандзи</translation>
    </message>
    <message>
        <source>Copyright © Quelmar Software. Teaches kanji by writing.</source>
        <translation>© Quelmar Software. Учит кандзи через письмо.</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Поддержка</translation>
    </message>
    <message>
        <source>Stroke data: KanjiVG, © Ulrich Apel, CC BY-SA 3.0.
Readings and meanings: KANJIDIC2, © the Electronic Dictionary Research and Development Group, CC BY-SA 4.0.
The character database is a derived work shared under CC BY-SA.</source>
        <translation>Данные о чертах: KanjiVG, © Ulrich Apel, CC BY-SA 3.0.
Чтения и значения: KANJIDIC2, © Electronic Dictionary Research and Development Group, CC BY-SA 4.0.
База знаков — производное произведение под лицензией CC BY-SA.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>unknown version</source>
        <translation>неизвестная версия</translation>
    </message>
    <message>
        <source>Words: EDICT, © the Electronic Dictionary Research and Development Group, CC BY-SA 4.0; parts: KanjiVG.</source>
        <translation>Слова: EDICT, © Electronic Dictionary Research and Development Group, CC BY-SA 4.0; части: KanjiVG.</translation>
    </message>
    <message>
        <source>Handwriting recognition: Zinnia, © Taku Kudo, BSD; its Japanese model from the Tegaki project, LGPL-2.1+.</source>
        <translation>Распознавание почерка: Zinnia, © Taku Kudo, BSD; японская модель проекта Tegaki, LGPL-2.1+.</translation>
    </message>
</context>
<context>
    <name>AddUserDialog</name>
    <message>
        <source>Add New User</source>
        <translation>Новый пользователь</translation>
    </message>
    <message>
        <source>&amp;Enter user name:</source>
        <translation>&amp;Имя пользователя:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;ОК</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Отмена</translation>
    </message>
    <message>
        <source>Can&apos;t create user</source>
        <translation>Не удаётся создать пользователя</translation>
    </message>
    <message>
        <source>A user name cannot contain an apostrophe (&apos;). Try another user name</source>
        <translation>Имя пользователя не может содержать апостроф (&apos;). Попробуйте другое имя</translation>
    </message>
    <message>
        <source>User already exists. Try another user name</source>
        <translation>Такой пользователь уже есть. Попробуйте другое имя</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Category</source>
        <translation>Категория</translation>
    </message>
    <message>
        <source>All characters of the category: those learned, and those still to be learned. Right-click a character for more.</source>
        <translation>Все знаки категории: выученные и те, что ещё предстоит выучить. Щёлкните знак правой кнопкой, чтобы увидеть больше.</translation>
    </message>
    <message>
        <source>Untested:</source>
        <translation>Непроверенные:</translation>
    </message>
    <message>
        <source>Characters met in a lesson and waiting for a test.</source>
        <translation>Знаки из уроков, ожидающие теста.</translation>
    </message>
    <message>
        <source>&amp;Lesson</source>
        <translation>&amp;Урок</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Тест</translation>
    </message>
    <message>
        <source>&amp;Retest</source>
        <translation>&amp;Перепроверить</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>&amp;Забыть</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Назад</translation>
    </message>
    <message>
        <source>To learn characters press &apos;Lesson&apos; button and then test learned characters by pressing &apos;Test&apos; button.</source>
        <translation>Чтобы учить знаки, нажмите «Урок», а затем проверьте выученные знаки кнопкой «Тест».</translation>
    </message>
    <message>
        <source>Category complete</source>
        <translation>Категория пройдена</translation>
    </message>
    <message>
        <source>Characters of the category</source>
        <translation>Знаки категории</translation>
    </message>
    <message>
        <source>Untested characters</source>
        <translation>Непроверенные знаки</translation>
    </message>
    <message>
        <source>Learned</source>
        <translation>Выучено</translation>
    </message>
    <message>
        <source>&amp;Info</source>
        <translation>&amp;Сведения</translation>
    </message>
    <message>
        <source>&amp;Review</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Unlearned</source>
        <translation>Невыученные</translation>
    </message>
    <message>
        <source>&amp;Learn</source>
        <translation>&amp;Учить</translation>
    </message>
    <message>
        <source>Untested</source>
        <translation>Непроверенные</translation>
    </message>
    <message>
        <source>Learned Kanji</source>
        <translation>Выученные кандзи</translation>
    </message>
    <message>
        <source>Kanji to be Learned</source>
        <translation>Кандзи для изучения</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>&amp;Слова</translation>
    </message>
    <message>
        <source>Write whole words made of the characters you have learned</source>
        <translation>Писать целые слова из выученных знаков</translation>
    </message>
    <message>
        <source>&amp;Print practice sheet…</source>
        <translation>Пе&amp;чать прописи…</translation>
    </message>
</context>
<context>
    <name>CharacterGrid</name>
    <message>
        <source>Characters</source>
        <translation>Знаки</translation>
    </message>
</context>
<context>
    <name>CrashHandler</name>
    <message>
        <source>Oops...<byte value="xd"/>
Fatal error in Zavoren.<byte value="xd"/>
<byte value="xd"/>
Do you want to get minidump for it?</source>
        <translation>Ой...<byte value="xd"/>
Критическая ошибка в Zavoren.<byte value="xd"/>
<byte value="xd"/>
Создать минидамп?</translation>
    </message>
    <message>
        <source>Unhandled Exception</source>
        <translation>Необработанное исключение</translation>
    </message>
    <message>
        <source>MiniDump</source>
        <translation>MiniDump</translation>
    </message>
    <message>
        <source>Minidump successfuly created in application folder.</source>
        <translation>Минидамп создан в папке программы.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Unable to generate minidump.</source>
        <translation>Не удаётся создать минидамп.</translation>
    </message>
</context>
<context>
    <name>DisplayCanvas</name>
    <message>
        <source>Character</source>
        <translation>Иероглиф</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Щёлкните, чтобы увидеть написание знака черта за чертой</translation>
    </message>
</context>
<context>
    <name>DrawingTestPage</name>
    <message>
        <source>Drawing test</source>
        <translation>Тест написания</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Щёлкните, чтобы увидеть написание знака черта за чертой</translation>
    </message>
    <message>
        <source>ON reading:</source>
        <translation>Чтение ОН:</translation>
    </message>
    <message>
        <source>KUN reading:</source>
        <translation>Чтение КУН:</translation>
    </message>
    <message>
        <source>Meaning:</source>
        <translation>Значение:</translation>
    </message>
    <message>
        <source>Write the character from its readings and meaning. Click the box on the left to see it (counts as a mistake before the drawing is complete).</source>
        <translation>Напишите знак по его чтениям и значению. Щелчок по левому полю покажет его (до окончания рисунка считается ошибкой).</translation>
    </message>
</context>
<context>
    <name>FeedbackLine</name>
    <message>
        <source>Stroke feedback</source>
        <translation>Отзыв о черте</translation>
    </message>
</context>
<context>
    <name>FindCharacterWindow</name>
    <message>
        <source>Find a character</source>
        <translation>Найти знак</translation>
    </message>
    <message>
        <source>&amp;Type a character, a reading in kana or an English word:</source>
        <translation>&amp;Введите знак, чтение каной или английское слово:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Or write it:</source>
        <translation>Или напишите его:</translation>
    </message>
    <message>
        <source>Write the character here</source>
        <translation>Напишите знак здесь</translation>
    </message>
    <message>
        <source>Reading the handwriting model…</source>
        <translation>Чтение модели почерка…</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Очистить</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>Characters found</source>
        <translation>Найденные знаки</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Иероглиф</translation>
    </message>
    <message>
        <source>Readings</source>
        <translation>Чтения</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Категория</translation>
    </message>
    <message>
        <source>Writing needs the words and parts file (lexicon) beside the database.</source>
        <translation>Для письма нужен файл слов и частей (lexicon) рядом с базой.</translation>
    </message>
    <message>
        <source>The handwriting model is not installed (Debian package tegaki-zinnia-japanese): characters are found from Zavoren!&apos;s own strokes only, written in their stroke order.</source>
        <translation>Модель почерка не установлена (пакет Debian tegaki-zinnia-japanese): знаки находятся только по собственным чертам Zavoren!, написанным в их порядке.</translation>
    </message>
</context>
<context>
    <name>HistoryNotice</name>
    <message>
        <source>Learning history</source>
        <translation>История обучения</translation>
    </message>
    <message>
        <source>The learning history cannot be kept: %1</source>
        <translation>Не удаётся сохранить историю обучения: %1</translation>
    </message>
    <message>
        <source>The damaged file is kept as &quot;%1&quot;.</source>
        <translation>Повреждённый файл сохранён как «%1».</translation>
    </message>
    <message>
        <source>Until it can be kept again, your progress and history are saved in config.xml.</source>
        <translation>Пока её нельзя сохранить, ваш прогресс и история записываются в config.xml.</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Home</source>
        <translation>Главная</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Пользователь:</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>&amp;Categories:</source>
        <translation>&amp;Категории:</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Категория</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Открыть</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Категории</translation>
    </message>
    <message>
        <source> (%1 of %2)</source>
        <translation> (%1 из %2)</translation>
    </message>
    <message>
        <source> (%1 of %2, %3 due)</source>
        <translation> (%1 из %2, к повторению %3)</translation>
    </message>
    <message>
        <source>Due for review today: %1</source>
        <translation>К повторению сегодня: %1</translation>
    </message>
    <message>
        <source>Nothing is due for review today.</source>
        <translation>Сегодня повторять нечего.</translation>
    </message>
    <message>
        <source>&amp;Review (%1)</source>
        <translation>&amp;Повторить (%1)</translation>
    </message>
    <message>
        <source>Review the characters due (%1)</source>
        <translation>Повторить знаки, срок которых подошёл (%1)</translation>
    </message>
</context>
<context>
    <name>InputCanvas</name>
    <message>
        <source>Writing canvas</source>
        <translation>Поле для письма</translation>
    </message>
    <message>
        <source>Write the character here with the mouse, one stroke at a time</source>
        <translation>Пишите знак здесь мышью, по одной черте</translation>
    </message>
</context>
<context>
    <name>KanjiInfoDialog</name>
    <message>
        <source> Kanji Info</source>
        <translation> Сведения о кандзи</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Щёлкните, чтобы увидеть написание знака черта за чертой</translation>
    </message>
    <message>
        <source>ON reading:</source>
        <translation>Чтение ОН:</translation>
    </message>
    <message>
        <source>KUN reading:</source>
        <translation>Чтение КУН:</translation>
    </message>
    <message>
        <source>Meaning:</source>
        <translation>Значение:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>Next review: due now</source>
        <translation>Следующее повторение: сейчас</translation>
    </message>
    <message>
        <source>Next review: %1</source>
        <translation>Следующее повторение: %1</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Слова</translation>
    </message>
    <message>
        <source>Words (meanings in English)</source>
        <translation>Слова (значения на английском)</translation>
    </message>
    <message>
        <source>Not learned yet: %1</source>
        <translation>Ещё не выучено: %1</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Части</translation>
    </message>
    <message>
        <source>Open the Kanji Info of %1</source>
        <translation>Открыть сведения о кандзи %1</translation>
    </message>
    <message>
        <source>Part %1, opens its Kanji Info</source>
        <translation>Часть %1, открывает сведения о кандзи</translation>
    </message>
    <message>
        <source>Part %1</source>
        <translation>Часть %1</translation>
    </message>
    <message>
        <source>Other order</source>
        <translation>Другой порядок</translation>
    </message>
    <message>
        <source>Another stroke order, shown stroke by stroke</source>
        <translation>Другой порядок черт, показанный черта за чертой</translation>
    </message>
    <message>
        <source>&amp;Show in its category</source>
        <translation>&amp;Показать в категории</translation>
    </message>
</context>
<context>
    <name>LearnerTransfer</name>
    <message>
        <source>Export learner</source>
        <translation>Экспорт ученика</translation>
    </message>
    <message>
        <source>Zavoren! learners (*.xml);;All files (*)</source>
        <translation>Ученики Zavoren! (*.xml);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Import learner</source>
        <translation>Импорт ученика</translation>
    </message>
    <message>
        <source>The learner could not be written to &quot;%1&quot;. Nothing was changed.</source>
        <translation>Не удалось записать ученика в «%1». Ничего не изменено.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read.</source>
        <translation>Не удаётся прочитать файл «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a learner exported by Zavoren!.</source>
        <translation>«%1» — это не ученик, экспортированный из Zavoren!.</translation>
    </message>
    <message>
        <source>The learner file &quot;%1&quot; is damaged.</source>
        <translation>Файл ученика «%1» повреждён.</translation>
    </message>
    <message>
        <source>The learner file &quot;%1&quot; was written with a character database of %2 categories; this one has %3.</source>
        <translation>Файл ученика «%1» записан с базой знаков из %2 категорий, а в этой их %3.</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Ничего не импортировано.</translation>
    </message>
    <message>
        <source>A learner named &quot;%1&quot; already exists. Replace their record with the imported one?

Yes replaces it; No imports the learner under another name.</source>
        <translation>Ученик с именем «%1» уже есть. Заменить его данные импортированными?

«Да» заменяет; «Нет» импортирует ученика под другим именем.</translation>
    </message>
</context>
<context>
    <name>LessonPage</name>
    <message>
        <source>Lesson</source>
        <translation>Урок</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Щёлкните, чтобы увидеть написание знака черта за чертой</translation>
    </message>
    <message>
        <source>The character to learn. Click it to watch it being written stroke by stroke.</source>
        <translation>Знак для изучения. Щёлкните, чтобы увидеть его написание черта за чертой.</translation>
    </message>
    <message>
        <source>ON reading</source>
        <translation>Чтение ОН</translation>
    </message>
    <message>
        <source>KUN reading</source>
        <translation>Чтение КУН</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Write the character here with the mouse, stroke by stroke in the right order. A stroke that does not match is wiped.</source>
        <translation>Пишите знак здесь мышью, черта за чертой в правильном порядке. Неподходящая черта стирается.</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Очистить</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>&amp;Подсказка</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Прервать</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Далее</translation>
    </message>
</context>
<context>
    <name>LexiconAccess</name>
    <message>
        <source>Words and parts</source>
        <translation>Слова и части</translation>
    </message>
    <message>
        <source>Words and parts cannot be shown: %1</source>
        <translation>Невозможно показать слова и части: %1</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Пользователи</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Сервис</translation>
    </message>
    <message>
        <source>Progress…</source>
        <translation>Успехи…</translation>
    </message>
    <message>
        <source>Export learner…</source>
        <translation>Экспортировать ученика…</translation>
    </message>
    <message>
        <source>Import learner…</source>
        <translation>Импортировать ученика…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Настройки…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Содержание</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Ссылки</translation>
    </message>
    <message>
        <source>Quelmar Software site</source>
        <translation>Сайт Quelmar Software</translation>
    </message>
    <message>
        <source>Open Quelmar Software web site</source>
        <translation>Открыть сайт Quelmar Software</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>About Zavoren</source>
        <translation>О программе Zavoren</translation>
    </message>
    <message>
        <source>Print practice sheet…</source>
        <translation>Печать прописи…</translation>
    </message>
    <message>
        <source>Find a character…</source>
        <translation>Найти знак…</translation>
    </message>
</context>
<context>
    <name>Page</name>
    <message>
        <source>N/A</source>
        <translation>н/д</translation>
    </message>
</context>
<context>
    <name>PracticeSheetDialog</name>
    <message>
        <source>Print practice sheet</source>
        <translation>Печать прописи</translation>
    </message>
    <message>
        <source>Preview of the first page</source>
        <translation>Просмотр первой страницы</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Letter</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Бумага</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Бумага:</translation>
    </message>
    <message>
        <source>Boxes per row</source>
        <translation>Клеток в строке</translation>
    </message>
    <message>
        <source>&amp;Boxes per row:</source>
        <translation>&amp;Клеток в строке:</translation>
    </message>
    <message>
        <source>Boxes to trace</source>
        <translation>Клеток для обводки</translation>
    </message>
    <message>
        <source>Boxes to &amp;trace:</source>
        <translation>Клеток для &amp;обводки:</translation>
    </message>
    <message>
        <source>Stroke &amp;order</source>
        <translation>&amp;Порядок черт</translation>
    </message>
    <message>
        <source>Stroke order</source>
        <translation>Порядок черт</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>&amp;Слова</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Слова</translation>
    </message>
    <message>
        <source>P&amp;rint…</source>
        <translation>Пе&amp;чать…</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>Сохранить в P&amp;DF…</translation>
    </message>
    <message>
        <source>Practice sheet</source>
        <translation>Пропись</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Сохранить в PDF</translation>
    </message>
    <message>
        <source>practice-sheet</source>
        <translation>propis</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Файлы PDF (*.pdf)</translation>
    </message>
    <message>
        <source>The sheet could not be written to &quot;%1&quot;: %2</source>
        <translation>Не удалось записать пропись в «%1»: %2</translation>
    </message>
    <message>
        <source>Select the characters first: on a category page, or a category on the home page for the characters of its next lesson.</source>
        <translation>Сначала выберите знаки: на странице категории или категорию на главной странице для знаков её следующего урока.</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>Страниц: %1</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Explain refused strokes</source>
        <translation>Объяснять отклонённые черты</translation>
    </message>
    <message>
        <source>Practice grid</source>
        <translation>Разметка для письма</translation>
    </message>
    <message>
        <source>Show where a stroke starts after three misses</source>
        <translation>Показывать начало черты после трёх промахов</translation>
    </message>
    <message>
        <source>Bring the window onto the screen at start</source>
        <translation>Возвращать окно на экран при запуске</translation>
    </message>
    <message>
        <source>Judge place by my own character</source>
        <translation>Оценивать положение по моему собственному знаку</translation>
    </message>
    <message>
        <source>A character written a little off-centre, smaller or larger is fine: each stroke is placed against the strokes you have already written</source>
        <translation>Знак, написанный чуть не по центру, меньше или больше, — не ошибка: каждая черта оценивается относительно уже написанных черт</translation>
    </message>
    <message>
        <source>Review characters when they are due</source>
        <translation>Повторять иероглифы, когда пора</translation>
    </message>
    <message>
        <source>Each learned character comes back for a test when you are about to forget it</source>
        <translation>Каждый выученный иероглиф возвращается на проверку, когда вы вот-вот его забудете</translation>
    </message>
    <message>
        <source>Desired retention</source>
        <translation>Желаемое запоминание</translation>
    </message>
    <message>
        <source>Desired &amp;retention:</source>
        <translation>Желаемое &amp;запоминание:</translation>
    </message>
    <message>
        <source>higher: more reviews, fewer characters forgotten</source>
        <translation>выше: больше повторений, меньше забытых иероглифов</translation>
    </message>
    <message>
        <source> days</source>
        <translation> дн.</translation>
    </message>
    <message>
        <source>Maximum interval</source>
        <translation>Наибольший интервал</translation>
    </message>
    <message>
        <source>&amp;Maximum interval:</source>
        <translation>Наибольший &amp;интервал:</translation>
    </message>
    <message>
        <source>Show words and parts in Kanji Info</source>
        <translation>Показывать слова и части в сведениях о кандзи</translation>
    </message>
    <message>
        <source>Common words that use the character, and the parts it is built from</source>
        <translation>Частые слова с этим иероглифом и части, из которых он состоит</translation>
    </message>
    <message>
        <source>Show a word after each answer</source>
        <translation>Показывать слово после каждого ответа</translation>
    </message>
    <message>
        <source>In the reading test, a common word that uses the character with the reading you have just chosen</source>
        <translation>В тесте чтений — частое слово с этим иероглифом в только что выбранном чтении</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Письмо</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Повторения</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Слова</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Окно</translation>
    </message>
    <message>
        <source>Accept other stroke orders</source>
        <translation>Принимать другой порядок черт</translation>
    </message>
    <message>
        <source>A stroke order taught in other schools, which KanjiVG records, is correct too</source>
        <translation>Порядок черт, которому учат в других школах и который записан в KanjiVG, тоже верен</translation>
    </message>
    <message>
        <source>Steady my ink</source>
        <translation>Сглаживать мои черты</translation>
    </message>
    <message>
        <source>A shaking hand, a finger or a cheap pen: each stroke is smoothed before it is judged</source>
        <translation>Дрожащая рука, палец или дешёвое перо: каждая черта сглаживается перед проверкой</translation>
    </message>
    <message>
        <source>Review by writing only</source>
        <translation>Повторять только письмом</translation>
    </message>
    <message>
        <source>A review asks you to write each character, not to choose its readings</source>
        <translation>При повторении вы пишете каждый знак, а не выбираете его чтения</translation>
    </message>
    <message>
        <source>Reviews in one sitting</source>
        <translation>Повторений за один раз</translation>
    </message>
    <message>
        <source>Reviews in one &amp;sitting:</source>
        <translation>Повторений за один &amp;раз:</translation>
    </message>
    <message>
        <source>Words test</source>
        <translation>Тест слов</translation>
    </message>
    <message>
        <source>A Words button on the category page: write whole words made of the characters you have learned</source>
        <translation>Кнопка «Слова» на странице категории: писать целые слова из выученных знаков</translation>
    </message>
    <message>
        <source>Print practice sheets</source>
        <translation>Печать прописей</translation>
    </message>
    <message>
        <source>&quot;Print practice sheet…&quot; in the File menu and in the category page&apos;s menus</source>
        <translation>«Печать прописи…» в меню «Файл» и в меню страницы категории</translation>
    </message>
</context>
<context>
    <name>ProgressViewer</name>
    <message>
        <source>Progress</source>
        <translation>Успехи</translation>
    </message>
    <message>
        <source>The progress window cannot be opened: %1</source>
        <translation>Не удаётся открыть окно успехов: %1</translation>
    </message>
    <message>
        <source>%1 is not the progress module</source>
        <translation>%1 — не модуль успехов</translation>
    </message>
</context>
<context>
    <name>ProgressWindow</name>
    <message>
        <source>Progress of %1</source>
        <translation>Успехи: %1</translation>
    </message>
    <message>
        <source>Category %1</source>
        <translation>Категория %1</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Успехи</translation>
    </message>
    <message>
        <source>&amp;Learned</source>
        <translation>&amp;Выучено</translation>
    </message>
    <message>
        <source>&amp;Tests</source>
        <translation>&amp;Тесты</translation>
    </message>
    <message>
        <source>&amp;Categories</source>
        <translation>&amp;Категории</translation>
    </message>
    <message>
        <source>T&amp;rouble characters</source>
        <translation>&amp;Трудные знаки</translation>
    </message>
    <message>
        <source>Category shown</source>
        <translation>Показанная категория</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Все категории</translation>
    </message>
    <message>
        <source>C&amp;ategory:</source>
        <translation>К&amp;атегория:</translation>
    </message>
    <message>
        <source>Characters learned</source>
        <translation>Выученные знаки</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Знаки</translation>
    </message>
    <message>
        <source>Characters learned over time</source>
        <translation>Выученные знаки по времени</translation>
    </message>
    <message>
        <source>Characters learned by %1: %2</source>
        <translation>Выучено знаков к %1: %2</translation>
    </message>
    <message>
        <source>Tests per week</source>
        <translation>Тесты по неделям</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Сдано</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Не сдано</translation>
    </message>
    <message>
        <source>Week beginning</source>
        <translation>Неделя с</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Тесты</translation>
    </message>
    <message>
        <source>Tests passed and failed per week</source>
        <translation>Сданные и несданные тесты по неделям</translation>
    </message>
    <message>
        <source>Progress in each category</source>
        <translation>Успехи по категориям</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Категория</translation>
    </message>
    <message>
        <source>Learned</source>
        <translation>Выучено</translation>
    </message>
    <message>
        <source>Untested</source>
        <translation>Непроверенные</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Всего</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>%1: %2 of %3 learned</source>
        <translation>%1: выучено %2 из %3</translation>
    </message>
    <message>
        <source>Trouble characters, the most troubled first</source>
        <translation>Трудные знаки, самые трудные первыми</translation>
    </message>
    <message>
        <source>1 mistake</source>
        <translation>1 ошибка</translation>
    </message>
    <message>
        <source>%1 mistakes</source>
        <translation>ошибок: %1</translation>
    </message>
    <message>
        <source>1 test failed</source>
        <translation>не сдан 1 тест</translation>
    </message>
    <message>
        <source>%1 tests failed</source>
        <translation>не сдано тестов: %1</translation>
    </message>
    <message>
        <source>Re&amp;views</source>
        <translation>&amp;Повторения</translation>
    </message>
    <message>
        <source>recall %1 %</source>
        <translation>вспомните с вероятностью %1 %</translation>
    </message>
    <message>
        <source>Reviews due on each of the next 30 days</source>
        <translation>Повторения на каждый из следующих 30 дней</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>К повторению</translation>
    </message>
    <message>
        <source>Due today: %1; in the next 30 days: %2</source>
        <translation>К повторению сегодня: %1; в следующие 30 дней: %2</translation>
    </message>
    <message>
        <source>Learned characters and their reviews</source>
        <translation>Выученные иероглифы и их повторения</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Иероглиф</translation>
    </message>
    <message>
        <source>Recall today</source>
        <translation>Вспомните сегодня</translation>
    </message>
    <message>
        <source>Next review</source>
        <translation>Следующее повторение</translation>
    </message>
    <message>
        <source>due now</source>
        <translation>сейчас</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>День</translation>
    </message>
</context>
<context>
    <name>ReadingTestPage</name>
    <message>
        <source>Reading test</source>
        <translation>Тест чтений</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Щёлкните, чтобы увидеть написание знака черта за чертой</translation>
    </message>
    <message>
        <source>ON reading:</source>
        <translation>Чтение ОН:</translation>
    </message>
    <message>
        <source>KUN reading:</source>
        <translation>Чтение КУН:</translation>
    </message>
    <message>
        <source>Meaning:</source>
        <translation>Значение:</translation>
    </message>
    <message>
        <source>Select ON reading</source>
        <translation>Выберите чтение ОН</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Select KUN reading</source>
        <translation>Выберите чтение КУН</translation>
    </message>
    <message>
        <source>A word with this ON reading</source>
        <translation>Слово с этим чтением ОН</translation>
    </message>
    <message>
        <source>A word with this KUN reading</source>
        <translation>Слово с этим чтением КУН</translation>
    </message>
</context>
<context>
    <name>ReviewPage</name>
    <message>
        <source>Review</source>
        <translation>Повторение</translation>
    </message>
    <message>
        <source>Reviews answered</source>
        <translation>Пройдено повторений</translation>
    </message>
    <message>
        <source>The reviews are over.</source>
        <translation>Повторение окончено.</translation>
    </message>
    <message>
        <source>Forgotten, to be learned again:</source>
        <translation>Забыты, их нужно выучить снова:</translation>
    </message>
    <message>
        <source>Forgotten characters</source>
        <translation>Забытые знаки</translation>
    </message>
    <message>
        <source>&amp;Info</source>
        <translation>&amp;Сведения</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Назад</translation>
    </message>
    <message>
        <source>Review %1 of %2</source>
        <translation>Повторение %1 из %2</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>Категория: %1</translation>
    </message>
    <message>
        <source>Reviewed %1 of %2</source>
        <translation>Повторено %1 из %2</translation>
    </message>
    <message>
        <source>Reviewed: %1
Remembered without mistakes: %2
Remembered with mistakes: %3
Forgotten: %4</source>
        <translation>Повторено: %1
Вспомнено без ошибок: %2
Вспомнено с ошибками: %3
Забыто: %4</translation>
    </message>
    <message>
        <source>Next reviews: tomorrow %1, this week %2</source>
        <translation>Следующие повторения: завтра %1, на этой неделе %2</translation>
    </message>
</context>
<context>
    <name>SplashWindow</name>
    <message>
        <source>Zavoren! is starting</source>
        <translation>Zavoren! запускается</translation>
    </message>
    <message>
        <source>Loading the characters</source>
        <translation>Загрузка знаков</translation>
    </message>
</context>
<context>
    <name>TestContainer</name>
    <message>
        <source>Test</source>
        <translation>Тест</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Прервать</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Далее</translation>
    </message>
</context>
<context>
    <name>UserManagerDialog</name>
    <message>
        <source>User Manager</source>
        <translation>Пользователи</translation>
    </message>
    <message>
        <source>&amp;Users:</source>
        <translation>&amp;Пользователи:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Открыть</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Добавить</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Пользователи</translation>
    </message>
    <message>
        <source>Delete User</source>
        <translation>Удаление пользователя</translation>
    </message>
    <message>
        <source>Delete current user?</source>
        <translation>Удалить текущего пользователя?</translation>
    </message>
    <message>
        <source>Delete user?</source>
        <translation>Удалить пользователя?</translation>
    </message>
</context>
<context>
    <name>WordsTestPage</name>
    <message>
        <source>Words test</source>
        <translation>Тест слов</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>&amp;Подсказка</translation>
    </message>
    <message>
        <source>I &amp;don&apos;t know</source>
        <translation>Не &amp;знаю</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Прервать</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Далее</translation>
    </message>
    <message>
        <source>Word %1 of %2</source>
        <translation>Слово %1 из %2</translation>
    </message>
    <message>
        <source>Reading: %1</source>
        <translation>Чтение: %1</translation>
    </message>
    <message>
        <source>Meaning: %1</source>
        <translation>Значение: %1</translation>
    </message>
    <message>
        <source>Square %1 of the word</source>
        <translation>Клетка %1 слова</translation>
    </message>
    <message>
        <source>Click for Kanji Info</source>
        <translation>Щёлкните, чтобы открыть сведения о знаке</translation>
    </message>
    <message>
        <source>The word: %1, read %2</source>
        <translation>Слово: %1, читается %2</translation>
    </message>
</context>
<context>
    <name>WritingCoach</name>
    <message>
        <source>Wrong order: that is stroke %1. Write stroke %2 first.</source>
        <translation>Неверный порядок: это черта %1. Сначала напишите черту %2.</translation>
    </message>
    <message>
        <source>Wrong direction: start this stroke from the other end.</source>
        <translation>Неверное направление: начните эту черту с другого конца.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further up.</source>
        <translation>Не то место: эта черта выше.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further down.</source>
        <translation>Не то место: эта черта ниже.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further left.</source>
        <translation>Не то место: эта черта левее.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further right.</source>
        <translation>Не то место: эта черта правее.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further up and to the left.</source>
        <translation>Не то место: эта черта выше и левее.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further up and to the right.</source>
        <translation>Не то место: эта черта выше и правее.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further down and to the left.</source>
        <translation>Не то место: эта черта ниже и левее.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further down and to the right.</source>
        <translation>Не то место: эта черта ниже и правее.</translation>
    </message>
    <message>
        <source>Wrong place.</source>
        <translation>Не то место.</translation>
    </message>
    <message>
        <source>Too short: this stroke is longer.</source>
        <translation>Слишком коротко: эта черта длиннее.</translation>
    </message>
    <message>
        <source>Too long: this stroke is shorter.</source>
        <translation>Слишком длинно: эта черта короче.</translation>
    </message>
    <message>
        <source>Wrong shape: compare it with the model.</source>
        <translation>Неверная форма: сравните с образцом.</translation>
    </message>
    <message>
        <source>The character is already complete.</source>
        <translation>Знак уже написан полностью.</translation>
    </message>
    <message>
        <source>Also correct: the order taught in other schools.</source>
        <translation>Тоже верно: порядок, которому учат в других школах.</translation>
    </message>
</context>
<context>
    <name>ZavorenCommon</name>
    <message>
        <source>Zavoren Database Error</source>
        <translation>Ошибка базы данных Zavoren</translation>
    </message>
    <message>
        <source>Zavoren Configuration Error</source>
        <translation>Ошибка конфигурации Zavoren</translation>
    </message>
    <message>
        <source>Unable to open database</source>
        <translation>Не удаётся открыть базу данных</translation>
    </message>
    <message>
        <source>Unable to read database header</source>
        <translation>Не удаётся прочитать заголовок базы данных</translation>
    </message>
    <message>
        <source>Unable to read dictionary</source>
        <translation>Не удаётся прочитать словарь</translation>
    </message>
    <message>
        <source>Character id out of range</source>
        <translation>Номер знака вне диапазона</translation>
    </message>
    <message>
        <source>Character does not exist</source>
        <translation>Знак не существует</translation>
    </message>
    <message>
        <source>Unable to load character</source>
        <translation>Не удаётся загрузить знак</translation>
    </message>
    <message>
        <source>Element id out of range</source>
        <translation>Номер элемента вне диапазона</translation>
    </message>
    <message>
        <source>Element does not exist</source>
        <translation>Элемент не существует</translation>
    </message>
    <message>
        <source>Unable to load element</source>
        <translation>Не удаётся загрузить элемент</translation>
    </message>
    <message>
        <source>No such category</source>
        <translation>Нет такой категории</translation>
    </message>
    <message>
        <source>Unable to load category</source>
        <translation>Не удаётся загрузить категорию</translation>
    </message>
    <message>
        <source>Config file does not exist. Try to reinstall Zavoren.</source>
        <translation>Файл конфигурации не существует. Попробуйте переустановить Zavoren.</translation>
    </message>
    <message>
        <source>Config file is ReadOnly. Check file attirbutes or reinstall Zavoren.</source>
        <translation>Файл конфигурации доступен только для чтения. Проверьте атрибуты файла или переустановите Zavoren.</translation>
    </message>
    <message>
        <source>Unable to load config</source>
        <translation>Не удаётся загрузить конфигурацию</translation>
    </message>
    <message>
        <source>Unable to save config</source>
        <translation>Не удаётся сохранить конфигурацию</translation>
    </message>
    <message>
        <source>Unable to open lexicon</source>
        <translation>Не удаётся открыть словарь</translation>
    </message>
    <message>
        <source>The lexicon file is damaged</source>
        <translation>Файл словаря повреждён</translation>
    </message>
    <message>
        <source>The lexicon was made for another database</source>
        <translation>Словарь создан для другой базы данных</translation>
    </message>
</context>
</TS>
