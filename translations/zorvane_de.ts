<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Plate</name>
    <message>
        <source>%1 - Details</source>
        <translation>%1 – Details</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Kommentare</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>General Properties</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>%1 Well</source>
        <translation>Teilkavität %1</translation>
    </message>
    <message>
        <source>Apply Changes</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Tag %1</source>
        <translation>Tag %1</translation>
    </message>
    <message>
        <source>No Tags Defined</source>
        <translation>Keine Tags</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Row Label</source>
        <translation>Zeilenname</translation>
    </message>
    <message>
        <source>Column Label</source>
        <translation>Spaltenname</translation>
    </message>
    <message>
        <source>X Overall</source>
        <translation>X gesamt</translation>
    </message>
    <message>
        <source>Y Overall</source>
        <translation>Y gesamt</translation>
    </message>
    <message>
        <source>X Pitch</source>
        <translation>X-Raster</translation>
    </message>
    <message>
        <source>Y Pitch</source>
        <translation>Y-Raster</translation>
    </message>
    <message>
        <source>Plate Height</source>
        <translation>Plattenhöhe</translation>
    </message>
    <message>
        <source>Shelf Depth</source>
        <translation>Absatztiefe</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>X offset</source>
        <translation>X-Versatz</translation>
    </message>
    <message>
        <source>Y Offset</source>
        <translation>Y-Versatz</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Tiefe</translation>
    </message>
    <message>
        <source>Shelf Height</source>
        <translation>Absatzhöhe</translation>
    </message>
    <message>
        <source>Well Size X</source>
        <translation>Größe X</translation>
    </message>
    <message>
        <source>Well Size Y</source>
        <translation>Größe Y</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Rim Width</source>
        <translation>Randbreite</translation>
    </message>
    <message>
        <source>Rim Height</source>
        <translation>Randhöhe</translation>
    </message>
    <message>
        <source>Rim Center X</source>
        <translation>Randmitte X</translation>
    </message>
    <message>
        <source>Rim Center Y</source>
        <translation>Randmitte Y</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Taper</source>
        <translation>Konizität</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>Rund</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Absatz</translation>
    </message>
    <message>
        <source>Pillar</source>
        <translation>Säule</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Eckig</translation>
    </message>
    <message>
        <source>Insert New SubWell</source>
        <translation>Neue Teilkavität einfügen</translation>
    </message>
    <message>
        <source>Remove SubWell</source>
        <translation>Teilkavität entfernen</translation>
    </message>
    <message>
        <source>Rename SubWell</source>
        <translation>Teilkavität umbenennen</translation>
    </message>
    <message>
        <source>Move SubWell Up</source>
        <translation>Teilkavität nach oben</translation>
    </message>
    <message>
        <source>Move SubWell Down</source>
        <translation>Teilkavität nach unten</translation>
    </message>
    <message>
        <source>&amp;Rotate Plate 90</source>
        <translation>Platte um 90° d&amp;rehen</translation>
    </message>
    <message>
        <source>Shift All Wells in &amp;X</source>
        <translation>Alle Kavitäten in &amp;X verschieben</translation>
    </message>
    <message>
        <source>Shift All Wells in &amp;Y</source>
        <translation>Alle Kavitäten in &amp;Y verschieben</translation>
    </message>
    <message>
        <source>Raise Bottoms of All Wells</source>
        <translation>Böden aller Kavitäten anheben</translation>
    </message>
    <message>
        <source>SubWell Name</source>
        <translation>Name der Teilkavität</translation>
    </message>
    <message>
        <source>Enter  a unique name for the subwell</source>
        <translation>Eindeutiger Name der neuen Teilkavität:</translation>
    </message>
    <message>
        <source>New SubWell Name</source>
        <translation>Neuer Name der Teilkavität:</translation>
    </message>
    <message>
        <source>X Shift</source>
        <translation>Verschiebung in X</translation>
    </message>
    <message>
        <source>Y Shift</source>
        <translation>Verschiebung in Y</translation>
    </message>
    <message>
        <source>Z Shift</source>
        <translation>Verschiebung in Z</translation>
    </message>
    <message>
        <source>Enter distance in mm to shift all subwell centers
+ve value shifts right</source>
        <translation>Strecke in mm, um die alle Teilkavitäten verschoben werden;
positive Werte verschieben nach rechts</translation>
    </message>
    <message>
        <source>Enter distance in mm to shift all subwell centers
+ve value shifts down</source>
        <translation>Strecke in mm, um die alle Teilkavitäten verschoben werden;
positive Werte verschieben nach unten</translation>
    </message>
    <message>
        <source>Enter distance in mm to shift bottoms of all subwells
