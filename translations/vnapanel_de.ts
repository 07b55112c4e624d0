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
    <name>Panel::ChartGestures</name>
    <message>
        <source>Two taps on the title, or Esc, show all diagrams again.</source>
        <translation>Zweimal auf den Titel tippen oder Esc zeigt wieder alle Diagramme.</translation>
    </message>
</context>
<context>
    <name>Panel::CircleEditor</name>
    <message>
        <source>There is one limit circle for all Smith charts.</source>
        <translation>Für alle Smith-Diagramme gibt es einen Grenzkreis.</translation>
    </message>
    <message>
        <source>VSWR %1</source>
        <translation>VSWR %1</translation>
    </message>
    <message>
        <source>Γ %1 ∠ %2°, radius %3</source>
        <translation>Γ %1 ∠ %2°, Radius %3</translation>
    </message>
</context>
<context>
    <name>Panel::DiagramReader</name>
    <message>
        <source>%1 from %2 to %3: highest %4 at %5, lowest %6 at %7.</source>
        <translation>%1 von %2 bis %3: höchster Wert %4 bei %5, niedrigster %6 bei %7.</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Magnitude (dB)</source>
        <translation>Betrag (dB)</translation>
    </message>
    <message>
        <source>Marker %1 on %2: %3</source>
        <translation>Marker %1 auf %2: %3</translation>
    </message>
</context>
<context>
    <name>Panel::DiagramView</name>
    <message>
        <source>All traces are hidden</source>
        <translation>Alle Kurven sind ausgeblendet</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Port %1: %2</source>
        <translation>Tor %1: %2</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>auf %1</translation>
    </message>
    <message>
        <source>smoothed %1 %</source>
        <translation>%1 % geglättet</translation>
    </message>
    <message>
        <source>own scale: %1</source>
        <translation>eigene Skala: %1</translation>
    </message>
</context>
<context>
    <name>Panel::DisplayKeys</name>
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
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Ohms</source>
        <translation>Ohm</translation>
    </message>
    <message>
        <source>Normalised</source>
        <translation>Normiert</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Logarithmic</source>
        <translation>Logarithmisch</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
</context>
<context>
    <name>Panel::EmptyPage</name>
    <message>
        <source>Open file…</source>
        <translation>Datei öffnen…</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Keine Daten</translation>
    </message>
    <message>
        <source>Open a Touchstone file (.s1p, .s2p, .ts) to see it.</source>
        <translation>Eine Touchstone-Datei (.s1p, .s2p, .ts) öffnen, um sie zu sehen.</translation>
    </message>
</context>
<context>
    <name>Panel::Exports</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Nothing can be written to %1 (%2).</source>
        <translation>In %1 kann nichts geschrieben werden (%2).</translation>
    </message>
    <message>
        <source>The picture cannot be written.</source>
        <translation>Das Bild kann nicht geschrieben werden.</translation>
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
</context>
<context>
    <name>Panel::FileDialog</name>
    <message>
        <source>Open Touchstone files</source>
        <translation>Touchstone-Dateien öffnen</translation>
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
    <message numerus="yes">
        <source>Picked: %n</source>
        <translation>
            <numerusform>Ausgewählt: %n</numerusform>
            <numerusform>Ausgewählt: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>This folder cannot be read</source>
        <translation>Dieser Ordner lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>Tap files to pick them</source>
        <translation>Dateien zum Auswählen antippen</translation>
    </message>
    <message>
        <source>No Touchstone files here</source>
        <translation>Keine Touchstone-Dateien hier</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Show them beside the files on show</source>
        <translation>Neben den gezeigten Dateien zeigen</translation>
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
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>%1 is not in %2.</source>
        <translation>%1 ist nicht in %2.</translation>
    </message>
    <message>
        <source>%1 are not in %2.</source>
        <translation>%1 sind nicht in %2.</translation>
    </message>
</context>
<context>
    <name>Panel::FitOffer</name>
    <message>
        <source>%1 lies above: fit</source>
        <translation>%1 liegt darüber: einpassen</translation>
    </message>
    <message>
        <source>%1 lies below: fit</source>
        <translation>%1 liegt darunter: einpassen</translation>
    </message>
