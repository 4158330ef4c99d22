<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>DatabaseSaveWidget</name>
    <message>
        <source>SAVE TO DATABASE</source>
        <comment>Header label to save record to the database.</comment>
        <translation>GUARDAR EN BASE DE DATOS</translation>
    </message>
    <message>
        <source>Save Current Record</source>
        <comment>Label to save current record into the database.</comment>
        <translation>Guardar el registro actual</translation>
    </message>
    <message>
        <source>Overwrites current record in database</source>
        <comment>Save info label</comment>
        <translation>Sobrescribe el registro actual en la base</translation>
    </message>
    <message>
        <source>Save As New Record</source>
        <comment>Label to save as a new record into the database.</comment>
        <translation>Guardar como registro nuevo</translation>
    </message>
    <message>
        <source>Saves as new record in database</source>
        <comment>Save As info label</comment>
        <translation>Añade un registro nuevo a la base</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>Ok button for saving to a database.</comment>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>Cancel button for saving to a database.</comment>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>DatabaseSelectorDialog</name>
    <message>
        <source>Database</source>
        <comment>Title that shows multiple databases.</comment>
        <translation>Base de datos</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>Button to confirm selecting a database.</comment>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>DATABASE SELECTOR</source>
        <translation>SELECCIÓN DE BASE DE DATOS</translation>
    </message>
</context>
<context>
    <name>DragScrollTableView</name>
    <message>
        <source>Select all</source>
        <comment>Accessible name of the button in the corner of a table.</comment>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>LockWidget</name>
    <message>
        <source>Lock</source>
        <comment>Lock button text.</comment>
        <translation>Bloquear</translation>
    </message>
    <message>
        <source>All object properties except for data editing are prevented from being changed.</source>
        <comment>Lock button tool tip text.</comment>
        <translation>No se puede modificar ninguna propiedad del objeto, salvo sus datos.</translation>
    </message>
    <message>
        <source>Read
Only</source>
        <comment>Read-only button text.</comment>
        <translation>Solo
lectura</translation>
    </message>
    <message>
        <source>All object properties are prevented from being changed.</source>
        <comment>Read-only button tool tip text.</comment>
        <translation>No se puede modificar ninguna propiedad del objeto.</translation>
    </message>
    <message>
        <source>Set As User
Background</source>
        <comment>User template button text.</comment>
        <translation>Usar como
fondo de usuario</translation>
    </message>
    <message>
        <source>The object is placed in a separate layer, that can be hidden (option in defaults menu) 
and optionally printed (option in print widget).</source>
        <comment>User template button tool tip text.</comment>
        <translation>El objeto se coloca en una capa aparte, que se puede ocultar (opción del menú de valores predeterminados) 
e imprimir si se desea (opción de impresión).</translation>
    </message>
    <message>
        <source>Lock Options</source>
        <comment>Section header for object lock options.</comment>
        <translation>Opciones de bloqueo</translation>
    </message>
</context>
<context>
    <name>MultiItemSelectionDialog</name>
    <message>
        <source>Import</source>
        <comment>Button text for importing a file.</comment>
        <translation>Importar</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>Button text for accepting the selection dialog.</comment>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>Button text for canceling selection dialog.</comment>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>MultiItemSelectionWidget</name>
    <message>
        <source>ERROR</source>
        <comment>The title of an error dialog window.</comment>
        <translation>ERROR</translation>
    </message>
    <message>
        <source>Selection Limit: %1.</source>
        <comment>Label showing the limit for items selected.</comment>
        <translation>Límite de selección: %1.</translation>
    </message>
    <message>
        <source>Available:</source>
        <comment>Label for showing number of available items.</comment>
        <translation>Disponibles:</translation>
    </message>
    <message>
        <source>Selected:</source>
        <comment>Label for showing number of selected items.</comment>
        <translation>Seleccionados:</translation>
    </message>
    <message>
        <source>Add all</source>
        <comment>Accessible name of the button that selects all items.</comment>
        <translation>Añadir todos</translation>
    </message>
    <message>
        <source>Add</source>
        <comment>Accessible name of the button that selects items.</comment>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Remove all</source>
        <comment>Accessible name of the button that takes back all selected items.</comment>
        <translation>Quitar todos</translation>
    </message>
    <message>
        <source>Remove</source>
        <comment>Accessible name of the button that takes back selected items.</comment>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Up</source>
        <comment>Accessible name of the button that moves items up.</comment>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Down</source>
        <comment>Accessible name of the button that moves items down.</comment>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Available</source>
        <comment>Accessible name of the list of available items.</comment>
        <translation>Disponibles</translation>
    </message>
    <message>
        <source>Selected</source>
        <comment>Accessible name of the list of selected items.</comment>
        <translation>Seleccionados</translation>
    </message>
