<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Controls::DraggableDialogTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximize</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>Controls::KeypadEditor</name>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
</context>
<context>
    <name>Controls::TouchNumKeyboard</name>
    <message>
        <source>Numeric keypad</source>
        <translation>Numeric keypad</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>PgUp</translation>
    </message>
    <message>
        <source>PgDn</source>
        <translation>PgDn</translation>
    </message>
    <message>
        <source>More</source>
        <translation>More</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Plus minus</source>
        <translation>Plus minus</translation>
    </message>
    <message>
        <source>Esc</source>
        <comment>key that cancels</comment>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Step down</source>
        <translation>Step down</translation>
    </message>
    <message>
        <source>Step up</source>
        <translation>Step up</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Cursor left</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Cursor right</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>key that enters</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
</context>
<context>
    <name>DisplayPanel</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Diagram layout</source>
        <translation>Diagram layout</translation>
    </message>
    <message>
        <source>One diagram</source>
        <translation>One diagram</translation>
    </message>
    <message>
        <source>Two side by side</source>
        <translation>Two side by side</translation>
    </message>
    <message>
        <source>Two stacked</source>
        <translation>Two stacked</translation>
    </message>
    <message>
        <source>Four diagrams</source>
        <translation>Four diagrams</translation>
    </message>
</context>
<context>
    <name>LockWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Screen lock</source>
        <translation>Screen lock</translation>
    </message>
</context>
<context>
    <name>MarkerStatusItem</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
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
        <translation>Form</translation>
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
        <translation>Speed: --</translation>
    </message>
    <message>
        <source>Stop(GraphLabel)</source>
        <translation>Stop</translation>
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
        <translation>No traces.</translation>
    </message>
    <message>
        <source>Marker %1 on %2</source>
        <translation>Marker %1 on %2</translation>
    </message>
    <message>
        <source>%1 keeps within its limit.</source>
        <translation>%1 keeps within its limit.</translation>
    </message>
    <message>
        <source>%1 fails its limit from %2 on.</source>
        <translation>%1 fails its limit from %2 on.</translation>
    </message>
    <message>
        <source>Smith chart</source>
        <translation>Smith chart</translation>
    </message>
    <message>
        <source>Trace %1</source>
        <translation>Trace %1</translation>
    </message>
</context>
<context>
    <name>StepEditWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Step</translation>
    </message>
</context>
<context>
    <name>SwitchButton</name>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
</context>
<context>
    <name>TraceWords</name>
    <message>
        <source>infinite</source>
        <translation>infinite</translation>
    </message>
    <message>
        <source>minus infinite</source>
        <translation>minus infinite</translation>
    </message>
    <message>
        <source>Stimulus</source>
        <translation>Stimulus</translation>
    </message>
    <message>
        <source>Resistance</source>
        <translation>Resistance</translation>
    </message>
    <message>
        <source>Reactance</source>
        <translation>Reactance</translation>
    </message>
    <message>
        <source>Magnitude</source>
        <translation>Magnitude</translation>
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
        <translation>resonance</translation>
    </message>
    <message>
        <source>parallel resonance</source>
        <translation>parallel resonance</translation>
    </message>
    <message>
        <source>VSWR of %1</source>
        <translation>VSWR of %1</translation>
    </message>
    <message>
        <source>edge of the limit</source>
        <translation>edge of the limit</translation>
    </message>
    <message>
        <source>marker</source>
        <translation>marker</translation>
    </message>
    <message>
        <source>VSWR %1</source>
        <translation>VSWR %1</translation>
    </message>
    <message>
        <source>%1 dB more reflection</source>
        <translation>%1 dB more reflection</translation>
    </message>
    <message>
        <source>%1 dB less reflection</source>
        <translation>%1 dB less reflection</translation>
    </message>
    <message>
        <source>%1: no points.</source>
        <translation>%1: no points.</translation>
    </message>
    <message>
        <source>best match at %1 with a VSWR of %2</source>
        <translation>best match at %1 with a VSWR of %2</translation>
    </message>
    <message>
        <source>VSWR below %1 from %2 to %3, %4 wide</source>
        <translation>VSWR below %1 from %2 to %3, %4 wide</translation>
    </message>
    <message>
        <source>VSWR nowhere below %1</source>
        <translation>VSWR nowhere below %1</translation>
    </message>
    <message numerus="yes">
        <source>%n loop(s)</source>
        <translation>
            <numerusform>%n loop</numerusform>
            <numerusform>%n loops</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 from %2 to %3: %4.</source>
        <translation>%1 from %2 to %3: %4.</translation>
    </message>
    <message>
        <source>minimum</source>
        <translation>minimum</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>maximum</translation>
    </message>
</context>
</TS>
