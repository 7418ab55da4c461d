<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Designer::ControlKind</name>
    <message>
        <source>Nip panel: a data-entry form that the clinic shapes itself</source>
        <translation>Nip-Bereich: ein Eingabeformular, das die Klinik selbst gestaltet</translation>
    </message>
    <message>
        <source>Shows, enters and customizes the Nip of one patient. The program gives it its database with Initialize, and a patient with CreateNip or LoadNipInfo.</source>
        <translation>Zum Anzeigen, Erfassen und Anpassen der Nips eines Patienten. Das Programm gibt ihm mit Initialize seine Datenbank und mit CreateNip oder LoadNipInfo einen Patienten.</translation>
    </message>
    <message>
        <source>Date control: one date in three boxes</source>
        <translation>Datumsfeld: ein Datum in drei Eingabefeldern</translation>
    </message>
    <message>
        <source>Takes a date as month, day and year, by keys or by voice. What cannot be right is told by Exception, a change by OnChange.</source>
        <translation>Nimmt ein Datum als Monat, Tag und Jahr an, über die Tastatur oder gesprochen. Exception meldet, was nicht stimmen kann, OnChange eine Änderung.</translation>
    </message>
    <message>
        <source>Function buttons: one to five in a frame</source>
        <translation>Schaltflächen: eine bis fünf in einem Rahmen</translation>
    </message>
    <message>
        <source>Tells with btnClick which of its buttons was clicked, counted from 0.</source>
        <translation>Meldet mit btnClick, welche Schaltfläche angeklickt wurde, gezählt ab 0.</translation>
    </message>
    <message>
        <source>Record-move buttons: first, previous, next, last</source>
        <translation>Schaltflächen für Datensätze: erster, voriger, nächster, letzter</translation>
    </message>
    <message>
        <source>Tells with btnClick where to move: 0 first, 1 previous, 2 next, 3 last.</source>
        <translation>Meldet mit btnClick, wohin es geht: 0 erster, 1 voriger, 2 nächster, 3 letzter.</translation>
    </message>
    <message>
        <source>Field administration: the definition of one field of a database</source>
        <translation>Feldverwaltung: die Definition eines Feldes einer Datenbank</translation>
    </message>
    <message>
        <source>Edits the names, the kind of entry and the values of one field. It tells with RecordMove and UpdateClick what the user wants; the program does it.</source>
        <translation>Bearbeitet die Namen, die Art der Eingabe und die Werte eines Feldes. Mit RecordMove und UpdateClick meldet sie, was gewünscht ist; das Programm führt es aus.</translation>
    </message>
</context>
<context>
    <name>Designer::NewControl</name>
    <message>
        <source>%1: no form keeps it.</source>
        <translation>%1: wird in keinem Formular gespeichert.</translation>
    </message>
    <message>
        <source>%1: the control tells it.</source>
        <translation>%1: wird vom Steuerelement bestimmt.</translation>
    </message>
</context>
<context>
    <name>Designer::PropertyGroups</name>
    <message>
        <source>%1, not kept</source>
        <translation>%1, nicht gespeichert</translation>
    </message>
</context>
<context>
    <name>Korvane::AdminForm</name>
    <message>
        <source>&amp;Update</source>
        <translation>&amp;Speichern</translation>
    </message>
</context>
<context>
    <name>Korvane::ButtonRow</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>Save the Nip and close it (Ctrl+S)</source>
        <translation>Das Nip speichern und schließen (Strg+S)</translation>
    </message>
    <message>
        <source>Close the Nip without saving it (Esc)</source>
        <translation>Das Nip schließen, ohne zu speichern (Esc)</translation>
    </message>
    <message>
        <source>Change the groups and fields of the Nip</source>
        <translation>Gruppen und Felder des Nips ändern</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Korvane::ChoiceEditDelegate</name>
    <message>
        <source>Choice</source>
        <translation>Auswahlwert</translation>
    </message>
    <message>
        <source>%1  (default)</source>
        <translation>%1  (Vorgabe)</translation>
    </message>
</context>
<context>
    <name>Korvane::ChoiceEditor</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add a choice behind the last</source>
        <translation>Einen Auswahlwert am Ende hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove the highlighted choice (Delete)</source>
        <translation>Den markierten Auswahlwert entfernen (Entf)</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move the highlighted choice up (Alt+Up)</source>
        <translation>Den markierten Auswahlwert nach oben schieben (Alt+Pfeil auf)</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Move the highlighted choice down (Alt+Down)</source>
        <translation>Den markierten Auswahlwert nach unten schieben (Alt+Pfeil ab)</translation>
    </message>
    <message>
        <source>%1: choice</source>
        <translation>%1: Auswahlwert</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Auswahlwerte</translation>
    </message>
    <message>
        <source>The checked choice is the default</source>
        <translation>Der angekreuzte Auswahlwert ist die Vorgabe</translation>
    </message>
    <message>
        <source>Drag a choice to put it elsewhere, with the Ctrl key to copy it. F2 or a double click edits it. Space or a click on its box makes it the default, or no longer.</source>
        <translation>Ziehen Sie einen Auswahlwert an einen anderen Platz, mit der Strg-Taste als Kopie. F2 oder ein Doppelklick bearbeitet ihn. Die Leertaste oder ein Klick auf das Kästchen macht ihn zur Vorgabe oder hebt das auf.</translation>
    </message>
    <message>
        <source>Choices (the checked one is the default):</source>
        <translation>Auswahlwerte (der angekreuzte ist die Vorgabe):</translation>
    </message>
    <message>
        <source>Choices, not offered with this display type (the checked one is the default):</source>
        <translation>Auswahlwerte, bei dieser Anzeigeart nicht angeboten (der angekreuzte ist die Vorgabe):</translation>
    </message>
    <message>
        <source>What is the new item?</source>
        <translation>Wie lautet der neue Auswahlwert?</translation>
    </message>
</context>
<context>
    <name>Korvane::ChoiceOrderModel</name>
    <message>
        <source>A choice cannot be empty.</source>
        <translation>Ein Auswahlwert darf nicht leer sein.</translation>
    </message>
    <message>
        <source>The list already has the choice &quot;%1&quot;. Two choices cannot be the same; capital and small letters count as the same.</source>
        <translation>Den Auswahlwert „%1“ gibt es in der Liste schon. Zwei Auswahlwerte dürfen nicht gleich sein; Groß- und Kleinschreibung wird nicht unterschieden.</translation>
    </message>
</context>
<context>
    <name>Korvane::CustomizeBar</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>&amp;Back to the Nip</source>
        <translation>&amp;Zurück zum Nip</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>&amp;New Nip Group</source>
        <translation>&amp;Neue Nip-Gruppe</translation>
    </message>
    <message>
        <source>Add a group to the Nip</source>
        <translation>Dem Nip eine Gruppe hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Delete Nip Group</source>
        <translation>Nip-Gruppe &amp;löschen</translation>
    </message>
    <message>
        <source>CustomizeNipGroup</source>
        <translation>Nip-Gruppe anpassen</translation>
    </message>
    <message>
        <source>Go on with the Nip (Esc)</source>
        <translation>Mit dem Nip weitermachen (Esc)</translation>
    </message>
    <message>
        <source>Close the Nip</source>
        <translation>Das Nip schließen</translation>
    </message>
    <message>
        <source>Remove the group %1 and all that was entered in it, in every encounter</source>
        <translation>Die Gruppe %1 entfernen, mit allem, was in ihr in irgendeinem Kontakt erfasst wurde</translation>
    </message>
    <message>
        <source>Go to the fields of the group %1</source>
        <translation>Zu den Feldern der Gruppe %1</translation>
    </message>
