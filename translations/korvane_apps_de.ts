<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Apps::CommandLine</name>
    <message>
        <source>&quot;%1&quot; is not understood; --help tells what is.</source>
        <translation>„%1“ wird nicht verstanden; --help sagt, was es gibt.</translation>
    </message>
    <message>
        <source>Text size in percent, 70 to 300; kept for the next start.</source>
        <translation>Textgröße in Prozent, 70 bis 300; bleibt für den nächsten Start.</translation>
    </message>
    <message>
        <source>Text size in percent, 70 to 300.</source>
        <translation>Textgröße in Prozent, 70 bis 300.</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>dir</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>--font-scale takes a number from 70 to 300.</source>
        <translation>--font-scale braucht eine Zahl von 70 bis 300.</translation>
    </message>
    <message>
        <source>--tour needs a directory.</source>
        <translation>--tour braucht einen Ordner.</translation>
    </message>
</context>
<context>
    <name>Apps::EventList</name>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>What it says</source>
        <translation>Was es meldet</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>L&amp;eeren</translation>
    </message>
</context>
<context>
    <name>Apps::Language</name>
    <message>
        <source>--language takes one of: %1.</source>
        <translation>Für --language gibt es: %1.</translation>
    </message>
    <message>
        <source>The language to speak, like de; without it the system&apos;s, where there is a catalogue for it.</source>
        <translation>Die Sprache des Programms, etwa de; ohne die Option die des Systems, wenn es dafür einen Katalog gibt.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>Kürzel</translation>
    </message>
</context>
<context>
    <name>Apps::Screen</name>
    <message>
        <source>there is no display. Set DISPLAY, or see the guided tour with --tour DIR.</source>
        <translation>Es gibt keinen Bildschirm. Setzen Sie DISPLAY, oder sehen Sie sich mit --tour ORDNER die Führung an.</translation>
    </message>
</context>
<context>
    <name>Clinic::Actions</name>
    <message>
        <source>N&amp;ip</source>
        <translation>N&amp;ip</translation>
    </message>
    <message>
        <source>P&amp;atients</source>
        <translation>P&amp;atienten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Ansi&amp;cht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>&amp;New Nip</source>
        <translation>&amp;Neues Nip</translation>
    </message>
    <message>
        <source>Enter a new Nip for the chosen patient</source>
        <translation>Ein neues Nip für den gewählten Patienten erfassen</translation>
    </message>
    <message>
        <source>&amp;Open Nip</source>
        <translation>Nip ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open the Nip of the chosen encounter (Enter in the list)</source>
        <translation>Das Nip des gewählten Kontakts öffnen (Eingabetaste in der Liste)</translation>
    </message>
    <message>
        <source>&amp;Save Nip</source>
        <translation>Nip &amp;speichern</translation>
    </message>
    <message>
        <source>Save the Nip and close it</source>
        <translation>Das Nip speichern und schließen</translation>
    </message>
    <message>
        <source>&amp;Close Nip</source>
        <translation>Nip s&amp;chließen</translation>
    </message>
    <message>
        <source>Close the Nip without saving</source>
        <translation>Das Nip schließen, ohne zu speichern</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Das Fenster schließen</translation>
    </message>
    <message>
        <source>&amp;Find Patient</source>
        <translation>&amp;Patient suchen</translation>
    </message>
    <message>
        <source>Search by part of a name or an ID</source>
        <translation>Nach einem Teil eines Namens oder einer ID suchen</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>Read patients and encounters again; reconnects to a database that was lost</source>
        <translation>Patienten und Kontakte neu lesen; stellt eine abgerissene Verbindung zur Datenbank wieder her</translation>
    </message>
    <message>
        <source>Patients and &amp;Encounters</source>
        <translation>Patienten und &amp;Kontakte</translation>
    </message>
    <message>
        <source>Show or hide the lists beside an open Nip</source>
        <translation>Die Listen neben einem geöffneten Nip zeigen oder ausblenden</translation>
    </message>
    <message>
        <source>Ne&amp;xt Pane</source>
        <translation>&amp;Nächster Bereich</translation>
    </message>
    <message>
        <source>Go to the next part of the window</source>
        <translation>Zum nächsten Bereich des Fensters gehen</translation>
    </message>
    <message>
        <source>&amp;Previous Pane</source>
        <translation>&amp;Voriger Bereich</translation>
    </message>
    <message>
        <source>Go to the part of the window before</source>
        <translation>Zum vorigen Bereich des Fensters gehen</translation>
    </message>
    <message>
        <source>&amp;Larger Text</source>
        <translation>Text &amp;größer</translation>
    </message>
    <message>
        <source>Make all text larger</source>
        <translation>Alle Texte größer zeigen</translation>
    </message>
    <message>
        <source>&amp;Smaller Text</source>
        <translation>Text k&amp;leiner</translation>
    </message>
    <message>
        <source>Make all text smaller</source>
        <translation>Alle Texte kleiner zeigen</translation>
    </message>
    <message>
        <source>&amp;Usual Text Size</source>
        <translation>Übliche &amp;Textgröße</translation>
    </message>
    <message>
        <source>Text in its usual size</source>
        <translation>Texte in ihrer üblichen Größe zeigen</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>&amp;Tastatur</translation>
    </message>
    <message>
        <source>Which keys do what</source>
        <translation>Welche Taste was bewirkt</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>What this program is</source>
        <translation>Was dieses Programm ist</translation>
    </message>
