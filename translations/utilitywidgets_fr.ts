<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>DatabaseSaveWidget</name>
    <message>
        <source>SAVE TO DATABASE</source>
        <comment>Header label to save record to the database.</comment>
        <translation>ENREGISTRER DANS LA BASE</translation>
    </message>
    <message>
        <source>Save Current Record</source>
        <comment>Label to save current record into the database.</comment>
        <translation>Enregistrer la fiche actuelle</translation>
    </message>
    <message>
        <source>Overwrites current record in database</source>
        <comment>Save info label</comment>
        <translation>Remplace la fiche actuelle dans la base</translation>
    </message>
    <message>
        <source>Save As New Record</source>
        <comment>Label to save as a new record into the database.</comment>
        <translation>Enregistrer comme nouvelle fiche</translation>
    </message>
    <message>
        <source>Saves as new record in database</source>
        <comment>Save As info label</comment>
        <translation>Ajoute une nouvelle fiche à la base</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>Ok button for saving to a database.</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>Cancel button for saving to a database.</comment>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>DatabaseSelectorDialog</name>
    <message>
        <source>Database</source>
        <comment>Title that shows multiple databases.</comment>
        <translation>Base de données</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>Button to confirm selecting a database.</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>DATABASE SELECTOR</source>
        <translation>CHOIX DE LA BASE</translation>
    </message>
</context>
<context>
    <name>DragScrollTableView</name>
    <message>
        <source>Select all</source>
        <comment>Accessible name of the button in the corner of a table.</comment>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>LockWidget</name>
    <message>
        <source>Lock</source>
        <comment>Lock button text.</comment>
        <translation>Verrouiller</translation>
    </message>
    <message>
        <source>All object properties except for data editing are prevented from being changed.</source>
        <comment>Lock button tool tip text.</comment>
        <translation>Aucune propriété de l’objet ne peut être modifiée, à l’exception de ses données.</translation>
    </message>
    <message>
        <source>Read
Only</source>
        <comment>Read-only button text.</comment>
        <translation>Lecture
seule</translation>
    </message>
    <message>
        <source>All object properties are prevented from being changed.</source>
        <comment>Read-only button tool tip text.</comment>
        <translation>Aucune propriété de l’objet ne peut être modifiée.</translation>
    </message>
    <message>
        <source>Set As User
Background</source>
        <comment>User template button text.</comment>
        <translation>Définir comme
fond utilisateur</translation>
    </message>
    <message>
        <source>The object is placed in a separate layer, that can be hidden (option in defaults menu) 
and optionally printed (option in print widget).</source>
        <comment>User template button tool tip text.</comment>
        <translation>L’objet est placé sur un calque distinct, qui peut être masqué (option du menu des valeurs par défaut) 
et imprimé au choix (option d’impression).</translation>
    </message>
    <message>
        <source>Lock Options</source>
        <comment>Section header for object lock options.</comment>
        <translation>Verrouillage</translation>
    </message>
</context>
<context>
    <name>MultiItemSelectionDialog</name>
    <message>
        <source>Import</source>
        <comment>Button text for importing a file.</comment>
        <translation>Importer</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>Button text for accepting the selection dialog.</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>Button text for canceling selection dialog.</comment>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>MultiItemSelectionWidget</name>
    <message>
        <source>ERROR</source>
        <comment>The title of an error dialog window.</comment>
        <translation>ERREUR</translation>
    </message>
    <message>
        <source>Selection Limit: %1.</source>
        <comment>Label showing the limit for items selected.</comment>
        <translation>Limite de sélection&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Available:</source>
        <comment>Label for showing number of available items.</comment>
        <translation>Disponibles&#xa0;:</translation>
    </message>
    <message>
        <source>Selected:</source>
        <comment>Label for showing number of selected items.</comment>
        <translation>Sélectionnés&#xa0;:</translation>
    </message>
    <message>
        <source>Add all</source>
        <comment>Accessible name of the button that selects all items.</comment>
        <translation>Tout ajouter</translation>
    </message>
    <message>
        <source>Add</source>
        <comment>Accessible name of the button that selects items.</comment>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Remove all</source>
        <comment>Accessible name of the button that takes back all selected items.</comment>
        <translation>Tout retirer</translation>
    </message>
    <message>
        <source>Remove</source>
        <comment>Accessible name of the button that takes back selected items.</comment>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Up</source>
        <comment>Accessible name of the button that moves items up.</comment>
        <translation>Vers le haut</translation>
    </message>
    <message>
        <source>Down</source>
        <comment>Accessible name of the button that moves items down.</comment>
        <translation>Vers le bas</translation>
    </message>
    <message>
        <source>Available</source>
        <comment>Accessible name of the list of available items.</comment>
        <translation>Disponibles</translation>
    </message>
    <message>
        <source>Selected</source>
        <comment>Accessible name of the list of selected items.</comment>
        <translation>Sélectionnés</translation>
    </message>