</context>
<context>
    <name>Korvane::CustomizePane</name>
    <message>
        <source>Customizing the Structure of the NIP tables</source>
        <translation>Anpassen der Struktur der Nip-Tabellen</translation>
    </message>
    <message>
        <source>New Field</source>
        <translation>Neues Feld</translation>
    </message>
    <message>
        <source>Delete Field</source>
        <translation>Feld löschen</translation>
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
        <source>Add a field to this group</source>
        <translation>Dieser Gruppe ein Feld hinzufügen</translation>
    </message>
    <message>
        <source>Cancel the field</source>
        <translation>Das Bearbeiten des Feldes abbrechen</translation>
    </message>
    <message>
        <source>Save the field</source>
        <translation>Das Feld speichern</translation>
    </message>
    <message>
        <source>Leave the field as it is stored (Esc)</source>
        <translation>Das Feld so lassen, wie es gespeichert ist (Esc)</translation>
    </message>
    <message>
        <source>Store the field (Ctrl+S)</source>
        <translation>Das Feld speichern (Strg+S)</translation>
    </message>
    <message>
        <source>%1 with its 1 field</source>
        <translation>%1 mit ihrem Feld</translation>
    </message>
    <message>
        <source>%1 with its %2 fields</source>
        <translation>%1 mit ihren %2 Feldern</translation>
    </message>
    <message>
        <source>There is no group yet.</source>
        <translation>Es gibt noch keine Gruppe.</translation>
    </message>
    <message>
        <source>New field in group %1</source>
        <translation>Neues Feld in der Gruppe %1</translation>
    </message>
    <message>
        <source>Fields of group %1</source>
        <translation>Felder der Gruppe %1</translation>
    </message>
    <message>
        <source>Editing field [%1] of group %2</source>
        <translation>Feld [%1] der Gruppe %2 bearbeiten</translation>
    </message>
    <message>
        <source>Delete Field destroys [%1] with all that any encounter has in it.</source>
        <translation>„Feld löschen“ vernichtet [%1] mit allem, was in irgendeinem Kontakt darin steht.</translation>
    </message>
    <message>
        <source>Delete Nip Group destroys %1 and all that any encounter has in it.</source>
        <translation>„Nip-Gruppe löschen“ vernichtet %1 und alles, was in irgendeinem Kontakt darin steht.</translation>
    </message>
    <message>
        <source>Choose a field in the list or by a click on it in the form, or press New Field.</source>
        <translation>Wählen Sie ein Feld in der Liste oder durch einen Klick im Formular, oder klicken Sie auf „Neues Feld“.</translation>
    </message>
</context>
<context>
    <name>Korvane::DatePartBox</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy date</source>
        <translation>Datum &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Alles &amp;markieren</translation>
    </message>
</context>
<context>
    <name>Korvane::DateVoice</name>
    <message>
        <source>%1 Dates can be entered by hand.</source>
        <translation>%1 Datumsangaben können von Hand eingegeben werden.</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Spracheingabe</translation>
    </message>
</context>
<context>
    <name>Korvane::DisplayType</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>List-Multiple</source>
        <translation>Mehrfachliste</translation>
    </message>
    <message>
        <source>List-Editcontent</source>
        <translation>Liste mit Inhalt</translation>
    </message>
    <message>
        <source>Combobox</source>
        <translation>Kombifeld</translation>
    </message>
    <message>
        <source>Combobox-Restricted</source>
        <translation>Kombifeld, beschränkt</translation>
    </message>
</context>
<context>
    <name>Korvane::EditContentEntry</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Please enter the content for %1:</source>
        <translation>Bitte geben Sie den Inhalt für %1 ein:</translation>
    </message>
</context>
<context>
    <name>Korvane::EncounterPane</name>
    <message>
        <source>Choose a provider</source>
        <translation>Behandler wählen</translation>
    </message>
    <message>
        <source>De&amp;scription:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>Da&amp;te:</source>
        <translation>Da&amp;tum:</translation>
    </message>
    <message>
        <source>&amp;Provider:</source>
        <translation>Behandle&amp;r:</translation>
    </message>
</context>
<context>
    <name>Korvane::FieldDraft</name>
    <message>
        <source>The field name is too long.  It can have %1 characters.</source>
        <translation>Der Feldname ist zu lang.  Er darf %1 Zeichen haben.</translation>
    </message>
    <message>
        <source>The field name is too long.  It can have %1 letters, fewer when there are accents or other alphabets in it.</source>
        <translation>Der Feldname ist zu lang.  Er darf %1 Buchstaben haben, mit Umlauten, Akzenten oder anderen Alphabeten weniger.</translation>
    </message>
    <message>
        <source>The field caption is too long.  It can have %1 characters.</source>
        <translation>Die Feldbeschriftung ist zu lang.  Sie darf %1 Zeichen haben.</translation>
    </message>
    <message>
        <source>The width must be a whole number from 1 to %1.</source>
        <translation>Die Breite muss eine ganze Zahl von 1 bis %1 sein.</translation>
    </message>
    <message>
        <source>The row position must be a whole number from 1, or empty to leave the field where it stands.</source>
        <translation>Die Zeilenposition muss eine ganze Zahl ab 1 sein oder leer bleiben; dann bleibt das Feld, wo es steht.</translation>
    </message>
    <message>
        <source>A field can have no more than %1 choices.</source>
        <translation>Ein Feld kann höchstens %1 Auswahlwerte haben.</translation>
    </message>
    <message>
        <source>A choice must not be empty.</source>
        <translation>Ein Auswahlwert darf nicht leer sein.</translation>
    </message>
    <message>
        <source>The choice [%1] must not have a &quot;|&quot; in it.</source>
        <translation>Der Auswahlwert [%1] darf kein „|“ enthalten.</translation>
    </message>
    <message>
        <source>The choice [%1] is too long.  It can have %2 characters.</source>
        <translation>Der Auswahlwert [%1] ist zu lang.  Er darf %2 Zeichen haben.</translation>
    </message>
    <message>
        <source>Two of the choices are the same.</source>
        <translation>Zwei der Auswahlwerte sind gleich.</translation>
    </message>
    <message>
        <source>The choices do not fit when all of them are chosen.  Together they need a width of %1.</source>
        <translation>Die Auswahlwerte passen nicht, wenn alle gewählt werden.  Zusammen brauchen sie eine Breite von %1.</translation>
    </message>
    <message>
        <source>The longest choice does not fit.  It needs a width of %1.</source>
        <translation>Der längste Auswahlwert passt nicht.  Er braucht eine Breite von %1.</translation>
    </message>
</context>
<context>
    <name>Korvane::FieldForm</name>
    <message>
        <source>Field Name:</source>
        <translation>Feldname:</translation>
    </message>
    <message>
        <source>Field Caption:</source>
        <translation>Feldbeschriftung:</translation>
    </message>
    <message>
        <source>Display Type:</source>
        <translation>Anzeigeart:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Initial Value Rule:</source>
        <translation>Anfangswert:</translation>
    </message>
    <message>
        <source>Row Position:</source>
        <translation>Zeilenposition:</translation>
    </message>
    <message>
        <source>Cascade Item</source>
        <translation>Wert übernehmen</translation>
    </message>
    <message>
        <source>Do not Cascade</source>
        <translation>Wert nicht übernehmen</translation>
    </message>
    <message>
        <source>Cascading means that values from one Exam will be carried over to the next exam</source>
        <translation>Übernehmen heißt, dass Werte aus einer Untersuchung in die nächste übertragen werden</translation>
    </message>
    <message>
        <source>the last</source>
        <translation>die letzte</translation>
    </message>
    <message>
        <source>as it is</source>
        <translation>unverändert</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Changed; it was %1</source>
        <translation>Geändert; vorher: %1</translation>
    </message>
</context>
<context>
    <name>Korvane::FieldGrid</name>
    <message>
        <source>Fields of the group</source>
        <translation>Felder der Gruppe</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>Display Type</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
</context>
<context>
    <name>Korvane::FieldMark</name>
    <message>
        <source>This field is being customized</source>
        <translation>Dieses Feld wird gerade angepasst</translation>
    </message>