</context>
<context>
    <name>Clinic::ConnectionBar</name>
    <message>
        <source>&amp;Reconnect</source>
        <translation>Neu &amp;verbinden</translation>
    </message>
    <message>
        <source>Connects to the database again; nothing that was entered is lost</source>
        <translation>Verbindet neu mit der Datenbank; nichts, was eingegeben wurde, geht verloren</translation>
    </message>
    <message>
        <source>The connection to the database is lost. What you entered is still here: reconnect, then save it.</source>
        <translation>Die Verbindung zur Datenbank ist abgerissen. Was Sie eingegeben haben, ist noch da: Verbinden Sie neu, und speichern Sie dann.</translation>
    </message>
    <message>
        <source>There is still no connection to the database. What you entered is still here.
%1</source>
        <translation>Es gibt noch immer keine Verbindung zur Datenbank. Was Sie eingegeben haben, ist noch da.
%1</translation>
    </message>
</context>
<context>
    <name>Clinic::Database</name>
    <message>
        <source>The directory %1 cannot be made.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
</context>
<context>
    <name>Clinic::EncounterModel</name>
    <message>
        <source>(no description)</source>
        <translation>(keine Beschreibung)</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Provider</source>
        <translation>Behandler</translation>
    </message>
    <message>
        <source>%1, open</source>
        <translation>%1, geöffnet</translation>
    </message>
</context>
<context>
    <name>Clinic::EncounterPane</name>
    <message>
        <source>Enter opens the encounter.</source>
        <translation>Die Eingabetaste öffnet den Kontakt.</translation>
    </message>
    <message>
        <source>&amp;Encounters</source>
        <translation>&amp;Kontakte</translation>
    </message>
    <message>
        <source>Encounters</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>Choose a patient to see the encounters.</source>
        <translation>Wählen Sie einen Patienten, um die Kontakte zu sehen.</translation>
    </message>
    <message>
        <source>Encounters of %1</source>
        <translation>Kontakte von %1</translation>
    </message>
    <message>
        <source>No encounters yet. Ctrl+N starts the first Nip.</source>
        <translation>Noch keine Kontakte. Strg+N beginnt das erste Nip.</translation>
    </message>
    <message>
        <source>The encounters could not be read. F5 tries again.</source>
        <translation>Die Kontakte konnten nicht gelesen werden. F5 versucht es noch einmal.</translation>
    </message>
    <message>
        <source>&amp;Encounters of %1</source>
        <translation>&amp;Kontakte von %1</translation>
    </message>
