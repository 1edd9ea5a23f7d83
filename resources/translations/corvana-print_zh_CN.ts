<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AlertPresenter</name>
    <message>
        <source>Do not show this message again</source>
        <translation>不再显示此消息</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the name of a document is missing.</source>
        <translation>缺少文档的名称。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lists what can be said.</source>
        <translation>运行 &quot;%1&quot; 可查看可以指定的内容。</translation>
    </message>
    <message>
        <source>%1 %2: a number from %3 to %4 was expected.</source>
        <translation>%1 %2：应为 %3 至 %4 的数字。</translation>
    </message>
    <message>
        <source>-P &quot;%1&quot;: pages and ranges in ascending order were expected, such as 1-4,7,9-.</source>
        <translation>-P &quot;%1&quot;：应为按升序排列的页和范围，例如 1-4,7,9-。</translation>
    </message>
    <message>
        <source>-H %1 is for a job that is in a queue already: use %2.</source>
        <translation>-H %1 用于已在队列中的作业：请使用 %2。</translation>
    </message>
    <message>
        <source>-H &quot;%1&quot;: hold, immediate, %2 was expected.</source>
        <translation>-H &quot;%1&quot;：允许的值：hold, immediate, %2。</translation>
    </message>
    <message>
        <source>--check-policy takes one printer and no document.</source>
        <translation>--check-policy 只接受一台打印机，不接受文档。</translation>
    </message>
    <message>
        <source>--server &quot;%1&quot;: HOST, HOST:PORT or the path of a socket was expected.</source>
        <translation>--server &quot;%1&quot;：应为 HOST、HOST:PORT 或套接字的路径。</translation>
    </message>
    <message>
        <source>--on-alert %1: print, hold or refuse was expected.</source>
        <translation>--on-alert %1：应为 print、hold 或 refuse。</translation>
    </message>
    <message>
        <source>--format %1: json or text was expected.</source>
        <translation>--format %1：应为 json 或 text。</translation>
    </message>
    <message>
        <source>-m: no mail is sent. What became of the job is said at the end, and by the exit status.</source>
        <translation>-m：不发送邮件。作业的结果会在结束时显示，也可从退出状态得知。</translation>
    </message>
    <message>
        <source>%1 &quot;&quot;: %2 is missing.</source>
        <translation>%1 &quot;&quot;：缺少 %2。</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined.</source>
        <translation>%1 和 %2 不能同时使用。</translation>
    </message>
    <message>
        <source>%1 is for runs without a window (--no-dialog).</source>
        <translation>%1 用于不打开窗口的运行 (--no-dialog)。</translation>
    </message>
    <message>
        <source>standard input cannot be the document and the password.</source>
        <translation>标准输入不能同时用作文档和密码。</translation>
    </message>
    <message>
        <source>--save-preset prints nothing: no document can be named.</source>
        <translation>--save-preset 不打印任何内容：不能指定文档。</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined: both write to standard output.</source>
        <translation>%1 和 %2 不能同时使用：两者都会写入标准输出。</translation>
    </message>
    <message>
        <source>-d &quot;%1&quot;: a URI like ipp://HOST/ipp/print was expected.</source>
        <translation>-d &quot;%1&quot;：应为类似 ipp://HOST/ipp/print 的 URI。</translation>
    </message>
    <message>
        <source>-o &quot;%1&quot;: KEY=VALUE was expected.</source>
        <translation>-o &quot;%1&quot;：应为 KEY=VALUE。</translation>
    </message>
    <message>
        <source>standard input (-) can be read once only.</source>
        <translation>标准输入 (-) 只能读取一次。</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>Prints a document with the settings of its printer, in a dialog or without one.</source>
        <translation>使用打印机的设置打印文档，可打开对话框，也可不打开。</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>选项：</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>参数：</translation>
    </message>
    <message>
        <source>The document: PDF, PostScript, text, PNG or JPEG; - is standard input. Several are one job.</source>
        <translation>文档：PDF、PostScript、文本、PNG 或 JPEG；- 表示标准输入。多个文档组成一个作业。</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>退出状态：</translation>
    </message>
    <message>
        <source>128 and a signal&apos;s number: ended by that signal</source>
        <translation>128 加信号编号：被该信号终止</translation>
    </message>
    <message>
        <source>Print to the printer NAME: a queue, an instance NAME/INSTANCE, or an IPP printer ipp://HOST/PATH.</source>
        <translation>在打印机 NAME 上打印：队列、实例 NAME/INSTANCE 或 IPP 打印机 ipp://HOST/PATH。</translation>
    </message>
    <message>
        <source>Use the queues of the print server HOST instead of the usual one.</source>
        <translation>使用打印服务器 HOST 的队列，而不是平常的服务器。</translation>
    </message>
    <message>
        <source>Speak to the print server with encryption only.</source>
        <translation>只通过加密连接与打印服务器通信。</translation>
    </message>
    <message>
        <source>Print as the user USER.</source>
        <translation>以用户 USER 的身份打印。</translation>
    </message>
    <message>
        <source>Take the password from the first line of FILE, which nobody but its owner may read; nobody is asked.</source>
        <translation>从文件 FILE 的第一行读取密码，该文件只有所有者可以读取；不再询问。</translation>
    </message>
    <message>
        <source>The same from the open file descriptor N (0 is standard input).</source>
        <translation>同上，从已打开的文件描述符 N 读取（0 是标准输入）。</translation>
    </message>
    <message>
        <source>Open protected PDF documents with the password in the first line of FILE, which nobody but its owner may read.</source>
        <translation>使用文件 FILE 第一行的密码打开受保护的 PDF 文档，该文件只有所有者可以读取。</translation>
    </message>
    <message>
        <source>Print for the printer that the PPD FILE describes.</source>
        <translation>为 PPD 文件 FILE 所描述的打印机打印。</translation>
    </message>
    <message>
        <source>Write the printer-ready data to FILE; - is standard output.</source>
        <translation>将可直接打印的数据写入 FILE；- 表示标准输出。</translation>
    </message>
    <message>
        <source>Offer the sample printers.</source>
        <translation>提供示例打印机。</translation>
    </message>
    <message>
        <source>List the printers and exit.</source>
        <translation>列出打印机并退出。</translation>
    </message>
    <message>
        <source>Start with the settings of the preset NAME; -o counts more.</source>
        <translation>以预设 NAME 的设置开始；-o 优先。</translation>
    </message>
    <message>
        <source>List the presets and exit.</source>
        <translation>列出预设并退出。</translation>
    </message>
    <message>
        <source>Keep the settings of the printer, those of -o among them, as the preset NAME, and exit. A preset of that name is replaced.</source>
        <translation>将打印机的设置（包括 -o 的设置）保存为预设 NAME 并退出。同名的预设会被替换。</translation>
    </message>
    <message>
        <source>Say what the administrator&apos;s policy decides, and where, for the printer that is named behind it or by -d; as root with -U for another user. Exit with status 1 when something of it is not used.</source>
        <translation>显示管理员的策略对其后或用 -d 指定的打印机作了哪些规定以及在何处规定；root 可用 -U 查询其他用户。其中有未被采用的内容时，退出状态为 1。</translation>
    </message>
    <message>
        <source>Print a job of many sheets without being asked.</source>
        <translation>打印纸张较多的作业时不再询问。</translation>
    </message>
    <message>
        <source>Set an option of the printer or of the job; may be repeated.</source>
        <translation>设置打印机或作业的选项；可重复使用。</translation>
    </message>
    <message>
        <source>Print N copies (1 to %1).</source>
        <translation>打印 N 份（1 至 %1）。</translation>
    </message>
    <message>
        <source>Print these pages (1-4,7,9-), as -o page-ranges= does.</source>
        <translation>打印这些页 (1-4,7,9-)，与 -o page-ranges= 相同。</translation>
    </message>
    <message>
        <source>Give the job this priority (1 to 100), as -o job-priority= does.</source>
        <translation>为作业指定此优先级（1 至 100），与 -o job-priority= 相同。</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, a time HH:MM (UTC), or what -o job-hold-until= takes.</source>
        <translation>何时打印：hold、immediate、时间 HH:MM (UTC)，或 -o job-hold-until= 接受的值。</translation>
    </message>
    <message>
        <source>Do not say which job was printed, only what went wrong.</source>
        <translation>不显示打印了哪个作业，只显示出现的问题。</translation>
    </message>
    <message>
        <source>Does nothing: the document is always copied to the queue.</source>
        <translation>不起作用：文档总会复制到队列。</translation>
    </message>
    <message>
        <source>Is refused: no mail is sent.</source>
        <translation>会被拒绝：不发送邮件。</translation>
    </message>
    <message>
        <source>Name the job TEXT.</source>
        <translation>将作业命名为 TEXT。</translation>
    </message>
    <message>
        <source>Print without a window.</source>
        <translation>不打开窗口打印。</translation>
    </message>
    <message>
        <source>Write the settings of the job to standard output.</source>
        <translation>将作业的设置写入标准输出。</translation>
    </message>
    <message>
        <source>Without a window: keep the settings in lpoptions as an instance of the queue, so that lp -d QUEUE/NAME and other programs print with them.</source>
        <translation>不打开窗口：将设置作为队列的实例保存到 lpoptions 中，使 lp -d QUEUE/NAME 和其他程序按这些设置打印。</translation>
    </message>
    <message>
        <source>Without a window: what to do when the printer&apos;s settings show instructions: print, hold or refuse. Usually a queue holds the job, and a file is printed.</source>
        <translation>不打开窗口：打印机设置显示说明时的处理方式：print、hold 或 refuse。通常队列会保留作业，打印到文件则直接进行。</translation>
    </message>
    <message>
        <source>Without a window: end when the queue has the job, not when it is printed.</source>
        <translation>不打开窗口：队列接收作业后即结束，不等待打印完成。</translation>
    </message>
    <message>
        <source>Without a window: follow the job for SECONDS at most once its queue has it, then leave it there.</source>
        <translation>不打开窗口：队列接收作业后最多跟踪 SECONDS 秒，然后将其留在队列中。</translation>
    </message>
    <message>
        <source>Without a window: json writes what became of the job to standard output, as one line that a program can read; text is what people read.</source>
        <translation>不打开窗口：json 将作业的结果以程序可读取的一行写入标准输出；text 是供人阅读的内容。</translation>
    </message>
    <message>
        <source>Also trust the plug-in bundles in the folder DIR.</source>
        <translation>同时信任文件夹 DIR 中的插件包。</translation>
    </message>
    <message>
        <source>Exit with status 0 when a window can be shown, with 1 when not.</source>
        <translation>可以显示窗口时以状态 0 退出，否则以 1 退出。</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>With --save-instance: make such an instance of these queues as well, with what each of them needs to print the same.</source>
        <translation>与 --save-instance 一起使用：也为这些队列创建这样的实例，并包含各队列打印出相同结果所需的内容。</translation>
    </message>
    <message>
        <source>--also-on: the name of the instance is missing, as in --save-instance reports.</source>
        <translation>--also-on：缺少实例的名称，例如 --save-instance reports。</translation>
    </message>
</context>
<context>
    <name>CupsFilter</name>
    <message>
        <source>The program %1, named by CORVANA_PRINT_CUPSFILTER, cannot be run.</source>
        <translation>无法运行 CORVANA_PRINT_CUPSFILTER 指定的程序 %1。</translation>
    </message>
    <message>
        <source>The program cupsfilter was found neither on the path nor in /usr/sbin. It comes with CUPS (on Debian the package “cups”).</source>
        <translation>在路径和 /usr/sbin 中都找不到程序 cupsfilter。它包含在 CUPS 中（Debian 的软件包为“cups”）。</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>PDF document</source>
        <translation>PDF 文档</translation>
    </message>
    <message>
        <source>PostScript document</source>
        <translation>PostScript 文档</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>PNG 图片</translation>
    </message>
    <message>
        <source>JPEG picture</source>
        <translation>JPEG 图片</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>%1: there is no such file.</source>
        <translation>%1：没有此文件。</translation>
    </message>
    <message>
        <source>%1 is a folder; a document was expected.</source>
        <translation>%1 是文件夹，请指定文档。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 是空文件。</translation>
    </message>
    <message>
        <source>%1 cannot be printed: nobody can tell what is in it. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>无法打印 %1（内容未知）。可打印的文档为 PDF、PostScript、文本、PNG 和 JPEG。</translation>
    </message>
    <message>
        <source>%1 cannot be printed; its contents: %2. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>无法打印 %1（内容为 %2）。可打印的文档为 PDF、PostScript、文本、PNG 和 JPEG。</translation>
    </message>
    <message>
        <source>%1 is named like a %2, but holds a %3. Rename it if that is right.</source>
        <translation>%1 的名称表示它是 %2，但内容是 %3。如内容正确，请重命名。</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>%1 cannot be kept: %2</source>
        <translation>无法保存 %1：%2</translation>
    </message>
    <message>
        <source>%1 is no ordinary file; a document was expected.</source>
        <translation>%1 不是普通文件；请指定文档。</translation>
    </message>
    <message>
        <source>%1 cannot be read: nobody writes into it.</source>
        <translation>无法读取 %1：没有程序向其中写入。</translation>
    </message>
    <message>
        <source>%1 cannot be kept: it has more than %2 bytes.</source>
        <translation>无法保存 %1：超过了 %2 字节。</translation>
    </message>
