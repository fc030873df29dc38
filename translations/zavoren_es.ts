<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Zavoren!</source>
        <translation>Acerca de Zavoren!</translation>
    </message>
    <message>
        <source>Zavoren! icon</source>
        <translation>Icono de Zavoren!</translation>
    </message>
    <message>
        <source>Zavoren! Kanji Learning Program</source>
        <translation>Zavoren! Programa para aprender kanji</translation>
    </message>
    <message>
        <source>Copyright © Quelmar Software. Teaches kanji by writing.</source>
        <translation>Copyright © Quelmar Software. Enseña kanji escribiendo.</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Soporte</translation>
    </message>
    <message>
        <source>Stroke data: KanjiVG, © Ulrich Apel, CC BY-SA 3.0.
Readings and meanings: KANJIDIC2, © the Electronic Dictionary Research and Development Group, CC BY-SA 4.0.
The character database is a derived work shared under CC BY-SA.</source>
        <translation>Datos de los trazos: KanjiVG, © Ulrich Apel, CC BY-SA 3.0.
Lecturas y significados: KANJIDIC2, © Electronic Dictionary Research and Development Group, CC BY-SA 4.0.
La base de caracteres es una obra derivada compartida bajo CC BY-SA.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>unknown version</source>
        <translation>versión desconocida</translation>
    </message>
    <message>
        <source>Words: EDICT, © the Electronic Dictionary Research and Development Group, CC BY-SA 4.0; parts: KanjiVG.</source>
        <translation>Palabras: EDICT, © Electronic Dictionary Research and Development Group, CC BY-SA 4.0; componentes: KanjiVG.</translation>
    </message>
    <message>
        <source>Handwriting recognition: Zinnia, © Taku Kudo, BSD; its Japanese model from the Tegaki project, LGPL-2.1+.</source>
        <translation>Reconocimiento de escritura: Zinnia, © Taku Kudo, BSD; su modelo japonés, del proyecto Tegaki, LGPL-2.1+.</translation>
    </message>
</context>
<context>
    <name>AddUserDialog</name>
    <message>
        <source>Add New User</source>
        <translation>Añadir usuario</translation>
    </message>
    <message>
        <source>&amp;Enter user name:</source>
        <translation>&amp;Nombre de usuario:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Can&apos;t create user</source>
        <translation>No se puede crear el usuario</translation>
    </message>
    <message>
        <source>A user name cannot contain an apostrophe (&apos;). Try another user name</source>
        <translation>Un nombre de usuario no puede contener un apóstrofo (&apos;). Pruebe con otro nombre</translation>
    </message>
    <message>
        <source>User already exists. Try another user name</source>
        <translation>El usuario ya existe. Pruebe con otro nombre</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>All characters of the category: those learned, and those still to be learned. Right-click a character for more.</source>
        <translation>Todos los caracteres de la categoría: los aprendidos y los que faltan por aprender. Haga clic derecho en un carácter para más opciones.</translation>
    </message>
    <message>
        <source>Untested:</source>
        <translation>Sin probar:</translation>
    </message>
    <message>
        <source>Characters met in a lesson and waiting for a test.</source>
        <translation>Caracteres vistos en una lección que esperan una prueba.</translation>
    </message>
    <message>
        <source>&amp;Lesson</source>
        <translation>&amp;Lección</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Prueba</translation>
    </message>
    <message>
        <source>&amp;Retest</source>
        <translation>&amp;Repetir prueba</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>&amp;Olvidar</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Volver</translation>
    </message>
    <message>
        <source>To learn characters press &apos;Lesson&apos; button and then test learned characters by pressing &apos;Test&apos; button.</source>
        <translation>Para aprender caracteres pulse «Lección» y después ponga a prueba los aprendidos con «Prueba».</translation>
    </message>
    <message>
        <source>Category complete</source>
        <translation>Categoría completada</translation>
    </message>
    <message>
        <source>Characters of the category</source>
        <translation>Caracteres de la categoría</translation>
    </message>
    <message>
        <source>Untested characters</source>
        <translation>Caracteres sin probar</translation>
    </message>
    <message>
        <source>Learned</source>
        <translation>Aprendidos</translation>
    </message>
    <message>
        <source>&amp;Info</source>
        <translation>&amp;Información</translation>
    </message>
    <message>
        <source>&amp;Review</source>
        <translation>&amp;Repasar</translation>
    </message>
    <message>
        <source>Unlearned</source>
        <translation>No aprendidos</translation>
    </message>
    <message>
        <source>&amp;Learn</source>
        <translation>&amp;Aprender</translation>
    </message>
    <message>
        <source>Untested</source>
        <translation>Sin probar</translation>
    </message>
    <message>
        <source>Learned Kanji</source>
        <translation>Kanji aprendidos</translation>
    </message>
    <message>
        <source>Kanji to be Learned</source>
        <translation>Kanji por aprender</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>Pala&amp;bras</translation>
    </message>
    <message>
        <source>Write whole words made of the characters you have learned</source>
        <translation>Escribir palabras enteras con los caracteres aprendidos</translation>
    </message>
    <message>
        <source>&amp;Print practice sheet…</source>
        <translation>Im&amp;primir hoja de práctica…</translation>
    </message>
