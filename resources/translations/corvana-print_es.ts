<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AlertPresenter</name>
    <message>
        <source>Do not show this message again</source>
        <translation>No volver a mostrar este mensaje</translation>
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
        <translation>%1 no tiene efecto en %2: solo se aplica a textos.</translation>
    </message>
    <message>
        <source>%1 has no effect on %2: only pictures follow it.</source>
        <translation>%1 no tiene efecto en %2: solo se aplica a imágenes.</translation>
    </message>
    <message>
        <source>asked for by the queue; what the printer makes of it is not known</source>
        <translation>lo pide la cola; no se sabe qué hace con ello la impresora</translation>
    </message>
    <message>
        <source>only where a page is scaled</source>
        <translation>solo donde se cambia la escala de una página</translation>
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
        <translation>derecho</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>inferior</translation>
    </message>
    <message>
        <source>left</source>
        <translation>izquierdo</translation>
    </message>
    <message>
        <source>Take the printed sheet out of the printer.</source>
        <translation>Saque de la impresora la hoja impresa.</translation>
    </message>
    <message>
        <source>Take the %1 printed sheets out of the printer, as one stack.</source>
        <translation>Saque de la impresora las %1 hojas impresas en una sola pila.</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side down, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>Vuelva a ponerlas en la bandeja con la cara impresa hacia abajo, de modo que el borde %1 de las páginas entre primero en la impresora.</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side up, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>Vuelva a ponerlas en la bandeja con la cara impresa hacia arriba, de modo que el borde %1 de las páginas entre primero en la impresora.</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost. Nothing is printed on it so far.</source>
        <translation>La última hoja queda encima de todas. Todavía no tiene nada impreso.</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost.</source>
        <translation>La última hoja queda encima de todas.</translation>
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
        <translation>La última hoja (%1) queda encima de todas.</translation>
    </message>
    <message>
        <source>The last sheet, with %1 of “%2”, lies uppermost.</source>
        <translation>La última hoja (%1 de «%2») queda encima de todas.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs a printer that sheets are put back into: it cannot be done in a file.</source>
        <translation>La doble cara manual (%1) requiere una impresora en la que se vuelvan a poner las hojas: no se puede hacer en un archivo.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) cannot be combined with %2: the queue would add these pages to both halves.</source>
        <translation>La doble cara manual (%1) no se puede combinar con %2: la cola añadiría estas páginas a ambas mitades.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs somebody who puts the sheets back, and nobody can be asked here. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>La doble cara manual (%1) requiere que alguien vuelva a poner las hojas, y aquí no se puede pedir a nadie. Con sides-by-hand=no se imprime una cara de cada hoja.</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side down, so that the %1 edge of the page goes into the printer first.</source>
        <translation>Vuelva a ponerla en la bandeja con la cara impresa hacia abajo, de modo que el borde %1 de la página entre primero en la impresora.</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side up, so that the %1 edge of the page goes into the printer first.</source>
        <translation>Vuelva a ponerla en la bandeja con la cara impresa hacia arriba, de modo que el borde %1 de la página entre primero en la impresora.</translation>
    </message>
</context>
<context>
    <name>CheckPolicy</name>
    <message>
        <source>Policy in %1 for the user %2</source>
        <translation>Directiva en %1 para el usuario %2</translation>
    </message>
    <message>
        <source>groups: %1</source>
        <translation>grupos: %1</translation>
    </message>
    <message>
        <source>Not used:</source>
        <translation>No se usan:</translation>
    </message>
    <message>
        <source>Nothing is decided.</source>
        <translation>No hay nada establecido.</translation>
    </message>
    <message>
        <source>At the printer %1:</source>
        <translation>En la impresora %1:</translation>
    </message>
    <message>
        <source>Void, because the printer does not take it:</source>
        <translation>Sin efecto, porque la impresora no lo acepta:</translation>
    </message>
    <message>
        <source>For others, who are in these groups:</source>
        <translation>Para otros usuarios, de estos grupos:</translation>
    </message>
    <message>
        <source>Only root may ask what applies to somebody else.</source>
        <translation>Solo root puede preguntar qué se aplica a otro usuario.</translation>
    </message>
    <message>
        <source>There is no user of the name “%1”.</source>
        <translation>No existe ningún usuario llamado «%1».</translation>
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
        <translation>De ellas solo se imprimen las impares, según los ajustes de este trabajo.</translation>
    </message>
    <message>
        <source>Only the even ones of them are printed, as is set for this job.</source>
        <translation>De ellas solo se imprimen las pares, según los ajustes de este trabajo.</translation>
    </message>
    <message>
        <source>No page is chosen.</source>
        <translation>No se ha elegido ninguna página.</translation>
    </message>
    <message>
        <source>How many pages there are is not known.</source>
        <translation>No se sabe cuántas páginas hay.</translation>
    </message>
    <message>
        <source>%L1 of %L2 page numbers chosen.</source>
        <translation>%L1 de %L2 números de página elegidos.</translation>
    </message>
    <message>
        <source>%L1 of %L2 pages chosen.</source>
        <translation>%L1 de %L2 páginas elegidas.</translation>
    </message>
    <message>
        <source>There are no pages %1.</source>
        <translation>Estas páginas no existen: %1.</translation>
    </message>
    <message>
        <source>“%1” is no page. Pages are typed as in 1-4, 7, 9-.</source>
        <translation>«%1» no es una página. Las páginas se escriben como en 1-4, 7, 9-.</translation>
    </message>
    <message>
        <source>“%1” ends before it begins.</source>
        <translation>«%1» termina antes de empezar.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the name of a document is missing.</source>
        <translation>falta el nombre de un documento.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lists what can be said.</source>
        <translation>&quot;%1&quot; enumera lo que se puede indicar.</translation>
    </message>
    <message>
        <source>%1 %2: a number from %3 to %4 was expected.</source>
        <translation>%1 %2: se esperaba un número de %3 a %4.</translation>
    </message>
    <message>
        <source>-P &quot;%1&quot;: pages and ranges in ascending order were expected, such as 1-4,7,9-.</source>
        <translation>-P &quot;%1&quot;: se esperaban páginas e intervalos en orden ascendente, como 1-4,7,9-.</translation>
    </message>
    <message>
        <source>-H %1 is for a job that is in a queue already: use %2.</source>
        <translation>-H %1 es para un trabajo que ya está en una cola: use %2.</translation>
    </message>
    <message>
        <source>-H &quot;%1&quot;: hold, immediate, %2 was expected.</source>
        <translation>-H &quot;%1&quot;: se esperaba hold, immediate, %2.</translation>
    </message>
    <message>
        <source>--check-policy takes one printer and no document.</source>
        <translation>--check-policy admite una impresora y ningún documento.</translation>
    </message>
    <message>
        <source>--server &quot;%1&quot;: HOST, HOST:PORT or the path of a socket was expected.</source>
        <translation>--server &quot;%1&quot;: se esperaba HOST, HOST:PORT o la ruta de un socket.</translation>
    </message>
    <message>
        <source>--on-alert %1: print, hold or refuse was expected.</source>
        <translation>--on-alert %1: se esperaba print, hold o refuse.</translation>
    </message>
    <message>
        <source>--format %1: json or text was expected.</source>
        <translation>--format %1: se esperaba json o text.</translation>
    </message>
    <message>
        <source>-m: no mail is sent. What became of the job is said at the end, and by the exit status.</source>
        <translation>-m: no se envía ningún correo. Qué ha sido del trabajo se indica al final y en el estado de salida.</translation>
    </message>
    <message>
        <source>%1 &quot;&quot;: %2 is missing.</source>
        <translation>%1 &quot;&quot;: falta %2.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined.</source>
        <translation>%1 y %2 no se pueden combinar.</translation>
    </message>
    <message>
        <source>%1 is for runs without a window (--no-dialog).</source>
        <translation>%1 es para ejecuciones sin ventana (--no-dialog).</translation>
    </message>
    <message>
        <source>standard input cannot be the document and the password.</source>
        <translation>la entrada estándar no puede ser a la vez el documento y la contraseña.</translation>
    </message>
    <message>
        <source>--save-preset prints nothing: no document can be named.</source>
        <translation>--save-preset no imprime nada: no se puede indicar ningún documento.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined: both write to standard output.</source>
        <translation>%1 y %2 no se pueden combinar: los dos escriben en la salida estándar.</translation>
    </message>
    <message>
        <source>-d &quot;%1&quot;: a URI like ipp://HOST/ipp/print was expected.</source>
        <translation>-d &quot;%1&quot;: se esperaba un URI como ipp://HOST/ipp/print.</translation>
    </message>
    <message>
        <source>-o &quot;%1&quot;: KEY=VALUE was expected.</source>
        <translation>-o &quot;%1&quot;: se esperaba KEY=VALUE.</translation>
    </message>
    <message>
        <source>standard input (-) can be read once only.</source>
        <translation>la entrada estándar (-) solo se puede leer una vez.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>Prints a document with the settings of its printer, in a dialog or without one.</source>
        <translation>Imprime un documento con los ajustes de su impresora, en un diálogo o sin él.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumentos:</translation>
    </message>
    <message>
        <source>The document: PDF, PostScript, text, PNG or JPEG; - is standard input. Several are one job.</source>
        <translation>El documento: PDF, PostScript, texto, PNG o JPEG; - es la entrada estándar. Varios son un solo trabajo.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Estado de salida:</translation>
    </message>
    <message>
        <source>128 and a signal&apos;s number: ended by that signal</source>
        <translation>128 más el número de una señal: terminado por esa señal</translation>
    </message>
    <message>
        <source>Print to the printer NAME: a queue, an instance NAME/INSTANCE, or an IPP printer ipp://HOST/PATH.</source>
        <translation>Imprime en la impresora NAME: una cola, una instancia NAME/INSTANCE o una impresora IPP ipp://HOST/PATH.</translation>
    </message>
    <message>
        <source>Use the queues of the print server HOST instead of the usual one.</source>
        <translation>Usa las colas del servidor de impresión HOST en lugar del habitual.</translation>
    </message>
    <message>
        <source>Speak to the print server with encryption only.</source>
        <translation>Habla con el servidor de impresión solo con cifrado.</translation>
    </message>
    <message>
        <source>Print as the user USER.</source>
        <translation>Imprime como el usuario USER.</translation>
    </message>
    <message>
        <source>Take the password from the first line of FILE, which nobody but its owner may read; nobody is asked.</source>
        <translation>Toma la contraseña de la primera línea del archivo FILE, que nadie más que su propietario puede leer; no se pregunta a nadie.</translation>
    </message>
    <message>
        <source>The same from the open file descriptor N (0 is standard input).</source>
        <translation>Lo mismo desde el descriptor de archivo abierto N (0 es la entrada estándar).</translation>
    </message>
    <message>
        <source>Open protected PDF documents with the password in the first line of FILE, which nobody but its owner may read.</source>
        <translation>Abre los documentos PDF protegidos con la contraseña de la primera línea del archivo FILE, que nadie más que su propietario puede leer.</translation>
    </message>
    <message>
        <source>Print for the printer that the PPD FILE describes.</source>
        <translation>Imprime para la impresora que describe el PPD FILE.</translation>
    </message>
    <message>
        <source>Write the printer-ready data to FILE; - is standard output.</source>
        <translation>Escribe los datos listos para la impresora en el archivo FILE; - es la salida estándar.</translation>
    </message>
    <message>
        <source>Offer the sample printers.</source>
        <translation>Ofrece las impresoras de muestra.</translation>
    </message>
    <message>
        <source>List the printers and exit.</source>
        <translation>Enumera las impresoras y termina.</translation>
    </message>
    <message>
        <source>Start with the settings of the preset NAME; -o counts more.</source>
        <translation>Empieza con los ajustes del preajuste NAME; -o tiene prioridad.</translation>
    </message>
    <message>
        <source>List the presets and exit.</source>
        <translation>Enumera los preajustes y termina.</translation>
    </message>
    <message>
        <source>Keep the settings of the printer, those of -o among them, as the preset NAME, and exit. A preset of that name is replaced.</source>
        <translation>Guarda los ajustes de la impresora, incluidos los de -o, como el preajuste NAME, y termina. Un preajuste con ese nombre se reemplaza.</translation>
    </message>
    <message>
        <source>Say what the administrator&apos;s policy decides, and where, for the printer that is named behind it or by -d; as root with -U for another user. Exit with status 1 when something of it is not used.</source>
        <translation>Dice qué decide la directiva del administrador, y dónde, para la impresora indicada a continuación o con -d; root puede indicar a otro usuario con -U. El estado de salida es 1 cuando algo de ella no se usa.</translation>
    </message>
    <message>
        <source>Print a job of many sheets without being asked.</source>
        <translation>Imprime un trabajo de muchas hojas sin preguntar.</translation>
    </message>
    <message>
        <source>Set an option of the printer or of the job; may be repeated.</source>
        <translation>Establece una opción de la impresora o del trabajo; se puede repetir.</translation>
    </message>
    <message>
        <source>Print N copies (1 to %1).</source>
        <translation>Imprime N copias (de 1 a %1).</translation>
    </message>
    <message>
        <source>Print these pages (1-4,7,9-), as -o page-ranges= does.</source>
        <translation>Imprime estas páginas (1-4,7,9-), como -o page-ranges=.</translation>
    </message>
    <message>
        <source>Give the job this priority (1 to 100), as -o job-priority= does.</source>
        <translation>Da al trabajo esta prioridad (de 1 a 100), como -o job-priority=.</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, a time HH:MM (UTC), or what -o job-hold-until= takes.</source>
        <translation>Cuándo imprimir: hold, immediate, una hora HH:MM (UTC) o lo que admite -o job-hold-until=.</translation>
    </message>
    <message>
        <source>Do not say which job was printed, only what went wrong.</source>
        <translation>No dice qué trabajo se imprimió, solo lo que haya fallado.</translation>
    </message>
    <message>
        <source>Does nothing: the document is always copied to the queue.</source>
        <translation>No hace nada: el documento siempre se copia a la cola.</translation>
    </message>
    <message>
        <source>Is refused: no mail is sent.</source>
        <translation>Se rechaza: no se envía ningún correo.</translation>
    </message>
    <message>
        <source>Name the job TEXT.</source>
        <translation>Da al trabajo el nombre TEXT.</translation>
    </message>
    <message>
        <source>Print without a window.</source>
        <translation>Imprime sin ventana.</translation>
    </message>
    <message>
        <source>Write the settings of the job to standard output.</source>
        <translation>Escribe los ajustes del trabajo en la salida estándar.</translation>
    </message>
    <message>
        <source>Without a window: keep the settings in lpoptions as an instance of the queue, so that lp -d QUEUE/NAME and other programs print with them.</source>
        <translation>Sin ventana: guarda los ajustes en lpoptions como una instancia de la cola, para que lp -d QUEUE/NAME y otros programas impriman con ellos.</translation>
    </message>
    <message>
        <source>Without a window: what to do when the printer&apos;s settings show instructions: print, hold or refuse. Usually a queue holds the job, and a file is printed.</source>
        <translation>Sin ventana: qué hacer cuando los ajustes de la impresora muestran instrucciones: print, hold o refuse. Normalmente, una cola retiene el trabajo, y en un archivo se imprime.</translation>
    </message>
    <message>
        <source>Without a window: end when the queue has the job, not when it is printed.</source>
        <translation>Sin ventana: termina cuando la cola tiene el trabajo, no cuando está impreso.</translation>
    </message>
    <message>
        <source>Without a window: follow the job for SECONDS at most once its queue has it, then leave it there.</source>
        <translation>Sin ventana: sigue el trabajo durante SECONDS segundos como máximo desde que lo tiene la cola, y lo deja después allí.</translation>
    </message>
    <message>
        <source>Without a window: json writes what became of the job to standard output, as one line that a program can read; text is what people read.</source>
        <translation>Sin ventana: json escribe en la salida estándar qué ha sido del trabajo, en una línea que un programa puede leer; text es lo que leen las personas.</translation>
    </message>
    <message>
        <source>Also trust the plug-in bundles in the folder DIR.</source>
        <translation>Confía también en los paquetes de complementos de la carpeta DIR.</translation>
    </message>
    <message>
        <source>Exit with status 0 when a window can be shown, with 1 when not.</source>
        <translation>Termina con estado 0 cuando se puede mostrar una ventana y con 1 cuando no.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Muestra esta ayuda.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Muestra la versión.</translation>
    </message>
    <message>
        <source>With --save-instance: make such an instance of these queues as well, with what each of them needs to print the same.</source>
        <translation>Con --save-instance: crea también una instancia así de estas colas, con lo que cada una necesita para imprimir lo mismo.</translation>
    </message>
    <message>
        <source>--also-on: the name of the instance is missing, as in --save-instance reports.</source>
        <translation>--also-on: falta el nombre de la instancia, como en --save-instance reports.</translation>
    </message>
