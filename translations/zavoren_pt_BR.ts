<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Zavoren!</source>
        <translation>Sobre o Zavoren!</translation>
    </message>
    <message>
        <source>Zavoren! icon</source>
        <translation>Ícone do Zavoren!</translation>
    </message>
    <message>
        <source>Zavoren! Kanji Learning Program</source>
        <translation>Zavoren! Programa de aprendizado de kanji</translation>
    </message>
    <message>
        <source>Copyright © Quelmar Software. Teaches kanji by writing.</source>
        <translation>Copyright © Quelmar Software. Ensina kanji pela escrita.</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Suporte</translation>
    </message>
    <message>
        <source>Stroke data: KanjiVG, © Ulrich Apel, CC BY-SA 3.0.
Readings and meanings: KANJIDIC2, © the Electronic Dictionary Research and Development Group, CC BY-SA 4.0.
The character database is a derived work shared under CC BY-SA.</source>
        <translation>Dados dos traços: KanjiVG, © Ulrich Apel, CC BY-SA 3.0.
Leituras e significados: KANJIDIC2, © Electronic Dictionary Research and Development Group, CC BY-SA 4.0.
A base de caracteres é uma obra derivada compartilhada sob CC BY-SA.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>unknown version</source>
        <translation>versão desconhecida</translation>
    </message>
    <message>
        <source>Words: EDICT, © the Electronic Dictionary Research and Development Group, CC BY-SA 4.0; parts: KanjiVG.</source>
        <translation>Palavras: EDICT, © Electronic Dictionary Research and Development Group, CC BY-SA 4.0; componentes: KanjiVG.</translation>
    </message>
    <message>
        <source>Handwriting recognition: Zinnia, © Taku Kudo, BSD; its Japanese model from the Tegaki project, LGPL-2.1+.</source>
        <translation>Reconhecimento de escrita: Zinnia, © Taku Kudo, BSD; seu modelo japonês, do projeto Tegaki, LGPL-2.1+.</translation>
    </message>
</context>
<context>
    <name>AddUserDialog</name>
    <message>
        <source>Add New User</source>
        <translation>Adicionar usuário</translation>
    </message>
    <message>
        <source>&amp;Enter user name:</source>
        <translation>&amp;Nome do usuário:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Can&apos;t create user</source>
        <translation>Não é possível criar o usuário</translation>
    </message>
    <message>
        <source>A user name cannot contain an apostrophe (&apos;). Try another user name</source>
        <translation>Um nome de usuário não pode conter apóstrofo (&apos;). Tente outro nome</translation>
    </message>
    <message>
        <source>User already exists. Try another user name</source>
        <translation>O usuário já existe. Tente outro nome</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
    <message>
        <source>All characters of the category: those learned, and those still to be learned. Right-click a character for more.</source>
        <translation>Todos os caracteres da categoria: os aprendidos e os que faltam aprender. Clique com o botão direito em um caractere para mais opções.</translation>
    </message>
    <message>
        <source>Untested:</source>
        <translation>Não testados:</translation>
    </message>
    <message>
        <source>Characters met in a lesson and waiting for a test.</source>
        <translation>Caracteres vistos em uma lição que aguardam um teste.</translation>
    </message>
    <message>
        <source>&amp;Lesson</source>
        <translation>&amp;Lição</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Teste</translation>
    </message>
    <message>
        <source>&amp;Retest</source>
        <translation>&amp;Refazer teste</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>&amp;Esquecer</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Voltar</translation>
    </message>
    <message>
        <source>To learn characters press &apos;Lesson&apos; button and then test learned characters by pressing &apos;Test&apos; button.</source>
        <translation>Para aprender caracteres pressione &quot;Lição&quot; e depois teste os aprendidos com &quot;Teste&quot;.</translation>
    </message>
    <message>
        <source>Category complete</source>
        <translation>Categoria concluída</translation>
    </message>
    <message>
        <source>Characters of the category</source>
        <translation>Caracteres da categoria</translation>
    </message>
    <message>
        <source>Untested characters</source>
        <translation>Caracteres não testados</translation>
    </message>
    <message>
        <source>Learned</source>
        <translation>Aprendidos</translation>
    </message>
    <message>
        <source>&amp;Info</source>
        <translation>&amp;Informações</translation>
    </message>
    <message>
        <source>&amp;Review</source>
        <translation>&amp;Revisar</translation>
    </message>
    <message>
        <source>Unlearned</source>
        <translation>Não aprendidos</translation>
    </message>
    <message>
        <source>&amp;Learn</source>
        <translation>&amp;Aprender</translation>
    </message>
    <message>
        <source>Untested</source>
        <translation>Não testados</translation>
    </message>
    <message>
        <source>Learned Kanji</source>
        <translation>Kanji aprendidos</translation>
    </message>
    <message>
        <source>Kanji to be Learned</source>
        <translation>Kanji a aprender</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>&amp;Palavras</translation>
    </message>
    <message>
        <source>Write whole words made of the characters you have learned</source>
        <translation>Escrever palavras inteiras com os caracteres aprendidos</translation>
    </message>
    <message>
        <source>&amp;Print practice sheet…</source>
        <translation>Im&amp;primir folha de prática…</translation>
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
        <translation>Ops...<byte value="xd"/>
