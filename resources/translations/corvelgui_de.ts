<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Corvel::CheckAppUpdate</name>
    <message>
        <source>The server&apos;s answer is not one of an update server.</source>
        <translation>Die Antwort stammt nicht von einem Update-Server.</translation>
    </message>
    <message>
        <source>The server&apos;s answer has no valid “%1”.</source>
        <translation>Die Antwort des Servers enthält kein gültiges „%1“.</translation>
    </message>
</context>
<context>
    <name>Corvel::FileDownloader</name>
    <message>
        <source>The download was cancelled.</source>
        <translation>Der Download wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The file cannot be written: %1</source>
        <translation>Die Datei kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>The file must not be replaced.</source>
        <translation>Die Datei darf nicht ersetzt werden.</translation>
    </message>
</context>
<context>
    <name>Corvel::LimitedReply</name>
    <message>
        <source>The server did not finish in time.</source>
        <translation>Der Server hat die Übertragung nicht rechtzeitig abgeschlossen.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Der Server antwortet nicht.</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>Die Anfrage wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The server sends more than %1.</source>
        <translation>Der Server sendet mehr als %1.</translation>
    </message>
    <message>
        <source>The server answered with status %1.</source>
        <translation>Der Server hat mit dem Status %1 geantwortet.</translation>
    </message>
    <message>
        <source>This is not the address of a server.</source>
        <translation>Das ist keine Serveradresse.</translation>
    </message>
    <message>
        <source>The connection was closed too early.</source>
        <translation>Die Verbindung wurde zu früh getrennt.</translation>
    </message>
    <message>
        <source>The server leads to an address that is not safe.</source>
        <translation>Der Server verweist auf eine unsichere Adresse.</translation>
    </message>
    <message>
        <source>The server leads in circles.</source>
        <translation>Der Server leitet im Kreis weiter.</translation>
    </message>
</context>
<context>
    <name>CorvelGui::AboutInfo7</name>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Version:</translation>
    </message>
    <message>
        <source>Build:</source>
        <translation>Stand:</translation>
    </message>
    <message>
        <source>Look:</source>
        <translation>Aussehen:</translation>
    </message>
</context>
<context>
    <name>CorvelGui::AppUpdater</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Error while checking for Software Updates:
</source>
        <translation>Fehler bei der Suche nach Software-Updates:
</translation>
    </message>
    <message>
        <source>No Updates Available</source>
        <translation>Keine Updates verfügbar</translation>
    </message>
    <message>
        <source>Your version of %1 is already up-to-date.</source>
        <translation>Ihre Version von %1 ist bereits aktuell.</translation>
    </message>
    <message>
        <source>Save Software</source>
        <translation>Software speichern</translation>
    </message>
    <message>
        <source>Executable (*.exe)</source>
        <translation>Programmdatei (*.exe)</translation>
    </message>
    <message>
        <source>Unable to start download of Software Update.</source>
        <translation>Der Download des Software-Updates konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>Error during download of Software Update:

%1</source>
        <translation>Fehler beim Download des Software-Updates:

%1</translation>
    </message>
    <message>
        <source>Download finished</source>
        <translation>Download abgeschlossen</translation>
    </message>
    <message>
        <source>Software Update download finished successfully.
Open download location?</source>
        <translation>Der Download des Software-Updates wurde erfolgreich abgeschlossen.
Speicherort öffnen?</translation>
    </message>
</context>
<context>
    <name>CorvelGui::AppUpdaterDialog</name>
    <message>
        <source>Update Available</source>
        <translation>Update verfügbar</translation>
    </message>
    <message>
        <source>Show Release Notes</source>
        <translation>Versionshinweise anzeigen</translation>
    </message>
    <message>
        <source>Current Version: %1</source>
        <translation>Aktuelle Version: %1</translation>
    </message>
    <message>
        <source>New Version Available: %1</source>
        <translation>Neue Version verfügbar: %1</translation>
    </message>
    <message>
        <source>Release Date: %1</source>
        <translation>Veröffentlicht am: %1</translation>
    </message>
    <message>
        <source>Would you like to download this version?</source>
        <translation>Möchten Sie diese Version herunterladen?</translation>
    </message>
</context>
<context>
    <name>CorvelGui::BusyIndicator</name>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