</context>
<context>
    <name>Panel::FolderBrowser</name>
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
        <source>Shipped samples</source>
        <translation>Mitgelieferte Beispiele</translation>
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
    <message>
        <source>move the selected marker, with Ctrl by a point; or the view</source>
        <translation>gewählten Marker bewegen, mit Strg um einen Punkt; oder den Ausschnitt</translation>
    </message>
    <message>
        <source>G, M, k</source>
        <translation>G, M, k</translation>
    </message>
    <message>
        <source>finish a typed number in GHz, MHz or kHz</source>
        <translation>getippte Zahl in GHz, MHz oder kHz abschließen</translation>
    </message>
    <message>
        <source>lock the panel, or unlock it</source>
        <translation>Bedienung sperren oder freigeben</translation>
    </message>
    <message>
        <source>Ctrl + Z</source>
        <translation>Strg + Z</translation>
    </message>
    <message>
        <source>undo; with Shift, do it again</source>
        <translation>zurücknehmen; mit Umschalt wieder</translation>
    </message>
    <message>
        <source>F2, Home, End</source>
        <translation>F2, Pos1, Ende</translation>
    </message>
    <message>
        <source>walk along the active trace, hear and read what is where</source>
        <translation>die aktive Messkurve entlanggehen und hören und lesen, was wo ist</translation>
    </message>
    <message>
        <source>walking: ← →</source>
        <translation>beim Gehen: ← →</translation>
    </message>
    <message>
        <source>by a point, with Ctrl to the next feature, as the wheel does</source>
        <translation>um einen Punkt, mit Strg zum nächsten Merkmal, wie mit dem Rad</translation>
    </message>
    <message>
        <source>PgUp, PgDn</source>
        <translation>Bild ↑, Bild ↓</translation>
    </message>
    <message>
        <source>by a tenth of the view; ↑ ↓ to another trace</source>
        <translation>um ein Zehntel der Ansicht; ↑ ↓ zu einer anderen Messkurve</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>set a marker there; Esc ends the walk</source>
        <translation>dort einen Marker setzen; Esc beendet das Gehen</translation>
    </message>
    <message>
        <source>read the selected marker over its whole diagram</source>
        <translation>den ausgewählten Marker groß über dem Diagramm lesen</translation>
    </message>
    <message>
        <source>hear the active trace, or stop</source>
        <translation>die aktive Messkurve hören, oder anhalten</translation>
    </message>
    <message>
        <source>editing limits: Tab</source>
        <translation>Grenzen ändern: Tab</translation>
    </message>
    <message>
        <source>from handle to handle, which arrows move; Del removes the limit</source>
        <translation>von Griff zu Griff, den Pfeile bewegen; Entf entfernt die Grenze</translation>
    </message>
    <message>
        <source>select none, then show all diagrams; leave an entry without changing it</source>
        <translation>nichts auswählen, dann alle Diagramme zeigen; eine Eingabe unverändert verlassen</translation>
    </message>
</context>
<context>
    <name>Panel::InstrumentDialog</name>
    <message>
        <source>small analyser, text shell</source>
        <translation>kleiner Analysator, Textkonsole</translation>
    </message>
    <message>
        <source>analyser program</source>
        <translation>Analysatorprogramm</translation>
    </message>
    <message>
        <source>bench analyser, SCPI</source>
        <translation>Laboranalysator, SCPI</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Instruments</source>
        <translation>Messgeräte</translation>
    </message>
    <message>
        <source>Serial ports, and instruments used before</source>
        <translation>Serielle Schnittstellen und früher benutzte Messgeräte</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>No instrument is connected. Tap one, or type its address.</source>
        <translation>Kein Messgerät ist verbunden. Tippen Sie eines an oder geben Sie seine Adresse ein.</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>Verbindung zu %1 …</translation>
    </message>
    <message>
        <source>It says nothing of a calibration of its own.</source>
        <translation>Über eine eigene Kalibrierung sagt es nichts.</translation>
    </message>
    <message>
        <source>Calibrated by itself: %1</source>
        <translation>Vom Gerät selbst kalibriert: %1</translation>
    </message>
    <message>
        <source>No serial port, and none used before.</source>
        <translation>Keine serielle Schnittstelle, und noch keines benutzt.</translation>
    </message>
</context>
<context>
    <name>Panel::LetterKeys</name>
    <message>
        <source>Shift</source>
        <translation>Umschalten</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>Panel::LimitKeys</name>
    <message>
        <source>below</source>
        <translation>unter</translation>
    </message>
    <message>
        <source>above</source>
        <translation>über</translation>
    </message>
    <message>
        <source>A polar diagram has no limits.</source>
        <translation>Ein Polardiagramm hat keine Grenzen.</translation>
    </message>
    <message>
        <source>Two taps on a free place of the diagram add a limit.</source>
        <translation>Zweimal auf eine freie Stelle des Diagramms tippen fügt eine Grenze hinzu.</translation>
    </message>
    <message>
        <source>outside</source>
        <translation>außerhalb</translation>
    </message>
    <message>
        <source>inside</source>
        <translation>innerhalb</translation>
    </message>
