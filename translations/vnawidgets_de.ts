<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Controls::DraggableDialogTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Controls::KeypadEditor</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>Controls::TouchNumKeyboard</name>
    <message>
        <source>Numeric keypad</source>
        <translation>Ziffernblock</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Bild↑</translation>
    </message>
    <message>
        <source>PgDn</source>
        <translation>Bild↓</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Plus minus</source>
        <translation>Plus/Minus</translation>
    </message>
    <message>
        <source>Esc</source>
        <comment>key that cancels</comment>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rückschritt</translation>
    </message>
    <message>
        <source>Step down</source>
        <translation>Schritt nach unten</translation>
    </message>
    <message>
        <source>Step up</source>
        <translation>Schritt nach oben</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Cursor nach links</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Cursor nach rechts</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>key that enters</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
</context>
<context>
    <name>DisplayPanel</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Diagram layout</source>
        <translation>Anordnung der Diagramme</translation>
    </message>
    <message>
        <source>One diagram</source>
        <translation>Ein Diagramm</translation>
    </message>
    <message>
        <source>Two side by side</source>
        <translation>Nebeneinander</translation>
    </message>
    <message>
        <source>Two stacked</source>
        <translation>Übereinander</translation>
    </message>
    <message>
        <source>Four diagrams</source>
        <translation>Vier Diagramme</translation>
    </message>
</context>
<context>
    <name>LockWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Screen lock</source>
        <translation>Bildschirmsperre</translation>
    </message>
</context>
<context>
    <name>MarkerStatusItem</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>M1R:</source>
        <translation>M1R:</translation>
    </message>
    <message>
        <source>100.123456789GHz</source>
        <translation>100.123456789GHz</translation>
    </message>
    <message>
        <source>  -100.33dBm</source>
        <translation>  -100.33dBm</translation>
    </message>
    <message>
        <source>Ls=100.000nH</source>
        <translation>Ls=100.000nH</translation>
    </message>
</context>
<context>
    <name>RectangularBottomWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Start(GraphLabel)</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>: </source>
        <translation>: </translation>
    </message>
    <message>
        <source>1MHz</source>
        <translation>1MHz</translation>
    </message>
    <message>
        <source>Speed: --</source>
        <translation>Rate: --</translation>
    </message>
    <message>
        <source>Stop(GraphLabel)</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>2GHz</source>
        <translation>2GHz</translation>
    </message>
</context>
<context>
    <name>StepEditWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
</context>
<context>
    <name>SwitchButton</name>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
</TS>
