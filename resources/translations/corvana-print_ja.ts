<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>AlertPresenter</name>
    <message>
        <source>Do not show this message again</source>
        <translation>今後このメッセージを表示しない</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the name of a document is missing.</source>
        <translation>文書の名前がありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lists what can be said.</source>
        <translation>&quot;%1&quot; を実行すると、指定できる内容が表示されます。</translation>
    </message>
    <message>
        <source>%1 %2: a number from %3 to %4 was expected.</source>
        <translation>%1 %2: %3 から %4 までの数を指定してください。</translation>
    </message>
    <message>
        <source>-P &quot;%1&quot;: pages and ranges in ascending order were expected, such as 1-4,7,9-.</source>
        <translation>-P &quot;%1&quot;: ページと範囲を 1-4,7,9- のように昇順で指定してください。</translation>
    </message>
    <message>
        <source>-H %1 is for a job that is in a queue already: use %2.</source>
        <translation>-H %1 はすでにキューにあるジョブのためのものです。%2 を使ってください。</translation>
    </message>
    <message>
        <source>-H &quot;%1&quot;: hold, immediate, %2 was expected.</source>
        <translation>-H &quot;%1&quot;: 指定できる値: hold, immediate, %2。</translation>
    </message>
    <message>
        <source>--check-policy takes one printer and no document.</source>
        <translation>--check-policy に指定できるのはプリンター 1 台だけです。文書は指定できません。</translation>
    </message>
    <message>
        <source>--server &quot;%1&quot;: HOST, HOST:PORT or the path of a socket was expected.</source>
        <translation>--server &quot;%1&quot;: HOST、HOST:PORT、またはソケットのパスを指定してください。</translation>
    </message>
    <message>
        <source>--on-alert %1: print, hold or refuse was expected.</source>
        <translation>--on-alert %1: print、hold、refuse のいずれかを指定してください。</translation>
    </message>
    <message>
        <source>--format %1: json or text was expected.</source>
        <translation>--format %1: json または text を指定してください。</translation>
    </message>
    <message>
        <source>-m: no mail is sent. What became of the job is said at the end, and by the exit status.</source>
        <translation>-m: メールは送信されません。ジョブの結果は最後に表示され、終了ステータスでもわかります。</translation>
    </message>
    <message>
        <source>%1 &quot;&quot;: %2 is missing.</source>
        <translation>%1 &quot;&quot;: %2 がありません。</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined.</source>
        <translation>%1 と %2 は同時には使用できません。</translation>
    </message>
    <message>
        <source>%1 is for runs without a window (--no-dialog).</source>
        <translation>%1 はウィンドウなしの実行 (--no-dialog) で使います。</translation>
    </message>
    <message>
        <source>standard input cannot be the document and the password.</source>
        <translation>標準入力を文書とパスワードの両方に使うことはできません。</translation>
    </message>
    <message>
        <source>--save-preset prints nothing: no document can be named.</source>
        <translation>--save-preset では何も印刷されないため、文書は指定できません。</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined: both write to standard output.</source>
        <translation>%1 と %2 は同時には使用できません。どちらも標準出力に書き込みます。</translation>
    </message>
    <message>
        <source>-d &quot;%1&quot;: a URI like ipp://HOST/ipp/print was expected.</source>
        <translation>-d &quot;%1&quot;: ipp://HOST/ipp/print のような URI を指定してください。</translation>
    </message>
    <message>
        <source>-o &quot;%1&quot;: KEY=VALUE was expected.</source>
        <translation>-o &quot;%1&quot;: KEY=VALUE の形で指定してください。</translation>
    </message>
    <message>
        <source>standard input (-) can be read once only.</source>
        <translation>標準入力 (-) は 1 回しか読み取れません。</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>使い方: %1</translation>
    </message>
    <message>
        <source>Prints a document with the settings of its printer, in a dialog or without one.</source>
        <translation>プリンターの設定を使って、ダイアログで、またはダイアログなしで文書を印刷します。</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>オプション:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>引数:</translation>
    </message>
    <message>
        <source>The document: PDF, PostScript, text, PNG or JPEG; - is standard input. Several are one job.</source>
        <translation>文書。PDF、PostScript、テキスト、PNG、JPEG。- は標準入力です。複数の文書は 1 つのジョブになります。</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>終了ステータス:</translation>
    </message>
    <message>
        <source>128 and a signal&apos;s number: ended by that signal</source>
        <translation>128 とシグナル番号の和: そのシグナルで終了</translation>
    </message>
    <message>
        <source>Print to the printer NAME: a queue, an instance NAME/INSTANCE, or an IPP printer ipp://HOST/PATH.</source>
        <translation>プリンター NAME に印刷します。キュー、インスタンス NAME/INSTANCE、または IPP プリンター ipp://HOST/PATH を指定します。</translation>
    </message>
    <message>
        <source>Use the queues of the print server HOST instead of the usual one.</source>
        <translation>通常のサーバーではなく、プリントサーバー HOST のキューを使います。</translation>
    </message>
    <message>
        <source>Speak to the print server with encryption only.</source>
        <translation>プリントサーバーとの通信に必ず暗号化を使います。</translation>
    </message>
    <message>
        <source>Print as the user USER.</source>
        <translation>ユーザー USER として印刷します。</translation>
    </message>
    <message>
        <source>Take the password from the first line of FILE, which nobody but its owner may read; nobody is asked.</source>
        <translation>所有者だけが読み取れるファイル FILE の 1 行目をパスワードとして使います。入力は求められません。</translation>
    </message>
    <message>
        <source>The same from the open file descriptor N (0 is standard input).</source>
        <translation>開いているファイル記述子 N から同様に読み取ります（0 は標準入力）。</translation>
    </message>
    <message>
        <source>Open protected PDF documents with the password in the first line of FILE, which nobody but its owner may read.</source>
        <translation>所有者だけが読み取れるファイル FILE の 1 行目のパスワードで、保護された PDF 文書を開きます。</translation>
    </message>
    <message>
        <source>Print for the printer that the PPD FILE describes.</source>
        <translation>PPD FILE が表すプリンター用に印刷します。</translation>
    </message>
    <message>
        <source>Write the printer-ready data to FILE; - is standard output.</source>
        <translation>プリンター用に変換したデータを FILE に書き込みます。- は標準出力です。</translation>
    </message>
    <message>
        <source>Offer the sample printers.</source>
        <translation>サンプルプリンターを使えるようにします。</translation>
    </message>
    <message>
        <source>List the printers and exit.</source>
        <translation>プリンターの一覧を表示して終了します。</translation>
    </message>
    <message>
        <source>Start with the settings of the preset NAME; -o counts more.</source>
        <translation>プリセット NAME の設定から始めます。-o の指定が優先されます。</translation>
    </message>
    <message>
        <source>List the presets and exit.</source>
        <translation>プリセットの一覧を表示して終了します。</translation>
    </message>
    <message>
        <source>Keep the settings of the printer, those of -o among them, as the preset NAME, and exit. A preset of that name is replaced.</source>
        <translation>-o の指定を含むプリンターの設定をプリセット NAME として保存し、終了します。同じ名前のプリセットは置き換えられます。</translation>
    </message>
    <message>
        <source>Say what the administrator&apos;s policy decides, and where, for the printer that is named behind it or by -d; as root with -U for another user. Exit with status 1 when something of it is not used.</source>
        <translation>後ろまたは -d で指定したプリンターについて、管理者のポリシーで何がどこで決められているかを表示します。root は -U で別のユーザーを指定できます。使われないものがあると終了ステータスは 1 です。</translation>
    </message>
    <message>
        <source>Print a job of many sheets without being asked.</source>
        <translation>枚数の多いジョブを確認なしで印刷します。</translation>
    </message>
    <message>
        <source>Set an option of the printer or of the job; may be repeated.</source>
        <translation>プリンターまたはジョブのオプションを設定します。繰り返し指定できます。</translation>
    </message>
    <message>
        <source>Print N copies (1 to %1).</source>
        <translation>N 部印刷します（1～%1）。</translation>
    </message>
    <message>
        <source>Print these pages (1-4,7,9-), as -o page-ranges= does.</source>
        <translation>-o page-ranges= と同じく、指定したページ (1-4,7,9-) を印刷します。</translation>
    </message>
    <message>
        <source>Give the job this priority (1 to 100), as -o job-priority= does.</source>
        <translation>-o job-priority= と同じく、ジョブの優先度（1～100）を指定します。</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, a time HH:MM (UTC), or what -o job-hold-until= takes.</source>
        <translation>いつ印刷するか: hold、immediate、時刻 HH:MM (UTC)、または -o job-hold-until= に指定できる値。</translation>
    </message>
    <message>
        <source>Do not say which job was printed, only what went wrong.</source>
        <translation>どのジョブを印刷したかは表示せず、問題だけを表示します。</translation>
    </message>
    <message>
        <source>Does nothing: the document is always copied to the queue.</source>
        <translation>何もしません。文書は常にキューへコピーされます。</translation>
    </message>
    <message>
        <source>Is refused: no mail is sent.</source>
        <translation>拒否されます。メールは送信されません。</translation>
    </message>
    <message>
        <source>Name the job TEXT.</source>
        <translation>ジョブに名前 TEXT を付けます。</translation>
    </message>
    <message>
        <source>Print without a window.</source>
        <translation>ウィンドウを開かずに印刷します。</translation>
    </message>
    <message>
        <source>Write the settings of the job to standard output.</source>
        <translation>ジョブの設定を標準出力に書き出します。</translation>
    </message>
    <message>
        <source>Without a window: keep the settings in lpoptions as an instance of the queue, so that lp -d QUEUE/NAME and other programs print with them.</source>
        <translation>ウィンドウなし: 設定をキューのインスタンスとして lpoptions に保存します。lp -d QUEUE/NAME やほかのプログラムがその設定で印刷します。</translation>
    </message>
    <message>
        <source>Without a window: what to do when the printer&apos;s settings show instructions: print, hold or refuse. Usually a queue holds the job, and a file is printed.</source>
        <translation>ウィンドウなし: プリンターの設定に指示が表示されたときの動作。print、hold、refuse のいずれか。通常、キューではジョブが保留され、ファイルへはそのまま印刷されます。</translation>
    </message>
    <message>
        <source>Without a window: end when the queue has the job, not when it is printed.</source>
        <translation>ウィンドウなし: 印刷の完了を待たず、キューがジョブを受け取った時点で終了します。</translation>
    </message>
    <message>
        <source>Without a window: follow the job for SECONDS at most once its queue has it, then leave it there.</source>
        <translation>ウィンドウなし: キューがジョブを受け取ってから最長 SECONDS 秒間ジョブを見守り、その後はそのままにします。</translation>
    </message>
    <message>
        <source>Without a window: json writes what became of the job to standard output, as one line that a program can read; text is what people read.</source>
        <translation>ウィンドウなし: json はジョブの結果を、プログラムが読み取れる 1 行として標準出力に書き込みます。text は人が読む形式です。</translation>
    </message>
    <message>
        <source>Also trust the plug-in bundles in the folder DIR.</source>
        <translation>フォルダー DIR のプラグインバンドルも信頼します。</translation>
    </message>
    <message>
        <source>Exit with status 0 when a window can be shown, with 1 when not.</source>
        <translation>ウィンドウを表示できるときはステータス 0、できないときは 1 で終了します。</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>With --save-instance: make such an instance of these queues as well, with what each of them needs to print the same.</source>
        <translation>--save-instance と合わせて: これらのキューにも同じようなインスタンスを作ります。同じように印刷するためにそれぞれのキューに必要なものが含まれます。</translation>
    </message>
    <message>
        <source>--also-on: the name of the instance is missing, as in --save-instance reports.</source>
        <translation>--also-on: --save-instance reports のような、インスタンスの名前がありません。</translation>
    </message>
</context>
<context>
    <name>CupsFilter</name>
    <message>
        <source>The program %1, named by CORVANA_PRINT_CUPSFILTER, cannot be run.</source>
        <translation>CORVANA_PRINT_CUPSFILTER で指定されたプログラム %1 を実行できません。</translation>
    </message>
    <message>
        <source>The program cupsfilter was found neither on the path nor in /usr/sbin. It comes with CUPS (on Debian the package “cups”).</source>
        <translation>プログラム cupsfilter がパスにも /usr/sbin にも見つかりません。CUPS（Debian ではパッケージ「cups」）に含まれています。</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>PDF document</source>
        <translation>PDF 文書</translation>
    </message>
    <message>
        <source>PostScript document</source>
        <translation>PostScript 文書</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>PNG 画像</translation>
    </message>
    <message>
        <source>JPEG picture</source>
        <translation>JPEG 画像</translation>
    </message>
    <message>
        <source>text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>%1: there is no such file.</source>
        <translation>%1: ファイルがありません。</translation>
    </message>
    <message>
        <source>%1 is a folder; a document was expected.</source>
        <translation>%1 はフォルダーです。文書を指定してください。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 は空です。</translation>
    </message>
    <message>
        <source>%1 cannot be printed: nobody can tell what is in it. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>%1 は印刷できません（内容が不明です）。印刷できる文書は PDF、PostScript、テキスト、PNG、JPEG です。</translation>
    </message>
    <message>
        <source>%1 cannot be printed; its contents: %2. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>%1 は印刷できません（内容: %2）。印刷できる文書は PDF、PostScript、テキスト、PNG、JPEG です。</translation>
    </message>
    <message>
        <source>%1 is named like a %2, but holds a %3. Rename it if that is right.</source>
        <translation>%1 の名前は %2 のものですが、内容は %3 です。内容が正しければ、名前を変更してください。</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>%1 cannot be kept: %2</source>
        <translation>%1 を保存できません: %2</translation>
    </message>
    <message>
        <source>%1 is no ordinary file; a document was expected.</source>
        <translation>%1 は通常のファイルではありません。文書を指定してください。</translation>
    </message>
    <message>
        <source>%1 cannot be read: nobody writes into it.</source>
        <translation>%1 を読み取れません: 書き込むプログラムがありません。</translation>
    </message>
    <message>
        <source>%1 cannot be kept: it has more than %2 bytes.</source>
        <translation>%1 を保存できません: %2 バイトを超えています。</translation>
    </message>
<message>
        <source>%1 cannot be printed: it holds data that are ready for a printer. A queue passes them on as they are with the option “raw”.</source>
        <translation>%1 は印刷できません。プリンター用に変換済みのデータです。オプション「raw」を付けると、キューがそのまま渡します。</translation>
    </message>
</context>
<context>
    <name>ExitStatus</name>
    <message>
        <source>printed, sent, or in the queue with the reason why it waits there</source>
        <translation>印刷した、送信した、またはキューにある（待機の理由を表示）</translation>
    </message>
    <message>
        <source>refused, failed or canceled</source>
        <translation>拒否、失敗、またはキャンセル</translation>
    </message>
    <message>
        <source>a command line that cannot be understood</source>
        <translation>解釈できないコマンドライン</translation>
    </message>
    <message>
        <source>sent, and what became of it is not known</source>
        <translation>送信したが、その結果は不明</translation>
    </message>
    <message>
        <source>the time of --wait is over; the job is still in the queue</source>
        <translation>--wait の時間が過ぎた。ジョブはまだキューにある</translation>
    </message>