</context>
<context>
    <name>Korvane::ListEntryText</name>
    <message>
        <source>An entry of a list cannot contain the character &quot;|&quot;, which separates the entries: it would come back as two entries.</source>
        <translation>Ein Listeneintrag darf das Zeichen „|“ nicht enthalten, das die Einträge trennt: Er käme als zwei Einträge zurück.</translation>
    </message>
    <message>
        <source>List Entry Validation</source>
        <translation>Prüfung des Listeneintrags</translation>
    </message>
</context>
<context>
    <name>Korvane::MoveRow</name>
    <message>
        <source>Record number</source>
        <translation>Datensatznummer</translation>
    </message>
</context>
<context>
    <name>Korvane::NipTabs</name>
    <message>
        <source>The following problems occurred when loading the NIP controls:

%1</source>
        <translation>Beim Laden der Nip-Steuerelemente sind folgende Probleme aufgetreten:

%1</translation>
    </message>
</context>
<context>
    <name>Korvane::PanelForm</name>
    <message>
        <source>Close the Nip</source>
        <translation>Das Nip schließen</translation>
    </message>
    <message>
        <source>Groups of the Nip</source>
        <translation>Gruppen des Nips</translation>
    </message>
</context>
<context>
    <name>Korvane::PropertyBag</name>
    <message>
        <source>%1, %2 is used</source>
        <translation>%1, verwendet wird %2</translation>
    </message>
    <message>
        <source>%1 holds %2: %3</source>
        <translation>%1 enthält %2: %3</translation>
    </message>
    <message>
        <source>%1 is not the name of a property that is kept</source>
        <translation>%1 ist nicht der Name einer Eigenschaft, die gespeichert wird</translation>
    </message>
    <message>
        <source>%1 stands there more than once: the last is used</source>
        <translation>%1 steht dort mehr als einmal: verwendet wird der letzte Wert</translation>
    </message>
    <message>
        <source>no names</source>
        <translation>keine Namen</translation>
    </message>
    <message>
        <source>These are no properties: %1 at character %2</source>
        <translation>Das sind keine Eigenschaften: %1 bei Zeichen %2</translation>
    </message>
    <message>
        <source>%1 is a group, and no property that is kept</source>
        <translation>%1 ist eine Gruppe und keine Eigenschaft, die gespeichert wird</translation>
    </message>
    <message>
        <source>The settings hold lines that cannot be read: what they were meant for is taken at its default</source>
        <translation>Die Einstellungen enthalten Zeilen, die nicht gelesen werden können: Wofür sie gedacht waren, gilt die Vorgabe</translation>
    </message>
    <message>
        <source>that is no text</source>
        <translation>das ist kein Text</translation>
    </message>
    <message>
        <source>that is no &quot;True&quot; or &quot;False&quot;</source>
        <translation>das ist weder „True“ noch „False“</translation>
    </message>
    <message>
        <source>that is no whole number of 16 bits</source>
        <translation>das ist keine ganze Zahl mit 16 Bit</translation>
    </message>
    <message>
        <source>that is no whole number</source>
        <translation>das ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>that is no %1</source>
        <translation>das ist kein %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
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
        <translation>Das Recordset lässt keine Änderungen zu</translation>
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
        <translation>%1 hat eine unbekannte Anzeigeart: %2</translation>
    </message>
</context>
<context>
    <name>Korvane::ValueList</name>
    <message>
        <source>Remove from List</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Add to List</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Value to add</source>
        <translation>Wert zum Hinzufügen</translation>
    </message>
    <message>
        <source>Values of the list</source>
        <translation>Werte der Liste</translation>
    </message>
    <message>
        <source>A value cannot hold a &quot;%1&quot;: it separates the values.</source>
        <translation>Ein Wert darf kein „%1“ enthalten: Es trennt die Werte.</translation>
    </message>
