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
    <name>SmithReader</name>
    <message>
        <source>No traces.</source>
        <translation>Keine Messkurven.</translation>
    </message>
    <message>
        <source>Marker %1 on %2</source>
        <translation>Marker %1 auf %2</translation>
    </message>
    <message>
        <source>%1 keeps within its limit.</source>
        <translation>%1 hält die Grenze ein.</translation>
    </message>
    <message>
        <source>%1 fails its limit from %2 on.</source>
        <translation>%1 verletzt die Grenze ab %2.</translation>
    </message>
    <message>
        <source>Smith chart</source>
        <translation>Smith-Diagramm</translation>
    </message>
    <message>
        <source>Trace %1</source>
        <translation>Messkurve %1</translation>
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
<context>
    <name>TraceWords</name>
    <message>
        <source>infinite</source>
        <translation>unendlich</translation>
    </message>
    <message>
        <source>minus infinite</source>
        <translation>minus unendlich</translation>
    </message>
    <message>
        <source>Stimulus</source>
        <translation>Stimulus</translation>
    </message>
    <message>
        <source>Resistance</source>
        <translation>Widerstand</translation>
    </message>
    <message>
        <source>Reactance</source>
        <translation>Reaktanz</translation>
    </message>
    <message>
        <source>Magnitude</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Phase (°)</source>
        <translation>Phase (°)</translation>
    </message>
    <message>
        <source>VSWR</source>
        <translation>VSWR</translation>
    </message>
    <message>
        <source>resonance</source>
        <translation>Resonanz</translation>
    </message>
    <message>
        <source>parallel resonance</source>
        <translation>Parallelresonanz</translation>
    </message>
    <message>
        <source>VSWR of %1</source>
        <translation>VSWR von %1</translation>
    </message>
    <message>
        <source>edge of the limit</source>
        <translation>Rand der Grenzverletzung</translation>
    </message>
    <message>
        <source>marker</source>
        <translation>Marker</translation>
    </message>
    <message>
        <source>VSWR %1</source>
        <translation>VSWR %1</translation>
    </message>
    <message>
        <source>%1 dB more reflection</source>
        <translation>%1 dB mehr Reflexion</translation>
    </message>
    <message>
        <source>%1 dB less reflection</source>
        <translation>%1 dB weniger Reflexion</translation>
    </message>
    <message>
        <source>%1: no points.</source>
        <translation>%1: keine Punkte.</translation>
    </message>
    <message>
        <source>best match at %1 with a VSWR of %2</source>
        <translation>beste Anpassung bei %1 mit einem VSWR von %2</translation>
    </message>
    <message>
        <source>VSWR below %1 from %2 to %3, %4 wide</source>
        <translation>VSWR unter %1 von %2 bis %3, %4 breit</translation>
    </message>
    <message>
        <source>VSWR nowhere below %1</source>
        <translation>VSWR nirgends unter %1</translation>
    </message>
    <message numerus="yes">
        <source>%n loop(s)</source>
        <translation>
            <numerusform>%n Schleife</numerusform>
            <numerusform>%n Schleifen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 from %2 to %3: %4.</source>
        <translation>%1 von %2 bis %3: %4.</translation>
    </message>
    <message>
        <source>minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>Maximum</translation>
    </message>
</context>
</TS>