</context>
<context>
    <name>CupsFilter</name>
    <message>
        <source>The program %1, named by CORVANA_PRINT_CUPSFILTER, cannot be run.</source>
        <translation>No se puede ejecutar el programa %1, indicado en CORVANA_PRINT_CUPSFILTER.</translation>
    </message>
    <message>
        <source>The program cupsfilter was found neither on the path nor in /usr/sbin. It comes with CUPS (on Debian the package “cups”).</source>
        <translation>No se ha encontrado el programa cupsfilter ni en la ruta de búsqueda ni en /usr/sbin. Se instala con CUPS (en Debian, el paquete «cups»).</translation>
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
        <translation>imagen PNG</translation>
    </message>
    <message>
        <source>JPEG picture</source>
        <translation>imagen JPEG</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 está vacío.</translation>
    </message>
    <message>
        <source>%1 cannot be printed: it holds data that are ready for a printer. A queue passes them on as they are with the option “raw”.</source>
        <translation>No se puede imprimir %1: contiene datos ya preparados para una impresora. Una cola los transmite sin cambios con la opción «raw».</translation>
    </message>
    <message>
        <source>%1 cannot be printed; its contents: %2. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>No se puede imprimir %1: contiene %2. Los documentos pueden ser PDF, PostScript, texto, PNG o JPEG.</translation>
    </message>
    <message>
        <source>%1 is named like a %2, but holds a %3. Rename it if that is right.</source>
        <translation>El nombre de %1 indica otro tipo (%2) que su contenido (%3). Si el contenido es correcto, cambie el nombre.</translation>
    </message>
    <message>
        <source>%1: there is no such file.</source>
        <translation>%1: no existe el archivo.</translation>
    </message>
    <message>
        <source>%1 is a folder; a document was expected.</source>
        <translation>%1 es una carpeta; se esperaba un documento.</translation>
    </message>
    <message>
        <source>%1 is no ordinary file; a document was expected.</source>
        <translation>%1 no es un archivo normal; se esperaba un documento.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada estándar</translation>
    </message>
    <message>
        <source>%1 cannot be kept: %2</source>
        <translation>No se puede guardar %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read: nobody writes into it.</source>
        <translation>No se puede leer %1: ningún programa escribe en él.</translation>
    </message>
    <message>
        <source>%1 cannot be kept: it has more than %2 bytes.</source>
        <translation>No se puede guardar %1: tiene más de %2 bytes.</translation>
    </message>
    <message>
        <source>%1 cannot be printed: nobody can tell what is in it. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>No se puede imprimir %1: no se reconoce su contenido. Los documentos pueden ser PDF, PostScript, texto, PNG o JPEG.</translation>
    </message>
</context>
<context>
    <name>DocumentCopies</name>
    <message>
        <source>all documents, then all of them again (A B A B)</source>
        <translation>todos los documentos, luego todos otra vez (A B A B)</translation>
    </message>
    <message>
        <source>each document with all its copies (A A B B)</source>
        <translation>cada documento con todas sus copias (A A B B)</translation>
    </message>
    <message>
        <source>each page with all its copies (1 1 2 2)</source>
        <translation>cada página con todas sus copias (1 1 2 2)</translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>“%1” is damaged at byte %2.</source>
        <translation>«%1» está dañado en el byte %2.</translation>
    </message>
    <message>
        <source>“%1” is damaged.</source>
        <translation>«%1» está dañado.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>“%1” is protected, and the password that was given does not open it.</source>
        <translation>«%1» está protegido, y la contraseña indicada no lo abre.</translation>
    </message>
    <message>
        <source>“%1” is protected: it is printed only with its password.</source>
        <translation>«%1» está protegido: solo se imprime con su contraseña.</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. Only its owner&apos;s password does.</source>
        <translation>«%1» no permite la impresión. Solo la permite la contraseña de su propietario.</translation>
    </message>
    <message>
        <source>None of its pages can be printed.</source>
        <translation>No se puede imprimir ninguna de sus páginas.</translation>
    </message>
    <message>
        <source>“%1” is protected, and a copy without protection could not be made: it is too large, or there is no room for it.</source>
        <translation>«%1» está protegido, y no se ha podido crear una copia sin protección: es demasiado grande o no hay espacio para ella.</translation>
    </message>
    <message>
        <source>1 of its %1 pages can be printed.</source>
        <translation>Se puede imprimir 1 de sus %1 páginas.</translation>
    </message>
    <message>
        <source>%1 of its %2 pages can be printed.</source>
        <translation>Se pueden imprimir %1 de sus %2 páginas.</translation>
    </message>
    <message>
        <source>“%1” is protected. The file that is printed to is not.</source>
        <translation>«%1» está protegido. El archivo en el que se imprime no lo está.</translation>
    </message>
    <message>
        <source>“%1” is protected. The print server gets a copy without protection.</source>
        <translation>«%1» está protegido. El servidor de impresión recibe una copia sin protección.</translation>
    </message>
    <message>
        <source>All pages that were found in it are printed.</source>
        <translation>Se imprimen todas las páginas encontradas en él.</translation>
    </message>
    <message>
        <source>“%1” brings settings for a printer along, which are not followed: %2. Choose them here, or pass the document on with the option “raw”.</source>
        <translation>«%1» trae ajustes para una impresora que no se aplican: %2. Elíjalos aquí o transmita el documento sin cambios con la opción «raw».</translation>
    </message>
</context>
<context>
    <name>ExitStatus</name>
    <message>
        <source>printed, sent, or in the queue with the reason why it waits there</source>
        <translation>impreso, enviado, o en la cola con el motivo por el que espera</translation>
    </message>
    <message>
        <source>refused, failed or canceled</source>
        <translation>rechazado, fallido o cancelado</translation>
    </message>
    <message>
        <source>a command line that cannot be understood</source>
        <translation>una línea de órdenes que no se puede entender</translation>
    </message>
    <message>
        <source>sent, and what became of it is not known</source>
        <translation>enviado, y no se sabe qué ha sido de él</translation>
    </message>
    <message>
        <source>the time of --wait is over; the job is still in the queue</source>
        <translation>el tiempo de --wait ha pasado; el trabajo sigue en la cola</translation>
    </message>
</context>
<context>
    <name>HttpLine</name>
    <message>
        <source>The password is sent to “%1” without encryption: others in the network can read it. “-E” encrypts.</source>
        <translation>La contraseña se envía a «%1» sin cifrar: otras personas pueden leerla en la red. La opción «-E» activa el cifrado.</translation>
    </message>
</context>
<context>
    <name>InstanceDraft</name>
    <message>
        <source>Some programs add “%1=%2” to it, which you have set for “%3”.</source>
        <translation>Algunos programas le añaden «%1=%2», que usted ha establecido para «%3».</translation>
    </message>
    <message>
        <source>“%1” is left out: it is a secret.</source>
        <translation>Se omite «%1»: es un secreto.</translation>
    </message>
    <message>
        <source>“%1” is left out: other programs cannot print it.</source>
        <translation>Se omite «%1»: otros programas no pueden imprimir con ello.</translation>
    </message>
    <message>
        <source>Other programs know settings of queues only, and “%1” is none.</source>
        <translation>Otros programas solo conocen los ajustes de las colas, y «%1» no es una cola.</translation>
    </message>
    <message>
        <source>“%1” gets files as they are, so that no setting has an effect.</source>
        <translation>«%1» recibe los archivos sin cambios, por lo que ningún ajuste tiene efecto.</translation>
    </message>
    <message>
        <source>“%1” has no letters that other programs can print to. Give it a name of letters from a to z, such as “%2”.</source>
        <translation>«%1» no tiene letras con las que puedan imprimir otros programas. Dele un nombre con letras de la a a la z, como «%2».</translation>
    </message>
    <message>
        <source>“%1” is there already, with settings of its own. Choose another name, or remove it with “lpoptions -x %1”.</source>
        <translation>«%1» ya existe, con ajustes propios. Elija otro nombre o elimínelo con «lpoptions -x %1».</translation>
    </message>
</context>
<context>
    <name>JobAttributes</name>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Bound at the Left</source>
        <translation>Encuadernado a la izquierda</translation>
    </message>
    <message>
        <source>Bound at the Right</source>
        <translation>Encuadernado a la derecha</translation>
    </message>
    <message>
        <source>One-Sided</source>
        <translation>Una cara</translation>
    </message>
    <message>
        <source>Long Edge (by Hand)</source>
        <translation>Borde largo (manual)</translation>
    </message>
    <message>
        <source>Short Edge (by Hand)</source>
        <translation>Borde corto (manual)</translation>
    </message>
    <message>
        <source>Printed Side Down</source>
        <translation>Con la cara impresa hacia abajo</translation>
    </message>
    <message>
        <source>Printed Side Up</source>
        <translation>Con la cara impresa hacia arriba</translation>
    </message>
    <message>
        <source>Up, Then to the Right</source>
        <translation>Hacia arriba, luego a la derecha</translation>
    </message>
    <message>
        <source>Up, Then to the Left</source>
        <translation>Hacia arriba, luego a la izquierda</translation>
    </message>
    <message>
        <source>To the Right, Then Up</source>
        <translation>A la derecha, luego hacia arriba</translation>
    </message>
    <message>
        <source>To the Right, Then Down</source>
        <translation>A la derecha, luego hacia abajo</translation>
    </message>
    <message>
        <source>To the Left, Then Up</source>
        <translation>A la izquierda, luego hacia arriba</translation>
    </message>
    <message>
        <source>To the Left, Then Down</source>
        <translation>A la izquierda, luego hacia abajo</translation>
    </message>
    <message>
        <source>Down, Then to the Right</source>
        <translation>Hacia abajo, luego a la derecha</translation>
    </message>
    <message>
        <source>Down, Then to the Left</source>
        <translation>Hacia abajo, luego a la izquierda</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Thin Line</source>
        <translation>Línea fina</translation>
    </message>
    <message>
        <source>Thick Line</source>
        <translation>Línea gruesa</translation>
    </message>
    <message>
        <source>Two Thin Lines</source>
        <translation>Dos líneas finas</translation>
    </message>
    <message>
        <source>Two Thick Lines</source>
        <translation>Dos líneas gruesas</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Even Pages Only</source>
        <translation>Solo páginas pares</translation>
    </message>
    <message>
        <source>Odd Pages Only</source>
        <translation>Solo páginas impares</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Reverse Landscape</source>
        <translation>Horizontal invertida</translation>
    </message>
    <message>
        <source>Reverse Portrait</source>
        <translation>Vertical invertida</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Fit All Pages If One Is Too Large</source>
        <translation>Ajustar todas si una es demasiado grande</translation>
    </message>
    <message>
        <source>Fill Paper</source>
        <translation>Llenar el papel</translation>
    </message>
    <message>
        <source>Fit to Paper</source>
        <translation>Ajustar al papel</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>First Page First</source>
        <translation>Primera página al principio</translation>
    </message>
    <message>
        <source>Last Page First</source>
        <translation>Última página al principio</translation>
    </message>
    <message>
        <source>Print at Once</source>
        <translation>Imprimir de inmediato</translation>
    </message>
    <message>
        <source>Until It Is Released</source>
        <translation>Hasta que se libere</translation>
    </message>
    <message>
        <source>Daytime</source>
        <translation>Horario diurno</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Tarde</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noche</translation>
    </message>
    <message>
        <source>Second Shift</source>
        <translation>Segundo turno</translation>
    </message>
    <message>
        <source>Third Shift</source>
        <translation>Tercer turno</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Fin de semana</translation>
    </message>
    <message>
        <source>points of 1/72 inch</source>
        <translation>puntos de 1/72 de pulgada</translation>
    </message>
    <message>
        <source>Two-Sided</source>
        <translation>Doble cara</translation>
    </message>
    <message>
        <source>Sheets Are Put Back</source>
        <translation>Colocación de las hojas</translation>
    </message>
    <message>
        <source>Pages per Sheet</source>
        <translation>Páginas por cara</translation>
    </message>
    <message>
        <source>Order on the Sheet</source>
        <translation>Orden en la hoja</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Folleto</translation>
    </message>
    <message>
        <source>Each Page, Times on a Side</source>
        <translation>Repeticiones por cara</translation>
    </message>
    <message>
        <source>Border Around Pages</source>
        <translation>Borde de las páginas</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>pages and ranges in ascending order, such as 1-4,7,9-</source>
        <translation>páginas e intervalos en orden ascendente, como 1-4,7,9-</translation>
    </message>
    <message>
        <source>Odd and Even Pages</source>
        <translation>Páginas pares e impares</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Fit to Page</source>
        <translation>Ajustar a la página</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Size on the Page, in %</source>
        <translation>Tamaño en la página, en %</translation>
    </message>
    <message>
        <source>Size of the Picture, in %</source>
        <translation>Tamaño de la imagen, en %</translation>
    </message>
    <message>
        <source>Pixels per Inch</source>
        <translation>Píxeles por pulgada</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Imagen reflejada</translation>
    </message>
    <message>
        <source>Left Margin</source>
        <translation>Margen izquierdo</translation>
    </message>
    <message>
        <source>Right Margin</source>
        <translation>Margen derecho</translation>
    </message>
    <message>
        <source>Top Margin</source>
        <translation>Margen superior</translation>
    </message>
    <message>
        <source>Bottom Margin</source>
        <translation>Margen inferior</translation>
    </message>
    <message>
        <source>Characters per Inch</source>
        <translation>Caracteres por pulgada</translation>
    </message>
    <message>
        <source>Lines per Inch</source>
        <translation>Líneas por pulgada</translation>
    </message>
    <message>
        <source>Columns of Text</source>
        <translation>Columnas de texto</translation>
    </message>
    <message>
        <source>Long Lines Continue</source>
        <translation>Continuar las líneas largas</translation>
    </message>
    <message>
        <source>Headers on Text Pages</source>
        <translation>Encabezados en páginas de texto</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Intercalar</translation>
    </message>
    <message>
        <source>Output Order</source>
        <translation>Orden de salida</translation>
    </message>
    <message>
        <source>Hold Until</source>
        <translation>Retener hasta</translation>
    </message>
    <message>
        <source>a time HH:MM in UTC</source>
        <translation>una hora HH:MM en UTC</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Banner Pages</source>
        <translation>Páginas de portada</translation>
    </message>
    <message>
        <source>one or two names of banner pages</source>
        <translation>los nombres de una o dos páginas de portada</translation>
    </message>
    <message>
        <source>Billed To</source>
        <translation>Cargar a la cuenta</translation>
    </message>
    <message>
        <source>a text of up to 255 bytes</source>
        <translation>un texto de 255 bytes como máximo</translation>
    </message>
    <message>
        <source>%1 UTC</source>
        <translation>%1 UTC</translation>
    </message>
    <message>
        <source>%1 UTC (%2 here)</source>
        <translation>%1 UTC (%2 hora local)</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Blanco y negro</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Borrador</translation>
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
        <translation>Cancelar después de (segundos)</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>a resolution such as 600dpi or 1200x600dpi</source>
        <translation>una resolución como 600dpi o 1200x600dpi</translation>
    </message>
    <message>
        <source>Output Bin</source>
        <translation>Bandeja de salida</translation>
    </message>
    <message>
        <source>the name of an output bin</source>
        <translation>el nombre de una bandeja de salida</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Acabado</translation>
    </message>
    <message>
        <source>numbers or names of finishings</source>
        <translation>números o nombres de acabados</translation>
    </message>
    <message>
        <source>Paper Source</source>
        <translation>Origen del papel</translation>
    </message>
    <message>
        <source>the name of a paper source</source>
        <translation>el nombre de un origen del papel</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Tipo de papel</translation>
    </message>
    <message>
        <source>the name of a media type</source>
        <translation>el nombre de un tipo de papel</translation>
    </message>
    <message>
        <source>or %1</source>
        <translation>o %1</translation>
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
        <translation>Se muestra en blanco y negro, con sus ajustes de color.</translation>
    </message>
    <message>
        <source>Shown in black and white.</source>
        <translation>Se muestra en blanco y negro.</translation>
    </message>
    <message>
        <source>Shows your adjustments; colors on paper differ.</source>
        <translation>Muestra sus ajustes de color; en papel los colores varían.</translation>
    </message>
    <message>
        <source>Colors on paper differ from those on the screen.</source>
        <translation>Los colores en papel difieren de los de la pantalla.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>“%1: %2” is not shown.</source>
        <translation>«%1: %2» no se muestra.</translation>
    </message>