</context>
<context>
    <name>Clinic::Help</name>
    <message>
        <source>Down</source>
        <translation>Pfeil ab</translation>
    </message>
    <message>
        <source>From the search box into the list of patients</source>
        <translation>Vom Suchfeld in die Liste der Patienten</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>On a patient: to the encounters. On an encounter: opens its Nip</source>
        <translation>Auf einem Patienten: zu den Kontakten. Auf einem Kontakt: öffnet dessen Nip</translation>
    </message>
    <message>
        <source>Ctrl+Tab</source>
        <translation>Strg+Tab</translation>
    </message>
    <message>
        <source>In a Nip: to the next group</source>
        <translation>In einem Nip: zur nächsten Gruppe</translation>
    </message>
    <message>
        <source>Ctrl+F6</source>
        <translation>Strg+F6</translation>
    </message>
    <message>
        <source>While customizing: between the form and the list of fields</source>
        <translation>Beim Anpassen: zwischen dem Formular und der Liste der Felder</translation>
    </message>
    <message>
        <source>While customizing, on an entry of the form: chooses its field</source>
        <translation>Beim Anpassen, auf einer Eingabe des Formulars: wählt deren Feld</translation>
    </message>
    <message>
        <source>Alt and a letter</source>
        <translation>Alt und ein Buchstabe</translation>
    </message>
    <message>
        <source>Opens the menu, or goes to the control, with that letter underlined</source>
        <translation>Öffnet das Menü oder geht zum Feld mit diesem unterstrichenen Buchstaben</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Korvane Clinic %1&lt;/h3&gt;&lt;p&gt;A small clinical application that shows the Korvane controls at work. It is a demonstration and no medical device.&lt;/p&gt;&lt;p&gt;The patients are made up; the forms are published ones, with their licences in the project&apos;s folder apps/clinic/forms.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Korvane Clinic %1&lt;/h3&gt;&lt;p&gt;Eine kleine klinische Anwendung, die die Steuerelemente von Korvane bei der Arbeit zeigt. Sie ist eine Vorführung und kein Medizinprodukt.&lt;/p&gt;&lt;p&gt;Die Patienten sind erfunden; die Formulare sind veröffentlicht, ihre Lizenzen liegen im Ordner apps/clinic/forms des Projekts.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>Clinic::MainWindow</name>
    <message>
        <source>The new Nip is saved.</source>
        <translation>Das neue Nip ist gespeichert.</translation>
    </message>
    <message>
        <source>The Nip is now &quot;%1&quot; of %2.</source>
        <translation>Das Nip ist jetzt „%1“ vom %2.</translation>
    </message>
    <message>
        <source>Text size %1 %</source>
        <translation>Textgröße %1 %</translation>
    </message>
    <message>
        <source>The database is connected again.</source>
        <translation>Die Datenbank ist wieder verbunden.</translation>
    </message>
    <message>
        <source>%1 - Korvane Clinic[*]</source>
        <translation>%1 – Korvane Clinic[*]</translation>
    </message>
    <message>
        <source>Korvane Clinic[*]</source>
        <translation>Korvane Clinic[*]</translation>
    </message>
</context>
<context>
    <name>Clinic::NipDesk</name>
    <message>
        <source>Nip</source>
        <translation>Nip</translation>
    </message>
    <message>
        <source>New Nip</source>
        <translation>Neues Nip</translation>
    </message>
    <message>
        <source>No patient is chosen</source>
        <translation>Kein Patient ist gewählt</translation>
    </message>
    <message>
        <source>Choose a patient: Ctrl+F, then type part of a name or an ID.</source>
        <translation>Wählen Sie einen Patienten: Strg+F, dann einen Teil eines Namens oder einer ID.</translation>
    </message>
    <message>
        <source>ID %1</source>
        <translation>ID %1</translation>
    </message>
    <message>
        <source>No Nip is open. Open an encounter of the list with Enter or a double click, or start a new Nip with Ctrl+N.</source>
        <translation>Kein Nip ist geöffnet. Öffnen Sie einen Kontakt der Liste mit der Eingabetaste oder einem Doppelklick, oder beginnen Sie mit Strg+N ein neues Nip.</translation>
    </message>
    <message>
        <source>ID %1  ·  born %2, age %3</source>
        <translation>ID %1  ·  geboren am %2, Alter %3</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>Clinic::Options</name>
    <message>
        <source>A small clinical application: patients, their encounters, and a form for each encounter that the clinic makes to measure.</source>
        <translation>Eine kleine klinische Anwendung: Patienten, ihre Kontakte und zu jedem Kontakt ein Formular, das die Klinik sich selbst zuschneidet.</translation>
    </message>
    <message>
        <source>Work on this database: sqlite:FILE, or postgresql://USER@HOST/NAME with the password in PGPASSWORD or ~/.pgpass. An empty one gets the sample clinic.</source>
        <translation>Mit dieser Datenbank arbeiten: sqlite:DATEI oder postgresql://BENUTZER@RECHNER/NAME mit dem Kennwort in PGPASSWORD oder ~/.pgpass. Eine leere Datenbank bekommt die Beispielklinik.</translation>
    </message>
    <message>
        <source>url</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Drive the window through the main job by itself, on a fresh database (or that of --db, which has to be empty), and leave a picture of each step in this directory.</source>
        <translation>Das Fenster von selbst durch die wichtigste Arbeit führen, mit einer frischen Datenbank (oder der von --db, die leer sein muss), und von jedem Schritt ein Bild in diesem Ordner ablegen.</translation>
    </message>
    <message>
        <source>--db needs an address, like sqlite:clinic.db or postgresql://user@host/clinic.</source>
        <translation>--db braucht eine Adresse wie sqlite:klinik.db oder postgresql://benutzer@rechner/klinik.</translation>
    </message>