</context>
<context>
    <name>NavigationBar</name>
    <message>
        <source>Enter Search Parameters</source>
        <comment>Placeholder text for search a database using a set of parameters.</comment>
        <translation>Criterios de búsqueda</translation>
    </message>
    <message>
        <source>Record</source>
        <comment>Accessible name of the field for the number of a record.</comment>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Previous record</source>
        <comment>Accessible name of the button to the previous record.</comment>
        <translation>Registro anterior</translation>
    </message>
    <message>
        <source>Next record</source>
        <comment>Accessible name of the button to the next record.</comment>
        <translation>Registro siguiente</translation>
    </message>
    <message>
        <source>Search for</source>
        <comment>Accessible name of the field for what is searched.</comment>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search by</source>
        <comment>Accessible name of the box for the term to search by.</comment>
        <translation>Buscar por</translation>
    </message>
    <message>
        <source>Search</source>
        <comment>Accessible name of the search button.</comment>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <comment>Accessible name of a zoom button.</comment>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <comment>Accessible name of a zoom button.</comment>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Zoom to fit</source>
        <comment>Accessible name of a zoom button.</comment>
        <translation>Ajustar a la ventana</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>Accessible name of the close button.</comment>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>1 record(s)</source>
        <comment>Label showing number of available database records.</comment>
        <translation>Registros: 1</translation>
    </message>
    <message>
        <source>%1 record</source>
        <comment>Label showing number of available database records.</comment>
        <translation>Registros: %1</translation>
    </message>
    <message>
        <source>%1 records</source>
        <comment>Label showing number of available database records.</comment>
        <translation>Registros: %1</translation>
    </message>
</context>
<context>
    <name>OxCollapsibleWidgetContainer</name>
    <message>
        <source>Show or hide</source>
        <comment>Accessible name of the button that folds a section.</comment>
        <translation>Mostrar u ocultar</translation>
    </message>
</context>
<context>
    <name>OxFileDialog</name>
    <message>
        <source>Cancel</source>
        <comment>Button text to cancel file dialog.</comment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Up</source>
        <comment>Accessible name of the button that shows the folder above.</comment>
        <translation>Carpeta superior</translation>
    </message>
    <message>
        <source>Location</source>
        <comment>Accessible name of the box that names the shown folder.</comment>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Files</source>
        <comment>Accessible name of the list of files and folders.</comment>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Favorites</source>
        <comment>Header label for display favorite folder locations.</comment>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source> Name</source>
        <comment>Label used to denote what the current &apos;File Name&apos; or &apos;Folder Name&apos; is selected.</comment>
        <translation>:</translation>
    </message>
    <message>
        <source>Format</source>
        <comment>Label to denote the file format selected.</comment>
        <translation>Formato</translation>
    </message>
    <message>
        <source>%1 %2%3</source>
        <comment>Title of the dialog: %1 is Open, Save or Select, %2 File or Folder, %3 Dialog.</comment>
        <translation>%1 %2%3</translation>
    </message>