</context>
<context>
    <name>CharacterGrid</name>
    <message>
        <source>Characters</source>
        <translation>Caracteres</translation>
    </message>
</context>
<context>
    <name>CrashHandler</name>
    <message>
        <source>Oops...<byte value="xd"/>
Fatal error in Zavoren.<byte value="xd"/>
<byte value="xd"/>
Do you want to get minidump for it?</source>
        <translation>Vaya...<byte value="xd"/>
Error fatal en Zavoren.<byte value="xd"/>
<byte value="xd"/>
¿Desea obtener un minidump?</translation>
    </message>
    <message>
        <source>Unhandled Exception</source>
        <translation>Excepción no controlada</translation>
    </message>
    <message>
        <source>MiniDump</source>
        <translation>MiniDump</translation>
    </message>
    <message>
        <source>Minidump successfuly created in application folder.</source>
        <translation>Minidump creado en la carpeta de la aplicación.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Unable to generate minidump.</source>
        <translation>No se puede generar el minidump.</translation>
    </message>
</context>
<context>
    <name>DisplayCanvas</name>
    <message>
        <source>Character</source>
        <translation>Carácter</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Haga clic para ver el carácter escrito trazo a trazo</translation>
    </message>
</context>
<context>
    <name>DrawingTestPage</name>
    <message>
        <source>Drawing test</source>
        <translation>Prueba de escritura</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Haga clic para ver el carácter escrito trazo a trazo</translation>
    </message>
    <message>
        <source>ON reading:</source>
        <translation>Lectura ON:</translation>
    </message>
    <message>
        <source>KUN reading:</source>
        <translation>Lectura KUN:</translation>
    </message>
    <message>
        <source>Meaning:</source>
        <translation>Significado:</translation>
    </message>
    <message>
        <source>Write the character from its readings and meaning. Click the box on the left to see it (counts as a mistake before the drawing is complete).</source>
        <translation>Escriba el carácter a partir de sus lecturas y su significado. Haga clic en el cuadro de la izquierda para verlo (cuenta como error antes de terminar el dibujo).</translation>
    </message>
</context>
<context>
    <name>FeedbackLine</name>
    <message>
        <source>Stroke feedback</source>
        <translation>Comentario sobre el trazo</translation>
    </message>
</context>
<context>
    <name>FindCharacterWindow</name>
    <message>
        <source>Find a character</source>
        <translation>Buscar un carácter</translation>
    </message>
    <message>
        <source>&amp;Type a character, a reading in kana or an English word:</source>
        <translation>&amp;Escriba un carácter, una lectura en kana o una palabra inglesa:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Búsqueda</translation>
    </message>
    <message>
        <source>Or write it:</source>
        <translation>O escríbalo:</translation>
    </message>
    <message>
        <source>Write the character here</source>
        <translation>Escriba el carácter aquí</translation>
    </message>
    <message>
        <source>Reading the handwriting model…</source>
        <translation>Leyendo el modelo de escritura…</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Characters found</source>
        <translation>Caracteres encontrados</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Carácter</translation>
    </message>
    <message>
        <source>Readings</source>
        <translation>Lecturas</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Significado</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Writing needs the words and parts file (lexicon) beside the database.</source>
        <translation>Escribir necesita el archivo de palabras y partes (lexicon) junto a la base de datos.</translation>
    </message>
    <message>
        <source>The handwriting model is not installed (Debian package tegaki-zinnia-japanese): characters are found from Zavoren!&apos;s own strokes only, written in their stroke order.</source>
        <translation>El modelo de escritura no está instalado (paquete Debian tegaki-zinnia-japanese): los caracteres se buscan solo con los trazos propios de Zavoren!, escritos en su orden.</translation>
    </message>