<message>
        <source>%1 cannot be printed: it holds data that are ready for a printer. A queue passes them on as they are with the option “raw”.</source>
        <translation>无法打印 %1：其内容是已为打印机准备好的数据。使用选项“raw”时，队列会原样传递。</translation>
    </message>
</context>
<context>
    <name>ExitStatus</name>
    <message>
        <source>printed, sent, or in the queue with the reason why it waits there</source>
        <translation>已打印、已发送，或在队列中并说明等待的原因</translation>
    </message>
    <message>
        <source>refused, failed or canceled</source>
        <translation>被拒绝、失败或已取消</translation>
    </message>
    <message>
        <source>a command line that cannot be understood</source>
        <translation>无法理解的命令行</translation>
    </message>
    <message>
        <source>sent, and what became of it is not known</source>
        <translation>已发送，但结果未知</translation>
    </message>
    <message>
        <source>the time of --wait is over; the job is still in the queue</source>
        <translation>--wait 的时间已到；作业仍在队列中</translation>
    </message>
</context>
<context>
    <name>HttpLine</name>
    <message>
        <source>The password is sent to “%1” without encryption: others in the network can read it. “-E” encrypts.</source>
        <translation>密码将不加密地发送到“%1”：网络中的其他人可以读取它。使用“-E”可加密。</translation>
    </message>
</context>
<context>
    <name>JobAttributes</name>
    <message>
        <source>Pages per Sheet</source>
        <translation>每张页数</translation>
    </message>
    <message>
        <source>Order on the Sheet</source>
        <translation>纸张上的排列顺序</translation>
    </message>
    <message>
        <source>Border Around Pages</source>
        <translation>页面边框</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Odd and Even Pages</source>
        <translation>奇数页和偶数页</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Fit to Page</source>
        <translation>适合页面</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Size on the Page, in %</source>
        <translation>相对于页面的大小 (%)</translation>
    </message>
    <message>
        <source>Size of the Picture, in %</source>
        <translation>图片大小 (%)</translation>
    </message>
    <message>
        <source>Pixels per Inch</source>
        <translation>每英寸像素数</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>Left Margin</source>
        <translation>左边距</translation>
    </message>
    <message>
        <source>Right Margin</source>
        <translation>右边距</translation>
    </message>
    <message>
        <source>Top Margin</source>
        <translation>上边距</translation>
    </message>
    <message>
        <source>Bottom Margin</source>
        <translation>下边距</translation>
    </message>
    <message>
        <source>Characters per Inch</source>
        <translation>每英寸字符数</translation>
    </message>
    <message>
        <source>Lines per Inch</source>
        <translation>每英寸行数</translation>
    </message>
    <message>
        <source>Columns of Text</source>
        <translation>文本栏数</translation>
    </message>
    <message>
        <source>Long Lines Continue</source>
        <translation>长行换行</translation>
    </message>
    <message>
        <source>Headers on Text Pages</source>
        <translation>文本页眉</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>逐份打印</translation>
    </message>
    <message>
        <source>Output Order</source>
        <translation>输出顺序</translation>
    </message>
    <message>
        <source>Hold Until</source>
        <translation>保留至</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>优先级</translation>
    </message>
    <message>
        <source>Banner Pages</source>
        <translation>封面页</translation>
    </message>
    <message>
        <source>Billed To</source>
        <translation>计费对象</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>Reverse Landscape</source>
        <translation>反向横向</translation>
    </message>
    <message>
        <source>Reverse Portrait</source>
        <translation>反向纵向</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Odd Pages Only</source>
        <translation>仅奇数页</translation>
    </message>
    <message>
        <source>Even Pages Only</source>
        <translation>仅偶数页</translation>
    </message>
    <message>
        <source>First Page First</source>
        <translation>从首页开始</translation>
    </message>
    <message>
        <source>Last Page First</source>
        <translation>从末页开始</translation>
    </message>
    <message>
        <source>Until It Is Released</source>
        <translation>直到释放为止</translation>
    </message>
    <message>
        <source>%1 UTC</source>
        <translation>%1 UTC</translation>
    </message>
    <message>
        <source>%1 UTC (%2 here)</source>
        <translation>%1 UTC（本地时间 %2）</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
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
        <translation>标准</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Canceled After, in Seconds</source>
        <translation>超时后取消（秒）</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>颜色模式</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>a resolution such as 600dpi or 1200x600dpi</source>
        <translation>分辨率，例如 600dpi 或 1200x600dpi</translation>
    </message>
    <message>
        <source>Output Bin</source>
        <translation>出纸盒</translation>
    </message>
    <message>
        <source>the name of an output bin</source>
        <translation>出纸盒的名称</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>后处理</translation>
    </message>
    <message>
        <source>numbers or names of finishings</source>
        <translation>后处理的编号或名称</translation>
    </message>
    <message>
        <source>Paper Source</source>
        <translation>纸张来源</translation>
    </message>
    <message>
        <source>the name of a paper source</source>
        <translation>纸张来源的名称</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>介质类型</translation>
    </message>
    <message>
        <source>the name of a media type</source>
        <translation>介质类型的名称</translation>
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
        <translation>无</translation>
    </message>
    <message>
        <source>Thin Line</source>
        <translation>细线</translation>
    </message>
    <message>
        <source>Thick Line</source>
        <translation>粗线</translation>
    </message>
    <message>
        <source>Two Thin Lines</source>
        <translation>双细线</translation>
    </message>
    <message>
        <source>Two Thick Lines</source>
        <translation>双粗线</translation>
    </message>
    <message>
        <source>Fill Paper</source>
        <translation>填满纸张</translation>
    </message>
    <message>
        <source>Fit to Paper</source>
        <translation>适合纸张</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>实际大小</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>居中</translation>
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
        <translation>立即打印</translation>
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
        <translation>夜间</translation>
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
        <translation>周末</translation>
    </message>
    <message>
        <source>points of 1/72 inch</source>
        <translation>点（1/72 英寸）</translation>
    </message>
    <message>
        <source>pages and ranges in ascending order, such as 1-4,7,9-</source>
        <translation>按升序排列的页码和范围，例如 1-4,7,9-</translation>
    </message>
    <message>
        <source>a time HH:MM in UTC</source>
        <translation>时间 HH:MM (UTC)</translation>
    </message>
    <message>
        <source>one or two names of banner pages</source>
        <translation>一个或两个封面页的名称</translation>
    </message>
    <message>
        <source>a text of up to 255 bytes</source>
        <translation>最多 255 字节的文本</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
<message>
        <source>Bound at the Left</source>
        <translation>左侧装订</translation>
    </message>
    <message>
        <source>Bound at the Right</source>
        <translation>右侧装订</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小册子</translation>
    </message>
    <message>
        <source>Each Page, Times on a Side</source>
        <translation>每面重复同一页的次数</translation>
    </message>
