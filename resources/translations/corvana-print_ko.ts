<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>AlertPresenter</name>
    <message>
        <source>Do not show this message again</source>
        <translation>이 메시지를 다시 표시하지 않음</translation>
    </message>
</context>
<context>
    <name>AttributeEffects</name>
    <message>
        <source>“%1”</source>
        <translation>‘%1’</translation>
    </message>
    <message>
        <source>%1 has no effect on %2: only texts follow it.</source>
        <translation>%1은(는) %2에 효과가 없습니다. 텍스트에만 적용됩니다.</translation>
    </message>
    <message>
        <source>%1 has no effect on %2: only pictures follow it.</source>
        <translation>%1은(는) %2에 효과가 없습니다. 그림에만 적용됩니다.</translation>
    </message>
    <message>
        <source>asked for by the queue; what the printer makes of it is not known</source>
        <translation>대기열이 지정함. 프린터의 처리 방법은 알 수 없음</translation>
    </message>
    <message>
        <source>only where a page is scaled</source>
        <translation>페이지의 크기가 조정될 때만</translation>
    </message>
</context>
<context>
    <name>ByHand</name>
    <message>
        <source>top</source>
        <translation>위쪽</translation>
    </message>
    <message>
        <source>right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>아래쪽</translation>
    </message>
    <message>
        <source>left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Take the printed sheet out of the printer.</source>
        <translation>인쇄된 용지를 프린터에서 꺼내십시오.</translation>
    </message>
    <message>
        <source>Take the %1 printed sheets out of the printer, as one stack.</source>
        <translation>인쇄된 용지 %1장을 순서 그대로 한 묶음으로 프린터에서 꺼내십시오.</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side down, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>인쇄된 면을 아래로 하고 페이지의 %1 가장자리가 먼저 프린터에 들어가도록 용지함에 다시 넣으십시오.</translation>
    </message>
    <message>
        <source>Put them back into the tray with the printed side up, so that the %1 edge of the pages goes into the printer first.</source>
        <translation>인쇄된 면을 위로 하고 페이지의 %1 가장자리가 먼저 프린터에 들어가도록 용지함에 다시 넣으십시오.</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost. Nothing is printed on it so far.</source>
        <translation>마지막 장이 맨 위에 놓입니다. 이 장에는 아직 아무것도 인쇄되지 않았습니다.</translation>
    </message>
    <message>
        <source>The last sheet lies uppermost.</source>
        <translation>마지막 장이 맨 위에 놓입니다.</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>%1페이지</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>%1페이지</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The last sheet, with %1, lies uppermost.</source>
        <translation>마지막 장(%1)이 맨 위에 놓입니다.</translation>
    </message>
    <message>
        <source>The last sheet, with %1 of “%2”, lies uppermost.</source>
        <translation>마지막 장(‘%2’의 %1)이 맨 위에 놓입니다.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs a printer that sheets are put back into: it cannot be done in a file.</source>
        <translation>수동 양면 인쇄(%1)는 용지를 프린터에 다시 넣어야 하므로 파일로는 할 수 없습니다.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) cannot be combined with %2: the queue would add these pages to both halves.</source>
        <translation>수동 양면 인쇄(%1)는 %2과(와) 함께 사용할 수 없습니다. 대기열이 두 번 모두 이 페이지를 추가하기 때문입니다.</translation>
    </message>
    <message>
        <source>Two-sided printing by hand (%1) needs somebody who puts the sheets back, and nobody can be asked here. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>수동 양면 인쇄(%1)에는 용지를 다시 넣을 사람이 필요하지만 여기에서는 물어볼 수 없습니다. sides-by-hand=no를 지정하면 각 용지의 한 면에만 인쇄됩니다.</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side down, so that the %1 edge of the page goes into the printer first.</source>
        <translation>인쇄된 면을 아래로 하고 페이지의 %1 가장자리가 먼저 프린터에 들어가도록 용지함에 다시 넣으십시오.</translation>
    </message>
    <message>
        <source>Put it back into the tray with the printed side up, so that the %1 edge of the page goes into the printer first.</source>
        <translation>인쇄된 면을 위로 하고 페이지의 %1 가장자리가 먼저 프린터에 들어가도록 용지함에 다시 넣으십시오.</translation>
    </message>
</context>
<context>
    <name>CheckPolicy</name>
    <message>
        <source>Policy in %1 for the user %2</source>
        <translation>사용자 %2에 대한 %1의 정책</translation>
    </message>
    <message>
        <source>groups: %1</source>
        <translation>그룹: %1</translation>
    </message>
    <message>
        <source>Not used:</source>
        <translation>사용하지 않음:</translation>
    </message>
    <message>
        <source>Nothing is decided.</source>
        <translation>정해진 내용이 없습니다.</translation>
    </message>
    <message>
        <source>At the printer %1:</source>
        <translation>프린터 %1:</translation>
    </message>
    <message>
        <source>Void, because the printer does not take it:</source>
        <translation>프린터가 지원하지 않아 무효:</translation>
    </message>
    <message>
        <source>For others, who are in these groups:</source>
        <translation>다음 그룹에 속한 다른 사용자용:</translation>
    </message>
    <message>
        <source>Only root may ask what applies to somebody else.</source>
        <translation>다른 사용자에게 적용되는 내용은 root만 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>There is no user of the name “%1”.</source>
        <translation>이름이 ‘%1’인 사용자가 없습니다.</translation>
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
        <translation>이 작업의 설정에 따라 그중 홀수 페이지만 인쇄됩니다.</translation>
    </message>
    <message>
        <source>Only the even ones of them are printed, as is set for this job.</source>
        <translation>이 작업의 설정에 따라 그중 짝수 페이지만 인쇄됩니다.</translation>
    </message>
    <message>
        <source>No page is chosen.</source>
        <translation>선택한 페이지가 없습니다.</translation>
    </message>
    <message>
        <source>How many pages there are is not known.</source>
        <translation>페이지 수를 알 수 없습니다.</translation>
    </message>
    <message>
        <source>%L1 of %L2 page numbers chosen.</source>
        <translation>페이지 번호 %L2개 중 %L1개를 선택했습니다.</translation>
    </message>
    <message>
        <source>%L1 of %L2 pages chosen.</source>
        <translation>%L2페이지 중 %L1페이지를 선택했습니다.</translation>
    </message>
    <message>
        <source>There are no pages %1.</source>
        <translation>없는 페이지: %1.</translation>
    </message>
    <message>
        <source>“%1” is no page. Pages are typed as in 1-4, 7, 9-.</source>
        <translation>‘%1’은(는) 페이지가 아닙니다. 1-4, 7, 9-와 같이 입력하십시오.</translation>
    </message>
    <message>
        <source>“%1” ends before it begins.</source>
        <translation>‘%1’은(는) 끝이 시작보다 앞에 있습니다.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the name of a document is missing.</source>
        <translation>문서 이름이 없습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lists what can be said.</source>
        <translation>&quot;%1&quot;을(를) 실행하면 지정할 수 있는 내용이 표시됩니다.</translation>
    </message>
    <message>
        <source>%1 %2: a number from %3 to %4 was expected.</source>
        <translation>%1 %2: %3에서 %4까지의 숫자를 지정하십시오.</translation>
    </message>
    <message>
        <source>-P &quot;%1&quot;: pages and ranges in ascending order were expected, such as 1-4,7,9-.</source>
        <translation>-P &quot;%1&quot;: 1-4,7,9-와 같이 페이지와 범위를 오름차순으로 지정하십시오.</translation>
    </message>
    <message>
        <source>-H %1 is for a job that is in a queue already: use %2.</source>
        <translation>-H %1은(는) 이미 대기열에 있는 작업에 사용합니다. %2을(를) 사용하십시오.</translation>
    </message>
    <message>
        <source>-H &quot;%1&quot;: hold, immediate, %2 was expected.</source>
        <translation>-H &quot;%1&quot;: 사용할 수 있는 값: hold, immediate, %2.</translation>
    </message>
    <message>
        <source>--check-policy takes one printer and no document.</source>
        <translation>--check-policy에는 프린터 하나만 지정할 수 있으며 문서는 지정할 수 없습니다.</translation>
    </message>
    <message>
        <source>--server &quot;%1&quot;: HOST, HOST:PORT or the path of a socket was expected.</source>
        <translation>--server &quot;%1&quot;: HOST, HOST:PORT 또는 소켓의 경로를 지정하십시오.</translation>
    </message>
    <message>
        <source>--on-alert %1: print, hold or refuse was expected.</source>
        <translation>--on-alert %1: print, hold 또는 refuse를 지정하십시오.</translation>
    </message>
    <message>
        <source>--format %1: json or text was expected.</source>
        <translation>--format %1: json 또는 text를 지정하십시오.</translation>
    </message>
    <message>
        <source>-m: no mail is sent. What became of the job is said at the end, and by the exit status.</source>
        <translation>-m: 메일을 보내지 않습니다. 작업의 결과는 마지막에 표시되며 종료 상태로도 알 수 있습니다.</translation>
    </message>
    <message>
        <source>%1 &quot;&quot;: %2 is missing.</source>
        <translation>%1 &quot;&quot;: %2이(가) 없습니다.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined.</source>
        <translation>%1과(와) %2은(는) 함께 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 is for runs without a window (--no-dialog).</source>
        <translation>%1은(는) 창 없이 실행할 때(--no-dialog) 사용합니다.</translation>
    </message>
    <message>
        <source>standard input cannot be the document and the password.</source>
        <translation>표준 입력은 문서와 암호로 동시에 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>--save-preset prints nothing: no document can be named.</source>
        <translation>--save-preset은 인쇄하지 않으므로 문서를 지정할 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be combined: both write to standard output.</source>
        <translation>%1과(와) %2은(는) 함께 사용할 수 없습니다. 둘 다 표준 출력에 씁니다.</translation>
    </message>
    <message>
        <source>-d &quot;%1&quot;: a URI like ipp://HOST/ipp/print was expected.</source>
        <translation>-d &quot;%1&quot;: ipp://HOST/ipp/print와 같은 URI를 지정하십시오.</translation>
    </message>
    <message>
        <source>-o &quot;%1&quot;: KEY=VALUE was expected.</source>
        <translation>-o &quot;%1&quot;: KEY=VALUE를 지정하십시오.</translation>
    </message>
    <message>
        <source>standard input (-) can be read once only.</source>
        <translation>표준 입력(-)은 한 번만 읽을 수 있습니다.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>사용법: %1</translation>
    </message>
    <message>
        <source>Prints a document with the settings of its printer, in a dialog or without one.</source>
        <translation>프린터의 설정으로 문서를 대화 상자에서 또는 대화 상자 없이 인쇄합니다.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>옵션:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>인수:</translation>
    </message>
    <message>
        <source>The document: PDF, PostScript, text, PNG or JPEG; - is standard input. Several are one job.</source>
        <translation>문서: PDF, PostScript, 텍스트, PNG 또는 JPEG. -는 표준 입력입니다. 여러 개는 하나의 작업이 됩니다.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>종료 상태:</translation>
    </message>
    <message>
        <source>128 and a signal&apos;s number: ended by that signal</source>
        <translation>128과 시그널 번호의 합: 해당 시그널로 종료됨</translation>
    </message>
    <message>
        <source>Print to the printer NAME: a queue, an instance NAME/INSTANCE, or an IPP printer ipp://HOST/PATH.</source>
        <translation>프린터 NAME으로 인쇄합니다. 대기열, 인스턴스 NAME/INSTANCE 또는 IPP 프린터 ipp://HOST/PATH를 지정합니다.</translation>
    </message>
    <message>
        <source>Use the queues of the print server HOST instead of the usual one.</source>
        <translation>평소의 서버 대신 인쇄 서버 HOST의 대기열을 사용합니다.</translation>
    </message>
    <message>
        <source>Speak to the print server with encryption only.</source>
        <translation>인쇄 서버와 암호화된 연결로만 통신합니다.</translation>
    </message>
    <message>
        <source>Print as the user USER.</source>
        <translation>사용자 USER로 인쇄합니다.</translation>
    </message>
    <message>
        <source>Take the password from the first line of FILE, which nobody but its owner may read; nobody is asked.</source>
        <translation>소유자만 읽을 수 있는 파일 FILE의 첫 줄에서 암호를 읽으며, 암호를 묻지 않습니다.</translation>
    </message>
    <message>
        <source>The same from the open file descriptor N (0 is standard input).</source>
        <translation>열려 있는 파일 설명자 N에서 암호를 읽습니다(0은 표준 입력).</translation>
    </message>
    <message>
        <source>Open protected PDF documents with the password in the first line of FILE, which nobody but its owner may read.</source>
        <translation>소유자만 읽을 수 있는 파일 FILE의 첫 줄에 있는 암호로 보호된 PDF 문서를 엽니다.</translation>
    </message>
    <message>
        <source>Print for the printer that the PPD FILE describes.</source>
        <translation>PPD FILE이 설명하는 프린터용으로 인쇄합니다.</translation>
    </message>
    <message>
        <source>Write the printer-ready data to FILE; - is standard output.</source>
        <translation>인쇄할 준비가 된 데이터를 FILE에 씁니다. -는 표준 출력입니다.</translation>
    </message>
    <message>
        <source>Offer the sample printers.</source>
        <translation>예제 프린터를 제공합니다.</translation>
    </message>
    <message>
        <source>List the printers and exit.</source>
        <translation>프린터 목록을 표시하고 종료합니다.</translation>
    </message>
    <message>
        <source>Start with the settings of the preset NAME; -o counts more.</source>
        <translation>사전 설정 NAME의 설정으로 시작합니다. -o가 우선합니다.</translation>
    </message>
    <message>
        <source>List the presets and exit.</source>
        <translation>사전 설정 목록을 표시하고 종료합니다.</translation>
    </message>
    <message>
        <source>Keep the settings of the printer, those of -o among them, as the preset NAME, and exit. A preset of that name is replaced.</source>
        <translation>-o의 설정을 포함한 프린터 설정을 사전 설정 NAME으로 저장하고 종료합니다. 같은 이름의 사전 설정은 대체됩니다.</translation>
    </message>
    <message>
        <source>Say what the administrator&apos;s policy decides, and where, for the printer that is named behind it or by -d; as root with -U for another user. Exit with status 1 when something of it is not used.</source>
        <translation>뒤에 또는 -d로 지정한 프린터에 대해 관리자의 정책이 무엇을 어디에서 결정하는지 표시합니다. root는 -U로 다른 사용자를 지정할 수 있습니다. 일부라도 사용되지 않으면 종료 상태는 1입니다.</translation>
    </message>
    <message>
        <source>Print a job of many sheets without being asked.</source>
        <translation>용지가 많이 필요한 작업을 묻지 않고 인쇄합니다.</translation>
    </message>
    <message>
        <source>Set an option of the printer or of the job; may be repeated.</source>
        <translation>프린터 또는 작업의 옵션을 설정합니다. 여러 번 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>Print N copies (1 to %1).</source>
        <translation>N부를 인쇄합니다(1~%1).</translation>
    </message>
    <message>
        <source>Print these pages (1-4,7,9-), as -o page-ranges= does.</source>
        <translation>-o page-ranges=와 같이 지정한 페이지(1-4,7,9-)를 인쇄합니다.</translation>
    </message>
    <message>
        <source>Give the job this priority (1 to 100), as -o job-priority= does.</source>
        <translation>-o job-priority=와 같이 작업의 우선순위(1~100)를 지정합니다.</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, a time HH:MM (UTC), or what -o job-hold-until= takes.</source>
        <translation>인쇄할 시점: hold, immediate, 시간 HH:MM(UTC) 또는 -o job-hold-until=에 사용하는 값.</translation>
    </message>
    <message>
        <source>Do not say which job was printed, only what went wrong.</source>
        <translation>어떤 작업이 인쇄되었는지 알려 주지 않고 문제만 알려 줍니다.</translation>
    </message>
    <message>
        <source>Does nothing: the document is always copied to the queue.</source>
        <translation>아무것도 하지 않습니다. 문서는 항상 대기열로 복사됩니다.</translation>
    </message>
    <message>
        <source>Is refused: no mail is sent.</source>
        <translation>거부됩니다. 메일을 보내지 않습니다.</translation>
    </message>
    <message>
        <source>Name the job TEXT.</source>
        <translation>작업의 이름을 TEXT로 지정합니다.</translation>
    </message>
    <message>
        <source>Print without a window.</source>
        <translation>창 없이 인쇄합니다.</translation>
    </message>
    <message>
        <source>Write the settings of the job to standard output.</source>
        <translation>작업의 설정을 표준 출력에 씁니다.</translation>
    </message>
    <message>
        <source>Without a window: keep the settings in lpoptions as an instance of the queue, so that lp -d QUEUE/NAME and other programs print with them.</source>
        <translation>창 없이: 설정을 lpoptions에 대기열의 인스턴스로 저장하여 lp -d QUEUE/NAME과 다른 프로그램이 그 설정으로 인쇄하게 합니다.</translation>
    </message>
    <message>
        <source>Without a window: what to do when the printer&apos;s settings show instructions: print, hold or refuse. Usually a queue holds the job, and a file is printed.</source>
        <translation>창 없이: 프린터 설정이 지침을 표시할 때 할 일: print, hold 또는 refuse. 보통 대기열에서는 작업을 보류하고 파일로는 인쇄합니다.</translation>
    </message>
    <message>
        <source>Without a window: end when the queue has the job, not when it is printed.</source>
        <translation>창 없이: 인쇄가 끝날 때가 아니라 대기열이 작업을 받았을 때 종료합니다.</translation>
    </message>
    <message>
        <source>Without a window: follow the job for SECONDS at most once its queue has it, then leave it there.</source>
        <translation>창 없이: 대기열이 작업을 받은 뒤 최대 SECONDS초 동안 작업을 지켜보고 그 뒤에는 그대로 둡니다.</translation>
    </message>
    <message>
        <source>Without a window: json writes what became of the job to standard output, as one line that a program can read; text is what people read.</source>
        <translation>창 없이: json은 작업의 결과를 프로그램이 읽을 수 있는 한 줄로 표준 출력에 씁니다. text는 사람이 읽는 형식입니다.</translation>
    </message>
    <message>
        <source>Also trust the plug-in bundles in the folder DIR.</source>
        <translation>폴더 DIR의 플러그인 번들도 신뢰합니다.</translation>
    </message>
    <message>
        <source>Exit with status 0 when a window can be shown, with 1 when not.</source>
        <translation>창을 표시할 수 있으면 상태 0으로, 없으면 1로 종료합니다.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>이 도움말을 표시합니다.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>버전을 표시합니다.</translation>
    </message>
    <message>
        <source>With --save-instance: make such an instance of these queues as well, with what each of them needs to print the same.</source>
        <translation>--save-instance와 함께: 이 대기열들에도 그러한 인스턴스를 만들며, 똑같이 인쇄하는 데 각 대기열에 필요한 것을 담습니다.</translation>
    </message>
    <message>
        <source>--also-on: the name of the instance is missing, as in --save-instance reports.</source>
        <translation>--also-on: --save-instance reports와 같은 인스턴스의 이름이 없습니다.</translation>
    </message>
