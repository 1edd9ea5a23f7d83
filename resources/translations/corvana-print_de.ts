<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AlertPresenter</name>
    <message>
        <source>Do not show this message again</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
    </message>
</context>
<context>
    <name>AttributeEffects</name>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>%1 has no effect on %2: only texts follow it.</source>
        <translation>%1 hat keine Wirkung auf %2: Nur Texte richten sich danach.</translation>
    </message>
    <message>
        <source>%1 has no effect on %2: only pictures follow it.</source>
        <translation>%1 hat keine Wirkung auf %2: Nur Bilder richten sich danach.</translation>
    </message>
    <message>
        <source>asked for by the queue; what the printer makes of it is not known</source>
        <translation>von der Warteschlange verlangt; was der Drucker daraus macht, ist nicht bekannt</translation>
    </message>
    <message>
        <source>only where a page is scaled</source>
        <translation>nur, wo eine Seite skaliert wird</translation>
    </message>
</context>
<context>
    <name>ByHand</name>
    <message>
        <source>top</source>
        <translation>obere</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechte</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>untere</translation>
    </message>
    <message>
        <source>left</source>
        <translation>linke</translation>
    </message>
    <message>
        <source>Take the printed sheet out of the printer.</source>
        <translation>Nehmen Sie das bedruckte Blatt aus dem Drucker.</translation>
    </message>
    <message>
        <source>Take the %1 printed sheets out of the printer, as one stack.</source>
        <translation>Nehmen Sie die %1 bedruckten Blätter als einen Stapel aus dem Drucker.</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side down, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>Legen Sie sie mit der bedruckten Seite nach unten wieder in das Fach, sodass die %1 Kante der Seiten zuerst in den Drucker eingezogen wird.</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side up, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>Legen Sie sie mit der bedruckten Seite nach oben wieder in das Fach, sodass die %1 Kante der Seiten zuerst in den Drucker eingezogen wird.</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost. Nothing is printed on it so far.</source>
        <translation>Das letzte Blatt liegt zuoberst. Es ist noch nicht bedruckt.</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost.</source>
        <translation>Das letzte Blatt liegt zuoberst.</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>Seiten %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The last sheet, with %1, lies uppermost.</source>
        <translation>Das letzte Blatt (%1) liegt zuoberst.</translation>
    </message>
    <message>
        <source>The last sheet, with %1 of “%2”, lies uppermost.</source>
        <translation>Das letzte Blatt (%1 von „%2“) liegt zuoberst.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs a printer that sheets are put back into: it cannot be done in a file.</source>
        <translation>Manueller beidseitiger Druck (%1) braucht einen Drucker, in den die Blätter wieder eingelegt werden: In eine Datei ist er nicht möglich.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) cannot be combined with %2: the queue would add these pages to both halves.</source>
        <translation>Manueller beidseitiger Druck (%1) lässt sich nicht mit %2 kombinieren: Die Warteschlange würde diese Seiten zu beiden Hälften hinzufügen.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs somebody who puts the sheets back, and nobody can be asked here. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>Manueller beidseitiger Druck (%1) braucht jemanden, der die Blätter wieder einlegt, und hier kann niemand gefragt werden. Mit sides-by-hand=no wird jedes Blatt nur auf einer Seite bedruckt.</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side down, so that the %1 edge of the page goes into the printer first.</source>
        <translation>Legen Sie es mit der bedruckten Seite nach unten wieder in das Fach, sodass die %1 Kante der Seite zuerst in den Drucker eingezogen wird.</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side up, so that the %1 edge of the page goes into the printer first.</source>
        <translation>Legen Sie es mit der bedruckten Seite nach oben wieder in das Fach, sodass die %1 Kante der Seite zuerst in den Drucker eingezogen wird.</translation>
    </message>
</context>
<context>
    <name>CheckPolicy</name>
    <message>
        <source>Policy in %1 for the user %2</source>
        <translation>Richtlinie in %1 für den Benutzer %2</translation>
    </message>
    <message>
        <source>groups: %1</source>
        <translation>Gruppen: %1</translation>
    </message>
    <message>
        <source>Not used:</source>
        <translation>Nicht verwendet:</translation>
    </message>
    <message>
        <source>Nothing is decided.</source>
        <translation>Nichts ist festgelegt.</translation>
    </message>
    <message>
        <source>At the printer %1:</source>
        <translation>Am Drucker %1:</translation>
    </message>
    <message>
        <source>Void, because the printer does not take it:</source>
        <translation>Ohne Wirkung, weil der Drucker es nicht annimmt:</translation>
    </message>
    <message>
        <source>For others, who are in these groups:</source>
        <translation>Für andere, die in diesen Gruppen sind:</translation>
    </message>
    <message>
        <source>Only root may ask what applies to somebody else.</source>
        <translation>Nur root darf fragen, was für andere gilt.</translation>
    </message>
    <message>
        <source>There is no user of the name “%1”.</source>
        <translation>Es gibt keinen Benutzer mit dem Namen „%1“.</translation>
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
        <translation>Davon werden nur die ungeraden gedruckt, wie für diesen Auftrag eingestellt.</translation>
    </message>
    <message>
        <source>Only the even ones of them are printed, as is set for this job.</source>
        <translation>Davon werden nur die geraden gedruckt, wie für diesen Auftrag eingestellt.</translation>
    </message>
    <message>
        <source>No page is chosen.</source>
        <translation>Es ist keine Seite gewählt.</translation>
    </message>
    <message>
        <source>How many pages there are is not known.</source>
        <translation>Die Zahl der Seiten ist nicht bekannt.</translation>
    </message>
    <message>
        <source>%L1 of %L2 page numbers chosen.</source>
        <translation>%L1 von %L2 Seitenzahlen gewählt.</translation>
    </message>
    <message>
        <source>%L1 of %L2 pages chosen.</source>
        <translation>%L1 von %L2 Seiten gewählt.</translation>
    </message>
    <message>
        <source>There are no pages %1.</source>
        <translation>Es gibt keine Seiten %1.</translation>
    </message>
    <message>
        <source>“%1” is no page. Pages are typed as in 1-4, 7, 9-.</source>
        <translation>„%1“ ist keine Seitenangabe. Seiten werden wie 1-4, 7, 9- angegeben.</translation>
    </message>
    <message>
        <source>“%1” ends before it begins.</source>
        <translation>„%1“ endet vor dem Anfang.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the name of a document is missing.</source>
        <translation>der Name eines Dokuments fehlt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lists what can be said.</source>
        <translation>&quot;%1&quot; listet auf, was angegeben werden kann.</translation>
    </message>
    <message>
        <source>%1 %2: a number from %3 to %4 was expected.</source>
        <translation>%1 %2: Erwartet wurde eine Zahl von %3 bis %4.</translation>
    </message>
    <message>
        <source>-P &quot;%1&quot;: pages and ranges in ascending order were expected, such as 1-4,7,9-.</source>
        <translation>-P &quot;%1&quot;: Erwartet wurden Seiten und Bereiche in aufsteigender Folge, etwa 1-4,7,9-.</translation>
    </message>
    <message>
        <source>-H %1 is for a job that is in a queue already: use %2.</source>
        <translation>-H %1 ist für einen Auftrag, der schon in einer Warteschlange ist: Verwenden Sie %2.</translation>
    </message>
    <message>
        <source>-H &quot;%1&quot;: hold, immediate, %2 was expected.</source>
        <translation>-H &quot;%1&quot;: Erwartet wurde hold, immediate, %2.</translation>
    </message>
    <message>
        <source>--check-policy takes one printer and no document.</source>
        <translation>--check-policy nimmt einen Drucker und kein Dokument.</translation>
    </message>
    <message>
        <source>--server &quot;%1&quot;: HOST, HOST:PORT or the path of a socket was expected.</source>
        <translation>--server &quot;%1&quot;: Erwartet wurde HOST, HOST:PORT oder der Pfad eines Sockets.</translation>
    </message>
    <message>
        <source>--on-alert %1: print, hold or refuse was expected.</source>
        <translation>--on-alert %1: Erwartet wurde print, hold oder refuse.</translation>
    </message>
    <message>
        <source>--format %1: json or text was expected.</source>
        <translation>--format %1: Erwartet wurde json oder text.</translation>
    </message>
    <message>
        <source>-m: no mail is sent. What became of the job is said at the end, and by the exit status.</source>
        <translation>-m: Es wird keine E-Mail gesendet. Was aus dem Auftrag wurde, steht am Ende und im Exit-Status.</translation>
    </message>
    <message>
        <source>%1 &quot;&quot;: %2 is missing.</source>
        <translation>%1 &quot;&quot;: %2 fehlt.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined.</source>
        <translation>%1 und %2 lassen sich nicht kombinieren.</translation>
    </message>
    <message>
        <source>%1 is for runs without a window (--no-dialog).</source>
        <translation>%1 ist für Läufe ohne Fenster (--no-dialog).</translation>
    </message>
    <message>
        <source>standard input cannot be the document and the password.</source>
        <translation>die Standardeingabe kann nicht zugleich das Dokument und das Passwort sein.</translation>
    </message>
    <message>
        <source>--save-preset prints nothing: no document can be named.</source>
        <translation>--save-preset druckt nichts: Es kann kein Dokument angegeben werden.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined: both write to standard output.</source>
        <translation>%1 und %2 lassen sich nicht kombinieren: Beide schreiben auf die Standardausgabe.</translation>
    </message>
    <message>
        <source>-d &quot;%1&quot;: a URI like ipp://HOST/ipp/print was expected.</source>
        <translation>-d &quot;%1&quot;: Erwartet wurde eine URI wie ipp://HOST/ipp/print.</translation>
    </message>
    <message>
        <source>-o &quot;%1&quot;: KEY=VALUE was expected.</source>
        <translation>-o &quot;%1&quot;: Erwartet wurde KEY=VALUE.</translation>
    </message>
    <message>
        <source>standard input (-) can be read once only.</source>
        <translation>die Standardeingabe (-) kann nur einmal gelesen werden.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>Prints a document with the settings of its printer, in a dialog or without one.</source>
        <translation>Druckt ein Dokument mit den Einstellungen seines Druckers, in einem Dialog oder ohne.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumente:</translation>
    </message>
    <message>
        <source>The document: PDF, PostScript, text, PNG or JPEG; - is standard input. Several are one job.</source>
        <translation>Das Dokument: PDF, PostScript, Text, PNG oder JPEG; - ist die Standardeingabe. Mehrere sind ein Auftrag.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Exit-Status:</translation>
    </message>
    <message>
        <source>128 and a signal&apos;s number: ended by that signal</source>
        <translation>128 plus die Nummer eines Signals: durch dieses Signal beendet</translation>
    </message>
    <message>
        <source>Print to the printer NAME: a queue, an instance NAME/INSTANCE, or an IPP printer ipp://HOST/PATH.</source>
        <translation>Druckt auf dem Drucker NAME: einer Warteschlange, einer Instanz NAME/INSTANCE oder einem IPP-Drucker ipp://HOST/PATH.</translation>
    </message>
    <message>
        <source>Use the queues of the print server HOST instead of the usual one.</source>
        <translation>Verwendet die Warteschlangen des Druckservers HOST statt derer des üblichen.</translation>
    </message>
    <message>
        <source>Speak to the print server with encryption only.</source>
        <translation>Spricht nur verschlüsselt mit dem Druckserver.</translation>
    </message>
    <message>
        <source>Print as the user USER.</source>
        <translation>Druckt als Benutzer USER.</translation>
    </message>
    <message>
        <source>Take the password from the first line of FILE, which nobody but its owner may read; nobody is asked.</source>
        <translation>Nimmt das Passwort aus der ersten Zeile der Datei FILE, die niemand außer ihrem Besitzer lesen darf; niemand wird gefragt.</translation>
    </message>
    <message>
        <source>The same from the open file descriptor N (0 is standard input).</source>
        <translation>Dasselbe aus dem offenen Dateideskriptor N (0 ist die Standardeingabe).</translation>
    </message>
    <message>
        <source>Open protected PDF documents with the password in the first line of FILE, which nobody but its owner may read.</source>
        <translation>Öffnet geschützte PDF-Dokumente mit dem Passwort in der ersten Zeile der Datei FILE, die niemand außer ihrem Besitzer lesen darf.</translation>
    </message>
    <message>
        <source>Print for the printer that the PPD FILE describes.</source>
        <translation>Druckt für den Drucker, den die PPD FILE beschreibt.</translation>
    </message>
    <message>
        <source>Write the printer-ready data to FILE; - is standard output.</source>
        <translation>Schreibt die druckfertigen Daten in die Datei FILE; - ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>Offer the sample printers.</source>
        <translation>Bietet die Musterdrucker an.</translation>
    </message>
    <message>
        <source>List the printers and exit.</source>
        <translation>Führt die Drucker auf und beendet sich.</translation>
    </message>
    <message>
        <source>Start with the settings of the preset NAME; -o counts more.</source>
        <translation>Beginnt mit den Einstellungen der Voreinstellung NAME; -o hat Vorrang.</translation>
    </message>
    <message>
        <source>List the presets and exit.</source>
        <translation>Führt die Voreinstellungen auf und beendet sich.</translation>
    </message>
    <message>
        <source>Keep the settings of the printer, those of -o among them, as the preset NAME, and exit. A preset of that name is replaced.</source>
        <translation>Speichert die Einstellungen des Druckers, darunter die von -o, als Voreinstellung NAME und beendet sich. Eine Voreinstellung dieses Namens wird ersetzt.</translation>
    </message>
    <message>
        <source>Say what the administrator&apos;s policy decides, and where, for the printer that is named behind it or by -d; as root with -U for another user. Exit with status 1 when something of it is not used.</source>
        <translation>Sagt, was die Richtlinie des Administrators festlegt, und wo, für den Drucker, der dahinter oder mit -d genannt ist; root darf mit -U einen anderen Benutzer nennen. Der Exit-Status ist 1, wenn etwas davon nicht verwendet wird.</translation>
    </message>
    <message>
        <source>Print a job of many sheets without being asked.</source>
        <translation>Druckt einen Auftrag mit vielen Blättern, ohne zu fragen.</translation>
    </message>
    <message>
        <source>Set an option of the printer or of the job; may be repeated.</source>
        <translation>Setzt eine Option des Druckers oder des Auftrags; kann wiederholt werden.</translation>
    </message>
    <message>
        <source>Print N copies (1 to %1).</source>
        <translation>Druckt N Exemplare (1 bis %1).</translation>
    </message>
    <message>
        <source>Print these pages (1-4,7,9-), as -o page-ranges= does.</source>
        <translation>Druckt diese Seiten (1-4,7,9-), wie -o page-ranges=.</translation>
    </message>
    <message>
        <source>Give the job this priority (1 to 100), as -o job-priority= does.</source>
        <translation>Gibt dem Auftrag diese Priorität (1 bis 100), wie -o job-priority=.</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, a time HH:MM (UTC), or what -o job-hold-until= takes.</source>
        <translation>Wann gedruckt wird: hold, immediate, eine Uhrzeit HH:MM (UTC) oder was -o job-hold-until= nimmt.</translation>
    </message>
    <message>
        <source>Do not say which job was printed, only what went wrong.</source>
        <translation>Sagt nicht, welcher Auftrag gedruckt wurde, nur, was schiefgegangen ist.</translation>
    </message>
    <message>
        <source>Does nothing: the document is always copied to the queue.</source>
        <translation>Tut nichts: Das Dokument wird immer in die Warteschlange kopiert.</translation>
    </message>
    <message>
        <source>Is refused: no mail is sent.</source>
        <translation>Wird abgelehnt: Es wird keine E-Mail gesendet.</translation>
    </message>
    <message>
        <source>Name the job TEXT.</source>
        <translation>Nennt den Auftrag TEXT.</translation>
    </message>
    <message>
        <source>Print without a window.</source>
        <translation>Druckt ohne Fenster.</translation>
    </message>
    <message>
        <source>Write the settings of the job to standard output.</source>
        <translation>Schreibt die Einstellungen des Auftrags auf die Standardausgabe.</translation>
    </message>
    <message>
        <source>Without a window: keep the settings in lpoptions as an instance of the queue, so that lp -d QUEUE/NAME and other programs print with them.</source>
        <translation>Ohne Fenster: Speichert die Einstellungen in lpoptions als Instanz der Warteschlange, sodass lp -d QUEUE/NAME und andere Programme damit drucken.</translation>
    </message>
    <message>
        <source>Without a window: what to do when the printer&apos;s settings show instructions: print, hold or refuse. Usually a queue holds the job, and a file is printed.</source>
        <translation>Ohne Fenster: was geschieht, wenn die Einstellungen des Druckers Anweisungen zeigen: print, hold oder refuse. Normalerweise hält eine Warteschlange den Auftrag an, und in eine Datei wird gedruckt.</translation>
    </message>
    <message>
        <source>Without a window: end when the queue has the job, not when it is printed.</source>
        <translation>Ohne Fenster: Endet, wenn die Warteschlange den Auftrag hat, nicht erst, wenn er gedruckt ist.</translation>
    </message>
    <message>
        <source>Without a window: follow the job for SECONDS at most once its queue has it, then leave it there.</source>
        <translation>Ohne Fenster: Verfolgt den Auftrag höchstens SECONDS Sekunden lang, sobald ihn die Warteschlange hat, und lässt ihn dann dort.</translation>
    </message>
    <message>
        <source>Without a window: json writes what became of the job to standard output, as one line that a program can read; text is what people read.</source>
        <translation>Ohne Fenster: json schreibt auf die Standardausgabe, was aus dem Auftrag wurde, als eine Zeile, die ein Programm lesen kann; text ist, was Menschen lesen.</translation>
    </message>
    <message>
        <source>Also trust the plug-in bundles in the folder DIR.</source>
        <translation>Vertraut auch den Plug-in-Bundles im Ordner DIR.</translation>
    </message>
    <message>
        <source>Exit with status 0 when a window can be shown, with 1 when not.</source>
        <translation>Beendet sich mit Status 0, wenn ein Fenster gezeigt werden kann, mit 1, wenn nicht.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Zeigt diese Hilfe.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Zeigt die Version.</translation>
    </message>
    <message>
        <source>With --save-instance: make such an instance of these queues as well, with what each of them needs to print the same.</source>
        <translation>Mit --save-instance: Legt eine solche Instanz auch für diese Warteschlangen an, jeweils mit dem, was dort für denselben Druck nötig ist.</translation>
    </message>
    <message>
        <source>--also-on: the name of the instance is missing, as in --save-instance reports.</source>
        <translation>--also-on: Der Name der Instanz fehlt, wie in --save-instance reports.</translation>
    </message>
