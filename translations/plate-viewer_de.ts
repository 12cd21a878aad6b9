<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>Shows the plates of a library, and the data of their wells.</source>
        <translation>Zeigt die Platten einer Bibliothek und die Daten ihrer Kavitäten.</translation>
    </message>
    <message>
        <source>Write the picture of a plate to a file and exit.</source>
        <translation>Schreibt das Bild einer Platte in eine Datei und beendet sich.</translation>
    </message>
    <message>
        <source>The image file that --picture writes.</source>
        <translation>Die Bilddatei, die --picture schreibt.</translation>
    </message>
    <message>
        <source>plate</source>
        <translation>Platte</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>[library]</source>
        <translation>[Bibliothek]</translation>
    </message>
    <message>
        <source>library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Plate library to open; else that of the last run, or the one that the registry leads to.</source>
        <translation>Zu öffnende Plattenbibliothek; sonst die des letzten Laufs oder die, auf die die Registrierung verweist.</translation>
    </message>
</context>
<context>
    <name>DataQuestion</name>
    <message>
        <source>Plate Viewer</source>
        <translation>Plate Viewer</translation>
    </message>
    <message>
        <source>No file holds the data of the wells of: %1</source>
        <translation>In keiner Datei stehen die Daten der Kavitäten von: %1</translation>
    </message>
    <message>
        <source>Export Well Data writes that of the plate that is shown to a file.</source>
        <translation>„Kavitätendaten exportieren“ schreibt die der angezeigten Platte in eine Datei.</translation>
    </message>
</context>
<context>
    <name>DockPanels</name>
    <message>
        <source>Plates</source>
        <translation>Platten</translation>
    </message>
    <message>
        <source>Well</source>
        <translation>Kavität</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
</context>
<context>
    <name>EditQuestions</name>
    <message>
        <source>Plate Viewer</source>
        <translation>Plate Viewer</translation>
    </message>
    <message>
        <source>The edits of %1 are not saved in its library.</source>
        <translation>Die Änderungen an %1 sind nicht in der Bibliothek gespeichert.</translation>
    </message>
    <message>
        <source>Reloading keeps your edits and compares them with what the library holds now, so that you can save them into that.</source>
        <translation>Neu laden behält Ihre Änderungen und vergleicht sie mit dem jetzigen Inhalt der Bibliothek, sodass Sie sie dort speichern können.</translation>
    </message>
    <message>
        <source>&amp;Reload Library</source>
        <translation>Bibliothek &amp;neu laden</translation>
    </message>
    <message>
        <source>Save as &amp;New Plate…</source>
        <translation>Als neue &amp;Platte speichern …</translation>
    </message>
    <message>
        <source>Save as New Plate</source>
        <translation>Als neue Platte speichern</translation>
    </message>
    <message>
        <source>Name of the new plate, one word:</source>
        <translation>Name der neuen Platte (ein Wort):</translation>
    </message>