</context>
<context>
    <name>CorvelGui::DateCalendar</name>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>Kein Datum</translation>
    </message>
</context>
<context>
    <name>CorvelGui::FileNameValidatingLineEdit</name>
    <message>
        <source>Name is empty.</source>
        <translation>Der Name ist leer.</translation>
    </message>
    <message>
        <source>Name contains white space.</source>
        <translation>Der Name enthält Leerraum.</translation>
    </message>
    <message>
        <source>Invalid character &apos;%1&apos;.</source>
        <translation>Ungültiges Zeichen „%1“.</translation>
    </message>
    <message>
        <source>Name matches MS Windows device. (%1).</source>
        <translation>Der Name ist der eines Windows-Geräts (%1).</translation>
    </message>
    <message>
        <source>File extension %1 is required:</source>
        <translation>Die Dateiendung %1 ist erforderlich:</translation>
    </message>
    <message>
        <source>File extensions %1 are required:</source>
        <translation>Eine der Dateiendungen %1 ist erforderlich:</translation>
    </message>
</context>
<context>
    <name>CorvelGui::FilterLineEdit</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Clear text</source>
        <translation>Text löschen</translation>
    </message>
</context>
<context>
    <name>CorvelGui::ImageHelper</name>
    <message>
        <source>This is not a picture that can be shown.</source>
        <translation>Das ist kein Bild, das angezeigt werden kann.</translation>
    </message>
    <message>
        <source>The picture is damaged or not complete.</source>
        <translation>Das Bild ist beschädigt oder unvollständig.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2 pixels.</source>
        <translation>Das Bild ist zu groß: %1 × %2 Pixel.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>Das ist keine Datei.</translation>
    </message>
    <message>
        <source>The file is larger than %1.</source>
        <translation>Die Datei ist größer als %1.</translation>
    </message>
</context>
<context>
    <name>CorvelGui::Info3rdLicences</name>
    <message>
        <source>Licence: %1</source>
        <translation>Lizenz: %1</translation>
    </message>
    <message>
        <source>The text of the licence is missing: %1</source>
        <translation>Der Text der Lizenz fehlt: %1</translation>
    </message>
    <message>
        <source>Filter components</source>
        <translation>Bestandteile filtern</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Bestandteile</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>CorvelGui::JumpToTimepointDialog</name>
    <message>
        <source>Jump to timepoint</source>
        <translation>Zu Zeitpunkt springen</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Which of the two times</source>
        <translation>Welche der beiden Uhrzeiten</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Previous Day</source>
        <translation>Vorheriger Tag</translation>
    </message>
    <message>
        <source>Next Day</source>
        <translation>Nächster Tag</translation>
    </message>
</context>
<context>
    <name>CorvelGui::MarkerList</name>
    <message>
        <source>Markers of this symbol</source>
        <translation>Marker dieses Symbols</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CorvelGui::MomentEntry</name>
    <message>
        <source>The clocks are put back here, so this time comes twice. Choose one:</source>
        <translation>Hier werden die Uhren zurückgestellt, daher gibt es diese Uhrzeit zweimal. Wählen Sie eine aus:</translation>
    </message>
    <message>
        <source>The clocks are put forward here, so this time does not exist.</source>
        <translation>Hier werden die Uhren vorgestellt, daher gibt es diese Uhrzeit nicht.</translation>
    </message>
    <message>
        <source>The first (%1)</source>
        <translation>Die erste (%1)</translation>
    </message>
    <message>
        <source>The second (%1)</source>
        <translation>Die zweite (%1)</translation>
    </message>
    <message>
        <source>There is nothing at this time. Choose one from %1 to %2.</source>
        <translation>Zu dieser Zeit gibt es nichts. Wählen Sie eine von %1 bis %2.</translation>
    </message>
</context>
<context>
    <name>CorvelGui::NetworkInterfaceComboBox</name>
    <message>
        <source>No Network Connection</source>
        <translation>Keine Netzwerkverbindung</translation>
    </message>