</context>
<context>
    <name>Panel::LimitSheet</name>
    <message>
        <source>A limit line is what the trace must stay below, or above.</source>
        <translation>Eine Grenzlinie ist, worunter oder worüber die Messkurve bleiben muss.</translation>
    </message>
    <message>
        <source>Add a line</source>
        <translation>Linie hinzufügen</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>below</source>
        <translation>unter</translation>
    </message>
    <message>
        <source>above</source>
        <translation>über</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Value at start</source>
        <translation>Wert bei Start</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Value at stop</source>
        <translation>Wert bei Stopp</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Limit lines of %1 %2, %3</source>
        <translation>Grenzlinien von %1 %2, %3</translation>
    </message>
</context>
<context>
    <name>Panel::LineEditor</name>
    <message numerus="yes">
        <source>A trace can have %n limit line(s).</source>
        <translation>
            <numerusform>Eine Messkurve kann %n Grenzlinie haben.</numerusform>
            <numerusform>Eine Messkurve kann %n Grenzlinien haben.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2
%3</source>
        <translation>%1 bis %2
%3</translation>
    </message>
</context>
<context>
    <name>Panel::LinkAddress</name>
    <message>
        <source>An instrument is written as nanovna:PORT, librevna:HOST or scpi:HOST, not &quot;%1&quot;.</source>
        <translation>Ein Messgerät schreibt man als nanovna:PORT, librevna:HOST oder scpi:HOST, nicht als „%1“.</translation>
    </message>
</context>
<context>
    <name>Panel::LinkSource</name>
    <message>
        <source>%1 is connected again.</source>
        <translation>%1 ist wieder verbunden.</translation>
    </message>
</context>
<context>
    <name>Panel::LinkedMeasurement</name>
    <message>
        <source>%1 does not take this sweep, but goes from %2 to %3 Hz with %4 points.</source>
        <translation>%1 nimmt diesen Sweep nicht an, sondern geht von %2 bis %3 Hz mit %4 Punkten.</translation>
    </message>
    <message>
        <source>%1: the log cannot be written.</source>
        <translation>%1: Das Protokoll kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The measurement was cancelled.</source>
        <translation>Die Messung wurde abgebrochen.</translation>
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
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Trace %1 has no further peak of %2 that way.</source>
        <translation>Kurve %1 hat dort keine weitere Spitze von %2.</translation>
    </message>
    <message>
        <source>M%1 stands at the end of the data.</source>
        <translation>M%1 steht am Ende der Daten.</translation>
    </message>
    <message>
        <source>Value left…</source>
        <translation>Wert links…</translation>
    </message>
    <message>
        <source>Value right…</source>
        <translation>Wert rechts…</translation>
    </message>
    <message>
        <source>Reference level</source>
        <translation>Bezugspegel</translation>
    </message>
    <message>
        <source>Port delay</source>
        <translation>Torlaufzeit</translation>
    </message>
    <message>
        <source>Value, %1</source>
        <translation>Wert, %1</translation>
    </message>
    <message>
        <source>Trace %1 does not reach %2 that way.</source>
        <translation>Kurve %1 erreicht %2 in dieser Richtung nicht.</translation>
    </message>
    <message>
        <source>Highest peaks</source>
        <translation>Höchste Spitzen</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fest</translation>
    </message>
</context>
<context>
    <name>Panel::MarkerReading</name>
    <message>
        <source>Bandwidth %1 dB</source>
        <translation>Bandbreite %1 dB</translation>
    </message>
    <message>
        <source>centre %1</source>
        <translation>Mitte %1</translation>
    </message>
    <message>
        <source>%1: its edges are not in the data</source>
        <translation>%1: die Kanten liegen nicht in den Daten</translation>
    </message>
    <message>
        <source>marker %1</source>
        <translation>Marker %1</translation>
    </message>
    <message>
        <source>loss %1</source>
        <translation>Dämpfung %1</translation>
    </message>
    <message>
        <source>Bandwidth %1 dB (absorbed power)</source>
        <translation>Bandbreite %1 dB (aufgenommene Leistung)</translation>
    </message>
    <message>
        <source>%1: only its upper edge is in the data, %2</source>
        <translation>%1: nur die obere Kante liegt in den Daten, %2</translation>
    </message>
    <message>
        <source>%1: only its lower edge is in the data, %2</source>
        <translation>%1: nur die untere Kante liegt in den Daten, %2</translation>
    </message>