</context>
<context>
    <name>CupsFilter</name>
    <message>
        <source>The program %1, named by CORVANA_PRINT_CUPSFILTER, cannot be run.</source>
        <translation>Das mit CORVANA_PRINT_CUPSFILTER angegebene Programm %1 kann nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>The program cupsfilter was found neither on the path nor in /usr/sbin. It comes with CUPS (on Debian the package “cups”).</source>
        <translation>Das Programm cupsfilter wurde weder im Suchpfad noch in /usr/sbin gefunden. Es gehört zu CUPS (in Debian das Paket „cups“).</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>PDF document</source>
        <translation>PDF-Dokument</translation>
    </message>
    <message>
        <source>PostScript document</source>
        <translation>PostScript-Dokument</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>PNG-Bild</translation>
    </message>
    <message>
        <source>JPEG picture</source>
        <translation>JPEG-Bild</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 ist leer.</translation>
    </message>
    <message>
        <source>%1 cannot be printed: it holds data that are ready for a printer. A queue passes them on as they are with the option “raw”.</source>
        <translation>%1 kann nicht gedruckt werden: Die Datei enthält Daten, die für einen Drucker aufbereitet sind. Eine Warteschlange gibt sie mit der Option „raw“ unverändert weiter.</translation>
    </message>
    <message>
        <source>%1 cannot be printed; its contents: %2. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>%1 kann nicht gedruckt werden; Inhalt: %2. Dokumente können PDF, PostScript, Text, PNG oder JPEG sein.</translation>
    </message>
    <message>
        <source>%1 is named like a %2, but holds a %3. Rename it if that is right.</source>
        <translation>%1 heißt wie ein anderer Dateityp (%2) als sein Inhalt (%3). Wenn der Inhalt stimmt, benennen Sie die Datei um.</translation>
    </message>
    <message>
        <source>%1: there is no such file.</source>
        <translation>%1: Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 is a folder; a document was expected.</source>
        <translation>%1 ist ein Ordner; erwartet wurde ein Dokument.</translation>
    </message>
    <message>
        <source>%1 is no ordinary file; a document was expected.</source>
        <translation>%1 ist keine gewöhnliche Datei; erwartet wurde ein Dokument.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>%1 cannot be kept: %2</source>
        <translation>%1 kann nicht zwischengespeichert werden: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read: nobody writes into it.</source>
        <translation>%1 kann nicht gelesen werden: Niemand schreibt hinein.</translation>
    </message>
    <message>
        <source>%1 cannot be kept: it has more than %2 bytes.</source>
        <translation>%1 kann nicht zwischengespeichert werden: Es sind mehr als %2 Byte.</translation>
    </message>
    <message>
        <source>%1 cannot be printed: nobody can tell what is in it. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>%1 kann nicht gedruckt werden; der Inhalt ist nicht erkennbar. Dokumente können PDF, PostScript, Text, PNG oder JPEG sein.</translation>
    </message>
</context>
<context>
    <name>DocumentCopies</name>
    <message>
        <source>all documents, then all of them again (A B A B)</source>
        <translation>alle Dokumente, dann alle noch einmal (A B A B)</translation>
    </message>
    <message>
        <source>each document with all its copies (A A B B)</source>
        <translation>jedes Dokument mit allen Exemplaren (A A B B)</translation>
    </message>
    <message>
        <source>each page with all its copies (1 1 2 2)</source>
        <translation>jede Seite mit allen Exemplaren (1 1 2 2)</translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>“%1” is damaged at byte %2.</source>
        <translation>„%1“ ist bei Byte %2 beschädigt.</translation>
    </message>
    <message>
        <source>“%1” is damaged.</source>
        <translation>„%1“ ist beschädigt.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>“%1” is protected, and the password that was given does not open it.</source>
        <translation>„%1“ ist geschützt, und das angegebene Passwort öffnet es nicht.</translation>
    </message>
    <message>
        <source>“%1” is protected: it is printed only with its password.</source>
        <translation>„%1“ ist geschützt: Es wird nur mit seinem Passwort gedruckt.</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. Only its owner&apos;s password does.</source>
        <translation>„%1“ erlaubt das Drucken nicht. Das geht nur mit dem Passwort des Besitzers.</translation>
    </message>
    <message>
        <source>None of its pages can be printed.</source>
        <translation>Keine der Seiten kann gedruckt werden.</translation>
    </message>
    <message>
        <source>“%1” is protected, and a copy without protection could not be made: it is too large, or there is no room for it.</source>
        <translation>„%1“ ist geschützt, und eine Kopie ohne Schutz konnte nicht erstellt werden: Sie ist zu groß, oder es ist kein Platz dafür.</translation>
    </message>
    <message>
        <source>1 of its %1 pages can be printed.</source>
        <translation>1 von %1 Seiten kann gedruckt werden.</translation>
    </message>
    <message>
        <source>%1 of its %2 pages can be printed.</source>
        <translation>%1 von %2 Seiten können gedruckt werden.</translation>
    </message>
    <message>
        <source>“%1” is protected. The file that is printed to is not.</source>
        <translation>„%1“ ist geschützt. Die Datei, in die gedruckt wird, ist es nicht.</translation>
    </message>
    <message>
        <source>“%1” is protected. The print server gets a copy without protection.</source>
        <translation>„%1“ ist geschützt. Der Druckserver erhält eine Kopie ohne Schutz.</translation>
    </message>
    <message>
        <source>All pages that were found in it are printed.</source>
        <translation>Alle Seiten, die darin gefunden wurden, werden gedruckt.</translation>
    </message>
    <message>
        <source>“%1” brings settings for a printer along, which are not followed: %2. Choose them here, or pass the document on with the option “raw”.</source>
        <translation>„%1“ bringt Einstellungen für einen Drucker mit, die nicht befolgt werden: %2. Wählen Sie sie hier, oder geben Sie das Dokument mit der Option „raw“ unverändert weiter.</translation>
    </message>
</context>
<context>
    <name>ExitStatus</name>
    <message>
        <source>printed, sent, or in the queue with the reason why it waits there</source>
        <translation>gedruckt, gesendet oder in der Warteschlange, mit dem Grund, warum er dort wartet</translation>
    </message>
    <message>
        <source>refused, failed or canceled</source>
        <translation>abgelehnt, fehlgeschlagen oder abgebrochen</translation>
    </message>
    <message>
        <source>a command line that cannot be understood</source>
        <translation>eine Befehlszeile, die nicht verstanden wird</translation>
    </message>
    <message>
        <source>sent, and what became of it is not known</source>
        <translation>gesendet, und was daraus wurde, ist nicht bekannt</translation>
    </message>
    <message>
        <source>the time of --wait is over; the job is still in the queue</source>
        <translation>die Zeit von --wait ist abgelaufen; der Auftrag ist noch in der Warteschlange</translation>
    </message>
</context>
<context>
    <name>HttpLine</name>
    <message>
        <source>The password is sent to “%1” without encryption: others in the network can read it. “-E” encrypts.</source>
        <translation>Das Passwort wird unverschlüsselt an „%1“ gesendet: Andere im Netzwerk können es lesen. „-E“ verschlüsselt.</translation>
    </message>
</context>
<context>
    <name>InstanceDraft</name>
    <message>
        <source>Some programs add “%1=%2” to it, which you have set for “%3”.</source>
        <translation>Manche Programme fügen „%1=%2“ hinzu; das haben Sie für „%3“ festgelegt.</translation>
    </message>
    <message>
        <source>“%1” is left out: it is a secret.</source>
        <translation>„%1“ wird weggelassen: Das ist ein Geheimnis.</translation>
    </message>
    <message>
        <source>“%1” is left out: other programs cannot print it.</source>
        <translation>„%1“ wird weggelassen: Andere Programme können es nicht drucken.</translation>
    </message>
    <message>
        <source>Other programs know settings of queues only, and “%1” is none.</source>
        <translation>Andere Programme kennen nur Einstellungen von Warteschlangen, und „%1“ ist keine.</translation>
    </message>
    <message>
        <source>“%1” gets files as they are, so that no setting has an effect.</source>
        <translation>„%1“ erhält Dateien unverändert, sodass keine Einstellung wirkt.</translation>
    </message>
    <message>
        <source>“%1” has no letters that other programs can print to. Give it a name of letters from a to z, such as “%2”.</source>
        <translation>„%1“ enthält keine Buchstaben, unter denen andere Programme drucken können. Geben Sie einen Namen aus Buchstaben von a bis z an, etwa „%2“.</translation>
    </message>
    <message>
        <source>“%1” is there already, with settings of its own. Choose another name, or remove it with “lpoptions -x %1”.</source>
        <translation>„%1“ gibt es schon, mit eigenen Einstellungen. Wählen Sie einen anderen Namen, oder entfernen Sie es mit „lpoptions -x %1“.</translation>
    </message>
</context>
<context>
    <name>JobAttributes</name>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Bound at the Left</source>
        <translation>Bindung links</translation>
    </message>
    <message>
        <source>Bound at the Right</source>
        <translation>Bindung rechts</translation>
    </message>
    <message>
        <source>One-Sided</source>
        <translation>Einseitig</translation>
    </message>
    <message>
        <source>Long Edge (by Hand)</source>
        <translation>Lange Kante (manuell)</translation>
    </message>
    <message>
        <source>Short Edge (by Hand)</source>
        <translation>Kurze Kante (manuell)</translation>
    </message>
    <message>
        <source>Printed Side Down</source>
        <translation>Bedruckte Seite unten</translation>
    </message>
    <message>
        <source>Printed Side Up</source>
        <translation>Bedruckte Seite oben</translation>
    </message>
    <message>
        <source>Up, Then to the Right</source>
        <translation>Nach oben, dann nach rechts</translation>
    </message>
    <message>
        <source>Up, Then to the Left</source>
        <translation>Nach oben, dann nach links</translation>
    </message>
    <message>
        <source>To the Right, Then Up</source>
        <translation>Nach rechts, dann nach oben</translation>
    </message>
    <message>
        <source>To the Right, Then Down</source>
        <translation>Nach rechts, dann nach unten</translation>
    </message>
    <message>
        <source>To the Left, Then Up</source>
        <translation>Nach links, dann nach oben</translation>
    </message>
    <message>
        <source>To the Left, Then Down</source>
        <translation>Nach links, dann nach unten</translation>
    </message>
    <message>
        <source>Down, Then to the Right</source>
        <translation>Nach unten, dann nach rechts</translation>
    </message>
    <message>
        <source>Down, Then to the Left</source>
        <translation>Nach unten, dann nach links</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Thin Line</source>
        <translation>Dünne Linie</translation>
    </message>
    <message>
        <source>Thick Line</source>
        <translation>Dicke Linie</translation>
    </message>
    <message>
        <source>Two Thin Lines</source>
        <translation>Zwei dünne Linien</translation>
    </message>
    <message>
        <source>Two Thick Lines</source>
        <translation>Zwei dicke Linien</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Even Pages Only</source>
        <translation>Nur gerade Seiten</translation>
    </message>
    <message>
        <source>Odd Pages Only</source>
        <translation>Nur ungerade Seiten</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Reverse Landscape</source>
        <translation>Querformat umgekehrt</translation>
    </message>
    <message>
        <source>Reverse Portrait</source>
        <translation>Hochformat umgekehrt</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Fit All Pages If One Is Too Large</source>
        <translation>Alle anpassen, wenn eine zu groß ist</translation>
    </message>
    <message>
        <source>Fill Paper</source>
        <translation>Papier füllen</translation>
    </message>
    <message>
        <source>Fit to Paper</source>
        <translation>An Papier anpassen</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>First Page First</source>
        <translation>Erste Seite zuerst</translation>
    </message>
    <message>
        <source>Last Page First</source>
        <translation>Letzte Seite zuerst</translation>
    </message>
    <message>
        <source>Print at Once</source>
        <translation>Sofort drucken</translation>
    </message>
    <message>
        <source>Until It Is Released</source>
        <translation>Bis zur Freigabe</translation>
    </message>
    <message>
        <source>Daytime</source>
        <translation>Tagsüber</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Abends</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nachts</translation>
    </message>
    <message>
        <source>Second Shift</source>
        <translation>Zweite Schicht</translation>
    </message>
    <message>
        <source>Third Shift</source>
        <translation>Dritte Schicht</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Wochenende</translation>
    </message>
    <message>
        <source>points of 1/72 inch</source>
        <translation>Punkt zu 1/72 Zoll</translation>
    </message>
    <message>
        <source>Two-Sided</source>
        <translation>Beidseitig</translation>
    </message>
    <message>
        <source>Sheets Are Put Back</source>
        <translation>Lage beim Wiedereinlegen</translation>
    </message>
    <message>
        <source>Pages per Sheet</source>
        <translation>Seiten pro Blatt</translation>
    </message>
    <message>
        <source>Order on the Sheet</source>
        <translation>Reihenfolge auf dem Blatt</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Broschüre</translation>
    </message>
    <message>
        <source>Each Page, Times on a Side</source>
        <translation>Wiederholungen jeder Seite</translation>
    </message>
    <message>
        <source>Border Around Pages</source>
        <translation>Rahmen um Seiten</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>pages and ranges in ascending order, such as 1-4,7,9-</source>
        <translation>Seiten und Bereiche in aufsteigender Folge, etwa 1-4,7,9-</translation>
    </message>
    <message>
        <source>Odd and Even Pages</source>
        <translation>Gerade und ungerade Seiten</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Fit to Page</source>
        <translation>An Seite anpassen</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Size on the Page, in %</source>
        <translation>Größe auf der Seite in %</translation>
    </message>
    <message>
        <source>Size of the Picture, in %</source>
        <translation>Größe des Bildes in %</translation>
    </message>
    <message>
        <source>Pixels per Inch</source>
        <translation>Pixel pro Zoll</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Gespiegelt</translation>
    </message>
    <message>
        <source>Left Margin</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>Right Margin</source>
        <translation>Rechter Rand</translation>
    </message>
    <message>
        <source>Top Margin</source>
        <translation>Oberer Rand</translation>
    </message>
    <message>
        <source>Bottom Margin</source>
        <translation>Unterer Rand</translation>
    </message>
    <message>
        <source>Characters per Inch</source>
        <translation>Zeichen pro Zoll</translation>
    </message>
    <message>
        <source>Lines per Inch</source>
        <translation>Zeilen pro Zoll</translation>
    </message>
    <message>
        <source>Columns of Text</source>
        <translation>Textspalten</translation>
    </message>
    <message>
        <source>Long Lines Continue</source>
        <translation>Lange Zeilen umbrechen</translation>
    </message>
    <message>
        <source>Headers on Text Pages</source>
        <translation>Kopfzeilen auf Textseiten</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Output Order</source>
        <translation>Ausgabereihenfolge</translation>
    </message>
    <message>
        <source>Hold Until</source>
        <translation>Anhalten bis</translation>
    </message>
    <message>
        <source>a time HH:MM in UTC</source>
        <translation>eine Uhrzeit HH:MM in UTC</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Banner Pages</source>
        <translation>Trennseiten</translation>
    </message>
    <message>
        <source>one or two names of banner pages</source>
        <translation>ein oder zwei Namen von Trennseiten</translation>
    </message>
    <message>
        <source>Billed To</source>
        <translation>Berechnet an</translation>
    </message>
    <message>
        <source>a text of up to 255 bytes</source>
        <translation>ein Text von höchstens 255 Byte</translation>
    </message>
    <message>
        <source>%1 UTC</source>
        <translation>%1 UTC</translation>
    </message>
    <message>
        <source>%1 UTC (%2 here)</source>
        <translation>%1 UTC (hier %2)</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Canceled After, in Seconds</source>
        <translation>Abbrechen nach (Sekunden)</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>a resolution such as 600dpi or 1200x600dpi</source>
        <translation>eine Auflösung wie 600dpi oder 1200x600dpi</translation>
    </message>
    <message>
        <source>Output Bin</source>
        <translation>Ausgabefach</translation>
    </message>
    <message>
        <source>the name of an output bin</source>
        <translation>der Name eines Ausgabefachs</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Weiterverarbeitung</translation>
    </message>
    <message>
        <source>numbers or names of finishings</source>
        <translation>Nummern oder Namen von Weiterverarbeitungen</translation>
    </message>
    <message>
        <source>Paper Source</source>
        <translation>Papierquelle</translation>
    </message>
    <message>
        <source>the name of a paper source</source>
        <translation>der Name einer Papierquelle</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Papiertyp</translation>
    </message>
    <message>
        <source>the name of a media type</source>
        <translation>der Name eines Papiertyps</translation>
    </message>
    <message>
        <source>or %1</source>
        <translation>oder %1</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