</context>
<context>
    <name>Library</name>
    <message>
        <source>&quot;%1&quot; cannot be edited here: the control would lose the line &quot;%2&quot;, at or after a keyword that it does not know.</source>
        <translation>„%1“ kann hier nicht bearbeitet werden: Die Zeile „%2“, bei oder nach einem unbekannten Schlüsselwort, ginge verloren.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not saved: the line &quot;%2&quot; could not be read back. Undo brings the plate back as it was.</source>
        <translation>„%1“ wurde nicht gespeichert: Die Zeile „%2“ könnte nicht wieder gelesen werden. „Rückgängig“ stellt die Platte wieder her.</translation>
    </message>
    <message>
        <source>the definition of &quot;%1&quot; could not be read back</source>
        <translation>die Definition von „%1“ könnte nicht wieder gelesen werden</translation>
    </message>
    <message>
        <source>the library has a plate &quot;%1&quot; already</source>
        <translation>die Bibliothek hat bereits eine Platte „%1“</translation>
    </message>
    <message>
        <source>the name of a plate is one word that does not begin with &quot;;&quot;</source>
        <translation>der Name einer Platte ist ein Wort, das nicht mit „;“ beginnt</translation>
    </message>
    <message>
        <source>the library has no plate &quot;%1&quot; that can be found, because it begins with a byte order mark</source>
        <translation>die Platte „%1“ kann in der Bibliothek nicht gefunden werden, weil diese mit einer Bytereihenfolge-Markierung beginnt</translation>
    </message>
    <message>
        <source>the library has no plate &quot;%1&quot; that can be found, because an INCLUDE line ends every search of it</source>
        <translation>die Platte „%1“ kann in der Bibliothek nicht gefunden werden, weil eine INCLUDE-Zeile jede Suche beendet</translation>
    </message>
    <message>
        <source>the library has no plate &quot;%1&quot; that can be found, because a line that cannot be taken as written ends every search of it</source>
        <translation>die Platte „%1“ kann in der Bibliothek nicht gefunden werden, weil eine Zeile, die so nicht gelesen werden kann, jede Suche beendet</translation>
    </message>
    <message>
        <source>the library has no plate &quot;%1&quot; that can be found, because a line outside any plate ends every search of it</source>
        <translation>die Platte „%1“ kann in der Bibliothek nicht gefunden werden, weil eine Zeile außerhalb aller Platten jede Suche beendet</translation>
    </message>
    <message>
        <source>the library has no plate &quot;%1&quot;</source>
        <translation>die Bibliothek hat keine Platte „%1“</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 was not saved: %2. Nothing was overwritten.</source>
        <translation>%1 wurde nicht gespeichert: %2. Nichts wurde überschrieben.</translation>
    </message>
    <message>
        <source>%1 was not saved: %2 failed: %3. The file is as it was.</source>
        <translation>%1 wurde nicht gespeichert: %2 fehlgeschlagen (%3). Die Datei ist unverändert.</translation>
    </message>
    <message>
        <source>%1 was not saved: %2 failed: %3. The new content is in the file.</source>
        <translation>%1 wurde nicht gespeichert: %2 fehlgeschlagen (%3). Der neue Inhalt steht in der Datei.</translation>
    </message>
    <message>
        <source>%1 was not saved: %2 failed: %3. The new content is in the file, the former in %4.</source>
        <translation>%1 wurde nicht gespeichert: %2 fehlgeschlagen (%3). Der neue Inhalt steht in der Datei, der frühere in %4.</translation>
    </message>
    <message>
        <source>%1 was not saved: %2 failed: %3.</source>
        <translation>%1 wurde nicht gespeichert: %2 fehlgeschlagen (%3).</translation>
    </message>
    <message>
        <source>looking for it</source>
        <translation>Suche nach der Datei</translation>
    </message>
    <message>
        <source>looking for its folder</source>
        <translation>Suche nach dem Ordner</translation>
    </message>
    <message>
        <source>writing to it</source>
        <translation>Schreiben in die Datei</translation>
    </message>
    <message>
        <source>writing a temporary file next to it</source>
        <translation>Schreiben einer temporären Datei daneben</translation>
    </message>
    <message>
        <source>putting the new content in its place</source>
        <translation>Einsetzen des neuen Inhalts</translation>
    </message>
    <message>
        <source>flushing the folder</source>
        <translation>Sichern des Ordners auf den Datenträger</translation>
    </message>
    <message>
        <source>writing a backup of it</source>
        <translation>Schreiben einer Sicherungskopie</translation>
    </message>
    <message>
        <source>waiting for other programs</source>
        <translation>Warten auf andere Programme</translation>
    </message>
    <message>
        <source>reading it again</source>
        <translation>Erneutes Lesen</translation>
    </message>
    <message>
        <source>keeping the backup</source>
        <translation>Behalten der Sicherungskopie</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>sie ist nicht vorhanden</translation>
    </message>
    <message>
        <source>there is no permission</source>
        <translation>die Berechtigung fehlt</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>der Datenträger ist schreibgeschützt</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>the device failed</source>
        <translation>das Gerät meldet einen Fehler</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation>sie ist schreibgeschützt</translation>
    </message>
    <message>
        <source>another program does not finish saving in this folder</source>
        <translation>ein anderes Programm wird mit dem Speichern in diesem Ordner nicht fertig</translation>
    </message>
    <message>
        <source>another program has changed it since it was read</source>
        <translation>ein anderes Programm hat sie geändert, seit sie gelesen wurde</translation>
    </message>
    <message>
        <source>line %1, column %2 (%3): %4</source>
        <translation>Zeile %1, Spalte %2 (%3): %4</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>the quote is never closed</source>
        <translation>das Anführungszeichen wird nicht geschlossen</translation>
    </message>
    <message>
        <source>a comma is missing after the closing quote</source>
        <translation>nach dem schließenden Anführungszeichen fehlt ein Komma</translation>
    </message>
    <message>
        <source>a field too many</source>
        <translation>ein Feld zu viel</translation>
    </message>
    <message>
        <source>the line ends before this column</source>
        <translation>die Zeile endet vor dieser Spalte</translation>
    </message>
    <message>
        <source>no column is named &quot;%1&quot;</source>
        <translation>keine Spalte heißt „%1“</translation>
    </message>
    <message>
        <source>there is no column &quot;%1&quot;; the columns are %2</source>
        <translation>es gibt keine Spalte „%1“; die Spalten sind %2</translation>
    </message>
    <message>
        <source>the column is there twice</source>
        <translation>die Spalte kommt zweimal vor</translation>
    </message>
    <message>
        <source>the plate has no well &quot;%1&quot;</source>
        <translation>die Platte hat keine Kavität „%1“</translation>
    </message>
    <message>
        <source>the plate has no sub-well &quot;%1&quot;</source>
        <translation>die Platte hat keine Teilkavität „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no</source>
        <translation>„%1“ ist weder yes noch no</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>%1 is too large</source>
        <translation>%1 ist zu groß</translation>
    </message>
    <message>
        <source>%1 is not a whole number from -32768 to 32767</source>
        <translation>%1 ist keine ganze Zahl von -32768 bis 32767</translation>
    </message>
    <message>
        <source>%1 is on line %2 already</source>
        <translation>%1 steht schon in Zeile %2</translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::DifferencePanel</name>
    <message>
        <source>1 line</source>
        <translation>1 Zeile</translation>
    </message>
    <message>
        <source>This is what the library holds.</source>
        <translation>Das steht in der Bibliothek.</translation>
    </message>
    <message>
        <source>Saving takes out %1 and puts in %2.</source>
        <extracomment>%1 and %2 are numbers of lines, such as &quot;1 line&quot; and &quot;3 lines&quot;.</extracomment>
        <translation>Beim Speichern entfallen %1 und kommen %2 hinzu.</translation>
    </message>
    <message>
        <source>Nothing was edited. Saving an edit also rewrites the coloured lines.</source>
        <translation>Nichts wurde geändert. Beim Speichern einer Änderung werden auch die farbigen Zeilen neu geschrieben.</translation>
    </message>
    <message>
        <source>Save to Library</source>
        <translation>In Bibliothek speichern</translation>
    </message>
    <message>
        <source>Difference to the library</source>
        <translation>Unterschied zur Bibliothek</translation>
    </message>
    <message>
        <source>Save as New Plate…</source>
        <translation>Als neue Platte speichern …</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Edit Plate Type</source>
        <translation>Plattentyp &amp;bearbeiten</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Save to Library</source>
        <translation>In Bibliothek &amp;speichern</translation>
    </message>
    <message>
        <source>Save as &amp;New Plate…</source>
        <translation>Als &amp;neue Platte speichern …</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::EditMode</name>
    <message>
        <source>the plate has no such sub-well</source>
        <translation>die Platte hat diese Teilkavität nicht</translation>
    </message>
    <message>
        <source>the sub-well has no lines of its own in the definition</source>
        <translation>die Teilkavität hat keine eigenen Zeilen in der Definition</translation>
    </message>
    <message>
        <source>the plate has a sub-well of that name already</source>
        <translation>die Platte hat bereits eine Teilkavität dieses Namens</translation>
    </message>
    <message>
        <source>a value is too large</source>
        <translation>ein Wert ist zu groß</translation>
    </message>
    <message>
        <source>This could not be done: %1. Undo brings the plate back as it was.</source>
        <translation>Das war nicht möglich: %1. „Rückgängig“ stellt die Platte wieder her.</translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::EventLog</name>
    <message>
        <source>Events of the plate appear here as they are raised.</source>
        <translation>Hier erscheinen die Ereignisse der Platte, sobald sie eintreten.</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Empty the list of events</source>
        <translation>Liste der Ereignisse leeren</translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::FillDialog</name>
    <message>
        <source>Fill a Block of Wells</source>
        <translation>Block von Kavitäten füllen</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>&amp;Fill</source>
        <translation>&amp;Füllen</translation>
    </message>
    <message>
        <source>&amp;Column</source>
        <translation>&amp;Spalte</translation>
    </message>
    <message>
        <source>&amp;Row</source>
        <translation>&amp;Zeile</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Breite</translation>
    </message>
    <message>
        <source>Number of columns</source>
        <translation>Anzahl der Spalten</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Höhe</translation>
    </message>
    <message>
        <source>Number of rows</source>
        <translation>Anzahl der Zeilen</translation>
    </message>
    <message>
        <source>S&amp;ub-well</source>
        <translation>Teil&amp;kavität</translation>
    </message>
    <message>
        <source>&amp;Order</source>
        <translation>&amp;Reihenfolge</translation>
    </message>
    <message>
        <source>From top left, row by row</source>
        <translation>Von oben links, zeilenweise</translation>
    </message>
    <message>
        <source>From top left, column by column</source>
        <translation>Von oben links, spaltenweise</translation>
    </message>
    <message>
        <source>From top right, row by row</source>
        <translation>Von oben rechts, zeilenweise</translation>
    </message>
    <message>
        <source>From top right, column by column</source>
        <translation>Von oben rechts, spaltenweise</translation>
    </message>
    <message>
        <source>From bottom left, row by row</source>
        <translation>Von unten links, zeilenweise</translation>
    </message>
    <message>
        <source>From bottom left, column by column</source>
        <translation>Von unten links, spaltenweise</translation>
    </message>
    <message>
        <source>From bottom right, row by row</source>
        <translation>Von unten rechts, zeilenweise</translation>
    </message>
    <message>
        <source>From bottom right, column by column</source>
        <translation>Von unten rechts, spaltenweise</translation>
    </message>
    <message>
        <source>Co&amp;lour</source>
        <translation>F&amp;arbe</translation>
    </message>
    <message>
        <source>Colour of the wells</source>
        <translation>Farbe der Kavitäten</translation>
    </message>
    <message>
        <source>&amp;Annotation</source>
        <translation>A&amp;ufschrift</translation>
    </message>
    <message>
        <source>Annotation</source>
        <translation>Aufschrift</translation>
    </message>
    <message>
        <source>The first # becomes the number of the well in the order</source>
        <translation>Das erste # wird zur Nummer der Kavität in der Reihenfolge</translation>
    </message>
    <message>
        <source>F&amp;irst number</source>
        <translation>&amp;Erste Nummer</translation>
    </message>
    <message>
        <source>Wells before it stay as they are</source>
        <translation>Kavitäten davor bleiben unverändert</translation>
    </message>
    <message>
        <source>Las&amp;t number</source>
        <translation>&amp;Letzte Nummer</translation>
    </message>
    <message>
        <source>Wells after it stay as they are</source>
        <translation>Kavitäten danach bleiben unverändert</translation>
    </message>
    <message>
        <source>to the end</source>
        <translation>bis zum Ende</translation>
    </message>
    <message>
        <source>First column, counted from 1</source>
        <translation>Erste Spalte, ab 1 gezählt</translation>
    </message>
    <message>
        <source>First row, counted from 1</source>
        <translation>Erste Zeile, ab 1 gezählt</translation>
    </message>
    <message>
        <source>Error %1: %2.