</context>
<context>
    <name>Panel::MarkerRows</name>
    <message>
        <source>Marker</source>
        <translation>Marker</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>Wert %1</translation>
    </message>
</context>
<context>
    <name>Panel::MarkerTable</name>
    <message>
        <source>Tap a trace twice to set a marker.</source>
        <translation>Zweimal antippen setzt Marker.</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Marker</translation>
    </message>
</context>
<context>
    <name>Panel::MathKeys</name>
    <message>
        <source>Data to memory</source>
        <translation>Daten in Speicher</translation>
    </message>
    <message>
        <source>Clear memory</source>
        <translation>Speicher löschen</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>All ports</source>
        <translation>Alle Tore</translation>
    </message>
    <message>
        <source>Port %1</source>
        <translation>Tor %1</translation>
    </message>
    <message>
        <source>Normalize to data</source>
        <translation>Auf Daten normieren</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
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
    <name>Panel::NameDialog</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
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
    <message>
        <source>Stop moved along, to %1.</source>
        <translation>Stopp ist mitgegangen, auf %1.</translation>
    </message>
    <message>
        <source>Start moved along, to %1.</source>
        <translation>Start ist mitgegangen, auf %1.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>Panel::PanelController</name>
    <message>
        <source>The language changes with the next start of the panel.</source>
        <translation>Die Sprache wechselt mit dem nächsten Start des Programms.</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message>
        <source>Diagram as PDF</source>
        <translation>Diagramm als PDF</translation>
    </message>
    <message>
        <source>Diagram as SVG</source>
        <translation>Diagramm als SVG</translation>
    </message>
    <message>
        <source>Picture to clipboard</source>
        <translation>Bild in Zwischenablage</translation>
    </message>
    <message>
        <source>Copied the picture</source>
        <translation>Bild kopiert</translation>
    </message>
    <message>
        <source>%1 It is tried again.</source>
        <translation>%1 Es wird erneut versucht.</translation>
    </message>
    <message>
        <source>Print the diagram…</source>
        <translation>Diagramm drucken …</translation>
    </message>
    <message>
        <source>Printed the diagram</source>
        <translation>Diagramm gedruckt</translation>
    </message>
    <message>
        <source>The printer does not take the diagram.</source>
        <translation>Der Drucker nimmt das Diagramm nicht an.</translation>
    </message>
    <message>
        <source>Select a marker to read it large.</source>
        <translation>Wähle einen Marker, um ihn groß zu lesen.</translation>
    </message>
    <message>
        <source>Save as Touchstone</source>
        <translation>Als Touchstone speichern</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>Als CSV speichern</translation>
    </message>
    <message>
        <source>Save the diagram as PDF</source>
        <translation>Diagramm als PDF speichern</translation>
    </message>
    <message>
        <source>Save the diagram as SVG</source>
        <translation>Diagramm als SVG speichern</translation>
    </message>
    <message>
        <source>Save, remove…</source>
        <translation>Speichern, entfernen…</translation>
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
        <source>Whole view</source>
        <translation>Ganze Ansicht</translation>
    </message>
    <message>
        <source>Autoscale</source>
        <translation>Autoskala</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Grenzen</translation>
    </message>
    <message>
        <source>VSWR circle</source>
        <translation>VSWR-Kreis</translation>
    </message>
    <message>
        <source>VSWR limit</source>
        <translation>VSWR-Grenze</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>Keyboard help</source>
        <translation>Tastenhilfe</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Bandbreite</translation>
    </message>
    <message>
        <source>Math</source>
        <translation>Rechnen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Glättung</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Port delay</source>
        <translation>Torlaufzeit</translation>
    </message>
    <message>
        <source>Port impedance</source>
        <translation>Torimpedanz</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Limit lines</source>
        <translation>Grenzlinien</translation>
    </message>
    <message>
        <source>Set-ups</source>
        <translation>Einstellungssätze</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Erneut</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Messgerät</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Einmal</translation>
    </message>
    <message>
        <source>IF bandwidth</source>
        <translation>ZF-Bandbreite</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>Averages</source>
        <translation>Mittelungen</translation>
    </message>
    <message>
        <source>Frequency axis</source>
        <translation>Frequenzachse</translation>
    </message>
    <message>
        <source>Reference position</source>
        <translation>Referenzposition</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Folgen</translation>
    </message>
    <message>
        <source>Couple</source>
        <translation>Koppeln</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Limit radius</source>
        <translation>Grenzradius</translation>
    </message>
    <message>
        <source>Center Re</source>
        <translation>Mitte Re</translation>
    </message>
    <message>
        <source>Center Im</source>
        <translation>Mitte Im</translation>
    </message>
    <message>
        <source>From file</source>
        <translation>Aus Datei</translation>
    </message>
    <message>
        <source>Diagram</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
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
    <message>
        <source>Simulated: %1</source>
        <translation>Simuliert: %1</translation>
    </message>
    <message>
        <source>Sample: %1</source>
        <translation>Beispiel: %1</translation>
    </message>
    <message>
        <source>Only files of this computer can be opened.</source>
        <translation>Nur Dateien dieses Rechners lassen sich öffnen.</translation>
    </message>
    <message>
        <source>This is a sample. The folder above opens your own files.</source>
        <translation>Das ist ein Beispiel. Der Ordner oben öffnet eigene Dateien.</translation>
    </message>
    <message>
        <source>What you set cannot be kept: %1 cannot be written.</source>
        <translation>Einstellungen können nicht behalten werden: %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Old: %1</source>
        <translation>Alt: %1</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Unlocked</source>
        <translation>Entsperrt</translation>
    </message>
    <message>
        <source>The panel is locked: tap the padlock or press Ctrl + L.</source>
        <translation>Die Bedienfläche ist gesperrt: auf das Schloss tippen oder Strg + L drücken.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Load a file</source>
        <translation>Datei laden</translation>
    </message>
