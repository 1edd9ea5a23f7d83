<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>AlertPresenter</name>
    <message>
        <source>Do not show this message again</source>
        <translation>Não mostrar esta mensagem novamente</translation>
    </message>
</context>
<context>
    <name>AttributeEffects</name>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>%1 has no effect on %2: only texts follow it.</source>
        <translation>%1 não tem efeito em %2: vale somente para textos.</translation>
    </message>
    <message>
        <source>%1 has no effect on %2: only pictures follow it.</source>
        <translation>%1 não tem efeito em %2: vale somente para imagens.</translation>
    </message>
    <message>
        <source>asked for by the queue; what the printer makes of it is not known</source>
        <translation>solicitado pela fila; não se sabe o que a impressora faz com isso</translation>
    </message>
    <message>
        <source>only where a page is scaled</source>
        <translation>somente onde a escala de uma página é alterada</translation>
    </message>
</context>
<context>
    <name>ByHand</name>
    <message>
        <source>top</source>
        <translation>superior</translation>
    </message>
    <message>
        <source>right</source>
        <translation>direita</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>inferior</translation>
    </message>
    <message>
        <source>left</source>
        <translation>esquerda</translation>
    </message>
    <message>
        <source>Take the printed sheet out of the printer.</source>
        <translation>Retire da impressora a folha impressa.</translation>
    </message>
    <message>
        <source>Take the %1 printed sheets out of the printer, as one stack.</source>
        <translation>Retire da impressora as %1 folhas impressas, em uma única pilha.</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side down, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>Coloque-as de volta na bandeja com a face impressa para baixo, de modo que a borda %1 das páginas entre primeiro na impressora.</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side up, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>Coloque-as de volta na bandeja com a face impressa para cima, de modo que a borda %1 das páginas entre primeiro na impressora.</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost. Nothing is printed on it so far.</source>
        <translation>A última folha fica por cima de todas. Nada foi impresso nela até agora.</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost.</source>
        <translation>A última folha fica por cima de todas.</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>página %1</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>páginas %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The last sheet, with %1, lies uppermost.</source>
        <translation>A última folha (%1) fica por cima de todas.</translation>
    </message>
    <message>
        <source>The last sheet, with %1 of “%2”, lies uppermost.</source>
        <translation>A última folha (%1 de “%2”) fica por cima de todas.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs a printer that sheets are put back into: it cannot be done in a file.</source>
        <translation>A impressão frente e verso manual (%1) precisa de uma impressora na qual as folhas sejam recolocadas: isso não é possível em um arquivo.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) cannot be combined with %2: the queue would add these pages to both halves.</source>
        <translation>A impressão frente e verso manual (%1) não pode ser combinada com %2: a fila acrescentaria estas páginas às duas metades.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs somebody who puts the sheets back, and nobody can be asked here. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>A impressão frente e verso manual (%1) precisa de alguém que recoloque as folhas, e aqui não há a quem pedir. Com sides-by-hand=no é impressa uma face de cada folha.</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side down, so that the %1 edge of the page goes into the printer first.</source>
        <translation>Coloque-a de volta na bandeja com a face impressa para baixo, de modo que a borda %1 da página entre primeiro na impressora.</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side up, so that the %1 edge of the page goes into the printer first.</source>
        <translation>Coloque-a de volta na bandeja com a face impressa para cima, de modo que a borda %1 da página entre primeiro na impressora.</translation>
    </message>
</context>
<context>
    <name>CheckPolicy</name>
    <message>
        <source>Policy in %1 for the user %2</source>
        <translation>Política em %1 para o usuário %2</translation>
    </message>
    <message>
        <source>groups: %1</source>
        <translation>grupos: %1</translation>
    </message>
    <message>
        <source>Not used:</source>
        <translation>Não usados:</translation>
    </message>
    <message>
        <source>Nothing is decided.</source>
        <translation>Nada foi definido.</translation>
    </message>
    <message>
        <source>At the printer %1:</source>
        <translation>Na impressora %1:</translation>
    </message>
    <message>
        <source>Void, because the printer does not take it:</source>
        <translation>Sem efeito, porque a impressora não aceita:</translation>
    </message>
    <message>
        <source>For others, who are in these groups:</source>
        <translation>Para outros usuários, que estão nestes grupos:</translation>
    </message>
    <message>
        <source>Only root may ask what applies to somebody else.</source>
        <translation>Somente root pode perguntar o que vale para outro usuário.</translation>
    </message>
    <message>
        <source>There is no user of the name “%1”.</source>
        <translation>Não existe nenhum usuário chamado “%1”.</translation>
    </message>
</context>
<context>
    <name>ChoosablePages</name>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Only the odd ones of them are printed, as is set for this job.</source>
        <translation>Destas, somente as ímpares são impressas, conforme definido para este trabalho.</translation>
    </message>
    <message>
        <source>Only the even ones of them are printed, as is set for this job.</source>
        <translation>Destas, somente as pares são impressas, conforme definido para este trabalho.</translation>
    </message>
    <message>
        <source>No page is chosen.</source>
        <translation>Nenhuma página foi escolhida.</translation>
    </message>
    <message>
        <source>How many pages there are is not known.</source>
        <translation>Não se sabe quantas páginas há.</translation>
    </message>
    <message>
        <source>%L1 of %L2 page numbers chosen.</source>
        <translation>%L1 de %L2 números de página escolhidos.</translation>
    </message>
    <message>
        <source>%L1 of %L2 pages chosen.</source>
        <translation>%L1 de %L2 páginas escolhidas.</translation>
    </message>
    <message>
        <source>There are no pages %1.</source>
        <translation>Estas páginas não existem: %1.</translation>
    </message>
    <message>
        <source>“%1” is no page. Pages are typed as in 1-4, 7, 9-.</source>
        <translation>“%1” não é uma página. As páginas são digitadas como em 1-4, 7, 9-.</translation>
    </message>
    <message>
        <source>“%1” ends before it begins.</source>
        <translation>“%1” termina antes de começar.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the name of a document is missing.</source>
        <translation>falta o nome de um documento.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lists what can be said.</source>
        <translation>&quot;%1&quot; lista o que pode ser indicado.</translation>
    </message>
    <message>
        <source>%1 %2: a number from %3 to %4 was expected.</source>
        <translation>%1 %2: era esperado um número de %3 a %4.</translation>
    </message>
    <message>
        <source>-P &quot;%1&quot;: pages and ranges in ascending order were expected, such as 1-4,7,9-.</source>
        <translation>-P &quot;%1&quot;: eram esperados páginas e intervalos em ordem crescente, como 1-4,7,9-.</translation>
    </message>
    <message>
        <source>-H %1 is for a job that is in a queue already: use %2.</source>
        <translation>-H %1 é para um trabalho que já está em uma fila: use %2.</translation>
    </message>
    <message>
        <source>-H &quot;%1&quot;: hold, immediate, %2 was expected.</source>
        <translation>-H &quot;%1&quot;: era esperado hold, immediate, %2.</translation>
    </message>
    <message>
        <source>--check-policy takes one printer and no document.</source>
        <translation>--check-policy aceita uma impressora e nenhum documento.</translation>
    </message>
    <message>
        <source>--server &quot;%1&quot;: HOST, HOST:PORT or the path of a socket was expected.</source>
        <translation>--server &quot;%1&quot;: era esperado HOST, HOST:PORT ou o caminho de um socket.</translation>
    </message>
    <message>
        <source>--on-alert %1: print, hold or refuse was expected.</source>
        <translation>--on-alert %1: era esperado print, hold ou refuse.</translation>
    </message>
    <message>
        <source>--format %1: json or text was expected.</source>
        <translation>--format %1: era esperado json ou text.</translation>
    </message>
    <message>
        <source>-m: no mail is sent. What became of the job is said at the end, and by the exit status.</source>
        <translation>-m: nenhum e-mail é enviado. O resultado do trabalho é informado no final e pelo status de saída.</translation>
    </message>
    <message>
        <source>%1 &quot;&quot;: %2 is missing.</source>
        <translation>%1 &quot;&quot;: falta %2.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined.</source>
        <translation>%1 e %2 não podem ser combinados.</translation>
    </message>
    <message>
        <source>%1 is for runs without a window (--no-dialog).</source>
        <translation>%1 é para execuções sem janela (--no-dialog).</translation>
    </message>
    <message>
        <source>standard input cannot be the document and the password.</source>
        <translation>a entrada padrão não pode ser ao mesmo tempo o documento e a senha.</translation>
    </message>
    <message>
        <source>--save-preset prints nothing: no document can be named.</source>
        <translation>--save-preset não imprime nada: nenhum documento pode ser indicado.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined: both write to standard output.</source>
        <translation>%1 e %2 não podem ser combinados: os dois gravam na saída padrão.</translation>
    </message>
    <message>
        <source>-d &quot;%1&quot;: a URI like ipp://HOST/ipp/print was expected.</source>
        <translation>-d &quot;%1&quot;: era esperado um URI como ipp://HOST/ipp/print.</translation>
    </message>
    <message>
        <source>-o &quot;%1&quot;: KEY=VALUE was expected.</source>
        <translation>-o &quot;%1&quot;: era esperado KEY=VALUE.</translation>
    </message>
    <message>
        <source>standard input (-) can be read once only.</source>
        <translation>a entrada padrão (-) só pode ser lida uma vez.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>Prints a document with the settings of its printer, in a dialog or without one.</source>
        <translation>Imprime um documento com as configurações de sua impressora, em um diálogo de impressão ou sem ele.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opções:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumentos:</translation>
    </message>
    <message>
        <source>The document: PDF, PostScript, text, PNG or JPEG; - is standard input. Several are one job.</source>
        <translation>O documento: PDF, PostScript, texto, PNG ou JPEG; - é a entrada padrão. Vários formam um único trabalho.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Status de saída:</translation>
    </message>
    <message>
        <source>128 and a signal&apos;s number: ended by that signal</source>
        <translation>128 mais o número de um sinal: encerrado por esse sinal</translation>
    </message>
    <message>
        <source>Print to the printer NAME: a queue, an instance NAME/INSTANCE, or an IPP printer ipp://HOST/PATH.</source>
        <translation>Imprime na impressora NAME: uma fila, uma instância NAME/INSTANCE ou uma impressora IPP ipp://HOST/PATH.</translation>
    </message>
    <message>
        <source>Use the queues of the print server HOST instead of the usual one.</source>
        <translation>Usa as filas do servidor de impressão HOST em vez do habitual.</translation>
    </message>
    <message>
        <source>Speak to the print server with encryption only.</source>
        <translation>Fala com o servidor de impressão somente com criptografia.</translation>
    </message>
    <message>
        <source>Print as the user USER.</source>
        <translation>Imprime como o usuário USER.</translation>
    </message>
    <message>
        <source>Take the password from the first line of FILE, which nobody but its owner may read; nobody is asked.</source>
        <translation>Lê a senha da primeira linha do arquivo FILE, que ninguém além do proprietário pode ler; nada é perguntado.</translation>
    </message>
    <message>
        <source>The same from the open file descriptor N (0 is standard input).</source>
        <translation>O mesmo a partir do descritor de arquivo aberto N (0 é a entrada padrão).</translation>
    </message>
    <message>
        <source>Open protected PDF documents with the password in the first line of FILE, which nobody but its owner may read.</source>
        <translation>Abre documentos PDF protegidos com a senha da primeira linha do arquivo FILE, que ninguém além do proprietário pode ler.</translation>
    </message>
    <message>
        <source>Print for the printer that the PPD FILE describes.</source>
        <translation>Imprime para a impressora que o PPD FILE descreve.</translation>
    </message>
    <message>
        <source>Write the printer-ready data to FILE; - is standard output.</source>
        <translation>Grava os dados prontos para a impressora no arquivo FILE; - é a saída padrão.</translation>
    </message>
    <message>
        <source>Offer the sample printers.</source>
        <translation>Oferece as impressoras de exemplo.</translation>
    </message>
    <message>
        <source>List the printers and exit.</source>
        <translation>Lista as impressoras e sai.</translation>
    </message>
    <message>
        <source>Start with the settings of the preset NAME; -o counts more.</source>
        <translation>Começa com as configurações da predefinição NAME; -o tem precedência.</translation>
    </message>
    <message>
        <source>List the presets and exit.</source>
        <translation>Lista as predefinições e sai.</translation>
    </message>
    <message>
        <source>Keep the settings of the printer, those of -o among them, as the preset NAME, and exit. A preset of that name is replaced.</source>
        <translation>Salva as configurações da impressora, incluindo as de -o, como a predefinição NAME e sai. Uma predefinição com esse nome é substituída.</translation>
    </message>
    <message>
        <source>Say what the administrator&apos;s policy decides, and where, for the printer that is named behind it or by -d; as root with -U for another user. Exit with status 1 when something of it is not used.</source>
        <translation>Informa o que a política do administrador decide, e onde, para a impressora indicada em seguida ou com -d; root pode indicar outro usuário com -U. O status de saída é 1 quando algo dela não é usado.</translation>
    </message>
    <message>
        <source>Print a job of many sheets without being asked.</source>
        <translation>Imprime um trabalho de muitas folhas sem perguntar.</translation>
    </message>
    <message>
        <source>Set an option of the printer or of the job; may be repeated.</source>
        <translation>Define uma opção da impressora ou do trabalho; pode ser repetida.</translation>
    </message>
    <message>
        <source>Print N copies (1 to %1).</source>
        <translation>Imprime N cópias (de 1 a %1).</translation>
    </message>
    <message>
        <source>Print these pages (1-4,7,9-), as -o page-ranges= does.</source>
        <translation>Imprime estas páginas (1-4,7,9-), como -o page-ranges=.</translation>
    </message>
    <message>
        <source>Give the job this priority (1 to 100), as -o job-priority= does.</source>
        <translation>Dá ao trabalho esta prioridade (de 1 a 100), como -o job-priority=.</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, a time HH:MM (UTC), or what -o job-hold-until= takes.</source>
        <translation>Quando imprimir: hold, immediate, um horário HH:MM (UTC) ou o que -o job-hold-until= aceita.</translation>
    </message>
    <message>
        <source>Do not say which job was printed, only what went wrong.</source>
        <translation>Não informa qual trabalho foi impresso, somente o que deu errado.</translation>
    </message>
    <message>
        <source>Does nothing: the document is always copied to the queue.</source>
        <translation>Não faz nada: o documento é sempre copiado para a fila.</translation>
    </message>
    <message>
        <source>Is refused: no mail is sent.</source>
        <translation>É recusada: nenhum e-mail é enviado.</translation>
    </message>
    <message>
        <source>Name the job TEXT.</source>
        <translation>Dá ao trabalho o nome TEXT.</translation>
    </message>
    <message>
        <source>Print without a window.</source>
        <translation>Imprime sem janela.</translation>
    </message>
    <message>
        <source>Write the settings of the job to standard output.</source>
        <translation>Grava as configurações do trabalho na saída padrão.</translation>
    </message>
    <message>
        <source>Without a window: keep the settings in lpoptions as an instance of the queue, so that lp -d QUEUE/NAME and other programs print with them.</source>
        <translation>Sem janela: salva as configurações em lpoptions como uma instância da fila, para que lp -d QUEUE/NAME e outros programas imprimam com elas.</translation>
    </message>
    <message>
        <source>Without a window: what to do when the printer&apos;s settings show instructions: print, hold or refuse. Usually a queue holds the job, and a file is printed.</source>
        <translation>Sem janela: o que fazer quando as configurações da impressora mostram instruções: print, hold ou refuse. Normalmente, uma fila retém o trabalho, e, em um arquivo, ele é impresso.</translation>
    </message>
    <message>
        <source>Without a window: end when the queue has the job, not when it is printed.</source>
        <translation>Sem janela: termina quando a fila tem o trabalho, e não quando ele está impresso.</translation>
    </message>
    <message>
        <source>Without a window: follow the job for SECONDS at most once its queue has it, then leave it there.</source>
        <translation>Sem janela: acompanha o trabalho por no máximo SECONDS segundos depois que a fila o tem e então o deixa lá.</translation>
    </message>
    <message>
        <source>Without a window: json writes what became of the job to standard output, as one line that a program can read; text is what people read.</source>
        <translation>Sem janela: json grava na saída padrão o resultado do trabalho, em uma linha que um programa pode ler; text é o que as pessoas leem.</translation>
    </message>
    <message>
        <source>Also trust the plug-in bundles in the folder DIR.</source>
        <translation>Confia também nos pacotes de plug-ins da pasta DIR.</translation>
    </message>
    <message>
        <source>Exit with status 0 when a window can be shown, with 1 when not.</source>
        <translation>Sai com status 0 quando uma janela pode ser mostrada e com 1 quando não pode.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostra esta ajuda.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostra a versão.</translation>
    </message>
    <message>
        <source>With --save-instance: make such an instance of these queues as well, with what each of them needs to print the same.</source>
        <translation>Com --save-instance: cria uma instância assim também destas filas, com o que cada uma precisa para imprimir o mesmo.</translation>
    </message>
    <message>
        <source>--also-on: the name of the instance is missing, as in --save-instance reports.</source>
        <translation>--also-on: falta o nome da instância, como em --save-instance reports.</translation>
    </message>
