<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Panel::CartesianView</name>
    <message>
        <source>Cartesian diagram</source>
        <translation>Kartesisches Diagramm</translation>
    </message>
    <message>
        <source>ref %1</source>
        <translation>Ref %1</translation>
    </message>
</context>
<context>
    <name>Panel::DiagramController</name>
    <message>
        <source>Impedance</source>
        <translation>Impedanz</translation>
    </message>
    <message>
        <source>Admittance</source>
        <translation>Admittanz</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beide</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Einfach</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Detailed</source>
        <translation>Detailliert</translation>
    </message>
    <message>
        <source>All traces</source>
        <translation>Alle Kurven</translation>
    </message>
    <message>
        <source>Active only</source>
        <translation>Nur aktive</translation>
    </message>
</context>
<context>
    <name>Panel::DiagramView</name>
    <message>
        <source>All traces are hidden</source>
        <translation>Alle Kurven sind ausgeblendet</translation>
    </message>
</context>
<context>
    <name>Panel::FileController</name>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n files</source>
        <translation>
            <numerusform>%n Datei wird gelesen</numerusform>
            <numerusform>%n Dateien werden gelesen</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message numerus="yes">
        <source>(%n more)</source>
        <translation>
            <numerusform>(%n weitere)</numerusform>
            <numerusform>(%n weitere)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is gone; the panel keeps what it read.</source>
        <translation>%1 ist nicht mehr da; das Gelesene bleibt erhalten.</translation>
    </message>
    <message numerus="yes">
        <source>%n files are gone; the panel keeps what it read.</source>
        <translation>
            <numerusform>%n Datei ist nicht mehr da; das Gelesene bleibt erhalten.</numerusform>
            <numerusform>%n Dateien sind nicht mehr da; das Gelesene bleibt erhalten.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 has changed on disk.</source>
        <translation>%1 wurde auf dem Datenträger geändert.</translation>
    </message>
    <message numerus="yes">
        <source>%n files have changed on disk.</source>
        <translation>
            <numerusform>%n Datei wurde auf dem Datenträger geändert.</numerusform>
            <numerusform>%n Dateien wurden auf dem Datenträger geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Only files of this computer can be opened.</source>
        <translation>Nur Dateien dieses Rechners lassen sich öffnen.</translation>
    </message>
</context>
<context>
    <name>Panel::FileDialog</name>
    <message>
        <source>Open Touchstone files</source>
        <translation>Touchstone-Dateien öffnen</translation>
    </message>
    <message>
        <source>↑ Up</source>
        <translation>↑ Aufwärts</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Persönlich</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>Folders and Touchstone files</source>
        <translation>Ordner und Touchstone-Dateien</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Shipped samples</source>
        <translation>Mitgelieferte Beispiele</translation>
    </message>
    <message numerus="yes">
        <source>Picked: %n</source>
        <translation>
            <numerusform>Ausgewählt: %n</numerusform>
            <numerusform>Ausgewählt: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>No .s1p or .s2p files here</source>
        <translation>Hier sind keine .s1p- oder .s2p-Dateien</translation>
    </message>
    <message>
        <source>This folder cannot be read</source>
        <translation>Dieser Ordner lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>Tap files to pick them</source>
        <translation>Dateien zum Auswählen antippen</translation>
    </message>
</context>
<context>
    <name>Panel::FileNotes</name>
    <message>
        <source>%1 holds a single point, at %2: set a marker to see it.</source>
        <translation>%1 enthält einen einzigen Punkt, bei %2: Ein Marker macht ihn sichtbar.</translation>
    </message>
    <message>
        <source>%1: %2 holds no values.</source>
        <translation>%1: %2 enthält keine Werte.</translation>
    </message>
    <message>
        <source>Each file is shown in its own reference: %1.</source>
        <translation>Jede Datei wird mit ihrer eigenen Bezugsimpedanz gezeigt: %1.</translation>
    </message>