</context>
<context>
    <name>Korvane::ado</name>
    <message>
        <source>The table &quot;%1&quot; is in a database already.</source>
        <translation>Die Tabelle „%1“ ist schon in einer Datenbank.</translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; needs a column.</source>
        <translation>Die Tabelle „%1“ braucht eine Spalte.</translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; cannot be made: there is already a table &quot;%2&quot;.</source>
        <translation>Die Tabelle „%1“ kann nicht angelegt werden: Es gibt schon eine Tabelle „%2“.</translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; cannot be made: there is already a view &quot;%2&quot;.</source>
        <translation>Die Tabelle „%1“ kann nicht angelegt werden: Es gibt schon eine Sicht „%2“.</translation>
    </message>
    <message>
        <source>A table, column or index needs a name.</source>
        <translation>Eine Tabelle, eine Spalte oder ein Index braucht einen Namen.</translation>
    </message>
    <message>
        <source>A name cannot hold the character NUL.</source>
        <translation>Ein Name darf das Zeichen NUL nicht enthalten.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is too long for the database: it has %2 bytes, of which %3 would be kept.</source>
        <translation>Der Name „%1“ ist für die Datenbank zu lang: Er hat %2 Bytes, von denen %3 erhalten blieben.</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; has a type that no column can have.</source>
        <translation>Die Spalte „%1“ hat einen Typ, den keine Spalte haben kann.</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; of the table &quot;%2&quot; has to allow Null: the table has rows, which have no value for it.</source>
        <translation>Die Spalte „%1“ der Tabelle „%2“ muss Null zulassen: Die Tabelle hat Zeilen, in denen es keinen Wert für sie gibt.</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; of the table &quot;%2&quot; keeps no text and has no size.</source>
        <translation>Die Spalte „%1“ der Tabelle „%2“ enthält keinen Text und hat keine Größe.</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; of the table &quot;%2&quot; is its last one and cannot be removed.</source>
        <translation>Die Spalte „%1“ der Tabelle „%2“ ist deren letzte und kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; of the table &quot;%2&quot; is part of its key and cannot be removed.</source>
        <translation>Die Spalte „%1“ der Tabelle „%2“ gehört zu deren Schlüssel und kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>The database address has an option that is not known: &quot;%1&quot;. There are mode=ro (to read only) and mode=rwc.</source>
        <translation>Die Datenbankadresse hat eine unbekannte Option: „%1“. Es gibt mode=ro (nur lesen) und mode=rwc.</translation>
    </message>
    <message>
        <source>This build has no PostgreSQL provider.</source>
        <translation>Dieses Programm wurde ohne PostgreSQL gebaut.</translation>
    </message>
    <message>
        <source>The database address does not begin with a kind of database that is known: sqlite:file, sqlite::memory: or postgresql://host/database.</source>
        <translation>Die Datenbankadresse beginnt mit keiner bekannten Art von Datenbank: sqlite:Datei, sqlite::memory: oder postgresql://Rechner/Datenbank.</translation>
    </message>
    <message>
        <source>The database address &quot;%1:&quot; does not begin with a kind of database that is known: sqlite:file, sqlite::memory: or postgresql://host/database.</source>
        <translation>Die Datenbankadresse „%1:“ beginnt mit keiner bekannten Art von Datenbank: sqlite:Datei, sqlite::memory: oder postgresql://Rechner/Datenbank.</translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; is there already; a primary key is given to a table when it is made.</source>
        <translation>Die Tabelle „%1“ ist schon da; einen Primärschlüssel bekommt eine Tabelle, wenn sie angelegt wird.</translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; has no index &quot;%2&quot;.</source>
        <translation>Die Tabelle „%1“ hat keinen Index „%2“.</translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; keeps its primary key.</source>
        <translation>Die Tabelle „%1“ behält ihren Primärschlüssel.</translation>
    </message>
    <message>
        <source>a row with the same key is already there</source>
        <translation>eine Zeile mit demselben Schlüssel ist schon da</translation>
    </message>
    <message>
        <source>other rows refer to the row, or the row it refers to is missing</source>
        <translation>andere Zeilen verweisen auf die Zeile, oder die Zeile, auf die sie verweist, fehlt</translation>
    </message>
    <message>
        <source>a text is longer than its column</source>
        <translation>ein Text ist länger als seine Spalte</translation>
    </message>
    <message>
        <source>a value is not of the type of its column</source>
        <translation>ein Wert ist nicht vom Typ seiner Spalte</translation>
    </message>
    <message>
        <source>a text holds bytes that are no UTF-8</source>
        <translation>ein Text enthält Bytes, die kein UTF-8 sind</translation>
    </message>
    <message>
        <source>a text holds a character that the database&apos;s encoding does not have</source>
        <translation>ein Text enthält ein Zeichen, das es im Zeichensatz der Datenbank nicht gibt</translation>
    </message>
    <message>
        <source>the database, or this transaction, is read-only</source>
        <translation>die Datenbank oder diese Transaktion lässt nur Lesen zu</translation>
    </message>
    <message>
        <source>an earlier statement of the transaction has failed</source>
        <translation>eine frühere Anweisung der Transaktion ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>check the user&apos;s name; the server may also let that user in from certain machines only</source>
        <translation>prüfen Sie den Benutzernamen; vielleicht lässt der Server diesen Benutzer auch nur von bestimmten Rechnern aus zu</translation>
    </message>
    <message>
        <source>check the user&apos;s name and password</source>
        <translation>prüfen Sie Benutzernamen und Kennwort</translation>
    </message>
    <message>
        <source>check the database&apos;s name in the address</source>
        <translation>prüfen Sie den Namen der Datenbank in der Adresse</translation>
    </message>
    <message>
        <source>another program was changing the same rows; try again</source>
        <translation>ein anderes Programm hat dieselben Zeilen geändert; versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>this login lacks a right that is needed; ask whoever looks after the database</source>
        <translation>dieser Anmeldung fehlt ein Recht, das nötig ist; fragen Sie, wer die Datenbank betreut</translation>
    </message>
    <message>
        <source>there is no room left on the server&apos;s disk</source>
        <translation>auf dem Datenträger des Servers ist kein Platz mehr</translation>
    </message>
    <message>
        <source>the server has no memory left</source>
        <translation>der Server hat keinen Speicher mehr</translation>
    </message>
    <message>
        <source>too many programs are connected; try again later</source>
        <translation>zu viele Programme sind verbunden; versuchen Sie es später noch einmal</translation>
    </message>
    <message>
        <source>the statement is beyond a limit of the server</source>
        <translation>die Anweisung überschreitet eine Grenze des Servers</translation>
    </message>
    <message>
        <source>another program holds the rows; try again in a moment</source>
        <translation>ein anderes Programm hält die Zeilen fest; versuchen Sie es gleich noch einmal</translation>
    </message>
    <message>
        <source>the statement took longer than it is given, or was stopped; try again in a moment</source>
        <translation>die Anweisung hat länger gedauert, als sie darf, oder wurde abgebrochen; versuchen Sie es gleich noch einmal</translation>
    </message>
    <message>
        <source>the server is going down or coming up; open the connection again in a moment</source>
        <translation>der Server fährt gerade herunter oder hoch; öffnen Sie die Verbindung gleich noch einmal</translation>
    </message>
    <message>
        <source>the server could not read or write its disk</source>
        <translation>der Server konnte von seinem Datenträger nicht lesen oder nicht auf ihn schreiben</translation>
    </message>
    <message>
        <source>The database server refused the connection: %1</source>
        <translation>Der Datenbankserver hat die Verbindung abgelehnt: %1</translation>
    </message>
    <message>
        <source>The database server asks for a password, and there is none in the address, in PGPASSWORD or in the password file.</source>
        <translation>Der Datenbankserver verlangt ein Kennwort, und es steht keines in der Adresse, in PGPASSWORD oder in der Kennwortdatei.</translation>
    </message>
    <message>
        <source>The database server could not be reached</source>
        <translation>Der Datenbankserver ist nicht erreichbar</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is longer than the %2 bytes that the database keeps of one.</source>
        <translation>Der Name „%1“ ist länger als die %2 Bytes, die die Datenbank von einem Namen behält.</translation>
    </message>
    <message>
        <source>The statement_timeout of a database address is a number of milliseconds.</source>
        <translation>statement_timeout in einer Datenbankadresse ist eine Zahl von Millisekunden.</translation>
    </message>
    <message>
        <source>The database address is not understood. It reads postgresql://user@host:port/database; in a name or a password a character such as @ : / ? is written as % and its two hexadecimal digits (%40 for @).</source>
        <translation>Die Datenbankadresse ist nicht zu verstehen. Sie lautet postgresql://Benutzer@Rechner:Port/Datenbank; in einem Namen oder Kennwort wird ein Zeichen wie @ : / ? als % und seine zwei hexadezimalen Ziffern geschrieben (%40 für @).</translation>
    </message>
    <message>
        <source>The connection is not one to a PostgreSQL database.</source>
        <translation>Die Verbindung ist keine zu einer PostgreSQL-Datenbank.</translation>
    </message>
    <message>
        <source>The database address holds the character NUL.</source>
        <translation>Die Datenbankadresse enthält das Zeichen NUL.</translation>
    </message>
    <message>
        <source>The connection is inside a transaction that has failed; it has to be rolled back before it is handed over.</source>
        <translation>Die Verbindung ist in einer fehlgeschlagenen Transaktion; diese muss zurückgenommen werden, bevor die Verbindung übergeben wird.</translation>
    </message>
    <message>
        <source>The row cannot be told from another one of its table; nothing was written.</source>
        <translation>Die Zeile ist von einer anderen ihrer Tabelle nicht zu unterscheiden; es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>%1 Another program may have changed the table since its rows were read.</source>
        <translation>%1 Vielleicht hat ein anderes Programm die Tabelle geändert, seit ihre Zeilen gelesen wurden.</translation>
    </message>
    <message>
        <source>The row could not be found to be updated: it has been deleted, or its key has been changed, since it was read.</source>
        <translation>Die Zeile, die geändert werden sollte, wurde nicht gefunden: Sie wurde gelöscht oder ihr Schlüssel wurde geändert, seit sie gelesen wurde.</translation>
    </message>
    <message>
        <source>There is no statement to run.</source>
        <translation>Es gibt keine Anweisung zum Ausführen.</translation>
    </message>
    <message>
        <source>Copy cannot be run over this connection.</source>
        <translation>Copy kann über diese Verbindung nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>Only one statement can be run at a time.</source>
        <translation>Es kann immer nur eine Anweisung ausgeführt werden.</translation>
    </message>
    <message>
        <source>The statement holds a parameter mark; values are written into the statement itself.</source>
        <translation>Die Anweisung enthält eine Parametermarke; Werte werden in die Anweisung selbst geschrieben.</translation>
    </message>
    <message>
        <source>The connection was closed by the program that opened it.</source>
        <translation>Die Verbindung wurde von dem Programm geschlossen, das sie geöffnet hat.</translation>
    </message>
    <message>
        <source>The connection to the database server was lost; it has to be opened again.</source>
        <translation>Die Verbindung zum Datenbankserver ist abgerissen; sie muss neu geöffnet werden.</translation>
    </message>
    <message>
        <source>A statement cannot hold the character NUL.</source>
        <translation>Eine Anweisung darf das Zeichen NUL nicht enthalten.</translation>
    </message>
    <message>
        <source>A statement that was announced has not been run: the transaction cannot be committed.</source>
        <translation>Eine angekündigte Anweisung wurde nicht ausgeführt: Die Transaktion kann nicht abgeschlossen werden.</translation>
    </message>
    <message>
        <source>The transaction of the connection&apos;s owner has failed. It has to be rolled back before the connection is let go of, or the owner&apos;s settings could not be put back.</source>
        <translation>Die Transaktion des Besitzers der Verbindung ist fehlgeschlagen. Sie muss zurückgenommen werden, bevor die Verbindung abgegeben wird, sonst können die Einstellungen des Besitzers nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>There is no transaction to commit.</source>
        <translation>Es gibt keine Transaktion zum Abschließen.</translation>
    </message>
    <message>
        <source>There is no transaction to roll back.</source>
        <translation>Es gibt keine Transaktion zum Zurücknehmen.</translation>
    </message>
    <message>
        <source>The transaction is over: the database has rolled it back after a failure, or somebody has ended it past this connection. What was written in it was saved only if it was committed there.</source>
        <translation>Die Transaktion ist zu Ende: Die Datenbank hat sie nach einem Fehler zurückgenommen, oder jemand hat sie an dieser Verbindung vorbei beendet. Was in ihr geschrieben wurde, ist nur gespeichert, wenn sie dort abgeschlossen wurde.</translation>
    </message>
    <message>
        <source>A text cannot hold the character NUL.</source>
        <translation>Ein Text darf das Zeichen NUL nicht enthalten.</translation>
    </message>
    <message>
        <source>The connection to the database server was lost</source>
        <translation>Die Verbindung zum Datenbankserver ist abgerissen</translation>
    </message>
    <message>
        <source>The database server did not answer in time; check that it is running and that the network is up</source>
        <translation>Der Datenbankserver hat nicht rechtzeitig geantwortet; prüfen Sie, ob er läuft und ob das Netz in Ordnung ist</translation>
    </message>
    <message>
        <source>The connection cannot be used now: its owner has something pending on it.</source>
        <translation>Die Verbindung kann jetzt nicht benutzt werden: Ihr Besitzer hat noch etwas offen.</translation>
    </message>
    <message>
        <source>The database server gave an answer that was not understood</source>
        <translation>Der Datenbankserver hat eine Antwort gegeben, die nicht zu verstehen war</translation>
    </message>
    <message>
        <source>The database server has not answered in time; the connection is given up</source>
        <translation>Der Datenbankserver hat nicht rechtzeitig geantwortet; die Verbindung wird aufgegeben</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; is outside the range of the column (column %2).</source>
        <translation>Der Wert „%1“ liegt außerhalb des Bereichs der Spalte (Spalte %2).</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; is not a date (column %2).</source>
        <translation>Der Wert „%1“ ist kein Datum (Spalte %2).</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; is not a number (column %2).</source>
        <translation>Der Wert „%1“ ist keine Zahl (Spalte %2).</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; is too large (column %2).</source>
        <translation>Der Wert „%1“ ist zu groß (Spalte %2).</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; is not a whole number (column %2).</source>
        <translation>Der Wert „%1“ ist keine ganze Zahl (Spalte %2).</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; is neither True nor False (column %2).</source>
        <translation>Der Wert „%1“ ist weder True noch False (Spalte %2).</translation>
    </message>
    <message>
        <source>The statement is too long.</source>
        <translation>Die Anweisung ist zu lang.</translation>
    </message>
    <message>
        <source>the database is in use by another program; try again in a moment</source>
        <translation>die Datenbank wird gerade von einem anderen Programm benutzt; versuchen Sie es gleich noch einmal</translation>
    </message>
    <message>
        <source>there is no room left on the disk for the database; free some and try again</source>
        <translation>auf dem Datenträger ist kein Platz mehr für die Datenbank; schaffen Sie Platz und versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>the database cannot be written; it may be opened read-only or the file may belong to somebody else</source>
        <translation>in die Datenbank kann nicht geschrieben werden; vielleicht ist sie nur zum Lesen geöffnet, oder die Datei gehört jemand anderem</translation>
    </message>
    <message>
        <source>access to the database is not permitted</source>
        <translation>der Zugriff auf die Datenbank ist nicht erlaubt</translation>
    </message>
    <message>
        <source>check that the file&apos;s folder exists and may be read and written</source>
        <translation>prüfen Sie, ob es den Ordner der Datei gibt und ob Sie darin lesen und schreiben dürfen</translation>
    </message>
    <message>
        <source>the database file is damaged; restore it from a backup</source>
        <translation>die Datenbankdatei ist beschädigt; stellen Sie sie aus einer Sicherung wieder her</translation>
    </message>
    <message>
        <source>the file is not a database of this kind, or it is encrypted</source>
        <translation>die Datei ist keine Datenbank dieser Art, oder sie ist verschlüsselt</translation>
    </message>
    <message>
        <source>the disk could not be read or written; check that it is connected and healthy</source>
        <translation>der Datenträger konnte nicht gelesen oder beschrieben werden; prüfen Sie, ob er angeschlossen und in Ordnung ist</translation>
    </message>
    <message>
        <source>the statement was stopped before it was done</source>
        <translation>die Anweisung wurde abgebrochen, bevor sie fertig war</translation>
    </message>
    <message>
        <source>The statement holds a NUL character, which no text column can keep.</source>
        <translation>Die Anweisung enthält ein NUL-Zeichen, das keine Textspalte behalten kann.</translation>
    </message>
    <message>
        <source>The address names no database file.</source>
        <translation>Die Adresse nennt keine Datenbankdatei.</translation>
    </message>
    <message>
        <source>The connection is not one to a SQLite database.</source>
        <translation>Die Verbindung ist keine zu einer SQLite-Datenbank.</translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; is new; it has to be appended to a catalog first.</source>
        <translation>Die Tabelle „%1“ ist neu; sie muss zuerst einem Katalog hinzugefügt werden.</translation>
    </message>
    <message>
        <source>There is no table &quot;%1&quot;.</source>
        <translation>Es gibt keine Tabelle „%1“.</translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; has no column &quot;%2&quot;.</source>
        <translation>Die Tabelle „%1“ hat keine Spalte „%2“.</translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; already has a column &quot;%2&quot;.</source>
        <translation>Die Tabelle „%1“ hat schon eine Spalte „%2“.</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; cannot have a size below 0.</source>
        <translation>Die Spalte „%1“ kann keine Größe unter 0 haben.</translation>
    </message>
    <message>
        <source>The index &quot;%1&quot; of the table &quot;%2&quot; needs a column.</source>
        <translation>Der Index „%1“ der Tabelle „%2“ braucht eine Spalte.</translation>
    </message>
    <message>
        <source>The index &quot;%1&quot; of the table &quot;%2&quot; is already there.</source>
        <translation>Der Index „%1“ der Tabelle „%2“ ist schon da.</translation>
    </message>
    <message>
        <source>The index &quot;%1&quot; of the table &quot;%2&quot; cannot be a second primary key.</source>
        <translation>Der Index „%1“ der Tabelle „%2“ kann kein zweiter Primärschlüssel sein.</translation>
    </message>
    <message>
        <source>The index &quot;%1&quot; of the table &quot;%2&quot; names a column that is not there: &quot;%3&quot;.</source>
        <translation>Der Index „%1“ der Tabelle „%2“ nennt eine Spalte, die es nicht gibt: „%3“.</translation>
    </message>
    <message>
        <source>The database connection &quot;%1&quot; cannot be used: %2</source>
        <translation>Die Datenbankverbindung „%1“ kann nicht benutzt werden: %2</translation>
    </message>
    <message>
        <source>its driver brings a SQLite of its own, which is not the one that this library uses. Let both use the system&apos;s, or open the file with ado::open.</source>
        <translation>Ihr Treiber bringt ein eigenes SQLite mit, nicht das, das diese Bibliothek benutzt. Lassen Sie beide das des Systems benutzen, oder öffnen Sie die Datei mit ado::open.</translation>
    </message>
    <message>
        <source>it is not open.</source>
        <translation>Sie ist nicht geöffnet.</translation>
    </message>
    <message>
        <source>it is not open (%1).</source>
        <translation>Sie ist nicht geöffnet (%1).</translation>
    </message>
    <message>
        <source>its driver %1 is none of those that are known here, QSQLITE and QPSQL.</source>
        <translation>Ihr Treiber %1 ist keiner der hier bekannten, QSQLITE und QPSQL.</translation>
    </message>
