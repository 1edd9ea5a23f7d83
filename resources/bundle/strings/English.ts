<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Print Setting</source>
        <translation>Print Setting</translation>
    </message>
    <message>
        <source>Color Setting</source>
        <translation>Color Setting</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>On</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>This paper size cannot be used</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>The printer cannot feed the paper size that is set.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>1. Choose another paper size.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>2. Load paper of that size.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>3. Print again.</translation>
    </message>
</context>
</TS>
