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
    <message>
        <source>New here?</source>
        <translation>Neu hier?</translation>
    </message>
    <message>
        <source>&amp;Connect Your Boat...</source>
        <translation>&amp;Boot anschließen...</translation>
    </message>
    <message>
        <source>Finds the instruments and the autopilot, and sets the program up for them</source>
        <translation>Findet Instrumente und Autopilot und stellt das Programm darauf ein</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Takes this line away; Help &gt; Connect Your Boat... stays</source>
        <translation>Nimmt diese Zeile weg; Hilfe &gt; Boot anschließen... bleibt</translation>
    </message>
    <message>
        <source>The device or endpoint of the autopilot; choose one or type it</source>
        <translation>Gerät oder Endpunkt des Autopiloten; wählen oder eintippen</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>P&amp;ort:</translation>
    </message>
    <message>
        <source>Autopilot</source>
        <translation>Autopilot</translation>
    </message>
    <message>
        <source>Wind angle offset %1; no apparent wind comes</source>
        <translation>Windwinkel-Korrektur %1; es kommt kein scheinbarer Wind</translation>
    </message>
    <message>
        <source>Wind angle offset %1; the wind now comes from %2, and from 0 when you motor straight into it</source>
        <translation>Windwinkel-Korrektur %1; der Wind kommt jetzt aus %2, und aus 0, wenn Sie genau gegen ihn motoren</translation>
    </message>
    <message>
        <source>Log factor %1; a log and a GPS are needed to compare</source>
        <translation>Log-Faktor %1; zum Vergleich braucht es Log und GPS</translation>
    </message>
    <message>
        <source>Log factor %1; the log shows %2, the GPS %3: alike in still water</source>
        <translation>Log-Faktor %1; das Log zeigt %2, das GPS %3: gleich in stehendem Wasser</translation>
    </message>
    <message>
        <source>Log factor %1; the log shows %2, the GPS %3: too slow, or too far apart, to compare</source>
        <translation>Log-Faktor %1; das Log zeigt %2, das GPS %3: zu langsam oder zu verschieden für einen Vergleich</translation>
    </message>
    <message>
        <source>Compass offset %1; a compass and a GPS are needed to compare</source>
        <translation>Kompass-Korrektur %1; zum Vergleich braucht es Kompass und GPS</translation>
    </message>
    <message>
        <source>Compass offset %1; the compass shows %2, the course is %3: alike without current and leeway</source>
        <translation>Kompass-Korrektur %1; der Kompass zeigt %2, der Kurs ist %3: gleich ohne Strom und Abdrift</translation>
    </message>
    <message>
        <source>Compass offset %1; the compass shows %2, the course is %3: too slow to compare</source>
        <translation>Kompass-Korrektur %1; der Kompass zeigt %2, der Kurs ist %3: zu langsam für einen Vergleich</translation>
    </message>
    <message>
        <source>TCP %1 on %2</source>
        <translation>TCP %1 auf %2</translation>
    </message>
    <message>
        <source>USB serial (%1)</source>
        <translation>USB seriell (%1)</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>diesem Rechner</translation>
    </message>
    <message>
        <source>UDP %1 from the network</source>
        <translation>UDP %1 aus dem Netz</translation>
    </message>
    <message>
        <source>%1 (NMEA 0183, announced)</source>
        <translation>%1 (NMEA 0183, meldet sich)</translation>
    </message>
    <message>
        <source>%1 (Signal K, announced)</source>
        <translation>%1 (Signal K, meldet sich)</translation>
    </message>
    <message>
        <source>One port for both ways: the instruments and the autopilot.</source>
        <translation>Ein Port für beide Richtungen: die Instrumente und der Autopilot.</translation>
    </message>
    <message>
        <source>Polar: smooth between two wind speeds</source>
        <translation>Polare: glatt zwischen zwei Windgeschwindigkeiten</translation>
    </message>
    <message>
        <source>Instruments: port %1 leads to %2</source>
        <translation>Instrumente: Port %1 führt zu %2</translation>
    </message>
    <message>
        <source>Autopilot: port %1 leads to %2</source>
        <translation>Autopilot: Port %1 führt zu %2</translation>
    </message>
    <message>
        <source>Autopilot: on the port of the instruments, both ways</source>
        <translation>Autopilot: am Port der Instrumente, beide Richtungen</translation>
    </message>
    <message>
        <source>%1: %2, now %3 (%4)</source>
        <translation>%1: %2, jetzt %3 (%4)</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>1 Fehler</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>&amp;Listen</source>
        <translation>&amp;Lauschen</translation>
    </message>
    <message>
        <source>Listen &amp;Again</source>
        <translation>&amp;Noch einmal lauschen</translation>
    </message>
    <message>
        <source>Show me with a &amp;simulated boat</source>
        <translation>Mit einem &amp;simulierten Boot zeigen</translation>
    </message>
    <message>
        <source>What was found; tick what brings your instruments</source>
        <translation>Was gefunden wurde; haken Sie an, was Ihre Instrumente bringt</translation>
    </message>
    <message>
        <source>Name or address of a gateway, as 192.168.1.1 or gateway:2000; a device; an endpoint</source>
        <translation>Name oder Adresse eines Gateways, wie 192.168.1.1 oder gateway:2000; ein Gerät; ein Endpunkt</translation>
    </message>
    <message>
        <source>Listens to that place as well</source>
        <translation>Lauscht auch an dieser Stelle</translation>
    </message>
    <message>
        <source>Looks at every port anew, for ten seconds</source>
        <translation>Sieht sich jeden Port neu an, zehn Sekunden lang</translation>
    </message>
    <message>
        <source>Closes this window and sails a simulated boat; no port is opened</source>
        <translation>Schließt dieses Fenster und segelt ein simuliertes Boot; kein Port wird geöffnet</translation>
    </message>
    <message>
        <source>Other &amp;place:</source>
        <translation>Andere &amp;Stelle:</translation>
    </message>
    <message>
        <source>&amp;Each place where instruments may be is listened to for ten seconds. Tick what brings yours; several may be ticked.</source>
        <translation>An &amp;jeder Stelle, an der Instrumente sein können, wird zehn Sekunden gelauscht. Haken Sie an, was Ihre bringt; auch mehrere.</translation>
    </message>
    <message>
        <source>Instruments</source>
        <translation>Instrumente</translation>
    </message>
    <message>
        <source>Nothing is ticked: the port of the instruments stays as it is.</source>
        <translation>Nichts ist angehakt: der Port der Instrumente bleibt, wie er ist.</translation>
    </message>
    <message>
        <source>Listening...</source>
        <translation>Lauscht...</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>no sentences, only lines that are none</source>
        <translation>keine Sätze, nur Zeilen, die keine sind</translation>
    </message>
    <message>
        <source>noise at every rate, no sentences</source>
        <translation>Rauschen bei jeder Rate, keine Sätze</translation>
    </message>
    <message>
        <source>nothing comes, at no rate</source>
        <translation>es kommt nichts, bei keiner Rate</translation>
    </message>
    <message>
        <source>nothing comes</source>
        <translation>es kommt nichts</translation>
    </message>
    <message>
        <source>the host does not answer</source>
        <translation>der Rechner antwortet nicht</translation>
    </message>
    <message>
        <source>vanished while it was listened to</source>
        <translation>verschwand beim Lauschen</translation>
    </message>
    <message>
        <source>in use now: </source>
        <translation>jetzt in Gebrauch: </translation>
    </message>
    <message>
        <source>searching the rate, now %1 baud</source>
        <translation>sucht die Rate, jetzt %1 Baud</translation>
    </message>
    <message>
        <source>listening...</source>
        <translation>lauscht...</translation>
    </message>
    <message>
        <source>Port %1 (%2)</source>
        <translation>Port %1 (%2)</translation>
    </message>
    <message>
        <source>in use now: the autopilot&apos;s port</source>
        <translation>jetzt in Gebrauch: der Port des Autopiloten</translation>
    </message>
    <message>
        <source>; the same comes on %1: tick one of them</source>
        <translation>; dasselbe kommt an %1: haken Sie eines davon an</translation>
    </message>
    <message>
        <source>The pilot is sent to now: press Setup (F6) first, then it can be tested.</source>
        <translation>Dem Piloten wird gerade gesendet: erst Setup (F6) drücken, dann lässt er sich prüfen.</translation>
    </message>
    <message>
        <source>Waiting for a heading and the wind...</source>
        <translation>Wartet auf Steuerkurs und Wind...</translation>
    </message>
    <message>
        <source>What will be written</source>
        <translation>Was geschrieben wird</translation>
    </message>
    <message>
        <source>Th&amp;is will be written. Nothing has changed before.</source>
        <translation>D&amp;ies wird geschrieben. Vorher hat sich nichts geändert.</translation>
    </message>
    <message>
        <source>Everything is so already; the settings are only saved.</source>
        <translation>Alles ist schon so; die Einstellungen werden nur gespeichert.</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>What suits most boats, and what is set now. Leave ticked what you want.</source>
        <translation>Was den meisten Booten passt, und was jetzt eingestellt ist. Lassen Sie angehakt, was Sie wollen.</translation>
    </message>
    <message>
        <source>How it steers</source>
        <translation>Wie es steuert</translation>
    </message>
    <message>
        <source>computed</source>
        <translation>berechnet</translation>
    </message>
    <message>
        <source>VTG, the course</source>
        <translation>VTG, der Kurs</translation>
    </message>
    <message>
        <source>RMC, the course</source>
        <translation>RMC, der Kurs</translation>
    </message>
    <message>
        <source>VTG, over ground</source>
        <translation>VTG, über Grund</translation>
    </message>
    <message>
        <source>RMC, over ground</source>
        <translation>RMC, über Grund</translation>
    </message>
    <message>
        <source>no apparent wind: nothing can be steered by the wind</source>
        <translation>kein scheinbarer Wind: nach dem Wind lässt sich nicht steuern</translation>
    </message>
    <message>
        <source>no true wind: it is computed once the apparent wind comes</source>
        <translation>kein wahrer Wind: er wird berechnet, sobald der scheinbare kommt</translation>
    </message>
    <message>
        <source>no true wind: the apparent wind only</source>
        <translation>kein wahrer Wind: nur der scheinbare</translation>
    </message>
    <message>
        <source>no heading: no turns, and nothing shows whether the pilot follows</source>
        <translation>kein Steuerkurs: keine Manöver, und nichts zeigt, ob der Pilot folgt</translation>
    </message>
    <message>
        <source>no boat speed: no polar</source>
        <translation>keine Fahrt: keine Polare</translation>
    </message>
    <message>
        <source>no boat speed: the apparent wind only</source>
        <translation>keine Fahrt: nur der scheinbare Wind</translation>
    </message>
    <message>
        <source>no variation: no true bearings, no courses to a waypoint</source>
        <translation>keine Missweisung: keine rechtweisenden Kurse, keine Kurse zum Wegpunkt</translation>
    </message>
    <message>
        <source>no waypoint: no courses to it</source>
        <translation>kein Wegpunkt: keine Kurse dorthin</translation>
    </message>
    <message>
        <source>&amp;Apparent wind</source>
        <translation>Sch&amp;einbarer Wind</translation>
    </message>
    <message>
        <source>&amp;True wind</source>
        <translation>&amp;Wahrer Wind</translation>
    </message>
    <message>
        <source>&amp;Heading</source>
        <translation>Steuer&amp;kurs</translation>
    </message>
    <message>
        <source>Boat s&amp;peed</source>
        <translation>&amp;Fahrt</translation>
    </message>
    <message>
        <source>&amp;Variation</source>
        <translation>&amp;Missweisung</translation>
    </message>
    <message>
        <source>&amp;Waypoint</source>
        <translation>We&amp;gpunkt</translation>
    </message>
    <message>
        <source>Set to &amp;0</source>
        <translation>Auf &amp;0 setzen</translation>
    </message>
    <message>
        <source>Log by the &amp;GPS</source>
        <translation>&amp;Log nach GPS</translation>
    </message>
    <message>
        <source>Compass by the &amp;course</source>
        <translation>Kompass na&amp;ch Kurs</translation>
    </message>
    <message>
        <source>The sentence that it comes from; others that bring it stand in the list</source>
        <translation>Der Satz, aus dem er kommt; andere, die ihn bringen, stehen in der Liste</translation>
    </message>
    <message>
        <source>Sets it by what the instruments say now; kept with the rest at the end</source>
        <translation>Stellt es nach dem ein, was die Instrumente jetzt sagen; am Ende mit dem Rest gespeichert</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Veerwatch - Connect Your Boat</source>
        <translation>Veerwatch - Boot anschließen</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 von %2: %3</translation>
    </message>
    <message>
        <source>Save and &amp;go to Setup</source>
        <translation>Speichern und zum &amp;Setup</translation>
    </message>
    <message>
        <source>noise; press Off (F5), then Listen Again, to try every rate</source>
        <translation>Rauschen; mit F5 abschalten und noch einmal lauschen, um jede Rate zu versuchen</translation>
    </message>
    <message>
        <source>in use now: nothing comes; press Off (F5), then Listen Again, to try every rate</source>
        <translation>jetzt in Gebrauch: es kommt nichts; mit F5 abschalten und noch einmal lauschen, um jede Rate zu versuchen</translation>
    </message>
</context>
</TS>