</context>
<context>
    <name>Panel::ParameterMatrix</name>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>From port %1 to port %2</source>
        <translation>Von Tor %1 nach Tor %2</translation>
    </message>
</context>
<context>
    <name>Panel::PolarView</name>
    <message>
        <source>Polar diagram</source>
        <translation>Polardiagramm</translation>
    </message>
    <message>
        <source>full scale %1</source>
        <translation>Vollausschlag %1</translation>
    </message>
</context>
<context>
    <name>Panel::ReadOuts</name>
    <message>
        <source>Markers</source>
        <translation>Marker</translation>
    </message>
    <message>
        <source>Tap a trace twice to set a marker.</source>
        <translation>Zweimal antippen setzt Marker.</translation>
    </message>
</context>
<context>
    <name>Panel::SaveDialog</name>
    <message>
        <source>Folders and files</source>
        <translation>Ordner und Dateien</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Diesen Ordner nehmen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 gibt es schon.</translation>
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
        <source>Saved files go to</source>
        <translation>Gespeichert wird in</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Hoher Kontrast</translation>
    </message>
    <message>
        <source>Dashes tell traces apart</source>
        <translation>Striche unterscheiden Kurven</translation>
    </message>
    <message>
        <source>Sound along a walk and under the pointer</source>
        <translation>Ton beim Entlanggehen und unter dem Zeiger</translation>
    </message>
    <message>
        <source>Nothing can be written to this folder.</source>
        <translation>In diesen Ordner kann nichts geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>Panel::SetupDialog</name>
    <message>
        <source>A set-up keeps files, traces, scales, limits and markers.</source>
        <translation>Ein Satz behält Dateien, Messkurven, Skalen, Grenzen und Marker.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Recall</source>
        <translation>Abrufen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Set-ups</source>
        <translation>Einstellungssätze</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Grundzustand</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
</context>
<context>
    <name>Panel::Setups</name>
    <message>
        <source>Set-up %1</source>
        <translation>Satz %1</translation>
    </message>
    <message>
        <source>A set-up needs a name.</source>
        <translation>Ein Satz braucht einen Namen.</translation>
    </message>
    <message>
        <source>The set-up cannot be written to %1.</source>
        <translation>Der Satz kann nicht nach %1 geschrieben werden.</translation>
    </message>
    <message>
        <source>Saved the set-up %1</source>
        <translation>Satz %1 gespeichert</translation>
    </message>
    <message>
        <source>The set-up %1 cannot be removed.</source>
        <translation>Der Satz %1 kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>There is no set-up %1.</source>
        <translation>Es gibt keinen Satz %1.</translation>
    </message>
    <message>
        <source>The set-up %1 is of another version and not used.</source>
        <translation>Der Satz %1 gehört zu einer anderen Version und wird nicht verwendet.</translation>
    </message>
    <message>
        <source>The set-up %1 is damaged and not used.</source>
        <translation>Der Satz %1 ist beschädigt und wird nicht verwendet.</translation>
    </message>
    <message>
        <source>Recalled %1</source>
        <translation>%1 abgerufen</translation>
    </message>
    <message>
        <source>%1 needs %2, which cannot be read.</source>
        <translation>%1 braucht %2; das lässt sich nicht lesen.</translation>
    </message>