</context>
<context>
    <name>OxHelpWindow</name>
    <message>
        <source>Common Help</source>
        <comment>Title of the common help section for frequently asked questions.</comment>
        <translation>Ayuda general</translation>
    </message>
    <message>
        <source>Detailed Help</source>
        <comment>Title of the detailed help section for frequently asked questions.</comment>
        <translation>Ayuda detallada</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>Close button for the help menu.</comment>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>HELP</source>
        <comment>The title of the help dialog.</comment>
        <translation>AYUDA</translation>
    </message>
</context>
<context>
    <name>OxInfoWidget</name>
    <message>
        <source>ABOUT</source>
        <comment>Section header for displaying information about the application.</comment>
        <translation>ACERCA DE</translation>
    </message>
    <message>
        <source>About </source>
        <comment>Label for displaying information about the application.</comment>
        <translation>Acerca de </translation>
    </message>
    <message>
        <source>For help or feedback, call
555-0142
or write to
support@example.com</source>
        <comment>Contact information for users that need help with the application. The backslash n characters are newlines and should be ignored.</comment>
        <translation>Para recibir ayuda o enviar comentarios, llame al
555-0142
o escriba a
support@example.com</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>Button text to close the About window.</comment>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Version: </source>
        <translation>Versión: </translation>
    </message>
    <message>
        <source>Version: </source>
        <comment>Label that displays the application version</comment>
        <translation>Versión: </translation>
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
        <translation>Añadir a favoritos</translation>
    </message>
    <message>
        <source>Remove Favorite</source>
        <comment>Text on the button for removing a favorite folder location.</comment>
        <translation>Quitar de favoritos</translation>
    </message>
    <message>
        <source>Save</source>
        <comment>First part of the Save File Dialog title.</comment>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Select</source>
        <comment>First part of the Select File Dialog title.</comment>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>First part of the Open File Dialog title.</comment>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>Middle part of the Select Folder Dialog title.</comment>
        <translation>carpeta</translation>
    </message>
    <message>
        <source>File</source>
        <comment>Middle part of the Select File Dialog title.</comment>
        <translation>archivo</translation>
    </message>
    <message>
        <source> Dialog</source>
        <comment>Last part of the File or Folder Dialog title.</comment>
        <translation> </translation>
    </message>
    <message>
        <source>All</source>
        <comment>Section header for showing all symbols.</comment>
        <translation>Todos</translation>
    </message>
    <message>
        <source>User Symbols</source>
        <comment>Header label for symbol insert menu.</comment>
        <translation>Símbolos propios</translation>
    </message>
    <message>
        <source>Symbols</source>
        <comment>Accessible name of a list of symbols.</comment>
        <translation>Símbolos</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Guardar todo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Sí a &amp;todo</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;o a todo</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Valores predeterminados</translation>
    </message>