</context>
<context>
    <name>Panel::HelpDialog</name>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>go through all keys; Space or Return presses</source>
        <translation>alle Tasten durchgehen; Leer- oder Eingabetaste drückt</translation>
    </message>
    <message>
        <source>Ctrl + PgUp, PgDn</source>
        <translation>Strg + Bild↑, Bild↓</translation>
    </message>
    <message>
        <source>turn the page of soft keys</source>
        <translation>Seite der Softkeys umblättern</translation>
    </message>
    <message>
        <source>magnify a diagram, or show all of it</source>
        <translation>Diagramm vergrößern oder ganz zeigen</translation>
    </message>
    <message>
        <source>move the selected marker, or the view</source>
        <translation>gewählten Marker oder Ausschnitt verschieben</translation>
    </message>
    <message>
        <source>move the view</source>
        <translation>Ausschnitt verschieben</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>remove the selected marker</source>
        <translation>gewählten Marker entfernen</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>select none; leave an entry without changing it</source>
        <translation>Auswahl aufheben; Eingabe ohne Änderung verlassen</translation>
    </message>
    <message>
        <source>Ctrl + O</source>
        <translation>Strg + O</translation>
    </message>
    <message>
        <source>open files</source>
        <translation>Dateien öffnen</translation>
    </message>
    <message>
        <source>Ctrl + P</source>
        <translation>Strg + P</translation>
    </message>
    <message>
        <source>take a screenshot</source>
        <translation>Bildschirmfoto aufnehmen</translation>
    </message>
    <message>
        <source>Ctrl + L</source>
        <translation>Strg + L</translation>
    </message>
    <message>
        <source>show or hide the padlock</source>
        <translation>Sperrschloss ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Ctrl + T</source>
        <translation>Strg + T</translation>
    </message>
    <message>
        <source>dark or light</source>
        <translation>dunkel oder hell</translation>
    </message>
    <message>
        <source>Ctrl + ,</source>
        <translation>Strg + ,</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>show what the drawing costs</source>
        <translation>zeigen, was das Zeichnen kostet</translation>
    </message>
    <message>
        <source>full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Ctrl + Q</source>
        <translation>Strg + Q</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>beenden</translation>
    </message>
</context>
<context>
    <name>Panel::MarkerController</name>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Next peak left</source>
        <translation>Nächster Peak links</translation>
    </message>
    <message>
        <source>Next peak right</source>
        <translation>Nächster Peak rechts</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Trace %1 has all its %2 markers: remove one to set another.</source>
        <translation>Kurve %1 hat schon alle %2 Marker: Für einen neuen zuerst einen entfernen.</translation>
    </message>
    <message>
        <source>Trace %1 has no such point.</source>
        <translation>Kurve %1 hat keinen solchen Punkt.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
</context>
<context>
    <name>Panel::MessageBar</name>
    <message>
        <source>Close message</source>
        <translation>Meldung schließen</translation>
    </message>
</context>
<context>
    <name>Panel::NumericDialog</name>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>1-2-5</source>
        <translation>1-2-5</translation>
    </message>
    <message>
        <source>Not a value</source>
        <translation>Kein gültiger Wert</translation>
    </message>
    <message>
        <source>%1: %2 is out of range, limited to %3.</source>
        <translation>%1: %2 liegt außerhalb des Bereichs und wurde auf %3 begrenzt.</translation>
    </message>
    <message>
        <source>Highest value: %1</source>
        <translation>Höchster Wert: %1</translation>
    </message>
    <message>
        <source>Lowest value: %1</source>
        <translation>Niedrigster Wert: %1</translation>
    </message>
</context>
<context>
    <name>Panel::NumericKeys</name>
    <message>
        <source>Scale/</source>
        <translation>Skala/</translation>
    </message>
    <message>
        <source>Scale, %1/</source>
        <translation>Skala, %1/</translation>
    </message>
</context>
<context>
    <name>Panel::PanelController</name>
    <message>
        <source>The language changes with the next start of the panel.</source>
        <translation>Die Sprache wechselt mit dem nächsten Start des Programms.</translation>
    </message>
    <message>
        <source>The screenshot is %1.</source>
        <translation>Das Bildschirmfoto liegt in %1.</translation>
    </message>
</context>
<context>
    <name>Panel::PanelKeys</name>
    <message>
        <source>Stimulus</source>
        <translation>Stimulus</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Span</source>
        <translation>Span</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Marker</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Marker to</source>
        <translation>Marker als</translation>
    </message>
    <message>
        <source>Read-out</source>
        <translation>Ablesung</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Zeiger</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Sweep</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>Resonanz</translation>
    </message>
    <message>
        <source>Timing</source>
        <translation>Zeiten</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
