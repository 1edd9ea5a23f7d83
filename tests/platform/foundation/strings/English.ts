<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Model</source>
        <translation>Model of the printer</translation>
    </message>
    <message>
        <source>Only English</source>
        <translation>Only here</translation>
    </message>
</context>
</TS>