</context>
<context>
    <name>SymbolDatabaseModel</name>
    <message>
        <source>Query:[%1] Failed With:[%2]</source>
        <comment>Error message: A query is used to extract data from the database.</comment>
        <translation>Consulta:[%1] falló con:[%2]</translation>
    </message>
    <message>
        <source>Unknown category: [%1]</source>
        <comment>Error message: Categories are child tables of a parent table in a database.</comment>
        <translation>Categoría desconocida: [%1]</translation>
    </message>
    <message>
        <source>[%1]: Connection already exists, possible failure to remove connection</source>
        <comment>Error message: Database is already connected.</comment>
        <translation>[%1]: la conexión ya existe, puede que no se haya eliminado</translation>
    </message>
    <message>
        <source>Failed to open database connection:[%1]</source>
        <comment>Error message: unable to connect to a database file.</comment>
        <translation>No se pudo abrir la conexión con la base de datos:[%1]</translation>
    </message>
    <message>
        <source>Failed to enable foreign key support</source>
        <comment>Error message: database is unable to support a foreign key that identifies a row of another table.</comment>
        <translation>No se pudieron activar las claves externas</translation>
    </message>
    <message>
        <source>[%1]: Connection does not exist, can not close database</source>
        <comment>Error message: closing a database connection.</comment>
        <translation>[%1]: la conexión no existe, no se puede cerrar la base de datos</translation>
    </message>
    <message>
        <source>Failed to start transaction:[%1]</source>
        <comment>Error message: A transaction is a single unit of work for data retrieval or updates.</comment>
        <translation>No se pudo iniciar la transacción:[%1]</translation>
    </message>
    <message>
        <source>Failed to commit transaction:[%1]</source>
        <comment>Error message: A transaction is a single unit of work for data retrieval or updates.</comment>
        <translation>No se pudo confirmar la transacción:[%1]</translation>
    </message>
    <message>
        <source>Image file path does not exist: [%1]</source>
        <comment>Error message: trying to open symbol file.</comment>
        <translation>El archivo de imagen no existe: [%1]</translation>
    </message>
    <message>
        <source>Failed to open image file: [%1]</source>
        <comment>Error message: trying to open symbol file.</comment>
        <translation>No se pudo abrir el archivo de imagen: [%1]</translation>
    </message>
    <message>
        <source>Raw SVG Data is null, can not create thumbnail</source>
        <comment>Error message: Unable to create a file thumbnail using the empty unprocessed image data.</comment>
        <translation>No hay datos SVG, no se puede crear la miniatura</translation>
    </message>
    <message>
        <source>Unknown tag: [%1]</source>
        <comment>Error message: tag is a keyword assigned to a piece of info.</comment>
        <translation>Etiqueta desconocida: [%1]</translation>
    </message>
    <message>
        <source>All Categories</source>
        <comment>All database categories.</comment>
        <translation>Todas las categorías</translation>
    </message>
</context>
<context>
    <name>SymbolDatabaseWidget</name>
    <message>
        <source>Insert From File</source>
        <comment>Button text for inserting a custom symbol from a file.</comment>
        <translation>Insertar desde archivo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>Button text to cancel and close the symbol widget.</comment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>SYMBOLS</source>
        <comment>Header label for symbol insert menu.</comment>
        <translation>SÍMBOLOS</translation>
    </message>
    <message>
        <source>Insert</source>
        <comment>Button text for inserting a symbol.</comment>
        <translation>Insertar</translation>
    </message>
    <message>
        <source>SYMBOLS - INSERT</source>
        <comment>Window title for this section that inserts symbols.</comment>
        <translation>SÍMBOLOS - INSERTAR</translation>
    </message>
    <message>
        <source>Insert</source>
        <comment>Button text for inserting a symbol image.</comment>
        <translation>Insertar</translation>
    </message>
    <message>
        <source>SYMBOLS - EDIT</source>
        <comment>Window title for this section that edits symbols.</comment>
        <translation>SÍMBOLOS - EDITAR</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>Button text for accepting the edit of a symbol image.</comment>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>SymbolsLineEdit</name>
    <message>
        <source>Search symbols</source>
        <comment>Accessible name of the symbol search field.</comment>
        <translation>Buscar símbolos</translation>
    </message>
    <message>
        <source>Search</source>
        <comment>Accessible name of the magnifier in the symbol search field.</comment>
        <translation>Buscar</translation>
    </message>
</context>
<context>
    <name>SymbolsMenu</name>
    <message>
        <source>Category</source>
        <comment>Accessible name of the symbols&apos; categories.</comment>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>All Categories</source>
        <comment>Categories header for showing all symbols.</comment>
        <translation>Todas las categorías</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Close</source>
        <comment>Accessible name of the close button of a title bar.</comment>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>ToolBoxContainer</name>
    <message>
        <source>Scroll up</source>
        <comment>Accessible name of the arrow above a column of panels.</comment>
        <translation>Desplazar hacia arriba</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <comment>Accessible name of the arrow below a column of panels.</comment>
        <translation>Desplazar hacia abajo</translation>
    </message>
</context>
</TS>