</context>
<context>
    <name>Korvane::axDate</name>
    <message>
        <source>MM/DD/YYYY</source>
        <translation>MM/TT/JJJJ</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>MM</source>
        <translation>MM</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>DD</source>
        <translation>TT</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>YYYY</source>
        <translation>JJJJ</translation>
    </message>
    <message>
        <source>Invalid date format. Please re-enter.</source>
        <translation>Ungültiges Datum. Bitte neu eingeben.</translation>
    </message>
    <message>
        <source>Year requires four digits. Please re-enter.</source>
        <translation>Das Jahr braucht vier Ziffern. Bitte neu eingeben.</translation>
    </message>
    <message>
        <source>value &quot;%1&quot; not found. You can say either a numeric or the name of a month.</source>
        <translation>„%1“ wurde nicht gefunden. Sie können eine Zahl oder den (englischen) Namen eines Monats sagen.</translation>
    </message>
    <message>
        <source> Error in %1: %2</source>
        <translation> Fehler in %1: %2</translation>
    </message>
    <message>
        <source>that is no &quot;True&quot; or &quot;False&quot;, True is used</source>
        <translation>das ist weder „True“ noch „False“, verwendet wird True</translation>
    </message>
</context>
<context>
    <name>Korvane::data</name>
    <message>
        <source>the log level %1 is not 1 to 5</source>
        <translation>die Protokollstufe %1 liegt nicht zwischen 1 und 5</translation>
    </message>
    <message>
        <source>cannot open the log file %1: %2</source>
        <translation>die Protokolldatei %1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Invalid Message Log Level!</source>
        <translation>Ungültige Protokollstufe!</translation>
    </message>
    <message>
        <source>failure writing to log file: %1</source>
        <translation>Fehler beim Schreiben in die Protokolldatei: %1</translation>
    </message>
    <message>
        <source>Attempt to return results from an Execute only SQL cmd or error creating RS object</source>
        <translation>Versuch, Ergebnisse einer SQL-Anweisung zu lesen, die nur ausgeführt wird, oder Fehler beim Anlegen des Recordset</translation>
    </message>
    <message>
        <source>Attempt to write results to an Execute only SQL cmd or error creating RS object</source>
        <translation>Versuch, in Ergebnisse einer SQL-Anweisung zu schreiben, die nur ausgeführt wird, oder Fehler beim Anlegen des Recordset</translation>
    </message>
    <message>
        <source>Attempt to read data from a closed Recordset</source>
        <translation>Versuch, aus einem geschlossenen Recordset zu lesen</translation>
    </message>
    <message>
        <source>Attempt to query while ADO Connection not open</source>
        <translation>Versuch einer Abfrage, während die ADO-Verbindung nicht geöffnet ist</translation>
    </message>
    <message>
        <source>Attempt to write results to ReadOnly Recordset</source>
        <translation>Versuch, in ein Recordset zu schreiben, das nur Lesen zulässt</translation>
    </message>
    <message>
        <source>Attempt to read past end of file</source>
        <translation>Versuch, über das Ende hinaus zu lesen</translation>
    </message>
    <message>
        <source>Attempt to get RecordCount from a query that does not support that property</source>
        <translation>Versuch, RecordCount von einer Abfrage zu lesen, die diese Eigenschaft nicht hat</translation>
    </message>
    <message>
        <source>The tables could not be installed: %1</source>
        <translation>Die Tabellen konnten nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>It is recommended that you restart the %1</source>
        <translation>Es wird empfohlen, neu zu starten: %1</translation>
    </message>