</context>
<context>
    <name>HttpLine</name>
    <message>
        <source>The password is sent to “%1” without encryption: others in the network can read it. “-E” encrypts.</source>
        <translation>パスワードは暗号化されずに「%1」へ送信されます。ネットワーク上の他の人が読み取れます。「-E」を指定すると暗号化されます。</translation>
    </message>
</context>
<context>
    <name>JobAttributes</name>
    <message>
        <source>Pages per Sheet</source>
        <translation>1 枚あたりのページ数</translation>
    </message>
    <message>
        <source>Order on the Sheet</source>
        <translation>用紙上の並び順</translation>
    </message>
    <message>
        <source>Border Around Pages</source>
        <translation>ページの枠線</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Odd and Even Pages</source>
        <translation>奇数/偶数ページ</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>印刷の向き</translation>
    </message>
    <message>
        <source>Fit to Page</source>
        <translation>用紙に合わせる</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>拡大/縮小</translation>
    </message>
    <message>
        <source>Size on the Page, in %</source>
        <translation>用紙に対する大きさ (%)</translation>
    </message>
    <message>
        <source>Size of the Picture, in %</source>
        <translation>画像の大きさ (%)</translation>
    </message>
    <message>
        <source>Pixels per Inch</source>
        <translation>1 インチあたりの画素数</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Left Margin</source>
        <translation>左余白</translation>
    </message>
    <message>
        <source>Right Margin</source>
        <translation>右余白</translation>
    </message>
    <message>
        <source>Top Margin</source>
        <translation>上余白</translation>
    </message>
    <message>
        <source>Bottom Margin</source>
        <translation>下余白</translation>
    </message>
    <message>
        <source>Characters per Inch</source>
        <translation>1 インチあたりの文字数</translation>
    </message>
    <message>
        <source>Lines per Inch</source>
        <translation>1 インチあたりの行数</translation>
    </message>
    <message>
        <source>Columns of Text</source>
        <translation>段組み</translation>
    </message>
    <message>
        <source>Long Lines Continue</source>
        <translation>長い行の折り返し</translation>
    </message>
    <message>
        <source>Headers on Text Pages</source>
        <translation>テキストページの見出し</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>部単位で印刷</translation>
    </message>
    <message>
        <source>Output Order</source>
        <translation>排出順</translation>
    </message>
    <message>
        <source>Hold Until</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>優先度</translation>
    </message>
    <message>
        <source>Banner Pages</source>
        <translation>表紙</translation>
    </message>
    <message>
        <source>Billed To</source>
        <translation>課金先</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Reverse Landscape</source>
        <translation>横（逆向き）</translation>
    </message>
    <message>
        <source>Reverse Portrait</source>
        <translation>縦（逆向き）</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Odd Pages Only</source>
        <translation>奇数ページのみ</translation>
    </message>
    <message>
        <source>Even Pages Only</source>
        <translation>偶数ページのみ</translation>
    </message>
    <message>
        <source>First Page First</source>
        <translation>先頭ページから</translation>
    </message>
    <message>
        <source>Last Page First</source>
        <translation>最終ページから</translation>
    </message>
    <message>
        <source>Until It Is Released</source>
        <translation>解除されるまで</translation>
    </message>
    <message>
        <source>%1 UTC</source>
        <translation>%1 UTC</translation>
    </message>
    <message>
        <source>%1 UTC (%2 here)</source>
        <translation>%1 UTC（現地時刻 %2）</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>モノクロ</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>下書き</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Canceled After, in Seconds</source>
        <translation>キャンセルまでの秒数</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>カラーモード</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>a resolution such as 600dpi or 1200x600dpi</source>
        <translation>600dpi や 1200x600dpi のような解像度</translation>
    </message>
    <message>
        <source>Output Bin</source>
        <translation>排紙先</translation>
    </message>
    <message>
        <source>the name of an output bin</source>
        <translation>排紙先の名前</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>仕上げ</translation>
    </message>
    <message>
        <source>numbers or names of finishings</source>
        <translation>仕上げの番号または名前</translation>
    </message>
    <message>
        <source>Paper Source</source>
        <translation>給紙方法</translation>
    </message>
    <message>
        <source>the name of a paper source</source>
        <translation>給紙方法の名前</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>用紙の種類</translation>
    </message>
    <message>
        <source>the name of a media type</source>
        <translation>用紙の種類の名前</translation>
    </message>
<message>
        <source>Up, Then to the Right</source>
        <translation>上、次に右へ</translation>
    </message>
    <message>
        <source>Up, Then to the Left</source>
        <translation>上、次に左へ</translation>
    </message>
    <message>
        <source>To the Right, Then Up</source>
        <translation>右、次に上へ</translation>
    </message>
    <message>
        <source>To the Right, Then Down</source>
        <translation>右、次に下へ</translation>
    </message>
    <message>
        <source>To the Left, Then Up</source>
        <translation>左、次に上へ</translation>
    </message>
    <message>
        <source>To the Left, Then Down</source>
        <translation>左、次に下へ</translation>
    </message>
    <message>
        <source>Down, Then to the Right</source>
        <translation>下、次に右へ</translation>
    </message>
    <message>
        <source>Down, Then to the Left</source>
        <translation>下、次に左へ</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Thin Line</source>
        <translation>細い線</translation>
    </message>
    <message>
        <source>Thick Line</source>
        <translation>太い線</translation>
    </message>
    <message>
        <source>Two Thin Lines</source>
        <translation>細い二重線</translation>
    </message>
    <message>
        <source>Two Thick Lines</source>
        <translation>太い二重線</translation>
    </message>
    <message>
        <source>Fill Paper</source>
        <translation>用紙全体に広げる</translation>
    </message>
    <message>
        <source>Fit to Paper</source>
        <translation>用紙に合わせる</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>実際のサイズ</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Print at Once</source>
        <translation>すぐに印刷</translation>
    </message>
    <message>
        <source>Daytime</source>
        <translation>日中</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>夕方</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>夜間</translation>
    </message>
    <message>
        <source>Second Shift</source>
        <translation>第 2 シフト</translation>
    </message>
    <message>
        <source>Third Shift</source>
        <translation>第 3 シフト</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>週末</translation>
    </message>
    <message>
        <source>points of 1/72 inch</source>
        <translation>ポイント（1/72 インチ）</translation>
    </message>
    <message>
        <source>pages and ranges in ascending order, such as 1-4,7,9-</source>
        <translation>昇順のページと範囲（例: 1-4,7,9-）</translation>
    </message>
    <message>
        <source>a time HH:MM in UTC</source>
        <translation>時刻 HH:MM (UTC)</translation>
    </message>
    <message>
        <source>one or two names of banner pages</source>
        <translation>表紙の名前を 1 つか 2 つ</translation>
    </message>
    <message>
        <source>a text of up to 255 bytes</source>
        <translation>255 バイトまでの文字列</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
<message>
        <source>Bound at the Left</source>
        <translation>左とじ</translation>
    </message>
    <message>
        <source>Bound at the Right</source>
        <translation>右とじ</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>冊子</translation>
    </message>
    <message>
        <source>Each Page, Times on a Side</source>
        <translation>同じページの 1 面あたりの回数</translation>
    </message>
<message>
        <source>Fit All Pages If One Is Too Large</source>
        <translation>はみ出すページがあれば全ページを用紙に合わせる</translation>
    </message>
    <message>
        <source>One-Sided</source>
        <translation>片面</translation>
    </message>
    <message>
        <source>Long Edge (by Hand)</source>
        <translation>長辺とじ（手動）</translation>
    </message>
    <message>
        <source>Short Edge (by Hand)</source>
        <translation>短辺とじ（手動）</translation>
    </message>
    <message>
        <source>Printed Side Down</source>
        <translation>印刷面を下に</translation>
    </message>
    <message>
        <source>Printed Side Up</source>
        <translation>印刷面を上に</translation>
    </message>
    <message>
        <source>Two-Sided</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>Sheets Are Put Back</source>
        <translation>用紙の戻し方</translation>
    </message>
        <message>
        <source>or %1</source>
        <translation>または%1</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>秒</translation>
    </message>
