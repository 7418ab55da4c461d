<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Apps::CommandLine</name>
    <message>
        <source>&quot;%1&quot; is not understood; --help tells what is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text size in percent, 70 to 300; kept for the next start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text size in percent, 70 to 300.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dir</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--font-scale takes a number from 70 to 300.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--tour needs a directory.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Apps::EventList</name>
    <message>
        <source>Events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What it says</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation type="unfinished"></translation>
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
    <name>Clinic::Actions</name>
    <message>
        <source>N&amp;ip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;atients</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Nip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a new Nip for the chosen patient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Nip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the Nip of the chosen encounter (Enter in the list)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Nip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the Nip and close it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close Nip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the Nip without saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find Patient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search by part of a name or an ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read patients and encounters again; reconnects to a database that was lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patients and &amp;Encounters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or hide the lists beside an open Nip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;xt Pane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the next part of the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous Pane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the part of the window before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Larger Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make all text larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Smaller Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make all text smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Usual Text Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text in its usual size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which keys do what</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What this program is</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Clinic::ConnectionBar</name>
    <message>
        <source>&amp;Reconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connects to the database again; nothing that was entered is lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the database is lost. What you entered is still here: reconnect, then save it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is still no connection to the database. What you entered is still here.
%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Clinic::Database</name>
    <message>
        <source>The directory %1 cannot be made.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Clinic::EncounterModel</name>
    <message>
        <source>(no description)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Provider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, open</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Clinic::EncounterPane</name>
    <message>
        <source>Enter opens the encounter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Encounters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encounters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a patient to see the encounters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encounters of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No encounters yet. Ctrl+N starts the first Nip.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The encounters could not be read. F5 tries again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Encounters of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Clinic::Help</name>
    <message>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From the search box into the list of patients</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On a patient: to the encounters. On an encounter: opens its Nip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In a Nip: to the next group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+F6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>While customizing: between the form and the list of fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>While customizing, on an entry of the form: chooses its field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt and a letter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the menu, or goes to the control, with that letter underlined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;Korvane Clinic %1&lt;/h3&gt;&lt;p&gt;A small clinical application that shows the Korvane controls at work. It is a demonstration and no medical device.&lt;/p&gt;&lt;p&gt;The patients are made up; the forms are published ones, with their licences in the project&apos;s folder apps/clinic/forms.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Clinic::MainWindow</name>
    <message>
        <source>The new Nip is saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Nip is now &quot;%1&quot; of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text size %1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database is connected again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - Korvane Clinic[*]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korvane Clinic[*]</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Clinic::NipDesk</name>
    <message>
        <source>Nip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Nip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No patient is chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a patient: Ctrl+F, then type part of a name or an ID.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Nip is open. Open an encounter of the list with Enter or a double click, or start a new Nip with Ctrl+N.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID %1  ·  born %2, age %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Clinic::Options</name>
    <message>
        <source>A small clinical application: patients, their encounters, and a form for each encounter that the clinic makes to measure.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Work on this database: sqlite:FILE, or postgresql://USER@HOST/NAME with the password in PGPASSWORD or ~/.pgpass. An empty one gets the sample clinic.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>url</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive the window through the main job by itself, on a fresh database (or that of --db, which has to be empty), and leave a picture of each step in this directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--db needs an address, like sqlite:clinic.db or postgresql://user@host/clinic.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Clinic::PatientModel</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Born</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Clinic::PatientPane</name>
    <message>
        <source>&amp;Find patient:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find patient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part of a name or an ID. Down goes into the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name or ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patients</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No patient is found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DateForm::Options</name>
    <message>
        <source>The date control on a form, with every event it raises.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive the form by itself, and leave a picture of each step in this directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listen to this sound file (WAV, 16 bits) instead of the microphone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DateForm::TestForm</name>
    <message>
        <source>Date control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;After</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year requires &amp;four digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Enlivened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mi&amp;nimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ma&amp;ximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The date must not be after %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The date must not be before %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Heard: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DateForm::VoiceBox</name>
    <message>
        <source>Voice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Voice of the date control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Microphone</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::BagBox</name>
    <message>
        <source>Kept properties (*.json)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the host keeps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept properties as JSON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W&amp;rite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows what the control writes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;ad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lets the control read what is shown here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;ve...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes what is shown here into a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows a file, and lets the control read it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::ControlPage</name>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::Exhibits</name>
    <message>
        <source>A data-entry form that the clinic shapes itself, here over a sample clinic in memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One date in three boxes: month, day and year.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A frame around one to five buttons that tell the host which one was clicked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Four buttons to move to the first, the previous, the next and the last record.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The definition of one field of a database: its names, how it is entered, its list of values.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::GalleryWindow</name>
    <message>
        <source>Korvane controls</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::Options</name>
    <message>
        <source>Every control of the library, with its properties to change and the events it raises.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive the window by itself, and leave a picture of each step in this directory.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::PropertyModel</name>
    <message>
        <source>read only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The control tells it; nobody sets it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The host&apos;s property bag keeps it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It lasts as long as the control: no property bag keeps it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>True</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>False</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gallery::PropertyTable</name>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The database %1 cannot be opened: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korvane Clinic</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