</context>
<context>
    <name>Panel::SmithView</name>
    <message>
        <source>Smith chart</source>
        <translation>Smith-Diagramm</translation>
    </message>
    <message>
        <source>VSWR %1</source>
        <translation>VSWR %1</translation>
    </message>
    <message>
        <source>normalised, Tr%1 to %2</source>
        <translation>normiert, Tr%1 auf %2</translation>
    </message>
    <message>
        <source>Z₀ %1</source>
        <translation>Z₀ %1</translation>
    </message>
</context>
<context>
    <name>Panel::Source</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
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
    <message>
        <source>Instrument</source>
        <translation>Messgerät</translation>
    </message>
</context>
<context>
    <name>Panel::SourceKeys</name>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Verbindet …</translation>
    </message>
    <message>
        <source>Not there</source>
        <translation>Nicht da</translation>
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
    <message>
        <source>Old data</source>
        <translation>Alte Daten</translation>
    </message>
</context>
<context>
    <name>Panel::TcpWire</name>
    <message>
        <source>nothing answers at this port</source>
        <translation>an diesem Port antwortet nichts</translation>
    </message>
    <message>
        <source>there is no host of this name</source>
        <translation>es gibt keinen Rechner dieses Namens</translation>
    </message>
    <message>
        <source>there is no way to this host</source>
        <translation>es führt kein Weg zu diesem Rechner</translation>
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
        <source>the option line comes after data</source>
        <translation>die Optionszeile kommt erst nach Daten</translation>
    </message>
    <message>
        <source>the reference resistance after R must be a number above zero</source>
        <translation>der Bezugswiderstand nach R muss eine Zahl über null sein</translation>
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
    <message>
        <source>R has no number, and 50 ohms are assumed</source>
        <translation>R hat keine Zahl, angenommen werden 50 Ohm</translation>
    </message>
    <message>
        <source>%1 stands twice</source>
        <translation>%1 steht zweimal</translation>
    </message>
    <message>
        <source>%1 is no value for %2</source>
        <translation>%1 ist kein Wert für %2</translation>
    </message>
    <message>
        <source>version %1 of the format is not known</source>
        <translation>die Version %1 des Formats ist nicht bekannt</translation>
    </message>
    <message>
        <source>version 1 has no keywords, and their meaning in version 2 is assumed</source>
        <translation>Version 1 hat keine Schlüsselwörter, angenommen wird ihre Bedeutung in Version 2</translation>
    </message>
    <message>
        <source>a reference must be a number above zero, and not %1</source>
        <translation>ein Bezugswiderstand muss eine Zahl über null sein und nicht %1</translation>
    </message>
    <message>
        <source>%1 is no mode such as S1, D2,3 or C2,3</source>
        <translation>%1 ist keine Mode wie S1, D2,3 oder C2,3</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>a network of %1 ports, and at most %2 ports are read</source>
        <translation>ein Netzwerk mit %1 Toren, gelesen werden höchstens %2 Tore</translation>
    </message>
    <message>
        <source>only two-ports have G and H parameters</source>
        <translation>nur Zweitore haben G- und H-Parameter</translation>
    </message>
    <message>
        <source>%1 is missing, and 21_12 is assumed</source>
        <translation>%1 fehlt, angenommen wird 21_12</translation>
    </message>
    <message>
        <source>%1 references for %2 ports</source>
        <translation>%1 Bezugswiderstände für %2 Tore</translation>
    </message>
    <message>
        <source>only S parameters can have a complex reference</source>
        <translation>nur S-Parameter können einen komplexen Bezug haben</translation>
    </message>
    <message>
        <source>mixed modes are read of S parameters, and of Z and Y in ohms</source>
        <translation>gemischte Moden werden von S-Parametern gelesen und von Z und Y in Ohm</translation>
    </message>
    <message>
        <source>the mixed modes name a port that does not exist</source>
        <translation>die gemischten Moden nennen ein Tor, das es nicht gibt</translation>
    </message>
    <message>
        <source>the mixed modes name port %1 twice</source>
        <translation>die gemischten Moden nennen Tor %1 zweimal</translation>
    </message>
    <message>
        <source>the ports %1 and %2 of a mixed mode have different references</source>
        <translation>die Tore %1 und %2 einer gemischten Mode haben verschiedene Bezugswiderstände</translation>
    </message>
    <message>
        <source>the mixed modes do not name port %1 once as S or as D and C of one pair</source>
        <translation>die gemischten Moden nennen Tor %1 nicht einmal als S oder als D und C eines Paares</translation>
    </message>
    <message>
        <source>%1 does not stand where it belongs</source>
        <translation>%1 steht nicht, wo es hingehört</translation>
    </message>
    <message>
        <source>the line is longer than %1 MB</source>
        <translation>die Zeile ist länger als %1 MB</translation>
    </message>
    <message>
        <source>%1 is no keyword of a Touchstone file</source>
        <translation>%1 ist kein Schlüsselwort einer Touchstone-Datei</translation>
    </message>
    <message>
        <source>only two-ports have noise data</source>
        <translation>nur Zweitore haben Rauschdaten</translation>
    </message>
    <message>
        <source>the first point has %1 numbers, and no number of ports has so many</source>
        <translation>der erste Punkt hat %1 Zahlen, und so viele hat keine Zahl von Toren</translation>
    </message>
    <message>
        <source>the point has more than %1 numbers</source>
        <translation>der Punkt hat mehr als %1 Zahlen</translation>
    </message>
    <message>
        <source>%1 of the %2 announced frequencies are there</source>
        <translation>von %2 angekündigten Frequenzen sind %1 da</translation>
    </message>
    <message>
        <source>there are more than the %1 announced frequencies</source>
        <translation>es sind mehr als die %1 angekündigten Frequenzen</translation>
    </message>
    <message>
        <source>only the first %1 MB of its comments are kept</source>
        <translation>nur die ersten %1 MB der Kommentare bleiben erhalten</translation>
    </message>
    <message>
        <source>the file has more than %1 numbers</source>
        <translation>die Datei hat mehr als %1 Zahlen</translation>
    </message>
    <message>
        <source>the parameters of this point have no S parameters</source>
        <translation>zu den Parametern dieses Punktes gibt es keine S-Parameter</translation>
    </message>
    <message>
        <source>the name of a network&apos;s file ends in .s1p, .s2p and so on, .ts or .csv</source>
        <translation>der Name einer Netzwerk-Datei endet auf .s1p, .s2p und so weiter, .ts oder .csv</translation>
    </message>
    <message>
        <source>the name of a file with %1 ports ends in .s%1p</source>
        <translation>der Name einer Datei mit %1 Toren endet auf .s%1p</translation>
    </message>
    <message>
        <source>there is such a file already</source>
        <translation>eine solche Datei gibt es schon</translation>
    </message>
    <message>
        <source>the file that is there is newer than what was to be saved</source>
        <translation>die vorhandene Datei ist neuer als das, was zu speichern war</translation>
    </message>
    <message>
        <source>the file cannot be written (%1)</source>
        <translation>die Datei lässt sich nicht schreiben (%1)</translation>
    </message>
    <message>
        <source>the name of a Touchstone file ends in .s1p, .s2p and so on, or in .ts</source>
        <translation>der Name einer Touchstone-Datei endet auf .s1p, .s2p und so weiter oder auf .ts</translation>
    </message>
    <message>
        <source>Touchstone files have no complex references</source>
        <translation>Touchstone-Dateien haben keinen komplexen Bezug</translation>
    </message>
    <message>
        <source>the noise data is not complete</source>
        <translation>die Rauschdaten sind nicht vollständig</translation>
    </message>
    <message>
        <source>version 1 has no room for this noise data</source>
        <translation>Version 1 hat für diese Rauschdaten keinen Platz</translation>
    </message>
    <message>
        <source>the network holds no data</source>
        <translation>das Netzwerk enthält keine Daten</translation>
    </message>
    <message>
        <source>%1 has no finite value at %2 Hz</source>
        <translation>%1 hat bei %2 Hz keinen endlichen Wert</translation>
    </message>
    <message>
        <source>its data refer to the port impedances in its comments, but are shown as if to %1 Ω: impedances read from them are not true</source>
        <translation>die Daten beziehen sich auf die Torimpedanzen in den Kommentaren, werden aber wie zu %1 Ω gezeigt: abgelesene Impedanzen stimmen nicht</translation>
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
        <source>Add a trace</source>
        <translation>Kurve hinzufügen</translation>
    </message>
