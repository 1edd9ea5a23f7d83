<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>AlertPresenter</name>
    <message>
        <source>Do not show this message again</source>
        <translation>不再顯示此訊息</translation>
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
        <translation>%1 對 %2 無效：只適用於文字。</translation>
    </message>
    <message>
        <source>%1 has no effect on %2: only pictures follow it.</source>
        <translation>%1 對 %2 無效：只適用於圖片。</translation>
    </message>
    <message>
        <source>asked for by the queue; what the printer makes of it is not known</source>
        <translation>由佇列指定；印表機會如何處理未知</translation>
    </message>
    <message>
        <source>only where a page is scaled</source>
        <translation>僅在縮放頁面時</translation>
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
        <translation>從印表機取出已列印的紙張。</translation>
    </message>
    <message>
        <source>Take the %1 printed sheets out of the printer, as one stack.</source>
        <translation>從印表機取出已列印的 %1 張紙，整疊保持原有順序。</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side down, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>將紙張放回紙匣，列印面朝下，使頁面的%1邊先進入印表機。</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side up, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>將紙張放回紙匣，列印面朝上，使頁面的%1邊先進入印表機。</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost. Nothing is printed on it so far.</source>
        <translation>最後一張紙在最上面，上面還沒有列印任何內容。</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost.</source>
        <translation>最後一張紙在最上面。</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>第 %1 頁</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>第 %1 頁</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>The last sheet, with %1, lies uppermost.</source>
        <translation>最後一張紙（%1）在最上面。</translation>
    </message>
    <message>
        <source>The last sheet, with %1 of “%2”, lies uppermost.</source>
        <translation>最後一張紙（「%2」的%1）在最上面。</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs a printer that sheets are put back into: it cannot be done in a file.</source>
        <translation>手動雙面列印（%1）需要將紙張放回印表機，因此無法列印到檔案。</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) cannot be combined with %2: the queue would add these pages to both halves.</source>
        <translation>手動雙面列印（%1）不能與 %2 同時使用：佇列會在兩次列印中都加入這些頁面。</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs somebody who puts the sheets back, and nobody can be asked here. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>手動雙面列印（%1）需要有人將紙張放回，而此處無法詢問任何人。使用 sides-by-hand=no 則只列印每張紙的一面。</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side down, so that the %1 edge of the page goes into the printer first.</source>
        <translation>將紙張放回紙匣，列印面朝下，使頁面的%1邊先進入印表機。</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side up, so that the %1 edge of the page goes into the printer first.</source>
        <translation>將紙張放回紙匣，列印面朝上，使頁面的%1邊先進入印表機。</translation>
    </message>
</context>
<context>
    <name>CheckPolicy</name>
    <message>
        <source>Policy in %1 for the user %2</source>
        <translation>%1 中適用於使用者 %2 的政策</translation>
    </message>
    <message>
        <source>groups: %1</source>
        <translation>群組：%1</translation>
    </message>
    <message>
        <source>Not used:</source>
        <translation>未使用：</translation>
    </message>
    <message>
        <source>Nothing is decided.</source>
        <translation>沒有任何規定。</translation>
    </message>
    <message>
        <source>At the printer %1:</source>
        <translation>印表機 %1：</translation>
    </message>
    <message>
        <source>Void, because the printer does not take it:</source>
        <translation>因印表機不支援而無效：</translation>
    </message>
    <message>
        <source>For others, who are in these groups:</source>
        <translation>適用於屬於以下群組的其他使用者：</translation>
    </message>
    <message>
        <source>Only root may ask what applies to somebody else.</source>
        <translation>只有 root 可以查詢適用於其他使用者的規定。</translation>
    </message>
    <message>
        <source>There is no user of the name “%1”.</source>
        <translation>沒有名為「%1」的使用者。</translation>
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
        <translation>依照此工作的設定，其中只列印奇數頁。</translation>
    </message>
    <message>
        <source>Only the even ones of them are printed, as is set for this job.</source>
        <translation>依照此工作的設定，其中只列印偶數頁。</translation>
    </message>
    <message>
        <source>No page is chosen.</source>
        <translation>未選擇任何頁面。</translation>
    </message>
    <message>
        <source>How many pages there are is not known.</source>
        <translation>頁數未知。</translation>
    </message>
    <message>
        <source>%L1 of %L2 page numbers chosen.</source>
        <translation>已選擇 %L2 個頁碼中的 %L1 個。</translation>
    </message>
    <message>
        <source>%L1 of %L2 pages chosen.</source>
        <translation>已選擇 %L2 頁中的 %L1 頁。</translation>
    </message>
    <message>
        <source>There are no pages %1.</source>
        <translation>不存在的頁面：%1。</translation>
    </message>
    <message>
        <source>“%1” is no page. Pages are typed as in 1-4, 7, 9-.</source>
        <translation>「%1」不是頁碼。請以 1-4, 7, 9- 的形式輸入。</translation>
    </message>
    <message>
        <source>“%1” ends before it begins.</source>
        <translation>「%1」的結束頁在起始頁之前。</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the name of a document is missing.</source>
        <translation>缺少文件的名稱。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lists what can be said.</source>
        <translation>執行 &quot;%1&quot; 可查看可以指定的內容。</translation>
    </message>
    <message>
        <source>%1 %2: a number from %3 to %4 was expected.</source>
        <translation>%1 %2：應為 %3 到 %4 之間的數字。</translation>
    </message>
    <message>
        <source>-P &quot;%1&quot;: pages and ranges in ascending order were expected, such as 1-4,7,9-.</source>
        <translation>-P &quot;%1&quot;：應為依遞增順序排列的頁面與範圍，例如 1-4,7,9-。</translation>
    </message>
    <message>
        <source>-H %1 is for a job that is in a queue already: use %2.</source>
        <translation>-H %1 用於已在佇列中的工作：請使用 %2。</translation>
    </message>
    <message>
        <source>-H &quot;%1&quot;: hold, immediate, %2 was expected.</source>
        <translation>-H &quot;%1&quot;：允許的值：hold, immediate, %2。</translation>
    </message>
    <message>
        <source>--check-policy takes one printer and no document.</source>
        <translation>--check-policy 只接受一台印表機，不接受文件。</translation>
    </message>
    <message>
        <source>--server &quot;%1&quot;: HOST, HOST:PORT or the path of a socket was expected.</source>
        <translation>--server &quot;%1&quot;：應為 HOST、HOST:PORT 或通訊端的路徑。</translation>
    </message>
    <message>
        <source>--on-alert %1: print, hold or refuse was expected.</source>
        <translation>--on-alert %1：應為 print、hold 或 refuse。</translation>
    </message>
    <message>
        <source>--format %1: json or text was expected.</source>
        <translation>--format %1：應為 json 或 text。</translation>
    </message>
    <message>
        <source>-m: no mail is sent. What became of the job is said at the end, and by the exit status.</source>
        <translation>-m：不會寄送郵件。工作的結果會在結束時顯示，也可由結束狀態得知。</translation>
    </message>
    <message>
        <source>%1 &quot;&quot;: %2 is missing.</source>
        <translation>%1 &quot;&quot;：缺少 %2。</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined.</source>
        <translation>%1 與 %2 不能同時使用。</translation>
    </message>
    <message>
        <source>%1 is for runs without a window (--no-dialog).</source>
        <translation>%1 用於不開啟視窗的執行 (--no-dialog)。</translation>
    </message>
    <message>
        <source>standard input cannot be the document and the password.</source>
        <translation>標準輸入不能同時作為文件與密碼。</translation>
    </message>
    <message>
        <source>--save-preset prints nothing: no document can be named.</source>
        <translation>--save-preset 不會列印任何內容：不能指定文件。</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined: both write to standard output.</source>
        <translation>%1 與 %2 不能同時使用：兩者都會寫入標準輸出。</translation>
    </message>
    <message>
        <source>-d &quot;%1&quot;: a URI like ipp://HOST/ipp/print was expected.</source>
        <translation>-d &quot;%1&quot;：應為類似 ipp://HOST/ipp/print 的 URI。</translation>
    </message>
    <message>
        <source>-o &quot;%1&quot;: KEY=VALUE was expected.</source>
        <translation>-o &quot;%1&quot;：應為 KEY=VALUE。</translation>
    </message>
    <message>
        <source>standard input (-) can be read once only.</source>
        <translation>標準輸入 (-) 只能讀取一次。</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>Prints a document with the settings of its printer, in a dialog or without one.</source>
        <translation>使用印表機的設定列印文件，可開啟對話方塊，也可不開啟。</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>選項：</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>引數：</translation>
    </message>
    <message>
        <source>The document: PDF, PostScript, text, PNG or JPEG; - is standard input. Several are one job.</source>
        <translation>文件：PDF、PostScript、文字、PNG 或 JPEG；- 表示標準輸入。多份文件為同一個工作。</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>結束狀態：</translation>
    </message>
    <message>
        <source>128 and a signal&apos;s number: ended by that signal</source>
        <translation>128 加上訊號編號：因該訊號而結束</translation>
    </message>
    <message>
        <source>Print to the printer NAME: a queue, an instance NAME/INSTANCE, or an IPP printer ipp://HOST/PATH.</source>
        <translation>在印表機 NAME 上列印：佇列、實體 NAME/INSTANCE 或 IPP 印表機 ipp://HOST/PATH。</translation>
    </message>
    <message>
        <source>Use the queues of the print server HOST instead of the usual one.</source>
        <translation>使用列印伺服器 HOST 的佇列，而不是平常的伺服器。</translation>
    </message>
    <message>
        <source>Speak to the print server with encryption only.</source>
        <translation>只以加密連線與列印伺服器通訊。</translation>
    </message>
    <message>
        <source>Print as the user USER.</source>
        <translation>以使用者 USER 的身分列印。</translation>
    </message>
    <message>
        <source>Take the password from the first line of FILE, which nobody but its owner may read; nobody is asked.</source>
        <translation>從檔案 FILE 的第一行讀取密碼，該檔案只有擁有者可以讀取；不會再詢問。</translation>
    </message>
    <message>
        <source>The same from the open file descriptor N (0 is standard input).</source>
        <translation>同上，從已開啟的檔案描述元 N 讀取（0 為標準輸入）。</translation>
    </message>
    <message>
        <source>Open protected PDF documents with the password in the first line of FILE, which nobody but its owner may read.</source>
        <translation>使用檔案 FILE 第一行的密碼開啟受保護的 PDF 文件，該檔案只有擁有者可以讀取。</translation>
    </message>
    <message>
        <source>Print for the printer that the PPD FILE describes.</source>
        <translation>為 PPD 檔案 FILE 所描述的印表機列印。</translation>
    </message>
    <message>
        <source>Write the printer-ready data to FILE; - is standard output.</source>
        <translation>將可直接列印的資料寫入 FILE；- 表示標準輸出。</translation>
    </message>
    <message>
        <source>Offer the sample printers.</source>
        <translation>提供範例印表機。</translation>
    </message>
    <message>
        <source>List the printers and exit.</source>
        <translation>列出印表機後結束。</translation>
    </message>
    <message>
        <source>Start with the settings of the preset NAME; -o counts more.</source>
        <translation>以預設集 NAME 的設定開始；-o 優先。</translation>
    </message>
    <message>
        <source>List the presets and exit.</source>
        <translation>列出預設集後結束。</translation>
    </message>
    <message>
        <source>Keep the settings of the printer, those of -o among them, as the preset NAME, and exit. A preset of that name is replaced.</source>
        <translation>將印表機的設定（包括 -o 的設定）儲存為預設集 NAME 後結束。同名的預設集會被取代。</translation>
    </message>
    <message>
        <source>Say what the administrator&apos;s policy decides, and where, for the printer that is named behind it or by -d; as root with -U for another user. Exit with status 1 when something of it is not used.</source>
        <translation>顯示管理員的政策對其後或以 -d 指定的印表機做了哪些規定，以及在何處規定；root 可用 -U 查詢其他使用者。其中有未採用的內容時，結束狀態為 1。</translation>
    </message>
    <message>
        <source>Print a job of many sheets without being asked.</source>
        <translation>列印張數較多的工作時不再詢問。</translation>
    </message>
    <message>
        <source>Set an option of the printer or of the job; may be repeated.</source>
        <translation>設定印表機或工作的選項；可重複使用。</translation>
    </message>
    <message>
        <source>Print N copies (1 to %1).</source>
        <translation>列印 N 份（1 到 %1）。</translation>
    </message>
    <message>
        <source>Print these pages (1-4,7,9-), as -o page-ranges= does.</source>
        <translation>列印這些頁面 (1-4,7,9-)，與 -o page-ranges= 相同。</translation>
    </message>
    <message>
        <source>Give the job this priority (1 to 100), as -o job-priority= does.</source>
        <translation>為工作指定此優先順序（1 到 100），與 -o job-priority= 相同。</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, a time HH:MM (UTC), or what -o job-hold-until= takes.</source>
        <translation>何時列印：hold、immediate、時間 HH:MM (UTC)，或 -o job-hold-until= 接受的值。</translation>
    </message>
    <message>
        <source>Do not say which job was printed, only what went wrong.</source>
        <translation>不顯示列印了哪個工作，只顯示發生的問題。</translation>
    </message>
    <message>
        <source>Does nothing: the document is always copied to the queue.</source>
        <translation>不起作用：文件一律會複製到佇列。</translation>
    </message>
    <message>
        <source>Is refused: no mail is sent.</source>
        <translation>會被拒絕：不會寄送郵件。</translation>
    </message>
    <message>
        <source>Name the job TEXT.</source>
        <translation>將工作命名為 TEXT。</translation>
    </message>
    <message>
        <source>Print without a window.</source>
        <translation>不開啟視窗直接列印。</translation>
    </message>
    <message>
        <source>Write the settings of the job to standard output.</source>
        <translation>將工作的設定寫入標準輸出。</translation>
    </message>
    <message>
        <source>Without a window: keep the settings in lpoptions as an instance of the queue, so that lp -d QUEUE/NAME and other programs print with them.</source>
        <translation>不開啟視窗：將設定儲存到 lpoptions 作為佇列的實體，使 lp -d QUEUE/NAME 與其他程式以這些設定列印。</translation>
    </message>
    <message>
        <source>Without a window: what to do when the printer&apos;s settings show instructions: print, hold or refuse. Usually a queue holds the job, and a file is printed.</source>
        <translation>不開啟視窗：印表機的設定顯示操作說明時的處理方式：print、hold 或 refuse。通常佇列會保留工作，列印到檔案則直接進行。</translation>
    </message>
    <message>
        <source>Without a window: end when the queue has the job, not when it is printed.</source>
        <translation>不開啟視窗：佇列收到工作後即結束，不等待列印完成。</translation>
    </message>
    <message>
        <source>Without a window: follow the job for SECONDS at most once its queue has it, then leave it there.</source>
        <translation>不開啟視窗：佇列收到工作後最多追蹤 SECONDS 秒，然後將其留在佇列中。</translation>
    </message>
    <message>
        <source>Without a window: json writes what became of the job to standard output, as one line that a program can read; text is what people read.</source>
        <translation>不開啟視窗：json 將工作的結果以程式可讀取的一行寫入標準輸出；text 是供人閱讀的內容。</translation>
    </message>
    <message>
        <source>Also trust the plug-in bundles in the folder DIR.</source>
        <translation>同時信任資料夾 DIR 中的外掛套件。</translation>
    </message>
    <message>
        <source>Exit with status 0 when a window can be shown, with 1 when not.</source>
        <translation>可以顯示視窗時以狀態 0 結束，否則以 1 結束。</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>顯示此說明。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>顯示版本。</translation>
    </message>
    <message>
        <source>With --save-instance: make such an instance of these queues as well, with what each of them needs to print the same.</source>
        <translation>與 --save-instance 一起使用：也為這些佇列建立這樣的實體，並包含各佇列印出相同結果所需的內容。</translation>
    </message>
    <message>
        <source>--also-on: the name of the instance is missing, as in --save-instance reports.</source>
        <translation>--also-on：缺少實體的名稱，例如 --save-instance reports。</translation>
    </message>