Erro fatal no Zavoren.<byte value="xd"/>
<byte value="xd"/>
Deseja obter um minidump?</translation>
    </message>
    <message>
        <source>Unhandled Exception</source>
        <translation>Exceção não tratada</translation>
    </message>
    <message>
        <source>MiniDump</source>
        <translation>MiniDump</translation>
    </message>
    <message>
        <source>Minidump successfuly created in application folder.</source>
        <translation>Minidump criado na pasta do aplicativo.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Unable to generate minidump.</source>
        <translation>Não é possível gerar o minidump.</translation>
    </message>
</context>
<context>
    <name>DisplayCanvas</name>
    <message>
        <source>Character</source>
        <translation>Caractere</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Clique para ver o caractere escrito traço a traço</translation>
    </message>
</context>
<context>
    <name>DrawingTestPage</name>
    <message>
        <source>Drawing test</source>
        <translation>Teste de escrita</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Clique para ver o caractere escrito traço a traço</translation>
    </message>
    <message>
        <source>ON reading:</source>
        <translation>Leitura ON:</translation>
    </message>
    <message>
        <source>KUN reading:</source>
        <translation>Leitura KUN:</translation>
    </message>
    <message>
        <source>Meaning:</source>
        <translation>Significado:</translation>
    </message>
    <message>
        <source>Write the character from its readings and meaning. Click the box on the left to see it (counts as a mistake before the drawing is complete).</source>
        <translation>Escreva o caractere a partir de suas leituras e significado. Clique no quadro à esquerda para vê-lo (conta como erro antes de terminar o desenho).</translation>
    </message>
</context>
<context>
    <name>FeedbackLine</name>
    <message>
        <source>Stroke feedback</source>
        <translation>Comentário sobre o traço</translation>
    </message>
</context>
<context>
    <name>FindCharacterWindow</name>
    <message>
        <source>Find a character</source>
        <translation>Encontrar um caractere</translation>
    </message>
    <message>
        <source>&amp;Type a character, a reading in kana or an English word:</source>
        <translation>Di&amp;gite um caractere, uma leitura em kana ou uma palavra em inglês:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Busca</translation>
    </message>
    <message>
        <source>Or write it:</source>
        <translation>Ou escreva-o:</translation>
    </message>
    <message>
        <source>Write the character here</source>
        <translation>Escreva o caractere aqui</translation>
    </message>
    <message>
        <source>Reading the handwriting model…</source>
        <translation>Lendo o modelo de escrita…</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Limpar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>Characters found</source>
        <translation>Caracteres encontrados</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Caractere</translation>
    </message>
    <message>
        <source>Readings</source>
        <translation>Leituras</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Significado</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
    <message>
        <source>Writing needs the words and parts file (lexicon) beside the database.</source>
        <translation>Escrever precisa do arquivo de palavras e partes (lexicon) ao lado do banco de dados.</translation>
    </message>
    <message>
        <source>The handwriting model is not installed (Debian package tegaki-zinnia-japanese): characters are found from Zavoren!&apos;s own strokes only, written in their stroke order.</source>
        <translation>O modelo de escrita não está instalado (pacote Debian tegaki-zinnia-japanese): os caracteres são encontrados só pelos traços do próprio Zavoren!, escritos na sua ordem.</translation>
    </message>