</context>
<context>
    <name>Panel::TraceController</name>
    <message>
        <source>This trace</source>
        <translation>Diese Kurve</translation>
    </message>
    <message>
        <source>All traces</source>
        <translation>Alle Kurven</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Name of Tr%1</source>
        <translation>Name von Tr%1</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
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
    <message>
        <source>LinM</source>
        <translation>LinM</translation>
    </message>
    <message>
        <source>Real</source>
        <translation>Real</translation>
    </message>
    <message>
        <source>Imag</source>
        <translation>Imag</translation>
    </message>
    <message>
        <source>Unwrapped</source>
        <translation>Phase fortl.</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Laufzeit</translation>
    </message>
    <message>
        <source>Polar</source>
        <translation>Polar</translation>
    </message>
</context>
<context>
    <name>Panel::TraceMath</name>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Data / memory</source>
        <translation>Daten / Speicher</translation>
    </message>
    <message>
        <source>Data − memory</source>
        <translation>Daten − Speicher</translation>
    </message>
    <message>
        <source>Data + memory</source>
        <translation>Daten + Speicher</translation>
    </message>
    <message>
        <source>Data and memory</source>
        <translation>Daten und Speicher</translation>
    </message>
</context>
<context>
    <name>Panel::TraceWalker</name>
    <message>
        <source>Marker %1 is set at %2.</source>
        <translation>Marker %1 steht bei %2.</translation>
    </message>
    <message>
        <source>changed by %1</source>
        <translation>Änderung um %1</translation>
    </message>