</context>
<context>
    <name>CupsFilter</name>
    <message>
        <source>The program %1, named by CORVANA_PRINT_CUPSFILTER, cannot be run.</source>
        <translation>CORVANA_PRINT_CUPSFILTER에 지정된 프로그램 %1을(를) 실행할 수 없습니다.</translation>
    </message>
    <message>
        <source>The program cupsfilter was found neither on the path nor in /usr/sbin. It comes with CUPS (on Debian the package “cups”).</source>
        <translation>프로그램 cupsfilter가 경로와 /usr/sbin 어디에도 없습니다. 이 프로그램은 CUPS에 들어 있습니다(Debian에서는 패키지 ‘cups’).</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>PDF document</source>
        <translation>PDF 문서</translation>
    </message>
    <message>
        <source>PostScript document</source>
        <translation>PostScript 문서</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>PNG 그림</translation>
    </message>
    <message>
        <source>JPEG picture</source>
        <translation>JPEG 그림</translation>
    </message>
    <message>
        <source>text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1은(는) 빈 파일입니다.</translation>
    </message>
    <message>
        <source>%1 cannot be printed: it holds data that are ready for a printer. A queue passes them on as they are with the option “raw”.</source>
        <translation>%1을(를) 인쇄할 수 없습니다. 이미 프린터용으로 준비된 데이터입니다. 대기열에서 ‘raw’ 옵션을 사용하면 그대로 전달됩니다.</translation>
    </message>
    <message>
        <source>%1 cannot be printed; its contents: %2. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>%1을(를) 인쇄할 수 없습니다. 내용: %2. 인쇄할 수 있는 문서는 PDF, PostScript, 텍스트, PNG, JPEG입니다.</translation>
    </message>
    <message>
        <source>%1 is named like a %2, but holds a %3. Rename it if that is right.</source>
        <translation>%1의 이름은 %2처럼 보이지만 내용은 %3입니다. 내용이 맞으면 파일 이름을 바꾸십시오.</translation>
    </message>
    <message>
        <source>%1: there is no such file.</source>
        <translation>%1: 이 파일이 없습니다.</translation>
    </message>
    <message>
        <source>%1 is a folder; a document was expected.</source>
        <translation>%1은(는) 폴더입니다. 문서를 지정하십시오.</translation>
    </message>
    <message>
        <source>%1 is no ordinary file; a document was expected.</source>
        <translation>%1은(는) 일반 파일이 아닙니다. 문서를 지정하십시오.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>표준 입력</translation>
    </message>
    <message>
        <source>%1 cannot be kept: %2</source>
        <translation>%1을(를) 보관할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read: nobody writes into it.</source>
        <translation>%1을(를) 읽을 수 없습니다. 데이터를 쓰는 프로그램이 없습니다.</translation>
    </message>
    <message>
        <source>%1 cannot be kept: it has more than %2 bytes.</source>
        <translation>%1을(를) 보관할 수 없습니다. %2바이트가 넘습니다.</translation>
    </message>
    <message>
        <source>%1 cannot be printed: nobody can tell what is in it. Documents can be PDF, PostScript, text, PNG or JPEG.</source>
        <translation>%1을(를) 인쇄할 수 없습니다. 내용을 알 수 없습니다. 인쇄할 수 있는 문서는 PDF, PostScript, 텍스트, PNG, JPEG입니다.</translation>
    </message>
</context>
<context>
    <name>DocumentCopies</name>
    <message>
        <source>all documents, then all of them again (A B A B)</source>
        <translation>모든 문서를 한 부씩 반복(A B A B)</translation>
    </message>
    <message>
        <source>each document with all its copies (A A B B)</source>
        <translation>문서마다 전체 부수를 이어서(A A B B)</translation>
    </message>
    <message>
        <source>each page with all its copies (1 1 2 2)</source>
        <translation>페이지마다 전체 부수를 이어서(1 1 2 2)</translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>“%1” is damaged at byte %2.</source>
        <translation>‘%1’이(가) %2번째 바이트에서 손상되었습니다.</translation>
    </message>
    <message>
        <source>“%1” is damaged.</source>
        <translation>‘%1’이(가) 손상되었습니다.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>“%1” is protected, and the password that was given does not open it.</source>
        <translation>‘%1’은(는) 보호되어 있으며 지정한 암호로 열 수 없습니다.</translation>
    </message>
    <message>
        <source>“%1” is protected: it is printed only with its password.</source>
        <translation>‘%1’은(는) 보호되어 있습니다. 암호가 있어야 인쇄됩니다.</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. Only its owner&apos;s password does.</source>
        <translation>‘%1’은(는) 인쇄가 허용되지 않습니다. 소유자 암호가 있어야 인쇄할 수 있습니다.</translation>
    </message>
    <message>
        <source>None of its pages can be printed.</source>
        <translation>인쇄할 수 있는 페이지가 없습니다.</translation>
    </message>
    <message>
        <source>“%1” is protected, and a copy without protection could not be made: it is too large, or there is no room for it.</source>
        <translation>‘%1’은(는) 보호되어 있으며 보호되지 않은 사본을 만들 수 없었습니다. 너무 크거나 공간이 부족합니다.</translation>
    </message>
    <message>
        <source>1 of its %1 pages can be printed.</source>
        <translation>%1페이지 중 1페이지를 인쇄할 수 있습니다.</translation>
    </message>
    <message>
        <source>%1 of its %2 pages can be printed.</source>
        <translation>%2페이지 중 %1페이지를 인쇄할 수 있습니다.</translation>
    </message>
    <message>
        <source>“%1” is protected. The file that is printed to is not.</source>
        <translation>‘%1’은(는) 보호되어 있지만 인쇄되는 파일은 보호되지 않습니다.</translation>
    </message>
    <message>
        <source>“%1” is protected. The print server gets a copy without protection.</source>
        <translation>‘%1’은(는) 보호되어 있지만 인쇄 서버에는 보호되지 않은 사본이 전송됩니다.</translation>
    </message>
    <message>
        <source>All pages that were found in it are printed.</source>
        <translation>찾은 모든 페이지가 인쇄됩니다.</translation>
    </message>
    <message>
        <source>“%1” brings settings for a printer along, which are not followed: %2. Choose them here, or pass the document on with the option “raw”.</source>
        <translation>‘%1’에 들어 있는 프린터 설정은 적용되지 않습니다: %2. 여기서 설정하거나 ‘raw’ 옵션으로 문서를 그대로 전달하십시오.</translation>
    </message>
</context>
<context>
    <name>ExitStatus</name>
    <message>
        <source>printed, sent, or in the queue with the reason why it waits there</source>
        <translation>인쇄됨, 전송됨, 또는 대기 이유와 함께 대기열에 있음</translation>
    </message>
    <message>
        <source>refused, failed or canceled</source>
        <translation>거부, 실패 또는 취소됨</translation>
    </message>
    <message>
        <source>a command line that cannot be understood</source>
        <translation>이해할 수 없는 명령줄</translation>
    </message>
    <message>
        <source>sent, and what became of it is not known</source>
        <translation>전송되었으나 결과를 알 수 없음</translation>
    </message>
    <message>
        <source>the time of --wait is over; the job is still in the queue</source>
        <translation>--wait의 시간이 지났으며 작업이 아직 대기열에 있음</translation>
    </message>
</context>
<context>
    <name>HttpLine</name>
    <message>
        <source>The password is sent to “%1” without encryption: others in the network can read it. “-E” encrypts.</source>
        <translation>암호가 ‘%1’(으)로 암호화되지 않고 전송됩니다. 네트워크의 다른 사람이 읽을 수 있습니다. ‘-E’를 사용하면 암호화됩니다.</translation>
    </message>
</context>
<context>
    <name>InstanceDraft</name>
    <message>
        <source>Some programs add “%1=%2” to it, which you have set for “%3”.</source>
        <translation>일부 프로그램은 ‘%3’에 설정된 ‘%1=%2’을(를) 추가합니다.</translation>
    </message>
    <message>
        <source>“%1” is left out: it is a secret.</source>
        <translation>‘%1’은(는) 비밀 값이므로 포함하지 않습니다.</translation>
    </message>
    <message>
        <source>“%1” is left out: other programs cannot print it.</source>
        <translation>‘%1’은(는) 다른 프로그램에서 인쇄할 수 없으므로 포함하지 않습니다.</translation>
    </message>
    <message>
        <source>Other programs know settings of queues only, and “%1” is none.</source>
        <translation>다른 프로그램은 대기열의 설정만 사용할 수 있으며 ‘%1’은(는) 대기열이 아닙니다.</translation>
    </message>
    <message>
        <source>“%1” gets files as they are, so that no setting has an effect.</source>
        <translation>‘%1’은(는) 파일을 그대로 받으므로 설정이 효과가 없습니다.</translation>
    </message>
    <message>
        <source>“%1” has no letters that other programs can print to. Give it a name of letters from a to z, such as “%2”.</source>
        <translation>‘%1’에는 다른 프로그램에서 인쇄 대상으로 쓸 수 있는 글자가 없습니다. ‘%2’처럼 a부터 z까지의 글자로 된 이름을 지정하십시오.</translation>
    </message>
    <message>
        <source>“%1” is there already, with settings of its own. Choose another name, or remove it with “lpoptions -x %1”.</source>
        <translation>‘%1’은(는) 자체 설정을 가진 채로 이미 있습니다. 다른 이름을 선택하거나 ‘lpoptions -x %1’(으)로 제거하십시오.</translation>
    </message>
</context>
<context>
    <name>JobAttributes</name>
    <message>
        <source>On</source>
        <translation>켜기</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>끄기</translation>
    </message>
    <message>
        <source>Bound at the Left</source>
        <translation>왼쪽 제본</translation>
    </message>
    <message>
        <source>Bound at the Right</source>
        <translation>오른쪽 제본</translation>
    </message>
    <message>
        <source>One-Sided</source>
        <translation>단면</translation>
    </message>
    <message>
        <source>Long Edge (by Hand)</source>
        <translation>긴 쪽(수동)</translation>
    </message>
    <message>
        <source>Short Edge (by Hand)</source>
        <translation>짧은 쪽(수동)</translation>
    </message>
    <message>
        <source>Printed Side Down</source>
        <translation>인쇄면을 아래로</translation>
    </message>
    <message>
        <source>Printed Side Up</source>
        <translation>인쇄면을 위로</translation>
    </message>
    <message>
        <source>Up, Then to the Right</source>
        <translation>위로, 그다음 오른쪽으로</translation>
    </message>
    <message>
        <source>Up, Then to the Left</source>
        <translation>위로, 그다음 왼쪽으로</translation>
    </message>
    <message>
        <source>To the Right, Then Up</source>
        <translation>오른쪽으로, 그다음 위로</translation>
    </message>
    <message>
        <source>To the Right, Then Down</source>
        <translation>오른쪽으로, 그다음 아래로</translation>
    </message>
    <message>
        <source>To the Left, Then Up</source>
        <translation>왼쪽으로, 그다음 위로</translation>
    </message>
    <message>
        <source>To the Left, Then Down</source>
        <translation>왼쪽으로, 그다음 아래로</translation>
    </message>
    <message>
        <source>Down, Then to the Right</source>
        <translation>아래로, 그다음 오른쪽으로</translation>
    </message>
    <message>
        <source>Down, Then to the Left</source>
        <translation>아래로, 그다음 왼쪽으로</translation>
    </message>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Thin Line</source>
        <translation>가는 선</translation>
    </message>
    <message>
        <source>Thick Line</source>
        <translation>굵은 선</translation>
    </message>
    <message>
        <source>Two Thin Lines</source>
        <translation>가는 이중선</translation>
    </message>
    <message>
        <source>Two Thick Lines</source>
        <translation>굵은 이중선</translation>
    </message>
    <message>
        <source>All</source>
        <translation>모두</translation>
    </message>
    <message>
        <source>Even Pages Only</source>
        <translation>짝수 페이지만</translation>
    </message>
    <message>
        <source>Odd Pages Only</source>
        <translation>홀수 페이지만</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>세로</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>가로</translation>
    </message>
    <message>
        <source>Reverse Landscape</source>
        <translation>가로(역방향)</translation>
    </message>
    <message>
        <source>Reverse Portrait</source>
        <translation>세로(역방향)</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>Fit All Pages If One Is Too Large</source>
        <translation>너무 큰 페이지가 있으면 모든 페이지를 맞춤</translation>
    </message>
    <message>
        <source>Fill Paper</source>
        <translation>용지 채우기</translation>
    </message>
    <message>
        <source>Fit to Paper</source>
        <translation>용지에 맞춤</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>실제 크기</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>가운데</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>위쪽</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>왼쪽 위</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>오른쪽 위</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>아래쪽</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>왼쪽 아래</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>오른쪽 아래</translation>
    </message>
    <message>
        <source>First Page First</source>
        <translation>첫 페이지부터</translation>
    </message>
    <message>
        <source>Last Page First</source>
        <translation>마지막 페이지부터</translation>
    </message>
    <message>
        <source>Print at Once</source>
        <translation>바로 인쇄</translation>
    </message>
    <message>
        <source>Until It Is Released</source>
        <translation>해제할 때까지</translation>
    </message>
    <message>
        <source>Daytime</source>
        <translation>주간</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>저녁</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>야간</translation>
    </message>
    <message>
        <source>Second Shift</source>
        <translation>두 번째 근무조</translation>
    </message>
    <message>
        <source>Third Shift</source>
        <translation>세 번째 근무조</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>주말</translation>
    </message>
    <message>
        <source>points of 1/72 inch</source>
        <translation>포인트(1/72인치)</translation>
    </message>
    <message>
        <source>Two-Sided</source>
        <translation>양면</translation>
    </message>
    <message>
        <source>Sheets Are Put Back</source>
        <translation>용지를 다시 넣는 방법</translation>
    </message>
    <message>
        <source>Pages per Sheet</source>
        <translation>용지당 페이지 수</translation>
    </message>
    <message>
        <source>Order on the Sheet</source>
        <translation>용지의 페이지 순서</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>소책자</translation>
    </message>
    <message>
        <source>Each Page, Times on a Side</source>
        <translation>한 면에 같은 페이지 반복 횟수</translation>
    </message>
    <message>
        <source>Border Around Pages</source>
        <translation>페이지 테두리</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>페이지</translation>
    </message>
    <message>
        <source>pages and ranges in ascending order, such as 1-4,7,9-</source>
        <translation>오름차순 페이지와 범위(예: 1-4,7,9-)</translation>
    </message>
    <message>
        <source>Odd and Even Pages</source>
        <translation>홀수 및 짝수 페이지</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>용지 방향</translation>
    </message>
    <message>
        <source>Fit to Page</source>
        <translation>페이지에 맞춤</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>배율</translation>
    </message>
    <message>
        <source>Size on the Page, in %</source>
        <translation>페이지에 대한 크기(%)</translation>
    </message>
    <message>
        <source>Size of the Picture, in %</source>
        <translation>그림 크기(%)</translation>
    </message>
    <message>
        <source>Pixels per Inch</source>
        <translation>인치당 픽셀 수</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>좌우 반전</translation>
    </message>
    <message>
        <source>Left Margin</source>
        <translation>왼쪽 여백</translation>
    </message>
    <message>
        <source>Right Margin</source>
        <translation>오른쪽 여백</translation>
    </message>
    <message>
        <source>Top Margin</source>
        <translation>위쪽 여백</translation>
    </message>
    <message>
        <source>Bottom Margin</source>
        <translation>아래쪽 여백</translation>
    </message>
    <message>
        <source>Characters per Inch</source>
        <translation>인치당 글자 수</translation>
    </message>
    <message>
        <source>Lines per Inch</source>
        <translation>인치당 줄 수</translation>
    </message>
    <message>
        <source>Columns of Text</source>
        <translation>텍스트 단 수</translation>
    </message>
    <message>
        <source>Long Lines Continue</source>
        <translation>긴 줄 바꿈</translation>
    </message>
    <message>
        <source>Headers on Text Pages</source>
        <translation>텍스트 페이지 머리글</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>한 부씩 인쇄</translation>
    </message>
    <message>
        <source>Output Order</source>
        <translation>출력 순서</translation>
    </message>
    <message>
        <source>Hold Until</source>
        <translation>인쇄 보류</translation>
    </message>
    <message>
        <source>a time HH:MM in UTC</source>
        <translation>UTC 시간 HH:MM</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>우선순위</translation>
    </message>
    <message>
        <source>Banner Pages</source>
        <translation>표지</translation>
    </message>
    <message>
        <source>one or two names of banner pages</source>
        <translation>표지 이름 한 개 또는 두 개</translation>
    </message>
    <message>
        <source>Billed To</source>
        <translation>청구 대상</translation>
    </message>
    <message>
        <source>a text of up to 255 bytes</source>
        <translation>255바이트 이하의 텍스트</translation>
    </message>
    <message>
        <source>%1 UTC</source>
        <translation>%1 UTC</translation>
    </message>
    <message>
        <source>%1 UTC (%2 here)</source>
        <translation>%1 UTC(현지 시간 %2)</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1~%2</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>컬러</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>흑백</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>초안</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>표준</translation>
    </message>
    <message>
        <source>High</source>
        <translation>높음</translation>
    </message>
    <message>
        <source>Canceled After, in Seconds</source>
        <translation>취소할 때까지의 시간(초)</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>색상 모드</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>품질</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>해상도</translation>
    </message>
    <message>
        <source>a resolution such as 600dpi or 1200x600dpi</source>
        <translation>600dpi 또는 1200x600dpi와 같은 해상도</translation>
    </message>
    <message>
        <source>Output Bin</source>
        <translation>출력함</translation>
    </message>
    <message>
        <source>the name of an output bin</source>
        <translation>출력함 이름</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>마무리</translation>
    </message>
    <message>
        <source>numbers or names of finishings</source>
        <translation>마무리의 번호 또는 이름</translation>
    </message>
    <message>
        <source>Paper Source</source>
        <translation>용지 공급</translation>
    </message>
    <message>
        <source>the name of a paper source</source>
        <translation>용지 공급 위치의 이름</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>용지 종류</translation>
    </message>
    <message>
        <source>the name of a media type</source>
        <translation>용지 종류의 이름</translation>
    </message>
    <message>
        <source>or %1</source>
        <translation>또는 %1</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>초</translation>
    </message>