</context>
<context>
    <name>HistoryNotice</name>
    <message>
        <source>Learning history</source>
        <translation>Histórico de aprendizado</translation>
    </message>
    <message>
        <source>The learning history cannot be kept: %1</source>
        <translation>O histórico de aprendizado não pode ser mantido: %1</translation>
    </message>
    <message>
        <source>The damaged file is kept as &quot;%1&quot;.</source>
        <translation>O arquivo danificado foi mantido como “%1”.</translation>
    </message>
    <message>
        <source>Until it can be kept again, your progress and history are saved in config.xml.</source>
        <translation>Até que possa ser mantido novamente, seu progresso e seu histórico são salvos em config.xml.</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Home</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Usuário:</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome de usuário</translation>
    </message>
    <message>
        <source>&amp;Categories:</source>
        <translation>&amp;Categorias:</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorias</translation>
    </message>
    <message>
        <source> (%1 of %2)</source>
        <translation> (%1 de %2)</translation>
    </message>
    <message>
        <source> (%1 of %2, %3 due)</source>
        <translation> (%1 de %2, %3 para revisar)</translation>
    </message>
    <message>
        <source>Due for review today: %1</source>
        <translation>Para revisar hoje: %1</translation>
    </message>
    <message>
        <source>Nothing is due for review today.</source>
        <translation>Nada para revisar hoje.</translation>
    </message>
    <message>
        <source>&amp;Review (%1)</source>
        <translation>&amp;Revisar (%1)</translation>
    </message>
    <message>
        <source>Review the characters due (%1)</source>
        <translation>Revisar os caracteres pendentes (%1)</translation>
    </message>
</context>
<context>
    <name>InputCanvas</name>
    <message>
        <source>Writing canvas</source>
        <translation>Área de escrita</translation>
    </message>
    <message>
        <source>Write the character here with the mouse, one stroke at a time</source>
        <translation>Escreva o caractere aqui com o mouse, um traço por vez</translation>
    </message>
</context>
<context>
    <name>KanjiInfoDialog</name>
    <message>
        <source> Kanji Info</source>
        <translation> Informações do kanji</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Clique para ver o caractere escrito traço a traço</translation>
    </message>
    <message>
        <source>ON reading:</source>
        <translation>Leitura ON:</translation>
    </message>
    <message>
        <source>KUN reading:</source>
        <translation>Leitura KUN:</translation>
    </message>
    <message>
        <source>Meaning:</source>
        <translation>Significado:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Next review: due now</source>
        <translation>Próxima revisão: agora</translation>
    </message>
    <message>
        <source>Next review: %1</source>
        <translation>Próxima revisão: %1</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Palavras</translation>
    </message>
    <message>
        <source>Words (meanings in English)</source>
        <translation>Palavras (significados em inglês)</translation>
    </message>
    <message>
        <source>Not learned yet: %1</source>
        <translation>Ainda não aprendido: %1</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Componentes</translation>
    </message>
    <message>
        <source>Open the Kanji Info of %1</source>
        <translation>Abrir as informações do kanji %1</translation>
    </message>
    <message>
        <source>Part %1, opens its Kanji Info</source>
        <translation>Componente %1, abre as informações do kanji</translation>
    </message>
    <message>
        <source>Part %1</source>
        <translation>Componente %1</translation>
    </message>
    <message>
        <source>Other order</source>
        <translation>Outra ordem</translation>
    </message>
    <message>
        <source>Another stroke order, shown stroke by stroke</source>
        <translation>Outra ordem de traços, mostrada traço a traço</translation>
    </message>
    <message>
        <source>&amp;Show in its category</source>
        <translation>&amp;Ver na sua categoria</translation>
    </message>
</context>
<context>
    <name>LearnerTransfer</name>
    <message>
        <source>Export learner</source>
        <translation>Exportar aluno</translation>
    </message>
    <message>
        <source>Zavoren! learners (*.xml);;All files (*)</source>
        <translation>Alunos do Zavoren! (*.xml);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Import learner</source>
        <translation>Importar aluno</translation>
    </message>
    <message>
        <source>The learner could not be written to &quot;%1&quot;. Nothing was changed.</source>
        <translation>Não foi possível gravar o aluno em &quot;%1&quot;. Nada foi alterado.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read.</source>
        <translation>O arquivo &quot;%1&quot; não pode ser lido.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a learner exported by Zavoren!.</source>
        <translation>&quot;%1&quot; não é um aluno exportado pelo Zavoren!.</translation>
    </message>
    <message>
        <source>The learner file &quot;%1&quot; is damaged.</source>
        <translation>O arquivo de aluno &quot;%1&quot; está danificado.</translation>
    </message>
    <message>
        <source>The learner file &quot;%1&quot; was written with a character database of %2 categories; this one has %3.</source>
        <translation>O arquivo de aluno &quot;%1&quot; foi gravado com uma base de caracteres de %2 categorias; esta tem %3.</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Nada foi importado.</translation>
    </message>
    <message>
        <source>A learner named &quot;%1&quot; already exists. Replace their record with the imported one?