</context>
<context>
    <name>CupsFilter</name>
    <message>
        <source>The program %1, named by CORVANA_PRINT_CUPSFILTER, cannot be run.</source>
        <translation>Não foi possível executar o programa %1, indicado em CORVANA_PRINT_CUPSFILTER.</translation>
    </message>
    <message>
        <source>The program cupsfilter was found neither on the path nor in /usr/sbin. It comes with CUPS (on Debian the package “cups”).</source>
        <translation>O programa cupsfilter não foi encontrado nem no caminho de busca nem em /usr/sbin. Ele faz parte do CUPS (no Debian, o pacote “cups”).</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>PDF document</source>
        <translation>documento PDF</translation>
    </message>
    <message>
        <source>PostScript document</source>
        <translation>documento PostScript</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>imagem PNG</translation>
    </message>
    <message>
        <source>JPEG picture</source>
        <translation>imagem JPEG</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Não foi possível ler %1: %2</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 está vazio.</translation>
    </message>
    <message>
        <source>%1 cannot be printed: it holds data that are ready for a printer. A queue passes them on as they are with the option “raw”.</source>
        <translation>Não é possível imprimir %1: contém dados já prontos para uma impressora. Uma fila os repassa sem alterações com a opção “raw”.</translation>
    </message>
    <message>
        <source>%1 cannot be printed; its contents: %2. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>Não é possível imprimir %1: o conteúdo é %2. Os documentos podem ser PDF, PostScript, texto, PNG ou JPEG.</translation>
    </message>
    <message>
        <source>%1 is named like a %2, but holds a %3. Rename it if that is right.</source>
        <translation>O nome de %1 indica um tipo (%2) diferente do conteúdo (%3). Se o conteúdo estiver correto, mude o nome.</translation>
    </message>
    <message>
        <source>%1: there is no such file.</source>
        <translation>%1: o arquivo não existe.</translation>
    </message>
    <message>
        <source>%1 is a folder; a document was expected.</source>
        <translation>%1 é uma pasta; era esperado um documento.</translation>
    </message>
    <message>
        <source>%1 is no ordinary file; a document was expected.</source>
        <translation>%1 não é um arquivo comum; era esperado um documento.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada padrão</translation>
    </message>
    <message>
        <source>%1 cannot be kept: %2</source>
        <translation>Não foi possível guardar %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read: nobody writes into it.</source>
        <translation>Não foi possível ler %1: nenhum programa está escrevendo nele.</translation>
    </message>
    <message>
        <source>%1 cannot be kept: it has more than %2 bytes.</source>
        <translation>Não foi possível guardar %1: tem mais de %2 bytes.</translation>
    </message>
    <message>
        <source>%1 cannot be printed: nobody can tell what is in it. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>Não é possível imprimir %1: o conteúdo não pôde ser reconhecido. Os documentos podem ser PDF, PostScript, texto, PNG ou JPEG.</translation>
    </message>
</context>
<context>
    <name>DocumentCopies</name>
    <message>
        <source>all documents, then all of them again (A B A B)</source>
        <translation>todos os documentos, depois todos novamente (A B A B)</translation>
    </message>
    <message>
        <source>each document with all its copies (A A B B)</source>
        <translation>cada documento com todas as suas cópias (A A B B)</translation>
    </message>
    <message>
        <source>each page with all its copies (1 1 2 2)</source>
        <translation>cada página com todas as suas cópias (1 1 2 2)</translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>“%1” is damaged at byte %2.</source>
        <translation>“%1” está danificado no byte %2.</translation>
    </message>
    <message>
        <source>“%1” is damaged.</source>
        <translation>“%1” está danificado.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>“%1” is protected, and the password that was given does not open it.</source>
        <translation>“%1” está protegido, e a senha informada não o abre.</translation>
    </message>
    <message>
        <source>“%1” is protected: it is printed only with its password.</source>
        <translation>“%1” está protegido: ele só é impresso com sua senha.</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. Only its owner&apos;s password does.</source>
        <translation>“%1” não permite a impressão. Somente a senha de seu proprietário a permite.</translation>
    </message>
    <message>
        <source>None of its pages can be printed.</source>
        <translation>Nenhuma de suas páginas pode ser impressa.</translation>
    </message>
    <message>
        <source>“%1” is protected, and a copy without protection could not be made: it is too large, or there is no room for it.</source>
        <translation>“%1” está protegido, e não foi possível criar uma cópia sem proteção: ele é grande demais ou não há espaço para ela.</translation>
    </message>
    <message>
        <source>1 of its %1 pages can be printed.</source>
        <translation>1 de suas %1 páginas pode ser impressa.</translation>
    </message>
    <message>
        <source>%1 of its %2 pages can be printed.</source>
        <translation>%1 de suas %2 páginas podem ser impressas.</translation>
    </message>
    <message>
        <source>“%1” is protected. The file that is printed to is not.</source>
        <translation>“%1” está protegido. O arquivo em que se imprime não está.</translation>
    </message>
    <message>
        <source>“%1” is protected. The print server gets a copy without protection.</source>
        <translation>“%1” está protegido. O servidor de impressão recebe uma cópia sem proteção.</translation>
    </message>
    <message>
        <source>All pages that were found in it are printed.</source>
        <translation>Todas as páginas encontradas nele são impressas.</translation>
    </message>
    <message>
        <source>“%1” brings settings for a printer along, which are not followed: %2. Choose them here, or pass the document on with the option “raw”.</source>
        <translation>“%1” traz configurações para uma impressora que não são seguidas: %2. Escolha-as aqui ou repasse o documento sem alterações com a opção “raw”.</translation>
    </message>
</context>
<context>
    <name>ExitStatus</name>
    <message>
        <source>printed, sent, or in the queue with the reason why it waits there</source>
        <translation>impresso, enviado ou na fila, com o motivo da espera</translation>
    </message>
    <message>
        <source>refused, failed or canceled</source>
        <translation>recusado, malsucedido ou cancelado</translation>
    </message>
    <message>
        <source>a command line that cannot be understood</source>
        <translation>uma linha de comando que não pode ser entendida</translation>
    </message>
    <message>
        <source>sent, and what became of it is not known</source>
        <translation>enviado, e não se sabe qual foi o resultado</translation>
    </message>
    <message>
        <source>the time of --wait is over; the job is still in the queue</source>
        <translation>o tempo de --wait se esgotou; o trabalho ainda está na fila</translation>
    </message>
</context>
<context>
    <name>HttpLine</name>
    <message>
        <source>The password is sent to “%1” without encryption: others in the network can read it. “-E” encrypts.</source>
        <translation>A senha é enviada a “%1” sem criptografia: outras pessoas podem lê-la na rede. A opção “-E” ativa a criptografia.</translation>
    </message>
</context>
<context>
    <name>InstanceDraft</name>
    <message>
        <source>Some programs add “%1=%2” to it, which you have set for “%3”.</source>
        <translation>Alguns programas acrescentam a ela “%1=%2”, que você definiu para “%3”.</translation>
    </message>
    <message>
        <source>“%1” is left out: it is a secret.</source>
        <translation>“%1” é omitido: é um segredo.</translation>
    </message>
    <message>
        <source>“%1” is left out: other programs cannot print it.</source>
        <translation>“%1” é omitido: outros programas não podem imprimi-lo.</translation>
    </message>
    <message>
        <source>Other programs know settings of queues only, and “%1” is none.</source>
        <translation>Outros programas conhecem somente configurações de filas, e “%1” não é uma fila.</translation>
    </message>
    <message>
        <source>“%1” gets files as they are, so that no setting has an effect.</source>
        <translation>“%1” recebe os arquivos sem alterações; por isso, nenhuma configuração tem efeito.</translation>
    </message>
    <message>
        <source>“%1” has no letters that other programs can print to. Give it a name of letters from a to z, such as “%2”.</source>
        <translation>“%1” não tem letras com que outros programas possam imprimir. Dê um nome com letras de a a z, como “%2”.</translation>
    </message>
    <message>
        <source>“%1” is there already, with settings of its own. Choose another name, or remove it with “lpoptions -x %1”.</source>
        <translation>“%1” já existe, com configurações próprias. Escolha outro nome ou remova-a com “lpoptions -x %1”.</translation>
    </message>
</context>
<context>
    <name>JobAttributes</name>
    <message>
        <source>On</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Bound at the Left</source>
        <translation>Encadernação à esquerda</translation>
    </message>
    <message>
        <source>Bound at the Right</source>
        <translation>Encadernação à direita</translation>
    </message>
    <message>
        <source>One-Sided</source>
        <translation>Somente frente</translation>
    </message>
    <message>
        <source>Long Edge (by Hand)</source>
        <translation>Borda longa (manual)</translation>
    </message>
    <message>
        <source>Short Edge (by Hand)</source>
        <translation>Borda curta (manual)</translation>
    </message>
    <message>
        <source>Printed Side Down</source>
        <translation>Face impressa para baixo</translation>
    </message>
    <message>
        <source>Printed Side Up</source>
        <translation>Face impressa para cima</translation>
    </message>
    <message>
        <source>Up, Then to the Right</source>
        <translation>Para cima, depois para a direita</translation>
    </message>
    <message>
        <source>Up, Then to the Left</source>
        <translation>Para cima, depois para a esquerda</translation>
    </message>
    <message>
        <source>To the Right, Then Up</source>
        <translation>Para a direita, depois para cima</translation>
    </message>
    <message>
        <source>To the Right, Then Down</source>
        <translation>Para a direita, depois para baixo</translation>
    </message>
    <message>
        <source>To the Left, Then Up</source>
        <translation>Para a esquerda, depois para cima</translation>
    </message>
    <message>
        <source>To the Left, Then Down</source>
        <translation>Para a esquerda, depois para baixo</translation>
    </message>
    <message>
        <source>Down, Then to the Right</source>
        <translation>Para baixo, depois para a direita</translation>
    </message>
    <message>
        <source>Down, Then to the Left</source>
        <translation>Para baixo, depois para a esquerda</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Thin Line</source>
        <translation>Linha fina</translation>
    </message>
    <message>
        <source>Thick Line</source>
        <translation>Linha grossa</translation>
    </message>
    <message>
        <source>Two Thin Lines</source>
        <translation>Duas linhas finas</translation>
    </message>
    <message>
        <source>Two Thick Lines</source>
        <translation>Duas linhas grossas</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Even Pages Only</source>
        <translation>Somente páginas pares</translation>
    </message>
    <message>
        <source>Odd Pages Only</source>
        <translation>Somente páginas ímpares</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Retrato</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paisagem</translation>
    </message>
    <message>
        <source>Reverse Landscape</source>
        <translation>Paisagem invertida</translation>
    </message>
    <message>
        <source>Reverse Portrait</source>
        <translation>Retrato invertido</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Fit All Pages If One Is Too Large</source>
        <translation>Ajustar todas se uma for grande demais</translation>
    </message>
    <message>
        <source>Fill Paper</source>
        <translation>Preencher o papel</translation>
    </message>
    <message>
        <source>Fit to Paper</source>
        <translation>Ajustar ao papel</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Tamanho real</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>No alto</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À esquerda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À direita</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>No alto, à esquerda</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>No alto, à direita</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Embaixo</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Embaixo, à esquerda</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>Embaixo, à direita</translation>
    </message>
    <message>
        <source>First Page First</source>
        <translation>Primeira página primeiro</translation>
    </message>
    <message>
        <source>Last Page First</source>
        <translation>Última página primeiro</translation>
    </message>
    <message>
        <source>Print at Once</source>
        <translation>Imprimir imediatamente</translation>
    </message>
    <message>
        <source>Until It Is Released</source>
        <translation>Até ser liberado</translation>
    </message>
    <message>
        <source>Daytime</source>
        <translation>Dia</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Fim de tarde</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noite</translation>
    </message>
    <message>
        <source>Second Shift</source>
        <translation>Segundo turno</translation>
    </message>
    <message>
        <source>Third Shift</source>
        <translation>Terceiro turno</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Fim de semana</translation>
    </message>
    <message>
        <source>points of 1/72 inch</source>
        <translation>pontos de 1/72 de polegada</translation>
    </message>
    <message>
        <source>Two-Sided</source>
        <translation>Frente e verso</translation>
    </message>
    <message>
        <source>Sheets Are Put Back</source>
        <translation>Recolocação das folhas</translation>
    </message>
    <message>
        <source>Pages per Sheet</source>
        <translation>Páginas por face</translation>
    </message>
    <message>
        <source>Order on the Sheet</source>
        <translation>Ordem na folha</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livreto</translation>
    </message>
    <message>
        <source>Each Page, Times on a Side</source>
        <translation>Repetições por face</translation>
    </message>
    <message>
        <source>Border Around Pages</source>
        <translation>Borda das páginas</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>pages and ranges in ascending order, such as 1-4,7,9-</source>
        <translation>páginas e intervalos em ordem crescente, como 1-4,7,9-</translation>
    </message>
    <message>
        <source>Odd and Even Pages</source>
        <translation>Páginas pares e ímpares</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientação</translation>
    </message>
    <message>
        <source>Fit to Page</source>
        <translation>Ajustar à página</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Size on the Page, in %</source>
        <translation>Tamanho na página, em %</translation>
    </message>
    <message>
        <source>Size of the Picture, in %</source>
        <translation>Tamanho da imagem, em %</translation>
    </message>
    <message>
        <source>Pixels per Inch</source>
        <translation>Pixels por polegada</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Imagem espelhada</translation>
    </message>
    <message>
        <source>Left Margin</source>
        <translation>Margem esquerda</translation>
    </message>
    <message>
        <source>Right Margin</source>
        <translation>Margem direita</translation>
    </message>
    <message>
        <source>Top Margin</source>
        <translation>Margem superior</translation>
    </message>
    <message>
        <source>Bottom Margin</source>
        <translation>Margem inferior</translation>
    </message>
    <message>
        <source>Characters per Inch</source>
        <translation>Caracteres por polegada</translation>
    </message>
    <message>
        <source>Lines per Inch</source>
        <translation>Linhas por polegada</translation>
    </message>
    <message>
        <source>Columns of Text</source>
        <translation>Colunas de texto</translation>
    </message>
    <message>
        <source>Long Lines Continue</source>
        <translation>Continuar linhas longas</translation>
    </message>
    <message>
        <source>Headers on Text Pages</source>
        <translation>Cabeçalhos em páginas de texto</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Agrupar</translation>
    </message>
    <message>
        <source>Output Order</source>
        <translation>Ordem de saída</translation>
    </message>
    <message>
        <source>Hold Until</source>
        <translation>Reter até</translation>
    </message>
    <message>
        <source>a time HH:MM in UTC</source>
        <translation>um horário HH:MM em UTC</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridade</translation>
    </message>
    <message>
        <source>Banner Pages</source>
        <translation>Páginas de rosto</translation>
    </message>
    <message>
        <source>one or two names of banner pages</source>
        <translation>os nomes de uma ou duas páginas de rosto</translation>
    </message>
    <message>
        <source>Billed To</source>
        <translation>Cobrar de</translation>
    </message>
    <message>
        <source>a text of up to 255 bytes</source>
        <translation>um texto de no máximo 255 bytes</translation>
    </message>
    <message>
        <source>%1 UTC</source>
        <translation>%1 UTC</translation>
    </message>
    <message>
        <source>%1 UTC (%2 here)</source>
        <translation>%1 UTC (%2 no horário local)</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Preto e branco</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Rascunho</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Canceled After, in Seconds</source>
        <translation>Cancelar após (segundos)</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Modo de cor</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualidade</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>a resolution such as 600dpi or 1200x600dpi</source>
        <translation>uma resolução como 600dpi ou 1200x600dpi</translation>
    </message>
    <message>
        <source>Output Bin</source>
        <translation>Bandeja de saída</translation>
    </message>
    <message>
        <source>the name of an output bin</source>
        <translation>o nome de uma bandeja de saída</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Acabamento</translation>
    </message>
    <message>
        <source>numbers or names of finishings</source>
        <translation>números ou nomes de acabamentos</translation>
    </message>
    <message>
        <source>Paper Source</source>
        <translation>Origem do papel</translation>
    </message>
    <message>
        <source>the name of a paper source</source>
        <translation>o nome de uma origem do papel</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Tipo de papel</translation>
    </message>
    <message>
        <source>the name of a media type</source>
        <translation>o nome de um tipo de papel</translation>
    </message>
    <message>
        <source>or %1</source>
        <translation>ou %1</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>segundos</translation>
    </message>
