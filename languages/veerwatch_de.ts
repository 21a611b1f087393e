<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Veerwatch</name>
    <message>
        <source>The language changes at the next start</source>
        <translation>Die Sprache wechselt beim nächsten Start</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>The Desktop&apos;s</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>From the next start on</source>
        <translation>Ab dem nächsten Start</translation>
    </message>
</context>
</TS>