Yes replaces it; No imports the learner under another name.</source>
        <translation>Já existe um aluno chamado &quot;%1&quot;. Substituir o registro dele pelo importado?

Sim substitui; Não importa o aluno com outro nome.</translation>
    </message>
</context>
<context>
    <name>LessonPage</name>
    <message>
        <source>Lesson</source>
        <translation>Lição</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Clique para ver o caractere escrito traço a traço</translation>
    </message>
    <message>
        <source>The character to learn. Click it to watch it being written stroke by stroke.</source>
        <translation>O caractere a aprender. Clique nele para vê-lo escrito traço a traço.</translation>
    </message>
    <message>
        <source>ON reading</source>
        <translation>Leitura ON</translation>
    </message>
    <message>
        <source>KUN reading</source>
        <translation>Leitura KUN</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Significado</translation>
    </message>
    <message>
        <source>Write the character here with the mouse, stroke by stroke in the right order. A stroke that does not match is wiped.</source>
        <translation>Escreva o caractere aqui com o mouse, traço a traço na ordem certa. Um traço que não confere é apagado.</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Limpar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>&amp;Dica</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Abandonar</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Próximo</translation>
    </message>
</context>
<context>
    <name>LexiconAccess</name>
    <message>
        <source>Words and parts</source>
        <translation>Palavras e componentes</translation>
    </message>
    <message>
        <source>Words and parts cannot be shown: %1</source>
        <translation>Não é possível mostrar as palavras e os componentes: %1</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Usuários</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Ferramentas</translation>
    </message>
    <message>
        <source>Progress…</source>
        <translation>Progresso…</translation>
    </message>
    <message>
        <source>Export learner…</source>
        <translation>Exportar aluno…</translation>
    </message>
    <message>
        <source>Import learner…</source>
        <translation>Importar aluno…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferências…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Conteúdo</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Quelmar Software site</source>
        <translation>Site da Quelmar Software</translation>
    </message>
    <message>
        <source>Open Quelmar Software web site</source>
        <translation>Abrir o site da Quelmar Software</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>About Zavoren</source>
        <translation>Sobre o Zavoren</translation>
    </message>
    <message>
        <source>Print practice sheet…</source>
        <translation>Imprimir folha de prática…</translation>
    </message>
    <message>
        <source>Find a character…</source>
        <translation>Encontrar um caractere…</translation>
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
        <translation>Imprimir folha de prática</translation>
    </message>
    <message>
        <source>Preview of the first page</source>
        <translation>Prévia da primeira página</translation>
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
        <translation>Quadros por linha</translation>
    </message>
    <message>
        <source>&amp;Boxes per row:</source>
        <translation>&amp;Quadros por linha:</translation>
    </message>
    <message>
        <source>Boxes to trace</source>
        <translation>Quadros para cobrir</translation>
    </message>
    <message>
        <source>Boxes to &amp;trace:</source>
        <translation>Quadros para &amp;cobrir:</translation>
    </message>
    <message>
        <source>Stroke &amp;order</source>
        <translation>&amp;Ordem dos traços</translation>
    </message>
    <message>
        <source>Stroke order</source>
        <translation>Ordem dos traços</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>Pala&amp;vras</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Palavras</translation>
    </message>
    <message>
        <source>P&amp;rint…</source>
        <translation>&amp;Imprimir…</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>Salvar como P&amp;DF…</translation>
    </message>
    <message>
        <source>Practice sheet</source>
        <translation>Folha de prática</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Salvar como PDF</translation>
    </message>
    <message>
        <source>practice-sheet</source>
        <translation>folha-de-pratica</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Arquivos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>The sheet could not be written to &quot;%1&quot;: %2</source>
        <translation>Não foi possível gravar a folha em “%1”: %2</translation>
    </message>
    <message>
        <source>Select the characters first: on a category page, or a category on the home page for the characters of its next lesson.</source>
        <translation>Escolha primeiro os caracteres: numa página de categoria, ou uma categoria na página inicial para os caracteres da próxima lição.</translation>
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
        <translation>Preferências</translation>
    </message>
    <message>
        <source>Explain refused strokes</source>
        <translation>Explicar os traços recusados</translation>
    </message>
    <message>
        <source>Practice grid</source>
        <translation>Grade de prática</translation>
    </message>
    <message>
        <source>Show where a stroke starts after three misses</source>
        <translation>Mostrar onde começa um traço após três erros</translation>
    </message>
    <message>
        <source>Bring the window onto the screen at start</source>
        <translation>Trazer a janela para a tela ao iniciar</translation>
    </message>
    <message>
        <source>Judge place by my own character</source>
        <translation>Julgar a posição pelo meu próprio caractere</translation>
    </message>
    <message>
        <source>A character written a little off-centre, smaller or larger is fine: each stroke is placed against the strokes you have already written</source>
        <translation>Um caractere escrito um pouco fora do centro, menor ou maior está certo: cada traço é situado em relação aos traços que você já escreveu</translation>
    </message>
    <message>
        <source>Review characters when they are due</source>
        <translation>Revisar os caracteres na hora certa</translation>
    </message>
    <message>
        <source>Each learned character comes back for a test when you are about to forget it</source>
        <translation>Cada caractere aprendido volta para um teste quando você está prestes a esquecê-lo</translation>
    </message>
    <message>
        <source>Desired retention</source>
        <translation>Retenção desejada</translation>
    </message>
    <message>
        <source>Desired &amp;retention:</source>
        <translation>&amp;Retenção desejada:</translation>
    </message>
    <message>
        <source>higher: more reviews, fewer characters forgotten</source>
        <translation>mais alta: mais revisões, menos caracteres esquecidos</translation>
    </message>
    <message>
        <source> days</source>
        <translation> dias</translation>
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
        <translation>Mostrar palavras e componentes nas informações do kanji</translation>
    </message>
    <message>
        <source>Common words that use the character, and the parts it is built from</source>
        <translation>Palavras comuns que usam o caractere, e os componentes de que ele é feito</translation>
    </message>
    <message>
        <source>Show a word after each answer</source>
        <translation>Mostrar uma palavra depois de cada resposta</translation>
    </message>
    <message>
        <source>In the reading test, a common word that uses the character with the reading you have just chosen</source>
        <translation>No teste de leitura, uma palavra comum que usa o caractere com a leitura que você acabou de escolher</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Escrita</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Revisões</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Palavras</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Janela</translation>
    </message>
    <message>
        <source>Accept other stroke orders</source>
        <translation>Aceitar outras ordens de traços</translation>
    </message>
    <message>
        <source>A stroke order taught in other schools, which KanjiVG records, is correct too</source>
        <translation>Uma ordem de traços ensinada em outras escolas, registrada pelo KanjiVG, também está correta</translation>
    </message>
    <message>
        <source>Steady my ink</source>
        <translation>Estabilizar meu traço</translation>
    </message>
    <message>
        <source>A shaking hand, a finger or a cheap pen: each stroke is smoothed before it is judged</source>
        <translation>Uma mão trêmula, um dedo ou uma caneta barata: cada traço é suavizado antes de ser avaliado</translation>
    </message>
    <message>
        <source>Review by writing only</source>
        <translation>Revisar só escrevendo</translation>
    </message>
    <message>
        <source>A review asks you to write each character, not to choose its readings</source>
        <translation>Uma revisão pede que você escreva cada caractere, não que escolha suas leituras</translation>
    </message>
    <message>
        <source>Reviews in one sitting</source>
        <translation>Revisões por sessão</translation>
    </message>
    <message>
        <source>Reviews in one &amp;sitting:</source>
        <translation>Revisões por &amp;sessão:</translation>
    </message>
    <message>
        <source>Words test</source>
        <translation>Teste de palavras</translation>
    </message>
    <message>
        <source>A Words button on the category page: write whole words made of the characters you have learned</source>
        <translation>Um botão Palavras na página da categoria: escrever palavras inteiras com os caracteres aprendidos</translation>
    </message>
    <message>
        <source>Print practice sheets</source>
        <translation>Imprimir folhas de prática</translation>
    </message>
    <message>
        <source>&quot;Print practice sheet…&quot; in the File menu and in the category page&apos;s menus</source>
        <translation>“Imprimir folha de prática…” no menu Arquivo e nos menus da página de categoria</translation>
    </message>