</context>
<context>
    <name>NavigationBar</name>
    <message>
        <source>Enter Search Parameters</source>
        <comment>Placeholder text for search a database using a set of parameters.</comment>
        <translation>Critères de recherche</translation>
    </message>
    <message>
        <source>Record</source>
        <comment>Accessible name of the field for the number of a record.</comment>
        <translation>Fiche</translation>
    </message>
    <message>
        <source>Previous record</source>
        <comment>Accessible name of the button to the previous record.</comment>
        <translation>Fiche précédente</translation>
    </message>
    <message>
        <source>Next record</source>
        <comment>Accessible name of the button to the next record.</comment>
        <translation>Fiche suivante</translation>
    </message>
    <message>
        <source>Search for</source>
        <comment>Accessible name of the field for what is searched.</comment>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search by</source>
        <comment>Accessible name of the box for the term to search by.</comment>
        <translation>Rechercher par</translation>
    </message>
    <message>
        <source>Search</source>
        <comment>Accessible name of the search button.</comment>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <comment>Accessible name of a zoom button.</comment>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <comment>Accessible name of a zoom button.</comment>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Zoom to fit</source>
        <comment>Accessible name of a zoom button.</comment>
        <translation>Ajuster à la fenêtre</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>Accessible name of the close button.</comment>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>1 record(s)</source>
        <comment>Label showing number of available database records.</comment>
        <translation>1 fiche</translation>
    </message>
    <message>
        <source>%1 record</source>
        <comment>Label showing number of available database records.</comment>
        <translation>%1 fiche</translation>
    </message>
    <message>
        <source>%1 records</source>
        <comment>Label showing number of available database records.</comment>
        <translation>%1 fiches</translation>
    </message>
</context>
<context>
    <name>OxCollapsibleWidgetContainer</name>
    <message>
        <source>Show or hide</source>
        <comment>Accessible name of the button that folds a section.</comment>
        <translation>Afficher ou masquer</translation>
    </message>
</context>
<context>
    <name>OxFileDialog</name>
    <message>
        <source>Cancel</source>
        <comment>Button text to cancel file dialog.</comment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Up</source>
        <comment>Accessible name of the button that shows the folder above.</comment>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>Location</source>
        <comment>Accessible name of the box that names the shown folder.</comment>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Files</source>
        <comment>Accessible name of the list of files and folders.</comment>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Favorites</source>
        <comment>Header label for display favorite folder locations.</comment>
        <translation>Favoris</translation>
    </message>
    <message>
        <source> Name</source>
        <comment>Label used to denote what the current &apos;File Name&apos; or &apos;Folder Name&apos; is selected.</comment>
        <translation>&#xa0;:</translation>
    </message>
    <message>
        <source>Format</source>
        <comment>Label to denote the file format selected.</comment>
        <translation>Format</translation>
    </message>
    <message>
        <source>%1 %2%3</source>
        <comment>Title of the dialog: %1 is Open, Save or Select, %2 File or Folder, %3 Dialog.</comment>
        <translation>%1 un %2%3</translation>
    </message>
