<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Veerwatch</name>
    <message>
        <source>The language changes at the next start</source>
        <translation>Die Sprache wechselt beim nächsten Start</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>The Desktop&apos;s</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>From the next start on</source>
        <translation>Ab dem nächsten Start</translation>
    </message>
    <message>
        <source>That is no name for a profile: it has 1 to 40 characters, none of / \ : * ? &quot; &lt; &gt; |, and no dot or blank at its ends.</source>
        <translation>Das ist kein Name für ein Profil: er hat 1 bis 40 Zeichen, keines von / \ : * ? &quot; &lt; &gt; |, und weder Punkt noch Leerzeichen an seinen Enden.</translation>
    </message>
    <message>
        <source>There is a file %1 already.</source>
        <translation>Es gibt schon eine Datei %1.</translation>
    </message>
    <message>
        <source>%1 is in use by another Veerwatch: it holds the lock on %2.</source>
        <translation>%1 wird von einem anderen Veerwatch benutzt: es hält die Sperre auf %2.</translation>
    </message>
    <message>
        <source>There is no file %1 any more.</source>
        <translation>Es gibt keine Datei %1 mehr.</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>U&amp;mbenennen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Name of the new profile, with the settings as they are now</source>
        <translation>Name des neuen Profils mit den Einstellungen, wie sie jetzt sind</translation>
    </message>
    <message>
        <source>New name of the profile %1</source>
        <translation>Neuer Name des Profils %1</translation>
    </message>
    <message>
        <source>Delete the profile %1? Its settings are gone then.</source>
        <translation>Das Profil %1 löschen? Seine Einstellungen sind dann weg.</translation>
    </message>
    <message>
        <source>&amp;Profiles</source>
        <translation>&amp;Profile</translation>
    </message>
    <message>
        <source>The settings could not be saved, so they stay in use:</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden und bleiben in Gebrauch:</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>Report (*.txt)</source>
        <translation>Bericht (*.txt)</translation>
    </message>
    <message>
        <source>Save &amp;Report...</source>
        <translation>&amp;Bericht speichern...</translation>
    </message>
</context>
</TS>