</context>
<context>
    <name>HistoryNotice</name>
    <message>
        <source>Learning history</source>
        <translation>Historial de aprendizaje</translation>
    </message>
    <message>
        <source>The learning history cannot be kept: %1</source>
        <translation>No se puede conservar el historial de aprendizaje: %1</translation>
    </message>
    <message>
        <source>The damaged file is kept as &quot;%1&quot;.</source>
        <translation>El archivo dañado se conserva como «%1».</translation>
    </message>
    <message>
        <source>Until it can be kept again, your progress and history are saved in config.xml.</source>
        <translation>Hasta que pueda conservarse de nuevo, su progreso y su historial se guardan en config.xml.</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Usuario:</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>&amp;Categories:</source>
        <translation>&amp;Categorías:</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source> (%1 of %2)</source>
        <translation> (%1 de %2)</translation>
    </message>
    <message>
        <source> (%1 of %2, %3 due)</source>
        <translation> (%1 de %2, %3 por repasar)</translation>
    </message>
    <message>
        <source>Due for review today: %1</source>
        <translation>Por repasar hoy: %1</translation>
    </message>
    <message>
        <source>Nothing is due for review today.</source>
        <translation>Hoy no hay nada que repasar.</translation>
    </message>
    <message>
        <source>&amp;Review (%1)</source>
        <translation>&amp;Repasar (%1)</translation>
    </message>
    <message>
        <source>Review the characters due (%1)</source>
        <translation>Repasar los caracteres pendientes (%1)</translation>
    </message>
</context>
<context>
    <name>InputCanvas</name>
    <message>
        <source>Writing canvas</source>
        <translation>Área de escritura</translation>
    </message>
    <message>
        <source>Write the character here with the mouse, one stroke at a time</source>
        <translation>Escriba aquí el carácter con el ratón, un trazo cada vez</translation>
    </message>
</context>
<context>
    <name>KanjiInfoDialog</name>
    <message>
        <source> Kanji Info</source>
        <translation> Información del kanji</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Haga clic para ver el carácter escrito trazo a trazo</translation>
    </message>
    <message>
        <source>ON reading:</source>
        <translation>Lectura ON:</translation>
    </message>
    <message>
        <source>KUN reading:</source>
        <translation>Lectura KUN:</translation>
    </message>
    <message>
        <source>Meaning:</source>
        <translation>Significado:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Next review: due now</source>
        <translation>Próximo repaso: ahora</translation>
    </message>
    <message>
        <source>Next review: %1</source>
        <translation>Próximo repaso: %1</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Palabras</translation>
    </message>
    <message>
        <source>Words (meanings in English)</source>
        <translation>Palabras (significados en inglés)</translation>
    </message>
    <message>
        <source>Not learned yet: %1</source>
        <translation>Aún no aprendido: %1</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Componentes</translation>
    </message>
    <message>
        <source>Open the Kanji Info of %1</source>
        <translation>Abrir la información del kanji %1</translation>
    </message>
    <message>
        <source>Part %1, opens its Kanji Info</source>
        <translation>Componente %1, abre su información del kanji</translation>
    </message>
    <message>
        <source>Part %1</source>
        <translation>Componente %1</translation>
    </message>
    <message>
        <source>Other order</source>
        <translation>Otro orden</translation>
    </message>
    <message>
        <source>Another stroke order, shown stroke by stroke</source>
        <translation>Otro orden de trazos, mostrado trazo a trazo</translation>
    </message>
    <message>
        <source>&amp;Show in its category</source>
        <translation>&amp;Ver en su categoría</translation>
    </message>
</context>
<context>
    <name>LearnerTransfer</name>
    <message>
        <source>Export learner</source>
        <translation>Exportar alumno</translation>
    </message>
    <message>
        <source>Zavoren! learners (*.xml);;All files (*)</source>
        <translation>Alumnos de Zavoren! (*.xml);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Import learner</source>
        <translation>Importar alumno</translation>
    </message>
    <message>
        <source>The learner could not be written to &quot;%1&quot;. Nothing was changed.</source>
        <translation>No se pudo escribir el alumno en «%1». No se cambió nada.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read.</source>
        <translation>No se puede leer el archivo «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a learner exported by Zavoren!.</source>
        <translation>«%1» no es un alumno exportado por Zavoren!.</translation>
    </message>
    <message>
        <source>The learner file &quot;%1&quot; is damaged.</source>
        <translation>El archivo de alumno «%1» está dañado.</translation>
    </message>
    <message>
        <source>The learner file &quot;%1&quot; was written with a character database of %2 categories; this one has %3.</source>
        <translation>El archivo de alumno «%1» se escribió con una base de caracteres de %2 categorías; esta tiene %3.</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>No se importó nada.</translation>
    </message>
    <message>
        <source>A learner named &quot;%1&quot; already exists. Replace their record with the imported one?