</context>
<context>
    <name>OxHelpWindow</name>
    <message>
        <source>Common Help</source>
        <comment>Title of the common help section for frequently asked questions.</comment>
        <translation>Questions fréquentes</translation>
    </message>
    <message>
        <source>Detailed Help</source>
        <comment>Title of the detailed help section for frequently asked questions.</comment>
        <translation>Aide détaillée</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>Close button for the help menu.</comment>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>HELP</source>
        <comment>The title of the help dialog.</comment>
        <translation>AIDE</translation>
    </message>
</context>
<context>
    <name>OxInfoWidget</name>
    <message>
        <source>ABOUT</source>
        <comment>Section header for displaying information about the application.</comment>
        <translation>À PROPOS</translation>
    </message>
    <message>
        <source>About </source>
        <comment>Label for displaying information about the application.</comment>
        <translation>À propos de </translation>
    </message>
    <message>
        <source>For help or feedback, call
555-0142
or write to
support@example.com</source>
        <comment>Contact information for users that need help with the application. The backslash n characters are newlines and should be ignored.</comment>
        <translation>Pour toute aide ou remarque, appelez le
555-0142
ou écrivez à
support@example.com</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>Button text to close the About window.</comment>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Version: </source>
        <translation>Version&#xa0;: </translation>
    </message>
    <message>
        <source>Version: </source>
        <comment>Label that displays the application version</comment>
        <translation>Version&#xa0;: </translation>
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
        <translation>Ajouter aux favoris</translation>
    </message>
    <message>
        <source>Remove Favorite</source>
        <comment>Text on the button for removing a favorite folder location.</comment>
        <translation>Retirer des favoris</translation>
    </message>
    <message>
        <source>Save</source>
        <comment>First part of the Save File Dialog title.</comment>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Select</source>
        <comment>First part of the Select File Dialog title.</comment>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>First part of the Open File Dialog title.</comment>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>Middle part of the Select Folder Dialog title.</comment>
        <translation>dossier</translation>
    </message>
    <message>
        <source>File</source>
        <comment>Middle part of the Select File Dialog title.</comment>
        <translation>fichier</translation>
    </message>
    <message>
        <source> Dialog</source>
        <comment>Last part of the File or Folder Dialog title.</comment>
        <translation> </translation>
    </message>
    <message>
        <source>All</source>
        <comment>Section header for showing all symbols.</comment>
        <translation>Tous</translation>
    </message>
    <message>
        <source>User Symbols</source>
        <comment>Header label for symbol insert menu.</comment>
        <translation>Symboles personnels</translation>
    </message>
    <message>
        <source>Symbols</source>
        <comment>Accessible name of a list of symbols.</comment>
        <translation>Symboles</translation>
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
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Tout enregistrer</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Oui à &amp;tout</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>Non à to&amp;ut</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Valeurs par défaut</translation>
    </message>
