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
        <source>%1 cannot be printed: it holds %2. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
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
</context>
<context>
    <name>FileQueue</name>
    <message>
        <source>The program %1, named by CORVANA_PRINT_CUPSFILTER, cannot be run.</source>
        <translation>CORVANA_PRINT_CUPSFILTER で指定されたプログラム %1 を実行できません。</translation>
    </message>
    <message>
        <source>The program cupsfilter was found neither on the path nor in /usr/sbin. It comes with CUPS (on Debian the package &quot;cups&quot;).</source>
        <translation>プログラム cupsfilter がパスにも /usr/sbin にも見つかりません。CUPS（Debian ではパッケージ &quot;cups&quot;）に含まれています。</translation>
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
        <source>%1: the printer&apos;s settings do not allow this here; it became %2.</source>
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
</context>
<context>
    <name>PrintRequest</name>
    <message>
        <source>There is no printer. Name one with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>プリンターがありません。--ppd FILE で指定するか、--demo でサンプルプリンターを試してください。</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;. Printers: %2.</source>
        <translation>プリンター「%1」はありません。プリンター: %2。</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 ほか %n 件</numerusform>
        </translation>
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
        <translation>ファイルに印刷</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the words of a printer&apos;s state</comment>
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
    <name>Summary</name>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>%1 × %2 inches</source>
        <translation>%1 × %2 インチ</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
</context>
<context>
    <name>UnattendedRun</name>
    <message>
        <source>Nothing was printed.</source>
        <translation>何も印刷されませんでした。</translation>
    </message>
    <message>
        <source>The printer&apos;s settings hold the job back.</source>
        <translation>プリンターの設定により、ジョブは印刷されませんでした。</translation>
    </message>
    <message>
        <source>Printed to %1</source>
        <translation>%1 に出力しました</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and a file cannot wait. Follow them and print with --on-alert=print.</source>
        <translation>この指示に従うまでジョブを待たせる必要がありますが、ファイルへの出力は待機できません。指示に従ってから --on-alert=print で印刷してください。</translation>
    </message>
    <message>
        <source>The printer&apos;s settings show instructions.</source>
        <translation>プリンターの設定に指示が表示されました。</translation>
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
        <translation>「%1」は%2に指定できません。指定できる値: %3</translation>
    </message>
    <message>
        <source>This is not possible for %1. Allowed: %2.</source>
        <translation>この値は%1に指定できません。指定できる値: %2</translation>
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
    <name>corvana::FileQueue</name>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1 を起動できません: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 を読み取れません。</translation>
    </message>
    <message>
        <source>%1 is a folder; the name of a file was expected.</source>
        <translation>%1 はフォルダーです。ファイル名を指定してください。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>印刷を中止しました。</translation>
    </message>
    <message>
        <source>The documents could not be put together: %1 is incomplete. Is the disk full?</source>
        <translation>文書を 1 つにまとめられませんでした: %1 が不完全です。ディスクがいっぱいではありませんか？</translation>
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
        <source>%1 is a device or a pipe; the name of a file was expected.</source>
        <translation>%1 はデバイスまたはパイプです。ファイル名を指定してください。</translation>
    </message>
    <message>
        <source>%1 is the document itself; name another file.</source>
        <translation>%1 は印刷する文書そのものです。別のファイルを指定してください。</translation>
    </message>
</context>
<context>
    <name>corvana::GeneralPage</name>
    <message>
        <source>&amp;Copies:</source>
        <translation>部数(&amp;C):</translation>
    </message>
    <message>
        <source>All pages; or pages and ranges such as 1-4, 7, 9-</source>
        <translation>すべて（指定する場合の例: 1-4, 7, 9-）</translation>
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
    <name>corvana::MessageBar</name>
    <message>
        <source>Dismiss this message</source>
        <translation>このメッセージを閉じる</translation>
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
        <translation>初期設定: %1</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsPage</name>
    <message>
        <source>Back to the Default</source>
        <translation>初期設定に戻す</translation>
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
    <name>corvana::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>プリンター(&amp;R):</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>文書:</translation>
    </message>
    <message>
        <source>Print to &amp;file:</source>
        <translation>出力ファイル(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
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
        <source>The printer&apos;s own settings are missing: %1</source>
        <translation>プリンター固有の設定を使用できません: %1</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>設定一覧</translation>
    </message>
    <message>
        <source>This page cannot be shown: %1</source>
        <translation>このページを表示できません: %1</translation>
    </message>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>プリンターの設定ページを表示できません: %1</translation>
    </message>
    <message>
        <source>“%1: %2”</source>
        <translation>「%1: %2」</translation>
    </message>
    <message>
        <source>%1 cannot be combined with %2.</source>
        <translation>%1 は %2 と同時には使用できません。</translation>
    </message>
    <message>
        <source> and </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Change to %1</source>
        <translation>%1 に変更</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>ファイルに出力</translation>
    </message>
    <message>
        <source>PostScript (*.ps);;All files (*)</source>
        <translation>PostScript (*.ps);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 は既にあります。置き換えますか？</translation>
    </message>
    <message>
        <source>Name the file to print to.</source>
        <translation>出力するファイルの名前を入力してください。</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>印刷しています…</translation>
    </message>
    <message>
        <source>“%1” are no pages. Pages and ranges in ascending order were expected, such as 1-4, 7, 9-.</source>
        <translation>「%1」はページ指定として正しくありません。1-4, 7, 9- のように、昇順で指定してください。</translation>
    </message>
    <message>
        <source>Printing page %1…</source>
        <translation>%1 ページ目を印刷しています…</translation>
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
        <source>Your preferences cannot be written.</source>
        <translation>個人設定を書き込めません。</translation>
    </message>
    <message>
        <source>None of the options of the command line was set, because of these:
%1</source>
        <translation>次の理由により、コマンドラインのオプションは設定されませんでした:
%1</translation>
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
        <source>Printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
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
    <name>corvana::PrinterStatusLine</name>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
</context>
<context>
    <name>corvana::SummaryPage</name>
    <message>
        <source>Summary</source>
        <translation>設定一覧</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Printed to %1</source>
        <translation>%1 に出力しました</translation>
    </message>
    <message>
        <source>no display can be reached. Print without a window with --no-dialog.</source>
        <translation>ディスプレイに接続できません。--no-dialog を指定すると、ウィンドウなしで印刷できます。</translation>
    </message>
</context>
</TS>