</context>
<context>
    <name>ProgressViewer</name>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>The progress window cannot be opened: %1</source>
        <translation>Não é possível abrir a janela de progresso: %1</translation>
    </message>
    <message>
        <source>%1 is not the progress module</source>
        <translation>%1 não é o módulo de progresso</translation>
    </message>
</context>
<context>
    <name>ProgressWindow</name>
    <message>
        <source>Progress of %1</source>
        <translation>Progresso de %1</translation>
    </message>
    <message>
        <source>Category %1</source>
        <translation>Categoria %1</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>&amp;Learned</source>
        <translation>&amp;Aprendidos</translation>
    </message>
    <message>
        <source>&amp;Tests</source>
        <translation>&amp;Testes</translation>
    </message>
    <message>
        <source>&amp;Categories</source>
        <translation>&amp;Categorias</translation>
    </message>
    <message>
        <source>T&amp;rouble characters</source>
        <translation>Caracteres &amp;difíceis</translation>
    </message>
    <message>
        <source>Category shown</source>
        <translation>Categoria exibida</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Todas as categorias</translation>
    </message>
    <message>
        <source>C&amp;ategory:</source>
        <translation>C&amp;ategoria:</translation>
    </message>
    <message>
        <source>Characters learned</source>
        <translation>Caracteres aprendidos</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Caracteres</translation>
    </message>
    <message>
        <source>Characters learned over time</source>
        <translation>Caracteres aprendidos ao longo do tempo</translation>
    </message>
    <message>
        <source>Characters learned by %1: %2</source>
        <translation>Caracteres aprendidos até %1: %2</translation>
    </message>
    <message>
        <source>Tests per week</source>
        <translation>Testes por semana</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Aprovados</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Com falha</translation>
    </message>
    <message>
        <source>Week beginning</source>
        <translation>Semana de</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Testes</translation>
    </message>
    <message>
        <source>Tests passed and failed per week</source>
        <translation>Testes aprovados e com falha por semana</translation>
    </message>
    <message>
        <source>Progress in each category</source>
        <translation>Progresso em cada categoria</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
    <message>
        <source>Learned</source>
        <translation>Aprendidos</translation>
    </message>
    <message>
        <source>Untested</source>
        <translation>Não testados</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Feito</translation>
    </message>
    <message>
        <source>%1: %2 of %3 learned</source>
        <translation>%1: %2 de %3 aprendidos</translation>
    </message>
    <message>
        <source>Trouble characters, the most troubled first</source>
        <translation>Caracteres difíceis, os mais difíceis primeiro</translation>
    </message>
    <message>
        <source>1 mistake</source>
        <translation>1 erro</translation>
    </message>
    <message>
        <source>%1 mistakes</source>
        <translation>%1 erros</translation>
    </message>
    <message>
        <source>1 test failed</source>
        <translation>1 teste com falha</translation>
    </message>
    <message>
        <source>%1 tests failed</source>
        <translation>%1 testes com falha</translation>
    </message>
    <message>
        <source>Re&amp;views</source>
        <translation>Re&amp;visões</translation>
    </message>
    <message>
        <source>recall %1 %</source>
        <translation>lembrança %1 %</translation>
    </message>
    <message>
        <source>Reviews due on each of the next 30 days</source>
        <translation>Revisões previstas em cada um dos próximos 30 dias</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Para revisar</translation>
    </message>
    <message>
        <source>Due today: %1; in the next 30 days: %2</source>
        <translation>Para revisar hoje: %1; nos próximos 30 dias: %2</translation>
    </message>
    <message>
        <source>Learned characters and their reviews</source>
        <translation>Caracteres aprendidos e suas revisões</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Caractere</translation>
    </message>
    <message>
        <source>Recall today</source>
        <translation>Lembrança hoje</translation>
    </message>
    <message>
        <source>Next review</source>
        <translation>Próxima revisão</translation>
    </message>
    <message>
        <source>due now</source>
        <translation>agora</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dia</translation>
    </message>