Yes replaces it; No imports the learner under another name.</source>
        <translation>Ya existe un alumno llamado «%1». ¿Sustituir su registro por el importado?

Sí lo sustituye; No importa al alumno con otro nombre.</translation>
    </message>
</context>
<context>
    <name>LessonPage</name>
    <message>
        <source>Lesson</source>
        <translation>Lección</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Haga clic para ver el carácter escrito trazo a trazo</translation>
    </message>
    <message>
        <source>The character to learn. Click it to watch it being written stroke by stroke.</source>
        <translation>El carácter que aprender. Haga clic para verlo escrito trazo a trazo.</translation>
    </message>
    <message>
        <source>ON reading</source>
        <translation>Lectura ON</translation>
    </message>
    <message>
        <source>KUN reading</source>
        <translation>Lectura KUN</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Significado</translation>
    </message>
    <message>
        <source>Write the character here with the mouse, stroke by stroke in the right order. A stroke that does not match is wiped.</source>
        <translation>Escriba aquí el carácter con el ratón, trazo a trazo en el orden correcto. Un trazo que no coincide se borra.</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>&amp;Pista</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Abandonar</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
</context>
<context>
    <name>LexiconAccess</name>
    <message>
        <source>Words and parts</source>
        <translation>Palabras y componentes</translation>
    </message>
    <message>
        <source>Words and parts cannot be shown: %1</source>
        <translation>No se pueden mostrar las palabras ni los componentes: %1</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Usuarios</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>Progress…</source>
        <translation>Progreso…</translation>
    </message>
    <message>
        <source>Export learner…</source>
        <translation>Exportar alumno…</translation>
    </message>
    <message>
        <source>Import learner…</source>
        <translation>Importar alumno…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Enlaces</translation>
    </message>
    <message>
        <source>Quelmar Software site</source>
        <translation>Sitio de Quelmar Software</translation>
    </message>
    <message>
        <source>Open Quelmar Software web site</source>
        <translation>Abrir el sitio web de Quelmar Software</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>About Zavoren</source>
        <translation>Acerca de Zavoren</translation>
    </message>
    <message>
        <source>Print practice sheet…</source>
        <translation>Imprimir hoja de práctica…</translation>
    </message>
    <message>
        <source>Find a character…</source>
        <translation>Buscar un carácter…</translation>
    </message>
</context>
<context>
    <name>Page</name>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