</context>
<context>
    <name>Panel::Trouble</name>
    <message>
        <source>%1 cannot be reached: %2.</source>
        <translation>%1 ist nicht erreichbar: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: there is no permission to use it.</source>
        <translation>%1 kann nicht geöffnet werden: Die Berechtigung dazu fehlt.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: there is no such port.</source>
        <translation>%1 kann nicht geöffnet werden: Diese Schnittstelle gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: another program uses it.</source>
        <translation>%1 kann nicht geöffnet werden: Ein anderes Programm benutzt es.</translation>
    </message>
    <message>
        <source>%1 does not answer.</source>
        <translation>%1 antwortet nicht.</translation>
    </message>
    <message>
        <source>%1 sends too slowly.</source>
        <translation>%1 sendet zu langsam.</translation>
    </message>
    <message>
        <source>%1 has ended the connection.</source>
        <translation>%1 hat die Verbindung beendet.</translation>
    </message>
    <message>
        <source>%1 sends %2 bytes where %3 are due.</source>
        <translation>%1 sendet %2 Bytes, wo %3 fällig sind.</translation>
    </message>
    <message>
        <source>%1 sends %2 points where %3 are due.</source>
        <translation>%1 sendet %2 Punkte, wo %3 fällig sind.</translation>
    </message>
    <message>
        <source>%1 sends values that are no numbers.</source>
        <translation>%1 sendet Werte, die keine Zahlen sind.</translation>
    </message>
    <message>
        <source>%1 sends what cannot be understood: &quot;%2&quot;.</source>
        <translation>%1 sendet Unverständliches: „%2“.</translation>
    </message>
    <message>
        <source>%1 refuses &quot;%2&quot;: %3.</source>
        <translation>%1 lehnt „%2“ ab: %3.</translation>
    </message>
    <message>
        <source>%1 is no instrument whose commands are known: &quot;%2&quot;.</source>
        <translation>%1 ist kein Messgerät, dessen Befehle bekannt sind: „%2“.</translation>
    </message>
    <message>
        <source>%1 is another instrument than before: %2 in place of %3.</source>
        <translation>%1 ist ein anderes Messgerät als zuvor: %2 statt %3.</translation>
    </message>
    <message>
        <source>%1 answers, but has no device connected.</source>
        <translation>%1 antwortet, hat aber kein Gerät angeschlossen.</translation>
    </message>
    <message>
        <source>%1 speaks another protocol than the text shell.</source>
        <translation>%1 spricht ein anderes Protokoll als die Textkonsole.</translation>
    </message>
    <message>
        <source>This panel was built without serial ports.</source>
        <translation>Dieses Panel wurde ohne serielle Schnittstellen gebaut.</translation>
    </message>
    <message>
        <source>%1 does not finish its sweep.</source>
        <translation>%1 beendet seinen Sweep nicht.</translation>
    </message>
</context>
<context>
    <name>Panel::Verdict</name>
    <message>
        <source>PASS</source>
        <translation>PASS</translation>
    </message>
    <message>
        <source>FAIL</source>
        <translation>FAIL</translation>
    </message>
    <message>
        <source>Limits: pass</source>
        <translation>Grenzen: bestanden</translation>
    </message>
    <message>
        <source>Limits: fail, %1</source>
        <translation>Grenzen: nicht bestanden, %1</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 ab %2</translation>
    </message>
</context>
</TS>