</context>
<context>
    <name>ReadingTestPage</name>
    <message>
        <source>Reading test</source>
        <translation>Teste de leitura</translation>
    </message>
    <message>
        <source>Click to see the character written stroke by stroke</source>
        <translation>Clique para ver o caractere escrito traço a traço</translation>
    </message>
    <message>
        <source>ON reading:</source>
        <translation>Leitura ON:</translation>
    </message>
    <message>
        <source>KUN reading:</source>
        <translation>Leitura KUN:</translation>
    </message>
    <message>
        <source>Meaning:</source>
        <translation>Significado:</translation>
    </message>
    <message>
        <source>Select ON reading</source>
        <translation>Escolha a leitura ON</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Select KUN reading</source>
        <translation>Escolha a leitura KUN</translation>
    </message>
    <message>
        <source>A word with this ON reading</source>
        <translation>Uma palavra com esta leitura ON</translation>
    </message>
    <message>
        <source>A word with this KUN reading</source>
        <translation>Uma palavra com esta leitura KUN</translation>
    </message>
</context>
<context>
    <name>ReviewPage</name>
    <message>
        <source>Review</source>
        <translation>Revisão</translation>
    </message>
    <message>
        <source>Reviews answered</source>
        <translation>Revisões respondidas</translation>
    </message>
    <message>
        <source>The reviews are over.</source>
        <translation>As revisões terminaram.</translation>
    </message>
    <message>
        <source>Forgotten, to be learned again:</source>
        <translation>Esquecidos, para aprender de novo:</translation>
    </message>
    <message>
        <source>Forgotten characters</source>
        <translation>Caracteres esquecidos</translation>
    </message>
    <message>
        <source>&amp;Info</source>
        <translation>&amp;Informações</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Voltar</translation>
    </message>
    <message>
        <source>Review %1 of %2</source>
        <translation>Revisão %1 de %2</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>Categoria: %1</translation>
    </message>
    <message>
        <source>Reviewed %1 of %2</source>
        <translation>Revisados %1 de %2</translation>
    </message>
    <message>
        <source>Reviewed: %1
