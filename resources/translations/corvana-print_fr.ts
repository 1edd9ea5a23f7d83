<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AlertPresenter</name>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne plus afficher ce message</translation>
    </message>
</context>
<context>
    <name>AttributeEffects</name>
    <message>
        <source>“%1”</source>
        <translation>« %1 »</translation>
    </message>
    <message>
        <source>%1 has no effect on %2: only texts follow it.</source>
        <translation>%1 est sans effet sur %2 : seuls les textes en tiennent compte.</translation>
    </message>
    <message>
        <source>%1 has no effect on %2: only pictures follow it.</source>
        <translation>%1 est sans effet sur %2 : seules les images en tiennent compte.</translation>
    </message>
    <message>
        <source>asked for by the queue; what the printer makes of it is not known</source>
        <translation>demandé par la file d’attente ; ce que l’imprimante en fait n’est pas connu</translation>
    </message>
    <message>
        <source>only where a page is scaled</source>
        <translation>seulement où une page est mise à l’échelle</translation>
    </message>
</context>
<context>
    <name>ByHand</name>
    <message>
        <source>top</source>
        <translation>supérieur</translation>
    </message>
    <message>
        <source>right</source>
        <translation>droit</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>inférieur</translation>
    </message>
    <message>
        <source>left</source>
        <translation>gauche</translation>
    </message>
    <message>
        <source>Take the printed sheet out of the printer.</source>
        <translation>Retirez la feuille imprimée de l’imprimante.</translation>
    </message>
    <message>
        <source>Take the %1 printed sheets out of the printer, as one stack.</source>
        <translation>Retirez les %1 feuilles imprimées de l’imprimante, en une seule pile.</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side down, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>Remettez-les dans le bac, face imprimée vers le bas, de sorte que le bord %1 des pages entre en premier dans l’imprimante.</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side up, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>Remettez-les dans le bac, face imprimée vers le haut, de sorte que le bord %1 des pages entre en premier dans l’imprimante.</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost. Nothing is printed on it so far.</source>
        <translation>La dernière feuille est sur le dessus. Rien n’y est encore imprimé.</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost.</source>
        <translation>La dernière feuille est sur le dessus.</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>page %1</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>pages %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The last sheet, with %1, lies uppermost.</source>
        <translation>La dernière feuille (%1) est sur le dessus.</translation>
    </message>
    <message>
        <source>The last sheet, with %1 of “%2”, lies uppermost.</source>
        <translation>La dernière feuille (%1 de « %2 ») est sur le dessus.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs a printer that sheets are put back into: it cannot be done in a file.</source>
        <translation>L’impression recto verso manuelle (%1) demande une imprimante où l’on remet les feuilles : elle est impossible dans un fichier.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) cannot be combined with %2: the queue would add these pages to both halves.</source>
        <translation>L’impression recto verso manuelle (%1) ne peut pas être combinée avec %2 : la file d’attente ajouterait ces pages aux deux moitiés.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs somebody who puts the sheets back, and nobody can be asked here. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>L’impression recto verso manuelle (%1) demande quelqu’un pour remettre les feuilles, et personne ne peut être sollicité ici. Avec sides-by-hand=no, une seule face de chaque feuille est imprimée.</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side down, so that the %1 edge of the page goes into the printer first.</source>
        <translation>Remettez-la dans le bac, face imprimée vers le bas, de sorte que le bord %1 de la page entre en premier dans l’imprimante.</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side up, so that the %1 edge of the page goes into the printer first.</source>
        <translation>Remettez-la dans le bac, face imprimée vers le haut, de sorte que le bord %1 de la page entre en premier dans l’imprimante.</translation>
    </message>
</context>
<context>
    <name>CheckPolicy</name>
    <message>
        <source>Policy in %1 for the user %2</source>
        <translation>Règles dans %1 pour l’utilisateur %2</translation>
    </message>
    <message>
        <source>groups: %1</source>
        <translation>groupes : %1</translation>
    </message>
    <message>
        <source>Not used:</source>
        <translation>Non utilisé :</translation>
    </message>
    <message>
        <source>Nothing is decided.</source>
        <translation>Rien n’est décidé.</translation>
    </message>
    <message>
        <source>At the printer %1:</source>
        <translation>Sur l’imprimante %1 :</translation>
    </message>
    <message>
        <source>Void, because the printer does not take it:</source>
        <translation>Sans effet, car l’imprimante ne l’accepte pas :</translation>
    </message>
    <message>
        <source>For others, who are in these groups:</source>
        <translation>Pour d’autres, membres de ces groupes :</translation>
    </message>
    <message>
        <source>Only root may ask what applies to somebody else.</source>
        <translation>Seul root peut demander ce qui s’applique à quelqu’un d’autre.</translation>
    </message>
    <message>
        <source>There is no user of the name “%1”.</source>
        <translation>Il n’y a pas d’utilisateur nommé « %1 ».</translation>
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
        <translation>Seules les pages impaires en sont imprimées, comme réglé pour cette tâche.</translation>
    </message>
    <message>
        <source>Only the even ones of them are printed, as is set for this job.</source>
        <translation>Seules les pages paires en sont imprimées, comme réglé pour cette tâche.</translation>
    </message>
    <message>
        <source>No page is chosen.</source>
        <translation>Aucune page n’est choisie.</translation>
    </message>
    <message>
        <source>How many pages there are is not known.</source>
        <translation>Le nombre de pages n’est pas connu.</translation>
    </message>
    <message>
        <source>%L1 of %L2 page numbers chosen.</source>
        <translation>%L1 numéros de page sur %L2 choisis.</translation>
    </message>
    <message>
        <source>%L1 of %L2 pages chosen.</source>
        <translation>%L1 pages sur %L2 choisies.</translation>
    </message>
    <message>
        <source>There are no pages %1.</source>
        <translation>Il n’y a pas de pages %1.</translation>
    </message>
    <message>
        <source>“%1” is no page. Pages are typed as in 1-4, 7, 9-.</source>
        <translation>« %1 » n’est pas une page. Les pages s’écrivent comme 1-4, 7, 9-.</translation>
    </message>
    <message>
        <source>“%1” ends before it begins.</source>
        <translation>« %1 » se termine avant de commencer.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the name of a document is missing.</source>
        <translation>le nom d’un document manque.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lists what can be said.</source>
        <translation>&quot;%1&quot; énumère ce qui peut être indiqué.</translation>
    </message>
    <message>
        <source>%1 %2: a number from %3 to %4 was expected.</source>
        <translation>%1 %2 : un nombre de %3 à %4 était attendu.</translation>
    </message>
    <message>
        <source>-P &quot;%1&quot;: pages and ranges in ascending order were expected, such as 1-4,7,9-.</source>
        <translation>-P &quot;%1&quot; : des pages et des plages en ordre croissant étaient attendues, par exemple 1-4,7,9-.</translation>
    </message>
    <message>
        <source>-H %1 is for a job that is in a queue already: use %2.</source>
        <translation>-H %1 concerne une tâche qui est déjà dans une file d’attente : utilisez %2.</translation>
    </message>
    <message>
        <source>-H &quot;%1&quot;: hold, immediate, %2 was expected.</source>
        <translation>-H &quot;%1&quot; : hold, immediate, %2 était attendu.</translation>
    </message>
    <message>
        <source>--check-policy takes one printer and no document.</source>
        <translation>--check-policy prend une imprimante et aucun document.</translation>
    </message>
    <message>
        <source>--server &quot;%1&quot;: HOST, HOST:PORT or the path of a socket was expected.</source>
        <translation>--server &quot;%1&quot; : HOST, HOST:PORT ou le chemin d’un socket était attendu.</translation>
    </message>
    <message>
        <source>--on-alert %1: print, hold or refuse was expected.</source>
        <translation>--on-alert %1 : print, hold ou refuse était attendu.</translation>
    </message>
    <message>
        <source>--format %1: json or text was expected.</source>
        <translation>--format %1 : json ou text était attendu.</translation>
    </message>
    <message>
        <source>-m: no mail is sent. What became of the job is said at the end, and by the exit status.</source>
        <translation>-m : aucun courriel n’est envoyé. Ce que la tâche est devenue est dit à la fin, et par le code de retour.</translation>
    </message>
    <message>
        <source>%1 &quot;&quot;: %2 is missing.</source>
        <translation>%1 &quot;&quot; : %2 manque.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined.</source>
        <translation>%1 et %2 ne peuvent pas être combinés.</translation>
    </message>
    <message>
        <source>%1 is for runs without a window (--no-dialog).</source>
        <translation>%1 est réservé aux exécutions sans fenêtre (--no-dialog).</translation>
    </message>
    <message>
        <source>standard input cannot be the document and the password.</source>
        <translation>l’entrée standard ne peut pas être à la fois le document et le mot de passe.</translation>
    </message>
    <message>
        <source>--save-preset prints nothing: no document can be named.</source>
        <translation>--save-preset n’imprime rien : aucun document ne peut être indiqué.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined: both write to standard output.</source>
        <translation>%1 et %2 ne peuvent pas être combinés : les deux écrivent sur la sortie standard.</translation>
    </message>
    <message>
        <source>-d &quot;%1&quot;: a URI like ipp://HOST/ipp/print was expected.</source>
        <translation>-d &quot;%1&quot; : un URI comme ipp://HOST/ipp/print était attendu.</translation>
    </message>
    <message>
        <source>-o &quot;%1&quot;: KEY=VALUE was expected.</source>
        <translation>-o &quot;%1&quot; : KEY=VALUE était attendu.</translation>
    </message>
    <message>
        <source>standard input (-) can be read once only.</source>
        <translation>l’entrée standard (-) ne peut être lue qu’une fois.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Utilisation : %1</translation>
    </message>
    <message>
        <source>Prints a document with the settings of its printer, in a dialog or without one.</source>
        <translation>Imprime un document avec les réglages de son imprimante, dans une boîte d’impression ou sans.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options :</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Arguments :</translation>
    </message>
    <message>
        <source>The document: PDF, PostScript, text, PNG or JPEG; - is standard input. Several are one job.</source>
        <translation>Le document : PDF, PostScript, texte, PNG ou JPEG ; - est l’entrée standard. Plusieurs forment une tâche.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Code de retour :</translation>
    </message>
    <message>
        <source>128 and a signal&apos;s number: ended by that signal</source>
        <translation>128 plus le numéro d’un signal : terminé par ce signal</translation>
    </message>
    <message>
        <source>Print to the printer NAME: a queue, an instance NAME/INSTANCE, or an IPP printer ipp://HOST/PATH.</source>
        <translation>Imprimer sur l’imprimante NAME : une file d’attente, une instance NAME/INSTANCE ou une imprimante IPP ipp://HOST/PATH.</translation>
    </message>
    <message>
        <source>Use the queues of the print server HOST instead of the usual one.</source>
        <translation>Utiliser les files d’attente du serveur d’impression HOST au lieu du serveur habituel.</translation>
    </message>
    <message>
        <source>Speak to the print server with encryption only.</source>
        <translation>Ne parler au serveur d’impression qu’avec chiffrement.</translation>
    </message>
    <message>
        <source>Print as the user USER.</source>
        <translation>Imprimer en tant qu’utilisateur USER.</translation>
    </message>
    <message>
        <source>Take the password from the first line of FILE, which nobody but its owner may read; nobody is asked.</source>
        <translation>Prendre le mot de passe dans la première ligne du fichier FILE, que personne d’autre que son propriétaire ne peut lire ; rien n’est demandé.</translation>
    </message>
    <message>
        <source>The same from the open file descriptor N (0 is standard input).</source>
        <translation>De même, depuis le descripteur de fichier ouvert N (0 est l’entrée standard).</translation>
    </message>
    <message>
        <source>Open protected PDF documents with the password in the first line of FILE, which nobody but its owner may read.</source>
        <translation>Ouvrir les documents PDF protégés avec le mot de passe de la première ligne du fichier FILE, que personne d’autre que son propriétaire ne peut lire.</translation>
    </message>
    <message>
        <source>Print for the printer that the PPD FILE describes.</source>
        <translation>Imprimer pour l’imprimante que décrit le PPD FILE.</translation>
    </message>
    <message>
        <source>Write the printer-ready data to FILE; - is standard output.</source>
        <translation>Écrire les données prêtes pour l’imprimante dans le fichier FILE ; - est la sortie standard.</translation>
    </message>
    <message>
        <source>Offer the sample printers.</source>
        <translation>Proposer les imprimantes d’exemple.</translation>
    </message>
    <message>
        <source>List the printers and exit.</source>
        <translation>Énumérer les imprimantes, puis quitter.</translation>
    </message>
    <message>
        <source>Start with the settings of the preset NAME; -o counts more.</source>
        <translation>Commencer avec les réglages du préréglage NAME ; -o est prioritaire.</translation>
    </message>
    <message>
        <source>List the presets and exit.</source>
        <translation>Énumérer les préréglages, puis quitter.</translation>
    </message>
    <message>
        <source>Keep the settings of the printer, those of -o among them, as the preset NAME, and exit. A preset of that name is replaced.</source>
        <translation>Enregistrer les réglages de l’imprimante, dont ceux de -o, comme préréglage NAME, puis quitter. Un préréglage de ce nom est remplacé.</translation>
    </message>
    <message>
        <source>Say what the administrator&apos;s policy decides, and where, for the printer that is named behind it or by -d; as root with -U for another user. Exit with status 1 when something of it is not used.</source>
        <translation>Dire ce que décident les règles de l’administrateur, et où, pour l’imprimante indiquée à la suite ou par -d ; root peut indiquer un autre utilisateur avec -U. Le code de retour est 1 si une partie n’en est pas utilisée.</translation>
    </message>
    <message>
        <source>Print a job of many sheets without being asked.</source>
        <translation>Imprimer une tâche de nombreuses feuilles sans confirmation.</translation>
    </message>
    <message>
        <source>Set an option of the printer or of the job; may be repeated.</source>
        <translation>Définir une option de l’imprimante ou de la tâche ; peut être répété.</translation>
    </message>
    <message>
        <source>Print N copies (1 to %1).</source>
        <translation>Imprimer N exemplaires (1 à %1).</translation>
    </message>
    <message>
        <source>Print these pages (1-4,7,9-), as -o page-ranges= does.</source>
        <translation>Imprimer ces pages (1-4,7,9-), comme -o page-ranges=.</translation>
    </message>
    <message>
        <source>Give the job this priority (1 to 100), as -o job-priority= does.</source>
        <translation>Donner cette priorité à la tâche (1 à 100), comme -o job-priority=.</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, a time HH:MM (UTC), or what -o job-hold-until= takes.</source>
        <translation>Quand imprimer : hold, immediate, une heure HH:MM (UTC), ou ce que prend -o job-hold-until=.</translation>
    </message>
    <message>
        <source>Do not say which job was printed, only what went wrong.</source>
        <translation>Ne pas dire quelle tâche a été imprimée, seulement ce qui a échoué.</translation>
    </message>
    <message>
        <source>Does nothing: the document is always copied to the queue.</source>
        <translation>Ne fait rien : le document est toujours copié dans la file d’attente.</translation>
    </message>
    <message>
        <source>Is refused: no mail is sent.</source>
        <translation>Est refusé : aucun courriel n’est envoyé.</translation>
    </message>
    <message>
        <source>Name the job TEXT.</source>
        <translation>Nommer la tâche TEXT.</translation>
    </message>
    <message>
        <source>Print without a window.</source>
        <translation>Imprimer sans fenêtre.</translation>
    </message>
    <message>
        <source>Write the settings of the job to standard output.</source>
        <translation>Écrire les réglages de la tâche sur la sortie standard.</translation>
    </message>
    <message>
        <source>Without a window: keep the settings in lpoptions as an instance of the queue, so that lp -d QUEUE/NAME and other programs print with them.</source>
        <translation>Sans fenêtre : enregistrer les réglages dans lpoptions comme instance de la file d’attente, pour que lp -d QUEUE/NAME et d’autres programmes impriment avec eux.</translation>
    </message>
    <message>
        <source>Without a window: what to do when the printer&apos;s settings show instructions: print, hold or refuse. Usually a queue holds the job, and a file is printed.</source>
        <translation>Sans fenêtre : que faire quand les réglages de l’imprimante affichent des instructions : print, hold ou refuse. Normalement, une file d’attente suspend la tâche, et, dans un fichier, elle est imprimée.</translation>
    </message>
    <message>
        <source>Without a window: end when the queue has the job, not when it is printed.</source>
        <translation>Sans fenêtre : terminer quand la file d’attente a la tâche, sans attendre qu’elle soit imprimée.</translation>
    </message>
    <message>
        <source>Without a window: follow the job for SECONDS at most once its queue has it, then leave it there.</source>
        <translation>Sans fenêtre : suivre la tâche pendant SECONDS secondes au plus une fois qu’elle est dans sa file d’attente, puis l’y laisser.</translation>
    </message>
    <message>
        <source>Without a window: json writes what became of the job to standard output, as one line that a program can read; text is what people read.</source>
        <translation>Sans fenêtre : json écrit sur la sortie standard ce que la tâche est devenue, en une ligne qu’un programme peut lire ; text est ce que lisent les personnes.</translation>
    </message>
    <message>
        <source>Also trust the plug-in bundles in the folder DIR.</source>
        <translation>Faire aussi confiance aux paquets de greffons du dossier DIR.</translation>
    </message>
    <message>
        <source>Exit with status 0 when a window can be shown, with 1 when not.</source>
        <translation>Quitter avec le code 0 si une fenêtre peut être affichée, avec 1 sinon.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>With --save-instance: make such an instance of these queues as well, with what each of them needs to print the same.</source>
        <translation>Avec --save-instance : créer une telle instance de ces files d’attente aussi, avec ce dont chacune a besoin pour imprimer de même.</translation>
    </message>
    <message>
        <source>--also-on: the name of the instance is missing, as in --save-instance reports.</source>
        <translation>--also-on : le nom de l’instance manque, comme dans --save-instance reports.</translation>
    </message>