</context>
<context>
    <name>Clinic::PatientModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Born</source>
        <translation>Geboren</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
</context>
<context>
    <name>Clinic::PatientPane</name>
    <message>
        <source>&amp;Find patient:</source>
        <translation>&amp;Patient suchen:</translation>
    </message>
    <message>
        <source>Find patient</source>
        <translation>Patient suchen</translation>
    </message>
    <message>
        <source>Part of a name or an ID. Down goes into the list.</source>
        <translation>Ein Teil eines Namens oder einer ID. Mit Pfeil ab geht es in die Liste.</translation>
    </message>
    <message>
        <source>Name or ID</source>
        <translation>Name oder ID</translation>
    </message>
    <message>
        <source>Patients</source>
        <translation>Patienten</translation>
    </message>
    <message>
        <source>No patient is found.</source>
        <translation>Kein Patient gefunden.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>DateForm::Options</name>
    <message>
        <source>The date control on a form, with every event it raises.</source>
        <translation>Das Datumsfeld auf einem Formular, mit jedem Ereignis, das es auslöst.</translation>
    </message>
    <message>
        <source>Drive the form by itself, and leave a picture of each step in this directory.</source>
        <translation>Das Formular von selbst bedienen und von jedem Schritt ein Bild in diesem Ordner ablegen.</translation>
    </message>
    <message>
        <source>Listen to this sound file (WAV, 16 bits) instead of the microphone.</source>
        <translation>Statt auf das Mikrofon auf diese Tondatei hören (WAV, 16 Bit).</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>DateForm::TestForm</name>
    <message>
        <source>Date control</source>
        <translation>Datumsfeld</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>&amp;Before</source>
        <translation>Da&amp;vor</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Datum</translation>
    </message>
    <message>
        <source>&amp;After</source>
        <translation>Dana&amp;ch</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Year requires &amp;four digits</source>
        <translation>Jahr mit vier &amp;Ziffern</translation>
    </message>
    <message>
        <source>&amp;Enlivened</source>
        <translation>&amp;Bedienbar</translation>
    </message>
    <message>
        <source>Mi&amp;nimum</source>
        <translation>Mi&amp;nimum</translation>
    </message>
    <message>
        <source>Ma&amp;ximum</source>
        <translation>Ma&amp;ximum</translation>
    </message>
    <message>
        <source>The date must not be after %1.</source>
        <translation>Das Datum darf nicht nach dem %1 liegen.</translation>
    </message>
    <message>
        <source>The date must not be before %1.</source>
        <translation>Das Datum darf nicht vor dem %1 liegen.</translation>
    </message>
    <message>
        <source>Heard: %1</source>
        <translation>Gehört: %1</translation>
    </message>
    <message>
        <source>Date Error</source>
        <translation>Datumsfehler</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keines</translation>
    </message>
</context>
<context>
    <name>DateForm::VoiceBox</name>
    <message>
        <source>Voice</source>
        <translation>Spracheingabe</translation>
    </message>
    <message>
        <source>&amp;Voice of the date control</source>
        <translation>&amp;Spracheingabe im Datumsfeld</translation>
    </message>
    <message>
        <source>&amp;Microphone</source>
        <translation>&amp;Mikrofon</translation>
    </message>