The plate has columns 1 to %3 and rows 1 to %4. Nothing was filled.</source>
        <translation>Fehler %1: %2.
Die Platte hat die Spalten 1 bis %3 und die Zeilen 1 bis %4. Nichts wurde gefüllt.</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::KeysDialog</name>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>Überall</translation>
    </message>
    <message>
        <source>On the plate</source>
        <translation>Auf der Platte</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>To the next well</source>
        <translation>Zur nächsten Kavität</translation>
    </message>
    <message>
        <source>To the ends of the row</source>
        <translation>Zu den Enden der Zeile</translation>
    </message>
    <message>
        <source>To the ends of the column</source>
        <translation>Zu den Enden der Spalte</translation>
    </message>
    <message>
        <source>To the first and the last well</source>
        <translation>Zur ersten und zur letzten Kavität</translation>
    </message>
    <message>
        <source>Select the well, or not</source>
        <translation>Kavität auswählen oder nicht</translation>
    </message>
    <message>
        <source>Shift and arrow keys</source>
        <translation>Umschalt und Pfeiltasten</translation>
    </message>
    <message>
        <source>Select from well to well</source>
        <translation>Von Kavität zu Kavität auswählen</translation>
    </message>
    <message>
        <source>Select all wells</source>
        <translation>Alle Kavitäten auswählen</translation>
    </message>
    <message>
        <source>Clear the selection</source>
        <translation>Auswahl aufheben</translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::LibraryBrowser</name>
    <message>
        <source>Open Plate Library</source>
        <translation>Plattenbibliothek öffnen</translation>
    </message>
    <message>
        <source>Plate libraries (*.dat *.Dat *.DAT);;All files (*)</source>
        <translation>Plattenbibliotheken (*.dat *.Dat *.DAT);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2.</source>
        <translation>%1 kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>There is no plate in %1.</source>
        <translation>In %1 steht keine Platte.</translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::LibraryPanel</name>
    <message>
        <source>Filter by name or tag</source>
        <translation>Nach Name oder Tag filtern</translation>
    </message>
    <message>
        <source>Filter plates by name or tag</source>
        <translation>Platten nach Name oder Tag filtern</translation>
    </message>
    <message>
        <source>Plates of the library</source>
        <translation>Platten der Bibliothek</translation>
    </message>
    <message>
        <source>Line %1: cannot be opened, as a plate before it has the same name</source>
        <translation>Zeile %1: kann nicht geöffnet werden, da eine Platte davor denselben Namen hat</translation>
    </message>
    <message>
        <source>Reading stops at line %1, which is not part of a plate and hides the plates after it.</source>
        <translation>Das Lesen endet in Zeile %1, die zu keiner Platte gehört und die Platten danach verdeckt.</translation>
    </message>
    <message>
        <source>Reading stops at line %1, which cannot be read and hides the plates after it.</source>
        <translation>Das Lesen endet in Zeile %1, die nicht gelesen werden kann und die Platten danach verdeckt.</translation>
    </message>
    <message>
        <source>Reading stops at line %1: INCLUDE is not followed, and hides the plates after it.</source>
        <translation>Das Lesen endet in Zeile %1: INCLUDE wird nicht ausgeführt und verdeckt die Platten danach.</translation>
    </message>
    <message>
        <source>%1 × %2 · 1 sub-well</source>
        <translation>%1 × %2 · 1 Teilkavität</translation>
    </message>
    <message numerus="yes">
        <source>%1 × %2 · %n sub-wells</source>
        <translation>
            <numerusform>%1 × %2 · %n Teilkavität</numerusform>
            <numerusform>%1 × %2 · %n Teilkavitäten</numerusform>
        </translation>
    </message>
    <message>
        <source>%1