</context>
<context>
    <name>CorvelGui::OptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>Optionen durchsuchen</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PAskRefreshDialog</name>
    <message>
        <source>Refresh of Device Information</source>
        <translation>Geräteinformationen aktualisieren</translation>
    </message>
    <message>
        <source>Do you want to update all device status information?</source>
        <translation>Möchten Sie die Statusinformationen aller Geräte aktualisieren?</translation>
    </message>
    <message>
        <source>Show next time on program start</source>
        <translation>Beim nächsten Programmstart anzeigen</translation>
    </message>
    <message>
        <source>The last update of device information was on %1</source>
        <translation>Letzte Aktualisierung der Geräteinformationen: %1</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PChangeLogDialog</name>
    <message>
        <source>Change Log</source>
        <translation>Änderungsprotokoll</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PCheckVersionUpdate</name>
    <message>
        <source>Could not download change log information.</source>
        <translation>Das Änderungsprotokoll konnte nicht heruntergeladen werden.</translation>
    </message>
    <message>
        <source>Update check failed</source>
        <translation>Update-Prüfung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Cannot connect to Orvane Software Update Server!
Please check internet connection.</source>
        <translation>Der Orvane-Software-Update-Server ist nicht erreichbar.
Bitte prüfen Sie die Internetverbindung.</translation>
    </message>
    <message>
        <source>Internal error!
Cannot parse version information.</source>
        <translation>Interner Fehler!
Die Versionsinformationen sind nicht lesbar.</translation>
    </message>
    <message>
        <source>Your %1 Version is up to date</source>
        <translation>Ihre Version von %1 ist aktuell</translation>
    </message>
    <message>
        <source> </source>
        <translation> </translation>
    </message>
    <message>
        <source>(Internal Release Channel)</source>
        <translation>(Interner Release-Kanal)</translation>
    </message>
    <message>
        <source>%1

Current version: %2
A new version is available: %3
Release date: %4

Would you like to download this version?</source>
        <translation>%1

Aktuelle Version: %2
Eine neue Version ist verfügbar: %3
Veröffentlicht am: %4

Möchten Sie diese Version herunterladen?</translation>
    </message>
    <message>
        <source>Save Software</source>
        <translation>Software speichern</translation>
    </message>
    <message>
        <source>Executable (*.exe)</source>
        <translation>Programmdatei (*.exe)</translation>
    </message>
    <message>
        <source>Download failed</source>
        <translation>Download fehlgeschlagen</translation>
    </message>
    <message>
        <source>Download failed!

Error: %1</source>
        <translation>Der Download ist fehlgeschlagen.

Fehler: %1</translation>
    </message>
    <message>
        <source>Error while saving file!</source>
        <translation>Fehler beim Speichern der Datei.</translation>
    </message>
    <message>
        <source>Downloading of new version was finished successfully!

Location: %1

Open download file location?</source>
        <translation>Die neue Version wurde erfolgreich heruntergeladen.

Speicherort: %1

Speicherort öffnen?</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PCheckVersionUpdateDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Software-Update</translation>
    </message>
    <message>
        <source>Show Change Log</source>
        <translation>Änderungsprotokoll anzeigen</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PColorButton</name>
    <message>
        <source>Choose a colour</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>Colour %1</source>
        <translation>Farbe %1</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PColorComboBox</name>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>Other colour…</source>
        <translation>Andere Farbe …</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PCsvDialog</name>
    <message>
        <source>Csv Export Dialog</source>
        <translation>CSV-Export</translation>
    </message>
    <message>
        <source>Export to file:</source>
        <translation>In Datei exportieren:</translation>
    </message>
    <message>
        <source>Enter a File name with a &apos;csv&apos; suffix</source>
        <translation>Geben Sie einen Dateinamen mit der Endung „csv“ ein</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>Datei auswählen</translation>
    </message>
    <message>
        <source>Delimiter:</source>
        <translation>Trennzeichen:</translation>
    </message>
    <message>
        <source>Text quote:</source>
        <translation>Textbegrenzer:</translation>
    </message>
    <message>
        <source>Add column names on top:</source>
        <translation>Spaltennamen voranstellen:</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Open File with MS Excel</source>
        <translation>Datei mit MS Excel öffnen</translation>
    </message>
    <message>
        <source>  Tabulation</source>
        <translation>  Tabulator</translation>
    </message>
    <message>
        <source>; Semicolon</source>
        <translation>; Semikolon</translation>
    </message>
    <message>
        <source>, Comma</source>
        <translation>, Komma</translation>
    </message>
    <message>
        <source>&quot;...&quot; Double Quotation Marks</source>
        <translation>&quot;...&quot; Doppelte Anführungszeichen</translation>
    </message>
    <message>
        <source>&apos;...&apos; Single Quotation Marks</source>
        <translation>&apos;...&apos; Einfache Anführungszeichen</translation>
    </message>
    <message>
        <source>Cannot write file %1:
%2.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden:
%2.</translation>
    </message>
    <message>
        <source>Save file</source>
        <translation>Datei speichern</translation>
    </message>
    <message>
        <source>Comma Separated Values (CSV) File (*.csv);; All (*.*)</source>
        <translation>CSV-Datei (*.csv);; Alle Dateien (*.*)</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PDateTimeSelectionDialog</name>
    <message>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Datum</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Uhrzeit</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>Which of the two times</source>
        <translation>Welche der beiden Uhrzeiten</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>&amp;Jetzt</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PDeviceItem</name>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PFilterButton</name>
    <message>
        <source>Nothing is filtered</source>
        <translation>Nichts wird gefiltert</translation>
    </message>
    <message>
        <source>Only: %1</source>
        <translation>Nur: %1</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle zeigen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PFirmwareVersionItem</name>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PHeaderCheckMenu</name>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PImageWidget</name>
    <message>
        <source>Loading…</source>
        <translation>Wird geladen …</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 Pixel</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PInputDateTimeWithRange</name>
    <message>
        <source>Range</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>Own range</source>
        <translation>Eigener Zeitraum</translation>
    </message>
    <message>
        <source>Last hour</source>
        <translation>Letzte Stunde</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Letzte 7 Tage</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>From, date</source>
        <translation>Von, Datum</translation>
    </message>
    <message>
        <source>From, time</source>
        <translation>Von, Uhrzeit</translation>
    </message>
    <message>
        <source>From, which of the two times</source>
        <translation>Von, welche der beiden Uhrzeiten</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>To, date</source>
        <translation>Bis, Datum</translation>
    </message>
    <message>
        <source>To, time</source>
        <translation>Bis, Uhrzeit</translation>
    </message>
    <message>
        <source>To, which of the two times</source>
        <translation>Bis, welche der beiden Uhrzeiten</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PIpItem</name>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PIpRangeDialog</name>
    <message>
        <source>Create Additional IP Range</source>
        <translation>Weiteren IP-Bereich anlegen</translation>
    </message>
    <message>
        <source>New IP Range</source>
        <translation>Neuer IP-Bereich</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Maske</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PLanguageDialog</name>
    <message>
        <source>Application Language Settings</source>
        <translation>Spracheinstellungen der Anwendung</translation>
    </message>
    <message>
        <source>Select Language</source>
        <translation>Sprache auswählen</translation>
    </message>
    <message>
        <source>There are no translations available.</source>
        <translation>Es sind keine Übersetzungen verfügbar.</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PPasswordInputDialog</name>
    <message>
        <source>Input Password</source>
        <translation>Passwort eingeben</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Remember password for all future configurations</source>
        <translation>Passwort für alle weiteren Konfigurationen merken</translation>
    </message>
    <message>
        <source>Wrong Password!</source>
        <translation>Falsches Passwort!</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PPathItem</name>
    <message>
        <source>Group Path</source>
        <translation>Gruppenpfad</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PPlaybar</name>
    <message>
        <source>PPlaybar</source>
        <translation>PPlaybar</translation>
    </message>
    <message>
        <source>Track Begin</source>
        <translation>Spuranfang</translation>
    </message>
    <message>
        <source>Fast Backward</source>
        <translation>Schneller Rücklauf</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>Rückwärts</translation>
    </message>
    <message>
        <source>Frame Backward</source>
        <translation>Einzelbild zurück</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Frame Forward</source>
        <translation>Einzelbild vor</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation>Schneller Vorlauf</translation>
    </message>
    <message>
        <source>Track End</source>
        <translation>Spurende</translation>
    </message>
    <message>
        <source>Playspeed</source>
        <translation>Wiedergabegeschwindigkeit</translation>
    </message>
    <message>
        <source>x %1%2</source>
        <translation>x %1%2</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PRecentComboBox</name>
    <message>
        <source>Forget recent entries</source>
        <translation>Letzte Einträge vergessen</translation>
    </message>
    <message>
        <source>Delete forgets an entry</source>
        <translation>Entf vergisst einen Eintrag</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PSerialNumberItem</name>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PStatusItem</name>
    <message>
        <source>System uptime</source>
        <translation>System-Laufzeit</translation>
    </message>
    <message>
        <source>Application uptime</source>
        <translation>Anwendungs-Laufzeit</translation>
    </message>
    <message>
        <source>End of Software Maintenance</source>
        <translation>Ende der Softwarewartung</translation>
    </message>
    <message>
        <source>(%1 Month(s))</source>
        <translation>(%1 Monat(e))</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PSystemInfoWidget</name>
    <message>
        <source>%1, of which %2 are available</source>
        <translation>%1, davon %2 verfügbar</translation>
    </message>
    <message>
        <source>%1 × %2 at (%3, %4)</source>
        <translation>%1 × %2 bei (%3, %4)</translation>
    </message>
    <message>
        <source>scale %1 %</source>
        <translation>Skalierung %1 %</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>primary</source>
        <translation>Hauptbildschirm</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Platform</source>
        <translation>Plattform</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Kern</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Prozessor</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Threads</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Screens and graphics</source>
        <translation>Bildschirme und Grafik</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Software: no graphics adapter was found</source>
        <translation>Software: keine Grafikkarte gefunden</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Grafik</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Interfaces</source>
        <translation>Schnittstellen</translation>
    </message>
    <message>
        <source>None that is up</source>
        <translation>Keine, die aktiv ist</translation>
    </message>
    <message>
        <source>System information</source>
        <translation>Systeminformationen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PTextEdit</name>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 of %2 characters</source>
        <translation>%1 von %2 Zeichen</translation>
    </message>
    <message>
        <source>Click opens the address</source>
        <translation>Ein Klick öffnet die Adresse</translation>
    </message>
    <message>
        <source>Ctrl+click opens the address</source>
        <translation>Strg+Klick öffnet die Adresse</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PTreeWidget</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the current selection&apos;s contents to the clipboard</source>
        <translation>Den Inhalt der aktuellen Auswahl in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Copy (Cell)</source>
        <translation>Kopieren (Zelle)</translation>
    </message>
    <message>
        <source>Copy the current contents of the cell to the clipboard</source>
        <translation>Den aktuellen Inhalt der Zelle in die Zwischenablage kopieren</translation>
    </message>