</context>
<context>
    <name>PracticeSheetDialog</name>
    <message>
        <source>Print practice sheet</source>
        <translation>Imprimir hoja de práctica</translation>
    </message>
    <message>
        <source>Preview of the first page</source>
        <translation>Vista previa de la primera página</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papel:</translation>
    </message>
    <message>
        <source>Boxes per row</source>
        <translation>Casillas por fila</translation>
    </message>
    <message>
        <source>&amp;Boxes per row:</source>
        <translation>&amp;Casillas por fila:</translation>
    </message>
    <message>
        <source>Boxes to trace</source>
        <translation>Casillas para calcar</translation>
    </message>
    <message>
        <source>Boxes to &amp;trace:</source>
        <translation>Casillas para ca&amp;lcar:</translation>
    </message>
    <message>
        <source>Stroke &amp;order</source>
        <translation>&amp;Orden de trazos</translation>
    </message>
    <message>
        <source>Stroke order</source>
        <translation>Orden de trazos</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>Pala&amp;bras</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Palabras</translation>
    </message>
    <message>
        <source>P&amp;rint…</source>
        <translation>&amp;Imprimir…</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>Guardar como P&amp;DF…</translation>
    </message>
    <message>
        <source>Practice sheet</source>
        <translation>Hoja de práctica</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
    </message>
    <message>
        <source>practice-sheet</source>
        <translation>hoja-de-practica</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Archivos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>The sheet could not be written to &quot;%1&quot;: %2</source>
        <translation>No se pudo escribir la hoja en «%1»: %2</translation>
    </message>
    <message>
        <source>Select the characters first: on a category page, or a category on the home page for the characters of its next lesson.</source>
        <translation>Elija primero los caracteres: en una página de categoría, o una categoría en la página de inicio para los caracteres de su próxima lección.</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>Páginas: %1</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Explain refused strokes</source>
        <translation>Explicar los trazos rechazados</translation>
    </message>
    <message>
        <source>Practice grid</source>
        <translation>Cuadrícula de práctica</translation>
    </message>
    <message>
        <source>Show where a stroke starts after three misses</source>
        <translation>Mostrar dónde empieza un trazo tras tres fallos</translation>
    </message>
    <message>
        <source>Bring the window onto the screen at start</source>
        <translation>Traer la ventana a la pantalla al iniciar</translation>
    </message>
    <message>
        <source>Judge place by my own character</source>
        <translation>Juzgar la posición según mi propio carácter</translation>
    </message>
    <message>
        <source>A character written a little off-centre, smaller or larger is fine: each stroke is placed against the strokes you have already written</source>
        <translation>Un carácter escrito un poco descentrado, más pequeño o más grande está bien: cada trazo se sitúa respecto a los trazos que ya has escrito</translation>
    </message>
    <message>
        <source>Review characters when they are due</source>
        <translation>Repasar los caracteres cuando toca</translation>
    </message>
    <message>
        <source>Each learned character comes back for a test when you are about to forget it</source>
        <translation>Cada carácter aprendido vuelve a examen cuando está a punto de olvidarlo</translation>
    </message>
    <message>
        <source>Desired retention</source>
        <translation>Retención deseada</translation>
    </message>
    <message>
        <source>Desired &amp;retention:</source>
        <translation>&amp;Retención deseada:</translation>
    </message>
    <message>
        <source>higher: more reviews, fewer characters forgotten</source>
        <translation>más alta: más repasos, menos caracteres olvidados</translation>
    </message>
    <message>
        <source> days</source>
        <translation> días</translation>
    </message>
    <message>
        <source>Maximum interval</source>
        <translation>Intervalo máximo</translation>
    </message>
    <message>
        <source>&amp;Maximum interval:</source>
        <translation>Intervalo &amp;máximo:</translation>
    </message>
    <message>
        <source>Show words and parts in Kanji Info</source>
        <translation>Mostrar palabras y componentes en la información del kanji</translation>
    </message>
    <message>
        <source>Common words that use the character, and the parts it is built from</source>
        <translation>Palabras comunes que usan el carácter, y los componentes de los que está hecho</translation>
    </message>
    <message>
        <source>Show a word after each answer</source>
        <translation>Mostrar una palabra después de cada respuesta</translation>
    </message>
    <message>
        <source>In the reading test, a common word that uses the character with the reading you have just chosen</source>
        <translation>En la prueba de lectura, una palabra común que usa el carácter con la lectura que acaba de elegir</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Repasos</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Palabras</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Accept other stroke orders</source>
        <translation>Aceptar otros órdenes de trazos</translation>
    </message>
    <message>
        <source>A stroke order taught in other schools, which KanjiVG records, is correct too</source>
        <translation>Un orden de trazos que se enseña en otras escuelas, recogido por KanjiVG, también es correcto</translation>
    </message>
    <message>
        <source>Steady my ink</source>
        <translation>Estabilizar mi trazo</translation>
    </message>
    <message>
        <source>A shaking hand, a finger or a cheap pen: each stroke is smoothed before it is judged</source>
        <translation>Una mano temblorosa, un dedo o un lápiz barato: cada trazo se suaviza antes de juzgarlo</translation>
    </message>
    <message>
        <source>Review by writing only</source>
        <translation>Repasar solo escribiendo</translation>
    </message>
    <message>
        <source>A review asks you to write each character, not to choose its readings</source>
        <translation>Un repaso le pide escribir cada carácter, no elegir sus lecturas</translation>
    </message>
    <message>
        <source>Reviews in one sitting</source>
        <translation>Repasos por sesión</translation>
    </message>
    <message>
        <source>Reviews in one &amp;sitting:</source>
        <translation>Repasos por &amp;sesión:</translation>
    </message>
    <message>
        <source>Words test</source>
        <translation>Prueba de palabras</translation>
    </message>
    <message>
        <source>A Words button on the category page: write whole words made of the characters you have learned</source>
        <translation>Un botón Palabras en la página de categoría: escribir palabras enteras con los caracteres aprendidos</translation>
    </message>
    <message>
        <source>Print practice sheets</source>
        <translation>Imprimir hojas de práctica</translation>
    </message>
    <message>
        <source>&quot;Print practice sheet…&quot; in the File menu and in the category page&apos;s menus</source>
        <translation>«Imprimir hoja de práctica…» en el menú Archivo y en los menús de la página de categoría</translation>
    </message>