</context>
<context>
    <name>JobNames</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>JobRequests</name>
    <message>
        <source>The value of “%1” is too long for a print server; at most %2 bytes can be sent.</source>
        <translation>El valor de «%1» es demasiado largo para un servidor de impresión; se pueden enviar %2 bytes como máximo.</translation>
    </message>
    <message>
        <source>The value of “%1” has characters that a print server would drop: no line breaks, no “{” in front.</source>
        <translation>El valor de «%1» contiene caracteres que un servidor de impresión eliminaría: no se admiten saltos de línea ni «{» al principio.</translation>
    </message>
</context>
<context>
    <name>LastUsed</name>
    <message>
        <source>The settings of the last job cannot be read, and stay as they are in “%1”: %2.</source>
        <translation>Los ajustes del último trabajo no se pueden leer y se dejan como están en «%1»: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>No se puede eliminar «%1»: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be written.</source>
        <translation>No se puede escribir «%1».</translation>
    </message>
</context>
<context>
    <name>LeftSession</name>
    <message>
        <source>This printer has no option of the name %1 any more.</source>
        <translation>Esta impresora ya no tiene ninguna opción llamada %1.</translation>
    </message>
    <message>
        <source>The option %1 has no choice %2 any more.</source>
        <translation>La opción %1 ya no ofrece el valor %2.</translation>
    </message>
</context>
<context>
    <name>ListPresets</name>
    <message>
        <source>all printers</source>
        <translation>todas las impresoras</translation>
    </message>
</context>
<context>
    <name>OptionLocks</name>
    <message>
        <source>“%1” is set by your administrator (%2).</source>
        <translation>«%1» lo ha establecido el administrador (%2).</translation>
    </message>
    <message>
        <source>Set by your administrator (%1).</source>
        <translation>Establecido por el administrador (%1).</translation>
    </message>
</context>
<context>
    <name>OptionRequest</name>
    <message>
        <source>%1: the printer&apos;s settings do not allow this here; it became %2.</source>
        <translation>%1: los ajustes de la impresora no lo permiten aquí; se ha cambiado a %2.</translation>
    </message>
    <message>
        <source>%1: the printer&apos;s options cannot be set to this value.</source>
        <translation>%1: no se puede asignar este valor a las opciones de la impresora.</translation>
    </message>
    <message>
        <source>%1: this cannot be combined with %2.</source>
        <translation>%1: no se puede combinar con %2.</translation>
    </message>
    <message>
        <source>%1: this value is not allowed. Allowed: %2.</source>
        <translation>%1: este valor no está permitido. Valores permitidos: %2.</translation>
    </message>
    <message>
        <source>%1=Custom: a value is missing. Allowed: %2.</source>
        <translation>%1=Custom: falta un valor. Valores permitidos: %2.</translation>
    </message>
    <message>
        <source>this printer has no such option. Options: %1. Job attributes: %2.</source>
        <translation>esta impresora no tiene esa opción. Opciones: %1. Atributos del trabajo: %2.</translation>
    </message>
    <message>
        <source>this printer has nothing to choose from for this.</source>
        <translation>esta impresora no ofrece valores para elegir.</translation>
    </message>
    <message>
        <source>this value is not allowed. Allowed: %1.</source>
        <translation>este valor no está permitido. Valores permitidos: %1.</translation>
    </message>
    <message>
        <source>this printer has no paper sizes to choose from.</source>
        <translation>esta impresora no ofrece tamaños de papel para elegir.</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>«%1» no está permitido. Valores permitidos: %2.</translation>
    </message>
    <message>
        <source>this printer prints on one side only. Allowed: %1. Two sides by hand: %2=%3, %2=%4.</source>
        <translation>esta impresora solo imprime por una cara. Valores permitidos: %1. Doble cara manual: %2=%3, %2=%4.</translation>
    </message>
    <message>
        <source>1 to %1</source>
        <translation>de 1 a %1</translation>
    </message>
    <message>
        <source>this printer turns sheets over itself. Allowed: %1=no; for two sides use %2.</source>
        <translation>esta impresora da la vuelta a las hojas por sí misma. Valores permitidos: %1=no; para imprimir a doble cara, use %2.</translation>
    </message>
</context>
<context>
    <name>PageChoice</name>
    <message>
        <source>The pages that were asked for are in none of the documents. Nothing was printed.</source>
        <translation>Las páginas pedidas no están en ninguno de los documentos. No se ha impreso nada.</translation>
    </message>
    <message>
        <source>“%1: %2”</source>
        <translation>«%1: %2»</translation>
    </message>
    <message>
        <source>A booklet has two pages on each side, in an order of its own: %1 cannot be done with it.</source>
        <translation>Un folleto tiene dos páginas en cada cara, en un orden propio: no admite %1.</translation>
    </message>
    <message>
        <source>Each page is repeated %1 times on a side: %2 cannot be done with it.</source>
        <translation>Cada página se repite %1 veces en una cara: no se admite %2.</translation>
    </message>
</context>
<context>
    <name>PageTrouble</name>
    <message>
        <source>This page cannot be shown: it is damaged.</source>
        <translation>No se puede mostrar esta página: está dañada.</translation>
    </message>
    <message>
        <source>This page cannot be shown: it is too large.</source>
        <translation>No se puede mostrar esta página: es demasiado grande.</translation>
    </message>
    <message>
        <source>This page cannot be shown: drawing it takes too long.</source>
        <translation>No se puede mostrar esta página: tarda demasiado en dibujarse.</translation>
    </message>
    <message>
        <source>This page cannot be shown: the document is protected by a password.</source>
        <translation>No se puede mostrar esta página: el documento está protegido con contraseña.</translation>
    </message>
    <message>
        <source>This page cannot be shown: the file cannot be read.</source>
        <translation>No se puede mostrar esta página: no se puede leer el archivo.</translation>
    </message>
    <message>
        <source>Pages cannot be shown: the program that draws them does not run.</source>
        <translation>No se pueden mostrar las páginas: el programa que las dibuja no funciona.</translation>
    </message>
</context>
<context>
    <name>PassedOn</name>
    <message>
        <source>The queue “%1” passes files on as they are: %2 cannot be done.</source>
        <translation>La cola «%1» transmite los archivos sin cambios: no se puede aplicar %2.</translation>
    </message>
    <message>
        <source>With “raw” files are passed on as they are: %1 cannot be done.</source>
        <translation>Con «raw» los archivos se transmiten sin cambios: no se puede aplicar %1.</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Passed on as it is</source>
        <translation>Transmitido sin cambios</translation>
    </message>
</context>
<context>
    <name>PasswordFile</name>
    <message>
        <source>The password cannot be read from %1: %2.</source>
        <translation>No se puede leer la contraseña de %1: %2.</translation>
    </message>
    <message>
        <source>The first line of %1 is empty; a password was expected.</source>
        <translation>La primera línea de %1 está vacía; se esperaba una contraseña.</translation>
    </message>
    <message>
        <source>The first line of %1 is no password: at most %2 bytes of UTF-8 were expected.</source>
        <translation>La primera línea de %1 no es una contraseña: se esperaban como máximo %2 bytes en UTF-8.</translation>
    </message>
    <message>
        <source>The password cannot be read from %1: it is no file.</source>
        <translation>No se puede leer la contraseña de %1: no es un archivo.</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: the file belongs to somebody else.</source>
        <translation>No se acepta la contraseña de %1: el archivo pertenece a otro usuario.</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: others than its owner may use the file (its mode is %2; chmod 600 takes that away).</source>
        <translation>No se acepta la contraseña de %1: el archivo es accesible para otros usuarios además de su propietario (sus permisos son %2; chmod 600 lo corrige).</translation>
    </message>
    <message>
        <source>descriptor %1</source>
        <translation>el descriptor %1</translation>
    </message>
</context>
<context>
    <name>Policy</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>«%1» no está permitido. Valores permitidos: %2.</translation>
    </message>
    <message>
        <source>the path of a folder that begins with /</source>
        <translation>la ruta de una carpeta que empiece por /</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>un número de %1 a %2</translation>
    </message>
    <message>
        <source>the line is longer than %1 bytes</source>
        <translation>la línea tiene más de %1 bytes</translation>
    </message>
    <message>
        <source>the line is not written in UTF-8</source>
        <translation>la línea no está escrita en UTF-8</translation>
    </message>
    <message>
        <source>the line has a character that cannot be seen</source>
        <translation>la línea contiene un carácter no visible</translation>
    </message>
    <message>
        <source>there are more problems</source>
        <translation>hay más problemas</translation>
    </message>
    <message>
        <source>there are more than %1 sections</source>
        <translation>hay más de %1 secciones</translation>
    </message>
    <message>
        <source>“%1” is no section, and what follows in it is left out. Allowed: %2.</source>
        <translation>«%1» no es una sección, y se omite lo que contiene. Secciones permitidas: %2.</translation>
    </message>
    <message>
        <source>“%1” is no line of a policy. Expected: %2.</source>
        <translation>«%1» no es una línea de una directiva. Se esperaba: %2.</translation>
    </message>
    <message>
        <source>“%1” stands before the first section. Begin with [all].</source>
        <translation>«%1» está antes de la primera sección. Empiece con [all].</translation>
    </message>
    <message>
        <source>there is no key “%1”. Keys: %2.</source>
        <translation>no existe la clave «%1». Claves: %2.</translation>
    </message>
    <message>
        <source>%1 needs the keyword of an option or of a job attribute.</source>
        <translation>%1 necesita la palabra clave de una opción o de un atributo del trabajo.</translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation>el valor es demasiado largo</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 bytes</source>
        <translation>el archivo no se usa: tiene más de %1 bytes</translation>
    </message>
    <message>
        <source>the file is not used: it is no text</source>
        <translation>el archivo no se usa: no es un texto</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 lines</source>
        <translation>el archivo no se usa: tiene más de %1 líneas</translation>
    </message>
    <message>
        <source>it belongs to the user with the ID %1</source>
        <translation>pertenece al usuario número %1</translation>
    </message>
    <message>
        <source>others than its owner may write to it</source>
        <translation>otros usuarios además de su propietario tienen permiso de escritura</translation>
    </message>
    <message>
        <source>nothing below this folder is used: %1</source>
        <translation>no se usa nada de lo que hay bajo esta carpeta: %1</translation>
    </message>
    <message>
        <source>nothing in this folder is used: %1</source>
        <translation>no se usa nada de esta carpeta: %1</translation>
    </message>
    <message>
        <source>only the first %1 files are used</source>
        <translation>solo se usan los primeros %1 archivos</translation>
    </message>
    <message>
        <source>the file is not used: it is a link that leads out of its folder</source>
        <translation>el archivo no se usa: es un enlace que sale de su carpeta</translation>
    </message>
    <message>
        <source>the file is not used: %1</source>
        <translation>el archivo no se usa: %1</translation>
    </message>
    <message>
        <source>the file is not used: it is no ordinary file</source>
        <translation>el archivo no se usa: no es un archivo normal</translation>
    </message>
</context>
<context>
    <name>PpdCopy</name>
    <message>
        <source>The printer&apos;s options cannot be written to %1: %2</source>
        <translation>No se pueden escribir las opciones de la impresora en %1: %2</translation>
    </message>
</context>
<context>
    <name>PpdFilters</name>
    <message>
        <source>The driver of this printer names the file “%1”, which only a print server may open. Print on the printer itself instead of into a file.</source>
        <translation>El controlador de esta impresora indica el archivo «%1», que solo puede abrir un servidor de impresión. Imprima en la propia impresora en lugar de en un archivo.</translation>
    </message>
    <message>
        <source>The driver of this printer needs the program “%1”, which only a print server may run. Print on the printer itself instead of into a file.</source>
        <translation>El controlador de esta impresora necesita el programa «%1», que solo puede ejecutar un servidor de impresión. Imprima en la propia impresora en lugar de en un archivo.</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>A preset needs a name.</source>
        <translation>Un preajuste necesita un nombre.</translation>
    </message>
    <message>
        <source>The name of a preset has at most %1 characters.</source>
        <translation>El nombre de un preajuste tiene como máximo %1 caracteres.</translation>
    </message>
    <message>
        <source>The name of a preset holds only characters that can be seen.</source>
        <translation>El nombre de un preajuste solo puede contener caracteres visibles.</translation>
    </message>
    <message>
        <source>“%1” is always there, and is no name of a preset.</source>
        <translation>«%1» está siempre ahí y no puede ser el nombre de un preajuste.</translation>
    </message>
</context>
<context>
    <name>PresetApplication</name>
    <message>
        <source>%1 is not possible on this printer. Allowed: %2.</source>
        <translation>%1 no es posible en esta impresora. Valores permitidos: %2.</translation>
    </message>
    <message>
        <source>%1 is not possible together with the other settings.</source>
        <translation>%1 no es posible junto con los demás ajustes.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings do not allow %1 here; it became %2.</source>
        <translation>Los ajustes de la impresora no permiten %1 aquí; se ha cambiado a %2.</translation>
    </message>
    <message>
        <source>%1 is not on this printer.</source>
        <translation>%1 no existe en esta impresora.</translation>
    </message>
    <message>
        <source>A value of the printer&apos;s own settings (%1) is not possible here.</source>
        <translation>Un valor de los ajustes propios de la impresora (%1) no es posible aquí.</translation>
    </message>
</context>
<context>
    <name>PresetFile</name>
    <message>
        <source>“%1”: expected was %2</source>
        <translation>«%1»: se esperaba %2</translation>
    </message>
    <message>
        <source>it was written by a later version of this program</source>
        <translation>lo ha escrito una versión posterior de este programa</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texto</translation>
    </message>
    <message>
        <source>at most %1 values</source>
        <translation>como máximo %1 valores</translation>
    </message>
    <message>
        <source>the name of an option</source>
        <translation>el nombre de una opción</translation>
    </message>
    <message>
        <source>a value or a list of values</source>
        <translation>un valor o una lista de valores</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>No se puede escribir «%1»: %2.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>expected was { … }</source>
        <translation>se esperaba { … }</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>tiene más de %1 bytes</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>“%1” is damaged and is left as it is: %2.</source>
        <translation>«%1» está dañado y se deja como está: %2.</translation>
    </message>
    <message>
        <source>There is no place to keep presets.</source>
        <translation>No hay ningún lugar donde guardar preajustes.</translation>
    </message>
    <message>
        <source>Another program is writing presets. Try again.</source>
        <translation>Otro programa está escribiendo preajustes. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>no space left, or no permission</source>
        <translation>no hay espacio o faltan permisos</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>No se puede escribir «%1»: %2.</translation>
    </message>
    <message>
        <source>There is a preset of the name “%1” already.</source>
        <translation>Ya existe un preajuste llamado «%1».</translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>Ya no existe ningún preajuste llamado «%1».</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>No se puede eliminar «%1»: %2.</translation>
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
        <translation>El administrador no ofrece la impresora «%1» (%2).</translation>
    </message>
    <message>
        <source>Printing to a file is not offered by your administrator (%1).</source>
        <translation>El administrador no ofrece la impresión en un archivo (%1).</translation>
    </message>
</context>
<context>
    <name>PrinterFetching</name>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
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
        <translation>cubierta abierta</translation>
    </message>
    <message>
        <source>driver not trusted by the server</source>
        <translation>controlador no fiable para el servidor</translation>
    </message>
    <message>
        <source>driver missing on the server</source>
        <translation>falta el controlador en el servidor</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>apagada</translation>
    </message>
    <message>
        <source>developer used up</source>
        <translation>revelador agotado</translation>
    </message>
    <message>
        <source>developer low</source>
        <translation>queda poco revelador</translation>
    </message>
    <message>
        <source>door open</source>
        <translation>puerta abierta</translation>
    </message>
    <message>
        <source>fuser too hot</source>
        <translation>fusor demasiado caliente</translation>
    </message>
    <message>
        <source>fuser too cold</source>
        <translation>fusor demasiado frío</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>los trabajos nuevos se retienen</translation>
    </message>
    <message>
        <source>tray missing</source>
        <translation>falta una bandeja</translation>
    </message>
    <message>
        <source>ink or toner used up</source>
        <translation>tinta o tóner agotados</translation>
    </message>
    <message>
        <source>ink or toner low</source>
        <translation>queda poca tinta o poco tóner</translation>
    </message>
    <message>
        <source>waste container almost full</source>
        <translation>depósito de residuos casi lleno</translation>
    </message>
    <message>
        <source>waste container full</source>
        <translation>depósito de residuos lleno</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>sin papel</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>atasco de papel</translation>
    </message>
    <message>
        <source>paper low</source>
        <translation>queda poco papel</translation>
    </message>
    <message>
        <source>paper needed</source>
        <translation>se necesita papel</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>pausándose</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>no conectada</translation>
    </message>
    <message>
        <source>drum used up</source>
        <translation>tambor agotado</translation>
    </message>
    <message>
        <source>drum nearly used up</source>
        <translation>tambor casi agotado</translation>
    </message>
    <message>
        <source>output tray almost full</source>
        <translation>bandeja de salida casi llena</translation>
    </message>
    <message>
        <source>output tray full</source>
        <translation>bandeja de salida llena</translation>
    </message>
    <message>
        <source>output tray missing</source>
        <translation>falta la bandeja de salida</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pausa</translation>
    </message>
    <message>
        <source>print queue full</source>
        <translation>cola de impresión llena</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>detenida en parte</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>deteniéndose</translation>
    </message>
    <message>
        <source>not answering</source>
        <translation>no responde</translation>
    </message>
    <message>
        <source>toner used up</source>
        <translation>tóner agotado</translation>
    </message>
    <message>
        <source>toner low</source>
        <translation>queda poco tóner</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Inactiva</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimiendo</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenida</translation>
    </message>
    <message>
        <source>Prints to a file</source>
        <translation>Imprime en un archivo</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the words of a printer&apos;s state</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>No longer available</source>
        <translation>Ya no está disponible</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Detenida: %1</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>no acepta trabajos</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>No acepta trabajos</translation>
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
        <translation>Nombre: %1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Ubicación: %1</translation>
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
        <translation>Mensaje: %1</translation>
    </message>
    <message>
        <source>Address: %1</source>
        <translation>Dirección: %1</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opción desconocida: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Opciones desconocidas: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Falta un valor después de &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>&quot;%1&quot; no admite ningún valor.</translation>
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
        <translation> y </translation>
    </message>
    <message>
        <source>The printer&apos;s options cannot be set to %1.</source>
        <translation>No se puede asignar %1 a las opciones de la impresora.</translation>
    </message>
    <message>
        <source>%1 cannot be combined with %2.</source>
        <translation>%1 no se puede combinar con %2.</translation>
    </message>
    <message>
        <source>Change to %1</source>
        <translation>Cambiar a %1</translation>
    </message>
</context>
<context>
    <name>RequestFromCommandLine</name>
    <message>
        <source>%1: the name is not written in UTF-8.</source>
        <translation>%1: el nombre no está escrito en UTF-8.</translation>
    </message>
</context>
<context>
    <name>ResultFile</name>
    <message>
        <source>%1 is a folder; the name of a file was expected.</source>
        <translation>%1 es una carpeta; se esperaba el nombre de un archivo.</translation>
    </message>
    <message>
        <source>%1 is a device or a pipe; the name of a file was expected.</source>
        <translation>%1 es un dispositivo o una tubería; se esperaba el nombre de un archivo.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>%1 was written by another program meanwhile, and is left as it is. Print again to replace it, or name another file.</source>
        <translation>Entretanto, otro programa ha escrito %1, que se deja como está. Imprima de nuevo para reemplazarlo o indique otro archivo.</translation>
    </message>
</context>
<context>
    <name>ResultPages</name>
    <message>
        <source>Nothing would be printed: what came out has no page.</source>
        <translation>No se imprimiría nada: el resultado no tiene páginas.</translation>
    </message>
</context>
<context>
    <name>SavedAsPdf</name>
    <message>
        <source>A PDF file is neither held nor printed: %1 cannot be done.</source>
        <translation>Un archivo PDF no se retiene ni se imprime: no se puede aplicar %1.</translation>
    </message>
</context>
<context>
    <name>ServerAddress</name>
    <message>
        <source>this computer</source>
        <translation>este equipo</translation>
    </message>
</context>
<context>
    <name>ServerJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>Se ha cancelado la impresión.</translation>
    </message>
    <message>
        <source>The print server did not say which job it has made.</source>
        <translation>El servidor de impresión no ha indicado qué trabajo ha creado.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message>
        <source>%1 The printer says: %2</source>
        <translation>%1 La impresora indica: %2</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has been printed.</source>
        <translation>El trabajo %1 del intento anterior se ha impreso.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is held in the queue.</source>
        <translation>El trabajo %1 del intento anterior está retenido en la cola.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is stopped in the queue.</source>
        <translation>El trabajo %1 del intento anterior está detenido en la cola.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is in the queue and will be printed.</source>
        <translation>El trabajo %1 del intento anterior está en la cola y se imprimirá.</translation>
    </message>
    <message>
        <source>%1 The job had been moved from the queue “%2” to “%3”.</source>
        <translation>%1 El trabajo se había movido de la cola «%2» a «%3».</translation>
    </message>
    <message>
        <source>%1 Nothing was printed.</source>
        <translation>%1 No se ha impreso nada.</translation>
    </message>
    <message>
        <source>The printer “%1” wants a user and a password; none was given. Nothing was printed.</source>
        <translation>La impresora «%1» requiere un usuario y una contraseña, que no se han indicado. No se ha impreso nada.</translation>
    </message>
    <message>
        <source>The queue “%1” is not there any more. Nothing was printed.</source>
        <translation>La cola «%1» ya no existe. No se ha impreso nada.</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment. Nothing was printed.</source>
        <translation>La cola «%1» no acepta trabajos en este momento. No se ha impreso nada.</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment: %2. Nothing was printed.</source>
        <translation>La cola «%1» no acepta trabajos en este momento: %2. No se ha impreso nada.</translation>
    </message>
    <message>
        <source>The options of the printer “%1” have changed at its server. Nothing was printed.</source>
        <translation>Las opciones de la impresora «%1» han cambiado en su servidor. No se ha impreso nada.</translation>
    </message>
    <message>
        <source>%1 Whether job %2 of the earlier try was printed is not known yet, so nothing was sent again.</source>
        <translation>%1 Aún no se sabe si se imprimió el trabajo %2 del intento anterior, por lo que no se ha vuelto a enviar nada.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has got %2 of its %3 documents to the printer. Print the others by themselves, or everything once more.</source>
        <translation>Del trabajo %1 del intento anterior han llegado a la impresora %2 de sus %3 documentos. Imprima los demás por separado o todo de nuevo.</translation>
    </message>
    <message>
        <source>%1 Nothing was printed, but a job without a document may be at the print server. It could not be looked for: %2</source>
        <translation>%1 No se ha impreso nada, pero puede haber quedado un trabajo sin documento en el servidor de impresión. No se ha podido buscar: %2</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; pages that the printer has already may still come out.</source>
        <translation>%1 El trabajo %2 se ha cancelado; las páginas que ya están en la impresora aún pueden salir.</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; nothing was printed.</source>
        <translation>%1 El trabajo %2 se ha cancelado; no se ha impreso nada.</translation>
    </message>
    <message>
        <source>Job %1 could not be canceled and may still be printed. %2</source>
        <translation>No se ha podido cancelar el trabajo %1, que aún puede imprimirse. %2</translation>
    </message>
    <message>
        <source>%1 Job %2 could not be canceled and may still be printed. %3</source>
        <translation>%1 No se ha podido cancelar el trabajo %2, que aún puede imprimirse. %3</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server, without its whole document. It could not be canceled: %3</source>
        <translation>%1 Es posible que el trabajo %2 siga en el servidor de impresión, sin su documento completo. No se ha podido cancelar: %3</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server with some of its documents, and may print these. It could not be canceled: %3 Printing again looks for it first.</source>
        <translation>%1 Es posible que el trabajo %2 siga en el servidor de impresión con algunos de sus documentos y que estos se impriman. No se ha podido cancelar: %3 Si imprime de nuevo, primero se busca ese trabajo.</translation>
    </message>
    <message>
        <source>The printer “%1” does not accept this user and password.</source>
        <translation>La impresora «%1» no acepta este usuario y esta contraseña.</translation>
    </message>
    <message>
        <source>%1 The print server does not know job %2 any more. It was probably not printed.</source>
        <translation>%1 El servidor de impresión ya no tiene constancia del trabajo %2. Probablemente no se haya impreso.</translation>
    </message>
    <message>
        <source>%1 The document had been sent, so job %2 may be printed or not. Printing again looks for it first.</source>
        <translation>%1 El documento ya se había enviado, así que el trabajo %2 puede haberse impreso o no. Si imprime de nuevo, primero se busca ese trabajo.</translation>
    </message>
    <message>
        <source>Job %1 has left the queue “%2”, whose server keeps no record of it. So whether it has been printed is not known.</source>
        <translation>El trabajo %1 ha salido de la cola «%2», cuyo servidor no guarda constancia de él. Por eso no se sabe si se ha impreso.</translation>
    </message>
    <message>
        <source>Job %1 was handed over completely. %2 So whether it has been printed is not known.</source>
        <translation>El trabajo %1 se ha entregado completo. %2 Por eso no se sabe si se ha impreso.</translation>
    </message>
    <message>
        <source>The print server gives job %1 the state %2, which is not known.</source>
        <translation>El servidor de impresión da al trabajo %1 el estado %2, que no se conoce.</translation>
    </message>
    <message>
        <source>Job %1 was handed over to the queue “%2”.</source>
        <translation>El trabajo %1 se ha entregado a la cola «%2».</translation>
    </message>
    <message>
        <source>Job %1 was stopped. It is still in the queue, where it can be released or canceled.</source>
        <translation>El trabajo %1 se ha detenido. Sigue en la cola, donde puede liberarse o cancelarse.</translation>
    </message>
    <message>
        <source>Job %1 is held in the queue “%2”.</source>
        <translation>El trabajo %1 está retenido en la cola «%2».</translation>
    </message>
    <message>
        <source>Job %1 waits in the queue “%2”, which is stopped.</source>
        <translation>El trabajo %1 espera en la cola «%2», que está detenida.</translation>
    </message>
    <message>
        <source>Job %1 is in the queue “%2”.</source>
        <translation>El trabajo %1 está en la cola «%2».</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. Whether anything was on its pages is not known.</source>
        <translation>Enviado a «%1» como trabajo %2. No se sabe si había algo en sus páginas.</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. That queue passes files on as they are: what was set for the printer or the pages had no effect there.</source>
        <translation>Enviado a «%1» como trabajo %2. Esa cola transmite los archivos sin cambios: lo que se había ajustado para la impresora o las páginas no tuvo efecto allí.</translation>
    </message>
    <message>
        <source>Printed on “%1” as job %2.</source>
        <translation>Impreso en «%1» como trabajo %2.</translation>
    </message>
    <message>
        <source>Job %1 failed: the printer or its server gave it up.</source>
        <translation>El trabajo %1 ha fallado: la impresora o su servidor lo ha abandonado.</translation>
    </message>
    <message>
        <source>Job %1 was canceled at the printer or its server.</source>
        <translation>El trabajo %1 se canceló en la impresora o en su servidor.</translation>
    </message>
    <message>
        <source>Job %1 was printed with %2 of its %3 documents only.</source>
        <translation>El trabajo %1 se ha impreso solo con %2 de sus %3 documentos.</translation>
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
        <translation>Consultando al servidor de impresión…</translation>
    </message>
    <message>
        <source>Waiting in the queue…</source>
        <translation>Esperando en la cola…</translation>
    </message>
    <message>
        <source>Held in the queue</source>
        <translation>Retenido en la cola</translation>
    </message>
    <message>
        <source>Printing page %1…</source>
        <translation>Imprimiendo la página %1…</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Imprimiendo…</translation>
    </message>
    <message>
        <source>The printer is stopped.</source>
        <translation>La impresora está detenida.</translation>
    </message>
    <message>
        <source>The printer is stopped: %1</source>
        <translation>La impresora está detenida: %1</translation>
    </message>
    <message>
        <source>First sides: %1</source>
        <translation>Primeras caras: %1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>Segundas caras: %1</translation>
    </message>
    <message>
        <source>%1 The queue “%2” has no driver, and would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1 La cola «%2» no tiene controlador y habría enviado los documentos en un solo flujo. Por eso cada uno es un trabajo propio: %3.</translation>
    </message>
    <message>
        <source>%1 With “raw” the queue “%2” would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1 Con «raw» la cola «%2» habría enviado los documentos en un solo flujo. Por eso cada uno es un trabajo propio: %3.</translation>
    </message>
    <message>
        <source>Job %1 was canceled or given up at the printer or its server.</source>
        <translation>El trabajo %1 se canceló o se abandonó en la impresora o en su servidor.</translation>
    </message>
    <message>
        <source>Job %1 is still in the queue.</source>
        <translation>El trabajo %1 sigue en la cola.</translation>
    </message>
    <message>
        <source>%1 Documents that were sent before, each as a job of its own: %2 of %3. Printing again sends the others.</source>
        <translation>%1 Documentos enviados antes, cada uno como un trabajo propio: %2 de %3. Si imprime de nuevo, se envían los demás.</translation>
    </message>
    <message>
        <source>Job %1 was canceled; pages that the printer has already may still come out.</source>
        <translation>El trabajo %1 se ha cancelado; las páginas que ya están en la impresora aún pueden salir.</translation>
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
        <translation>El certificado del servidor de impresión «%1» no es el que tenía antes: alguien lo ha reemplazado o está interceptando la conexión. Si se reemplazó a propósito, elimine el archivo %2.</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not the one that it had before: somebody has replaced it, or stands in between. If it was replaced on purpose, remove the line “%2” from the file %3.</source>
        <translation>El certificado del servidor de impresión «%1» no es el que tenía antes: alguien lo ha reemplazado o está interceptando la conexión. Si se reemplazó a propósito, elimine la línea «%2» del archivo %3.</translation>
    </message>
    <message>
        <source>The print server “%1” cannot be reached.</source>
        <translation>No se puede acceder al servidor de impresión «%1».</translation>
    </message>
    <message>
        <source>The print server “%1” does not answer.</source>
        <translation>El servidor de impresión «%1» no responde.</translation>
    </message>
    <message>
        <source>The print server “%1” broke the connection.</source>
        <translation>El servidor de impresión «%1» ha cortado la conexión.</translation>
    </message>
    <message>
        <source>What “%1” answers is not what a print server says.</source>
        <translation>La respuesta de «%1» no es la de un servidor de impresión.</translation>
    </message>
    <message>
        <source>What “%1” answers is larger than anything that a print server has to say.</source>
        <translation>La respuesta de «%1» es demasiado grande para ser la de un servidor de impresión.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>El servidor de impresión «%1» requiere un usuario y una contraseña.</translation>
    </message>
    <message>
        <source>The print server “%1” does not accept this user and password.</source>
        <translation>El servidor de impresión «%1» no acepta este usuario y esta contraseña.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password; none was given.</source>
        <translation>El servidor de impresión «%1» requiere un usuario y una contraseña, que no se han indicado.</translation>
    </message>
    <message>
        <source>The print server “%1” does not allow you this.</source>
        <translation>El servidor de impresión «%1» no le permite hacer esto.</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not to be trusted.</source>
        <translation>El certificado del servidor de impresión «%1» no es de confianza.</translation>
    </message>
    <message>
        <source>The print server “%1” wants an encrypted connection, which could not be made.</source>
        <translation>El servidor de impresión «%1» requiere una conexión cifrada, que no se ha podido establecer.</translation>
    </message>
    <message>
        <source>The print server “%1” knows nothing of it.</source>
        <translation>El servidor de impresión «%1» no tiene constancia de ello.</translation>
    </message>
    <message>
        <source>The print server “%1” refuses.</source>
        <translation>El servidor de impresión «%1» lo rechaza.</translation>
    </message>
    <message>
        <source>The document cannot be read: %1</source>
        <translation>No se puede leer el documento: %1</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>“%1” cannot be reached.</source>
        <translation>No se puede acceder a «%1».</translation>
    </message>
    <message>
        <source>No answer from “%1”.</source>
        <translation>«%1» no responde.</translation>
    </message>
    <message>
        <source>“%1” broke the connection.</source>
        <translation>«%1» ha cortado la conexión.</translation>
    </message>
    <message>
        <source>“%1” wants a password.</source>
        <translation>«%1» requiere una contraseña.</translation>
    </message>
    <message>
        <source>Wrong user or password.</source>
        <translation>Usuario o contraseña incorrectos.</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints, in a way that is not possible here.</source>
        <translation>El servidor de impresión «%1» necesita saber quién imprime, de una forma que aquí no es posible.</translation>
    </message>
</context>
<context>
    <name>SettingsIndex</name>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>All Options</source>
        <translation>Todas las opciones</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
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
        <translation>No se puede leer «%1»: %2. No se ha cambiado.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. It was not changed.</source>
        <translation>No se puede escribir «%1»: %2. No se ha cambiado.</translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation>el enlace no conduce a ninguna parte</translation>
    </message>
    <message>
        <source>the link leads to a file of somebody else</source>
        <translation>el enlace conduce a un archivo de otro usuario</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation>pertenece a otro usuario</translation>
    </message>
    <message>
        <source>another program of ours is writing it</source>
        <translation>lo está escribiendo otro programa nuestro</translation>
    </message>
    <message>
        <source>nothing can be written into its folder</source>
        <translation>no se puede escribir en su carpeta</translation>
    </message>
    <message>
        <source>other programs write it all the time</source>
        <translation>otros programas lo escriben sin cesar</translation>
    </message>
</context>
<context>
    <name>SheetMarks</name>
    <message>
        <source>The back of this sheet stays empty: only one side is printed.</source>
        <translation>El reverso de esta hoja queda vacío: solo se imprime una cara.</translation>
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
        <translation>1 página</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 páginas</translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1 hoja</translation>
    </message>
    <message>
        <source>%1 sheets</source>
        <translation>%1 hojas</translation>
    </message>
    <message>
        <source>“%1” has %2</source>
        <translation>«%1» tiene %2</translation>
    </message>
    <message>
        <source>The document has %1</source>
        <translation>El documento tiene %1</translation>
    </message>
    <message>
        <source>the document has %1</source>
        <translation>el documento tiene %1</translation>
    </message>
    <message>
        <source>%1 and later</source>
        <translation>de la %1 en adelante</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>de la %1 a la %2</translation>
    </message>
    <message>
        <source>%1; %2 is not in it.</source>
        <translation>%1; la página %2 no existe.</translation>
    </message>
    <message>
        <source>%1; %2 are not in it.</source>
        <translation>%1; estas páginas no existen: %2.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only even pages were chosen.</source>
        <translation>No se imprimiría nada: %1, y solo se han elegido páginas pares.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only odd pages were chosen.</source>
        <translation>No se imprimiría nada: %1, y solo se han elegido páginas impares.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and none of them is left.</source>
        <translation>No se imprimiría nada: %1, y no queda ninguna.</translation>
    </message>
    <message>
        <source>“%1” takes too long to be shown. It can be printed without a preview.</source>
        <translation>«%1» tarda demasiado en mostrarse. Se puede imprimir sin vista previa.</translation>
    </message>
    <message>
        <source>“%1” is too large to be shown. It can be printed without a preview.</source>
        <translation>«%1» es demasiado grande para mostrarse. Se puede imprimir sin vista previa.</translation>
    </message>
    <message>
        <source>“%1” could not be laid out, so there is no preview. Printing it may work all the same.</source>
        <translation>No se ha podido componer «%1», por lo que no hay vista previa. Aun así, puede que se imprima bien.</translation>
    </message>
    <message>
        <source>the back stays empty, because only one side is printed</source>
        <translation>el reverso queda vacío, porque solo se imprime una cara</translation>
    </message>
    <message>
        <source>the backs stay empty, because each document has only one side</source>
        <translation>los reversos quedan vacíos, porque cada documento tiene solo una cara</translation>
    </message>
    <message>
        <source>the back stays empty where a document has only one side: %1</source>
        <translation>el reverso queda vacío donde el documento tiene solo una cara: %1</translation>
    </message>
    <message>
        <source>could not be counted</source>
        <translation>no se han podido contar</translation>
    </message>
    <message>
        <source>%1, two-sided by hand</source>
        <translation>%1, doble cara manual</translation>
    </message>
    <message>
        <source>%1, and 1 cover sheet</source>
        <translation>%1 y 1 hoja de portada</translation>
    </message>
    <message>
        <source>%1, and %2 cover sheets</source>
        <translation>%1 y %2 hojas de portada</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>%1 × %2 copies = %3</source>
        <translation>%1 × %2 copias = %3</translation>
    </message>
    <message>
        <source>%1 at %2 %</source>
        <translation>%1 al %2 %</translation>
    </message>
    <message>
        <source>Sheets</source>
        <translation>Hojas</translation>
    </message>
    <message>
        <source>Pages Not There</source>
        <translation>Páginas inexistentes</translation>
    </message>
    <message>
        <source>Printed Size</source>
        <translation>Tamaño impreso</translation>
    </message>
</context>
<context>
    <name>SheetView</name>
    <message>
        <source>cover sheet</source>
        <translation>hoja de portada</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>en blanco</translation>
    </message>
    <message>
        <source>printed</source>
        <translation>impresa</translation>
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
        <translation>%L1 reverso</translation>
    </message>
    <message>
        <source>%L1 front</source>
        <translation>%L1 anverso</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Sheet %L1: %2</source>
        <translation>Hoja %L1: %2</translation>
    </message>
    <message>
        <source>Sheet %L1, back: %2</source>
        <translation>Hoja %L1, reverso: %2</translation>
    </message>
    <message>
        <source>Sheet %L1, front: %2</source>
        <translation>Hoja %L1, anverso: %2</translation>
    </message>
    <message>
        <source>%1, landscape</source>
        <translation>%1, horizontal</translation>
    </message>
    <message>
        <source>Bound at the left edge</source>
        <translation>Encuadernada por el borde izquierdo</translation>
    </message>
    <message>
        <source>Bound at the top edge</source>
        <translation>Encuadernada por el borde superior</translation>
    </message>
    <message>
        <source>Bound at the right edge</source>
        <translation>Encuadernada por el borde derecho</translation>
    </message>
    <message>
        <source>Bound at the bottom edge</source>
        <translation>Encuadernada por el borde inferior</translation>
    </message>
</context>
<context>
    <name>StartPresets</name>
    <message>
        <source>Last job: %1</source>
        <translation>Último trabajo: %1</translation>
    </message>
    <message>
        <source>There is no preset “%1”, nor any other for this printer.</source>
        <translation>No existe el preajuste «%1» ni ningún otro para esta impresora.</translation>
    </message>
    <message>
        <source>There is no preset “%1” for this printer. Presets: %2.</source>
        <translation>No existe el preajuste «%1» para esta impresora. Preajustes: %2.</translation>
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
        <translation>Valor predeterminado de la cola «%1»: %2</translation>
    </message>
    <message>
        <source>Default of your administrator: %1</source>
        <translation>Valor predeterminado del administrador: %1</translation>
    </message>
    <message>
        <source>The queue “%1” adds this to each job; what it does is not known here: %2.</source>
        <translation>La cola «%1» añade esto a cada trabajo; aquí no se sabe qué efecto tiene: %2.</translation>
    </message>
    <message>
        <source>This printer has no option of this name: %1.</source>
        <translation>Esta impresora no tiene ninguna opción con este nombre: %1.</translation>
    </message>
</context>
<context>
    <name>Summary</name>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>%1, collated</source>
        <translation>%1, intercaladas</translation>
    </message>
    <message>
        <source>%1, not collated</source>
        <translation>%1, sin intercalar</translation>
    </message>
    <message>
        <source>Also in the job</source>
        <translation>También en el trabajo</translation>
    </message>
    <message>
        <source>%1 × %2 inches</source>
        <translation>%1 × %2 pulgadas</translation>
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
        <translation>La impresora en «%1» requiere un usuario y una contraseña.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>El servidor de impresión «%1» requiere un usuario y una contraseña.</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others may read them.</source>
        <translation>La conexión no está cifrada: otras personas podrían leerlos.</translation>
    </message>
    <message>
        <source>User [%1]: </source>
        <translation>Usuario [%1]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Contraseña: </translation>
    </message>
    <message>
        <source>That is not the password.</source>
        <translation>La contraseña no es correcta.</translation>
    </message>
    <message>
        <source>Password of “%1”: </source>
        <translation>Contraseña de «%1»: </translation>
    </message>
    <message>
        <source>Enter prints the other sides, Ctrl+D leaves them unprinted: </source>
        <translation>Intro imprime las segundas caras, Ctrl+D las deja sin imprimir: </translation>
    </message>
</context>
<context>
    <name>TextFormat</name>
    <message>
        <source>The margins, columns and characters per inch that were asked for leave no room for a text on this paper (%1 × %2 points).</source>
        <translation>Los márgenes, columnas y caracteres por pulgada pedidos no dejan espacio para el texto en este papel (%1 × %2 puntos).</translation>
    </message>
</context>
<context>
    <name>UnattendedRun</name>
    <message>
        <source>%1 So the printer “%2” could not be asked for.</source>
        <translation>%1 Por eso no se ha podido preguntar por la impresora «%2».</translation>
    </message>
    <message>
        <source>%1 Printers that need no print server: %2.</source>
        <translation>%1 Impresoras que no necesitan servidor de impresión: %2.</translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>Interrumpido.</translation>
    </message>
    <message>
        <source>The preset “%1” is kept.</source>
        <translation>Se ha guardado el preajuste «%1».</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Trabajo %1: %2</translation>
    </message>
    <message>
        <source>Nothing was printed.</source>
        <translation>No se ha impreso nada.</translation>
    </message>
    <message>
        <source>It waits until the instructions have been followed. Release it with: %1</source>
        <translation>Espera a que se hayan seguido las instrucciones. Libérelo con: %1</translation>
    </message>
    <message>
        <source>Printed to standard output</source>
        <translation>Impreso en la salida estándar</translation>
    </message>
    <message>
        <source>The result could not be written to standard output: %1.</source>
        <translation>No se ha podido escribir el resultado en la salida estándar: %1.</translation>
    </message>
    <message>
        <source>No preset was kept.</source>
        <translation>No se ha guardado ningún preajuste.</translation>
    </message>
</context>
<context>
    <name>UserQueuesFile</name>
    <message>
        <source>The file of lpoptions is packed, and cannot be changed here.</source>
        <translation>El archivo de lpoptions está comprimido y no se puede modificar aquí.</translation>
    </message>
    <message>
        <source>“%1” is your default printer, and stays: choose another one first.</source>
        <translation>«%1» es su impresora predeterminada y se conserva: elija antes otra.</translation>
    </message>
    <message>
        <source>“%1” is no name that other programs can print to.</source>
        <translation>«%1» no es un nombre en el que puedan imprimir otros programas.</translation>
    </message>
    <message>
        <source>“%1” would have more settings than other programs can read.</source>
        <translation>«%1» tendría más ajustes de los que pueden leer otros programas.</translation>
    </message>
    <message>
        <source>Other programs would read the value of “%1” as another one.</source>
        <translation>Otros programas leerían el valor de «%1» de otra forma.</translation>
    </message>
    <message>
        <source>“%1” is no name of an option for other programs.</source>
        <translation>«%1» no es un nombre de opción para otros programas.</translation>
    </message>
    <message>
        <source>The value of “%1” has a line break or a control character, which no option for other programs can have.</source>
        <translation>El valor de «%1» contiene un salto de línea o un carácter de control, que ninguna opción para otros programas puede tener.</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is.</source>
        <translation>Otro programa ha cambiado «%1», que se deja como está.</translation>
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
        <translation>Otro…</translation>
    </message>
</context>
<context>
    <name>corvana::AttributeRows</name>
    <message>
        <source>&amp;More</source>
        <translation>&amp;Más</translation>
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
        <translation>Más</translation>
    </message>
    <message>
        <source>More, %1</source>
        <translation>Más, %1</translation>
    </message>
</context>
<context>
    <name>corvana::ChangeMarks</name>
    <message>
        <source>Changed. %1</source>
        <translation>Cambiado. %1</translation>
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
        <translation>de %1 a %2 puntos</translation>
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
        <translation>«%1» no es posible para %2. Valores permitidos: %3.</translation>
    </message>
    <message>
        <source>This is not possible for %1. Allowed: %2.</source>
        <translation>Este valor no es posible para %1. Valores permitidos: %2.</translation>
    </message>
    <message>
        <source>Cannot be combined with %1.</source>
        <translation>No se puede combinar con %1.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> y </translation>
    </message>
</context>
<context>
    <name>corvana::ColorsRow</name>
    <message>
        <source>Hold to Compare</source>
        <translation>Mantener pulsado para comparar</translation>
    </message>
    <message>
        <source>While it is held, the document is shown as it is, without adjustments.</source>
        <translation>Mientras se mantiene pulsado, el documento se muestra tal como es, sin ajustes de color.</translation>
    </message>
</context>
<context>
    <name>corvana::ComingDocuments</name>
    <message>
        <source>Standard input is being read.</source>
        <translation>Leyendo la entrada estándar.</translation>
    </message>
    <message>
        <source>%1 is being read.</source>
        <translation>Leyendo %1.</translation>
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
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
</context>
<context>
    <name>corvana::CountsRow</name>
    <message>
        <source>Sheets</source>
        <translation>Hojas</translation>
    </message>
    <message>
        <source>Show Preview</source>
        <translation>Mostrar vista previa</translation>
    </message>
    <message>
        <source>Hide Preview</source>
        <translation>Ocultar vista previa</translation>
    </message>
</context>
<context>
    <name>corvana::CopiesEditor</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>«%1» no está permitido. Valores permitidos: %2.</translation>
    </message>
</context>
<context>
    <name>corvana::CredentialsDialog</name>
    <message>
        <source>Log In to Print</source>
        <translation>Autenticación para imprimir</translation>
    </message>
    <message>
        <source>The printer wants to know who prints. User and password are sent to it through the print server “%1”, and are forgotten when the print dialog closes.</source>
        <translation>La impresora necesita saber quién imprime. El usuario y la contraseña se le envían a través del servidor de impresión «%1» y se olvidan al cerrar el diálogo de impresión.</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints. User and password are forgotten when the print dialog closes.</source>
        <translation>El servidor de impresión «%1» necesita saber quién imprime. El usuario y la contraseña se olvidan al cerrar el diálogo de impresión.</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Usuario:</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>&amp;Contraseña:</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Autenticarse</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others on the network may read the password.</source>
        <translation>La conexión no está cifrada: otras personas podrían leer la contraseña en la red.</translation>
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
        <translation>Anchura del papel</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>Altura del papel</translation>
    </message>
    <message>
        <source>Unit of the paper size</source>
        <translation>Unidad del tamaño de papel</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>pulgadas</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentArea</name>
    <message>
        <source>Print this document earlier</source>
        <translation>Imprimir antes este documento</translation>
    </message>
    <message>
        <source>Print this document later</source>
        <translation>Imprimir después este documento</translation>
    </message>
    <message>
        <source>Do not print this document</source>
        <translation>No imprimir este documento</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Print further documents in the same job</source>
        <translation>Imprimir más documentos en el mismo trabajo</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Añadir…</translation>
    </message>
    <message>
        <source>Documents in the order in which they are printed</source>
        <translation>Documentos en el orden en que se imprimen</translation>
    </message>
    <message numerus="yes">
        <source>%n documents, printed in this order:</source>
        <translation>
            <numerusform>%n documento:</numerusform>
            <numerusform>%n documentos, impresos en este orden:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Choose Documents to Print</source>
        <translation>Elegir los documentos que se imprimen</translation>
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
        <translation>«%1» no permite la impresión. Se puede imprimir con la contraseña de su propietario.</translation>
    </message>
    <message>
        <source>“%1” is protected: enter its password. The password is forgotten when the print dialog closes.</source>
        <translation>«%1» está protegido: introduzca su contraseña. La contraseña se olvida al cerrar el diálogo de impresión.</translation>
    </message>
    <message>
        <source>That is not the password. Try again.</source>
        <translation>La contraseña no es correcta. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Contraseña:</translation>
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
        <translation>Se ha cancelado la impresión.</translation>
    </message>
    <message>
        <source>%1 is the document itself; name another file.</source>
        <translation>%1 es el propio documento; indique otro archivo.</translation>
    </message>
    <message>
        <source>Printed to %1</source>
        <translation>Impreso en %1</translation>
    </message>
</context>
<context>
    <name>corvana::FilterChain</name>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>No se puede iniciar %1: %2</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: how many pages it has could not be found out.</source>
        <translation>No se ha podido convertir el documento para la impresora: no se ha podido averiguar cuántas páginas tiene.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>Se ha cancelado la impresión.</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: that took too long.</source>
        <translation>No se ha podido convertir el documento para la impresora: ha tardado demasiado.</translation>
    </message>
    <message>
        <source>The filter chain of CUPS crashed.</source>
        <translation>La cadena de filtros de CUPS se ha cerrado inesperadamente.</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: %1</source>
        <translation>No se ha podido convertir el documento para la impresora: %1</translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>estado de salida %1</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: nothing came out. %1</source>
        <translation>No se ha podido convertir el documento para la impresora: no se ha obtenido nada. %1</translation>
    </message>
    <message>
        <source>The documents could not be put together: %1 is incomplete. Is the disk full?</source>
        <translation>No se han podido unir los documentos: %1 está incompleto. ¿Está lleno el disco?</translation>
    </message>
</context>
<context>
    <name>corvana::FindField</name>
    <message>
        <source>Find a setting (Ctrl+F)</source>
        <translation>Buscar un ajuste (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Buscar un ajuste</translation>
    </message>
    <message>
        <source>Type a name, then go to a setting with Enter</source>
        <translation>Escriba un nombre y vaya a un ajuste con Intro</translation>
    </message>
    <message>
        <source>Type the name of a setting or of a choice.</source>
        <translation>Escriba el nombre de un ajuste o de un valor.</translation>
    </message>
</context>
<context>
    <name>corvana::FindModel</name>
    <message>
        <source>%1, on %2</source>
        <translation>%1, en %2</translation>
    </message>
    <message>
        <source>%1, %2, on %3</source>
        <translation>%1, %2, en %3</translation>
    </message>
</context>
<context>
    <name>corvana::FindPopup</name>
    <message>
        <source>Settings that were found</source>
        <translation>Ajustes encontrados</translation>
    </message>
    <message>
        <source>1 setting found</source>
        <translation>1 ajuste encontrado</translation>
    </message>
    <message>
        <source>%1 settings found</source>
        <translation>%1 ajustes encontrados</translation>
    </message>
</context>
<context>
    <name>corvana::GeneralPage</name>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copias:</translation>
    </message>
    <message>
        <source>All, or such as 1-4, 7, 9-</source>
        <translation>Todas, o p. ej. 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>Choos&amp;e Pages…</source>
        <translation>&amp;Elegir páginas…</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Pá&amp;ginas:</translation>
    </message>
    <message>
        <source>No document has been chosen.</source>
        <translation>No se ha elegido ningún documento.</translation>
    </message>
    <message>
        <source>Custom Size</source>
        <translation>Tamaño personalizado</translation>
    </message>
    <message>
        <source>Width × height:</source>
        <translation>Anchura × altura:</translation>
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
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>corvana::InstancePrinters</name>
    <message>
        <source>More Printers</source>
        <translation>Más impresoras</translation>
    </message>
    <message>
        <source>Other programs have the preset on the &amp;printers that are ticked:</source>
        <translation>Otros programas tienen el preajuste en las &amp;impresoras marcadas:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>Otros programas lo muestran como «%1».</translation>
    </message>
</context>
<context>
    <name>corvana::JobFooter</name>
    <message>
        <source>Printing</source>
        <translation>Imprimiendo</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Show Silenced Messages Again</source>
        <translation>Volver a mostrar los mensajes ocultos</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Ce&amp;rrar</translation>
    </message>
    <message>
        <source>C&amp;lose (printing continues)</source>
        <translation>Ce&amp;rrar (la impresión continúa)</translation>
    </message>
    <message>
        <source>The job goes on without this window.</source>
        <translation>El trabajo continúa sin esta ventana.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Cancelar trabajo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>Guar&amp;dar…</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Imprimiendo…</translation>
    </message>
    <message>
        <source>Canceling…</source>
        <translation>Cancelando…</translation>
    </message>
    <message>
        <source>The first sides are printed.</source>
        <translation>Se han impreso las primeras caras.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>corvana::MessageBar</name>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Show all of this message</source>
        <translation>Mostrar este mensaje completo</translation>
    </message>
    <message>
        <source>Dismiss this message</source>
        <translation>Descartar este mensaje</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsModel</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Installable Options</source>
        <translation>Opciones instalables</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1
For the command line: %2</source>
        <translation>%1
En la línea de órdenes: %2</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>Cambiado. %1</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Predeterminado: %1</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsPage</name>
    <message>
        <source>Back to the Default</source>
        <translation>Volver al valor predeterminado</translation>
    </message>
    <message>
        <source>Search options and choices</source>
        <translation>Buscar opciones y valores</translation>
    </message>
    <message>
        <source>Options of the printer</source>
        <translation>Opciones de la impresora</translation>
    </message>
    <message>
        <source>Nothing contains “%1”.</source>
        <translation>Nada contiene «%1».</translation>
    </message>
</context>
<context>
    <name>corvana::PageChooser</name>
    <message>
        <source>Choose Pages</source>
        <translation>Elegir páginas</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
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
        <translation>Por ejemplo, 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todas</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Ninguna</translation>
    </message>
    <message>
        <source>&amp;Odd</source>
        <translation>&amp;Impares</translation>
    </message>
    <message>
        <source>&amp;Even</source>
        <translation>Pa&amp;res</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>In&amp;vertir</translation>
    </message>
    <message>
        <source>Page numbers count in each document: what is ticked in one is ticked in all.</source>
        <translation>Los números de página se cuentan en cada documento: lo que se marca en uno queda marcado en todos.</translation>
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
        <translation>Tiene %L1 páginas, demasiadas para mostrarlas aquí. Se pueden escribir.</translation>
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
        <translation>%1, elegida</translation>
    </message>
    <message>
        <source>%1, not chosen</source>
        <translation>%1, no elegida</translation>
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
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>Se ha cancelado la impresión.</translation>
    </message>
</context>
<context>
    <name>corvana::PresetMenu</name>
    <message>
        <source>Printer &amp;Defaults</source>
        <translation>&amp;Predeterminado</translation>
    </message>
    <message>
        <source>&amp;Last Used</source>
        <translation>Ú&amp;ltimos usados</translation>
    </message>
    <message>
        <source>For This Model</source>
        <translation>Para este modelo</translation>
    </message>
    <message>
        <source>For All Printers</source>
        <translation>Para todas las impresoras</translation>
    </message>
    <message>
        <source>From Other Programs</source>
        <translation>De otros programas</translation>
    </message>
    <message>
        <source>&amp;Save Preset…</source>
        <translation>&amp;Guardar preajuste…</translation>
    </message>
    <message>
        <source>&amp;Update “%1”</source>
        <translation>&amp;Actualizar «%1»</translation>
    </message>
    <message>
        <source>&amp;Rename “%1”…</source>
        <translation>Cambiar &amp;nombre de «%1»…</translation>
    </message>
    <message>
        <source>D&amp;elete “%1”…</source>
        <translation>&amp;Eliminar «%1»…</translation>
    </message>
    <message>
        <source>Re&amp;member the Settings of the Last Job</source>
        <translation>&amp;Recordar los ajustes del último trabajo</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Eliminar preajuste</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? The settings stay as they are.</source>
        <translation>¿Eliminar el preajuste «%1»? Los ajustes se quedan como están.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>corvana::PresetRow</name>
    <message>
        <source>Prese&amp;t:</source>
        <translation>Prea&amp;juste:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (cambiado)</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>Preajuste: %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Revertir</translation>
    </message>
    <message>
        <source>This Page: %1</source>
        <translation>Esta página: %1</translation>
    </message>
    <message>
        <source>Everything: %1</source>
        <translation>Todo: %1</translation>
    </message>
    <message>
        <source>%1 (Ctrl+Z)</source>
        <translation>%1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>%1 (Shift+Ctrl+Z)</source>
        <translation>%1 (Mayús+Ctrl+Z)</translation>
    </message>
</context>
<context>
    <name>corvana::PreviewPane</name>
    <message>
        <source>Counting the sheets…</source>
        <translation>Contando las hojas…</translation>
    </message>
</context>
<context>
    <name>corvana::PreviewPlaceholder</name>
    <message>
        <source>Choose &amp;Documents…</source>
        <translation>Elegir d&amp;ocumentos…</translation>
    </message>
    <message>
        <source>Drop documents here to print them.</source>
        <translation>Suelte aquí los documentos que desea imprimir.</translation>
    </message>
    <message>
        <source>PDF, PostScript, text, PNG and JPEG; several are one job.</source>
        <translation>PDF, PostScript, texto, PNG y JPEG; varios forman un trabajo.</translation>
    </message>
</context>
<context>
    <name>corvana::PrintTask</name>
    <message>
        <source>The sides of “%1” are not known here, so they cannot be printed in two halves. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>Aquí no se conocen las caras de «%1», por lo que no se pueden imprimir en dos mitades. Con sides-by-hand=no se imprime una cara de cada hoja.</translation>
    </message>
    <message>
        <source>%1 (other sides)</source>
        <translation>%1 (segundas caras)</translation>
    </message>
    <message>
        <source>%1 (first sides)</source>
        <translation>%1 (primeras caras)</translation>
    </message>
    <message>
        <source>First sides: %1</source>
        <translation>Primeras caras: %1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>Segundas caras: %1</translation>
    </message>
    <message>
        <source>First sides: %1 Other sides: %2</source>
        <translation>Primeras caras: %1 Segundas caras: %2</translation>
    </message>
    <message>
        <source>Not printed.</source>
        <translation>No impreso.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Show Its First Sheet</source>
        <translation>Mostrar su primera hoja</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Give the password with --document-password-file.</source>
        <translation>Indique la contraseña con --document-password-file.</translation>
    </message>
    <message>
        <source>Enter the Password…</source>
        <translation>Introducir la contraseña…</translation>
    </message>
    <message>
        <source>Enter the Owner&apos;s Password…</source>
        <translation>Introducir la contraseña del propietario…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Elija un documento para imprimir.</translation>
    </message>
    <message>
        <source>Name the file to print to.</source>
        <translation>Indique el archivo en el que se imprime.</translation>
    </message>
    <message>
        <source>“%1” are no pages. Pages and ranges in ascending order were expected, such as 1-4, 7, 9-.</source>
        <translation>«%1» no son páginas. Se esperaban páginas e intervalos en orden ascendente, como 1-4, 7, 9-.</translation>
    </message>
    <message>
        <source>%1 is of a kind that is not known here. Only a queue can pass it on to its printer, as it is, with the option “raw”.</source>
        <translation>El tipo de %1 no se conoce aquí. Solo una cola puede transmitirlo sin cambios a su impresora, con la opción «raw».</translation>
    </message>
    <message>
        <source>What is passed on as it is cannot be printed to a file.</source>
        <translation>Lo que se transmite sin cambios no se puede imprimir en un archivo.</translation>
    </message>
    <message>
        <source>No font of this computer has these characters of the text: %1. An empty frame is printed for each of them.</source>
        <translation>Ningún tipo de letra de este equipo contiene estos caracteres del texto: %1. En lugar de cada uno se imprime un recuadro vacío.</translation>
    </message>
    <message>
        <source>Not all of the text could be looked through for characters that no font of this computer has. An empty frame is printed for each of them.</source>
        <translation>No se ha podido comprobar todo el texto en busca de caracteres que falten en los tipos de letra de este equipo. En lugar de cada uno se imprime un recuadro vacío.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings show instructions.</source>
        <translation>Los ajustes de la impresora muestran instrucciones.</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and a file cannot wait. Follow them and print with --on-alert=print.</source>
        <translation>El trabajo tendría que esperar a que se sigan estas instrucciones, y un archivo no puede esperar. Siga las instrucciones e imprima con --on-alert=print.</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and two-sided printing by hand cannot. Follow them and print with --on-alert=print.</source>
        <translation>El trabajo tendría que esperar a que se sigan estas instrucciones, y la doble cara manual no puede esperar. Siga las instrucciones e imprima con --on-alert=print.</translation>
    </message>
    <message>
        <source>%1 So the job cannot wait for these instructions. Follow them and print with --on-alert=print.</source>
        <translation>%1 Por eso el trabajo no puede esperar a que se sigan estas instrucciones. Siga las instrucciones e imprima con --on-alert=print.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings hold the job back.</source>
        <translation>Los ajustes de la impresora impiden enviar el trabajo.</translation>
    </message>
    <message>
        <source>Its pages are made while it is printed. The preview shows them.</source>
        <translation>Sus páginas se crean al imprimirlo. La vista previa las muestra.</translation>
    </message>
    <message>
        <source>How many pages it has is not known.</source>
        <translation>No se sabe cuántas páginas tiene.</translation>
    </message>
    <message>
        <source>It is being looked at…</source>
        <translation>Se está examinando…</translation>
    </message>
    <message>
        <source>Not everything that your administrator has decided can be used. “corvana-print --check-policy” says what, and why.</source>
        <translation>No se puede aplicar todo lo que el administrador ha establecido. «corvana-print --check-policy» indica qué y por qué.</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper.</source>
        <translation>Este trabajo necesita %1 hojas de papel.</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper. More than %2 are printed only with --yes.</source>
        <translation>Este trabajo necesita %1 hojas de papel. Más de %2 solo se imprimen con --yes.</translation>
    </message>
    <message>
        <source>The options of the printer have changed at its server; yours were kept.</source>
        <translation>Las opciones de la impresora han cambiado en su servidor; se han conservado las suyas.</translation>
    </message>
    <message>
        <source>The printer&apos;s own settings are missing: %1</source>
        <translation>Faltan los ajustes propios de la impresora: %1</translation>
    </message>
    <message>
        <source>Not everything could be set as before:
%1</source>
        <translation>No se han podido recuperar todos los ajustes anteriores:
%1</translation>
    </message>
    <message>
        <source>The queue “%1” leads to the same printer, and has pages with all of its settings.</source>
        <translation>La cola «%1» conduce a la misma impresora y tiene páginas con todos sus ajustes.</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <translation>Usar «%1»</translation>
    </message>
    <message>
        <source>There is no job attribute of the name %1.</source>
        <translation>No existe ningún atributo del trabajo llamado %1.</translation>
    </message>
    <message>
        <source>The queue “%1” sets this for every job that does not name it. Allowed: %2.</source>
        <translation>La cola «%1» establece este valor para todo trabajo que no lo indique. Valores permitidos: %2.</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>«%1» no está permitido. Valores permitidos: %2.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No document has been chosen.</source>
        <translation>No se ha elegido ningún documento.</translation>
    </message>
    <message>
        <source>There is a preview once the printer is known.</source>
        <translation>La vista previa aparecerá cuando se conozca la impresora.</translation>
    </message>
    <message>
        <source>Files are passed on to the printer as they are. What comes out is not known here.</source>
        <translation>Los archivos se transmiten a la impresora sin cambios. Aquí no se conoce el resultado.</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>Se ha cancelado la impresión.</translation>
    </message>
    <message>
        <source>What was asked for cannot be set:
%1</source>
        <translation>No se puede aplicar lo que se ha pedido:
%1</translation>
    </message>
    <message>
        <source>Not everything that is set for this printer could be taken:
%1</source>
        <translation>No se han podido aplicar todos los valores establecidos para esta impresora:
%1</translation>
    </message>
    <message>
        <source>As in your last job.</source>
        <translation>Como en su último trabajo.</translation>
    </message>
    <message>
        <source>Use Defaults</source>
        <translation>Usar predeterminados</translation>
    </message>
    <message>
        <source>A PDF file is saved once: there are no copies of it.</source>
        <translation>Un archivo PDF se guarda una sola vez: no hay copias.</translation>
    </message>
    <message>
        <source>The printer prints at most %1 copies at once, not %2.</source>
        <translation>La impresora imprime como máximo %1 copias a la vez, no %2.</translation>
    </message>
    <message>
        <source>“%1” has nothing to show.</source>
        <translation>«%1» no tiene nada que mostrar.</translation>
    </message>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>No se puede mostrar una página de los ajustes de la impresora: %1</translation>
    </message>
    <message>
        <source>%1 is not on this computer. Save it here to print it.</source>
        <translation>%1 no está en este equipo. Guárdelo aquí para imprimirlo.</translation>
    </message>
    <message>
        <source>The sheets can stay in the tray: the other sides are printed with the settings of the first ones.</source>
        <translation>Las hojas pueden quedarse en la bandeja: las segundas caras se imprimen con los ajustes de las primeras.</translation>
    </message>
    <message>
        <source>Printed to %1, which holds data for the printer and is no PDF document</source>
        <translation>Impreso en %1, que contiene datos para la impresora y no es un documento PDF</translation>
    </message>
</context>
<context>
    <name>corvana::PrintWindow</name>
    <message>
        <source>Asking “%1” for the options of the printer…</source>
        <translation>Preguntando a «%1» por las opciones de la impresora…</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Buscando impresoras…</translation>
    </message>
    <message>
        <source>No answer from “%1” yet.</source>
        <translation>«%1» aún no responde.</translation>
    </message>
    <message>
        <source>No printers at “%1”.</source>
        <translation>No hay impresoras en «%1».</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>There are no printers yet. Add one in the printer settings of the system, or with the command lpadmin.</source>
        <translation>Todavía no hay impresoras. Añada una en la configuración de impresoras del sistema o con la orden lpadmin.</translation>
    </message>
    <message>
        <source>Until then, documents can be printed to a file.</source>
        <translation>Mientras tanto, los documentos se pueden imprimir en un archivo.</translation>
    </message>
    <message>
        <source>Log In…</source>
        <translation>Autenticarse…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>The print service of this computer is not running. Start it, on most systems with “systemctl start cups”.</source>
        <translation>El servicio de impresión de este equipo no está en marcha. Inícielo; en la mayoría de los sistemas, con «systemctl start cups».</translation>
    </message>
    <message>
        <source>Print Another Copy</source>
        <translation>Imprimir otra copia</translation>
    </message>
    <message>
        <source>Two-Sided by Hand</source>
        <translation>Doble cara manual</translation>
    </message>
    <message>
        <source>Only the first sides of the sheets are printed. Leave the other sides unprinted?</source>
        <translation>Solo se han impreso las primeras caras de las hojas. ¿Desea dejar las segundas caras sin imprimir?</translation>
    </message>
    <message>
        <source>The first sides of the sheets are being printed. Stop that, and leave the other sides unprinted?</source>
        <translation>Se están imprimiendo las primeras caras de las hojas. ¿Desea interrumpirlo y dejar las segundas caras sin imprimir?</translation>
    </message>
    <message>
        <source>Leave Unprinted</source>
        <translation>Dejar sin imprimir</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Volver</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>Imprimir en archivo</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>Imprimir de todos modos</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Your preferences cannot be written.</source>
        <translation>No se pueden guardar sus preferencias.</translation>
    </message>
    <message>
        <source>The help is not installed.</source>
        <translation>La ayuda no está instalada.</translation>
    </message>
    <message>
        <source>Help on Printing</source>
        <translation>Ayuda de impresión</translation>
    </message>
    <message>
        <source>If you print it again, it may come out of the printer twice.</source>
        <translation>Si se imprime de nuevo, puede salir dos veces de la impresora.</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>Imprimir de nuevo</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterComboBox</name>
    <message>
        <source>Choose a printer</source>
        <translation>Elija una impresora</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterHeader</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Im&amp;presora:</translation>
    </message>
    <message>
        <source>Print to &amp;file:</source>
        <translation>Imprimir en &amp;archivo:</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Imprimir en archivo</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>E&amp;legir…</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>Imprimir en archivo</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterPopup</name>
    <message>
        <source>Printers</source>
        <translation>Impresoras</translation>
    </message>
    <message>
        <source>Search by name or location</source>
        <translation>Buscar por nombre o ubicación</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>Buscar impresoras</translation>
    </message>
    <message>
        <source>No printer was found</source>
        <translation>No se ha encontrado ninguna impresora</translation>
    </message>
    <message>
        <source>No printer matches</source>
        <translation>Ninguna impresora coincide</translation>
    </message>
    <message>
        <source>%1 of %2 printers</source>
        <translation>%1 de %2 impresoras</translation>
    </message>
    <message>
        <source>%1 printers</source>
        <translation>%1 impresoras</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterSource</name>
    <message>
        <source>There is no default printer. %1 Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>No hay impresora predeterminada. %1 Indique una impresora con -d o un PPD con --ppd FILE, o pruebe las impresoras de muestra con --demo.</translation>
    </message>
    <message>
        <source>There is no default printer. Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>No hay impresora predeterminada. Indique una impresora con -d o un PPD con --ppd FILE, o pruebe las impresoras de muestra con --demo.</translation>
    </message>
    <message>
        <source>There is no instance “%1”: lpoptions has none of the queue “%2”.</source>
        <translation>No existe la instancia «%1»: lpoptions no tiene ninguna de la cola «%2».</translation>
    </message>
    <message>
        <source>There is no instance “%1”. The queue “%2” has: %3.</source>
        <translation>No existe la instancia «%1». La cola «%2» tiene: %3.</translation>
    </message>
    <message>
        <source>There is no printer “%1” at “%2”.</source>
        <translation>No hay ninguna impresora «%1» en «%2».</translation>
    </message>
    <message>
        <source>There is no printer “%1” at “%2” any more.</source>
        <translation>Ya no hay ninguna impresora «%1» en «%2».</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterStatusLine</name>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
</context>
<context>
    <name>corvana::SavePresetDialog</name>
    <message>
        <source>Rename Preset</source>
        <translation>Cambiar nombre del preajuste</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Guardar preajuste</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>For printers of this &amp;model (%1)</source>
        <translation>Para impresoras de este &amp;modelo (%1)</translation>
    </message>
    <message>
        <source>For &amp;all printers, as far as they have these settings</source>
        <translation>Para &amp;todas las impresoras que tengan estos ajustes</translation>
    </message>
    <message>
        <source>Also in &amp;other programs</source>
        <translation>También en &amp;otros programas</translation>
    </message>
    <message>
        <source>&amp;With what sets up the printer itself (%1)</source>
        <translation>&amp;Incluir lo que configura la propia impresora (%1)</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>Otros programas lo muestran como «%1».</translation>
    </message>
    <message>
        <source>There is a preset of this name already.</source>
        <translation>Ya existe un preajuste con este nombre.</translation>
    </message>
    <message>
        <source>There is a preset of this name already. It will be replaced.</source>
        <translation>Ya existe un preajuste con este nombre. Se reemplazará.</translation>
    </message>
    <message>
        <source>There is another preset of this name, which stays.</source>
        <translation>Existe otro preajuste con este nombre, que se conserva.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>More &amp;Printers…</source>
        <translation>Más &amp;impresoras…</translation>
    </message>
</context>
<context>
    <name>corvana::ServerJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>Se ha cancelado la impresión.</translation>
    </message>
    <message>
        <source>The printer “%1” does not take these settings of a job: %2. Nothing was printed.</source>
        <translation>La impresora «%1» no acepta estos ajustes de un trabajo: %2. No se ha impreso nada.</translation>
    </message>
    <message>
        <source>The queue “%1” has no driver and prints documents as they are: it can neither put several pages on a sheet (number-up) nor choose pages (page-ranges, page-set). Nothing was printed.</source>
        <translation>La cola «%1» no tiene controlador e imprime los documentos sin cambios: no puede colocar varias páginas en una hoja (number-up) ni elegir páginas (page-ranges, page-set). No se ha impreso nada.</translation>
    </message>
    <message>
        <source>The printer “%1” takes documents of these kinds only: %2.</source>
        <translation>La impresora «%1» solo acepta documentos de estos tipos: %2.</translation>
    </message>
    <message>
        <source>The documents were put together as one, because the printer takes one at a time; each begins on a new sheet.</source>
        <translation>Los documentos se han unido en uno, porque la impresora los acepta de uno en uno; cada uno empieza en una hoja nueva.</translation>
    </message>
    <message>
        <source>There are too many copies to send them in sets. Their order is: %1.</source>
        <translation>Son demasiadas copias para enviarlas en juegos. Su orden es: %1.</translation>
    </message>
    <message>
        <source>Job %1 is in the queue; it was not followed to its end.</source>
        <translation>El trabajo %1 está en la cola; no se ha seguido hasta el final.</translation>
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
        <translation>ahora: %1</translation>
    </message>
    <message>
        <source>The settings of the printer are not known yet.</source>
        <translation>Aún no se conocen los ajustes de la impresora.</translation>
    </message>
    <message>
        <source>No setting is called “%1”. Try a shorter word, or another one for it.</source>
        <translation>Ningún ajuste se llama «%1». Pruebe con una palabra más corta o con otra equivalente.</translation>
    </message>
    <message>
        <source>No setting is called “%1”. Press Enter to search for “%2” instead.</source>
        <translation>Ningún ajuste se llama «%1». Pulse Intro para buscar «%2» en su lugar.</translation>
    </message>
    <message>
        <source>“%1” cannot be changed while other settings are as they are. It is on the page “%2”.</source>
        <translation>«%1» no se puede cambiar mientras otros ajustes sigan como están. Está en la página «%2».</translation>
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
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>All Options</source>
        <translation>Todas las opciones</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>This page cannot be shown: %1</source>
        <translation>No se puede mostrar esta página: %1</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
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
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Preview. %1</source>
        <translation>Vista previa. %1</translation>
    </message>
    <message>
        <source>Cover sheet of the queue: %1</source>
        <translation>Hoja de portada de la cola: %1</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>Actualizando…</translation>
    </message>
</context>
<context>
    <name>corvana::SheetsRow</name>
    <message>
        <source>Sheet %L1</source>
        <translation>Hoja %L1</translation>
    </message>
    <message>
        <source>Sheet %L1 of %L2</source>
        <translation>Hoja %L1 de %L2</translation>
    </message>
</context>
<context>
    <name>corvana::SummaryPage</name>
    <message>
        <source>Only what is changed</source>
        <translation>Solo lo que ha cambiado</translation>
    </message>
    <message>
        <source>Nothing is changed.</source>
        <translation>No ha cambiado nada.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>Cambiado. %1</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, cambiado</translation>
    </message>
</context>
<context>
    <name>corvana::TaskHistory</name>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Deshacer %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Rehacer %1</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Volver a %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Revertir</translation>
    </message>
    <message>
        <source>This cannot go back:
%1</source>
        <translation>Esto no se puede revertir:
%1</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPresets</name>
    <message>
        <source>The printer is not known yet.</source>
        <translation>Aún no se conoce la impresora.</translation>
    </message>
    <message>
        <source>Other programs print with these settings to “%1”.</source>
        <translation>Otros programas imprimen con estos ajustes en «%1».</translation>
    </message>
    <message>
        <source>“%1” is not there any more, or has no settings.</source>
        <translation>«%1» ya no existe o no tiene ajustes.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>Últimos usados</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>Ya no existe ningún preajuste llamado «%1».</translation>
    </message>
    <message>
        <source>Not everything of “%1” is possible here:
%2</source>
        <translation>No todo lo que contiene «%1» es posible aquí:
%2</translation>
    </message>
    <message>
        <source>“%1” was kept with settings that this printer does not have.</source>
        <translation>«%1» se guardó con ajustes que esta impresora no tiene.</translation>
    </message>
    <message>
        <source>%1 Your settings are as they were.</source>
        <translation>%1 Sus ajustes están como antes.</translation>
    </message>
    <message>
        <source>The preset “%1” for this printer is another one.</source>
        <translation>El preajuste «%1» para esta impresora es otro.</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPreview</name>
    <message>
        <source>It can be printed all the same.</source>
        <translation>Se puede imprimir de todos modos.</translation>
    </message>
</context>
<context>
    <name>corvana::TextConversion</name>
    <message>
        <source>There are no fonts for the text %1.</source>
        <translation>No hay tipos de letra para el texto %1.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>Se ha cancelado la impresión.</translation>
    </message>
    <message>
        <source>%1 would have more than %2 pages, and a text is printed on no more than that.</source>
        <translation>%1 tendría más de %2 páginas, y ese es el máximo con que se imprime un texto.</translation>
    </message>
</context>
<context>
    <name>corvana::TextDocuments</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>Se ha cancelado la impresión.</translation>
    </message>
</context>
<context>
    <name>corvana::TurnSheetsDialog</name>
    <message>
        <source>Two-Sided by Hand</source>
        <translation>Doble cara manual</translation>
    </message>
    <message>
        <source>Put the sheets back to print their other sides</source>
        <translation>Vuelva a poner las hojas para imprimir sus segundas caras</translation>
    </message>
    <message>
        <source>&amp;Print the Other Sides</source>
        <translation>Im&amp;primir las segundas caras</translation>
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
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Size of the sheets</source>
        <translation>Tamaño de las hojas</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>Ajustar a la página</translation>
    </message>
    <message>
        <source>Fit Width</source>
        <translation>Ajustar a la anchura</translation>
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
        <translation>no se puede acceder a ninguna pantalla. Imprima sin ventana con --no-dialog.</translation>
    </message>
</context>
<context>
    <name>ClearButton</name>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
</context>
<context>
    <name>ChoiceCodes</name>
    <message>
        <source>%1 cannot be sent to the printer: its PPD does not say in a usable way how that is done.</source>
        <translation>%1 no se puede enviar a la impresora: su PPD no indica de forma utilizable cómo se hace.</translation>
    </message>
</context>
<context>
    <name>PpdBounds</name>
    <message>
        <source>It is no ordinary file.</source>
        <translation>No es un archivo normal.</translation>
    </message>
    <message>
        <source>It is larger than %1 MB.</source>
        <translation>Tiene más de %1 MB.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 lines that begin with “%2”.</source>
        <translation>Contiene demasiados datos: más de %1 líneas que empiezan por «%2».</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices of all options together. “%2” has the most.</source>
        <translation>Contiene demasiados datos: más de %1 valores entre todas las opciones. La que más tiene es «%2».</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 lines that belong to no option. The most frequent is “%2”.</source>
        <translation>Contiene demasiados datos: más de %1 líneas que no pertenecen a ninguna opción. La más frecuente es «%2».</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 different keywords.</source>
        <translation>Contiene demasiados datos: más de %1 palabras clave distintas.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in one line that begins with “%2”.</source>
        <translation>Contiene demasiados datos: más de %1 valores en una línea que empieza por «%2».</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in lines that begin with “%2”.</source>
        <translation>Contiene demasiados datos: más de %1 valores en líneas que empiezan por «%2».</translation>
    </message>
    <message>
        <source>There is too much in it: its constraints name %1 choices. Beside as many options and choices as it has, %2 are allowed.</source>
        <translation>Contiene demasiados datos: sus restricciones nombran %1 valores. Con tantas opciones y valores como tiene se admiten %2.</translation>
    </message>
</context>
<context>
    <name>QueueRequests</name>
    <message>
        <source>more than %L1 printers</source>
        <translation>más de %L1 impresoras</translation>
    </message>
    <message>
        <source>printers with more than %L1 characters in their texts</source>
        <translation>impresoras con más de %L1 caracteres en sus textos</translation>
    </message>
</context>
<context>
    <name>ClientFiles</name>
    <message>
        <source>%1 cannot be read to its end: a small file with the settings of CUPS is expected there.</source>
        <translation>%1 no se puede leer hasta el final: allí se espera un archivo pequeño con la configuración de CUPS.</translation>
    </message>
</context>
<context>
    <name>TemporaryFolder</name>
    <message>
        <source>No temporary files can be kept in %1: %2</source>
        <translation>No se pueden guardar archivos temporales en %1: %2</translation>
    </message>
</context>
<context>
    <name>TextSource</name>
    <message>
        <source>it has become shorter meanwhile</source>
        <translation>se ha acortado mientras se leía</translation>
    </message>
</context>
<context>
    <name>Finishings</name>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Grapar</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforar</translation>
    </message>
    <message>
        <source>Add Cover</source>
        <translation>Añadir cubierta</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Encuadernar</translation>
    </message>
    <message>
        <source>Saddle Stitch</source>
        <translation>Grapado en el lomo</translation>
    </message>
    <message>
        <source>Edge Stitch</source>
        <translation>Grapado en el borde</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Plegar</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Bundle</source>
        <translation>Empaquetar</translation>
    </message>
    <message>
        <source>Make Booklet</source>
        <translation>Hacer folleto</translation>
    </message>
    <message>
        <source>Offset Sets</source>
        <translation>Desplazar juegos</translation>
    </message>
    <message>
        <source>Coat</source>
        <translation>Recubrir</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Plastificar</translation>
    </message>
</context>
<context>
    <name>OwnInstances</name>
    <message>
        <source>“%1” is damaged. What was written for other programs before does not follow its presets any more.</source>
        <translation>«%1» está dañado. Lo que se escribió antes para otros programas ya no sigue a sus preajustes.</translation>
    </message>
</context>
<context>
    <name>PresetInstances</name>
    <message>
        <source>“%1” in other programs: %2</source>
        <translation>«%1» en otros programas: %2</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is from now on.</source>
        <translation>Otro programa ha cambiado «%1», que a partir de ahora se deja como está.</translation>
    </message>
    <message>
        <source>Settings were changed while “%1” was saved: other programs have it as it was before. Save it again.</source>
        <translation>Se han cambiado ajustes mientras se guardaba «%1»: los otros programas lo tienen como estaba antes. Guárdelo otra vez.</translation>
    </message>
</context>
<context>
    <name>PresetReplacing</name>
    <message>
        <source>“%1” was saved elsewhere since it was selected here, and stays as it is there. Select it again, or keep your settings with “Save Preset…”.</source>
        <translation>«%1» se guardó en otro lugar después de seleccionarse aquí y se conserva como está. Selecciónelo de nuevo o guarde sus ajustes con «Guardar preajuste…».</translation>
    </message>
</context>
<context>
    <name>Collation</name>
    <message>
        <source>two-sided copies are always collated on this printer</source>
        <translation>las copias a doble cara siempre se intercalan en esta impresora</translation>
    </message>
</context>
<context>
    <name>OtherQueues</name>
    <message>
        <source>The queue could not be read in time.</source>
        <translation>No se pudo leer la cola a tiempo.</translation>
    </message>
</context>
</TS>
