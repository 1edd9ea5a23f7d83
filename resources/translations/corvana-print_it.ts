<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>AlertPresenter</name>
    <message>
        <source>Do not show this message again</source>
        <translation>Non mostrare più questo messaggio</translation>
    </message>
</context>
<context>
    <name>AttributeEffects</name>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>%1 has no effect on %2: only texts follow it.</source>
        <translation>%1 non ha effetto su %2: vale solo per i testi.</translation>
    </message>
    <message>
        <source>%1 has no effect on %2: only pictures follow it.</source>
        <translation>%1 non ha effetto su %2: vale solo per le immagini.</translation>
    </message>
    <message>
        <source>asked for by the queue; what the printer makes of it is not known</source>
        <translation>richiesto dalla coda; non si sa che cosa ne faccia la stampante</translation>
    </message>
    <message>
        <source>only where a page is scaled</source>
        <translation>solo dove una pagina viene ridimensionata</translation>
    </message>
</context>
<context>
    <name>ByHand</name>
    <message>
        <source>top</source>
        <translation>superiore</translation>
    </message>
    <message>
        <source>right</source>
        <translation>destro</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>inferiore</translation>
    </message>
    <message>
        <source>left</source>
        <translation>sinistro</translation>
    </message>
    <message>
        <source>Take the printed sheet out of the printer.</source>
        <translation>Togliere dalla stampante il foglio stampato.</translation>
    </message>
    <message>
        <source>Take the %1 printed sheets out of the printer, as one stack.</source>
        <translation>Togliere dalla stampante i %1 fogli stampati, in un&apos;unica pila.</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side down, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>Rimetterli nel vassoio con la facciata stampata verso il basso, in modo che il bordo %1 delle pagine entri per primo nella stampante.</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side up, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>Rimetterli nel vassoio con la facciata stampata verso l&apos;alto, in modo che il bordo %1 delle pagine entri per primo nella stampante.</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost. Nothing is printed on it so far.</source>
        <translation>L&apos;ultimo foglio resta in cima. Finora non vi è stampato nulla.</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost.</source>
        <translation>L&apos;ultimo foglio resta in cima.</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>pagina %1</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>pagine %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The last sheet, with %1, lies uppermost.</source>
        <translation>L&apos;ultimo foglio (%1) resta in cima.</translation>
    </message>
    <message>
        <source>The last sheet, with %1 of “%2”, lies uppermost.</source>
        <translation>L&apos;ultimo foglio (%1 di «%2») resta in cima.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs a printer that sheets are put back into: it cannot be done in a file.</source>
        <translation>La stampa fronte-retro manuale (%1) richiede una stampante in cui reinserire i fogli: non è possibile su un file.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) cannot be combined with %2: the queue would add these pages to both halves.</source>
        <translation>La stampa fronte-retro manuale (%1) non può essere combinata con %2: la coda aggiungerebbe queste pagine a entrambe le metà.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs somebody who puts the sheets back, and nobody can be asked here. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>La stampa fronte-retro manuale (%1) richiede qualcuno che reinserisca i fogli, e qui non è possibile chiederlo a nessuno. Con sides-by-hand=no viene stampata una facciata di ogni foglio.</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side down, so that the %1 edge of the page goes into the printer first.</source>
        <translation>Rimetterlo nel vassoio con la facciata stampata verso il basso, in modo che il bordo %1 della pagina entri per primo nella stampante.</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side up, so that the %1 edge of the page goes into the printer first.</source>
        <translation>Rimetterlo nel vassoio con la facciata stampata verso l'alto, in modo che il bordo %1 della pagina entri per primo nella stampante.</translation>
    </message>
</context>
<context>
    <name>CheckPolicy</name>
    <message>
        <source>Policy in %1 for the user %2</source>
        <translation>Criteri in %1 per l&apos;utente %2</translation>
    </message>
    <message>
        <source>groups: %1</source>
        <translation>gruppi: %1</translation>
    </message>
    <message>
        <source>Not used:</source>
        <translation>Non usati:</translation>
    </message>
    <message>
        <source>Nothing is decided.</source>
        <translation>Nulla è stabilito.</translation>
    </message>
    <message>
        <source>At the printer %1:</source>
        <translation>Sulla stampante %1:</translation>
    </message>
    <message>
        <source>Void, because the printer does not take it:</source>
        <translation>Senza effetto, perché la stampante non lo accetta:</translation>
    </message>
    <message>
        <source>For others, who are in these groups:</source>
        <translation>Per altri utenti, che sono in questi gruppi:</translation>
    </message>
    <message>
        <source>Only root may ask what applies to somebody else.</source>
        <translation>Solo root può chiedere che cosa vale per un altro utente.</translation>
    </message>
    <message>
        <source>There is no user of the name “%1”.</source>
        <translation>Non esiste alcun utente di nome «%1».</translation>
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
        <translation>Di queste vengono stampate solo le dispari, come impostato per questo lavoro.</translation>
    </message>
    <message>
        <source>Only the even ones of them are printed, as is set for this job.</source>
        <translation>Di queste vengono stampate solo le pari, come impostato per questo lavoro.</translation>
    </message>
    <message>
        <source>No page is chosen.</source>
        <translation>Nessuna pagina scelta.</translation>
    </message>
    <message>
        <source>How many pages there are is not known.</source>
        <translation>Non si sa quante pagine ci siano.</translation>
    </message>
    <message>
        <source>%L1 of %L2 page numbers chosen.</source>
        <translation>%L1 di %L2 numeri di pagina scelti.</translation>
    </message>
    <message>
        <source>%L1 of %L2 pages chosen.</source>
        <translation>%L1 di %L2 pagine scelte.</translation>
    </message>
    <message>
        <source>There are no pages %1.</source>
        <translation>Queste pagine non esistono: %1.</translation>
    </message>
    <message>
        <source>“%1” is no page. Pages are typed as in 1-4, 7, 9-.</source>
        <translation>«%1» non è una pagina. Le pagine si scrivono come in 1-4, 7, 9-.</translation>
    </message>
    <message>
        <source>“%1” ends before it begins.</source>
        <translation>«%1» finisce prima di iniziare.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the name of a document is missing.</source>
        <translation>manca il nome di un documento.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lists what can be said.</source>
        <translation>&quot;%1&quot; elenca ciò che si può indicare.</translation>
    </message>
    <message>
        <source>%1 %2: a number from %3 to %4 was expected.</source>
        <translation>%1 %2: era atteso un numero da %3 a %4.</translation>
    </message>
    <message>
        <source>-P &quot;%1&quot;: pages and ranges in ascending order were expected, such as 1-4,7,9-.</source>
        <translation>-P &quot;%1&quot;: erano attesi pagine e intervalli in ordine crescente, come 1-4,7,9-.</translation>
    </message>
    <message>
        <source>-H %1 is for a job that is in a queue already: use %2.</source>
        <translation>-H %1 è per un lavoro che è già in una coda: usare %2.</translation>
    </message>
    <message>
        <source>-H &quot;%1&quot;: hold, immediate, %2 was expected.</source>
        <translation>-H &quot;%1&quot;: era atteso hold, immediate, %2.</translation>
    </message>
    <message>
        <source>--check-policy takes one printer and no document.</source>
        <translation>--check-policy accetta una stampante e nessun documento.</translation>
    </message>
    <message>
        <source>--server &quot;%1&quot;: HOST, HOST:PORT or the path of a socket was expected.</source>
        <translation>--server &quot;%1&quot;: era atteso HOST, HOST:PORT o il percorso di un socket.</translation>
    </message>
    <message>
        <source>--on-alert %1: print, hold or refuse was expected.</source>
        <translation>--on-alert %1: era atteso print, hold o refuse.</translation>
    </message>
    <message>
        <source>--format %1: json or text was expected.</source>
        <translation>--format %1: era atteso json o text.</translation>
    </message>
    <message>
        <source>-m: no mail is sent. What became of the job is said at the end, and by the exit status.</source>
        <translation>-m: non viene inviata alcuna e-mail. L&apos;esito del lavoro viene indicato alla fine e dallo stato d&apos;uscita.</translation>
    </message>
    <message>
        <source>%1 &quot;&quot;: %2 is missing.</source>
        <translation>%1 &quot;&quot;: manca %2.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined.</source>
        <translation>%1 e %2 non possono essere combinati.</translation>
    </message>
    <message>
        <source>%1 is for runs without a window (--no-dialog).</source>
        <translation>%1 è per le esecuzioni senza finestra (--no-dialog).</translation>
    </message>
    <message>
        <source>standard input cannot be the document and the password.</source>
        <translation>lo standard input non può essere insieme il documento e la password.</translation>
    </message>
    <message>
        <source>--save-preset prints nothing: no document can be named.</source>
        <translation>--save-preset non stampa nulla: non si può indicare alcun documento.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined: both write to standard output.</source>
        <translation>%1 e %2 non possono essere combinati: entrambi scrivono sullo standard output.</translation>
    </message>
    <message>
        <source>-d &quot;%1&quot;: a URI like ipp://HOST/ipp/print was expected.</source>
        <translation>-d &quot;%1&quot;: era atteso un URI come ipp://HOST/ipp/print.</translation>
    </message>
    <message>
        <source>-o &quot;%1&quot;: KEY=VALUE was expected.</source>
        <translation>-o &quot;%1&quot;: era atteso KEY=VALUE.</translation>
    </message>
    <message>
        <source>standard input (-) can be read once only.</source>
        <translation>lo standard input (-) può essere letto una volta sola.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>Prints a document with the settings of its printer, in a dialog or without one.</source>
        <translation>Stampa un documento con le impostazioni della sua stampante, in una finestra di stampa o senza.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opzioni:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argomenti:</translation>
    </message>
    <message>
        <source>The document: PDF, PostScript, text, PNG or JPEG; - is standard input. Several are one job.</source>
        <translation>Il documento: PDF, PostScript, testo, PNG o JPEG; - è lo standard input. Più documenti sono un solo lavoro.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Stato d&apos;uscita:</translation>
    </message>
    <message>
        <source>128 and a signal&apos;s number: ended by that signal</source>
        <translation>128 più il numero di un segnale: terminato da quel segnale</translation>
    </message>
    <message>
        <source>Print to the printer NAME: a queue, an instance NAME/INSTANCE, or an IPP printer ipp://HOST/PATH.</source>
        <translation>Stampa sulla stampante NAME: una coda, un&apos;istanza NAME/INSTANCE o una stampante IPP ipp://HOST/PATH.</translation>
    </message>
    <message>
        <source>Use the queues of the print server HOST instead of the usual one.</source>
        <translation>Usa le code del server di stampa HOST invece di quello consueto.</translation>
    </message>
    <message>
        <source>Speak to the print server with encryption only.</source>
        <translation>Comunica con il server di stampa solo con la cifratura.</translation>
    </message>
    <message>
        <source>Print as the user USER.</source>
        <translation>Stampa come utente USER.</translation>
    </message>
    <message>
        <source>Take the password from the first line of FILE, which nobody but its owner may read; nobody is asked.</source>
        <translation>Prende la password dalla prima riga del file FILE, che nessuno tranne il proprietario può leggere; non viene chiesta a nessuno.</translation>
    </message>
    <message>
        <source>The same from the open file descriptor N (0 is standard input).</source>
        <translation>Lo stesso dal descrittore di file aperto N (0 è lo standard input).</translation>
    </message>
    <message>
        <source>Open protected PDF documents with the password in the first line of FILE, which nobody but its owner may read.</source>
        <translation>Apre i documenti PDF protetti con la password nella prima riga del file FILE, che nessuno tranne il proprietario può leggere.</translation>
    </message>
    <message>
        <source>Print for the printer that the PPD FILE describes.</source>
        <translation>Stampa per la stampante descritta dal PPD FILE.</translation>
    </message>
    <message>
        <source>Write the printer-ready data to FILE; - is standard output.</source>
        <translation>Scrive i dati pronti per la stampante nel file FILE; - è lo standard output.</translation>
    </message>
    <message>
        <source>Offer the sample printers.</source>
        <translation>Offre le stampanti di esempio.</translation>
    </message>
    <message>
        <source>List the printers and exit.</source>
        <translation>Elenca le stampanti e termina.</translation>
    </message>
    <message>
        <source>Start with the settings of the preset NAME; -o counts more.</source>
        <translation>Parte dalle impostazioni della preimpostazione NAME; -o ha la precedenza.</translation>
    </message>
    <message>
        <source>List the presets and exit.</source>
        <translation>Elenca le preimpostazioni e termina.</translation>
    </message>
    <message>
        <source>Keep the settings of the printer, those of -o among them, as the preset NAME, and exit. A preset of that name is replaced.</source>
        <translation>Salva le impostazioni della stampante, comprese quelle di -o, come preimpostazione NAME e termina. Una preimpostazione con quel nome viene sostituita.</translation>
    </message>
    <message>
        <source>Say what the administrator&apos;s policy decides, and where, for the printer that is named behind it or by -d; as root with -U for another user. Exit with status 1 when something of it is not used.</source>
        <translation>Indica che cosa decidono i criteri dell&apos;amministratore, e dove, per la stampante indicata di seguito o con -d; root può indicare un altro utente con -U. Lo stato d&apos;uscita è 1 quando qualcosa non viene usato.</translation>
    </message>
    <message>
        <source>Print a job of many sheets without being asked.</source>
        <translation>Stampa un lavoro di molti fogli senza chiedere conferma.</translation>
    </message>
    <message>
        <source>Set an option of the printer or of the job; may be repeated.</source>
        <translation>Imposta un&apos;opzione della stampante o del lavoro; si può ripetere.</translation>
    </message>
    <message>
        <source>Print N copies (1 to %1).</source>
        <translation>Stampa N copie (da 1 a %1).</translation>
    </message>
    <message>
        <source>Print these pages (1-4,7,9-), as -o page-ranges= does.</source>
        <translation>Stampa queste pagine (1-4,7,9-), come -o page-ranges=.</translation>
    </message>
    <message>
        <source>Give the job this priority (1 to 100), as -o job-priority= does.</source>
        <translation>Dà al lavoro questa priorità (da 1 a 100), come -o job-priority=.</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, a time HH:MM (UTC), or what -o job-hold-until= takes.</source>
        <translation>Quando stampare: hold, immediate, un&apos;ora HH:MM (UTC) o ciò che accetta -o job-hold-until=.</translation>
    </message>
    <message>
        <source>Do not say which job was printed, only what went wrong.</source>
        <translation>Non dice quale lavoro è stato stampato, solo che cosa non è riuscito.</translation>
    </message>
    <message>
        <source>Does nothing: the document is always copied to the queue.</source>
        <translation>Non fa nulla: il documento viene sempre copiato nella coda.</translation>
    </message>
    <message>
        <source>Is refused: no mail is sent.</source>
        <translation>Viene rifiutata: non viene inviata alcuna e-mail.</translation>
    </message>
    <message>
        <source>Name the job TEXT.</source>
        <translation>Dà al lavoro il nome TEXT.</translation>
    </message>
    <message>
        <source>Print without a window.</source>
        <translation>Stampa senza finestra.</translation>
    </message>
    <message>
        <source>Write the settings of the job to standard output.</source>
        <translation>Scrive le impostazioni del lavoro sullo standard output.</translation>
    </message>
    <message>
        <source>Without a window: keep the settings in lpoptions as an instance of the queue, so that lp -d QUEUE/NAME and other programs print with them.</source>
        <translation>Senza finestra: salva le impostazioni in lpoptions come istanza della coda, così che lp -d QUEUE/NAME e altri programmi stampino con esse.</translation>
    </message>
    <message>
        <source>Without a window: what to do when the printer&apos;s settings show instructions: print, hold or refuse. Usually a queue holds the job, and a file is printed.</source>
        <translation>Senza finestra: che cosa fare quando le impostazioni della stampante mostrano istruzioni: print, hold o refuse. Di solito una coda trattiene il lavoro, e su un file si stampa.</translation>
    </message>
    <message>
        <source>Without a window: end when the queue has the job, not when it is printed.</source>
        <translation>Senza finestra: termina quando la coda ha il lavoro, non quando è stampato.</translation>
    </message>
    <message>
        <source>Without a window: follow the job for SECONDS at most once its queue has it, then leave it there.</source>
        <translation>Senza finestra: segue il lavoro per SECONDS secondi al massimo da quando la coda lo ha, poi lo lascia lì.</translation>
    </message>
    <message>
        <source>Without a window: json writes what became of the job to standard output, as one line that a program can read; text is what people read.</source>
        <translation>Senza finestra: json scrive sullo standard output l&apos;esito del lavoro, in una riga che un programma può leggere; text è ciò che leggono le persone.</translation>
    </message>
    <message>
        <source>Also trust the plug-in bundles in the folder DIR.</source>
        <translation>Considera attendibili anche i pacchetti di plug-in nella cartella DIR.</translation>
    </message>
    <message>
        <source>Exit with status 0 when a window can be shown, with 1 when not.</source>
        <translation>Termina con stato 0 quando è possibile mostrare una finestra, con 1 quando non lo è.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostra questo aiuto.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostra la versione.</translation>
    </message>
    <message>
        <source>With --save-instance: make such an instance of these queues as well, with what each of them needs to print the same.</source>
        <translation>Con --save-instance: crea un’istanza simile anche di queste code, con ciò che serve a ciascuna per stampare allo stesso modo.</translation>
    </message>
    <message>
        <source>--also-on: the name of the instance is missing, as in --save-instance reports.</source>
        <translation>--also-on: manca il nome dell’istanza, come in --save-instance reports.</translation>
    </message>
