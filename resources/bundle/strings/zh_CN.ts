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
</context>
</TS>