</context>
<context>
    <name>ProgressViewer</name>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>The progress window cannot be opened: %1</source>
        <translation>No se puede abrir la ventana de progreso: %1</translation>
    </message>
    <message>
        <source>%1 is not the progress module</source>
        <translation>%1 no es el módulo de progreso</translation>
    </message>
</context>
<context>
    <name>ProgressWindow</name>
    <message>
        <source>Progress of %1</source>
        <translation>Progreso de %1</translation>
    </message>
    <message>
        <source>Category %1</source>
        <translation>Categoría %1</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>&amp;Learned</source>
        <translation>&amp;Aprendidos</translation>
    </message>
    <message>
        <source>&amp;Tests</source>
        <translation>&amp;Pruebas</translation>
    </message>
    <message>
        <source>&amp;Categories</source>
        <translation>&amp;Categorías</translation>
    </message>
    <message>
        <source>T&amp;rouble characters</source>
        <translation>Caracteres &amp;difíciles</translation>
    </message>
    <message>
        <source>Category shown</source>
        <translation>Categoría mostrada</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Todas las categorías</translation>
    </message>
    <message>
        <source>C&amp;ategory:</source>
        <translation>C&amp;ategoría:</translation>
    </message>
    <message>
        <source>Characters learned</source>
        <translation>Caracteres aprendidos</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Caracteres</translation>
    </message>
    <message>
        <source>Characters learned over time</source>
        <translation>Caracteres aprendidos a lo largo del tiempo</translation>
    </message>
    <message>
        <source>Characters learned by %1: %2</source>
        <translation>Caracteres aprendidos hasta el %1: %2</translation>
    </message>
    <message>
        <source>Tests per week</source>
        <translation>Pruebas por semana</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Superadas</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falladas</translation>
    </message>
    <message>
        <source>Week beginning</source>
        <translation>Semana del</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Pruebas</translation>
    </message>
    <message>
        <source>Tests passed and failed per week</source>
        <translation>Pruebas superadas y falladas por semana</translation>
    </message>
    <message>
        <source>Progress in each category</source>
        <translation>Progreso en cada categoría</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Learned</source>
        <translation>Aprendidos</translation>
    </message>
    <message>
        <source>Untested</source>
        <translation>Sin probar</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>%1: %2 of %3 learned</source>
        <translation>%1: %2 de %3 aprendidos</translation>
    </message>
    <message>
        <source>Trouble characters, the most troubled first</source>
        <translation>Caracteres difíciles, los más difíciles primero</translation>
    </message>
    <message>
        <source>1 mistake</source>
        <translation>1 error</translation>
    </message>
    <message>
        <source>%1 mistakes</source>
        <translation>%1 errores</translation>
    </message>
    <message>
        <source>1 test failed</source>
        <translation>1 prueba fallada</translation>
    </message>
    <message>
        <source>%1 tests failed</source>
        <translation>%1 pruebas falladas</translation>
    </message>
    <message>
        <source>Re&amp;views</source>
        <translation>Re&amp;pasos</translation>
    </message>
    <message>
        <source>recall %1 %</source>
        <translation>recuerdo %1 %</translation>
    </message>
    <message>
        <source>Reviews due on each of the next 30 days</source>
        <translation>Repasos previstos en cada uno de los próximos 30 días</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Por repasar</translation>
    </message>
    <message>
        <source>Due today: %1; in the next 30 days: %2</source>
        <translation>Por repasar hoy: %1; en los próximos 30 días: %2</translation>
    </message>
    <message>
        <source>Learned characters and their reviews</source>
        <translation>Caracteres aprendidos y sus repasos</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Carácter</translation>
    </message>
    <message>
        <source>Recall today</source>
        <translation>Recuerdo hoy</translation>
    </message>
    <message>
        <source>Next review</source>
        <translation>Próximo repaso</translation>
    </message>
    <message>
        <source>due now</source>
        <translation>ahora</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