</context>
<context>
    <name>CupsFilter</name>
    <message>
        <source>The program %1, named by CORVANA_PRINT_CUPSFILTER, cannot be run.</source>
        <translation>Impossibile eseguire il programma %1, indicato in CORVANA_PRINT_CUPSFILTER.</translation>
    </message>
    <message>
        <source>The program cupsfilter was found neither on the path nor in /usr/sbin. It comes with CUPS (on Debian the package “cups”).</source>
        <translation>Il programma cupsfilter non è stato trovato né nel percorso di ricerca né in /usr/sbin. È incluso in CUPS (in Debian, il pacchetto «cups»).</translation>
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
        <translation>immagine PNG</translation>
    </message>
    <message>
        <source>JPEG picture</source>
        <translation>immagine JPEG</translation>
    </message>
    <message>
        <source>text</source>
        <translation>testo</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 è vuoto.</translation>
    </message>
    <message>
        <source>%1 cannot be printed: it holds data that are ready for a printer. A queue passes them on as they are with the option “raw”.</source>
        <translation>Impossibile stampare %1: contiene dati già pronti per una stampante. Una coda li inoltra senza modifiche con l&apos;opzione «raw».</translation>
    </message>
    <message>
        <source>%1 cannot be printed; its contents: %2. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>Impossibile stampare %1: contiene %2. I documenti possono essere PDF, PostScript, testo, PNG o JPEG.</translation>
    </message>
    <message>
        <source>%1 is named like a %2, but holds a %3. Rename it if that is right.</source>
        <translation>Il nome di %1 indica un tipo (%2) diverso dal contenuto (%3). Se il contenuto è corretto, cambiare il nome.</translation>
    </message>
    <message>
        <source>%1: there is no such file.</source>
        <translation>%1: il file non esiste.</translation>
    </message>
    <message>
        <source>%1 is a folder; a document was expected.</source>
        <translation>%1 è una cartella; era atteso un documento.</translation>
    </message>
    <message>
        <source>%1 is no ordinary file; a document was expected.</source>
        <translation>%1 non è un file normale; era atteso un documento.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standard input</translation>
    </message>
    <message>
        <source>%1 cannot be kept: %2</source>
        <translation>Impossibile conservare %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read: nobody writes into it.</source>
        <translation>Impossibile leggere %1: nessun programma vi sta scrivendo.</translation>
    </message>
    <message>
        <source>%1 cannot be kept: it has more than %2 bytes.</source>
        <translation>Impossibile conservare %1: supera i %2 byte.</translation>
    </message>
    <message>
        <source>%1 cannot be printed: nobody can tell what is in it. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>Impossibile stampare %1: il contenuto non è riconoscibile. I documenti possono essere PDF, PostScript, testo, PNG o JPEG.</translation>
    </message>
</context>
<context>
    <name>DocumentCopies</name>
    <message>
        <source>all documents, then all of them again (A B A B)</source>
        <translation>tutti i documenti, poi di nuovo tutti (A B A B)</translation>
    </message>
    <message>
        <source>each document with all its copies (A A B B)</source>
        <translation>ogni documento con tutte le sue copie (A A B B)</translation>
    </message>
    <message>
        <source>each page with all its copies (1 1 2 2)</source>
        <translation>ogni pagina con tutte le sue copie (1 1 2 2)</translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>“%1” is damaged at byte %2.</source>
        <translation>«%1» è danneggiato al byte %2.</translation>
    </message>
    <message>
        <source>“%1” is damaged.</source>
        <translation>«%1» è danneggiato.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>“%1” is protected, and the password that was given does not open it.</source>
        <translation>«%1» è protetto e la password indicata non lo apre.</translation>
    </message>
    <message>
        <source>“%1” is protected: it is printed only with its password.</source>
        <translation>«%1» è protetto: viene stampato solo con la sua password.</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. Only its owner&apos;s password does.</source>
        <translation>«%1» non consente la stampa. Solo la password del proprietario la consente.</translation>
    </message>
    <message>
        <source>None of its pages can be printed.</source>
        <translation>Nessuna delle sue pagine può essere stampata.</translation>
    </message>
    <message>
        <source>“%1” is protected, and a copy without protection could not be made: it is too large, or there is no room for it.</source>
        <translation>«%1» è protetto e non è stato possibile crearne una copia senza protezione: è troppo grande o non c&apos;è spazio sufficiente.</translation>
    </message>
    <message>
        <source>1 of its %1 pages can be printed.</source>
        <translation>Può essere stampata 1 delle sue %1 pagine.</translation>
    </message>
    <message>
        <source>%1 of its %2 pages can be printed.</source>
        <translation>Possono essere stampate %1 delle sue %2 pagine.</translation>
    </message>
    <message>
        <source>“%1” is protected. The file that is printed to is not.</source>
        <translation>«%1» è protetto. Il file su cui si stampa non lo è.</translation>
    </message>
    <message>
        <source>“%1” is protected. The print server gets a copy without protection.</source>
        <translation>«%1» è protetto. Il server di stampa riceve una copia senza protezione.</translation>
    </message>
    <message>
        <source>All pages that were found in it are printed.</source>
        <translation>Vengono stampate tutte le pagine trovate.</translation>
    </message>
    <message>
        <source>“%1” brings settings for a printer along, which are not followed: %2. Choose them here, or pass the document on with the option “raw”.</source>
        <translation>«%1» contiene impostazioni per una stampante che non vengono applicate: %2. Sceglierle qui oppure inoltrare il documento senza modifiche con l&apos;opzione «raw».</translation>
    </message>
</context>
<context>
    <name>ExitStatus</name>
    <message>
        <source>printed, sent, or in the queue with the reason why it waits there</source>
        <translation>stampato, inviato, o in coda con il motivo per cui attende</translation>
    </message>
    <message>
        <source>refused, failed or canceled</source>
        <translation>rifiutato, non riuscito o annullato</translation>
    </message>
    <message>
        <source>a command line that cannot be understood</source>
        <translation>una riga di comando che non può essere compresa</translation>
    </message>
    <message>
        <source>sent, and what became of it is not known</source>
        <translation>inviato, e non si sa quale ne sia l&apos;esito</translation>
    </message>
    <message>
        <source>the time of --wait is over; the job is still in the queue</source>
        <translation>il tempo di --wait è scaduto; il lavoro è ancora in coda</translation>
    </message>
</context>
<context>
    <name>HttpLine</name>
    <message>
        <source>The password is sent to “%1” without encryption: others in the network can read it. “-E” encrypts.</source>
        <translation>La password viene inviata a «%1» senza cifratura: altri possono leggerla sulla rete. L&apos;opzione «-E» attiva la cifratura.</translation>
    </message>
</context>
<context>
    <name>InstanceDraft</name>
    <message>
        <source>Some programs add “%1=%2” to it, which you have set for “%3”.</source>
        <translation>Alcuni programmi vi aggiungono «%1=%2», che è stato impostato per «%3».</translation>
    </message>
    <message>
        <source>“%1” is left out: it is a secret.</source>
        <translation>«%1» viene omesso: è un segreto.</translation>
    </message>
    <message>
        <source>“%1” is left out: other programs cannot print it.</source>
        <translation>«%1» viene omesso: gli altri programmi non possono stamparlo.</translation>
    </message>
    <message>
        <source>Other programs know settings of queues only, and “%1” is none.</source>
        <translation>Gli altri programmi conoscono solo le impostazioni delle code, e «%1» non è una coda.</translation>
    </message>
    <message>
        <source>“%1” gets files as they are, so that no setting has an effect.</source>
        <translation>«%1» riceve i file senza modifiche, perciò nessuna impostazione ha effetto.</translation>
    </message>
    <message>
        <source>“%1” has no letters that other programs can print to. Give it a name of letters from a to z, such as “%2”.</source>
        <translation>«%1» non ha lettere con cui altri programmi possano stampare. Dargli un nome con lettere dalla a alla z, come «%2».</translation>
    </message>
    <message>
        <source>“%1” is there already, with settings of its own. Choose another name, or remove it with “lpoptions -x %1”.</source>
        <translation>«%1» esiste già, con impostazioni proprie. Scegliere un altro nome oppure rimuoverla con «lpoptions -x %1».</translation>
    </message>
</context>
<context>
    <name>JobAttributes</name>
    <message>
        <source>On</source>
        <translation>Attivo</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Non attivo</translation>
    </message>
    <message>
        <source>Bound at the Left</source>
        <translation>Rilegatura a sinistra</translation>
    </message>
    <message>
        <source>Bound at the Right</source>
        <translation>Rilegatura a destra</translation>
    </message>
    <message>
        <source>One-Sided</source>
        <translation>Solo fronte</translation>
    </message>
    <message>
        <source>Long Edge (by Hand)</source>
        <translation>Lato lungo (manuale)</translation>
    </message>
    <message>
        <source>Short Edge (by Hand)</source>
        <translation>Lato corto (manuale)</translation>
    </message>
    <message>
        <source>Printed Side Down</source>
        <translation>Facciata stampata in basso</translation>
    </message>
    <message>
        <source>Printed Side Up</source>
        <translation>Facciata stampata in alto</translation>
    </message>
    <message>
        <source>Up, Then to the Right</source>
        <translation>Verso l&apos;alto, poi a destra</translation>
    </message>
    <message>
        <source>Up, Then to the Left</source>
        <translation>Verso l&apos;alto, poi a sinistra</translation>
    </message>
    <message>
        <source>To the Right, Then Up</source>
        <translation>A destra, poi verso l&apos;alto</translation>
    </message>
    <message>
        <source>To the Right, Then Down</source>
        <translation>A destra, poi verso il basso</translation>
    </message>
    <message>
        <source>To the Left, Then Up</source>
        <translation>A sinistra, poi verso l&apos;alto</translation>
    </message>
    <message>
        <source>To the Left, Then Down</source>
        <translation>A sinistra, poi verso il basso</translation>
    </message>
    <message>
        <source>Down, Then to the Right</source>
        <translation>Verso il basso, poi a destra</translation>
    </message>
    <message>
        <source>Down, Then to the Left</source>
        <translation>Verso il basso, poi a sinistra</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Thin Line</source>
        <translation>Linea sottile</translation>
    </message>
    <message>
        <source>Thick Line</source>
        <translation>Linea spessa</translation>
    </message>
    <message>
        <source>Two Thin Lines</source>
        <translation>Due linee sottili</translation>
    </message>
    <message>
        <source>Two Thick Lines</source>
        <translation>Due linee spesse</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutte</translation>
    </message>
    <message>
        <source>Even Pages Only</source>
        <translation>Solo pagine pari</translation>
    </message>
    <message>
        <source>Odd Pages Only</source>
        <translation>Solo pagine dispari</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Reverse Landscape</source>
        <translation>Orizzontale capovolto</translation>
    </message>
    <message>
        <source>Reverse Portrait</source>
        <translation>Verticale capovolto</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>Fit All Pages If One Is Too Large</source>
        <translation>Adatta tutte se una è troppo grande</translation>
    </message>
    <message>
        <source>Fill Paper</source>
        <translation>Riempi la carta</translation>
    </message>
    <message>
        <source>Fit to Paper</source>
        <translation>Adatta alla carta</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Dimensione reale</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>In alto</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>A sinistra</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>A destra</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>In alto a sinistra</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>In alto a destra</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>In basso</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>In basso a sinistra</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>In basso a destra</translation>
    </message>
    <message>
        <source>First Page First</source>
        <translation>Dalla prima pagina</translation>
    </message>
    <message>
        <source>Last Page First</source>
        <translation>Dall&apos;ultima pagina</translation>
    </message>
    <message>
        <source>Print at Once</source>
        <translation>Stampa subito</translation>
    </message>
    <message>
        <source>Until It Is Released</source>
        <translation>Fino al rilascio</translation>
    </message>
    <message>
        <source>Daytime</source>
        <translation>Giorno</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Sera</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Notte</translation>
    </message>
    <message>
        <source>Second Shift</source>
        <translation>Secondo turno</translation>
    </message>
    <message>
        <source>Third Shift</source>
        <translation>Terzo turno</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Fine settimana</translation>
    </message>
    <message>
        <source>points of 1/72 inch</source>
        <translation>punti da 1/72 di pollice</translation>
    </message>
    <message>
        <source>Two-Sided</source>
        <translation>Fronte-retro</translation>
    </message>
    <message>
        <source>Sheets Are Put Back</source>
        <translation>Reinserimento dei fogli</translation>
    </message>
    <message>
        <source>Pages per Sheet</source>
        <translation>Pagine per facciata</translation>
    </message>
    <message>
        <source>Order on the Sheet</source>
        <translation>Ordine sul foglio</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Opuscolo</translation>
    </message>
    <message>
        <source>Each Page, Times on a Side</source>
        <translation>Ripetizioni per facciata</translation>
    </message>
    <message>
        <source>Border Around Pages</source>
        <translation>Bordo delle pagine</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>pages and ranges in ascending order, such as 1-4,7,9-</source>
        <translation>pagine e intervalli in ordine crescente, come 1-4,7,9-</translation>
    </message>
    <message>
        <source>Odd and Even Pages</source>
        <translation>Pagine pari e dispari</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientamento</translation>
    </message>
    <message>
        <source>Fit to Page</source>
        <translation>Adatta alla pagina</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Scala</translation>
    </message>
    <message>
        <source>Size on the Page, in %</source>
        <translation>Dimensione sulla pagina, in %</translation>
    </message>
    <message>
        <source>Size of the Picture, in %</source>
        <translation>Dimensione dell&apos;immagine, in %</translation>
    </message>
    <message>
        <source>Pixels per Inch</source>
        <translation>Pixel per pollice</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Immagine speculare</translation>
    </message>
    <message>
        <source>Left Margin</source>
        <translation>Margine sinistro</translation>
    </message>
    <message>
        <source>Right Margin</source>
        <translation>Margine destro</translation>
    </message>
    <message>
        <source>Top Margin</source>
        <translation>Margine superiore</translation>
    </message>
    <message>
        <source>Bottom Margin</source>
        <translation>Margine inferiore</translation>
    </message>
    <message>
        <source>Characters per Inch</source>
        <translation>Caratteri per pollice</translation>
    </message>
    <message>
        <source>Lines per Inch</source>
        <translation>Righe per pollice</translation>
    </message>
    <message>
        <source>Columns of Text</source>
        <translation>Colonne di testo</translation>
    </message>
    <message>
        <source>Long Lines Continue</source>
        <translation>Continua le righe lunghe</translation>
    </message>
    <message>
        <source>Headers on Text Pages</source>
        <translation>Intestazioni nelle pagine di testo</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Fascicola</translation>
    </message>
    <message>
        <source>Output Order</source>
        <translation>Ordine di uscita</translation>
    </message>
    <message>
        <source>Hold Until</source>
        <translation>Trattieni fino a</translation>
    </message>
    <message>
        <source>a time HH:MM in UTC</source>
        <translation>un&apos;ora HH:MM in UTC</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorità</translation>
    </message>
    <message>
        <source>Banner Pages</source>
        <translation>Pagine di copertina</translation>
    </message>
    <message>
        <source>one or two names of banner pages</source>
        <translation>i nomi di una o due pagine di copertina</translation>
    </message>
    <message>
        <source>Billed To</source>
        <translation>Addebita a</translation>
    </message>
    <message>
        <source>a text of up to 255 bytes</source>
        <translation>un testo di al massimo 255 byte</translation>
    </message>
    <message>
        <source>%1 UTC</source>
        <translation>%1 UTC</translation>
    </message>
    <message>
        <source>%1 UTC (%2 here)</source>
        <translation>%1 UTC (%2 ora locale)</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Bianco e nero</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Bozza</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Canceled After, in Seconds</source>
        <translation>Annulla dopo (secondi)</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Modalità colore</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualità</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>a resolution such as 600dpi or 1200x600dpi</source>
        <translation>una risoluzione come 600dpi o 1200x600dpi</translation>
    </message>
    <message>
        <source>Output Bin</source>
        <translation>Vassoio di uscita</translation>
    </message>
    <message>
        <source>the name of an output bin</source>
        <translation>il nome di un vassoio di uscita</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finitura</translation>
    </message>
    <message>
        <source>numbers or names of finishings</source>
        <translation>numeri o nomi di finiture</translation>
    </message>
    <message>
        <source>Paper Source</source>
        <translation>Origine carta</translation>
    </message>
    <message>
        <source>the name of a paper source</source>
        <translation>il nome di un&apos;origine della carta</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Tipo di carta</translation>
    </message>
    <message>
        <source>the name of a media type</source>
        <translation>il nome di un tipo di carta</translation>
    </message>
    <message>
        <source>or %1</source>
        <translation>o %1</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondi</translation>
    </message>