</context>
<context>
    <name>SymbolDatabaseModel</name>
    <message>
        <source>Query:[%1] Failed With:[%2]</source>
        <comment>Error message: A query is used to extract data from the database.</comment>
        <translation>La requête [%1] a échoué&#xa0;: [%2]</translation>
    </message>
    <message>
        <source>Unknown category: [%1]</source>
        <comment>Error message: Categories are child tables of a parent table in a database.</comment>
        <translation>Catégorie inconnue&#xa0;: [%1]</translation>
    </message>
    <message>
        <source>[%1]: Connection already exists, possible failure to remove connection</source>
        <comment>Error message: Database is already connected.</comment>
        <translation>[%1]&#xa0;: la connexion existe déjà, elle n’a peut-être pas été supprimée</translation>
    </message>
    <message>
        <source>Failed to open database connection:[%1]</source>
        <comment>Error message: unable to connect to a database file.</comment>
        <translation>Impossible d’ouvrir la connexion à la base de données&#xa0;: [%1]</translation>
    </message>
    <message>
        <source>Failed to enable foreign key support</source>
        <comment>Error message: database is unable to support a foreign key that identifies a row of another table.</comment>
        <translation>Impossible d’activer les clés étrangères</translation>
    </message>
    <message>
        <source>[%1]: Connection does not exist, can not close database</source>
        <comment>Error message: closing a database connection.</comment>
        <translation>[%1]&#xa0;: la connexion n’existe pas, impossible de fermer la base de données</translation>
    </message>
    <message>
        <source>Failed to start transaction:[%1]</source>
        <comment>Error message: A transaction is a single unit of work for data retrieval or updates.</comment>
        <translation>Impossible de démarrer la transaction&#xa0;: [%1]</translation>
    </message>
    <message>
        <source>Failed to commit transaction:[%1]</source>
        <comment>Error message: A transaction is a single unit of work for data retrieval or updates.</comment>
        <translation>Impossible de valider la transaction&#xa0;: [%1]</translation>
    </message>
    <message>
        <source>Image file path does not exist: [%1]</source>
        <comment>Error message: trying to open symbol file.</comment>
        <translation>Le fichier d’image n’existe pas&#xa0;: [%1]</translation>
    </message>
    <message>
        <source>Failed to open image file: [%1]</source>
        <comment>Error message: trying to open symbol file.</comment>
        <translation>Impossible d’ouvrir le fichier d’image&#xa0;: [%1]</translation>
    </message>
    <message>
        <source>Raw SVG Data is null, can not create thumbnail</source>
        <comment>Error message: Unable to create a file thumbnail using the empty unprocessed image data.</comment>
        <translation>Données SVG absentes, impossible de créer la vignette</translation>
    </message>
    <message>
        <source>Unknown tag: [%1]</source>
        <comment>Error message: tag is a keyword assigned to a piece of info.</comment>
        <translation>Mot-clé inconnu&#xa0;: [%1]</translation>
    </message>
    <message>
        <source>All Categories</source>
        <comment>All database categories.</comment>
        <translation>Toutes les catégories</translation>
    </message>
</context>
<context>
    <name>SymbolDatabaseWidget</name>
    <message>
        <source>Insert From File</source>
        <comment>Button text for inserting a custom symbol from a file.</comment>
        <translation>Insérer un fichier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>Button text to cancel and close the symbol widget.</comment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>SYMBOLS</source>
        <comment>Header label for symbol insert menu.</comment>
        <translation>SYMBOLES</translation>
    </message>
    <message>
        <source>Insert</source>
        <comment>Button text for inserting a symbol.</comment>
        <translation>Insérer</translation>
    </message>
    <message>
        <source>SYMBOLS - INSERT</source>
        <comment>Window title for this section that inserts symbols.</comment>
        <translation>SYMBOLES - INSÉRER</translation>
    </message>
    <message>
        <source>Insert</source>
        <comment>Button text for inserting a symbol image.</comment>
        <translation>Insérer</translation>
    </message>
    <message>
        <source>SYMBOLS - EDIT</source>
        <comment>Window title for this section that edits symbols.</comment>
        <translation>SYMBOLES - MODIFIER</translation>
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
        <translation>Rechercher des symboles</translation>
    </message>
    <message>
        <source>Search</source>
        <comment>Accessible name of the magnifier in the symbol search field.</comment>
        <translation>Rechercher</translation>
    </message>
</context>
<context>
    <name>SymbolsMenu</name>
    <message>
        <source>Category</source>
        <comment>Accessible name of the symbols&apos; categories.</comment>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>All Categories</source>
        <comment>Categories header for showing all symbols.</comment>
        <translation>Toutes les catégories</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Close</source>
        <comment>Accessible name of the close button of a title bar.</comment>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>ToolBoxContainer</name>
    <message>
        <source>Scroll up</source>
        <comment>Accessible name of the arrow above a column of panels.</comment>
        <translation>Défiler vers le haut</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <comment>Accessible name of the arrow below a column of panels.</comment>
        <translation>Défiler vers le bas</translation>
    </message>
</context>
</TS>
