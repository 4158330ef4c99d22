<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>DatabaseSaveWidget</name>
    <message>
        <source>SAVE TO DATABASE</source>
        <comment>Header label to save record to the database.</comment>
        <translation>IN DATENBANK SPEICHERN</translation>
    </message>
    <message>
        <source>Save Current Record</source>
        <comment>Label to save current record into the database.</comment>
        <translation>Aktuellen Datensatz speichern</translation>
    </message>
    <message>
        <source>Overwrites current record in database</source>
        <comment>Save info label</comment>
        <translation>Überschreibt den aktuellen Datensatz</translation>
    </message>
    <message>
        <source>Save As New Record</source>
        <comment>Label to save as a new record into the database.</comment>
        <translation>Als neuen Datensatz speichern</translation>
    </message>
    <message>
        <source>Saves as new record in database</source>
        <comment>Save As info label</comment>
        <translation>Legt einen neuen Datensatz an</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>Ok button for saving to a database.</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>Cancel button for saving to a database.</comment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>DatabaseSelectorDialog</name>
    <message>
        <source>Database</source>
        <comment>Title that shows multiple databases.</comment>
        <translation>Datenbank</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>Button to confirm selecting a database.</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>DATABASE SELECTOR</source>
        <translation>DATENBANKAUSWAHL</translation>
    </message>
</context>
<context>
    <name>DragScrollTableView</name>
    <message>
        <source>Select all</source>
        <comment>Accessible name of the button in the corner of a table.</comment>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>LockWidget</name>
    <message>
        <source>Lock</source>
        <comment>Lock button text.</comment>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>All object properties except for data editing are prevented from being changed.</source>
        <comment>Lock button tool tip text.</comment>
        <translation>Alle Eigenschaften des Objekts sind vor Änderungen geschützt, nur seine Daten nicht.</translation>
    </message>
    <message>
        <source>Read
Only</source>
        <comment>Read-only button text.</comment>
        <translation>Schreib-
schutz</translation>
    </message>
    <message>
        <source>All object properties are prevented from being changed.</source>
        <comment>Read-only button tool tip text.</comment>
        <translation>Alle Eigenschaften des Objekts sind vor Änderungen geschützt.</translation>
    </message>
    <message>
        <source>Set As User
Background</source>
        <comment>User template button text.</comment>
        <translation>Als Benutzer-
hintergrund</translation>
    </message>
    <message>
        <source>The object is placed in a separate layer, that can be hidden (option in defaults menu) 
and optionally printed (option in print widget).</source>
        <comment>User template button tool tip text.</comment>
        <translation>Das Objekt liegt auf einer eigenen Ebene, die ausgeblendet (Option im Menü der Vorgaben) 
und wahlweise gedruckt werden kann (Option beim Drucken).</translation>
    </message>
    <message>
        <source>Lock Options</source>
        <comment>Section header for object lock options.</comment>
        <translation>Sperroptionen</translation>
    </message>
</context>
<context>
    <name>MultiItemSelectionDialog</name>
    <message>
        <source>Import</source>
        <comment>Button text for importing a file.</comment>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>Button text for accepting the selection dialog.</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>Button text for canceling selection dialog.</comment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>MultiItemSelectionWidget</name>
    <message>
        <source>ERROR</source>
        <comment>The title of an error dialog window.</comment>
        <translation>FEHLER</translation>
    </message>
    <message>
        <source>Selection Limit: %1.</source>
        <comment>Label showing the limit for items selected.</comment>
        <translation>Höchstens wählbar: %1.</translation>
    </message>
    <message>
        <source>Available:</source>
        <comment>Label for showing number of available items.</comment>
        <translation>Verfügbar:</translation>
    </message>
    <message>
        <source>Selected:</source>
        <comment>Label for showing number of selected items.</comment>
        <translation>Ausgewählt:</translation>
    </message>
    <message>
        <source>Add all</source>
        <comment>Accessible name of the button that selects all items.</comment>
        <translation>Alle hinzufügen</translation>
    </message>
    <message>
        <source>Add</source>
        <comment>Accessible name of the button that selects items.</comment>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove all</source>
        <comment>Accessible name of the button that takes back all selected items.</comment>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Remove</source>
        <comment>Accessible name of the button that takes back selected items.</comment>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Up</source>
        <comment>Accessible name of the button that moves items up.</comment>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Down</source>
        <comment>Accessible name of the button that moves items down.</comment>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Available</source>
        <comment>Accessible name of the list of available items.</comment>
        <translation>Verfügbar</translation>
    </message>
    <message>
        <source>Selected</source>
        <comment>Accessible name of the list of selected items.</comment>
        <translation>Ausgewählt</translation>
    </message>