</context>
<context>
    <name>JobColors</name>
    <message>
        <source>Shown in black and white, with your adjustments.</source>
        <translation>Mostrado em preto e branco, com seus ajustes.</translation>
    </message>
    <message>
        <source>Shown in black and white.</source>
        <translation>Mostrado em preto e branco.</translation>
    </message>
    <message>
        <source>Shows your adjustments; colors on paper differ.</source>
        <translation>Mostra seus ajustes; as cores no papel são diferentes.</translation>
    </message>
    <message>
        <source>Colors on paper differ from those on the screen.</source>
        <translation>As cores no papel são diferentes das cores na tela.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>“%1: %2” is not shown.</source>
        <translation>“%1: %2” não é mostrado.</translation>
    </message>
</context>
<context>
    <name>JobNames</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 e mais %n</numerusform>
            <numerusform>%1 e mais %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>JobRequests</name>
    <message>
        <source>The value of “%1” is too long for a print server; at most %2 bytes can be sent.</source>
        <translation>O valor de “%1” é longo demais para um servidor de impressão; podem ser enviados no máximo %2 bytes.</translation>
    </message>
    <message>
        <source>The value of “%1” has characters that a print server would drop: no line breaks, no “{” in front.</source>
        <translation>O valor de “%1” contém caracteres que um servidor de impressão descartaria: não são permitidas quebras de linha nem “{” no início.</translation>
    </message>
</context>
<context>
    <name>LastUsed</name>
    <message>
        <source>The settings of the last job cannot be read, and stay as they are in “%1”: %2.</source>
        <translation>As configurações do último trabalho não podem ser lidas e ficam como estão em “%1”: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>Não foi possível remover “%1”: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be written.</source>
        <translation>Não foi possível gravar “%1”.</translation>
    </message>
</context>
<context>
    <name>LeftSession</name>
    <message>
        <source>This printer has no option of the name %1 any more.</source>
        <translation>Esta impressora não tem mais nenhuma opção chamada %1.</translation>
    </message>
    <message>
        <source>The option %1 has no choice %2 any more.</source>
        <translation>A opção %1 não oferece mais o valor %2.</translation>
    </message>
</context>
<context>
    <name>ListPresets</name>
    <message>
        <source>all printers</source>
        <translation>todas as impressoras</translation>
    </message>
</context>
<context>
    <name>OptionLocks</name>
    <message>
        <source>“%1” is set by your administrator (%2).</source>
        <translation>“%1” foi definido pelo administrador (%2).</translation>
    </message>
    <message>
        <source>Set by your administrator (%1).</source>
        <translation>Definido pelo administrador (%1).</translation>
    </message>
</context>
<context>
    <name>OptionRequest</name>
    <message>
        <source>%1: the printer&apos;s settings do not allow this here; it became %2.</source>
        <translation>%1: as configurações da impressora não permitem isso aqui; foi alterado para %2.</translation>
    </message>
    <message>
        <source>%1: the printer&apos;s options cannot be set to this value.</source>
        <translation>%1: não é possível definir este valor nas opções da impressora.</translation>
    </message>
    <message>
        <source>%1: this cannot be combined with %2.</source>
        <translation>%1: não pode ser combinado com %2.</translation>
    </message>
    <message>
        <source>%1: this value is not allowed. Allowed: %2.</source>
        <translation>%1: este valor não é permitido. Valores permitidos: %2.</translation>
    </message>
    <message>
        <source>%1=Custom: a value is missing. Allowed: %2.</source>
        <translation>%1=Custom: falta um valor. Valores permitidos: %2.</translation>
    </message>
    <message>
        <source>this printer has no such option. Options: %1. Job attributes: %2.</source>
        <translation>esta impressora não tem essa opção. Opções: %1. Atributos do trabalho: %2.</translation>
    </message>
    <message>
        <source>this printer has nothing to choose from for this.</source>
        <translation>esta impressora não oferece valores para escolher.</translation>
    </message>
    <message>
        <source>this value is not allowed. Allowed: %1.</source>
        <translation>este valor não é permitido. Valores permitidos: %1.</translation>
    </message>
    <message>
        <source>this printer has no paper sizes to choose from.</source>
        <translation>esta impressora não oferece tamanhos de papel para escolher.</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>“%1” não é permitido. Valores permitidos: %2.</translation>
    </message>
    <message>
        <source>this printer prints on one side only. Allowed: %1. Two sides by hand: %2=%3, %2=%4.</source>
        <translation>esta impressora imprime somente em uma face. Valores permitidos: %1. Frente e verso manual: %2=%3, %2=%4.</translation>
    </message>
    <message>
        <source>1 to %1</source>
        <translation>de 1 a %1</translation>
    </message>
    <message>
        <source>this printer turns sheets over itself. Allowed: %1=no; for two sides use %2.</source>
        <translation>esta impressora vira as folhas sozinha. Valores permitidos: %1=no; para imprimir em frente e verso, use %2.</translation>
    </message>
</context>
<context>
    <name>PageChoice</name>
    <message>
        <source>The pages that were asked for are in none of the documents. Nothing was printed.</source>
        <translation>As páginas solicitadas não estão em nenhum dos documentos. Nada foi impresso.</translation>
    </message>
    <message>
        <source>“%1: %2”</source>
        <translation>“%1: %2”</translation>
    </message>
    <message>
        <source>A booklet has two pages on each side, in an order of its own: %1 cannot be done with it.</source>
        <translation>Um livreto tem duas páginas em cada face, em uma ordem própria: %1 não é possível com ele.</translation>
    </message>
    <message>
        <source>Each page is repeated %1 times on a side: %2 cannot be done with it.</source>
        <translation>Cada página é repetida %1 vezes em uma face: %2 não é possível assim.</translation>
    </message>
</context>
<context>
    <name>PageTrouble</name>
    <message>
        <source>This page cannot be shown: it is damaged.</source>
        <translation>Não é possível mostrar esta página: ela está danificada.</translation>
    </message>
    <message>
        <source>This page cannot be shown: it is too large.</source>
        <translation>Não é possível mostrar esta página: ela é grande demais.</translation>
    </message>
    <message>
        <source>This page cannot be shown: drawing it takes too long.</source>
        <translation>Não é possível mostrar esta página: desenhá-la demora demais.</translation>
    </message>
    <message>
        <source>This page cannot be shown: the document is protected by a password.</source>
        <translation>Não é possível mostrar esta página: o documento está protegido por senha.</translation>
    </message>
    <message>
        <source>This page cannot be shown: the file cannot be read.</source>
        <translation>Não é possível mostrar esta página: não foi possível ler o arquivo.</translation>
    </message>
    <message>
        <source>Pages cannot be shown: the program that draws them does not run.</source>
        <translation>Não é possível mostrar as páginas: o programa que as desenha não está em execução.</translation>
    </message>
</context>
<context>
    <name>PassedOn</name>
    <message>
        <source>The queue “%1” passes files on as they are: %2 cannot be done.</source>
        <translation>A fila “%1” repassa os arquivos sem alterações: %2 não é possível.</translation>
    </message>
    <message>
        <source>With “raw” files are passed on as they are: %1 cannot be done.</source>
        <translation>Com “raw” os arquivos são repassados sem alterações: %1 não é possível.</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Passed on as it is</source>
        <translation>Repassado sem alterações</translation>
    </message>
</context>
<context>
    <name>PasswordFile</name>
    <message>
        <source>The password cannot be read from %1: %2.</source>
        <translation>Não foi possível ler a senha de %1: %2.</translation>
    </message>
    <message>
        <source>The first line of %1 is empty; a password was expected.</source>
        <translation>A primeira linha de %1 está vazia; era esperada uma senha.</translation>
    </message>
    <message>
        <source>The first line of %1 is no password: at most %2 bytes of UTF-8 were expected.</source>
        <translation>A primeira linha de %1 não é uma senha: eram esperados no máximo %2 bytes em UTF-8.</translation>
    </message>
    <message>
        <source>The password cannot be read from %1: it is no file.</source>
        <translation>Não foi possível ler a senha de %1: não é um arquivo.</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: the file belongs to somebody else.</source>
        <translation>A senha em %1 não é aceita: o arquivo pertence a outro usuário.</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: others than its owner may use the file (its mode is %2; chmod 600 takes that away).</source>
        <translation>A senha em %1 não é aceita: outros usuários além do proprietário têm acesso ao arquivo (as permissões são %2; chmod 600 corrige isso).</translation>
    </message>
    <message>
        <source>descriptor %1</source>
        <translation>o descritor %1</translation>
    </message>
</context>
<context>
    <name>Policy</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>“%1” não é permitido. Valores permitidos: %2.</translation>
    </message>
    <message>
        <source>the path of a folder that begins with /</source>
        <translation>o caminho de uma pasta que começa com /</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>um número de %1 a %2</translation>
    </message>
    <message>
        <source>the line is longer than %1 bytes</source>
        <translation>a linha tem mais de %1 bytes</translation>
    </message>
    <message>
        <source>the line is not written in UTF-8</source>
        <translation>a linha não está escrita em UTF-8</translation>
    </message>
    <message>
        <source>the line has a character that cannot be seen</source>
        <translation>a linha tem um caractere que não é visível</translation>
    </message>
    <message>
        <source>there are more problems</source>
        <translation>há mais problemas</translation>
    </message>
    <message>
        <source>there are more than %1 sections</source>
        <translation>há mais de %1 seções</translation>
    </message>
    <message>
        <source>“%1” is no section, and what follows in it is left out. Allowed: %2.</source>
        <translation>“%1” não é uma seção, e o que ela contém é omitido. Seções permitidas: %2.</translation>
    </message>
    <message>
        <source>“%1” is no line of a policy. Expected: %2.</source>
        <translation>“%1” não é uma linha de uma política. Era esperado: %2.</translation>
    </message>
    <message>
        <source>“%1” stands before the first section. Begin with [all].</source>
        <translation>“%1” está antes da primeira seção. Comece com [all].</translation>
    </message>
    <message>
        <source>there is no key “%1”. Keys: %2.</source>
        <translation>não existe a chave “%1”. Chaves: %2.</translation>
    </message>
    <message>
        <source>%1 needs the keyword of an option or of a job attribute.</source>
        <translation>%1 precisa da palavra-chave de uma opção ou de um atributo do trabalho.</translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation>o valor é longo demais</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 bytes</source>
        <translation>o arquivo não é usado: tem mais de %1 bytes</translation>
    </message>
    <message>
        <source>the file is not used: it is no text</source>
        <translation>o arquivo não é usado: não é um texto</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 lines</source>
        <translation>o arquivo não é usado: tem mais de %1 linhas</translation>
    </message>
    <message>
        <source>it belongs to the user with the ID %1</source>
        <translation>pertence ao usuário de número %1</translation>
    </message>
    <message>
        <source>others than its owner may write to it</source>
        <translation>outros usuários além do proprietário têm permissão de gravação</translation>
    </message>
    <message>
        <source>nothing below this folder is used: %1</source>
        <translation>nada abaixo desta pasta é usado: %1</translation>
    </message>
    <message>
        <source>nothing in this folder is used: %1</source>
        <translation>nada nesta pasta é usado: %1</translation>
    </message>
    <message>
        <source>only the first %1 files are used</source>
        <translation>somente os primeiros %1 arquivos são usados</translation>
    </message>
    <message>
        <source>the file is not used: it is a link that leads out of its folder</source>
        <translation>o arquivo não é usado: é um link que leva para fora de sua pasta</translation>
    </message>
    <message>
        <source>the file is not used: %1</source>
        <translation>o arquivo não é usado: %1</translation>
    </message>
    <message>
        <source>the file is not used: it is no ordinary file</source>
        <translation>o arquivo não é usado: não é um arquivo comum</translation>
    </message>
</context>
<context>
    <name>PpdCopy</name>
    <message>
        <source>The printer&apos;s options cannot be written to %1: %2</source>
        <translation>Não foi possível gravar as opções da impressora em %1: %2</translation>
    </message>
</context>
<context>
    <name>PpdFilters</name>
    <message>
        <source>The driver of this printer names the file “%1”, which only a print server may open. Print on the printer itself instead of into a file.</source>
        <translation>O driver desta impressora indica o arquivo “%1”, que somente um servidor de impressão pode abrir. Imprima na própria impressora em vez de em um arquivo.</translation>
    </message>
    <message>
        <source>The driver of this printer needs the program “%1”, which only a print server may run. Print on the printer itself instead of into a file.</source>
        <translation>O driver desta impressora precisa do programa “%1”, que somente um servidor de impressão pode executar. Imprima na própria impressora em vez de em um arquivo.</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>A preset needs a name.</source>
        <translation>Uma predefinição precisa de um nome.</translation>
    </message>
    <message>
        <source>The name of a preset has at most %1 characters.</source>
        <translation>O nome de uma predefinição tem no máximo %1 caracteres.</translation>
    </message>
    <message>
        <source>The name of a preset holds only characters that can be seen.</source>
        <translation>O nome de uma predefinição só pode conter caracteres visíveis.</translation>
    </message>
    <message>
        <source>“%1” is always there, and is no name of a preset.</source>
        <translation>“%1” está sempre presente e não pode ser o nome de uma predefinição.</translation>
    </message>
</context>
<context>
    <name>PresetApplication</name>
    <message>
        <source>%1 is not possible on this printer. Allowed: %2.</source>
        <translation>%1 não é possível nesta impressora. Valores permitidos: %2.</translation>
    </message>
    <message>
        <source>%1 is not possible together with the other settings.</source>
        <translation>%1 não é possível junto com as outras configurações.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings do not allow %1 here; it became %2.</source>
        <translation>As configurações da impressora não permitem %1 aqui; foi alterado para %2.</translation>
    </message>
    <message>
        <source>%1 is not on this printer.</source>
        <translation>%1 não existe nesta impressora.</translation>
    </message>
    <message>
        <source>A value of the printer&apos;s own settings (%1) is not possible here.</source>
        <translation>Um valor das configurações próprias da impressora (%1) não é possível aqui.</translation>
    </message>
</context>
<context>
    <name>PresetFile</name>
    <message>
        <source>“%1”: expected was %2</source>
        <translation>“%1”: era esperado %2</translation>
    </message>
    <message>
        <source>it was written by a later version of this program</source>
        <translation>foi gravado por uma versão posterior deste programa</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>um texto</translation>
    </message>
    <message>
        <source>at most %1 values</source>
        <translation>no máximo %1 valores</translation>
    </message>
    <message>
        <source>the name of an option</source>
        <translation>o nome de uma opção</translation>
    </message>
    <message>
        <source>a value or a list of values</source>
        <translation>um valor ou uma lista de valores</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>Não foi possível gravar “%1”: %2.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>linha %1: %2</translation>
    </message>
    <message>
        <source>expected was { … }</source>
        <translation>era esperado { … }</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>não é um arquivo</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>tem mais de %1 bytes</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>“%1” is damaged and is left as it is: %2.</source>
        <translation>“%1” está danificado e é deixado como está: %2.</translation>
    </message>
    <message>
        <source>There is no place to keep presets.</source>
        <translation>Não há lugar para guardar predefinições.</translation>
    </message>
    <message>
        <source>Another program is writing presets. Try again.</source>
        <translation>Outro programa está gravando predefinições. Tente novamente.</translation>
    </message>
    <message>
        <source>no space left, or no permission</source>
        <translation>não há espaço ou permissão</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>Não foi possível gravar “%1”: %2.</translation>
    </message>
    <message>
        <source>There is a preset of the name “%1” already.</source>
        <translation>Já existe uma predefinição chamada “%1”.</translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>Não existe mais nenhuma predefinição chamada “%1”.</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>Não foi possível remover “%1”: %2.</translation>
    </message>
    <message>
        <source>%1 (for everybody)</source>
        <translation>%1 (para todos)</translation>
    </message>
</context>
<context>
    <name>PrintRequest</name>
    <message>
        <source>The printer “%1” is not offered by your administrator (%2).</source>
        <translation>O administrador não oferece a impressora “%1” (%2).</translation>
    </message>
    <message>
        <source>Printing to a file is not offered by your administrator (%1).</source>
        <translation>O administrador não oferece a impressão em arquivo (%1).</translation>
    </message>
</context>
<context>
    <name>PrinterFetching</name>
    <message>
        <source>Save as PDF</source>
        <translation>Salvar como PDF</translation>
    </message>
</context>
<context>
    <name>PrinterTexts</name>
    <message>
        <source>connecting</source>
        <translation>conectando</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>tampa aberta</translation>
    </message>
    <message>
        <source>driver not trusted by the server</source>
        <translation>driver não confiável para o servidor</translation>
    </message>
    <message>
        <source>driver missing on the server</source>
        <translation>driver ausente no servidor</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>desligada</translation>
    </message>
    <message>
        <source>developer used up</source>
        <translation>revelador esgotado</translation>
    </message>
    <message>
        <source>developer low</source>
        <translation>revelador no fim</translation>
    </message>
    <message>
        <source>door open</source>
        <translation>porta aberta</translation>
    </message>
    <message>
        <source>fuser too hot</source>
        <translation>fusor quente demais</translation>
    </message>
    <message>
        <source>fuser too cold</source>
        <translation>fusor frio demais</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>novos trabalhos são retidos</translation>
    </message>
    <message>
        <source>tray missing</source>
        <translation>bandeja ausente</translation>
    </message>
    <message>
        <source>ink or toner used up</source>
        <translation>tinta ou toner esgotado</translation>
    </message>
    <message>
        <source>ink or toner low</source>
        <translation>tinta ou toner no fim</translation>
    </message>
    <message>
        <source>waste container almost full</source>
        <translation>recipiente de resíduos quase cheio</translation>
    </message>
    <message>
        <source>waste container full</source>
        <translation>recipiente de resíduos cheio</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>sem papel</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>atolamento de papel</translation>
    </message>
    <message>
        <source>paper low</source>
        <translation>pouco papel</translation>
    </message>
    <message>
        <source>paper needed</source>
        <translation>papel necessário</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>pausando</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>não conectada</translation>
    </message>
    <message>
        <source>drum used up</source>
        <translation>cilindro esgotado</translation>
    </message>
    <message>
        <source>drum nearly used up</source>
        <translation>cilindro quase esgotado</translation>
    </message>
    <message>
        <source>output tray almost full</source>
        <translation>bandeja de saída quase cheia</translation>
    </message>
    <message>
        <source>output tray full</source>
        <translation>bandeja de saída cheia</translation>
    </message>
    <message>
        <source>output tray missing</source>
        <translation>bandeja de saída ausente</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>pausada</translation>
    </message>
    <message>
        <source>print queue full</source>
        <translation>fila de impressão cheia</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>parcialmente parada</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>parando</translation>
    </message>
    <message>
        <source>not answering</source>
        <translation>não responde</translation>
    </message>
    <message>
        <source>toner used up</source>
        <translation>toner esgotado</translation>
    </message>
    <message>
        <source>toner low</source>
        <translation>toner no fim</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Ociosa</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimindo</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Parada</translation>
    </message>
    <message>
        <source>Prints to a file</source>
        <translation>Imprime em arquivo</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the words of a printer&apos;s state</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>No longer available</source>
        <translation>Não está mais disponível</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Parada: %1</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>não aceita trabalhos</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>Não aceita trabalhos</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <comment>location, state</comment>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>location, state</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>Nome: %1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Local: %1</translation>
    </message>
    <message>
        <source>Model: %1</source>
        <translation>Modelo: %1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <translation>Estado: %1</translation>
    </message>
    <message>
        <source>Message: %1</source>
        <translation>Mensagem: %1</translation>
    </message>
    <message>
        <source>Address: %1</source>
        <translation>Endereço: %1</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opção desconhecida: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Opções desconhecidas: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Falta um valor depois de &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>&quot;%1&quot; não aceita nenhum valor.</translation>
    </message>
</context>
<context>
    <name>RefusalText</name>
    <message>
        <source>“%1: %2”</source>
        <translation>“%1: %2”</translation>
    </message>
    <message>
        <source> and </source>
        <translation> e </translation>
    </message>
    <message>
        <source>The printer&apos;s options cannot be set to %1.</source>
        <translation>Não é possível definir %1 nas opções da impressora.</translation>
    </message>
    <message>
        <source>%1 cannot be combined with %2.</source>
        <translation>%1 não pode ser combinado com %2.</translation>
    </message>
    <message>
        <source>Change to %1</source>
        <translation>Alterar para %1</translation>
    </message>
</context>
<context>
    <name>RequestFromCommandLine</name>
    <message>
        <source>%1: the name is not written in UTF-8.</source>
        <translation>%1: o nome não está escrito em UTF-8.</translation>
    </message>
</context>
<context>
    <name>ResultFile</name>
    <message>
        <source>%1 is a folder; the name of a file was expected.</source>
        <translation>%1 é uma pasta; era esperado o nome de um arquivo.</translation>
    </message>
    <message>
        <source>%1 is a device or a pipe; the name of a file was expected.</source>
        <translation>%1 é um dispositivo ou um pipe; era esperado o nome de um arquivo.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Não foi possível gravar %1: %2</translation>
    </message>
    <message>
        <source>%1 was written by another program meanwhile, and is left as it is. Print again to replace it, or name another file.</source>
        <translation>%1 foi gravado por outro programa nesse meio-tempo e é deixado como está. Imprima novamente para substituí-lo ou indique outro arquivo.</translation>
    </message>
</context>
<context>
    <name>ResultPages</name>
    <message>
        <source>Nothing would be printed: what came out has no page.</source>
        <translation>Nada seria impresso: o resultado não tem páginas.</translation>
    </message>
</context>
<context>
    <name>SavedAsPdf</name>
    <message>
        <source>A PDF file is neither held nor printed: %1 cannot be done.</source>
        <translation>Um arquivo PDF não é retido nem impresso: %1 não é possível.</translation>
    </message>
</context>
<context>
    <name>ServerAddress</name>
    <message>
        <source>this computer</source>
        <translation>este computador</translation>
    </message>
</context>
<context>
    <name>ServerJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>A impressão foi cancelada.</translation>
    </message>
    <message>
        <source>The print server did not say which job it has made.</source>
        <translation>O servidor de impressão não informou qual trabalho criou.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Não foi possível ler %1: %2.</translation>
    </message>
    <message>
        <source>%1 The printer says: %2</source>
        <translation>%1 A impressora informa: %2</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has been printed.</source>
        <translation>O trabalho %1 da tentativa anterior foi impresso.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is held in the queue.</source>
        <translation>O trabalho %1 da tentativa anterior está retido na fila.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is stopped in the queue.</source>
        <translation>O trabalho %1 da tentativa anterior está parado na fila.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is in the queue and will be printed.</source>
        <translation>O trabalho %1 da tentativa anterior está na fila e será impresso.</translation>
    </message>
    <message>
        <source>%1 The job had been moved from the queue “%2” to “%3”.</source>
        <translation>%1 O trabalho havia sido movido da fila “%2” para “%3”.</translation>
    </message>
    <message>
        <source>%1 Nothing was printed.</source>
        <translation>%1 Nada foi impresso.</translation>
    </message>
    <message>
        <source>The printer “%1” wants a user and a password; none was given. Nothing was printed.</source>
        <translation>A impressora “%1” exige um usuário e uma senha, que não foram informados. Nada foi impresso.</translation>
    </message>
    <message>
        <source>The queue “%1” is not there any more. Nothing was printed.</source>
        <translation>A fila “%1” não existe mais. Nada foi impresso.</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment. Nothing was printed.</source>
        <translation>A fila “%1” não aceita trabalhos no momento. Nada foi impresso.</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment: %2. Nothing was printed.</source>
        <translation>A fila “%1” não aceita trabalhos no momento: %2. Nada foi impresso.</translation>
    </message>
    <message>
        <source>The options of the printer “%1” have changed at its server. Nothing was printed.</source>
        <translation>As opções da impressora “%1” mudaram em seu servidor. Nada foi impresso.</translation>
    </message>
    <message>
        <source>%1 Whether job %2 of the earlier try was printed is not known yet, so nothing was sent again.</source>
        <translation>%1 Ainda não se sabe se o trabalho %2 da tentativa anterior foi impresso; por isso, nada foi enviado novamente.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has got %2 of its %3 documents to the printer. Print the others by themselves, or everything once more.</source>
        <translation>Do trabalho %1 da tentativa anterior chegaram à impressora %2 de seus %3 documentos. Imprima os demais separadamente ou tudo mais uma vez.</translation>
    </message>
    <message>
        <source>%1 Nothing was printed, but a job without a document may be at the print server. It could not be looked for: %2</source>
        <translation>%1 Nada foi impresso, mas pode haver um trabalho sem documento no servidor de impressão. Não foi possível procurá-lo: %2</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; pages that the printer has already may still come out.</source>
        <translation>%1 O trabalho %2 foi cancelado; as páginas que já estão na impressora ainda podem sair.</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; nothing was printed.</source>
        <translation>%1 O trabalho %2 foi cancelado; nada foi impresso.</translation>
    </message>
    <message>
        <source>Job %1 could not be canceled and may still be printed. %2</source>
        <translation>Não foi possível cancelar o trabalho %1, que ainda pode ser impresso. %2</translation>
    </message>
    <message>
        <source>%1 Job %2 could not be canceled and may still be printed. %3</source>
        <translation>%1 Não foi possível cancelar o trabalho %2, que ainda pode ser impresso. %3</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server, without its whole document. It could not be canceled: %3</source>
        <translation>%1 O trabalho %2 ainda pode estar no servidor de impressão, sem o documento completo. Não foi possível cancelá-lo: %3</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server with some of its documents, and may print these. It could not be canceled: %3 Printing again looks for it first.</source>
        <translation>%1 O trabalho %2 ainda pode estar no servidor de impressão com alguns de seus documentos, que podem ser impressos. Não foi possível cancelá-lo: %3 Ao imprimir novamente, primeiro ele é procurado.</translation>
    </message>
    <message>
        <source>The printer “%1” does not accept this user and password.</source>
        <translation>A impressora “%1” não aceita este usuário e esta senha.</translation>
    </message>
    <message>
        <source>%1 The print server does not know job %2 any more. It was probably not printed.</source>
        <translation>%1 O servidor de impressão não conhece mais o trabalho %2. Provavelmente ele não foi impresso.</translation>
    </message>
    <message>
        <source>%1 The document had been sent, so job %2 may be printed or not. Printing again looks for it first.</source>
        <translation>%1 O documento já havia sido enviado; o trabalho %2 pode ter sido impresso ou não. Ao imprimir novamente, primeiro ele é procurado.</translation>
    </message>
    <message>
        <source>Job %1 has left the queue “%2”, whose server keeps no record of it. So whether it has been printed is not known.</source>
        <translation>O trabalho %1 saiu da fila “%2”, cujo servidor não guarda registro dele. Por isso, não se sabe se ele foi impresso.</translation>
    </message>
    <message>
        <source>Job %1 was handed over completely. %2 So whether it has been printed is not known.</source>
        <translation>O trabalho %1 foi entregue por completo. %2 Por isso, não se sabe se ele foi impresso.</translation>
    </message>
    <message>
        <source>The print server gives job %1 the state %2, which is not known.</source>
        <translation>O servidor de impressão dá ao trabalho %1 o estado %2, que não é conhecido.</translation>
    </message>
    <message>
        <source>Job %1 was handed over to the queue “%2”.</source>
        <translation>O trabalho %1 foi entregue à fila “%2”.</translation>
    </message>
    <message>
        <source>Job %1 was stopped. It is still in the queue, where it can be released or canceled.</source>
        <translation>O trabalho %1 foi interrompido. Ele ainda está na fila, onde pode ser liberado ou cancelado.</translation>
    </message>
    <message>
        <source>Job %1 is held in the queue “%2”.</source>
        <translation>O trabalho %1 está retido na fila “%2”.</translation>
    </message>
    <message>
        <source>Job %1 waits in the queue “%2”, which is stopped.</source>
        <translation>O trabalho %1 aguarda na fila “%2”, que está parada.</translation>
    </message>
    <message>
        <source>Job %1 is in the queue “%2”.</source>
        <translation>O trabalho %1 está na fila “%2”.</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. Whether anything was on its pages is not known.</source>
        <translation>Enviado a “%1” como trabalho %2. Não se sabe se havia algo em suas páginas.</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. That queue passes files on as they are: what was set for the printer or the pages had no effect there.</source>
        <translation>Enviado a “%1” como trabalho %2. Essa fila repassa os arquivos sem alterações: o que estava definido para a impressora ou as páginas não teve efeito ali.</translation>
    </message>
    <message>
        <source>Printed on “%1” as job %2.</source>
        <translation>Impresso em “%1” como trabalho %2.</translation>
    </message>
    <message>
        <source>Job %1 failed: the printer or its server gave it up.</source>
        <translation>O trabalho %1 falhou: a impressora ou seu servidor o abandonou.</translation>
    </message>
    <message>
        <source>Job %1 was canceled at the printer or its server.</source>
        <translation>O trabalho %1 foi cancelado na impressora ou em seu servidor.</translation>
    </message>
    <message>
        <source>Job %1 was printed with %2 of its %3 documents only.</source>
        <translation>O trabalho %1 foi impresso com somente %2 de seus %3 documentos.</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Preparando…</translation>
    </message>
    <message>
        <source>Sending, %1 %…</source>
        <translation>Enviando, %1 %…</translation>
    </message>
    <message>
        <source>Asking the print server…</source>
        <translation>Consultando o servidor de impressão…</translation>
    </message>
    <message>
        <source>Waiting in the queue…</source>
        <translation>Aguardando na fila…</translation>
    </message>
    <message>
        <source>Held in the queue</source>
        <translation>Retido na fila</translation>
    </message>
    <message>
        <source>Printing page %1…</source>
        <translation>Imprimindo a página %1…</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Imprimindo…</translation>
    </message>
    <message>
        <source>The printer is stopped.</source>
        <translation>A impressora está parada.</translation>
    </message>
    <message>
        <source>The printer is stopped: %1</source>
        <translation>A impressora está parada: %1</translation>
    </message>
    <message>
        <source>First sides: %1</source>
        <translation>Primeiras faces: %1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>Segundas faces: %1</translation>
    </message>
    <message>
        <source>%1 The queue “%2” has no driver, and would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1 A fila “%2” não tem driver e teria enviado os documentos em um único fluxo. Por isso, cada um é um trabalho próprio: %3.</translation>
    </message>
    <message>
        <source>%1 With “raw” the queue “%2” would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1 Com “raw” a fila “%2” teria enviado os documentos em um único fluxo. Por isso, cada um é um trabalho próprio: %3.</translation>
    </message>
    <message>
        <source>Job %1 was canceled or given up at the printer or its server.</source>
        <translation>O trabalho %1 foi cancelado ou abandonado na impressora ou em seu servidor.</translation>
    </message>
    <message>
        <source>Job %1 is still in the queue.</source>
        <translation>O trabalho %1 ainda está na fila.</translation>
    </message>
    <message>
        <source>%1 Documents that were sent before, each as a job of its own: %2 of %3. Printing again sends the others.</source>
        <translation>%1 Documentos enviados antes, cada um como um trabalho próprio: %2 de %3. Imprimir novamente envia os demais.</translation>
    </message>
    <message>
        <source>Job %1 was canceled; pages that the printer has already may still come out.</source>
        <translation>O trabalho %1 foi cancelado; as páginas que já estão na impressora ainda podem sair.</translation>
    </message>
</context>
<context>
    <name>ServerProblem</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not the one that it had before: somebody has replaced it, or stands in between. If it was replaced on purpose, remove the file %2.</source>
        <translation>O certificado do servidor de impressão “%1” não é o mesmo de antes: alguém o substituiu ou está interceptando a conexão. Se a substituição foi intencional, remova o arquivo %2.</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not the one that it had before: somebody has replaced it, or stands in between. If it was replaced on purpose, remove the line “%2” from the file %3.</source>
        <translation>O certificado do servidor de impressão “%1” não é o mesmo de antes: alguém o substituiu ou está interceptando a conexão. Se a substituição foi intencional, remova a linha “%2” do arquivo %3.</translation>
    </message>
    <message>
        <source>The print server “%1” cannot be reached.</source>
        <translation>Não foi possível acessar o servidor de impressão “%1”.</translation>
    </message>
    <message>
        <source>The print server “%1” does not answer.</source>
        <translation>O servidor de impressão “%1” não responde.</translation>
    </message>
    <message>
        <source>The print server “%1” broke the connection.</source>
        <translation>O servidor de impressão “%1” interrompeu a conexão.</translation>
    </message>
    <message>
        <source>What “%1” answers is not what a print server says.</source>
        <translation>A resposta de “%1” não é a de um servidor de impressão.</translation>
    </message>
    <message>
        <source>What “%1” answers is larger than anything that a print server has to say.</source>
        <translation>A resposta de “%1” é maior que qualquer resposta de um servidor de impressão.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>O servidor de impressão “%1” exige um usuário e uma senha.</translation>
    </message>
    <message>
        <source>The print server “%1” does not accept this user and password.</source>
        <translation>O servidor de impressão “%1” não aceita este usuário e esta senha.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password; none was given.</source>
        <translation>O servidor de impressão “%1” exige um usuário e uma senha, que não foram informados.</translation>
    </message>
    <message>
        <source>The print server “%1” does not allow you this.</source>
        <translation>O servidor de impressão “%1” não permite que você faça isso.</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not to be trusted.</source>
        <translation>O certificado do servidor de impressão “%1” não é confiável.</translation>
    </message>
    <message>
        <source>The print server “%1” wants an encrypted connection, which could not be made.</source>
        <translation>O servidor de impressão “%1” exige uma conexão criptografada, que não pôde ser estabelecida.</translation>
    </message>
    <message>
        <source>The print server “%1” knows nothing of it.</source>
        <translation>O servidor de impressão “%1” não tem registro disso.</translation>
    </message>
    <message>
        <source>The print server “%1” refuses.</source>
        <translation>O servidor de impressão “%1” recusou a solicitação.</translation>
    </message>
    <message>
        <source>The document cannot be read: %1</source>
        <translation>Não foi possível ler o documento: %1</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>“%1” cannot be reached.</source>
        <translation>Não foi possível acessar “%1”.</translation>
    </message>
    <message>
        <source>No answer from “%1”.</source>
        <translation>Nenhuma resposta de “%1”.</translation>
    </message>
    <message>
        <source>“%1” broke the connection.</source>
        <translation>“%1” interrompeu a conexão.</translation>
    </message>
    <message>
        <source>“%1” wants a password.</source>
        <translation>“%1” exige uma senha.</translation>
    </message>
    <message>
        <source>Wrong user or password.</source>
        <translation>Usuário ou senha incorretos.</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints, in a way that is not possible here.</source>
        <translation>O servidor de impressão “%1” precisa saber quem imprime, de uma forma que não é possível aqui.</translation>
    </message>
</context>
<context>
    <name>SettingsIndex</name>
    <message>
        <source>Copies</source>
        <translation>Cópias</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>All Options</source>
        <translation>Todas as opções</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mais</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
</context>
<context>
    <name>SharedFile</name>
    <message>
        <source>“%1” cannot be read: %2. It was not changed.</source>
        <translation>Não foi possível ler “%1”: %2. Não foi alterado.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. It was not changed.</source>
        <translation>Não foi possível gravar “%1”: %2. Não foi alterado.</translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation>o link não leva a lugar nenhum</translation>
    </message>
    <message>
        <source>the link leads to a file of somebody else</source>
        <translation>o link leva a um arquivo de outro usuário</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>não é um arquivo</translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation>pertence a outro usuário</translation>
    </message>
    <message>
        <source>another program of ours is writing it</source>
        <translation>outro programa nosso está gravando o arquivo</translation>
    </message>
    <message>
        <source>nothing can be written into its folder</source>
        <translation>não é possível gravar em sua pasta</translation>
    </message>
    <message>
        <source>other programs write it all the time</source>
        <translation>outros programas o gravam o tempo todo</translation>
    </message>
</context>
<context>
    <name>SheetMarks</name>
    <message>
        <source>The back of this sheet stays empty: only one side is printed.</source>
        <translation>O verso desta folha fica vazio: só uma face é impressa.</translation>
    </message>
</context>
<context>
    <name>SheetTexts</name>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 página</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 páginas</translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1 folha</translation>
    </message>
    <message>
        <source>%1 sheets</source>
        <translation>%1 folhas</translation>
    </message>
    <message>
        <source>“%1” has %2</source>
        <translation>“%1” tem %2</translation>
    </message>
    <message>
        <source>The document has %1</source>
        <translation>O documento tem %1</translation>
    </message>
    <message>
        <source>the document has %1</source>
        <translation>o documento tem %1</translation>
    </message>
    <message>
        <source>%1 and later</source>
        <translation>de %1 em diante</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>%1; %2 is not in it.</source>
        <translation>%1; a página %2 não existe.</translation>
    </message>
    <message>
        <source>%1; %2 are not in it.</source>
        <translation>%1; estas páginas não existem: %2.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only even pages were chosen.</source>
        <translation>Nada seria impresso: %1, e somente páginas pares foram escolhidas.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only odd pages were chosen.</source>
        <translation>Nada seria impresso: %1, e somente páginas ímpares foram escolhidas.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and none of them is left.</source>
        <translation>Nada seria impresso: %1, e não resta nenhuma.</translation>
    </message>
    <message>
        <source>“%1” takes too long to be shown. It can be printed without a preview.</source>
        <translation>“%1” demora demais para ser mostrado. Ele pode ser impresso sem visualização.</translation>
    </message>
    <message>
        <source>“%1” is too large to be shown. It can be printed without a preview.</source>
        <translation>“%1” é grande demais para ser mostrado. Ele pode ser impresso sem visualização.</translation>
    </message>
    <message>
        <source>“%1” could not be laid out, so there is no preview. Printing it may work all the same.</source>
        <translation>Não foi possível diagramar “%1”; por isso, não há visualização. Mesmo assim, a impressão pode funcionar.</translation>
    </message>
    <message>
        <source>the back stays empty, because only one side is printed</source>
        <translation>o verso fica vazio, porque só uma face é impressa</translation>
    </message>
    <message>
        <source>the backs stay empty, because each document has only one side</source>
        <translation>os versos ficam vazios, porque cada documento tem só uma face</translation>
    </message>
    <message>
        <source>the back stays empty where a document has only one side: %1</source>
        <translation>o verso fica vazio onde o documento tem só uma face: %1</translation>
    </message>
    <message>
        <source>could not be counted</source>
        <translation>não foi possível contar</translation>
    </message>
    <message>
        <source>%1, two-sided by hand</source>
        <translation>%1, frente e verso manual</translation>
    </message>
    <message>
        <source>%1, and 1 cover sheet</source>
        <translation>%1 e 1 folha de rosto</translation>
    </message>
    <message>
        <source>%1, and %2 cover sheets</source>
        <translation>%1 e %2 folhas de rosto</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>%1 × %2 copies = %3</source>
        <translation>%1 × %2 cópias = %3</translation>
    </message>
    <message>
        <source>%1 at %2 %</source>
        <translation>%1 a %2 %</translation>
    </message>
    <message>
        <source>Sheets</source>
        <translation>Folhas</translation>
    </message>
    <message>
        <source>Pages Not There</source>
        <translation>Páginas inexistentes</translation>
    </message>
    <message>
        <source>Printed Size</source>
        <translation>Tamanho impresso</translation>
    </message>
</context>
<context>
    <name>SheetView</name>
    <message>
        <source>cover sheet</source>
        <translation>folha de rosto</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>em branco</translation>
    </message>
    <message>
        <source>printed</source>
        <translation>impressa</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>página %1</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>páginas %1</translation>
    </message>
    <message>
        <source>%L1 back</source>
        <translation>%L1 verso</translation>
    </message>
    <message>
        <source>%L1 front</source>
        <translation>%L1 frente</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Sheet %L1: %2</source>
        <translation>Folha %L1: %2</translation>
    </message>
    <message>
        <source>Sheet %L1, back: %2</source>
        <translation>Folha %L1, verso: %2</translation>
    </message>
    <message>
        <source>Sheet %L1, front: %2</source>
        <translation>Folha %L1, frente: %2</translation>
    </message>
    <message>
        <source>%1, landscape</source>
        <translation>%1, paisagem</translation>
    </message>
    <message>
        <source>Bound at the left edge</source>
        <translation>Encadernada na borda esquerda</translation>
    </message>
    <message>
        <source>Bound at the top edge</source>
        <translation>Encadernada na borda superior</translation>
    </message>
    <message>
        <source>Bound at the right edge</source>
        <translation>Encadernada na borda direita</translation>
    </message>
    <message>
        <source>Bound at the bottom edge</source>
        <translation>Encadernada na borda inferior</translation>
    </message>
</context>
<context>
    <name>StartPresets</name>
    <message>
        <source>Last job: %1</source>
        <translation>Último trabalho: %1</translation>
    </message>
    <message>
        <source>There is no preset “%1”, nor any other for this printer.</source>
        <translation>Não existe a predefinição “%1”, nem nenhuma outra para esta impressora.</translation>
    </message>
    <message>
        <source>There is no preset “%1” for this printer. Presets: %2.</source>
        <translation>Não existe a predefinição “%1” para esta impressora. Predefinições: %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>StartValues</name>
    <message>
        <source>Default of the queue “%1”: %2</source>
        <translation>Padrão da fila “%1”: %2</translation>
    </message>
    <message>
        <source>Default of your administrator: %1</source>
        <translation>Padrão do administrador: %1</translation>
    </message>
    <message>
        <source>The queue “%1” adds this to each job; what it does is not known here: %2.</source>
        <translation>A fila “%1” acrescenta isto a cada trabalho; o efeito não é conhecido aqui: %2.</translation>
    </message>
    <message>
        <source>This printer has no option of this name: %1.</source>
        <translation>Esta impressora não tem nenhuma opção com este nome: %1.</translation>
    </message>
</context>
<context>
    <name>Summary</name>
    <message>
        <source>Copies</source>
        <translation>Cópias</translation>
    </message>
    <message>
        <source>%1, collated</source>
        <translation>%1, agrupadas</translation>
    </message>
    <message>
        <source>%1, not collated</source>
        <translation>%1, não agrupadas</translation>
    </message>
    <message>
        <source>Also in the job</source>
        <translation>Também no trabalho</translation>
    </message>
    <message>
        <source>%1 × %2 inches</source>
        <translation>%1 × %2 polegadas</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>TerminalQuestions</name>
    <message>
        <source>The printer at “%1” wants a user and a password.</source>
        <translation>A impressora em “%1” exige um usuário e uma senha.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>O servidor de impressão “%1” exige um usuário e uma senha.</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others may read them.</source>
        <translation>A conexão não é criptografada: outras pessoas podem lê-los.</translation>
    </message>
    <message>
        <source>User [%1]: </source>
        <translation>Usuário [%1]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Senha: </translation>
    </message>
    <message>
        <source>That is not the password.</source>
        <translation>A senha não está correta.</translation>
    </message>
    <message>
        <source>Password of “%1”: </source>
        <translation>Senha de “%1”: </translation>
    </message>
    <message>
        <source>Enter prints the other sides, Ctrl+D leaves them unprinted: </source>
        <translation>Enter imprime as segundas faces, Ctrl+D as deixa sem imprimir: </translation>
    </message>
</context>
<context>
    <name>TextFormat</name>
    <message>
        <source>The margins, columns and characters per inch that were asked for leave no room for a text on this paper (%1 × %2 points).</source>
        <translation>As margens, as colunas e os caracteres por polegada solicitados não deixam espaço para um texto neste papel (%1 × %2 pontos).</translation>
    </message>
</context>
<context>
    <name>UnattendedRun</name>
    <message>
        <source>%1 So the printer “%2” could not be asked for.</source>
        <translation>%1 Por isso, não foi possível perguntar pela impressora “%2”.</translation>
    </message>
    <message>
        <source>%1 Printers that need no print server: %2.</source>
        <translation>%1 Impressoras que não precisam de um servidor de impressão: %2.</translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>Interrompido.</translation>
    </message>
    <message>
        <source>The preset “%1” is kept.</source>
        <translation>A predefinição “%1” foi salva.</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Trabalho %1: %2</translation>
    </message>
    <message>
        <source>Nothing was printed.</source>
        <translation>Nada foi impresso.</translation>
    </message>
    <message>
        <source>It waits until the instructions have been followed. Release it with: %1</source>
        <translation>Ele aguarda até que as instruções tenham sido seguidas. Libere-o com: %1</translation>
    </message>
    <message>
        <source>Printed to standard output</source>
        <translation>Impresso na saída padrão</translation>
    </message>
    <message>
        <source>The result could not be written to standard output: %1.</source>
        <translation>Não foi possível gravar o resultado na saída padrão: %1.</translation>
    </message>
    <message>
        <source>No preset was kept.</source>
        <translation>Nenhuma predefinição foi salva.</translation>
    </message>
</context>
<context>
    <name>UserQueuesFile</name>
    <message>
        <source>The file of lpoptions is packed, and cannot be changed here.</source>
        <translation>O arquivo de lpoptions está compactado e não pode ser alterado aqui.</translation>
    </message>
    <message>
        <source>“%1” is your default printer, and stays: choose another one first.</source>
        <translation>“%1” é sua impressora padrão e é mantida: escolha outra antes.</translation>
    </message>
    <message>
        <source>“%1” is no name that other programs can print to.</source>
        <translation>“%1” não é um nome em que outros programas possam imprimir.</translation>
    </message>
    <message>
        <source>“%1” would have more settings than other programs can read.</source>
        <translation>“%1” teria mais configurações do que outros programas conseguem ler.</translation>
    </message>
    <message>
        <source>Other programs would read the value of “%1” as another one.</source>
        <translation>Outros programas leriam o valor de “%1” de outra forma.</translation>
    </message>
    <message>
        <source>“%1” is no name of an option for other programs.</source>
        <translation>“%1” não é um nome de opção para outros programas.</translation>
    </message>
    <message>
        <source>The value of “%1” has a line break or a control character, which no option for other programs can have.</source>
        <translation>O valor de “%1” tem uma quebra de linha ou um caractere de controle, que nenhuma opção para outros programas pode ter.</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is.</source>
        <translation>“%1” foi alterado por outro programa e fica como está.</translation>
    </message>
</context>
<context>
    <name>corvana::AttributeEditor</name>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Outro…</translation>
    </message>
</context>
<context>
    <name>corvana::AttributeRows</name>
    <message>
        <source>&amp;More</source>
        <translation>&amp;Mais</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mais</translation>
    </message>
    <message>
        <source>More, %1</source>
        <translation>Mais, %1</translation>
    </message>
</context>
<context>
    <name>corvana::ChangeMarks</name>
    <message>
        <source>Changed. %1</source>
        <translation>Alterado. %1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>corvana::ChoiceEditor</name>
    <message>
        <source>“%1: %2”</source>
        <translation>“%1: %2”</translation>
    </message>
    <message>
        <source>%1 to %2 points</source>
        <translation>de %1 a %2 pontos</translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation>de %1 a %2 caracteres</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>“%1” is not possible for %2. Allowed: %3.</source>
        <translation>“%1” não é possível para %2. Valores permitidos: %3.</translation>
    </message>
    <message>
        <source>This is not possible for %1. Allowed: %2.</source>
        <translation>Este valor não é possível para %1. Valores permitidos: %2.</translation>
    </message>
    <message>
        <source>Cannot be combined with %1.</source>
        <translation>Não pode ser combinado com %1.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> e </translation>
    </message>
</context>
<context>
    <name>corvana::ColorsRow</name>
    <message>
        <source>Hold to Compare</source>
        <translation>Segurar para comparar</translation>
    </message>
    <message>
        <source>While it is held, the document is shown as it is, without adjustments.</source>
        <translation>Enquanto é mantido pressionado, o documento é mostrado como é, sem ajustes.</translation>
    </message>
</context>
<context>
    <name>corvana::ComingDocuments</name>
    <message>
        <source>Standard input is being read.</source>
        <translation>Lendo a entrada padrão.</translation>
    </message>
    <message>
        <source>%1 is being read.</source>
        <translation>Lendo %1.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>corvana::Conversion</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Não foi possível ler %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Não foi possível gravar %1: %2</translation>
    </message>
</context>
<context>
    <name>corvana::CountsRow</name>
    <message>
        <source>Sheets</source>
        <translation>Folhas</translation>
    </message>
    <message>
        <source>Show Preview</source>
        <translation>Mostrar visualização</translation>
    </message>
    <message>
        <source>Hide Preview</source>
        <translation>Ocultar visualização</translation>
    </message>
</context>
<context>
    <name>corvana::CopiesEditor</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>“%1” não é permitido. Valores permitidos: %2.</translation>
    </message>
</context>
<context>
    <name>corvana::CredentialsDialog</name>
    <message>
        <source>Log In to Print</source>
        <translation>Autenticação para imprimir</translation>
    </message>
    <message>
        <source>The printer wants to know who prints. User and password are sent to it through the print server “%1”, and are forgotten when the print dialog closes.</source>
        <translation>A impressora precisa saber quem imprime. O usuário e a senha são enviados a ela pelo servidor de impressão “%1” e esquecidos quando o diálogo de impressão é fechado.</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints. User and password are forgotten when the print dialog closes.</source>
        <translation>O servidor de impressão “%1” precisa saber quem imprime. O usuário e a senha são esquecidos quando o diálogo de impressão é fechado.</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Usuário:</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>&amp;Senha:</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Autenticar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others on the network may read the password.</source>
        <translation>A conexão não é criptografada: outras pessoas na rede podem ler a senha.</translation>
    </message>
</context>
<context>
    <name>corvana::CustomPaperSize</name>
    <message>
        <source>From %1 to %2</source>
        <translation>De %1 a %2</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>Largura do papel</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>Altura do papel</translation>
    </message>
    <message>
        <source>Unit of the paper size</source>
        <translation>Unidade do tamanho do papel</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>polegadas</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentArea</name>
    <message>
        <source>Print this document earlier</source>
        <translation>Imprimir este documento antes</translation>
    </message>
    <message>
        <source>Print this document later</source>
        <translation>Imprimir este documento depois</translation>
    </message>
    <message>
        <source>Do not print this document</source>
        <translation>Não imprimir este documento</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Print further documents in the same job</source>
        <translation>Imprimir mais documentos no mesmo trabalho</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Adicionar…</translation>
    </message>
    <message>
        <source>Documents in the order in which they are printed</source>
        <translation>Documentos na ordem em que são impressos</translation>
    </message>
    <message numerus="yes">
        <source>%n documents, printed in this order:</source>
        <translation>
            <numerusform>%n documento:</numerusform>
            <numerusform>%n documentos, impressos nesta ordem:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Choose Documents to Print</source>
        <translation>Escolher documentos para imprimir</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentPasswordDialog</name>
    <message>
        <source>Protected Document</source>
        <translation>Documento protegido</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. With its owner&apos;s password it can be printed.</source>
        <translation>“%1” não permite a impressão. Com a senha de seu proprietário, ele pode ser impresso.</translation>
    </message>
    <message>
        <source>“%1” is protected: enter its password. The password is forgotten when the print dialog closes.</source>
        <translation>“%1” está protegido: digite sua senha. A senha é esquecida quando o diálogo de impressão é fechado.</translation>
    </message>
    <message>
        <source>That is not the password. Try again.</source>
        <translation>A senha não está correta. Tente novamente.</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Senha:</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>corvana::FileJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>A impressão foi cancelada.</translation>
    </message>
    <message>
        <source>%1 is the document itself; name another file.</source>
        <translation>%1 é o próprio documento; indique outro arquivo.</translation>
    </message>
    <message>
        <source>Printed to %1</source>
        <translation>Impresso em %1</translation>
    </message>
</context>
<context>
    <name>corvana::FilterChain</name>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>Não foi possível iniciar %1: %2</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: how many pages it has could not be found out.</source>
        <translation>Não foi possível converter o documento para a impressora: não foi possível descobrir quantas páginas ele tem.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Não foi possível gravar %1: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>A impressão foi cancelada.</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: that took too long.</source>
        <translation>Não foi possível converter o documento para a impressora: a conversão demorou demais.</translation>
    </message>
    <message>
        <source>The filter chain of CUPS crashed.</source>
        <translation>A cadeia de filtros do CUPS foi encerrada inesperadamente.</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: %1</source>
        <translation>Não foi possível converter o documento para a impressora: %1</translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>estado de saída %1</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: nothing came out. %1</source>
        <translation>Não foi possível converter o documento para a impressora: nada foi produzido. %1</translation>
    </message>
    <message>
        <source>The documents could not be put together: %1 is incomplete. Is the disk full?</source>
        <translation>Não foi possível juntar os documentos: %1 está incompleto. O disco está cheio?</translation>
    </message>
</context>
<context>
    <name>corvana::FindField</name>
    <message>
        <source>Find a setting (Ctrl+F)</source>
        <translation>Localizar uma configuração (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Localizar uma configuração</translation>
    </message>
    <message>
        <source>Type a name, then go to a setting with Enter</source>
        <translation>Digite um nome e vá até uma configuração com Enter</translation>
    </message>
    <message>
        <source>Type the name of a setting or of a choice.</source>
        <translation>Digite o nome de uma configuração ou de um valor.</translation>
    </message>
</context>
<context>
    <name>corvana::FindModel</name>
    <message>
        <source>%1, on %2</source>
        <translation>%1, em %2</translation>
    </message>
    <message>
        <source>%1, %2, on %3</source>
        <translation>%1, %2, em %3</translation>
    </message>
</context>
<context>
    <name>corvana::FindPopup</name>
    <message>
        <source>Settings that were found</source>
        <translation>Configurações encontradas</translation>
    </message>
    <message>
        <source>1 setting found</source>
        <translation>1 configuração encontrada</translation>
    </message>
    <message>
        <source>%1 settings found</source>
        <translation>%1 configurações encontradas</translation>
    </message>
</context>
<context>
    <name>corvana::GeneralPage</name>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Cópias:</translation>
    </message>
    <message>
        <source>All, or such as 1-4, 7, 9-</source>
        <translation>Todas, ou p. ex. 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>Choos&amp;e Pages…</source>
        <translation>&amp;Escolher páginas…</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Pá&amp;ginas:</translation>
    </message>
    <message>
        <source>No document has been chosen.</source>
        <translation>Nenhum documento foi escolhido.</translation>
    </message>
    <message>
        <source>Custom Size</source>
        <translation>Tamanho personalizado</translation>
    </message>
    <message>
        <source>Width × height:</source>
        <translation>Largura × altura:</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>corvana::HelpWindow</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>corvana::InstancePrinters</name>
    <message>
        <source>More Printers</source>
        <translation>Mais impressoras</translation>
    </message>
    <message>
        <source>Other programs have the preset on the &amp;printers that are ticked:</source>
        <translation>Outros programas têm a predefinição nas &amp;impressoras marcadas:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>Outros programas a listam como “%1”.</translation>
    </message>
</context>
<context>
    <name>corvana::JobFooter</name>
    <message>
        <source>Printing</source>
        <translation>Imprimindo</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Show Silenced Messages Again</source>
        <translation>Mostrar novamente as mensagens ocultas</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>C&amp;lose (printing continues)</source>
        <translation>&amp;Fechar (a impressão continua)</translation>
    </message>
    <message>
        <source>The job goes on without this window.</source>
        <translation>O trabalho continua sem esta janela.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Cancelar trabalho</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>&amp;Salvar…</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Imprimindo…</translation>
    </message>
    <message>
        <source>Canceling…</source>
        <translation>Cancelando…</translation>
    </message>
    <message>
        <source>The first sides are printed.</source>
        <translation>As primeiras faces foram impressas.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>corvana::MessageBar</name>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>Show all of this message</source>
        <translation>Mostrar toda a mensagem</translation>
    </message>
    <message>
        <source>Dismiss this message</source>
        <translation>Dispensar esta mensagem</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsModel</name>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Installable Options</source>
        <translation>Opções instaláveis</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1
For the command line: %2</source>
        <translation>%1
Na linha de comando: %2</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>Alterado. %1</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Padrão: %1</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsPage</name>
    <message>
        <source>Back to the Default</source>
        <translation>Voltar ao padrão</translation>
    </message>
    <message>
        <source>Search options and choices</source>
        <translation>Pesquisar opções e valores</translation>
    </message>
    <message>
        <source>Options of the printer</source>
        <translation>Opções da impressora</translation>
    </message>
    <message>
        <source>Nothing contains “%1”.</source>
        <translation>Nada contém “%1”.</translation>
    </message>
</context>
<context>
    <name>corvana::PageChooser</name>
    <message>
        <source>Choose Pages</source>
        <translation>Escolher páginas</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Pages:</source>
        <translation>&amp;Páginas:</translation>
    </message>
    <message>
        <source>Such as 1-4, 7, 9-</source>
        <translation>Por exemplo, 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todas</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Nenhuma</translation>
    </message>
    <message>
        <source>&amp;Odd</source>
        <translation>Í&amp;mpares</translation>
    </message>
    <message>
        <source>&amp;Even</source>
        <translation>Pa&amp;res</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>&amp;Inverter</translation>
    </message>
    <message>
        <source>Page numbers count in each document: what is ticked in one is ticked in all.</source>
        <translation>Os números de página valem em cada documento: o que é marcado em um é marcado em todos.</translation>
    </message>
</context>
<context>
    <name>corvana::PageDelegate</name>
    <message>
        <source>%1 (%2)</source>
        <comment>page, its label</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>corvana::PageModel</name>
    <message>
        <source>It has %L1 pages, too many to be shown here. They can be typed.</source>
        <translation>Tem %L1 páginas, demais para serem mostradas aqui. Elas podem ser digitadas.</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Página %1</translation>
    </message>
    <message>
        <source>Page %1 (%2)</source>
        <translation>Página %1 (%2)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1, chosen</source>
        <translation>%1, escolhida</translation>
    </message>
    <message>
        <source>%1, not chosen</source>
        <translation>%1, não escolhida</translation>
    </message>
</context>
<context>
    <name>corvana::PageThumbnails</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>corvana::PassJob</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Não foi possível gravar %1: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>A impressão foi cancelada.</translation>
    </message>
</context>
<context>
    <name>corvana::PresetMenu</name>
    <message>
        <source>Printer &amp;Defaults</source>
        <translation>&amp;Padrões</translation>
    </message>
    <message>
        <source>&amp;Last Used</source>
        <translation>Ú&amp;ltimas usadas</translation>
    </message>
    <message>
        <source>For This Model</source>
        <translation>Para este modelo</translation>
    </message>
    <message>
        <source>For All Printers</source>
        <translation>Para todas as impressoras</translation>
    </message>
    <message>
        <source>From Other Programs</source>
        <translation>De outros programas</translation>
    </message>
    <message>
        <source>&amp;Save Preset…</source>
        <translation>&amp;Salvar predefinição…</translation>
    </message>
    <message>
        <source>&amp;Update “%1”</source>
        <translation>&amp;Atualizar “%1”</translation>
    </message>
    <message>
        <source>&amp;Rename “%1”…</source>
        <translation>&amp;Renomear “%1”…</translation>
    </message>
    <message>
        <source>D&amp;elete “%1”…</source>
        <translation>&amp;Excluir “%1”…</translation>
    </message>
    <message>
        <source>Re&amp;member the Settings of the Last Job</source>
        <translation>Le&amp;mbrar as configurações do último trabalho</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Excluir predefinição</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? The settings stay as they are.</source>
        <translation>Excluir a predefinição “%1”? As configurações ficam como estão.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
</context>
<context>
    <name>corvana::PresetRow</name>
    <message>
        <source>Prese&amp;t:</source>
        <translation>&amp;Predefinição:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (alterada)</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>Predefinição: %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>This Page: %1</source>
        <translation>Esta página: %1</translation>
    </message>
    <message>
        <source>Everything: %1</source>
        <translation>Tudo: %1</translation>
    </message>
    <message>
        <source>%1 (Ctrl+Z)</source>
        <translation>%1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>%1 (Shift+Ctrl+Z)</source>
        <translation>%1 (Shift+Ctrl+Z)</translation>
    </message>
</context>
<context>
    <name>corvana::PreviewPane</name>
    <message>
        <source>Counting the sheets…</source>
        <translation>Contando as folhas…</translation>
    </message>
</context>
<context>
    <name>corvana::PreviewPlaceholder</name>
    <message>
        <source>Choose &amp;Documents…</source>
        <translation>Escolher &amp;documentos…</translation>
    </message>
    <message>
        <source>Drop documents here to print them.</source>
        <translation>Solte aqui os documentos que deseja imprimir.</translation>
    </message>
    <message>
        <source>PDF, PostScript, text, PNG and JPEG; several are one job.</source>
        <translation>PDF, PostScript, texto, PNG e JPEG; vários formam um trabalho.</translation>
    </message>
</context>
<context>
    <name>corvana::PrintTask</name>
    <message>
        <source>The sides of “%1” are not known here, so they cannot be printed in two halves. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>As faces de “%1” não são conhecidas aqui; por isso, não podem ser impressas em duas metades. Com sides-by-hand=no é impressa uma face de cada folha.</translation>
    </message>
    <message>
        <source>%1 (other sides)</source>
        <translation>%1 (segundas faces)</translation>
    </message>
    <message>
        <source>%1 (first sides)</source>
        <translation>%1 (primeiras faces)</translation>
    </message>
    <message>
        <source>First sides: %1</source>
        <translation>Primeiras faces: %1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>Segundas faces: %1</translation>
    </message>
    <message>
        <source>First sides: %1 Other sides: %2</source>
        <translation>Primeiras faces: %1 Segundas faces: %2</translation>
    </message>
    <message>
        <source>Not printed.</source>
        <translation>Não impresso.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Show Its First Sheet</source>
        <translation>Mostrar a primeira folha</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Give the password with --document-password-file.</source>
        <translation>Informe a senha com --document-password-file.</translation>
    </message>
    <message>
        <source>Enter the Password…</source>
        <translation>Digitar a senha…</translation>
    </message>
    <message>
        <source>Enter the Owner&apos;s Password…</source>
        <translation>Digitar a senha do proprietário…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Escolha um documento para imprimir.</translation>
    </message>
    <message>
        <source>Name the file to print to.</source>
        <translation>Indique o arquivo em que será impresso.</translation>
    </message>
    <message>
        <source>“%1” are no pages. Pages and ranges in ascending order were expected, such as 1-4, 7, 9-.</source>
        <translation>“%1” não são páginas. Eram esperados páginas e intervalos em ordem crescente, como 1-4, 7, 9-.</translation>
    </message>
    <message>
        <source>%1 is of a kind that is not known here. Only a queue can pass it on to its printer, as it is, with the option “raw”.</source>
        <translation>O tipo de %1 não é conhecido aqui. Somente uma fila pode repassá-lo sem alterações à sua impressora, com a opção “raw”.</translation>
    </message>
    <message>
        <source>What is passed on as it is cannot be printed to a file.</source>
        <translation>O que é repassado sem alterações não pode ser impresso em um arquivo.</translation>
    </message>
    <message>
        <source>No font of this computer has these characters of the text: %1. An empty frame is printed for each of them.</source>
        <translation>Nenhuma fonte deste computador tem estes caracteres do texto: %1. No lugar de cada um é impresso um quadro vazio.</translation>
    </message>
    <message>
        <source>Not all of the text could be looked through for characters that no font of this computer has. An empty frame is printed for each of them.</source>
        <translation>Não foi possível verificar em todo o texto se há caracteres que nenhuma fonte deste computador tem. No lugar de cada um é impresso um quadro vazio.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings show instructions.</source>
        <translation>As configurações da impressora mostram instruções.</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and a file cannot wait. Follow them and print with --on-alert=print.</source>
        <translation>O trabalho teria de aguardar que estas instruções sejam seguidas, e um arquivo não pode aguardar. Siga as instruções e imprima com --on-alert=print.</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and two-sided printing by hand cannot. Follow them and print with --on-alert=print.</source>
        <translation>O trabalho teria de aguardar que estas instruções sejam seguidas, e a impressão frente e verso manual não pode aguardar. Siga as instruções e imprima com --on-alert=print.</translation>
    </message>
    <message>
        <source>%1 So the job cannot wait for these instructions. Follow them and print with --on-alert=print.</source>
        <translation>%1 Por isso, o trabalho não pode aguardar que estas instruções sejam seguidas. Siga as instruções e imprima com --on-alert=print.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings hold the job back.</source>
        <translation>As configurações da impressora impedem o envio do trabalho.</translation>
    </message>
    <message>
        <source>Its pages are made while it is printed. The preview shows them.</source>
        <translation>Suas páginas são criadas durante a impressão. A visualização as mostra.</translation>
    </message>
    <message>
        <source>How many pages it has is not known.</source>
        <translation>Não se sabe quantas páginas ele tem.</translation>
    </message>
    <message>
        <source>It is being looked at…</source>
        <translation>Examinando…</translation>
    </message>
    <message>
        <source>Not everything that your administrator has decided can be used. “corvana-print --check-policy” says what, and why.</source>
        <translation>Nem tudo o que o administrador definiu pode ser aplicado. “corvana-print --check-policy” informa o quê e por quê.</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper.</source>
        <translation>Este trabalho precisa de %1 folhas de papel.</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper. More than %2 are printed only with --yes.</source>
        <translation>Este trabalho precisa de %1 folhas de papel. Mais de %2 só são impressas com --yes.</translation>
    </message>
    <message>
        <source>The options of the printer have changed at its server; yours were kept.</source>
        <translation>As opções da impressora mudaram em seu servidor; as suas foram mantidas.</translation>
    </message>
    <message>
        <source>The printer&apos;s own settings are missing: %1</source>
        <translation>Faltam as configurações próprias da impressora: %1</translation>
    </message>
    <message>
        <source>Not everything could be set as before:
%1</source>
        <translation>Nem tudo pôde ser definido como antes:
%1</translation>
    </message>
    <message>
        <source>The queue “%1” leads to the same printer, and has pages with all of its settings.</source>
        <translation>A fila “%1” leva à mesma impressora e tem páginas com todas as suas configurações.</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <translation>Usar “%1”</translation>
    </message>
    <message>
        <source>There is no job attribute of the name %1.</source>
        <translation>Não existe nenhum atributo do trabalho chamado %1.</translation>
    </message>
    <message>
        <source>The queue “%1” sets this for every job that does not name it. Allowed: %2.</source>
        <translation>A fila “%1” define isto para todo trabalho que não o informe. Valores permitidos: %2.</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>“%1” não é permitido. Valores permitidos: %2.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No document has been chosen.</source>
        <translation>Nenhum documento foi escolhido.</translation>
    </message>
    <message>
        <source>There is a preview once the printer is known.</source>
        <translation>A visualização aparecerá quando a impressora for conhecida.</translation>
    </message>
    <message>
        <source>Files are passed on to the printer as they are. What comes out is not known here.</source>
        <translation>Os arquivos são repassados à impressora sem alterações. O resultado não é conhecido aqui.</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>A impressão foi cancelada.</translation>
    </message>
    <message>
        <source>What was asked for cannot be set:
%1</source>
        <translation>O que foi solicitado não pode ser definido:
%1</translation>
    </message>
    <message>
        <source>Not everything that is set for this printer could be taken:
%1</source>
        <translation>Nem tudo o que está definido para esta impressora pôde ser aplicado:
%1</translation>
    </message>
    <message>
        <source>As in your last job.</source>
        <translation>Como em seu último trabalho.</translation>
    </message>
    <message>
        <source>Use Defaults</source>
        <translation>Usar padrões</translation>
    </message>
    <message>
        <source>A PDF file is saved once: there are no copies of it.</source>
        <translation>Um arquivo PDF é salvo uma única vez: não há cópias dele.</translation>
    </message>
    <message>
        <source>The printer prints at most %1 copies at once, not %2.</source>
        <translation>A impressora imprime no máximo %1 cópias por vez, não %2.</translation>
    </message>
    <message>
        <source>“%1” has nothing to show.</source>
        <translation>“%1” não tem nada para mostrar.</translation>
    </message>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>Não é possível mostrar uma página das configurações da impressora: %1</translation>
    </message>
    <message>
        <source>%1 is not on this computer. Save it here to print it.</source>
        <translation>%1 não está neste computador. Salve-o aqui para imprimi-lo.</translation>
    </message>
    <message>
        <source>The sheets can stay in the tray: the other sides are printed with the settings of the first ones.</source>
        <translation>As folhas podem ficar na bandeja: as segundas faces são impressas com as configurações das primeiras.</translation>
    </message>
    <message>
        <source>Printed to %1, which holds data for the printer and is no PDF document</source>
        <translation>Impresso em %1, que contém dados para a impressora e não é um documento PDF</translation>
    </message>
</context>
<context>
    <name>corvana::PrintWindow</name>
    <message>
        <source>Asking “%1” for the options of the printer…</source>
        <translation>Consultando “%1” sobre as opções da impressora…</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Procurando impressoras…</translation>
    </message>
    <message>
        <source>No answer from “%1” yet.</source>
        <translation>Ainda sem resposta de “%1”.</translation>
    </message>
    <message>
        <source>No printers at “%1”.</source>
        <translation>Nenhuma impressora em “%1”.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>There are no printers yet. Add one in the printer settings of the system, or with the command lpadmin.</source>
        <translation>Ainda não há impressoras. Adicione uma nas configurações de impressão do sistema ou com o comando lpadmin.</translation>
    </message>
    <message>
        <source>Until then, documents can be printed to a file.</source>
        <translation>Até lá, os documentos podem ser impressos em um arquivo.</translation>
    </message>
    <message>
        <source>Log In…</source>
        <translation>Autenticar…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>The print service of this computer is not running. Start it, on most systems with “systemctl start cups”.</source>
        <translation>O serviço de impressão deste computador não está em execução. Inicie-o; na maioria dos sistemas, com “systemctl start cups”.</translation>
    </message>
    <message>
        <source>Print Another Copy</source>
        <translation>Imprimir outra cópia</translation>
    </message>
    <message>
        <source>Two-Sided by Hand</source>
        <translation>Frente e verso manual</translation>
    </message>
    <message>
        <source>Only the first sides of the sheets are printed. Leave the other sides unprinted?</source>
        <translation>Somente as primeiras faces das folhas foram impressas. Deseja deixar as segundas faces sem imprimir?</translation>
    </message>
    <message>
        <source>The first sides of the sheets are being printed. Stop that, and leave the other sides unprinted?</source>
        <translation>As primeiras faces das folhas estão sendo impressas. Deseja interromper e deixar as segundas faces sem imprimir?</translation>
    </message>
    <message>
        <source>Leave Unprinted</source>
        <translation>Deixar sem imprimir</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>Imprimir em arquivo</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 já existe. Deseja substituí-lo?</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>Imprimir mesmo assim</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Your preferences cannot be written.</source>
        <translation>Não foi possível salvar suas preferências.</translation>
    </message>
    <message>
        <source>The help is not installed.</source>
        <translation>A ajuda não está instalada.</translation>
    </message>
    <message>
        <source>Help on Printing</source>
        <translation>Ajuda de impressão</translation>
    </message>
    <message>
        <source>If you print it again, it may come out of the printer twice.</source>
        <translation>Se for impresso novamente, poderá sair duas vezes da impressora.</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>Imprimir novamente</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterComboBox</name>
    <message>
        <source>Choose a printer</source>
        <translation>Escolha uma impressora</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterHeader</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Imp&amp;ressora:</translation>
    </message>
    <message>
        <source>Print to &amp;file:</source>
        <translation>Imprimir em &amp;arquivo:</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Imprimir em arquivo</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>Esco&amp;lher…</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>Imprimir em arquivo</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterPopup</name>
    <message>
        <source>Printers</source>
        <translation>Impressoras</translation>
    </message>
    <message>
        <source>Search by name or location</source>
        <translation>Pesquisar por nome ou local</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>Pesquisar impressoras</translation>
    </message>
    <message>
        <source>No printer was found</source>
        <translation>Nenhuma impressora foi encontrada</translation>
    </message>
    <message>
        <source>No printer matches</source>
        <translation>Nenhuma impressora corresponde</translation>
    </message>
    <message>
        <source>%1 of %2 printers</source>
        <translation>%1 de %2 impressoras</translation>
    </message>
    <message>
        <source>%1 printers</source>
        <translation>%1 impressoras</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterSource</name>
    <message>
        <source>There is no default printer. %1 Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>Não há impressora padrão. %1 Indique uma impressora com -d ou um PPD com --ppd FILE, ou experimente as impressoras de exemplo com --demo.</translation>
    </message>
    <message>
        <source>There is no default printer. Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>Não há impressora padrão. Indique uma impressora com -d ou um PPD com --ppd FILE, ou experimente as impressoras de exemplo com --demo.</translation>
    </message>
    <message>
        <source>There is no instance “%1”: lpoptions has none of the queue “%2”.</source>
        <translation>A instância “%1” não existe: lpoptions não tem nenhuma da fila “%2”.</translation>
    </message>
    <message>
        <source>There is no instance “%1”. The queue “%2” has: %3.</source>
        <translation>A instância “%1” não existe. A fila “%2” tem: %3.</translation>
    </message>
    <message>
        <source>There is no printer “%1” at “%2”.</source>
        <translation>Não há nenhuma impressora “%1” em “%2”.</translation>
    </message>
    <message>
        <source>There is no printer “%1” at “%2” any more.</source>
        <translation>Não há mais nenhuma impressora “%1” em “%2”.</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterStatusLine</name>
    <message>
        <source>Try Again</source>
        <translation>Tentar novamente</translation>
    </message>
</context>
<context>
    <name>corvana::SavePresetDialog</name>
    <message>
        <source>Rename Preset</source>
        <translation>Renomear predefinição</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Salvar predefinição</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>For printers of this &amp;model (%1)</source>
        <translation>Para impressoras deste &amp;modelo (%1)</translation>
    </message>
    <message>
        <source>For &amp;all printers, as far as they have these settings</source>
        <translation>Para &amp;todas as impressoras que têm estas configurações</translation>
    </message>
    <message>
        <source>Also in &amp;other programs</source>
        <translation>Também em &amp;outros programas</translation>
    </message>
    <message>
        <source>&amp;With what sets up the printer itself (%1)</source>
        <translation>&amp;Incluir o que configura a própria impressora (%1)</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>Outros programas a listam como “%1”.</translation>
    </message>
    <message>
        <source>There is a preset of this name already.</source>
        <translation>Já existe uma predefinição com este nome.</translation>
    </message>
    <message>
        <source>There is a preset of this name already. It will be replaced.</source>
        <translation>Já existe uma predefinição com este nome. Ela será substituída.</translation>
    </message>
    <message>
        <source>There is another preset of this name, which stays.</source>
        <translation>Existe outra predefinição com este nome, que é mantida.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>More &amp;Printers…</source>
        <translation>Mais &amp;impressoras…</translation>
    </message>
</context>
<context>
    <name>corvana::ServerJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>A impressão foi cancelada.</translation>
    </message>
    <message>
        <source>The printer “%1” does not take these settings of a job: %2. Nothing was printed.</source>
        <translation>A impressora “%1” não aceita estas configurações de um trabalho: %2. Nada foi impresso.</translation>
    </message>
    <message>
        <source>The queue “%1” has no driver and prints documents as they are: it can neither put several pages on a sheet (number-up) nor choose pages (page-ranges, page-set). Nothing was printed.</source>
        <translation>A fila “%1” não tem driver e imprime os documentos sem alterações: ela não pode colocar várias páginas em uma folha (number-up) nem escolher páginas (page-ranges, page-set). Nada foi impresso.</translation>
    </message>
    <message>
        <source>The printer “%1” takes documents of these kinds only: %2.</source>
        <translation>A impressora “%1” aceita somente documentos destes tipos: %2.</translation>
    </message>
    <message>
        <source>The documents were put together as one, because the printer takes one at a time; each begins on a new sheet.</source>
        <translation>Os documentos foram reunidos em um só, porque a impressora aceita um por vez; cada um começa em uma nova folha.</translation>
    </message>
    <message>
        <source>There are too many copies to send them in sets. Their order is: %1.</source>
        <translation>Há cópias demais para enviá-las em conjuntos. Sua ordem é: %1.</translation>
    </message>
    <message>
        <source>Job %1 is in the queue; it was not followed to its end.</source>
        <translation>O trabalho %1 está na fila; ele não foi acompanhado até o fim.</translation>
    </message>
</context>
<context>
    <name>corvana::SettingFinder</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>agora: %1</translation>
    </message>
    <message>
        <source>The settings of the printer are not known yet.</source>
        <translation>As configurações da impressora ainda não são conhecidas.</translation>
    </message>
    <message>
        <source>No setting is called “%1”. Try a shorter word, or another one for it.</source>
        <translation>Nenhuma configuração se chama “%1”. Tente uma palavra mais curta ou um sinônimo.</translation>
    </message>
    <message>
        <source>No setting is called “%1”. Press Enter to search for “%2” instead.</source>
        <translation>Nenhuma configuração se chama “%1”. Pressione Enter para procurar “%2” em vez disso.</translation>
    </message>
    <message>
        <source>“%1” cannot be changed while other settings are as they are. It is on the page “%2”.</source>
        <translation>“%1” não pode ser alterado enquanto outras configurações estiverem como estão. Está na página “%2”.</translation>
    </message>
</context>
<context>
    <name>corvana::SettingsPages</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>All Options</source>
        <translation>Todas as opções</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>This page cannot be shown: %1</source>
        <translation>Não é possível mostrar esta página: %1</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Tentar novamente</translation>
    </message>
</context>
<context>
    <name>corvana::SheetView</name>
    <message>
        <source>%1. Note: %2</source>
        <translation>%1. Nota: %2</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Visualização</translation>
    </message>
    <message>
        <source>Preview. %1</source>
        <translation>Visualização. %1</translation>
    </message>
    <message>
        <source>Cover sheet of the queue: %1</source>
        <translation>Folha de rosto da fila: %1</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>Atualizando…</translation>
    </message>
</context>
<context>
    <name>corvana::SheetsRow</name>
    <message>
        <source>Sheet %L1</source>
        <translation>Folha %L1</translation>
    </message>
    <message>
        <source>Sheet %L1 of %L2</source>
        <translation>Folha %L1 de %L2</translation>
    </message>
</context>
<context>
    <name>corvana::SummaryPage</name>
    <message>
        <source>Only what is changed</source>
        <translation>Somente o que foi alterado</translation>
    </message>
    <message>
        <source>Nothing is changed.</source>
        <translation>Nada foi alterado.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>Alterado. %1</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, alterado</translation>
    </message>
</context>
<context>
    <name>corvana::TaskHistory</name>
    <message>
        <source>Printer</source>
        <translation>Impressora</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Desfazer %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Refazer %1</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Voltar a %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>This cannot go back:
%1</source>
        <translation>Isto não pode ser redefinido:
%1</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Configuração</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPresets</name>
    <message>
        <source>The printer is not known yet.</source>
        <translation>A impressora ainda não é conhecida.</translation>
    </message>
    <message>
        <source>Other programs print with these settings to “%1”.</source>
        <translation>Outros programas imprimem com estas configurações em “%1”.</translation>
    </message>
    <message>
        <source>“%1” is not there any more, or has no settings.</source>
        <translation>“%1” não existe mais ou não tem configurações.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e mais %1</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>Padrões</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>Últimas usadas</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>Não existe mais nenhuma predefinição chamada “%1”.</translation>
    </message>
    <message>
        <source>Not everything of “%1” is possible here:
%2</source>
        <translation>Nem tudo de “%1” é possível aqui:
%2</translation>
    </message>
    <message>
        <source>“%1” was kept with settings that this printer does not have.</source>
        <translation>“%1” foi salva com configurações que esta impressora não tem.</translation>
    </message>
    <message>
        <source>%1 Your settings are as they were.</source>
        <translation>%1 Suas configurações estão como antes.</translation>
    </message>
    <message>
        <source>The preset “%1” for this printer is another one.</source>
        <translation>A predefinição “%1” para esta impressora é outra.</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPreview</name>
    <message>
        <source>It can be printed all the same.</source>
        <translation>Ele pode ser impresso mesmo assim.</translation>
    </message>
</context>
<context>
    <name>corvana::TextConversion</name>
    <message>
        <source>There are no fonts for the text %1.</source>
        <translation>Não há fontes para o texto %1.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Não foi possível ler %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Não foi possível gravar %1: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>A impressão foi cancelada.</translation>
    </message>
    <message>
        <source>%1 would have more than %2 pages, and a text is printed on no more than that.</source>
        <translation>%1 teria mais de %2 páginas, o máximo com que um texto é impresso.</translation>
    </message>
</context>
<context>
    <name>corvana::TextDocuments</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>A impressão foi cancelada.</translation>
    </message>
</context>
<context>
    <name>corvana::TurnSheetsDialog</name>
    <message>
        <source>Two-Sided by Hand</source>
        <translation>Frente e verso manual</translation>
    </message>
    <message>
        <source>Put the sheets back to print their other sides</source>
        <translation>Recoloque as folhas para imprimir as segundas faces</translation>
    </message>
    <message>
        <source>&amp;Print the Other Sides</source>
        <translation>&amp;Imprimir as segundas faces</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>corvana::ZoomControl</name>
    <message>
        <source>Smaller</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Size of the sheets</source>
        <translation>Tamanho das folhas</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>Ajustar à página</translation>
    </message>
    <message>
        <source>Fit Width</source>
        <translation>Ajustar à largura</translation>
    </message>
    <message>
        <source>%L1 %</source>
        <translation>%L1 %</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>no display can be reached. Print without a window with --no-dialog.</source>
        <translation>não foi possível acessar nenhuma tela. Imprima sem janela com --no-dialog.</translation>
    </message>
</context>
<context>
    <name>ClearButton</name>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
</context>
<context>
    <name>ChoiceCodes</name>
    <message>
        <source>%1 cannot be sent to the printer: its PPD does not say in a usable way how that is done.</source>
        <translation>%1 não pode ser enviado à impressora: o PPD dela não indica de forma utilizável como fazer isso.</translation>
    </message>
</context>
<context>
    <name>PpdBounds</name>
    <message>
        <source>It is no ordinary file.</source>
        <translation>Não é um arquivo comum.</translation>
    </message>
    <message>
        <source>It is larger than %1 MB.</source>
        <translation>Tem mais de %1 MB.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 lines that begin with “%2”.</source>
        <translation>Contém dados demais: mais de %1 linhas que começam com “%2”.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices of all options together. “%2” has the most.</source>
        <translation>Contém dados demais: mais de %1 valores somando todas as opções. A que tem mais é “%2”.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 lines that belong to no option. The most frequent is “%2”.</source>
        <translation>Contém dados demais: mais de %1 linhas que não pertencem a nenhuma opção. A mais frequente é “%2”.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 different keywords.</source>
        <translation>Contém dados demais: mais de %1 palavras-chave diferentes.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in one line that begins with “%2”.</source>
        <translation>Contém dados demais: mais de %1 valores em uma linha que começa com “%2”.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in lines that begin with “%2”.</source>
        <translation>Contém dados demais: mais de %1 valores em linhas que começam com “%2”.</translation>
    </message>
    <message>
        <source>There is too much in it: its constraints name %1 choices. Beside as many options and choices as it has, %2 are allowed.</source>
        <translation>Contém dados demais: suas restrições citam %1 valores. Com tantas opções e valores, são permitidos %2.</translation>
    </message>
</context>
<context>
    <name>QueueRequests</name>
    <message>
        <source>more than %L1 printers</source>
        <translation>mais de %L1 impressoras</translation>
    </message>
    <message>
        <source>printers with more than %L1 characters in their texts</source>
        <translation>impressoras com mais de %L1 caracteres em seus textos</translation>
    </message>
</context>
<context>
    <name>ClientFiles</name>
    <message>
        <source>%1 cannot be read to its end: a small file with the settings of CUPS is expected there.</source>
        <translation>%1 não pode ser lido até o fim: espera-se ali um arquivo pequeno com as configurações do CUPS.</translation>
    </message>
</context>
<context>
    <name>TemporaryFolder</name>
    <message>
        <source>No temporary files can be kept in %1: %2</source>
        <translation>Não é possível salvar arquivos temporários em %1: %2</translation>
    </message>
</context>
<context>
    <name>TextSource</name>
    <message>
        <source>it has become shorter meanwhile</source>
        <translation>ficou menor enquanto era lido</translation>
    </message>
</context>
<context>
    <name>Finishings</name>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Grampear</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perfurar</translation>
    </message>
    <message>
        <source>Add Cover</source>
        <translation>Adicionar capa</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Encadernar</translation>
    </message>
    <message>
        <source>Saddle Stitch</source>
        <translation>Grampo na dobra</translation>
    </message>
    <message>
        <source>Edge Stitch</source>
        <translation>Grampo na borda</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Dobrar</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Refilar</translation>
    </message>
    <message>
        <source>Bundle</source>
        <translation>Agrupar em maços</translation>
    </message>
    <message>
        <source>Make Booklet</source>
        <translation>Fazer livreto</translation>
    </message>
    <message>
        <source>Offset Sets</source>
        <translation>Deslocar os jogos</translation>
    </message>
    <message>
        <source>Coat</source>
        <translation>Revestir</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Laminar</translation>
    </message>
</context>
<context>
    <name>OwnInstances</name>
    <message>
        <source>“%1” is damaged. What was written for other programs before does not follow its presets any more.</source>
        <translation>“%1” está danificado. O que foi gravado antes para outros programas não acompanha mais suas predefinições.</translation>
    </message>
</context>
<context>
    <name>PresetInstances</name>
    <message>
        <source>“%1” in other programs: %2</source>
        <translation>“%1” em outros programas: %2</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is from now on.</source>
        <translation>“%1” foi alterado por outro programa e, a partir de agora, fica como está.</translation>
    </message>
    <message>
        <source>Settings were changed while “%1” was saved: other programs have it as it was before. Save it again.</source>
        <translation>Configurações foram alteradas enquanto “%1” era salva: os outros programas a têm como estava antes. Salve-a novamente.</translation>
    </message>
</context>
<context>
    <name>PresetReplacing</name>
    <message>
        <source>“%1” was saved elsewhere since it was selected here, and stays as it is there. Select it again, or keep your settings with “Save Preset…”.</source>
        <translation>“%1” foi salva em outro lugar depois de ser selecionada aqui e permanece como está. Selecione-a novamente ou salve suas configurações com “Salvar predefinição…”.</translation>
    </message>
</context>
<context>
    <name>Collation</name>
    <message>
        <source>two-sided copies are always collated on this printer</source>
        <translation>cópias em frente e verso são sempre agrupadas nesta impressora</translation>
    </message>
</context>
<context>
    <name>OtherQueues</name>
    <message>
        <source>The queue could not be read in time.</source>
        <translation>Não foi possível ler a fila a tempo.</translation>
    </message>
</context>
</TS>