</context>
<context>
    <name>CupsFilter</name>
    <message>
        <source>The program %1, named by CORVANA_PRINT_CUPSFILTER, cannot be run.</source>
        <translation>無法執行 CORVANA_PRINT_CUPSFILTER 指定的程式 %1。</translation>
    </message>
    <message>
        <source>The program cupsfilter was found neither on the path nor in /usr/sbin. It comes with CUPS (on Debian the package “cups”).</source>
        <translation>在路徑和 /usr/sbin 中都找不到程式 cupsfilter。它隨 CUPS 提供（Debian 的套件為「cups」）。</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>PDF document</source>
        <translation>PDF 文件</translation>
    </message>
    <message>
        <source>PostScript document</source>
        <translation>PostScript 文件</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>PNG 圖片</translation>
    </message>
    <message>
        <source>JPEG picture</source>
        <translation>JPEG 圖片</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>無法讀取 %1：%2</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 是空的檔案。</translation>
    </message>
    <message>
        <source>%1 cannot be printed: it holds data that are ready for a printer. A queue passes them on as they are with the option “raw”.</source>
        <translation>無法列印 %1：其內容是已為印表機準備好的資料。使用選項「raw」時，佇列會原封不動地轉送。</translation>
    </message>
    <message>
        <source>%1 cannot be printed; its contents: %2. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>無法列印 %1：其內容為 %2。可列印的文件為 PDF、PostScript、文字、PNG 和 JPEG。</translation>
    </message>
    <message>
        <source>%1 is named like a %2, but holds a %3. Rename it if that is right.</source>
        <translation>%1 的名稱表示它是 %2，但內容是 %3。如果內容正確，請重新命名檔案。</translation>
    </message>
    <message>
        <source>%1: there is no such file.</source>
        <translation>%1：沒有這個檔案。</translation>
    </message>
    <message>
        <source>%1 is a folder; a document was expected.</source>
        <translation>%1 是資料夾，請指定文件。</translation>
    </message>
    <message>
        <source>%1 is no ordinary file; a document was expected.</source>
        <translation>%1 不是一般檔案，請指定文件。</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準輸入</translation>
    </message>
    <message>
        <source>%1 cannot be kept: %2</source>
        <translation>無法保存 %1：%2</translation>
    </message>
    <message>
        <source>%1 cannot be read: nobody writes into it.</source>
        <translation>無法讀取 %1：沒有程式寫入資料。</translation>
    </message>
    <message>
        <source>%1 cannot be kept: it has more than %2 bytes.</source>
        <translation>無法保存 %1：超過 %2 位元組。</translation>
    </message>
    <message>
        <source>%1 cannot be printed: nobody can tell what is in it. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>無法列印 %1：無法辨識其內容。可列印的文件為 PDF、PostScript、文字、PNG 和 JPEG。</translation>
    </message>
</context>
<context>
    <name>DocumentCopies</name>
    <message>
        <source>all documents, then all of them again (A B A B)</source>
        <translation>所有文件各一份，再依序重複 (A B A B)</translation>
    </message>
    <message>
        <source>each document with all its copies (A A B B)</source>
        <translation>每份文件連續列印所有份數 (A A B B)</translation>
    </message>
    <message>
        <source>each page with all its copies (1 1 2 2)</source>
        <translation>每一頁連續列印所有份數 (1 1 2 2)</translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>“%1” is damaged at byte %2.</source>
        <translation>「%1」在第 %2 個位元組處損壞。</translation>
    </message>
    <message>
        <source>“%1” is damaged.</source>
        <translation>「%1」已損壞。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>“%1” is protected, and the password that was given does not open it.</source>
        <translation>「%1」受密碼保護，所提供的密碼無法開啟它。</translation>
    </message>
    <message>
        <source>“%1” is protected: it is printed only with its password.</source>
        <translation>「%1」受密碼保護：必須提供密碼才能列印。</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. Only its owner&apos;s password does.</source>
        <translation>「%1」不允許列印，必須使用擁有者密碼才能列印。</translation>
    </message>
    <message>
        <source>None of its pages can be printed.</source>
        <translation>其中沒有任何頁面可以列印。</translation>
    </message>
    <message>
        <source>“%1” is protected, and a copy without protection could not be made: it is too large, or there is no room for it.</source>
        <translation>「%1」受密碼保護，但無法建立未受保護的副本：檔案太大，或儲存空間不足。</translation>
    </message>
    <message>
        <source>1 of its %1 pages can be printed.</source>
        <translation>共 %1 頁，其中 1 頁可以列印。</translation>
    </message>
    <message>
        <source>%1 of its %2 pages can be printed.</source>
        <translation>共 %2 頁，其中 %1 頁可以列印。</translation>
    </message>
    <message>
        <source>“%1” is protected. The file that is printed to is not.</source>
        <translation>「%1」受密碼保護，但列印產生的檔案不受保護。</translation>
    </message>
    <message>
        <source>“%1” is protected. The print server gets a copy without protection.</source>
        <translation>「%1」受密碼保護，但列印伺服器會收到未受保護的副本。</translation>
    </message>
    <message>
        <source>All pages that were found in it are printed.</source>
        <translation>其中找到的所有頁面都會列印。</translation>
    </message>
    <message>
        <source>“%1” brings settings for a printer along, which are not followed: %2. Choose them here, or pass the document on with the option “raw”.</source>
        <translation>「%1」帶有給印表機的設定，這些設定不會套用：%2。請在此處選擇，或使用選項「raw」原封不動地轉送文件。</translation>
    </message>
</context>
<context>
    <name>ExitStatus</name>
    <message>
        <source>printed, sent, or in the queue with the reason why it waits there</source>
        <translation>已列印、已傳送，或在佇列中並說明等待的原因</translation>
    </message>
    <message>
        <source>refused, failed or canceled</source>
        <translation>遭拒絕、失敗或已取消</translation>
    </message>
    <message>
        <source>a command line that cannot be understood</source>
        <translation>無法理解的命令列</translation>
    </message>
    <message>
        <source>sent, and what became of it is not known</source>
        <translation>已傳送，但結果不明</translation>
    </message>
    <message>
        <source>the time of --wait is over; the job is still in the queue</source>
        <translation>--wait 的時間已到；工作仍在佇列中</translation>
    </message>
</context>
<context>
    <name>HttpLine</name>
    <message>
        <source>The password is sent to “%1” without encryption: others in the network can read it. “-E” encrypts.</source>
        <translation>密碼會以未加密的方式傳送到「%1」，網路上的其他人可能會讀取。使用「-E」即可加密。</translation>
    </message>
</context>
<context>
    <name>InstanceDraft</name>
    <message>
        <source>Some programs add “%1=%2” to it, which you have set for “%3”.</source>
        <translation>有些程式會加上您為「%3」設定的「%1=%2」。</translation>
    </message>
    <message>
        <source>“%1” is left out: it is a secret.</source>
        <translation>未包含「%1」：它是機密內容。</translation>
    </message>
    <message>
        <source>“%1” is left out: other programs cannot print it.</source>
        <translation>未包含「%1」：其他程式無法這樣列印。</translation>
    </message>
    <message>
        <source>Other programs know settings of queues only, and “%1” is none.</source>
        <translation>其他程式只能使用佇列的設定，而「%1」不是佇列。</translation>
    </message>
    <message>
        <source>“%1” gets files as they are, so that no setting has an effect.</source>
        <translation>「%1」會原封不動地接收檔案，因此任何設定都沒有作用。</translation>
    </message>
    <message>
        <source>“%1” has no letters that other programs can print to. Give it a name of letters from a to z, such as “%2”.</source>
        <translation>「%1」中沒有其他程式可用來列印的字元。請使用由字母 a 到 z 組成的名稱，例如「%2」。</translation>
    </message>
    <message>
        <source>“%1” is there already, with settings of its own. Choose another name, or remove it with “lpoptions -x %1”.</source>
        <translation>「%1」已經存在，並有自己的設定。請選擇其他名稱，或用「lpoptions -x %1」將它移除。</translation>
    </message>
</context>
<context>
    <name>JobAttributes</name>
    <message>
        <source>On</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Bound at the Left</source>
        <translation>左側裝訂</translation>
    </message>
    <message>
        <source>Bound at the Right</source>
        <translation>右側裝訂</translation>
    </message>
    <message>
        <source>One-Sided</source>
        <translation>單面</translation>
    </message>
    <message>
        <source>Long Edge (by Hand)</source>
        <translation>長邊（手動）</translation>
    </message>
    <message>
        <source>Short Edge (by Hand)</source>
        <translation>短邊（手動）</translation>
    </message>
    <message>
        <source>Printed Side Down</source>
        <translation>列印面朝下</translation>
    </message>
    <message>
        <source>Printed Side Up</source>
        <translation>列印面朝上</translation>
    </message>
    <message>
        <source>Up, Then to the Right</source>
        <translation>先向上，再向右</translation>
    </message>
    <message>
        <source>Up, Then to the Left</source>
        <translation>先向上，再向左</translation>
    </message>
    <message>
        <source>To the Right, Then Up</source>
        <translation>先向右，再向上</translation>
    </message>
    <message>
        <source>To the Right, Then Down</source>
        <translation>先向右，再向下</translation>
    </message>
    <message>
        <source>To the Left, Then Up</source>
        <translation>先向左，再向上</translation>
    </message>
    <message>
        <source>To the Left, Then Down</source>
        <translation>先向左，再向下</translation>
    </message>
    <message>
        <source>Down, Then to the Right</source>
        <translation>先向下，再向右</translation>
    </message>
    <message>
        <source>Down, Then to the Left</source>
        <translation>先向下，再向左</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Thin Line</source>
        <translation>細線</translation>
    </message>
    <message>
        <source>Thick Line</source>
        <translation>粗線</translation>
    </message>
    <message>
        <source>Two Thin Lines</source>
        <translation>雙細線</translation>
    </message>
    <message>
        <source>Two Thick Lines</source>
        <translation>雙粗線</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Even Pages Only</source>
        <translation>僅偶數頁</translation>
    </message>
    <message>
        <source>Odd Pages Only</source>
        <translation>僅奇數頁</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>直向</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>橫向</translation>
    </message>
    <message>
        <source>Reverse Landscape</source>
        <translation>反轉橫向</translation>
    </message>
    <message>
        <source>Reverse Portrait</source>
        <translation>反轉直向</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Fit All Pages If One Is Too Large</source>
        <translation>有頁面過大時將所有頁面縮小以符合紙張</translation>
    </message>
    <message>
        <source>Fill Paper</source>
        <translation>填滿紙張</translation>
    </message>
    <message>
        <source>Fit to Paper</source>
        <translation>符合紙張</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>實際大小</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>置中</translation>
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
        <source>First Page First</source>
        <translation>從第一頁開始</translation>
    </message>
    <message>
        <source>Last Page First</source>
        <translation>從最後一頁開始</translation>
    </message>
    <message>
        <source>Print at Once</source>
        <translation>立即列印</translation>
    </message>
    <message>
        <source>Until It Is Released</source>
        <translation>直到釋放為止</translation>
    </message>
    <message>
        <source>Daytime</source>
        <translation>白天</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>傍晚</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>夜間</translation>
    </message>
    <message>
        <source>Second Shift</source>
        <translation>第二班</translation>
    </message>
    <message>
        <source>Third Shift</source>
        <translation>第三班</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>週末</translation>
    </message>
    <message>
        <source>points of 1/72 inch</source>
        <translation>點（1/72 英吋）</translation>
    </message>
    <message>
        <source>Two-Sided</source>
        <translation>雙面</translation>
    </message>
    <message>
        <source>Sheets Are Put Back</source>
        <translation>紙張放回的方式</translation>
    </message>
    <message>
        <source>Pages per Sheet</source>
        <translation>每張頁數</translation>
    </message>
    <message>
        <source>Order on the Sheet</source>
        <translation>紙張上的排列順序</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>Each Page, Times on a Side</source>
        <translation>每面重複同一頁的次數</translation>
    </message>
    <message>
        <source>Border Around Pages</source>
        <translation>頁面框線</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>頁面</translation>
    </message>
    <message>
        <source>pages and ranges in ascending order, such as 1-4,7,9-</source>
        <translation>依遞增順序排列的頁碼和範圍，例如 1-4,7,9-</translation>
    </message>
    <message>
        <source>Odd and Even Pages</source>
        <translation>奇數頁和偶數頁</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>列印方向</translation>
    </message>
    <message>
        <source>Fit to Page</source>
        <translation>配合頁面大小</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>縮放</translation>
    </message>
    <message>
        <source>Size on the Page, in %</source>
        <translation>相對於頁面的大小 (%)</translation>
    </message>
    <message>
        <source>Size of the Picture, in %</source>
        <translation>圖片大小 (%)</translation>
    </message>
    <message>
        <source>Pixels per Inch</source>
        <translation>每英吋像素數</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>鏡像</translation>
    </message>
    <message>
        <source>Left Margin</source>
        <translation>左邊界</translation>
    </message>
    <message>
        <source>Right Margin</source>
        <translation>右邊界</translation>
    </message>
    <message>
        <source>Top Margin</source>
        <translation>上邊界</translation>
    </message>
    <message>
        <source>Bottom Margin</source>
        <translation>下邊界</translation>
    </message>
    <message>
        <source>Characters per Inch</source>
        <translation>每英吋字元數</translation>
    </message>
    <message>
        <source>Lines per Inch</source>
        <translation>每英吋行數</translation>
    </message>
    <message>
        <source>Columns of Text</source>
        <translation>文字欄數</translation>
    </message>
    <message>
        <source>Long Lines Continue</source>
        <translation>長行自動換行</translation>
    </message>
    <message>
        <source>Headers on Text Pages</source>
        <translation>文字頁面的頁首</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>自動分頁</translation>
    </message>
    <message>
        <source>Output Order</source>
        <translation>輸出順序</translation>
    </message>
    <message>
        <source>Hold Until</source>
        <translation>保留至</translation>
    </message>
    <message>
        <source>a time HH:MM in UTC</source>
        <translation>時間 HH:MM (UTC)</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>優先順序</translation>
    </message>
    <message>
        <source>Banner Pages</source>
        <translation>封面頁</translation>
    </message>
    <message>
        <source>one or two names of banner pages</source>
        <translation>一個或兩個封面頁的名稱</translation>
    </message>
    <message>
        <source>Billed To</source>
        <translation>計費對象</translation>
    </message>
    <message>
        <source>a text of up to 255 bytes</source>
        <translation>最多 255 位元組的文字</translation>
    </message>
    <message>
        <source>%1 UTC</source>
        <translation>%1 UTC</translation>
    </message>
    <message>
        <source>%1 UTC (%2 here)</source>
        <translation>%1 UTC（本地時間 %2）</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 到 %2</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>彩色</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>黑白</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>草稿</translation>
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
        <translation>逾時後取消（秒）</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>色彩模式</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解析度</translation>
    </message>
    <message>
        <source>a resolution such as 600dpi or 1200x600dpi</source>
        <translation>解析度，例如 600dpi 或 1200x600dpi</translation>
    </message>
    <message>
        <source>Output Bin</source>
        <translation>出紙匣</translation>
    </message>
    <message>
        <source>the name of an output bin</source>
        <translation>出紙匣的名稱</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>後處理</translation>
    </message>
    <message>
        <source>numbers or names of finishings</source>
        <translation>後處理的編號或名稱</translation>
    </message>
    <message>
        <source>Paper Source</source>
        <translation>紙張來源</translation>
    </message>
    <message>
        <source>the name of a paper source</source>
        <translation>紙張來源的名稱</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>紙張類型</translation>
    </message>
    <message>
        <source>the name of a media type</source>
        <translation>紙張類型的名稱</translation>
    </message>
    <message>
        <source>or %1</source>
        <translation>或%1</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>秒</translation>
    </message>