</context>
<context>
    <name>Korvane::dbxadmin</name>
    <message>
        <source>unspecified</source>
        <translation>nicht angegeben</translation>
    </message>
    <message>
        <source>Text box</source>
        <translation>Textfeld</translation>
    </message>
    <message>
        <source>Date control</source>
        <translation>Datumsfeld</translation>
    </message>
    <message>
        <source>List box</source>
        <translation>Listenfeld</translation>
    </message>
    <message>
        <source>Special format</source>
        <translation>Sonderformat</translation>
    </message>
    <message>
        <source>phone number</source>
        <translation>Telefonnummer</translation>
    </message>
    <message>
        <source>SS Number</source>
        <translation>Sozialvers.-Nr.</translation>
    </message>
    <message>
        <source>Zip Code</source>
        <translation>Postleitzahl</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Not Required</source>
        <translation>Kann-Feld</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Pflichtfeld</translation>
    </message>
    <message>
        <source>Just a Reminder</source>
        <translation>Nur Erinnerung</translation>
    </message>
</context>
<context>
    <name>Korvane::funcPanel</name>
    <message>
        <source>buttonCount must be at least 1.</source>
        <translation>buttonCount muss mindestens 1 sein.</translation>
    </message>
    <message>
        <source>buttonCount must not be greater than 5.</source>
        <translation>buttonCount darf nicht größer als 5 sein.</translation>
    </message>
    <message>
        <source>that is no size, %1 is used</source>
        <translation>das ist keine Größe, verwendet wird %1</translation>
    </message>
    <message>
        <source>that is no colour of 32 bits, the button face is used</source>
        <translation>das ist keine Farbe mit 32 Bit, verwendet wird die Farbe der Schaltflächen</translation>
    </message>
    <message>
        <source>%1 5 is used</source>
        <translation>%1 Verwendet wird 5</translation>
    </message>
</context>
<context>
    <name>Korvane::movebtn</name>
    <message>
        <source>First record</source>
        <translation>Erster Datensatz</translation>
    </message>
    <message>
        <source>Previous record</source>
        <translation>Voriger Datensatz</translation>
    </message>
    <message>
        <source>Next record</source>
        <translation>Nächster Datensatz</translation>
    </message>
    <message>
        <source>Last record</source>
        <translation>Letzter Datensatz</translation>
    </message>
</context>
<context>
    <name>Korvane::nip</name>
    <message>
        <source>The field %1 holds more than 32767 entries</source>
        <translation>Das Feld %1 enthält mehr als 32767 Einträge</translation>
    </message>
    <message>
        <source>A field needs a name</source>
        <translation>Ein Feld braucht einen Namen</translation>
    </message>
    <message>
        <source>The name %1 is longer than %2 bytes</source>
        <translation>Der Name %1 ist länger als %2 Bytes</translation>
    </message>
    <message>
        <source>The name %1 is that of the group&apos;s key</source>
        <translation>Der Name %1 ist der des Schlüssels der Gruppe</translation>
    </message>
    <message>
        <source>The group %1 has a field %2 already</source>
        <translation>Die Gruppe %1 hat schon ein Feld %2</translation>
    </message>
    <message>
        <source>A field of %1 characters holds nothing</source>
        <translation>In ein Feld von %1 Zeichen passt nichts</translation>
    </message>
    <message>
        <source>More than 32767 values of a field</source>
        <translation>Mehr als 32767 Werte eines Feldes</translation>
    </message>
    <message>
        <source>A group needs a name</source>
        <translation>Eine Gruppe braucht einen Namen</translation>
    </message>
    <message>
        <source>More than %1 groups</source>
        <translation>Mehr als %1 Gruppen</translation>
    </message>
    <message>
        <source>The structure is not loaded</source>
        <translation>Die Struktur ist nicht geladen</translation>
    </message>
    <message>
        <source>Two fields of the table %1 have the name %2</source>
        <translation>Zwei Felder der Tabelle %1 heißen %2</translation>
    </message>
    <message>
        <source>%1 of the field %2: %3</source>
        <translation>%1 des Feldes %2: %3</translation>
    </message>
    <message>
        <source>More than %1 values of the field %2</source>
        <translation>Mehr als %1 Werte des Feldes %2</translation>
    </message>
    <message>
        <source>More than %1 fields in the group %2</source>
        <translation>Mehr als %1 Felder in der Gruppe %2</translation>
    </message>
    <message>
        <source>More than %1 rows in the group %2</source>
        <translation>Mehr als %1 Zeilen in der Gruppe %2</translation>
    </message>
    <message>
        <source>The form was customized elsewhere since it was loaded</source>
        <translation>Das Formular wurde anderswo angepasst, seit es geladen wurde</translation>
    </message>
    <message>
        <source>The encounter is not stored yet</source>
        <translation>Der Kontakt ist noch nicht gespeichert</translation>
    </message>
    <message>
        <source>The encounter %1 is there more than once</source>
        <translation>Den Kontakt %1 gibt es mehr als einmal</translation>
    </message>
    <message>
        <source>The encounter %1 is another patient&apos;s</source>
        <translation>Der Kontakt %1 gehört zu einem anderen Patienten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a table or field</source>
        <translation>„%1“ kann kein Name einer Tabelle oder eines Feldes sein</translation>
    </message>