</context>
<context>
    <name>CupsFilter</name>
    <message>
        <source>The program %1, named by CORVANA_PRINT_CUPSFILTER, cannot be run.</source>
        <translation>Le programme %1, indiqué par CORVANA_PRINT_CUPSFILTER, ne peut pas être exécuté.</translation>
    </message>
    <message>
        <source>The program cupsfilter was found neither on the path nor in /usr/sbin. It comes with CUPS (on Debian the package “cups”).</source>
        <translation>Le programme cupsfilter est introuvable, aussi bien dans le chemin de recherche que dans /usr/sbin. Il fait partie de CUPS (dans Debian, le paquet « cups »).</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>PDF document</source>
        <translation>document PDF</translation>
    </message>
    <message>
        <source>PostScript document</source>
        <translation>document PostScript</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>image PNG</translation>
    </message>
    <message>
        <source>JPEG picture</source>
        <translation>image JPEG</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Lecture de %1 impossible : %2</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 est vide.</translation>
    </message>
    <message>
        <source>%1 cannot be printed: it holds data that are ready for a printer. A queue passes them on as they are with the option “raw”.</source>
        <translation>%1 ne peut pas être imprimé : il contient des données déjà préparées pour une imprimante. Une file d’attente les transmet telles quelles avec l’option « raw ».</translation>
    </message>
    <message>
        <source>%1 cannot be printed; its contents: %2. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>%1 ne peut pas être imprimé ; contenu : %2. Les documents peuvent être au format PDF, PostScript, texte, PNG ou JPEG.</translation>
    </message>
    <message>
        <source>%1 is named like a %2, but holds a %3. Rename it if that is right.</source>
        <translation>%1 porte le nom d’un autre type (%2) que celui de son contenu (%3). Si le contenu est le bon, renommez le fichier.</translation>
    </message>
    <message>
        <source>%1: there is no such file.</source>
        <translation>%1 : ce fichier n’existe pas.</translation>
    </message>
    <message>
        <source>%1 is a folder; a document was expected.</source>
        <translation>%1 est un dossier ; un document était attendu.</translation>
    </message>
    <message>
        <source>%1 is no ordinary file; a document was expected.</source>
        <translation>%1 n’est pas un fichier ordinaire ; un document était attendu.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>%1 cannot be kept: %2</source>
        <translation>Conservation de %1 impossible : %2</translation>
    </message>
    <message>
        <source>%1 cannot be read: nobody writes into it.</source>
        <translation>Lecture de %1 impossible : personne n’y écrit.</translation>
    </message>
    <message>
        <source>%1 cannot be kept: it has more than %2 bytes.</source>
        <translation>Conservation de %1 impossible : plus de %2 octets.</translation>
    </message>
    <message>
        <source>%1 cannot be printed: nobody can tell what is in it. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>%1 ne peut pas être imprimé ; son contenu n’est pas reconnaissable. Les documents peuvent être au format PDF, PostScript, texte, PNG ou JPEG.</translation>
    </message>
</context>
<context>
    <name>DocumentCopies</name>
    <message>
        <source>all documents, then all of them again (A B A B)</source>
        <translation>tous les documents, puis tous de nouveau (A B A B)</translation>
    </message>
    <message>
        <source>each document with all its copies (A A B B)</source>
        <translation>chaque document avec tous ses exemplaires (A A B B)</translation>
    </message>
    <message>
        <source>each page with all its copies (1 1 2 2)</source>
        <translation>chaque page avec tous ses exemplaires (1 1 2 2)</translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>“%1” is damaged at byte %2.</source>
        <translation>« %1 » est endommagé à l’octet %2.</translation>
    </message>
    <message>
        <source>“%1” is damaged.</source>
        <translation>« %1 » est endommagé.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>“%1” is protected, and the password that was given does not open it.</source>
        <translation>« %1 » est protégé, et le mot de passe indiqué ne l’ouvre pas.</translation>
    </message>
    <message>
        <source>“%1” is protected: it is printed only with its password.</source>
        <translation>« %1 » est protégé : il ne s’imprime qu’avec son mot de passe.</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. Only its owner&apos;s password does.</source>
        <translation>« %1 » n’autorise pas l’impression. Seul le mot de passe de son propriétaire la permet.</translation>
    </message>
    <message>
        <source>None of its pages can be printed.</source>
        <translation>Aucune de ses pages ne peut être imprimée.</translation>
    </message>
    <message>
        <source>“%1” is protected, and a copy without protection could not be made: it is too large, or there is no room for it.</source>
        <translation>« %1 » est protégé, et une copie sans protection n’a pas pu être faite : elle est trop grande, ou la place manque.</translation>
    </message>
    <message>
        <source>1 of its %1 pages can be printed.</source>
        <translation>1 de ses %1 pages peut être imprimée.</translation>
    </message>
    <message>
        <source>%1 of its %2 pages can be printed.</source>
        <translation>%1 de ses %2 pages peuvent être imprimées.</translation>
    </message>
    <message>
        <source>“%1” is protected. The file that is printed to is not.</source>
        <translation>« %1 » est protégé. Le fichier dans lequel on imprime ne l’est pas.</translation>
    </message>
    <message>
        <source>“%1” is protected. The print server gets a copy without protection.</source>
        <translation>« %1 » est protégé. Le serveur d’impression reçoit une copie sans protection.</translation>
    </message>
    <message>
        <source>All pages that were found in it are printed.</source>
        <translation>Toutes les pages qui y ont été trouvées sont imprimées.</translation>
    </message>
    <message>
        <source>“%1” brings settings for a printer along, which are not followed: %2. Choose them here, or pass the document on with the option “raw”.</source>
        <translation>« %1 » contient des réglages destinés à une imprimante qui ne sont pas appliqués : %2. Choisissez-les ici, ou transmettez le document tel quel avec l’option « raw ».</translation>
    </message>
</context>
<context>
    <name>ExitStatus</name>
    <message>
        <source>printed, sent, or in the queue with the reason why it waits there</source>
        <translation>imprimée, envoyée, ou dans la file d’attente avec la raison de l’attente</translation>
    </message>
    <message>
        <source>refused, failed or canceled</source>
        <translation>refusée, échouée ou annulée</translation>
    </message>
    <message>
        <source>a command line that cannot be understood</source>
        <translation>une ligne de commande qui ne peut pas être comprise</translation>
    </message>
    <message>
        <source>sent, and what became of it is not known</source>
        <translation>envoyée, et ce qu’elle est devenue n’est pas connu</translation>
    </message>
    <message>
        <source>the time of --wait is over; the job is still in the queue</source>
        <translation>le délai de --wait est écoulé ; la tâche est encore dans la file d’attente</translation>
    </message>
</context>
<context>
    <name>HttpLine</name>
    <message>
        <source>The password is sent to “%1” without encryption: others in the network can read it. “-E” encrypts.</source>
        <translation>Le mot de passe est envoyé à « %1 » sans chiffrement : d’autres personnes du réseau peuvent le lire. « -E » chiffre.</translation>
    </message>
</context>
<context>
    <name>InstanceDraft</name>
    <message>
        <source>Some programs add “%1=%2” to it, which you have set for “%3”.</source>
        <translation>Certains programmes y ajoutent « %1=%2 », que vous avez défini pour « %3 ».</translation>
    </message>
    <message>
        <source>“%1” is left out: it is a secret.</source>
        <translation>« %1 » est omis : c’est un secret.</translation>
    </message>
    <message>
        <source>“%1” is left out: other programs cannot print it.</source>
        <translation>« %1 » est omis : d’autres programmes ne peuvent pas l’imprimer.</translation>
    </message>
    <message>
        <source>Other programs know settings of queues only, and “%1” is none.</source>
        <translation>Les autres programmes ne connaissent que les réglages de files d’attente, et « %1 » n’en est pas une.</translation>
    </message>
    <message>
        <source>“%1” gets files as they are, so that no setting has an effect.</source>
        <translation>« %1 » reçoit les fichiers tels quels, donc aucun réglage n’a d’effet.</translation>
    </message>
    <message>
        <source>“%1” has no letters that other programs can print to. Give it a name of letters from a to z, such as “%2”.</source>
        <translation>« %1 » ne contient aucune lettre sous laquelle d’autres programmes pourraient imprimer. Donnez un nom fait de lettres de a à z, par exemple « %2 ».</translation>
    </message>
    <message>
        <source>“%1” is there already, with settings of its own. Choose another name, or remove it with “lpoptions -x %1”.</source>
        <translation>« %1 » existe déjà, avec ses propres réglages. Choisissez un autre nom, ou supprimez-le avec « lpoptions -x %1 ».</translation>
    </message>
</context>
<context>
    <name>JobAttributes</name>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Bound at the Left</source>
        <translation>Reliure à gauche</translation>
    </message>
    <message>
        <source>Bound at the Right</source>
        <translation>Reliure à droite</translation>
    </message>
    <message>
        <source>One-Sided</source>
        <translation>Recto seul</translation>
    </message>
    <message>
        <source>Long Edge (by Hand)</source>
        <translation>Côté long (manuel)</translation>
    </message>
    <message>
        <source>Short Edge (by Hand)</source>
        <translation>Côté court (manuel)</translation>
    </message>
    <message>
        <source>Printed Side Down</source>
        <translation>Face imprimée dessous</translation>
    </message>
    <message>
        <source>Printed Side Up</source>
        <translation>Face imprimée dessus</translation>
    </message>
    <message>
        <source>Up, Then to the Right</source>
        <translation>Vers le haut, puis à droite</translation>
    </message>
    <message>
        <source>Up, Then to the Left</source>
        <translation>Vers le haut, puis à gauche</translation>
    </message>
    <message>
        <source>To the Right, Then Up</source>
        <translation>Vers la droite, puis en haut</translation>
    </message>
    <message>
        <source>To the Right, Then Down</source>
        <translation>Vers la droite, puis en bas</translation>
    </message>
    <message>
        <source>To the Left, Then Up</source>
        <translation>Vers la gauche, puis en haut</translation>
    </message>
    <message>
        <source>To the Left, Then Down</source>
        <translation>Vers la gauche, puis en bas</translation>
    </message>
    <message>
        <source>Down, Then to the Right</source>
        <translation>Vers le bas, puis à droite</translation>
    </message>
    <message>
        <source>Down, Then to the Left</source>
        <translation>Vers le bas, puis à gauche</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Thin Line</source>
        <translation>Trait fin</translation>
    </message>
    <message>
        <source>Thick Line</source>
        <translation>Trait épais</translation>
    </message>
    <message>
        <source>Two Thin Lines</source>
        <translation>Deux traits fins</translation>
    </message>
    <message>
        <source>Two Thick Lines</source>
        <translation>Deux traits épais</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Even Pages Only</source>
        <translation>Pages paires seulement</translation>
    </message>
    <message>
        <source>Odd Pages Only</source>
        <translation>Pages impaires seulement</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Reverse Landscape</source>
        <translation>Paysage inversé</translation>
    </message>
    <message>
        <source>Reverse Portrait</source>
        <translation>Portrait inversé</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Fit All Pages If One Is Too Large</source>
        <translation>Toutes ajustées si l’une est trop grande</translation>
    </message>
    <message>
        <source>Fill Paper</source>
        <translation>Remplir le papier</translation>
    </message>
    <message>
        <source>Fit to Paper</source>
        <translation>Adapter au papier</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>First Page First</source>
        <translation>Première page d’abord</translation>
    </message>
    <message>
        <source>Last Page First</source>
        <translation>Dernière page d’abord</translation>
    </message>
    <message>
        <source>Print at Once</source>
        <translation>Imprimer tout de suite</translation>
    </message>
    <message>
        <source>Until It Is Released</source>
        <translation>Jusqu’à sa libération</translation>
    </message>
    <message>
        <source>Daytime</source>
        <translation>En journée</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Le soir</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>La nuit</translation>
    </message>
    <message>
        <source>Second Shift</source>
        <translation>Deuxième équipe</translation>
    </message>
    <message>
        <source>Third Shift</source>
        <translation>Troisième équipe</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Le week-end</translation>
    </message>
    <message>
        <source>points of 1/72 inch</source>
        <translation>points de 1/72 pouce</translation>
    </message>
    <message>
        <source>Two-Sided</source>
        <translation>Recto verso</translation>
    </message>
    <message>
        <source>Sheets Are Put Back</source>
        <translation>Feuilles remises</translation>
    </message>
    <message>
        <source>Pages per Sheet</source>
        <translation>Pages par feuille</translation>
    </message>
    <message>
        <source>Order on the Sheet</source>
        <translation>Ordre sur la feuille</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livret</translation>
    </message>
    <message>
        <source>Each Page, Times on a Side</source>
        <translation>Répétitions de chaque page</translation>
    </message>
    <message>
        <source>Border Around Pages</source>
        <translation>Cadre autour des pages</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>pages and ranges in ascending order, such as 1-4,7,9-</source>
        <translation>pages et plages en ordre croissant, par exemple 1-4,7,9-</translation>
    </message>
    <message>
        <source>Odd and Even Pages</source>
        <translation>Pages paires et impaires</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Fit to Page</source>
        <translation>Adapter à la page</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Mise à l’échelle</translation>
    </message>
    <message>
        <source>Size on the Page, in %</source>
        <translation>Taille sur la page, en %</translation>
    </message>
    <message>
        <source>Size of the Picture, in %</source>
        <translation>Taille de l’image, en %</translation>
    </message>
    <message>
        <source>Pixels per Inch</source>
        <translation>Pixels par pouce</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>En miroir</translation>
    </message>
    <message>
        <source>Left Margin</source>
        <translation>Marge gauche</translation>
    </message>
    <message>
        <source>Right Margin</source>
        <translation>Marge droite</translation>
    </message>
    <message>
        <source>Top Margin</source>
        <translation>Marge supérieure</translation>
    </message>
    <message>
        <source>Bottom Margin</source>
        <translation>Marge inférieure</translation>
    </message>
    <message>
        <source>Characters per Inch</source>
        <translation>Caractères par pouce</translation>
    </message>
    <message>
        <source>Lines per Inch</source>
        <translation>Lignes par pouce</translation>
    </message>
    <message>
        <source>Columns of Text</source>
        <translation>Colonnes de texte</translation>
    </message>
    <message>
        <source>Long Lines Continue</source>
        <translation>Retour à la ligne</translation>
    </message>
    <message>
        <source>Headers on Text Pages</source>
        <translation>En-têtes des pages de texte</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Assembler</translation>
    </message>
    <message>
        <source>Output Order</source>
        <translation>Ordre de sortie</translation>
    </message>
    <message>
        <source>Hold Until</source>
        <translation>Suspendre jusqu’à</translation>
    </message>
    <message>
        <source>a time HH:MM in UTC</source>
        <translation>une heure HH:MM en UTC</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>Banner Pages</source>
        <translation>Pages de séparation</translation>
    </message>
    <message>
        <source>one or two names of banner pages</source>
        <translation>un ou deux noms de pages de séparation</translation>
    </message>
    <message>
        <source>Billed To</source>
        <translation>Facturé à</translation>
    </message>
    <message>
        <source>a text of up to 255 bytes</source>
        <translation>un texte de 255 octets au plus</translation>
    </message>
    <message>
        <source>%1 UTC</source>
        <translation>%1 UTC</translation>
    </message>
    <message>
        <source>%1 UTC (%2 here)</source>
        <translation>%1 UTC (%2 ici)</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Noir et blanc</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Brouillon</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Supérieure</translation>
    </message>
    <message>
        <source>Canceled After, in Seconds</source>
        <translation>Annuler après (secondes)</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>a resolution such as 600dpi or 1200x600dpi</source>
        <translation>une résolution comme 600dpi ou 1200x600dpi</translation>
    </message>
    <message>
        <source>Output Bin</source>
        <translation>Bac de sortie</translation>
    </message>
    <message>
        <source>the name of an output bin</source>
        <translation>le nom d’un bac de sortie</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finition</translation>
    </message>
    <message>
        <source>numbers or names of finishings</source>
        <translation>des numéros ou noms de finitions</translation>
    </message>
    <message>
        <source>Paper Source</source>
        <translation>Source du papier</translation>
    </message>
    <message>
        <source>the name of a paper source</source>
        <translation>le nom d’une source du papier</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Type de papier</translation>
    </message>
    <message>
        <source>the name of a media type</source>
        <translation>le nom d’un type de papier</translation>
    </message>
    <message>
        <source>or %1</source>
        <translation>ou %1</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
