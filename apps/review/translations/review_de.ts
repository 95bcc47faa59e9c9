<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Review</name>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The picture cannot be encoded.</source>
        <translation>Das Bild kann nicht kodiert werden.</translation>
    </message>
</context>
<context>
    <name>Review::AboutDialog</name>
    <message>
        <source>Windows, texts, pictures and network. Copyright The Qt Company Ltd. and other contributors.</source>
        <translation>Fenster, Texte, Bilder und Netzwerk. Copyright The Qt Company Ltd. und andere Mitwirkende.</translation>
    </message>
    <message>
        <source>Reads and writes recordings. Copyright the FFmpeg developers.</source>
        <translation>Liest und schreibt Aufzeichnungen. Copyright die Entwickler von FFmpeg.</translation>
    </message>
    <message>
        <source>GCC runtime library</source>
        <translation>GCC-Laufzeitbibliothek</translation>
    </message>
    <message>
        <source>GPL version 3 with the GCC Runtime Library Exception</source>
        <translation>GPL Version 3 mit der GCC Runtime Library Exception</translation>
    </message>
    <message>
        <source>The C++ standard library. Copyright Free Software Foundation, Inc.</source>
        <translation>Die Standardbibliothek von C++. Copyright Free Software Foundation, Inc.</translation>
    </message>
    <message>
        <source>GNU C library</source>
        <translation>GNU-C-Bibliothek</translation>
    </message>
    <message>
        <source>Copyright Free Software Foundation, Inc.</source>
        <translation>Copyright Free Software Foundation, Inc.</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Copyright © 2026 the CorvelGui authors, under the MIT licence.</source>
        <translation>Copyright © 2026 die Autoren von CorvelGui, unter der MIT-Lizenz.</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Lizenzen</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
</context>
<context>
    <name>Review::CameraPicture</name>
    <message>
        <source>No recording at this time</source>
        <translation>Keine Aufzeichnung zu dieser Zeit</translation>
    </message>
    <message>
        <source>Nothing is known of this time</source>
        <translation>Über diese Zeit ist nichts bekannt</translation>
    </message>
    <message>
        <source>No picture: %1</source>
        <translation>Kein Bild: %1</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>What was recorded at this time is not known yet</source>
        <translation>Was zu dieser Zeit aufgezeichnet wurde, ist noch nicht bekannt</translation>
    </message>
</context>
<context>
    <name>Review::CameraTimesDialog</name>
    <message>
        <source>Times of recordings</source>
        <translation>Zeiten der Aufnahmen</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Aufnahmen</translation>
    </message>
    <message>
        <source>Times come from</source>
        <translation>Zeiten stammen von</translation>
    </message>
    <message>
        <source>First recording</source>
        <translation>Erste Aufnahme</translation>
    </message>
    <message>
        <source>Zone</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>There is no time zone “%1”.</source>
        <translation>Es gibt keine Zeitzone „%1“.</translation>
    </message>
    <message>
        <source>Zone of the camera&apos;s clock</source>
        <translation>Zone der Kamera-Uhr</translation>
    </message>
    <message>
        <source>Add to its times</source>
        <translation>Zu ihren Zeiten addieren</translation>
    </message>
    <message>
        <source>path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>time of creation</source>
        <translation>Erstellungszeit</translation>
    </message>
    <message>
        <source>EXIF</source>
        <translation>EXIF</translation>
    </message>
    <message>
        <source>time of change</source>
        <translation>Änderungszeit</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>before 1970</source>
        <translation>vor 1970</translation>
    </message>
    <message>
        <source>known</source>
        <translation>bekannt</translation>
    </message>
    <message>
        <source>Write hours, minutes and seconds, such as %1, or seconds, such as %2.</source>
        <translation>Schreiben Sie Stunden, Minuten und Sekunden, etwa %1, oder Sekunden, etwa %2.</translation>
    </message>
</context>
<context>
    <name>Review::CameraTrapSet</name>
    <message>
        <source>it is no JSON: %1, at byte %2</source>
        <translation>sie ist kein JSON: %1, bei Byte %2</translation>
    </message>
    <message>
        <source>it has no list “%1”</source>
        <translation>sie hat keine Liste „%1“</translation>
    </message>
    <message>
        <source>the image “%1” has no date and time</source>
        <translation>das Bild „%1“ hat weder Datum noch Uhrzeit</translation>
    </message>
    <message>
        <source>the annotation “%1” is of no image with a time</source>
        <translation>die Anmerkung „%1“ gehört zu keinem Bild mit einer Zeit</translation>
    </message>
    <message>
        <source>the annotation “%1” is of no category</source>
        <translation>die Anmerkung „%1“ gehört zu keiner Kategorie</translation>
    </message>
</context>
<context>
    <name>Review::CameraView</name>
    <message>
        <source>Waiting for the file…</source>
        <translation>Die Datei antwortet noch nicht …</translation>
    </message>
    <message>
        <source>Picture of the camera</source>
        <translation>Bild der Kamera</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>Bild von %1</translation>
    </message>
</context>
<context>
    <name>Review::ClientOptions</name>
    <message>
        <source>&amp;Options…</source>
        <translation>&amp;Optionen …</translation>
    </message>
    <message>
        <source>&amp;Language…</source>
        <translation>&amp;Sprache …</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>The settings cannot be written to %1. They hold until the program ends.</source>
        <translation>Die Einstellungen können nicht nach %1 geschrieben werden. Sie gelten, bis das Programm endet.</translation>
    </message>
    <message>
        <source>The password of the proxy cannot be kept in the password store of this computer. It holds until the program ends.</source>
        <translation>Das Kennwort des Proxys kann im Kennwortspeicher dieses Computers nicht aufbewahrt werden. Es gilt, bis das Programm endet.</translation>
    </message>