</context>
<context>
    <name>Gallery::BagBox</name>
    <message>
        <source>Kept properties (*.json)</source>
        <translation>Gespeicherte Eigenschaften (*.json)</translation>
    </message>
    <message>
        <source>What the host keeps</source>
        <translation>Was das Programm speichert</translation>
    </message>
    <message>
        <source>Kept properties as JSON</source>
        <translation>Gespeicherte Eigenschaften als JSON</translation>
    </message>
    <message>
        <source>W&amp;rite</source>
        <translation>S&amp;chreiben</translation>
    </message>
    <message>
        <source>Shows what the control writes</source>
        <translation>Zeigt, was das Steuerelement schreibt</translation>
    </message>
    <message>
        <source>Re&amp;ad</source>
        <translation>L&amp;aden</translation>
    </message>
    <message>
        <source>Lets the control read what is shown here</source>
        <translation>Lässt das Steuerelement lesen, was hier steht</translation>
    </message>
    <message>
        <source>Sa&amp;ve...</source>
        <translation>Spe&amp;ichern …</translation>
    </message>
    <message>
        <source>Writes what is shown here into a file</source>
        <translation>Schreibt, was hier steht, in eine Datei</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Shows a file, and lets the control read it</source>
        <translation>Zeigt eine Datei und lässt das Steuerelement sie lesen</translation>
    </message>
</context>
<context>
    <name>Gallery::ControlPage</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>does not take &quot;%1&quot;</source>
        <translation>nimmt „%1“ nicht an</translation>
    </message>
</context>
<context>
    <name>Gallery::Exhibits</name>
    <message>
        <source>A data-entry form that the clinic shapes itself, here over a sample clinic in memory.</source>
        <translation>Ein Eingabeformular, das die Klinik selbst gestaltet, hier über einer Beispielklinik im Speicher.</translation>
    </message>
    <message>
        <source>One date in three boxes: month, day and year.</source>
        <translation>Ein Datum in drei Eingabefeldern: Monat, Tag und Jahr.</translation>
    </message>
    <message>
        <source>A frame around one to five buttons that tell the host which one was clicked.</source>
        <translation>Ein Rahmen um eine bis fünf Schaltflächen, die dem Programm melden, welche angeklickt wurde.</translation>
    </message>
    <message>
        <source>Four buttons to move to the first, the previous, the next and the last record.</source>
        <translation>Vier Schaltflächen, um zum ersten, vorigen, nächsten und letzten Datensatz zu gehen.</translation>
    </message>
    <message>
        <source>The definition of one field of a database: its names, how it is entered, its list of values.</source>
        <translation>Die Definition eines Feldes einer Datenbank: seine Namen, wie es eingegeben wird, seine Werteliste.</translation>
    </message>
</context>
<context>
    <name>Gallery::GalleryWindow</name>
    <message>
        <source>Korvane controls</source>
        <translation>Steuerelemente von Korvane</translation>
    </message>
</context>
<context>
    <name>Gallery::Options</name>
    <message>
        <source>Every control of the library, with its properties to change and the events it raises.</source>
        <translation>Jedes Steuerelement der Bibliothek, mit seinen Eigenschaften zum Ändern und den Ereignissen, die es auslöst.</translation>
    </message>
    <message>
        <source>Drive the window by itself, and leave a picture of each step in this directory.</source>
        <translation>Das Fenster von selbst bedienen und von jedem Schritt ein Bild in diesem Ordner ablegen.</translation>
    </message>
</context>
<context>
    <name>Gallery::PropertyModel</name>
    <message>
        <source>read only</source>
        <translation>nur lesbar</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>The control tells it; nobody sets it.</source>
        <translation>Das Steuerelement bestimmt sie; niemand setzt sie.</translation>
    </message>
    <message>
        <source>The host&apos;s property bag keeps it.</source>
        <translation>Das Programm speichert sie in seiner Eigenschaftentasche.</translation>
    </message>
    <message>
        <source>It lasts as long as the control: no property bag keeps it.</source>
        <translation>Sie hält so lange wie das Steuerelement: Keine Eigenschaftentasche speichert sie.</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>True</source>
        <translation>True</translation>
    </message>
    <message>
        <source>False</source>
        <translation>False</translation>
    </message>
</context>
<context>
    <name>Gallery::PropertyTable</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The database %1 cannot be opened: %2</source>
        <translation>Die Datenbank %1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Korvane Clinic</source>
        <translation>Korvane Clinic</translation>
    </message>
</context>
</TS>