</context>
<context>
    <name>ReadingTestPage</name>
    <message>
        <source>Reading test</source>
        <translation>Prueba de lectura</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Haga clic para ver el carácter escrito trazo a trazo</translation>
    </message>
    <message>
        <source>ON reading:</source>
        <translation>Lectura ON:</translation>
    </message>
    <message>
        <source>KUN reading:</source>
        <translation>Lectura KUN:</translation>
    </message>
    <message>
        <source>Meaning:</source>
        <translation>Significado:</translation>
    </message>
    <message>
        <source>Select ON reading</source>
        <translation>Elija la lectura ON</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Select KUN reading</source>
        <translation>Elija la lectura KUN</translation>
    </message>
    <message>
        <source>A word with this ON reading</source>
        <translation>Una palabra con esta lectura ON</translation>
    </message>
    <message>
        <source>A word with this KUN reading</source>
        <translation>Una palabra con esta lectura KUN</translation>
    </message>
</context>
<context>
    <name>ReviewPage</name>
    <message>
        <source>Review</source>
        <translation>Repaso</translation>
    </message>
    <message>
        <source>Reviews answered</source>
        <translation>Repasos respondidos</translation>
    </message>
    <message>
        <source>The reviews are over.</source>
        <translation>Los repasos han terminado.</translation>
    </message>
    <message>
        <source>Forgotten, to be learned again:</source>
        <translation>Olvidados, para aprender de nuevo:</translation>
    </message>
    <message>
        <source>Forgotten characters</source>
        <translation>Caracteres olvidados</translation>
    </message>
    <message>
        <source>&amp;Info</source>
        <translation>&amp;Información</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Volver</translation>
    </message>
    <message>
        <source>Review %1 of %2</source>
        <translation>Repaso %1 de %2</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>Categoría: %1</translation>
    </message>
    <message>
        <source>Reviewed %1 of %2</source>
        <translation>Repasados %1 de %2</translation>
    </message>
    <message>
        <source>Reviewed: %1
Remembered without mistakes: %2
Remembered with mistakes: %3
Forgotten: %4</source>
        <translation>Repasados: %1
Recordados sin errores: %2
Recordados con errores: %3
Olvidados: %4</translation>
    </message>
    <message>
        <source>Next reviews: tomorrow %1, this week %2</source>
        <translation>Próximos repasos: mañana %1, esta semana %2</translation>
    </message>
</context>
<context>
    <name>SplashWindow</name>
    <message>
        <source>Zavoren! is starting</source>
        <translation>Zavoren! se está iniciando</translation>
    </message>
    <message>
        <source>Loading the characters</source>
        <translation>Cargando los caracteres</translation>
    </message>
</context>
<context>
    <name>TestContainer</name>
    <message>
        <source>Test</source>
        <translation>Prueba</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Abandonar</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
</context>
<context>
    <name>UserManagerDialog</name>
    <message>
        <source>User Manager</source>
        <translation>Administrador de usuarios</translation>
    </message>
    <message>
        <source>&amp;Users:</source>
        <translation>&amp;Usuarios:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Usuarios</translation>
    </message>
    <message>
        <source>Delete User</source>
        <translation>Eliminar usuario</translation>
    </message>
    <message>
        <source>Delete current user?</source>
        <translation>¿Eliminar el usuario actual?</translation>
    </message>
    <message>
        <source>Delete user?</source>
        <translation>¿Eliminar el usuario?</translation>
    </message>
</context>
<context>
    <name>WordsTestPage</name>
    <message>
        <source>Words test</source>
        <translation>Prueba de palabras</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>&amp;Pista</translation>
    </message>
    <message>
        <source>I &amp;don&apos;t know</source>
        <translation>&amp;No lo sé</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Abandonar</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>Word %1 of %2</source>
        <translation>Palabra %1 de %2</translation>
    </message>
    <message>
        <source>Reading: %1</source>
        <translation>Lectura: %1</translation>
    </message>
    <message>
        <source>Meaning: %1</source>
        <translation>Significado: %1</translation>
    </message>
    <message>
        <source>Square %1 of the word</source>
        <translation>Casilla %1 de la palabra</translation>
    </message>
    <message>
        <source>Click for Kanji Info</source>
        <translation>Haga clic para la información del kanji</translation>
    </message>
    <message>
        <source>The word: %1, read %2</source>
        <translation>La palabra: %1, leída %2</translation>
    </message>