</context>
<context>
    <name>Review::ClipCopy</name>
    <message>
        <source>An MP4 file cannot hold pictures of this kind.</source>
        <translation>Eine MP4-Datei kann Bilder dieser Art nicht aufnehmen.</translation>
    </message>
    <message>
        <source>The file ends before this time.</source>
        <translation>Die Datei endet vor dieser Zeit.</translation>
    </message>
    <message>
        <source>Times in the file jump back; what is said twice was left out.</source>
        <translation>Zeiten in der Datei springen zurück; was doppelt belegt ist, wurde ausgelassen.</translation>
    </message>
</context>
<context>
    <name>Review::ClipDialog</name>
    <message>
        <source>Export recordings</source>
        <translation>Aufnahmen exportieren</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Clips begin at the key frame before the range. They are copied as they were recorded, without sound.</source>
        <translation>Clips beginnen beim Schlüsselbild vor dem Bereich. Sie werden so kopiert, wie sie aufgenommen wurden, ohne Ton.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>No camera is chosen.</source>
        <translation>Keine Kamera ist ausgewählt.</translation>
    </message>
    <message>
        <source>No files show this range.</source>
        <translation>Keine Dateien zeigen diesen Bereich.</translation>
    </message>
    <message>
        <source>Recorded time: %1</source>
        <translation>Aufgenommene Zeit: %1</translation>
    </message>
</context>
<context>
    <name>Review::ClipExport</name>
    <message>
        <source>Nothing of this range can be exported.</source>
        <translation>Aus diesem Bereich kann nichts exportiert werden.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Export recordings</source>
        <translation>Aufnahmen exportieren</translation>
    </message>
    <message>
        <source>Exporting recordings</source>
        <translation>Aufnahmen werden exportiert</translation>
    </message>
    <message>
        <source>Recordings are still being exported: %1 % are written.</source>
        <translation>Aufnahmen werden noch exportiert: %1 % sind geschrieben.</translation>
    </message>
    <message>
        <source>Recordings exported, in files: %1</source>
        <translation>Aufnahmen exportiert, in Dateien: %1</translation>
    </message>
    <message>
        <source>Export ended early. Nothing is left of it.</source>
        <translation>Export vorzeitig beendet. Nichts davon ist übrig.</translation>
    </message>
</context>
<context>
    <name>Review::ClipFolder</name>
    <message>
        <source>No folder can be made in %1.</source>
        <translation>In %1 kann kein Ordner angelegt werden.</translation>
    </message>
    <message>
        <source>%1 cannot be made.</source>
        <translation>%1 kann nicht angelegt werden.</translation>
    </message>
</context>
<context>
    <name>Review::CommandLine</name>
    <message>
        <source>Shows recordings on a timeline. Without files it shows a sample.
Files are CSV with a header line; times are ISO 8601 with Z or an offset.</source>
        <translation>Zeigt Aufzeichnungen auf einer Zeitleiste. Ohne Dateien wird ein Beispiel gezeigt.