</context>
<context>
    <name>CorvelGui::PopupSliderToolButton</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>CorvelGui::ProxySettingsWidget</name>
    <message>
        <source>Without a proxy</source>
        <translation>Ohne Proxy</translation>
    </message>
    <message>
        <source>As set for this computer</source>
        <translation>Wie für diesen Computer eingestellt</translation>
    </message>
    <message>
        <source>HTTP proxy</source>
        <translation>HTTP-Proxy</translation>
    </message>
    <message>
        <source>SOCKS5 proxy</source>
        <translation>SOCKS5-Proxy</translation>
    </message>
    <message>
        <source>The proxy needs a host.</source>
        <translation>Der Proxy braucht einen Rechner.</translation>
    </message>
    <message>
        <source>This is not the name or address of a host.</source>
        <translation>Das ist weder Name noch Adresse eines Rechners.</translation>
    </message>
    <message>
        <source>The proxy needs a port.</source>
        <translation>Der Proxy braucht einen Port.</translation>
    </message>
    <message>
        <source>Not a server: %1</source>
        <translation>Kein Server: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Prüfen</translation>
    </message>
    <message>
        <source>Trying…</source>
        <translation>Wird geprüft …</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Kennwort zeigen</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Kennwort verbergen</translation>
    </message>
    <message>
        <source>A remembered password is kept in the password store of this computer. Otherwise it is forgotten when the program ends.</source>
        <translation>Ein gemerktes Kennwort steht im Kennwortspeicher dieses Computers. Andernfalls wird es vergessen, wenn das Programm endet.</translation>
    </message>
    <message>
        <source>The password store of this computer has not answered yet.</source>
        <translation>Der Kennwortspeicher dieses Computers hat noch nicht geantwortet.</translation>
    </message>
    <message>
        <source>There is no password store on this computer that works. The password is forgotten when the program ends.</source>
        <translation>Auf diesem Computer gibt es keinen Kennwortspeicher, der funktioniert. Das Kennwort wird vergessen, wenn das Programm endet.</translation>
    </message>
    <message>
        <source>The store says: %1</source>
        <translation>Der Speicher meldet: %1</translation>
    </message>
    <message>
        <source>&amp;Connection:</source>
        <translation>&amp;Verbindung:</translation>
    </message>
    <message>
        <source>&amp;Host:</source>
        <translation>&amp;Rechner:</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>P&amp;ort:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Benutzer:</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>&amp;Kennwort:</translation>
    </message>
    <message>
        <source>&amp;Remember the password</source>
        <translation>Kennwort &amp;merken</translation>
    </message>
    <message>
        <source>&amp;Not for:</source>
        <translation>&amp;Nicht für:</translation>
    </message>
    <message>
        <source>Servers that are reached without the proxy, such as %1.</source>
        <translation>Server, die ohne den Proxy erreicht werden, etwa %1.</translation>
    </message>
    <message>
        <source>Test &amp;address:</source>
        <translation>&amp;Adresse zum Prüfen:</translation>
    </message>
