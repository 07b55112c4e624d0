<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Panel::DiagramView</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Panel::FileController</name>
    <message numerus="yes">
        <source>Reading %n files</source>
        <translation>
            <numerusform>Reading %n file</numerusform>
            <numerusform>Reading %n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>(%n more)</source>
        <translation>
            <numerusform>(%n more)</numerusform>
            <numerusform>(%n more)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files are gone; the panel keeps what it read.</source>
        <translation>
            <numerusform>%n file is gone; the panel keeps what it read.</numerusform>
            <numerusform>%n files are gone; the panel keeps what it read.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files have changed on disk.</source>
        <translation>
            <numerusform>%n file has changed on disk.</numerusform>
            <numerusform>%n files have changed on disk.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Panel::FileDialog</name>
    <message numerus="yes">
        <source>Picked: %n</source>
        <translation>
            <numerusform>Picked: %n</numerusform>
            <numerusform>Picked: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Panel::LineEditor</name>
    <message numerus="yes">
        <source>A trace can have %n limit line(s).</source>
        <translation>
            <numerusform>A trace can have %n limit line.</numerusform>
            <numerusform>A trace can have %n limit lines.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Panel::PanelWindow</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
</context>
</TS>