Dateien sind CSV mit einer Kopfzeile; Zeiten sind ISO 8601 mit Z oder einem Abstand zu UTC.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Time zone, such as Europe/Brussels.</source>
        <translation>Zeitzone, zum Beispiel Europe/Brussels.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Look of the window: dark or light.</source>
        <translation>Aussehen des Fensters: dark (dunkel) oder light (hell).</translation>
    </message>
    <message>
        <source>look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Language of the window: de or en.</source>
        <translation>Sprache des Fensters: de oder en.</translation>
    </message>
    <message>
        <source>key</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>File that keeps the settings. Default: the one of this user.</source>
        <translation>Datei mit den Einstellungen. Vorgabe: die dieses Benutzers.</translation>
    </message>
    <message>
        <source>Writes a PNG picture of the window and exits.</source>
        <translation>Schreibt ein PNG-Bild des Fensters und beendet das Programm.</translation>
    </message>
    <message>
        <source>Size of the window, such as 1200x700.</source>
        <translation>Größe des Fensters, zum Beispiel 1200x700.</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>Die Option --%1 braucht einen Wert.</translation>
    </message>
    <message>
        <source>Unknown time zone “%1”.</source>
        <translation>Unbekannte Zeitzone „%1“.</translation>
    </message>
    <message>
        <source>Unknown look “%1”: it is dark or light.</source>
        <translation>Unbekanntes Aussehen „%1“: Möglich sind dark und light.</translation>
    </message>
    <message>
        <source>Unknown language “%1”: it is de or en.</source>
        <translation>Unbekannte Sprache „%1“: Möglich sind de und en.</translation>
    </message>
    <message>
        <source>Bad size “%1”: it is WIDTHxHEIGHT, from %2x%3 to %4x%5.</source>
        <translation>Ungültige Größe „%1“: BREITExHÖHE, von %2x%3 bis %4x%5.</translation>
    </message>
    <message>
        <source>Events, in the columns time, kind, text and, if there are any, camera, duration in seconds and severity.</source>
        <translation>Ereignisse in den Spalten time, kind, text und, falls vorhanden, camera, duration in Sekunden und severity.</translation>
    </message>
    <message>
        <source>Periods in which the cameras were in service, in the columns camera, begin, end. Without one, a camera was from its first to its last recording.</source>
        <translation>Zeiträume, in denen die Kameras in Betrieb waren, in den Spalten camera, begin, end. Ohne einen solchen war es eine Kamera von ihrer ersten bis zu ihrer letzten Aufzeichnung.</translation>
    </message>
    <message>
        <source>Recorded spans, in the columns camera, begin, end and, for those with pictures, file and offset: seconds into the file at begin.</source>
        <translation>Aufgezeichnete Abschnitte, in den Spalten camera, begin, end und, wo es Bilder gibt, file und offset: Sekunden in der Datei bei begin.</translation>
    </message>
    <message>
        <source>A folder with those CSV files, or with a folder of clips and pictures per camera; or single clips and pictures.</source>
        <translation>Ein Ordner mit diesen CSV-Dateien oder mit einem Ordner voller Clips und Bilder je Kamera; oder einzelne Clips und Bilder.</translation>
    </message>
    <message>
        <source>How the paths of clips and pictures say when they were recorded, such as {camera}/{yyyy}-{MM}-{dd}/{HH}/{mm}.{ss}.mp4. Without one, the common ways are known.</source>
        <translation>Wie die Pfade von Clips und Bildern sagen, wann sie aufgezeichnet wurden, zum Beispiel {camera}/{yyyy}-{MM}-{dd}/{HH}/{mm}.{ss}.mp4. Ohne Angabe gelten die üblichen Arten.</translation>
    </message>
    <message>
        <source>pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Bad pattern “%1”: it needs {yyyy}, {MM} and {dd}, and {camera} at most once.</source>
        <translation>Falsches Muster „%1“: Es braucht {yyyy}, {MM} und {dd}, und {camera} höchstens einmal.</translation>
    </message>
    <message>
        <source>Follows what is being recorded.</source>
        <translation>Verfolgt, was gerade aufgezeichnet wird.</translation>
    </message>
</context>
<context>
    <name>Review::CsvTable</name>
    <message>
        <source>it has no header line that names its columns</source>
        <translation>Eine Kopfzeile mit den Namen der Spalten fehlt</translation>
    </message>
    <message>
        <source>it has no column “%1”</source>
        <translation>Die Spalte „%1“ fehlt</translation>
    </message>
    <message>
        <source>it has more than one column “%1”</source>
        <translation>Die Spalte „%1“ kommt mehrmals vor</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>die Zeile ist nicht in UTF-8 geschrieben</translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translation>ein Anführungszeichen wird nicht geschlossen</translation>
    </message>
    <message>
        <source>there is text behind a closing quote</source>
        <translation>hinter einem schließenden Anführungszeichen steht Text</translation>
    </message>
    <message>
        <source>%1 fields instead of %2</source>
        <translation>%1 Felder statt %2</translation>
    </message>
</context>
<context>
    <name>Review::DeviceItem</name>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Aufzeichnungen</translation>
    </message>
    <message>
        <source>Recorded time</source>
        <translation>Aufgezeichnete Zeit</translation>
    </message>
</context>
<context>
    <name>Review::DevicePane</name>
    <message>
        <source>Add camera range</source>
        <translation>Kamerabereich hinzufügen</translation>
    </message>
    <message>
        <source>The range %1/%2 has %3 addresses, but at most %4 cameras can be added at a time. A longer mask makes the range smaller.</source>
        <translation>Der Bereich %1/%2 hat %3 Adressen, doch auf einmal können höchstens %4 Kameras hinzugefügt werden. Eine längere Maske verkleinert den Bereich.</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) added.</source>
        <translation>
            <numerusform>%n Kamera hinzugefügt.</numerusform>
            <numerusform>%n Kameras hinzugefügt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n address(es) had a camera already.</source>
        <translation>
            <numerusform>%n Adresse hatte schon eine Kamera.</numerusform>
            <numerusform>%n Adressen hatten schon eine Kamera.</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter cameras</source>
        <translation>Kameras filtern</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>&amp;Add camera range…</source>
        <translation>Kamerabereich &amp;hinzufügen …</translation>
    </message>
    <message>
        <source>&amp;Remove added cameras</source>
        <translation>Hinzugefügte Kameras &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Expand all</source>
        <translation>Alle &amp;aufklappen</translation>
    </message>
    <message>
        <source>&amp;Collapse all</source>
        <translation>Alle &amp;zuklappen</translation>
    </message>
</context>
<context>
    <name>Review::DeviceTree</name>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Aufzeichnungen</translation>
    </message>
    <message>
        <source>Recorded time</source>
        <translation>Aufgezeichnete Zeit</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>Added cameras</source>
        <translation>Hinzugefügte Kameras</translation>
    </message>
    <message>
        <source>Known from</source>
        <translation>Bekannt ab</translation>
    </message>
    <message>
        <source>There are no more recordings of this camera.</source>
        <translation>Es gibt keine weiteren Aufzeichnungen dieser Kamera.</translation>
    </message>
    <message>
        <source>Known to</source>
        <translation>Bekannt bis</translation>
    </message>