</context>
<context>
    <name>CorvelGui::ProxyTest</name>
    <message>
        <source>Connected: %1 answered after %2 ms.</source>
        <translation>Verbunden: %1 hat nach %2 ms geantwortet.</translation>
    </message>
    <message>
        <source>The proxy asks for a user and a password.</source>
        <translation>Der Proxy fragt nach Benutzer und Kennwort.</translation>
    </message>
    <message>
        <source>The proxy refuses this user or password.</source>
        <translation>Der Proxy weist diesen Benutzer oder dieses Kennwort ab.</translation>
    </message>
    <message>
        <source>There is no proxy of the name %1.</source>
        <translation>Es gibt keinen Proxy mit dem Namen %1.</translation>
    </message>
    <message>
        <source>The proxy does not answer.</source>
        <translation>Der Proxy antwortet nicht.</translation>
    </message>
    <message>
        <source>No connection: %1</source>
        <translation>Keine Verbindung: %1</translation>
    </message>
</context>
<context>
    <name>CorvelGui::RSSFeedDialog</name>
    <message>
        <source>%1, not read</source>
        <translation>%1, nicht gelesen</translation>
    </message>
    <message>
        <source>Read more on the web</source>
        <translation>Im Web weiterlesen</translation>
    </message>
    <message>
        <source>What this address has is no feed of news.</source>
        <translation>An dieser Adresse stehen keine Nachrichten.</translation>
    </message>
    <message>
        <source>The feed is damaged.</source>
        <translation>Die Nachrichten sind beschädigt.</translation>
    </message>
    <message>
        <source>The feed is not safe to read.</source>
        <translation>Die Nachrichten können nicht gefahrlos gelesen werden.</translation>
    </message>
    <message>
        <source>Without a title</source>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>Fetching the news…</source>
        <translation>Die Nachrichten werden geholt …</translation>
    </message>
    <message>
        <source>The news cannot be fetched: %1</source>
        <translation>Die Nachrichten können nicht geholt werden: %1</translation>
    </message>
    <message>
        <source>There is no news.</source>
        <translation>Es gibt keine Nachrichten.</translation>
    </message>
    <message>
        <source>News: %1, not read: %2</source>
        <translation>Nachrichten: %1, nicht gelesen: %2</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Text of the chosen entry</source>
        <translation>Text der gewählten Nachricht</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>Fetch the news again (%1)</source>
        <translation>Die Nachrichten neu holen (%1)</translation>
    </message>
    <message>
        <source>Mark &amp;all as read</source>
        <translation>A&amp;lle als gelesen markieren</translation>
    </message>
</context>
<context>
    <name>CorvelGui::RangeSlider</name>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
</context>
<context>
    <name>CorvelGui::Ruler</name>
    <message>
        <source>Timeline</source>
        <translation>Zeitleiste</translation>
    </message>
    <message>
        <source>No position</source>
        <translation>Keine Position</translation>
    </message>