</context>
<context>
    <name>NavigationBar</name>
    <message>
        <source>Enter Search Parameters</source>
        <comment>Placeholder text for search a database using a set of parameters.</comment>
        <translation>Suchbegriffe eingeben</translation>
    </message>
    <message>
        <source>Record</source>
        <comment>Accessible name of the field for the number of a record.</comment>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Previous record</source>
        <comment>Accessible name of the button to the previous record.</comment>
        <translation>Voriger Datensatz</translation>
    </message>
    <message>
        <source>Next record</source>
        <comment>Accessible name of the button to the next record.</comment>
        <translation>Nächster Datensatz</translation>
    </message>
    <message>
        <source>Search for</source>
        <comment>Accessible name of the field for what is searched.</comment>
        <translation>Suchen nach</translation>
    </message>
    <message>
        <source>Search by</source>
        <comment>Accessible name of the box for the term to search by.</comment>
        <translation>Suchen in</translation>
    </message>
    <message>
        <source>Search</source>
        <comment>Accessible name of the search button.</comment>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <comment>Accessible name of a zoom button.</comment>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <comment>Accessible name of a zoom button.</comment>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom to fit</source>
        <comment>Accessible name of a zoom button.</comment>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>Accessible name of the close button.</comment>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>1 record(s)</source>
        <comment>Label showing number of available database records.</comment>
        <translation>Datensätze: 1</translation>
    </message>
    <message>
        <source>%1 record</source>
        <comment>Label showing number of available database records.</comment>
        <translation>Datensätze: %1</translation>
    </message>
    <message>
        <source>%1 records</source>
        <comment>Label showing number of available database records.</comment>
        <translation>Datensätze: %1</translation>
    </message>
</context>
<context>
    <name>OxCollapsibleWidgetContainer</name>
    <message>
        <source>Show or hide</source>
        <comment>Accessible name of the button that folds a section.</comment>
        <translation>Ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>OxFileDialog</name>
    <message>
        <source>Cancel</source>
        <comment>Button text to cancel file dialog.</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Up</source>
        <comment>Accessible name of the button that shows the folder above.</comment>
        <translation>Übergeordneter Ordner</translation>
    </message>
    <message>
        <source>Location</source>
        <comment>Accessible name of the box that names the shown folder.</comment>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Files</source>
        <comment>Accessible name of the list of files and folders.</comment>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Favorites</source>
        <comment>Header label for display favorite folder locations.</comment>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source> Name</source>
        <comment>Label used to denote what the current &apos;File Name&apos; or &apos;Folder Name&apos; is selected.</comment>
        <translation>name</translation>
    </message>
    <message>
        <source>Format</source>
        <comment>Label to denote the file format selected.</comment>
        <translation>Format</translation>
    </message>
    <message>
        <source>%1 %2%3</source>
        <comment>Title of the dialog: %1 is Open, Save or Select, %2 File or Folder, %3 Dialog.</comment>
        <translation>%2 %1%3</translation>
    </message>