</context>
<context>
    <name>WritingCoach</name>
    <message>
        <source>Wrong order: that is stroke %1. Write stroke %2 first.</source>
        <translation>Orden equivocado: ese es el trazo %1. Escriba primero el trazo %2.</translation>
    </message>
    <message>
        <source>Wrong direction: start this stroke from the other end.</source>
        <translation>Dirección equivocada: empiece este trazo por el otro extremo.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further up.</source>
        <translation>Lugar equivocado: este trazo va más arriba.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further down.</source>
        <translation>Lugar equivocado: este trazo va más abajo.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further left.</source>
        <translation>Lugar equivocado: este trazo va más a la izquierda.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further right.</source>
        <translation>Lugar equivocado: este trazo va más a la derecha.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further up and to the left.</source>
        <translation>Lugar equivocado: este trazo va más arriba y a la izquierda.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further up and to the right.</source>
        <translation>Lugar equivocado: este trazo va más arriba y a la derecha.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further down and to the left.</source>
        <translation>Lugar equivocado: este trazo va más abajo y a la izquierda.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further down and to the right.</source>
        <translation>Lugar equivocado: este trazo va más abajo y a la derecha.</translation>
    </message>
    <message>
        <source>Wrong place.</source>
        <translation>Lugar equivocado.</translation>
    </message>
    <message>
        <source>Too short: this stroke is longer.</source>
        <translation>Demasiado corto: este trazo es más largo.</translation>
    </message>
    <message>
        <source>Too long: this stroke is shorter.</source>
        <translation>Demasiado largo: este trazo es más corto.</translation>
    </message>
    <message>
        <source>Wrong shape: compare it with the model.</source>
        <translation>Forma equivocada: compárela con el modelo.</translation>
    </message>
    <message>
        <source>The character is already complete.</source>
        <translation>El carácter ya está completo.</translation>
    </message>
    <message>
        <source>Also correct: the order taught in other schools.</source>
        <translation>También es correcto: el orden que se enseña en otras escuelas.</translation>
    </message>
</context>
<context>
    <name>ZavorenCommon</name>
    <message>
        <source>Zavoren Database Error</source>
        <translation>Error de base de datos de Zavoren</translation>
    </message>
    <message>
        <source>Zavoren Configuration Error</source>
        <translation>Error de configuración de Zavoren</translation>
    </message>
    <message>
        <source>Unable to open database</source>
        <translation>No se puede abrir la base de datos</translation>
    </message>
    <message>
        <source>Unable to read database header</source>
        <translation>No se puede leer la cabecera de la base de datos</translation>
    </message>
    <message>
        <source>Unable to read dictionary</source>
        <translation>No se puede leer el diccionario</translation>
    </message>
    <message>
        <source>Character id out of range</source>
        <translation>Identificador de carácter fuera de rango</translation>
    </message>
    <message>
        <source>Character does not exist</source>
        <translation>El carácter no existe</translation>
    </message>
    <message>
        <source>Unable to load character</source>
        <translation>No se puede cargar el carácter</translation>
    </message>
    <message>
        <source>Element id out of range</source>
        <translation>Identificador de elemento fuera de rango</translation>
    </message>
    <message>
        <source>Element does not exist</source>
        <translation>El elemento no existe</translation>
    </message>
    <message>
        <source>Unable to load element</source>
        <translation>No se puede cargar el elemento</translation>
    </message>
    <message>
        <source>No such category</source>
        <translation>No existe esa categoría</translation>
    </message>
    <message>
        <source>Unable to load category</source>
        <translation>No se puede cargar la categoría</translation>
    </message>
    <message>
        <source>Config file does not exist. Try to reinstall Zavoren.</source>
        <translation>El archivo de configuración no existe. Intente reinstalar Zavoren.</translation>
    </message>
    <message>
        <source>Config file is ReadOnly. Check file attirbutes or reinstall Zavoren.</source>
        <translation>El archivo de configuración es de solo lectura. Compruebe sus atributos o reinstale Zavoren.</translation>
    </message>
    <message>
        <source>Unable to load config</source>
        <translation>No se puede cargar la configuración</translation>
    </message>
    <message>
        <source>Unable to save config</source>
        <translation>No se puede guardar la configuración</translation>
    </message>
    <message>
        <source>Unable to open lexicon</source>
        <translation>No se puede abrir el léxico</translation>
    </message>
    <message>
        <source>The lexicon file is damaged</source>
        <translation>El archivo del léxico está dañado</translation>
    </message>
    <message>
        <source>The lexicon was made for another database</source>
        <translation>El léxico se hizo para otra base de datos</translation>
    </message>
</context>
</TS>