</context>
<context>
    <name>JobColors</name>
    <message>
        <source>Shown in black and white, with your adjustments.</source>
        <translation>Mostrato in bianco e nero, con le regolazioni scelte.</translation>
    </message>
    <message>
        <source>Shown in black and white.</source>
        <translation>Mostrato in bianco e nero.</translation>
    </message>
    <message>
        <source>Shows your adjustments; colors on paper differ.</source>
        <translation>Mostra le regolazioni; i colori su carta sono diversi.</translation>
    </message>
    <message>
        <source>Colors on paper differ from those on the screen.</source>
        <translation>I colori su carta sono diversi da quelli sullo schermo.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>“%1: %2” is not shown.</source>
        <translation>«%1: %2» non viene mostrato.</translation>
    </message>
</context>
<context>
    <name>JobNames</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 e %n altro</numerusform>
            <numerusform>%1 e altri %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>JobRequests</name>
    <message>
        <source>The value of “%1” is too long for a print server; at most %2 bytes can be sent.</source>
        <translation>Il valore di «%1» è troppo lungo per un server di stampa; si possono inviare al massimo %2 byte.</translation>
    </message>
    <message>
        <source>The value of “%1” has characters that a print server would drop: no line breaks, no “{” in front.</source>
        <translation>Il valore di «%1» contiene caratteri che un server di stampa eliminerebbe: non sono ammessi interruzioni di riga né «{» all&apos;inizio.</translation>
    </message>
</context>
<context>
    <name>LastUsed</name>
    <message>
        <source>The settings of the last job cannot be read, and stay as they are in “%1”: %2.</source>
        <translation>Le impostazioni dell&apos;ultimo lavoro non sono leggibili e restano come sono in «%1»: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>Impossibile rimuovere «%1»: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be written.</source>
        <translation>Impossibile scrivere «%1».</translation>
    </message>
</context>
<context>
    <name>LeftSession</name>
    <message>
        <source>This printer has no option of the name %1 any more.</source>
        <translation>Questa stampante non ha più alcuna opzione di nome %1.</translation>
    </message>
    <message>
        <source>The option %1 has no choice %2 any more.</source>
        <translation>L&apos;opzione %1 non offre più il valore %2.</translation>
    </message>
</context>
<context>
    <name>ListPresets</name>
    <message>
        <source>all printers</source>
        <translation>tutte le stampanti</translation>
    </message>
</context>
<context>
    <name>OptionLocks</name>
    <message>
        <source>“%1” is set by your administrator (%2).</source>
        <translation>«%1» è stato impostato dall&apos;amministratore (%2).</translation>
    </message>
    <message>
        <source>Set by your administrator (%1).</source>
        <translation>Impostato dall&apos;amministratore (%1).</translation>
    </message>
</context>
<context>
    <name>OptionRequest</name>
    <message>
        <source>%1: the printer&apos;s settings do not allow this here; it became %2.</source>
        <translation>%1: le impostazioni della stampante qui non lo consentono; è stato cambiato in %2.</translation>
    </message>
    <message>
        <source>%1: the printer&apos;s options cannot be set to this value.</source>
        <translation>%1: impossibile impostare questo valore nelle opzioni della stampante.</translation>
    </message>
    <message>
        <source>%1: this cannot be combined with %2.</source>
        <translation>%1: non può essere combinato con %2.</translation>
    </message>
    <message>
        <source>%1: this value is not allowed. Allowed: %2.</source>
        <translation>%1: questo valore non è consentito. Valori consentiti: %2.</translation>
    </message>
    <message>
        <source>%1=Custom: a value is missing. Allowed: %2.</source>
        <translation>%1=Custom: manca un valore. Valori consentiti: %2.</translation>
    </message>
    <message>
        <source>this printer has no such option. Options: %1. Job attributes: %2.</source>
        <translation>questa stampante non ha questa opzione. Opzioni: %1. Attributi del lavoro: %2.</translation>
    </message>
    <message>
        <source>this printer has nothing to choose from for this.</source>
        <translation>questa stampante non offre valori tra cui scegliere.</translation>
    </message>
    <message>
        <source>this value is not allowed. Allowed: %1.</source>
        <translation>questo valore non è consentito. Valori consentiti: %1.</translation>
    </message>
    <message>
        <source>this printer has no paper sizes to choose from.</source>
        <translation>questa stampante non offre formati carta tra cui scegliere.</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>«%1» non è consentito. Valori consentiti: %2.</translation>
    </message>
    <message>
        <source>this printer prints on one side only. Allowed: %1. Two sides by hand: %2=%3, %2=%4.</source>
        <translation>questa stampante stampa solo su una facciata. Valori consentiti: %1. Fronte-retro manuale: %2=%3, %2=%4.</translation>
    </message>
    <message>
        <source>1 to %1</source>
        <translation>da 1 a %1</translation>
    </message>
    <message>
        <source>this printer turns sheets over itself. Allowed: %1=no; for two sides use %2.</source>
        <translation>questa stampante gira i fogli da sola. Valori consentiti: %1=no; per stampare fronte-retro usare %2.</translation>
    </message>
</context>
<context>
    <name>PageChoice</name>
    <message>
        <source>The pages that were asked for are in none of the documents. Nothing was printed.</source>
        <translation>Le pagine richieste non sono in nessuno dei documenti. Non è stato stampato nulla.</translation>
    </message>
    <message>
        <source>“%1: %2”</source>
        <translation>«%1: %2»</translation>
    </message>
    <message>
        <source>A booklet has two pages on each side, in an order of its own: %1 cannot be done with it.</source>
        <translation>Un opuscolo ha due pagine su ogni facciata, in un ordine proprio: non consente %1.</translation>
    </message>
    <message>
        <source>Each page is repeated %1 times on a side: %2 cannot be done with it.</source>
        <translation>Ogni pagina viene ripetuta %1 volte su una facciata: non è possibile %2.</translation>
    </message>
</context>
<context>
    <name>PageTrouble</name>
    <message>
        <source>This page cannot be shown: it is damaged.</source>
        <translation>Impossibile mostrare questa pagina: è danneggiata.</translation>
    </message>
    <message>
        <source>This page cannot be shown: it is too large.</source>
        <translation>Impossibile mostrare questa pagina: è troppo grande.</translation>
    </message>
    <message>
        <source>This page cannot be shown: drawing it takes too long.</source>
        <translation>Impossibile mostrare questa pagina: il disegno richiede troppo tempo.</translation>
    </message>
    <message>
        <source>This page cannot be shown: the document is protected by a password.</source>
        <translation>Impossibile mostrare questa pagina: il documento è protetto da password.</translation>
    </message>
    <message>
        <source>This page cannot be shown: the file cannot be read.</source>
        <translation>Impossibile mostrare questa pagina: il file non è leggibile.</translation>
    </message>
    <message>
        <source>Pages cannot be shown: the program that draws them does not run.</source>
        <translation>Impossibile mostrare le pagine: il programma che le disegna non è in esecuzione.</translation>
    </message>
</context>
<context>
    <name>PassedOn</name>
    <message>
        <source>The queue “%1” passes files on as they are: %2 cannot be done.</source>
        <translation>La coda «%1» inoltra i file senza modifiche: non è possibile %2.</translation>
    </message>
    <message>
        <source>With “raw” files are passed on as they are: %1 cannot be done.</source>
        <translation>Con «raw» i file vengono inoltrati senza modifiche: non è possibile %1.</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Passed on as it is</source>
        <translation>Inoltrato senza modifiche</translation>
    </message>
</context>
<context>
    <name>PasswordFile</name>
    <message>
        <source>The password cannot be read from %1: %2.</source>
        <translation>Impossibile leggere la password da %1: %2.</translation>
    </message>
    <message>
        <source>The first line of %1 is empty; a password was expected.</source>
        <translation>La prima riga di %1 è vuota; era attesa una password.</translation>
    </message>
    <message>
        <source>The first line of %1 is no password: at most %2 bytes of UTF-8 were expected.</source>
        <translation>La prima riga di %1 non è una password: erano attesi al massimo %2 byte in UTF-8.</translation>
    </message>
    <message>
        <source>The password cannot be read from %1: it is no file.</source>
        <translation>Impossibile leggere la password da %1: non è un file.</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: the file belongs to somebody else.</source>
        <translation>La password in %1 non viene accettata: il file appartiene a un altro utente.</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: others than its owner may use the file (its mode is %2; chmod 600 takes that away).</source>
        <translation>La password in %1 non viene accettata: il file è accessibile ad altri oltre al proprietario (i permessi sono %2; chmod 600 risolve il problema).</translation>
    </message>
    <message>
        <source>descriptor %1</source>
        <translation>il descrittore %1</translation>
    </message>
</context>
<context>
    <name>Policy</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>«%1» non è consentito. Valori consentiti: %2.</translation>
    </message>
    <message>
        <source>the path of a folder that begins with /</source>
        <translation>il percorso di una cartella che inizi con /</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>un numero da %1 a %2</translation>
    </message>
    <message>
        <source>the line is longer than %1 bytes</source>
        <translation>la riga supera i %1 byte</translation>
    </message>
    <message>
        <source>the line is not written in UTF-8</source>
        <translation>la riga non è scritta in UTF-8</translation>
    </message>
    <message>
        <source>the line has a character that cannot be seen</source>
        <translation>la riga contiene un carattere non visibile</translation>
    </message>
    <message>
        <source>there are more problems</source>
        <translation>ci sono altri problemi</translation>
    </message>
    <message>
        <source>there are more than %1 sections</source>
        <translation>ci sono più di %1 sezioni</translation>
    </message>
    <message>
        <source>“%1” is no section, and what follows in it is left out. Allowed: %2.</source>
        <translation>«%1» non è una sezione, e il suo contenuto viene tralasciato. Sezioni consentite: %2.</translation>
    </message>
    <message>
        <source>“%1” is no line of a policy. Expected: %2.</source>
        <translation>«%1» non è una riga dei criteri. Era atteso: %2.</translation>
    </message>
    <message>
        <source>“%1” stands before the first section. Begin with [all].</source>
        <translation>«%1» precede la prima sezione. Iniziare con [all].</translation>
    </message>
    <message>
        <source>there is no key “%1”. Keys: %2.</source>
        <translation>non esiste la chiave «%1». Chiavi: %2.</translation>
    </message>
    <message>
        <source>%1 needs the keyword of an option or of a job attribute.</source>
        <translation>%1 richiede la parola chiave di un&apos;opzione o di un attributo del lavoro.</translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation>il valore è troppo lungo</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 bytes</source>
        <translation>il file non viene usato: supera i %1 byte</translation>
    </message>
    <message>
        <source>the file is not used: it is no text</source>
        <translation>il file non viene usato: non è un testo</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 lines</source>
        <translation>il file non viene usato: supera le %1 righe</translation>
    </message>
    <message>
        <source>it belongs to the user with the ID %1</source>
        <translation>appartiene all&apos;utente numero %1</translation>
    </message>
    <message>
        <source>others than its owner may write to it</source>
        <translation>altri oltre al proprietario possono scrivervi</translation>
    </message>
    <message>
        <source>nothing below this folder is used: %1</source>
        <translation>non viene usato nulla al di sotto di questa cartella: %1</translation>
    </message>
    <message>
        <source>nothing in this folder is used: %1</source>
        <translation>non viene usato nulla di questa cartella: %1</translation>
    </message>
    <message>
        <source>only the first %1 files are used</source>
        <translation>vengono usati solo i primi %1 file</translation>
    </message>
    <message>
        <source>the file is not used: it is a link that leads out of its folder</source>
        <translation>il file non viene usato: è un collegamento che esce dalla sua cartella</translation>
    </message>
    <message>
        <source>the file is not used: %1</source>
        <translation>il file non viene usato: %1</translation>
    </message>
    <message>
        <source>the file is not used: it is no ordinary file</source>
        <translation>il file non viene usato: non è un file normale</translation>
    </message>
</context>
<context>
    <name>PpdCopy</name>
    <message>
        <source>The printer&apos;s options cannot be written to %1: %2</source>
        <translation>Impossibile scrivere le opzioni della stampante in %1: %2</translation>
    </message>
</context>
<context>
    <name>PpdFilters</name>
    <message>
        <source>The driver of this printer names the file “%1”, which only a print server may open. Print on the printer itself instead of into a file.</source>
        <translation>Il driver di questa stampante indica il file «%1», che solo un server di stampa può aprire. Stampare direttamente sulla stampante anziché su un file.</translation>
    </message>
    <message>
        <source>The driver of this printer needs the program “%1”, which only a print server may run. Print on the printer itself instead of into a file.</source>
        <translation>Il driver di questa stampante richiede il programma «%1», che solo un server di stampa può eseguire. Stampare direttamente sulla stampante anziché su un file.</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>A preset needs a name.</source>
        <translation>Una preimpostazione deve avere un nome.</translation>
    </message>
    <message>
        <source>The name of a preset has at most %1 characters.</source>
        <translation>Il nome di una preimpostazione ha al massimo %1 caratteri.</translation>
    </message>
    <message>
        <source>The name of a preset holds only characters that can be seen.</source>
        <translation>Il nome di una preimpostazione può contenere solo caratteri visibili.</translation>
    </message>
    <message>
        <source>“%1” is always there, and is no name of a preset.</source>
        <translation>«%1» è sempre presente e non può essere il nome di una preimpostazione.</translation>
    </message>
</context>
<context>
    <name>PresetApplication</name>
    <message>
        <source>%1 is not possible on this printer. Allowed: %2.</source>
        <translation>%1 non è possibile su questa stampante. Valori consentiti: %2.</translation>
    </message>
    <message>
        <source>%1 is not possible together with the other settings.</source>
        <translation>%1 non è possibile insieme alle altre impostazioni.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings do not allow %1 here; it became %2.</source>
        <translation>Le impostazioni della stampante qui non consentono %1; è stato cambiato in %2.</translation>
    </message>
    <message>
        <source>%1 is not on this printer.</source>
        <translation>%1 non esiste su questa stampante.</translation>
    </message>
    <message>
        <source>A value of the printer&apos;s own settings (%1) is not possible here.</source>
        <translation>Un valore delle impostazioni proprie della stampante (%1) qui non è possibile.</translation>
    </message>
</context>
<context>
    <name>PresetFile</name>
    <message>
        <source>“%1”: expected was %2</source>
        <translation>«%1»: era atteso %2</translation>
    </message>
    <message>
        <source>it was written by a later version of this program</source>
        <translation>è stato scritto da una versione successiva di questo programma</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un testo</translation>
    </message>
    <message>
        <source>at most %1 values</source>
        <translation>al massimo %1 valori</translation>
    </message>
    <message>
        <source>the name of an option</source>
        <translation>il nome di un&apos;opzione</translation>
    </message>
    <message>
        <source>a value or a list of values</source>
        <translation>un valore o un elenco di valori</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>Impossibile scrivere «%1»: %2.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
    <message>
        <source>expected was { … }</source>
        <translation>era atteso { … }</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>non è un file</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>supera i %1 byte</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>“%1” is damaged and is left as it is: %2.</source>
        <translation>«%1» è danneggiato e viene lasciato com&apos;è: %2.</translation>
    </message>
    <message>
        <source>There is no place to keep presets.</source>
        <translation>Non c&apos;è un posto in cui salvare le preimpostazioni.</translation>
    </message>
    <message>
        <source>Another program is writing presets. Try again.</source>
        <translation>Un altro programma sta scrivendo le preimpostazioni. Riprovare.</translation>
    </message>
    <message>
        <source>no space left, or no permission</source>
        <translation>spazio esaurito o permessi insufficienti</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>Impossibile scrivere «%1»: %2.</translation>
    </message>
    <message>
        <source>There is a preset of the name “%1” already.</source>
        <translation>Esiste già una preimpostazione di nome «%1».</translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>Non esiste più alcuna preimpostazione di nome «%1».</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>Impossibile rimuovere «%1»: %2.</translation>
    </message>
    <message>
        <source>%1 (for everybody)</source>
        <translation>%1 (per tutti)</translation>
    </message>
</context>
<context>
    <name>PrintRequest</name>
    <message>
        <source>The printer “%1” is not offered by your administrator (%2).</source>
        <translation>La stampante «%1» non è offerta dall&apos;amministratore (%2).</translation>
    </message>
    <message>
        <source>Printing to a file is not offered by your administrator (%1).</source>
        <translation>La stampa su file non è offerta dall&apos;amministratore (%1).</translation>
    </message>
</context>
<context>
    <name>PrinterFetching</name>
    <message>
        <source>Save as PDF</source>
        <translation>Salva come PDF</translation>
    </message>
</context>
<context>
    <name>PrinterTexts</name>
    <message>
        <source>connecting</source>
        <translation>connessione in corso</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>coperchio aperto</translation>
    </message>
    <message>
        <source>driver not trusted by the server</source>
        <translation>driver non attendibile per il server</translation>
    </message>
    <message>
        <source>driver missing on the server</source>
        <translation>driver mancante sul server</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>spenta</translation>
    </message>
    <message>
        <source>developer used up</source>
        <translation>sviluppatore esaurito</translation>
    </message>
    <message>
        <source>developer low</source>
        <translation>sviluppatore in esaurimento</translation>
    </message>
    <message>
        <source>door open</source>
        <translation>sportello aperto</translation>
    </message>
    <message>
        <source>fuser too hot</source>
        <translation>fusore troppo caldo</translation>
    </message>
    <message>
        <source>fuser too cold</source>
        <translation>fusore troppo freddo</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>i nuovi lavori vengono trattenuti</translation>
    </message>
    <message>
        <source>tray missing</source>
        <translation>vassoio mancante</translation>
    </message>
    <message>
        <source>ink or toner used up</source>
        <translation>inchiostro o toner esaurito</translation>
    </message>
    <message>
        <source>ink or toner low</source>
        <translation>inchiostro o toner in esaurimento</translation>
    </message>
    <message>
        <source>waste container almost full</source>
        <translation>contenitore di scarto quasi pieno</translation>
    </message>
    <message>
        <source>waste container full</source>
        <translation>contenitore di scarto pieno</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>carta esaurita</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>inceppamento della carta</translation>
    </message>
    <message>
        <source>paper low</source>
        <translation>carta in esaurimento</translation>
    </message>
    <message>
        <source>paper needed</source>
        <translation>carta necessaria</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>messa in pausa in corso</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>non connessa</translation>
    </message>
    <message>
        <source>drum used up</source>
        <translation>tamburo esaurito</translation>
    </message>
    <message>
        <source>drum nearly used up</source>
        <translation>tamburo quasi esaurito</translation>
    </message>
    <message>
        <source>output tray almost full</source>
        <translation>vassoio di uscita quasi pieno</translation>
    </message>
    <message>
        <source>output tray full</source>
        <translation>vassoio di uscita pieno</translation>
    </message>
    <message>
        <source>output tray missing</source>
        <translation>vassoio di uscita mancante</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>in pausa</translation>
    </message>
    <message>
        <source>print queue full</source>
        <translation>coda di stampa piena</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>parzialmente ferma</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>arresto in corso</translation>
    </message>
    <message>
        <source>not answering</source>
        <translation>non risponde</translation>
    </message>
    <message>
        <source>toner used up</source>
        <translation>toner esaurito</translation>
    </message>
    <message>
        <source>toner low</source>
        <translation>toner in esaurimento</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Inattiva</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Stampa in corso</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Prints to a file</source>
        <translation>Stampa su file</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the words of a printer&apos;s state</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>No longer available</source>
        <translation>Non più disponibile</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Ferma: %1</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>non accetta lavori</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>Non accetta lavori</translation>
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
        <translation>Posizione: %1</translation>
    </message>
    <message>
        <source>Model: %1</source>
        <translation>Modello: %1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <translation>Stato: %1</translation>
    </message>
    <message>
        <source>Message: %1</source>
        <translation>Messaggio: %1</translation>
    </message>
    <message>
        <source>Address: %1</source>
        <translation>Indirizzo: %1</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opzione sconosciuta: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Opzioni sconosciute: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Manca un valore dopo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>&quot;%1&quot; non accetta alcun valore.</translation>
    </message>
</context>
<context>
    <name>RefusalText</name>
    <message>
        <source>“%1: %2”</source>
        <translation>«%1: %2»</translation>
    </message>
    <message>
        <source> and </source>
        <translation> e </translation>
    </message>
    <message>
        <source>The printer&apos;s options cannot be set to %1.</source>
        <translation>Impossibile impostare %1 nelle opzioni della stampante.</translation>
    </message>
    <message>
        <source>%1 cannot be combined with %2.</source>
        <translation>%1 non può essere combinato con %2.</translation>
    </message>
    <message>
        <source>Change to %1</source>
        <translation>Cambia in %1</translation>
    </message>
</context>
<context>
    <name>RequestFromCommandLine</name>
    <message>
        <source>%1: the name is not written in UTF-8.</source>
        <translation>%1: il nome non è scritto in UTF-8.</translation>
    </message>
</context>
<context>
    <name>ResultFile</name>
    <message>
        <source>%1 is a folder; the name of a file was expected.</source>
        <translation>%1 è una cartella; era atteso il nome di un file.</translation>
    </message>
    <message>
        <source>%1 is a device or a pipe; the name of a file was expected.</source>
        <translation>%1 è un dispositivo o una pipe; era atteso il nome di un file.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>%1 was written by another program meanwhile, and is left as it is. Print again to replace it, or name another file.</source>
        <translation>Nel frattempo un altro programma ha scritto %1, che viene lasciato com&apos;è. Stampare di nuovo per sostituirlo o indicare un altro file.</translation>
    </message>
</context>
<context>
    <name>ResultPages</name>
    <message>
        <source>Nothing would be printed: what came out has no page.</source>
        <translation>Non verrebbe stampato nulla: il risultato non ha pagine.</translation>
    </message>
</context>
<context>
    <name>SavedAsPdf</name>
    <message>
        <source>A PDF file is neither held nor printed: %1 cannot be done.</source>
        <translation>Un file PDF non viene trattenuto né stampato: non è possibile %1.</translation>
    </message>
</context>
<context>
    <name>ServerAddress</name>
    <message>
        <source>this computer</source>
        <translation>questo computer</translation>
    </message>
</context>
<context>
    <name>ServerJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>La stampa è stata annullata.</translation>
    </message>
    <message>
        <source>The print server did not say which job it has made.</source>
        <translation>Il server di stampa non ha indicato quale lavoro ha creato.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Impossibile leggere %1: %2.</translation>
    </message>
    <message>
        <source>%1 The printer says: %2</source>
        <translation>%1 La stampante comunica: %2</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has been printed.</source>
        <translation>Il lavoro %1 del tentativo precedente è stato stampato.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is held in the queue.</source>
        <translation>Il lavoro %1 del tentativo precedente è trattenuto nella coda.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is stopped in the queue.</source>
        <translation>Il lavoro %1 del tentativo precedente è fermo nella coda.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is in the queue and will be printed.</source>
        <translation>Il lavoro %1 del tentativo precedente è nella coda e verrà stampato.</translation>
    </message>
    <message>
        <source>%1 The job had been moved from the queue “%2” to “%3”.</source>
        <translation>%1 Il lavoro era stato spostato dalla coda «%2» a «%3».</translation>
    </message>
    <message>
        <source>%1 Nothing was printed.</source>
        <translation>%1 Non è stato stampato nulla.</translation>
    </message>
    <message>
        <source>The printer “%1” wants a user and a password; none was given. Nothing was printed.</source>
        <translation>La stampante «%1» richiede un utente e una password, che non sono stati indicati. Non è stato stampato nulla.</translation>
    </message>
    <message>
        <source>The queue “%1” is not there any more. Nothing was printed.</source>
        <translation>La coda «%1» non esiste più. Non è stato stampato nulla.</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment. Nothing was printed.</source>
        <translation>La coda «%1» al momento non accetta lavori. Non è stato stampato nulla.</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment: %2. Nothing was printed.</source>
        <translation>La coda «%1» al momento non accetta lavori: %2. Non è stato stampato nulla.</translation>
    </message>
    <message>
        <source>The options of the printer “%1” have changed at its server. Nothing was printed.</source>
        <translation>Le opzioni della stampante «%1» sono cambiate sul suo server. Non è stato stampato nulla.</translation>
    </message>
    <message>
        <source>%1 Whether job %2 of the earlier try was printed is not known yet, so nothing was sent again.</source>
        <translation>%1 Non si sa ancora se il lavoro %2 del tentativo precedente sia stato stampato, perciò non è stato inviato nulla di nuovo.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has got %2 of its %3 documents to the printer. Print the others by themselves, or everything once more.</source>
        <translation>Del lavoro %1 del tentativo precedente sono arrivati alla stampante %2 dei suoi %3 documenti. Stampare gli altri da soli oppure tutto di nuovo.</translation>
    </message>
    <message>
        <source>%1 Nothing was printed, but a job without a document may be at the print server. It could not be looked for: %2</source>
        <translation>%1 Non è stato stampato nulla, ma sul server di stampa potrebbe esserci un lavoro senza documento. Non è stato possibile cercarlo: %2</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; pages that the printer has already may still come out.</source>
        <translation>%1 Il lavoro %2 è stato annullato; le pagine già arrivate alla stampante possono ancora uscire.</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; nothing was printed.</source>
        <translation>%1 Il lavoro %2 è stato annullato; non è stato stampato nulla.</translation>
    </message>
    <message>
        <source>Job %1 could not be canceled and may still be printed. %2</source>
        <translation>Non è stato possibile annullare il lavoro %1, che potrebbe ancora essere stampato. %2</translation>
    </message>
    <message>
        <source>%1 Job %2 could not be canceled and may still be printed. %3</source>
        <translation>%1 Non è stato possibile annullare il lavoro %2, che potrebbe ancora essere stampato. %3</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server, without its whole document. It could not be canceled: %3</source>
        <translation>%1 Il lavoro %2 potrebbe essere ancora sul server di stampa, senza il documento completo. Non è stato possibile annullarlo: %3</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server with some of its documents, and may print these. It could not be canceled: %3 Printing again looks for it first.</source>
        <translation>%1 Il lavoro %2 potrebbe essere ancora sul server di stampa con alcuni dei suoi documenti, che potrebbero essere stampati. Non è stato possibile annullarlo: %3 Stampando di nuovo, prima viene cercato quel lavoro.</translation>
    </message>
    <message>
        <source>The printer “%1” does not accept this user and password.</source>
        <translation>La stampante «%1» non accetta questo utente e questa password.</translation>
    </message>
    <message>
        <source>%1 The print server does not know job %2 any more. It was probably not printed.</source>
        <translation>%1 Il server di stampa non conosce più il lavoro %2. Probabilmente non è stato stampato.</translation>
    </message>
    <message>
        <source>%1 The document had been sent, so job %2 may be printed or not. Printing again looks for it first.</source>
        <translation>%1 Il documento era già stato inviato, perciò il lavoro %2 potrebbe essere stato stampato o meno. Stampando di nuovo, prima viene cercato quel lavoro.</translation>
    </message>
    <message>
        <source>Job %1 has left the queue “%2”, whose server keeps no record of it. So whether it has been printed is not known.</source>
        <translation>Il lavoro %1 ha lasciato la coda «%2», il cui server non ne conserva traccia. Perciò non si sa se sia stato stampato.</translation>
    </message>
    <message>
        <source>Job %1 was handed over completely. %2 So whether it has been printed is not known.</source>
        <translation>Il lavoro %1 è stato consegnato per intero. %2 Perciò non si sa se sia stato stampato.</translation>
    </message>
    <message>
        <source>The print server gives job %1 the state %2, which is not known.</source>
        <translation>Il server di stampa dà al lavoro %1 lo stato %2, che non è noto.</translation>
    </message>
    <message>
        <source>Job %1 was handed over to the queue “%2”.</source>
        <translation>Il lavoro %1 è stato consegnato alla coda «%2».</translation>
    </message>
    <message>
        <source>Job %1 was stopped. It is still in the queue, where it can be released or canceled.</source>
        <translation>Il lavoro %1 è stato fermato. È ancora nella coda, dove può essere rilasciato o annullato.</translation>
    </message>
    <message>
        <source>Job %1 is held in the queue “%2”.</source>
        <translation>Il lavoro %1 è trattenuto nella coda «%2».</translation>
    </message>
    <message>
        <source>Job %1 waits in the queue “%2”, which is stopped.</source>
        <translation>Il lavoro %1 attende nella coda «%2», che è ferma.</translation>
    </message>
    <message>
        <source>Job %1 is in the queue “%2”.</source>
        <translation>Il lavoro %1 è nella coda «%2».</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. Whether anything was on its pages is not known.</source>
        <translation>Inviato a «%1» come lavoro %2. Non si sa se ci fosse qualcosa sulle sue pagine.</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. That queue passes files on as they are: what was set for the printer or the pages had no effect there.</source>
        <translation>Inviato a «%1» come lavoro %2. Quella coda inoltra i file senza modifiche: ciò che era impostato per la stampante o le pagine non vi ha avuto effetto.</translation>
    </message>
    <message>
        <source>Printed on “%1” as job %2.</source>
        <translation>Stampato su «%1» come lavoro %2.</translation>
    </message>
    <message>
        <source>Job %1 failed: the printer or its server gave it up.</source>
        <translation>Il lavoro %1 non è riuscito: la stampante o il suo server lo ha abbandonato.</translation>
    </message>
    <message>
        <source>Job %1 was canceled at the printer or its server.</source>
        <translation>Il lavoro %1 è stato annullato dalla stampante o dal suo server.</translation>
    </message>
    <message>
        <source>Job %1 was printed with %2 of its %3 documents only.</source>
        <translation>Il lavoro %1 è stato stampato solo con %2 dei suoi %3 documenti.</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Preparazione…</translation>
    </message>
    <message>
        <source>Sending, %1 %…</source>
        <translation>Invio, %1 %…</translation>
    </message>
    <message>
        <source>Asking the print server…</source>
        <translation>Interrogazione del server di stampa…</translation>
    </message>
    <message>
        <source>Waiting in the queue…</source>
        <translation>In attesa nella coda…</translation>
    </message>
    <message>
        <source>Held in the queue</source>
        <translation>Trattenuto nella coda</translation>
    </message>
    <message>
        <source>Printing page %1…</source>
        <translation>Stampa della pagina %1…</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Stampa in corso…</translation>
    </message>
    <message>
        <source>The printer is stopped.</source>
        <translation>La stampante è ferma.</translation>
    </message>
    <message>
        <source>The printer is stopped: %1</source>
        <translation>La stampante è ferma: %1</translation>
    </message>
    <message>
        <source>First sides: %1</source>
        <translation>Prime facciate: %1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>Seconde facciate: %1</translation>
    </message>
    <message>
        <source>%1 The queue “%2” has no driver, and would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1 La coda «%2» non ha un driver e avrebbe inviato i documenti in un unico flusso. Perciò ognuno è un lavoro a sé: %3.</translation>
    </message>
    <message>
        <source>%1 With “raw” the queue “%2” would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1 Con «raw» la coda «%2» avrebbe inviato i documenti in un unico flusso. Perciò ognuno è un lavoro a sé: %3.</translation>
    </message>
    <message>
        <source>Job %1 was canceled or given up at the printer or its server.</source>
        <translation>Il lavoro %1 è stato annullato o abbandonato dalla stampante o dal suo server.</translation>
    </message>
    <message>
        <source>Job %1 is still in the queue.</source>
        <translation>Il lavoro %1 è ancora nella coda.</translation>
    </message>
    <message>
        <source>%1 Documents that were sent before, each as a job of its own: %2 of %3. Printing again sends the others.</source>
        <translation>%1 Documenti inviati prima, ognuno come lavoro a sé: %2 di %3. Stampando di nuovo vengono inviati gli altri.</translation>
    </message>
    <message>
        <source>Job %1 was canceled; pages that the printer has already may still come out.</source>
        <translation>Il lavoro %1 è stato annullato; le pagine già arrivate alla stampante possono ancora uscire.</translation>
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
        <translation>Il certificato del server di stampa «%1» non è quello di prima: qualcuno lo ha sostituito o intercetta la connessione. Se è stato sostituito di proposito, rimuovere il file %2.</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not the one that it had before: somebody has replaced it, or stands in between. If it was replaced on purpose, remove the line “%2” from the file %3.</source>
        <translation>Il certificato del server di stampa «%1» non è quello di prima: qualcuno lo ha sostituito o intercetta la connessione. Se è stato sostituito di proposito, rimuovere la riga «%2» dal file %3.</translation>
    </message>
    <message>
        <source>The print server “%1” cannot be reached.</source>
        <translation>Impossibile raggiungere il server di stampa «%1».</translation>
    </message>
    <message>
        <source>The print server “%1” does not answer.</source>
        <translation>Il server di stampa «%1» non risponde.</translation>
    </message>
    <message>
        <source>The print server “%1” broke the connection.</source>
        <translation>Il server di stampa «%1» ha interrotto la connessione.</translation>
    </message>
    <message>
        <source>What “%1” answers is not what a print server says.</source>
        <translation>La risposta di «%1» non è quella di un server di stampa.</translation>
    </message>
    <message>
        <source>What “%1” answers is larger than anything that a print server has to say.</source>
        <translation>La risposta di «%1» è più grande di qualsiasi risposta di un server di stampa.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>Il server di stampa «%1» richiede un utente e una password.</translation>
    </message>
    <message>
        <source>The print server “%1” does not accept this user and password.</source>
        <translation>Il server di stampa «%1» non accetta questo utente e questa password.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password; none was given.</source>
        <translation>Il server di stampa «%1» richiede un utente e una password, che non sono stati indicati.</translation>
    </message>
    <message>
        <source>The print server “%1” does not allow you this.</source>
        <translation>Il server di stampa «%1» non consente questa operazione.</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not to be trusted.</source>
        <translation>Il certificato del server di stampa «%1» non è attendibile.</translation>
    </message>
    <message>
        <source>The print server “%1” wants an encrypted connection, which could not be made.</source>
        <translation>Il server di stampa «%1» richiede una connessione cifrata, che non è stato possibile stabilire.</translation>
    </message>
    <message>
        <source>The print server “%1” knows nothing of it.</source>
        <translation>Il server di stampa «%1» non ne sa nulla.</translation>
    </message>
    <message>
        <source>The print server “%1” refuses.</source>
        <translation>Il server di stampa «%1» rifiuta la richiesta.</translation>
    </message>
    <message>
        <source>The document cannot be read: %1</source>
        <translation>Impossibile leggere il documento: %1</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Annullato.</translation>
    </message>
    <message>
        <source>“%1” cannot be reached.</source>
        <translation>Impossibile raggiungere «%1».</translation>
    </message>
    <message>
        <source>No answer from “%1”.</source>
        <translation>Nessuna risposta da «%1».</translation>
    </message>
    <message>
        <source>“%1” broke the connection.</source>
        <translation>«%1» ha interrotto la connessione.</translation>
    </message>
    <message>
        <source>“%1” wants a password.</source>
        <translation>«%1» richiede una password.</translation>
    </message>
    <message>
        <source>Wrong user or password.</source>
        <translation>Utente o password errati.</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints, in a way that is not possible here.</source>
        <translation>Il server di stampa «%1» richiede di sapere chi stampa, in un modo che qui non è possibile.</translation>
    </message>
</context>
<context>
    <name>SettingsIndex</name>
    <message>
        <source>Copies</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>All Options</source>
        <translation>Tutte le opzioni</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutte</translation>
    </message>
</context>
<context>
    <name>SharedFile</name>
    <message>
        <source>“%1” cannot be read: %2. It was not changed.</source>
        <translation>Impossibile leggere «%1»: %2. Non è stato modificato.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. It was not changed.</source>
        <translation>Impossibile scrivere «%1»: %2. Non è stato modificato.</translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation>il collegamento non porta da nessuna parte</translation>
    </message>
    <message>
        <source>the link leads to a file of somebody else</source>
        <translation>il collegamento porta a un file di un altro utente</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>non è un file</translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation>appartiene a un altro utente</translation>
    </message>
    <message>
        <source>another program of ours is writing it</source>
        <translation>un altro programma nostro lo sta scrivendo</translation>
    </message>
    <message>
        <source>nothing can be written into its folder</source>
        <translation>impossibile scrivere nella sua cartella</translation>
    </message>
    <message>
        <source>other programs write it all the time</source>
        <translation>altri programmi lo scrivono di continuo</translation>
    </message>
</context>
<context>
    <name>SheetMarks</name>
    <message>
        <source>The back of this sheet stays empty: only one side is printed.</source>
        <translation>Il retro di questo foglio resta vuoto: viene stampata una sola facciata.</translation>
    </message>
</context>
<context>
    <name>SheetTexts</name>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 pagina</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 pagine</translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1 foglio</translation>
    </message>
    <message>
        <source>%1 sheets</source>
        <translation>%1 fogli</translation>
    </message>
    <message>
        <source>“%1” has %2</source>
        <translation>«%1» ha %2</translation>
    </message>
    <message>
        <source>The document has %1</source>
        <translation>Il documento ha %1</translation>
    </message>
    <message>
        <source>the document has %1</source>
        <translation>il documento ha %1</translation>
    </message>
    <message>
        <source>%1 and later</source>
        <translation>da %1 in poi</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>%1; %2 is not in it.</source>
        <translation>%1; la pagina %2 non esiste.</translation>
    </message>
    <message>
        <source>%1; %2 are not in it.</source>
        <translation>%1; queste pagine non esistono: %2.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only even pages were chosen.</source>
        <translation>Non verrebbe stampato nulla: %1, e sono state scelte solo pagine pari.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only odd pages were chosen.</source>
        <translation>Non verrebbe stampato nulla: %1, e sono state scelte solo pagine dispari.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and none of them is left.</source>
        <translation>Non verrebbe stampato nulla: %1, e non ne resta nessuna.</translation>
    </message>
    <message>
        <source>“%1” takes too long to be shown. It can be printed without a preview.</source>
        <translation>«%1» richiede troppo tempo per essere mostrato. Può essere stampato senza anteprima.</translation>
    </message>
    <message>
        <source>“%1” is too large to be shown. It can be printed without a preview.</source>
        <translation>«%1» è troppo grande per essere mostrato. Può essere stampato senza anteprima.</translation>
    </message>
    <message>
        <source>“%1” could not be laid out, so there is no preview. Printing it may work all the same.</source>
        <translation>Non è stato possibile impaginare «%1», perciò non c&apos;è anteprima. La stampa potrebbe comunque riuscire.</translation>
    </message>
    <message>
        <source>the back stays empty, because only one side is printed</source>
        <translation>il retro resta vuoto, perché viene stampata una sola facciata</translation>
    </message>
    <message>
        <source>the backs stay empty, because each document has only one side</source>
        <translation>il retro resta vuoto, perché ogni documento ha una sola facciata</translation>
    </message>
    <message>
        <source>the back stays empty where a document has only one side: %1</source>
        <translation>il retro resta vuoto dove il documento ha una sola facciata: %1</translation>
    </message>
    <message>
        <source>could not be counted</source>
        <translation>impossibile contare</translation>
    </message>
    <message>
        <source>%1, two-sided by hand</source>
        <translation>%1, fronte-retro manuale</translation>
    </message>
    <message>
        <source>%1, and 1 cover sheet</source>
        <translation>%1 e 1 foglio di copertina</translation>
    </message>
    <message>
        <source>%1, and %2 cover sheets</source>
        <translation>%1 e %2 fogli di copertina</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>%1 × %2 copies = %3</source>
        <translation>%1 × %2 copie = %3</translation>
    </message>
    <message>
        <source>%1 at %2 %</source>
        <translation>%1 al %2 %</translation>
    </message>
    <message>
        <source>Sheets</source>
        <translation>Fogli</translation>
    </message>
    <message>
        <source>Pages Not There</source>
        <translation>Pagine inesistenti</translation>
    </message>
    <message>
        <source>Printed Size</source>
        <translation>Dimensione di stampa</translation>
    </message>
</context>
<context>
    <name>SheetView</name>
    <message>
        <source>cover sheet</source>
        <translation>foglio di copertina</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>vuoto</translation>
    </message>
    <message>
        <source>printed</source>
        <translation>stampato</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>pagina %1</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>pagine %1</translation>
    </message>
    <message>
        <source>%L1 back</source>
        <translation>%L1 retro</translation>
    </message>
    <message>
        <source>%L1 front</source>
        <translation>%L1 fronte</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Sheet %L1: %2</source>
        <translation>Foglio %L1: %2</translation>
    </message>
    <message>
        <source>Sheet %L1, back: %2</source>
        <translation>Foglio %L1, retro: %2</translation>
    </message>
    <message>
        <source>Sheet %L1, front: %2</source>
        <translation>Foglio %L1, fronte: %2</translation>
    </message>
    <message>
        <source>%1, landscape</source>
        <translation>%1, orizzontale</translation>
    </message>
    <message>
        <source>Bound at the left edge</source>
        <translation>Rilegato sul lato sinistro</translation>
    </message>
    <message>
        <source>Bound at the top edge</source>
        <translation>Rilegato sul lato superiore</translation>
    </message>
    <message>
        <source>Bound at the right edge</source>
        <translation>Rilegato sul lato destro</translation>
    </message>
    <message>
        <source>Bound at the bottom edge</source>
        <translation>Rilegato sul lato inferiore</translation>
    </message>
</context>
<context>
    <name>StartPresets</name>
    <message>
        <source>Last job: %1</source>
        <translation>Ultimo lavoro: %1</translation>
    </message>
    <message>
        <source>There is no preset “%1”, nor any other for this printer.</source>
        <translation>Non esiste la preimpostazione «%1», né altre per questa stampante.</translation>
    </message>
    <message>
        <source>There is no preset “%1” for this printer. Presets: %2.</source>
        <translation>Non esiste la preimpostazione «%1» per questa stampante. Preimpostazioni: %2.</translation>
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
        <translation>Valore predefinito della coda «%1»: %2</translation>
    </message>
    <message>
        <source>Default of your administrator: %1</source>
        <translation>Valore predefinito dell&apos;amministratore: %1</translation>
    </message>
    <message>
        <source>The queue “%1” adds this to each job; what it does is not known here: %2.</source>
        <translation>La coda «%1» aggiunge questo a ogni lavoro; qui non se ne conosce l&apos;effetto: %2.</translation>
    </message>
    <message>
        <source>This printer has no option of this name: %1.</source>
        <translation>Questa stampante non ha alcuna opzione con questo nome: %1.</translation>
    </message>
</context>
<context>
    <name>Summary</name>
    <message>
        <source>Copies</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>%1, collated</source>
        <translation>%1, fascicolate</translation>
    </message>
    <message>
        <source>%1, not collated</source>
        <translation>%1, non fascicolate</translation>
    </message>
    <message>
        <source>Also in the job</source>
        <translation>Presenti anche nel lavoro</translation>
    </message>
    <message>
        <source>%1 × %2 inches</source>
        <translation>%1 × %2 pollici</translation>
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
        <translation>La stampante a «%1» richiede un utente e una password.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>Il server di stampa «%1» richiede un utente e una password.</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others may read them.</source>
        <translation>La connessione non è cifrata: altri potrebbero leggerli.</translation>
    </message>
    <message>
        <source>User [%1]: </source>
        <translation>Utente [%1]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Password: </translation>
    </message>
    <message>
        <source>That is not the password.</source>
        <translation>La password non è corretta.</translation>
    </message>
    <message>
        <source>Password of “%1”: </source>
        <translation>Password di «%1»: </translation>
    </message>
    <message>
        <source>Enter prints the other sides, Ctrl+D leaves them unprinted: </source>
        <translation>Invio stampa le seconde facciate, Ctrl+D le lascia non stampate: </translation>
    </message>
</context>
<context>
    <name>TextFormat</name>
    <message>
        <source>The margins, columns and characters per inch that were asked for leave no room for a text on this paper (%1 × %2 points).</source>
        <translation>I margini, le colonne e i caratteri per pollice richiesti non lasciano spazio per il testo su questa carta (%1 × %2 punti).</translation>
    </message>
</context>
<context>
    <name>UnattendedRun</name>
    <message>
        <source>%1 So the printer “%2” could not be asked for.</source>
        <translation>%1 Perciò non è stato possibile chiedere della stampante «%2».</translation>
    </message>
    <message>
        <source>%1 Printers that need no print server: %2.</source>
        <translation>%1 Stampanti che non richiedono un server di stampa: %2.</translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>Interrotto.</translation>
    </message>
    <message>
        <source>The preset “%1” is kept.</source>
        <translation>La preimpostazione «%1» è stata salvata.</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Lavoro %1: %2</translation>
    </message>
    <message>
        <source>Nothing was printed.</source>
        <translation>Non è stato stampato nulla.</translation>
    </message>
    <message>
        <source>It waits until the instructions have been followed. Release it with: %1</source>
        <translation>Attende che siano state seguite le istruzioni. Rilasciarlo con: %1</translation>
    </message>
    <message>
        <source>Printed to standard output</source>
        <translation>Stampato su standard output</translation>
    </message>
    <message>
        <source>The result could not be written to standard output: %1.</source>
        <translation>Impossibile scrivere il risultato su standard output: %1.</translation>
    </message>
    <message>
        <source>No preset was kept.</source>
        <translation>Non è stata salvata alcuna preimpostazione.</translation>
    </message>
</context>
<context>
    <name>UserQueuesFile</name>
    <message>
        <source>The file of lpoptions is packed, and cannot be changed here.</source>
        <translation>Il file di lpoptions è compresso e qui non può essere modificato.</translation>
    </message>
    <message>
        <source>“%1” is your default printer, and stays: choose another one first.</source>
        <translation>«%1» è la stampante predefinita e rimane: prima sceglierne un&apos;altra.</translation>
    </message>
    <message>
        <source>“%1” is no name that other programs can print to.</source>
        <translation>«%1» non è un nome su cui altri programmi possano stampare.</translation>
    </message>
    <message>
        <source>“%1” would have more settings than other programs can read.</source>
        <translation>«%1» avrebbe più impostazioni di quante altri programmi possano leggerne.</translation>
    </message>
    <message>
        <source>Other programs would read the value of “%1” as another one.</source>
        <translation>Gli altri programmi leggerebbero il valore di «%1» in modo diverso.</translation>
    </message>
    <message>
        <source>“%1” is no name of an option for other programs.</source>
        <translation>«%1» non è un nome di opzione per gli altri programmi.</translation>
    </message>
    <message>
        <source>The value of “%1” has a line break or a control character, which no option for other programs can have.</source>
        <translation>Il valore di «%1» contiene un&apos;interruzione di riga o un carattere di controllo, che nessuna opzione per altri programmi può avere.</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is.</source>
        <translation>«%1» è stato modificato da un altro programma e resta com&apos;è.</translation>
    </message>
</context>
<context>
    <name>corvana::AttributeEditor</name>
    <message>
        <source>Automatic</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Altro…</translation>
    </message>
</context>
<context>
    <name>corvana::AttributeRows</name>
    <message>
        <source>&amp;More</source>
        <translation>Al&amp;tro</translation>
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
        <translation>Altro</translation>
    </message>
    <message>
        <source>More, %1</source>
        <translation>Altro, %1</translation>
    </message>
</context>
<context>
    <name>corvana::ChangeMarks</name>
    <message>
        <source>Changed. %1</source>
        <translation>Modificato. %1</translation>
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
        <translation>«%1: %2»</translation>
    </message>
    <message>
        <source>%1 to %2 points</source>
        <translation>da %1 a %2 punti</translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation>da %1 a %2 caratteri</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>“%1” is not possible for %2. Allowed: %3.</source>
        <translation>«%1» non è possibile per %2. Valori consentiti: %3.</translation>
    </message>
    <message>
        <source>This is not possible for %1. Allowed: %2.</source>
        <translation>Questo valore non è possibile per %1. Valori consentiti: %2.</translation>
    </message>
    <message>
        <source>Cannot be combined with %1.</source>
        <translation>Non può essere combinato con %1.</translation>
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
        <translation>Tieni premuto per confrontare</translation>
    </message>
    <message>
        <source>While it is held, the document is shown as it is, without adjustments.</source>
        <translation>Finché è premuto, il documento viene mostrato com&apos;è, senza regolazioni.</translation>
    </message>
</context>
<context>
    <name>corvana::ComingDocuments</name>
    <message>
        <source>Standard input is being read.</source>
        <translation>Lettura dello standard input in corso.</translation>
    </message>
    <message>
        <source>%1 is being read.</source>
        <translation>Lettura di %1 in corso.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>corvana::Conversion</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
</context>
<context>
    <name>corvana::CountsRow</name>
    <message>
        <source>Sheets</source>
        <translation>Fogli</translation>
    </message>
    <message>
        <source>Show Preview</source>
        <translation>Mostra anteprima</translation>
    </message>
    <message>
        <source>Hide Preview</source>
        <translation>Nascondi anteprima</translation>
    </message>
</context>
<context>
    <name>corvana::CopiesEditor</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>«%1» non è consentito. Valori consentiti: %2.</translation>
    </message>
</context>
<context>
    <name>corvana::CredentialsDialog</name>
    <message>
        <source>Log In to Print</source>
        <translation>Autenticazione per la stampa</translation>
    </message>
    <message>
        <source>The printer wants to know who prints. User and password are sent to it through the print server “%1”, and are forgotten when the print dialog closes.</source>
        <translation>La stampante richiede di sapere chi stampa. Utente e password vengono inviati alla stampante tramite il server di stampa «%1» e dimenticati alla chiusura della finestra di stampa.</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints. User and password are forgotten when the print dialog closes.</source>
        <translation>Il server di stampa «%1» richiede di sapere chi stampa. Utente e password vengono dimenticati alla chiusura della finestra di stampa.</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Utente:</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>Pass&amp;word:</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Accedi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others on the network may read the password.</source>
        <translation>La connessione non è cifrata: altri sulla rete potrebbero leggere la password.</translation>
    </message>
</context>
<context>
    <name>corvana::CustomPaperSize</name>
    <message>
        <source>From %1 to %2</source>
        <translation>Da %1 a %2</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>Larghezza della carta</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>Altezza della carta</translation>
    </message>
    <message>
        <source>Unit of the paper size</source>
        <translation>Unità del formato carta</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>pollici</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentArea</name>
    <message>
        <source>Print this document earlier</source>
        <translation>Stampa prima questo documento</translation>
    </message>
    <message>
        <source>Print this document later</source>
        <translation>Stampa dopo questo documento</translation>
    </message>
    <message>
        <source>Do not print this document</source>
        <translation>Non stampare questo documento</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Print further documents in the same job</source>
        <translation>Stampa altri documenti nello stesso lavoro</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Aggiungi…</translation>
    </message>
    <message>
        <source>Documents in the order in which they are printed</source>
        <translation>Documenti nell&apos;ordine in cui vengono stampati</translation>
    </message>
    <message numerus="yes">
        <source>%n documents, printed in this order:</source>
        <translation>
            <numerusform>%n documento:</numerusform>
            <numerusform>%n documenti, stampati in quest&apos;ordine:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Choose Documents to Print</source>
        <translation>Scelta dei documenti da stampare</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentPasswordDialog</name>
    <message>
        <source>Protected Document</source>
        <translation>Documento protetto</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. With its owner&apos;s password it can be printed.</source>
        <translation>«%1» non consente la stampa. Può essere stampato con la password del proprietario.</translation>
    </message>
    <message>
        <source>“%1” is protected: enter its password. The password is forgotten when the print dialog closes.</source>
        <translation>«%1» è protetto: inserire la password. La password viene dimenticata alla chiusura della finestra di stampa.</translation>
    </message>
    <message>
        <source>That is not the password. Try again.</source>
        <translation>La password non è corretta. Riprovare.</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Password:</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>corvana::FileJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>La stampa è stata annullata.</translation>
    </message>
    <message>
        <source>%1 is the document itself; name another file.</source>
        <translation>%1 è il documento stesso; indicare un altro file.</translation>
    </message>
    <message>
        <source>Printed to %1</source>
        <translation>Stampato su %1</translation>
    </message>
</context>
<context>
    <name>corvana::FilterChain</name>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>Impossibile avviare %1: %2</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: how many pages it has could not be found out.</source>
        <translation>Impossibile convertire il documento per la stampante: non è stato possibile stabilire quante pagine ha.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>La stampa è stata annullata.</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: that took too long.</source>
        <translation>Impossibile convertire il documento per la stampante: l&apos;operazione ha richiesto troppo tempo.</translation>
    </message>
    <message>
        <source>The filter chain of CUPS crashed.</source>
        <translation>La catena di filtri di CUPS si è arrestata in modo anomalo.</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: %1</source>
        <translation>Impossibile convertire il documento per la stampante: %1</translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>stato di uscita %1</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: nothing came out. %1</source>
        <translation>Impossibile convertire il documento per la stampante: non è stato prodotto nulla. %1</translation>
    </message>
    <message>
        <source>The documents could not be put together: %1 is incomplete. Is the disk full?</source>
        <translation>Impossibile unire i documenti: %1 è incompleto. Il disco è pieno?</translation>
    </message>
</context>
<context>
    <name>corvana::FindField</name>
    <message>
        <source>Find a setting (Ctrl+F)</source>
        <translation>Trova un&apos;impostazione (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Trova un&apos;impostazione</translation>
    </message>
    <message>
        <source>Type a name, then go to a setting with Enter</source>
        <translation>Digitare un nome, poi andare a un&apos;impostazione con Invio</translation>
    </message>
    <message>
        <source>Type the name of a setting or of a choice.</source>
        <translation>Digitare il nome di un&apos;impostazione o di un valore.</translation>
    </message>
</context>
<context>
    <name>corvana::FindModel</name>
    <message>
        <source>%1, on %2</source>
        <translation>%1, in %2</translation>
    </message>
    <message>
        <source>%1, %2, on %3</source>
        <translation>%1, %2, in %3</translation>
    </message>
</context>
<context>
    <name>corvana::FindPopup</name>
    <message>
        <source>Settings that were found</source>
        <translation>Impostazioni trovate</translation>
    </message>
    <message>
        <source>1 setting found</source>
        <translation>1 impostazione trovata</translation>
    </message>
    <message>
        <source>%1 settings found</source>
        <translation>%1 impostazioni trovate</translation>
    </message>
</context>
<context>
    <name>corvana::GeneralPage</name>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copie:</translation>
    </message>
    <message>
        <source>All, or such as 1-4, 7, 9-</source>
        <translation>Tutte, o ad es. 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>Choos&amp;e Pages…</source>
        <translation>Sc&amp;egli pagine…</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Pa&amp;gine:</translation>
    </message>
    <message>
        <source>No document has been chosen.</source>
        <translation>Non è stato scelto alcun documento.</translation>
    </message>
    <message>
        <source>Custom Size</source>
        <translation>Formato personalizzato</translation>
    </message>
    <message>
        <source>Width × height:</source>
        <translation>Larghezza × altezza:</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
</context>
<context>
    <name>corvana::HelpWindow</name>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>corvana::InstancePrinters</name>
    <message>
        <source>More Printers</source>
        <translation>Altre stampanti</translation>
    </message>
    <message>
        <source>Other programs have the preset on the &amp;printers that are ticked:</source>
        <translation>Gli altri programmi hanno la preimpostazione sulle &amp;stampanti selezionate:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>Gli altri programmi la elencano come «%1».</translation>
    </message>
</context>
<context>
    <name>corvana::JobFooter</name>
    <message>
        <source>Printing</source>
        <translation>Stampa in corso</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Show Silenced Messages Again</source>
        <translation>Mostra di nuovo i messaggi nascosti</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Stampa</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>C&amp;hiudi</translation>
    </message>
    <message>
        <source>C&amp;lose (printing continues)</source>
        <translation>C&amp;hiudi (la stampa continua)</translation>
    </message>
    <message>
        <source>The job goes on without this window.</source>
        <translation>Il lavoro continua senza questa finestra.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annulla lavoro</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>Sal&amp;va…</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Stampa in corso…</translation>
    </message>
    <message>
        <source>Canceling…</source>
        <translation>Annullamento…</translation>
    </message>
    <message>
        <source>The first sides are printed.</source>
        <translation>Le prime facciate sono state stampate.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>corvana::MessageBar</name>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>Show all of this message</source>
        <translation>Mostra l&apos;intero messaggio</translation>
    </message>
    <message>
        <source>Dismiss this message</source>
        <translation>Ignora questo messaggio</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsModel</name>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Installable Options</source>
        <translation>Opzioni installabili</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1
For the command line: %2</source>
        <translation>%1
Per la riga di comando: %2</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>Modificato. %1</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Predefinito: %1</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsPage</name>
    <message>
        <source>Back to the Default</source>
        <translation>Ripristina il valore predefinito</translation>
    </message>
    <message>
        <source>Search options and choices</source>
        <translation>Cerca opzioni e valori</translation>
    </message>
    <message>
        <source>Options of the printer</source>
        <translation>Opzioni della stampante</translation>
    </message>
    <message>
        <source>Nothing contains “%1”.</source>
        <translation>Nessuna voce contiene «%1».</translation>
    </message>
</context>
<context>
    <name>corvana::PageChooser</name>
    <message>
        <source>Choose Pages</source>
        <translation>Scelta delle pagine</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>&amp;Pages:</source>
        <translation>&amp;Pagine:</translation>
    </message>
    <message>
        <source>Such as 1-4, 7, 9-</source>
        <translation>Ad es. 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Tutte</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Nessuna</translation>
    </message>
    <message>
        <source>&amp;Odd</source>
        <translation>&amp;Dispari</translation>
    </message>
    <message>
        <source>&amp;Even</source>
        <translation>Pa&amp;ri</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>&amp;Inverti</translation>
    </message>
    <message>
        <source>Page numbers count in each document: what is ticked in one is ticked in all.</source>
        <translation>I numeri di pagina valgono in ogni documento: ciò che si seleziona in uno è selezionato in tutti.</translation>
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
        <translation>Ha %L1 pagine, troppe per mostrarle qui. Possono essere digitate.</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Pagina %1</translation>
    </message>
    <message>
        <source>Page %1 (%2)</source>
        <translation>Pagina %1 (%2)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>%1, chosen</source>
        <translation>%1, scelta</translation>
    </message>
    <message>
        <source>%1, not chosen</source>
        <translation>%1, non scelta</translation>
    </message>
</context>
<context>
    <name>corvana::PageThumbnails</name>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
</context>
<context>
    <name>corvana::PassJob</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>La stampa è stata annullata.</translation>
    </message>
</context>
<context>
    <name>corvana::PresetMenu</name>
    <message>
        <source>Printer &amp;Defaults</source>
        <translation>&amp;Predefiniti</translation>
    </message>
    <message>
        <source>&amp;Last Used</source>
        <translation>&amp;Ultime usate</translation>
    </message>
    <message>
        <source>For This Model</source>
        <translation>Per questo modello</translation>
    </message>
    <message>
        <source>For All Printers</source>
        <translation>Per tutte le stampanti</translation>
    </message>
    <message>
        <source>From Other Programs</source>
        <translation>Da altri programmi</translation>
    </message>
    <message>
        <source>&amp;Save Preset…</source>
        <translation>&amp;Salva preimpostazione…</translation>
    </message>
    <message>
        <source>&amp;Update “%1”</source>
        <translation>&amp;Aggiorna «%1»</translation>
    </message>
    <message>
        <source>&amp;Rename “%1”…</source>
        <translation>&amp;Rinomina «%1»…</translation>
    </message>
    <message>
        <source>D&amp;elete “%1”…</source>
        <translation>&amp;Elimina «%1»…</translation>
    </message>
    <message>
        <source>Re&amp;member the Settings of the Last Job</source>
        <translation>Ri&amp;corda le impostazioni dell&apos;ultimo lavoro</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Elimina preimpostazione</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? The settings stay as they are.</source>
        <translation>Eliminare la preimpostazione «%1»? Le impostazioni restano come sono.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>corvana::PresetRow</name>
    <message>
        <source>Prese&amp;t:</source>
        <translation>Prei&amp;mpostazione:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modificata)</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>Preimpostazione: %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>This Page: %1</source>
        <translation>Questa pagina: %1</translation>
    </message>
    <message>
        <source>Everything: %1</source>
        <translation>Tutto: %1</translation>
    </message>
    <message>
        <source>%1 (Ctrl+Z)</source>
        <translation>%1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>%1 (Shift+Ctrl+Z)</source>
        <translation>%1 (Maiusc+Ctrl+Z)</translation>
    </message>
</context>
<context>
    <name>corvana::PreviewPane</name>
    <message>
        <source>Counting the sheets…</source>
        <translation>Conteggio dei fogli…</translation>
    </message>
</context>
<context>
    <name>corvana::PreviewPlaceholder</name>
    <message>
        <source>Choose &amp;Documents…</source>
        <translation>Scegli &amp;documenti…</translation>
    </message>
    <message>
        <source>Drop documents here to print them.</source>
        <translation>Trascinare qui i documenti da stampare.</translation>
    </message>
    <message>
        <source>PDF, PostScript, text, PNG and JPEG; several are one job.</source>
        <translation>PDF, PostScript, testo, PNG e JPEG; più documenti formano un lavoro.</translation>
    </message>
</context>
<context>
    <name>corvana::PrintTask</name>
    <message>
        <source>The sides of “%1” are not known here, so they cannot be printed in two halves. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>Le facciate di «%1» qui non sono note, perciò non possono essere stampate in due metà. Con sides-by-hand=no viene stampata una facciata di ogni foglio.</translation>
    </message>
    <message>
        <source>%1 (other sides)</source>
        <translation>%1 (seconde facciate)</translation>
    </message>
    <message>
        <source>%1 (first sides)</source>
        <translation>%1 (prime facciate)</translation>
    </message>
    <message>
        <source>First sides: %1</source>
        <translation>Prime facciate: %1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>Seconde facciate: %1</translation>
    </message>
    <message>
        <source>First sides: %1 Other sides: %2</source>
        <translation>Prime facciate: %1 Seconde facciate: %2</translation>
    </message>
    <message>
        <source>Not printed.</source>
        <translation>Non stampato.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Show Its First Sheet</source>
        <translation>Mostra il primo foglio</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Give the password with --document-password-file.</source>
        <translation>Indicare la password con --document-password-file.</translation>
    </message>
    <message>
        <source>Enter the Password…</source>
        <translation>Inserisci la password…</translation>
    </message>
    <message>
        <source>Enter the Owner&apos;s Password…</source>
        <translation>Inserisci la password del proprietario…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Scegliere un documento da stampare.</translation>
    </message>
    <message>
        <source>Name the file to print to.</source>
        <translation>Indicare il file su cui stampare.</translation>
    </message>
    <message>
        <source>“%1” are no pages. Pages and ranges in ascending order were expected, such as 1-4, 7, 9-.</source>
        <translation>«%1» non indica pagine. Erano attesi pagine e intervalli in ordine crescente, come 1-4, 7, 9-.</translation>
    </message>
    <message>
        <source>%1 is of a kind that is not known here. Only a queue can pass it on to its printer, as it is, with the option “raw”.</source>
        <translation>Il tipo di %1 qui non è noto. Solo una coda può inoltrarlo senza modifiche alla sua stampante, con l&apos;opzione «raw».</translation>
    </message>
    <message>
        <source>What is passed on as it is cannot be printed to a file.</source>
        <translation>Ciò che viene inoltrato senza modifiche non può essere stampato su file.</translation>
    </message>
    <message>
        <source>No font of this computer has these characters of the text: %1. An empty frame is printed for each of them.</source>
        <translation>Nessun tipo di carattere di questo computer contiene questi caratteri del testo: %1. Al posto di ognuno viene stampato un riquadro vuoto.</translation>
    </message>
    <message>
        <source>Not all of the text could be looked through for characters that no font of this computer has. An empty frame is printed for each of them.</source>
        <translation>Non è stato possibile cercare in tutto il testo i caratteri mancanti nei tipi di carattere di questo computer. Al posto di ognuno viene stampato un riquadro vuoto.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings show instructions.</source>
        <translation>Le impostazioni della stampante mostrano istruzioni.</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and a file cannot wait. Follow them and print with --on-alert=print.</source>
        <translation>Il lavoro dovrebbe attendere che queste istruzioni siano seguite, e un file non può attendere. Seguirle e stampare con --on-alert=print.</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and two-sided printing by hand cannot. Follow them and print with --on-alert=print.</source>
        <translation>Il lavoro dovrebbe attendere che queste istruzioni siano seguite, e la stampa fronte-retro manuale non può attendere. Seguirle e stampare con --on-alert=print.</translation>
    </message>
    <message>
        <source>%1 So the job cannot wait for these instructions. Follow them and print with --on-alert=print.</source>
        <translation>%1 Il lavoro non può quindi attendere che queste istruzioni siano seguite. Seguirle e stampare con --on-alert=print.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings hold the job back.</source>
        <translation>Le impostazioni della stampante trattengono il lavoro.</translation>
    </message>
    <message>
        <source>Its pages are made while it is printed. The preview shows them.</source>
        <translation>Le sue pagine vengono create durante la stampa. L&apos;anteprima le mostra.</translation>
    </message>
    <message>
        <source>How many pages it has is not known.</source>
        <translation>Non si sa quante pagine abbia.</translation>
    </message>
    <message>
        <source>It is being looked at…</source>
        <translation>Esame in corso…</translation>
    </message>
    <message>
        <source>Not everything that your administrator has decided can be used. “corvana-print --check-policy” says what, and why.</source>
        <translation>Non tutto ciò che l&apos;amministratore ha stabilito può essere applicato. «corvana-print --check-policy» indica che cosa e perché.</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper.</source>
        <translation>Questo lavoro richiede %1 fogli di carta.</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper. More than %2 are printed only with --yes.</source>
        <translation>Questo lavoro richiede %1 fogli di carta. Oltre %2 si stampa solo con --yes.</translation>
    </message>
    <message>
        <source>The options of the printer have changed at its server; yours were kept.</source>
        <translation>Le opzioni della stampante sono cambiate sul suo server; quelle scelte sono state mantenute.</translation>
    </message>
    <message>
        <source>The printer&apos;s own settings are missing: %1</source>
        <translation>Mancano le impostazioni proprie della stampante: %1</translation>
    </message>
    <message>
        <source>Not everything could be set as before:
%1</source>
        <translation>Non è stato possibile ripristinare tutte le impostazioni precedenti:
%1</translation>
    </message>
    <message>
        <source>The queue “%1” leads to the same printer, and has pages with all of its settings.</source>
        <translation>La coda «%1» porta alla stessa stampante e ha pagine con tutte le sue impostazioni.</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <translation>Usa «%1»</translation>
    </message>
    <message>
        <source>There is no job attribute of the name %1.</source>
        <translation>Non esiste alcun attributo del lavoro di nome %1.</translation>
    </message>
    <message>
        <source>The queue “%1” sets this for every job that does not name it. Allowed: %2.</source>
        <translation>La coda «%1» imposta questo valore per ogni lavoro che non lo indica. Valori consentiti: %2.</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>«%1» non è consentito. Valori consentiti: %2.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No document has been chosen.</source>
        <translation>Non è stato scelto alcun documento.</translation>
    </message>
    <message>
        <source>There is a preview once the printer is known.</source>
        <translation>L&apos;anteprima sarà disponibile quando la stampante sarà nota.</translation>
    </message>
    <message>
        <source>Files are passed on to the printer as they are. What comes out is not known here.</source>
        <translation>I file vengono inoltrati alla stampante senza modifiche. Qui il risultato non è noto.</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>La stampa è stata annullata.</translation>
    </message>
    <message>
        <source>What was asked for cannot be set:
%1</source>
        <translation>Impossibile impostare quanto richiesto:
%1</translation>
    </message>
    <message>
        <source>Not everything that is set for this printer could be taken:
%1</source>
        <translation>Non è stato possibile applicare tutto ciò che è impostato per questa stampante:
%1</translation>
    </message>
    <message>
        <source>As in your last job.</source>
        <translation>Come nell&apos;ultimo lavoro.</translation>
    </message>
    <message>
        <source>Use Defaults</source>
        <translation>Usa predefiniti</translation>
    </message>
    <message>
        <source>A PDF file is saved once: there are no copies of it.</source>
        <translation>Un file PDF viene salvato una sola volta: non ne esistono copie.</translation>
    </message>
    <message>
        <source>The printer prints at most %1 copies at once, not %2.</source>
        <translation>La stampante stampa al massimo %1 copie alla volta, non %2.</translation>
    </message>
    <message>
        <source>“%1” has nothing to show.</source>
        <translation>«%1» non ha nulla da mostrare.</translation>
    </message>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>Impossibile mostrare una pagina delle impostazioni della stampante: %1</translation>
    </message>
    <message>
        <source>%1 is not on this computer. Save it here to print it.</source>
        <translation>%1 non si trova su questo computer. Salvarlo qui per stamparlo.</translation>
    </message>
    <message>
        <source>The sheets can stay in the tray: the other sides are printed with the settings of the first ones.</source>
        <translation>I fogli possono restare nel vassoio: le seconde facciate vengono stampate con le impostazioni delle prime.</translation>
    </message>
    <message>
        <source>Printed to %1, which holds data for the printer and is no PDF document</source>
        <translation>Stampato su %1, che contiene dati per la stampante e non è un documento PDF</translation>
    </message>
</context>
<context>
    <name>corvana::PrintWindow</name>
    <message>
        <source>Asking “%1” for the options of the printer…</source>
        <translation>Richiesta a «%1» delle opzioni della stampante…</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Ricerca delle stampanti…</translation>
    </message>
    <message>
        <source>No answer from “%1” yet.</source>
        <translation>Ancora nessuna risposta da «%1».</translation>
    </message>
    <message>
        <source>No printers at “%1”.</source>
        <translation>Nessuna stampante su «%1».</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>There are no printers yet. Add one in the printer settings of the system, or with the command lpadmin.</source>
        <translation>Non ci sono ancora stampanti. Aggiungerne una nelle impostazioni di stampa del sistema o con il comando lpadmin.</translation>
    </message>
    <message>
        <source>Until then, documents can be printed to a file.</source>
        <translation>Fino ad allora i documenti possono essere stampati su file.</translation>
    </message>
    <message>
        <source>Log In…</source>
        <translation>Accedi…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>The print service of this computer is not running. Start it, on most systems with “systemctl start cups”.</source>
        <translation>Il servizio di stampa di questo computer non è in esecuzione. Avviarlo; nella maggior parte dei sistemi, con «systemctl start cups».</translation>
    </message>
    <message>
        <source>Print Another Copy</source>
        <translation>Stampa un&apos;altra copia</translation>
    </message>
    <message>
        <source>Two-Sided by Hand</source>
        <translation>Fronte-retro manuale</translation>
    </message>
    <message>
        <source>Only the first sides of the sheets are printed. Leave the other sides unprinted?</source>
        <translation>Sono state stampate solo le prime facciate dei fogli. Lasciare le seconde facciate non stampate?</translation>
    </message>
    <message>
        <source>The first sides of the sheets are being printed. Stop that, and leave the other sides unprinted?</source>
        <translation>È in corso la stampa delle prime facciate dei fogli. Interromperla e lasciare le seconde facciate non stampate?</translation>
    </message>
    <message>
        <source>Leave Unprinted</source>
        <translation>Lascia non stampate</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Torna indietro</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>Stampa su file</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 esiste già. Sostituirlo?</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>Stampa comunque</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Your preferences cannot be written.</source>
        <translation>Impossibile salvare le preferenze.</translation>
    </message>
    <message>
        <source>The help is not installed.</source>
        <translation>L&apos;aiuto non è installato.</translation>
    </message>
    <message>
        <source>Help on Printing</source>
        <translation>Aiuto sulla stampa</translation>
    </message>
    <message>
        <source>If you print it again, it may come out of the printer twice.</source>
        <translation>Se viene stampato di nuovo, può uscire due volte dalla stampante.</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>Stampa di nuovo</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterComboBox</name>
    <message>
        <source>Choose a printer</source>
        <translation>Scegliere una stampante</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterHeader</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Stam&amp;pante:</translation>
    </message>
    <message>
        <source>Print to &amp;file:</source>
        <translation>Stampa su &amp;file:</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Stampa su file</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>Sceg&amp;li…</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>Stampa su file</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterPopup</name>
    <message>
        <source>Printers</source>
        <translation>Stampanti</translation>
    </message>
    <message>
        <source>Search by name or location</source>
        <translation>Cerca per nome o posizione</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>Cerca stampanti</translation>
    </message>
    <message>
        <source>No printer was found</source>
        <translation>Nessuna stampante trovata</translation>
    </message>
    <message>
        <source>No printer matches</source>
        <translation>Nessuna stampante corrisponde</translation>
    </message>
    <message>
        <source>%1 of %2 printers</source>
        <translation>%1 di %2 stampanti</translation>
    </message>
    <message>
        <source>%1 printers</source>
        <translation>%1 stampanti</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterSource</name>
    <message>
        <source>There is no default printer. %1 Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>Non c&apos;è una stampante predefinita. %1 Indicare una stampante con -d o un PPD con --ppd FILE, oppure provare le stampanti di esempio con --demo.</translation>
    </message>
    <message>
        <source>There is no default printer. Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>Non c&apos;è una stampante predefinita. Indicare una stampante con -d o un PPD con --ppd FILE, oppure provare le stampanti di esempio con --demo.</translation>
    </message>
    <message>
        <source>There is no instance “%1”: lpoptions has none of the queue “%2”.</source>
        <translation>Non esiste l&apos;istanza «%1»: lpoptions non ne ha per la coda «%2».</translation>
    </message>
    <message>
        <source>There is no instance “%1”. The queue “%2” has: %3.</source>
        <translation>Non esiste l&apos;istanza «%1». La coda «%2» ha: %3.</translation>
    </message>
    <message>
        <source>There is no printer “%1” at “%2”.</source>
        <translation>Non c&apos;è alcuna stampante «%1» su «%2».</translation>
    </message>
    <message>
        <source>There is no printer “%1” at “%2” any more.</source>
        <translation>Non c&apos;è più alcuna stampante «%1» su «%2».</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterStatusLine</name>
    <message>
        <source>Try Again</source>
        <translation>Riprova</translation>
    </message>
</context>
<context>
    <name>corvana::SavePresetDialog</name>
    <message>
        <source>Rename Preset</source>
        <translation>Rinomina preimpostazione</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Salva preimpostazione</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>For printers of this &amp;model (%1)</source>
        <translation>Per le stampanti di questo &amp;modello (%1)</translation>
    </message>
    <message>
        <source>For &amp;all printers, as far as they have these settings</source>
        <translation>Per &amp;tutte le stampanti che hanno queste impostazioni</translation>
    </message>
    <message>
        <source>Also in &amp;other programs</source>
        <translation>Anche in &amp;altri programmi</translation>
    </message>
    <message>
        <source>&amp;With what sets up the printer itself (%1)</source>
        <translation>&amp;Includi ciò che configura la stampante stessa (%1)</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>Gli altri programmi la elencano come «%1».</translation>
    </message>
    <message>
        <source>There is a preset of this name already.</source>
        <translation>Esiste già una preimpostazione con questo nome.</translation>
    </message>
    <message>
        <source>There is a preset of this name already. It will be replaced.</source>
        <translation>Esiste già una preimpostazione con questo nome. Verrà sostituita.</translation>
    </message>
    <message>
        <source>There is another preset of this name, which stays.</source>
        <translation>Esiste un&apos;altra preimpostazione con questo nome, che rimane.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>More &amp;Printers…</source>
        <translation>Altre &amp;stampanti…</translation>
    </message>
</context>
<context>
    <name>corvana::ServerJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>La stampa è stata annullata.</translation>
    </message>
    <message>
        <source>The printer “%1” does not take these settings of a job: %2. Nothing was printed.</source>
        <translation>La stampante «%1» non accetta queste impostazioni di un lavoro: %2. Non è stato stampato nulla.</translation>
    </message>
    <message>
        <source>The queue “%1” has no driver and prints documents as they are: it can neither put several pages on a sheet (number-up) nor choose pages (page-ranges, page-set). Nothing was printed.</source>
        <translation>La coda «%1» non ha un driver e stampa i documenti senza modifiche: non può disporre più pagine su un foglio (number-up) né scegliere pagine (page-ranges, page-set). Non è stato stampato nulla.</translation>
    </message>
    <message>
        <source>The printer “%1” takes documents of these kinds only: %2.</source>
        <translation>La stampante «%1» accetta solo documenti di questi tipi: %2.</translation>
    </message>
    <message>
        <source>The documents were put together as one, because the printer takes one at a time; each begins on a new sheet.</source>
        <translation>I documenti sono stati uniti in uno, perché la stampante ne accetta uno alla volta; ognuno inizia su un nuovo foglio.</translation>
    </message>
    <message>
        <source>There are too many copies to send them in sets. Their order is: %1.</source>
        <translation>Le copie sono troppe per inviarle in serie. Il loro ordine è: %1.</translation>
    </message>
    <message>
        <source>Job %1 is in the queue; it was not followed to its end.</source>
        <translation>Il lavoro %1 è nella coda; non è stato seguito fino alla fine.</translation>
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
        <translation>ora: %1</translation>
    </message>
    <message>
        <source>The settings of the printer are not known yet.</source>
        <translation>Le impostazioni della stampante non sono ancora note.</translation>
    </message>
    <message>
        <source>No setting is called “%1”. Try a shorter word, or another one for it.</source>
        <translation>Nessuna impostazione si chiama «%1». Provare con una parola più breve o con un sinonimo.</translation>
    </message>
    <message>
        <source>No setting is called “%1”. Press Enter to search for “%2” instead.</source>
        <translation>Nessuna impostazione si chiama «%1». Premere Invio per cercare invece «%2».</translation>
    </message>
    <message>
        <source>“%1” cannot be changed while other settings are as they are. It is on the page “%2”.</source>
        <translation>«%1» non può essere modificato finché le altre impostazioni restano come sono. È nella pagina «%2».</translation>
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
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>All Options</source>
        <translation>Tutte le opzioni</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>This page cannot be shown: %1</source>
        <translation>Impossibile mostrare questa pagina: %1</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Riprova</translation>
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
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Preview. %1</source>
        <translation>Anteprima. %1</translation>
    </message>
    <message>
        <source>Cover sheet of the queue: %1</source>
        <translation>Foglio di copertina della coda: %1</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>Aggiornamento…</translation>
    </message>
</context>
<context>
    <name>corvana::SheetsRow</name>
    <message>
        <source>Sheet %L1</source>
        <translation>Foglio %L1</translation>
    </message>
    <message>
        <source>Sheet %L1 of %L2</source>
        <translation>Foglio %L1 di %L2</translation>
    </message>
</context>
<context>
    <name>corvana::SummaryPage</name>
    <message>
        <source>Only what is changed</source>
        <translation>Solo le modifiche</translation>
    </message>
    <message>
        <source>Nothing is changed.</source>
        <translation>Nessuna modifica.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>Modificato. %1</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, modificato</translation>
    </message>
</context>
<context>
    <name>corvana::TaskHistory</name>
    <message>
        <source>Printer</source>
        <translation>Stampante</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla modifica</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Annulla %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti modifica</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Ripeti %1</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Torna a %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristino</translation>
    </message>
    <message>
        <source>This cannot go back:
%1</source>
        <translation>Impossibile ripristinare:
%1</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documenti</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Impostazione</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPresets</name>
    <message>
        <source>The printer is not known yet.</source>
        <translation>La stampante non è ancora nota.</translation>
    </message>
    <message>
        <source>Other programs print with these settings to “%1”.</source>
        <translation>Gli altri programmi stampano con queste impostazioni su «%1».</translation>
    </message>
    <message>
        <source>“%1” is not there any more, or has no settings.</source>
        <translation>«%1» non esiste più o non ha impostazioni.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>Predefiniti</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>Ultime usate</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>Non esiste più alcuna preimpostazione di nome «%1».</translation>
    </message>
    <message>
        <source>Not everything of “%1” is possible here:
%2</source>
        <translation>Non tutto ciò che contiene «%1» qui è possibile:
%2</translation>
    </message>
    <message>
        <source>“%1” was kept with settings that this printer does not have.</source>
        <translation>«%1» è stata salvata con impostazioni che questa stampante non ha.</translation>
    </message>
    <message>
        <source>%1 Your settings are as they were.</source>
        <translation>%1 Le impostazioni sono rimaste come prima.</translation>
    </message>
    <message>
        <source>The preset “%1” for this printer is another one.</source>
        <translation>La preimpostazione «%1» per questa stampante è un’altra.</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPreview</name>
    <message>
        <source>It can be printed all the same.</source>
        <translation>Può essere stampato comunque.</translation>
    </message>
</context>
<context>
    <name>corvana::TextConversion</name>
    <message>
        <source>There are no fonts for the text %1.</source>
        <translation>Non ci sono tipi di carattere per il testo %1.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>La stampa è stata annullata.</translation>
    </message>
    <message>
        <source>%1 would have more than %2 pages, and a text is printed on no more than that.</source>
        <translation>%1 avrebbe più di %2 pagine, il massimo con cui si stampa un testo.</translation>
    </message>
</context>
<context>
    <name>corvana::TextDocuments</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>La stampa è stata annullata.</translation>
    </message>
</context>
<context>
    <name>corvana::TurnSheetsDialog</name>
    <message>
        <source>Two-Sided by Hand</source>
        <translation>Fronte-retro manuale</translation>
    </message>
    <message>
        <source>Put the sheets back to print their other sides</source>
        <translation>Reinserire i fogli per stampare le seconde facciate</translation>
    </message>
    <message>
        <source>&amp;Print the Other Sides</source>
        <translation>&amp;Stampa le seconde facciate</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>corvana::ZoomControl</name>
    <message>
        <source>Smaller</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Size of the sheets</source>
        <translation>Dimensione dei fogli</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>Adatta pagina</translation>
    </message>
    <message>
        <source>Fit Width</source>
        <translation>Adatta larghezza</translation>
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
        <translation>Stampa</translation>
    </message>
    <message>
        <source>no display can be reached. Print without a window with --no-dialog.</source>
        <translation>impossibile raggiungere uno schermo. Stampare senza finestra con --no-dialog.</translation>
    </message>
</context>
<context>
    <name>ClearButton</name>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
</context>
<context>
    <name>ChoiceCodes</name>
    <message>
        <source>%1 cannot be sent to the printer: its PPD does not say in a usable way how that is done.</source>
        <translation>%1 non può essere inviato alla stampante: il suo PPD non indica in modo utilizzabile come farlo.</translation>
    </message>
</context>
<context>
    <name>PpdBounds</name>
    <message>
        <source>It is no ordinary file.</source>
        <translation>Non è un file normale.</translation>
    </message>
    <message>
        <source>It is larger than %1 MB.</source>
        <translation>Supera i %1 MB.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 lines that begin with “%2”.</source>
        <translation>Contiene troppi dati: più di %1 righe che iniziano con «%2».</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices of all options together. “%2” has the most.</source>
        <translation>Contiene troppi dati: più di %1 valori in tutte le opzioni insieme. Quella che ne ha di più è «%2».</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 lines that belong to no option. The most frequent is “%2”.</source>
        <translation>Contiene troppi dati: più di %1 righe che non appartengono a nessuna opzione. La più frequente è «%2».</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 different keywords.</source>
        <translation>Contiene troppi dati: più di %1 parole chiave diverse.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in one line that begins with “%2”.</source>
        <translation>Contiene troppi dati: più di %1 valori in una riga che inizia con «%2».</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in lines that begin with “%2”.</source>
        <translation>Contiene troppi dati: più di %1 valori in righe che iniziano con «%2».</translation>
    </message>
    <message>
        <source>There is too much in it: its constraints name %1 choices. Beside as many options and choices as it has, %2 are allowed.</source>
        <translation>Contiene troppi dati: i suoi vincoli nominano %1 valori. Con tante opzioni e tanti valori ne sono ammessi %2.</translation>
    </message>
</context>
<context>
    <name>QueueRequests</name>
    <message>
        <source>more than %L1 printers</source>
        <translation>più di %L1 stampanti</translation>
    </message>
    <message>
        <source>printers with more than %L1 characters in their texts</source>
        <translation>stampanti con più di %L1 caratteri nei loro testi</translation>
    </message>
</context>
<context>
    <name>ClientFiles</name>
    <message>
        <source>%1 cannot be read to its end: a small file with the settings of CUPS is expected there.</source>
        <translation>%1 non può essere letto fino alla fine: lì è previsto un piccolo file con le impostazioni di CUPS.</translation>
    </message>
</context>
<context>
    <name>TemporaryFolder</name>
    <message>
        <source>No temporary files can be kept in %1: %2</source>
        <translation>Impossibile salvare file temporanei in %1: %2</translation>
    </message>
</context>
<context>
    <name>TextSource</name>
    <message>
        <source>it has become shorter meanwhile</source>
        <translation>nel frattempo è diventato più corto</translation>
    </message>
</context>
<context>
    <name>Finishings</name>
    <message>
        <source>None</source>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Pinzare</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Forare</translation>
    </message>
    <message>
        <source>Add Cover</source>
        <translation>Aggiungere copertina</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Rilegare</translation>
    </message>
    <message>
        <source>Saddle Stitch</source>
        <translation>Pinzatura a sella</translation>
    </message>
    <message>
        <source>Edge Stitch</source>
        <translation>Pinzatura sul bordo</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Piegare</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Rifilare</translation>
    </message>
    <message>
        <source>Bundle</source>
        <translation>Raggruppare</translation>
    </message>
    <message>
        <source>Make Booklet</source>
        <translation>Creare opuscolo</translation>
    </message>
    <message>
        <source>Offset Sets</source>
        <translation>Sfalsare le serie</translation>
    </message>
    <message>
        <source>Coat</source>
        <translation>Patinare</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Plastificare</translation>
    </message>
</context>
<context>
    <name>OwnInstances</name>
    <message>
        <source>“%1” is damaged. What was written for other programs before does not follow its presets any more.</source>
        <translation>«%1» è danneggiato. Ciò che era stato scritto per altri programmi non segue più le sue preimpostazioni.</translation>
    </message>
</context>
<context>
    <name>PresetInstances</name>
    <message>
        <source>“%1” in other programs: %2</source>
        <translation>«%1» in altri programmi: %2</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is from now on.</source>
        <translation>«%1» è stato modificato da un altro programma e d&apos;ora in poi resta com&apos;è.</translation>
    </message>
    <message>
        <source>Settings were changed while “%1” was saved: other programs have it as it was before. Save it again.</source>
        <translation>Alcune impostazioni sono state modificate durante il salvataggio di «%1»: negli altri programmi è rimasta com’era prima. Salvarla di nuovo.</translation>
    </message>
</context>
<context>
    <name>PresetReplacing</name>
    <message>
        <source>“%1” was saved elsewhere since it was selected here, and stays as it is there. Select it again, or keep your settings with “Save Preset…”.</source>
        <translation>«%1» è stata salvata altrove dopo la selezione qui e rimane com&apos;è. Selezionala di nuovo oppure salva le impostazioni con «Salva preimpostazione…».</translation>
    </message>
</context>
<context>
    <name>Collation</name>
    <message>
        <source>two-sided copies are always collated on this printer</source>
        <translation>le copie fronte-retro vengono sempre fascicolate su questa stampante</translation>
    </message>
</context>
<context>
    <name>OtherQueues</name>
    <message>
        <source>The queue could not be read in time.</source>
        <translation>Non è stato possibile leggere la coda in tempo.</translation>
    </message>
</context>
</TS>