</context>
<context>
    <name>JobRequests</name>
    <message>
        <source>The value of “%1” is too long for a print server; at most %2 bytes can be sent.</source>
        <translation>「%1」の値が長すぎて、プリントサーバーに送信できません。送信できるのは %2 バイトまでです。</translation>
    </message>
    <message>
        <source>The value of “%1” has characters that a print server would drop: no line breaks, no “{” in front.</source>
        <translation>「%1」の値に、プリントサーバーが受け取れない文字があります。改行と先頭の「{」は使用できません。</translation>
    </message>
</context>
<context>
    <name>LeftSession</name>
    <message>
        <source>This printer has no option of the name %1 any more.</source>
        <translation>このプリンターには%1という名前のオプションがなくなりました。</translation>
    </message>
    <message>
        <source>The option %1 has no choice %2 any more.</source>
        <translation>オプション%1には%2という選択肢がなくなりました。</translation>
    </message>
</context>
<context>
    <name>OptionRequest</name>
    <message>
        <source>this printer has no such option. Options: %1. Job attributes: %2.</source>
        <translation>このプリンターにこのオプションはありません。オプション: %1。ジョブ属性: %2。</translation>
    </message>
    <message>
        <source>this value is not allowed. Allowed: %1.</source>
        <translation>この値は指定できません。指定できる値: %1。</translation>
    </message>
    <message>
        <source>this printer has no paper sizes to choose from.</source>
        <translation>このプリンターでは用紙サイズを選択できません。</translation>
    </message>
    <message>
        <source>%1: the printer's settings do not allow this here; it became %2.</source>
        <translation>%1: プリンターの設定により、ここでは使用できません。%2 になりました。</translation>
    </message>
    <message>
        <source>%1: this cannot be combined with %2.</source>
        <translation>%1: %2 と同時には使用できません。</translation>
    </message>
    <message>
        <source>%1=Custom: a value is missing. Allowed: %2.</source>
        <translation>%1=Custom: 値がありません。指定できる値: %2。</translation>
    </message>
    <message>
        <source>%1: this value is not allowed. Allowed: %2.</source>
        <translation>%1: この値は指定できません。指定できる値: %2。</translation>
    </message>
    <message>
        <source>1 to %1</source>
        <translation>1～%1</translation>
    </message>
    <message>
        <source>%1: the printer's options cannot be set to this value.</source>
        <translation>%1: プリンターのオプションをこの値に設定できません。</translation>
    </message>
    <message>
        <source>this printer has nothing to choose from for this.</source>
        <translation>このプリンターには、これに対する選択肢がありません。</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>「%1」は指定できません。指定できる値: %2。</translation>
    </message>
<message>
        <source>this printer prints on one side only. Allowed: %1. Two sides by hand: %2=%3, %2=%4.</source>
        <translation>このプリンターは片面にのみ印刷します。指定できる値: %1。手動で両面にするには: %2=%3、%2=%4。</translation>
    </message>
    <message>
        <source>this printer turns sheets over itself. Allowed: %1=no; for two sides use %2.</source>
        <translation>このプリンターは用紙を自動で裏返します。指定できる値: %1=no。両面には %2 を使ってください。</translation>
    </message>
</context>
<context>
    <name>PasswordFile</name>
    <message>
        <source>The password cannot be read from %1: %2.</source>
        <translation>%1 からパスワードを読み取れません: %2。</translation>
    </message>
    <message>
        <source>The first line of %1 is empty; a password was expected.</source>
        <translation>%1 の最初の行が空です。パスワードが必要です。</translation>
    </message>
    <message>
        <source>The first line of %1 is no password: at most %2 bytes of UTF-8 were expected.</source>
        <translation>%1 の最初の行はパスワードではありません。UTF-8 で %2 バイト以内にしてください。</translation>
    </message>
    <message>
        <source>The password cannot be read from %1: it is no file.</source>
        <translation>%1 からパスワードを読み取れません: ファイルではありません。</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: the file belongs to somebody else.</source>
        <translation>%1 のパスワードは使用しません。ファイルの所有者が別のユーザーです。</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: others than its owner may use the file (its mode is %2; chmod 600 takes that away).</source>
        <translation>%1 のパスワードは使用しません。所有者以外もファイルにアクセスできます（モードは %2、chmod 600 で禁止できます）。</translation>
    </message>
    <message>
        <source>descriptor %1</source>
        <translation>記述子 %1</translation>
    </message>
</context>
<context>
    <name>ChoiceCodes</name>
    <message>
        <source>%1 cannot be sent to the printer: its PPD does not say in a usable way how that is done.</source>
        <translation>%1をプリンターに送信できません。送信方法が PPD に正しく記述されていません。</translation>
    </message>
</context>
<context>
    <name>PpdBounds</name>
    <message>
        <source>There is too much in it: more than %1 lines that begin with “%2”.</source>
        <translation>内容が多すぎます。「%2」で始まる行が %1 行を超えています。</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices of all options together. “%2” has the most.</source>
        <translation>内容が多すぎます。すべてのオプションの設定値が合計 %1 個を超えています。最も多いのは「%2」です。</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 lines that belong to no option. The most frequent is “%2”.</source>
        <translation>内容が多すぎます。どのオプションにも属さない行が %1 行を超えています。最も多いのは「%2」です。</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 different keywords.</source>
        <translation>内容が多すぎます。異なるキーワードが %1 個を超えています。</translation>
    </message>
    <message>
        <source>It is no ordinary file.</source>
        <translation>通常のファイルではありません。</translation>
    </message>
    <message>
        <source>It is larger than %1 MB.</source>
        <translation>サイズが %1 MB を超えています。</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in one line that begins with “%2”.</source>
        <translation>内容が多すぎます。「%2」で始まる 1 行に %1 個を超える設定値があります。</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in lines that begin with “%2”.</source>
        <translation>内容が多すぎます。「%2」で始まる行の設定値が合計 %1 個を超えています。</translation>
    </message>
    <message>
        <source>There is too much in it: its constraints name %1 choices. Beside as many options and choices as it has, %2 are allowed.</source>
        <translation>内容が多すぎます。制約に %1 個の設定値が書かれています。オプションと設定値がこれだけある場合は %2 個までです。</translation>
    </message>
</context>
<context>
    <name>PpdCopy</name>
    <message>
        <source>The printer's options cannot be written to %1: %2</source>
        <translation>プリンターのオプションを %1 に書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>PpdFilters</name>
    <message>
        <source>The driver of this printer names the file “%1”, which only a print server may open. Print on the printer itself instead of into a file.</source>
        <translation>このプリンターのドライバーはファイル「%1」を指定していますが、これを開けるのはプリントサーバーだけです。ファイルへの出力ではなく、プリンターで印刷してください。</translation>
    </message>
    <message>
        <source>The driver of this printer needs the program “%1”, which only a print server may run. Print on the printer itself instead of into a file.</source>
        <translation>このプリンターのドライバーにはプログラム「%1」が必要ですが、これを実行できるのはプリントサーバーだけです。ファイルへの出力ではなく、プリンターで印刷してください。</translation>
    </message>
</context>
<context>
    <name>PrinterFetching</name>
<message>
        <source>Save as PDF</source>
        <translation>PDF として保存</translation>
    </message>
</context>
<context>
    <name>PrinterTexts</name>
    <message>
        <source>connecting</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>カバーが開いています</translation>
    </message>
    <message>
        <source>driver not trusted by the server</source>
        <translation>サーバーがドライバーを信頼していません</translation>
    </message>
    <message>
        <source>driver missing on the server</source>
        <translation>サーバーにドライバーがありません</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>電源オフ</translation>
    </message>
    <message>
        <source>developer used up</source>
        <translation>現像剤切れ</translation>
    </message>
    <message>
        <source>developer low</source>
        <translation>現像剤残りわずか</translation>
    </message>
    <message>
        <source>door open</source>
        <translation>ドアが開いています</translation>
    </message>
    <message>
        <source>fuser too hot</source>
        <translation>定着器が高温</translation>
    </message>
    <message>
        <source>fuser too cold</source>
        <translation>定着器が低温</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>新しいジョブは保留されます</translation>
    </message>
    <message>
        <source>tray missing</source>
        <translation>給紙トレイなし</translation>
    </message>
    <message>
        <source>ink or toner used up</source>
        <translation>インクまたはトナー切れ</translation>
    </message>
    <message>
        <source>ink or toner low</source>
        <translation>インクまたはトナー残りわずか</translation>
    </message>
    <message>
        <source>waste container almost full</source>
        <translation>廃トナー容器がほぼ満杯</translation>
    </message>
    <message>
        <source>waste container full</source>
        <translation>廃トナー容器が満杯</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>用紙切れ</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>紙づまり</translation>
    </message>
    <message>
        <source>paper low</source>
        <translation>用紙残りわずか</translation>
    </message>
    <message>
        <source>paper needed</source>
        <translation>用紙を補給してください</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>一時停止しています</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>drum used up</source>
        <translation>ドラム寿命</translation>
    </message>
    <message>
        <source>drum nearly used up</source>
        <translation>ドラム寿命間近</translation>
    </message>
    <message>
        <source>output tray almost full</source>
        <translation>排紙トレイがほぼ満杯</translation>
    </message>
    <message>
        <source>output tray full</source>
        <translation>排紙トレイが満杯</translation>
    </message>
    <message>
        <source>output tray missing</source>
        <translation>排紙トレイなし</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>print queue full</source>
        <translation>印刷キューが満杯</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>一部停止中</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>停止しています</translation>
    </message>
    <message>
        <source>not answering</source>
        <translation>応答なし</translation>
    </message>
    <message>
        <source>toner used up</source>
        <translation>トナー切れ</translation>
    </message>
    <message>
        <source>toner low</source>
        <translation>トナー残りわずか</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>Prints to a file</source>
        <translation>ファイルに出力</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the words of a printer's state</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>No longer available</source>
        <translation>利用できなくなりました</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>停止中: %1</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>ジョブを受け付けません</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>ジョブを受け付けません</translation>
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
        <translation>名前: %1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>場所: %1</translation>
    </message>
    <message>
        <source>Model: %1</source>
        <translation>機種: %1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <translation>状態: %1</translation>
    </message>
    <message>
        <source>Message: %1</source>
        <translation>メッセージ: %1</translation>
    </message>
    <message>
        <source>Address: %1</source>
        <translation>アドレス: %1</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>不明なオプションです: &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>不明なオプションです: %1。</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>&quot;%1&quot; の後に値がありません。</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>&quot;%1&quot; に値は指定できません。</translation>
    </message>
</context>
<context>
    <name>RefusalText</name>
    <message>
        <source>“%1: %2”</source>
        <translation>「%1: %2」</translation>
    </message>
    <message>
        <source> and </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%1 cannot be combined with %2.</source>
        <translation>%1は%2と同時には使用できません。</translation>
    </message>
    <message>
        <source>Change to %1</source>
        <translation>%1に変更</translation>
    </message>
    <message>
        <source>The printer's options cannot be set to %1.</source>
        <translation>プリンターのオプションを%1に設定できません。</translation>
    </message>
</context>
<context>
    <name>RequestFromCommandLine</name>
    <message>
        <source>%1: the name is not written in UTF-8.</source>
        <translation>%1: 名前が UTF-8 ではありません。</translation>
    </message>
</context>
<context>
    <name>ResultFile</name>
    <message>
        <source>%1 is a folder; the name of a file was expected.</source>
        <translation>%1 はフォルダーです。ファイル名を指定してください。</translation>
    </message>
    <message>
        <source>%1 is a device or a pipe; the name of a file was expected.</source>
        <translation>%1 はデバイスまたはパイプです。ファイル名を指定してください。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>%1 was written by another program meanwhile, and is left as it is. Print again to replace it, or name another file.</source>
        <translation>%1 は、その間に別のプログラムによって書き込まれたため、そのまま残されています。置き換えるにはもう一度印刷するか、別のファイル名を指定してください。</translation>
    </message>
</context>
<context>
    <name>ServerAddress</name>
    <message>
        <source>this computer</source>
        <translation>このコンピューター</translation>
    </message>
</context>
<context>
    <name>ServerJob</name>
    <message>
        <source>%1 The queue “%2” has no driver, and would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1キュー「%2」にはドライバーがなく、文書が 1 つのデータとして続けて送られるため、文書ごとに別のジョブにしました: %3。</translation>
    </message>
    <message>
        <source>%1 With “raw” the queue “%2” would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1「raw」ではキュー「%2」が文書を 1 つのデータとして続けて送るため、文書ごとに別のジョブにしました: %3。</translation>
    </message>
    <message>
        <source>Job %1 was canceled or given up at the printer or its server.</source>
        <translation>ジョブ %1 はプリンターまたはサーバーでキャンセルまたは中止されました。</translation>
    </message>
    <message>
        <source>Job %1 is still in the queue.</source>
        <translation>ジョブ %1 はまだキューにあります。</translation>
    </message>
    <message>
        <source>%1 Documents that were sent before, each as a job of its own: %2 of %3. Printing again sends the others.</source>
        <translation>%1それまでに別々のジョブとして送られた文書: %3 個のうち %2 個。もう一度印刷すると残りが送られます。</translation>
    </message>
    <message>
        <source>Job %1 was canceled; pages that the printer has already may still come out.</source>
        <translation>ジョブ %1 はキャンセルされました。プリンターにすでに届いたページは印刷されることがあります。</translation>
    </message>
    <message>
        <source>%1 The printer says: %2</source>
        <translation>%1プリンターのメッセージ: %2</translation>
    </message>
    <message>
        <source>The printer “%1” wants a user and a password; none was given. Nothing was printed.</source>
        <translation>プリンター「%1」にはユーザー名とパスワードが必要ですが、入力されませんでした。何も印刷されませんでした。</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>印刷をキャンセルしました。</translation>
    </message>
    <message>
        <source>The queue “%1” is not there any more. Nothing was printed.</source>
        <translation>キュー「%1」はなくなりました。何も印刷されませんでした。</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment. Nothing was printed.</source>
        <translation>キュー「%1」は現在ジョブを受け付けていません。何も印刷されませんでした。</translation>
    </message>
    <message>
        <source>%1 Nothing was printed.</source>
        <translation>%1何も印刷されませんでした。</translation>
    </message>
    <message>
        <source>%1 Whether job %2 of the earlier try was printed is not known yet, so nothing was sent again.</source>
        <translation>%1前回のジョブ %2 が印刷されたかどうかまだ確認できないため、再送信しませんでした。</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has been printed.</source>
        <translation>前回のジョブ %1 は印刷されています。</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is in the queue and will be printed.</source>
        <translation>前回のジョブ %1 はキューにあり、これから印刷されます。</translation>
    </message>
    <message>
        <source>The options of the printer “%1” have changed at its server. Nothing was printed.</source>
        <translation>プリンター「%1」のオプションがサーバーで変更されました。何も印刷されませんでした。</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; pages that the printer has already may still come out.</source>
        <translation>%1ジョブ %2 をキャンセルしました。プリンターに送信済みのページは印刷されることがあります。</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; nothing was printed.</source>
        <translation>%1ジョブ %2 をキャンセルしました。何も印刷されませんでした。</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server, without its whole document. It could not be canceled: %3</source>
        <translation>%1ジョブ %2 は、文書がそろわないままプリントサーバーに残っている可能性があります。ジョブをキャンセルできませんでした: %3</translation>
    </message>
    <message>
        <source>%1 The print server does not know job %2 any more. It was probably not printed.</source>
        <translation>%1プリントサーバーにジョブ %2 の記録がありません。おそらく印刷されていません。</translation>
    </message>
    <message>
        <source>%1 The document had been sent, so job %2 may be printed or not. Printing again looks for it first.</source>
        <translation>%1文書は送信済みのため、ジョブ %2 は印刷された可能性もあります。もう一度印刷すると、まずこのジョブを確認します。</translation>
    </message>
    <message>
        <source>Job %1 was stopped. It is still in the queue, where it can be released or canceled.</source>
        <translation>ジョブ %1 は停止しました。ジョブはまだキューにあり、解除またはキャンセルできます。</translation>
    </message>
    <message>
        <source>Job %1 is held in the queue “%2”.</source>
        <translation>ジョブ %1 はキュー「%2」で保留されています。</translation>
    </message>
    <message>
        <source>Job %1 waits in the queue “%2”, which is stopped.</source>
        <translation>ジョブ %1 は、停止中のキュー「%2」で待機しています。</translation>
    </message>
    <message>
        <source>Job %1 is in the queue “%2”.</source>
        <translation>ジョブ %1 はキュー「%2」にあります。</translation>
    </message>
    <message>
        <source>Job %1 was handed over completely. %2 So whether it has been printed is not known.</source>
        <translation>ジョブ %1 はすべて送信されました。%2そのため、印刷されたかどうかはわかりません。</translation>
    </message>
    <message>
        <source>The print server gives job %1 the state %2, which is not known.</source>
        <translation>プリントサーバーはジョブ %1 の状態を %2 としていますが、これは不明な状態です。</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. Whether anything was on its pages is not known.</source>
        <translation>「%1」にジョブ %2 として送信しました。ページに何か印刷されたかどうかはわかりません。</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. That queue passes files on as they are: what was set for the printer or the pages had no effect there.</source>
        <translation>「%1」にジョブ %2 として送信しました。このキューはファイルをそのまま渡すため、プリンターやページの設定は反映されませんでした。</translation>
    </message>
    <message>
        <source>Printed on “%1” as job %2.</source>
        <translation>「%1」でジョブ %2 として印刷しました。</translation>
    </message>
    <message>
        <source>Job %1 was canceled at the printer or its server.</source>
        <translation>ジョブ %1 は、プリンターまたはサーバーでキャンセルされました。</translation>
    </message>
    <message>
        <source>Job %1 failed: the printer or its server gave it up.</source>
        <translation>ジョブ %1 は失敗しました。プリンターまたはサーバーが処理を打ち切りました。</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>準備しています…</translation>
    </message>
    <message>
        <source>Sending, %1 %…</source>
        <translation>送信しています（%1 %）…</translation>
    </message>
    <message>
        <source>Waiting in the queue…</source>
        <translation>キューで待機しています…</translation>
    </message>
    <message>
        <source>Held in the queue</source>
        <translation>キューで保留中</translation>
    </message>
    <message>
        <source>Printing page %1…</source>
        <translation>%1 ページ目を印刷しています…</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>印刷しています…</translation>
    </message>
    <message>
        <source>The printer is stopped.</source>
        <translation>プリンターは停止しています。</translation>
    </message>
    <message>
        <source>The printer is stopped: %1</source>
        <translation>プリンターは停止しています: %1</translation>
    </message>
    <message>
        <source>Asking the print server…</source>
        <translation>プリントサーバーに問い合わせています…</translation>
    </message>
    <message>
        <source>%1 Job %2 could not be canceled and may still be printed. %3</source>
        <translation>%1ジョブ %2 をキャンセルできませんでした。印刷される可能性があります。%3</translation>
    </message>
    <message>
        <source>The printer “%1” does not accept this user and password.</source>
        <translation>プリンター「%1」でこのユーザー名とパスワードは使用できません。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 を読み取れません: %2。</translation>
    </message>
    <message>
        <source>The print server did not say which job it has made.</source>
        <translation>プリントサーバーから、作成したジョブの番号の通知がありませんでした。</translation>
    </message>
    <message>
        <source>%1 Nothing was printed, but a job without a document may be at the print server. It could not be looked for: %2</source>
        <translation>%1何も印刷されませんでしたが、文書のないジョブがプリントサーバーに残っている可能性があります。ジョブを確認できませんでした: %2</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is held in the queue.</source>
        <translation>前回のジョブ %1 はキューで保留されています。</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is stopped in the queue.</source>
        <translation>前回のジョブ %1 はキューで停止しています。</translation>
    </message>
    <message>
        <source>Job %1 could not be canceled and may still be printed. %2</source>
        <translation>ジョブ %1 をキャンセルできませんでした。印刷される可能性があります。%2</translation>
    </message>
    <message>
        <source>%1 The job had been moved from the queue “%2” to “%3”.</source>
        <translation>%1ジョブはキュー「%2」から「%3」に移動されていました。</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment: %2. Nothing was printed.</source>
        <translation>キュー「%1」は現在ジョブを受け付けていません: %2。何も印刷されませんでした。</translation>
    </message>
    <message>
        <source>Job %1 has left the queue “%2”, whose server keeps no record of it. So whether it has been printed is not known.</source>
        <translation>ジョブ %1 はキュー「%2」からなくなりました。サーバーに記録は残っていません。そのため、印刷されたかどうかはわかりません。</translation>
    </message>
    <message>
        <source>Job %1 was handed over to the queue “%2”.</source>
        <translation>ジョブ %1 をキュー「%2」に渡しました。</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has got %2 of its %3 documents to the printer. Print the others by themselves, or everything once more.</source>
        <translation>前回のジョブ %1 では、文書 %3 個のうち %2 個がプリンターに送られています。残りだけを印刷するか、すべてをもう一度印刷してください。</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server with some of its documents, and may print these. It could not be canceled: %3 Printing again looks for it first.</source>
        <translation>%1ジョブ %2 は一部の文書とともにプリントサーバーに残っていて、それらが印刷される可能性があります。キャンセルできませんでした: %3 もう一度印刷すると、まずこのジョブを確認します。</translation>
    </message>
    <message>
        <source>Job %1 was printed with %2 of its %3 documents only.</source>
        <translation>ジョブ %1 は、文書 %3 個のうち %2 個だけが印刷されました。</translation>
    </message>
<message>
        <source>First sides: %1</source>
        <translation>1 回目の面: %1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>もう一方の面: %1</translation>
    </message>
</context>
<context>
    <name>ServerProblem</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>The print server “%1” cannot be reached.</source>
        <translation>プリントサーバー「%1」に接続できません。</translation>
    </message>
    <message>
        <source>The print server “%1” does not answer.</source>
        <translation>プリントサーバー「%1」が応答しません。</translation>
    </message>
    <message>
        <source>The print server “%1” broke the connection.</source>
        <translation>プリントサーバー「%1」が接続を切断しました。</translation>
    </message>
    <message>
        <source>What “%1” answers is not what a print server says.</source>
        <translation>「%1」の応答は、プリントサーバーのものではありません。</translation>
    </message>
    <message>
        <source>What “%1” answers is larger than anything that a print server has to say.</source>
        <translation>「%1」の応答は、プリントサーバーのものとしては大きすぎます。</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>プリントサーバー「%1」にはユーザー名とパスワードが必要です。</translation>
    </message>
    <message>
        <source>The print server “%1” does not accept this user and password.</source>
        <translation>プリントサーバー「%1」は、このユーザー名とパスワードを受け付けません。</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password; none was given.</source>
        <translation>プリントサーバー「%1」にはユーザー名とパスワードが必要ですが、入力されませんでした。</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints, in a way that is not possible here.</source>
        <translation>プリントサーバー「%1」は利用者の確認を求めていますが、ここではその方法に対応していません。</translation>
    </message>
    <message>
        <source>The print server “%1” does not allow you this.</source>
        <translation>プリントサーバー「%1」では、この操作は許可されていません。</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not to be trusted.</source>
        <translation>プリントサーバー「%1」の証明書は信頼できません。</translation>
    </message>
    <message>
        <source>The print server “%1” wants an encrypted connection, which could not be made.</source>
        <translation>プリントサーバー「%1」には暗号化された接続が必要ですが、確立できませんでした。</translation>
    </message>
    <message>
        <source>The print server “%1” knows nothing of it.</source>
        <translation>プリントサーバー「%1」に該当するものがありません。</translation>
    </message>
    <message>
        <source>The print server “%1” refuses.</source>
        <translation>プリントサーバー「%1」に拒否されました。</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>キャンセルしました。</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not the one that it had before: somebody has replaced it, or stands in between. If it was replaced on purpose, remove the file %2.</source>
        <translation>プリントサーバー「%1」の証明書が以前のものと異なります。証明書が交換されたか、第三者が通信に介入しています。意図して交換した場合は、ファイル %2 を削除してください。</translation>
    </message>
    <message>
        <source>“%1” cannot be reached.</source>
        <translation>「%1」に接続できません。</translation>
    </message>
    <message>
        <source>No answer from “%1”.</source>
        <translation>「%1」から応答がありません。</translation>
    </message>
    <message>
        <source>“%1” broke the connection.</source>
        <translation>「%1」が接続を切断しました。</translation>
    </message>
    <message>
        <source>“%1” wants a password.</source>
        <translation>「%1」にはパスワードが必要です。</translation>
    </message>
    <message>
        <source>Wrong user or password.</source>
        <translation>ユーザー名またはパスワードが正しくありません。</translation>
    </message>
    <message>
        <source>The document cannot be read: %1</source>
        <translation>文書を読み取れません: %1</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not the one that it had before: somebody has replaced it, or stands in between. If it was replaced on purpose, remove the line “%2” from the file %3.</source>
        <translation>プリントサーバー「%1」の証明書が以前のものと異なります。証明書が交換されたか、第三者が通信に介入しています。意図して交換した場合は、ファイル %3 から「%2」の行を削除してください。</translation>
    </message>
</context>
<context>
    <name>StartValues</name>
<message>
        <source>This printer has no option of this name: %1.</source>
        <translation>このプリンターには次の名前のオプションがありません: %1。</translation>
    </message>
    <message>
        <source>Default of the queue “%1”: %2</source>
        <translation>キュー「%1」の既定値: %2</translation>
    </message>
    <message>
        <source>The queue “%1” adds this to each job; what it does is not known here: %2.</source>
        <translation>キュー「%1」はすべてのジョブに次の設定を加えますが、その働きはここではわかりません: %2。</translation>
    </message>
<message>
        <source>Default of your administrator: %1</source>
        <translation>管理者による既定値: %1</translation>
    </message>
</context>
<context>
    <name>Summary</name>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Also in the job</source>
        <translation>ジョブに含まれるその他の設定</translation>
    </message>
    <message>
        <source>%1 × %2 inches</source>
        <translation>%1 × %2 インチ</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1, collated</source>
        <translation>%1（部単位）</translation>
    </message>
    <message>
        <source>%1, not collated</source>
        <translation>%1（ページ単位）</translation>
    </message>
<message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
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
        <translation>「%1」のプリンターにはユーザー名とパスワードが必要です。</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>プリントサーバー「%1」にはユーザー名とパスワードが必要です。</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others may read them.</source>
        <translation>接続は暗号化されていません。第三者に読み取られるおそれがあります。</translation>
    </message>
    <message>
        <source>User [%1]: </source>
        <translation>ユーザー名 [%1]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>パスワード: </translation>
    </message>
<message>
        <source>That is not the password.</source>
        <translation>パスワードが違います。</translation>
    </message>
    <message>
        <source>Password of “%1”: </source>
        <translation>「%1」のパスワード: </translation>
    </message>
<message>
        <source>Enter prints the other sides, Ctrl+D leaves them unprinted: </source>
        <translation>Enter でもう一方の面を印刷、Ctrl+D で印刷せずに終了: </translation>
    </message>
</context>
<context>
    <name>TextFormat</name>
    <message>
        <source>The margins, columns and characters per inch that were asked for leave no room for a text on this paper (%1 × %2 points).</source>
        <translation>指定された余白、段数、1 インチあたりの文字数では、この用紙（%1 × %2 ポイント）にテキストの入る余地がありません。</translation>
    </message>
</context>
<context>
    <name>UnattendedRun</name>
    <message>
        <source>%1 So the printer “%2” could not be asked for.</source>
        <translation>%1そのため、プリンター「%2」を確認できませんでした。</translation>
    </message>
    <message>
        <source>Nothing was printed.</source>
        <translation>何も印刷されませんでした。</translation>
    </message>
    <message>
        <source>It waits until the instructions have been followed. Release it with: %1</source>
        <translation>ジョブは、指示に従って準備ができるまで待機します。次のコマンドで解除してください: %1</translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>中断されました。</translation>
    </message>
    <message>
        <source>%1 Printers that need no print server: %2.</source>
        <translation>%1プリントサーバーを必要としないプリンター: %2。</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>ジョブ %1: %2</translation>
    </message>
    <message>
        <source>Printed to standard output</source>
        <translation>標準出力に出力しました</translation>
    </message>
    <message>
        <source>The result could not be written to standard output: %1.</source>
        <translation>結果を標準出力に書き込めませんでした: %1。</translation>
    </message>
<message>
        <source>The preset “%1” is kept.</source>
        <translation>プリセット「%1」を保存しました。</translation>
    </message>
    <message>
        <source>No preset was kept.</source>
        <translation>プリセットは保存されませんでした。</translation>
    </message>
</context>
<context>
    <name>corvana::ChoiceEditor</name>
    <message>
        <source>“%1: %2”</source>
        <translation>「%1: %2」</translation>
    </message>
    <message>
        <source>%1 to %2 points</source>
        <translation>%1～%2 ポイント</translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation>%1～%2 文字（半角）</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>“%1” is not possible for %2. Allowed: %3.</source>
        <translation>「%1」は%2に指定できません。指定できる値: %3。</translation>
    </message>
    <message>
        <source>This is not possible for %1. Allowed: %2.</source>
        <translation>この値は%1に指定できません。指定できる値: %2。</translation>
    </message>
    <message>
        <source>Cannot be combined with %1.</source>
        <translation>%1と同時に指定できません。</translation>
    </message>
    <message>
        <source> and </source>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>corvana::ComingDocuments</name>
    <message>
        <source>Standard input is being read.</source>
        <translation>標準入力を読み込んでいます。</translation>
    </message>
    <message>
        <source>%1 is being read.</source>
        <translation>%1 を読み込んでいます。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>corvana::Conversion</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>corvana::CopiesEditor</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>「%1」は指定できません。指定できる値: %2。</translation>
    </message>
</context>
<context>
    <name>corvana::CredentialsDialog</name>
    <message>
        <source>Log In to Print</source>
        <translation>印刷のためのログイン</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>ユーザー名(&amp;U):</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>パスワード(&amp;W):</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others on the network may read the password.</source>
        <translation>接続は暗号化されていません。ネットワーク上の第三者にパスワードを読み取られるおそれがあります。</translation>
    </message>
    <message>
        <source>The printer wants to know who prints. User and password are sent to it through the print server “%1”, and are forgotten when the print dialog closes.</source>
        <translation>印刷するには、プリンターへのログインが必要です。ユーザー名とパスワードはプリントサーバー「%1」を経由してプリンターに送信され、印刷ダイアログを閉じると破棄されます。</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints. User and password are forgotten when the print dialog closes.</source>
        <translation>印刷するには、プリントサーバー「%1」へのログインが必要です。ユーザー名とパスワードは、印刷ダイアログを閉じると破棄されます。</translation>
    </message>
</context>
<context>
    <name>corvana::CustomPaperSize</name>
    <message>
        <source>From %1 to %2</source>
        <translation>%1 ～ %2</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>用紙の幅</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>用紙の高さ</translation>
    </message>
    <message>
        <source>Unit of the paper size</source>
        <translation>用紙サイズの単位</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>インチ</translation>
    </message>
</context>
<context>
    <name>corvana::FileJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>印刷をキャンセルしました。</translation>
    </message>
    <message>
        <source>Printed to %1</source>
        <translation>%1 に出力しました</translation>
    </message>
    <message>
        <source>%1 is the document itself; name another file.</source>
        <translation>%1 は印刷する文書そのものです。別のファイルを指定してください。</translation>
    </message>
</context>
<context>
    <name>corvana::FilterChain</name>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1 を起動できません: %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>印刷をキャンセルしました。</translation>
    </message>
    <message>
        <source>The filter chain of CUPS crashed.</source>
        <translation>CUPS のフィルターが異常終了しました。</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: %1</source>
        <translation>文書をプリンター用に変換できませんでした: %1</translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>終了ステータス %1</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: nothing came out. %1</source>
        <translation>文書をプリンター用に変換できませんでした。出力がありません。%1</translation>
    </message>
    <message>
        <source>The documents could not be put together: %1 is incomplete. Is the disk full?</source>
        <translation>文書を 1 つにまとめられませんでした: %1 が不完全です。ディスクがいっぱいではありませんか？</translation>
    </message>
<message>
        <source>The document could not be converted for the printer: how many pages it has could not be found out.</source>
        <translation>文書をプリンター用に変換できませんでした: ページ数を確認できません。</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: that took too long.</source>
        <translation>文書をプリンター用に変換できませんでした: 時間がかかりすぎました。</translation>
    </message>
</context>
<context>
    <name>ClearButton</name>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
</context>
<context>
    <name>corvana::GeneralPage</name>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>部数(&amp;C):</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>ページ(&amp;G):</translation>
    </message>
    <message>
        <source>Custom Size</source>
        <translation>ユーザー定義サイズ</translation>
    </message>
    <message>
        <source>Width × height:</source>
        <translation>幅 × 高さ:</translation>
    </message>
<message>
        <source>All, or such as 1-4, 7, 9-</source>
        <translation>すべて。または 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>Choos&amp;e Pages…</source>
        <translation>ページを選択(&amp;E)…</translation>
    </message>
    <message>
        <source>No document has been chosen.</source>
        <translation>文書が選択されていません。</translation>
    </message>
</context>
<context>
    <name>corvana::HelpWindow</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>corvana::InstancePrinters</name>
    <message>
        <source>More Printers</source>
        <translation>ほかのプリンター</translation>
    </message>
    <message>
        <source>Other programs have the preset on the &amp;printers that are ticked:</source>
        <translation>チェックを付けたプリンターで、ほかのプログラムがこのプリセットを使えます(&amp;P):</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>ほかのプログラムでは「%1」と表示されます。</translation>
    </message>
</context>
<context>
    <name>corvana::JobFooter</name>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>保存(&amp;V)…</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Show Silenced Messages Again</source>
        <translation>非表示にしたメッセージを再び表示</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>C&amp;lose (printing continues)</source>
        <translation>閉じる(&amp;L)（印刷は続行）</translation>
    </message>
    <message>
        <source>The job goes on without this window.</source>
        <translation>このウィンドウを閉じても、ジョブは続行されます。</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>ジョブをキャンセル</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>印刷しています…</translation>
    </message>
    <message>
        <source>Canceling…</source>
        <translation>キャンセルしています…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
<message>
        <source>The first sides are printed.</source>
        <translation>1 回目の面が印刷されました。</translation>
    </message>
</context>
<context>
    <name>corvana::MessageBar</name>
    <message>
        <source>Dismiss this message</source>
        <translation>このメッセージを閉じる</translation>
    </message>
<message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Show all of this message</source>
        <translation>メッセージ全体を表示</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsModel</name>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Installable Options</source>
        <translation>取り付け可能なオプション</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1
For the command line: %2</source>
        <translation>%1
コマンドラインでの指定: %2</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>既定値: %1</translation>
    </message>
<message>
        <source>Changed. %1</source>
        <translation>変更済み。%1</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsPage</name>
    <message>
        <source>Back to the Default</source>
        <translation>既定値に戻す</translation>
    </message>
    <message>
        <source>Search options and choices</source>
        <translation>オプションと設定値を検索</translation>
    </message>
    <message>
        <source>Options of the printer</source>
        <translation>プリンターのオプション</translation>
    </message>
    <message>
        <source>Nothing contains “%1”.</source>
        <translation>「%1」を含むものはありません。</translation>
    </message>
</context>
<context>
    <name>corvana::PrintTask</name>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Name the file to print to.</source>
        <translation>出力するファイルの名前を入力してください。</translation>
    </message>
    <message>
        <source>“%1” are no pages. Pages and ranges in ascending order were expected, such as 1-4, 7, 9-.</source>
        <translation>「%1」はページ指定として正しくありません。1-4, 7, 9- のように、昇順で指定してください。</translation>
    </message>
    <message>
        <source>The printer's settings show instructions.</source>
        <translation>プリンターの設定に指示が表示されました。</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and a file cannot wait. Follow them and print with --on-alert=print.</source>
        <translation>この指示に従うまでジョブを待たせる必要がありますが、ファイルへの出力は待機できません。指示に従ってから --on-alert=print で印刷してください。</translation>
    </message>
    <message>
        <source>The printer's settings hold the job back.</source>
        <translation>プリンターの設定により、ジョブは印刷されませんでした。</translation>
    </message>
    <message>
        <source>The options of the printer have changed at its server; yours were kept.</source>
        <translation>プリンターのオプションがサーバーで変更されました。選択した設定はそのまま残っています。</translation>
    </message>
    <message>
        <source>The printer's own settings are missing: %1</source>
        <translation>プリンター固有の設定を使用できません: %1</translation>
    </message>
    <message>
        <source>Not everything could be set as before:
%1</source>
        <translation>次の設定は、以前のとおりに戻せませんでした:
%1</translation>
    </message>
    <message>
        <source>The queue “%1” leads to the same printer, and has pages with all of its settings.</source>
        <translation>キュー「%1」は同じプリンターに接続し、すべての設定のページがあります。</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <translation>「%1」を使用</translation>
    </message>
    <message>
        <source>What was asked for cannot be set:
%1</source>
        <translation>指定された内容を設定できません:
%1</translation>
    </message>
    <message>
        <source>The printer prints at most %1 copies at once, not %2.</source>
        <translation>このプリンターで一度に印刷できるのは %1 部までです（指定: %2 部）。</translation>
    </message>
    <message>
        <source>A page of the printer's settings cannot be shown: %1</source>
        <translation>プリンターの設定ページを表示できません: %1</translation>
    </message>
    <message>
        <source>“%1” has nothing to show.</source>
        <translation>「%1」には表示するものがありません。</translation>
    </message>
    <message>
        <source>No font of this computer has these characters of the text: %1. An empty frame is printed for each of them.</source>
        <translation>このコンピューターのどのフォントにも、テキスト中の次の文字がありません: %1。それぞれの代わりに空の枠が印刷されます。</translation>
    </message>
    <message>
        <source>Not all of the text could be looked through for characters that no font of this computer has. An empty frame is printed for each of them.</source>
        <translation>このコンピューターのどのフォントにもない文字があるかどうか、テキストの全体は調べられませんでした。そのような文字の代わりに空の枠が印刷されます。</translation>
    </message>
    <message>
        <source>%1 is of a kind that is not known here. Only a queue can pass it on to its printer, as it is, with the option “raw”.</source>
        <translation>%1 は対応していない種類の文書です。オプション「raw」を付けて、キューからプリンターへそのまま渡すことだけができます。</translation>
    </message>
<message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>印刷をキャンセルしました。</translation>
    </message>
<message>
        <source>What is passed on as it is cannot be printed to a file.</source>
        <translation>そのまま渡される文書はファイルに出力できません。</translation>
    </message>
    <message>
        <source>Not everything that is set for this printer could be taken:
%1</source>
        <translation>このプリンターに設定されている内容の一部は使用できませんでした:
%1</translation>
    </message>
<message>
        <source>There is no job attribute of the name %1.</source>
        <translation>%1 という名前のジョブ属性はありません。</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>「%1」は指定できません。指定できる値: %2。</translation>
    </message>
    <message>
        <source>The queue “%1” sets this for every job that does not name it. Allowed: %2.</source>
        <translation>キュー「%1」は、この値が指定されていないジョブすべてに自分の値を設定します。指定できる値: %2。</translation>
    </message>
<message>
        <source>A PDF file is saved once: there are no copies of it.</source>
        <translation>PDF ファイルは 1 つだけ保存されます。部数は指定できません。</translation>
    </message>
<message>
        <source>No document has been chosen.</source>
        <translation>文書が選択されていません。</translation>
    </message>
    <message>
        <source>There is a preview once the printer is known.</source>
        <translation>プリンターが決まるとプレビューが表示されます。</translation>
    </message>
    <message>
        <source>Files are passed on to the printer as they are. What comes out is not known here.</source>
        <translation>ファイルはそのままプリンターに渡されます。何が印刷されるかはここではわかりません。</translation>
    </message>
<message>
        <source>Choose a document to print.</source>
        <translation>印刷する文書を選択してください。</translation>
    </message>
<message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>Give the password with --document-password-file.</source>
        <translation>パスワードは --document-password-file で指定してください。</translation>
    </message>
    <message>
        <source>Enter the Password…</source>
        <translation>パスワードを入力…</translation>
    </message>
    <message>
        <source>Enter the Owner's Password…</source>
        <translation>所有者のパスワードを入力…</translation>
    </message>
<message>
        <source>Show Its First Sheet</source>
        <translation>最初の用紙を表示</translation>
    </message>
    <message>
        <source>Its pages are made while it is printed. The preview shows them.</source>
        <translation>ページは印刷時に作成されます。プレビューで確認できます。</translation>
    </message>
    <message>
        <source>How many pages it has is not known.</source>
        <translation>ページ数は不明です。</translation>
    </message>
    <message>
        <source>It is being looked at…</source>
        <translation>調べています…</translation>
    </message>
<message>
        <source>The sides of “%1” are not known here, so they cannot be printed in two halves. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>「%1」の面の構成が不明なため、2 回に分けて印刷することができません。sides-by-hand=no を指定すると片面に印刷されます。</translation>
    </message>
    <message>
        <source>%1 (other sides)</source>
        <translation>%1（もう一方の面）</translation>
    </message>
    <message>
        <source>%1 (first sides)</source>
        <translation>%1（1 回目の面）</translation>
    </message>
    <message>
        <source>First sides: %1</source>
        <translation>1 回目の面: %1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>もう一方の面: %1</translation>
    </message>
    <message>
        <source>First sides: %1 Other sides: %2</source>
        <translation>1 回目の面: %1もう一方の面: %2</translation>
    </message>
    <message>
        <source>Not printed.</source>
        <translation>印刷されていません。</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and two-sided printing by hand cannot. Follow them and print with --on-alert=print.</source>
        <translation>ジョブはこれらの指示を待つ必要がありますが、手動両面印刷では待つことができません。指示に従ってから --on-alert=print で印刷してください。</translation>
    </message>
    <message>
        <source>%1 So the job cannot wait for these instructions. Follow them and print with --on-alert=print.</source>
        <translation>%1 そのため、ジョブはこれらの指示を待つことができません。指示に従ってから --on-alert=print で印刷してください。</translation>
    </message>
<message>
        <source>As in your last job.</source>
        <translation>前回の印刷と同じ設定です。</translation>
    </message>
    <message>
        <source>Use Defaults</source>
        <translation>既定値を使用</translation>
    </message>
<message>
        <source>Not everything that your administrator has decided can be used. “corvana-print --check-policy” says what, and why.</source>
        <translation>管理者の定めた内容の一部は使用できません。「corvana-print --check-policy」で内容と理由を確認できます。</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper.</source>
        <translation>このジョブは用紙を %1 枚使用します。</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper. More than %2 are printed only with --yes.</source>
        <translation>このジョブは用紙を %1 枚使用します。%2 枚を超える印刷には --yes が必要です。</translation>
    </message>
    <message>
        <source>%1 is not on this computer. Save it here to print it.</source>
        <translation>%1 はこのコンピューターにありません。印刷するには、ここに保存してください。</translation>
    </message>
    <message>
        <source>The sheets can stay in the tray: the other sides are printed with the settings of the first ones.</source>
        <translation>用紙はトレイに入れたままで構いません。もう一方の面は、1 回目の面と同じ設定で印刷されます。</translation>
    </message>
    <message>
        <source>Printed to %1, which holds data for the printer and is no PDF document</source>
        <translation>%1 に出力しました。内容はプリンター用のデータで、PDF 文書ではありません</translation>
    </message>
</context>
<context>
    <name>corvana::PrintWindow</name>
    <message>
        <source>Asking “%1” for the options of the printer…</source>
        <translation>「%1」からプリンターのオプションを取得しています…</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>プリンターを探しています…</translation>
    </message>
    <message>
        <source>No answer from “%1” yet.</source>
        <translation>「%1」からまだ応答がありません。</translation>
    </message>
    <message>
        <source>No printers at “%1”.</source>
        <translation>「%1」にプリンターはありません。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>There are no printers yet. Add one in the printer settings of the system, or with the command lpadmin.</source>
        <translation>プリンターがまだありません。システムのプリンター設定、またはコマンド lpadmin で追加してください。</translation>
    </message>
    <message>
        <source>Until then, documents can be printed to a file.</source>
        <translation>それまでの間、文書はファイルに出力できます。</translation>
    </message>
    <message>
        <source>Log In…</source>
        <translation>ログイン…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>The print service of this computer is not running. Start it, on most systems with “systemctl start cups”.</source>
        <translation>このコンピューターの印刷サービスが動作していません。多くのシステムでは「systemctl start cups」で開始できます。</translation>
    </message>
    <message>
        <source>Print Another Copy</source>
        <translation>もう 1 部印刷</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>ファイルに出力</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 は既にあります。置き換えますか？</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Your preferences cannot be written.</source>
        <translation>個人設定を書き込めません。</translation>
    </message>
    <message>
        <source>The help is not installed.</source>
        <translation>ヘルプがインストールされていません。</translation>
    </message>
    <message>
        <source>Help on Printing</source>
        <translation>印刷のヘルプ</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>このまま印刷</translation>
    </message>
<message>
        <source>Two-Sided by Hand</source>
        <translation>手動両面印刷</translation>
    </message>
    <message>
        <source>Only the first sides of the sheets are printed. Leave the other sides unprinted?</source>
        <translation>用紙の 1 回目の面だけが印刷されています。もう一方の面を印刷せずに終了しますか？</translation>
    </message>
    <message>
        <source>The first sides of the sheets are being printed. Stop that, and leave the other sides unprinted?</source>
        <translation>用紙の 1 回目の面を印刷しています。中止して、もう一方の面を印刷せずに終了しますか？</translation>
    </message>
    <message>
        <source>Leave Unprinted</source>
        <translation>印刷せずに終了</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>If you print it again, it may come out of the printer twice.</source>
        <translation>もう一度印刷すると、2 回印刷されることがあります。</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>もう一度印刷</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterComboBox</name>
    <message>
        <source>Choose a printer</source>
        <translation>プリンターを選択</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterHeader</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>プリンター(&amp;R):</translation>
    </message>
    <message>
        <source>Print to &amp;file:</source>
        <translation>出力ファイル(&amp;F):</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>出力ファイル</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>選択(&amp;H)…</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>ファイルに出力</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterPopup</name>
    <message>
        <source>Printers</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Search by name or location</source>
        <translation>名前または場所で検索</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>プリンターを検索</translation>
    </message>
    <message>
        <source>No printer was found</source>
        <translation>プリンターが見つかりません</translation>
    </message>
    <message>
        <source>No printer matches</source>
        <translation>一致するプリンターはありません</translation>
    </message>
    <message>
        <source>%1 of %2 printers</source>
        <translation>%2 台中 %1 台</translation>
    </message>
    <message>
        <source>%1 printers</source>
        <translation>%1 台のプリンター</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterSource</name>
    <message>
        <source>There is no printer “%1” at “%2”.</source>
        <translation>「%2」にプリンター「%1」はありません。</translation>
    </message>
    <message>
        <source>There is no printer “%1” at “%2” any more.</source>
        <translation>「%2」のプリンター「%1」はなくなりました。</translation>
    </message>
    <message>
        <source>There is no default printer. %1 Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>既定のプリンターがありません。%1-d でプリンターを指定するか、--ppd FILE で PPD を指定するか、--demo でサンプルプリンターを試してください。</translation>
    </message>
    <message>
        <source>There is no default printer. Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>既定のプリンターがありません。-d でプリンターを指定するか、--ppd FILE で PPD を指定するか、--demo でサンプルプリンターを試してください。</translation>
    </message>
    <message>
        <source>There is no instance “%1”: lpoptions has none of the queue “%2”.</source>
        <translation>インスタンス「%1」はありません。lpoptions にはキュー「%2」のインスタンスがありません。</translation>
    </message>
    <message>
        <source>There is no instance “%1”. The queue “%2” has: %3.</source>
        <translation>インスタンス「%1」はありません。キュー「%2」にあるのは次のとおりです: %3。</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterStatusLine</name>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
</context>
<context>
    <name>corvana::ServerJob</name>
    <message>
        <source>The printer “%1” takes documents of these kinds only: %2.</source>
        <translation>プリンター「%1」で使用できる文書の種類は次のとおりです: %2。</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>印刷をキャンセルしました。</translation>
    </message>
    <message>
        <source>Job %1 is in the queue; it was not followed to its end.</source>
        <translation>ジョブ %1 はキューにあります。最後までは確認していません。</translation>
    </message>
    <message>
        <source>The printer “%1” does not take these settings of a job: %2. Nothing was printed.</source>
        <translation>プリンター「%1」では、ジョブの次の設定を使用できません: %2。何も印刷されませんでした。</translation>
    </message>
<message>
        <source>The queue “%1” has no driver and prints documents as they are: it can neither put several pages on a sheet (number-up) nor choose pages (page-ranges, page-set). Nothing was printed.</source>
        <translation>キュー「%1」にはドライバーがなく、文書はそのまま印刷されます。1 枚に複数ページを割り付けること (number-up) も、ページを選ぶこと (page-ranges、page-set) もできません。何も印刷されませんでした。</translation>
    </message>
    <message>
        <source>The documents were put together as one, because the printer takes one at a time; each begins on a new sheet.</source>
        <translation>プリンターが一度に受け取る文書は 1 つのため、文書は 1 つにまとめられました。各文書は新しい用紙から始まります。</translation>
    </message>
    <message>
        <source>There are too many copies to send them in sets. Their order is: %1.</source>
        <translation>部数が多いため、組ごとに送ることができません。順序: %1。</translation>
    </message>
</context>
<context>
    <name>corvana::SettingsPages</name>
    <message>
        <source>All Options</source>
        <translation>すべてのオプション</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>設定一覧</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>This page cannot be shown: %1</source>
        <translation>このページを表示できません: %1</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
<message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>corvana::SummaryPage</name>
    <message>
        <source>Summary</source>
        <translation>設定一覧</translation>
    </message>
<message>
        <source>Changed. %1</source>
        <translation>変更済み。%1</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1、変更済み</translation>
    </message>
    <message>
        <source>Only what is changed</source>
        <translation>変更した項目のみ</translation>
    </message>
    <message>
        <source>Nothing is changed.</source>
        <translation>変更した項目はありません。</translation>
    </message>
</context>
<context>
    <name>corvana::TextConversion</name>
    <message>
        <source>There are no fonts for the text %1.</source>
        <translation>テキスト %1 のためのフォントがありません。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>印刷をキャンセルしました。</translation>
    </message>
    <message>
        <source>%1 would have more than %2 pages, and a text is printed on no more than that.</source>
        <translation>%1 は %2 ページを超えます。テキストはこれより多いページには印刷されません。</translation>
    </message>
</context>
<context>
    <name>corvana::TextDocuments</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>印刷をキャンセルしました。</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>no display can be reached. Print without a window with --no-dialog.</source>
        <translation>ディスプレイに接続できません。--no-dialog を指定すると、ウィンドウなしで印刷できます。</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
</context>
<context>
    <name>DocumentCopies</name>
    <message>
        <source>all documents, then all of them again (A B A B)</source>
        <translation>すべての文書を 1 部ずつ繰り返す (A B A B)</translation>
    </message>
    <message>
        <source>each document with all its copies (A A B B)</source>
        <translation>文書ごとに全部数を続けて (A A B B)</translation>
    </message>
    <message>
        <source>each page with all its copies (1 1 2 2)</source>
        <translation>ページごとに全部数を続けて (1 1 2 2)</translation>
    </message>
</context>
<context>
    <name>PageChoice</name>
    <message>
        <source>“%1: %2”</source>
        <translation>「%1: %2」</translation>
    </message>
    <message>
        <source>The pages that were asked for are in none of the documents. Nothing was printed.</source>
        <translation>指定されたページはどの文書にもありません。何も印刷されませんでした。</translation>
    </message>
<message>
        <source>A booklet has two pages on each side, in an order of its own: %1 cannot be done with it.</source>
        <translation>冊子は各面に 2 ページを独自の順序で配置します。%1 は併用できません。</translation>
    </message>
    <message>
        <source>Each page is repeated %1 times on a side: %2 cannot be done with it.</source>
        <translation>各ページが 1 つの面に %1 回配置されます。%2 は併用できません。</translation>
    </message>
</context>
<context>
    <name>ResultPages</name>
    <message>
        <source>Nothing would be printed: what came out has no page.</source>
        <translation>何も印刷されません。作成されたデータにページがありません。</translation>
    </message>
</context>
<context>
    <name>SheetTexts</name>
    <message>
        <source>“%1”</source>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 ページ</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 ページ</translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1 枚</translation>
    </message>
    <message>
        <source>%1 sheets</source>
        <translation>%1 枚</translation>
    </message>
    <message>
        <source>“%1” has %2</source>
        <translation>「%1」は %2です</translation>
    </message>
    <message>
        <source>The document has %1</source>
        <translation>この文書は %1です</translation>
    </message>
    <message>
        <source>the document has %1</source>
        <translation>この文書は %1です</translation>
    </message>
    <message>
        <source>%1 and later</source>
        <translation>%1 以降</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>%1; %2 is not in it.</source>
        <translation>%1。存在しないページ: %2。</translation>
    </message>
    <message>
        <source>%1; %2 are not in it.</source>
        <translation>%1。存在しないページ: %2。</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only even pages were chosen.</source>
        <translation>何も印刷されません。%1。偶数ページだけが選択されています。</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only odd pages were chosen.</source>
        <translation>何も印刷されません。%1。奇数ページだけが選択されています。</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and none of them is left.</source>
        <translation>何も印刷されません。%1が、印刷するページが残りません。</translation>
    </message>
    <message>
        <source>could not be counted</source>
        <translation>数えられませんでした</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>%1, and 1 cover sheet</source>
        <translation>%1、および表紙 1 枚</translation>
    </message>
    <message>
        <source>%1, and %2 cover sheets</source>
        <translation>%1、および表紙 %2 枚</translation>
    </message>
    <message>
        <source>%1 × %2 copies = %3</source>
        <translation>%1 × %2 部 = %3</translation>
    </message>
    <message>
        <source>%1 at %2 %</source>
        <translation>%1 は %2 %</translation>
    </message>
    <message>
        <source>Sheets</source>
        <translation>用紙の枚数</translation>
    </message>
    <message>
        <source>Pages Not There</source>
        <translation>存在しないページ</translation>
    </message>
    <message>
        <source>Printed Size</source>
        <translation>印刷される大きさ</translation>
    </message>
<message>
        <source>“%1” takes too long to be shown. It can be printed without a preview.</source>
        <translation>「%1」の表示には時間がかかりすぎます。プレビューなしで印刷できます。</translation>
    </message>
    <message>
        <source>“%1” is too large to be shown. It can be printed without a preview.</source>
        <translation>「%1」は大きすぎて表示できません。プレビューなしで印刷できます。</translation>
    </message>
    <message>
        <source>“%1” could not be laid out, so there is no preview. Printing it may work all the same.</source>
        <translation>「%1」をページに配置できなかったため、プレビューはありません。それでも印刷できることがあります。</translation>
    </message>
<message>
        <source>the back stays empty, because only one side is printed</source>
        <translation>印刷する面が 1 つだけなので、裏面は白紙になります</translation>
    </message>
    <message>
        <source>the backs stay empty, because each document has only one side</source>
        <translation>どの文書も印刷する面が 1 つだけなので、裏面は白紙になります</translation>
    </message>
    <message>
        <source>the back stays empty where a document has only one side: %1</source>
        <translation>印刷する面が 1 つだけの文書は裏面が白紙になります: %1</translation>
    </message>
    <message>
        <source>%1, two-sided by hand</source>
        <translation>%1、手動両面</translation>
    </message>
</context>
<context>
    <name>PassedOn</name>
    <message>
        <source>The queue “%1” passes files on as they are: %2 cannot be done.</source>
        <translation>キュー「%1」はファイルをそのまま渡します。%2 は実行できません。</translation>
    </message>
    <message>
        <source>With “raw” files are passed on as they are: %1 cannot be done.</source>
        <translation>「raw」ではファイルがそのまま渡されます。%1 は実行できません。</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>Passed on as it is</source>
        <translation>そのまま渡されます</translation>
    </message>
</context>
<context>
    <name>corvana::AttributeEditor</name>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>その他…</translation>
    </message>
</context>
<context>
    <name>corvana::AttributeRows</name>
    <message>
        <source>&amp;More</source>
        <translation>その他の設定(&amp;M)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>More</source>
        <translation>その他の設定</translation>
    </message>
    <message>
        <source>More, %1</source>
        <translation>その他の設定、%1</translation>
    </message>
</context>
<context>
    <name>PageTrouble</name>
    <message>
        <source>This page cannot be shown: it is damaged.</source>
        <translation>このページは壊れているため表示できません。</translation>
    </message>
    <message>
        <source>This page cannot be shown: it is too large.</source>
        <translation>このページは大きすぎるため表示できません。</translation>
    </message>
    <message>
        <source>This page cannot be shown: drawing it takes too long.</source>
        <translation>このページは描画に時間がかかりすぎるため表示できません。</translation>
    </message>
    <message>
        <source>This page cannot be shown: the document is protected by a password.</source>
        <translation>文書がパスワードで保護されているため、このページは表示できません。</translation>
    </message>
    <message>
        <source>This page cannot be shown: the file cannot be read.</source>
        <translation>ファイルを読み取れないため、このページは表示できません。</translation>
    </message>
    <message>
        <source>Pages cannot be shown: the program that draws them does not run.</source>
        <translation>ページを描画するプログラムが動作しないため、ページを表示できません。</translation>
    </message>
</context>
<context>
    <name>JobColors</name>
    <message>
        <source>Shown in black and white, with your adjustments.</source>
        <translation>モノクロで、調整した内容を反映して表示しています。</translation>
    </message>
    <message>
        <source>Shown in black and white.</source>
        <translation>モノクロで表示しています。</translation>
    </message>
    <message>
        <source>Shows your adjustments; colors on paper differ.</source>
        <translation>調整した内容を表示しています。紙の上の色とは異なります。</translation>
    </message>
    <message>
        <source>Colors on paper differ from those on the screen.</source>
        <translation>紙の上の色は画面の色とは異なります。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>“%1: %2” is not shown.</source>
        <translation>「%1: %2」は表示に反映されません。</translation>
    </message>
</context>
<context>
    <name>SavedAsPdf</name>
    <message>
        <source>A PDF file is neither held nor printed: %1 cannot be done.</source>
        <translation>PDF ファイルは保留も印刷もされません。%1 は実行できません。</translation>
    </message>
</context>
<context>
    <name>JobNames</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 ほか %n 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SheetView</name>
    <message>
        <source>cover sheet</source>
        <translation>表紙</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>白紙</translation>
    </message>
    <message>
        <source>printed</source>
        <translation>印刷あり</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>%1 ページ</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>%1 ページ</translation>
    </message>
    <message>
        <source>%L1 back</source>
        <translation>%L1 裏</translation>
    </message>
    <message>
        <source>%L1 front</source>
        <translation>%L1 表</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 の %1</translation>
    </message>
    <message>
        <source>Sheet %L1: %2</source>
        <translation>%L1 枚目: %2</translation>
    </message>
    <message>
        <source>Sheet %L1, back: %2</source>
        <translation>%L1 枚目の裏: %2</translation>
    </message>
    <message>
        <source>Sheet %L1, front: %2</source>
        <translation>%L1 枚目の表: %2</translation>
    </message>
    <message>
        <source>%1, landscape</source>
        <translation>%1、横向き</translation>
    </message>
    <message>
        <source>Bound at the left edge</source>
        <translation>左端でとじます</translation>
    </message>
    <message>
        <source>Bound at the top edge</source>
        <translation>上端でとじます</translation>
    </message>
    <message>
        <source>Bound at the right edge</source>
        <translation>右端でとじます</translation>
    </message>
    <message>
        <source>Bound at the bottom edge</source>
        <translation>下端でとじます</translation>
    </message>
</context>
<context>
    <name>corvana::ColorsRow</name>
    <message>
        <source>Hold to Compare</source>
        <translation>押して比較</translation>
    </message>
    <message>
        <source>While it is held, the document is shown as it is, without adjustments.</source>
        <translation>押している間は、調整していない元の文書を表示します。</translation>
    </message>
</context>
<context>
    <name>corvana::CountsRow</name>
    <message>
        <source>Sheets</source>
        <translation>枚数</translation>
    </message>
    <message>
        <source>Show Preview</source>
        <translation>プレビューを表示</translation>
    </message>
    <message>
        <source>Hide Preview</source>
        <translation>プレビューを隠す</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentArea</name>
    <message>
        <source>Print this document earlier</source>
        <translation>この文書を前に印刷</translation>
    </message>
    <message>
        <source>Print this document later</source>
        <translation>この文書を後に印刷</translation>
    </message>
    <message>
        <source>Do not print this document</source>
        <translation>この文書を印刷しない</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Print further documents in the same job</source>
        <translation>ほかの文書も同じジョブで印刷</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>追加…</translation>
    </message>
    <message>
        <source>Documents in the order in which they are printed</source>
        <translation>印刷する順に並んだ文書</translation>
    </message>
    <message numerus="yes">
        <source>%n documents, printed in this order:</source>
        <translation>
            <numerusform>%n 個の文書をこの順に印刷:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Choose Documents to Print</source>
        <translation>印刷する文書を選択</translation>
    </message>
</context>
<context>
    <name>corvana::PreviewPane</name>
    <message>
        <source>Counting the sheets…</source>
        <translation>枚数を数えています…</translation>
    </message>
</context>
<context>
    <name>corvana::PreviewPlaceholder</name>
    <message>
        <source>Choose &amp;Documents…</source>
        <translation>文書を選択(&amp;D)…</translation>
    </message>
    <message>
        <source>Drop documents here to print them.</source>
        <translation>印刷する文書をここにドロップしてください。</translation>
    </message>
    <message>
        <source>PDF, PostScript, text, PNG and JPEG; several are one job.</source>
        <translation>PDF、PostScript、テキスト、PNG、JPEG。複数の文書は 1 つのジョブになります。</translation>
    </message>
</context>
<context>
    <name>corvana::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Preview. %1</source>
        <translation>プレビュー。%1</translation>
    </message>
    <message>
        <source>Cover sheet of the queue: %1</source>
        <translation>キューの表紙: %1</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>更新しています…</translation>
    </message>
<message>
        <source>%1. Note: %2</source>
        <translation>%1。注意: %2</translation>
    </message>
</context>
<context>
    <name>corvana::SheetsRow</name>
    <message>
        <source>Sheet %L1</source>
        <translation>%L1 枚目</translation>
    </message>
    <message>
        <source>Sheet %L1 of %L2</source>
        <translation>%L1 / %L2 枚</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPreview</name>
    <message>
        <source>It can be printed all the same.</source>
        <translation>プレビューがなくても印刷できます。</translation>
    </message>
</context>
<context>
    <name>corvana::ZoomControl</name>
    <message>
        <source>Smaller</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Size of the sheets</source>
        <translation>表示の大きさ</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>ページ全体</translation>
    </message>
    <message>
        <source>Fit Width</source>
        <translation>幅に合わせる</translation>
    </message>
    <message>
        <source>%L1 %</source>
        <translation>%L1 %</translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>“%1” is damaged at byte %2.</source>
        <translation>「%1」は %2 バイト目で壊れています。</translation>
    </message>
    <message>
        <source>“%1” is damaged.</source>
        <translation>「%1」は壊れています。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>“%1” is protected, and the password that was given does not open it.</source>
        <translation>「%1」は保護されています。指定されたパスワードでは開けません。</translation>
    </message>
    <message>
        <source>“%1” is protected: it is printed only with its password.</source>
        <translation>「%1」は保護されています。印刷するにはパスワードが必要です。</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. Only its owner's password does.</source>
        <translation>「%1」は印刷が許可されていません。印刷できるのは所有者のパスワードがある場合だけです。</translation>
    </message>
    <message>
        <source>None of its pages can be printed.</source>
        <translation>印刷できるページはありません。</translation>
    </message>
    <message>
        <source>“%1” is protected, and a copy without protection could not be made: it is too large, or there is no room for it.</source>
        <translation>「%1」は保護されています。大きすぎるか空き容量がないため、保護のないコピーを作成できませんでした。</translation>
    </message>
    <message>
        <source>1 of its %1 pages can be printed.</source>
        <translation>全 %1 ページのうち 1 ページを印刷できます。</translation>
    </message>
    <message>
        <source>%1 of its %2 pages can be printed.</source>
        <translation>全 %2 ページのうち %1 ページを印刷できます。</translation>
    </message>
    <message>
        <source>“%1” is protected. The file that is printed to is not.</source>
        <translation>「%1」は保護されていますが、印刷先のファイルは保護されません。</translation>
    </message>
    <message>
        <source>“%1” is protected. The print server gets a copy without protection.</source>
        <translation>「%1」は保護されていますが、プリントサーバーには保護のないコピーが送られます。</translation>
    </message>
    <message>
        <source>All pages that were found in it are printed.</source>
        <translation>見つかったページはすべて印刷されます。</translation>
    </message>
    <message>
        <source>“%1” brings settings for a printer along, which are not followed: %2. Choose them here, or pass the document on with the option “raw”.</source>
        <translation>「%1」にはプリンターへの設定が含まれていますが、反映されません: %2。ここで設定するか、オプション「raw」を付けて文書をそのまま渡してください。</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentPasswordDialog</name>
    <message>
        <source>Protected Document</source>
        <translation>保護された文書</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. With its owner's password it can be printed.</source>
        <translation>「%1」は印刷が許可されていません。所有者のパスワードがあれば印刷できます。</translation>
    </message>
    <message>
        <source>“%1” is protected: enter its password. The password is forgotten when the print dialog closes.</source>
        <translation>「%1」は保護されています。パスワードを入力してください。パスワードは印刷ダイアログを閉じると破棄されます。</translation>
    </message>
    <message>
        <source>That is not the password. Try again.</source>
        <translation>パスワードが違います。もう一度入力してください。</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>パスワード(&amp;P):</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>AttributeEffects</name>
    <message>
        <source>“%1”</source>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>%1 has no effect on %2: only texts follow it.</source>
        <translation>%1 は %2 には効果がありません。テキストにのみ適用されます。</translation>
    </message>
    <message>
        <source>%1 has no effect on %2: only pictures follow it.</source>
        <translation>%1 は %2 には効果がありません。画像にのみ適用されます。</translation>
    </message>
    <message>
        <source>asked for by the queue; what the printer makes of it is not known</source>
        <translation>キューの指定。プリンターがどう扱うかは不明</translation>
    </message>
    <message>
        <source>only where a page is scaled</source>
        <translation>ページが拡大・縮小される場合のみ</translation>
    </message>
</context>
<context>
    <name>SettingsIndex</name>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>More</source>
        <translation>その他の設定</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>All Options</source>
        <translation>すべてのオプション</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
</context>
<context>
    <name>corvana::FindField</name>
    <message>
        <source>Find a setting (Ctrl+F)</source>
        <translation>設定を検索 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>設定を検索</translation>
    </message>
    <message>
        <source>Type a name, then go to a setting with Enter</source>
        <translation>名前を入力し、Enter で設定に移動します</translation>
    </message>
    <message>
        <source>Type the name of a setting or of a choice.</source>
        <translation>設定または選択肢の名前を入力してください。</translation>
    </message>
</context>
<context>
    <name>corvana::FindModel</name>
    <message>
        <source>%1, on %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1, %2, on %3</source>
        <translation>%1、%2、%3</translation>
    </message>
</context>
<context>
    <name>corvana::FindPopup</name>
    <message>
        <source>Settings that were found</source>
        <translation>見つかった設定</translation>
    </message>
    <message>
        <source>1 setting found</source>
        <translation>1 件の設定が見つかりました</translation>
    </message>
    <message>
        <source>%1 settings found</source>
        <translation>%1 件の設定が見つかりました</translation>
    </message>
</context>
<context>
    <name>corvana::SettingFinder</name>
    <message>
        <source>No setting is called “%1”. Try a shorter word, or another one for it.</source>
        <translation>「%1」という設定はありません。短い言葉か、別の言葉で検索してください。</translation>
    </message>
    <message>
        <source>No setting is called “%1”. Press Enter to search for “%2” instead.</source>
        <translation>「%1」という設定はありません。Enter を押すと「%2」を検索します。</translation>
    </message>
    <message>
        <source>The settings of the printer are not known yet.</source>
        <translation>プリンターの設定はまだ取得できていません。</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>現在 %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>“%1” cannot be changed while other settings are as they are. It is on the page “%2”.</source>
        <translation>「%1」は、ほかの設定が今のままでは変更できません。「%2」にあります。</translation>
    </message>
</context>
<context>
    <name>ChoosablePages</name>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>Only the odd ones of them are printed, as is set for this job.</source>
        <translation>このジョブの設定により、そのうち奇数ページだけが印刷されます。</translation>
    </message>
    <message>
        <source>Only the even ones of them are printed, as is set for this job.</source>
        <translation>このジョブの設定により、そのうち偶数ページだけが印刷されます。</translation>
    </message>
    <message>
        <source>No page is chosen.</source>
        <translation>ページが選択されていません。</translation>
    </message>
    <message>
        <source>How many pages there are is not known.</source>
        <translation>ページ数は不明です。</translation>
    </message>
    <message>
        <source>%L1 of %L2 page numbers chosen.</source>
        <translation>%L2 個のページ番号のうち %L1 個を選択。</translation>
    </message>
    <message>
        <source>%L1 of %L2 pages chosen.</source>
        <translation>%L2 ページのうち %L1 ページを選択。</translation>
    </message>
    <message>
        <source>There are no pages %1.</source>
        <translation>存在しないページ: %1。</translation>
    </message>
    <message>
        <source>“%1” is no page. Pages are typed as in 1-4, 7, 9-.</source>
        <translation>「%1」はページではありません。1-4, 7, 9- のように入力します。</translation>
    </message>
    <message>
        <source>“%1” ends before it begins.</source>
        <translation>「%1」は終わりが始まりより前です。</translation>
    </message>
</context>
<context>
    <name>SheetMarks</name>
    <message>
        <source>The back of this sheet stays empty: only one side is printed.</source>
        <translation>印刷する面が 1 つだけなので、この用紙の裏面は白紙になります。</translation>
    </message>
</context>
<context>
    <name>corvana::PageChooser</name>
    <message>
        <source>Choose Pages</source>
        <translation>ページの選択</translation>
    </message>
    <message>
        <source>&amp;Pages:</source>
        <translation>ページ(&amp;P):</translation>
    </message>
    <message>
        <source>Such as 1-4, 7, 9-</source>
        <translation>例: 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>すべて(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>なし(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Odd</source>
        <translation>奇数(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Even</source>
        <translation>偶数(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>反転(&amp;I)</translation>
    </message>
    <message>
        <source>Page numbers count in each document: what is ticked in one is ticked in all.</source>
        <translation>ページ番号はどの文書にも共通です。1 つの文書で選択した番号は、すべての文書で選択されます。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>corvana::PageDelegate</name>
    <message>
        <source>%1 (%2)</source>
        <comment>page, its label</comment>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>corvana::PageModel</name>
    <message>
        <source>It has %L1 pages, too many to be shown here. They can be typed.</source>
        <translation>%L1 ページあり、多すぎてここには表示できません。番号で入力できます。</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>%1 ページ</translation>
    </message>
    <message>
        <source>Page %1 (%2)</source>
        <translation>%1 ページ（%2）</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 の %1</translation>
    </message>
    <message>
        <source>%1, chosen</source>
        <translation>%1、選択</translation>
    </message>
    <message>
        <source>%1, not chosen</source>
        <translation>%1、未選択</translation>
    </message>
</context>
<context>
    <name>corvana::PageThumbnails</name>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>ByHand</name>
    <message>
        <source>top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Take the printed sheet out of the printer.</source>
        <translation>印刷された用紙をプリンターから取り出します。</translation>
    </message>
    <message>
        <source>Take the %1 printed sheets out of the printer, as one stack.</source>
        <translation>印刷された %1 枚の用紙を、重なった順序のままプリンターから取り出します。</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side down, so that the %1 edge of the page goes into the printer first.</source>
        <translation>印刷面を下に向け、ページの%1端から先にプリンターへ入るようにトレイへ戻します。</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side up, so that the %1 edge of the page goes into the printer first.</source>
        <translation>印刷面を上に向け、ページの%1端から先にプリンターへ入るようにトレイへ戻します。</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side down, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>印刷面を下に向け、ページの%1端から先にプリンターへ入るようにトレイへ戻します。</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side up, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>印刷面を上に向け、ページの%1端から先にプリンターへ入るようにトレイへ戻します。</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost. Nothing is printed on it so far.</source>
        <translation>最後の用紙が一番上になります。この用紙にはまだ何も印刷されていません。</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost.</source>
        <translation>最後の用紙が一番上になります。</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>%1 ページ</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>%1 ページ</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>The last sheet, with %1, lies uppermost.</source>
        <translation>最後の用紙（%1）が一番上になります。</translation>
    </message>
    <message>
        <source>The last sheet, with %1 of “%2”, lies uppermost.</source>
        <translation>最後の用紙（「%2」の %1）が一番上になります。</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs a printer that sheets are put back into: it cannot be done in a file.</source>
        <translation>手動両面印刷（%1）では用紙をプリンターに戻す必要があります。ファイルへは実行できません。</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) cannot be combined with %2: the queue would add these pages to both halves.</source>
        <translation>手動両面印刷（%1）は %2 と組み合わせることができません。キューがこれらのページを両方の回に追加するためです。</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs somebody who puts the sheets back, and nobody can be asked here. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>手動両面印刷（%1）では用紙を戻す人が必要ですが、ここでは尋ねることができません。sides-by-hand=no を指定すると片面に印刷されます。</translation>
    </message>
</context>
<context>
    <name>corvana::PassJob</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>印刷をキャンセルしました。</translation>
    </message>
</context>
<context>
    <name>corvana::TurnSheetsDialog</name>
    <message>
        <source>Two-Sided by Hand</source>
        <translation>手動両面印刷</translation>
    </message>
    <message>
        <source>Put the sheets back to print their other sides</source>
        <translation>もう一方の面を印刷するために用紙を戻してください</translation>
    </message>
    <message>
        <source>&amp;Print the Other Sides</source>
        <translation>もう一方の面を印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>LastUsed</name>
    <message>
        <source>The settings of the last job cannot be read, and stay as they are in “%1”: %2.</source>
        <translation>前回の印刷の設定を読み取れません。「%1」はそのまま残されます: %2。</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>「%1」を削除できません: %2。</translation>
    </message>
    <message>
        <source>“%1” cannot be written.</source>
        <translation>「%1」に書き込めません。</translation>
    </message>
</context>
<context>
    <name>ListPresets</name>
    <message>
        <source>all printers</source>
        <translation>すべてのプリンター</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>A preset needs a name.</source>
        <translation>プリセットには名前が必要です。</translation>
    </message>
    <message>
        <source>The name of a preset has at most %1 characters.</source>
        <translation>プリセットの名前は %1 文字までです。</translation>
    </message>
    <message>
        <source>The name of a preset holds only characters that can be seen.</source>
        <translation>プリセットの名前に使えるのは表示できる文字だけです。</translation>
    </message>
    <message>
        <source>“%1” is always there, and is no name of a preset.</source>
        <translation>“%1”は常に存在するため、プリセットの名前にはできません。</translation>
    </message>
</context>
<context>
    <name>PresetApplication</name>
    <message>
        <source>%1 is not possible on this printer. Allowed: %2.</source>
        <translation>このプリンターでは%1を使用できません。指定できる値: %2。</translation>
    </message>
    <message>
        <source>%1 is not possible together with the other settings.</source>
        <translation>%1はほかの設定と組み合わせられません。</translation>
    </message>
    <message>
        <source>The printer's settings do not allow %1 here; it became %2.</source>
        <translation>プリンターの設定により%1は使えないため、%2になりました。</translation>
    </message>
    <message>
        <source>%1 is not on this printer.</source>
        <translation>%1はこのプリンターにありません。</translation>
    </message>
    <message>
        <source>A value of the printer's own settings (%1) is not possible here.</source>
        <translation>プリンター固有の設定の値（%1）はここでは使用できません。</translation>
    </message>
</context>
<context>
    <name>PresetFile</name>
    <message>
        <source>“%1”: expected was %2</source>
        <translation>「%1」: %2 が必要です</translation>
    </message>
    <message>
        <source>it was written by a later version of this program</source>
        <translation>このプログラムの新しいバージョンで作成されています</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>at most %1 values</source>
        <translation>%1 個以下の値</translation>
    </message>
    <message>
        <source>the name of an option</source>
        <translation>オプションの名前</translation>
    </message>
    <message>
        <source>a value or a list of values</source>
        <translation>値または値のリスト</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>「%1」に書き込めません: %2。</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>expected was { … }</source>
        <translation>{ … } が必要です</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>%1 バイトを超えています</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>“%1” is damaged and is left as it is: %2.</source>
        <translation>「%1」は壊れているため、そのまま残されます: %2。</translation>
    </message>
    <message>
        <source>There is no place to keep presets.</source>
        <translation>プリセットの保存場所がありません。</translation>
    </message>
    <message>
        <source>Another program is writing presets. Try again.</source>
        <translation>ほかのプログラムがプリセットを書き込んでいます。もう一度お試しください。</translation>
    </message>
    <message>
        <source>no space left, or no permission</source>
        <translation>空き容量がないか、権限がありません</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>「%1」に書き込めません: %2。</translation>
    </message>
    <message>
        <source>There is a preset of the name “%1” already.</source>
        <translation>「%1」という名前のプリセットはすでにあります。</translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>「%1」という名前のプリセットはもうありません。</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>「%1」を削除できません: %2。</translation>
    </message>
    <message>
        <source>%1 (for everybody)</source>
        <translation>%1（全員用）</translation>
    </message>
</context>
<context>
    <name>StartPresets</name>
    <message>
        <source>Last job: %1</source>
        <translation>前回の印刷: %1</translation>
    </message>
    <message>
        <source>There is no preset “%1”, nor any other for this printer.</source>
        <translation>プリセット「%1」はありません。このプリンター用のプリセットはほかにもありません。</translation>
    </message>
    <message>
        <source>There is no preset “%1” for this printer. Presets: %2.</source>
        <translation>このプリンター用のプリセット「%1」はありません。プリセット: %2。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>corvana::PresetMenu</name>
    <message>
        <source>Printer &amp;Defaults</source>
        <translation>プリンターの既定値(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Last Used</source>
        <translation>前回の設定(&amp;L)</translation>
    </message>
    <message>
        <source>For This Model</source>
        <translation>この機種用</translation>
    </message>
    <message>
        <source>For All Printers</source>
        <translation>すべてのプリンター用</translation>
    </message>
    <message>
        <source>&amp;Save Preset…</source>
        <translation>プリセットを保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Update “%1”</source>
        <translation>「%1」を更新(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Rename “%1”…</source>
        <translation>「%1」の名前を変更(&amp;R)…</translation>
    </message>
    <message>
        <source>D&amp;elete “%1”…</source>
        <translation>「%1」を削除(&amp;E)…</translation>
    </message>
    <message>
        <source>Re&amp;member the Settings of the Last Job</source>
        <translation>前回の印刷の設定を記憶する(&amp;M)</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>プリセットの削除</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? The settings stay as they are.</source>
        <translation>プリセット「%1」を削除しますか？ 現在の設定は変わりません。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>From Other Programs</source>
        <translation>ほかのプログラムの設定</translation>
    </message>
</context>
<context>
    <name>corvana::PresetRow</name>
    <message>
        <source>Prese&amp;t:</source>
        <translation>プリセット(&amp;T):</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（変更あり）</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>プリセット: %1</translation>
    </message>
<message>
        <source>%1 (Ctrl+Z)</source>
        <translation>%1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>%1 (Shift+Ctrl+Z)</source>
        <translation>%1 (Shift+Ctrl+Z)</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>This Page: %1</source>
        <translation>このページ: %1</translation>
    </message>
    <message>
        <source>Everything: %1</source>
        <translation>すべて: %1</translation>
    </message>
</context>
<context>
    <name>corvana::SavePresetDialog</name>
    <message>
        <source>Rename Preset</source>
        <translation>プリセットの名前を変更</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>プリセットを保存</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>For printers of this &amp;model (%1)</source>
        <translation>この機種（%1）のプリンター用(&amp;M)</translation>
    </message>
    <message>
        <source>For &amp;all printers, as far as they have these settings</source>
        <translation>これらの設定があるすべてのプリンター用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;With what sets up the printer itself (%1)</source>
        <translation>プリンター本体の設定（%1）も含める(&amp;W)</translation>
    </message>
    <message>
        <source>There is a preset of this name already.</source>
        <translation>この名前のプリセットはすでにあります。</translation>
    </message>
    <message>
        <source>There is a preset of this name already. It will be replaced.</source>
        <translation>この名前のプリセットはすでにあります。置き換えられます。</translation>
    </message>
    <message>
        <source>There is another preset of this name, which stays.</source>
        <translation>この名前のプリセットがほかにもあります。それはそのまま残ります。</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換え</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Also in &amp;other programs</source>
        <translation>ほかのプログラムでも使う(&amp;O)</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>ほかのプログラムでは「%1」と表示されます。</translation>
    </message>
    <message>
        <source>More &amp;Printers…</source>
        <translation>ほかのプリンター(&amp;P)…</translation>
    </message>
</context>
<context>
    <name>corvana::TaskHistory</name>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>「%1」を元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>「%1」をやり直す</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>「%1」に戻す</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>This cannot go back:
%1</source>
        <translation>元の値に戻せません:
%1</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPresets</name>
    <message>
        <source>and %1 more</source>
        <translation>ほか %1 件</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>プリンターの既定値</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>前回の設定</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>「%1」という名前のプリセットはもうありません。</translation>
    </message>
    <message>
        <source>Not everything of “%1” is possible here:
%2</source>
        <translation>「%1」の一部はここでは使用できません:
%2</translation>
    </message>
    <message>
        <source>“%1” was kept with settings that this printer does not have.</source>
        <translation>「%1」には、このプリンターにない設定が含まれています。</translation>
    </message>
    <message>
        <source>%1 Your settings are as they were.</source>
        <translation>%1 現在の設定は変わっていません。</translation>
    </message>
    <message>
        <source>“%1” is not there any more, or has no settings.</source>
        <translation>「%1」はもう存在しないか、設定がありません。</translation>
    </message>
    <message>
        <source>The printer is not known yet.</source>
        <translation>プリンターの情報がまだありません。</translation>
    </message>
    <message>
        <source>Other programs print with these settings to “%1”.</source>
        <translation>ほかのプログラムでは、「%1」に印刷するとこの設定が使われます。</translation>
    </message>
    <message>
        <source>The preset “%1” for this printer is another one.</source>
        <translation>このプリンター用のプリセット「%1」は別のものです。</translation>
    </message>
</context>
<context>
    <name>InstanceDraft</name>
    <message>
        <source>Some programs add “%1=%2” to it, which you have set for “%3”.</source>
        <translation>「%3」に設定されている「%1=%2」を追加するプログラムがあります。</translation>
    </message>
    <message>
        <source>“%1” is left out: it is a secret.</source>
        <translation>「%1」は秘密の値なので含まれません。</translation>
    </message>
    <message>
        <source>“%1” is left out: other programs cannot print it.</source>
        <translation>「%1」はほかのプログラムでは印刷できないので含まれません。</translation>
    </message>
    <message>
        <source>Other programs know settings of queues only, and “%1” is none.</source>
        <translation>ほかのプログラムで使えるのはキューの設定だけで、「%1」はキューではありません。</translation>
    </message>
    <message>
        <source>“%1” gets files as they are, so that no setting has an effect.</source>
        <translation>「%1」はファイルをそのまま受け取るので、設定は効果がありません。</translation>
    </message>
    <message>
        <source>“%1” has no letters that other programs can print to. Give it a name of letters from a to z, such as “%2”.</source>
        <translation>「%1」にはほかのプログラムの印刷先に使える文字がありません。「%2」のように、a から z の文字を使った名前を付けてください。</translation>
    </message>
    <message>
        <source>“%1” is there already, with settings of its own. Choose another name, or remove it with “lpoptions -x %1”.</source>
        <translation>「%1」は別の設定で既に存在します。別の名前を選ぶか、「lpoptions -x %1」で削除してください。</translation>
    </message>
</context>
<context>
    <name>SharedFile</name>
    <message>
        <source>“%1” cannot be read: %2. It was not changed.</source>
        <translation>「%1」を読み取れません: %2。ファイルは変更されていません。</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. It was not changed.</source>
        <translation>「%1」に書き込めません: %2。ファイルは変更されていません。</translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation>リンク先がありません</translation>
    </message>
    <message>
        <source>the link leads to a file of somebody else</source>
        <translation>リンク先がほかのユーザーのファイルです</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation>ほかのユーザーのファイルです</translation>
    </message>
    <message>
        <source>another program of ours is writing it</source>
        <translation>このプログラムの別のウィンドウが書き込んでいます</translation>
    </message>
    <message>
        <source>nothing can be written into its folder</source>
        <translation>フォルダーに書き込めません</translation>
    </message>
    <message>
        <source>other programs write it all the time</source>
        <translation>ほかのプログラムが書き込み続けています</translation>
    </message>
</context>
<context>
    <name>UserQueuesFile</name>
    <message>
        <source>The file of lpoptions is packed, and cannot be changed here.</source>
        <translation>lpoptions のファイルは圧縮されているので、ここでは変更できません。</translation>
    </message>
    <message>
        <source>“%1” is your default printer, and stays: choose another one first.</source>
        <translation>「%1」は既定のプリンターなので削除されません。先に別のプリンターを選んでください。</translation>
    </message>
    <message>
        <source>“%1” is no name that other programs can print to.</source>
        <translation>「%1」はほかのプログラムの印刷先に使えない名前です。</translation>
    </message>
    <message>
        <source>“%1” would have more settings than other programs can read.</source>
        <translation>「%1」の設定は、ほかのプログラムで読み取れる量を超えます。</translation>
    </message>
    <message>
        <source>Other programs would read the value of “%1” as another one.</source>
        <translation>ほかのプログラムは「%1」の値を別の値として読み取ります。</translation>
    </message>
    <message>
        <source>“%1” is no name of an option for other programs.</source>
        <translation>「%1」はほかのプログラムで使えるオプション名ではありません。</translation>
    </message>
    <message>
        <source>The value of “%1” has a line break or a control character, which no option for other programs can have.</source>
        <translation>「%1」の値に改行または制御文字があります。ほかのプログラムのオプションには使用できません。</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is.</source>
        <translation>「%1」はほかのプログラムが変更したため、そのまま残します。</translation>
    </message>
</context>
<context>
    <name>corvana::ChangeMarks</name>
    <message>
        <source>Changed. %1</source>
        <translation>変更済み。%1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>CheckPolicy</name>
    <message>
        <source>Policy in %1 for the user %2</source>
        <translation>ユーザー %2 に対する %1 のポリシー</translation>
    </message>
    <message>
        <source>groups: %1</source>
        <translation>グループ: %1</translation>
    </message>
    <message>
        <source>Not used:</source>
        <translation>使用されないもの:</translation>
    </message>
    <message>
        <source>Nothing is decided.</source>
        <translation>何も定められていません。</translation>
    </message>
    <message>
        <source>At the printer %1:</source>
        <translation>プリンター %1:</translation>
    </message>
    <message>
        <source>Void, because the printer does not take it:</source>
        <translation>プリンターが対応していないため無効:</translation>
    </message>
    <message>
        <source>For others, who are in these groups:</source>
        <translation>次のグループのほかのユーザー向け:</translation>
    </message>
    <message>
        <source>Only root may ask what applies to somebody else.</source>
        <translation>ほかのユーザーに適用される内容を確認できるのは root だけです。</translation>
    </message>
    <message>
        <source>There is no user of the name “%1”.</source>
        <translation>「%1」という名前のユーザーはいません。</translation>
    </message>
</context>
<context>
    <name>OptionLocks</name>
    <message>
        <source>“%1” is set by your administrator (%2).</source>
        <translation>「%1」は管理者が設定しています（%2）。</translation>
    </message>
    <message>
        <source>Set by your administrator (%1).</source>
        <translation>管理者が設定しています（%1）。</translation>
    </message>
</context>
<context>
    <name>Policy</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>「%1」は指定できません。指定できる値: %2。</translation>
    </message>
    <message>
        <source>the path of a folder that begins with /</source>
        <translation>/ で始まるフォルダーのパス</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>%1 から %2 までの数</translation>
    </message>
    <message>
        <source>the line is longer than %1 bytes</source>
        <translation>行が %1 バイトを超えています</translation>
    </message>
    <message>
        <source>the line is not written in UTF-8</source>
        <translation>行が UTF-8 で書かれていません</translation>
    </message>
    <message>
        <source>the line has a character that cannot be seen</source>
        <translation>行に表示されない文字があります</translation>
    </message>
    <message>
        <source>there are more problems</source>
        <translation>ほかにも問題があります</translation>
    </message>
    <message>
        <source>there are more than %1 sections</source>
        <translation>セクションが %1 個を超えています</translation>
    </message>
    <message>
        <source>“%1” is no section, and what follows in it is left out. Allowed: %2.</source>
        <translation>「%1」はセクションではなく、その内容は無視されます。使用できるもの: %2。</translation>
    </message>
    <message>
        <source>“%1” is no line of a policy. Expected: %2.</source>
        <translation>「%1」はポリシーの行ではありません。使用できる形式: %2。</translation>
    </message>
    <message>
        <source>“%1” stands before the first section. Begin with [all].</source>
        <translation>「%1」が最初のセクションより前にあります。[all] から始めてください。</translation>
    </message>
    <message>
        <source>there is no key “%1”. Keys: %2.</source>
        <translation>キー「%1」はありません。キー: %2。</translation>
    </message>
    <message>
        <source>%1 needs the keyword of an option or of a job attribute.</source>
        <translation>%1 にはオプションまたはジョブ属性のキーワードが必要です。</translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation>値が長すぎます</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 bytes</source>
        <translation>ファイルは使用されません: %1 バイトを超えています</translation>
    </message>
    <message>
        <source>the file is not used: it is no text</source>
        <translation>ファイルは使用されません: テキストではありません</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 lines</source>
        <translation>ファイルは使用されません: %1 行を超えています</translation>
    </message>
    <message>
        <source>it belongs to the user with the ID %1</source>
        <translation>番号 %1 のユーザーが所有しています</translation>
    </message>
    <message>
        <source>others than its owner may write to it</source>
        <translation>所有者以外のユーザーも書き込めます</translation>
    </message>
    <message>
        <source>nothing below this folder is used: %1</source>
        <translation>このフォルダー以下のものは使用されません: %1</translation>
    </message>
    <message>
        <source>nothing in this folder is used: %1</source>
        <translation>このフォルダーのファイルは使用されません: %1</translation>
    </message>
    <message>
        <source>only the first %1 files are used</source>
        <translation>最初の %1 個のファイルだけが使用されます</translation>
    </message>
    <message>
        <source>the file is not used: it is a link that leads out of its folder</source>
        <translation>ファイルは使用されません: フォルダーの外へのリンクです</translation>
    </message>
    <message>
        <source>the file is not used: %1</source>
        <translation>ファイルは使用されません: %1</translation>
    </message>
    <message>
        <source>the file is not used: it is no ordinary file</source>
        <translation>ファイルは使用されません: 通常のファイルではありません</translation>
    </message>
</context>
<context>
    <name>PrintRequest</name>
    <message>
        <source>The printer “%1” is not offered by your administrator (%2).</source>
        <translation>プリンター「%1」は管理者により提供されていません（%2）。</translation>
    </message>
    <message>
        <source>Printing to a file is not offered by your administrator (%1).</source>
        <translation>ファイルへの出力は管理者により提供されていません（%1）。</translation>
    </message>
</context>
<context>
    <name>QueueRequests</name>
    <message>
        <source>more than %L1 printers</source>
        <translation>%L1 台を超えるプリンター</translation>
    </message>
    <message>
        <source>printers with more than %L1 characters in their texts</source>
        <translation>プリンターの説明文などの合計が %L1 文字を超過</translation>
    </message>
</context>
<context>
    <name>ClientFiles</name>
    <message>
        <source>%1 cannot be read to its end: a small file with the settings of CUPS is expected there.</source>
        <translation>%1 を最後まで読み込めません。ここには CUPS の設定を書いた小さなファイルが必要です。</translation>
    </message>
</context>
<context>
    <name>TemporaryFolder</name>
    <message>
        <source>No temporary files can be kept in %1: %2</source>
        <translation>%1 に一時ファイルを保存できません: %2</translation>
    </message>
</context>
<context>
    <name>TextSource</name>
    <message>
        <source>it has become shorter meanwhile</source>
        <translation>読み込み中に短くなりました</translation>
    </message>
</context>
<context>
    <name>Finishings</name>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>ステープル</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>パンチ</translation>
    </message>
    <message>
        <source>Add Cover</source>
        <translation>表紙を付ける</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>製本</translation>
    </message>
    <message>
        <source>Saddle Stitch</source>
        <translation>中とじ</translation>
    </message>
    <message>
        <source>Edge Stitch</source>
        <translation>平とじ</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折り</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>断裁</translation>
    </message>
    <message>
        <source>Bundle</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Make Booklet</source>
        <translation>冊子の作成</translation>
    </message>
    <message>
        <source>Offset Sets</source>
        <translation>部ごとにずらして排紙</translation>
    </message>
    <message>
        <source>Coat</source>
        <translation>コーティング</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>ラミネート</translation>
    </message>
</context>
<context>
    <name>OwnInstances</name>
    <message>
        <source>“%1” is damaged. What was written for other programs before does not follow its presets any more.</source>
        <translation>「%1」は壊れています。ほかのプログラム用に以前書き込まれたものは、プリセットの変更に追従しなくなります。</translation>
    </message>
</context>
<context>
    <name>PresetInstances</name>
    <message>
        <source>“%1” in other programs: %2</source>
        <translation>ほかのプログラムの「%1」: %2</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is from now on.</source>
        <translation>「%1」はほかのプログラムが変更したため、今後はそのまま残します。</translation>
    </message>
    <message>
        <source>Settings were changed while “%1” was saved: other programs have it as it was before. Save it again.</source>
        <translation>「%1」の保存中に設定が変更されました。ほかのプログラムでは以前のままです。もう一度保存してください。</translation>
    </message>
</context>
<context>
    <name>PresetReplacing</name>
    <message>
        <source>“%1” was saved elsewhere since it was selected here, and stays as it is there. Select it again, or keep your settings with “Save Preset…”.</source>
        <translation>“%1”はここで選択された後に別の場所で保存されたため、そのまま残ります。もう一度選択するか、“プリセットを保存…”で設定を保存してください。</translation>
    </message>
</context>
<context>
    <name>Collation</name>
    <message>
        <source>two-sided copies are always collated on this printer</source>
        <translation>このプリンターでは両面印刷の部数は常に部単位で印刷されます</translation>
    </message>
</context>
<context>
    <name>OtherQueues</name>
    <message>
        <source>The queue could not be read in time.</source>
        <translation>キューを時間内に読み取れませんでした。</translation>
    </message>
</context>
</TS>