Remembered without mistakes: %2
Remembered with mistakes: %3
Forgotten: %4</source>
        <translation>Revisados: %1
Lembrados sem erros: %2
Lembrados com erros: %3
Esquecidos: %4</translation>
    </message>
    <message>
        <source>Next reviews: tomorrow %1, this week %2</source>
        <translation>Próximas revisões: amanhã %1, esta semana %2</translation>
    </message>
</context>
<context>
    <name>SplashWindow</name>
    <message>
        <source>Zavoren! is starting</source>
        <translation>Zavoren! está iniciando</translation>
    </message>
    <message>
        <source>Loading the characters</source>
        <translation>Carregando os caracteres</translation>
    </message>
</context>
<context>
    <name>TestContainer</name>
    <message>
        <source>Test</source>
        <translation>Teste</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Abandonar</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Próximo</translation>
    </message>
</context>
<context>
    <name>UserManagerDialog</name>
    <message>
        <source>User Manager</source>
        <translation>Gerenciador de usuários</translation>
    </message>
    <message>
        <source>&amp;Users:</source>
        <translation>&amp;Usuários:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Adicionar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Excluir</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Usuários</translation>
    </message>
    <message>
        <source>Delete User</source>
        <translation>Excluir usuário</translation>
    </message>
    <message>
        <source>Delete current user?</source>
        <translation>Excluir o usuário atual?</translation>
    </message>
    <message>
        <source>Delete user?</source>
        <translation>Excluir o usuário?</translation>
    </message>
</context>
<context>
    <name>WordsTestPage</name>
    <message>
        <source>Words test</source>
        <translation>Teste de palavras</translation>
    </message>
    <message>
        <source>&amp;Hint</source>
        <translation>&amp;Dica</translation>
    </message>
    <message>
        <source>I &amp;don&apos;t know</source>
        <translation>&amp;Não sei</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Abandonar</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Próximo</translation>
    </message>
    <message>
        <source>Word %1 of %2</source>
        <translation>Palavra %1 de %2</translation>
    </message>
    <message>
        <source>Reading: %1</source>
        <translation>Leitura: %1</translation>
    </message>
    <message>
        <source>Meaning: %1</source>
        <translation>Significado: %1</translation>
    </message>
    <message>
        <source>Square %1 of the word</source>
        <translation>Quadro %1 da palavra</translation>
    </message>
    <message>
        <source>Click for Kanji Info</source>
        <translation>Clique para as informações do kanji</translation>
    </message>
    <message>
        <source>The word: %1, read %2</source>
        <translation>A palavra: %1, lida %2</translation>
    </message>