</context>
<context>
    <name>Review::DurationFilter</name>
    <message>
        <source>any longer one</source>
        <translation>jede längere</translation>
    </message>
    <message>
        <source>Any duration</source>
        <translation>Jede Dauer</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>From %1 on</source>
        <translation>Ab %1</translation>
    </message>
    <message>
        <source>How long events last that are listed</source>
        <translation>Wie lange Ereignisse dauern, die aufgelistet werden</translation>
    </message>
    <message>
        <source>Duration of events</source>
        <translation>Dauer von Ereignissen</translation>
    </message>
</context>
<context>
    <name>Review::EventKinds</name>
    <message>
        <source>Person</source>
        <translation>Person</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Fahrzeug</translation>
    </message>
    <message>
        <source>Animal</source>
        <translation>Tier</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Bookmark</source>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Leer</translation>
    </message>
</context>
<context>
    <name>Review::EventModel</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Schwere</translation>
    </message>
</context>
<context>
    <name>Review::EventPane</name>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Filter events</source>
        <translation>Ereignisse filtern</translation>
    </message>
    <message>
        <source>Export &amp;events…</source>
        <translation>Ere&amp;ignisse exportieren …</translation>
    </message>
    <message>
        <source>Write the events in the table, or several selected ones, to a file</source>
        <translation>Schreibt die Ereignisse der Tabelle oder mehrere ausgewählte in eine Datei</translation>
    </message>
    <message>
        <source>Report of e&amp;vents…</source>
        <translation>Be&amp;richt über Ereignisse …</translation>
    </message>
    <message>
        <source>Print the events in the table, or several selected ones, or save them as PDF</source>
        <translation>Die Ereignisse der Tabelle oder mehrere ausgewählte drucken oder als PDF speichern</translation>
    </message>
</context>
<context>
    <name>Review::EventReport</name>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>Review::EventTable</name>
    <message>
        <source>No matching events</source>
        <translation>Keine passenden Ereignisse</translation>
    </message>
    <message>
        <source>No events</source>
        <translation>Keine Ereignisse</translation>
    </message>
</context>
<context>
    <name>Review::ExportDialog</name>
    <message>
        <source>Export pictures</source>
        <translation>Bilder exportieren</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>A picture every</source>
        <translation>Ein Bild alle</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>%1 pictures are too many: the most at once is %2.</source>
        <translation>%1 Bilder sind zu viele: Auf einmal sind höchstens %2 möglich.</translation>
    </message>
    <message>
        <source>Pictures: %1</source>
        <translation>Bilder: %1</translation>
    </message>
    <message>
        <source>&amp;Only where something is recorded</source>
        <translation>&amp;Nur wo etwas aufgezeichnet ist</translation>
    </message>
    <message>
        <source>Nothing is recorded in this range.</source>
        <translation>In diesem Bereich ist nichts aufgezeichnet.</translation>
    </message>
