<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Designer::ControlKind</name>
    <message>
        <source>Nip panel: a data-entry form that the clinic shapes itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows, enters and customizes the Nip of one patient. The program gives it its database with Initialize, and a patient with CreateNip or LoadNipInfo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date control: one date in three boxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes a date as month, day and year, by keys or by voice. What cannot be right is told by Exception, a change by OnChange.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Function buttons: one to five in a frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tells with btnClick which of its buttons was clicked, counted from 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record-move buttons: first, previous, next, last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tells with btnClick where to move: 0 first, 1 previous, 2 next, 3 last.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field administration: the definition of one field of a database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edits the names, the kind of entry and the values of one field. It tells with RecordMove and UpdateClick what the user wants; the program does it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Designer::NewControl</name>
    <message>
        <source>%1: no form keeps it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the control tells it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Designer::PassingProperties</name>
    <message>
        <source>%1, not kept</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::AdminForm</name>
    <message>
        <source>&amp;Update</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::ButtonRow</name>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the Nip and close it (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the Nip without saving it (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the groups and fields of the Nip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::ChoiceEditDelegate</name>
    <message>
        <source>Choice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1  (default)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::ChoiceEditor</name>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a choice behind the last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the highlighted choice (Delete)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the highlighted choice up (Alt+Up)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the highlighted choice down (Alt+Down)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: choice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The checked choice is the default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag a choice to put it elsewhere, with the Ctrl key to copy it. F2 or a double click edits it. Space or a click on its box makes it the default, or no longer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choices (the checked one is the default):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choices, not offered with this display type (the checked one is the default):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is the new item?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::ChoiceOrderModel</name>
    <message>
        <source>A choice cannot be empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list already has the choice &quot;%1&quot;. Two choices cannot be the same; capital and small letters count as the same.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::CustomizeBar</name>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back to the Nip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Nip Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a group to the Nip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete Nip Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CustomizeNipGroup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go on with the Nip (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the Nip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the group %1 and all that was entered in it, in every encounter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the fields of the group %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::CustomizePane</name>
    <message>
        <source>Customizing the Structure of the NIP tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a field to this group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel the field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave the field as it is stored (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Store the field (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 with its 1 field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 with its %2 fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no group yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New field in group %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fields of group %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Editing field [%1] of group %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Field destroys [%1] with all that any encounter has in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Nip Group destroys %1 and all that any encounter has in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a field in the list or by a click on it in the form, or press New Field.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::DatePartBox</name>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::DateVoice</name>
    <message>
        <source>%1 Dates can be entered by hand.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voice</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::DisplayType</name>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List-Multiple</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List-Editcontent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Combobox</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Combobox-Restricted</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::EditContentEntry</name>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the content for %1:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::EncounterPane</name>
    <message>
        <source>Choose a provider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>De&amp;scription:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Da&amp;te:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Provider:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::FieldDraft</name>
    <message>
        <source>The field name is too long.  It can have %1 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The field name is too long.  It can have %1 letters, fewer when there are accents or other alphabets in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The field caption is too long.  It can have %1 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The width must be a whole number from 1 to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The row position must be a whole number from 1, or empty to leave the field where it stands.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A field can have no more than %1 choices.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A choice must not be empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The choice [%1] must not have a &quot;|&quot; in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The choice [%1] is too long.  It can have %2 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two of the choices are the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The choices do not fit when all of them are chosen.  Together they need a width of %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The longest choice does not fit.  It needs a width of %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::FieldForm</name>
    <message>
        <source>Field Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field Caption:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial Value Rule:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row Position:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cascade Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not Cascade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cascading means that values from one Exam will be carried over to the next exam</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed; it was %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::FieldGrid</name>
    <message>
        <source>Fields of the group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::FieldMark</name>
    <message>
        <source>This field is being customized</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::ListEntryText</name>
    <message>
        <source>An entry of a list cannot contain the character &quot;|&quot;, which separates the entries: it would come back as two entries.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List Entry Validation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::MoveRow</name>
    <message>
        <source>Record number</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::NipTabs</name>
    <message>
        <source>The following problems occurred when loading the NIP controls:

%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::PanelForm</name>
    <message>
        <source>Close the Nip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groups of the Nip</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::RuntimeError</name>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Ungültiger Aufruf oder ungültiges Argument</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Nicht genügend Speicher</translation>
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
        <translation>Unverträgliche Typen</translation>
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
        <source>Disk full</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Invalid use of Null</source>
        <translation>Unzulässige Verwendung von Null</translation>
    </message>
    <message>
        <source>This key is already in use</source>
        <translation>Dieser Schlüssel ist bereits vergeben</translation>
    </message>
    <message>
        <source>An argument is of the wrong type or out of its range</source>
        <translation>Ein Argument hat den falschen Typ oder liegt außerhalb seines Bereichs</translation>
    </message>
    <message>
        <source>There is no current record</source>
        <translation>Es gibt keinen aktuellen Datensatz</translation>
    </message>
    <message>
        <source>The recordset does not allow changes</source>
        <translation>Die Datensatzgruppe lässt keine Änderungen zu</translation>
    </message>
    <message>
        <source>Not possible while a transaction is open</source>
        <translation>Nicht möglich, solange eine Transaktion offen ist</translation>
    </message>
    <message>
        <source>There is no item of that name or index</source>
        <translation>Es gibt kein Element mit diesem Namen oder Index</translation>
    </message>
    <message>
        <source>Not possible while the object is closed</source>
        <translation>Nicht möglich, solange das Objekt geschlossen ist</translation>
    </message>
    <message>
        <source>Not possible while the object is open</source>
        <translation>Nicht möglich, solange das Objekt geöffnet ist</translation>
    </message>
    <message>
        <source>The connection is missing, closed or not valid here</source>
        <translation>Die Verbindung fehlt, ist geschlossen oder hier nicht gültig</translation>
    </message>
    <message>
        <source>The database reported a failure</source>
        <translation>Die Datenbank hat einen Fehler gemeldet</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
</context>
<context>
    <name>Korvane::StructurePlan</name>
    <message>
        <source>%1 has unrecognized display type:%2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::ValueList</name>
    <message>
        <source>Remove from List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add to List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value to add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values of the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A value cannot hold a &quot;%1&quot;: it separates the values.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::ado</name>
    <message>
        <source>The table &quot;%1&quot; is in a database already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; needs a column.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; cannot be made: there is already a table &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; cannot be made: there is already a view &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A table, column or index needs a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name cannot hold the character NUL.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is too long for the database: it has %2 bytes, of which %3 would be kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; has a type that no column can have.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; of the table &quot;%2&quot; has to allow Null: the table has rows, which have no value for it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; of the table &quot;%2&quot; keeps no text and has no size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; of the table &quot;%2&quot; is its last one and cannot be removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; of the table &quot;%2&quot; is part of its key and cannot be removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database address has an option that is not known: &quot;%1&quot;. There are mode=ro (to read only) and mode=rwc.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This build has no PostgreSQL provider.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database address does not begin with a kind of database that is known: sqlite:file, sqlite::memory: or postgresql://host/database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database address &quot;%1:&quot; does not begin with a kind of database that is known: sqlite:file, sqlite::memory: or postgresql://host/database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; is there already; a primary key is given to a table when it is made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; has no index &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; keeps its primary key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a row with the same key is already there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>other rows refer to the row, or the row it refers to is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text is longer than its column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a value is not of the type of its column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text holds bytes that are no UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text holds a character that the database&apos;s encoding does not have</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the database, or this transaction, is read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an earlier statement of the transaction has failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>check the user&apos;s name; the server may also let that user in from certain machines only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>check the user&apos;s name and password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>check the database&apos;s name in the address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program was changing the same rows; try again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this login lacks a right that is needed; ask whoever looks after the database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no room left on the server&apos;s disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the server has no memory left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too many programs are connected; try again later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the statement is beyond a limit of the server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program holds the rows; try again in a moment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the statement took longer than it is given, or was stopped; try again in a moment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the server is going down or coming up; open the connection again in a moment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the server could not read or write its disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database server refused the connection: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database server asks for a password, and there is none in the address, in PGPASSWORD or in the password file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database server could not be reached</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is longer than the %2 bytes that the database keeps of one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The statement_timeout of a database address is a number of milliseconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database address is not understood. It reads postgresql://user@host:port/database; in a name or a password a character such as @ : / ? is written as % and its two hexadecimal digits (%40 for @).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection is not one to a PostgreSQL database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database address holds the character NUL.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection is inside a transaction that has failed; it has to be rolled back before it is handed over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The row cannot be told from another one of its table; nothing was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Another program may have changed the table since its rows were read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The row could not be found to be updated: it has been deleted, or its key has been changed, since it was read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no statement to run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy cannot be run over this connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one statement can be run at a time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The statement holds a parameter mark; values are written into the statement itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection was closed by the program that opened it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the database server was lost; it has to be opened again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A statement cannot hold the character NUL.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A statement that was announced has not been run: the transaction cannot be committed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The transaction of the connection&apos;s owner has failed. It has to be rolled back before the connection is let go of, or the owner&apos;s settings could not be put back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no transaction to commit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no transaction to roll back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The transaction is over: the database has rolled it back after a failure, or somebody has ended it past this connection. What was written in it was saved only if it was committed there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text cannot hold the character NUL.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the database server was lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database server did not answer in time; check that it is running and that the network is up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection cannot be used now: its owner has something pending on it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database server gave an answer that was not understood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database server has not answered in time; the connection is given up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; is outside the range of the column (column %2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; is not a date (column %2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; is not a number (column %2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; is too large (column %2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; is not a whole number (column %2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; is neither True nor False (column %2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The statement is too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the database is in use by another program; try again in a moment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no room left on the disk for the database; free some and try again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the database cannot be written; it may be opened read-only or the file may belong to somebody else</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>access to the database is not permitted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>check that the file&apos;s folder exists and may be read and written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the database file is damaged; restore it from a backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is not a database of this kind, or it is encrypted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk could not be read or written; check that it is connected and healthy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the statement was stopped before it was done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The statement holds a NUL character, which no text column can keep.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address names no database file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection is not one to a SQLite database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database has rolled the transaction back after a failure; nothing of it was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; is new; it has to be appended to a catalog first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no table &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; has no column &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; already has a column &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; cannot have a size below 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The index &quot;%1&quot; of the table &quot;%2&quot; needs a column.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The index &quot;%1&quot; of the table &quot;%2&quot; is already there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The index &quot;%1&quot; of the table &quot;%2&quot; cannot be a second primary key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The index &quot;%1&quot; of the table &quot;%2&quot; names a column that is not there: &quot;%3&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database connection &quot;%1&quot; cannot be used: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its driver brings a SQLite of its own, which is not the one that this library uses. Let both use the system&apos;s, or open the file with ado::open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not open (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its driver %1 is none of those that are known here, QSQLITE and QPSQL.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::axDate</name>
    <message>
        <source>MM/DD/YYYY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YYYY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid date format. Please re-enter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year requires four digits. Please re-enter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>value &quot;%1&quot; not found. You can say either a numeric or the name of a month.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Error in %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::data</name>
    <message>
        <source>the log level %1 is not 1 to 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot open the log file %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Message Log Level!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failure writing to log file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attempt to return results from an Execute only SQL cmd or error creating RS object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attempt to write results to an Execute only SQL cmd or error creating RS object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attempt to read data from a closed Recordset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attempt to query while ADO Connection not open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attempt to write results to ReadOnly Recordset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attempt to read past end of file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attempt to get RecordCount from a query that does not support that property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tables could not be installed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is recommended that you restart the %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::dbxadmin</name>
    <message>
        <source>unspecified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Special format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>phone number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SS Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zip Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not Required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Just a Reminder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::funcPanel</name>
    <message>
        <source>buttonCount must be at least 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>buttonCount must not be greater than 5.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::movebtn</name>
    <message>
        <source>First record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last record</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::nip</name>
    <message>
        <source>The field %1 holds more than 32767 entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A field needs a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name %1 is longer than %2 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name %1 is that of the group&apos;s key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The group %1 has a field %2 already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A field of %1 characters holds nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than 32767 values of a field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A group needs a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than %1 groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The structure is not loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two fields of the table %1 have the name %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of the field %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than %1 values of the field %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than %1 fields in the group %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than %1 rows in the group %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The form was customized elsewhere since it was loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The encounter is not stored yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The encounter %1 is there more than once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The encounter %1 is another patient&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a table or field</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::records</name>
    <message>
        <source>AttachmentID doesn&apos;t exist, aborting!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::runtime</name>
    <message>
        <source>Korvane data-entry library</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::ucNIPPanel</name>
    <message>
        <source>Are you sure you want to cancel creating this field?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel field creation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes have been made to the field [%1] in the group %2. 
Are you certain you want to discard those changes?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard Customization Confirmation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field Name Validation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The field name already exists in this Nip group.  Field names cannot be duplicated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The field name (%1) is not a valid field name.  

Field names cannot contain spaces, quotation marks, or special characters and must begin with a letter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field Validation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error occured while creating this field.  Please try again.  (ucNipPanel.SaveFieldCustomization-mnip.CreateField Failed. mcG=%1, mcF=%2%3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System error: Unable to save this field.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you certain you wish to delete this field?  All data in the field will be permenantly lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Confirmation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System error: Unable to delete this field.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is the name of the group you would like to create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New group name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A group needs a name.  No group was created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of the group is too long.  It can have %1 characters.  No group was created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System error: Unable to create this Nip group%1

The group [%2] was not created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting a Nip Group will also delete all fields in the group.
This is a destructive action that cannot be reversed.  Do you wish to continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Group Confirmation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System error: Unable to remove this nip group.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to save this encounter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The date of this encounter is not a valid date. Please enter it as month/day/year.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please choose the provider of this encounter. It cannot be saved without one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This clinic has no providers yet. An encounter cannot be saved without one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Nip could not be saved, because another desk took its number at the same moment. Everything you entered is still here; please try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Nip could not be saved, because its encounter is no longer there. It may have been deleted at another desk. Everything you entered is still here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection was lost at the last moment, so it is not known whether this Nip was saved. Everything you entered is still here; please save it again. It is not stored twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Nip could not be saved. Everything you entered is still here; please try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Nip could not be saved, because another desk has customized the form, and the new form could not be read. Everything you entered is still here; please try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Nip is not saved yet, because another desk has customized the form. It is shown as it is now, with everything you entered; please look through it and save it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The form is shown as it is now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No patient is chosen. A Nip cannot be created without one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to create a new nip and discard the one you were creating?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to create a new nip and discard the changes you are making?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to load a nip and discard the one you were creating?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to load a nip and discard the changes you are making?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another desk has customized the form. It is shown as it is now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Nip could not be found. It may have been deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Nip belongs to another patient and cannot be shown here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Nip could not be read from the database. Please try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the creation of this Nip?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the changes made to this Nip?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Nip is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Nip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved Nip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Nip with changes that are not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved Nip with changes that are not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These entries have no field any more (they are kept in the error log):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another desk has customized this form since it was shown here.  It is shown as it is now; what you entered is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The form could not be read from the database again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The group of the new field is no longer there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The field [%1] is no longer there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you wrote is kept as a new field of the group %1: save it to create the field there, or cancel it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no group left for what you wrote; it is kept in the error log.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::voice</name>
    <message>
        <source>The sound file %1 is no WAV file with 16-bit samples.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound file %1 cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound file has ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No microphone was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The microphone &quot;%1&quot; was not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The microphone gives no sound of 16 bits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The microphone &quot;%1&quot; cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The microphone has gone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No microphone was found: the application was built without Qt Multimedia.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a voice command: the word &quot;%2&quot; has a letter or a sign that is not said in English.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a voice command: it has no words.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The speech engine speaks US English (1033), not language %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voice is not there: the speech model %1 is missing (Debian&apos;s pocketsphinx-en-us).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voice is not there: the speech model %1 cannot be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The speech engine refused the commands.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The microphone is off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The speech engine has been closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The microphone is on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound of %1 samples a second in %2 channels cannot be listened to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voice is not there: the application has not set up a speech engine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voice is not there: this build has no speech engine.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