</context>
<context>
    <name>CorvelGui::RulerArrows</name>
    <message>
        <source>Earlier</source>
        <translation>Früher</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
</context>
<context>
    <name>CorvelGui::RulerMarkerButton</name>
    <message>
        <source>Markers: %1</source>
        <translation>Marker: %1</translation>
    </message>
</context>
<context>
    <name>CorvelGui::RulerMarkers</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CorvelGui::RulerRange</name>
    <message>
        <source>Begin of the selected range</source>
        <translation>Anfang des gewählten Bereichs</translation>
    </message>
    <message>
        <source>End of the selected range</source>
        <translation>Ende des gewählten Bereichs</translation>
    </message>
    <message>
        <source>%1, selected: %2</source>
        <translation>%1, gewählt: %2</translation>
    </message>
</context>
<context>
    <name>CorvelGui::StringHelper</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 Tg.</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 Std.</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
</context>
<context>
    <name>CorvelGui::SubNetMaskComboBox</name>
    <message>
        <source>Error: Network Mask Value Invalid (1 to 30)</source>
        <translation>Fehler: Ungültige Netzwerkmaske (1 bis 30)</translation>
    </message>
</context>
<context>
    <name>CorvelGui::TabNameEditor</name>
    <message>
        <source>Name of the tab</source>
        <translation>Name der Registerkarte</translation>
    </message>
</context>
<context>
    <name>CorvelGui::TarvoDateTimeView</name>
    <message>
        <source>DAY</source>
        <translation>TAG</translation>
    </message>
    <message>
        <source>HR</source>
        <translation>STD</translation>
    </message>
    <message>
        <source>MIN</source>
        <translation>MIN</translation>
    </message>
    <message>
        <source>SEC</source>
        <translation>SEK</translation>
    </message>
    <message>
        <source>MS</source>
        <translation>MS</translation>
    </message>
    <message>
        <source>Playback time</source>
        <translation>Wiedergabezeit</translation>
    </message>
    <message>
        <source>Jump to timepoint</source>
        <translation>Zu Zeitpunkt springen</translation>
    </message>
</context>
<context>
    <name>CorvelGui::TextCursor</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>The printer does not accept the report.</source>
        <translation>Der Drucker nimmt den Bericht nicht an.</translation>
    </message>
    <message>
        <source>The printer does not accept all pages.</source>
        <translation>Der Drucker nimmt nicht alle Seiten an.</translation>
    </message>
</context>
<context>
    <name>CorvelGui::TimelineLanes</name>
    <message>
        <source>Tracks</source>
        <translation>Spuren</translation>
    </message>
</context>
<context>
    <name>CorvelGui::TimelineScroll</name>
    <message>
        <source>Timeline overview</source>
        <translation>Übersicht der Zeitleiste</translation>
    </message>
    <message>
        <source>%1 percent</source>
        <translation>%1 Prozent</translation>
    </message>
</context>
<context>
    <name>CorvelGui::VideoSlider</name>
    <message>
        <source>Position in the video</source>
        <translation>Stelle im Video</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>CorvelGui::Zoomer</name>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom level</source>
        <translation>Zoomstufe</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Can not load %1 translations from file
&quot;%2&quot;</source>
        <translation>Die Übersetzungen für %1 konnten nicht aus der Datei geladen werden:
„%2“</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>MSG_YES</comment>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <comment>MSG_NO</comment>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Firmware</source>
        <comment>txtFirmware</comment>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>1/8</source>
        <translation>1/8</translation>
    </message>
    <message>
        <source>1/4</source>
        <translation>1/4</translation>
    </message>
    <message>
        <source>1/2</source>
        <translation>1/2</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>16</source>
        <translation>16</translation>
    </message>
    <message>
        <source>32</source>
        <translation>32</translation>
    </message>
    <message>
        <source>64</source>
        <translation>64</translation>
    </message>
    <message>
        <source>128</source>
        <translation>128</translation>
    </message>
    <message>
        <source>256</source>
        <translation>256</translation>
    </message>
    <message>
        <source>512</source>
        <translation>512</translation>
    </message>
    <message>
        <source>1024</source>
        <translation>1024</translation>
    </message>
</context>
</TS>