</context>
<context>
    <name>Review::ExportPanel</name>
    <message>
        <source>Export pictures</source>
        <translation>Bilder exportieren</translation>
    </message>
    <message>
        <source>Files that exist already: %1 of %2. Replace them?</source>
        <translation>Dateien, die es schon gibt: %1 von %2. Sollen sie ersetzt werden?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Export events</source>
        <translation>Ereignisse exportieren</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Durch Komma getrennte Werte (*.csv)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Events exported: %1</source>
        <translation>Ereignisse exportiert: %1</translation>
    </message>
    <message>
        <source>The export has stopped.</source>
        <translation>Der Export wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
        <source>No program shows %1.</source>
        <translation>Kein Programm zeigt %1 an.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>Diese Meldung schließen</translation>
    </message>
    <message>
        <source>JPEG, camera and time in its EXIF data (*.jpg *.jpeg)</source>
        <translation>JPEG, Kamera und Zeit in seinen EXIF-Daten (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>JPEG, camera and time below the picture (*.jpg *.jpeg)</source>
        <translation>JPEG, Kamera und Zeit unter dem Bild (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>PNG, camera and time below the picture (*.png)</source>
        <translation>PNG, Kamera und Zeit unter dem Bild (*.png)</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Picture saved</source>
        <translation>Bild gespeichert</translation>
    </message>
    <message>
        <source>Quit all the same?</source>
        <translation>Trotzdem beenden?</translation>
    </message>
    <message>
        <source>Some recordings could not be exported.</source>
        <translation>Einige Aufnahmen konnten nicht exportiert werden.</translation>
    </message>
    <message>
        <source>Report saved</source>
        <translation>Bericht gespeichert</translation>
    </message>
    <message>
        <source>Exporting events</source>
        <translation>Ereignisse werden exportiert</translation>
    </message>
</context>
<context>
    <name>Review::FolderChoice</name>
    <message>
        <source>There is no such folder.</source>
        <translation>Diesen Ordner gibt es nicht.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Auswählen …</translation>
    </message>
</context>
<context>
    <name>Review::FollowMenu</name>
    <message>
        <source>&amp;Follow</source>
        <translation>&amp;Mitlaufen</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Aus</translation>
    </message>
    <message>
        <source>By &amp;pages</source>
        <translation>&amp;Seitenweise</translation>
    </message>
    <message>
        <source>&amp;Centred</source>
        <translation>&amp;Mittig</translation>
    </message>
    <message>
        <source>&amp;Smoothly</source>
        <translation>&amp;Fließend</translation>
    </message>
</context>
<context>
    <name>Review::FootageScan</name>
    <message>
        <source>the folder may not be looked into</source>
        <translation>in den Ordner darf nicht gesehen werden</translation>
    </message>
</context>
<context>
    <name>Review::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;News…</source>
        <translation>&amp;Nachrichten …</translation>
    </message>
    <message>
        <source>&amp;About %1…</source>
        <translation>&amp;Über %1 …</translation>
    </message>
</context>
<context>
    <name>Review::InstantEdit</name>
    <message>
        <source>“%1” is not a date and time such as %2.</source>
        <translation>„%1“ ist kein Datum mit Uhrzeit wie %2.</translation>
    </message>
    <message>
        <source>The clocks are put forward past %1.</source>
        <translation>Die Uhren werden über %1 hinweg vorgestellt.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Choose a day in a calendar</source>
        <translation>Einen Tag im Kalender auswählen</translation>
    </message>
</context>
<context>
    <name>Review::JsonLines</name>
    <message>
        <source>the line is no JSON object</source>
        <translation>die Zeile ist kein JSON-Objekt</translation>
    </message>
    <message>
        <source>the object has no “%1”</source>
        <translation>das Objekt hat kein „%1“</translation>
    </message>
    <message>
        <source>“%1” is neither a text nor a number</source>
        <translation>„%1“ ist weder ein Text noch eine Zahl</translation>
    </message>
</context>
<context>
    <name>Review::KeyboardPage</name>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1: %2 is also set for “%3”.</source>
        <translation>%1: %2 ist auch für „%3“ eingestellt.</translation>
    </message>
    <message>
        <source>%1: %2 belongs to “%3”.</source>
        <translation>%1: %2 gehört zu „%3“.</translation>
    </message>
    <message>
        <source>Such shortcuts are not taken over.</source>
        <translation>Solche Tastenkürzel werden nicht übernommen.</translation>
    </message>
    <message>
        <source>%1 plays slower, %2 faster. The playback menu has all speeds.</source>
        <translation>%1 spielt langsamer, %2 schneller. Das Menü „Wiedergabe“ hat alle Geschwindigkeiten.</translation>
    </message>
</context>
<context>
    <name>Review::LineParser</name>
    <message>
        <source>“%1” is not an ISO 8601 date and time</source>
        <translation>„%1“ ist kein Zeitpunkt nach ISO 8601</translation>
    </message>
    <message>
        <source>“%1” has neither an offset from UTC nor a Z</source>
        <translation>„%1“ hat weder einen Abstand zu UTC noch ein Z</translation>
    </message>
    <message>
        <source>“%1” lies before the year 1970</source>
        <translation>„%1“ liegt vor dem Jahr 1970</translation>
    </message>
    <message>
        <source>the end lies before the begin</source>
        <translation>das Ende liegt vor dem Anfang</translation>
    </message>
    <message>
        <source>begin and end are the same instant</source>
        <translation>Anfang und Ende sind derselbe Zeitpunkt</translation>
    </message>
    <message>
        <source>the camera has no name</source>
        <translation>die Kamera hat keinen Namen</translation>
    </message>
    <message>
        <source>“%1” is not a number of seconds</source>
        <translation>„%1“ ist keine Anzahl von Sekunden</translation>
    </message>
    <message>
        <source>“%1” is neither none nor information, warning or alarm</source>
        <translation>„%1“ ist weder none noch information, warning oder alarm</translation>
    </message>
</context>
<context>
    <name>Review::LoadJob</name>
    <message>
        <source>There are neither recordings nor events in %1.</source>
        <translation>In %1 gibt es weder Aufzeichnungen noch Ereignisse.</translation>
    </message>
    <message>
        <source>There is no file or folder “%1”.</source>
        <translation>Es gibt keine Datei und keinen Ordner „%1“.</translation>
    </message>
</context>
<context>
    <name>Review::LoadPanel</name>
    <message>
        <source>Loading</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Loading: %p %</source>
        <translation>Laden: %p %</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Review::LookPage</name>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>&amp;Look:</source>
        <translation>&amp;Aussehen:</translation>
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
        <source>La&amp;nguage:</source>
        <translation>S&amp;prache:</translation>
    </message>
    <message>
        <source>Language of this computer</source>
        <translation>Sprache dieses Computers</translation>
    </message>
</context>
<context>
    <name>Review::NetworkProvider</name>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
</context>
<context>
    <name>Review::PictureExport</name>
    <message>
        <source>%1 exists already.</source>
        <translation>%1 gibt es schon.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Export pictures</source>
        <translation>Bilder exportieren</translation>
    </message>
    <message>
        <source>Exporting pictures</source>
        <translation>Bilder werden exportiert</translation>
    </message>
    <message>
        <source>Pictures are still being exported: %1 of %2 are written.</source>
        <translation>Bilder werden noch exportiert: %1 von %2 sind geschrieben.</translation>
    </message>
    <message>
        <source>Pictures exported: %1</source>
        <translation>Exportierte Bilder: %1</translation>
    </message>
    <message>
        <source>Export ended early. Pictures written: %1 of %2.</source>
        <translation>Export vorzeitig beendet. Bilder geschrieben: %1 von %2.</translation>
    </message>
</context>
<context>
    <name>Review::PlaybackPage</name>
    <message>
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;Skip what is not recorded</source>
        <translation>Lücken ohne Aufzeichnung ü&amp;berspringen</translation>
    </message>
</context>
<context>
    <name>Review::PlaybackPane</name>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>The camera whose picture is shown</source>
        <translation>Die Kamera, deren Bild gezeigt wird</translation>
    </message>
    <message>
        <source>No camera</source>
        <translation>Keine Kamera</translation>
    </message>
    <message>
        <source>Cameras at once</source>
        <translation>Kameras zugleich</translation>
    </message>
    <message>
        <source>How many cameras are shown at once</source>
        <translation>Wie viele Kameras zugleich gezeigt werden</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s)</source>
        <translation>
            <numerusform>%n Kamera</numerusform>
            <numerusform>%n Kameras</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Review::PreviewCard</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiteres</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>recorded</source>
        <translation>aufgezeichnet</translation>
    </message>
    <message>
        <source>no recording</source>
        <translation>keine Aufzeichnung</translation>
    </message>
    <message>
        <source>nothing known</source>
        <translation>nichts bekannt</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>noch nicht bekannt</translation>
    </message>
</context>
<context>
    <name>Review::ProblemDock</name>
    <message>
        <source>Left out: %1</source>
        <translation>Ausgelassen: %1</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Review::ProxyPage</name>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
</context>
<context>
    <name>Review::RangeChoice</name>
    <message>
        <source>Current &amp;view</source>
        <translation>Aktuelle &amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Selected range</source>
        <translation>&amp;Gewählter Bereich</translation>
    </message>
    <message>
        <source>Othe&amp;r range</source>
        <translation>Ande&amp;rer Bereich</translation>
    </message>
    <message>
        <source>No recording</source>
        <translation>Keine Aufzeichnung</translation>
    </message>
</context>
<context>
    <name>Review::RangePanel</name>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>From view</source>
        <translation>Aus Ansicht</translation>
    </message>
    <message>
        <source>Search range</source>
        <translation>Suchbereich</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Mark begin</source>
        <translation>Anfang markieren</translation>
    </message>
    <message>
        <source>Mark end</source>
        <translation>Ende markieren</translation>
    </message>
    <message>
        <source>Only markers inside</source>
        <translation>Nur Marker darin</translation>
    </message>
    <message>
        <source>Zoom to it</source>
        <translation>Darauf zoomen</translation>
    </message>
    <message>
        <source>Show result</source>
        <translation>Ergebnis zeigen</translation>
    </message>
    <message>
        <source>The range must end after it begins.</source>
        <translation>Der Bereich muss nach seinem Anfang enden.</translation>
    </message>
    <message>
        <source>Nothing is known of %1. Choose a time from %2 to %3.</source>
        <translation>Über %1 ist nichts bekannt. Wählen Sie eine Zeit von %2 bis %3.</translation>
    </message>
</context>
<context>
    <name>Review::RecordingBar</name>
    <message>
        <source>Place in the recording</source>
        <translation>Stelle in der Aufzeichnung</translation>
    </message>
    <message>
        <source>Begin of the recording</source>
        <translation>Beginn der Aufzeichnung</translation>
    </message>
    <message>
        <source>End of the recording</source>
        <translation>Ende der Aufzeichnung</translation>
    </message>
</context>
<context>
    <name>Review::ReportDialog</name>
    <message>
        <source>Save report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Collecting pictures…</source>
        <translation>Bilder werden gesammelt …</translation>
    </message>
    <message>
        <source>Writing the report…</source>
        <translation>Der Bericht wird geschrieben …</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Report of events</source>
        <translation>Bericht über Ereignisse</translation>
    </message>
    <message>
        <source>Events: %1</source>
        <translation>Ereignisse: %1</translation>
    </message>
    <message>
        <source>A report has %1 events at most. Filter the list of events, or select some of them.</source>
        <translation>Ein Bericht hat höchstens %1 Ereignisse. Filtern Sie die Liste der Ereignisse, oder wählen Sie einige davon aus.</translation>
    </message>
    <message>
        <source>Pictures are for %1 events at most.</source>
        <translation>Bilder gibt es für höchstens %1 Ereignisse.</translation>
    </message>
    <message>
        <source>With a &amp;picture of the camera for each event</source>
        <translation>Mit einem &amp;Bild der Kamera zu jedem Ereignis</translation>
    </message>
    <message>
        <source>Progress of the report</source>
        <translation>Fortschritt des Berichts</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>Als PDF &amp;speichern …</translation>
    </message>
    <message>
        <source>Pre&amp;view and print…</source>
        <translation>&amp;Vorschau und Druck …</translation>
    </message>
</context>
<context>
    <name>Review::ReviewLoader</name>
    <message>
        <source>the event has no kind</source>
        <translation>das Ereignis hat keine Art</translation>
    </message>
</context>
<context>
    <name>Review::ReviewMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open folder…</source>
        <translation>Ordner &amp;öffnen …</translation>
    </message>
    <message>
        <source>Export &amp;pictures…</source>
        <translation>Bilder &amp;exportieren …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Devices</source>
        <translation>&amp;Geräte</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>Open &amp;files…</source>
        <translation>&amp;Dateien öffnen …</translation>
    </message>
    <message>
        <source>&amp;Save picture…</source>
        <translation>Bild &amp;speichern …</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>Bild &amp;kopieren</translation>
    </message>
    <message>
        <source>Export &amp;recordings…</source>
        <translation>Auf&amp;nahmen exportieren …</translation>
    </message>
    <message>
        <source>&amp;Times of recordings…</source>
        <translation>&amp;Zeiten der Aufnahmen …</translation>
    </message>
    <message>
        <source>Fo&amp;llow what is being recorded</source>
        <translation>&amp;Laufende Aufzeichnung verfolgen</translation>
    </message>
    <message>
        <source>Looks for new recordings and events every few seconds</source>
        <translation>Sucht alle paar Sekunden nach neuen Aufzeichnungen und Ereignissen</translation>
    </message>
</context>
<context>
    <name>Review::ReviewOpener</name>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>Dateien öffnen</translation>
    </message>
</context>
<context>
    <name>Review::ReviewPanes</name>
    <message>
        <source>There are no more recordings of this camera.</source>
        <translation>Es gibt keine weiteren Aufzeichnungen dieser Kamera.</translation>
    </message>
</context>
<context>
    <name>Review::ReviewStatusBar</name>
    <message>
        <source>There is no time zone “%1”. Times stay in %2.</source>
        <translation>Es gibt keine Zeitzone „%1“. Die Zeiten bleiben in %2.</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>Cameras: %1    Recordings: %2    Events: %3</source>
        <translation>Kameras: %1    Aufzeichnungen: %2    Ereignisse: %3</translation>
    </message>
</context>
<context>
    <name>Review::ReviewWindow</name>
    <message>
        <source>Recording review</source>
        <translation>Aufzeichnungen sichten</translation>
    </message>
    <message>
        <source>Dar&amp;k look</source>
        <translation>&amp;Dunkles Aussehen</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Beispiel</translation>
    </message>
    <message>
        <source>%1 – Recording review</source>
        <translation>%1 – Aufzeichnungen sichten</translation>
    </message>
    <message>
        <source>Where the times of recordings come from: %1; zone: %2</source>
        <translation>Woher die Zeiten der Aufzeichnungen stammen: %1; Zeitzone: %2</translation>
    </message>
    <message>
        <source>There is no picture of this camera at this time.</source>
        <translation>Zu dieser Zeit gibt es kein Bild dieser Kamera.</translation>
    </message>
    <message>
        <source>The picture is on the clipboard.</source>
        <translation>Das Bild liegt in der Zwischenablage.</translation>
    </message>
</context>
<context>
    <name>Review::SampleData</name>
    <message>
        <source>Main gate</source>
        <translation>Haupttor</translation>
    </message>
    <message>
        <source>Car park</source>
        <translation>Parkplatz</translation>
    </message>
    <message>
        <source>Loading dock</source>
        <translation>Laderampe</translation>
    </message>
    <message>
        <source>North fence</source>
        <translation>Nordzaun</translation>
    </message>
    <message>
        <source>Person outside working hours</source>
        <translation>Person außerhalb der Arbeitszeit</translation>
    </message>
    <message>
        <source>Person</source>
        <translation>Person</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Fahrzeug</translation>
    </message>
    <message>
        <source>Animal</source>
        <translation>Tier</translation>
    </message>
    <message>
        <source>Marked by an operator</source>
        <translation>Vom Bediener markiert</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Störung</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>Kein Signal</translation>
    </message>
</context>
<context>
    <name>Review::Severities</name>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
</context>
<context>
    <name>Review::SpeedMenu</name>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>&amp;Langsamer</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>&amp;Schneller</translation>
    </message>
</context>
<context>
    <name>Review::StateSign</name>
    <message>
        <source>Recorded</source>
        <translation>Aufgezeichnet</translation>
    </message>
    <message>
        <source>No recording</source>
        <translation>Keine Aufzeichnung</translation>
    </message>
    <message>
        <source>Nothing known</source>
        <translation>Nichts bekannt</translation>
    </message>
    <message>
        <source>Not known yet</source>
        <translation>Noch nicht bekannt</translation>
    </message>
</context>
<context>
    <name>Review::TextFile</name>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>sie ist größer als %1</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>Review::TimePage</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Time &amp;zone:</source>
        <translation>Zeit&amp;zone:</translation>
    </message>
    <message>
        <source>&amp;Date and time:</source>
        <translation>&amp;Datum und Uhrzeit:</translation>
    </message>
    <message>
        <source>Show &amp;milliseconds of single moments</source>
        <translation>&amp;Millisekunden einzelner Zeitpunkte zeigen</translation>
    </message>
</context>
<context>
    <name>Review::TimelineMenu</name>
    <message>
        <source>Go to %1</source>
        <translation>Gehe zu %1</translation>
    </message>
    <message>
        <source>Copy this time</source>
        <translation>Diese Zeit kopieren</translation>
    </message>
    <message>
        <source>Zoom in here</source>
        <translation>Hier vergrößern</translation>
    </message>
    <message>
        <source>Previous event</source>
        <translation>Voriges Ereignis</translation>
    </message>
    <message>
        <source>Next event</source>
        <translation>Nächstes Ereignis</translation>
    </message>
    <message>
        <source>Range begins here</source>
        <translation>Bereich beginnt hier</translation>
    </message>
    <message>
        <source>Range ends here</source>
        <translation>Bereich endet hier</translation>
    </message>
    <message>
        <source>Zoom to the selected range</source>
        <translation>Gewählten Bereich zeigen</translation>
    </message>
    <message>
        <source>Clear the selected range</source>
        <translation>Gewählten Bereich aufheben</translation>
    </message>
</context>
<context>
    <name>Review::TimelinePane</name>
    <message>
        <source>Cameras on the timeline</source>
        <translation>Kameras auf der Zeitleiste</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Zeitleiste</translation>
    </message>
</context>
<context>
    <name>Review::TimelineToolBar</name>
    <message>
        <source>Timeline</source>
        <translation>Zeitleiste</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>&amp;Vergrößern</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Whole period</source>
        <translation>Gesamter &amp;Zeitraum</translation>
    </message>
    <message>
        <source>&amp;Previous view</source>
        <translation>Vorherige &amp;Ansicht</translation>
    </message>
    <message>
        <source>Ne&amp;xt view</source>
        <translation>Nä&amp;chste Ansicht</translation>
    </message>
    <message>
        <source>&amp;Zoom freely</source>
        <translation>&amp;Stufenlos zoomen</translation>
    </message>
    <message>
        <source>&amp;Earlier</source>
        <translation>&amp;Früher</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>S&amp;päter</translation>
    </message>
    <message>
        <source>E&amp;vents</source>
        <translation>&amp;Ereignisse</translation>
    </message>
    <message>
        <source>Shows the events on the timeline</source>
        <translation>Zeigt die Ereignisse auf der Zeitleiste</translation>
    </message>
    <message>
        <source>&amp;Ranges</source>
        <translation>&amp;Bereiche</translation>
    </message>
    <message>
        <source>Sets a search range and a result range</source>
        <translation>Legt einen Suchbereich und einen Ergebnisbereich fest</translation>
    </message>
    <message>
        <source>Cameras on the &amp;timeline</source>
        <translation>Kameras auf der Zeit&amp;leiste</translation>
    </message>
    <message>
        <source>N&amp;umber and severity of events</source>
        <translation>Anzahl &amp;und Schwere der Ereignisse</translation>
    </message>
    <message>
        <source>&amp;Activity in the overview</source>
        <translation>&amp;Geschehen in der Übersicht</translation>
    </message>
    <message>
        <source>&amp;Current time</source>
        <translation>Ak&amp;tuelle Zeit</translation>
    </message>
    <message>
        <source>Brings the time that is shown back into the view of the timeline</source>
        <translation>Holt die gezeigte Zeit in den Ausschnitt der Zeitleiste zurück</translation>
    </message>
    <message>
        <source>&amp;Drag to select a range</source>
        <translation>Durch Ziehen einen Bereich &amp;wählen</translation>
    </message>
    <message>
        <source>&amp;Newest recording</source>
        <translation>&amp;Neueste Aufzeichnung</translation>
    </message>
</context>
<context>
    <name>Review::TransportBar</name>
    <message>
        <source>Skip gaps</source>
        <translation>Lücken überspringen</translation>
    </message>
    <message>
        <source>Leaves out the times without a recording of the camera</source>
        <translation>Lässt die Zeiten aus, in denen die Kamera nichts aufgezeichnet hat</translation>
    </message>
    <message>
        <source>There is nothing to show.</source>
        <translation>Es gibt nichts zu zeigen.</translation>
    </message>
    <message>
        <source>%1 – %2 (%3)</source>
        <translation>%1 – %2 (%3)</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
</context>
<context>
    <name>Review::UnreadableFile</name>
    <message>
        <source>The file is missing.</source>
        <translation>Die Datei fehlt.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The file is damaged or of an unknown kind.</source>
        <translation>Die Datei ist beschädigt oder von unbekannter Art.</translation>
    </message>
    <message>
        <source>The file has no pictures that can be shown.</source>
        <translation>Die Datei enthält keine Bilder, die sich anzeigen lassen.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Die Datei kann nicht gelesen werden: %1</translation>
    </message>
</context>
<context>
    <name>Review::UpdateMenu</name>
    <message>
        <source>&amp;Updates</source>
        <translation>A&amp;ktualisierung</translation>
    </message>
    <message>
        <source>&amp;Check version file</source>
        <translation>&amp;Versionsdatei prüfen</translation>
    </message>
    <message>
        <source>&amp;Show change log</source>
        <translation>Änder&amp;ungen anzeigen</translation>
    </message>
    <message>
        <source>&amp;Ask update server</source>
        <translation>Update-&amp;Server fragen</translation>
    </message>
    <message>
        <source>Waiting for the update server</source>
        <translation>Warten auf den Update-Server</translation>
    </message>
</context>
<context>
    <name>Review::UpdatesPage</name>
    <message>
        <source>Updates</source>
        <translation>Aktualisierung</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>&amp;Internal server:</source>
        <translation>&amp;Interner Server:</translation>
    </message>
    <message>
        <source>&amp;Public server:</source>
        <translation>Öffentlicher &amp;Server:</translation>
    </message>
    <message>
        <source>&amp;Update server:</source>
        <translation>&amp;Update-Server:</translation>
    </message>
    <message>
        <source>An empty field stands for no server. What is marked red is not an address and will not be taken over.</source>
        <translation>Ein leeres Feld steht für keinen Server. Was rot markiert ist, ist keine Adresse und wird nicht übernommen.</translation>
    </message>
    <message>
        <source>&amp;News feed:</source>
        <translation>&amp;Nachrichten:</translation>
    </message>
</context>
<context>
    <name>Review::VideoSource</name>
    <message>
        <source>The file ends before this time.</source>
        <translation>Die Datei endet vor dieser Zeit.</translation>
    </message>
</context>
<context>
    <name>Review::ZoneCombo</name>
    <message>
        <source>This computer</source>
        <translation>Dieser Computer</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Zeitzone</translation>
    </message>
</context>
</TS>