</context>
<context>
    <name>JobColors</name>
    <message>
        <source>Shown in black and white, with your adjustments.</source>
        <translation>Affiché en noir et blanc, avec vos ajustements.</translation>
    </message>
    <message>
        <source>Shown in black and white.</source>
        <translation>Affiché en noir et blanc.</translation>
    </message>
    <message>
        <source>Shows your adjustments; colors on paper differ.</source>
        <translation>Vos ajustements sont montrés ; les couleurs diffèrent sur papier.</translation>
    </message>
    <message>
        <source>Colors on paper differ from those on the screen.</source>
        <translation>Sur papier, les couleurs diffèrent de l’écran.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>“%1: %2” is not shown.</source>
        <translation>« %1 : %2 » n’est pas montré.</translation>
    </message>
</context>
<context>
    <name>JobNames</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 et %n autre</numerusform>
            <numerusform>%1 et %n autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>JobRequests</name>
    <message>
        <source>The value of “%1” is too long for a print server; at most %2 bytes can be sent.</source>
        <translation>La valeur de « %1 » est trop longue pour un serveur d’impression ; %2 octets au plus peuvent être envoyés.</translation>
    </message>
    <message>
        <source>The value of “%1” has characters that a print server would drop: no line breaks, no “{” in front.</source>
        <translation>La valeur de « %1 » contient des caractères qu’un serveur d’impression rejetterait : pas de retour à la ligne, pas de « { » au début.</translation>
    </message>
</context>
<context>
    <name>LastUsed</name>
    <message>
        <source>The settings of the last job cannot be read, and stay as they are in “%1”: %2.</source>
        <translation>Les réglages de la dernière tâche sont illisibles et restent tels quels dans « %1 » : %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>« %1 » ne peut pas être supprimé : %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be written.</source>
        <translation>« %1 » ne peut pas être écrit.</translation>
    </message>
</context>
<context>
    <name>LeftSession</name>
    <message>
        <source>This printer has no option of the name %1 any more.</source>
        <translation>Cette imprimante n’a plus d’option nommée %1.</translation>
    </message>
    <message>
        <source>The option %1 has no choice %2 any more.</source>
        <translation>L’option %1 n’a plus de choix %2.</translation>
    </message>
</context>
<context>
    <name>ListPresets</name>
    <message>
        <source>all printers</source>
        <translation>toutes les imprimantes</translation>
    </message>
</context>
<context>
    <name>OptionLocks</name>
    <message>
        <source>“%1” is set by your administrator (%2).</source>
        <translation>« %1 » est fixé par votre administrateur (%2).</translation>
    </message>
    <message>
        <source>Set by your administrator (%1).</source>
        <translation>Fixé par votre administrateur (%1).</translation>
    </message>
</context>
<context>
    <name>OptionRequest</name>
    <message>
        <source>%1: the printer&apos;s settings do not allow this here; it became %2.</source>
        <translation>%1 : les réglages de l’imprimante ne le permettent pas ici ; la valeur est devenue %2.</translation>
    </message>
    <message>
        <source>%1: the printer&apos;s options cannot be set to this value.</source>
        <translation>%1 : les options de l’imprimante ne peuvent pas prendre cette valeur.</translation>
    </message>
    <message>
        <source>%1: this cannot be combined with %2.</source>
        <translation>%1 : impossible à combiner avec %2.</translation>
    </message>
    <message>
        <source>%1: this value is not allowed. Allowed: %2.</source>
        <translation>%1 : cette valeur n’est pas autorisée. Autorisé : %2.</translation>
    </message>
    <message>
        <source>%1=Custom: a value is missing. Allowed: %2.</source>
        <translation>%1=Custom : il manque une valeur. Autorisé : %2.</translation>
    </message>
    <message>
        <source>this printer has no such option. Options: %1. Job attributes: %2.</source>
        <translation>cette imprimante n’a pas cette option. Options : %1. Attributs de tâche : %2.</translation>
    </message>
    <message>
        <source>this printer has nothing to choose from for this.</source>
        <translation>cette imprimante n’a rien à proposer pour cela.</translation>
    </message>
    <message>
        <source>this value is not allowed. Allowed: %1.</source>
        <translation>cette valeur n’est pas autorisée. Autorisé : %1.</translation>
    </message>
    <message>
        <source>this printer has no paper sizes to choose from.</source>
        <translation>cette imprimante n’a pas de formats de papier à proposer.</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>« %1 » n’est pas autorisé. Autorisé : %2.</translation>
    </message>
    <message>
        <source>this printer prints on one side only. Allowed: %1. Two sides by hand: %2=%3, %2=%4.</source>
        <translation>cette imprimante n’imprime que d’un côté. Autorisé : %1. Recto verso manuel : %2=%3, %2=%4.</translation>
    </message>
    <message>
        <source>1 to %1</source>
        <translation>1 à %1</translation>
    </message>
    <message>
        <source>this printer turns sheets over itself. Allowed: %1=no; for two sides use %2.</source>
        <translation>cette imprimante retourne elle-même les feuilles. Autorisé : %1=no ; pour le recto verso, utilisez %2.</translation>
    </message>
</context>
<context>
    <name>PageChoice</name>
    <message>
        <source>The pages that were asked for are in none of the documents. Nothing was printed.</source>
        <translation>Les pages demandées ne sont dans aucun des documents. Rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>“%1: %2”</source>
        <translation>« %1 : %2 »</translation>
    </message>
    <message>
        <source>A booklet has two pages on each side, in an order of its own: %1 cannot be done with it.</source>
        <translation>Un livret a deux pages sur chaque face, dans son propre ordre : %1 n’est pas possible.</translation>
    </message>
    <message>
        <source>Each page is repeated %1 times on a side: %2 cannot be done with it.</source>
        <translation>Chaque page est répétée %1 fois sur une face : %2 n’est pas possible.</translation>
    </message>
</context>
<context>
    <name>PageTrouble</name>
    <message>
        <source>This page cannot be shown: it is damaged.</source>
        <translation>Cette page ne peut pas être affichée : elle est endommagée.</translation>
    </message>
    <message>
        <source>This page cannot be shown: it is too large.</source>
        <translation>Cette page ne peut pas être affichée : elle est trop grande.</translation>
    </message>
    <message>
        <source>This page cannot be shown: drawing it takes too long.</source>
        <translation>Cette page ne peut pas être affichée : son dessin prend trop de temps.</translation>
    </message>
    <message>
        <source>This page cannot be shown: the document is protected by a password.</source>
        <translation>Cette page ne peut pas être affichée : le document est protégé par un mot de passe.</translation>
    </message>
    <message>
        <source>This page cannot be shown: the file cannot be read.</source>
        <translation>Cette page ne peut pas être affichée : le fichier ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Pages cannot be shown: the program that draws them does not run.</source>
        <translation>Les pages ne peuvent pas être affichées : le programme qui les dessine ne fonctionne pas.</translation>
    </message>
</context>
<context>
    <name>PassedOn</name>
    <message>
        <source>The queue “%1” passes files on as they are: %2 cannot be done.</source>
        <translation>La file d’attente « %1 » transmet les fichiers tels quels : %2 n’est pas possible.</translation>
    </message>
    <message>
        <source>With “raw” files are passed on as they are: %1 cannot be done.</source>
        <translation>Avec « raw », les fichiers sont transmis tels quels : %1 n’est pas possible.</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Passed on as it is</source>
        <translation>Transmis tel quel</translation>
    </message>
</context>
<context>
    <name>PasswordFile</name>
    <message>
        <source>The password cannot be read from %1: %2.</source>
        <translation>Le mot de passe ne peut pas être lu dans %1 : %2.</translation>
    </message>
    <message>
        <source>The first line of %1 is empty; a password was expected.</source>
        <translation>La première ligne de %1 est vide ; un mot de passe était attendu.</translation>
    </message>
    <message>
        <source>The first line of %1 is no password: at most %2 bytes of UTF-8 were expected.</source>
        <translation>La première ligne de %1 n’est pas un mot de passe : au plus %2 octets en UTF-8 étaient attendus.</translation>
    </message>
    <message>
        <source>The password cannot be read from %1: it is no file.</source>
        <translation>Le mot de passe ne peut pas être lu dans %1 : ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: the file belongs to somebody else.</source>
        <translation>Le mot de passe dans %1 n’est pas utilisé : le fichier appartient à quelqu’un d’autre.</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: others than its owner may use the file (its mode is %2; chmod 600 takes that away).</source>
        <translation>Le mot de passe dans %1 n’est pas utilisé : d’autres que le propriétaire ont accès au fichier (son mode est %2 ; chmod 600 y remédie).</translation>
    </message>
    <message>
        <source>descriptor %1</source>
        <translation>descripteur %1</translation>
    </message>
</context>
<context>
    <name>Policy</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>« %1 » n’est pas autorisé. Autorisé : %2.</translation>
    </message>
    <message>
        <source>the path of a folder that begins with /</source>
        <translation>le chemin d’un dossier, commençant par /</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>un nombre de %1 à %2</translation>
    </message>
    <message>
        <source>the line is longer than %1 bytes</source>
        <translation>la ligne dépasse %1 octets</translation>
    </message>
    <message>
        <source>the line is not written in UTF-8</source>
        <translation>la ligne n’est pas écrite en UTF-8</translation>
    </message>
    <message>
        <source>the line has a character that cannot be seen</source>
        <translation>la ligne contient un caractère invisible</translation>
    </message>
    <message>
        <source>there are more problems</source>
        <translation>il y a d’autres problèmes</translation>
    </message>
    <message>
        <source>there are more than %1 sections</source>
        <translation>il y a plus de %1 sections</translation>
    </message>
    <message>
        <source>“%1” is no section, and what follows in it is left out. Allowed: %2.</source>
        <translation>« %1 » n’est pas une section, et ce qui y suit est ignoré. Autorisé : %2.</translation>
    </message>
    <message>
        <source>“%1” is no line of a policy. Expected: %2.</source>
        <translation>« %1 » n’est pas une ligne de règles. Attendu : %2.</translation>
    </message>
    <message>
        <source>“%1” stands before the first section. Begin with [all].</source>
        <translation>« %1 » se trouve avant la première section. Commencez par [all].</translation>
    </message>
    <message>
        <source>there is no key “%1”. Keys: %2.</source>
        <translation>il n’y a pas de clé « %1 ». Clés : %2.</translation>
    </message>
    <message>
        <source>%1 needs the keyword of an option or of a job attribute.</source>
        <translation>%1 demande le mot-clé d’une option ou d’un attribut de tâche.</translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation>la valeur est trop longue</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 bytes</source>
        <translation>le fichier n’est pas utilisé : il dépasse %1 octets</translation>
    </message>
    <message>
        <source>the file is not used: it is no text</source>
        <translation>le fichier n’est pas utilisé : ce n’est pas du texte</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 lines</source>
        <translation>le fichier n’est pas utilisé : il dépasse %1 lignes</translation>
    </message>
    <message>
        <source>it belongs to the user with the ID %1</source>
        <translation>il appartient à l’utilisateur numéro %1</translation>
    </message>
    <message>
        <source>others than its owner may write to it</source>
        <translation>d’autres que son propriétaire peuvent y écrire</translation>
    </message>
    <message>
        <source>nothing below this folder is used: %1</source>
        <translation>rien n’est utilisé sous ce dossier : %1</translation>
    </message>
    <message>
        <source>nothing in this folder is used: %1</source>
        <translation>rien n’est utilisé dans ce dossier : %1</translation>
    </message>
    <message>
        <source>only the first %1 files are used</source>
        <translation>seuls les %1 premiers fichiers sont utilisés</translation>
    </message>
    <message>
        <source>the file is not used: it is a link that leads out of its folder</source>
        <translation>le fichier n’est pas utilisé : c’est un lien qui sort de son dossier</translation>
    </message>
    <message>
        <source>the file is not used: %1</source>
        <translation>le fichier n’est pas utilisé : %1</translation>
    </message>
    <message>
        <source>the file is not used: it is no ordinary file</source>
        <translation>le fichier n’est pas utilisé : ce n’est pas un fichier ordinaire</translation>
    </message>
</context>
<context>
    <name>PpdCopy</name>
    <message>
        <source>The printer&apos;s options cannot be written to %1: %2</source>
        <translation>Les options de l’imprimante ne peuvent pas être écrites dans %1 : %2</translation>
    </message>
</context>
<context>
    <name>PpdFilters</name>
    <message>
        <source>The driver of this printer names the file “%1”, which only a print server may open. Print on the printer itself instead of into a file.</source>
        <translation>Le pilote de cette imprimante désigne le fichier « %1 », que seul un serveur d’impression peut ouvrir. Imprimez sur l’imprimante elle-même plutôt que dans un fichier.</translation>
    </message>
    <message>
        <source>The driver of this printer needs the program “%1”, which only a print server may run. Print on the printer itself instead of into a file.</source>
        <translation>Le pilote de cette imprimante a besoin du programme « %1 », que seul un serveur d’impression peut exécuter. Imprimez sur l’imprimante elle-même plutôt que dans un fichier.</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>A preset needs a name.</source>
        <translation>Un préréglage a besoin d’un nom.</translation>
    </message>
    <message>
        <source>The name of a preset has at most %1 characters.</source>
        <translation>Le nom d’un préréglage a %1 caractères au plus.</translation>
    </message>
    <message>
        <source>The name of a preset holds only characters that can be seen.</source>
        <translation>Le nom d’un préréglage ne contient que des caractères visibles.</translation>
    </message>
    <message>
        <source>“%1” is always there, and is no name of a preset.</source>
        <translation>« %1 » est toujours présent et ne peut pas être le nom d’un préréglage.</translation>
    </message>
</context>
<context>
    <name>PresetApplication</name>
    <message>
        <source>%1 is not possible on this printer. Allowed: %2.</source>
        <translation>%1 n’est pas possible sur cette imprimante. Autorisé : %2.</translation>
    </message>
    <message>
        <source>%1 is not possible together with the other settings.</source>
        <translation>%1 n’est pas possible avec les autres réglages.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings do not allow %1 here; it became %2.</source>
        <translation>Les réglages de l’imprimante ne permettent pas %1 ici ; la valeur est devenue %2.</translation>
    </message>
    <message>
        <source>%1 is not on this printer.</source>
        <translation>%1 n’existe pas sur cette imprimante.</translation>
    </message>
    <message>
        <source>A value of the printer&apos;s own settings (%1) is not possible here.</source>
        <translation>Une valeur des réglages propres à l’imprimante (%1) n’est pas possible ici.</translation>
    </message>
</context>
<context>
    <name>PresetFile</name>
    <message>
        <source>“%1”: expected was %2</source>
        <translation>« %1 » : il était attendu %2</translation>
    </message>
    <message>
        <source>it was written by a later version of this program</source>
        <translation>il a été écrit par une version plus récente de ce programme</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texte</translation>
    </message>
    <message>
        <source>at most %1 values</source>
        <translation>%1 valeurs au plus</translation>
    </message>
    <message>
        <source>the name of an option</source>
        <translation>le nom d’une option</translation>
    </message>
    <message>
        <source>a value or a list of values</source>
        <translation>une valeur ou une liste de valeurs</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>« %1 » ne peut pas être écrit : %2.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>expected was { … }</source>
        <translation>{ … } était attendu</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>il dépasse %1 octets</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>“%1” is damaged and is left as it is: %2.</source>
        <translation>« %1 » est endommagé et reste tel quel : %2.</translation>
    </message>
    <message>
        <source>There is no place to keep presets.</source>
        <translation>Il n’y a pas d’endroit où garder des préréglages.</translation>
    </message>
    <message>
        <source>Another program is writing presets. Try again.</source>
        <translation>Un autre programme écrit des préréglages. Réessayez.</translation>
    </message>
    <message>
        <source>no space left, or no permission</source>
        <translation>plus de place, ou pas d’autorisation</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>« %1 » ne peut pas être écrit : %2.</translation>
    </message>
    <message>
        <source>There is a preset of the name “%1” already.</source>
        <translation>Il y a déjà un préréglage nommé « %1 ».</translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>Il n’y a plus de préréglage nommé « %1 ».</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>« %1 » ne peut pas être supprimé : %2.</translation>
    </message>
    <message>
        <source>%1 (for everybody)</source>
        <translation>%1 (pour tous)</translation>
    </message>
</context>
<context>
    <name>PrintRequest</name>
    <message>
        <source>The printer “%1” is not offered by your administrator (%2).</source>
        <translation>L’imprimante « %1 » n’est pas proposée par votre administrateur (%2).</translation>
    </message>
    <message>
        <source>Printing to a file is not offered by your administrator (%1).</source>
        <translation>L’impression dans un fichier n’est pas proposée par votre administrateur (%1).</translation>
    </message>
</context>
<context>
    <name>PrinterFetching</name>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer en PDF</translation>
    </message>
</context>
<context>
    <name>PrinterTexts</name>
    <message>
        <source>connecting</source>
        <translation>connexion en cours</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>capot ouvert</translation>
    </message>
    <message>
        <source>driver not trusted by the server</source>
        <translation>le serveur ne se fie pas au pilote</translation>
    </message>
    <message>
        <source>driver missing on the server</source>
        <translation>pilote absent du serveur</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>éteinte</translation>
    </message>
    <message>
        <source>developer used up</source>
        <translation>révélateur épuisé</translation>
    </message>
    <message>
        <source>developer low</source>
        <translation>révélateur presque épuisé</translation>
    </message>
    <message>
        <source>door open</source>
        <translation>porte ouverte</translation>
    </message>
    <message>
        <source>fuser too hot</source>
        <translation>unité de fusion trop chaude</translation>
    </message>
    <message>
        <source>fuser too cold</source>
        <translation>unité de fusion trop froide</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>les nouvelles tâches sont suspendues</translation>
    </message>
    <message>
        <source>tray missing</source>
        <translation>bac absent</translation>
    </message>
    <message>
        <source>ink or toner used up</source>
        <translation>encre ou toner épuisé</translation>
    </message>
    <message>
        <source>ink or toner low</source>
        <translation>encre ou toner presque épuisé</translation>
    </message>
    <message>
        <source>waste container almost full</source>
        <translation>bac récupérateur presque plein</translation>
    </message>
    <message>
        <source>waste container full</source>
        <translation>bac récupérateur plein</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>plus de papier</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>bourrage papier</translation>
    </message>
    <message>
        <source>paper low</source>
        <translation>peu de papier</translation>
    </message>
    <message>
        <source>paper needed</source>
        <translation>papier à ajouter</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>mise en pause</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>non connectée</translation>
    </message>
    <message>
        <source>drum used up</source>
        <translation>tambour usé</translation>
    </message>
    <message>
        <source>drum nearly used up</source>
        <translation>tambour presque usé</translation>
    </message>
    <message>
        <source>output tray almost full</source>
        <translation>bac de sortie presque plein</translation>
    </message>
    <message>
        <source>output tray full</source>
        <translation>bac de sortie plein</translation>
    </message>
    <message>
        <source>output tray missing</source>
        <translation>bac de sortie absent</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pause</translation>
    </message>
    <message>
        <source>print queue full</source>
        <translation>file d’attente pleine</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>arrêtée en partie</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>arrêt en cours</translation>
    </message>
    <message>
        <source>not answering</source>
        <translation>ne répond pas</translation>
    </message>
    <message>
        <source>toner used up</source>
        <translation>toner épuisé</translation>
    </message>
    <message>
        <source>toner low</source>
        <translation>toner presque épuisé</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Prête</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêtée</translation>
    </message>
    <message>
        <source>Prints to a file</source>
        <translation>Imprime dans un fichier</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the words of a printer&apos;s state</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>No longer available</source>
        <translation>N’est plus disponible</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Arrêtée : %1</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>n’accepte pas de tâches</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>N’accepte pas de tâches</translation>
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
        <translation>Nom : %1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Emplacement : %1</translation>
    </message>
    <message>
        <source>Model: %1</source>
        <translation>Modèle : %1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <translation>État : %1</translation>
    </message>
    <message>
        <source>Message: %1</source>
        <translation>Message : %1</translation>
    </message>
    <message>
        <source>Address: %1</source>
        <translation>Adresse : %1</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Option inconnue : &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Options inconnues : %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Il manque une valeur après &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>&quot;%1&quot; ne prend pas de valeur.</translation>
    </message>
</context>
<context>
    <name>RefusalText</name>
    <message>
        <source>“%1: %2”</source>
        <translation>« %1 : %2 »</translation>
    </message>
    <message>
        <source> and </source>
        <translation> et </translation>
    </message>
    <message>
        <source>The printer&apos;s options cannot be set to %1.</source>
        <translation>Les options de l’imprimante ne peuvent pas prendre la valeur %1.</translation>
    </message>
    <message>
        <source>%1 cannot be combined with %2.</source>
        <translation>%1 ne peut pas être combiné avec %2.</translation>
    </message>
    <message>
        <source>Change to %1</source>
        <translation>Passer à %1</translation>
    </message>
</context>
<context>
    <name>RequestFromCommandLine</name>
    <message>
        <source>%1: the name is not written in UTF-8.</source>
        <translation>%1 : le nom n’est pas écrit en UTF-8.</translation>
    </message>
</context>
<context>
    <name>ResultFile</name>
    <message>
        <source>%1 is a folder; the name of a file was expected.</source>
        <translation>%1 est un dossier ; le nom d’un fichier était attendu.</translation>
    </message>
    <message>
        <source>%1 is a device or a pipe; the name of a file was expected.</source>
        <translation>%1 est un périphérique ou un tube ; le nom d’un fichier était attendu.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Écriture de %1 impossible : %2</translation>
    </message>
    <message>
        <source>%1 was written by another program meanwhile, and is left as it is. Print again to replace it, or name another file.</source>
        <translation>%1 a été écrit entre-temps par un autre programme et reste tel quel. Imprimez de nouveau pour le remplacer, ou indiquez un autre fichier.</translation>
    </message>
</context>
<context>
    <name>ResultPages</name>
    <message>
        <source>Nothing would be printed: what came out has no page.</source>
        <translation>Rien ne serait imprimé : le résultat n’a aucune page.</translation>
    </message>
</context>
<context>
    <name>SavedAsPdf</name>
    <message>
        <source>A PDF file is neither held nor printed: %1 cannot be done.</source>
        <translation>Un fichier PDF n’est ni suspendu ni imprimé : %1 n’est pas possible.</translation>
    </message>
</context>
<context>
    <name>ServerAddress</name>
    <message>
        <source>this computer</source>
        <translation>cet ordinateur</translation>
    </message>
</context>
<context>
    <name>ServerJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>L’impression a été annulée.</translation>
    </message>
    <message>
        <source>The print server did not say which job it has made.</source>
        <translation>Le serveur d’impression n’a pas dit quelle tâche il a créée.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Lecture de %1 impossible : %2.</translation>
    </message>
    <message>
        <source>%1 The printer says: %2</source>
        <translation>%1 L’imprimante signale : %2</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has been printed.</source>
        <translation>La tâche %1 de l’essai précédent a été imprimée.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is held in the queue.</source>
        <translation>La tâche %1 de l’essai précédent est suspendue dans la file d’attente.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is stopped in the queue.</source>
        <translation>La tâche %1 de l’essai précédent est arrêtée dans la file d’attente.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is in the queue and will be printed.</source>
        <translation>La tâche %1 de l’essai précédent est dans la file d’attente et sera imprimée.</translation>
    </message>
    <message>
        <source>%1 The job had been moved from the queue “%2” to “%3”.</source>
        <translation>%1 La tâche avait été déplacée de la file d’attente « %2 » vers « %3 ».</translation>
    </message>
    <message>
        <source>%1 Nothing was printed.</source>
        <translation>%1 Rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>The printer “%1” wants a user and a password; none was given. Nothing was printed.</source>
        <translation>L’imprimante « %1 » demande un utilisateur et un mot de passe ; aucun n’a été donné. Rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>The queue “%1” is not there any more. Nothing was printed.</source>
        <translation>La file d’attente « %1 » n’existe plus. Rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment. Nothing was printed.</source>
        <translation>La file d’attente « %1 » n’accepte pas de tâches en ce moment. Rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment: %2. Nothing was printed.</source>
        <translation>La file d’attente « %1 » n’accepte pas de tâches en ce moment : %2. Rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>The options of the printer “%1” have changed at its server. Nothing was printed.</source>
        <translation>Les options de l’imprimante « %1 » ont changé sur son serveur. Rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>%1 Whether job %2 of the earlier try was printed is not known yet, so nothing was sent again.</source>
        <translation>%1 On ne sait pas encore si la tâche %2 de l’essai précédent a été imprimée ; rien n’a donc été renvoyé.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has got %2 of its %3 documents to the printer. Print the others by themselves, or everything once more.</source>
        <translation>La tâche %1 de l’essai précédent a transmis %2 de ses %3 documents à l’imprimante. Imprimez les autres à part, ou tout de nouveau.</translation>
    </message>
    <message>
        <source>%1 Nothing was printed, but a job without a document may be at the print server. It could not be looked for: %2</source>
        <translation>%1 Rien n’a été imprimé, mais une tâche sans document peut se trouver sur le serveur d’impression. Elle n’a pas pu être recherchée : %2</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; pages that the printer has already may still come out.</source>
        <translation>%1 La tâche %2 a été annulée ; des pages que l’imprimante a déjà peuvent encore sortir.</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; nothing was printed.</source>
        <translation>%1 La tâche %2 a été annulée ; rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>Job %1 could not be canceled and may still be printed. %2</source>
        <translation>La tâche %1 n’a pas pu être annulée et peut encore être imprimée. %2</translation>
    </message>
    <message>
        <source>%1 Job %2 could not be canceled and may still be printed. %3</source>
        <translation>%1 La tâche %2 n’a pas pu être annulée et peut encore être imprimée. %3</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server, without its whole document. It could not be canceled: %3</source>
        <translation>%1 La tâche %2 est peut-être encore sur le serveur d’impression, sans tout son document. Elle n’a pas pu être annulée : %3</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server with some of its documents, and may print these. It could not be canceled: %3 Printing again looks for it first.</source>
        <translation>%1 La tâche %2 est peut-être encore sur le serveur d’impression avec une partie de ses documents, et peut les imprimer. Elle n’a pas pu être annulée : %3 Une nouvelle impression la recherche d’abord.</translation>
    </message>
    <message>
        <source>The printer “%1” does not accept this user and password.</source>
        <translation>L’imprimante « %1 » n’accepte pas cet utilisateur et ce mot de passe.</translation>
    </message>
    <message>
        <source>%1 The print server does not know job %2 any more. It was probably not printed.</source>
        <translation>%1 Le serveur d’impression ne connaît plus la tâche %2. Elle n’a probablement pas été imprimée.</translation>
    </message>
    <message>
        <source>%1 The document had been sent, so job %2 may be printed or not. Printing again looks for it first.</source>
        <translation>%1 Le document avait été envoyé, donc la tâche %2 peut être imprimée ou non. Une nouvelle impression la recherche d’abord.</translation>
    </message>
    <message>
        <source>Job %1 has left the queue “%2”, whose server keeps no record of it. So whether it has been printed is not known.</source>
        <translation>La tâche %1 a quitté la file d’attente « %2 », dont le serveur ne garde pas de trace. On ne sait donc pas si elle a été imprimée.</translation>
    </message>
    <message>
        <source>Job %1 was handed over completely. %2 So whether it has been printed is not known.</source>
        <translation>La tâche %1 a été remise en entier. %2 On ne sait donc pas si elle a été imprimée.</translation>
    </message>
    <message>
        <source>The print server gives job %1 the state %2, which is not known.</source>
        <translation>Le serveur d’impression donne à la tâche %1 l’état %2, qui n’est pas connu.</translation>
    </message>
    <message>
        <source>Job %1 was handed over to the queue “%2”.</source>
        <translation>La tâche %1 a été remise à la file d’attente « %2 ».</translation>
    </message>
    <message>
        <source>Job %1 was stopped. It is still in the queue, where it can be released or canceled.</source>
        <translation>La tâche %1 a été arrêtée. Elle est encore dans la file d’attente, où elle peut être libérée ou annulée.</translation>
    </message>
    <message>
        <source>Job %1 is held in the queue “%2”.</source>
        <translation>La tâche %1 est suspendue dans la file d’attente « %2 ».</translation>
    </message>
    <message>
        <source>Job %1 waits in the queue “%2”, which is stopped.</source>
        <translation>La tâche %1 attend dans la file d’attente « %2 », qui est arrêtée.</translation>
    </message>
    <message>
        <source>Job %1 is in the queue “%2”.</source>
        <translation>La tâche %1 est dans la file d’attente « %2 ».</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. Whether anything was on its pages is not known.</source>
        <translation>Envoyé à « %1 » comme tâche %2. On ne sait pas si ses pages contenaient quelque chose.</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. That queue passes files on as they are: what was set for the printer or the pages had no effect there.</source>
        <translation>Envoyé à « %1 » comme tâche %2. Cette file d’attente transmet les fichiers tels quels : ce qui était réglé pour l’imprimante ou les pages n’y a pas eu d’effet.</translation>
    </message>
    <message>
        <source>Printed on “%1” as job %2.</source>
        <translation>Imprimé sur « %1 » comme tâche %2.</translation>
    </message>
    <message>
        <source>Job %1 failed: the printer or its server gave it up.</source>
        <translation>La tâche %1 a échoué : l’imprimante ou son serveur l’a abandonnée.</translation>
    </message>
    <message>
        <source>Job %1 was canceled at the printer or its server.</source>
        <translation>La tâche %1 a été annulée sur l’imprimante ou son serveur.</translation>
    </message>
    <message>
        <source>Job %1 was printed with %2 of its %3 documents only.</source>
        <translation>La tâche %1 a été imprimée avec seulement %2 de ses %3 documents.</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Préparation…</translation>
    </message>
    <message>
        <source>Sending, %1 %…</source>
        <translation>Envoi, %1 %…</translation>
    </message>
    <message>
        <source>Asking the print server…</source>
        <translation>Interrogation du serveur d’impression…</translation>
    </message>
    <message>
        <source>Waiting in the queue…</source>
        <translation>En attente dans la file…</translation>
    </message>
    <message>
        <source>Held in the queue</source>
        <translation>Suspendue dans la file d’attente</translation>
    </message>
    <message>
        <source>Printing page %1…</source>
        <translation>Impression de la page %1…</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Impression…</translation>
    </message>
    <message>
        <source>The printer is stopped.</source>
        <translation>L’imprimante est arrêtée.</translation>
    </message>
    <message>
        <source>The printer is stopped: %1</source>
        <translation>L’imprimante est arrêtée : %1</translation>
    </message>
    <message>
        <source>First sides: %1</source>
        <translation>Premier passage : %1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>Second passage : %1</translation>
    </message>
    <message>
        <source>%1 The queue “%2” has no driver, and would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1 La file d’attente « %2 » n’a pas de pilote et aurait envoyé les documents en un seul flux. Chacun est donc une tâche à part : %3.</translation>
    </message>
    <message>
        <source>%1 With “raw” the queue “%2” would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1 Avec « raw », la file d’attente « %2 » aurait envoyé les documents en un seul flux. Chacun est donc une tâche à part : %3.</translation>
    </message>
    <message>
        <source>Job %1 was canceled or given up at the printer or its server.</source>
        <translation>La tâche %1 a été annulée ou abandonnée sur l’imprimante ou son serveur.</translation>
    </message>
    <message>
        <source>Job %1 is still in the queue.</source>
        <translation>La tâche %1 est encore dans la file d’attente.</translation>
    </message>
    <message>
        <source>%1 Documents that were sent before, each as a job of its own: %2 of %3. Printing again sends the others.</source>
        <translation>%1 Documents envoyés auparavant, chacun comme tâche à part : %2 sur %3. Une nouvelle impression envoie les autres.</translation>
    </message>
    <message>
        <source>Job %1 was canceled; pages that the printer has already may still come out.</source>
        <translation>La tâche %1 a été annulée ; des pages que l’imprimante a déjà peuvent encore sortir.</translation>
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
        <translation>Le certificat du serveur d’impression « %1 » n’est plus celui d’avant : quelqu’un l’a remplacé, ou s’interpose. S’il a été remplacé à dessein, supprimez le fichier %2.</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not the one that it had before: somebody has replaced it, or stands in between. If it was replaced on purpose, remove the line “%2” from the file %3.</source>
        <translation>Le certificat du serveur d’impression « %1 » n’est plus celui d’avant : quelqu’un l’a remplacé, ou s’interpose. S’il a été remplacé à dessein, supprimez la ligne « %2 » du fichier %3.</translation>
    </message>
    <message>
        <source>The print server “%1” cannot be reached.</source>
        <translation>Le serveur d’impression « %1 » est injoignable.</translation>
    </message>
    <message>
        <source>The print server “%1” does not answer.</source>
        <translation>Le serveur d’impression « %1 » ne répond pas.</translation>
    </message>
    <message>
        <source>The print server “%1” broke the connection.</source>
        <translation>Le serveur d’impression « %1 » a rompu la connexion.</translation>
    </message>
    <message>
        <source>What “%1” answers is not what a print server says.</source>
        <translation>Ce que répond « %1 » n’est pas la réponse d’un serveur d’impression.</translation>
    </message>
    <message>
        <source>What “%1” answers is larger than anything that a print server has to say.</source>
        <translation>La réponse de « %1 » dépasse tout ce qu’un serveur d’impression peut avoir à dire.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>Le serveur d’impression « %1 » demande un utilisateur et un mot de passe.</translation>
    </message>
    <message>
        <source>The print server “%1” does not accept this user and password.</source>
        <translation>Le serveur d’impression « %1 » n’accepte pas cet utilisateur et ce mot de passe.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password; none was given.</source>
        <translation>Le serveur d’impression « %1 » demande un utilisateur et un mot de passe ; aucun n’a été donné.</translation>
    </message>
    <message>
        <source>The print server “%1” does not allow you this.</source>
        <translation>Le serveur d’impression « %1 » ne vous le permet pas.</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not to be trusted.</source>
        <translation>Le certificat du serveur d’impression « %1 » n’est pas digne de confiance.</translation>
    </message>
    <message>
        <source>The print server “%1” wants an encrypted connection, which could not be made.</source>
        <translation>Le serveur d’impression « %1 » demande une connexion chiffrée, qui n’a pas pu être établie.</translation>
    </message>
    <message>
        <source>The print server “%1” knows nothing of it.</source>
        <translation>Le serveur d’impression « %1 » n’en sait rien.</translation>
    </message>
    <message>
        <source>The print server “%1” refuses.</source>
        <translation>Le serveur d’impression « %1 » refuse.</translation>
    </message>
    <message>
        <source>The document cannot be read: %1</source>
        <translation>Le document ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>“%1” cannot be reached.</source>
        <translation>« %1 » est injoignable.</translation>
    </message>
    <message>
        <source>No answer from “%1”.</source>
        <translation>Pas de réponse de « %1 ».</translation>
    </message>
    <message>
        <source>“%1” broke the connection.</source>
        <translation>« %1 » a rompu la connexion.</translation>
    </message>
    <message>
        <source>“%1” wants a password.</source>
        <translation>« %1 » demande un mot de passe.</translation>
    </message>
    <message>
        <source>Wrong user or password.</source>
        <translation>Utilisateur ou mot de passe incorrect.</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints, in a way that is not possible here.</source>
        <translation>Le serveur d’impression « %1 » veut savoir qui imprime, d’une manière qui n’est pas possible ici.</translation>
    </message>
</context>
<context>
    <name>SettingsIndex</name>
    <message>
        <source>Copies</source>
        <translation>Exemplaires</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>All Options</source>
        <translation>Toutes les options</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
</context>
<context>
    <name>SharedFile</name>
    <message>
        <source>“%1” cannot be read: %2. It was not changed.</source>
        <translation>« %1 » ne peut pas être lu : %2. Le fichier n’a pas été modifié.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. It was not changed.</source>
        <translation>« %1 » ne peut pas être écrit : %2. Le fichier n’a pas été modifié.</translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation>le lien ne mène nulle part</translation>
    </message>
    <message>
        <source>the link leads to a file of somebody else</source>
        <translation>le lien mène à un fichier de quelqu’un d’autre</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation>il appartient à quelqu’un d’autre</translation>
    </message>
    <message>
        <source>another program of ours is writing it</source>
        <translation>un autre de nos programmes est en train de l’écrire</translation>
    </message>
    <message>
        <source>nothing can be written into its folder</source>
        <translation>rien ne peut être écrit dans son dossier</translation>
    </message>
    <message>
        <source>other programs write it all the time</source>
        <translation>d’autres programmes l’écrivent sans cesse</translation>
    </message>
</context>
<context>
    <name>SheetMarks</name>
    <message>
        <source>The back of this sheet stays empty: only one side is printed.</source>
        <translation>Le verso de cette feuille reste vide : une seule face est imprimée.</translation>
    </message>
</context>
<context>
    <name>SheetTexts</name>
    <message>
        <source>“%1”</source>
        <translation>« %1 »</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 page</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 pages</translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1 feuille</translation>
    </message>
    <message>
        <source>%1 sheets</source>
        <translation>%1 feuilles</translation>
    </message>
    <message>
        <source>“%1” has %2</source>
        <translation>« %1 » a %2</translation>
    </message>
    <message>
        <source>The document has %1</source>
        <translation>Le document a %1</translation>
    </message>
    <message>
        <source>the document has %1</source>
        <translation>le document a %1</translation>
    </message>
    <message>
        <source>%1 and later</source>
        <translation>%1 et suivantes</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1; %2 is not in it.</source>
        <translation>%1 ; %2 n’en fait pas partie.</translation>
    </message>
    <message>
        <source>%1; %2 are not in it.</source>
        <translation>%1 ; %2 n’en font pas partie.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only even pages were chosen.</source>
        <translation>Rien ne serait imprimé : %1, et seules les pages paires sont choisies.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only odd pages were chosen.</source>
        <translation>Rien ne serait imprimé : %1, et seules les pages impaires sont choisies.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and none of them is left.</source>
        <translation>Rien ne serait imprimé : %1, et il n’en reste aucune.</translation>
    </message>
    <message>
        <source>“%1” takes too long to be shown. It can be printed without a preview.</source>
        <translation>« %1 » prend trop de temps à afficher. L’impression est possible sans aperçu.</translation>
    </message>
    <message>
        <source>“%1” is too large to be shown. It can be printed without a preview.</source>
        <translation>« %1 » est trop grand pour être affiché. L’impression est possible sans aperçu.</translation>
    </message>
    <message>
        <source>“%1” could not be laid out, so there is no preview. Printing it may work all the same.</source>
        <translation>« %1 » n’a pas pu être mis en page, il n’y a donc pas d’aperçu. L’impression peut réussir malgré tout.</translation>
    </message>
    <message>
        <source>the back stays empty, because only one side is printed</source>
        <translation>le verso reste vide, car une seule face est imprimée</translation>
    </message>
    <message>
        <source>the backs stay empty, because each document has only one side</source>
        <translation>les versos restent vides, car chaque document n’a qu’une face</translation>
    </message>
    <message>
        <source>the back stays empty where a document has only one side: %1</source>
        <translation>le verso reste vide où un document n’a qu’une face : %1</translation>
    </message>
    <message>
        <source>could not be counted</source>
        <translation>n’ont pas pu être comptées</translation>
    </message>
    <message>
        <source>%1, two-sided by hand</source>
        <translation>%1, recto verso manuel</translation>
    </message>
    <message>
        <source>%1, and 1 cover sheet</source>
        <translation>%1 et 1 page de garde</translation>
    </message>
    <message>
        <source>%1, and %2 cover sheets</source>
        <translation>%1 et %2 pages de garde</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>%1 × %2 copies = %3</source>
        <translation>%1 × %2 exemplaires = %3</translation>
    </message>
    <message>
        <source>%1 at %2 %</source>
        <translation>%1 à %2 %</translation>
    </message>
    <message>
        <source>Sheets</source>
        <translation>Feuilles</translation>
    </message>
    <message>
        <source>Pages Not There</source>
        <translation>Pages absentes</translation>
    </message>
    <message>
        <source>Printed Size</source>
        <translation>Taille imprimée</translation>
    </message>
</context>
<context>
    <name>SheetView</name>
    <message>
        <source>cover sheet</source>
        <translation>page de garde</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>printed</source>
        <translation>imprimé</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>page %1</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>pages %1</translation>
    </message>
    <message>
        <source>%L1 back</source>
        <translation>%L1 verso</translation>
    </message>
    <message>
        <source>%L1 front</source>
        <translation>%L1 recto</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Sheet %L1: %2</source>
        <translation>Feuille %L1 : %2</translation>
    </message>
    <message>
        <source>Sheet %L1, back: %2</source>
        <translation>Feuille %L1, verso : %2</translation>
    </message>
    <message>
        <source>Sheet %L1, front: %2</source>
        <translation>Feuille %L1, recto : %2</translation>
    </message>
    <message>
        <source>%1, landscape</source>
        <translation>%1, paysage</translation>
    </message>
    <message>
        <source>Bound at the left edge</source>
        <translation>Relié au bord gauche</translation>
    </message>
    <message>
        <source>Bound at the top edge</source>
        <translation>Relié au bord supérieur</translation>
    </message>
    <message>
        <source>Bound at the right edge</source>
        <translation>Relié au bord droit</translation>
    </message>
    <message>
        <source>Bound at the bottom edge</source>
        <translation>Relié au bord inférieur</translation>
    </message>
</context>
<context>
    <name>StartPresets</name>
    <message>
        <source>Last job: %1</source>
        <translation>Dernière tâche : %1</translation>
    </message>
    <message>
        <source>There is no preset “%1”, nor any other for this printer.</source>
        <translation>Il n’y a pas de préréglage « %1 », ni aucun autre pour cette imprimante.</translation>
    </message>
    <message>
        <source>There is no preset “%1” for this printer. Presets: %2.</source>
        <translation>Il n’y a pas de préréglage « %1 » pour cette imprimante. Préréglages : %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>StartValues</name>
    <message>
        <source>Default of the queue “%1”: %2</source>
        <translation>Valeur par défaut de la file d’attente « %1 » : %2</translation>
    </message>
    <message>
        <source>Default of your administrator: %1</source>
        <translation>Valeur par défaut de votre administrateur : %1</translation>
    </message>
    <message>
        <source>The queue “%1” adds this to each job; what it does is not known here: %2.</source>
        <translation>La file d’attente « %1 » ajoute ceci à chaque tâche ; son effet n’est pas connu ici : %2.</translation>
    </message>
    <message>
        <source>This printer has no option of this name: %1.</source>
        <translation>Cette imprimante n’a pas d’option de ce nom : %1.</translation>
    </message>
</context>
<context>
    <name>Summary</name>
    <message>
        <source>Copies</source>
        <translation>Exemplaires</translation>
    </message>
    <message>
        <source>%1, collated</source>
        <translation>%1, assemblés</translation>
    </message>
    <message>
        <source>%1, not collated</source>
        <translation>%1, non assemblés</translation>
    </message>
    <message>
        <source>Also in the job</source>
        <translation>Également dans la tâche</translation>
    </message>
    <message>
        <source>%1 × %2 inches</source>
        <translation>%1 × %2 pouces</translation>
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
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1 :</translation>
    </message>
</context>
<context>
    <name>TerminalQuestions</name>
    <message>
        <source>The printer at “%1” wants a user and a password.</source>
        <translation>L’imprimante à l’adresse « %1 » demande un utilisateur et un mot de passe.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>Le serveur d’impression « %1 » demande un utilisateur et un mot de passe.</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others may read them.</source>
        <translation>La connexion n’est pas chiffrée : d’autres personnes peuvent les lire.</translation>
    </message>
    <message>
        <source>User [%1]: </source>
        <translation>Utilisateur [%1] : </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Mot de passe : </translation>
    </message>
    <message>
        <source>That is not the password.</source>
        <translation>Ce n’est pas le mot de passe.</translation>
    </message>
    <message>
        <source>Password of “%1”: </source>
        <translation>Mot de passe de « %1 » : </translation>
    </message>
    <message>
        <source>Enter prints the other sides, Ctrl+D leaves them unprinted: </source>
        <translation>Entrée imprime les autres faces, Ctrl+D les laisse vierges : </translation>
    </message>
</context>
<context>
    <name>TextFormat</name>
    <message>
        <source>The margins, columns and characters per inch that were asked for leave no room for a text on this paper (%1 × %2 points).</source>
        <translation>Les marges, colonnes et caractères par pouce demandés ne laissent pas de place au texte sur ce papier (%1 × %2 points).</translation>
    </message>
</context>
<context>
    <name>UnattendedRun</name>
    <message>
        <source>%1 So the printer “%2” could not be asked for.</source>
        <translation>%1 L’imprimante « %2 » n’a donc pas pu être interrogée.</translation>
    </message>
    <message>
        <source>%1 Printers that need no print server: %2.</source>
        <translation>%1 Imprimantes qui n’ont pas besoin de serveur d’impression : %2.</translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>Interrompu.</translation>
    </message>
    <message>
        <source>The preset “%1” is kept.</source>
        <translation>Le préréglage « %1 » est enregistré.</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Tâche %1 : %2</translation>
    </message>
    <message>
        <source>Nothing was printed.</source>
        <translation>Rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>It waits until the instructions have been followed. Release it with: %1</source>
        <translation>Elle attend que les instructions soient suivies. Libérez-la avec : %1</translation>
    </message>
    <message>
        <source>Printed to standard output</source>
        <translation>Imprimé sur la sortie standard</translation>
    </message>
    <message>
        <source>The result could not be written to standard output: %1.</source>
        <translation>Le résultat n’a pas pu être écrit sur la sortie standard : %1.</translation>
    </message>
    <message>
        <source>No preset was kept.</source>
        <translation>Aucun préréglage n’a été enregistré.</translation>
    </message>
</context>
<context>
    <name>UserQueuesFile</name>
    <message>
        <source>The file of lpoptions is packed, and cannot be changed here.</source>
        <translation>Le fichier de lpoptions est compressé et ne peut pas être modifié ici.</translation>
    </message>
    <message>
        <source>“%1” is your default printer, and stays: choose another one first.</source>
        <translation>« %1 » est votre imprimante par défaut et le reste : choisissez-en d’abord une autre.</translation>
    </message>
    <message>
        <source>“%1” is no name that other programs can print to.</source>
        <translation>« %1 » n’est pas un nom sous lequel d’autres programmes peuvent imprimer.</translation>
    </message>
    <message>
        <source>“%1” would have more settings than other programs can read.</source>
        <translation>« %1 » aurait plus de réglages que d’autres programmes ne peuvent en lire.</translation>
    </message>
    <message>
        <source>Other programs would read the value of “%1” as another one.</source>
        <translation>D’autres programmes liraient la valeur de « %1 » comme une autre.</translation>
    </message>
    <message>
        <source>“%1” is no name of an option for other programs.</source>
        <translation>« %1 » n’est pas un nom d’option pour d’autres programmes.</translation>
    </message>
    <message>
        <source>The value of “%1” has a line break or a control character, which no option for other programs can have.</source>
        <translation>La valeur de « %1 » contient un retour à la ligne ou un caractère de contrôle, ce qu’aucune option d’autres programmes ne peut avoir.</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is.</source>
        <translation>« %1 » a été modifié par un autre programme et reste tel quel.</translation>
    </message>
</context>
<context>
    <name>corvana::AttributeEditor</name>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Autre…</translation>
    </message>
</context>
<context>
    <name>corvana::AttributeRows</name>
    <message>
        <source>&amp;More</source>
        <translation>Pl&amp;us</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>More, %1</source>
        <translation>Plus, %1</translation>
    </message>
</context>
<context>
    <name>corvana::ChangeMarks</name>
    <message>
        <source>Changed. %1</source>
        <translation>Modifié. %1</translation>
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
        <translation>« %1 : %2 »</translation>
    </message>
    <message>
        <source>%1 to %2 points</source>
        <translation>%1 à %2 points</translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation>%1 à %2 caractères</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>“%1” is not possible for %2. Allowed: %3.</source>
        <translation>« %1 » n’est pas possible pour %2. Autorisé : %3.</translation>
    </message>
    <message>
        <source>This is not possible for %1. Allowed: %2.</source>
        <translation>Ce n’est pas possible pour %1. Autorisé : %2.</translation>
    </message>
    <message>
        <source>Cannot be combined with %1.</source>
        <translation>Ne peut pas être combiné avec %1.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> et </translation>
    </message>
</context>
<context>
    <name>corvana::ColorsRow</name>
    <message>
        <source>Hold to Compare</source>
        <translation>Maintenir pour comparer</translation>
    </message>
    <message>
        <source>While it is held, the document is shown as it is, without adjustments.</source>
        <translation>Tant que le bouton est enfoncé, le document est montré tel quel, sans ajustements.</translation>
    </message>
</context>
<context>
    <name>corvana::ComingDocuments</name>
    <message>
        <source>Standard input is being read.</source>
        <translation>Lecture de l’entrée standard en cours.</translation>
    </message>
    <message>
        <source>%1 is being read.</source>
        <translation>Lecture de %1 en cours.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>corvana::Conversion</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Lecture de %1 impossible : %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Écriture de %1 impossible : %2</translation>
    </message>
</context>
<context>
    <name>corvana::CountsRow</name>
    <message>
        <source>Sheets</source>
        <translation>Feuilles</translation>
    </message>
    <message>
        <source>Show Preview</source>
        <translation>Afficher l’aperçu</translation>
    </message>
    <message>
        <source>Hide Preview</source>
        <translation>Masquer l’aperçu</translation>
    </message>
</context>
<context>
    <name>corvana::CopiesEditor</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>« %1 » n’est pas autorisé. Autorisé : %2.</translation>
    </message>
</context>
<context>
    <name>corvana::CredentialsDialog</name>
    <message>
        <source>Log In to Print</source>
        <translation>Se connecter pour imprimer</translation>
    </message>
    <message>
        <source>The printer wants to know who prints. User and password are sent to it through the print server “%1”, and are forgotten when the print dialog closes.</source>
        <translation>L’imprimante veut savoir qui imprime. L’utilisateur et le mot de passe lui sont envoyés par le serveur d’impression « %1 », et sont oubliés à la fermeture de la boîte d’impression.</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints. User and password are forgotten when the print dialog closes.</source>
        <translation>Le serveur d’impression « %1 » veut savoir qui imprime. L’utilisateur et le mot de passe sont oubliés à la fermeture de la boîte d’impression.</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Utilisateur :</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>&amp;Mot de passe :</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others on the network may read the password.</source>
        <translation>La connexion n’est pas chiffrée : d’autres personnes du réseau peuvent lire le mot de passe.</translation>
    </message>
</context>
<context>
    <name>corvana::CustomPaperSize</name>
    <message>
        <source>From %1 to %2</source>
        <translation>De %1 à %2</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>Largeur du papier</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>Hauteur du papier</translation>
    </message>
    <message>
        <source>Unit of the paper size</source>
        <translation>Unité du format de papier</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>pouces</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentArea</name>
    <message>
        <source>Print this document earlier</source>
        <translation>Imprimer ce document plus tôt</translation>
    </message>
    <message>
        <source>Print this document later</source>
        <translation>Imprimer ce document plus tard</translation>
    </message>
    <message>
        <source>Do not print this document</source>
        <translation>Ne pas imprimer ce document</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Print further documents in the same job</source>
        <translation>Imprimer d’autres documents dans la même tâche</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Ajouter…</translation>
    </message>
    <message>
        <source>Documents in the order in which they are printed</source>
        <translation>Documents dans l’ordre d’impression</translation>
    </message>
    <message numerus="yes">
        <source>%n documents, printed in this order:</source>
        <translation>
            <numerusform>%n document, imprimé dans cet ordre :</numerusform>
            <numerusform>%n documents, imprimés dans cet ordre :</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Choose Documents to Print</source>
        <translation>Choisir les documents à imprimer</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentPasswordDialog</name>
    <message>
        <source>Protected Document</source>
        <translation>Document protégé</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. With its owner&apos;s password it can be printed.</source>
        <translation>« %1 » n’autorise pas l’impression. Le mot de passe de son propriétaire la permet.</translation>
    </message>
    <message>
        <source>“%1” is protected: enter its password. The password is forgotten when the print dialog closes.</source>
        <translation>« %1 » est protégé : saisissez son mot de passe. Il est oublié à la fermeture de la boîte d’impression.</translation>
    </message>
    <message>
        <source>That is not the password. Try again.</source>
        <translation>Ce n’est pas le mot de passe. Réessayez.</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Mot de passe :</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>corvana::FileJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>L’impression a été annulée.</translation>
    </message>
    <message>
        <source>%1 is the document itself; name another file.</source>
        <translation>%1 est le document lui-même ; indiquez un autre fichier.</translation>
    </message>
    <message>
        <source>Printed to %1</source>
        <translation>Imprimé dans %1</translation>
    </message>
</context>
<context>
    <name>corvana::FilterChain</name>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1 ne peut pas être lancé : %2</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: how many pages it has could not be found out.</source>
        <translation>Le document n’a pas pu être converti pour l’imprimante : son nombre de pages n’a pas pu être déterminé.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Écriture de %1 impossible : %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>L’impression a été annulée.</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: that took too long.</source>
        <translation>Le document n’a pas pu être converti pour l’imprimante : cela a pris trop de temps.</translation>
    </message>
    <message>
        <source>The filter chain of CUPS crashed.</source>
        <translation>La chaîne de filtres de CUPS a planté.</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: %1</source>
        <translation>Le document n’a pas pu être converti pour l’imprimante : %1</translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>code de sortie %1</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: nothing came out. %1</source>
        <translation>Le document n’a pas pu être converti pour l’imprimante : il n’en est rien sorti. %1</translation>
    </message>
    <message>
        <source>The documents could not be put together: %1 is incomplete. Is the disk full?</source>
        <translation>Les documents n’ont pas pu être réunis : %1 est incomplet. Le disque est-il plein ?</translation>
    </message>
</context>
<context>
    <name>corvana::FindField</name>
    <message>
        <source>Find a setting (Ctrl+F)</source>
        <translation>Rechercher un réglage (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Rechercher un réglage</translation>
    </message>
    <message>
        <source>Type a name, then go to a setting with Enter</source>
        <translation>Saisissez un nom, puis allez à un réglage avec Entrée</translation>
    </message>
    <message>
        <source>Type the name of a setting or of a choice.</source>
        <translation>Saisissez le nom d’un réglage ou d’un choix.</translation>
    </message>
</context>
<context>
    <name>corvana::FindModel</name>
    <message>
        <source>%1, on %2</source>
        <translation>%1, sur %2</translation>
    </message>
    <message>
        <source>%1, %2, on %3</source>
        <translation>%1, %2, sur %3</translation>
    </message>
</context>
<context>
    <name>corvana::FindPopup</name>
    <message>
        <source>Settings that were found</source>
        <translation>Réglages trouvés</translation>
    </message>
    <message>
        <source>1 setting found</source>
        <translation>1 réglage trouvé</translation>
    </message>
    <message>
        <source>%1 settings found</source>
        <translation>%1 réglages trouvés</translation>
    </message>
</context>
<context>
    <name>corvana::GeneralPage</name>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Exemplaires :</translation>
    </message>
    <message>
        <source>All, or such as 1-4, 7, 9-</source>
        <translation>Toutes, ou 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>Choos&amp;e Pages…</source>
        <translation>C&amp;hoisir les pages…</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>&amp;Pages :</translation>
    </message>
    <message>
        <source>No document has been chosen.</source>
        <translation>Aucun document n’a été choisi.</translation>
    </message>
    <message>
        <source>Custom Size</source>
        <translation>Format personnalisé</translation>
    </message>
    <message>
        <source>Width × height:</source>
        <translation>Largeur × hauteur :</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>corvana::HelpWindow</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>corvana::InstancePrinters</name>
    <message>
        <source>More Printers</source>
        <translation>Autres imprimantes</translation>
    </message>
    <message>
        <source>Other programs have the preset on the &amp;printers that are ticked:</source>
        <translation>Les autres programmes ont le préréglage sur les &amp;imprimantes cochées :</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>Les autres programmes l’affichent comme « %1 ».</translation>
    </message>
</context>
<context>
    <name>corvana::JobFooter</name>
    <message>
        <source>Printing</source>
        <translation>Progression de l’impression</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Show Silenced Messages Again</source>
        <translation>Réafficher les messages masqués</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Ferme&amp;r</translation>
    </message>
    <message>
        <source>C&amp;lose (printing continues)</source>
        <translation>Ferme&amp;r (l’impression continue)</translation>
    </message>
    <message>
        <source>The job goes on without this window.</source>
        <translation>La tâche se poursuit sans cette fenêtre.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annuler la tâche</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>Enregis&amp;trer…</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Impression…</translation>
    </message>
    <message>
        <source>Canceling…</source>
        <translation>Annulation…</translation>
    </message>
    <message>
        <source>The first sides are printed.</source>
        <translation>Le premier passage est imprimé.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>corvana::MessageBar</name>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Show all of this message</source>
        <translation>Afficher tout ce message</translation>
    </message>
    <message>
        <source>Dismiss this message</source>
        <translation>Fermer ce message</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsModel</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Installable Options</source>
        <translation>Options installables</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1
For the command line: %2</source>
        <translation>%1
Pour la ligne de commande : %2</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>Modifié. %1</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Par défaut : %1</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsPage</name>
    <message>
        <source>Back to the Default</source>
        <translation>Rétablir la valeur par défaut</translation>
    </message>
    <message>
        <source>Search options and choices</source>
        <translation>Rechercher parmi les options et les choix</translation>
    </message>
    <message>
        <source>Options of the printer</source>
        <translation>Options de l’imprimante</translation>
    </message>
    <message>
        <source>Nothing contains “%1”.</source>
        <translation>Rien ne contient « %1 ».</translation>
    </message>
</context>
<context>
    <name>corvana::PageChooser</name>
    <message>
        <source>Choose Pages</source>
        <translation>Choisir les pages</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Pages:</source>
        <translation>&amp;Pages :</translation>
    </message>
    <message>
        <source>Such as 1-4, 7, 9-</source>
        <translation>Par exemple 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Toutes</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Aucune</translation>
    </message>
    <message>
        <source>&amp;Odd</source>
        <translation>&amp;Impaires</translation>
    </message>
    <message>
        <source>&amp;Even</source>
        <translation>Pai&amp;res</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>In&amp;verser</translation>
    </message>
    <message>
        <source>Page numbers count in each document: what is ticked in one is ticked in all.</source>
        <translation>Les numéros de page valent pour chaque document : ce qui est coché dans l’un l’est dans tous.</translation>
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
        <translation>Il a %L1 pages, trop pour être affichées ici. Leurs numéros peuvent être saisis.</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>Page %1 (%2)</source>
        <translation>Page %1 (%2)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1, chosen</source>
        <translation>%1, choisie</translation>
    </message>
    <message>
        <source>%1, not chosen</source>
        <translation>%1, non choisie</translation>
    </message>
</context>
<context>
    <name>corvana::PageThumbnails</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>corvana::PassJob</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Écriture de %1 impossible : %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>L’impression a été annulée.</translation>
    </message>
</context>
<context>
    <name>corvana::PresetMenu</name>
    <message>
        <source>Printer &amp;Defaults</source>
        <translation>Par &amp;défaut</translation>
    </message>
    <message>
        <source>&amp;Last Used</source>
        <translation>Dernière &amp;utilisation</translation>
    </message>
    <message>
        <source>For This Model</source>
        <translation>Pour ce modèle</translation>
    </message>
    <message>
        <source>For All Printers</source>
        <translation>Pour toutes les imprimantes</translation>
    </message>
    <message>
        <source>From Other Programs</source>
        <translation>D’autres programmes</translation>
    </message>
    <message>
        <source>&amp;Save Preset…</source>
        <translation>&amp;Enregistrer un préréglage…</translation>
    </message>
    <message>
        <source>&amp;Update “%1”</source>
        <translation>&amp;Mettre à jour « %1 »</translation>
    </message>
    <message>
        <source>&amp;Rename “%1”…</source>
        <translation>&amp;Renommer « %1 »…</translation>
    </message>
    <message>
        <source>D&amp;elete “%1”…</source>
        <translation>&amp;Supprimer « %1 »…</translation>
    </message>
    <message>
        <source>Re&amp;member the Settings of the Last Job</source>
        <translation>Mém&amp;oriser les réglages de la dernière tâche</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Supprimer le préréglage</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? The settings stay as they are.</source>
        <translation>Supprimer le préréglage « %1 » ? Les réglages restent tels quels.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>corvana::PresetRow</name>
    <message>
        <source>Prese&amp;t:</source>
        <translation>Préré&amp;glage :</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modifié)</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>Préréglage : %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>This Page: %1</source>
        <translation>Cette page : %1</translation>
    </message>
    <message>
        <source>Everything: %1</source>
        <translation>Tout : %1</translation>
    </message>
    <message>
        <source>%1 (Ctrl+Z)</source>
        <translation>%1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>%1 (Shift+Ctrl+Z)</source>
        <translation>%1 (Maj+Ctrl+Z)</translation>
    </message>
</context>
<context>
    <name>corvana::PreviewPane</name>
    <message>
        <source>Counting the sheets…</source>
        <translation>Comptage des feuilles…</translation>
    </message>
</context>
<context>
    <name>corvana::PreviewPlaceholder</name>
    <message>
        <source>Choose &amp;Documents…</source>
        <translation>Choisir des &amp;documents…</translation>
    </message>
    <message>
        <source>Drop documents here to print them.</source>
        <translation>Déposez ici des documents pour les imprimer.</translation>
    </message>
    <message>
        <source>PDF, PostScript, text, PNG and JPEG; several are one job.</source>
        <translation>PDF, PostScript, texte, PNG et JPEG ; plusieurs forment une seule tâche.</translation>
    </message>
</context>
<context>
    <name>corvana::PrintTask</name>
    <message>
        <source>The sides of “%1” are not known here, so they cannot be printed in two halves. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>Les faces de « %1 » ne sont pas connues ici et ne peuvent donc pas être imprimées en deux moitiés. Avec sides-by-hand=no, une seule face de chaque feuille est imprimée.</translation>
    </message>
    <message>
        <source>%1 (other sides)</source>
        <translation>%1 (second passage)</translation>
    </message>
    <message>
        <source>%1 (first sides)</source>
        <translation>%1 (premier passage)</translation>
    </message>
    <message>
        <source>First sides: %1</source>
        <translation>Premier passage : %1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>Second passage : %1</translation>
    </message>
    <message>
        <source>First sides: %1 Other sides: %2</source>
        <translation>Premier passage : %1 Second passage : %2</translation>
    </message>
    <message>
        <source>Not printed.</source>
        <translation>Pas imprimé.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Show Its First Sheet</source>
        <translation>En montrer la première feuille</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Give the password with --document-password-file.</source>
        <translation>Indiquez le mot de passe avec --document-password-file.</translation>
    </message>
    <message>
        <source>Enter the Password…</source>
        <translation>Saisir le mot de passe…</translation>
    </message>
    <message>
        <source>Enter the Owner&apos;s Password…</source>
        <translation>Saisir le mot de passe du propriétaire…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Choisissez un document à imprimer.</translation>
    </message>
    <message>
        <source>Name the file to print to.</source>
        <translation>Indiquez le fichier dans lequel imprimer.</translation>
    </message>
    <message>
        <source>“%1” are no pages. Pages and ranges in ascending order were expected, such as 1-4, 7, 9-.</source>
        <translation>« %1 » ne désigne pas de pages. Des pages et plages en ordre croissant étaient attendues, par exemple 1-4, 7, 9-.</translation>
    </message>
    <message>
        <source>%1 is of a kind that is not known here. Only a queue can pass it on to its printer, as it is, with the option “raw”.</source>
        <translation>Le type de %1 n’est pas connu ici. Seule une file d’attente peut le transmettre tel quel à son imprimante, avec l’option « raw ».</translation>
    </message>
    <message>
        <source>What is passed on as it is cannot be printed to a file.</source>
        <translation>Ce qui est transmis tel quel ne peut pas être imprimé dans un fichier.</translation>
    </message>
    <message>
        <source>No font of this computer has these characters of the text: %1. An empty frame is printed for each of them.</source>
        <translation>Aucune police de cet ordinateur n’a ces caractères du texte : %1. Un cadre vide est imprimé pour chacun d’eux.</translation>
    </message>
    <message>
        <source>Not all of the text could be looked through for characters that no font of this computer has. An empty frame is printed for each of them.</source>
        <translation>Le texte n’a pas pu être examiné en entier à la recherche de caractères qu’aucune police de cet ordinateur n’a. Un cadre vide est imprimé pour chacun d’eux.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings show instructions.</source>
        <translation>Les réglages de l’imprimante affichent des instructions.</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and a file cannot wait. Follow them and print with --on-alert=print.</source>
        <translation>La tâche devrait attendre que ces instructions soient suivies, et un fichier ne peut pas attendre. Suivez-les et imprimez avec --on-alert=print.</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and two-sided printing by hand cannot. Follow them and print with --on-alert=print.</source>
        <translation>La tâche devrait attendre que ces instructions soient suivies, et l’impression recto verso manuelle ne le peut pas. Suivez-les et imprimez avec --on-alert=print.</translation>
    </message>
    <message>
        <source>%1 So the job cannot wait for these instructions. Follow them and print with --on-alert=print.</source>
        <translation>%1 La tâche ne peut donc pas attendre que ces instructions soient suivies. Suivez-les et imprimez avec --on-alert=print.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings hold the job back.</source>
        <translation>Les réglages de l’imprimante retiennent la tâche.</translation>
    </message>
    <message>
        <source>Its pages are made while it is printed. The preview shows them.</source>
        <translation>Ses pages sont créées pendant l’impression. L’aperçu les montre.</translation>
    </message>
    <message>
        <source>How many pages it has is not known.</source>
        <translation>Son nombre de pages n’est pas connu.</translation>
    </message>
    <message>
        <source>It is being looked at…</source>
        <translation>Examen en cours…</translation>
    </message>
    <message>
        <source>Not everything that your administrator has decided can be used. “corvana-print --check-policy” says what, and why.</source>
        <translation>Tout ce que votre administrateur a décidé n’est pas utilisable. « corvana-print --check-policy » dit quoi, et pourquoi.</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper.</source>
        <translation>Cette tâche demande %1 feuilles de papier.</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper. More than %2 are printed only with --yes.</source>
        <translation>Cette tâche demande %1 feuilles de papier. Au-delà de %2, l’impression n’a lieu qu’avec --yes.</translation>
    </message>
    <message>
        <source>The options of the printer have changed at its server; yours were kept.</source>
        <translation>Les options de l’imprimante ont changé sur son serveur ; les vôtres ont été conservées.</translation>
    </message>
    <message>
        <source>The printer&apos;s own settings are missing: %1</source>
        <translation>Les réglages propres à l’imprimante manquent : %1</translation>
    </message>
    <message>
        <source>Not everything could be set as before:
%1</source>
        <translation>Tout n’a pas pu être réglé comme avant :
%1</translation>
    </message>
    <message>
        <source>The queue “%1” leads to the same printer, and has pages with all of its settings.</source>
        <translation>La file d’attente « %1 » mène à la même imprimante et a des pages avec tous ses réglages.</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <translation>Utiliser « %1 »</translation>
    </message>
    <message>
        <source>There is no job attribute of the name %1.</source>
        <translation>Il n’y a pas d’attribut de tâche nommé %1.</translation>
    </message>
    <message>
        <source>The queue “%1” sets this for every job that does not name it. Allowed: %2.</source>
        <translation>La file d’attente « %1 » fixe ceci pour toute tâche qui ne le précise pas. Autorisé : %2.</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>« %1 » n’est pas autorisé. Autorisé : %2.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No document has been chosen.</source>
        <translation>Aucun document n’a été choisi.</translation>
    </message>
    <message>
        <source>There is a preview once the printer is known.</source>
        <translation>L’aperçu apparaît dès que l’imprimante est connue.</translation>
    </message>
    <message>
        <source>Files are passed on to the printer as they are. What comes out is not known here.</source>
        <translation>Les fichiers sont transmis tels quels à l’imprimante. Ce qui en sort n’est pas connu ici.</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>L’impression a été annulée.</translation>
    </message>
    <message>
        <source>What was asked for cannot be set:
%1</source>
        <translation>Ce qui a été demandé ne peut pas être réglé :
%1</translation>
    </message>
    <message>
        <source>Not everything that is set for this printer could be taken:
%1</source>
        <translation>Tout ce qui est réglé pour cette imprimante n’a pas pu être repris :
%1</translation>
    </message>
    <message>
        <source>As in your last job.</source>
        <translation>Comme dans votre dernière tâche.</translation>
    </message>
    <message>
        <source>Use Defaults</source>
        <translation>Valeurs par défaut</translation>
    </message>
    <message>
        <source>A PDF file is saved once: there are no copies of it.</source>
        <translation>Un fichier PDF est enregistré une fois : il n’y en a pas d’exemplaires.</translation>
    </message>
    <message>
        <source>The printer prints at most %1 copies at once, not %2.</source>
        <translation>L’imprimante imprime au plus %1 exemplaires à la fois, pas %2.</translation>
    </message>
    <message>
        <source>“%1” has nothing to show.</source>
        <translation>« %1 » n’a rien à montrer.</translation>
    </message>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>Une page des réglages de l’imprimante ne peut pas être affichée : %1</translation>
    </message>
    <message>
        <source>%1 is not on this computer. Save it here to print it.</source>
        <translation>%1 n’est pas sur cet ordinateur. Enregistrez-le ici pour l’imprimer.</translation>
    </message>
    <message>
        <source>The sheets can stay in the tray: the other sides are printed with the settings of the first ones.</source>
        <translation>Les feuilles peuvent rester dans le bac : le second passage est imprimé avec les réglages du premier.</translation>
    </message>
    <message>
        <source>Printed to %1, which holds data for the printer and is no PDF document</source>
        <translation>Imprimé dans %1, qui contient des données pour l’imprimante et n’est pas un document PDF</translation>
    </message>
</context>
<context>
    <name>corvana::PrintWindow</name>
    <message>
        <source>Asking “%1” for the options of the printer…</source>
        <translation>Demande des options de l’imprimante à « %1 »…</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Recherche d’imprimantes…</translation>
    </message>
    <message>
        <source>No answer from “%1” yet.</source>
        <translation>Pas encore de réponse de « %1 ».</translation>
    </message>
    <message>
        <source>No printers at “%1”.</source>
        <translation>Aucune imprimante sur « %1 ».</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>There are no printers yet. Add one in the printer settings of the system, or with the command lpadmin.</source>
        <translation>Il n’y a pas encore d’imprimante. Ajoutez-en une dans les paramètres d’impression du système, ou avec la commande lpadmin.</translation>
    </message>
    <message>
        <source>Until then, documents can be printed to a file.</source>
        <translation>D’ici là, les documents peuvent être imprimés dans un fichier.</translation>
    </message>
    <message>
        <source>Log In…</source>
        <translation>Se connecter…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>The print service of this computer is not running. Start it, on most systems with “systemctl start cups”.</source>
        <translation>Le service d’impression de cet ordinateur ne fonctionne pas. Démarrez-le, sur la plupart des systèmes avec « systemctl start cups ».</translation>
    </message>
    <message>
        <source>Print Another Copy</source>
        <translation>Imprimer un autre exemplaire</translation>
    </message>
    <message>
        <source>Two-Sided by Hand</source>
        <translation>Recto verso manuel</translation>
    </message>
    <message>
        <source>Only the first sides of the sheets are printed. Leave the other sides unprinted?</source>
        <translation>Un seul côté des feuilles est imprimé. Laisser l’autre côté vierge ?</translation>
    </message>
    <message>
        <source>The first sides of the sheets are being printed. Stop that, and leave the other sides unprinted?</source>
        <translation>Le premier côté des feuilles est en cours d’impression. L’arrêter et laisser l’autre côté vierge ?</translation>
    </message>
    <message>
        <source>Leave Unprinted</source>
        <translation>Laisser vierge</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Revenir</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>Imprimer dans un fichier</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 existe déjà. Le remplacer ?</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>Imprimer malgré tout</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Your preferences cannot be written.</source>
        <translation>Vos préférences ne peuvent pas être enregistrées.</translation>
    </message>
    <message>
        <source>The help is not installed.</source>
        <translation>L’aide n’est pas installée.</translation>
    </message>
    <message>
        <source>Help on Printing</source>
        <translation>Aide sur l’impression</translation>
    </message>
    <message>
        <source>If you print it again, it may come out of the printer twice.</source>
        <translation>Si vous l’imprimez à nouveau, elle peut sortir deux fois de l’imprimante.</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>Imprimer à nouveau</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterComboBox</name>
    <message>
        <source>Choose a printer</source>
        <translation>Choisir une imprimante</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterHeader</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>I&amp;mprimante :</translation>
    </message>
    <message>
        <source>Print to &amp;file:</source>
        <translation>Imprimer dans un &amp;fichier :</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Imprimer dans un fichier</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>Parc&amp;ourir…</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>Imprimer dans un fichier</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterPopup</name>
    <message>
        <source>Printers</source>
        <translation>Imprimantes</translation>
    </message>
    <message>
        <source>Search by name or location</source>
        <translation>Rechercher par nom ou emplacement</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>Rechercher des imprimantes</translation>
    </message>
    <message>
        <source>No printer was found</source>
        <translation>Aucune imprimante trouvée</translation>
    </message>
    <message>
        <source>No printer matches</source>
        <translation>Aucune imprimante ne correspond</translation>
    </message>
    <message>
        <source>%1 of %2 printers</source>
        <translation>%1 imprimantes sur %2</translation>
    </message>
    <message>
        <source>%1 printers</source>
        <translation>%1 imprimantes</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterSource</name>
    <message>
        <source>There is no default printer. %1 Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>Il n’y a pas d’imprimante par défaut. %1 Indiquez une imprimante avec -d, ou un PPD avec --ppd FILE, ou essayez les imprimantes d’exemple avec --demo.</translation>
    </message>
    <message>
        <source>There is no default printer. Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>Il n’y a pas d’imprimante par défaut. Indiquez une imprimante avec -d, ou un PPD avec --ppd FILE, ou essayez les imprimantes d’exemple avec --demo.</translation>
    </message>
    <message>
        <source>There is no instance “%1”: lpoptions has none of the queue “%2”.</source>
        <translation>Il n’y a pas d’instance « %1 » : lpoptions n’en a aucune pour la file d’attente « %2 ».</translation>
    </message>
    <message>
        <source>There is no instance “%1”. The queue “%2” has: %3.</source>
        <translation>Il n’y a pas d’instance « %1 ». La file d’attente « %2 » a : %3.</translation>
    </message>
    <message>
        <source>There is no printer “%1” at “%2”.</source>
        <translation>Il n’y a pas d’imprimante « %1 » sur « %2 ».</translation>
    </message>
    <message>
        <source>There is no printer “%1” at “%2” any more.</source>
        <translation>Il n’y a plus d’imprimante « %1 » sur « %2 ».</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterStatusLine</name>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
</context>
<context>
    <name>corvana::SavePresetDialog</name>
    <message>
        <source>Rename Preset</source>
        <translation>Renommer le préréglage</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Enregistrer un préréglage</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>For printers of this &amp;model (%1)</source>
        <translation>Pour les imprimantes de ce &amp;modèle (%1)</translation>
    </message>
    <message>
        <source>For &amp;all printers, as far as they have these settings</source>
        <translation>Pour &amp;toutes les imprimantes qui ont ces réglages</translation>
    </message>
    <message>
        <source>Also in &amp;other programs</source>
        <translation>Aussi dans d’autres &amp;programmes</translation>
    </message>
    <message>
        <source>&amp;With what sets up the printer itself (%1)</source>
        <translation>&amp;Avec ce qui règle l’imprimante elle-même (%1)</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>Les autres programmes l’affichent comme « %1 ».</translation>
    </message>
    <message>
        <source>There is a preset of this name already.</source>
        <translation>Il y a déjà un préréglage de ce nom.</translation>
    </message>
    <message>
        <source>There is a preset of this name already. It will be replaced.</source>
        <translation>Il y a déjà un préréglage de ce nom. Il sera remplacé.</translation>
    </message>
    <message>
        <source>There is another preset of this name, which stays.</source>
        <translation>Il y a un autre préréglage de ce nom ; il est conservé.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>More &amp;Printers…</source>
        <translation>Autres &amp;imprimantes…</translation>
    </message>
</context>
<context>
    <name>corvana::ServerJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>L’impression a été annulée.</translation>
    </message>
    <message>
        <source>The printer “%1” does not take these settings of a job: %2. Nothing was printed.</source>
        <translation>L’imprimante « %1 » n’accepte pas ces réglages d’une tâche : %2. Rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>The queue “%1” has no driver and prints documents as they are: it can neither put several pages on a sheet (number-up) nor choose pages (page-ranges, page-set). Nothing was printed.</source>
        <translation>La file d’attente « %1 » n’a pas de pilote et imprime les documents tels quels : elle ne peut ni mettre plusieurs pages sur une feuille (number-up) ni choisir des pages (page-ranges, page-set). Rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>The printer “%1” takes documents of these kinds only: %2.</source>
        <translation>L’imprimante « %1 » n’accepte que des documents de ces types : %2.</translation>
    </message>
    <message>
        <source>The documents were put together as one, because the printer takes one at a time; each begins on a new sheet.</source>
        <translation>Les documents ont été réunis en un seul, car l’imprimante n’en accepte qu’un à la fois ; chacun commence sur une nouvelle feuille.</translation>
    </message>
    <message>
        <source>There are too many copies to send them in sets. Their order is: %1.</source>
        <translation>Il y a trop d’exemplaires pour les envoyer par jeux. Leur ordre est : %1.</translation>
    </message>
    <message>
        <source>Job %1 is in the queue; it was not followed to its end.</source>
        <translation>La tâche %1 est dans la file d’attente ; elle n’a pas été suivie jusqu’au bout.</translation>
    </message>
</context>
<context>
    <name>corvana::SettingFinder</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>actuellement %1</translation>
    </message>
    <message>
        <source>The settings of the printer are not known yet.</source>
        <translation>Les réglages de l’imprimante ne sont pas encore connus.</translation>
    </message>
    <message>
        <source>No setting is called “%1”. Try a shorter word, or another one for it.</source>
        <translation>Aucun réglage ne s’appelle « %1 ». Essayez un mot plus court, ou un autre mot.</translation>
    </message>
    <message>
        <source>No setting is called “%1”. Press Enter to search for “%2” instead.</source>
        <translation>Aucun réglage ne s’appelle « %1 ». Appuyez sur Entrée pour chercher plutôt « %2 ».</translation>
    </message>
    <message>
        <source>“%1” cannot be changed while other settings are as they are. It is on the page “%2”.</source>
        <translation>« %1 » ne peut pas être modifié tant que d’autres réglages restent tels quels. Il se trouve sur la page « %2 ».</translation>
    </message>
</context>
<context>
    <name>corvana::SettingsPages</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Rien</translation>
    </message>
    <message>
        <source>All Options</source>
        <translation>Toutes les options</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>This page cannot be shown: %1</source>
        <translation>Cette page ne peut pas être affichée : %1</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
</context>
<context>
    <name>corvana::SheetView</name>
    <message>
        <source>%1. Note: %2</source>
        <translation>%1. Remarque : %2</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Preview. %1</source>
        <translation>Aperçu. %1</translation>
    </message>
    <message>
        <source>Cover sheet of the queue: %1</source>
        <translation>Page de garde de la file d’attente : %1</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>Mise à jour…</translation>
    </message>
</context>
<context>
    <name>corvana::SheetsRow</name>
    <message>
        <source>Sheet %L1</source>
        <translation>Feuille %L1</translation>
    </message>
    <message>
        <source>Sheet %L1 of %L2</source>
        <translation>Feuille %L1 sur %L2</translation>
    </message>
</context>
<context>
    <name>corvana::SummaryPage</name>
    <message>
        <source>Only what is changed</source>
        <translation>Modifications seulement</translation>
    </message>
    <message>
        <source>Nothing is changed.</source>
        <translation>Rien n’est modifié.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>Modifié. %1</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, modifié</translation>
    </message>
</context>
<context>
    <name>corvana::TaskHistory</name>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Annuler : %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Rétablir : %1</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Revenir à : %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>This cannot go back:
%1</source>
        <translation>Ceci ne peut pas être annulé :
%1</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPresets</name>
    <message>
        <source>The printer is not known yet.</source>
        <translation>L’imprimante n’est pas encore connue.</translation>
    </message>
    <message>
        <source>Other programs print with these settings to “%1”.</source>
        <translation>D’autres programmes impriment avec ces réglages sur « %1 ».</translation>
    </message>
    <message>
        <source>“%1” is not there any more, or has no settings.</source>
        <translation>« %1 » n’existe plus, ou n’a pas de réglages.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 autres</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>Dernière utilisation</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>Il n’y a plus de préréglage nommé « %1 ».</translation>
    </message>
    <message>
        <source>Not everything of “%1” is possible here:
%2</source>
        <translation>Tout n’est pas possible ici dans « %1 » :
%2</translation>
    </message>
    <message>
        <source>“%1” was kept with settings that this printer does not have.</source>
        <translation>« %1 » a été enregistré avec des réglages que cette imprimante n’a pas.</translation>
    </message>
    <message>
        <source>%1 Your settings are as they were.</source>
        <translation>%1 Vos réglages sont de nouveau comme avant.</translation>
    </message>
    <message>
        <source>The preset “%1” for this printer is another one.</source>
        <translation>Le préréglage « %1 » pour cette imprimante en est un autre.</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPreview</name>
    <message>
        <source>It can be printed all the same.</source>
        <translation>L’impression reste possible.</translation>
    </message>
</context>
<context>
    <name>corvana::TextConversion</name>
    <message>
        <source>There are no fonts for the text %1.</source>
        <translation>Il n’y a pas de polices pour le texte %1.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Lecture de %1 impossible : %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Écriture de %1 impossible : %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>L’impression a été annulée.</translation>
    </message>
    <message>
        <source>%1 would have more than %2 pages, and a text is printed on no more than that.</source>
        <translation>%1 aurait plus de %2 pages, et un texte n’est pas imprimé au-delà.</translation>
    </message>
</context>
<context>
    <name>corvana::TextDocuments</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>L’impression a été annulée.</translation>
    </message>
</context>
<context>
    <name>corvana::TurnSheetsDialog</name>
    <message>
        <source>Two-Sided by Hand</source>
        <translation>Recto verso manuel</translation>
    </message>
    <message>
        <source>Put the sheets back to print their other sides</source>
        <translation>Remettre les feuilles pour imprimer l’autre côté</translation>
    </message>
    <message>
        <source>&amp;Print the Other Sides</source>
        <translation>Imprimer l’autre &amp;côté</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>corvana::ZoomControl</name>
    <message>
        <source>Smaller</source>
        <translation>Plus petit</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Plus grand</translation>
    </message>
    <message>
        <source>Size of the sheets</source>
        <translation>Taille des feuilles</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>Page entière</translation>
    </message>
    <message>
        <source>Fit Width</source>
        <translation>Largeur de page</translation>
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
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>no display can be reached. Print without a window with --no-dialog.</source>
        <translation>aucun affichage n’est accessible. Imprimez sans fenêtre avec --no-dialog.</translation>
    </message>
</context>
<context>
    <name>ClearButton</name>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
</context>
<context>
    <name>ChoiceCodes</name>
    <message>
        <source>%1 cannot be sent to the printer: its PPD does not say in a usable way how that is done.</source>
        <translation>%1 ne peut pas être envoyé à l’imprimante : son PPD n’indique pas de façon utilisable comment le faire.</translation>
    </message>
</context>
<context>
    <name>PpdBounds</name>
    <message>
        <source>It is no ordinary file.</source>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>It is larger than %1 MB.</source>
        <translation>Il dépasse %1 Mo.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 lines that begin with “%2”.</source>
        <translation>Il contient trop de données : plus de %1 lignes qui commencent par « %2 ».</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices of all options together. “%2” has the most.</source>
        <translation>Il contient trop de données : plus de %1 choix pour l’ensemble des options. Celle qui en a le plus est « %2 ».</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 lines that belong to no option. The most frequent is “%2”.</source>
        <translation>Il contient trop de données : plus de %1 lignes qui n’appartiennent à aucune option. La plus fréquente est « %2 ».</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 different keywords.</source>
        <translation>Il contient trop de données : plus de %1 mots-clés différents.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in one line that begins with “%2”.</source>
        <translation>Il contient trop de données : plus de %1 choix dans une ligne qui commence par « %2 ».</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in lines that begin with “%2”.</source>
        <translation>Il contient trop de données : plus de %1 choix dans des lignes qui commencent par « %2 ».</translation>
    </message>
    <message>
        <source>There is too much in it: its constraints name %1 choices. Beside as many options and choices as it has, %2 are allowed.</source>
        <translation>Il contient trop de données : ses contraintes nomment %1 choix. Avec autant d’options et de choix, %2 sont admis.</translation>
    </message>
</context>
<context>
    <name>QueueRequests</name>
    <message>
        <source>more than %L1 printers</source>
        <translation>plus de %L1 imprimantes</translation>
    </message>
    <message>
        <source>printers with more than %L1 characters in their texts</source>
        <translation>imprimantes avec plus de %L1 caractères dans leurs textes</translation>
    </message>
</context>
<context>
    <name>ClientFiles</name>
    <message>
        <source>%1 cannot be read to its end: a small file with the settings of CUPS is expected there.</source>
        <translation>%1 ne peut pas être lu jusqu’au bout : un petit fichier contenant les réglages de CUPS y est attendu.</translation>
    </message>
</context>
<context>
    <name>TemporaryFolder</name>
    <message>
        <source>No temporary files can be kept in %1: %2</source>
        <translation>Impossible d’enregistrer des fichiers temporaires dans %1 : %2</translation>
    </message>
</context>
<context>
    <name>TextSource</name>
    <message>
        <source>it has become shorter meanwhile</source>
        <translation>il a été raccourci entre-temps</translation>
    </message>
</context>
<context>
    <name>Finishings</name>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Agrafer</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforer</translation>
    </message>
    <message>
        <source>Add Cover</source>
        <translation>Ajouter une couverture</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Relier</translation>
    </message>
    <message>
        <source>Saddle Stitch</source>
        <translation>Piqûre à cheval</translation>
    </message>
    <message>
        <source>Edge Stitch</source>
        <translation>Piqûre à plat</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Plier</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Rogner</translation>
    </message>
    <message>
        <source>Bundle</source>
        <translation>Mettre en liasse</translation>
    </message>
    <message>
        <source>Make Booklet</source>
        <translation>Faire un livret</translation>
    </message>
    <message>
        <source>Offset Sets</source>
        <translation>Décaler les jeux</translation>
    </message>
    <message>
        <source>Coat</source>
        <translation>Enduire</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Plastifier</translation>
    </message>
</context>
<context>
    <name>OwnInstances</name>
    <message>
        <source>“%1” is damaged. What was written for other programs before does not follow its presets any more.</source>
        <translation>« %1 » est endommagé. Ce qui a été écrit auparavant pour d’autres programmes ne suit plus ses préréglages.</translation>
    </message>
</context>
<context>
    <name>PresetInstances</name>
    <message>
        <source>“%1” in other programs: %2</source>
        <translation>« %1 » dans d’autres programmes : %2</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is from now on.</source>
        <translation>« %1 » a été modifié par un autre programme et reste désormais tel quel.</translation>
    </message>
    <message>
        <source>Settings were changed while “%1” was saved: other programs have it as it was before. Save it again.</source>
        <translation>Des réglages ont été modifiés pendant l’enregistrement de « %1 » : les autres programmes l’ont tel qu’il était avant. Enregistrez-le à nouveau.</translation>
    </message>
</context>
<context>
    <name>PresetReplacing</name>
    <message>
        <source>“%1” was saved elsewhere since it was selected here, and stays as it is there. Select it again, or keep your settings with “Save Preset…”.</source>
        <translation>« %1 » a été enregistré ailleurs depuis sa sélection ici, et reste tel quel. Sélectionnez-le à nouveau, ou enregistrez vos réglages avec « Enregistrer un préréglage… ».</translation>
    </message>
</context>
<context>
    <name>Collation</name>
    <message>
        <source>two-sided copies are always collated on this printer</source>
        <translation>les copies recto verso sont toujours assemblées sur cette imprimante</translation>
    </message>
</context>
<context>
    <name>OtherQueues</name>
    <message>
        <source>The queue could not be read in time.</source>
        <translation>La file d’attente n’a pas pu être lue à temps.</translation>
    </message>
</context>
</TS>