+ve value shifts up</source>
        <translation>Strecke in mm, um die die Böden aller Teilkavitäten verschoben werden;
positive Werte verschieben nach oben</translation>
    </message>
    <message>
        <source>Can&apos;t find Plate &lt;%1&gt; in %2</source>
        <translation>Die Platte „%1“ wurde in %2 nicht gefunden</translation>
    </message>
    <message>
        <source>Error trying to read &quot;%1&quot; from &lt;%2&gt;</source>
        <translation>Beim Lesen der Platte „%1“ aus „%2“ ist ein Fehler aufgetreten</translation>
    </message>
    <message>
        <source>Attempt to select wells outside &lt;%1&gt; plate</source>
        <translation>Der Bereich reicht über die Platte „%1“ hinaus</translation>
    </message>
    <message>
        <source>Error in %1</source>
        <translation>Fehler in %1</translation>
    </message>
    <message>
        <source>Error number %1
%2</source>
        <translation>Fehler Nummer %1
%2</translation>
    </message>
    <message>
        <source>Could not open registry key &lt;%1&gt; for writing.
API Error=%2</source>
        <translation>Der Registrierungsschlüssel „%1“ konnte nicht zum Schreiben geöffnet werden.
API-Fehler: %2</translation>
    </message>
    <message>
        <source>Could not write data to value &lt;%1&gt; in registry key &lt;%2&gt; for writing.
API Error=%3</source>
        <translation>Der Wert „%1“ konnte nicht in den Registrierungsschlüssel „%2“ geschrieben werden.
API-Fehler: %3</translation>
    </message>
    <message>
        <source>File not saved</source>
        <translation>Datei nicht gespeichert</translation>
    </message>
    <message>
        <source>Problem saving 
&lt;%1&gt;</source>
        <translation>Beim Speichern ist ein Fehler aufgetreten:
„%1“</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Ungültiger Aufruf oder ungültiges Argument</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Index außerhalb des gültigen Bereichs</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division durch Null</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Falscher Datentyp</translation>
    </message>
    <message>
        <source>Bad file name or number</source>
        <translation>Falscher Dateiname oder falsche Dateinummer</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Ein-/Ausgabefehler des Geräts</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>Lesen über das Dateiende hinaus</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Fehler beim Zugriff auf Pfad oder Datei</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Pfad nicht gefunden</translation>
    </message>
    <message>
        <source>Object variable not set</source>
        <translation>Objektvariable nicht gesetzt</translation>
    </message>
    <message>
        <source>This key is already associated with an element of this collection</source>
        <translation>Dieser Schlüssel ist bereits einem Element der Liste zugeordnet</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>The text defines no plate</source>
        <translation>Der Text definiert keine Platte</translation>
    </message>
    <message>
        <source>The plate has no well %1</source>
        <translation>Die Platte hat keine Kavität %1</translation>
    </message>
</context>
<context>
    <name>zorvane::PanelMirror</name>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Sub-well commands</source>
        <translation>Befehle für Teilkavitäten</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Kommentare</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Form</translation>
    </message>
</context>
<context>
    <name>zorvane::PlateTaskMenu</name>
    <message>
        <source>Choose Library...</source>
        <translation>Bibliothek wählen …</translation>
    </message>
    <message>
        <source>Choose Plate...</source>
        <translation>Platte wählen …</translation>
    </message>
    <message>
        <source>Choose Library</source>
        <translation>Bibliothek wählen</translation>
    </message>
    <message>
        <source>Plate libraries (*.dat *.Dat);;All files (*)</source>
        <translation>Plattenbibliotheken (*.dat *.Dat);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Choose Plate</source>
        <translation>Platte wählen</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; cannot be read: %2</source>
        <translation>Die Bibliothek „%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Plate:</source>
        <translation>Platte:</translation>
    </message>
</context>
<context>
    <name>zorvane::PlateWidget</name>
    <message>
        <source>Volume %1 µl</source>
        <translation>Volumen %1 µl</translation>
    </message>
    <message>
        <source>Error %1</source>
        <translation>Fehler %1</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>No plate or no library is named.</source>
        <translation>Es ist keine Platte oder keine Bibliothek angegeben.</translation>
    </message>
</context>
<context>
    <name>zorvane::PlateWidgetPlugin</name>
    <message>
        <source>Crystallization micro-plate</source>
        <translation>Mikrotiterplatte für die Kristallisation</translation>
    </message>
    <message>
        <source>Shows a plate from a plate library, in which an operator can pick wells.</source>
        <translation>Zeigt eine Platte aus einer Plattenbibliothek, in der Kavitäten ausgewählt werden können.</translation>
    </message>
</context>
</TS>