</context>
<context>
    <name>Panel::PanelState</name>
    <message>
        <source>The state of the last time cannot be read.</source>
        <translation>Der Zustand vom letzten Mal lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>The state of the last time is damaged and not used.</source>
        <translation>Der Zustand vom letzten Mal ist beschädigt und wird nicht verwendet.</translation>
    </message>
    <message>
        <source>The state of the last time is of another version and not used.</source>
        <translation>Der Zustand vom letzten Mal stammt von einer anderen Version und wird nicht verwendet.</translation>
    </message>
</context>
<context>
    <name>Panel::PanelWindow</name>
    <message>
        <source>Vector network analyser</source>
        <translation>Vektornetzwerkanalysator</translation>
    </message>
    <message>
        <source>VNA</source>
        <translation>VNA</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Dark or light</source>
        <translation>Dunkel oder hell</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperre</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Keine Daten</translation>
    </message>
    <message>
        <source>Open a Touchstone file (.s1p, .s2p) to see it.</source>
        <translation>Eine Touchstone-Datei (.s1p, .s2p) öffnen, um sie zu sehen.</translation>
    </message>
    <message>
        <source>Open file…</source>
        <translation>Datei öffnen…</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen…</translation>
    </message>
</context>
<context>
    <name>Panel::ReadOuts</name>
    <message>
        <source>Markers</source>
        <translation>Marker</translation>
    </message>
</context>
<context>
    <name>Panel::Screenshot</name>
    <message>
        <source>The folder %1 for the screenshot cannot be made.</source>
        <translation>Der Ordner %1 für das Bildschirmfoto lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>The screenshot cannot be written to %1 (%2).</source>
        <translation>Das Bildschirmfoto lässt sich nicht nach %1 schreiben (%2).</translation>
    </message>
</context>
<context>
    <name>Panel::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Markers on measured points only</source>
        <translation>Marker nur auf Messpunkten</translation>
    </message>
    <message>
        <source>Markers coupled over all traces</source>
        <translation>Marker aller Kurven gekoppelt</translation>
    </message>
    <message>
        <source>Screenshots go to</source>
        <translation>Bildschirmfotos nach</translation>
    </message>
</context>
<context>
    <name>Panel::SimulatedDevice</name>
    <message>
        <source>Antenna</source>
        <translation>Antenne</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Long cable</source>
        <translation>Langes Kabel</translation>
    </message>
</context>
<context>
    <name>Panel::SmithView</name>
    <message>
        <source>Smith chart</source>
        <translation>Smith-Diagramm</translation>
    </message>
    <message>
        <source>Z %1</source>
        <translation>Z %1</translation>
    </message>
</context>
<context>
    <name>Panel::SweepBar</name>
    <message>
        <source>Sweep</source>
        <translation>Sweep</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Speed: %1 sweeps/s</source>
        <translation>Rate: %1 Sweeps/s</translation>
    </message>
</context>
<context>
    <name>Panel::SweepController</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>Panel::TimingLine</name>
    <message>
        <source>Timing</source>
        <translation>Zeiten</translation>
    </message>
    <message>
        <source>%1 points drawn · new data %2 · replot %3</source>
        <translation>%1 Punkte gezeichnet · neue Daten %2 · Neuzeichnen %3</translation>
    </message>