Line %2</source>
        <translation>%1
Zeile %2</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n plates</source>
        <translation>
            <numerusform>%1 von %n Platte</numerusform>
            <numerusform>%1 von %n Platten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::MainMenu</name>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open Library…</source>
        <translation>Bibliothek ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>&amp;Import Well Data…</source>
        <translation>Kavitätendaten &amp;importieren …</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>&amp;Export Well Data…</source>
        <translation>Kavitätendaten &amp;exportieren …</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Wells</source>
        <translation>&amp;Kavitäten</translation>
    </message>
    <message>
        <source>&amp;Fill Block…</source>
        <translation>Block &amp;füllen …</translation>
    </message>
    <message>
        <source>Fill Block</source>
        <translation>Block füllen</translation>
    </message>
    <message>
        <source>&amp;Clear Selected Wells</source>
        <translation>Ausgewählte Kavitäten &amp;leeren</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Colour Wells by Volume</source>
        <translation>Kavitäten nach &amp;Volumen einfärben</translation>
    </message>
    <message>
        <source>Volumes</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About Plate Viewer</source>
        <translation>&amp;Über Plate Viewer</translation>
    </message>
    <message>
        <source>About Plate Viewer</source>
        <translation>Über Plate Viewer</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Plate Viewer %1&lt;/h3&gt;&lt;p&gt;Shows the plates of a library, and the data of their wells.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Plate Viewer %1&lt;/h3&gt;&lt;p&gt;Zeigt die Platten einer Bibliothek und die Daten ihrer Kavitäten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Find Plate</source>
        <translation>Platte &amp;suchen</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasten</translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::MainWindow</name>
    <message>
        <source>Plate Viewer</source>
        <translation>Plate Viewer</translation>
    </message>
    <message>
        <source>%1[*] – %2 – Plate Viewer</source>
        <translation>%1[*] – %2 – Plate Viewer</translation>
    </message>
    <message>
        <source>%1   ·   1 well selected</source>
        <translation>%1   ·   1 Kavität ausgewählt</translation>
    </message>
    <message numerus="yes">
        <source>%1   ·   %n wells selected</source>
        <translation>
            <numerusform>%1   ·   %n Kavität ausgewählt</numerusform>
            <numerusform>%1   ·   %n Kavitäten ausgewählt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::PlateSession</name>
    <message>
        <source>Nothing was moved: some of the wells would leave the plate.</source>
        <translation>Nichts wurde verschoben: Einige Kavitäten lägen außerhalb der Platte.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::PlateView</name>
    <message>
        <source>Open a plate library, or drop one here.</source>
        <translation>Öffnen Sie eine Plattenbibliothek, oder legen Sie eine hier ab.</translation>
    </message>
    <message>
        <source>Plate</source>
        <translation>Platte</translation>
    </message>
    <message>
        <source>&amp;Open Library…</source>
        <translation>Bibliothek ö&amp;ffnen …</translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::RecentFiles</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Zu&amp;letzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::SelectMenu</name>
    <message>
        <source>&amp;Select</source>
        <translation>Au&amp;swählen</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keine</translation>
    </message>
    <message>
        <source>&amp;Inverse</source>
        <translation>&amp;Umgekehrtamp;Umkehren</translation>
    </message>
    <message>
        <source>&amp;Row of the Current Well</source>
        <translation>&amp;Zeile der aktuellen Kavität</translation>
    </message>
    <message>
        <source>&amp;Column of the Current Well</source>
        <translation>&amp;Spalte der aktuellen Kavität</translation>
    </message>
    <message>
        <source>Same &amp;Volume</source>
        <translation>Gleiches &amp;Volumen</translation>
    </message>
    <message>
        <source>Same &amp;Text</source>
        <translation>Gleicher &amp;Text</translation>
    </message>
    <message>
        <source>Same &amp;Error Code</source>
        <translation>Gleicher &amp;Fehlercode</translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::ViewSettings</name>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Select several wells</source>
        <translation>Mehrere Kavitäten auswählen</translation>
    </message>
    <message>
        <source>Drag selected wells</source>
        <translation>Ausgewählte Kavitäten ziehen</translation>
    </message>
    <message>
        <source>React to the mouse</source>
        <translation>Auf die Maus reagieren</translation>
    </message>
    <message>
        <source>Frame selected block</source>
        <translation>Ausgewählten Block umrahmen</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <source>Fit plate to window</source>
        <translation>Platte ans Fenster anpassen</translation>
    </message>
    <message>
        <source>Centre horizontally</source>
        <translation>Waagerecht zentrieren</translation>
    </message>
    <message>
        <source>Centre vertically</source>
        <translation>Senkrecht zentrieren</translation>
    </message>
    <message>
        <source>DrawingScale: drawing units (1440 an inch) per millimetre</source>
        <translation>DrawingScale: Zeicheneinheiten (1440 je Zoll) je Millimeter</translation>
    </message>
    <message>
        <source>Sc&amp;ale</source>
        <translation>M&amp;aßstab</translation>
    </message>
    <message>
        <source>Shift extends selection</source>
        <translation>Umschalt erweitert die Auswahl</translation>
    </message>
    <message>
        <source>Ctrl+A selects all</source>
        <translation>Strg+A wählt alle aus</translation>
    </message>
    <message>
        <source>Escape clears selection</source>
        <translation>Esc hebt die Auswahl auf</translation>
    </message>
    <message>
        <source>Legends select their lines</source>
        <translation>Beschriftungen wählen Reihen</translation>
    </message>
    <message>
        <source>Legends light up</source>
        <translation>Beschriftungen leuchten auf</translation>
    </message>
    <message>
        <source>Detailed tooltips</source>
        <translation>Ausführliche Tooltips</translation>
    </message>
    <message>
        <source>Mark errors</source>
        <translation>Fehler markieren</translation>
    </message>
    <message>
        <source>Aids</source>
        <translation>Bedienhilfen</translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::VolumeLegend</name>
    <message>
        <source>0 µl</source>
        <translation>0 µl</translation>
    </message>
    <message>
        <source>no volume</source>
        <translation>kein Volumen</translation>
    </message>
    <message>
        <source>Colours of volumes</source>
        <translation>Farben der Volumen</translation>
    </message>
    <message>
        <source>%1 µl</source>
        <translation>%1 µl</translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::WalkPreview</name>
    <message>
        <source>Order in which the wells are filled</source>
        <translation>Reihenfolge, in der die Kavitäten gefüllt werden</translation>
    </message>
    <message>
        <source>Columns: %1, rows: %2; the well at the top left is number %3</source>
        <translation>Spalten: %1, Zeilen: %2; die Kavität oben links hat Nummer %3</translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::WellDataFiles</name>
    <message>
        <source>Import Well Data</source>
        <translation>Kavitätendaten importieren</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv);;All files (*)</source>
        <translation>Kommagetrennte Werte (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Export Well Data</source>
        <translation>Kavitätendaten exportieren</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Kommagetrennte Werte (*.csv)</translation>
    </message>
    <message>
        <source>%1, %2.

Nothing was changed.</source>
        <translation>%1, %2.

Nichts wurde geändert.</translation>
    </message>
    <message>
        <source>The data of all wells were written to %1</source>
        <translation>Die Daten aller Kavitäten wurden in %1 geschrieben</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Data of 1 well were read from %1</source>
        <translation>Daten von 1 Kavität wurden aus %1 gelesen</translation>
    </message>
    <message numerus="yes">
        <source>Data of %n wells were read from %1</source>
        <translation>
            <numerusform>Daten von %n Kavität wurden aus %1 gelesen</numerusform>
            <numerusform>Daten von %n Kavitäten wurden aus %1 gelesen</numerusform>
        </translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
</context>
<context>
    <name>zorvane::viewer::WellInspector</name>
    <message>
        <source>S&amp;ub-well</source>
        <translation>Teil&amp;kavität</translation>
    </message>
    <message>
        <source>&amp;Defined</source>
        <translation>&amp;Definiert</translation>
    </message>
    <message>
        <source>A solution has been defined for this well</source>
        <translation>Für diese Kavität ist eine Lösung definiert</translation>
    </message>
    <message>
        <source> µl</source>
        <translation> µl</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>Te&amp;xt</translation>
    </message>
    <message>
        <source>Shown as the tooltip of the well</source>
        <translation>Erscheint als Tooltip der Kavität</translation>
    </message>
    <message>
        <source>A&amp;nnotation</source>
        <translation>A&amp;ufschrift</translation>
    </message>
    <message>
        <source>Written on the well</source>
        <translation>Steht auf der Kavität</translation>
    </message>
    <message>
        <source>&amp;Selected</source>
        <translation>Aus&amp;gewählt</translation>
    </message>
    <message>
        <source>&amp;Bottom</source>
        <translation>B&amp;oden</translation>
    </message>
    <message>
        <source>Bottom colour</source>
        <translation>Farbe des Bodens</translation>
    </message>
    <message>
        <source>&amp;Rim</source>
        <translation>&amp;Rand</translation>
    </message>
    <message>
        <source>Rim colour</source>
        <translation>Farbe des Randes</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
    <message>
        <source>No well is chosen.</source>
        <translation>Es ist keine Kavität ausgewählt.</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Vo&amp;lume</source>
        <translation>Vo&amp;lumen</translation>
    </message>
    <message>
        <source>Error &amp;code</source>
        <translation>Fehler&amp;code</translation>
    </message>
    <message>
        <source>%1 · row %2, column %3</source>
        <translation>%1 · Zeile %2, Spalte %3</translation>
    </message>
    <message>
        <source>Defined</source>
        <translation>Definiert</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Annotation</source>
        <translation>Aufschrift</translation>
    </message>
    <message>
        <source>Bottom Colour</source>
        <translation>Farbe des Bodens</translation>
    </message>
    <message>
        <source>Rim Colour</source>
        <translation>Farbe des Randes</translation>
    </message>
    <message>
        <source>Error Code</source>
        <translation>Fehlercode</translation>
    </message>
</context>
</TS>
