<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
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
    <name>Korvane::MoveRow</name>
    <message>
        <source>Record number</source>
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
    <name>std</name>
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
</TS>
