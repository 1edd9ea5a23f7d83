<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Print Setting</source>
        <translation>印刷設定</translation>
    </message>
    <message>
        <source>Color Setting</source>
        <translation>カラー設定</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>機種名</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>する</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>しない</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>この用紙サイズは使用できません</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>設定された用紙サイズは、このプリンターでは給紙できません。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>1. 別の用紙サイズを選択してください。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>2. そのサイズの用紙をセットしてください。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>3. もう一度印刷してください。</translation>
    </message>
</context>
</TS>