</context>
<context>
    <name>JobColors</name>
    <message>
        <source>Shown in black and white, with your adjustments.</source>
        <translation>흑백으로 조정 내용을 적용하여 표시합니다.</translation>
    </message>
    <message>
        <source>Shown in black and white.</source>
        <translation>흑백으로 표시합니다.</translation>
    </message>
    <message>
        <source>Shows your adjustments; colors on paper differ.</source>
        <translation>조정 내용을 적용하여 표시합니다. 용지의 색상은 다릅니다.</translation>
    </message>
    <message>
        <source>Colors on paper differ from those on the screen.</source>
        <translation>용지의 색상은 화면의 색상과 다릅니다.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>“%1: %2” is not shown.</source>
        <translation>‘%1: %2’은(는) 미리보기에 반영되지 않습니다.</translation>
    </message>
</context>
<context>
    <name>JobNames</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 외 %n개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>JobRequests</name>
    <message>
        <source>The value of “%1” is too long for a print server; at most %2 bytes can be sent.</source>
        <translation>‘%1’의 값이 인쇄 서버에 비해 너무 깁니다. %2바이트까지 보낼 수 있습니다.</translation>
    </message>
    <message>
        <source>The value of “%1” has characters that a print server would drop: no line breaks, no “{” in front.</source>
        <translation>‘%1’의 값에 인쇄 서버가 버리는 문자가 있습니다. 줄 바꿈을 사용하거나 ‘{’로 시작할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>LastUsed</name>
    <message>
        <source>The settings of the last job cannot be read, and stay as they are in “%1”: %2.</source>
        <translation>지난번 작업의 설정을 읽을 수 없어 ‘%1’에 그대로 두었습니다: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>‘%1’을(를) 제거할 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be written.</source>
        <translation>‘%1’에 쓸 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>LeftSession</name>
    <message>
        <source>This printer has no option of the name %1 any more.</source>
        <translation>이 프린터에는 더 이상 %1 옵션이 없습니다.</translation>
    </message>
    <message>
        <source>The option %1 has no choice %2 any more.</source>
        <translation>옵션 %1에는 더 이상 %2 항목이 없습니다.</translation>
    </message>
</context>
<context>
    <name>ListPresets</name>
    <message>
        <source>all printers</source>
        <translation>모든 프린터</translation>
    </message>
</context>
<context>
    <name>OptionLocks</name>
    <message>
        <source>“%1” is set by your administrator (%2).</source>
        <translation>‘%1’은(는) 관리자가 설정했습니다(%2).</translation>
    </message>
    <message>
        <source>Set by your administrator (%1).</source>
        <translation>관리자가 설정했습니다(%1).</translation>
    </message>
</context>
<context>
    <name>OptionRequest</name>
    <message>
        <source>%1: the printer&apos;s settings do not allow this here; it became %2.</source>
        <translation>%1: 프린터 설정 때문에 여기에서 사용할 수 없어 %2(으)로 바뀌었습니다.</translation>
    </message>
    <message>
        <source>%1: the printer&apos;s options cannot be set to this value.</source>
        <translation>%1: 프린터 옵션을 이 값으로 설정할 수 없습니다.</translation>
    </message>
    <message>
        <source>%1: this cannot be combined with %2.</source>
        <translation>%1: %2과(와) 함께 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>%1: this value is not allowed. Allowed: %2.</source>
        <translation>%1: 이 값은 사용할 수 없습니다. 사용할 수 있는 값: %2.</translation>
    </message>
    <message>
        <source>%1=Custom: a value is missing. Allowed: %2.</source>
        <translation>%1=Custom: 값이 없습니다. 사용할 수 있는 값: %2.</translation>
    </message>
    <message>
        <source>this printer has no such option. Options: %1. Job attributes: %2.</source>
        <translation>이 프린터에는 그런 옵션이 없습니다. 옵션: %1. 작업 속성: %2.</translation>
    </message>
    <message>
        <source>this printer has nothing to choose from for this.</source>
        <translation>이 프린터에는 선택할 수 있는 항목이 없습니다.</translation>
    </message>
    <message>
        <source>this value is not allowed. Allowed: %1.</source>
        <translation>이 값은 사용할 수 없습니다. 사용할 수 있는 값: %1.</translation>
    </message>
    <message>
        <source>this printer has no paper sizes to choose from.</source>
        <translation>이 프린터에는 선택할 수 있는 용지 크기가 없습니다.</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>‘%1’은(는) 사용할 수 없습니다. 사용할 수 있는 값: %2.</translation>
    </message>
    <message>
        <source>this printer prints on one side only. Allowed: %1. Two sides by hand: %2=%3, %2=%4.</source>
        <translation>이 프린터는 한 면에만 인쇄합니다. 사용할 수 있는 값: %1. 수동 양면 인쇄: %2=%3, %2=%4.</translation>
    </message>
    <message>
        <source>1 to %1</source>
        <translation>1~%1</translation>
    </message>
    <message>
        <source>this printer turns sheets over itself. Allowed: %1=no; for two sides use %2.</source>
        <translation>이 프린터는 용지를 자동으로 뒤집습니다. 사용할 수 있는 값: %1=no. 양면 인쇄에는 %2을(를) 사용하십시오.</translation>
    </message>
</context>
<context>
    <name>PageChoice</name>
    <message>
        <source>The pages that were asked for are in none of the documents. Nothing was printed.</source>
        <translation>요청한 페이지가 어떤 문서에도 없습니다. 아무것도 인쇄되지 않았습니다.</translation>
    </message>
    <message>
        <source>“%1: %2”</source>
        <translation>‘%1: %2’</translation>
    </message>
    <message>
        <source>A booklet has two pages on each side, in an order of its own: %1 cannot be done with it.</source>
        <translation>소책자는 한 면에 두 페이지가 자체 순서로 들어갑니다. %1은(는) 함께 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Each page is repeated %1 times on a side: %2 cannot be done with it.</source>
        <translation>각 페이지가 한 면에 %1번 반복됩니다. %2은(는) 함께 사용할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>PageTrouble</name>
    <message>
        <source>This page cannot be shown: it is damaged.</source>
        <translation>이 페이지를 표시할 수 없습니다. 손상되었습니다.</translation>
    </message>
    <message>
        <source>This page cannot be shown: it is too large.</source>
        <translation>이 페이지를 표시할 수 없습니다. 너무 큽니다.</translation>
    </message>
    <message>
        <source>This page cannot be shown: drawing it takes too long.</source>
        <translation>이 페이지를 표시할 수 없습니다. 그리는 데 시간이 너무 오래 걸립니다.</translation>
    </message>
    <message>
        <source>This page cannot be shown: the document is protected by a password.</source>
        <translation>이 페이지를 표시할 수 없습니다. 문서가 암호로 보호되어 있습니다.</translation>
    </message>
    <message>
        <source>This page cannot be shown: the file cannot be read.</source>
        <translation>이 페이지를 표시할 수 없습니다. 파일을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>Pages cannot be shown: the program that draws them does not run.</source>
        <translation>페이지를 표시할 수 없습니다. 페이지를 그리는 프로그램이 실행되지 않습니다.</translation>
    </message>
</context>
<context>
    <name>PassedOn</name>
    <message>
        <source>The queue “%1” passes files on as they are: %2 cannot be done.</source>
        <translation>대기열 ‘%1’은(는) 파일을 그대로 전달하므로 %2을(를) 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>With “raw” files are passed on as they are: %1 cannot be done.</source>
        <translation>‘raw’에서는 파일이 그대로 전달되므로 %1을(를) 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>문서</translation>
    </message>
    <message>
        <source>Passed on as it is</source>
        <translation>그대로 전달됨</translation>
    </message>
</context>
<context>
    <name>PasswordFile</name>
    <message>
        <source>The password cannot be read from %1: %2.</source>
        <translation>%1에서 암호를 읽을 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>The first line of %1 is empty; a password was expected.</source>
        <translation>%1의 첫 줄이 비어 있습니다. 암호가 있어야 합니다.</translation>
    </message>
    <message>
        <source>The first line of %1 is no password: at most %2 bytes of UTF-8 were expected.</source>
        <translation>%1의 첫 줄은 암호가 아닙니다. UTF-8로 %2바이트 이하여야 합니다.</translation>
    </message>
    <message>
        <source>The password cannot be read from %1: it is no file.</source>
        <translation>%1에서 암호를 읽을 수 없습니다. 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: the file belongs to somebody else.</source>
        <translation>%1의 암호를 사용하지 않습니다. 다른 사용자의 파일입니다.</translation>
    </message>
    <message>
        <source>The password in %1 is not taken: others than its owner may use the file (its mode is %2; chmod 600 takes that away).</source>
        <translation>%1의 암호를 사용하지 않습니다. 소유자가 아닌 사용자도 파일에 접근할 수 있습니다(권한 %2, chmod 600으로 막을 수 있음).</translation>
    </message>
    <message>
        <source>descriptor %1</source>
        <translation>설명자 %1</translation>
    </message>
</context>
<context>
    <name>Policy</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>‘%1’은(는) 사용할 수 없습니다. 사용할 수 있는 값: %2.</translation>
    </message>
    <message>
        <source>the path of a folder that begins with /</source>
        <translation>/로 시작하는 폴더 경로</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>%1에서 %2까지의 숫자</translation>
    </message>
    <message>
        <source>the line is longer than %1 bytes</source>
        <translation>줄이 %1바이트보다 깁니다</translation>
    </message>
    <message>
        <source>the line is not written in UTF-8</source>
        <translation>줄이 UTF-8이 아닙니다</translation>
    </message>
    <message>
        <source>the line has a character that cannot be seen</source>
        <translation>줄에 보이지 않는 글자가 있습니다</translation>
    </message>
    <message>
        <source>there are more problems</source>
        <translation>문제가 더 있습니다</translation>
    </message>
    <message>
        <source>there are more than %1 sections</source>
        <translation>섹션이 %1개가 넘습니다</translation>
    </message>
    <message>
        <source>“%1” is no section, and what follows in it is left out. Allowed: %2.</source>
        <translation>‘%1’은(는) 섹션이 아니므로 그 안의 내용은 무시됩니다. 사용할 수 있는 섹션: %2.</translation>
    </message>
    <message>
        <source>“%1” is no line of a policy. Expected: %2.</source>
        <translation>‘%1’은(는) 정책의 줄이 아닙니다. 사용할 수 있는 형식: %2.</translation>
    </message>
    <message>
        <source>“%1” stands before the first section. Begin with [all].</source>
        <translation>‘%1’이(가) 첫 섹션보다 앞에 있습니다. [all]로 시작하십시오.</translation>
    </message>
    <message>
        <source>there is no key “%1”. Keys: %2.</source>
        <translation>키 ‘%1’이(가) 없습니다. 키: %2.</translation>
    </message>
    <message>
        <source>%1 needs the keyword of an option or of a job attribute.</source>
        <translation>%1에는 옵션 또는 작업 속성의 키워드가 필요합니다.</translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation>값이 너무 깁니다</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 bytes</source>
        <translation>파일을 사용하지 않습니다: %1바이트가 넘습니다</translation>
    </message>
    <message>
        <source>the file is not used: it is no text</source>
        <translation>파일을 사용하지 않습니다: 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>the file is not used: it has more than %1 lines</source>
        <translation>파일을 사용하지 않습니다: %1줄이 넘습니다</translation>
    </message>
    <message>
        <source>it belongs to the user with the ID %1</source>
        <translation>번호가 %1인 사용자의 것입니다</translation>
    </message>
    <message>
        <source>others than its owner may write to it</source>
        <translation>소유자가 아닌 사용자도 쓸 수 있습니다</translation>
    </message>
    <message>
        <source>nothing below this folder is used: %1</source>
        <translation>이 폴더 아래의 내용을 사용하지 않습니다: %1</translation>
    </message>
    <message>
        <source>nothing in this folder is used: %1</source>
        <translation>이 폴더의 파일을 사용하지 않습니다: %1</translation>
    </message>
    <message>
        <source>only the first %1 files are used</source>
        <translation>처음 %1개의 파일만 사용합니다</translation>
    </message>
    <message>
        <source>the file is not used: it is a link that leads out of its folder</source>
        <translation>파일을 사용하지 않습니다: 폴더 밖을 가리키는 링크입니다</translation>
    </message>
    <message>
        <source>the file is not used: %1</source>
        <translation>파일을 사용하지 않습니다: %1</translation>
    </message>
    <message>
        <source>the file is not used: it is no ordinary file</source>
        <translation>파일을 사용하지 않습니다: 일반 파일이 아닙니다</translation>
    </message>
</context>
<context>
    <name>PpdCopy</name>
    <message>
        <source>The printer&apos;s options cannot be written to %1: %2</source>
        <translation>프린터 옵션을 %1에 쓸 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>PpdFilters</name>
    <message>
        <source>The driver of this printer names the file “%1”, which only a print server may open. Print on the printer itself instead of into a file.</source>
        <translation>이 프린터의 드라이버는 파일 ‘%1’을(를) 지정하지만, 이 파일은 인쇄 서버만 열 수 있습니다. 파일 대신 프린터로 인쇄하십시오.</translation>
    </message>
    <message>
        <source>The driver of this printer needs the program “%1”, which only a print server may run. Print on the printer itself instead of into a file.</source>
        <translation>이 프린터의 드라이버에는 프로그램 ‘%1’이(가) 필요하지만, 이 프로그램은 인쇄 서버만 실행할 수 있습니다. 파일 대신 프린터로 인쇄하십시오.</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>A preset needs a name.</source>
        <translation>사전 설정에는 이름이 필요합니다.</translation>
    </message>
    <message>
        <source>The name of a preset has at most %1 characters.</source>
        <translation>사전 설정의 이름은 %1자까지입니다.</translation>
    </message>
    <message>
        <source>The name of a preset holds only characters that can be seen.</source>
        <translation>사전 설정의 이름에는 보이는 글자만 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>“%1” is always there, and is no name of a preset.</source>
        <translation>‘%1’은(는) 항상 있으므로 사전 설정의 이름으로 사용할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>PresetApplication</name>
    <message>
        <source>%1 is not possible on this printer. Allowed: %2.</source>
        <translation>%1은(는) 이 프린터에서 사용할 수 없습니다. 사용할 수 있는 값: %2.</translation>
    </message>
    <message>
        <source>%1 is not possible together with the other settings.</source>
        <translation>%1은(는) 다른 설정과 함께 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings do not allow %1 here; it became %2.</source>
        <translation>프린터 설정 때문에 %1을(를) 사용할 수 없어 %2(으)로 바뀌었습니다.</translation>
    </message>
    <message>
        <source>%1 is not on this printer.</source>
        <translation>%1은(는) 이 프린터에 없습니다.</translation>
    </message>
    <message>
        <source>A value of the printer&apos;s own settings (%1) is not possible here.</source>
        <translation>프린터 자체 설정(%1)의 값을 여기에서 사용할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>PresetFile</name>
    <message>
        <source>“%1”: expected was %2</source>
        <translation>‘%1’: %2이(가) 필요합니다</translation>
    </message>
    <message>
        <source>it was written by a later version of this program</source>
        <translation>이 프로그램의 새 버전에서 작성되었습니다</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>at most %1 values</source>
        <translation>%1개 이하의 값</translation>
    </message>
    <message>
        <source>the name of an option</source>
        <translation>옵션의 이름</translation>
    </message>
    <message>
        <source>a value or a list of values</source>
        <translation>값 또는 값의 목록</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>‘%1’에 쓸 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1번째 줄: %2</translation>
    </message>
    <message>
        <source>expected was { … }</source>
        <translation>{ … } 형식이어야 합니다</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>파일이 아닙니다</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>%1바이트보다 큽니다</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>“%1” is damaged and is left as it is: %2.</source>
        <translation>‘%1’이(가) 손상되어 그대로 두었습니다: %2.</translation>
    </message>
    <message>
        <source>There is no place to keep presets.</source>
        <translation>사전 설정을 저장할 곳이 없습니다.</translation>
    </message>
    <message>
        <source>Another program is writing presets. Try again.</source>
        <translation>다른 프로그램이 사전 설정을 쓰고 있습니다. 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>no space left, or no permission</source>
        <translation>공간이 부족하거나 권한이 없음</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>‘%1’에 쓸 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>There is a preset of the name “%1” already.</source>
        <translation>이름이 ‘%1’인 사전 설정이 이미 있습니다.</translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>이름이 ‘%1’인 사전 설정이 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2.</source>
        <translation>‘%1’을(를) 제거할 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>%1 (for everybody)</source>
        <translation>%1(모든 사용자용)</translation>
    </message>
</context>
<context>
    <name>PrintRequest</name>
    <message>
        <source>The printer “%1” is not offered by your administrator (%2).</source>
        <translation>관리자가 프린터 ‘%1’을(를) 제공하지 않습니다(%2).</translation>
    </message>
    <message>
        <source>Printing to a file is not offered by your administrator (%1).</source>
        <translation>관리자가 파일로 인쇄하는 기능을 제공하지 않습니다(%1).</translation>
    </message>
</context>
<context>
    <name>PrinterFetching</name>
    <message>
        <source>Save as PDF</source>
        <translation>PDF로 저장</translation>
    </message>
</context>
<context>
    <name>PrinterTexts</name>
    <message>
        <source>connecting</source>
        <translation>연결 중</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>덮개 열림</translation>
    </message>
    <message>
        <source>driver not trusted by the server</source>
        <translation>서버가 드라이버를 신뢰하지 않음</translation>
    </message>
    <message>
        <source>driver missing on the server</source>
        <translation>서버에 드라이버 없음</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>전원 꺼짐</translation>
    </message>
    <message>
        <source>developer used up</source>
        <translation>현상액 없음</translation>
    </message>
    <message>
        <source>developer low</source>
        <translation>현상액 부족</translation>
    </message>
    <message>
        <source>door open</source>
        <translation>도어 열림</translation>
    </message>
    <message>
        <source>fuser too hot</source>
        <translation>정착기 과열</translation>
    </message>
    <message>
        <source>fuser too cold</source>
        <translation>정착기 온도 낮음</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>새 작업이 보류됨</translation>
    </message>
    <message>
        <source>tray missing</source>
        <translation>용지함 없음</translation>
    </message>
    <message>
        <source>ink or toner used up</source>
        <translation>잉크 또는 토너 없음</translation>
    </message>
    <message>
        <source>ink or toner low</source>
        <translation>잉크 또는 토너 부족</translation>
    </message>
    <message>
        <source>waste container almost full</source>
        <translation>폐토너 통이 거의 참</translation>
    </message>
    <message>
        <source>waste container full</source>
        <translation>폐토너 통이 가득 참</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>용지 없음</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>용지 걸림</translation>
    </message>
    <message>
        <source>paper low</source>
        <translation>용지 부족</translation>
    </message>
    <message>
        <source>paper needed</source>
        <translation>용지 필요</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>일시 중지하는 중</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>연결되지 않음</translation>
    </message>
    <message>
        <source>drum used up</source>
        <translation>드럼 수명 종료</translation>
    </message>
    <message>
        <source>drum nearly used up</source>
        <translation>드럼 수명 종료 임박</translation>
    </message>
    <message>
        <source>output tray almost full</source>
        <translation>출력함이 거의 참</translation>
    </message>
    <message>
        <source>output tray full</source>
        <translation>출력함이 가득 참</translation>
    </message>
    <message>
        <source>output tray missing</source>
        <translation>출력함 없음</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>print queue full</source>
        <translation>인쇄 대기열이 가득 참</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>일부 중지됨</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>중지하는 중</translation>
    </message>
    <message>
        <source>not answering</source>
        <translation>응답 없음</translation>
    </message>
    <message>
        <source>toner used up</source>
        <translation>토너 없음</translation>
    </message>
    <message>
        <source>toner low</source>
        <translation>토너 부족</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>인쇄 중</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>중지됨</translation>
    </message>
    <message>
        <source>Prints to a file</source>
        <translation>파일로 인쇄</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the words of a printer&apos;s state</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>No longer available</source>
        <translation>더 이상 사용할 수 없음</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>중지됨: %1</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>작업을 받지 않음</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>작업을 받지 않음</translation>
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
        <translation>이름: %1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>위치: %1</translation>
    </message>
    <message>
        <source>Model: %1</source>
        <translation>모델: %1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <translation>상태: %1</translation>
    </message>
    <message>
        <source>Message: %1</source>
        <translation>메시지: %1</translation>
    </message>
    <message>
        <source>Address: %1</source>
        <translation>주소: %1</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>알 수 없는 옵션: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>알 수 없는 옵션: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>&quot;%1&quot; 뒤에 값이 없습니다.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>&quot;%1&quot;에는 값을 지정할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>RefusalText</name>
    <message>
        <source>“%1: %2”</source>
        <translation>‘%1: %2’</translation>
    </message>
    <message>
        <source> and </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The printer&apos;s options cannot be set to %1.</source>
        <translation>프린터 옵션을 %1(으)로 설정할 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 cannot be combined with %2.</source>
        <translation>%1은(는) %2과(와) 함께 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Change to %1</source>
        <translation>%1(으)로 변경</translation>
    </message>
</context>
<context>
    <name>RequestFromCommandLine</name>
    <message>
        <source>%1: the name is not written in UTF-8.</source>
        <translation>%1: 이름이 UTF-8이 아닙니다.</translation>
    </message>
</context>
<context>
    <name>ResultFile</name>
    <message>
        <source>%1 is a folder; the name of a file was expected.</source>
        <translation>%1은(는) 폴더입니다. 파일 이름을 지정하십시오.</translation>
    </message>
    <message>
        <source>%1 is a device or a pipe; the name of a file was expected.</source>
        <translation>%1은(는) 장치나 파이프입니다. 파일 이름을 지정하십시오.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1에 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 was written by another program meanwhile, and is left as it is. Print again to replace it, or name another file.</source>
        <translation>그동안 다른 프로그램이 %1에 썼으므로 그대로 두었습니다. 바꾸려면 다시 인쇄하고, 그렇지 않으면 다른 파일을 지정하십시오.</translation>
    </message>
</context>
<context>
    <name>ResultPages</name>
    <message>
        <source>Nothing would be printed: what came out has no page.</source>
        <translation>인쇄할 내용이 없습니다. 만들어진 결과에 페이지가 없습니다.</translation>
    </message>
</context>
<context>
    <name>SavedAsPdf</name>
    <message>
        <source>A PDF file is neither held nor printed: %1 cannot be done.</source>
        <translation>PDF 파일은 보류되거나 인쇄되지 않으므로 %1을(를) 사용할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>ServerAddress</name>
    <message>
        <source>this computer</source>
        <translation>이 컴퓨터</translation>
    </message>
</context>
<context>
    <name>ServerJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>인쇄를 취소했습니다.</translation>
    </message>
    <message>
        <source>The print server did not say which job it has made.</source>
        <translation>인쇄 서버가 어떤 작업을 만들었는지 알려 주지 않았습니다.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1을(를) 읽을 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>%1 The printer says: %2</source>
        <translation>%1 프린터 메시지: %2</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has been printed.</source>
        <translation>이전 작업 %1이(가) 인쇄되었습니다.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is held in the queue.</source>
        <translation>이전 작업 %1이(가) 대기열에 보류되어 있습니다.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is stopped in the queue.</source>
        <translation>이전 작업 %1이(가) 대기열에서 중지되었습니다.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try is in the queue and will be printed.</source>
        <translation>이전 작업 %1이(가) 대기열에 있으며 인쇄될 예정입니다.</translation>
    </message>
    <message>
        <source>%1 The job had been moved from the queue “%2” to “%3”.</source>
        <translation>%1 작업이 대기열 ‘%2’에서 ‘%3’(으)로 이동되었습니다.</translation>
    </message>
    <message>
        <source>%1 Nothing was printed.</source>
        <translation>%1 아무것도 인쇄되지 않았습니다.</translation>
    </message>
    <message>
        <source>The printer “%1” wants a user and a password; none was given. Nothing was printed.</source>
        <translation>프린터 ‘%1’에는 사용자 이름과 암호가 필요하지만 입력되지 않았습니다. 아무것도 인쇄되지 않았습니다.</translation>
    </message>
    <message>
        <source>The queue “%1” is not there any more. Nothing was printed.</source>
        <translation>대기열 ‘%1’이(가) 더 이상 없습니다. 아무것도 인쇄되지 않았습니다.</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment. Nothing was printed.</source>
        <translation>대기열 ‘%1’이(가) 지금 작업을 받지 않습니다. 아무것도 인쇄되지 않았습니다.</translation>
    </message>
    <message>
        <source>The queue “%1” takes no jobs at the moment: %2. Nothing was printed.</source>
        <translation>대기열 ‘%1’이(가) 지금 작업을 받지 않습니다: %2. 아무것도 인쇄되지 않았습니다.</translation>
    </message>
    <message>
        <source>The options of the printer “%1” have changed at its server. Nothing was printed.</source>
        <translation>프린터 ‘%1’의 옵션이 서버에서 변경되었습니다. 아무것도 인쇄되지 않았습니다.</translation>
    </message>
    <message>
        <source>%1 Whether job %2 of the earlier try was printed is not known yet, so nothing was sent again.</source>
        <translation>%1 이전 작업 %2이(가) 인쇄되었는지 아직 알 수 없어 다시 보내지 않았습니다.</translation>
    </message>
    <message>
        <source>Job %1 of the earlier try has got %2 of its %3 documents to the printer. Print the others by themselves, or everything once more.</source>
        <translation>이전 작업 %1에서 문서 %3개 중 %2개가 프린터에 전달되었습니다. 나머지만 따로 인쇄하거나 모두 다시 인쇄하십시오.</translation>
    </message>
    <message>
        <source>%1 Nothing was printed, but a job without a document may be at the print server. It could not be looked for: %2</source>
        <translation>%1 아무것도 인쇄되지 않았지만, 문서가 없는 작업이 인쇄 서버에 남아 있을 수 있습니다. 작업을 찾을 수 없었습니다: %2</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; pages that the printer has already may still come out.</source>
        <translation>%1 작업 %2을(를) 취소했습니다. 프린터가 이미 받은 페이지는 인쇄될 수 있습니다.</translation>
    </message>
    <message>
        <source>%1 Job %2 was canceled; nothing was printed.</source>
        <translation>%1 작업 %2을(를) 취소했습니다. 아무것도 인쇄되지 않았습니다.</translation>
    </message>
    <message>
        <source>Job %1 could not be canceled and may still be printed. %2</source>
        <translation>작업 %1을(를) 취소할 수 없었으며 인쇄될 수도 있습니다. %2</translation>
    </message>
    <message>
        <source>%1 Job %2 could not be canceled and may still be printed. %3</source>
        <translation>%1 작업 %2을(를) 취소할 수 없었으며 인쇄될 수도 있습니다. %3</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server, without its whole document. It could not be canceled: %3</source>
        <translation>%1 작업 %2이(가) 문서 일부만 있는 채로 인쇄 서버에 남아 있을 수 있습니다. 작업을 취소할 수 없었습니다: %3</translation>
    </message>
    <message>
        <source>%1 Job %2 may still be at the print server with some of its documents, and may print these. It could not be canceled: %3 Printing again looks for it first.</source>
        <translation>%1 작업 %2이(가) 일부 문서와 함께 인쇄 서버에 남아 있어 그 문서가 인쇄될 수 있습니다. 작업을 취소할 수 없었습니다: %3 다시 인쇄하면 먼저 그 작업을 찾습니다.</translation>
    </message>
    <message>
        <source>The printer “%1” does not accept this user and password.</source>
        <translation>프린터 ‘%1’에서 이 사용자 이름과 암호를 받아들이지 않습니다.</translation>
    </message>
    <message>
        <source>%1 The print server does not know job %2 any more. It was probably not printed.</source>
        <translation>%1 인쇄 서버에 작업 %2의 기록이 더 이상 없습니다. 아마 인쇄되지 않았을 것입니다.</translation>
    </message>
    <message>
        <source>%1 The document had been sent, so job %2 may be printed or not. Printing again looks for it first.</source>
        <translation>%1 문서를 이미 보냈으므로 작업 %2이(가) 인쇄되었을 수도 있고 아닐 수도 있습니다. 다시 인쇄하면 먼저 그 작업을 찾습니다.</translation>
    </message>
    <message>
        <source>Job %1 has left the queue “%2”, whose server keeps no record of it. So whether it has been printed is not known.</source>
        <translation>작업 %1이(가) 대기열 ‘%2’에서 사라졌고 서버에 기록이 남아 있지 않습니다. 그래서 인쇄되었는지 알 수 없습니다.</translation>
    </message>
    <message>
        <source>Job %1 was handed over completely. %2 So whether it has been printed is not known.</source>
        <translation>작업 %1을(를) 모두 보냈습니다. %2 그래서 인쇄되었는지 알 수 없습니다.</translation>
    </message>
    <message>
        <source>The print server gives job %1 the state %2, which is not known.</source>
        <translation>인쇄 서버가 알려 준 작업 %1의 상태 %2은(는) 알 수 없는 상태입니다.</translation>
    </message>
    <message>
        <source>Job %1 was handed over to the queue “%2”.</source>
        <translation>작업 %1을(를) 대기열 ‘%2’에 넘겼습니다.</translation>
    </message>
    <message>
        <source>Job %1 was stopped. It is still in the queue, where it can be released or canceled.</source>
        <translation>작업 %1이(가) 중지되었습니다. 아직 대기열에 있으며 해제하거나 취소할 수 있습니다.</translation>
    </message>
    <message>
        <source>Job %1 is held in the queue “%2”.</source>
        <translation>작업 %1이(가) 대기열 ‘%2’에 보류되어 있습니다.</translation>
    </message>
    <message>
        <source>Job %1 waits in the queue “%2”, which is stopped.</source>
        <translation>작업 %1이(가) 중지된 대기열 ‘%2’에서 기다리고 있습니다.</translation>
    </message>
    <message>
        <source>Job %1 is in the queue “%2”.</source>
        <translation>작업 %1이(가) 대기열 ‘%2’에 있습니다.</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. Whether anything was on its pages is not known.</source>
        <translation>‘%1’에 작업 %2(으)로 보냈습니다. 페이지에 내용이 있었는지는 알 수 없습니다.</translation>
    </message>
    <message>
        <source>Sent to “%1” as job %2. That queue passes files on as they are: what was set for the printer or the pages had no effect there.</source>
        <translation>‘%1’에 작업 %2(으)로 보냈습니다. 이 대기열은 파일을 그대로 전달하므로 프린터나 페이지 설정이 적용되지 않았습니다.</translation>
    </message>
    <message>
        <source>Printed on “%1” as job %2.</source>
        <translation>‘%1’에서 작업 %2(으)로 인쇄했습니다.</translation>
    </message>
    <message>
        <source>Job %1 failed: the printer or its server gave it up.</source>
        <translation>작업 %1이(가) 실패했습니다. 프린터 또는 서버가 처리를 중단했습니다.</translation>
    </message>
    <message>
        <source>Job %1 was canceled at the printer or its server.</source>
        <translation>작업 %1이(가) 프린터 또는 서버에서 취소되었습니다.</translation>
    </message>
    <message>
        <source>Job %1 was printed with %2 of its %3 documents only.</source>
        <translation>작업 %1에서 문서 %3개 중 %2개만 인쇄되었습니다.</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>준비하는 중…</translation>
    </message>
    <message>
        <source>Sending, %1 %…</source>
        <translation>보내는 중, %1 %…</translation>
    </message>
    <message>
        <source>Asking the print server…</source>
        <translation>인쇄 서버에 묻는 중…</translation>
    </message>
    <message>
        <source>Waiting in the queue…</source>
        <translation>대기열에서 기다리는 중…</translation>
    </message>
    <message>
        <source>Held in the queue</source>
        <translation>대기열에 보류됨</translation>
    </message>
    <message>
        <source>Printing page %1…</source>
        <translation>%1페이지 인쇄 중…</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>인쇄 중…</translation>
    </message>
    <message>
        <source>The printer is stopped.</source>
        <translation>프린터가 중지되었습니다.</translation>
    </message>
    <message>
        <source>The printer is stopped: %1</source>
        <translation>프린터가 중지되었습니다: %1</translation>
    </message>
    <message>
        <source>First sides: %1</source>
        <translation>첫 번째 면: %1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>다른 면: %1</translation>
    </message>
    <message>
        <source>%1 The queue “%2” has no driver, and would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1 대기열 ‘%2’에는 드라이버가 없어 문서를 이어서 보내게 됩니다. 그래서 문서마다 별도의 작업으로 나누었습니다: %3.</translation>
    </message>
    <message>
        <source>%1 With “raw” the queue “%2” would have sent the documents in one stream. So each is a job of its own: %3.</source>
        <translation>%1 ‘raw’에서는 대기열 ‘%2’이(가) 문서를 이어서 보내게 됩니다. 그래서 문서마다 별도의 작업으로 나누었습니다: %3.</translation>
    </message>
    <message>
        <source>Job %1 was canceled or given up at the printer or its server.</source>
        <translation>작업 %1이(가) 프린터 또는 서버에서 취소되었거나 중단되었습니다.</translation>
    </message>
    <message>
        <source>Job %1 is still in the queue.</source>
        <translation>작업 %1이(가) 아직 대기열에 있습니다.</translation>
    </message>
    <message>
        <source>%1 Documents that were sent before, each as a job of its own: %2 of %3. Printing again sends the others.</source>
        <translation>%1 이미 각각 별도의 작업으로 보낸 문서: %3개 중 %2개. 다시 인쇄하면 나머지를 보냅니다.</translation>
    </message>
    <message>
        <source>Job %1 was canceled; pages that the printer has already may still come out.</source>
        <translation>작업 %1을(를) 취소했습니다. 프린터가 이미 받은 페이지는 인쇄될 수 있습니다.</translation>
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
        <translation>인쇄 서버 ‘%1’의 인증서가 이전과 다릅니다. 인증서가 바뀌었거나 누군가 통신에 끼어들었습니다. 의도적으로 바꾼 것이라면 파일 %2을(를) 제거하십시오.</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not the one that it had before: somebody has replaced it, or stands in between. If it was replaced on purpose, remove the line “%2” from the file %3.</source>
        <translation>인쇄 서버 ‘%1’의 인증서가 이전과 다릅니다. 인증서가 바뀌었거나 누군가 통신에 끼어들었습니다. 의도적으로 바꾼 것이라면 파일 %3에서 ‘%2’ 줄을 제거하십시오.</translation>
    </message>
    <message>
        <source>The print server “%1” cannot be reached.</source>
        <translation>인쇄 서버 ‘%1’에 연결할 수 없습니다.</translation>
    </message>
    <message>
        <source>The print server “%1” does not answer.</source>
        <translation>인쇄 서버 ‘%1’이(가) 응답하지 않습니다.</translation>
    </message>
    <message>
        <source>The print server “%1” broke the connection.</source>
        <translation>인쇄 서버 ‘%1’이(가) 연결을 끊었습니다.</translation>
    </message>
    <message>
        <source>What “%1” answers is not what a print server says.</source>
        <translation>‘%1’의 응답은 인쇄 서버의 응답이 아닙니다.</translation>
    </message>
    <message>
        <source>What “%1” answers is larger than anything that a print server has to say.</source>
        <translation>‘%1’의 응답이 인쇄 서버의 응답이라고 하기에는 너무 큽니다.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>인쇄 서버 ‘%1’에는 사용자 이름과 암호가 필요합니다.</translation>
    </message>
    <message>
        <source>The print server “%1” does not accept this user and password.</source>
        <translation>인쇄 서버 ‘%1’에서 이 사용자 이름과 암호를 받아들이지 않습니다.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password; none was given.</source>
        <translation>인쇄 서버 ‘%1’에는 사용자 이름과 암호가 필요하지만 입력되지 않았습니다.</translation>
    </message>
    <message>
        <source>The print server “%1” does not allow you this.</source>
        <translation>인쇄 서버 ‘%1’에서 이 작업을 허용하지 않습니다.</translation>
    </message>
    <message>
        <source>The certificate of the print server “%1” is not to be trusted.</source>
        <translation>인쇄 서버 ‘%1’의 인증서를 신뢰할 수 없습니다.</translation>
    </message>
    <message>
        <source>The print server “%1” wants an encrypted connection, which could not be made.</source>
        <translation>인쇄 서버 ‘%1’에는 암호화된 연결이 필요하지만 연결할 수 없었습니다.</translation>
    </message>
    <message>
        <source>The print server “%1” knows nothing of it.</source>
        <translation>인쇄 서버 ‘%1’에 해당 항목이 없습니다.</translation>
    </message>
    <message>
        <source>The print server “%1” refuses.</source>
        <translation>인쇄 서버 ‘%1’이(가) 요청을 거부했습니다.</translation>
    </message>
    <message>
        <source>The document cannot be read: %1</source>
        <translation>문서를 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>취소했습니다.</translation>
    </message>
    <message>
        <source>“%1” cannot be reached.</source>
        <translation>‘%1’에 연결할 수 없습니다.</translation>
    </message>
    <message>
        <source>No answer from “%1”.</source>
        <translation>‘%1’에서 응답이 없습니다.</translation>
    </message>
    <message>
        <source>“%1” broke the connection.</source>
        <translation>‘%1’이(가) 연결을 끊었습니다.</translation>
    </message>
    <message>
        <source>“%1” wants a password.</source>
        <translation>‘%1’에 암호가 필요합니다.</translation>
    </message>
    <message>
        <source>Wrong user or password.</source>
        <translation>사용자 이름 또는 암호가 틀렸습니다.</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints, in a way that is not possible here.</source>
        <translation>인쇄 서버 ‘%1’은(는) 누가 인쇄하는지 확인하려고 하지만, 여기서는 그 방법을 사용할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>SettingsIndex</name>
    <message>
        <source>Copies</source>
        <translation>부수</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>페이지</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>All Options</source>
        <translation>모든 옵션</translation>
    </message>
    <message>
        <source>More</source>
        <translation>더 보기</translation>
    </message>
    <message>
        <source>All</source>
        <translation>모두</translation>
    </message>
</context>
<context>
    <name>SharedFile</name>
    <message>
        <source>“%1” cannot be read: %2. It was not changed.</source>
        <translation>‘%1’을(를) 읽을 수 없습니다: %2. 파일은 변경되지 않았습니다.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. It was not changed.</source>
        <translation>‘%1’에 쓸 수 없습니다: %2. 파일은 변경되지 않았습니다.</translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation>링크가 가리키는 파일이 없습니다</translation>
    </message>
    <message>
        <source>the link leads to a file of somebody else</source>
        <translation>링크가 다른 사용자의 파일을 가리킵니다</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>파일이 아닙니다</translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation>다른 사용자의 것입니다</translation>
    </message>
    <message>
        <source>another program of ours is writing it</source>
        <translation>이 프로그램의 다른 창이 쓰고 있습니다</translation>
    </message>
    <message>
        <source>nothing can be written into its folder</source>
        <translation>폴더에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>other programs write it all the time</source>
        <translation>다른 프로그램이 계속 쓰고 있습니다</translation>
    </message>
</context>
<context>
    <name>SheetMarks</name>
    <message>
        <source>The back of this sheet stays empty: only one side is printed.</source>
        <translation>한 면만 인쇄하므로 이 용지의 뒷면은 비어 있습니다.</translation>
    </message>
</context>
<context>
    <name>SheetTexts</name>
    <message>
        <source>“%1”</source>
        <translation>‘%1’</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1페이지</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1페이지</translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1장</translation>
    </message>
    <message>
        <source>%1 sheets</source>
        <translation>%1장</translation>
    </message>
    <message>
        <source>“%1” has %2</source>
        <translation>‘%1’은(는) %2입니다</translation>
    </message>
    <message>
        <source>The document has %1</source>
        <translation>문서는 %1입니다</translation>
    </message>
    <message>
        <source>the document has %1</source>
        <translation>문서는 %1입니다</translation>
    </message>
    <message>
        <source>%1 and later</source>
        <translation>%1 이후</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1~%2</translation>
    </message>
    <message>
        <source>%1; %2 is not in it.</source>
        <translation>%1. 없는 페이지: %2.</translation>
    </message>
    <message>
        <source>%1; %2 are not in it.</source>
        <translation>%1. 없는 페이지: %2.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only even pages were chosen.</source>
        <translation>인쇄할 내용이 없습니다: %1. 짝수 페이지만 선택되었습니다.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and only odd pages were chosen.</source>
        <translation>인쇄할 내용이 없습니다: %1. 홀수 페이지만 선택되었습니다.</translation>
    </message>
    <message>
        <source>Nothing would be printed: %1, and none of them is left.</source>
        <translation>인쇄할 내용이 없습니다: %1. 남은 페이지가 없습니다.</translation>
    </message>
    <message>
        <source>“%1” takes too long to be shown. It can be printed without a preview.</source>
        <translation>‘%1’을(를) 표시하는 데 시간이 너무 오래 걸립니다. 미리보기 없이 인쇄할 수 있습니다.</translation>
    </message>
    <message>
        <source>“%1” is too large to be shown. It can be printed without a preview.</source>
        <translation>‘%1’이(가) 너무 커서 표시할 수 없습니다. 미리보기 없이 인쇄할 수 있습니다.</translation>
    </message>
    <message>
        <source>“%1” could not be laid out, so there is no preview. Printing it may work all the same.</source>
        <translation>‘%1’을(를) 페이지에 배치할 수 없어 미리보기가 없습니다. 그래도 인쇄될 수 있습니다.</translation>
    </message>
    <message>
        <source>the back stays empty, because only one side is printed</source>
        <translation>인쇄할 면이 하나뿐이므로 뒷면은 비어 있습니다</translation>
    </message>
    <message>
        <source>the backs stay empty, because each document has only one side</source>
        <translation>각 문서의 면이 하나뿐이므로 뒷면은 비어 있습니다</translation>
    </message>
    <message>
        <source>the back stays empty where a document has only one side: %1</source>
        <translation>면이 하나뿐인 문서는 뒷면이 비어 있음: %1</translation>
    </message>
    <message>
        <source>could not be counted</source>
        <translation>셀 수 없음</translation>
    </message>
    <message>
        <source>%1, two-sided by hand</source>
        <translation>%1, 수동 양면</translation>
    </message>
    <message>
        <source>%1, and 1 cover sheet</source>
        <translation>%1 및 표지 1장</translation>
    </message>
    <message>
        <source>%1, and %2 cover sheets</source>
        <translation>%1 및 표지 %2장</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>%1 × %2 copies = %3</source>
        <translation>%1 × %2부 = %3</translation>
    </message>
    <message>
        <source>%1 at %2 %</source>
        <translation>%1: %2 %</translation>
    </message>
    <message>
        <source>Sheets</source>
        <translation>용지 수</translation>
    </message>
    <message>
        <source>Pages Not There</source>
        <translation>없는 페이지</translation>
    </message>
    <message>
        <source>Printed Size</source>
        <translation>인쇄 크기</translation>
    </message>
</context>
<context>
    <name>SheetView</name>
    <message>
        <source>cover sheet</source>
        <translation>표지</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>빈 면</translation>
    </message>
    <message>
        <source>printed</source>
        <translation>인쇄됨</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>%1페이지</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>%1페이지</translation>
    </message>
    <message>
        <source>%L1 back</source>
        <translation>%L1 뒷면</translation>
    </message>
    <message>
        <source>%L1 front</source>
        <translation>%L1 앞면</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2의 %1</translation>
    </message>
    <message>
        <source>Sheet %L1: %2</source>
        <translation>%L1번째 장: %2</translation>
    </message>
    <message>
        <source>Sheet %L1, back: %2</source>
        <translation>%L1번째 장 뒷면: %2</translation>
    </message>
    <message>
        <source>Sheet %L1, front: %2</source>
        <translation>%L1번째 장 앞면: %2</translation>
    </message>
    <message>
        <source>%1, landscape</source>
        <translation>%1, 가로</translation>
    </message>
    <message>
        <source>Bound at the left edge</source>
        <translation>왼쪽 가장자리에서 제본</translation>
    </message>
    <message>
        <source>Bound at the top edge</source>
        <translation>위쪽 가장자리에서 제본</translation>
    </message>
    <message>
        <source>Bound at the right edge</source>
        <translation>오른쪽 가장자리에서 제본</translation>
    </message>
    <message>
        <source>Bound at the bottom edge</source>
        <translation>아래쪽 가장자리에서 제본</translation>
    </message>
</context>
<context>
    <name>StartPresets</name>
    <message>
        <source>Last job: %1</source>
        <translation>지난번 작업: %1</translation>
    </message>
    <message>
        <source>There is no preset “%1”, nor any other for this printer.</source>
        <translation>사전 설정 ‘%1’이(가) 없으며 이 프린터에는 다른 사전 설정도 없습니다.</translation>
    </message>
    <message>
        <source>There is no preset “%1” for this printer. Presets: %2.</source>
        <translation>이 프린터에는 사전 설정 ‘%1’이(가) 없습니다. 사전 설정: %2.</translation>
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
        <translation>대기열 ‘%1’의 기본값: %2</translation>
    </message>
    <message>
        <source>Default of your administrator: %1</source>
        <translation>관리자의 기본값: %1</translation>
    </message>
    <message>
        <source>The queue “%1” adds this to each job; what it does is not known here: %2.</source>
        <translation>대기열 ‘%1’이(가) 모든 작업에 다음 설정을 추가하지만 그 효과는 여기에서 알 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>This printer has no option of this name: %1.</source>
        <translation>이 프린터에는 다음 이름의 옵션이 없습니다: %1.</translation>
    </message>
</context>
<context>
    <name>Summary</name>
    <message>
        <source>Copies</source>
        <translation>부수</translation>
    </message>
    <message>
        <source>%1, collated</source>
        <translation>%1(한 부씩)</translation>
    </message>
    <message>
        <source>%1, not collated</source>
        <translation>%1(한 부씩 아님)</translation>
    </message>
    <message>
        <source>Also in the job</source>
        <translation>작업에 함께 들어 있는 설정</translation>
    </message>
    <message>
        <source>%1 × %2 inches</source>
        <translation>%1 × %2인치</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2mm</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1(%2)</translation>
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
        <translation>‘%1’의 프린터에는 사용자 이름과 암호가 필요합니다.</translation>
    </message>
    <message>
        <source>The print server “%1” wants a user and a password.</source>
        <translation>인쇄 서버 ‘%1’에는 사용자 이름과 암호가 필요합니다.</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others may read them.</source>
        <translation>연결이 암호화되지 않았습니다. 다른 사람이 읽을 수 있습니다.</translation>
    </message>
    <message>
        <source>User [%1]: </source>
        <translation>사용자 이름 [%1]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>암호: </translation>
    </message>
    <message>
        <source>That is not the password.</source>
        <translation>암호가 틀렸습니다.</translation>
    </message>
    <message>
        <source>Password of “%1”: </source>
        <translation>‘%1’의 암호: </translation>
    </message>
    <message>
        <source>Enter prints the other sides, Ctrl+D leaves them unprinted: </source>
        <translation>Enter를 누르면 다른 면을 인쇄하고, Ctrl+D를 누르면 인쇄하지 않습니다: </translation>
    </message>
</context>
<context>
    <name>TextFormat</name>
    <message>
        <source>The margins, columns and characters per inch that were asked for leave no room for a text on this paper (%1 × %2 points).</source>
        <translation>지정한 여백, 단 수, 인치당 글자 수로는 이 용지(%1 × %2포인트)에 텍스트가 들어갈 자리가 없습니다.</translation>
    </message>
</context>
<context>
    <name>UnattendedRun</name>
    <message>
        <source>%1 So the printer “%2” could not be asked for.</source>
        <translation>%1 그래서 프린터 ‘%2’을(를) 확인할 수 없었습니다.</translation>
    </message>
    <message>
        <source>%1 Printers that need no print server: %2.</source>
        <translation>%1 인쇄 서버가 필요 없는 프린터: %2.</translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>중단되었습니다.</translation>
    </message>
    <message>
        <source>The preset “%1” is kept.</source>
        <translation>사전 설정 ‘%1’을(를) 저장했습니다.</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>작업 %1: %2</translation>
    </message>
    <message>
        <source>Nothing was printed.</source>
        <translation>아무것도 인쇄되지 않았습니다.</translation>
    </message>
    <message>
        <source>It waits until the instructions have been followed. Release it with: %1</source>
        <translation>지침을 따를 때까지 작업이 기다립니다. 다음 명령으로 해제하십시오: %1</translation>
    </message>
    <message>
        <source>Printed to standard output</source>
        <translation>표준 출력으로 인쇄했습니다</translation>
    </message>
    <message>
        <source>The result could not be written to standard output: %1.</source>
        <translation>결과를 표준 출력에 쓸 수 없었습니다: %1.</translation>
    </message>
    <message>
        <source>No preset was kept.</source>
        <translation>사전 설정을 저장하지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>UserQueuesFile</name>
    <message>
        <source>The file of lpoptions is packed, and cannot be changed here.</source>
        <translation>lpoptions 파일이 압축되어 있어 여기에서 변경할 수 없습니다.</translation>
    </message>
    <message>
        <source>“%1” is your default printer, and stays: choose another one first.</source>
        <translation>‘%1’은(는) 기본 프린터이므로 그대로 둡니다. 먼저 다른 프린터를 선택하십시오.</translation>
    </message>
    <message>
        <source>“%1” is no name that other programs can print to.</source>
        <translation>‘%1’은(는) 다른 프로그램에서 인쇄 대상으로 쓸 수 없는 이름입니다.</translation>
    </message>
    <message>
        <source>“%1” would have more settings than other programs can read.</source>
        <translation>‘%1’의 설정이 다른 프로그램에서 읽을 수 있는 것보다 많아집니다.</translation>
    </message>
    <message>
        <source>Other programs would read the value of “%1” as another one.</source>
        <translation>다른 프로그램은 ‘%1’의 값을 다른 값으로 읽습니다.</translation>
    </message>
    <message>
        <source>“%1” is no name of an option for other programs.</source>
        <translation>‘%1’은(는) 다른 프로그램에서 쓸 수 있는 옵션 이름이 아닙니다.</translation>
    </message>
    <message>
        <source>The value of “%1” has a line break or a control character, which no option for other programs can have.</source>
        <translation>‘%1’의 값에 줄 바꿈 또는 제어 문자가 있습니다. 다른 프로그램의 옵션에는 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is.</source>
        <translation>‘%1’을(를) 다른 프로그램에서 변경했으므로 그대로 둡니다.</translation>
    </message>
</context>
<context>
    <name>corvana::AttributeEditor</name>
    <message>
        <source>Automatic</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>기타…</translation>
    </message>
</context>
<context>
    <name>corvana::AttributeRows</name>
    <message>
        <source>&amp;More</source>
        <translation>더 보기(&amp;M)</translation>
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
        <translation>더 보기</translation>
    </message>
    <message>
        <source>More, %1</source>
        <translation>더 보기, %1</translation>
    </message>
</context>
<context>
    <name>corvana::ChangeMarks</name>
    <message>
        <source>Changed. %1</source>
        <translation>변경됨. %1</translation>
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
        <translation>‘%1: %2’</translation>
    </message>
    <message>
        <source>%1 to %2 points</source>
        <translation>%1~%2포인트</translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation>%1~%2자(반각)</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1~%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>“%1” is not possible for %2. Allowed: %3.</source>
        <translation>‘%1’은(는) %2에 사용할 수 없습니다. 사용할 수 있는 값: %3.</translation>
    </message>
    <message>
        <source>This is not possible for %1. Allowed: %2.</source>
        <translation>이 값은 %1에 사용할 수 없습니다. 사용할 수 있는 값: %2.</translation>
    </message>
    <message>
        <source>Cannot be combined with %1.</source>
        <translation>%1과(와) 함께 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source> and </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>corvana::ColorsRow</name>
    <message>
        <source>Hold to Compare</source>
        <translation>눌러서 비교</translation>
    </message>
    <message>
        <source>While it is held, the document is shown as it is, without adjustments.</source>
        <translation>누르고 있는 동안 조정하지 않은 원래 문서를 표시합니다.</translation>
    </message>
</context>
<context>
    <name>corvana::ComingDocuments</name>
    <message>
        <source>Standard input is being read.</source>
        <translation>표준 입력을 읽는 중입니다.</translation>
    </message>
    <message>
        <source>%1 is being read.</source>
        <translation>%1을(를) 읽는 중입니다.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>corvana::Conversion</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1에 쓸 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>corvana::CountsRow</name>
    <message>
        <source>Sheets</source>
        <translation>장수</translation>
    </message>
    <message>
        <source>Show Preview</source>
        <translation>미리보기 표시</translation>
    </message>
    <message>
        <source>Hide Preview</source>
        <translation>미리보기 숨기기</translation>
    </message>
</context>
<context>
    <name>corvana::CopiesEditor</name>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>‘%1’은(는) 사용할 수 없습니다. 사용할 수 있는 값: %2.</translation>
    </message>
</context>
<context>
    <name>corvana::CredentialsDialog</name>
    <message>
        <source>Log In to Print</source>
        <translation>인쇄하려면 로그인</translation>
    </message>
    <message>
        <source>The printer wants to know who prints. User and password are sent to it through the print server “%1”, and are forgotten when the print dialog closes.</source>
        <translation>이 프린터는 누가 인쇄하는지 확인합니다. 사용자 이름과 암호는 인쇄 서버 ‘%1’을(를) 통해 프린터로 전송되며, 인쇄 대화 상자를 닫으면 지워집니다.</translation>
    </message>
    <message>
        <source>The print server “%1” wants to know who prints. User and password are forgotten when the print dialog closes.</source>
        <translation>인쇄 서버 ‘%1’은(는) 누가 인쇄하는지 확인합니다. 사용자 이름과 암호는 인쇄 대화 상자를 닫으면 지워집니다.</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>사용자 이름(&amp;U):</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>암호(&amp;W):</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>로그인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others on the network may read the password.</source>
        <translation>연결이 암호화되지 않았습니다. 네트워크의 다른 사람이 암호를 읽을 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>corvana::CustomPaperSize</name>
    <message>
        <source>From %1 to %2</source>
        <translation>%1~%2</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>용지 너비</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>용지 높이</translation>
    </message>
    <message>
        <source>Unit of the paper size</source>
        <translation>용지 크기의 단위</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>인치</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentArea</name>
    <message>
        <source>Print this document earlier</source>
        <translation>이 문서를 먼저 인쇄</translation>
    </message>
    <message>
        <source>Print this document later</source>
        <translation>이 문서를 나중에 인쇄</translation>
    </message>
    <message>
        <source>Do not print this document</source>
        <translation>이 문서를 인쇄하지 않음</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Print further documents in the same job</source>
        <translation>같은 작업에서 다른 문서도 인쇄</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>추가…</translation>
    </message>
    <message>
        <source>Documents in the order in which they are printed</source>
        <translation>인쇄하는 순서로 나열한 문서</translation>
    </message>
    <message numerus="yes">
        <source>%n documents, printed in this order:</source>
        <translation>
            <numerusform>문서 %n개를 다음 순서로 인쇄:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Choose Documents to Print</source>
        <translation>인쇄할 문서 선택</translation>
    </message>
</context>
<context>
    <name>corvana::DocumentPasswordDialog</name>
    <message>
        <source>Protected Document</source>
        <translation>보호된 문서</translation>
    </message>
    <message>
        <source>“%1” does not allow printing. With its owner&apos;s password it can be printed.</source>
        <translation>‘%1’은(는) 인쇄가 허용되지 않습니다. 소유자 암호가 있으면 인쇄할 수 있습니다.</translation>
    </message>
    <message>
        <source>“%1” is protected: enter its password. The password is forgotten when the print dialog closes.</source>
        <translation>‘%1’은(는) 보호되어 있습니다. 암호를 입력하십시오. 인쇄 대화 상자를 닫으면 암호가 지워집니다.</translation>
    </message>
    <message>
        <source>That is not the password. Try again.</source>
        <translation>암호가 틀렸습니다. 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>암호(&amp;P):</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>corvana::FileJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>인쇄를 취소했습니다.</translation>
    </message>
    <message>
        <source>%1 is the document itself; name another file.</source>
        <translation>%1은(는) 인쇄할 문서 자체입니다. 다른 파일을 지정하십시오.</translation>
    </message>
    <message>
        <source>Printed to %1</source>
        <translation>%1에 인쇄했습니다</translation>
    </message>
</context>
<context>
    <name>corvana::FilterChain</name>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1을(를) 시작할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: how many pages it has could not be found out.</source>
        <translation>문서를 프린터용으로 변환할 수 없었습니다. 페이지 수를 알 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1에 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>인쇄를 취소했습니다.</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: that took too long.</source>
        <translation>문서를 프린터용으로 변환할 수 없었습니다. 시간이 너무 오래 걸렸습니다.</translation>
    </message>
    <message>
        <source>The filter chain of CUPS crashed.</source>
        <translation>CUPS 필터가 비정상적으로 종료되었습니다.</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: %1</source>
        <translation>문서를 프린터용으로 변환할 수 없었습니다: %1</translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>종료 상태 %1</translation>
    </message>
    <message>
        <source>The document could not be converted for the printer: nothing came out. %1</source>
        <translation>문서를 프린터용으로 변환할 수 없었습니다. 출력이 없습니다. %1</translation>
    </message>
    <message>
        <source>The documents could not be put together: %1 is incomplete. Is the disk full?</source>
        <translation>문서를 하나로 합칠 수 없었습니다. %1이(가) 불완전합니다. 디스크가 가득 찼습니까?</translation>
    </message>
</context>
<context>
    <name>corvana::FindField</name>
    <message>
        <source>Find a setting (Ctrl+F)</source>
        <translation>설정 찾기 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>설정 찾기</translation>
    </message>
    <message>
        <source>Type a name, then go to a setting with Enter</source>
        <translation>이름을 입력하고 Enter를 누르면 설정으로 이동합니다</translation>
    </message>
    <message>
        <source>Type the name of a setting or of a choice.</source>
        <translation>설정 또는 선택 항목의 이름을 입력하십시오.</translation>
    </message>
</context>
<context>
    <name>corvana::FindModel</name>
    <message>
        <source>%1, on %2</source>
        <translation>%1, 위치: %2</translation>
    </message>
    <message>
        <source>%1, %2, on %3</source>
        <translation>%1, %2, 위치: %3</translation>
    </message>
</context>
<context>
    <name>corvana::FindPopup</name>
    <message>
        <source>Settings that were found</source>
        <translation>찾은 설정</translation>
    </message>
    <message>
        <source>1 setting found</source>
        <translation>설정 1개를 찾았습니다</translation>
    </message>
    <message>
        <source>%1 settings found</source>
        <translation>설정 %1개를 찾았습니다</translation>
    </message>
</context>
<context>
    <name>corvana::GeneralPage</name>
    <message>
        <source>&amp;Copies:</source>
        <translation>부수(&amp;C):</translation>
    </message>
    <message>
        <source>All, or such as 1-4, 7, 9-</source>
        <translation>모두 또는 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>Choos&amp;e Pages…</source>
        <translation>페이지 선택(&amp;E)…</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>페이지(&amp;G):</translation>
    </message>
    <message>
        <source>No document has been chosen.</source>
        <translation>선택한 문서가 없습니다.</translation>
    </message>
    <message>
        <source>Custom Size</source>
        <translation>사용자 정의 크기</translation>
    </message>
    <message>
        <source>Width × height:</source>
        <translation>너비 × 높이:</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>페이지</translation>
    </message>
</context>
<context>
    <name>corvana::HelpWindow</name>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>corvana::InstancePrinters</name>
    <message>
        <source>More Printers</source>
        <translation>다른 프린터</translation>
    </message>
    <message>
        <source>Other programs have the preset on the &amp;printers that are ticked:</source>
        <translation>선택한 프린터에서 다른 프로그램이 이 사전 설정을 사용합니다(&amp;P):</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>다른 프로그램에는 ‘%1’(으)로 표시됩니다.</translation>
    </message>
</context>
<context>
    <name>corvana::JobFooter</name>
    <message>
        <source>Printing</source>
        <translation>인쇄 중</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Show Silenced Messages Again</source>
        <translation>숨긴 메시지 다시 표시</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>닫기(&amp;L)</translation>
    </message>
    <message>
        <source>C&amp;lose (printing continues)</source>
        <translation>닫기(&amp;L)(인쇄는 계속됨)</translation>
    </message>
    <message>
        <source>The job goes on without this window.</source>
        <translation>이 창을 닫아도 작업은 계속됩니다.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>작업 취소</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>저장(&amp;V)…</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>인쇄 중…</translation>
    </message>
    <message>
        <source>Canceling…</source>
        <translation>취소하는 중…</translation>
    </message>
    <message>
        <source>The first sides are printed.</source>
        <translation>첫 번째 면이 인쇄되었습니다.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>corvana::MessageBar</name>
    <message>
        <source>Details</source>
        <translation>자세히</translation>
    </message>
    <message>
        <source>Show all of this message</source>
        <translation>메시지 전체 표시</translation>
    </message>
    <message>
        <source>Dismiss this message</source>
        <translation>이 메시지 닫기</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsModel</name>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Installable Options</source>
        <translation>설치 가능한 옵션</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1
For the command line: %2</source>
        <translation>%1
명령줄: %2</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>변경됨. %1</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>기본값: %1</translation>
    </message>
</context>
<context>
    <name>corvana::OptionsPage</name>
    <message>
        <source>Back to the Default</source>
        <translation>기본값으로 되돌리기</translation>
    </message>
    <message>
        <source>Search options and choices</source>
        <translation>옵션 및 선택 항목 검색</translation>
    </message>
    <message>
        <source>Options of the printer</source>
        <translation>프린터 옵션</translation>
    </message>
    <message>
        <source>Nothing contains “%1”.</source>
        <translation>‘%1’이(가) 들어 있는 항목이 없습니다.</translation>
    </message>
</context>
<context>
    <name>corvana::PageChooser</name>
    <message>
        <source>Choose Pages</source>
        <translation>페이지 선택</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>&amp;Pages:</source>
        <translation>페이지(&amp;P):</translation>
    </message>
    <message>
        <source>Such as 1-4, 7, 9-</source>
        <translation>예: 1-4, 7, 9-</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>모두 선택(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>모두 해제(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Odd</source>
        <translation>홀수(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Even</source>
        <translation>짝수(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>선택 반전(&amp;I)</translation>
    </message>
    <message>
        <source>Page numbers count in each document: what is ticked in one is ticked in all.</source>
        <translation>페이지 번호는 모든 문서에 똑같이 적용됩니다. 한 문서에서 선택하면 모든 문서에서 선택됩니다.</translation>
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
        <translation>%L1페이지는 너무 많아 여기에 표시할 수 없습니다. 페이지 번호를 입력할 수 있습니다.</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>%1페이지</translation>
    </message>
    <message>
        <source>Page %1 (%2)</source>
        <translation>%1페이지 (%2)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2의 %1</translation>
    </message>
    <message>
        <source>%1, chosen</source>
        <translation>%1, 선택함</translation>
    </message>
    <message>
        <source>%1, not chosen</source>
        <translation>%1, 선택하지 않음</translation>
    </message>
</context>
<context>
    <name>corvana::PageThumbnails</name>
    <message>
        <source>Pages</source>
        <translation>페이지</translation>
    </message>
</context>
<context>
    <name>corvana::PassJob</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1에 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>인쇄를 취소했습니다.</translation>
    </message>
</context>
<context>
    <name>corvana::PresetMenu</name>
    <message>
        <source>Printer &amp;Defaults</source>
        <translation>프린터 기본값(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Last Used</source>
        <translation>지난번 설정(&amp;L)</translation>
    </message>
    <message>
        <source>For This Model</source>
        <translation>이 모델용</translation>
    </message>
    <message>
        <source>For All Printers</source>
        <translation>모든 프린터용</translation>
    </message>
    <message>
        <source>From Other Programs</source>
        <translation>다른 프로그램의 설정</translation>
    </message>
    <message>
        <source>&amp;Save Preset…</source>
        <translation>사전 설정 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Update “%1”</source>
        <translation>‘%1’ 업데이트(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Rename “%1”…</source>
        <translation>‘%1’ 이름 바꾸기(&amp;R)…</translation>
    </message>
    <message>
        <source>D&amp;elete “%1”…</source>
        <translation>‘%1’ 삭제(&amp;E)…</translation>
    </message>
    <message>
        <source>Re&amp;member the Settings of the Last Job</source>
        <translation>지난번 작업의 설정 기억(&amp;M)</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>사전 설정 삭제</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? The settings stay as they are.</source>
        <translation>사전 설정 ‘%1’을(를) 삭제하시겠습니까? 현재 설정은 그대로 유지됩니다.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
</context>
<context>
    <name>corvana::PresetRow</name>
    <message>
        <source>Prese&amp;t:</source>
        <translation>사전 설정(&amp;T):</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (변경됨)</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>사전 설정: %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>재설정</translation>
    </message>
    <message>
        <source>This Page: %1</source>
        <translation>이 페이지: %1</translation>
    </message>
    <message>
        <source>Everything: %1</source>
        <translation>모두: %1</translation>
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
        <translation>장수를 세는 중…</translation>
    </message>
</context>
<context>
    <name>corvana::PreviewPlaceholder</name>
    <message>
        <source>Choose &amp;Documents…</source>
        <translation>문서 선택(&amp;D)…</translation>
    </message>
    <message>
        <source>Drop documents here to print them.</source>
        <translation>인쇄할 문서를 여기에 끌어다 놓으십시오.</translation>
    </message>
    <message>
        <source>PDF, PostScript, text, PNG and JPEG; several are one job.</source>
        <translation>PDF, PostScript, 텍스트, PNG, JPEG. 여러 문서는 한 작업이 됩니다.</translation>
    </message>
</context>
<context>
    <name>corvana::PrintTask</name>
    <message>
        <source>The sides of “%1” are not known here, so they cannot be printed in two halves. With sides-by-hand=no one side of each sheet is printed.</source>
        <translation>‘%1’의 각 면을 여기에서 알 수 없어 두 번에 나누어 인쇄할 수 없습니다. sides-by-hand=no를 지정하면 각 용지의 한 면에만 인쇄됩니다.</translation>
    </message>
    <message>
        <source>%1 (other sides)</source>
        <translation>%1 (다른 면)</translation>
    </message>
    <message>
        <source>%1 (first sides)</source>
        <translation>%1 (첫 번째 면)</translation>
    </message>
    <message>
        <source>First sides: %1</source>
        <translation>첫 번째 면: %1</translation>
    </message>
    <message>
        <source>Other sides: %1</source>
        <translation>다른 면: %1</translation>
    </message>
    <message>
        <source>First sides: %1 Other sides: %2</source>
        <translation>첫 번째 면: %1 다른 면: %2</translation>
    </message>
    <message>
        <source>Not printed.</source>
        <translation>인쇄되지 않았습니다.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Show Its First Sheet</source>
        <translation>첫 장 표시</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Give the password with --document-password-file.</source>
        <translation>--document-password-file로 암호를 지정하십시오.</translation>
    </message>
    <message>
        <source>Enter the Password…</source>
        <translation>암호 입력…</translation>
    </message>
    <message>
        <source>Enter the Owner&apos;s Password…</source>
        <translation>소유자 암호 입력…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>인쇄할 문서를 선택하십시오.</translation>
    </message>
    <message>
        <source>Name the file to print to.</source>
        <translation>인쇄할 파일의 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>“%1” are no pages. Pages and ranges in ascending order were expected, such as 1-4, 7, 9-.</source>
        <translation>‘%1’은(는) 올바른 페이지가 아닙니다. 1-4, 7, 9-와 같이 오름차순으로 페이지와 범위를 입력하십시오.</translation>
    </message>
    <message>
        <source>%1 is of a kind that is not known here. Only a queue can pass it on to its printer, as it is, with the option “raw”.</source>
        <translation>%1은(는) 알 수 없는 종류의 파일입니다. 대기열만 ‘raw’ 옵션으로 프린터에 그대로 전달할 수 있습니다.</translation>
    </message>
    <message>
        <source>What is passed on as it is cannot be printed to a file.</source>
        <translation>그대로 전달되는 내용은 파일로 인쇄할 수 없습니다.</translation>
    </message>
    <message>
        <source>No font of this computer has these characters of the text: %1. An empty frame is printed for each of them.</source>
        <translation>이 컴퓨터의 어떤 글꼴에도 텍스트의 다음 글자가 없습니다: %1. 각 글자 대신 빈 상자가 인쇄됩니다.</translation>
    </message>
    <message>
        <source>Not all of the text could be looked through for characters that no font of this computer has. An empty frame is printed for each of them.</source>
        <translation>이 컴퓨터의 글꼴에 없는 글자가 있는지 텍스트 전체를 확인하지 못했습니다. 그런 글자 대신 빈 상자가 인쇄됩니다.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings show instructions.</source>
        <translation>프린터 설정이 지침을 표시합니다.</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and a file cannot wait. Follow them and print with --on-alert=print.</source>
        <translation>작업은 이 지침을 기다려야 하지만 파일은 기다릴 수 없습니다. 지침을 따른 다음 --on-alert=print로 인쇄하십시오.</translation>
    </message>
    <message>
        <source>The job would have to wait for these instructions, and two-sided printing by hand cannot. Follow them and print with --on-alert=print.</source>
        <translation>작업은 이 지침을 기다려야 하지만 수동 양면 인쇄는 기다릴 수 없습니다. 지침을 따른 다음 --on-alert=print로 인쇄하십시오.</translation>
    </message>
    <message>
        <source>%1 So the job cannot wait for these instructions. Follow them and print with --on-alert=print.</source>
        <translation>%1 따라서 작업은 이 지침을 기다릴 수 없습니다. 지침을 따른 다음 --on-alert=print로 인쇄하십시오.</translation>
    </message>
    <message>
        <source>The printer&apos;s settings hold the job back.</source>
        <translation>프린터 설정 때문에 작업을 인쇄하지 않습니다.</translation>
    </message>
    <message>
        <source>Its pages are made while it is printed. The preview shows them.</source>
        <translation>페이지는 인쇄할 때 만들어지며 미리보기에서 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>How many pages it has is not known.</source>
        <translation>페이지 수를 알 수 없습니다.</translation>
    </message>
    <message>
        <source>It is being looked at…</source>
        <translation>확인하는 중…</translation>
    </message>
    <message>
        <source>Not everything that your administrator has decided can be used. “corvana-print --check-policy” says what, and why.</source>
        <translation>관리자가 정한 내용 중 일부를 사용할 수 없습니다. 내용과 이유는 ‘corvana-print --check-policy’로 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper.</source>
        <translation>이 작업에는 용지 %1장이 필요합니다.</translation>
    </message>
    <message>
        <source>This job takes %1 sheets of paper. More than %2 are printed only with --yes.</source>
        <translation>이 작업에는 용지 %1장이 필요합니다. %2장이 넘으면 --yes를 지정해야 인쇄됩니다.</translation>
    </message>
    <message>
        <source>The options of the printer have changed at its server; yours were kept.</source>
        <translation>프린터 옵션이 서버에서 변경되었습니다. 사용자의 설정은 그대로 유지했습니다.</translation>
    </message>
    <message>
        <source>The printer&apos;s own settings are missing: %1</source>
        <translation>프린터 전용 설정을 사용할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Not everything could be set as before:
%1</source>
        <translation>다음 항목은 이전처럼 설정할 수 없었습니다:
%1</translation>
    </message>
    <message>
        <source>The queue “%1” leads to the same printer, and has pages with all of its settings.</source>
        <translation>대기열 ‘%1’은(는) 같은 프린터에 연결되며 모든 설정이 있는 페이지를 제공합니다.</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <translation>‘%1’ 사용</translation>
    </message>
    <message>
        <source>There is no job attribute of the name %1.</source>
        <translation>이름이 %1인 작업 속성은 없습니다.</translation>
    </message>
    <message>
        <source>The queue “%1” sets this for every job that does not name it. Allowed: %2.</source>
        <translation>대기열 ‘%1’은(는) 이 값을 지정하지 않은 모든 작업에 이 값을 설정합니다. 사용할 수 있는 값: %2.</translation>
    </message>
    <message>
        <source>“%1” is not allowed. Allowed: %2.</source>
        <translation>‘%1’은(는) 사용할 수 없습니다. 사용할 수 있는 값: %2.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No document has been chosen.</source>
        <translation>선택한 문서가 없습니다.</translation>
    </message>
    <message>
        <source>There is a preview once the printer is known.</source>
        <translation>프린터 정보를 받으면 미리보기가 표시됩니다.</translation>
    </message>
    <message>
        <source>Files are passed on to the printer as they are. What comes out is not known here.</source>
        <translation>파일이 그대로 프린터에 전달되므로 인쇄 결과를 여기에서 알 수 없습니다.</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>인쇄를 취소했습니다.</translation>
    </message>
    <message>
        <source>What was asked for cannot be set:
%1</source>
        <translation>요청한 내용을 설정할 수 없습니다:
%1</translation>
    </message>
    <message>
        <source>Not everything that is set for this printer could be taken:
%1</source>
        <translation>이 프린터에 설정된 내용 중 일부를 적용할 수 없었습니다:
%1</translation>
    </message>
    <message>
        <source>As in your last job.</source>
        <translation>지난번 인쇄와 같은 설정입니다.</translation>
    </message>
    <message>
        <source>Use Defaults</source>
        <translation>기본값 사용</translation>
    </message>
    <message>
        <source>A PDF file is saved once: there are no copies of it.</source>
        <translation>PDF 파일은 한 번만 저장되므로 부수를 지정할 수 없습니다.</translation>
    </message>
    <message>
        <source>The printer prints at most %1 copies at once, not %2.</source>
        <translation>이 프린터는 한 번에 %1부까지만 인쇄하므로 %2부는 인쇄할 수 없습니다.</translation>
    </message>
    <message>
        <source>“%1” has nothing to show.</source>
        <translation>‘%1’에는 표시할 내용이 없습니다.</translation>
    </message>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>프린터 설정 페이지를 표시할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>%1 is not on this computer. Save it here to print it.</source>
        <translation>%1은(는) 이 컴퓨터에 없습니다. 인쇄하려면 여기에 저장하십시오.</translation>
    </message>
    <message>
        <source>The sheets can stay in the tray: the other sides are printed with the settings of the first ones.</source>
        <translation>용지는 용지함에 그대로 두어도 됩니다. 다른 면은 첫 번째 면의 설정으로 인쇄됩니다.</translation>
    </message>
    <message>
        <source>Printed to %1, which holds data for the printer and is no PDF document</source>
        <translation>%1에 인쇄했습니다. 내용은 프린터용 데이터이며 PDF 문서가 아닙니다</translation>
    </message>
</context>
<context>
    <name>corvana::PrintWindow</name>
    <message>
        <source>Asking “%1” for the options of the printer…</source>
        <translation>‘%1’에서 프린터 옵션을 가져오는 중…</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>프린터를 찾는 중…</translation>
    </message>
    <message>
        <source>No answer from “%1” yet.</source>
        <translation>아직 ‘%1’에서 응답이 없습니다.</translation>
    </message>
    <message>
        <source>No printers at “%1”.</source>
        <translation>‘%1’에 프린터가 없습니다.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>There are no printers yet. Add one in the printer settings of the system, or with the command lpadmin.</source>
        <translation>아직 프린터가 없습니다. 시스템의 프린터 설정 또는 명령 lpadmin으로 추가하십시오.</translation>
    </message>
    <message>
        <source>Until then, documents can be printed to a file.</source>
        <translation>그때까지는 문서를 파일로 인쇄할 수 있습니다.</translation>
    </message>
    <message>
        <source>Log In…</source>
        <translation>로그인…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>The print service of this computer is not running. Start it, on most systems with “systemctl start cups”.</source>
        <translation>이 컴퓨터의 인쇄 서비스가 실행되고 있지 않습니다. 서비스를 시작하십시오. 대부분의 시스템에서는 ‘systemctl start cups’를 사용합니다.</translation>
    </message>
    <message>
        <source>Print Another Copy</source>
        <translation>한 부 더 인쇄</translation>
    </message>
    <message>
        <source>Two-Sided by Hand</source>
        <translation>수동 양면 인쇄</translation>
    </message>
    <message>
        <source>Only the first sides of the sheets are printed. Leave the other sides unprinted?</source>
        <translation>용지의 첫 번째 면만 인쇄되었습니다. 다른 면을 인쇄하지 않고 끝내시겠습니까?</translation>
    </message>
    <message>
        <source>The first sides of the sheets are being printed. Stop that, and leave the other sides unprinted?</source>
        <translation>용지의 첫 번째 면을 인쇄하고 있습니다. 인쇄를 멈추고 다른 면을 인쇄하지 않으시겠습니까?</translation>
    </message>
    <message>
        <source>Leave Unprinted</source>
        <translation>인쇄하지 않음</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>돌아가기</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>파일로 인쇄</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1이(가) 이미 있습니다. 바꾸시겠습니까?</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>그래도 인쇄</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>인쇄</translation>
    </message>
    <message>
        <source>Your preferences cannot be written.</source>
        <translation>사용자 환경 설정을 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>The help is not installed.</source>
        <translation>도움말이 설치되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>Help on Printing</source>
        <translation>인쇄 도움말</translation>
    </message>
    <message>
        <source>If you print it again, it may come out of the printer twice.</source>
        <translation>다시 인쇄하면 두 번 출력될 수 있습니다.</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>다시 인쇄</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterComboBox</name>
    <message>
        <source>Choose a printer</source>
        <translation>프린터 선택</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterHeader</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>프린터(&amp;R):</translation>
    </message>
    <message>
        <source>Print to &amp;file:</source>
        <translation>파일로 인쇄(&amp;F):</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>파일로 인쇄</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>선택(&amp;H)…</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>파일로 인쇄</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>모든 파일 (*)</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterPopup</name>
    <message>
        <source>Printers</source>
        <translation>프린터</translation>
    </message>
    <message>
        <source>Search by name or location</source>
        <translation>이름 또는 위치로 검색</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>프린터 검색</translation>
    </message>
    <message>
        <source>No printer was found</source>
        <translation>프린터를 찾을 수 없음</translation>
    </message>
    <message>
        <source>No printer matches</source>
        <translation>일치하는 프린터 없음</translation>
    </message>
    <message>
        <source>%1 of %2 printers</source>
        <translation>프린터 %2대 중 %1대</translation>
    </message>
    <message>
        <source>%1 printers</source>
        <translation>프린터 %1대</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterSource</name>
    <message>
        <source>There is no default printer. %1 Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>기본 프린터가 없습니다. %1 -d로 프린터를 지정하거나 --ppd FILE로 PPD를 지정하거나 --demo로 예제 프린터를 사용해 보십시오.</translation>
    </message>
    <message>
        <source>There is no default printer. Name a printer with -d, or a PPD with --ppd FILE, or try the sample printers with --demo.</source>
        <translation>기본 프린터가 없습니다. -d로 프린터를 지정하거나 --ppd FILE로 PPD를 지정하거나 --demo로 예제 프린터를 사용해 보십시오.</translation>
    </message>
    <message>
        <source>There is no instance “%1”: lpoptions has none of the queue “%2”.</source>
        <translation>인스턴스 ‘%1’이(가) 없습니다. lpoptions에 대기열 ‘%2’의 인스턴스가 없습니다.</translation>
    </message>
    <message>
        <source>There is no instance “%1”. The queue “%2” has: %3.</source>
        <translation>인스턴스 ‘%1’이(가) 없습니다. 대기열 ‘%2’에 있는 인스턴스: %3.</translation>
    </message>
    <message>
        <source>There is no printer “%1” at “%2”.</source>
        <translation>‘%2’에 프린터 ‘%1’이(가) 없습니다.</translation>
    </message>
    <message>
        <source>There is no printer “%1” at “%2” any more.</source>
        <translation>‘%2’에 더 이상 프린터 ‘%1’이(가) 없습니다.</translation>
    </message>
</context>
<context>
    <name>corvana::PrinterStatusLine</name>
    <message>
        <source>Try Again</source>
        <translation>다시 시도</translation>
    </message>
</context>
<context>
    <name>corvana::SavePresetDialog</name>
    <message>
        <source>Rename Preset</source>
        <translation>사전 설정 이름 바꾸기</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>사전 설정 저장</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>이름(&amp;N):</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>For printers of this &amp;model (%1)</source>
        <translation>이 모델(%1)의 프린터용(&amp;M)</translation>
    </message>
    <message>
        <source>For &amp;all printers, as far as they have these settings</source>
        <translation>이 설정이 있는 모든 프린터용(&amp;A)</translation>
    </message>
    <message>
        <source>Also in &amp;other programs</source>
        <translation>다른 프로그램에서도 사용(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;With what sets up the printer itself (%1)</source>
        <translation>프린터 자체의 설정(%1) 포함(&amp;W)</translation>
    </message>
    <message>
        <source>Other programs list it as “%1”.</source>
        <translation>다른 프로그램에는 ‘%1’(으)로 표시됩니다.</translation>
    </message>
    <message>
        <source>There is a preset of this name already.</source>
        <translation>같은 이름의 사전 설정이 이미 있습니다.</translation>
    </message>
    <message>
        <source>There is a preset of this name already. It will be replaced.</source>
        <translation>같은 이름의 사전 설정이 이미 있으며 바뀌게 됩니다.</translation>
    </message>
    <message>
        <source>There is another preset of this name, which stays.</source>
        <translation>같은 이름의 다른 사전 설정이 있으며 그대로 유지됩니다.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>이름 바꾸기</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>바꾸기</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>More &amp;Printers…</source>
        <translation>다른 프린터(&amp;P)…</translation>
    </message>
</context>
<context>
    <name>corvana::ServerJob</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>인쇄를 취소했습니다.</translation>
    </message>
    <message>
        <source>The printer “%1” does not take these settings of a job: %2. Nothing was printed.</source>
        <translation>프린터 ‘%1’은(는) 작업의 다음 설정을 받지 않습니다: %2. 아무것도 인쇄되지 않았습니다.</translation>
    </message>
    <message>
        <source>The queue “%1” has no driver and prints documents as they are: it can neither put several pages on a sheet (number-up) nor choose pages (page-ranges, page-set). Nothing was printed.</source>
        <translation>대기열 ‘%1’에는 드라이버가 없어 문서를 그대로 인쇄합니다. 한 장에 여러 페이지를 넣거나(number-up) 페이지를 선택할 수(page-ranges, page-set) 없습니다. 아무것도 인쇄되지 않았습니다.</translation>
    </message>
    <message>
        <source>The printer “%1” takes documents of these kinds only: %2.</source>
        <translation>프린터 ‘%1’은(는) 다음 종류의 문서만 받습니다: %2.</translation>
    </message>
    <message>
        <source>The documents were put together as one, because the printer takes one at a time; each begins on a new sheet.</source>
        <translation>프린터가 한 번에 문서 하나만 받으므로 문서를 하나로 합쳤습니다. 각 문서는 새 용지에서 시작합니다.</translation>
    </message>
    <message>
        <source>There are too many copies to send them in sets. Their order is: %1.</source>
        <translation>부수가 너무 많아 한 부씩 나누어 보낼 수 없습니다. 순서: %1.</translation>
    </message>
    <message>
        <source>Job %1 is in the queue; it was not followed to its end.</source>
        <translation>작업 %1이(가) 대기열에 있습니다. 끝날 때까지 확인하지는 않았습니다.</translation>
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
        <translation>현재 %1</translation>
    </message>
    <message>
        <source>The settings of the printer are not known yet.</source>
        <translation>아직 프린터 설정을 가져오지 못했습니다.</translation>
    </message>
    <message>
        <source>No setting is called “%1”. Try a shorter word, or another one for it.</source>
        <translation>‘%1’ 설정이 없습니다. 더 짧거나 다른 말로 검색해 보십시오.</translation>
    </message>
    <message>
        <source>No setting is called “%1”. Press Enter to search for “%2” instead.</source>
        <translation>‘%1’ 설정이 없습니다. Enter를 누르면 ‘%2’을(를) 검색합니다.</translation>
    </message>
    <message>
        <source>“%1” cannot be changed while other settings are as they are. It is on the page “%2”.</source>
        <translation>다른 설정이 지금과 같으면 ‘%1’을(를) 변경할 수 없습니다. 이 설정은 ‘%2’ 페이지에 있습니다.</translation>
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
        <translation>없음</translation>
    </message>
    <message>
        <source>All Options</source>
        <translation>모든 옵션</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>This page cannot be shown: %1</source>
        <translation>이 페이지를 표시할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>다시 시도</translation>
    </message>
</context>
<context>
    <name>corvana::SheetView</name>
    <message>
        <source>%1. Note: %2</source>
        <translation>%1. 참고: %2</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>미리보기</translation>
    </message>
    <message>
        <source>Preview. %1</source>
        <translation>미리보기. %1</translation>
    </message>
    <message>
        <source>Cover sheet of the queue: %1</source>
        <translation>대기열의 표지: %1</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>업데이트하는 중…</translation>
    </message>
</context>
<context>
    <name>corvana::SheetsRow</name>
    <message>
        <source>Sheet %L1</source>
        <translation>%L1번째 장</translation>
    </message>
    <message>
        <source>Sheet %L1 of %L2</source>
        <translation>%L1/%L2장</translation>
    </message>
</context>
<context>
    <name>corvana::SummaryPage</name>
    <message>
        <source>Only what is changed</source>
        <translation>변경된 항목만</translation>
    </message>
    <message>
        <source>Nothing is changed.</source>
        <translation>변경된 항목이 없습니다.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>변경됨. %1</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, 변경됨</translation>
    </message>
</context>
<context>
    <name>corvana::TaskHistory</name>
    <message>
        <source>Printer</source>
        <translation>프린터</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>실행 취소: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>다시 실행: %1</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>%1(으)로 되돌리기</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>재설정</translation>
    </message>
    <message>
        <source>This cannot go back:
%1</source>
        <translation>되돌릴 수 없습니다:
%1</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>문서</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>설정</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPresets</name>
    <message>
        <source>The printer is not known yet.</source>
        <translation>아직 프린터 정보가 없습니다.</translation>
    </message>
    <message>
        <source>Other programs print with these settings to “%1”.</source>
        <translation>다른 프로그램에서 ‘%1’(으)로 인쇄하면 이 설정이 사용됩니다.</translation>
    </message>
    <message>
        <source>“%1” is not there any more, or has no settings.</source>
        <translation>‘%1’이(가) 더 이상 없거나 설정이 없습니다.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>외 %1개</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>프린터 기본값</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>지난번 설정</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>There is no preset of the name “%1” any more.</source>
        <translation>이름이 ‘%1’인 사전 설정이 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>Not everything of “%1” is possible here:
%2</source>
        <translation>‘%1’의 일부 설정은 여기에서 사용할 수 없습니다:
%2</translation>
    </message>
    <message>
        <source>“%1” was kept with settings that this printer does not have.</source>
        <translation>‘%1’에 이 프린터에 없는 설정이 있습니다.</translation>
    </message>
    <message>
        <source>%1 Your settings are as they were.</source>
        <translation>%1 현재 설정은 그대로입니다.</translation>
    </message>
    <message>
        <source>The preset “%1” for this printer is another one.</source>
        <translation>이 프린터의 사전 설정 ‘%1’은(는) 다른 것입니다.</translation>
    </message>
</context>
<context>
    <name>corvana::TaskPreview</name>
    <message>
        <source>It can be printed all the same.</source>
        <translation>미리보기가 없어도 인쇄할 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>corvana::TextConversion</name>
    <message>
        <source>There are no fonts for the text %1.</source>
        <translation>텍스트 %1에 사용할 글꼴이 없습니다.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1에 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>인쇄를 취소했습니다.</translation>
    </message>
    <message>
        <source>%1 would have more than %2 pages, and a text is printed on no more than that.</source>
        <translation>%1은(는) %2페이지가 넘으며, 텍스트는 그보다 많이 인쇄할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>corvana::TextDocuments</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>인쇄를 취소했습니다.</translation>
    </message>
</context>
<context>
    <name>corvana::TurnSheetsDialog</name>
    <message>
        <source>Two-Sided by Hand</source>
        <translation>수동 양면 인쇄</translation>
    </message>
    <message>
        <source>Put the sheets back to print their other sides</source>
        <translation>다른 면을 인쇄하려면 용지를 다시 넣으십시오</translation>
    </message>
    <message>
        <source>&amp;Print the Other Sides</source>
        <translation>다른 면 인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>corvana::ZoomControl</name>
    <message>
        <source>Smaller</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>Size of the sheets</source>
        <translation>표시 크기</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>페이지 맞춤</translation>
    </message>
    <message>
        <source>Fit Width</source>
        <translation>너비 맞춤</translation>
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
        <translation>인쇄</translation>
    </message>
    <message>
        <source>no display can be reached. Print without a window with --no-dialog.</source>
        <translation>디스플레이에 연결할 수 없습니다. --no-dialog를 사용하면 창 없이 인쇄할 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>ClearButton</name>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
</context>
<context>
    <name>ChoiceCodes</name>
    <message>
        <source>%1 cannot be sent to the printer: its PPD does not say in a usable way how that is done.</source>
        <translation>%1을(를) 프린터로 보낼 수 없습니다. 보내는 방법이 PPD에 올바르게 적혀 있지 않습니다.</translation>
    </message>
</context>
<context>
    <name>PpdBounds</name>
    <message>
        <source>It is no ordinary file.</source>
        <translation>일반 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>It is larger than %1 MB.</source>
        <translation>%1MB보다 큽니다.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 lines that begin with “%2”.</source>
        <translation>내용이 너무 많습니다. ‘%2’(으)로 시작하는 줄이 %1개를 넘습니다.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices of all options together. “%2” has the most.</source>
        <translation>내용이 너무 많습니다. 모든 옵션의 선택 항목이 합쳐서 %1개를 넘습니다. 가장 많은 것은 ‘%2’입니다.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 lines that belong to no option. The most frequent is “%2”.</source>
        <translation>내용이 너무 많습니다. 어떤 옵션에도 속하지 않는 줄이 %1개를 넘습니다. 가장 많은 것은 ‘%2’입니다.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 different keywords.</source>
        <translation>내용이 너무 많습니다. 서로 다른 키워드가 %1개를 넘습니다.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in one line that begins with “%2”.</source>
        <translation>내용이 너무 많습니다. ‘%2’(으)로 시작하는 한 줄에 선택 항목이 %1개를 넘습니다.</translation>
    </message>
    <message>
        <source>There is too much in it: more than %1 choices in lines that begin with “%2”.</source>
        <translation>내용이 너무 많습니다. ‘%2’(으)로 시작하는 줄의 선택 항목이 %1개를 넘습니다.</translation>
    </message>
    <message>
        <source>There is too much in it: its constraints name %1 choices. Beside as many options and choices as it has, %2 are allowed.</source>
        <translation>내용이 너무 많습니다. 제약 조건에 선택 항목이 %1개 있습니다. 옵션과 선택 항목이 이만큼 있을 때에는 %2개까지 허용됩니다.</translation>
    </message>
</context>
<context>
    <name>QueueRequests</name>
    <message>
        <source>more than %L1 printers</source>
        <translation>프린터가 %L1대를 초과함</translation>
    </message>
    <message>
        <source>printers with more than %L1 characters in their texts</source>
        <translation>프린터 텍스트가 %L1자를 초과함</translation>
    </message>
</context>
<context>
    <name>ClientFiles</name>
    <message>
        <source>%1 cannot be read to its end: a small file with the settings of CUPS is expected there.</source>
        <translation>%1을(를) 끝까지 읽을 수 없습니다. 이 위치에는 CUPS 설정이 담긴 작은 파일이 있어야 합니다.</translation>
    </message>
</context>
<context>
    <name>TemporaryFolder</name>
    <message>
        <source>No temporary files can be kept in %1: %2</source>
        <translation>%1에 임시 파일을 저장할 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>TextSource</name>
    <message>
        <source>it has become shorter meanwhile</source>
        <translation>읽는 동안 짧아졌습니다</translation>
    </message>
</context>
<context>
    <name>Finishings</name>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>스테이플</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>펀치</translation>
    </message>
    <message>
        <source>Add Cover</source>
        <translation>표지 추가</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>제본</translation>
    </message>
    <message>
        <source>Saddle Stitch</source>
        <translation>중철</translation>
    </message>
    <message>
        <source>Edge Stitch</source>
        <translation>가장자리 철</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>접기</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>재단</translation>
    </message>
    <message>
        <source>Bundle</source>
        <translation>묶기</translation>
    </message>
    <message>
        <source>Make Booklet</source>
        <translation>소책자 만들기</translation>
    </message>
    <message>
        <source>Offset Sets</source>
        <translation>부별로 엇갈려 쌓기</translation>
    </message>
    <message>
        <source>Coat</source>
        <translation>코팅</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>라미네이트</translation>
    </message>
</context>
<context>
    <name>OwnInstances</name>
    <message>
        <source>“%1” is damaged. What was written for other programs before does not follow its presets any more.</source>
        <translation>‘%1’이(가) 손상되었습니다. 이전에 다른 프로그램용으로 기록한 설정은 더 이상 사전 설정을 따르지 않습니다.</translation>
    </message>
</context>
<context>
    <name>PresetInstances</name>
    <message>
        <source>“%1” in other programs: %2</source>
        <translation>다른 프로그램의 ‘%1’: %2</translation>
    </message>
    <message>
        <source>“%1” was changed by another program, and is left as it is from now on.</source>
        <translation>‘%1’을(를) 다른 프로그램에서 변경했으므로 이제부터 그대로 둡니다.</translation>
    </message>
    <message>
        <source>Settings were changed while “%1” was saved: other programs have it as it was before. Save it again.</source>
        <translation>‘%1’을(를) 저장하는 동안 설정이 변경되었습니다. 다른 프로그램에는 이전 그대로 있습니다. 다시 저장하십시오.</translation>
    </message>
</context>
<context>
    <name>PresetReplacing</name>
    <message>
        <source>“%1” was saved elsewhere since it was selected here, and stays as it is there. Select it again, or keep your settings with “Save Preset…”.</source>
        <translation>‘%1’은(는) 여기에서 선택한 후 다른 곳에서 저장되어 그대로 유지됩니다. 다시 선택하거나 ‘사전 설정 저장…’으로 설정을 저장하십시오.</translation>
    </message>
</context>
<context>
    <name>Collation</name>
    <message>
        <source>two-sided copies are always collated on this printer</source>
        <translation>이 프린터에서 양면 인쇄는 항상 한 부씩 인쇄됩니다</translation>
    </message>
</context>
<context>
    <name>OtherQueues</name>
    <message>
        <source>The queue could not be read in time.</source>
        <translation>대기열을 제시간에 읽을 수 없었습니다.</translation>
    </message>
</context>
</TS>