</context>
<context>
    <name>Korvane::runtime</name>
    <message>
        <source>Korvane data-entry library</source>
        <translation>Korvane-Bibliothek zur Dateneingabe</translation>
    </message>
</context>
<context>
    <name>Korvane::ucNIPPanel</name>
    <message>
        <source>Are you sure you want to cancel creating this field?</source>
        <translation>Möchten Sie das Anlegen dieses Feldes wirklich abbrechen?</translation>
    </message>
    <message>
        <source>Cancel field creation</source>
        <translation>Anlegen des Feldes abbrechen</translation>
    </message>
    <message>
        <source>Changes have been made to the field [%1] in the group %2. 
Are you certain you want to discard those changes?</source>
        <translation>Das Feld [%1] in der Gruppe %2 wurde geändert. 
Möchten Sie diese Änderungen wirklich verwerfen?</translation>
    </message>
    <message>
        <source>Discard Customization Confirmation</source>
        <translation>Anpassung verwerfen</translation>
    </message>
    <message>
        <source>Field Name Validation</source>
        <translation>Prüfung des Feldnamens</translation>
    </message>
    <message>
        <source>The field name already exists in this Nip group.  Field names cannot be duplicated.</source>
        <translation>Diesen Feldnamen gibt es in dieser Nip-Gruppe schon.  Feldnamen dürfen nicht doppelt vorkommen.</translation>
    </message>
    <message>
        <source>The field name (%1) is not a valid field name.  

Field names cannot contain spaces, quotation marks, or special characters and must begin with a letter.</source>
        <translation>Der Feldname (%1) ist nicht gültig.  