</context>
<context>
    <name>OxHelpWindow</name>
    <message>
        <source>Common Help</source>
        <comment>Title of the common help section for frequently asked questions.</comment>
        <translation>Häufige Fragen</translation>
    </message>
    <message>
        <source>Detailed Help</source>
        <comment>Title of the detailed help section for frequently asked questions.</comment>
        <translation>Handbücher</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>Close button for the help menu.</comment>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>HELP</source>
        <comment>The title of the help dialog.</comment>
        <translation>HILFE</translation>
    </message>
</context>
<context>
    <name>OxInfoWidget</name>
    <message>
        <source>ABOUT</source>
        <comment>Section header for displaying information about the application.</comment>
        <translation>ÜBER</translation>
    </message>
    <message>
        <source>About </source>
        <comment>Label for displaying information about the application.</comment>
        <translation>Über </translation>
    </message>
    <message>
        <source>For help or feedback, call
555-0142
or write to
support@example.com</source>
        <comment>Contact information for users that need help with the application. The backslash n characters are newlines and should be ignored.</comment>
        <translation>Hilfe und Anregungen: Telefon
555-0142
oder E-Mail an
support@example.com</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>Button text to close the About window.</comment>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Version: </source>
        <translation>Version: </translation>
    </message>
    <message>
        <source>Version: </source>
        <comment>Label that displays the application version</comment>
        <translation>Version: </translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <comment>LTR, or RTL for languages that are written from right to left.</comment>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Add To Favorites</source>
        <comment>Text on the button to add a folder location to a list of favorites.</comment>
        <translation>Zu Favoriten</translation>
    </message>
    <message>
        <source>Remove Favorite</source>
        <comment>Text on the button for removing a favorite folder location.</comment>
        <translation>Favorit entfernen</translation>
    </message>
    <message>
        <source>Save</source>
        <comment>First part of the Save File Dialog title.</comment>
        <translation>speichern</translation>
    </message>
    <message>
        <source>Select</source>
        <comment>First part of the Select File Dialog title.</comment>
        <translation>auswählen</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>First part of the Open File Dialog title.</comment>
        <translation>öffnen</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>Middle part of the Select Folder Dialog title.</comment>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>File</source>
        <comment>Middle part of the Select File Dialog title.</comment>
        <translation>Datei</translation>
    </message>
    <message>
        <source> Dialog</source>
        <comment>Last part of the File or Folder Dialog title.</comment>
        <translation> </translation>
    </message>
    <message>
        <source>All</source>
        <comment>Section header for showing all symbols.</comment>
        <translation>Alle</translation>
    </message>
    <message>
        <source>User Symbols</source>
        <comment>Header label for symbol insert menu.</comment>
        <translation>Eigene Symbole</translation>
    </message>
    <message>
        <source>Symbols</source>
        <comment>Accessible name of a list of symbols.</comment>
        <translation>Symbole</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Alles speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Ja, &amp;alle</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;ein, keine</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Voreinstellungen</translation>
    </message>