</context>
<context>
    <name>JobColors</name>
    <message>
        <source>Shown in black and white, with your adjustments.</source>
        <translation>In Schwarzweiß mit Ihren Anpassungen gezeigt.</translation>
    </message>
    <message>
        <source>Shown in black and white.</source>
        <translation>In Schwarzweiß gezeigt.</translation>
    </message>
    <message>
        <source>Shows your adjustments; colors on paper differ.</source>
        <translation>Zeigt Ihre Anpassungen; Farben auf Papier weichen ab.</translation>
    </message>
    <message>
        <source>Colors on paper differ from those on the screen.</source>
        <translation>Farben auf Papier weichen von denen am Bildschirm ab.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>“%1: %2” is not shown.</source>
        <translation>„%1: %2“ wird nicht gezeigt.</translation>
    </message>
</context>
<context>
    <name>JobNames</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weiteres</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>JobRequests</name>
    <message>
        <source>The value of “%1” is too long for a print server; at most %2 bytes can be sent.</source>
        <translation>Der Wert von „%1“ ist zu lang für einen Druckserver; höchstens %2 Byte können gesendet werden.</translation>
    </message>
    <message>
        <source>The value of “%1” has characters that a print server would drop: no line breaks, no “{” in front.</source>
        <translation>Der Wert von „%1“ enthält Zeichen, die ein Druckserver verwerfen würde: keine Zeilenumbrüche, kein „{“ am Anfang.</translation>
    </message>
</context>
<context>
    <name>LastUsed</name>
    <message>
        <source>The settings of the last job cannot be read, and stay as they are in “%1”: %2.</source>
        <translation>Die Einstellungen des letzten Auftrags sind nicht lesbar und bleiben unverändert in „%1“: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>„%1“ kann nicht entfernt werden: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be written.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>LeftSession</name>
    <message>
        <source>This printer has no option of the name %1 any more.</source>
        <translation>Dieser Drucker hat keine Option mehr mit dem Namen %1.</translation>
    </message>
    <message>
        <source>The option %1 has no choice %2 any more.</source>
        <translation>Die Option %1 hat keine Auswahl %2 mehr.</translation>
    </message>
</context>
<context>
    <name>ListPresets</name>
    <message>
        <source>all printers</source>
        <translation>alle Drucker</translation>
    </message>
</context>
<context>
    <name>OptionLocks</name>
    <message>
        <source>“%1” is set by your administrator (%2).</source>
        <translation>„%1“ ist von Ihrem Administrator festgelegt (%2).</translation>
    </message>
    <message>
        <source>Set by your administrator (%1).</source>
        <translation>Von Ihrem Administrator festgelegt (%1).</translation>
    </message>
</context>
<context>
    <name>OptionRequest</name>
    <message>
        <source>%1: the printer&apos;s settings do not allow this here; it became %2.</source>
        <translation>%1: Die Einstellungen des Druckers lassen das hier nicht zu; daraus wurde %2.</translation>
    </message>
    <message>
        <source>%1: the printer&apos;s options cannot be set to this value.</source>
        <translation>%1: Die Optionen des Druckers lassen sich nicht auf diesen Wert setzen.</translation>
    </message>
    <message>
        <source>%1: this cannot be combined with %2.</source>
        <translation>%1: Das lässt sich nicht mit %2 kombinieren.</translation>
    </message>
    <message>
        <source>%1: this value is not allowed. Allowed: %2.</source>
        <translation>%1: Dieser Wert ist nicht erlaubt. Erlaubt: %2.</translation>
    </message>
    <message>
        <source>%1=Custom: a value is missing. Allowed: %2.</source>
        <translation>%1=Custom: Ein Wert fehlt. Erlaubt: %2.</translation>
    </message>
    <message>
        <source>this printer has no such option. Options: %1. Job attributes: %2.</source>
        <translation>dieser Drucker hat keine solche Option. Optionen: %1. Auftragsattribute: %2.</translation>
    </message>
    <message>
        <source>this printer has nothing to choose from for this.</source>
        <translation>dieser Drucker hat hierfür nichts zur Auswahl.</translation>
    </message>
    <message>
        <source>this value is not allowed. Allowed: %1.</source>
        <translation>dieser Wert ist nicht erlaubt. Erlaubt: %1.</translation>
    </message>
    <message>
        <source>this printer has no paper sizes to choose from.</source>
        <translation>dieser Drucker hat keine Papierformate zur Auswahl.</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>„%1“ ist nicht erlaubt. Erlaubt: %2.</translation>
    </message>
    <message>
        <source>this printer prints on one side only. Allowed: %1. Two sides by hand: %2=%3, %2=%4.</source>
        <translation>dieser Drucker druckt nur einseitig. Erlaubt: %1. Beide Seiten manuell: %2=%3, %2=%4.</translation>
    </message>
    <message>
        <source>1 to %1</source>
        <translation>1 bis %1</translation>
    </message>
    <message>
        <source>this printer turns sheets over itself. Allowed: %1=no; for two sides use %2.</source>
        <translation>dieser Drucker wendet Blätter selbst. Erlaubt: %1=no; für zwei Seiten %2 verwenden.</translation>
    </message>
</context>
<context>
    <name>PageChoice</name>
    <message>
        <source>The pages that were asked for are in none of the documents. Nothing was printed.</source>
        <translation>Die verlangten Seiten sind in keinem der Dokumente. Es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>“%1: %2”</source>
        <translation>„%1: %2“</translation>
    </message>
    <message>
        <source>A booklet has two pages on each side, in an order of its own: %1 cannot be done with it.</source>
        <translation>Eine Broschüre hat zwei Seiten auf jeder Blattseite, in eigener Reihenfolge: %1 ist damit nicht möglich.</translation>
    </message>
    <message>
        <source>Each page is repeated %1 times on a side: %2 cannot be done with it.</source>
        <translation>Jede Seite wird %1-mal auf einer Blattseite wiederholt: %2 ist damit nicht möglich.</translation>
    </message>
</context>
<context>
    <name>PageTrouble</name>
    <message>
        <source>This page cannot be shown: it is damaged.</source>
        <translation>Diese Seite kann nicht gezeigt werden: Sie ist beschädigt.</translation>
    </message>
    <message>
        <source>This page cannot be shown: it is too large.</source>
        <translation>Diese Seite kann nicht gezeigt werden: Sie ist zu groß.</translation>
    </message>
    <message>
        <source>This page cannot be shown: drawing it takes too long.</source>
        <translation>Diese Seite kann nicht gezeigt werden: Das Zeichnen dauert zu lange.</translation>
    </message>
    <message>
        <source>This page cannot be shown: the document is protected by a password.</source>
        <translation>Diese Seite kann nicht gezeigt werden: Das Dokument ist durch ein Passwort geschützt.</translation>
    </message>
    <message>
        <source>This page cannot be shown: the file cannot be read.</source>
        <translation>Diese Seite kann nicht gezeigt werden: Die Datei ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Pages cannot be shown: the program that draws them does not run.</source>
        <translation>Seiten können nicht gezeigt werden: Das Programm, das sie zeichnet, läuft nicht.</translation>
    </message>
</context>
<context>
    <name>PassedOn</name>
    <message>
        <source>The queue “%1” passes files on as they are: %2 cannot be done.</source>
        <translation>Die Warteschlange „%1“ gibt Dateien unverändert weiter: %2 ist nicht möglich.</translation>
    </message>
    <message>
        <source>With “raw” files are passed on as they are: %1 cannot be done.</source>
        <translation>Mit „raw“ werden Dateien unverändert weitergegeben: %1 ist nicht möglich.</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Passed on as it is</source>
        <translation>Unverändert weitergegeben</translation>
    </message>
</context>
<context>
    <name>PasswordFile</name>
    <message>
        <source>The password cannot be read from %1: %2.</source>
        <translation>Das Passwort kann nicht aus %1 gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The first line of %1 is empty; a password was expected.</source>
        <translation>Die erste Zeile von %1 ist leer; erwartet wurde ein Passwort.</translation>
    </message>
    <message>
        <source>The first line of %1 is no password: at most %2 bytes of UTF-8 were expected.</source>
        <translation>Die erste Zeile von %1 ist kein Passwort: Erwartet wurden höchstens %2 Byte in UTF-8.</translation>
    </message>
    <message>
        <source>The password cannot be read from %1: it is no file.</source>
        <translation>Das Passwort kann nicht aus %1 gelesen werden: Das ist keine Datei.</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: the file belongs to somebody else.</source>
        <translation>Das Passwort in %1 wird nicht verwendet: Die Datei gehört jemand anderem.</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: others than its owner may use the file (its mode is %2; chmod 600 takes that away).</source>
        <translation>Das Passwort in %1 wird nicht verwendet: Nicht nur der Besitzer hat Zugriff auf die Datei (ihr Modus ist %2; chmod 600 ändert das).</translation>
    </message>
    <message>
        <source>descriptor %1</source>
        <translation>Deskriptor %1</translation>
    </message>
</context>
<context>
    <name>Policy</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>„%1“ ist nicht erlaubt. Erlaubt: %2.</translation>
    </message>
    <message>
        <source>the path of a folder that begins with /</source>
        <translation>der Pfad eines Ordners, der mit / beginnt</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>eine Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>the line is longer than %1 bytes</source>
        <translation>die Zeile ist länger als %1 Byte</translation>
    </message>
    <message>
        <source>the line is not written in UTF-8</source>
        <translation>die Zeile ist nicht in UTF-8 geschrieben</translation>
    </message>
    <message>
        <source>the line has a character that cannot be seen</source>
        <translation>die Zeile enthält ein unsichtbares Zeichen</translation>
    </message>
    <message>
        <source>there are more problems</source>
        <translation>es gibt weitere Probleme</translation>
    </message>
    <message>
        <source>there are more than %1 sections</source>
        <translation>es gibt mehr als %1 Abschnitte</translation>
    </message>
    <message>
        <source>“%1” is no section, and what follows in it is left out. Allowed: %2.</source>
        <translation>„%1“ ist kein Abschnitt; was darin folgt, bleibt unbeachtet. Erlaubt: %2.</translation>
    </message>
    <message>
        <source>“%1” is no line of a policy. Expected: %2.</source>
        <translation>„%1“ ist keine Zeile einer Richtlinie. Erwartet: %2.</translation>
    </message>
    <message>
        <source>“%1” stands before the first section. Begin with [all].</source>
        <translation>„%1“ steht vor dem ersten Abschnitt. Beginnen Sie mit [all].</translation>
    </message>
    <message>
        <source>there is no key “%1”. Keys: %2.</source>
        <translation>es gibt keinen Schlüssel „%1“. Schlüssel: %2.</translation>
    </message>
    <message>
        <source>%1 needs the keyword of an option or of a job attribute.</source>
        <translation>%1 braucht das Schlüsselwort einer Option oder eines Auftragsattributs.</translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation>der Wert ist zu lang</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 bytes</source>
        <translation>die Datei wird nicht verwendet: Sie hat mehr als %1 Byte</translation>
    </message>
    <message>
        <source>the file is not used: it is no text</source>
        <translation>die Datei wird nicht verwendet: Sie ist kein Text</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 lines</source>
        <translation>die Datei wird nicht verwendet: Sie hat mehr als %1 Zeilen</translation>
    </message>
    <message>
        <source>it belongs to the user with the ID %1</source>
        <translation>Besitzer ist der Benutzer mit der Nummer %1</translation>
    </message>
    <message>
        <source>others than its owner may write to it</source>
        <translation>Schreiben dürfen auch andere als der Besitzer</translation>
    </message>
    <message>
        <source>nothing below this folder is used: %1</source>
        <translation>unterhalb dieses Ordners wird nichts verwendet: %1</translation>
    </message>
    <message>
        <source>nothing in this folder is used: %1</source>
        <translation>in diesem Ordner wird nichts verwendet: %1</translation>
    </message>
    <message>
        <source>only the first %1 files are used</source>
        <translation>nur die ersten %1 Dateien werden verwendet</translation>
    </message>
    <message>
        <source>the file is not used: it is a link that leads out of its folder</source>
        <translation>die Datei wird nicht verwendet: Sie ist ein Verweis aus ihrem Ordner hinaus</translation>
    </message>
    <message>
        <source>the file is not used: %1</source>
        <translation>die Datei wird nicht verwendet: %1</translation>
    </message>
    <message>
        <source>the file is not used: it is no ordinary file</source>
        <translation>die Datei wird nicht verwendet: Sie ist keine gewöhnliche Datei</translation>
    </message>
</context>
<context>
    <name>PpdCopy</name>
    <message>
        <source>The printer&apos;s options cannot be written to %1: %2</source>
        <translation>Die Optionen des Druckers können nicht in %1 geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>PpdFilters</name>
    <message>
        <source>The driver of this printer names the file “%1”, which only a print server may open. Print on the printer itself instead of into a file.</source>
        <translation>Der Treiber dieses Druckers nennt die Datei „%1“, die nur ein Druckserver öffnen darf. Drucken Sie auf dem Drucker selbst statt in eine Datei.</translation>
    </message>
    <message>
        <source>The driver of this printer needs the program “%1”, which only a print server may run. Print on the printer itself instead of into a file.</source>
        <translation>Der Treiber dieses Druckers braucht das Programm „%1“, das nur ein Druckserver ausführen darf. Drucken Sie auf dem Drucker selbst statt in eine Datei.</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>A preset needs a name.</source>
        <translation>Eine Voreinstellung braucht einen Namen.</translation>
    </message>
    <message>
        <source>The name of a preset has at most %1 characters.</source>
        <translation>Der Name einer Voreinstellung hat höchstens %1 Zeichen.</translation>
    </message>
    <message>
        <source>The name of a preset holds only characters that can be seen.</source>
        <translation>Der Name einer Voreinstellung enthält nur sichtbare Zeichen.</translation>
    </message>
    <message>
        <source>“%1” is always there, and is no name of a preset.</source>
        <translation>„%1“ ist immer da und kein Name einer Voreinstellung.</translation>
    </message>
</context>
<context>
    <name>PresetApplication</name>
    <message>
        <source>%1 is not possible on this printer. Allowed: %2.</source>
        <translation>%1 ist an diesem Drucker nicht möglich. Erlaubt: %2.</translation>
    </message>
    <message>
        <source>%1 is not possible together with the other settings.</source>
        <translation>%1 ist zusammen mit den anderen Einstellungen nicht möglich.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings do not allow %1 here; it became %2.</source>
        <translation>Die Einstellungen des Druckers lassen %1 hier nicht zu; daraus wurde %2.</translation>
    </message>
    <message>
        <source>%1 is not on this printer.</source>
        <translation>%1 gibt es an diesem Drucker nicht.</translation>
    </message>
    <message>
        <source>A value of the printer&apos;s own settings (%1) is not possible here.</source>
        <translation>Ein Wert der druckereigenen Einstellungen (%1) ist hier nicht möglich.</translation>
    </message>
</context>
<context>
    <name>PresetFile</name>
    <message>
        <source>“%1”: expected was %2</source>
        <translation>„%1“: Erwartet wurde %2</translation>
    </message>
    <message>
        <source>it was written by a later version of this program</source>
        <translation>sie wurde von einer neueren Version dieses Programms geschrieben</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>at most %1 values</source>
        <translation>höchstens %1 Werte</translation>
    </message>
    <message>
        <source>the name of an option</source>
        <translation>der Name einer Option</translation>
    </message>
    <message>
        <source>a value or a list of values</source>
        <translation>ein Wert oder eine Liste von Werten</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>expected was { … }</source>
        <translation>erwartet wurde { … }</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>das ist keine Datei</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>sie ist größer als %1 Byte</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>“%1” is damaged and is left as it is: %2.</source>
        <translation>„%1“ ist beschädigt und bleibt unverändert: %2.</translation>
    </message>
    <message>
        <source>There is no place to keep presets.</source>
        <translation>Es gibt keinen Ort, an dem Voreinstellungen gespeichert werden können.</translation>
    </message>
    <message>
        <source>Another program is writing presets. Try again.</source>
        <translation>Ein anderes Programm schreibt gerade Voreinstellungen. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>no space left, or no permission</source>
        <translation>kein Speicherplatz mehr oder keine Berechtigung</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>There is a preset of the name “%1” already.</source>
        <translation>Es gibt schon eine Voreinstellung mit dem Namen „%1“.</translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>Es gibt keine Voreinstellung mehr mit dem Namen „%1“.</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>„%1“ kann nicht entfernt werden: %2.</translation>
    </message>
    <message>
        <source>%1 (for everybody)</source>
        <translation>%1 (für alle)</translation>
    </message>
</context>
<context>
    <name>PrintRequest</name>
    <message>
        <source>The printer “%1” is not offered by your administrator (%2).</source>
        <translation>Der Drucker „%1“ wird von Ihrem Administrator nicht angeboten (%2).</translation>
    </message>
    <message>
        <source>Printing to a file is not offered by your administrator (%1).</source>
        <translation>Drucken in eine Datei wird von Ihrem Administrator nicht angeboten (%1).</translation>
    </message>
</context>
<context>
    <name>PrinterFetching</name>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
</context>
<context>
    <name>PrinterTexts</name>
    <message>
        <source>connecting</source>
        <translation>Verbindung wird aufgebaut</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>Abdeckung offen</translation>
    </message>
    <message>
        <source>driver not trusted by the server</source>
        <translation>Treiber vom Server nicht als vertrauenswürdig eingestuft</translation>
    </message>
    <message>
        <source>driver missing on the server</source>
        <translation>Treiber fehlt auf dem Server</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message>
        <source>developer used up</source>
        <translation>Entwickler verbraucht</translation>
    </message>
    <message>
        <source>developer low</source>
        <translation>Entwickler fast verbraucht</translation>
    </message>
    <message>
        <source>door open</source>
        <translation>Klappe offen</translation>
    </message>
    <message>
        <source>fuser too hot</source>
        <translation>Fixiereinheit zu heiß</translation>
    </message>
    <message>
        <source>fuser too cold</source>
        <translation>Fixiereinheit zu kalt</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>neue Aufträge werden angehalten</translation>
    </message>
    <message>
        <source>tray missing</source>
        <translation>Fach fehlt</translation>
    </message>
    <message>
        <source>ink or toner used up</source>
        <translation>Tinte oder Toner verbraucht</translation>
    </message>
    <message>
        <source>ink or toner low</source>
        <translation>Tinte oder Toner fast verbraucht</translation>
    </message>
    <message>
        <source>waste container almost full</source>
        <translation>Resttonerbehälter fast voll</translation>
    </message>
    <message>
        <source>waste container full</source>
        <translation>Resttonerbehälter voll</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>kein Papier</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>Papierstau</translation>
    </message>
    <message>
        <source>paper low</source>
        <translation>wenig Papier</translation>
    </message>
    <message>
        <source>paper needed</source>
        <translation>Papier nachlegen</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>wird angehalten</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nicht verbunden</translation>
    </message>
    <message>
        <source>drum used up</source>
        <translation>Trommel verbraucht</translation>
    </message>
    <message>
        <source>drum nearly used up</source>
        <translation>Trommel fast verbraucht</translation>
    </message>
    <message>
        <source>output tray almost full</source>
        <translation>Ausgabefach fast voll</translation>
    </message>
    <message>
        <source>output tray full</source>
        <translation>Ausgabefach voll</translation>
    </message>
    <message>
        <source>output tray missing</source>
        <translation>Ausgabefach fehlt</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>print queue full</source>
        <translation>Druckwarteschlange voll</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>teilweise angehalten</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>wird gestoppt</translation>
    </message>
    <message>
        <source>not answering</source>
        <translation>antwortet nicht</translation>
    </message>
    <message>
        <source>toner used up</source>
        <translation>Toner verbraucht</translation>
    </message>
    <message>
        <source>toner low</source>
        <translation>Toner fast verbraucht</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Druckt</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Prints to a file</source>
        <translation>Druckt in eine Datei</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the words of a printer&apos;s state</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>No longer available</source>
        <translation>Nicht mehr verfügbar</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Angehalten: %1</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>Nimmt keine Aufträge an</translation>
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
        <translation>Name: %1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Standort: %1</translation>
    </message>
    <message>
        <source>Model: %1</source>
        <translation>Modell: %1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <translation>Status: %1</translation>
    </message>
    <message>
        <source>Message: %1</source>
        <translation>Meldung: %1</translation>
    </message>
    <message>
        <source>Address: %1</source>
        <translation>Adresse: %1</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Unbekannte Option &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Unbekannte Optionen: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Hinter &quot;%1&quot; fehlt ein Wert.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>&quot;%1&quot; nimmt keinen Wert.</translation>
    </message>
</context>
<context>
    <name>RefusalText</name>
    <message>
        <source>“%1: %2”</source>
        <translation>„%1: %2“</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source>The printer&apos;s options cannot be set to %1.</source>
        <translation>Die Optionen des Druckers lassen sich nicht auf %1 setzen.</translation>
    </message>
    <message>
        <source>%1 cannot be combined with %2.</source>
        <translation>%1 lässt sich nicht mit %2 kombinieren.</translation>
    </message>
    <message>
        <source>Change to %1</source>
        <translation>Zu %1 wechseln</translation>
    </message>
</context>
<context>
    <name>RequestFromCommandLine</name>
    <message>
        <source>%1: the name is not written in UTF-8.</source>
        <translation>%1: Der Name ist nicht in UTF-8 geschrieben.</translation>
    </message>
</context>
<context>
    <name>ResultFile</name>
    <message>
        <source>%1 is a folder; the name of a file was expected.</source>
        <translation>%1 ist ein Ordner; erwartet wurde der Name einer Datei.</translation>
    </message>
    <message>
        <source>%1 is a device or a pipe; the name of a file was expected.</source>
        <translation>%1 ist ein Gerät oder eine Pipe; erwartet wurde der Name einer Datei.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1 was written by another program meanwhile, and is left as it is. Print again to replace it, or name another file.</source>
        <translation>%1 wurde inzwischen von einem anderen Programm geschrieben und bleibt unverändert. Drucken Sie noch einmal, um die Datei zu ersetzen, oder geben Sie eine andere an.</translation>
    </message>
</context>
<context>
    <name>ResultPages</name>
    <message>
        <source>Nothing would be printed: what came out has no page.</source>
        <translation>Es würde nichts gedruckt: Das Ergebnis hat keine Seite.</translation>
    </message>
</context>
<context>
    <name>SavedAsPdf</name>
    <message>
        <source>A PDF file is neither held nor printed: %1 cannot be done.</source>
        <translation>Eine PDF-Datei wird weder angehalten noch gedruckt: %1 ist nicht möglich.</translation>
    </message>
</context>
<context>
    <name>ServerAddress</name>
    <message>
        <source>this computer</source>
        <translation>diesem Computer</translation>
    </message>
</context>
<context>
    <name>ServerJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>Der Druck wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The print server did not say which job it has made.</source>
        <translation>Der Druckserver hat nicht gesagt, welchen Auftrag er angelegt hat.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 The printer says: %2</source>
        <translation>%1 Der Drucker meldet: %2</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has been printed.</source>
        <translation>Auftrag %1 des vorigen Versuchs wurde gedruckt.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is held in the queue.</source>
        <translation>Auftrag %1 des vorigen Versuchs wird in der Warteschlange angehalten.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is stopped in the queue.</source>
        <translation>Auftrag %1 des vorigen Versuchs ist in der Warteschlange gestoppt.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is in the queue and will be printed.</source>
        <translation>Auftrag %1 des vorigen Versuchs ist in der Warteschlange und wird gedruckt.</translation>
    </message>
    <message>
        <source>%1 The job had been moved from the queue “%2” to “%3”.</source>
        <translation>%1 Der Auftrag war von der Warteschlange „%2“ nach „%3“ verschoben worden.</translation>
    </message>
    <message>
        <source>%1 Nothing was printed.</source>
        <translation>%1 Es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>The printer “%1” wants a user and a password; none was given. Nothing was printed.</source>
        <translation>Der Drucker „%1“ verlangt Benutzer und Passwort; es wurde nichts angegeben. Es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>The queue “%1” is not there any more. Nothing was printed.</source>
        <translation>Die Warteschlange „%1“ gibt es nicht mehr. Es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment. Nothing was printed.</source>
        <translation>Die Warteschlange „%1“ nimmt zurzeit keine Aufträge an. Es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment: %2. Nothing was printed.</source>
        <translation>Die Warteschlange „%1“ nimmt zurzeit keine Aufträge an: %2. Es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>The options of the printer “%1” have changed at its server. Nothing was printed.</source>
        <translation>Die Optionen des Druckers „%1“ haben sich auf seinem Server geändert. Es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>%1 Whether job %2 of the earlier try was printed is not known yet, so nothing was sent again.</source>
        <translation>%1 Ob Auftrag %2 des vorigen Versuchs gedruckt wurde, ist noch nicht bekannt; deshalb wurde nichts noch einmal gesendet.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has got %2 of its %3 documents to the printer. Print the others by themselves, or everything once more.</source>
        <translation>Auftrag %1 des vorigen Versuchs hat %2 seiner %3 Dokumente an den Drucker gebracht. Drucken Sie die übrigen für sich oder alles noch einmal.</translation>
    </message>
    <message>
        <source>%1 Nothing was printed, but a job without a document may be at the print server. It could not be looked for: %2</source>
        <translation>%1 Es wurde nichts gedruckt, aber auf dem Druckserver kann ein Auftrag ohne Dokument sein. Er konnte nicht gesucht werden: %2</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; pages that the printer has already may still come out.</source>
        <translation>%1 Auftrag %2 wurde abgebrochen; Seiten, die der Drucker schon hat, können noch herauskommen.</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; nothing was printed.</source>
        <translation>%1 Auftrag %2 wurde abgebrochen; es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>Job %1 could not be canceled and may still be printed. %2</source>
        <translation>Auftrag %1 konnte nicht abgebrochen werden und wird vielleicht noch gedruckt. %2</translation>
    </message>
    <message>
        <source>%1 Job %2 could not be canceled and may still be printed. %3</source>
        <translation>%1 Auftrag %2 konnte nicht abgebrochen werden und wird vielleicht noch gedruckt. %3</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server, without its whole document. It could not be canceled: %3</source>
        <translation>%1 Auftrag %2 ist vielleicht noch auf dem Druckserver, ohne sein ganzes Dokument. Er konnte nicht abgebrochen werden: %3</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server with some of its documents, and may print these. It could not be canceled: %3 Printing again looks for it first.</source>
        <translation>%1 Auftrag %2 ist vielleicht noch mit einigen seiner Dokumente auf dem Druckserver, der diese drucken kann. Er konnte nicht abgebrochen werden: %3 Erneutes Drucken sucht zuerst danach.</translation>
    </message>
    <message>
        <source>The printer “%1” does not accept this user and password.</source>
        <translation>Der Drucker „%1“ akzeptiert diesen Benutzer und dieses Passwort nicht.</translation>
    </message>
    <message>
        <source>%1 The print server does not know job %2 any more. It was probably not printed.</source>
        <translation>%1 Der Druckserver kennt Auftrag %2 nicht mehr. Er wurde wahrscheinlich nicht gedruckt.</translation>
    </message>
    <message>
        <source>%1 The document had been sent, so job %2 may be printed or not. Printing again looks for it first.</source>
        <translation>%1 Das Dokument war gesendet, also kann Auftrag %2 gedruckt werden oder auch nicht. Erneutes Drucken sucht zuerst danach.</translation>
    </message>
    <message>
        <source>Job %1 has left the queue “%2”, whose server keeps no record of it. So whether it has been printed is not known.</source>
        <translation>Auftrag %1 hat die Warteschlange „%2“ verlassen, deren Server nichts darüber aufbewahrt. Ob er gedruckt wurde, ist deshalb nicht bekannt.</translation>
    </message>
    <message>
        <source>Job %1 was handed over completely. %2 So whether it has been printed is not known.</source>
        <translation>Auftrag %1 wurde vollständig übergeben. %2 Ob er gedruckt wurde, ist deshalb nicht bekannt.</translation>
    </message>
    <message>
        <source>The print server gives job %1 the state %2, which is not known.</source>
        <translation>Der Druckserver nennt für Auftrag %1 den Status %2, der nicht bekannt ist.</translation>
    </message>
    <message>
        <source>Job %1 was handed over to the queue “%2”.</source>
        <translation>Auftrag %1 wurde an die Warteschlange „%2“ übergeben.</translation>
    </message>
    <message>
        <source>Job %1 was stopped. It is still in the queue, where it can be released or canceled.</source>
        <translation>Auftrag %1 wurde gestoppt. Er ist noch in der Warteschlange und kann dort freigegeben oder abgebrochen werden.</translation>
    </message>
    <message>
        <source>Job %1 is held in the queue “%2”.</source>
        <translation>Auftrag %1 wird in der Warteschlange „%2“ angehalten.</translation>
    </message>
    <message>
        <source>Job %1 waits in the queue “%2”, which is stopped.</source>
        <translation>Auftrag %1 wartet in der Warteschlange „%2“, die angehalten ist.</translation>
    </message>
    <message>
        <source>Job %1 is in the queue “%2”.</source>
        <translation>Auftrag %1 ist in der Warteschlange „%2“.</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. Whether anything was on its pages is not known.</source>
        <translation>An „%1“ als Auftrag %2 gesendet. Ob etwas auf seinen Seiten war, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. That queue passes files on as they are: what was set for the printer or the pages had no effect there.</source>
        <translation>An „%1“ als Auftrag %2 gesendet. Diese Warteschlange gibt Dateien unverändert weiter: Was für den Drucker oder die Seiten eingestellt war, hatte dort keine Wirkung.</translation>
    </message>
    <message>
        <source>Printed on “%1” as job %2.</source>
        <translation>Auf „%1“ als Auftrag %2 gedruckt.</translation>
    </message>
    <message>
        <source>Job %1 failed: the printer or its server gave it up.</source>
        <translation>Auftrag %1 ist fehlgeschlagen: Der Drucker oder sein Server hat ihn aufgegeben.</translation>
    </message>
    <message>
        <source>Job %1 was canceled at the printer or its server.</source>
        <translation>Auftrag %1 wurde am Drucker oder auf dessen Server abgebrochen.</translation>
    </message>
    <message>
        <source>Job %1 was printed with %2 of its %3 documents only.</source>
        <translation>Von Auftrag %1 wurden nur %2 seiner %3 Dokumente gedruckt.</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Wird vorbereitet …</translation>
    </message>
    <message>
        <source>Sending, %1 %…</source>
        <translation>Wird gesendet, %1 % …</translation>
    </message>
    <message>
        <source>Asking the print server…</source>
        <translation>Der Druckserver wird gefragt …</translation>
    </message>
    <message>
        <source>Waiting in the queue…</source>
        <translation>Wartet in der Warteschlange …</translation>
    </message>
    <message>
        <source>Held in the queue</source>
        <translation>In der Warteschlange angehalten</translation>
    </message>
    <message>
        <source>Printing page %1…</source>
        <translation>Seite %1 wird gedruckt …</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Wird gedruckt …</translation>
    </message>
    <message>
        <source>The printer is stopped.</source>
        <translation>Der Drucker ist angehalten.</translation>
    </message>
    <message>
        <source>The printer is stopped: %1</source>
        <translation>Der Drucker ist angehalten: %1</translation>
    </message>
    <message>
        <source>First sides: %1</source>
        <translation>Erster Durchgang: %1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>Zweiter Durchgang: %1</translation>
    </message>
    <message>
        <source>%1 The queue “%2” has no driver, and would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1 Die Warteschlange „%2“ hat keinen Treiber und hätte die Dokumente in einem Strom gesendet. Deshalb ist jedes ein eigener Auftrag: %3.</translation>
    </message>
    <message>
        <source>%1 With “raw” the queue “%2” would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1 Mit „raw“ hätte die Warteschlange „%2“ die Dokumente in einem Strom gesendet. Deshalb ist jedes ein eigener Auftrag: %3.</translation>
    </message>
    <message>
        <source>Job %1 was canceled or given up at the printer or its server.</source>
        <translation>Auftrag %1 wurde am Drucker oder auf dessen Server abgebrochen oder aufgegeben.</translation>
    </message>
    <message>
        <source>Job %1 is still in the queue.</source>
        <translation>Auftrag %1 ist noch in der Warteschlange.</translation>
    </message>
    <message>
        <source>%1 Documents that were sent before, each as a job of its own: %2 of %3. Printing again sends the others.</source>
        <translation>%1 Dokumente, die vorher gesendet wurden, jedes als eigener Auftrag: %2 von %3. Erneutes Drucken sendet die übrigen.</translation>
    </message>
    <message>
        <source>Job %1 was canceled; pages that the printer has already may still come out.</source>
        <translation>Auftrag %1 wurde abgebrochen; Seiten, die der Drucker schon hat, können noch herauskommen.</translation>
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
        <translation>Das Zertifikat des Druckservers „%1“ ist nicht mehr dasselbe wie vorher: Jemand hat es ersetzt oder steht dazwischen. Wenn es absichtlich ersetzt wurde, entfernen Sie die Datei %2.</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not the one that it had before: somebody has replaced it, or stands in between. If it was replaced on purpose, remove the line “%2” from the file %3.</source>
        <translation>Das Zertifikat des Druckservers „%1“ ist nicht mehr dasselbe wie vorher: Jemand hat es ersetzt oder steht dazwischen. Wenn es absichtlich ersetzt wurde, entfernen Sie die Zeile „%2“ aus der Datei %3.</translation>
    </message>
    <message>
        <source>The print server “%1” cannot be reached.</source>
        <translation>Der Druckserver „%1“ ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The print server “%1” does not answer.</source>
        <translation>Der Druckserver „%1“ antwortet nicht.</translation>
    </message>
    <message>
        <source>The print server “%1” broke the connection.</source>
        <translation>Der Druckserver „%1“ hat die Verbindung abgebrochen.</translation>
    </message>
    <message>
        <source>What “%1” answers is not what a print server says.</source>
        <translation>Was „%1“ antwortet, ist keine Antwort eines Druckservers.</translation>
    </message>
    <message>
        <source>What “%1” answers is larger than anything that a print server has to say.</source>
        <translation>Die Antwort von „%1“ ist größer als alles, was ein Druckserver mitzuteilen hat.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>Der Druckserver „%1“ verlangt Benutzer und Passwort.</translation>
    </message>
    <message>
        <source>The print server “%1” does not accept this user and password.</source>
        <translation>Der Druckserver „%1“ akzeptiert diesen Benutzer und dieses Passwort nicht.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password; none was given.</source>
        <translation>Der Druckserver „%1“ verlangt Benutzer und Passwort; es wurde nichts angegeben.</translation>
    </message>
    <message>
        <source>The print server “%1” does not allow you this.</source>
        <translation>Der Druckserver „%1“ erlaubt Ihnen das nicht.</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not to be trusted.</source>
        <translation>Das Zertifikat des Druckservers „%1“ ist nicht vertrauenswürdig.</translation>
    </message>
    <message>
        <source>The print server “%1” wants an encrypted connection, which could not be made.</source>
        <translation>Der Druckserver „%1“ verlangt eine verschlüsselte Verbindung, die nicht hergestellt werden konnte.</translation>
    </message>
    <message>
        <source>The print server “%1” knows nothing of it.</source>
        <translation>Der Druckserver „%1“ weiß nichts davon.</translation>
    </message>
    <message>
        <source>The print server “%1” refuses.</source>
        <translation>Der Druckserver „%1“ lehnt ab.</translation>
    </message>
    <message>
        <source>The document cannot be read: %1</source>
        <translation>Das Dokument kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>“%1” cannot be reached.</source>
        <translation>„%1“ ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>No answer from “%1”.</source>
        <translation>Keine Antwort von „%1“.</translation>
    </message>
    <message>
        <source>“%1” broke the connection.</source>
        <translation>„%1“ hat die Verbindung abgebrochen.</translation>
    </message>
    <message>
        <source>“%1” wants a password.</source>
        <translation>„%1“ verlangt ein Passwort.</translation>
    </message>
    <message>
        <source>Wrong user or password.</source>
        <translation>Falscher Benutzer oder falsches Passwort.</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints, in a way that is not possible here.</source>
        <translation>Der Druckserver „%1“ möchte wissen, wer druckt, auf eine Weise, die hier nicht möglich ist.</translation>
    </message>
</context>
<context>
    <name>SettingsIndex</name>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>All Options</source>
        <translation>Alle Optionen</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
</context>
<context>
    <name>SharedFile</name>
    <message>
        <source>“%1” cannot be read: %2. It was not changed.</source>
        <translation>„%1“ kann nicht gelesen werden: %2. Die Datei wurde nicht geändert.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. It was not changed.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2. Die Datei wurde nicht geändert.</translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation>der Verweis führt ins Leere</translation>
    </message>
    <message>
        <source>the link leads to a file of somebody else</source>
        <translation>der Verweis führt zu einer Datei von jemand anderem</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>das ist keine Datei</translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation>sie gehört jemand anderem</translation>
    </message>
    <message>
        <source>another program of ours is writing it</source>
        <translation>ein anderes Programm von uns schreibt sie gerade</translation>
    </message>
    <message>
        <source>nothing can be written into its folder</source>
        <translation>in ihren Ordner kann nichts geschrieben werden</translation>
    </message>
    <message>
        <source>other programs write it all the time</source>
        <translation>andere Programme schreiben sie ständig</translation>
    </message>
</context>
<context>
    <name>SheetMarks</name>
    <message>
        <source>The back of this sheet stays empty: only one side is printed.</source>
        <translation>Die Rückseite dieses Blatts bleibt leer: Es wird nur eine Seite gedruckt.</translation>
    </message>
</context>
<context>
    <name>SheetTexts</name>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 Seite</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 Seiten</translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1 Blatt</translation>
    </message>
    <message>
        <source>%1 sheets</source>
        <translation>%1 Blätter</translation>
    </message>
    <message>
        <source>“%1” has %2</source>
        <translation>„%1“ hat %2</translation>
    </message>
    <message>
        <source>The document has %1</source>
        <translation>Das Dokument hat %1</translation>
    </message>
    <message>
        <source>the document has %1</source>
        <translation>das Dokument hat %1</translation>
    </message>
    <message>
        <source>%1 and later</source>
        <translation>%1 und spätere</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1; %2 is not in it.</source>
        <translation>%1; %2 ist nicht darin.</translation>
    </message>
    <message>
        <source>%1; %2 are not in it.</source>
        <translation>%1; %2 sind nicht darin.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only even pages were chosen.</source>
        <translation>Es würde nichts gedruckt: %1, und nur gerade Seiten sind gewählt.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only odd pages were chosen.</source>
        <translation>Es würde nichts gedruckt: %1, und nur ungerade Seiten sind gewählt.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and none of them is left.</source>
        <translation>Es würde nichts gedruckt: %1, und keine davon bleibt übrig.</translation>
    </message>
    <message>
        <source>“%1” takes too long to be shown. It can be printed without a preview.</source>
        <translation>„%1“ zu zeigen dauert zu lange. Ohne Vorschau kann es gedruckt werden.</translation>
    </message>
    <message>
        <source>“%1” is too large to be shown. It can be printed without a preview.</source>
        <translation>„%1“ ist zu groß, um gezeigt zu werden. Ohne Vorschau kann es gedruckt werden.</translation>
    </message>
    <message>
        <source>“%1” could not be laid out, so there is no preview. Printing it may work all the same.</source>
        <translation>Das Layout von „%1“ konnte nicht berechnet werden, deshalb gibt es keine Vorschau. Vielleicht lässt es sich dennoch drucken.</translation>
    </message>
    <message>
        <source>the back stays empty, because only one side is printed</source>
        <translation>die Rückseite bleibt leer, weil nur eine Seite gedruckt wird</translation>
    </message>
    <message>
        <source>the backs stay empty, because each document has only one side</source>
        <translation>die Rückseiten bleiben leer, weil jedes Dokument nur eine Seite hat</translation>
    </message>
    <message>
        <source>the back stays empty where a document has only one side: %1</source>
        <translation>die Rückseite bleibt leer, wo ein Dokument nur eine Seite hat: %1</translation>
    </message>
    <message>
        <source>could not be counted</source>
        <translation>konnten nicht gezählt werden</translation>
    </message>
    <message>
        <source>%1, two-sided by hand</source>
        <translation>%1, manuell beidseitig</translation>
    </message>
    <message>
        <source>%1, and 1 cover sheet</source>
        <translation>%1 und 1 Deckblatt</translation>
    </message>
    <message>
        <source>%1, and %2 cover sheets</source>
        <translation>%1 und %2 Deckblätter</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>%1 × %2 copies = %3</source>
        <translation>%1 × %2 Exemplare = %3</translation>
    </message>
    <message>
        <source>%1 at %2 %</source>
        <translation>%1 mit %2 %</translation>
    </message>
    <message>
        <source>Sheets</source>
        <translation>Blätter</translation>
    </message>
    <message>
        <source>Pages Not There</source>
        <translation>Fehlende Seiten</translation>
    </message>
    <message>
        <source>Printed Size</source>
        <translation>Gedruckte Größe</translation>
    </message>
</context>
<context>
    <name>SheetView</name>
    <message>
        <source>cover sheet</source>
        <translation>Deckblatt</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>printed</source>
        <translation>bedruckt</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>Seiten %1</translation>
    </message>
    <message>
        <source>%L1 back</source>
        <translation>%L1 hinten</translation>
    </message>
    <message>
        <source>%L1 front</source>
        <translation>%L1 vorn</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Sheet %L1: %2</source>
        <translation>Blatt %L1: %2</translation>
    </message>
    <message>
        <source>Sheet %L1, back: %2</source>
        <translation>Blatt %L1, Rückseite: %2</translation>
    </message>
    <message>
        <source>Sheet %L1, front: %2</source>
        <translation>Blatt %L1, Vorderseite: %2</translation>
    </message>
    <message>
        <source>%1, landscape</source>
        <translation>%1, Querformat</translation>
    </message>
    <message>
        <source>Bound at the left edge</source>
        <translation>An der linken Kante gebunden</translation>
    </message>
    <message>
        <source>Bound at the top edge</source>
        <translation>An der oberen Kante gebunden</translation>
    </message>
    <message>
        <source>Bound at the right edge</source>
        <translation>An der rechten Kante gebunden</translation>
    </message>
    <message>
        <source>Bound at the bottom edge</source>
        <translation>An der unteren Kante gebunden</translation>
    </message>
</context>
<context>
    <name>StartPresets</name>
    <message>
        <source>Last job: %1</source>
        <translation>Letzter Auftrag: %1</translation>
    </message>
    <message>
        <source>There is no preset “%1”, nor any other for this printer.</source>
        <translation>Es gibt keine Voreinstellung „%1“ und auch keine andere für diesen Drucker.</translation>
    </message>
    <message>
        <source>There is no preset “%1” for this printer. Presets: %2.</source>
        <translation>Es gibt keine Voreinstellung „%1“ für diesen Drucker. Voreinstellungen: %2.</translation>
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
        <translation>Standard der Warteschlange „%1“: %2</translation>
    </message>
    <message>
        <source>Default of your administrator: %1</source>
        <translation>Standard Ihres Administrators: %1</translation>
    </message>
    <message>
        <source>The queue “%1” adds this to each job; what it does is not known here: %2.</source>
        <translation>Die Warteschlange „%1“ fügt dies jedem Auftrag hinzu; was es bewirkt, ist hier nicht bekannt: %2.</translation>
    </message>
    <message>
        <source>This printer has no option of this name: %1.</source>
        <translation>Dieser Drucker hat keine Option mit diesem Namen: %1.</translation>
    </message>
</context>
<context>
    <name>Summary</name>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>%1, collated</source>
        <translation>%1, sortiert</translation>
    </message>
    <message>
        <source>%1, not collated</source>
        <translation>%1, nicht sortiert</translation>
    </message>
    <message>
        <source>Also in the job</source>
        <translation>Außerdem im Auftrag</translation>
    </message>
    <message>
        <source>%1 × %2 inches</source>
        <translation>%1 × %2 Zoll</translation>
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
        <translation>Der Drucker an „%1“ verlangt Benutzer und Passwort.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>Der Druckserver „%1“ verlangt Benutzer und Passwort.</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others may read them.</source>
        <translation>Die Verbindung ist nicht verschlüsselt: Andere können beides lesen.</translation>
    </message>
    <message>
        <source>User [%1]: </source>
        <translation>Benutzer [%1]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Passwort: </translation>
    </message>
    <message>
        <source>That is not the password.</source>
        <translation>Das ist nicht das Passwort.</translation>
    </message>
    <message>
        <source>Password of “%1”: </source>
        <translation>Passwort von „%1“: </translation>
    </message>
    <message>
        <source>Enter prints the other sides, Ctrl+D leaves them unprinted: </source>
        <translation>Eingabetaste druckt die anderen Blattseiten, Strg+D lässt sie unbedruckt: </translation>
    </message>
</context>
<context>
    <name>TextFormat</name>
    <message>
        <source>The margins, columns and characters per inch that were asked for leave no room for a text on this paper (%1 × %2 points).</source>
        <translation>Die verlangten Ränder, Spalten und Zeichen pro Zoll lassen auf diesem Papier (%1 × %2 Punkt) keinen Platz für Text.</translation>
    </message>
</context>
<context>
    <name>UnattendedRun</name>
    <message>
        <source>%1 So the printer “%2” could not be asked for.</source>
        <translation>%1 Deshalb konnte der Drucker „%2“ nicht gefragt werden.</translation>
    </message>
    <message>
        <source>%1 Printers that need no print server: %2.</source>
        <translation>%1 Drucker, die keinen Druckserver brauchen: %2.</translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>Unterbrochen.</translation>
    </message>
    <message>
        <source>The preset “%1” is kept.</source>
        <translation>Die Voreinstellung „%1“ ist gespeichert.</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Auftrag %1: %2</translation>
    </message>
    <message>
        <source>Nothing was printed.</source>
        <translation>Es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>It waits until the instructions have been followed. Release it with: %1</source>
        <translation>Er wartet, bis die Anweisungen befolgt sind. Geben Sie ihn frei mit: %1</translation>
    </message>
    <message>
        <source>Printed to standard output</source>
        <translation>Auf die Standardausgabe gedruckt</translation>
    </message>
    <message>
        <source>The result could not be written to standard output: %1.</source>
        <translation>Das Ergebnis konnte nicht auf die Standardausgabe geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>No preset was kept.</source>
        <translation>Es wurde keine Voreinstellung gespeichert.</translation>
    </message>
</context>
<context>
    <name>UserQueuesFile</name>
    <message>
        <source>The file of lpoptions is packed, and cannot be changed here.</source>
        <translation>Die Datei von lpoptions ist gepackt und kann hier nicht geändert werden.</translation>
    </message>
    <message>
        <source>“%1” is your default printer, and stays: choose another one first.</source>
        <translation>„%1“ ist Ihr Standarddrucker und bleibt: Wählen Sie zuerst einen anderen.</translation>
    </message>
    <message>
        <source>“%1” is no name that other programs can print to.</source>
        <translation>„%1“ ist kein Name, unter dem andere Programme drucken können.</translation>
    </message>
    <message>
        <source>“%1” would have more settings than other programs can read.</source>
        <translation>„%1“ hätte mehr Einstellungen, als andere Programme lesen können.</translation>
    </message>
    <message>
        <source>Other programs would read the value of “%1” as another one.</source>
        <translation>Andere Programme würden den Wert von „%1“ als einen anderen lesen.</translation>
    </message>
    <message>
        <source>“%1” is no name of an option for other programs.</source>
        <translation>„%1“ ist kein Optionsname für andere Programme.</translation>
    </message>
    <message>
        <source>The value of “%1” has a line break or a control character, which no option for other programs can have.</source>
        <translation>Der Wert von „%1“ enthält einen Zeilenumbruch oder ein Steuerzeichen; das ist in Optionen anderer Programme nicht möglich.</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is.</source>
        <translation>„%1“ wurde von einem anderen Programm geändert und bleibt, wie es ist.</translation>
    </message>
</context>
<context>
    <name>corvana::AttributeEditor</name>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Anderer Wert …</translation>
    </message>
</context>
<context>
    <name>corvana::AttributeRows</name>
    <message>
        <source>&amp;More</source>
        <translation>&amp;Mehr</translation>
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
        <translation>Mehr</translation>
    </message>
    <message>
        <source>More, %1</source>
        <translation>Mehr, %1</translation>
    </message>
</context>
<context>
    <name>corvana::ChangeMarks</name>
    <message>
        <source>Changed. %1</source>
        <translation>Geändert. %1</translation>
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
        <translation>„%1: %2“</translation>
    </message>
    <message>
        <source>%1 to %2 points</source>
        <translation>%1 bis %2 Punkt</translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation>%1 bis %2 Zeichen</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>“%1” is not possible for %2. Allowed: %3.</source>
        <translation>„%1“ ist für %2 nicht möglich. Erlaubt: %3.</translation>
    </message>
    <message>
        <source>This is not possible for %1. Allowed: %2.</source>
        <translation>Das ist für %1 nicht möglich. Erlaubt: %2.</translation>
    </message>
    <message>
        <source>Cannot be combined with %1.</source>
        <translation>Lässt sich nicht mit %1 kombinieren.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
</context>
<context>
    <name>corvana::ColorsRow</name>
    <message>
        <source>Hold to Compare</source>
        <translation>Zum Vergleich gedrückt halten</translation>
    </message>
    <message>
        <source>While it is held, the document is shown as it is, without adjustments.</source>
        <translation>Solange die Schaltfläche gedrückt ist, wird das Dokument so gezeigt, wie es ist, ohne Anpassungen.</translation>
    </message>
</context>
<context>
    <name>corvana::ComingDocuments</name>
    <message>
        <source>Standard input is being read.</source>
        <translation>Die Standardeingabe wird gelesen.</translation>
    </message>
    <message>
        <source>%1 is being read.</source>
        <translation>%1 wird gelesen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>corvana::Conversion</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>corvana::CountsRow</name>
    <message>
        <source>Sheets</source>
        <translation>Blätter</translation>
    </message>
    <message>
        <source>Show Preview</source>
        <translation>Vorschau einblenden</translation>
    </message>
    <message>
        <source>Hide Preview</source>
        <translation>Vorschau ausblenden</translation>
    </message>
</context>
<context>
    <name>corvana::CopiesEditor</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>„%1“ ist nicht erlaubt. Erlaubt: %2.</translation>
    </message>
</context>
<context>
    <name>corvana::CredentialsDialog</name>
    <message>
        <source>Log In to Print</source>
        <translation>Anmelden zum Drucken</translation>
    </message>
    <message>
        <source>The printer wants to know who prints. User and password are sent to it through the print server “%1”, and are forgotten when the print dialog closes.</source>
        <translation>Der Drucker möchte wissen, wer druckt. Benutzer und Passwort werden über den Druckserver „%1“ an ihn gesendet und vergessen, wenn der Druckdialog geschlossen wird.</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints. User and password are forgotten when the print dialog closes.</source>
        <translation>Der Druckserver „%1“ möchte wissen, wer druckt. Benutzer und Passwort werden vergessen, wenn der Druckdialog geschlossen wird.</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Benutzer:</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others on the network may read the password.</source>
        <translation>Die Verbindung ist nicht verschlüsselt: Andere im Netzwerk können das Passwort lesen.</translation>
    </message>
</context>
<context>
    <name>corvana::CustomPaperSize</name>
    <message>
        <source>From %1 to %2</source>
        <translation>Von %1 bis %2</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>Papierbreite</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>Papierhöhe</translation>
    </message>
    <message>
        <source>Unit of the paper size</source>
        <translation>Einheit des Papierformats</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>Zoll</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentArea</name>
    <message>
        <source>Print this document earlier</source>
        <translation>Dieses Dokument früher drucken</translation>
    </message>
    <message>
        <source>Print this document later</source>
        <translation>Dieses Dokument später drucken</translation>
    </message>
    <message>
        <source>Do not print this document</source>
        <translation>Dieses Dokument nicht drucken</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Print further documents in the same job</source>
        <translation>Weitere Dokumente im selben Auftrag drucken</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Hinzufügen …</translation>
    </message>
    <message>
        <source>Documents in the order in which they are printed</source>
        <translation>Dokumente in der Reihenfolge, in der sie gedruckt werden</translation>
    </message>
    <message numerus="yes">
        <source>%n documents, printed in this order:</source>
        <translation>
            <numerusform>%n Dokument, in dieser Reihenfolge gedruckt:</numerusform>
            <numerusform>%n Dokumente, in dieser Reihenfolge gedruckt:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Choose Documents to Print</source>
        <translation>Dokumente zum Drucken wählen</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentPasswordDialog</name>
    <message>
        <source>Protected Document</source>
        <translation>Geschütztes Dokument</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. With its owner&apos;s password it can be printed.</source>
        <translation>„%1“ erlaubt das Drucken nicht. Mit dem Passwort des Besitzers kann es gedruckt werden.</translation>
    </message>
    <message>
        <source>“%1” is protected: enter its password. The password is forgotten when the print dialog closes.</source>
        <translation>„%1“ ist geschützt: Geben Sie das Passwort ein. Es wird vergessen, wenn der Druckdialog geschlossen wird.</translation>
    </message>
    <message>
        <source>That is not the password. Try again.</source>
        <translation>Das ist nicht das Passwort. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>corvana::FileJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>Der Druck wurde abgebrochen.</translation>
    </message>
    <message>
        <source>%1 is the document itself; name another file.</source>
        <translation>%1 ist das Dokument selbst; geben Sie eine andere Datei an.</translation>
    </message>
    <message>
        <source>Printed to %1</source>
        <translation>In %1 gedruckt</translation>
    </message>
</context>
<context>
    <name>corvana::FilterChain</name>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1 kann nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: how many pages it has could not be found out.</source>
        <translation>Das Dokument konnte nicht für den Drucker umgewandelt werden: Die Zahl seiner Seiten ließ sich nicht feststellen.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>Der Druck wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: that took too long.</source>
        <translation>Das Dokument konnte nicht für den Drucker umgewandelt werden: Das dauerte zu lange.</translation>
    </message>
    <message>
        <source>The filter chain of CUPS crashed.</source>
        <translation>Die Filterkette von CUPS ist abgestürzt.</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: %1</source>
        <translation>Das Dokument konnte nicht für den Drucker umgewandelt werden: %1</translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>Exit-Status %1</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: nothing came out. %1</source>
        <translation>Das Dokument konnte nicht für den Drucker umgewandelt werden: Es kam nichts heraus. %1</translation>
    </message>
    <message>
        <source>The documents could not be put together: %1 is incomplete. Is the disk full?</source>
        <translation>Die Dokumente konnten nicht zusammengefügt werden: %1 ist unvollständig. Ist der Datenträger voll?</translation>
    </message>
</context>
<context>
    <name>corvana::FindField</name>
    <message>
        <source>Find a setting (Ctrl+F)</source>
        <translation>Einstellung suchen (Strg+F)</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Einstellung suchen</translation>
    </message>
    <message>
        <source>Type a name, then go to a setting with Enter</source>
        <translation>Namen eingeben, dann mit der Eingabetaste zu einer Einstellung gehen</translation>
    </message>
    <message>
        <source>Type the name of a setting or of a choice.</source>
        <translation>Geben Sie den Namen einer Einstellung oder Auswahl ein.</translation>
    </message>
</context>
<context>
    <name>corvana::FindModel</name>
    <message>
        <source>%1, on %2</source>
        <translation>%1, auf %2</translation>
    </message>
    <message>
        <source>%1, %2, on %3</source>
        <translation>%1, %2, auf %3</translation>
    </message>
</context>
<context>
    <name>corvana::FindPopup</name>
    <message>
        <source>Settings that were found</source>
        <translation>Gefundene Einstellungen</translation>
    </message>
    <message>
        <source>1 setting found</source>
        <translation>1 Einstellung gefunden</translation>
    </message>
    <message>
        <source>%1 settings found</source>
        <translation>%1 Einstellungen gefunden</translation>
    </message>
</context>
<context>
    <name>corvana::GeneralPage</name>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Exemplare:</translation>
    </message>
    <message>
        <source>All, or such as 1-4, 7, 9-</source>
        <translation>Alle oder etwa 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>Choos&amp;e Pages…</source>
        <translation>Seiten &amp;wählen …</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>&amp;Seiten:</translation>
    </message>
    <message>
        <source>No document has been chosen.</source>
        <translation>Es ist kein Dokument gewählt.</translation>
    </message>
    <message>
        <source>Custom Size</source>
        <translation>Benutzerdefiniertes Format</translation>
    </message>
    <message>
        <source>Width × height:</source>
        <translation>Breite × Höhe:</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>corvana::HelpWindow</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>corvana::InstancePrinters</name>
    <message>
        <source>More Printers</source>
        <translation>Weitere Drucker</translation>
    </message>
    <message>
        <source>Other programs have the preset on the &amp;printers that are ticked:</source>
        <translation>Andere Programme haben die Voreinstellung auf den angekreuzten &amp;Druckern:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>Andere Programme führen es als „%1“ auf.</translation>
    </message>
</context>
<context>
    <name>corvana::JobFooter</name>
    <message>
        <source>Printing</source>
        <translation>Druckfortschritt</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Show Silenced Messages Again</source>
        <translation>Abgestellte Meldungen wieder anzeigen</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Dr&amp;ucken</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>C&amp;lose (printing continues)</source>
        <translation>Sch&amp;ließen (Druck läuft weiter)</translation>
    </message>
    <message>
        <source>The job goes on without this window.</source>
        <translation>Der Auftrag geht ohne dieses Fenster weiter.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Auftrag abbrechen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>S&amp;peichern …</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Wird gedruckt …</translation>
    </message>
    <message>
        <source>Canceling…</source>
        <translation>Wird abgebrochen …</translation>
    </message>
    <message>
        <source>The first sides are printed.</source>
        <translation>Der erste Durchgang ist gedruckt.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>corvana::MessageBar</name>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Show all of this message</source>
        <translation>Diese Meldung ganz zeigen</translation>
    </message>
    <message>
        <source>Dismiss this message</source>
        <translation>Diese Meldung schließen</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsModel</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Installable Options</source>
        <translation>Installierbare Optionen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1
For the command line: %2</source>
        <translation>%1
Für die Befehlszeile: %2</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>Geändert. %1</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Standard: %1</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsPage</name>
    <message>
        <source>Back to the Default</source>
        <translation>Zurück zum Standard</translation>
    </message>
    <message>
        <source>Search options and choices</source>
        <translation>Optionen und Auswahl durchsuchen</translation>
    </message>
    <message>
        <source>Options of the printer</source>
        <translation>Optionen des Druckers</translation>
    </message>
    <message>
        <source>Nothing contains “%1”.</source>
        <translation>Nichts enthält „%1“.</translation>
    </message>
</context>
<context>
    <name>corvana::PageChooser</name>
    <message>
        <source>Choose Pages</source>
        <translation>Seiten wählen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Pages:</source>
        <translation>&amp;Seiten:</translation>
    </message>
    <message>
        <source>Such as 1-4, 7, 9-</source>
        <translation>Etwa 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keine</translation>
    </message>
    <message>
        <source>&amp;Odd</source>
        <translation>&amp;Ungerade</translation>
    </message>
    <message>
        <source>&amp;Even</source>
        <translation>&amp;Gerade</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>&amp;Invertieren</translation>
    </message>
    <message>
        <source>Page numbers count in each document: what is ticked in one is ticked in all.</source>
        <translation>Seitenzahlen gelten in jedem Dokument: Was in einem angekreuzt ist, ist es in allen.</translation>
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
        <translation>Es hat %L1 Seiten; das sind zu viele, um sie hier zu zeigen. Die Zahlen können eingegeben werden.</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>Page %1 (%2)</source>
        <translation>Seite %1 (%2)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1, chosen</source>
        <translation>%1, gewählt</translation>
    </message>
    <message>
        <source>%1, not chosen</source>
        <translation>%1, nicht gewählt</translation>
    </message>
</context>
<context>
    <name>corvana::PageThumbnails</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>corvana::PassJob</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>Der Druck wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>corvana::PresetMenu</name>
    <message>
        <source>Printer &amp;Defaults</source>
        <translation>Stan&amp;dard</translation>
    </message>
    <message>
        <source>&amp;Last Used</source>
        <translation>&amp;Zuletzt verwendet</translation>
    </message>
    <message>
        <source>For This Model</source>
        <translation>Für dieses Modell</translation>
    </message>
    <message>
        <source>For All Printers</source>
        <translation>Für alle Drucker</translation>
    </message>
    <message>
        <source>From Other Programs</source>
        <translation>Aus anderen Programmen</translation>
    </message>
    <message>
        <source>&amp;Save Preset…</source>
        <translation>Voreinstellung &amp;speichern …</translation>
    </message>
    <message>
        <source>&amp;Update “%1”</source>
        <translation>„%1“ &amp;aktualisieren</translation>
    </message>
    <message>
        <source>&amp;Rename “%1”…</source>
        <translation>„%1“ &amp;umbenennen …</translation>
    </message>
    <message>
        <source>D&amp;elete “%1”…</source>
        <translation>„%1“ &amp;löschen …</translation>
    </message>
    <message>
        <source>Re&amp;member the Settings of the Last Job</source>
        <translation>Einstellungen des letzten Auftrags &amp;merken</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Voreinstellung löschen</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? The settings stay as they are.</source>
        <translation>Die Voreinstellung „%1“ löschen? Die Einstellungen bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>corvana::PresetRow</name>
    <message>
        <source>Prese&amp;t:</source>
        <translation>&amp;Voreinstellung:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (geändert)</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>Voreinstellung: %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>This Page: %1</source>
        <translation>Diese Seite: %1</translation>
    </message>
    <message>
        <source>Everything: %1</source>
        <translation>Alles: %1</translation>
    </message>
    <message>
        <source>%1 (Ctrl+Z)</source>
        <translation>%1 (Strg+Z)</translation>
    </message>
    <message>
        <source>%1 (Shift+Ctrl+Z)</source>
        <translation>%1 (Umschalt+Strg+Z)</translation>
    </message>
</context>
<context>
    <name>corvana::PreviewPane</name>
    <message>
        <source>Counting the sheets…</source>
        <translation>Blätter werden gezählt …</translation>
    </message>
</context>
<context>
    <name>corvana::PreviewPlaceholder</name>
    <message>
        <source>Choose &amp;Documents…</source>
        <translation>D&amp;okumente wählen …</translation>
    </message>
    <message>
        <source>Drop documents here to print them.</source>
        <translation>Ziehen Sie Dokumente hierher, um sie zu drucken.</translation>
    </message>
    <message>
        <source>PDF, PostScript, text, PNG and JPEG; several are one job.</source>
        <translation>PDF, PostScript, Text, PNG und JPEG; mehrere bilden einen Auftrag.</translation>
    </message>
</context>
<context>
    <name>corvana::PrintTask</name>
    <message>
        <source>The sides of “%1” are not known here, so they cannot be printed in two halves. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>Die Blattseiten von „%1“ sind hier nicht bekannt und können deshalb nicht in zwei Hälften gedruckt werden. Mit sides-by-hand=no wird jedes Blatt nur auf einer Seite bedruckt.</translation>
    </message>
    <message>
        <source>%1 (other sides)</source>
        <translation>%1 (zweiter Durchgang)</translation>
    </message>
    <message>
        <source>%1 (first sides)</source>
        <translation>%1 (erster Durchgang)</translation>
    </message>
    <message>
        <source>First sides: %1</source>
        <translation>Erster Durchgang: %1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>Zweiter Durchgang: %1</translation>
    </message>
    <message>
        <source>First sides: %1 Other sides: %2</source>
        <translation>Erster Durchgang: %1 Zweiter Durchgang: %2</translation>
    </message>
    <message>
        <source>Not printed.</source>
        <translation>Nicht gedruckt.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Show Its First Sheet</source>
        <translation>Das erste Blatt davon zeigen</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Give the password with --document-password-file.</source>
        <translation>Geben Sie das Passwort mit --document-password-file an.</translation>
    </message>
    <message>
        <source>Enter the Password…</source>
        <translation>Passwort eingeben …</translation>
    </message>
    <message>
        <source>Enter the Owner&apos;s Password…</source>
        <translation>Passwort des Besitzers eingeben …</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Wählen Sie ein Dokument zum Drucken.</translation>
    </message>
    <message>
        <source>Name the file to print to.</source>
        <translation>Geben Sie die Datei an, in die gedruckt werden soll.</translation>
    </message>
    <message>
        <source>“%1” are no pages. Pages and ranges in ascending order were expected, such as 1-4, 7, 9-.</source>
        <translation>„%1“ sind keine Seiten. Erwartet wurden Seiten und Bereiche in aufsteigender Folge, etwa 1-4, 7, 9-.</translation>
    </message>
    <message>
        <source>%1 is of a kind that is not known here. Only a queue can pass it on to its printer, as it is, with the option “raw”.</source>
        <translation>Der Dateityp von %1 ist hier nicht bekannt. Nur eine Warteschlange kann so eine Datei mit der Option „raw“ unverändert an den Drucker weitergeben.</translation>
    </message>
    <message>
        <source>What is passed on as it is cannot be printed to a file.</source>
        <translation>Was unverändert weitergegeben wird, kann nicht in eine Datei gedruckt werden.</translation>
    </message>
    <message>
        <source>No font of this computer has these characters of the text: %1. An empty frame is printed for each of them.</source>
        <translation>Keine Schrift dieses Computers hat diese Zeichen des Textes: %1. Für jedes davon wird ein leerer Rahmen gedruckt.</translation>
    </message>
    <message>
        <source>Not all of the text could be looked through for characters that no font of this computer has. An empty frame is printed for each of them.</source>
        <translation>Der Text konnte nicht ganz auf Zeichen durchsucht werden, die keine Schrift dieses Computers hat. Für jedes davon wird ein leerer Rahmen gedruckt.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings show instructions.</source>
        <translation>Die Einstellungen des Druckers zeigen Anweisungen.</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and a file cannot wait. Follow them and print with --on-alert=print.</source>
        <translation>Der Auftrag müsste auf diese Anweisungen warten, und eine Datei kann nicht warten. Befolgen Sie sie und drucken Sie mit --on-alert=print.</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and two-sided printing by hand cannot. Follow them and print with --on-alert=print.</source>
        <translation>Der Auftrag müsste auf diese Anweisungen warten, und das kann manueller beidseitiger Druck nicht. Befolgen Sie sie und drucken Sie mit --on-alert=print.</translation>
    </message>
    <message>
        <source>%1 So the job cannot wait for these instructions. Follow them and print with --on-alert=print.</source>
        <translation>%1 Der Auftrag kann deshalb nicht auf diese Anweisungen warten. Befolgen Sie sie und drucken Sie mit --on-alert=print.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings hold the job back.</source>
        <translation>Die Einstellungen des Druckers halten den Auftrag zurück.</translation>
    </message>
    <message>
        <source>Its pages are made while it is printed. The preview shows them.</source>
        <translation>Seine Seiten entstehen erst beim Drucken. Die Vorschau zeigt sie.</translation>
    </message>
    <message>
        <source>How many pages it has is not known.</source>
        <translation>Die Zahl seiner Seiten ist nicht bekannt.</translation>
    </message>
    <message>
        <source>It is being looked at…</source>
        <translation>Es wird gerade untersucht …</translation>
    </message>
    <message>
        <source>Not everything that your administrator has decided can be used. “corvana-print --check-policy” says what, and why.</source>
        <translation>Nicht alles, was Ihr Administrator festgelegt hat, ist verwendbar. „corvana-print --check-policy“ sagt, was und warum.</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper.</source>
        <translation>Dieser Auftrag braucht %1 Blatt Papier.</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper. More than %2 are printed only with --yes.</source>
        <translation>Dieser Auftrag braucht %1 Blatt Papier. Mehr als %2 werden nur mit --yes gedruckt.</translation>
    </message>
    <message>
        <source>The options of the printer have changed at its server; yours were kept.</source>
        <translation>Die Optionen des Druckers haben sich auf seinem Server geändert; Ihre wurden beibehalten.</translation>
    </message>
    <message>
        <source>The printer&apos;s own settings are missing: %1</source>
        <translation>Die druckereigenen Einstellungen fehlen: %1</translation>
    </message>
    <message>
        <source>Not everything could be set as before:
%1</source>
        <translation>Nicht alles konnte wie vorher eingestellt werden:
%1</translation>
    </message>
    <message>
        <source>The queue “%1” leads to the same printer, and has pages with all of its settings.</source>
        <translation>Die Warteschlange „%1“ führt zum selben Drucker und hat Seiten mit allen seinen Einstellungen.</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <translation>„%1“ verwenden</translation>
    </message>
    <message>
        <source>There is no job attribute of the name %1.</source>
        <translation>Es gibt kein Auftragsattribut mit dem Namen %1.</translation>
    </message>
    <message>
        <source>The queue “%1” sets this for every job that does not name it. Allowed: %2.</source>
        <translation>Die Warteschlange „%1“ legt dies für jeden Auftrag fest, der es nicht nennt. Erlaubt: %2.</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>„%1“ ist nicht erlaubt. Erlaubt: %2.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No document has been chosen.</source>
        <translation>Es ist kein Dokument gewählt.</translation>
    </message>
    <message>
        <source>There is a preview once the printer is known.</source>
        <translation>Eine Vorschau gibt es, sobald der Drucker bekannt ist.</translation>
    </message>
    <message>
        <source>Files are passed on to the printer as they are. What comes out is not known here.</source>
        <translation>Dateien werden unverändert an den Drucker weitergegeben. Was herauskommt, ist hier nicht bekannt.</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>Der Druck wurde abgebrochen.</translation>
    </message>
    <message>
        <source>What was asked for cannot be set:
%1</source>
        <translation>Was verlangt wurde, kann nicht eingestellt werden:
%1</translation>
    </message>
    <message>
        <source>Not everything that is set for this printer could be taken:
%1</source>
        <translation>Nicht alles, was für diesen Drucker eingestellt ist, konnte übernommen werden:
%1</translation>
    </message>
    <message>
        <source>As in your last job.</source>
        <translation>Wie in Ihrem letzten Auftrag.</translation>
    </message>
    <message>
        <source>Use Defaults</source>
        <translation>Standard verwenden</translation>
    </message>
    <message>
        <source>A PDF file is saved once: there are no copies of it.</source>
        <translation>Eine PDF-Datei wird einmal gespeichert: Es gibt keine Exemplare davon.</translation>
    </message>
    <message>
        <source>The printer prints at most %1 copies at once, not %2.</source>
        <translation>Der Drucker druckt höchstens %1 Exemplare auf einmal, nicht %2.</translation>
    </message>
    <message>
        <source>“%1” has nothing to show.</source>
        <translation>„%1“ hat nichts zu zeigen.</translation>
    </message>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>Eine Seite der Druckereinstellungen kann nicht gezeigt werden: %1</translation>
    </message>
    <message>
        <source>%1 is not on this computer. Save it here to print it.</source>
        <translation>%1 liegt nicht auf diesem Computer. Speichern Sie es hier, um es zu drucken.</translation>
    </message>
    <message>
        <source>The sheets can stay in the tray: the other sides are printed with the settings of the first ones.</source>
        <translation>Die Blätter können im Fach bleiben: Der zweite Durchgang wird mit den Einstellungen des ersten gedruckt.</translation>
    </message>
    <message>
        <source>Printed to %1, which holds data for the printer and is no PDF document</source>
        <translation>In %1 gedruckt; die Datei enthält Daten für den Drucker und ist kein PDF-Dokument</translation>
    </message>
</context>
<context>
    <name>corvana::PrintWindow</name>
    <message>
        <source>Asking “%1” for the options of the printer…</source>
        <translation>„%1“ wird nach den Optionen des Druckers gefragt …</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Drucker werden gesucht …</translation>
    </message>
    <message>
        <source>No answer from “%1” yet.</source>
        <translation>Noch keine Antwort von „%1“.</translation>
    </message>
    <message>
        <source>No printers at “%1”.</source>
        <translation>Keine Drucker auf „%1“.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>There are no printers yet. Add one in the printer settings of the system, or with the command lpadmin.</source>
        <translation>Es gibt noch keine Drucker. Fügen Sie einen in den Druckereinstellungen des Systems oder mit dem Befehl lpadmin hinzu.</translation>
    </message>
    <message>
        <source>Until then, documents can be printed to a file.</source>
        <translation>Bis dahin können Dokumente in eine Datei gedruckt werden.</translation>
    </message>
    <message>
        <source>Log In…</source>
        <translation>Anmelden …</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Noch einmal versuchen</translation>
    </message>
    <message>
        <source>The print service of this computer is not running. Start it, on most systems with “systemctl start cups”.</source>
        <translation>Der Druckdienst dieses Computers läuft nicht. Starten Sie ihn, auf den meisten Systemen mit „systemctl start cups“.</translation>
    </message>
    <message>
        <source>Print Another Copy</source>
        <translation>Noch ein Exemplar drucken</translation>
    </message>
    <message>
        <source>Two-Sided by Hand</source>
        <translation>Manuell beidseitig</translation>
    </message>
    <message>
        <source>Only the first sides of the sheets are printed. Leave the other sides unprinted?</source>
        <translation>Die Blätter sind erst auf einer Seite bedruckt. Die anderen Seiten unbedruckt lassen?</translation>
    </message>
    <message>
        <source>The first sides of the sheets are being printed. Stop that, and leave the other sides unprinted?</source>
        <translation>Die ersten Seiten der Blätter werden gerade gedruckt. Das abbrechen und die anderen Seiten unbedruckt lassen?</translation>
    </message>
    <message>
        <source>Leave Unprinted</source>
        <translation>Unbedruckt lassen</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Zurückgehen</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>In Datei drucken</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 gibt es schon. Ersetzen?</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>Trotzdem drucken</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Your preferences cannot be written.</source>
        <translation>Ihre Einstellungen können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The help is not installed.</source>
        <translation>Die Hilfe ist nicht installiert.</translation>
    </message>
    <message>
        <source>Help on Printing</source>
        <translation>Hilfe zum Drucken</translation>
    </message>
    <message>
        <source>If you print it again, it may come out of the printer twice.</source>
        <translation>Wenn Sie ihn noch einmal drucken, kommt er vielleicht zweimal aus dem Drucker.</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>Erneut drucken</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterComboBox</name>
    <message>
        <source>Choose a printer</source>
        <translation>Drucker wählen</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterHeader</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>D&amp;rucker:</translation>
    </message>
    <message>
        <source>Print to &amp;file:</source>
        <translation>In &amp;Datei drucken:</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>In Datei drucken</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>&amp;Auswählen …</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>In Datei drucken</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterPopup</name>
    <message>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Search by name or location</source>
        <translation>Suche nach Name oder Standort</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>Drucker suchen</translation>
    </message>
    <message>
        <source>No printer was found</source>
        <translation>Kein Drucker gefunden</translation>
    </message>
    <message>
        <source>No printer matches</source>
        <translation>Kein Drucker passt dazu</translation>
    </message>
    <message>
        <source>%1 of %2 printers</source>
        <translation>%1 von %2 Druckern</translation>
    </message>
    <message>
        <source>%1 printers</source>
        <translation>%1 Drucker</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterSource</name>
    <message>
        <source>There is no default printer. %1 Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>Es gibt keinen Standarddrucker. %1 Nennen Sie einen Drucker mit -d oder eine PPD mit --ppd FILE, oder probieren Sie die Musterdrucker mit --demo.</translation>
    </message>
    <message>
        <source>There is no default printer. Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>Es gibt keinen Standarddrucker. Nennen Sie einen Drucker mit -d oder eine PPD mit --ppd FILE, oder probieren Sie die Musterdrucker mit --demo.</translation>
    </message>
    <message>
        <source>There is no instance “%1”: lpoptions has none of the queue “%2”.</source>
        <translation>Es gibt keine Instanz „%1“: lpoptions hat keine der Warteschlange „%2“.</translation>
    </message>
    <message>
        <source>There is no instance “%1”. The queue “%2” has: %3.</source>
        <translation>Es gibt keine Instanz „%1“. Die Warteschlange „%2“ hat: %3.</translation>
    </message>
    <message>
        <source>There is no printer “%1” at “%2”.</source>
        <translation>Es gibt keinen Drucker „%1“ auf „%2“.</translation>
    </message>
    <message>
        <source>There is no printer “%1” at “%2” any more.</source>
        <translation>Es gibt keinen Drucker „%1“ mehr auf „%2“.</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterStatusLine</name>
    <message>
        <source>Try Again</source>
        <translation>Noch einmal versuchen</translation>
    </message>
</context>
<context>
    <name>corvana::SavePresetDialog</name>
    <message>
        <source>Rename Preset</source>
        <translation>Voreinstellung umbenennen</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Voreinstellung speichern</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>For printers of this &amp;model (%1)</source>
        <translation>Für Drucker dieses &amp;Modells (%1)</translation>
    </message>
    <message>
        <source>For &amp;all printers, as far as they have these settings</source>
        <translation>Für &amp;alle Drucker, soweit sie diese Einstellungen haben</translation>
    </message>
    <message>
        <source>Also in &amp;other programs</source>
        <translation>Auch in anderen &amp;Programmen</translation>
    </message>
    <message>
        <source>&amp;With what sets up the printer itself (%1)</source>
        <translation>Auch das, was den Drucker selbst &amp;einrichtet (%1)</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>Andere Programme führen es als „%1“ auf.</translation>
    </message>
    <message>
        <source>There is a preset of this name already.</source>
        <translation>Es gibt schon eine Voreinstellung mit diesem Namen.</translation>
    </message>
    <message>
        <source>There is a preset of this name already. It will be replaced.</source>
        <translation>Es gibt schon eine Voreinstellung mit diesem Namen. Sie wird ersetzt.</translation>
    </message>
    <message>
        <source>There is another preset of this name, which stays.</source>
        <translation>Es gibt eine andere Voreinstellung mit diesem Namen; sie bleibt.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>More &amp;Printers…</source>
        <translation>Weitere &amp;Drucker …</translation>
    </message>
</context>
<context>
    <name>corvana::ServerJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>Der Druck wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The printer “%1” does not take these settings of a job: %2. Nothing was printed.</source>
        <translation>Der Drucker „%1“ nimmt diese Einstellungen eines Auftrags nicht an: %2. Es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>The queue “%1” has no driver and prints documents as they are: it can neither put several pages on a sheet (number-up) nor choose pages (page-ranges, page-set). Nothing was printed.</source>
        <translation>Die Warteschlange „%1“ hat keinen Treiber und druckt Dokumente unverändert: Sie kann weder mehrere Seiten auf ein Blatt setzen (number-up) noch Seiten auswählen (page-ranges, page-set). Es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>The printer “%1” takes documents of these kinds only: %2.</source>
        <translation>Der Drucker „%1“ nimmt nur Dokumente dieser Typen an: %2.</translation>
    </message>
    <message>
        <source>The documents were put together as one, because the printer takes one at a time; each begins on a new sheet.</source>
        <translation>Die Dokumente wurden zu einem zusammengefügt, weil der Drucker nur eines auf einmal annimmt; jedes beginnt auf einem neuen Blatt.</translation>
    </message>
    <message>
        <source>There are too many copies to send them in sets. Their order is: %1.</source>
        <translation>Es sind zu viele Exemplare, um sie satzweise zu senden. Ihre Reihenfolge ist: %1.</translation>
    </message>
    <message>
        <source>Job %1 is in the queue; it was not followed to its end.</source>
        <translation>Auftrag %1 ist in der Warteschlange; er wurde nicht bis zum Ende verfolgt.</translation>
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
        <translation>jetzt %1</translation>
    </message>
    <message>
        <source>The settings of the printer are not known yet.</source>
        <translation>Die Einstellungen des Druckers sind noch nicht bekannt.</translation>
    </message>
    <message>
        <source>No setting is called “%1”. Try a shorter word, or another one for it.</source>
        <translation>Keine Einstellung heißt „%1“. Versuchen Sie ein kürzeres oder ein anderes Wort dafür.</translation>
    </message>
    <message>
        <source>No setting is called “%1”. Press Enter to search for “%2” instead.</source>
        <translation>Keine Einstellung heißt „%1“. Drücken Sie die Eingabetaste, um stattdessen nach „%2“ zu suchen.</translation>
    </message>
    <message>
        <source>“%1” cannot be changed while other settings are as they are. It is on the page “%2”.</source>
        <translation>„%1“ kann nicht geändert werden, solange andere Einstellungen so sind, wie sie sind. Es steht auf der Seite „%2“.</translation>
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
        <translation>Nichts</translation>
    </message>
    <message>
        <source>All Options</source>
        <translation>Alle Optionen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>This page cannot be shown: %1</source>
        <translation>Diese Seite kann nicht gezeigt werden: %1</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Noch einmal versuchen</translation>
    </message>
</context>
<context>
    <name>corvana::SheetView</name>
    <message>
        <source>%1. Note: %2</source>
        <translation>%1. Hinweis: %2</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Preview. %1</source>
        <translation>Vorschau. %1</translation>
    </message>
    <message>
        <source>Cover sheet of the queue: %1</source>
        <translation>Deckblatt der Warteschlange: %1</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>Wird aktualisiert …</translation>
    </message>
</context>
<context>
    <name>corvana::SheetsRow</name>
    <message>
        <source>Sheet %L1</source>
        <translation>Blatt %L1</translation>
    </message>
    <message>
        <source>Sheet %L1 of %L2</source>
        <translation>Blatt %L1 von %L2</translation>
    </message>
</context>
<context>
    <name>corvana::SummaryPage</name>
    <message>
        <source>Only what is changed</source>
        <translation>Nur Geändertes</translation>
    </message>
    <message>
        <source>Nothing is changed.</source>
        <translation>Nichts ist geändert.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>Geändert. %1</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, geändert</translation>
    </message>
</context>
<context>
    <name>corvana::TaskHistory</name>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>%1 rückgängig machen</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>%1 wiederherstellen</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Zurück zu %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>This cannot go back:
%1</source>
        <translation>Das kann nicht rückgängig gemacht werden:
%1</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPresets</name>
    <message>
        <source>The printer is not known yet.</source>
        <translation>Der Drucker ist noch nicht bekannt.</translation>
    </message>
    <message>
        <source>Other programs print with these settings to “%1”.</source>
        <translation>Andere Programme drucken mit diesen Einstellungen auf „%1“.</translation>
    </message>
    <message>
        <source>“%1” is not there any more, or has no settings.</source>
        <translation>„%1“ gibt es nicht mehr, oder es hat keine Einstellungen.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>Es gibt keine Voreinstellung mehr mit dem Namen „%1“.</translation>
    </message>
    <message>
        <source>Not everything of “%1” is possible here:
%2</source>
        <translation>Nicht alles von „%1“ ist hier möglich:
%2</translation>
    </message>
    <message>
        <source>“%1” was kept with settings that this printer does not have.</source>
        <translation>„%1“ wurde mit Einstellungen gespeichert, die dieser Drucker nicht hat.</translation>
    </message>
    <message>
        <source>%1 Your settings are as they were.</source>
        <translation>%1 Ihre Einstellungen sind wieder wie vorher.</translation>
    </message>
    <message>
        <source>The preset “%1” for this printer is another one.</source>
        <translation>Die Voreinstellung „%1“ für diesen Drucker ist eine andere.</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPreview</name>
    <message>
        <source>It can be printed all the same.</source>
        <translation>Gedruckt werden kann es trotzdem.</translation>
    </message>
</context>
<context>
    <name>corvana::TextConversion</name>
    <message>
        <source>There are no fonts for the text %1.</source>
        <translation>Für den Text %1 gibt es keine Schriften.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>Der Druck wurde abgebrochen.</translation>
    </message>
    <message>
        <source>%1 would have more than %2 pages, and a text is printed on no more than that.</source>
        <translation>%1 hätte mehr als %2 Seiten; auf mehr wird ein Text nicht gedruckt.</translation>
    </message>
</context>
<context>
    <name>corvana::TextDocuments</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>Der Druck wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>corvana::TurnSheetsDialog</name>
    <message>
        <source>Two-Sided by Hand</source>
        <translation>Manuell beidseitig</translation>
    </message>
    <message>
        <source>Put the sheets back to print their other sides</source>
        <translation>Blätter für die andere Seite wieder einlegen</translation>
    </message>
    <message>
        <source>&amp;Print the Other Sides</source>
        <translation>&amp;Andere Blattseiten drucken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>corvana::ZoomControl</name>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Size of the sheets</source>
        <translation>Größe der Blätter</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Fit Width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>%L1 %</source>
        <translation>%L1 %</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>no display can be reached. Print without a window with --no-dialog.</source>
        <translation>keine Anzeige erreichbar. Drucken Sie ohne Fenster mit --no-dialog.</translation>
    </message>
</context>
<context>
    <name>ClearButton</name>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>ChoiceCodes</name>
    <message>
        <source>%1 cannot be sent to the printer: its PPD does not say in a usable way how that is done.</source>
        <translation>%1 kann nicht an den Drucker gesendet werden: Seine PPD gibt nicht in brauchbarer Form an, wie das geschieht.</translation>
    </message>
</context>
<context>
    <name>PpdBounds</name>
    <message>
        <source>It is no ordinary file.</source>
        <translation>Sie ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>It is larger than %1 MB.</source>
        <translation>Sie ist größer als %1 MB.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 lines that begin with “%2”.</source>
        <translation>Sie enthält zu viel: mehr als %1 Zeilen, die mit „%2“ beginnen.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices of all options together. “%2” has the most.</source>
        <translation>Sie enthält zu viel: mehr als %1 Auswahlmöglichkeiten aller Optionen zusammen. Die meisten hat „%2“.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 lines that belong to no option. The most frequent is “%2”.</source>
        <translation>Sie enthält zu viel: mehr als %1 Zeilen, die zu keiner Option gehören. Am häufigsten ist „%2“.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 different keywords.</source>
        <translation>Sie enthält zu viel: mehr als %1 verschiedene Schlüsselwörter.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in one line that begins with “%2”.</source>
        <translation>Sie enthält zu viel: mehr als %1 Auswahlmöglichkeiten in einer Zeile, die mit „%2“ beginnt.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in lines that begin with “%2”.</source>
        <translation>Sie enthält zu viel: mehr als %1 Auswahlmöglichkeiten in Zeilen, die mit „%2“ beginnen.</translation>
    </message>
    <message>
        <source>There is too much in it: its constraints name %1 choices. Beside as many options and choices as it has, %2 are allowed.</source>
        <translation>Sie enthält zu viel: Ihre Einschränkungen nennen %1 Auswahlmöglichkeiten. Neben so vielen Optionen und Auswahlmöglichkeiten, wie sie hat, sind %2 erlaubt.</translation>
    </message>
</context>
<context>
    <name>QueueRequests</name>
    <message>
        <source>more than %L1 printers</source>
        <translation>mehr als %L1 Drucker</translation>
    </message>
    <message>
        <source>printers with more than %L1 characters in their texts</source>
        <translation>Drucker mit mehr als %L1 Zeichen in ihren Texten</translation>
    </message>
</context>
<context>
    <name>ClientFiles</name>
    <message>
        <source>%1 cannot be read to its end: a small file with the settings of CUPS is expected there.</source>
        <translation>%1 kann nicht bis zum Ende gelesen werden: Dort wird eine kleine Datei mit den Einstellungen von CUPS erwartet.</translation>
    </message>
</context>
<context>
    <name>TemporaryFolder</name>
    <message>
        <source>No temporary files can be kept in %1: %2</source>
        <translation>In %1 können keine temporären Dateien abgelegt werden: %2</translation>
    </message>
</context>
<context>
    <name>TextSource</name>
    <message>
        <source>it has become shorter meanwhile</source>
        <translation>sie ist inzwischen kürzer geworden</translation>
    </message>
</context>
<context>
    <name>Finishings</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Heften</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Lochen</translation>
    </message>
    <message>
        <source>Add Cover</source>
        <translation>Deckblatt anfügen</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Binden</translation>
    </message>
    <message>
        <source>Saddle Stitch</source>
        <translation>Rückenheftung</translation>
    </message>
    <message>
        <source>Edge Stitch</source>
        <translation>Kantenheftung</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Falzen</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Beschneiden</translation>
    </message>
    <message>
        <source>Bundle</source>
        <translation>Bündeln</translation>
    </message>
    <message>
        <source>Make Booklet</source>
        <translation>Broschüre herstellen</translation>
    </message>
    <message>
        <source>Offset Sets</source>
        <translation>Sätze versetzt ablegen</translation>
    </message>
    <message>
        <source>Coat</source>
        <translation>Beschichten</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Laminieren</translation>
    </message>
</context>
<context>
    <name>OwnInstances</name>
    <message>
        <source>“%1” is damaged. What was written for other programs before does not follow its presets any more.</source>
        <translation>„%1“ ist beschädigt. Was bisher für andere Programme geschrieben wurde, folgt seinen Voreinstellungen nicht mehr.</translation>
    </message>
</context>
<context>
    <name>PresetInstances</name>
    <message>
        <source>“%1” in other programs: %2</source>
        <translation>„%1“ in anderen Programmen: %2</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is from now on.</source>
        <translation>„%1“ wurde von einem anderen Programm geändert und bleibt von nun an, wie es ist.</translation>
    </message>
    <message>
        <source>Settings were changed while “%1” was saved: other programs have it as it was before. Save it again.</source>
        <translation>Während „%1“ gespeichert wurde, wurden Einstellungen geändert: In anderen Programmen ist es, wie es vorher war. Speichern Sie es noch einmal.</translation>
    </message>
</context>
<context>
    <name>PresetReplacing</name>
    <message>
        <source>“%1” was saved elsewhere since it was selected here, and stays as it is there. Select it again, or keep your settings with “Save Preset…”.</source>
        <translation>„%1“ wurde anderswo gespeichert, seit sie hier gewählt wurde, und bleibt, wie sie dort ist. Wählen Sie sie noch einmal, oder speichern Sie Ihre Einstellungen mit „Voreinstellung speichern …“.</translation>
    </message>
</context>
<context>
    <name>Collation</name>
    <message>
        <source>two-sided copies are always collated on this printer</source>
        <translation>beidseitige Kopien werden auf diesem Drucker immer sortiert</translation>
    </message>
</context>
<context>
    <name>OtherQueues</name>
    <message>
        <source>The queue could not be read in time.</source>
        <translation>Die Warteschlange konnte nicht rechtzeitig gelesen werden.</translation>
    </message>
</context>
</TS>