<message>
        <source>Fit All Pages If One Is Too Large</source>
        <translation>有页面超出时使所有页面适合纸张</translation>
    </message>
    <message>
        <source>One-Sided</source>
        <translation>单面</translation>
    </message>
    <message>
        <source>Long Edge (by Hand)</source>
        <translation>长边（手动）</translation>
    </message>
    <message>
        <source>Short Edge (by Hand)</source>
        <translation>短边（手动）</translation>
    </message>
    <message>
        <source>Printed Side Down</source>
        <translation>打印面朝下</translation>
    </message>
    <message>
        <source>Printed Side Up</source>
        <translation>打印面朝上</translation>
    </message>
    <message>
        <source>Two-Sided</source>
        <translation>双面打印</translation>
    </message>
    <message>
        <source>Sheets Are Put Back</source>
        <translation>放回纸张的方式</translation>
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
    <name>JobRequests</name>
    <message>
        <source>The value of “%1” is too long for a print server; at most %2 bytes can be sent.</source>
        <translation>“%1”的值过长，无法发送到打印服务器；最多可发送 %2 字节。</translation>
    </message>
    <message>
        <source>The value of “%1” has characters that a print server would drop: no line breaks, no “{” in front.</source>
        <translation>“%1”的值包含打印服务器会丢弃的字符：不能换行，不能以“{”开头。</translation>
    </message>
</context>
<context>
    <name>LeftSession</name>
    <message>
        <source>This printer has no option of the name %1 any more.</source>
        <translation>此打印机不再有名为 %1 的选项。</translation>
    </message>
    <message>
        <source>The option %1 has no choice %2 any more.</source>
        <translation>选项 %1 不再有 %2 这个选择。</translation>
    </message>
</context>
<context>
    <name>OptionRequest</name>
    <message>
        <source>this printer has no such option. Options: %1. Job attributes: %2.</source>
        <translation>此打印机没有此选项。选项：%1。作业属性：%2。</translation>
    </message>
    <message>
        <source>this value is not allowed. Allowed: %1.</source>
        <translation>不允许使用此值。允许的值：%1。</translation>
    </message>
    <message>
        <source>this printer has no paper sizes to choose from.</source>
        <translation>此打印机没有可选的纸张尺寸。</translation>
    </message>
    <message>
        <source>%1: the printer's settings do not allow this here; it became %2.</source>
        <translation>%1：打印机设置不允许在此使用，已变为 %2。</translation>
    </message>
    <message>
        <source>%1: this cannot be combined with %2.</source>
        <translation>%1：不能与 %2 同时使用。</translation>
    </message>
    <message>
        <source>%1=Custom: a value is missing. Allowed: %2.</source>
        <translation>%1=Custom：缺少值。允许的值：%2。</translation>
    </message>
    <message>
        <source>%1: this value is not allowed. Allowed: %2.</source>
        <translation>%1：不允许使用此值。允许的值：%2。</translation>
    </message>
    <message>
        <source>1 to %1</source>
        <translation>1 至 %1</translation>
    </message>
    <message>
        <source>%1: the printer's options cannot be set to this value.</source>
        <translation>%1：无法将打印机的选项设置为此值。</translation>
    </message>
    <message>
        <source>this printer has nothing to choose from for this.</source>
        <translation>此打印机对此没有可供选择的项目。</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>不允许使用“%1”。允许的值：%2。</translation>
    </message>
<message>
        <source>this printer prints on one side only. Allowed: %1. Two sides by hand: %2=%3, %2=%4.</source>
        <translation>此打印机只能单面打印。允许的值：%1。手动双面：%2=%3、%2=%4。</translation>
    </message>
    <message>
        <source>this printer turns sheets over itself. Allowed: %1=no; for two sides use %2.</source>
        <translation>此打印机会自动翻转纸张。允许的值：%1=no；双面打印请使用 %2。</translation>
    </message>
</context>
<context>
    <name>PasswordFile</name>
    <message>
        <source>The password cannot be read from %1: %2.</source>
        <translation>无法从 %1 读取密码：%2。</translation>
    </message>
    <message>
        <source>The first line of %1 is empty; a password was expected.</source>
        <translation>%1 的第一行为空；此处应为密码。</translation>
    </message>
    <message>
        <source>The first line of %1 is no password: at most %2 bytes of UTF-8 were expected.</source>
        <translation>%1 的第一行不是密码：应为最多 %2 字节的 UTF-8 文本。</translation>
    </message>
    <message>
        <source>The password cannot be read from %1: it is no file.</source>
        <translation>无法从 %1 读取密码：它不是文件。</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: the file belongs to somebody else.</source>
        <translation>不使用 %1 中的密码：该文件属于其他用户。</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: others than its owner may use the file (its mode is %2; chmod 600 takes that away).</source>
        <translation>不使用 %1 中的密码：所有者以外的用户也能访问该文件（权限为 %2；chmod 600 可取消）。</translation>
    </message>
    <message>
        <source>descriptor %1</source>
        <translation>描述符 %1</translation>
    </message>
</context>
<context>
    <name>ChoiceCodes</name>
    <message>
        <source>%1 cannot be sent to the printer: its PPD does not say in a usable way how that is done.</source>
        <translation>无法将%1发送到打印机：其 PPD 没有正确说明发送方法。</translation>
    </message>
</context>
<context>
    <name>PpdBounds</name>
    <message>
        <source>There is too much in it: more than %1 lines that begin with “%2”.</source>
        <translation>内容过多：以“%2”开头的行超过 %1 行。</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices of all options together. “%2” has the most.</source>
        <translation>内容过多：所有选项的设定值合计超过 %1 个。“%2”的设定值最多。</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 lines that belong to no option. The most frequent is “%2”.</source>
        <translation>内容过多：不属于任何选项的行超过 %1 行。其中最多的是“%2”。</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 different keywords.</source>
        <translation>内容过多：不同的关键字超过 %1 个。</translation>
    </message>
    <message>
        <source>It is no ordinary file.</source>
        <translation>不是普通文件。</translation>
    </message>
    <message>
        <source>It is larger than %1 MB.</source>
        <translation>大小超过 %1 MB。</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in one line that begins with “%2”.</source>
        <translation>内容过多：以“%2”开头的一行中有超过 %1 个设定值。</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in lines that begin with “%2”.</source>
        <translation>内容过多：以“%2”开头的行中有超过 %1 个设定值。</translation>
    </message>
    <message>
        <source>There is too much in it: its constraints name %1 choices. Beside as many options and choices as it has, %2 are allowed.</source>
        <translation>内容过多：其约束条件中列出了 %1 个设定值。选项和设定值有这么多时，最多允许 %2 个。</translation>
    </message>
</context>
<context>
    <name>PpdCopy</name>
    <message>
        <source>The printer's options cannot be written to %1: %2</source>
        <translation>无法将打印机选项写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>PpdFilters</name>
    <message>
        <source>The driver of this printer names the file “%1”, which only a print server may open. Print on the printer itself instead of into a file.</source>
        <translation>此打印机的驱动程序指定了文件“%1”，而该文件只能由打印服务器打开。请直接在打印机上打印，不要打印到文件。</translation>
    </message>
    <message>
        <source>The driver of this printer needs the program “%1”, which only a print server may run. Print on the printer itself instead of into a file.</source>
        <translation>此打印机的驱动程序需要程序“%1”，而该程序只能由打印服务器运行。请直接在打印机上打印，不要打印到文件。</translation>
    </message>
</context>
<context>
    <name>PrinterFetching</name>
<message>
        <source>Save as PDF</source>
        <translation>另存为 PDF</translation>
    </message>
</context>
<context>
    <name>PrinterTexts</name>
    <message>
        <source>connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>机盖打开</translation>
    </message>
    <message>
        <source>driver not trusted by the server</source>
        <translation>服务器不信任驱动程序</translation>
    </message>
    <message>
        <source>driver missing on the server</source>
        <translation>服务器上缺少驱动程序</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>已关闭电源</translation>
    </message>
    <message>
        <source>developer used up</source>
        <translation>显影剂用尽</translation>
    </message>
    <message>
        <source>developer low</source>
        <translation>显影剂不足</translation>
    </message>
    <message>
        <source>door open</source>
        <translation>机门打开</translation>
    </message>
    <message>
        <source>fuser too hot</source>
        <translation>定影器温度过高</translation>
    </message>
    <message>
        <source>fuser too cold</source>
        <translation>定影器温度过低</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>新作业将被保留</translation>
    </message>
    <message>
        <source>tray missing</source>
        <translation>缺少纸盒</translation>
    </message>
    <message>
        <source>ink or toner used up</source>
        <translation>墨水或墨粉用尽</translation>
    </message>
    <message>
        <source>ink or toner low</source>
        <translation>墨水或墨粉不足</translation>
    </message>
    <message>
        <source>waste container almost full</source>
        <translation>废粉盒将满</translation>
    </message>
    <message>
        <source>waste container full</source>
        <translation>废粉盒已满</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>缺纸</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>卡纸</translation>
    </message>
    <message>
        <source>paper low</source>
        <translation>纸张不足</translation>
    </message>
    <message>
        <source>paper needed</source>
        <translation>需要装纸</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>正在暂停</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>drum used up</source>
        <translation>感光鼓寿命已尽</translation>
    </message>
    <message>
        <source>drum nearly used up</source>
        <translation>感光鼓寿命将尽</translation>
    </message>
    <message>
        <source>output tray almost full</source>
        <translation>出纸盒将满</translation>
    </message>
    <message>
        <source>output tray full</source>
        <translation>出纸盒已满</translation>
    </message>
    <message>
        <source>output tray missing</source>
        <translation>缺少出纸盒</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>print queue full</source>
        <translation>打印队列已满</translation>
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
        <translation>无响应</translation>
    </message>
    <message>
        <source>toner used up</source>
        <translation>墨粉用尽</translation>
    </message>
    <message>
        <source>toner low</source>
        <translation>墨粉不足</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>正在打印</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Prints to a file</source>
        <translation>打印到文件</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the words of a printer's state</comment>
        <translation>，</translation>
    </message>
    <message>
        <source>No longer available</source>
        <translation>不再可用</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>已停止：%1</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>不接受作业</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>不接受作业</translation>
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
        <translation>名称：%1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>位置：%1</translation>
    </message>
    <message>
        <source>Model: %1</source>
        <translation>型号：%1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <translation>状态：%1</translation>
    </message>
    <message>
        <source>Message: %1</source>
        <translation>消息：%1</translation>
    </message>
    <message>
        <source>Address: %1</source>
        <translation>地址：%1</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>未知选项 &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>未知选项：%1。</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>&quot;%1&quot; 后缺少值。</translation>
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
        <translation>“%1：%2”</translation>
    </message>
    <message>
        <source> and </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%1 cannot be combined with %2.</source>
        <translation>%1不能与%2同时使用。</translation>
    </message>
    <message>
        <source>Change to %1</source>
        <translation>更改为%1</translation>
    </message>
    <message>
        <source>The printer's options cannot be set to %1.</source>
        <translation>无法将打印机的选项设置为%1。</translation>
    </message>
</context>
<context>
    <name>RequestFromCommandLine</name>
    <message>
        <source>%1: the name is not written in UTF-8.</source>
        <translation>%1：名称不是 UTF-8 编码。</translation>
    </message>
</context>
<context>
    <name>ResultFile</name>
    <message>
        <source>%1 is a folder; the name of a file was expected.</source>
        <translation>%1 是文件夹，请指定文件名。</translation>
    </message>
    <message>
        <source>%1 is a device or a pipe; the name of a file was expected.</source>
        <translation>%1 是设备或管道，请指定文件名。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>%1 was written by another program meanwhile, and is left as it is. Print again to replace it, or name another file.</source>
        <translation>%1 在此期间已被另一个程序写入，因此保持原样。要替换它，请重新打印，或指定另一个文件。</translation>
    </message>
</context>
<context>
    <name>ServerAddress</name>
    <message>
        <source>this computer</source>
        <translation>本机</translation>
    </message>
</context>
<context>
    <name>ServerJob</name>
    <message>
        <source>%1 The queue “%2” has no driver, and would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1队列“%2”没有驱动程序，会将文档连续发送。因此每个文档是一个单独的作业：%3。</translation>
    </message>
    <message>
        <source>%1 With “raw” the queue “%2” would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1使用“raw”时，队列“%2”会将文档连续发送。因此每个文档是一个单独的作业：%3。</translation>
    </message>
    <message>
        <source>Job %1 was canceled or given up at the printer or its server.</source>
        <translation>作业 %1 已在打印机或其服务器上被取消或放弃。</translation>
    </message>
    <message>
        <source>Job %1 is still in the queue.</source>
        <translation>作业 %1 仍在队列中。</translation>
    </message>
    <message>
        <source>%1 Documents that were sent before, each as a job of its own: %2 of %3. Printing again sends the others.</source>
        <translation>%1之前已作为单独作业发送的文档：%3 个中的 %2 个。再次打印会发送其余文档。</translation>
    </message>
    <message>
        <source>Job %1 was canceled; pages that the printer has already may still come out.</source>
        <translation>作业 %1 已取消；打印机已收到的页面可能仍会打印出来。</translation>
    </message>
    <message>
        <source>%1 The printer says: %2</source>
        <translation>%1打印机的消息：%2</translation>
    </message>
    <message>
        <source>The printer “%1” wants a user and a password; none was given. Nothing was printed.</source>
        <translation>打印机“%1”需要用户名和密码，但未输入。没有打印任何内容。</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>已取消打印。</translation>
    </message>
    <message>
        <source>The queue “%1” is not there any more. Nothing was printed.</source>
        <translation>队列“%1”已不存在。没有打印任何内容。</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment. Nothing was printed.</source>
        <translation>队列“%1”目前不接受作业。没有打印任何内容。</translation>
    </message>
    <message>
        <source>%1 Nothing was printed.</source>
        <translation>%1没有打印任何内容。</translation>
    </message>
    <message>
        <source>%1 Whether job %2 of the earlier try was printed is not known yet, so nothing was sent again.</source>
        <translation>%1尚不知上次的作业 %2 是否已打印，因此没有再次发送。</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has been printed.</source>
        <translation>上次的作业 %1 已打印。</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is in the queue and will be printed.</source>
        <translation>上次的作业 %1 在队列中，将会打印。</translation>
    </message>
    <message>
        <source>The options of the printer “%1” have changed at its server. Nothing was printed.</source>
        <translation>打印机“%1”的选项已在服务器上更改。没有打印任何内容。</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; pages that the printer has already may still come out.</source>
        <translation>%1作业 %2 已取消；已发送到打印机的页面可能仍会打印出来。</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; nothing was printed.</source>
        <translation>%1作业 %2 已取消；没有打印任何内容。</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server, without its whole document. It could not be canceled: %3</source>
        <translation>%1作业 %2 可能仍在打印服务器上，但文档不完整。无法取消该作业：%3</translation>
    </message>
    <message>
        <source>%1 The print server does not know job %2 any more. It was probably not printed.</source>
        <translation>%1打印服务器上已没有作业 %2 的记录。该作业很可能未打印。</translation>
    </message>
    <message>
        <source>%1 The document had been sent, so job %2 may be printed or not. Printing again looks for it first.</source>
        <translation>%1文档已发送，因此作业 %2 可能已打印，也可能未打印。再次打印时会先查找该作业。</translation>
    </message>
    <message>
        <source>Job %1 was stopped. It is still in the queue, where it can be released or canceled.</source>
        <translation>作业 %1 已停止。它仍在队列中，可以释放或取消。</translation>
    </message>
    <message>
        <source>Job %1 is held in the queue “%2”.</source>
        <translation>作业 %1 在队列“%2”中保留。</translation>
    </message>
    <message>
        <source>Job %1 waits in the queue “%2”, which is stopped.</source>
        <translation>作业 %1 正在队列“%2”中等待，该队列已停止。</translation>
    </message>
    <message>
        <source>Job %1 is in the queue “%2”.</source>
        <translation>作业 %1 在队列“%2”中。</translation>
    </message>
    <message>
        <source>Job %1 was handed over completely. %2 So whether it has been printed is not known.</source>
        <translation>作业 %1 已完整发送。%2因此不知道是否已打印。</translation>
    </message>
    <message>
        <source>The print server gives job %1 the state %2, which is not known.</source>
        <translation>打印服务器给出的作业 %1 的状态 %2 是未知状态。</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. Whether anything was on its pages is not known.</source>
        <translation>已作为作业 %2 发送到“%1”。不知道页面上是否有内容。</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. That queue passes files on as they are: what was set for the printer or the pages had no effect there.</source>
        <translation>已作为作业 %2 发送到“%1”。该队列会原样传送文件：为打印机或页面所做的设置在那里没有生效。</translation>
    </message>
    <message>
        <source>Printed on “%1” as job %2.</source>
        <translation>已在“%1”上作为作业 %2 打印。</translation>
    </message>
    <message>
        <source>Job %1 was canceled at the printer or its server.</source>
        <translation>作业 %1 已在打印机或其服务器上取消。</translation>
    </message>
    <message>
        <source>Job %1 failed: the printer or its server gave it up.</source>
        <translation>作业 %1 失败：打印机或其服务器已放弃处理。</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>正在准备…</translation>
    </message>
    <message>
        <source>Sending, %1 %…</source>
        <translation>正在发送，%1 %…</translation>
    </message>
    <message>
        <source>Waiting in the queue…</source>
        <translation>正在队列中等待…</translation>
    </message>
    <message>
        <source>Held in the queue</source>
        <translation>在队列中保留</translation>
    </message>
    <message>
        <source>Printing page %1…</source>
        <translation>正在打印第 %1 页…</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>正在打印…</translation>
    </message>
    <message>
        <source>The printer is stopped.</source>
        <translation>打印机已停止。</translation>
    </message>
    <message>
        <source>The printer is stopped: %1</source>
        <translation>打印机已停止：%1</translation>
    </message>
    <message>
        <source>Asking the print server…</source>
        <translation>正在查询打印服务器…</translation>
    </message>
    <message>
        <source>%1 Job %2 could not be canceled and may still be printed. %3</source>
        <translation>%1无法取消作业 %2，仍可能会打印。%3</translation>
    </message>
    <message>
        <source>The printer “%1” does not accept this user and password.</source>
        <translation>打印机“%1”不接受此用户名和密码。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>无法读取 %1：%2。</translation>
    </message>
    <message>
        <source>The print server did not say which job it has made.</source>
        <translation>打印服务器未告知所创建的作业编号。</translation>
    </message>
    <message>
        <source>%1 Nothing was printed, but a job without a document may be at the print server. It could not be looked for: %2</source>
        <translation>%1没有打印任何内容，但打印服务器上可能留有一个没有文档的作业。无法查找该作业：%2</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is held in the queue.</source>
        <translation>上次的作业 %1 在队列中保留。</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is stopped in the queue.</source>
        <translation>上次的作业 %1 在队列中已停止。</translation>
    </message>
    <message>
        <source>Job %1 could not be canceled and may still be printed. %2</source>
        <translation>无法取消作业 %1，它仍可能被打印。%2</translation>
    </message>
    <message>
        <source>%1 The job had been moved from the queue “%2” to “%3”.</source>
        <translation>%1该作业已从队列“%2”移到“%3”。</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment: %2. Nothing was printed.</source>
        <translation>队列“%1”目前不接受作业：%2。没有打印任何内容。</translation>
    </message>
    <message>
        <source>Job %1 has left the queue “%2”, whose server keeps no record of it. So whether it has been printed is not known.</source>
        <translation>作业 %1 已离开队列“%2”，服务器没有保留其记录。因此不知道是否已打印。</translation>
    </message>
    <message>
        <source>Job %1 was handed over to the queue “%2”.</source>
        <translation>作业 %1 已交给队列“%2”。</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has got %2 of its %3 documents to the printer. Print the others by themselves, or everything once more.</source>
        <translation>上次的作业 %1 已将 %3 个文档中的 %2 个送到打印机。请单独打印其余文档，或全部重新打印。</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server with some of its documents, and may print these. It could not be canceled: %3 Printing again looks for it first.</source>
        <translation>%1作业 %2 可能仍带着部分文档留在打印服务器上，并可能打印这些文档。无法取消它：%3 再次打印时会先查找该作业。</translation>
    </message>
    <message>
        <source>Job %1 was printed with %2 of its %3 documents only.</source>
        <translation>作业 %1 只打印了 %3 个文档中的 %2 个。</translation>
    </message>
<message>
        <source>First sides: %1</source>
        <translation>第一面：%1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>另一面：%1</translation>
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
        <translation>无法连接打印服务器“%1”。</translation>
    </message>
    <message>
        <source>The print server “%1” does not answer.</source>
        <translation>打印服务器“%1”没有响应。</translation>
    </message>
    <message>
        <source>The print server “%1” broke the connection.</source>
        <translation>打印服务器“%1”断开了连接。</translation>
    </message>
    <message>
        <source>What “%1” answers is not what a print server says.</source>
        <translation>“%1”的响应不是打印服务器的响应。</translation>
    </message>
    <message>
        <source>What “%1” answers is larger than anything that a print server has to say.</source>
        <translation>“%1”的响应过大，不可能是打印服务器的响应。</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>打印服务器“%1”需要用户名和密码。</translation>
    </message>
    <message>
        <source>The print server “%1” does not accept this user and password.</source>
        <translation>打印服务器“%1”不接受此用户名和密码。</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password; none was given.</source>
        <translation>打印服务器“%1”需要用户名和密码，但未输入。</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints, in a way that is not possible here.</source>
        <translation>打印服务器“%1”要求确认用户身份，但此处不支持所要求的方式。</translation>
    </message>
    <message>
        <source>The print server “%1” does not allow you this.</source>
        <translation>打印服务器“%1”不允许您执行此操作。</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not to be trusted.</source>
        <translation>打印服务器“%1”的证书不可信。</translation>
    </message>
    <message>
        <source>The print server “%1” wants an encrypted connection, which could not be made.</source>
        <translation>打印服务器“%1”要求加密连接，但无法建立。</translation>
    </message>
    <message>
        <source>The print server “%1” knows nothing of it.</source>
        <translation>打印服务器“%1”上没有此项。</translation>
    </message>
    <message>
        <source>The print server “%1” refuses.</source>
        <translation>打印服务器“%1”已拒绝。</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not the one that it had before: somebody has replaced it, or stands in between. If it was replaced on purpose, remove the file %2.</source>
        <translation>打印服务器“%1”的证书与以前不同：证书已被更换，或有人介入了通信。如果是有意更换，请删除文件 %2。</translation>
    </message>
    <message>
        <source>“%1” cannot be reached.</source>
        <translation>无法连接“%1”。</translation>
    </message>
    <message>
        <source>No answer from “%1”.</source>
        <translation>“%1”没有响应。</translation>
    </message>
    <message>
        <source>“%1” broke the connection.</source>
        <translation>“%1”断开了连接。</translation>
    </message>
    <message>
        <source>“%1” wants a password.</source>
        <translation>“%1”需要密码。</translation>
    </message>
    <message>
        <source>Wrong user or password.</source>
        <translation>用户名或密码错误。</translation>
    </message>
    <message>
        <source>The document cannot be read: %1</source>
        <translation>无法读取文档：%1</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not the one that it had before: somebody has replaced it, or stands in between. If it was replaced on purpose, remove the line “%2” from the file %3.</source>
        <translation>打印服务器“%1”的证书与以前不同：证书已被更换，或有人介入了通信。如果是有意更换，请从文件 %3 中删除“%2”这一行。</translation>
    </message>
</context>
<context>
    <name>StartValues</name>
<message>
        <source>This printer has no option of this name: %1.</source>
        <translation>此打印机没有以下名称的选项：%1。</translation>
    </message>
    <message>
        <source>Default of the queue “%1”: %2</source>
        <translation>队列“%1”的默认值：%2</translation>
    </message>
    <message>
        <source>The queue “%1” adds this to each job; what it does is not known here: %2.</source>
        <translation>队列“%1”会给每个作业添加以下设置，其作用在此未知：%2。</translation>
    </message>
<message>
        <source>Default of your administrator: %1</source>
        <translation>管理员设置的默认值：%1</translation>
    </message>
</context>
<context>
    <name>Summary</name>
    <message>
        <source>Copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>Also in the job</source>
        <translation>作业中还包含</translation>
    </message>
    <message>
        <source>%1 × %2 inches</source>
        <translation>%1 × %2 英寸</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1, collated</source>
        <translation>%1（逐份打印）</translation>
    </message>
    <message>
        <source>%1, not collated</source>
        <translation>%1（逐页打印）</translation>
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
        <translation>“%1”上的打印机需要用户名和密码。</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>打印服务器“%1”需要用户名和密码。</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others may read them.</source>
        <translation>连接未加密：其他人可能会读取它们。</translation>
    </message>
    <message>
        <source>User [%1]: </source>
        <translation>用户名 [%1]：</translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>密码：</translation>
    </message>
<message>
        <source>That is not the password.</source>
        <translation>密码不正确。</translation>
    </message>
    <message>
        <source>Password of “%1”: </source>
        <translation>“%1”的密码：</translation>
    </message>
<message>
        <source>Enter prints the other sides, Ctrl+D leaves them unprinted: </source>
        <translation>按 Enter 打印另一面，按 Ctrl+D 不打印：</translation>
    </message>
</context>
<context>
    <name>TextFormat</name>
    <message>
        <source>The margins, columns and characters per inch that were asked for leave no room for a text on this paper (%1 × %2 points).</source>
        <translation>按所要求的页边距、栏数和每英寸字符数，此纸张（%1 × %2 点）上没有放置文本的空间。</translation>
    </message>
</context>
<context>
    <name>UnattendedRun</name>
    <message>
        <source>%1 So the printer “%2” could not be asked for.</source>
        <translation>%1因此无法查询打印机“%2”。</translation>
    </message>
    <message>
        <source>Nothing was printed.</source>
        <translation>没有打印任何内容。</translation>
    </message>
    <message>
        <source>It waits until the instructions have been followed. Release it with: %1</source>
        <translation>作业将等待您按说明操作完毕。然后用此命令释放：%1</translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>已中断。</translation>
    </message>
    <message>
        <source>%1 Printers that need no print server: %2.</source>
        <translation>%1不需要打印服务器的打印机：%2。</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>作业 %1：%2</translation>
    </message>
    <message>
        <source>Printed to standard output</source>
        <translation>已打印到标准输出</translation>
    </message>
    <message>
        <source>The result could not be written to standard output: %1.</source>
        <translation>无法将结果写入标准输出：%1。</translation>
    </message>
<message>
        <source>The preset “%1” is kept.</source>
        <translation>预设“%1”已保存。</translation>
    </message>
    <message>
        <source>No preset was kept.</source>
        <translation>未保存任何预设。</translation>
    </message>
</context>
<context>
    <name>corvana::ChoiceEditor</name>
    <message>
        <source>“%1: %2”</source>
        <translation>“%1：%2”</translation>
    </message>
    <message>
        <source>%1 to %2 points</source>
        <translation>%1 至 %2 点</translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation>%1 至 %2 个字符（半角）</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>“%1” is not possible for %2. Allowed: %3.</source>
        <translation>%2 不能设为“%1”。允许的值：%3。</translation>
    </message>
    <message>
        <source>This is not possible for %1. Allowed: %2.</source>
        <translation>%1 不能设为此值。允许的值：%2。</translation>
    </message>
    <message>
        <source>Cannot be combined with %1.</source>
        <translation>不能与%1同时使用。</translation>
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
        <translation>正在读取标准输入。</translation>
    </message>
    <message>
        <source>%1 is being read.</source>
        <translation>正在读取 %1。</translation>
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
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>corvana::CopiesEditor</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>不允许使用“%1”。允许的值：%2。</translation>
    </message>
</context>
<context>
    <name>corvana::CredentialsDialog</name>
    <message>
        <source>Log In to Print</source>
        <translation>登录以打印</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>用户名(&amp;U):</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>密码(&amp;W):</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others on the network may read the password.</source>
        <translation>连接未加密：网络上的其他人可能会读取密码。</translation>
    </message>
    <message>
        <source>The printer wants to know who prints. User and password are sent to it through the print server “%1”, and are forgotten when the print dialog closes.</source>
        <translation>此打印机需要知道由谁打印。用户名和密码将通过打印服务器“%1”发送给打印机，并在关闭打印对话框后被清除。</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints. User and password are forgotten when the print dialog closes.</source>
        <translation>打印服务器“%1”需要知道由谁打印。用户名和密码将在关闭打印对话框后被清除。</translation>
    </message>
</context>
<context>
    <name>corvana::CustomPaperSize</name>
    <message>
        <source>From %1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>纸张宽度</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>纸张高度</translation>
    </message>
    <message>
        <source>Unit of the paper size</source>
        <translation>纸张尺寸的单位</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>毫米</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>英寸</translation>
    </message>
</context>
<context>
    <name>corvana::FileJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>已取消打印。</translation>
    </message>
    <message>
        <source>Printed to %1</source>
        <translation>已打印到 %1</translation>
    </message>
    <message>
        <source>%1 is the document itself; name another file.</source>
        <translation>%1 就是要打印的文档；请指定其他文件。</translation>
    </message>
</context>
<context>
    <name>corvana::FilterChain</name>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>无法启动 %1：%2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>已取消打印。</translation>
    </message>
    <message>
        <source>The filter chain of CUPS crashed.</source>
        <translation>CUPS 的过滤器异常退出。</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: %1</source>
        <translation>无法将文档转换为打印机数据：%1</translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>退出状态 %1</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: nothing came out. %1</source>
        <translation>无法将文档转换为打印机数据：没有输出。%1</translation>
    </message>
    <message>
        <source>The documents could not be put together: %1 is incomplete. Is the disk full?</source>
        <translation>无法合并文档：%1 不完整。磁盘是否已满？</translation>
    </message>
<message>
        <source>The document could not be converted for the printer: how many pages it has could not be found out.</source>
        <translation>无法将文档转换为打印机数据：无法确定其页数。</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: that took too long.</source>
        <translation>无法将文档转换为打印机数据：耗时过长。</translation>
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
    <name>corvana::GeneralPage</name>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>份数(&amp;C):</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>页面(&amp;G):</translation>
    </message>
    <message>
        <source>Custom Size</source>
        <translation>自定义尺寸</translation>
    </message>
    <message>
        <source>Width × height:</source>
        <translation>宽 × 高:</translation>
    </message>
<message>
        <source>All, or such as 1-4, 7, 9-</source>
        <translation>全部，或 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>Choos&amp;e Pages…</source>
        <translation>选择页面(&amp;E)…</translation>
    </message>
    <message>
        <source>No document has been chosen.</source>
        <translation>尚未选择文档。</translation>
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
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>corvana::InstancePrinters</name>
    <message>
        <source>More Printers</source>
        <translation>更多打印机</translation>
    </message>
    <message>
        <source>Other programs have the preset on the &amp;printers that are ticked:</source>
        <translation>其他程序可在勾选的打印机上使用此预设(&amp;P)：</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>其他程序中显示为“%1”。</translation>
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
        <translation>正在打印</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Show Silenced Messages Again</source>
        <translation>重新显示不再显示的消息</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>关闭(&amp;L)</translation>
    </message>
    <message>
        <source>C&amp;lose (printing continues)</source>
        <translation>关闭(&amp;L)（继续打印）</translation>
    </message>
    <message>
        <source>The job goes on without this window.</source>
        <translation>关闭此窗口后，作业会继续。</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>取消作业</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>正在打印…</translation>
    </message>
    <message>
        <source>Canceling…</source>
        <translation>正在取消…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
<message>
        <source>The first sides are printed.</source>
        <translation>第一面已打印。</translation>
    </message>
</context>
<context>
    <name>corvana::MessageBar</name>
    <message>
        <source>Dismiss this message</source>
        <translation>关闭此消息</translation>
    </message>
<message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>Show all of this message</source>
        <translation>显示完整消息</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsModel</name>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Installable Options</source>
        <translation>可安装选件</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1
For the command line: %2</source>
        <translation>%1
命令行用法：%2</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>默认值：%1</translation>
    </message>
<message>
        <source>Changed. %1</source>
        <translation>已更改。%1</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsPage</name>
    <message>
        <source>Back to the Default</source>
        <translation>恢复默认值</translation>
    </message>
    <message>
        <source>Search options and choices</source>
        <translation>搜索选项和设定值</translation>
    </message>
    <message>
        <source>Options of the printer</source>
        <translation>打印机选项</translation>
    </message>
    <message>
        <source>Nothing contains “%1”.</source>
        <translation>没有包含“%1”的内容。</translation>
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
        <translation>请输入要打印到的文件名。</translation>
    </message>
    <message>
        <source>“%1” are no pages. Pages and ranges in ascending order were expected, such as 1-4, 7, 9-.</source>
        <translation>“%1”不是有效的页码。请按升序指定，例如 1-4, 7, 9-。</translation>
    </message>
    <message>
        <source>The printer's settings show instructions.</source>
        <translation>打印机设置显示了说明。</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and a file cannot wait. Follow them and print with --on-alert=print.</source>
        <translation>作业需要等待执行这些说明，而文件输出无法等待。请按说明操作后使用 --on-alert=print 打印。</translation>
    </message>
    <message>
        <source>The printer's settings hold the job back.</source>
        <translation>由于打印机设置，作业未打印。</translation>
    </message>
    <message>
        <source>The options of the printer have changed at its server; yours were kept.</source>
        <translation>打印机选项已在服务器上更改；您的设置已保留。</translation>
    </message>
    <message>
        <source>The printer's own settings are missing: %1</source>
        <translation>无法使用打印机专用设置：%1</translation>
    </message>
    <message>
        <source>Not everything could be set as before:
%1</source>
        <translation>以下设置无法恢复为以前的值：
%1</translation>
    </message>
    <message>
        <source>The queue “%1” leads to the same printer, and has pages with all of its settings.</source>
        <translation>队列“%1”通向同一台打印机，并有包含其所有设置的页面。</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <translation>使用“%1”</translation>
    </message>
    <message>
        <source>What was asked for cannot be set:
%1</source>
        <translation>无法设置所要求的内容：
%1</translation>
    </message>
    <message>
        <source>The printer prints at most %1 copies at once, not %2.</source>
        <translation>此打印机一次最多打印 %1 份，而不是 %2 份。</translation>
    </message>
    <message>
        <source>A page of the printer's settings cannot be shown: %1</source>
        <translation>无法显示打印机的设置页：%1</translation>
    </message>
    <message>
        <source>“%1” has nothing to show.</source>
        <translation>“%1”没有可显示的内容。</translation>
    </message>
    <message>
        <source>No font of this computer has these characters of the text: %1. An empty frame is printed for each of them.</source>
        <translation>本机上没有任何字体包含文本中的这些字符：%1。每个字符将打印为一个空框。</translation>
    </message>
    <message>
        <source>Not all of the text could be looked through for characters that no font of this computer has. An empty frame is printed for each of them.</source>
        <translation>未能检查整个文本中是否有本机的任何字体都没有的字符。每个这样的字符都将打印为空框。</translation>
    </message>
    <message>
        <source>%1 is of a kind that is not known here. Only a queue can pass it on to its printer, as it is, with the option “raw”.</source>
        <translation>%1 是此处无法识别的类型。只有队列可以通过选项“raw”将其原样传给打印机。</translation>
    </message>
<message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>已取消打印。</translation>
    </message>
<message>
        <source>What is passed on as it is cannot be printed to a file.</source>
        <translation>原样传送的文档无法打印到文件。</translation>
    </message>
    <message>
        <source>Not everything that is set for this printer could be taken:
%1</source>
        <translation>为此打印机设置的内容未能全部采用：
%1</translation>
    </message>
<message>
        <source>There is no job attribute of the name %1.</source>
        <translation>没有名为 %1 的作业属性。</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>不允许使用“%1”。允许的值：%2。</translation>
    </message>
    <message>
        <source>The queue “%1” sets this for every job that does not name it. Allowed: %2.</source>
        <translation>队列“%1”会为每个未指定此项的作业设置它。允许的值：%2。</translation>
    </message>
<message>
        <source>A PDF file is saved once: there are no copies of it.</source>
        <translation>PDF 文件只保存一次，没有份数。</translation>
    </message>
<message>
        <source>No document has been chosen.</source>
        <translation>尚未选择文档。</translation>
    </message>
    <message>
        <source>There is a preview once the printer is known.</source>
        <translation>确定打印机后会显示预览。</translation>
    </message>
    <message>
        <source>Files are passed on to the printer as they are. What comes out is not known here.</source>
        <translation>文件会原样传送到打印机。这里无法得知打印结果。</translation>
    </message>
<message>
        <source>Choose a document to print.</source>
        <translation>请选择要打印的文档。</translation>
    </message>
<message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>Give the password with --document-password-file.</source>
        <translation>请使用 --document-password-file 提供密码。</translation>
    </message>
    <message>
        <source>Enter the Password…</source>
        <translation>输入密码…</translation>
    </message>
    <message>
        <source>Enter the Owner's Password…</source>
        <translation>输入所有者密码…</translation>
    </message>
<message>
        <source>Show Its First Sheet</source>
        <translation>显示其第一张纸</translation>
    </message>
    <message>
        <source>Its pages are made while it is printed. The preview shows them.</source>
        <translation>页面在打印时生成，可在预览中查看。</translation>
    </message>
    <message>
        <source>How many pages it has is not known.</source>
        <translation>页数未知。</translation>
    </message>
    <message>
        <source>It is being looked at…</source>
        <translation>正在检查…</translation>
    </message>
<message>
        <source>The sides of “%1” are not known here, so they cannot be printed in two halves. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>此处不知道“%1”的各面内容，因此无法分两次打印。使用 sides-by-hand=no 则只打印纸张的一面。</translation>
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
        <translation>未打印。</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and two-sided printing by hand cannot. Follow them and print with --on-alert=print.</source>
        <translation>作业需要等待完成这些指示，而手动双面打印无法等待。请先按指示操作，再使用 --on-alert=print 打印。</translation>
    </message>
    <message>
        <source>%1 So the job cannot wait for these instructions. Follow them and print with --on-alert=print.</source>
        <translation>%1因此，作业无法等待完成这些指示。请先按指示操作，再使用 --on-alert=print 打印。</translation>
    </message>
<message>
        <source>As in your last job.</source>
        <translation>与您上次打印的设置相同。</translation>
    </message>
    <message>
        <source>Use Defaults</source>
        <translation>使用默认值</translation>
    </message>
<message>
        <source>Not everything that your administrator has decided can be used. “corvana-print --check-policy” says what, and why.</source>
        <translation>管理员的部分规定无法使用。“corvana-print --check-policy”会说明是哪些以及原因。</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper.</source>
        <translation>此作业需要 %1 张纸。</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper. More than %2 are printed only with --yes.</source>
        <translation>此作业需要 %1 张纸。超过 %2 张时需使用 --yes 才会打印。</translation>
    </message>
    <message>
        <source>%1 is not on this computer. Save it here to print it.</source>
        <translation>%1 不在这台计算机上。请先保存到这里再打印。</translation>
    </message>
    <message>
        <source>The sheets can stay in the tray: the other sides are printed with the settings of the first ones.</source>
        <translation>纸张可以留在纸盒中：另一面将按第一面的设置打印。</translation>
    </message>
    <message>
        <source>Printed to %1, which holds data for the printer and is no PDF document</source>
        <translation>已打印到 %1，其内容是供打印机使用的数据，不是 PDF 文档</translation>
    </message>
</context>
<context>
    <name>corvana::PrintWindow</name>
    <message>
        <source>Asking “%1” for the options of the printer…</source>
        <translation>正在从“%1”获取打印机选项…</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>正在查找打印机…</translation>
    </message>
    <message>
        <source>No answer from “%1” yet.</source>
        <translation>“%1”尚未响应。</translation>
    </message>
    <message>
        <source>No printers at “%1”.</source>
        <translation>“%1”上没有打印机。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>There are no printers yet. Add one in the printer settings of the system, or with the command lpadmin.</source>
        <translation>还没有打印机。请在系统的打印机设置中添加，或使用命令 lpadmin 添加。</translation>
    </message>
    <message>
        <source>Until then, documents can be printed to a file.</source>
        <translation>在此之前，可将文档打印到文件。</translation>
    </message>
    <message>
        <source>Log In…</source>
        <translation>登录…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>The print service of this computer is not running. Start it, on most systems with “systemctl start cups”.</source>
        <translation>本机的打印服务未运行。请启动该服务，多数系统使用“systemctl start cups”。</translation>
    </message>
    <message>
        <source>Print Another Copy</source>
        <translation>再打印一份</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>打印到文件</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 已存在。要替换吗？</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Your preferences cannot be written.</source>
        <translation>无法写入个人设置。</translation>
    </message>
    <message>
        <source>The help is not installed.</source>
        <translation>未安装帮助。</translation>
    </message>
    <message>
        <source>Help on Printing</source>
        <translation>打印帮助</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>仍然打印</translation>
    </message>
<message>
        <source>Two-Sided by Hand</source>
        <translation>手动双面打印</translation>
    </message>
    <message>
        <source>Only the first sides of the sheets are printed. Leave the other sides unprinted?</source>
        <translation>纸张只打印了第一面。是否不打印另一面？</translation>
    </message>
    <message>
        <source>The first sides of the sheets are being printed. Stop that, and leave the other sides unprinted?</source>
        <translation>正在打印纸张的第一面。是否停止，并且不打印另一面？</translation>
    </message>
    <message>
        <source>Leave Unprinted</source>
        <translation>不打印</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>If you print it again, it may come out of the printer twice.</source>
        <translation>再次打印可能会打印出两份。</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>再次打印</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterComboBox</name>
    <message>
        <source>Choose a printer</source>
        <translation>选择打印机</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterHeader</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>打印机(&amp;R):</translation>
    </message>
    <message>
        <source>Print to &amp;file:</source>
        <translation>打印到文件(&amp;F):</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>打印到文件</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>选择(&amp;H)…</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>打印到文件</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterPopup</name>
    <message>
        <source>Printers</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Search by name or location</source>
        <translation>按名称或位置搜索</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>搜索打印机</translation>
    </message>
    <message>
        <source>No printer was found</source>
        <translation>未找到打印机</translation>
    </message>
    <message>
        <source>No printer matches</source>
        <translation>没有匹配的打印机</translation>
    </message>
    <message>
        <source>%1 of %2 printers</source>
        <translation>%1/%2 台打印机</translation>
    </message>
    <message>
        <source>%1 printers</source>
        <translation>%1 台打印机</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterSource</name>
    <message>
        <source>There is no printer “%1” at “%2”.</source>
        <translation>“%2”上没有打印机“%1”。</translation>
    </message>
    <message>
        <source>There is no printer “%1” at “%2” any more.</source>
        <translation>“%2”上已没有打印机“%1”。</translation>
    </message>
    <message>
        <source>There is no default printer. %1 Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>没有默认打印机。%1请用 -d 指定打印机，或用 --ppd FILE 指定 PPD，或用 --demo 试用示例打印机。</translation>
    </message>
    <message>
        <source>There is no default printer. Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>没有默认打印机。请用 -d 指定打印机，或用 --ppd FILE 指定 PPD，或用 --demo 试用示例打印机。</translation>
    </message>
    <message>
        <source>There is no instance “%1”: lpoptions has none of the queue “%2”.</source>
        <translation>没有实例“%1”：lpoptions 中没有队列“%2”的任何实例。</translation>
    </message>
    <message>
        <source>There is no instance “%1”. The queue “%2” has: %3.</source>
        <translation>没有实例“%1”。队列“%2”有：%3。</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterStatusLine</name>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
</context>
<context>
    <name>corvana::ServerJob</name>
    <message>
        <source>The printer “%1” takes documents of these kinds only: %2.</source>
        <translation>打印机“%1”只接受以下类型的文档：%2。</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>已取消打印。</translation>
    </message>
    <message>
        <source>Job %1 is in the queue; it was not followed to its end.</source>
        <translation>作业 %1 已在队列中；未跟踪到结束。</translation>
    </message>
    <message>
        <source>The printer “%1” does not take these settings of a job: %2. Nothing was printed.</source>
        <translation>打印机“%1”不接受作业的以下设置：%2。没有打印任何内容。</translation>
    </message>
<message>
        <source>The queue “%1” has no driver and prints documents as they are: it can neither put several pages on a sheet (number-up) nor choose pages (page-ranges, page-set). Nothing was printed.</source>
        <translation>队列“%1”没有驱动程序，会原样打印文档：既不能在一张纸上放置多页 (number-up)，也不能选择页面 (page-ranges、page-set)。没有打印任何内容。</translation>
    </message>
    <message>
        <source>The documents were put together as one, because the printer takes one at a time; each begins on a new sheet.</source>
        <translation>由于打印机一次只接收一个文档，这些文档已合并为一个；每个文档都从新的一张纸开始。</translation>
    </message>
    <message>
        <source>There are too many copies to send them in sets. Their order is: %1.</source>
        <translation>份数过多，无法按套发送。顺序为：%1。</translation>
    </message>
</context>
<context>
    <name>corvana::SettingsPages</name>
    <message>
        <source>All Options</source>
        <translation>所有选项</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>设置摘要</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>This page cannot be shown: %1</source>
        <translation>无法显示此页：%1</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
<message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>corvana::SummaryPage</name>
    <message>
        <source>Summary</source>
        <translation>设置摘要</translation>
    </message>
<message>
        <source>Changed. %1</source>
        <translation>已更改。%1</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1，已更改</translation>
    </message>
    <message>
        <source>Only what is changed</source>
        <translation>仅显示已更改的项</translation>
    </message>
    <message>
        <source>Nothing is changed.</source>
        <translation>没有更改任何项。</translation>
    </message>
</context>
<context>
    <name>corvana::TextConversion</name>
    <message>
        <source>There are no fonts for the text %1.</source>
        <translation>没有可用于文本 %1 的字体。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>已取消打印。</translation>
    </message>
    <message>
        <source>%1 would have more than %2 pages, and a text is printed on no more than that.</source>
        <translation>%1 将超过 %2 页，而文本最多只打印这么多页。</translation>
    </message>
</context>
<context>
    <name>corvana::TextDocuments</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>已取消打印。</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>no display can be reached. Print without a window with --no-dialog.</source>
        <translation>无法连接显示器。使用 --no-dialog 可不打开窗口打印。</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
</context>
<context>
    <name>DocumentCopies</name>
    <message>
        <source>all documents, then all of them again (A B A B)</source>
        <translation>所有文档依次打印一份后再重复 (A B A B)</translation>
    </message>
    <message>
        <source>each document with all its copies (A A B B)</source>
        <translation>每个文档连续打印所有份数 (A A B B)</translation>
    </message>
    <message>
        <source>each page with all its copies (1 1 2 2)</source>
        <translation>每一页连续打印所有份数 (1 1 2 2)</translation>
    </message>
</context>
<context>
    <name>PageChoice</name>
    <message>
        <source>“%1: %2”</source>
        <translation>“%1：%2”</translation>
    </message>
    <message>
        <source>The pages that were asked for are in none of the documents. Nothing was printed.</source>
        <translation>所有文档中都没有指定的页面。没有打印任何内容。</translation>
    </message>
<message>
        <source>A booklet has two pages on each side, in an order of its own: %1 cannot be done with it.</source>
        <translation>小册子每面有两页，并有自己的顺序：无法同时执行 %1。</translation>
    </message>
    <message>
        <source>Each page is repeated %1 times on a side: %2 cannot be done with it.</source>
        <translation>每页在一面上重复 %1 次：无法同时执行 %2。</translation>
    </message>
</context>
<context>
    <name>ResultPages</name>
    <message>
        <source>Nothing would be printed: what came out has no page.</source>
        <translation>不会打印任何内容：生成的数据中没有页面。</translation>
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
        <translation>、</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 页</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 页</translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1 张</translation>
    </message>
    <message>
        <source>%1 sheets</source>
        <translation>%1 张</translation>
    </message>
    <message>
        <source>“%1” has %2</source>
        <translation>“%1”有 %2</translation>
    </message>
    <message>
        <source>The document has %1</source>
        <translation>该文档有 %1</translation>
    </message>
    <message>
        <source>the document has %1</source>
        <translation>该文档有 %1</translation>
    </message>
    <message>
        <source>%1 and later</source>
        <translation>%1 及之后</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>%1; %2 is not in it.</source>
        <translation>%1；不存在的页：%2。</translation>
    </message>
    <message>
        <source>%1; %2 are not in it.</source>
        <translation>%1；不存在的页：%2。</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only even pages were chosen.</source>
        <translation>不会打印任何内容：%1，而只选择了偶数页。</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only odd pages were chosen.</source>
        <translation>不会打印任何内容：%1，而只选择了奇数页。</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and none of them is left.</source>
        <translation>不会打印任何内容：%1，但没有剩下要打印的页。</translation>
    </message>
    <message>
        <source>could not be counted</source>
        <translation>无法计数</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>%1, and 1 cover sheet</source>
        <translation>%1，另有 1 张封面页</translation>
    </message>
    <message>
        <source>%1, and %2 cover sheets</source>
        <translation>%1，另有 %2 张封面页</translation>
    </message>
    <message>
        <source>%1 × %2 copies = %3</source>
        <translation>%1 × %2 份 = %3</translation>
    </message>
    <message>
        <source>%1 at %2 %</source>
        <translation>%1 为 %2 %</translation>
    </message>
    <message>
        <source>Sheets</source>
        <translation>纸张数</translation>
    </message>
    <message>
        <source>Pages Not There</source>
        <translation>不存在的页</translation>
    </message>
    <message>
        <source>Printed Size</source>
        <translation>打印大小</translation>
    </message>
<message>
        <source>“%1” takes too long to be shown. It can be printed without a preview.</source>
        <translation>显示“%1”所需时间过长。可以在没有预览的情况下打印。</translation>
    </message>
    <message>
        <source>“%1” is too large to be shown. It can be printed without a preview.</source>
        <translation>“%1”太大，无法显示。可以在没有预览的情况下打印。</translation>
    </message>
    <message>
        <source>“%1” could not be laid out, so there is no preview. Printing it may work all the same.</source>
        <translation>无法对“%1”进行排版，因此没有预览。仍有可能打印成功。</translation>
    </message>
<message>
        <source>the back stays empty, because only one side is printed</source>
        <translation>背面将留空，因为只有一面要打印</translation>
    </message>
    <message>
        <source>the backs stay empty, because each document has only one side</source>
        <translation>背面将留空，因为每个文档都只有一面要打印</translation>
    </message>
    <message>
        <source>the back stays empty where a document has only one side: %1</source>
        <translation>只有一面要打印的文档背面将留空：%1</translation>
    </message>
    <message>
        <source>%1, two-sided by hand</source>
        <translation>%1，手动双面</translation>
    </message>
</context>
<context>
    <name>PassedOn</name>
    <message>
        <source>The queue “%1” passes files on as they are: %2 cannot be done.</source>
        <translation>队列“%1”会原样传送文件：无法执行 %2。</translation>
    </message>
    <message>
        <source>With “raw” files are passed on as they are: %1 cannot be done.</source>
        <translation>使用“raw”时文件会原样传送：无法执行 %1。</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Passed on as it is</source>
        <translation>原样传送</translation>
    </message>
</context>
<context>
    <name>corvana::AttributeEditor</name>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
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
    <name>PageTrouble</name>
    <message>
        <source>This page cannot be shown: it is damaged.</source>
        <translation>此页已损坏，无法显示。</translation>
    </message>
    <message>
        <source>This page cannot be shown: it is too large.</source>
        <translation>此页过大，无法显示。</translation>
    </message>
    <message>
        <source>This page cannot be shown: drawing it takes too long.</source>
        <translation>绘制此页所需时间过长，无法显示。</translation>
    </message>
    <message>
        <source>This page cannot be shown: the document is protected by a password.</source>
        <translation>文档受密码保护，无法显示此页。</translation>
    </message>
    <message>
        <source>This page cannot be shown: the file cannot be read.</source>
        <translation>无法读取文件，因此无法显示此页。</translation>
    </message>
    <message>
        <source>Pages cannot be shown: the program that draws them does not run.</source>
        <translation>绘制页面的程序未运行，无法显示页面。</translation>
    </message>
</context>
<context>
    <name>JobColors</name>
    <message>
        <source>Shown in black and white, with your adjustments.</source>
        <translation>以黑白显示，并已应用您的调整。</translation>
    </message>
    <message>
        <source>Shown in black and white.</source>
        <translation>以黑白显示。</translation>
    </message>
    <message>
        <source>Shows your adjustments; colors on paper differ.</source>
        <translation>显示了您的调整；纸上的颜色会有所不同。</translation>
    </message>
    <message>
        <source>Colors on paper differ from those on the screen.</source>
        <translation>纸上的颜色与屏幕上的颜色不同。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>“%1: %2” is not shown.</source>
        <translation>“%1：%2”未在预览中体现。</translation>
    </message>
</context>
<context>
    <name>SavedAsPdf</name>
    <message>
        <source>A PDF file is neither held nor printed: %1 cannot be done.</source>
        <translation>PDF 文件既不会被保留也不会被打印：无法执行 %1。</translation>
    </message>
</context>
<context>
    <name>JobNames</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 和另外 %n 个文档</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SheetView</name>
    <message>
        <source>cover sheet</source>
        <translation>封面页</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>空白</translation>
    </message>
    <message>
        <source>printed</source>
        <translation>有内容</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>第 %1 页</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>第 %1 页</translation>
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
        <translation>第 %L1 张：%2</translation>
    </message>
    <message>
        <source>Sheet %L1, back: %2</source>
        <translation>第 %L1 张背面：%2</translation>
    </message>
    <message>
        <source>Sheet %L1, front: %2</source>
        <translation>第 %L1 张正面：%2</translation>
    </message>
    <message>
        <source>%1, landscape</source>
        <translation>%1，横向</translation>
    </message>
    <message>
        <source>Bound at the left edge</source>
        <translation>在左边装订</translation>
    </message>
    <message>
        <source>Bound at the top edge</source>
        <translation>在上边装订</translation>
    </message>
    <message>
        <source>Bound at the right edge</source>
        <translation>在右边装订</translation>
    </message>
    <message>
        <source>Bound at the bottom edge</source>
        <translation>在下边装订</translation>
    </message>
</context>
<context>
    <name>corvana::ColorsRow</name>
    <message>
        <source>Hold to Compare</source>
        <translation>按住对比</translation>
    </message>
    <message>
        <source>While it is held, the document is shown as it is, without adjustments.</source>
        <translation>按住时显示未经调整的原文档。</translation>
    </message>
</context>
<context>
    <name>corvana::CountsRow</name>
    <message>
        <source>Sheets</source>
        <translation>张数</translation>
    </message>
    <message>
        <source>Show Preview</source>
        <translation>显示预览</translation>
    </message>
    <message>
        <source>Hide Preview</source>
        <translation>隐藏预览</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentArea</name>
    <message>
        <source>Print this document earlier</source>
        <translation>提前打印此文档</translation>
    </message>
    <message>
        <source>Print this document later</source>
        <translation>延后打印此文档</translation>
    </message>
    <message>
        <source>Do not print this document</source>
        <translation>不打印此文档</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Print further documents in the same job</source>
        <translation>在同一作业中打印其他文档</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>添加…</translation>
    </message>
    <message>
        <source>Documents in the order in which they are printed</source>
        <translation>按打印顺序排列的文档</translation>
    </message>
    <message numerus="yes">
        <source>%n documents, printed in this order:</source>
        <translation>
            <numerusform>%n 个文档，按此顺序打印：</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Choose Documents to Print</source>
        <translation>选择要打印的文档</translation>
    </message>
</context>
<context>
    <name>corvana::PreviewPane</name>
    <message>
        <source>Counting the sheets…</source>
        <translation>正在计算张数…</translation>
    </message>
</context>
<context>
    <name>corvana::PreviewPlaceholder</name>
    <message>
        <source>Choose &amp;Documents…</source>
        <translation>选择文档(&amp;D)…</translation>
    </message>
    <message>
        <source>Drop documents here to print them.</source>
        <translation>将要打印的文档拖放到此处。</translation>
    </message>
    <message>
        <source>PDF, PostScript, text, PNG and JPEG; several are one job.</source>
        <translation>PDF、PostScript、文本、PNG 和 JPEG；多个文档合为一个作业。</translation>
    </message>
</context>
<context>
    <name>corvana::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Preview. %1</source>
        <translation>预览。%1</translation>
    </message>
    <message>
        <source>Cover sheet of the queue: %1</source>
        <translation>队列的封面页：%1</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>正在更新…</translation>
    </message>
<message>
        <source>%1. Note: %2</source>
        <translation>%1。注意：%2</translation>
    </message>
</context>
<context>
    <name>corvana::SheetsRow</name>
    <message>
        <source>Sheet %L1</source>
        <translation>第 %L1 张</translation>
    </message>
    <message>
        <source>Sheet %L1 of %L2</source>
        <translation>第 %L1 张，共 %L2 张</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPreview</name>
    <message>
        <source>It can be printed all the same.</source>
        <translation>没有预览也可以打印。</translation>
    </message>
</context>
<context>
    <name>corvana::ZoomControl</name>
    <message>
        <source>Smaller</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Size of the sheets</source>
        <translation>显示大小</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>适合页面</translation>
    </message>
    <message>
        <source>Fit Width</source>
        <translation>适合宽度</translation>
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
        <translation>“%1”在第 %2 字节处已损坏。</translation>
    </message>
    <message>
        <source>“%1” is damaged.</source>
        <translation>“%1”已损坏。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>“%1” is protected, and the password that was given does not open it.</source>
        <translation>“%1”受密码保护，所给的密码无法将其打开。</translation>
    </message>
    <message>
        <source>“%1” is protected: it is printed only with its password.</source>
        <translation>“%1”受密码保护：只有提供密码才能打印。</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. Only its owner's password does.</source>
        <translation>“%1”不允许打印，只有使用所有者密码才能打印。</translation>
    </message>
    <message>
        <source>None of its pages can be printed.</source>
        <translation>没有任何页可以打印。</translation>
    </message>
    <message>
        <source>“%1” is protected, and a copy without protection could not be made: it is too large, or there is no room for it.</source>
        <translation>“%1”受密码保护，但无法生成不受保护的副本：文件太大，或存储空间不足。</translation>
    </message>
    <message>
        <source>1 of its %1 pages can be printed.</source>
        <translation>共 %1 页，其中 1 页可以打印。</translation>
    </message>
    <message>
        <source>%1 of its %2 pages can be printed.</source>
        <translation>共 %2 页，其中 %1 页可以打印。</translation>
    </message>
    <message>
        <source>“%1” is protected. The file that is printed to is not.</source>
        <translation>“%1”受密码保护，但打印生成的文件不受保护。</translation>
    </message>
    <message>
        <source>“%1” is protected. The print server gets a copy without protection.</source>
        <translation>“%1”受密码保护，但发送到打印服务器的是不受保护的副本。</translation>
    </message>
    <message>
        <source>All pages that were found in it are printed.</source>
        <translation>将打印在其中找到的所有页。</translation>
    </message>
    <message>
        <source>“%1” brings settings for a printer along, which are not followed: %2. Choose them here, or pass the document on with the option “raw”.</source>
        <translation>“%1”带有针对打印机的设置，这些设置不会生效：%2。请在此处选择，或使用选项“raw”原样传递文档。</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentPasswordDialog</name>
    <message>
        <source>Protected Document</source>
        <translation>受保护的文档</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. With its owner's password it can be printed.</source>
        <translation>“%1”不允许打印。使用所有者密码可以打印。</translation>
    </message>
    <message>
        <source>“%1” is protected: enter its password. The password is forgotten when the print dialog closes.</source>
        <translation>“%1”受密码保护：请输入密码。关闭打印对话框后不会保留密码。</translation>
    </message>
    <message>
        <source>That is not the password. Try again.</source>
        <translation>密码不正确，请重试。</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>密码(&amp;P):</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>%1 对 %2 无效：只适用于文本。</translation>
    </message>
    <message>
        <source>%1 has no effect on %2: only pictures follow it.</source>
        <translation>%1 对 %2 无效：只适用于图片。</translation>
    </message>
    <message>
        <source>asked for by the queue; what the printer makes of it is not known</source>
        <translation>由队列指定；打印机如何处理未知</translation>
    </message>
    <message>
        <source>only where a page is scaled</source>
        <translation>仅在页面缩放时</translation>
    </message>
</context>
<context>
    <name>SettingsIndex</name>
    <message>
        <source>Copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>All Options</source>
        <translation>所有选项</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
</context>
<context>
    <name>corvana::FindField</name>
    <message>
        <source>Find a setting (Ctrl+F)</source>
        <translation>查找设置 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>查找设置</translation>
    </message>
    <message>
        <source>Type a name, then go to a setting with Enter</source>
        <translation>键入名称，然后按 Enter 转到设置</translation>
    </message>
    <message>
        <source>Type the name of a setting or of a choice.</source>
        <translation>请键入设置或选项的名称。</translation>
    </message>
</context>
<context>
    <name>corvana::FindModel</name>
    <message>
        <source>%1, on %2</source>
        <translation>%1，位于%2</translation>
    </message>
    <message>
        <source>%1, %2, on %3</source>
        <translation>%1，%2，位于%3</translation>
    </message>
</context>
<context>
    <name>corvana::FindPopup</name>
    <message>
        <source>Settings that were found</source>
        <translation>找到的设置</translation>
    </message>
    <message>
        <source>1 setting found</source>
        <translation>找到 1 项设置</translation>
    </message>
    <message>
        <source>%1 settings found</source>
        <translation>找到 %1 项设置</translation>
    </message>
</context>
<context>
    <name>corvana::SettingFinder</name>
    <message>
        <source>No setting is called “%1”. Try a shorter word, or another one for it.</source>
        <translation>没有名为“%1”的设置。请尝试更短的词或其他说法。</translation>
    </message>
    <message>
        <source>No setting is called “%1”. Press Enter to search for “%2” instead.</source>
        <translation>没有名为“%1”的设置。按 Enter 改为查找“%2”。</translation>
    </message>
    <message>
        <source>The settings of the printer are not known yet.</source>
        <translation>尚未获取打印机的设置。</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>当前为%1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>“%1” cannot be changed while other settings are as they are. It is on the page “%2”.</source>
        <translation>在其他设置保持不变时，无法更改“%1”。它位于“%2”。</translation>
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
        <translation>按照此作业的设置，其中只打印奇数页。</translation>
    </message>
    <message>
        <source>Only the even ones of them are printed, as is set for this job.</source>
        <translation>按照此作业的设置，其中只打印偶数页。</translation>
    </message>
    <message>
        <source>No page is chosen.</source>
        <translation>未选择任何页面。</translation>
    </message>
    <message>
        <source>How many pages there are is not known.</source>
        <translation>页数未知。</translation>
    </message>
    <message>
        <source>%L1 of %L2 page numbers chosen.</source>
        <translation>已选择 %L2 个页码中的 %L1 个。</translation>
    </message>
    <message>
        <source>%L1 of %L2 pages chosen.</source>
        <translation>已选择 %L2 页中的 %L1 页。</translation>
    </message>
    <message>
        <source>There are no pages %1.</source>
        <translation>不存在的页：%1。</translation>
    </message>
    <message>
        <source>“%1” is no page. Pages are typed as in 1-4, 7, 9-.</source>
        <translation>“%1”不是页码。请按 1-4, 7, 9- 的形式输入。</translation>
    </message>
    <message>
        <source>“%1” ends before it begins.</source>
        <translation>“%1”的结束页在起始页之前。</translation>
    </message>
</context>
<context>
    <name>SheetMarks</name>
    <message>
        <source>The back of this sheet stays empty: only one side is printed.</source>
        <translation>只打印一面，因此这张纸的背面是空白的。</translation>
    </message>
</context>
<context>
    <name>corvana::PageChooser</name>
    <message>
        <source>Choose Pages</source>
        <translation>选择页面</translation>
    </message>
    <message>
        <source>&amp;Pages:</source>
        <translation>页面(&amp;P):</translation>
    </message>
    <message>
        <source>Such as 1-4, 7, 9-</source>
        <translation>例如 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>全不选(&amp;N)</translation>
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
        <translation>反选(&amp;I)</translation>
    </message>
    <message>
        <source>Page numbers count in each document: what is ticked in one is ticked in all.</source>
        <translation>页码对每个文档都有效：在一个文档中勾选，就在所有文档中勾选。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>共 %L1 页，数量太多，无法在此显示。可以输入页码。</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>第 %1 页</translation>
    </message>
    <message>
        <source>Page %1 (%2)</source>
        <translation>第 %1 页（%2）</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 的%1</translation>
    </message>
    <message>
        <source>%1, chosen</source>
        <translation>%1，已选择</translation>
    </message>
    <message>
        <source>%1, not chosen</source>
        <translation>%1，未选择</translation>
    </message>
</context>
<context>
    <name>corvana::PageThumbnails</name>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
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
        <translation>从打印机中取出已打印的纸张。</translation>
    </message>
    <message>
        <source>Take the %1 printed sheets out of the printer, as one stack.</source>
        <translation>从打印机中取出已打印的 %1 张纸，保持整叠顺序。</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side down, so that the %1 edge of the page goes into the printer first.</source>
        <translation>将打印面朝下放回纸盒，使页面的%1边先进入打印机。</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side up, so that the %1 edge of the page goes into the printer first.</source>
        <translation>将打印面朝上放回纸盒，使页面的%1边先进入打印机。</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side down, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>将打印面朝下放回纸盒，使页面的%1边先进入打印机。</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side up, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>将打印面朝上放回纸盒，使页面的%1边先进入打印机。</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost. Nothing is printed on it so far.</source>
        <translation>最后一张纸在最上面，它上面还没有打印任何内容。</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost.</source>
        <translation>最后一张纸在最上面。</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>第 %1 页</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>第 %1 页</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>The last sheet, with %1, lies uppermost.</source>
        <translation>最后一张纸（%1）在最上面。</translation>
    </message>
    <message>
        <source>The last sheet, with %1 of “%2”, lies uppermost.</source>
        <translation>最后一张纸（“%2”的%1）在最上面。</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs a printer that sheets are put back into: it cannot be done in a file.</source>
        <translation>手动双面打印（%1）需要将纸张放回打印机，不能输出到文件。</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) cannot be combined with %2: the queue would add these pages to both halves.</source>
        <translation>手动双面打印（%1）不能与 %2 同时使用：队列会在两次打印中都加入这些页。</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs somebody who puts the sheets back, and nobody can be asked here. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>手动双面打印（%1）需要有人将纸张放回，而此处无法询问任何人。使用 sides-by-hand=no 则只打印纸张的一面。</translation>
    </message>
</context>
<context>
    <name>corvana::PassJob</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>已取消打印。</translation>
    </message>
</context>
<context>
    <name>corvana::TurnSheetsDialog</name>
    <message>
        <source>Two-Sided by Hand</source>
        <translation>手动双面打印</translation>
    </message>
    <message>
        <source>Put the sheets back to print their other sides</source>
        <translation>请放回纸张以打印另一面</translation>
    </message>
    <message>
        <source>&amp;Print the Other Sides</source>
        <translation>打印另一面(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>LastUsed</name>
    <message>
        <source>The settings of the last job cannot be read, and stay as they are in “%1”: %2.</source>
        <translation>无法读取上次打印的设置，“%1”保持原样：%2。</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>无法删除“%1”：%2。</translation>
    </message>
    <message>
        <source>“%1” cannot be written.</source>
        <translation>无法写入“%1”。</translation>
    </message>
</context>
<context>
    <name>ListPresets</name>
    <message>
        <source>all printers</source>
        <translation>所有打印机</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>A preset needs a name.</source>
        <translation>预设需要名称。</translation>
    </message>
    <message>
        <source>The name of a preset has at most %1 characters.</source>
        <translation>预设的名称最多 %1 个字符。</translation>
    </message>
    <message>
        <source>The name of a preset holds only characters that can be seen.</source>
        <translation>预设的名称只能包含可见字符。</translation>
    </message>
    <message>
        <source>“%1” is always there, and is no name of a preset.</source>
        <translation>“%1”始终存在，不能用作预设名称。</translation>
    </message>
</context>
<context>
    <name>PresetApplication</name>
    <message>
        <source>%1 is not possible on this printer. Allowed: %2.</source>
        <translation>此打印机不支持%1。允许的值：%2。</translation>
    </message>
    <message>
        <source>%1 is not possible together with the other settings.</source>
        <translation>%1无法与其他设置同时使用。</translation>
    </message>
    <message>
        <source>The printer's settings do not allow %1 here; it became %2.</source>
        <translation>打印机的设置在此不允许%1，已变为%2。</translation>
    </message>
    <message>
        <source>%1 is not on this printer.</source>
        <translation>此打印机没有%1。</translation>
    </message>
    <message>
        <source>A value of the printer's own settings (%1) is not possible here.</source>
        <translation>打印机自身设置的值（%1）在此不可用。</translation>
    </message>
</context>
<context>
    <name>PresetFile</name>
    <message>
        <source>“%1”: expected was %2</source>
        <translation>“%1”：应为 %2</translation>
    </message>
    <message>
        <source>it was written by a later version of this program</source>
        <translation>它由此程序的较新版本写入</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>at most %1 values</source>
        <translation>最多 %1 个值</translation>
    </message>
    <message>
        <source>the name of an option</source>
        <translation>选项的名称</translation>
    </message>
    <message>
        <source>a value or a list of values</source>
        <translation>值或值的列表</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>无法写入“%1”：%2。</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>expected was { … }</source>
        <translation>应为 { … }</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>它不是文件</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>它大于 %1 字节</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>“%1” is damaged and is left as it is: %2.</source>
        <translation>“%1”已损坏，保持原样：%2。</translation>
    </message>
    <message>
        <source>There is no place to keep presets.</source>
        <translation>没有保存预设的位置。</translation>
    </message>
    <message>
        <source>Another program is writing presets. Try again.</source>
        <translation>另一个程序正在写入预设。请重试。</translation>
    </message>
    <message>
        <source>no space left, or no permission</source>
        <translation>没有空间或没有权限</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>无法写入“%1”：%2。</translation>
    </message>
    <message>
        <source>There is a preset of the name “%1” already.</source>
        <translation>已有名为“%1”的预设。</translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>名为“%1”的预设已不存在。</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>无法删除“%1”：%2。</translation>
    </message>
    <message>
        <source>%1 (for everybody)</source>
        <translation>%1（供所有人使用）</translation>
    </message>
</context>
<context>
    <name>StartPresets</name>
    <message>
        <source>Last job: %1</source>
        <translation>上次打印：%1</translation>
    </message>
    <message>
        <source>There is no preset “%1”, nor any other for this printer.</source>
        <translation>没有预设“%1”，此打印机也没有其他预设。</translation>
    </message>
    <message>
        <source>There is no preset “%1” for this printer. Presets: %2.</source>
        <translation>此打印机没有预设“%1”。预设：%2。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>corvana::PresetMenu</name>
    <message>
        <source>Printer &amp;Defaults</source>
        <translation>打印机默认值(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Last Used</source>
        <translation>上次使用(&amp;L)</translation>
    </message>
    <message>
        <source>For This Model</source>
        <translation>用于此型号</translation>
    </message>
    <message>
        <source>For All Printers</source>
        <translation>用于所有打印机</translation>
    </message>
    <message>
        <source>&amp;Save Preset…</source>
        <translation>保存预设(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Update “%1”</source>
        <translation>更新“%1”(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Rename “%1”…</source>
        <translation>重命名“%1”(&amp;R)…</translation>
    </message>
    <message>
        <source>D&amp;elete “%1”…</source>
        <translation>删除“%1”(&amp;E)…</translation>
    </message>
    <message>
        <source>Re&amp;member the Settings of the Last Job</source>
        <translation>记住上次打印的设置(&amp;M)</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>删除预设</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? The settings stay as they are.</source>
        <translation>要删除预设“%1”吗？当前设置保持不变。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>From Other Programs</source>
        <translation>来自其他程序</translation>
    </message>
</context>
<context>
    <name>corvana::PresetRow</name>
    <message>
        <source>Prese&amp;t:</source>
        <translation>预设(&amp;T):</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（已更改）</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>预设：%1</translation>
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
        <translation>重置</translation>
    </message>
    <message>
        <source>This Page: %1</source>
        <translation>本页：%1</translation>
    </message>
    <message>
        <source>Everything: %1</source>
        <translation>全部：%1</translation>
    </message>
</context>
<context>
    <name>corvana::SavePresetDialog</name>
    <message>
        <source>Rename Preset</source>
        <translation>重命名预设</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>保存预设</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N):</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>For printers of this &amp;model (%1)</source>
        <translation>用于此型号（%1）的打印机(&amp;M)</translation>
    </message>
    <message>
        <source>For &amp;all printers, as far as they have these settings</source>
        <translation>用于所有具有这些设置的打印机(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;With what sets up the printer itself (%1)</source>
        <translation>包括打印机本身的设置（%1）(&amp;W)</translation>
    </message>
    <message>
        <source>There is a preset of this name already.</source>
        <translation>已有此名称的预设。</translation>
    </message>
    <message>
        <source>There is a preset of this name already. It will be replaced.</source>
        <translation>已有此名称的预设，将被替换。</translation>
    </message>
    <message>
        <source>There is another preset of this name, which stays.</source>
        <translation>另有一个此名称的预设，它将保留。</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Also in &amp;other programs</source>
        <translation>也用于其他程序(&amp;O)</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>其他程序中显示为“%1”。</translation>
    </message>
    <message>
        <source>More &amp;Printers…</source>
        <translation>更多打印机(&amp;P)…</translation>
    </message>
</context>
<context>
    <name>corvana::TaskHistory</name>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>撤销“%1”</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>重做“%1”</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>恢复为“%1”</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>This cannot go back:
%1</source>
        <translation>无法恢复：
%1</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPresets</name>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 项</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>打印机默认值</translation>
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
        <translation>名为“%1”的预设已不存在。</translation>
    </message>
    <message>
        <source>Not everything of “%1” is possible here:
%2</source>
        <translation>“%1”中的某些设置在此不可用：
%2</translation>
    </message>
    <message>
        <source>“%1” was kept with settings that this printer does not have.</source>
        <translation>“%1”包含此打印机没有的设置。</translation>
    </message>
    <message>
        <source>%1 Your settings are as they were.</source>
        <translation>%1 您的设置保持不变。</translation>
    </message>
    <message>
        <source>“%1” is not there any more, or has no settings.</source>
        <translation>“%1”已不存在，或没有任何设置。</translation>
    </message>
    <message>
        <source>The printer is not known yet.</source>
        <translation>尚无打印机的信息。</translation>
    </message>
    <message>
        <source>Other programs print with these settings to “%1”.</source>
        <translation>其他程序打印到“%1”时使用这些设置。</translation>
    </message>
    <message>
        <source>The preset “%1” for this printer is another one.</source>
        <translation>此打印机的预设“%1”是另一个预设。</translation>
    </message>
</context>
<context>
    <name>InstanceDraft</name>
    <message>
        <source>Some programs add “%1=%2” to it, which you have set for “%3”.</source>
        <translation>有些程序会加上您为“%3”设置的“%1=%2”。</translation>
    </message>
    <message>
        <source>“%1” is left out: it is a secret.</source>
        <translation>未包含“%1”：它是保密内容。</translation>
    </message>
    <message>
        <source>“%1” is left out: other programs cannot print it.</source>
        <translation>未包含“%1”：其他程序无法这样打印。</translation>
    </message>
    <message>
        <source>Other programs know settings of queues only, and “%1” is none.</source>
        <translation>其他程序只能使用队列的设置，而“%1”不是队列。</translation>
    </message>
    <message>
        <source>“%1” gets files as they are, so that no setting has an effect.</source>
        <translation>“%1”按原样接收文件，任何设置都不起作用。</translation>
    </message>
    <message>
        <source>“%1” has no letters that other programs can print to. Give it a name of letters from a to z, such as “%2”.</source>
        <translation>“%1”中没有可供其他程序用作打印目标的字符。请使用由 a 到 z 的字母组成的名称，例如“%2”。</translation>
    </message>
    <message>
        <source>“%1” is there already, with settings of its own. Choose another name, or remove it with “lpoptions -x %1”.</source>
        <translation>“%1”已存在，并且有自己的设置。请选择其他名称，或用“lpoptions -x %1”将其删除。</translation>
    </message>
</context>
<context>
    <name>SharedFile</name>
    <message>
        <source>“%1” cannot be read: %2. It was not changed.</source>
        <translation>无法读取“%1”：%2。文件未被更改。</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. It was not changed.</source>
        <translation>无法写入“%1”：%2。文件未被更改。</translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation>链接指向的文件不存在</translation>
    </message>
    <message>
        <source>the link leads to a file of somebody else</source>
        <translation>链接指向其他用户的文件</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>它不是文件</translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation>它属于其他用户</translation>
    </message>
    <message>
        <source>another program of ours is writing it</source>
        <translation>本程序的另一个窗口正在写入</translation>
    </message>
    <message>
        <source>nothing can be written into its folder</source>
        <translation>无法写入其所在的文件夹</translation>
    </message>
    <message>
        <source>other programs write it all the time</source>
        <translation>其他程序一直在写入</translation>
    </message>
</context>
<context>
    <name>UserQueuesFile</name>
    <message>
        <source>The file of lpoptions is packed, and cannot be changed here.</source>
        <translation>lpoptions 文件已压缩，无法在此更改。</translation>
    </message>
    <message>
        <source>“%1” is your default printer, and stays: choose another one first.</source>
        <translation>“%1”是您的默认打印机，因此保留。请先选择另一台。</translation>
    </message>
    <message>
        <source>“%1” is no name that other programs can print to.</source>
        <translation>“%1”不能用作其他程序的打印目标名称。</translation>
    </message>
    <message>
        <source>“%1” would have more settings than other programs can read.</source>
        <translation>“%1”的设置超过了其他程序能读取的数量。</translation>
    </message>
    <message>
        <source>Other programs would read the value of “%1” as another one.</source>
        <translation>其他程序会把“%1”的值读成另一个值。</translation>
    </message>
    <message>
        <source>“%1” is no name of an option for other programs.</source>
        <translation>“%1”不是其他程序可用的选项名称。</translation>
    </message>
    <message>
        <source>The value of “%1” has a line break or a control character, which no option for other programs can have.</source>
        <translation>“%1”的值含有换行或控制字符，其他程序的选项不能包含这些字符。</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is.</source>
        <translation>“%1”已被其他程序更改，将保持原样。</translation>
    </message>
</context>
<context>
    <name>corvana::ChangeMarks</name>
    <message>
        <source>Changed. %1</source>
        <translation>已更改。%1</translation>
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
        <translation>%1 中适用于用户 %2 的策略</translation>
    </message>
    <message>
        <source>groups: %1</source>
        <translation>组：%1</translation>
    </message>
    <message>
        <source>Not used:</source>
        <translation>未使用：</translation>
    </message>
    <message>
        <source>Nothing is decided.</source>
        <translation>没有任何规定。</translation>
    </message>
    <message>
        <source>At the printer %1:</source>
        <translation>打印机 %1：</translation>
    </message>
    <message>
        <source>Void, because the printer does not take it:</source>
        <translation>因打印机不支持而无效：</translation>
    </message>
    <message>
        <source>For others, who are in these groups:</source>
        <translation>适用于属于以下组的其他用户：</translation>
    </message>
    <message>
        <source>Only root may ask what applies to somebody else.</source>
        <translation>只有 root 可以查询适用于其他用户的规定。</translation>
    </message>
    <message>
        <source>There is no user of the name “%1”.</source>
        <translation>没有名为“%1”的用户。</translation>
    </message>
</context>
<context>
    <name>OptionLocks</name>
    <message>
        <source>“%1” is set by your administrator (%2).</source>
        <translation>“%1”由管理员设置（%2）。</translation>
    </message>
    <message>
        <source>Set by your administrator (%1).</source>
        <translation>由管理员设置（%1）。</translation>
    </message>
</context>
<context>
    <name>Policy</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>不允许使用“%1”。允许的值：%2。</translation>
    </message>
    <message>
        <source>the path of a folder that begins with /</source>
        <translation>以 / 开头的文件夹路径</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>%1 至 %2 的数字</translation>
    </message>
    <message>
        <source>the line is longer than %1 bytes</source>
        <translation>该行超过 %1 字节</translation>
    </message>
    <message>
        <source>the line is not written in UTF-8</source>
        <translation>该行不是 UTF-8 编码</translation>
    </message>
    <message>
        <source>the line has a character that cannot be seen</source>
        <translation>该行含有不可见的字符</translation>
    </message>
    <message>
        <source>there are more problems</source>
        <translation>还有更多问题</translation>
    </message>
    <message>
        <source>there are more than %1 sections</source>
        <translation>节的数量超过 %1 个</translation>
    </message>
    <message>
        <source>“%1” is no section, and what follows in it is left out. Allowed: %2.</source>
        <translation>“%1”不是节，其中的内容将被忽略。允许：%2。</translation>
    </message>
    <message>
        <source>“%1” is no line of a policy. Expected: %2.</source>
        <translation>“%1”不是策略的行。应为：%2。</translation>
    </message>
    <message>
        <source>“%1” stands before the first section. Begin with [all].</source>
        <translation>“%1”位于第一个节之前。请以 [all] 开头。</translation>
    </message>
    <message>
        <source>there is no key “%1”. Keys: %2.</source>
        <translation>没有键“%1”。可用的键：%2。</translation>
    </message>
    <message>
        <source>%1 needs the keyword of an option or of a job attribute.</source>
        <translation>%1 需要选项或作业属性的关键字。</translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation>值太长</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 bytes</source>
        <translation>未使用该文件：超过 %1 字节</translation>
    </message>
    <message>
        <source>the file is not used: it is no text</source>
        <translation>未使用该文件：不是文本</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 lines</source>
        <translation>未使用该文件：超过 %1 行</translation>
    </message>
    <message>
        <source>it belongs to the user with the ID %1</source>
        <translation>它属于编号为 %1 的用户</translation>
    </message>
    <message>
        <source>others than its owner may write to it</source>
        <translation>所有者以外的用户可以写入</translation>
    </message>
    <message>
        <source>nothing below this folder is used: %1</source>
        <translation>未使用此文件夹下的任何内容：%1</translation>
    </message>
    <message>
        <source>nothing in this folder is used: %1</source>
        <translation>未使用此文件夹中的任何文件：%1</translation>
    </message>
    <message>
        <source>only the first %1 files are used</source>
        <translation>仅使用前 %1 个文件</translation>
    </message>
    <message>
        <source>the file is not used: it is a link that leads out of its folder</source>
        <translation>未使用该文件：它是指向文件夹之外的链接</translation>
    </message>
    <message>
        <source>the file is not used: %1</source>
        <translation>未使用该文件：%1</translation>
    </message>
    <message>
        <source>the file is not used: it is no ordinary file</source>
        <translation>未使用该文件：不是普通文件</translation>
    </message>
</context>
<context>
    <name>PrintRequest</name>
    <message>
        <source>The printer “%1” is not offered by your administrator (%2).</source>
        <translation>管理员未提供打印机“%1”（%2）。</translation>
    </message>
    <message>
        <source>Printing to a file is not offered by your administrator (%1).</source>
        <translation>管理员未提供打印到文件的功能（%1）。</translation>
    </message>
</context>
<context>
    <name>QueueRequests</name>
    <message>
        <source>more than %L1 printers</source>
        <translation>打印机超过 %L1 台</translation>
    </message>
    <message>
        <source>printers with more than %L1 characters in their texts</source>
        <translation>打印机的文字超过 %L1 个字符</translation>
    </message>
</context>
<context>
    <name>ClientFiles</name>
    <message>
        <source>%1 cannot be read to its end: a small file with the settings of CUPS is expected there.</source>
        <translation>无法将 %1 读取到末尾：此处应为包含 CUPS 设置的小文件。</translation>
    </message>
</context>
<context>
    <name>TemporaryFolder</name>
    <message>
        <source>No temporary files can be kept in %1: %2</source>
        <translation>无法在 %1 中保存临时文件：%2</translation>
    </message>
</context>
<context>
    <name>TextSource</name>
    <message>
        <source>it has become shorter meanwhile</source>
        <translation>读取期间文件变短了</translation>
    </message>
</context>
<context>
    <name>Finishings</name>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>装订</translation>
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
        <translation>胶装</translation>
    </message>
    <message>
        <source>Saddle Stitch</source>
        <translation>骑马订</translation>
    </message>
    <message>
        <source>Edge Stitch</source>
        <translation>边缘装订</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折叠</translation>
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
        <translation>制作小册子</translation>
    </message>
    <message>
        <source>Offset Sets</source>
        <translation>各份错开堆放</translation>
    </message>
    <message>
        <source>Coat</source>
        <translation>涂层</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>覆膜</translation>
    </message>
</context>
<context>
    <name>OwnInstances</name>
    <message>
        <source>“%1” is damaged. What was written for other programs before does not follow its presets any more.</source>
        <translation>“%1”已损坏。之前为其他程序写入的设置不再随其预设更改。</translation>
    </message>
</context>
<context>
    <name>PresetInstances</name>
    <message>
        <source>“%1” in other programs: %2</source>
        <translation>其他程序中的“%1”：%2</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is from now on.</source>
        <translation>“%1”已被其他程序更改，今后将保持原样。</translation>
    </message>
    <message>
        <source>Settings were changed while “%1” was saved: other programs have it as it was before. Save it again.</source>
        <translation>保存“%1”期间设置有更改：其他程序中仍是以前的设置。请再次保存。</translation>
    </message>
</context>
<context>
    <name>PresetReplacing</name>
    <message>
        <source>“%1” was saved elsewhere since it was selected here, and stays as it is there. Select it again, or keep your settings with “Save Preset…”.</source>
        <translation>“%1”在此处选择后已在别处保存，将保持原样。请重新选择它，或使用“保存预设…”保存您的设置。</translation>
    </message>
</context>
<context>
    <name>Collation</name>
    <message>
        <source>two-sided copies are always collated on this printer</source>
        <translation>在此打印机上，双面打印的多份总是逐份打印</translation>
    </message>
</context>
<context>
    <name>OtherQueues</name>
    <message>
        <source>The queue could not be read in time.</source>
        <translation>未能及时读取队列。</translation>
    </message>
</context>
</TS>
