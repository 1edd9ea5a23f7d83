<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Print Setting</source>
        <translation>打印设置</translation>
    </message>
    <message>
        <source>Color Setting</source>
        <translation>颜色设置</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>无法使用此纸张尺寸</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>打印机无法使用所设置的纸张尺寸进纸。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>1. 请选择其他纸张尺寸。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>2. 请装入该尺寸的纸张。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>3. 请重新打印。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>advancedItem</source>
        <translation>高级选项</translation>
    </message>
    <message>
        <source>ImproveOutput</source>
        <translation>改善打印输出</translation>
    </message>
    <message>
        <source>QXQuietMode</source>
        <translation>静音模式</translation>
    </message>
    <message>
        <source>OtherOption</source>
        <translation>其他选项</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_RECOMMEND_INSTRUCTIONS</source>
        <translation>要在此类纸张上获得良好的打印效果：</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_REQUEST_INSTRUCTIONS</source>
        <translation>打印标签纸时，请务必这样做：</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_SELECT_MP</source>
        <translation>如果可以设置“纸张来源”，请选择“多功能纸盒”或“手动送纸”。</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP</source>
        <translation>将纸张装入打印机正面的多功能纸盒或手动送纸口。</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP_ONESHEET</source>
        <translation>将纸张装入打印机正面的多功能纸盒或手动送纸口，一次只装一张。</translation>
    </message>
    <message>
        <source>DLG_TITLE_BACKCOVER</source>
        <translation>请打开打印机的后盖</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_RECOMMEND_INSTRUCTIONS</source>
        <translation>请为此类纸张准备打印机：</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_OPEN</source>
        <translation>打开后盖。</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_PULLDOWN_GRAY</source>
        <translation>将后盖内左右两侧的两个灰色拨杆拉下。</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_STARTPRINT</source>
        <translation>然后开始打印。</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_USEMP</source>
        <translation>请将标签纸装入打印机正面的多功能纸盒或手动送纸口。</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_DUPLEX</source>
        <translation>此类纸张一次只能打印一面。双面打印已关闭。</translation>
    </message>
    <message>
        <source>DLG_BACKCOVER_INSTRUCTION_NOTE</source>
        <translation>信封只能单面打印。双面打印已关闭。</translation>
    </message>
</context>
</TS>