</context>
<context>
    <name>Panel::Touchstone</name>
    <message>
        <source>the reading was cancelled</source>
        <translation>das Lesen wurde abgebrochen</translation>
    </message>
    <message>
        <source>the last point has %1 of %2 numbers</source>
        <translation>der letzte Punkt hat nur %1 von %2 Zahlen</translation>
    </message>
    <message>
        <source>the file holds no data</source>
        <translation>die Datei enthält keine Daten</translation>
    </message>
    <message>
        <source>%1 is a keyword of Touchstone version 2, and only version 1 is read</source>
        <translation>%1 ist ein Schlüsselwort von Touchstone Version 2, gelesen wird nur Version 1</translation>
    </message>
    <message>
        <source>the option line comes after data</source>
        <translation>die Optionszeile kommt erst nach Daten</translation>
    </message>
    <message>
        <source>the reference resistance after R must be a number above zero</source>
        <translation>der Bezugswiderstand nach R muss eine Zahl über null sein</translation>
    </message>
    <message>
        <source>the file holds %1 parameters, and only S parameters are read</source>
        <translation>die Datei enthält %1-Parameter, gelesen werden nur Streuparameter (S)</translation>
    </message>
    <message>
        <source>%1 is no option of a Touchstone file</source>
        <translation>%1 ist keine Option einer Touchstone-Datei</translation>
    </message>
    <message>
        <source>%1 stands where a finite number belongs</source>
        <translation>%1 steht, wo eine endliche Zahl hingehört</translation>
    </message>
    <message>
        <source>a line of noise data has %1 numbers, not %2</source>
        <translation>eine Zeile mit Rauschdaten hat %1 Zahlen, nicht %2</translation>
    </message>
    <message>
        <source>the frequency falls back in the noise data</source>
        <translation>die Frequenz fällt in den Rauschdaten zurück</translation>
    </message>
    <message>
        <source>the frequency must not be below zero nor beyond all bounds</source>
        <translation>die Frequenz darf weder negativ noch unendlich sein</translation>
    </message>
    <message>
        <source>the frequency falls back</source>
        <translation>die Frequenz fällt zurück</translation>
    </message>
    <message>
        <source>the point has more than the %1 numbers of a one-port</source>
        <translation>der Punkt hat mehr als die %1 Zahlen eines Eintors</translation>
    </message>
    <message>
        <source>the point has more than the %1 numbers of a two-port</source>
        <translation>der Punkt hat mehr als die %1 Zahlen eines Zweitors</translation>
    </message>
    <message>
        <source>a value is beyond all bounds</source>
        <translation>ein Wert liegt über allen Grenzen</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>dies ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the file is larger than %1 MB</source>
        <translation>die Datei ist größer als %1 MB</translation>
    </message>
    <message>
        <source>the file cannot be read (%1)</source>
        <translation>die Datei lässt sich nicht lesen (%1)</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>this is a folder, not a file</source>
        <translation>dies ist ein Ordner, keine Datei</translation>
    </message>
    <message>
        <source>the name of a Touchstone file ends in .s1p or .s2p</source>
        <translation>der Name einer Touchstone-Datei endet auf .s1p oder .s2p</translation>
    </message>
    <message>
        <source>a network of %1 ports, and only one and two ports are read</source>
        <translation>ein Netzwerk mit %1 Toren, gelesen werden nur ein und zwei Tore</translation>
    </message>
    <message>
        <source>%1, line %2: %3.</source>
        <translation>%1, Zeile %2: %3.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>the file has more than %1 points</source>
        <translation>die Datei hat mehr als %1 Punkte</translation>
    </message>
</context>
<context>
    <name>Panel::TraceBar</name>
    <message>
        <source>%1 (hidden)</source>
        <translation>%1 (ausgeblendet)</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Kurven</translation>
    </message>
    <message>
        <source>Tr%1</source>
        <translation>Tr%1</translation>
    </message>
</context>
<context>
    <name>Panel::TraceController</name>
    <message>
        <source>Data to memory</source>
        <translation>Daten in Speicher</translation>
    </message>
    <message>
        <source>Clear memory</source>
        <translation>Speicher löschen</translation>
    </message>
    <message>
        <source>Tr%1 %2</source>
        <translation>Tr%1 %2</translation>
    </message>
</context>
<context>
    <name>Panel::TraceFormat</name>
    <message>
        <source>Smith</source>
        <translation>Smith</translation>
    </message>
    <message>
        <source>LogM</source>
        <translation>LogM</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>VSWR</source>
        <translation>VSWR</translation>
    </message>
    <message>
        <source>As the grid</source>
        <translation>Wie Gitter</translation>
    </message>
    <message>
        <source>Mag / phase</source>
        <translation>Betrag / Phase</translation>
    </message>
    <message>
        <source>dB / phase</source>
        <translation>dB / Phase</translation>
    </message>
</context>
</TS>