</context>
<context>
    <name>SymbolDatabaseModel</name>
    <message>
        <source>Query:[%1] Failed With:[%2]</source>
        <comment>Error message: A query is used to extract data from the database.</comment>
        <translation>Abfrage:[%1] fehlgeschlagen mit:[%2]</translation>
    </message>
    <message>
        <source>Unknown category: [%1]</source>
        <comment>Error message: Categories are child tables of a parent table in a database.</comment>
        <translation>Unbekannte Kategorie: [%1]</translation>
    </message>
    <message>
        <source>[%1]: Connection already exists, possible failure to remove connection</source>
        <comment>Error message: Database is already connected.</comment>
        <translation>[%1]: Verbindung besteht bereits, vielleicht wurde sie nicht entfernt</translation>
    </message>
    <message>
        <source>Failed to open database connection:[%1]</source>
        <comment>Error message: unable to connect to a database file.</comment>
        <translation>Datenbankverbindung konnte nicht geöffnet werden:[%1]</translation>
    </message>
    <message>
        <source>Failed to enable foreign key support</source>
        <comment>Error message: database is unable to support a foreign key that identifies a row of another table.</comment>
        <translation>Fremdschlüssel konnten nicht aktiviert werden</translation>
    </message>
    <message>
        <source>[%1]: Connection does not exist, can not close database</source>
        <comment>Error message: closing a database connection.</comment>
        <translation>[%1]: Verbindung besteht nicht, Datenbank kann nicht geschlossen werden</translation>
    </message>
    <message>
        <source>Failed to start transaction:[%1]</source>
        <comment>Error message: A transaction is a single unit of work for data retrieval or updates.</comment>
        <translation>Transaktion konnte nicht begonnen werden:[%1]</translation>
    </message>
    <message>
        <source>Failed to commit transaction:[%1]</source>
        <comment>Error message: A transaction is a single unit of work for data retrieval or updates.</comment>
        <translation>Transaktion konnte nicht abgeschlossen werden:[%1]</translation>
    </message>
    <message>
        <source>Image file path does not exist: [%1]</source>
        <comment>Error message: trying to open symbol file.</comment>
        <translation>Bilddatei existiert nicht: [%1]</translation>
    </message>
    <message>
        <source>Failed to open image file: [%1]</source>
        <comment>Error message: trying to open symbol file.</comment>
        <translation>Bilddatei konnte nicht geöffnet werden: [%1]</translation>
    </message>
    <message>
        <source>Raw SVG Data is null, can not create thumbnail</source>
        <comment>Error message: Unable to create a file thumbnail using the empty unprocessed image data.</comment>
        <translation>SVG-Daten fehlen, Vorschaubild kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>Unknown tag: [%1]</source>
        <comment>Error message: tag is a keyword assigned to a piece of info.</comment>
        <translation>Unbekanntes Schlagwort: [%1]</translation>
    </message>
    <message>
        <source>All Categories</source>
        <comment>All database categories.</comment>
        <translation>Alle Kategorien</translation>
    </message>
</context>
<context>
    <name>SymbolDatabaseWidget</name>
    <message>
        <source>Insert From File</source>
        <comment>Button text for inserting a custom symbol from a file.</comment>
        <translation>Aus Datei einfügen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>Button text to cancel and close the symbol widget.</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>SYMBOLS</source>
        <comment>Header label for symbol insert menu.</comment>
        <translation>SYMBOLE</translation>
    </message>
    <message>
        <source>Insert</source>
        <comment>Button text for inserting a symbol.</comment>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>SYMBOLS - INSERT</source>
        <comment>Window title for this section that inserts symbols.</comment>
        <translation>SYMBOLE - EINFÜGEN</translation>
    </message>
    <message>
        <source>Insert</source>
        <comment>Button text for inserting a symbol image.</comment>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>SYMBOLS - EDIT</source>
        <comment>Window title for this section that edits symbols.</comment>
        <translation>SYMBOLE - BEARBEITEN</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>Button text for accepting the edit of a symbol image.</comment>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SymbolsLineEdit</name>
    <message>
        <source>Search symbols</source>
        <comment>Accessible name of the symbol search field.</comment>
        <translation>Symbole suchen</translation>
    </message>
    <message>
        <source>Search</source>
        <comment>Accessible name of the magnifier in the symbol search field.</comment>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>SymbolsMenu</name>
    <message>
        <source>Category</source>
        <comment>Accessible name of the symbols&apos; categories.</comment>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>All Categories</source>
        <comment>Categories header for showing all symbols.</comment>
        <translation>Alle Kategorien</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Close</source>
        <comment>Accessible name of the close button of a title bar.</comment>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>ToolBoxContainer</name>
    <message>
        <source>Scroll up</source>
        <comment>Accessible name of the arrow above a column of panels.</comment>
        <translation>Nach oben blättern</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <comment>Accessible name of the arrow below a column of panels.</comment>
        <translation>Nach unten blättern</translation>
    </message>
</context>
</TS>
