<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Model</source>
        <translation>機種</translation>
    </message>
    <message>
        <source>用紙</source>
        <translation>紙</translation>
    </message>
</context>
<context>
    <name>Elsewhere</name>
    <message>
        <source>Hidden</source>
        <translation>隠れた</translation>
    </message>
</context>
</TS>