</context>
<context>
    <name>JobColors</name>
    <message>
        <source>Shown in black and white, with your adjustments.</source>
        <translation>以黑白顯示，並已套用您的調整。</translation>
    </message>
    <message>
        <source>Shown in black and white.</source>
        <translation>以黑白顯示。</translation>
    </message>
    <message>
        <source>Shows your adjustments; colors on paper differ.</source>
        <translation>已套用您的調整；紙張上的色彩會有所不同。</translation>
    </message>
    <message>
        <source>Colors on paper differ from those on the screen.</source>
        <translation>紙張上的色彩與螢幕上的色彩不同。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>“%1: %2” is not shown.</source>
        <translation>預覽未反映「%1：%2」。</translation>
    </message>
</context>
<context>
    <name>JobNames</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 和另外 %n 份文件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>JobRequests</name>
    <message>
        <source>The value of “%1” is too long for a print server; at most %2 bytes can be sent.</source>
        <translation>「%1」的值太長，無法傳送到列印伺服器；最多可傳送 %2 位元組。</translation>
    </message>
    <message>
        <source>The value of “%1” has characters that a print server would drop: no line breaks, no “{” in front.</source>
        <translation>「%1」的值含有列印伺服器會捨棄的字元：不可換行，也不可以「{」開頭。</translation>
    </message>
</context>
<context>
    <name>LastUsed</name>
    <message>
        <source>The settings of the last job cannot be read, and stay as they are in “%1”: %2.</source>
        <translation>無法讀取上次列印的設定，「%1」中的內容維持原狀：%2。</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>無法移除「%1」：%2。</translation>
    </message>
    <message>
        <source>“%1” cannot be written.</source>
        <translation>無法寫入「%1」。</translation>
    </message>
</context>
<context>
    <name>LeftSession</name>
    <message>
        <source>This printer has no option of the name %1 any more.</source>
        <translation>此印表機已沒有名為 %1 的選項。</translation>
    </message>
    <message>
        <source>The option %1 has no choice %2 any more.</source>
        <translation>選項 %1 已沒有 %2 這個選擇。</translation>
    </message>
</context>
<context>
    <name>ListPresets</name>
    <message>
        <source>all printers</source>
        <translation>所有印表機</translation>
    </message>
</context>
<context>
    <name>OptionLocks</name>
    <message>
        <source>“%1” is set by your administrator (%2).</source>
        <translation>「%1」由管理員設定（%2）。</translation>
    </message>
    <message>
        <source>Set by your administrator (%1).</source>
        <translation>由管理員設定（%1）。</translation>
    </message>
</context>
<context>
    <name>OptionRequest</name>
    <message>
        <source>%1: the printer&apos;s settings do not allow this here; it became %2.</source>
        <translation>%1：印表機的設定不允許在此使用，已改為 %2。</translation>
    </message>
    <message>
        <source>%1: the printer&apos;s options cannot be set to this value.</source>
        <translation>%1：無法將印表機的選項設為此值。</translation>
    </message>
    <message>
        <source>%1: this cannot be combined with %2.</source>
        <translation>%1：不能與 %2 同時使用。</translation>
    </message>
    <message>
        <source>%1: this value is not allowed. Allowed: %2.</source>
        <translation>%1：不允許使用此值。允許的值：%2。</translation>
    </message>
    <message>
        <source>%1=Custom: a value is missing. Allowed: %2.</source>
        <translation>%1=Custom：缺少值。允許的值：%2。</translation>
    </message>
    <message>
        <source>this printer has no such option. Options: %1. Job attributes: %2.</source>
        <translation>此印表機沒有這個選項。選項：%1。工作屬性：%2。</translation>
    </message>
    <message>
        <source>this printer has nothing to choose from for this.</source>
        <translation>此印表機對此沒有可選擇的項目。</translation>
    </message>
    <message>
        <source>this value is not allowed. Allowed: %1.</source>
        <translation>不允許使用此值。允許的值：%1。</translation>
    </message>
    <message>
        <source>this printer has no paper sizes to choose from.</source>
        <translation>此印表機沒有可選擇的紙張大小。</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>不允許使用「%1」。允許的值：%2。</translation>
    </message>
    <message>
        <source>this printer prints on one side only. Allowed: %1. Two sides by hand: %2=%3, %2=%4.</source>
        <translation>此印表機只能單面列印。允許的值：%1。手動雙面列印：%2=%3、%2=%4。</translation>
    </message>
    <message>
        <source>1 to %1</source>
        <translation>1 到 %1</translation>
    </message>
    <message>
        <source>this printer turns sheets over itself. Allowed: %1=no; for two sides use %2.</source>
        <translation>此印表機會自動翻轉紙張。允許的值：%1=no；雙面列印請使用 %2。</translation>
    </message>
</context>
<context>
    <name>PageChoice</name>
    <message>
        <source>The pages that were asked for are in none of the documents. Nothing was printed.</source>
        <translation>所有文件中都沒有指定的頁面。沒有列印任何內容。</translation>
    </message>
    <message>
        <source>“%1: %2”</source>
        <translation>「%1：%2」</translation>
    </message>
    <message>
        <source>A booklet has two pages on each side, in an order of its own: %1 cannot be done with it.</source>
        <translation>小冊子的每一面有兩頁，並有自己的順序：無法同時使用 %1。</translation>
    </message>
    <message>
        <source>Each page is repeated %1 times on a side: %2 cannot be done with it.</source>
        <translation>每頁在一面上重複 %1 次：無法同時使用 %2。</translation>
    </message>
</context>
<context>
    <name>PageTrouble</name>
    <message>
        <source>This page cannot be shown: it is damaged.</source>
        <translation>此頁已損壞，無法顯示。</translation>
    </message>
    <message>
        <source>This page cannot be shown: it is too large.</source>
        <translation>此頁過大，無法顯示。</translation>
    </message>
    <message>
        <source>This page cannot be shown: drawing it takes too long.</source>
        <translation>繪製此頁所需的時間過長，無法顯示。</translation>
    </message>
    <message>
        <source>This page cannot be shown: the document is protected by a password.</source>
        <translation>文件受密碼保護，無法顯示此頁。</translation>
    </message>
    <message>
        <source>This page cannot be shown: the file cannot be read.</source>
        <translation>無法讀取檔案，因此無法顯示此頁。</translation>
    </message>
    <message>
        <source>Pages cannot be shown: the program that draws them does not run.</source>
        <translation>繪製頁面的程式無法執行，因此無法顯示頁面。</translation>
    </message>
</context>
<context>
    <name>PassedOn</name>
    <message>
        <source>The queue “%1” passes files on as they are: %2 cannot be done.</source>
        <translation>佇列「%1」會原封不動地轉送檔案：無法使用 %2。</translation>
    </message>
    <message>
        <source>With “raw” files are passed on as they are: %1 cannot be done.</source>
        <translation>使用「raw」時檔案會原封不動地轉送：無法使用 %1。</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Passed on as it is</source>
        <translation>原封不動轉送</translation>
    </message>
</context>
<context>
    <name>PasswordFile</name>
    <message>
        <source>The password cannot be read from %1: %2.</source>
        <translation>無法從 %1 讀取密碼：%2。</translation>
    </message>
    <message>
        <source>The first line of %1 is empty; a password was expected.</source>
        <translation>%1 的第一行是空的，該處應為密碼。</translation>
    </message>
    <message>
        <source>The first line of %1 is no password: at most %2 bytes of UTF-8 were expected.</source>
        <translation>%1 的第一行不是密碼：應為最多 %2 位元組的 UTF-8 文字。</translation>
    </message>
    <message>
        <source>The password cannot be read from %1: it is no file.</source>
        <translation>無法從 %1 讀取密碼：它不是檔案。</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: the file belongs to somebody else.</source>
        <translation>不使用 %1 中的密碼：該檔案屬於其他使用者。</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: others than its owner may use the file (its mode is %2; chmod 600 takes that away).</source>
        <translation>不使用 %1 中的密碼：擁有者以外的使用者也能存取該檔案（權限為 %2；chmod 600 可取消）。</translation>
    </message>
    <message>
        <source>descriptor %1</source>
        <translation>描述元 %1</translation>
    </message>
</context>
<context>
    <name>Policy</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>不允許使用「%1」。允許的值：%2。</translation>
    </message>
    <message>
        <source>the path of a folder that begins with /</source>
        <translation>以 / 開頭的資料夾路徑</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>%1 到 %2 之間的數字</translation>
    </message>
    <message>
        <source>the line is longer than %1 bytes</source>
        <translation>該行超過 %1 位元組</translation>
    </message>
    <message>
        <source>the line is not written in UTF-8</source>
        <translation>該行不是以 UTF-8 編碼</translation>
    </message>
    <message>
        <source>the line has a character that cannot be seen</source>
        <translation>該行含有不可見的字元</translation>
    </message>
    <message>
        <source>there are more problems</source>
        <translation>還有更多問題</translation>
    </message>
    <message>
        <source>there are more than %1 sections</source>
        <translation>區段超過 %1 個</translation>
    </message>
    <message>
        <source>“%1” is no section, and what follows in it is left out. Allowed: %2.</source>
        <translation>「%1」不是區段，其中的內容會被忽略。允許：%2。</translation>
    </message>
    <message>
        <source>“%1” is no line of a policy. Expected: %2.</source>
        <translation>「%1」不是有效的政策行。應為：%2。</translation>
    </message>
    <message>
        <source>“%1” stands before the first section. Begin with [all].</source>
        <translation>「%1」位於第一個區段之前。請以 [all] 開頭。</translation>
    </message>
    <message>
        <source>there is no key “%1”. Keys: %2.</source>
        <translation>沒有鍵「%1」。可用的鍵：%2。</translation>
    </message>
    <message>
        <source>%1 needs the keyword of an option or of a job attribute.</source>
        <translation>%1 需要選項或工作屬性的關鍵字。</translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation>值太長</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 bytes</source>
        <translation>未使用該檔案：超過 %1 位元組</translation>
    </message>
    <message>
        <source>the file is not used: it is no text</source>
        <translation>未使用該檔案：不是文字</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 lines</source>
        <translation>未使用該檔案：超過 %1 行</translation>
    </message>
    <message>
        <source>it belongs to the user with the ID %1</source>
        <translation>它屬於編號為 %1 的使用者</translation>
    </message>
    <message>
        <source>others than its owner may write to it</source>
        <translation>擁有者以外的使用者可以寫入</translation>
    </message>
    <message>
        <source>nothing below this folder is used: %1</source>
        <translation>此資料夾之下的內容都不使用：%1</translation>
    </message>
    <message>
        <source>nothing in this folder is used: %1</source>
        <translation>此資料夾中的檔案都不使用：%1</translation>
    </message>
    <message>
        <source>only the first %1 files are used</source>
        <translation>只使用前 %1 個檔案</translation>
    </message>
    <message>
        <source>the file is not used: it is a link that leads out of its folder</source>
        <translation>未使用該檔案：它是指向資料夾之外的連結</translation>
    </message>
    <message>
        <source>the file is not used: %1</source>
        <translation>未使用該檔案：%1</translation>
    </message>
    <message>
        <source>the file is not used: it is no ordinary file</source>
        <translation>未使用該檔案：不是一般檔案</translation>
    </message>
</context>
<context>
    <name>PpdCopy</name>
    <message>
        <source>The printer&apos;s options cannot be written to %1: %2</source>
        <translation>無法將印表機的選項寫入 %1：%2</translation>
    </message>
</context>
<context>
    <name>PpdFilters</name>
    <message>
        <source>The driver of this printer names the file “%1”, which only a print server may open. Print on the printer itself instead of into a file.</source>
        <translation>此印表機的驅動程式指定了檔案「%1」，而該檔案只能由列印伺服器開啟。請直接在印表機上列印，不要列印到檔案。</translation>
    </message>
    <message>
        <source>The driver of this printer needs the program “%1”, which only a print server may run. Print on the printer itself instead of into a file.</source>
        <translation>此印表機的驅動程式需要程式「%1」，而該程式只能由列印伺服器執行。請直接在印表機上列印，不要列印到檔案。</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>A preset needs a name.</source>
        <translation>預設集需要名稱。</translation>
    </message>
    <message>
        <source>The name of a preset has at most %1 characters.</source>
        <translation>預設集的名稱最多 %1 個字元。</translation>
    </message>
    <message>
        <source>The name of a preset holds only characters that can be seen.</source>
        <translation>預設集的名稱只能包含可見的字元。</translation>
    </message>
    <message>
        <source>“%1” is always there, and is no name of a preset.</source>
        <translation>「%1」一直都在，不能作為預設集的名稱。</translation>
    </message>
</context>
<context>
    <name>PresetApplication</name>
    <message>
        <source>%1 is not possible on this printer. Allowed: %2.</source>
        <translation>此印表機不支援%1。允許的值：%2。</translation>
    </message>
    <message>
        <source>%1 is not possible together with the other settings.</source>
        <translation>%1無法與其他設定同時使用。</translation>
    </message>
    <message>
        <source>The printer&apos;s settings do not allow %1 here; it became %2.</source>
        <translation>印表機的設定不允許在此使用%1，已改為%2。</translation>
    </message>
    <message>
        <source>%1 is not on this printer.</source>
        <translation>此印表機沒有%1。</translation>
    </message>
    <message>
        <source>A value of the printer&apos;s own settings (%1) is not possible here.</source>
        <translation>印表機本身設定的值（%1）無法在此使用。</translation>
    </message>
</context>
<context>
    <name>PresetFile</name>
    <message>
        <source>“%1”: expected was %2</source>
        <translation>「%1」：應為 %2</translation>
    </message>
    <message>
        <source>it was written by a later version of this program</source>
        <translation>它是由此程式的較新版本寫入的</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>at most %1 values</source>
        <translation>最多 %1 個值</translation>
    </message>
    <message>
        <source>the name of an option</source>
        <translation>選項的名稱</translation>
    </message>
    <message>
        <source>a value or a list of values</source>
        <translation>值或值的清單</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>無法寫入「%1」：%2。</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>expected was { … }</source>
        <translation>應為 { … }</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>它不是檔案</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>它超過 %1 位元組</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>“%1” is damaged and is left as it is: %2.</source>
        <translation>「%1」已損壞，維持原狀：%2。</translation>
    </message>
    <message>
        <source>There is no place to keep presets.</source>
        <translation>沒有可儲存預設集的位置。</translation>
    </message>
    <message>
        <source>Another program is writing presets. Try again.</source>
        <translation>其他程式正在寫入預設集。請再試一次。</translation>
    </message>
    <message>
        <source>no space left, or no permission</source>
        <translation>空間不足，或沒有權限</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>無法寫入「%1」：%2。</translation>
    </message>
    <message>
        <source>There is a preset of the name “%1” already.</source>
        <translation>已有名為「%1」的預設集。</translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>名為「%1」的預設集已不存在。</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>無法移除「%1」：%2。</translation>
    </message>
    <message>
        <source>%1 (for everybody)</source>
        <translation>%1（供所有人使用）</translation>
    </message>
</context>
<context>
    <name>PrintRequest</name>
    <message>
        <source>The printer “%1” is not offered by your administrator (%2).</source>
        <translation>管理員未提供印表機「%1」（%2）。</translation>
    </message>
    <message>
        <source>Printing to a file is not offered by your administrator (%1).</source>
        <translation>管理員未提供列印到檔案的功能（%1）。</translation>
    </message>
</context>
<context>
    <name>PrinterFetching</name>
    <message>
        <source>Save as PDF</source>
        <translation>另存為 PDF</translation>
    </message>
</context>
<context>
    <name>PrinterTexts</name>
    <message>
        <source>connecting</source>
        <translation>正在連線</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>機蓋開啟</translation>
    </message>
    <message>
        <source>driver not trusted by the server</source>
        <translation>伺服器不信任驅動程式</translation>
    </message>
    <message>
        <source>driver missing on the server</source>
        <translation>伺服器上缺少驅動程式</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>電源已關閉</translation>
    </message>
    <message>
        <source>developer used up</source>
        <translation>顯影劑用盡</translation>
    </message>
    <message>
        <source>developer low</source>
        <translation>顯影劑不足</translation>
    </message>
    <message>
        <source>door open</source>
        <translation>機門開啟</translation>
    </message>
    <message>
        <source>fuser too hot</source>
        <translation>定影器溫度過高</translation>
    </message>
    <message>
        <source>fuser too cold</source>
        <translation>定影器溫度過低</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>新工作會被保留</translation>
    </message>
    <message>
        <source>tray missing</source>
        <translation>缺少紙匣</translation>
    </message>
    <message>
        <source>ink or toner used up</source>
        <translation>墨水或碳粉用盡</translation>
    </message>
    <message>
        <source>ink or toner low</source>
        <translation>墨水或碳粉不足</translation>
    </message>
    <message>
        <source>waste container almost full</source>
        <translation>廢碳粉盒即將裝滿</translation>
    </message>
    <message>
        <source>waste container full</source>
        <translation>廢碳粉盒已滿</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>缺紙</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>卡紙</translation>
    </message>
    <message>
        <source>paper low</source>
        <translation>紙張不足</translation>
    </message>
    <message>
        <source>paper needed</source>
        <translation>需要裝入紙張</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>正在暫停</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未連線</translation>
    </message>
    <message>
        <source>drum used up</source>
        <translation>感光鼓壽命已盡</translation>
    </message>
    <message>
        <source>drum nearly used up</source>
        <translation>感光鼓壽命將盡</translation>
    </message>
    <message>
        <source>output tray almost full</source>
        <translation>出紙匣即將裝滿</translation>
    </message>
    <message>
        <source>output tray full</source>
        <translation>出紙匣已滿</translation>
    </message>
    <message>
        <source>output tray missing</source>
        <translation>缺少出紙匣</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>print queue full</source>
        <translation>列印佇列已滿</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>部分停止</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>正在停止</translation>
    </message>
    <message>
        <source>not answering</source>
        <translation>沒有回應</translation>
    </message>
    <message>
        <source>toner used up</source>
        <translation>碳粉用盡</translation>
    </message>
    <message>
        <source>toner low</source>
        <translation>碳粉不足</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>閒置</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>正在列印</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Prints to a file</source>
        <translation>列印到檔案</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the words of a printer&apos;s state</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>No longer available</source>
        <translation>已無法使用</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>已停止：%1</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>不接受工作</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>不接受工作</translation>
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
        <translation>名稱：%1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>位置：%1</translation>
    </message>
    <message>
        <source>Model: %1</source>
        <translation>型號：%1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <translation>狀態：%1</translation>
    </message>
    <message>
        <source>Message: %1</source>
        <translation>訊息：%1</translation>
    </message>
    <message>
        <source>Address: %1</source>
        <translation>位址：%1</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>未知的選項 &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>未知的選項：%1。</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>&quot;%1&quot; 之後缺少值。</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>&quot;%1&quot; 不接受值。</translation>
    </message>
</context>
<context>
    <name>RefusalText</name>
    <message>
        <source>“%1: %2”</source>
        <translation>「%1：%2」</translation>
    </message>
    <message>
        <source> and </source>
        <translation>、</translation>
    </message>
    <message>
        <source>The printer&apos;s options cannot be set to %1.</source>
        <translation>無法將印表機的選項設為%1。</translation>
    </message>
    <message>
        <source>%1 cannot be combined with %2.</source>
        <translation>%1不能與%2同時使用。</translation>
    </message>
    <message>
        <source>Change to %1</source>
        <translation>改為%1</translation>
    </message>
</context>
<context>
    <name>RequestFromCommandLine</name>
    <message>
        <source>%1: the name is not written in UTF-8.</source>
        <translation>%1：名稱不是以 UTF-8 編碼。</translation>
    </message>
</context>
<context>
    <name>ResultFile</name>
    <message>
        <source>%1 is a folder; the name of a file was expected.</source>
        <translation>%1 是資料夾，請指定檔案名稱。</translation>
    </message>
    <message>
        <source>%1 is a device or a pipe; the name of a file was expected.</source>
        <translation>%1 是裝置或管線，請指定檔案名稱。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>無法寫入 %1：%2</translation>
    </message>
    <message>
        <source>%1 was written by another program meanwhile, and is left as it is. Print again to replace it, or name another file.</source>
        <translation>%1 在此期間已由其他程式寫入，因此維持原狀。若要取代，請再列印一次，或指定其他檔案。</translation>
    </message>
</context>
<context>
    <name>ResultPages</name>
    <message>
        <source>Nothing would be printed: what came out has no page.</source>
        <translation>不會列印任何內容：產生的結果中沒有頁面。</translation>
    </message>
</context>
<context>
    <name>SavedAsPdf</name>
    <message>
        <source>A PDF file is neither held nor printed: %1 cannot be done.</source>
        <translation>PDF 檔案既不會保留也不會列印：無法使用 %1。</translation>
    </message>
</context>
<context>
    <name>ServerAddress</name>
    <message>
        <source>this computer</source>
        <translation>這台電腦</translation>
    </message>
</context>
<context>
    <name>ServerJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>已取消列印。</translation>
    </message>
    <message>
        <source>The print server did not say which job it has made.</source>
        <translation>列印伺服器沒有告知它建立的工作。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>無法讀取 %1：%2。</translation>
    </message>
    <message>
        <source>%1 The printer says: %2</source>
        <translation>%1印表機的訊息：%2</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has been printed.</source>
        <translation>先前的工作 %1 已列印。</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is held in the queue.</source>
        <translation>先前的工作 %1 保留在佇列中。</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is stopped in the queue.</source>
        <translation>先前的工作 %1 在佇列中，已停止。</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is in the queue and will be printed.</source>
        <translation>先前的工作 %1 在佇列中，將會列印。</translation>
    </message>
    <message>
        <source>%1 The job had been moved from the queue “%2” to “%3”.</source>
        <translation>%1該工作已從佇列「%2」移到「%3」。</translation>
    </message>
    <message>
        <source>%1 Nothing was printed.</source>
        <translation>%1沒有列印任何內容。</translation>
    </message>
    <message>
        <source>The printer “%1” wants a user and a password; none was given. Nothing was printed.</source>
        <translation>印表機「%1」需要使用者名稱和密碼，但未提供。沒有列印任何內容。</translation>
    </message>
    <message>
        <source>The queue “%1” is not there any more. Nothing was printed.</source>
        <translation>佇列「%1」已不存在。沒有列印任何內容。</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment. Nothing was printed.</source>
        <translation>佇列「%1」目前不接受工作。沒有列印任何內容。</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment: %2. Nothing was printed.</source>
        <translation>佇列「%1」目前不接受工作：%2。沒有列印任何內容。</translation>
    </message>
    <message>
        <source>The options of the printer “%1” have changed at its server. Nothing was printed.</source>
        <translation>印表機「%1」的選項已在伺服器上變更。沒有列印任何內容。</translation>
    </message>
    <message>
        <source>%1 Whether job %2 of the earlier try was printed is not known yet, so nothing was sent again.</source>
        <translation>%1目前還不知道先前的工作 %2 是否已列印，因此沒有再次送出。</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has got %2 of its %3 documents to the printer. Print the others by themselves, or everything once more.</source>
        <translation>先前的工作 %1 已將 %3 份文件中的 %2 份送到印表機。請單獨列印其餘文件，或全部重新列印。</translation>
    </message>
    <message>
        <source>%1 Nothing was printed, but a job without a document may be at the print server. It could not be looked for: %2</source>
        <translation>%1沒有列印任何內容，但列印伺服器上可能留有一個沒有文件的工作。無法尋找該工作：%2</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; pages that the printer has already may still come out.</source>
        <translation>%1工作 %2 已取消；印表機已收到的頁面仍可能會印出。</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; nothing was printed.</source>
        <translation>%1工作 %2 已取消；沒有列印任何內容。</translation>
    </message>
    <message>
        <source>Job %1 could not be canceled and may still be printed. %2</source>
        <translation>無法取消工作 %1，它仍可能會列印。%2</translation>
    </message>
    <message>
        <source>%1 Job %2 could not be canceled and may still be printed. %3</source>
        <translation>%1無法取消工作 %2，它仍可能會列印。%3</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server, without its whole document. It could not be canceled: %3</source>
        <translation>%1工作 %2 可能仍在列印伺服器上，但文件不完整。無法取消該工作：%3</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server with some of its documents, and may print these. It could not be canceled: %3 Printing again looks for it first.</source>
        <translation>%1工作 %2 可能仍帶著部分文件留在列印伺服器上，並可能列印這些文件。無法取消該工作：%3 再次列印時會先尋找該工作。</translation>
    </message>
    <message>
        <source>The printer “%1” does not accept this user and password.</source>
        <translation>印表機「%1」不接受此使用者名稱和密碼。</translation>
    </message>
    <message>
        <source>%1 The print server does not know job %2 any more. It was probably not printed.</source>
        <translation>%1列印伺服器上已沒有工作 %2 的記錄。該工作很可能沒有列印。</translation>
    </message>
    <message>
        <source>%1 The document had been sent, so job %2 may be printed or not. Printing again looks for it first.</source>
        <translation>%1文件已送出，因此工作 %2 可能已列印，也可能沒有。再次列印時會先尋找該工作。</translation>
    </message>
    <message>
        <source>Job %1 has left the queue “%2”, whose server keeps no record of it. So whether it has been printed is not known.</source>
        <translation>工作 %1 已離開佇列「%2」，其伺服器沒有保留記錄。因此不知道是否已列印。</translation>
    </message>
    <message>
        <source>Job %1 was handed over completely. %2 So whether it has been printed is not known.</source>
        <translation>工作 %1 已完整送出。%2因此不知道是否已列印。</translation>
    </message>
    <message>
        <source>The print server gives job %1 the state %2, which is not known.</source>
        <translation>列印伺服器給出的工作 %1 的狀態 %2 是未知的狀態。</translation>
    </message>
    <message>
        <source>Job %1 was handed over to the queue “%2”.</source>
        <translation>工作 %1 已交給佇列「%2」。</translation>
    </message>
    <message>
        <source>Job %1 was stopped. It is still in the queue, where it can be released or canceled.</source>
        <translation>工作 %1 已停止。它仍在佇列中，可以釋放或取消。</translation>
    </message>
    <message>
        <source>Job %1 is held in the queue “%2”.</source>
        <translation>工作 %1 保留在佇列「%2」中。</translation>
    </message>
    <message>
        <source>Job %1 waits in the queue “%2”, which is stopped.</source>
        <translation>工作 %1 在佇列「%2」中等待，該佇列已停止。</translation>
    </message>
    <message>
        <source>Job %1 is in the queue “%2”.</source>
        <translation>工作 %1 在佇列「%2」中。</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. Whether anything was on its pages is not known.</source>
        <translation>已傳送到「%1」，工作編號為 %2。不知道頁面上是否有內容。</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. That queue passes files on as they are: what was set for the printer or the pages had no effect there.</source>
        <translation>已傳送到「%1」，工作編號為 %2。該佇列會原封不動地轉送檔案：為印表機或頁面所做的設定在那裡沒有作用。</translation>
    </message>
    <message>
        <source>Printed on “%1” as job %2.</source>
        <translation>已在「%1」上列印，工作編號為 %2。</translation>
    </message>
    <message>
        <source>Job %1 failed: the printer or its server gave it up.</source>
        <translation>工作 %1 失敗：印表機或其伺服器已放棄處理。</translation>
    </message>
    <message>
        <source>Job %1 was canceled at the printer or its server.</source>
        <translation>工作 %1 已在印表機或其伺服器上取消。</translation>
    </message>
    <message>
        <source>Job %1 was printed with %2 of its %3 documents only.</source>
        <translation>工作 %1 只列印了 %3 份文件中的 %2 份。</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>正在準備…</translation>
    </message>
    <message>
        <source>Sending, %1 %…</source>
        <translation>正在傳送，%1 %…</translation>
    </message>
    <message>
        <source>Asking the print server…</source>
        <translation>正在詢問列印伺服器…</translation>
    </message>
    <message>
        <source>Waiting in the queue…</source>
        <translation>正在佇列中等待…</translation>
    </message>
    <message>
        <source>Held in the queue</source>
        <translation>保留在佇列中</translation>
    </message>
    <message>
        <source>Printing page %1…</source>
        <translation>正在列印第 %1 頁…</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>正在列印…</translation>
    </message>
    <message>
        <source>The printer is stopped.</source>
        <translation>印表機已停止。</translation>
    </message>
    <message>
        <source>The printer is stopped: %1</source>
        <translation>印表機已停止：%1</translation>
    </message>
    <message>
        <source>First sides: %1</source>
        <translation>第一面：%1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>另一面：%1</translation>
    </message>
    <message>
        <source>%1 The queue “%2” has no driver, and would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1佇列「%2」沒有驅動程式，會將文件連續送出。因此每份文件各為一個工作：%3。</translation>
    </message>
    <message>
        <source>%1 With “raw” the queue “%2” would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1使用「raw」時，佇列「%2」會將文件連續送出。因此每份文件各為一個工作：%3。</translation>
    </message>
    <message>
        <source>Job %1 was canceled or given up at the printer or its server.</source>
        <translation>工作 %1 已在印表機或其伺服器上取消或放棄。</translation>
    </message>
    <message>
        <source>Job %1 is still in the queue.</source>
        <translation>工作 %1 仍在佇列中。</translation>
    </message>
    <message>
        <source>%1 Documents that were sent before, each as a job of its own: %2 of %3. Printing again sends the others.</source>
        <translation>%1先前已各以一個工作送出的文件：%3 份中的 %2 份。再列印一次會送出其餘文件。</translation>
    </message>
    <message>
        <source>Job %1 was canceled; pages that the printer has already may still come out.</source>
        <translation>工作 %1 已取消；印表機已收到的頁面仍可能會印出。</translation>
    </message>
</context>
<context>
    <name>ServerProblem</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not the one that it had before: somebody has replaced it, or stands in between. If it was replaced on purpose, remove the file %2.</source>
        <translation>列印伺服器「%1」的憑證與先前不同：憑證已被更換，或有人從中攔截。如果是刻意更換，請移除檔案 %2。</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not the one that it had before: somebody has replaced it, or stands in between. If it was replaced on purpose, remove the line “%2” from the file %3.</source>
        <translation>列印伺服器「%1」的憑證與先前不同：憑證已被更換，或有人從中攔截。如果是刻意更換，請從檔案 %3 移除「%2」這一行。</translation>
    </message>
    <message>
        <source>The print server “%1” cannot be reached.</source>
        <translation>無法連線到列印伺服器「%1」。</translation>
    </message>
    <message>
        <source>The print server “%1” does not answer.</source>
        <translation>列印伺服器「%1」沒有回應。</translation>
    </message>
    <message>
        <source>The print server “%1” broke the connection.</source>
        <translation>列印伺服器「%1」中斷了連線。</translation>
    </message>
    <message>
        <source>What “%1” answers is not what a print server says.</source>
        <translation>「%1」的回應不是列印伺服器的回應。</translation>
    </message>
    <message>
        <source>What “%1” answers is larger than anything that a print server has to say.</source>
        <translation>「%1」的回應過大，不可能來自列印伺服器。</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>列印伺服器「%1」需要使用者名稱和密碼。</translation>
    </message>
    <message>
        <source>The print server “%1” does not accept this user and password.</source>
        <translation>列印伺服器「%1」不接受此使用者名稱和密碼。</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password; none was given.</source>
        <translation>列印伺服器「%1」需要使用者名稱和密碼，但未提供。</translation>
    </message>
    <message>
        <source>The print server “%1” does not allow you this.</source>
        <translation>列印伺服器「%1」不允許您執行此操作。</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not to be trusted.</source>
        <translation>列印伺服器「%1」的憑證無法信任。</translation>
    </message>
    <message>
        <source>The print server “%1” wants an encrypted connection, which could not be made.</source>
        <translation>列印伺服器「%1」要求加密連線，但無法建立。</translation>
    </message>
    <message>
        <source>The print server “%1” knows nothing of it.</source>
        <translation>列印伺服器「%1」上沒有此項目。</translation>
    </message>
    <message>
        <source>The print server “%1” refuses.</source>
        <translation>列印伺服器「%1」拒絕了要求。</translation>
    </message>
    <message>
        <source>The document cannot be read: %1</source>
        <translation>無法讀取文件：%1</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>“%1” cannot be reached.</source>
        <translation>無法連線到「%1」。</translation>
    </message>
    <message>
        <source>No answer from “%1”.</source>
        <translation>「%1」沒有回應。</translation>
    </message>
    <message>
        <source>“%1” broke the connection.</source>
        <translation>「%1」中斷了連線。</translation>
    </message>
    <message>
        <source>“%1” wants a password.</source>
        <translation>「%1」需要密碼。</translation>
    </message>
    <message>
        <source>Wrong user or password.</source>
        <translation>使用者名稱或密碼錯誤。</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints, in a way that is not possible here.</source>
        <translation>列印伺服器「%1」需要知道由誰列印，但此處不支援其方式。</translation>
    </message>
</context>
<context>
    <name>SettingsIndex</name>
    <message>
        <source>Copies</source>
        <translation>份數</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>頁面</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>All Options</source>
        <translation>所有選項</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
</context>
<context>
    <name>SharedFile</name>
    <message>
        <source>“%1” cannot be read: %2. It was not changed.</source>
        <translation>無法讀取「%1」：%2。檔案未變更。</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. It was not changed.</source>
        <translation>無法寫入「%1」：%2。檔案未變更。</translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation>連結指向的檔案不存在</translation>
    </message>
    <message>
        <source>the link leads to a file of somebody else</source>
        <translation>連結指向其他使用者的檔案</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>它不是檔案</translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation>它屬於其他使用者</translation>
    </message>
    <message>
        <source>another program of ours is writing it</source>
        <translation>本程式的另一個視窗正在寫入</translation>
    </message>
    <message>
        <source>nothing can be written into its folder</source>
        <translation>無法寫入其所在的資料夾</translation>
    </message>
    <message>
        <source>other programs write it all the time</source>
        <translation>其他程式一直在寫入</translation>
    </message>
</context>
<context>
    <name>SheetMarks</name>
    <message>
        <source>The back of this sheet stays empty: only one side is printed.</source>
        <translation>只列印一面，因此這張紙的背面會留白。</translation>
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
        <translation>1 頁</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 頁</translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1 張</translation>
    </message>
    <message>
        <source>%1 sheets</source>
        <translation>%1 張</translation>
    </message>
    <message>
        <source>“%1” has %2</source>
        <translation>「%1」有 %2</translation>
    </message>
    <message>
        <source>The document has %1</source>
        <translation>文件有 %1</translation>
    </message>
    <message>
        <source>the document has %1</source>
        <translation>文件有 %1</translation>
    </message>
    <message>
        <source>%1 and later</source>
        <translation>%1 及之後</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 到 %2</translation>
    </message>
    <message>
        <source>%1; %2 is not in it.</source>
        <translation>%1；不存在的頁面：%2。</translation>
    </message>
    <message>
        <source>%1; %2 are not in it.</source>
        <translation>%1；不存在的頁面：%2。</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only even pages were chosen.</source>
        <translation>不會列印任何內容：%1，而只選擇了偶數頁。</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only odd pages were chosen.</source>
        <translation>不會列印任何內容：%1，而只選擇了奇數頁。</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and none of them is left.</source>
        <translation>不會列印任何內容：%1，但沒有剩下要列印的頁面。</translation>
    </message>
    <message>
        <source>“%1” takes too long to be shown. It can be printed without a preview.</source>
        <translation>顯示「%1」所需的時間過長。可以不經預覽直接列印。</translation>
    </message>
    <message>
        <source>“%1” is too large to be shown. It can be printed without a preview.</source>
        <translation>「%1」太大，無法顯示。可以不經預覽直接列印。</translation>
    </message>
    <message>
        <source>“%1” could not be laid out, so there is no preview. Printing it may work all the same.</source>
        <translation>無法編排「%1」的版面，因此沒有預覽。仍有可能列印成功。</translation>
    </message>
    <message>
        <source>the back stays empty, because only one side is printed</source>
        <translation>背面將留白，因為只有一面要列印</translation>
    </message>
    <message>
        <source>the backs stay empty, because each document has only one side</source>
        <translation>背面將留白，因為每份文件都只有一面要列印</translation>
    </message>
    <message>
        <source>the back stays empty where a document has only one side: %1</source>
        <translation>只有一面要列印的文件背面將留白：%1</translation>
    </message>
    <message>
        <source>could not be counted</source>
        <translation>無法計算</translation>
    </message>
    <message>
        <source>%1, two-sided by hand</source>
        <translation>%1，手動雙面</translation>
    </message>
    <message>
        <source>%1, and 1 cover sheet</source>
        <translation>%1，另加 1 張封面頁</translation>
    </message>
    <message>
        <source>%1, and %2 cover sheets</source>
        <translation>%1，另加 %2 張封面頁</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>%1 × %2 copies = %3</source>
        <translation>%1 × %2 份 = %3</translation>
    </message>
    <message>
        <source>%1 at %2 %</source>
        <translation>%1 為 %2 %</translation>
    </message>
    <message>
        <source>Sheets</source>
        <translation>紙張數</translation>
    </message>
    <message>
        <source>Pages Not There</source>
        <translation>不存在的頁面</translation>
    </message>
    <message>
        <source>Printed Size</source>
        <translation>列印大小</translation>
    </message>
</context>
<context>
    <name>SheetView</name>
    <message>
        <source>cover sheet</source>
        <translation>封面頁</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>空白</translation>
    </message>
    <message>
        <source>printed</source>
        <translation>有內容</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>第 %1 頁</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>第 %1 頁</translation>
    </message>
    <message>
        <source>%L1 back</source>
        <translation>%L1 背面</translation>
    </message>
    <message>
        <source>%L1 front</source>
        <translation>%L1 正面</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 的%1</translation>
    </message>
    <message>
        <source>Sheet %L1: %2</source>
        <translation>第 %L1 張：%2</translation>
    </message>
    <message>
        <source>Sheet %L1, back: %2</source>
        <translation>第 %L1 張背面：%2</translation>
    </message>
    <message>
        <source>Sheet %L1, front: %2</source>
        <translation>第 %L1 張正面：%2</translation>
    </message>
    <message>
        <source>%1, landscape</source>
        <translation>%1，橫向</translation>
    </message>
    <message>
        <source>Bound at the left edge</source>
        <translation>在左邊裝訂</translation>
    </message>
    <message>
        <source>Bound at the top edge</source>
        <translation>在上邊裝訂</translation>
    </message>
    <message>
        <source>Bound at the right edge</source>
        <translation>在右邊裝訂</translation>
    </message>
    <message>
        <source>Bound at the bottom edge</source>
        <translation>在下邊裝訂</translation>
    </message>
</context>
<context>
    <name>StartPresets</name>
    <message>
        <source>Last job: %1</source>
        <translation>上次列印：%1</translation>
    </message>
    <message>
        <source>There is no preset “%1”, nor any other for this printer.</source>
        <translation>沒有預設集「%1」，此印表機也沒有其他預設集。</translation>
    </message>
    <message>
        <source>There is no preset “%1” for this printer. Presets: %2.</source>
        <translation>此印表機沒有預設集「%1」。預設集：%2。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>StartValues</name>
    <message>
        <source>Default of the queue “%1”: %2</source>
        <translation>佇列「%1」的預設值：%2</translation>
    </message>
    <message>
        <source>Default of your administrator: %1</source>
        <translation>管理員的預設值：%1</translation>
    </message>
    <message>
        <source>The queue “%1” adds this to each job; what it does is not known here: %2.</source>
        <translation>佇列「%1」會為每個工作加上以下設定，其作用在此未知：%2。</translation>
    </message>
    <message>
        <source>This printer has no option of this name: %1.</source>
        <translation>此印表機沒有這個名稱的選項：%1。</translation>
    </message>
</context>
<context>
    <name>Summary</name>
    <message>
        <source>Copies</source>
        <translation>份數</translation>
    </message>
    <message>
        <source>%1, collated</source>
        <translation>%1（自動分頁）</translation>
    </message>
    <message>
        <source>%1, not collated</source>
        <translation>%1（不自動分頁）</translation>
    </message>
    <message>
        <source>Also in the job</source>
        <translation>工作中還包含</translation>
    </message>
    <message>
        <source>%1 × %2 inches</source>
        <translation>%1 × %2 英吋</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 公釐</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1：</translation>
    </message>
</context>
<context>
    <name>TerminalQuestions</name>
    <message>
        <source>The printer at “%1” wants a user and a password.</source>
        <translation>位於「%1」的印表機需要使用者名稱和密碼。</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>列印伺服器「%1」需要使用者名稱和密碼。</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others may read them.</source>
        <translation>連線未加密：其他人可能會讀取這些資料。</translation>
    </message>
    <message>
        <source>User [%1]: </source>
        <translation>使用者名稱 [%1]：</translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>密碼：</translation>
    </message>
    <message>
        <source>That is not the password.</source>
        <translation>密碼不正確。</translation>
    </message>
    <message>
        <source>Password of “%1”: </source>
        <translation>「%1」的密碼：</translation>
    </message>
    <message>
        <source>Enter prints the other sides, Ctrl+D leaves them unprinted: </source>
        <translation>按 Enter 列印另一面，按 Ctrl+D 則不列印：</translation>
    </message>
</context>
<context>
    <name>TextFormat</name>
    <message>
        <source>The margins, columns and characters per inch that were asked for leave no room for a text on this paper (%1 × %2 points).</source>
        <translation>依照所要求的邊界、欄數和每英吋字元數，這種紙張（%1 × %2 點）上沒有空間可放置文字。</translation>
    </message>
</context>
<context>
    <name>UnattendedRun</name>
    <message>
        <source>%1 So the printer “%2” could not be asked for.</source>
        <translation>%1因此無法詢問印表機「%2」。</translation>
    </message>
    <message>
        <source>%1 Printers that need no print server: %2.</source>
        <translation>%1不需要列印伺服器的印表機：%2。</translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>已中斷。</translation>
    </message>
    <message>
        <source>The preset “%1” is kept.</source>
        <translation>已儲存預設集「%1」。</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>工作 %1：%2</translation>
    </message>
    <message>
        <source>Nothing was printed.</source>
        <translation>沒有列印任何內容。</translation>
    </message>
    <message>
        <source>It waits until the instructions have been followed. Release it with: %1</source>
        <translation>工作會等到您依照說明操作完畢。請用以下指令釋放：%1</translation>
    </message>
    <message>
        <source>Printed to standard output</source>
        <translation>已列印到標準輸出</translation>
    </message>
    <message>
        <source>The result could not be written to standard output: %1.</source>
        <translation>無法將結果寫入標準輸出：%1。</translation>
    </message>
    <message>
        <source>No preset was kept.</source>
        <translation>沒有儲存任何預設集。</translation>
    </message>
</context>
<context>
    <name>UserQueuesFile</name>
    <message>
        <source>The file of lpoptions is packed, and cannot be changed here.</source>
        <translation>lpoptions 的檔案已壓縮，無法在此變更。</translation>
    </message>
    <message>
        <source>“%1” is your default printer, and stays: choose another one first.</source>
        <translation>「%1」是您的預設印表機，因此會保留。請先選擇另一台。</translation>
    </message>
    <message>
        <source>“%1” is no name that other programs can print to.</source>
        <translation>「%1」不是其他程式可用來列印的名稱。</translation>
    </message>
    <message>
        <source>“%1” would have more settings than other programs can read.</source>
        <translation>「%1」的設定會超過其他程式能讀取的數量。</translation>
    </message>
    <message>
        <source>Other programs would read the value of “%1” as another one.</source>
        <translation>其他程式會將「%1」的值讀成其他值。</translation>
    </message>
    <message>
        <source>“%1” is no name of an option for other programs.</source>
        <translation>「%1」不是其他程式可用的選項名稱。</translation>
    </message>
    <message>
        <source>The value of “%1” has a line break or a control character, which no option for other programs can have.</source>
        <translation>「%1」的值含有換行或控制字元，其他程式的選項不能包含這些字元。</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is.</source>
        <translation>「%1」已被其他程式更改，將保持原樣。</translation>
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
        <translation>其他…</translation>
    </message>
</context>
<context>
    <name>corvana::AttributeRows</name>
    <message>
        <source>&amp;More</source>
        <translation>更多(&amp;M)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>，</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>More, %1</source>
        <translation>更多，%1</translation>
    </message>
</context>
<context>
    <name>corvana::ChangeMarks</name>
    <message>
        <source>Changed. %1</source>
        <translation>已變更。%1</translation>
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
        <translation>「%1：%2」</translation>
    </message>
    <message>
        <source>%1 to %2 points</source>
        <translation>%1 到 %2 點</translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation>%1 到 %2 個字元（半形）</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 到 %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>“%1” is not possible for %2. Allowed: %3.</source>
        <translation>%2 不能設為「%1」。允許的值：%3。</translation>
    </message>
    <message>
        <source>This is not possible for %1. Allowed: %2.</source>
        <translation>%1 不能設為此值。允許的值：%2。</translation>
    </message>
    <message>
        <source>Cannot be combined with %1.</source>
        <translation>不能與%1同時使用。</translation>
    </message>
    <message>
        <source> and </source>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>corvana::ColorsRow</name>
    <message>
        <source>Hold to Compare</source>
        <translation>按住以比較</translation>
    </message>
    <message>
        <source>While it is held, the document is shown as it is, without adjustments.</source>
        <translation>按住時會顯示未經調整的原始文件。</translation>
    </message>
</context>
<context>
    <name>corvana::ComingDocuments</name>
    <message>
        <source>Standard input is being read.</source>
        <translation>正在讀取標準輸入。</translation>
    </message>
    <message>
        <source>%1 is being read.</source>
        <translation>正在讀取 %1。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>corvana::Conversion</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>無法讀取 %1：%2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>無法寫入 %1：%2</translation>
    </message>
</context>
<context>
    <name>corvana::CountsRow</name>
    <message>
        <source>Sheets</source>
        <translation>張數</translation>
    </message>
    <message>
        <source>Show Preview</source>
        <translation>顯示預覽</translation>
    </message>
    <message>
        <source>Hide Preview</source>
        <translation>隱藏預覽</translation>
    </message>
</context>
<context>
    <name>corvana::CopiesEditor</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>不允許使用「%1」。允許的值：%2。</translation>
    </message>
</context>
<context>
    <name>corvana::CredentialsDialog</name>
    <message>
        <source>Log In to Print</source>
        <translation>登入以列印</translation>
    </message>
    <message>
        <source>The printer wants to know who prints. User and password are sent to it through the print server “%1”, and are forgotten when the print dialog closes.</source>
        <translation>這台印表機需要知道由誰列印。使用者名稱和密碼會透過列印伺服器「%1」傳送給印表機，列印對話方塊關閉後即清除。</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints. User and password are forgotten when the print dialog closes.</source>
        <translation>列印伺服器「%1」需要知道由誰列印。使用者名稱和密碼在列印對話方塊關閉後即清除。</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>使用者名稱(&amp;U):</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>密碼(&amp;W):</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>登入</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others on the network may read the password.</source>
        <translation>連線未加密：網路上的其他人可能會讀取密碼。</translation>
    </message>
</context>
<context>
    <name>corvana::CustomPaperSize</name>
    <message>
        <source>From %1 to %2</source>
        <translation>%1 到 %2</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>紙張寬度</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>紙張高度</translation>
    </message>
    <message>
        <source>Unit of the paper size</source>
        <translation>紙張大小的單位</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>公釐</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>英吋</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentArea</name>
    <message>
        <source>Print this document earlier</source>
        <translation>將此文件提前列印</translation>
    </message>
    <message>
        <source>Print this document later</source>
        <translation>將此文件延後列印</translation>
    </message>
    <message>
        <source>Do not print this document</source>
        <translation>不列印此文件</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Print further documents in the same job</source>
        <translation>在同一個工作中列印其他文件</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>新增…</translation>
    </message>
    <message>
        <source>Documents in the order in which they are printed</source>
        <translation>依列印順序排列的文件</translation>
    </message>
    <message numerus="yes">
        <source>%n documents, printed in this order:</source>
        <translation>
            <numerusform>%n 份文件，依此順序列印：</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Choose Documents to Print</source>
        <translation>選擇要列印的文件</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentPasswordDialog</name>
    <message>
        <source>Protected Document</source>
        <translation>受保護的文件</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. With its owner&apos;s password it can be printed.</source>
        <translation>「%1」不允許列印。使用擁有者密碼即可列印。</translation>
    </message>
    <message>
        <source>“%1” is protected: enter its password. The password is forgotten when the print dialog closes.</source>
        <translation>「%1」受密碼保護：請輸入密碼。列印對話方塊關閉後即清除密碼。</translation>
    </message>
    <message>
        <source>That is not the password. Try again.</source>
        <translation>密碼不正確，請再試一次。</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>密碼(&amp;P):</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>corvana::FileJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>已取消列印。</translation>
    </message>
    <message>
        <source>%1 is the document itself; name another file.</source>
        <translation>%1 就是要列印的文件，請指定其他檔案。</translation>
    </message>
    <message>
        <source>Printed to %1</source>
        <translation>已列印到 %1</translation>
    </message>
</context>
<context>
    <name>corvana::FilterChain</name>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>無法啟動 %1：%2</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: how many pages it has could not be found out.</source>
        <translation>無法將文件轉換為印表機資料：無法得知頁數。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>無法寫入 %1：%2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>已取消列印。</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: that took too long.</source>
        <translation>無法將文件轉換為印表機資料：花費的時間過長。</translation>
    </message>
    <message>
        <source>The filter chain of CUPS crashed.</source>
        <translation>CUPS 的過濾器異常終止。</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: %1</source>
        <translation>無法將文件轉換為印表機資料：%1</translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>結束狀態 %1</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: nothing came out. %1</source>
        <translation>無法將文件轉換為印表機資料：沒有任何輸出。%1</translation>
    </message>
    <message>
        <source>The documents could not be put together: %1 is incomplete. Is the disk full?</source>
        <translation>無法合併文件：%1 不完整。磁碟是否已滿？</translation>
    </message>
</context>
<context>
    <name>corvana::FindField</name>
    <message>
        <source>Find a setting (Ctrl+F)</source>
        <translation>尋找設定 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>尋找設定</translation>
    </message>
    <message>
        <source>Type a name, then go to a setting with Enter</source>
        <translation>輸入名稱，然後按 Enter 前往該設定</translation>
    </message>
    <message>
        <source>Type the name of a setting or of a choice.</source>
        <translation>請輸入設定或選項的名稱。</translation>
    </message>
</context>
<context>
    <name>corvana::FindModel</name>
    <message>
        <source>%1, on %2</source>
        <translation>%1，位於%2</translation>
    </message>
    <message>
        <source>%1, %2, on %3</source>
        <translation>%1，%2，位於%3</translation>
    </message>
</context>
<context>
    <name>corvana::FindPopup</name>
    <message>
        <source>Settings that were found</source>
        <translation>找到的設定</translation>
    </message>
    <message>
        <source>1 setting found</source>
        <translation>找到 1 項設定</translation>
    </message>
    <message>
        <source>%1 settings found</source>
        <translation>找到 %1 項設定</translation>
    </message>
</context>
<context>
    <name>corvana::GeneralPage</name>
    <message>
        <source>&amp;Copies:</source>
        <translation>份數(&amp;C):</translation>
    </message>
    <message>
        <source>All, or such as 1-4, 7, 9-</source>
        <translation>全部，或例如 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>Choos&amp;e Pages…</source>
        <translation>選擇頁面(&amp;E)…</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>頁面(&amp;G):</translation>
    </message>
    <message>
        <source>No document has been chosen.</source>
        <translation>尚未選擇文件。</translation>
    </message>
    <message>
        <source>Custom Size</source>
        <translation>自訂大小</translation>
    </message>
    <message>
        <source>Width × height:</source>
        <translation>寬 × 高:</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>頁面</translation>
    </message>
</context>
<context>
    <name>corvana::HelpWindow</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>corvana::InstancePrinters</name>
    <message>
        <source>More Printers</source>
        <translation>更多印表機</translation>
    </message>
    <message>
        <source>Other programs have the preset on the &amp;printers that are ticked:</source>
        <translation>其他程式可在勾選的印表機上使用此預設集(&amp;P)：</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>在其他程式中會顯示為「%1」。</translation>
    </message>
</context>
<context>
    <name>corvana::JobFooter</name>
    <message>
        <source>Printing</source>
        <translation>正在列印</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Show Silenced Messages Again</source>
        <translation>重新顯示已隱藏的訊息</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>列印(&amp;P)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>關閉(&amp;L)</translation>
    </message>
    <message>
        <source>C&amp;lose (printing continues)</source>
        <translation>關閉(&amp;L)（繼續列印）</translation>
    </message>
    <message>
        <source>The job goes on without this window.</source>
        <translation>關閉此視窗後，工作會繼續進行。</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>取消工作</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>儲存(&amp;V)…</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>正在列印…</translation>
    </message>
    <message>
        <source>Canceling…</source>
        <translation>正在取消…</translation>
    </message>
    <message>
        <source>The first sides are printed.</source>
        <translation>第一面已列印完成。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>corvana::MessageBar</name>
    <message>
        <source>Details</source>
        <translation>詳細資料</translation>
    </message>
    <message>
        <source>Show all of this message</source>
        <translation>顯示完整訊息</translation>
    </message>
    <message>
        <source>Dismiss this message</source>
        <translation>關閉此訊息</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsModel</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Installable Options</source>
        <translation>可安裝的選購配件</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1
For the command line: %2</source>
        <translation>%1
命令列用法：%2</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>已變更。%1</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>預設值：%1</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsPage</name>
    <message>
        <source>Back to the Default</source>
        <translation>恢復預設值</translation>
    </message>
    <message>
        <source>Search options and choices</source>
        <translation>搜尋選項和設定值</translation>
    </message>
    <message>
        <source>Options of the printer</source>
        <translation>印表機的選項</translation>
    </message>
    <message>
        <source>Nothing contains “%1”.</source>
        <translation>沒有包含「%1」的項目。</translation>
    </message>
</context>
<context>
    <name>corvana::PageChooser</name>
    <message>
        <source>Choose Pages</source>
        <translation>選擇頁面</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;Pages:</source>
        <translation>頁面(&amp;P):</translation>
    </message>
    <message>
        <source>Such as 1-4, 7, 9-</source>
        <translation>例如 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>全選(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>全不選(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Odd</source>
        <translation>奇數頁(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Even</source>
        <translation>偶數頁(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>反向選取(&amp;I)</translation>
    </message>
    <message>
        <source>Page numbers count in each document: what is ticked in one is ticked in all.</source>
        <translation>頁碼套用於每份文件：在一份文件中勾選，就會在所有文件中勾選。</translation>
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
        <translation>共 %L1 頁，頁數太多，無法在此顯示。可以輸入頁碼。</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>第 %1 頁</translation>
    </message>
    <message>
        <source>Page %1 (%2)</source>
        <translation>第 %1 頁（%2）</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 的%1</translation>
    </message>
    <message>
        <source>%1, chosen</source>
        <translation>%1，已選擇</translation>
    </message>
    <message>
        <source>%1, not chosen</source>
        <translation>%1，未選擇</translation>
    </message>
</context>
<context>
    <name>corvana::PageThumbnails</name>
    <message>
        <source>Pages</source>
        <translation>頁面</translation>
    </message>
</context>
<context>
    <name>corvana::PassJob</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>無法寫入 %1：%2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>已取消列印。</translation>
    </message>
</context>
<context>
    <name>corvana::PresetMenu</name>
    <message>
        <source>Printer &amp;Defaults</source>
        <translation>印表機預設值(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Last Used</source>
        <translation>上次使用(&amp;L)</translation>
    </message>
    <message>
        <source>For This Model</source>
        <translation>用於此型號</translation>
    </message>
    <message>
        <source>For All Printers</source>
        <translation>用於所有印表機</translation>
    </message>
    <message>
        <source>From Other Programs</source>
        <translation>來自其他程式</translation>
    </message>
    <message>
        <source>&amp;Save Preset…</source>
        <translation>儲存預設集(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Update “%1”</source>
        <translation>更新「%1」(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Rename “%1”…</source>
        <translation>重新命名「%1」(&amp;R)…</translation>
    </message>
    <message>
        <source>D&amp;elete “%1”…</source>
        <translation>刪除「%1」(&amp;E)…</translation>
    </message>
    <message>
        <source>Re&amp;member the Settings of the Last Job</source>
        <translation>記住上次列印的設定(&amp;M)</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>刪除預設集</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? The settings stay as they are.</source>
        <translation>要刪除預設集「%1」嗎？目前的設定維持不變。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
</context>
<context>
    <name>corvana::PresetRow</name>
    <message>
        <source>Prese&amp;t:</source>
        <translation>預設集(&amp;T):</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（已變更）</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>預設集：%1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>This Page: %1</source>
        <translation>此頁：%1</translation>
    </message>
    <message>
        <source>Everything: %1</source>
        <translation>全部：%1</translation>
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
        <translation>正在計算張數…</translation>
    </message>
</context>
<context>
    <name>corvana::PreviewPlaceholder</name>
    <message>
        <source>Choose &amp;Documents…</source>
        <translation>選擇文件(&amp;D)…</translation>
    </message>
    <message>
        <source>Drop documents here to print them.</source>
        <translation>將要列印的文件拖放到此處。</translation>
    </message>
    <message>
        <source>PDF, PostScript, text, PNG and JPEG; several are one job.</source>
        <translation>PDF、PostScript、文字、PNG 和 JPEG；多份合為一個工作。</translation>
    </message>
</context>
<context>
    <name>corvana::PrintTask</name>
    <message>
        <source>The sides of “%1” are not known here, so they cannot be printed in two halves. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>此處無法得知「%1」的各面內容，因此無法分兩次列印。使用 sides-by-hand=no 則只列印每張紙的一面。</translation>
    </message>
    <message>
        <source>%1 (other sides)</source>
        <translation>%1（另一面）</translation>
    </message>
    <message>
        <source>%1 (first sides)</source>
        <translation>%1（第一面）</translation>
    </message>
    <message>
        <source>First sides: %1</source>
        <translation>第一面：%1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>另一面：%1</translation>
    </message>
    <message>
        <source>First sides: %1 Other sides: %2</source>
        <translation>第一面：%1另一面：%2</translation>
    </message>
    <message>
        <source>Not printed.</source>
        <translation>未列印。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>Show Its First Sheet</source>
        <translation>顯示其第一張紙</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>Give the password with --document-password-file.</source>
        <translation>請使用 --document-password-file 提供密碼。</translation>
    </message>
    <message>
        <source>Enter the Password…</source>
        <translation>輸入密碼…</translation>
    </message>
    <message>
        <source>Enter the Owner&apos;s Password…</source>
        <translation>輸入擁有者密碼…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>請選擇要列印的文件。</translation>
    </message>
    <message>
        <source>Name the file to print to.</source>
        <translation>請輸入要列印到的檔案名稱。</translation>
    </message>
    <message>
        <source>“%1” are no pages. Pages and ranges in ascending order were expected, such as 1-4, 7, 9-.</source>
        <translation>「%1」不是有效的頁碼。請依遞增順序指定頁碼和範圍，例如 1-4, 7, 9-。</translation>
    </message>
    <message>
        <source>%1 is of a kind that is not known here. Only a queue can pass it on to its printer, as it is, with the option “raw”.</source>
        <translation>此處無法辨識 %1 的類型。只有佇列能使用選項「raw」將它原封不動地轉送到印表機。</translation>
    </message>
    <message>
        <source>What is passed on as it is cannot be printed to a file.</source>
        <translation>原封不動轉送的內容無法列印到檔案。</translation>
    </message>
    <message>
        <source>No font of this computer has these characters of the text: %1. An empty frame is printed for each of them.</source>
        <translation>這台電腦上沒有任何字型包含文字中的以下字元：%1。每個字元會印成一個空框。</translation>
    </message>
    <message>
        <source>Not all of the text could be looked through for characters that no font of this computer has. An empty frame is printed for each of them.</source>
        <translation>未能檢查整份文字中是否有這台電腦的字型都沒有的字元。每個這樣的字元會印成一個空框。</translation>
    </message>
    <message>
        <source>The printer&apos;s settings show instructions.</source>
        <translation>印表機的設定顯示了操作說明。</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and a file cannot wait. Follow them and print with --on-alert=print.</source>
        <translation>工作必須等待這些說明完成，而檔案無法等待。請先依照說明操作，再使用 --on-alert=print 列印。</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and two-sided printing by hand cannot. Follow them and print with --on-alert=print.</source>
        <translation>工作必須等待這些說明完成，而手動雙面列印無法等待。請先依照說明操作，再使用 --on-alert=print 列印。</translation>
    </message>
    <message>
        <source>%1 So the job cannot wait for these instructions. Follow them and print with --on-alert=print.</source>
        <translation>%1因此，工作無法等待這些說明完成。請先依照說明操作，再使用 --on-alert=print 列印。</translation>
    </message>
    <message>
        <source>The printer&apos;s settings hold the job back.</source>
        <translation>印表機的設定使工作無法列印。</translation>
    </message>
    <message>
        <source>Its pages are made while it is printed. The preview shows them.</source>
        <translation>其頁面會在列印時產生，可在預覽中查看。</translation>
    </message>
    <message>
        <source>How many pages it has is not known.</source>
        <translation>頁數未知。</translation>
    </message>
    <message>
        <source>It is being looked at…</source>
        <translation>正在檢查…</translation>
    </message>
    <message>
        <source>Not everything that your administrator has decided can be used. “corvana-print --check-policy” says what, and why.</source>
        <translation>管理員的部分規定無法使用。「corvana-print --check-policy」會說明是哪些規定以及原因。</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper.</source>
        <translation>此工作需要 %1 張紙。</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper. More than %2 are printed only with --yes.</source>
        <translation>此工作需要 %1 張紙。超過 %2 張時必須使用 --yes 才會列印。</translation>
    </message>
    <message>
        <source>The options of the printer have changed at its server; yours were kept.</source>
        <translation>印表機的選項已在伺服器上變更；您的設定已保留。</translation>
    </message>
    <message>
        <source>The printer&apos;s own settings are missing: %1</source>
        <translation>無法使用印表機本身的設定：%1</translation>
    </message>
    <message>
        <source>Not everything could be set as before:
%1</source>
        <translation>以下設定無法恢復為先前的值：
%1</translation>
    </message>
    <message>
        <source>The queue “%1” leads to the same printer, and has pages with all of its settings.</source>
        <translation>佇列「%1」通往同一台印表機，並有包含其所有設定的頁面。</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <translation>使用「%1」</translation>
    </message>
    <message>
        <source>There is no job attribute of the name %1.</source>
        <translation>沒有名為 %1 的工作屬性。</translation>
    </message>
    <message>
        <source>The queue “%1” sets this for every job that does not name it. Allowed: %2.</source>
        <translation>佇列「%1」會為每個未指定此項的工作設定此值。允許的值：%2。</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>不允許使用「%1」。允許的值：%2。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>No document has been chosen.</source>
        <translation>尚未選擇文件。</translation>
    </message>
    <message>
        <source>There is a preview once the printer is known.</source>
        <translation>取得印表機的資訊後就會顯示預覽。</translation>
    </message>
    <message>
        <source>Files are passed on to the printer as they are. What comes out is not known here.</source>
        <translation>檔案會原封不動地轉送到印表機，因此這裡無法得知印出的結果。</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>已取消列印。</translation>
    </message>
    <message>
        <source>What was asked for cannot be set:
%1</source>
        <translation>無法依照要求設定：
%1</translation>
    </message>
    <message>
        <source>Not everything that is set for this printer could be taken:
%1</source>
        <translation>未能套用為此印表機設定的所有內容：
%1</translation>
    </message>
    <message>
        <source>As in your last job.</source>
        <translation>與您上次列印的設定相同。</translation>
    </message>
    <message>
        <source>Use Defaults</source>
        <translation>使用預設值</translation>
    </message>
    <message>
        <source>A PDF file is saved once: there are no copies of it.</source>
        <translation>PDF 檔案只會儲存一次，沒有份數。</translation>
    </message>
    <message>
        <source>The printer prints at most %1 copies at once, not %2.</source>
        <translation>此印表機一次最多列印 %1 份，無法列印 %2 份。</translation>
    </message>
    <message>
        <source>“%1” has nothing to show.</source>
        <translation>「%1」沒有可顯示的內容。</translation>
    </message>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>無法顯示印表機設定的其中一頁：%1</translation>
    </message>
    <message>
        <source>%1 is not on this computer. Save it here to print it.</source>
        <translation>%1 不在這部電腦上。請先儲存到這裡再列印。</translation>
    </message>
    <message>
        <source>The sheets can stay in the tray: the other sides are printed with the settings of the first ones.</source>
        <translation>紙張可以留在紙匣中：另一面會以第一面的設定列印。</translation>
    </message>
    <message>
        <source>Printed to %1, which holds data for the printer and is no PDF document</source>
        <translation>已列印到 %1，其內容是供印表機使用的資料，不是 PDF 文件</translation>
    </message>
</context>
<context>
    <name>corvana::PrintWindow</name>
    <message>
        <source>Asking “%1” for the options of the printer…</source>
        <translation>正在向「%1」取得印表機的選項…</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>正在尋找印表機…</translation>
    </message>
    <message>
        <source>No answer from “%1” yet.</source>
        <translation>「%1」尚未回應。</translation>
    </message>
    <message>
        <source>No printers at “%1”.</source>
        <translation>「%1」上沒有印表機。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>There are no printers yet. Add one in the printer settings of the system, or with the command lpadmin.</source>
        <translation>還沒有印表機。請在系統的印表機設定中新增，或使用指令 lpadmin。</translation>
    </message>
    <message>
        <source>Until then, documents can be printed to a file.</source>
        <translation>在此之前，可以將文件列印到檔案。</translation>
    </message>
    <message>
        <source>Log In…</source>
        <translation>登入…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試一次</translation>
    </message>
    <message>
        <source>The print service of this computer is not running. Start it, on most systems with “systemctl start cups”.</source>
        <translation>這台電腦的列印服務未在執行。請啟動該服務，大多數系統使用「systemctl start cups」。</translation>
    </message>
    <message>
        <source>Print Another Copy</source>
        <translation>再列印一份</translation>
    </message>
    <message>
        <source>Two-Sided by Hand</source>
        <translation>手動雙面列印</translation>
    </message>
    <message>
        <source>Only the first sides of the sheets are printed. Leave the other sides unprinted?</source>
        <translation>只列印了紙張的第一面。要保留另一面不列印嗎？</translation>
    </message>
    <message>
        <source>The first sides of the sheets are being printed. Stop that, and leave the other sides unprinted?</source>
        <translation>正在列印紙張的第一面。要停止列印，並保留另一面不列印嗎？</translation>
    </message>
    <message>
        <source>Leave Unprinted</source>
        <translation>不列印另一面</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>列印到檔案</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 已經存在。要取代嗎？</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>仍要列印</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>列印</translation>
    </message>
    <message>
        <source>Your preferences cannot be written.</source>
        <translation>無法寫入您的偏好設定。</translation>
    </message>
    <message>
        <source>The help is not installed.</source>
        <translation>說明未安裝。</translation>
    </message>
    <message>
        <source>Help on Printing</source>
        <translation>列印說明</translation>
    </message>
    <message>
        <source>If you print it again, it may come out of the printer twice.</source>
        <translation>再次列印可能會印出兩份。</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>再次列印</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterComboBox</name>
    <message>
        <source>Choose a printer</source>
        <translation>選擇印表機</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterHeader</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>印表機(&amp;R):</translation>
    </message>
    <message>
        <source>Print to &amp;file:</source>
        <translation>列印到檔案(&amp;F):</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>列印到檔案</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>選擇(&amp;H)…</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>列印到檔案</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有檔案 (*)</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterPopup</name>
    <message>
        <source>Printers</source>
        <translation>印表機</translation>
    </message>
    <message>
        <source>Search by name or location</source>
        <translation>依名稱或位置搜尋</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>搜尋印表機</translation>
    </message>
    <message>
        <source>No printer was found</source>
        <translation>找不到印表機</translation>
    </message>
    <message>
        <source>No printer matches</source>
        <translation>沒有符合的印表機</translation>
    </message>
    <message>
        <source>%1 of %2 printers</source>
        <translation>%2 台印表機中的 %1 台</translation>
    </message>
    <message>
        <source>%1 printers</source>
        <translation>%1 台印表機</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterSource</name>
    <message>
        <source>There is no default printer. %1 Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>沒有預設印表機。%1請用 -d 指定印表機，或用 --ppd FILE 指定 PPD，或用 --demo 試用範例印表機。</translation>
    </message>
    <message>
        <source>There is no default printer. Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>沒有預設印表機。請用 -d 指定印表機，或用 --ppd FILE 指定 PPD，或用 --demo 試用範例印表機。</translation>
    </message>
    <message>
        <source>There is no instance “%1”: lpoptions has none of the queue “%2”.</source>
        <translation>沒有實體「%1」：lpoptions 中沒有佇列「%2」的任何實體。</translation>
    </message>
    <message>
        <source>There is no instance “%1”. The queue “%2” has: %3.</source>
        <translation>沒有實體「%1」。佇列「%2」有：%3。</translation>
    </message>
    <message>
        <source>There is no printer “%1” at “%2”.</source>
        <translation>「%2」上沒有印表機「%1」。</translation>
    </message>
    <message>
        <source>There is no printer “%1” at “%2” any more.</source>
        <translation>「%2」上已沒有印表機「%1」。</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterStatusLine</name>
    <message>
        <source>Try Again</source>
        <translation>再試一次</translation>
    </message>
</context>
<context>
    <name>corvana::SavePresetDialog</name>
    <message>
        <source>Rename Preset</source>
        <translation>重新命名預設集</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>儲存預設集</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名稱(&amp;N):</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>For printers of this &amp;model (%1)</source>
        <translation>用於此型號（%1）的印表機(&amp;M)</translation>
    </message>
    <message>
        <source>For &amp;all printers, as far as they have these settings</source>
        <translation>用於所有具有這些設定的印表機(&amp;A)</translation>
    </message>
    <message>
        <source>Also in &amp;other programs</source>
        <translation>也用於其他程式(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;With what sets up the printer itself (%1)</source>
        <translation>包含印表機本身的設定（%1）(&amp;W)</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>在其他程式中會顯示為「%1」。</translation>
    </message>
    <message>
        <source>There is a preset of this name already.</source>
        <translation>已有此名稱的預設集。</translation>
    </message>
    <message>
        <source>There is a preset of this name already. It will be replaced.</source>
        <translation>已有此名稱的預設集，將會取代它。</translation>
    </message>
    <message>
        <source>There is another preset of this name, which stays.</source>
        <translation>另有一個此名稱的預設集，它會保留。</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重新命名</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>取代</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>More &amp;Printers…</source>
        <translation>更多印表機(&amp;P)…</translation>
    </message>
</context>
<context>
    <name>corvana::ServerJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>已取消列印。</translation>
    </message>
    <message>
        <source>The printer “%1” does not take these settings of a job: %2. Nothing was printed.</source>
        <translation>印表機「%1」不接受工作的以下設定：%2。沒有列印任何內容。</translation>
    </message>
    <message>
        <source>The queue “%1” has no driver and prints documents as they are: it can neither put several pages on a sheet (number-up) nor choose pages (page-ranges, page-set). Nothing was printed.</source>
        <translation>佇列「%1」沒有驅動程式，會原封不動地列印文件：既不能在一張紙上放置多頁 (number-up)，也不能選擇頁面 (page-ranges、page-set)。沒有列印任何內容。</translation>
    </message>
    <message>
        <source>The printer “%1” takes documents of these kinds only: %2.</source>
        <translation>印表機「%1」只接受以下類型的文件：%2。</translation>
    </message>
    <message>
        <source>The documents were put together as one, because the printer takes one at a time; each begins on a new sheet.</source>
        <translation>由於印表機一次只接受一份文件，這些文件已合併為一份；每份文件都從新的一張紙開始。</translation>
    </message>
    <message>
        <source>There are too many copies to send them in sets. Their order is: %1.</source>
        <translation>份數太多，無法逐套傳送。順序為：%1。</translation>
    </message>
    <message>
        <source>Job %1 is in the queue; it was not followed to its end.</source>
        <translation>工作 %1 在佇列中；沒有追蹤到結束。</translation>
    </message>
</context>
<context>
    <name>corvana::SettingFinder</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>目前為%1</translation>
    </message>
    <message>
        <source>The settings of the printer are not known yet.</source>
        <translation>尚未取得印表機的設定。</translation>
    </message>
    <message>
        <source>No setting is called “%1”. Try a shorter word, or another one for it.</source>
        <translation>沒有名為「%1」的設定。請嘗試較短的詞或其他說法。</translation>
    </message>
    <message>
        <source>No setting is called “%1”. Press Enter to search for “%2” instead.</source>
        <translation>沒有名為「%1」的設定。按 Enter 改為搜尋「%2」。</translation>
    </message>
    <message>
        <source>“%1” cannot be changed while other settings are as they are. It is on the page “%2”.</source>
        <translation>在其他設定不變的情況下，無法變更「%1」。它位於頁面「%2」。</translation>
    </message>
</context>
<context>
    <name>corvana::SettingsPages</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>All Options</source>
        <translation>所有選項</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>This page cannot be shown: %1</source>
        <translation>無法顯示此頁：%1</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試一次</translation>
    </message>
</context>
<context>
    <name>corvana::SheetView</name>
    <message>
        <source>%1. Note: %2</source>
        <translation>%1。注意：%2</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>Preview. %1</source>
        <translation>預覽。%1</translation>
    </message>
    <message>
        <source>Cover sheet of the queue: %1</source>
        <translation>佇列的封面頁：%1</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>正在更新…</translation>
    </message>
</context>
<context>
    <name>corvana::SheetsRow</name>
    <message>
        <source>Sheet %L1</source>
        <translation>第 %L1 張</translation>
    </message>
    <message>
        <source>Sheet %L1 of %L2</source>
        <translation>第 %L1 張，共 %L2 張</translation>
    </message>
</context>
<context>
    <name>corvana::SummaryPage</name>
    <message>
        <source>Only what is changed</source>
        <translation>僅顯示已變更的項目</translation>
    </message>
    <message>
        <source>Nothing is changed.</source>
        <translation>沒有變更任何項目。</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>已變更。%1</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1，已變更</translation>
    </message>
</context>
<context>
    <name>corvana::TaskHistory</name>
    <message>
        <source>Printer</source>
        <translation>印表機</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>復原：%1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>重做：%1</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>恢復為%1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>This cannot go back:
%1</source>
        <translation>以下設定無法恢復：
%1</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPresets</name>
    <message>
        <source>The printer is not known yet.</source>
        <translation>尚未取得印表機的資訊。</translation>
    </message>
    <message>
        <source>Other programs print with these settings to “%1”.</source>
        <translation>其他程式列印到「%1」時會使用這些設定。</translation>
    </message>
    <message>
        <source>“%1” is not there any more, or has no settings.</source>
        <translation>「%1」已不存在，或沒有任何設定。</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 項</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>印表機預設值</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>上次使用</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>名為「%1」的預設集已不存在。</translation>
    </message>
    <message>
        <source>Not everything of “%1” is possible here:
%2</source>
        <translation>「%1」的部分設定無法在此使用：
%2</translation>
    </message>
    <message>
        <source>“%1” was kept with settings that this printer does not have.</source>
        <translation>「%1」包含此印表機沒有的設定。</translation>
    </message>
    <message>
        <source>%1 Your settings are as they were.</source>
        <translation>%1您的設定維持不變。</translation>
    </message>
    <message>
        <source>The preset “%1” for this printer is another one.</source>
        <translation>此印表機的預設集「%1」是另一個預設集。</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPreview</name>
    <message>
        <source>It can be printed all the same.</source>
        <translation>沒有預覽也可以列印。</translation>
    </message>
</context>
<context>
    <name>corvana::TextConversion</name>
    <message>
        <source>There are no fonts for the text %1.</source>
        <translation>沒有可用於文字 %1 的字型。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>無法讀取 %1：%2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>無法寫入 %1：%2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>已取消列印。</translation>
    </message>
    <message>
        <source>%1 would have more than %2 pages, and a text is printed on no more than that.</source>
        <translation>%1 會超過 %2 頁，而文字最多只列印這麼多頁。</translation>
    </message>
</context>
<context>
    <name>corvana::TextDocuments</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>已取消列印。</translation>
    </message>
</context>
<context>
    <name>corvana::TurnSheetsDialog</name>
    <message>
        <source>Two-Sided by Hand</source>
        <translation>手動雙面列印</translation>
    </message>
    <message>
        <source>Put the sheets back to print their other sides</source>
        <translation>請放回紙張以列印另一面</translation>
    </message>
    <message>
        <source>&amp;Print the Other Sides</source>
        <translation>列印另一面(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>放大</translation>
    </message>
    <message>
        <source>Size of the sheets</source>
        <translation>顯示大小</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>整頁</translation>
    </message>
    <message>
        <source>Fit Width</source>
        <translation>符合寬度</translation>
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
        <translation>列印</translation>
    </message>
    <message>
        <source>no display can be reached. Print without a window with --no-dialog.</source>
        <translation>無法連線到顯示器。使用 --no-dialog 可以不開啟視窗直接列印。</translation>
    </message>
</context>
<context>
    <name>ClearButton</name>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
</context>
<context>
    <name>ChoiceCodes</name>
    <message>
        <source>%1 cannot be sent to the printer: its PPD does not say in a usable way how that is done.</source>
        <translation>無法將%1傳送到印表機：其 PPD 沒有正確說明傳送方法。</translation>
    </message>
</context>
<context>
    <name>PpdBounds</name>
    <message>
        <source>It is no ordinary file.</source>
        <translation>不是一般檔案。</translation>
    </message>
    <message>
        <source>It is larger than %1 MB.</source>
        <translation>其大小超過 %1 MB。</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 lines that begin with “%2”.</source>
        <translation>內容過多：以「%2」開頭的行超過 %1 行。</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices of all options together. “%2” has the most.</source>
        <translation>內容過多：所有選項的設定值合計超過 %1 個。「%2」的設定值最多。</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 lines that belong to no option. The most frequent is “%2”.</source>
        <translation>內容過多：不屬於任何選項的行超過 %1 行。其中最多的是「%2」。</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 different keywords.</source>
        <translation>內容過多：不同的關鍵字超過 %1 個。</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in one line that begins with “%2”.</source>
        <translation>內容過多：以「%2」開頭的一行中有超過 %1 個設定值。</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in lines that begin with “%2”.</source>
        <translation>內容過多：以「%2」開頭的行中有超過 %1 個設定值。</translation>
    </message>
    <message>
        <source>There is too much in it: its constraints name %1 choices. Beside as many options and choices as it has, %2 are allowed.</source>
        <translation>內容過多：其限制條件中列出了 %1 個設定值。選項和設定值有這麼多時，最多允許 %2 個。</translation>
    </message>
</context>
<context>
    <name>QueueRequests</name>
    <message>
        <source>more than %L1 printers</source>
        <translation>印表機超過 %L1 台</translation>
    </message>
    <message>
        <source>printers with more than %L1 characters in their texts</source>
        <translation>印表機的文字超過 %L1 個字元</translation>
    </message>
</context>
<context>
    <name>ClientFiles</name>
    <message>
        <source>%1 cannot be read to its end: a small file with the settings of CUPS is expected there.</source>
        <translation>無法將 %1 讀取到結尾：此處應為包含 CUPS 設定的小檔案。</translation>
    </message>
</context>
<context>
    <name>TemporaryFolder</name>
    <message>
        <source>No temporary files can be kept in %1: %2</source>
        <translation>無法在 %1 中儲存暫存檔案：%2</translation>
    </message>
</context>
<context>
    <name>TextSource</name>
    <message>
        <source>it has become shorter meanwhile</source>
        <translation>讀取期間檔案變短了</translation>
    </message>
</context>
<context>
    <name>Finishings</name>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>裝訂</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>打孔</translation>
    </message>
    <message>
        <source>Add Cover</source>
        <translation>加封面</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>膠裝</translation>
    </message>
    <message>
        <source>Saddle Stitch</source>
        <translation>騎馬釘</translation>
    </message>
    <message>
        <source>Edge Stitch</source>
        <translation>邊緣裝訂</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>摺疊</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>裁切</translation>
    </message>
    <message>
        <source>Bundle</source>
        <translation>打捆</translation>
    </message>
    <message>
        <source>Make Booklet</source>
        <translation>製作小冊子</translation>
    </message>
    <message>
        <source>Offset Sets</source>
        <translation>各份錯開堆放</translation>
    </message>
    <message>
        <source>Coat</source>
        <translation>塗層</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>護貝</translation>
    </message>
</context>
<context>
    <name>OwnInstances</name>
    <message>
        <source>“%1” is damaged. What was written for other programs before does not follow its presets any more.</source>
        <translation>「%1」已損壞。先前為其他程式寫入的設定不再隨其預設集更改。</translation>
    </message>
</context>
<context>
    <name>PresetInstances</name>
    <message>
        <source>“%1” in other programs: %2</source>
        <translation>其他程式中的「%1」：%2</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is from now on.</source>
        <translation>「%1」已被其他程式更改，今後將保持原樣。</translation>
    </message>
    <message>
        <source>Settings were changed while “%1” was saved: other programs have it as it was before. Save it again.</source>
        <translation>儲存「%1」期間設定已變更：其他程式中仍是先前的設定。請再次儲存。</translation>
    </message>
</context>
<context>
    <name>PresetReplacing</name>
    <message>
        <source>“%1” was saved elsewhere since it was selected here, and stays as it is there. Select it again, or keep your settings with “Save Preset…”.</source>
        <translation>「%1」在此處選擇後已在其他地方儲存，將保持原樣。請重新選擇它，或使用「儲存預設集…」儲存您的設定。</translation>
    </message>
</context>
<context>
    <name>Collation</name>
    <message>
        <source>two-sided copies are always collated on this printer</source>
        <translation>在此印表機上，雙面列印的多份一律自動分頁</translation>
    </message>
</context>
<context>
    <name>OtherQueues</name>
    <message>
        <source>The queue could not be read in time.</source>
        <translation>未能及時讀取佇列。</translation>
    </message>
</context>
</TS>