</context>
<context>
    <name>WritingCoach</name>
    <message>
        <source>Wrong order: that is stroke %1. Write stroke %2 first.</source>
        <translation>Ordem errada: esse é o traço %1. Escreva primeiro o traço %2.</translation>
    </message>
    <message>
        <source>Wrong direction: start this stroke from the other end.</source>
        <translation>Direção errada: comece este traço pela outra ponta.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further up.</source>
        <translation>Lugar errado: este traço fica mais acima.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further down.</source>
        <translation>Lugar errado: este traço fica mais abaixo.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further left.</source>
        <translation>Lugar errado: este traço fica mais à esquerda.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further right.</source>
        <translation>Lugar errado: este traço fica mais à direita.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further up and to the left.</source>
        <translation>Lugar errado: este traço fica mais acima e à esquerda.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further up and to the right.</source>
        <translation>Lugar errado: este traço fica mais acima e à direita.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further down and to the left.</source>
        <translation>Lugar errado: este traço fica mais abaixo e à esquerda.</translation>
    </message>
    <message>
        <source>Wrong place: this stroke belongs further down and to the right.</source>
        <translation>Lugar errado: este traço fica mais abaixo e à direita.</translation>
    </message>
    <message>
        <source>Wrong place.</source>
        <translation>Lugar errado.</translation>
    </message>
    <message>
        <source>Too short: this stroke is longer.</source>
        <translation>Curto demais: este traço é mais longo.</translation>
    </message>
    <message>
        <source>Too long: this stroke is shorter.</source>
        <translation>Longo demais: este traço é mais curto.</translation>
    </message>
    <message>
        <source>Wrong shape: compare it with the model.</source>
        <translation>Forma errada: compare com o modelo.</translation>
    </message>
    <message>
        <source>The character is already complete.</source>
        <translation>O caractere já está completo.</translation>
    </message>
    <message>
        <source>Also correct: the order taught in other schools.</source>
        <translation>Também está correto: a ordem ensinada em outras escolas.</translation>
    </message>
</context>
<context>
    <name>ZavorenCommon</name>
    <message>
        <source>Zavoren Database Error</source>
        <translation>Erro de banco de dados do Zavoren</translation>
    </message>
    <message>
        <source>Zavoren Configuration Error</source>
        <translation>Erro de configuração do Zavoren</translation>
    </message>
    <message>
        <source>Unable to open database</source>
        <translation>Não é possível abrir o banco de dados</translation>
    </message>
    <message>
        <source>Unable to read database header</source>
        <translation>Não é possível ler o cabeçalho do banco de dados</translation>
    </message>
    <message>
        <source>Unable to read dictionary</source>
        <translation>Não é possível ler o dicionário</translation>
    </message>
    <message>
        <source>Character id out of range</source>
        <translation>Identificador de caractere fora do intervalo</translation>
    </message>
    <message>
        <source>Character does not exist</source>
        <translation>O caractere não existe</translation>
    </message>
    <message>
        <source>Unable to load character</source>
        <translation>Não é possível carregar o caractere</translation>
    </message>
    <message>
        <source>Element id out of range</source>
        <translation>Identificador de elemento fora do intervalo</translation>
    </message>
    <message>
        <source>Element does not exist</source>
        <translation>O elemento não existe</translation>
    </message>
    <message>
        <source>Unable to load element</source>
        <translation>Não é possível carregar o elemento</translation>
    </message>
    <message>
        <source>No such category</source>
        <translation>Categoria inexistente</translation>
    </message>
    <message>
        <source>Unable to load category</source>
        <translation>Não é possível carregar a categoria</translation>
    </message>
    <message>
        <source>Config file does not exist. Try to reinstall Zavoren.</source>
        <translation>O arquivo de configuração não existe. Tente reinstalar o Zavoren.</translation>
    </message>
    <message>
        <source>Config file is ReadOnly. Check file attirbutes or reinstall Zavoren.</source>
        <translation>O arquivo de configuração é somente leitura. Verifique seus atributos ou reinstale o Zavoren.</translation>
    </message>
    <message>
        <source>Unable to load config</source>
        <translation>Não é possível carregar a configuração</translation>
    </message>
    <message>
        <source>Unable to save config</source>
        <translation>Não é possível salvar a configuração</translation>
    </message>
    <message>
        <source>Unable to open lexicon</source>
        <translation>Não é possível abrir o léxico</translation>
    </message>
    <message>
        <source>The lexicon file is damaged</source>
        <translation>O arquivo do léxico está danificado</translation>
    </message>
    <message>
        <source>The lexicon was made for another database</source>
        <translation>O léxico foi feito para outro banco de dados</translation>
    </message>
</context>
</TS>