Feldnamen dürfen keine Leerzeichen, Anführungszeichen oder Sonderzeichen enthalten und müssen mit einem Buchstaben beginnen.</translation>
    </message>
    <message>
        <source>Field Validation</source>
        <translation>Prüfung des Feldes</translation>
    </message>
    <message>
        <source>An error occured while creating this field.  Please try again.  (ucNipPanel.SaveFieldCustomization-mnip.CreateField Failed. mcG=%1, mcF=%2%3</source>
        <translation>Beim Anlegen dieses Feldes ist ein Fehler aufgetreten.  Bitte versuchen Sie es noch einmal.  (ucNipPanel.SaveFieldCustomization-mnip.CreateField fehlgeschlagen. mcG=%1, mcF=%2%3</translation>
    </message>
    <message>
        <source>System error: Unable to save this field.</source>
        <translation>Systemfehler: Dieses Feld kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Are you certain you wish to delete this field?  All data in the field will be permenantly lost.</source>
        <translation>Möchten Sie dieses Feld wirklich löschen?  Alle Daten in dem Feld gehen endgültig verloren.</translation>
    </message>
    <message>
        <source>Delete Confirmation</source>
        <translation>Löschen bestätigen</translation>
    </message>
    <message>
        <source>System error: Unable to delete this field.</source>
        <translation>Systemfehler: Dieses Feld kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>What is the name of the group you would like to create</source>
        <translation>Wie soll die neue Gruppe heißen</translation>
    </message>
    <message>
        <source>New group name</source>
        <translation>Name der neuen Gruppe</translation>
    </message>
    <message>
        <source>A group needs a name.  No group was created.</source>
        <translation>Eine Gruppe braucht einen Namen.  Es wurde keine Gruppe angelegt.</translation>
    </message>
    <message>
        <source>The name of the group is too long.  It can have %1 characters.  No group was created.</source>
        <translation>Der Name der Gruppe ist zu lang.  Er darf %1 Zeichen haben.  Es wurde keine Gruppe angelegt.</translation>
    </message>
    <message>
        <source>System error: Unable to create this Nip group%1

The group [%2] was not created.</source>
        <translation>Systemfehler: Diese Nip-Gruppe kann nicht angelegt werden%1

Die Gruppe [%2] wurde nicht angelegt.</translation>
    </message>
    <message>
        <source>Deleting a Nip Group will also delete all fields in the group.
This is a destructive action that cannot be reversed.  Do you wish to continue?</source>
        <translation>Wenn Sie eine Nip-Gruppe löschen, werden auch alle Felder der Gruppe gelöscht.
Dabei werden Daten vernichtet; das kann nicht rückgängig gemacht werden.  Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Delete Group Confirmation</source>
        <translation>Löschen der Gruppe bestätigen</translation>
    </message>
    <message>
        <source>System error: Unable to remove this nip group.</source>
        <translation>Systemfehler: Diese Nip-Gruppe kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Unable to save this encounter</source>
        <translation>Dieser Kontakt kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>The date of this encounter is not a valid date. Please enter it as month/day/year.</source>
        <translation>Das Datum dieses Kontakts ist nicht gültig. Bitte geben Sie es als Monat/Tag/Jahr ein.</translation>
    </message>
    <message>
        <source>Please choose the provider of this encounter. It cannot be saved without one.</source>
        <translation>Bitte wählen Sie den Behandler dieses Kontakts. Ohne Behandler kann er nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>This clinic has no providers yet. An encounter cannot be saved without one.</source>
        <translation>Diese Klinik hat noch keine Behandler. Ohne Behandler kann ein Kontakt nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>This Nip could not be saved, because another desk took its number at the same moment. Everything you entered is still here; please try again.</source>
        <translation>Dieses Nip konnte nicht gespeichert werden, weil ein anderer Arbeitsplatz im selben Augenblick seine Nummer genommen hat. Alles, was Sie eingegeben haben, ist noch da; bitte versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>This Nip could not be saved, because its encounter is no longer there. It may have been deleted at another desk. Everything you entered is still here.</source>
        <translation>Dieses Nip konnte nicht gespeichert werden, weil es seinen Kontakt nicht mehr gibt. Vielleicht wurde er an einem anderen Arbeitsplatz gelöscht. Alles, was Sie eingegeben haben, ist noch da.</translation>
    </message>
    <message>
        <source>The connection was lost at the last moment, so it is not known whether this Nip was saved. Everything you entered is still here; please save it again. It is not stored twice.</source>
        <translation>Die Verbindung ist im letzten Augenblick abgerissen, daher ist nicht bekannt, ob dieses Nip gespeichert wurde. Alles, was Sie eingegeben haben, ist noch da; bitte speichern Sie noch einmal. Es wird nicht doppelt gespeichert.</translation>
    </message>
    <message>
        <source>This Nip could not be saved. Everything you entered is still here; please try again.</source>
        <translation>Dieses Nip konnte nicht gespeichert werden. Alles, was Sie eingegeben haben, ist noch da; bitte versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>This Nip could not be saved, because another desk has customized the form, and the new form could not be read. Everything you entered is still here; please try again.</source>
        <translation>Dieses Nip konnte nicht gespeichert werden, weil ein anderer Arbeitsplatz das Formular angepasst hat und das neue Formular nicht gelesen werden konnte. Alles, was Sie eingegeben haben, ist noch da; bitte versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>This Nip is not saved yet, because another desk has customized the form. It is shown as it is now, with everything you entered; please look through it and save it again.</source>
        <translation>Dieses Nip ist noch nicht gespeichert, weil ein anderer Arbeitsplatz das Formular angepasst hat. Es wird jetzt in der neuen Form gezeigt, mit allem, was Sie eingegeben haben; bitte sehen Sie es durch und speichern Sie noch einmal.</translation>
    </message>
    <message>
        <source>The form is shown as it is now.</source>
        <translation>Das Formular wird in der neuen Form gezeigt.</translation>
    </message>
    <message>
        <source>No patient is chosen. A Nip cannot be created without one.</source>
        <translation>Es ist kein Patient gewählt. Ohne Patienten kann kein Nip angelegt werden.</translation>
    </message>
    <message>
        <source>Are you sure you want to create a new nip and discard the one you were creating?</source>
        <translation>Möchten Sie wirklich ein neues Nip anlegen und das gerade begonnene verwerfen?</translation>
    </message>
    <message>
        <source>Are you sure you want to create a new nip and discard the changes you are making?</source>
        <translation>Möchten Sie wirklich ein neues Nip anlegen und Ihre Änderungen verwerfen?</translation>
    </message>
    <message>
        <source>Are you sure you want to load a nip and discard the one you were creating?</source>
        <translation>Möchten Sie wirklich ein Nip laden und das gerade begonnene verwerfen?</translation>
    </message>
    <message>
        <source>Are you sure you want to load a nip and discard the changes you are making?</source>
        <translation>Möchten Sie wirklich ein Nip laden und Ihre Änderungen verwerfen?</translation>
    </message>
    <message>
        <source>Another desk has customized the form. It is shown as it is now.</source>
        <translation>Ein anderer Arbeitsplatz hat das Formular angepasst. Es wird in der neuen Form gezeigt.</translation>
    </message>
    <message>
        <source>This Nip could not be found. It may have been deleted.</source>
        <translation>Dieses Nip wurde nicht gefunden. Vielleicht wurde es gelöscht.</translation>
    </message>
    <message>
        <source>This Nip belongs to another patient and cannot be shown here.</source>
        <translation>Dieses Nip gehört zu einem anderen Patienten und kann hier nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>This Nip could not be read from the database. Please try again.</source>
        <translation>Dieses Nip konnte nicht aus der Datenbank gelesen werden. Bitte versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the creation of this Nip?</source>
        <translation>Möchten Sie das Anlegen dieses Nips wirklich abbrechen?</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the changes made to this Nip?</source>
        <translation>Möchten Sie die Änderungen an diesem Nip wirklich verwerfen?</translation>
    </message>
    <message>
        <source>No Nip is open</source>
        <translation>Kein Nip ist geöffnet</translation>
    </message>
    <message>
        <source>New Nip</source>
        <translation>Neues Nip</translation>
    </message>
    <message>
        <source>Saved Nip</source>
        <translation>Gespeichertes Nip</translation>
    </message>
    <message>
        <source>New Nip with changes that are not saved</source>
        <translation>Neues Nip, Änderungen nicht gespeichert</translation>
    </message>
    <message>
        <source>Saved Nip with changes that are not saved</source>
        <translation>Gespeichertes Nip, Änderungen nicht gespeichert</translation>
    </message>
    <message>
        <source>These entries have no field any more (they are kept in the error log):</source>
        <translation>Für diese Eingaben gibt es kein Feld mehr (sie bleiben im Fehlerprotokoll erhalten):</translation>
    </message>
    <message>
        <source>Another desk has customized this form since it was shown here.  It is shown as it is now; what you entered is kept.</source>
        <translation>Ein anderer Arbeitsplatz hat dieses Formular angepasst, seit es hier gezeigt wurde.  Es wird in der neuen Form gezeigt; was Sie eingegeben haben, bleibt erhalten.</translation>
    </message>
    <message>
        <source>The form could not be read from the database again.</source>
        <translation>Das Formular konnte nicht erneut aus der Datenbank gelesen werden.</translation>
    </message>
    <message>
        <source>The group of the new field is no longer there.</source>
        <translation>Die Gruppe des neuen Feldes gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>The field [%1] is no longer there.</source>
        <translation>Das Feld [%1] gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>What you wrote is kept as a new field of the group %1: save it to create the field there, or cancel it.</source>
        <translation>Was Sie geschrieben haben, bleibt als neues Feld der Gruppe %1 erhalten: Speichern Sie es, um das Feld dort anzulegen, oder brechen Sie ab.</translation>
    </message>
    <message>
        <source>There is no group left for what you wrote; it is kept in the error log.</source>
        <translation>Für das, was Sie geschrieben haben, gibt es keine Gruppe mehr; es bleibt im Fehlerprotokoll erhalten.</translation>
    </message>
</context>
<context>
    <name>Korvane::voice</name>
    <message>
        <source>The sound file %1 is no WAV file with 16-bit samples.</source>
        <translation>Die Tondatei %1 ist keine WAV-Datei mit 16 Bit je Abtastwert.</translation>
    </message>
    <message>
        <source>The sound file %1 cannot be read.</source>
        <translation>Die Tondatei %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The sound file has ended.</source>
        <translation>Die Tondatei ist zu Ende.</translation>
    </message>
    <message>
        <source>No microphone was found.</source>
        <translation>Es wurde kein Mikrofon gefunden.</translation>
    </message>
    <message>
        <source>The microphone &quot;%1&quot; was not found.</source>
        <translation>Das Mikrofon „%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The microphone gives no sound of 16 bits.</source>
        <translation>Das Mikrofon liefert keinen Ton mit 16 Bit.</translation>
    </message>
    <message>
        <source>The microphone &quot;%1&quot; cannot be opened.</source>
        <translation>Das Mikrofon „%1“ kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The microphone has gone.</source>
        <translation>Das Mikrofon ist nicht mehr da.</translation>
    </message>
    <message>
        <source>No microphone was found: the application was built without Qt Multimedia.</source>
        <translation>Es wurde kein Mikrofon gefunden: Das Programm wurde ohne Qt Multimedia gebaut.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a voice command: the word &quot;%2&quot; has a letter or a sign that is not said in English.</source>
        <translation>„%1“ kann kein Sprachbefehl sein: Das Wort „%2“ hat einen Buchstaben oder ein Zeichen, das man im Englischen nicht spricht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a voice command: it has no words.</source>
        <translation>„%1“ kann kein Sprachbefehl sein: Es enthält keine Wörter.</translation>
    </message>
    <message>
        <source>The speech engine speaks US English (1033), not language %1.</source>
        <translation>Die Spracherkennung versteht amerikanisches Englisch (1033), nicht die Sprache %1.</translation>
    </message>
    <message>
        <source>Voice is not there: the speech model %1 is missing (Debian&apos;s pocketsphinx-en-us).</source>
        <translation>Spracheingabe ist nicht verfügbar: Das Sprachmodell %1 fehlt (Debian: pocketsphinx-en-us).</translation>
    </message>
    <message>
        <source>Voice is not there: the speech model %1 cannot be used.</source>
        <translation>Spracheingabe ist nicht verfügbar: Das Sprachmodell %1 kann nicht benutzt werden.</translation>
    </message>
    <message>
        <source>The speech engine refused the commands.</source>
        <translation>Die Spracherkennung hat die Befehle abgelehnt.</translation>
    </message>
    <message>
        <source>The microphone is off.</source>
        <translation>Das Mikrofon ist aus.</translation>
    </message>
    <message>
        <source>The speech engine has been closed.</source>
        <translation>Die Spracherkennung wurde geschlossen.</translation>
    </message>
    <message>
        <source>The microphone is on.</source>
        <translation>Das Mikrofon ist an.</translation>
    </message>
    <message>
        <source>Sound of %1 samples a second in %2 channels cannot be listened to.</source>
        <translation>Ton mit %1 Abtastwerten je Sekunde auf %2 Kanälen kann nicht verarbeitet werden.</translation>
    </message>
    <message>
        <source>Voice is not there: the application has not set up a speech engine.</source>
        <translation>Spracheingabe ist nicht verfügbar: Das Programm hat keine Spracherkennung eingerichtet.</translation>
    </message>
    <message>
        <source>Voice is not there: this build has no speech engine.</source>
        <translation>Spracheingabe ist nicht verfügbar: Dieses Programm wurde ohne Spracherkennung gebaut.</translation>
    </message>
</context>
</TS>
