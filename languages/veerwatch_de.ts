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
        <source>Keeps the settings, steers on, and tries again at the next change and at the close</source>
        <translation>Behält die Einstellungen, steuert weiter und versucht es bei der nächsten Änderung und am Ende wieder</translation>
    </message>
    <message>
        <source>Make room on the disk; may you write in that folder?</source>
        <translation>Platz auf dem Datenträger schaffen; darf in den Ordner geschrieben werden?</translation>
    </message>
    <message>
        <source>Works with the defaults</source>
        <translation>Arbeitet mit den Vorgaben</translation>
    </message>
    <message>
        <source>Close the program and look at the file</source>
        <translation>Das Programm schließen und die Datei ansehen</translation>
    </message>
    <message>
        <source>Sends the pilot no sentence that would be wrong without it</source>
        <translation>Sendet dem Piloten keinen Satz, der ohne sie falsch wäre</translation>
    </message>
    <message>
        <source>Options &gt; Data: a sentence that brings it; Options &gt; Output: a profile that does without</source>
        <translation>Optionen &gt; Daten: ein Satz, der sie bringt; Optionen &gt; Ausgang: ein Profil, das ohne auskommt</translation>
    </message>
    <message>
        <source>Tells it</source>
        <translation>Meldet es</translation>
    </message>
    <message>
        <source>Options &gt; Data: choose the source that is there</source>
        <translation>Optionen &gt; Daten: die Quelle wählen, die da ist</translation>
    </message>
    <message>
        <source>Records no more, and goes on with everything else</source>
        <translation>Zeichnet nicht mehr auf und macht mit allem anderen weiter</translation>
    </message>
    <message>
        <source>Make room on the disk, then File &gt; Record Input...</source>
        <translation>Platz auf dem Datenträger schaffen, dann Datei &gt; Eingang aufzeichnen...</translation>
    </message>
    <message>
        <source>Holds the angle that stands in the desired box</source>
        <translation>Hält den Winkel, der im Feld für den Sollwinkel steht</translation>
    </message>
    <message>
        <source>Options &gt; Wind</source>
        <translation>Optionen &gt; Wind</translation>
    </message>
    <message>
        <source>%1 +%2 more</source>
        <translation>%1 +%2 weitere</translation>
    </message>
    <message>
        <source>Since %1, %2, acknowledged</source>
        <translation>Seit %1, %2, bestätigt</translation>
    </message>
    <message>
        <source>Since %1, %2</source>
        <translation>Seit %1, %2</translation>
    </message>
    <message>
        <source>The program: %1</source>
        <translation>Das Programm: %1</translation>
    </message>
    <message>
        <source>You: %1</source>
        <translation>Zu tun: %1</translation>
    </message>
    <message>
        <source>Wind Shift %1 deg to port: lift</source>
        <translation>Winddreher %1 Grad nach Backbord: Raumer</translation>
    </message>
    <message>
        <source>Wind Shift %1 deg to starboard: lift</source>
        <translation>Winddreher %1 Grad nach Steuerbord: Raumer</translation>
    </message>
    <message>
        <source>Wind Shift %1 deg to port: header</source>
        <translation>Winddreher %1 Grad nach Backbord: Schraler</translation>
    </message>
    <message>
        <source>Wind Shift %1 deg to starboard: header</source>
        <translation>Winddreher %1 Grad nach Steuerbord: Schraler</translation>
    </message>
    <message>
        <source>no step; the pilot keeps its last bearing</source>
        <translation>kein Schritt; der Pilot behält seinen letzten Kurs</translation>
    </message>
    <message>
        <source>holds the apparent wind angle of the last 10 s instead, until you choose the true one again</source>
        <translation>hält dafür den scheinbaren Windwinkel der letzten 10 s, bis wieder der wahre gewählt wird</translation>
    </message>
    <message>
        <source>the bearing stands still until the wind changes</source>
        <translation>der Kurs bleibt stehen, bis sich der Wind ändert</translation>
    </message>
    <message>
        <source>goes by the source that came first</source>
        <translation>richtet sich nach der Quelle, die zuerst da war</translation>
    </message>
    <message>
        <source>bearing and accumulator stand still until the boat comes within 10 degrees of it</source>
        <translation>Kurs und Summe bleiben stehen, bis das Boot auf 10 Grad herankommt</translation>
    </message>
    <message>
        <source>holds the boat 8 degrees higher until the wind is forward of 168 degrees</source>
        <translation>hält das Boot 8 Grad höher, bis der Wind vorlicher als 168 Grad kommt</translation>
    </message>
    <message>
        <source>adds nothing up; begins at the heading when the port is back</source>
        <translation>summiert nichts; beginnt beim anliegenden Kurs, wenn der Anschluss wieder da ist</translation>
    </message>
    <message>
        <source>No Wind %1 s</source>
        <translation>Kein Wind seit %1 s</translation>
    </message>
    <message>
        <source>Pilot Lost - Output Port %1</source>
        <translation>Pilot verloren - Ausgang, Anschluss %1</translation>
    </message>
    <message>
        <source>Pilot: %1</source>
        <translation>Pilot: %1</translation>
    </message>
    <message>
        <source>Gybe Risk</source>
        <translation>Gefahr einer Patenthalse</translation>
    </message>
    <message>
        <source>No Boat Speed</source>
        <translation>Keine Fahrt durchs Wasser</translation>
    </message>
    <message>
        <source>Wind Not Changing</source>
        <translation>Wind ändert sich nicht</translation>
    </message>
    <message>
        <source>Off Course %1</source>
        <translation>Vom Kurs ab um %1</translation>
    </message>
    <message>
        <source>Pinching</source>
        <translation>Kneift</translation>
    </message>
    <message>
        <source>No Heading</source>
        <translation>Kein Kurs</translation>
    </message>
    <message>
        <source>2 Wind Sources (%1, %2)</source>
        <translation>2 Quellen für den Wind (%1, %2)</translation>
    </message>
    <message>
        <source>2 Heading Sources (%1, %2)</source>
        <translation>2 Quellen für den Kurs (%1, %2)</translation>
    </message>
    <message>
        <source>2 Boat Speed Sources (%1, %2)</source>
        <translation>2 Quellen für die Fahrt (%1, %2)</translation>
    </message>
    <message>
        <source>Wind Jumps</source>
        <translation>Wind springt</translation>
    </message>
    <message>
        <source>%1 Winds a Second</source>
        <translation>%1 Winde je Sekunde</translation>
    </message>
    <message>
        <source>Pilot Line Full</source>
        <translation>Leitung zum Piloten voll</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Simulation</translation>
    </message>
    <message>
        <source>Follows</source>
        <translation>Folgt</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Langsam</translation>
    </message>
    <message>
        <source>Does not follow</source>
        <translation>Folgt nicht</translation>
    </message>
    <message>
        <source>Turns the wrong way</source>
        <translation>Dreht falsch herum</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Pilot: %1, offset %2</source>
        <translation>Pilot: %1, Versatz %2</translation>
    </message>
    <message>
        <source>Apparent Wind</source>
        <translation>Scheinbarer Wind</translation>
    </message>
    <message>
        <source>True Wind</source>
        <translation>Wahrer Wind</translation>
    </message>
    <message>
        <source>Boat Speed</source>
        <translation>Fahrt</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>Kurs</translation>
    </message>
    <message>
        <source>Waypoint</source>
        <translation>Wegpunkt</translation>
    </message>
    <message>
        <source>Speed Over Ground</source>
        <translation>Fahrt über Grund</translation>
    </message>
    <message>
        <source>Compass</source>
        <translation>Kompass</translation>
    </message>
    <message>
        <source>%1: waiting</source>
        <translation>%1: noch nichts</translation>
    </message>
    <message>
        <source>%1: not fitted</source>
        <translation>%1: nicht an Bord</translation>
    </message>
    <message>
        <source>%1: simulated</source>
        <translation>%1: simuliert</translation>
    </message>
    <message>
        <source>%1 from %2 (%3), %4 s old</source>
        <translation>%1 aus %2 (%3), %4 s alt</translation>
    </message>
    <message>
        <source>Act: %1</source>
        <translation>Handelt: %1</translation>
    </message>
    <message>
        <source>Tells it, and steers on. With Act: %1</source>
        <translation>Meldet es und steuert weiter. Mit &quot;Handeln&quot;: %1</translation>
    </message>
    <message>
        <source>Take the helm; look at the wind instrument and its wire</source>
        <translation>Ruder übernehmen; Windmesser und sein Kabel ansehen</translation>
    </message>
    <message>
        <source>Take the helm; look at the pilot&apos;s port, its adapter and its wire</source>
        <translation>Ruder übernehmen; Anschluss, Adapter und Kabel des Piloten ansehen</translation>
    </message>
    <message>
        <source>Take the helm; is the pilot in standby, or does it hear another source?</source>
        <translation>Ruder übernehmen; ist der Pilot auf Standby, oder hört er auf eine andere Quelle?</translation>
    </message>
    <message>
        <source>Luff, or hold an angle further from dead astern</source>
        <translation>Anluven, oder einen Winkel weiter weg von platt vor dem Wind halten</translation>
    </message>
    <message>
        <source>Hold the apparent wind; clean the log&apos;s wheel, or choose the speed over ground</source>
        <translation>Den scheinbaren Wind halten; das Rad der Logge säubern, oder die Fahrt über Grund wählen</translation>
    </message>
    <message>
        <source>Look at the masthead: the vane may be stuck; steer by hand until it moves</source>
        <translation>Zum Masttopp sehen: die Windfahne klemmt vielleicht; von Hand steuern, bis sie sich bewegt</translation>
    </message>
    <message>
        <source>Look why: a wind shift, a stalled pilot, too much sail, a limit that is too narrow</source>
        <translation>Nach dem Grund sehen: ein Winddreher, ein hängender Pilot, zu viel Tuch, eine zu enge Grenze</translation>
    </message>
    <message>
        <source>Bear away, or hold an angle further from the wind</source>
        <translation>Abfallen, oder einen Winkel weiter weg vom Wind halten</translation>
    </message>
    <message>
        <source>Look whether the other tack, or another angle, leads better to where you go</source>
        <translation>Prüfen, ob der andere Bug oder ein anderer Winkel besser zum Ziel führt</translation>
    </message>
    <message>
        <source>Look at the compass and its wire</source>
        <translation>Den Kompass und sein Kabel ansehen</translation>
    </message>
    <message>
        <source>Switch one of the two off, or leave it out at the multiplexer</source>
        <translation>Eine der beiden ausschalten oder am Multiplexer weglassen</translation>
    </message>
    <message>
        <source>Look at the vane and its plug; steer by hand while it leaps</source>
        <translation>Windfahne und Stecker ansehen; von Hand steuern, solange sie springt</translation>
    </message>
    <message>
        <source>Options &gt; Tracking: choose the method Clock or Direction, or a larger bandwidth</source>
        <translation>Optionen &gt; Halten: das Verfahren Uhr oder Richtung wählen, oder eine größere Bandbreite</translation>
    </message>
    <message>
        <source>Let the wind instrument send fewer sentences a second</source>
        <translation>Den Windmesser weniger Sätze je Sekunde senden lassen</translation>
    </message>
    <message>
        <source>Options &gt; Simulate, for the real boat</source>
        <translation>Optionen &gt; Simulation, für das wirkliche Boot</translation>
    </message>
    <message>
        <source>Veerwatch - Alarms</source>
        <translation>Veerwatch - Alarme</translation>
    </message>
    <message>
        <source>All is well</source>
        <translation>Alles in Ordnung</translation>
    </message>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>&amp;Bestätigen</translation>
    </message>
    <message>
        <source>The sound stops, the lines stay (Space)</source>
        <translation>Der Ton hört auf, die Zeilen bleiben (Leertaste)</translation>
    </message>
    <message>
        <source>&amp;Mute 10 min</source>
        <translation>&amp;Stumm 10 min</translation>
    </message>
    <message>
        <source>Nothing is heard for ten minutes</source>
        <translation>Zehn Minuten lang ist nichts zu hören</translation>
    </message>
    <message>
        <source>&amp;Hide Notice</source>
        <translation>&amp;Hinweis ausblenden</translation>
    </message>
    <message>
        <source>Hide the first notice until it says something new</source>
        <translation>Den ersten Hinweis ausblenden, bis er etwas Neues sagt</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close the list; what stands stays in the line</source>
        <translation>Die Liste schließen; was ansteht, bleibt in der Zeile</translation>
    </message>
    <message>
        <source>Why? %1</source>
        <translation>Warum? %1</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Version %1<byte value="xd"/>Control Loop for Tracking Apparent or True Wind Angle.<byte value="xd"/>         a) Input - NMEA 1984 Wind &amp; Speed Instruments<byte value="xd"/>         b) Output - NMEA 1984 AutoPilot</source>
        <translation>Version %1<byte value="xd"/>Regelkreis, der den scheinbaren oder den wahren Windwinkel hält.<byte value="xd"/>         a) Eingang - NMEA-Instrumente von 1984 für Wind und Fahrt<byte value="xd"/>         b) Ausgang - NMEA-Autopilot von 1984</translation>
    </message>
    <message>
        <source>Copyright © 2026, free under the MIT License<byte value="xd"/>The Veerwatch authors<byte value="xd"/>For sailing yachts with NMEA 0183 instruments and a standard autopilot<byte value="xd"/>Questions and faults: the project&apos;s issue tracker</source>
        <translation>Copyright © 2026, frei unter der MIT-Lizenz<byte value="xd"/>Die Autoren von Veerwatch<byte value="xd"/>Für Segelyachten mit NMEA-0183-Instrumenten und einem üblichen Autopiloten<byte value="xd"/>Fragen und Fehler: die Fehlerliste des Projekts</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>NMEA 0183 Data</source>
        <translation>Daten nach NMEA 0183</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Output Options</source>
        <translation>Einstellungen des Ausgangs</translation>
    </message>
    <message>
        <source>Control Loop</source>
        <translation>Regelkreis</translation>
    </message>
    <message>
        <source>Apparent or True Angle Tracking Options</source>
        <translation>Einstellungen für das Halten des scheinbaren oder wahren Windwinkels</translation>
    </message>
    <message>
        <source>Polar Plot</source>
        <translation>Polare</translation>
    </message>
    <message>
        <source>Performance Polar Plot</source>
        <translation>Polardiagramm der Fahrt</translation>
    </message>
    <message>
        <source>History Plot</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Strip Chart Recorder</source>
        <translation>Aufzeichnung als Streifen</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Wind</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Fahrt</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>Autopilot</source>
        <translation>Autopilot</translation>
    </message>
    <message>
        <source>Stanard Autopilot</source>
        <translation>Üblicher Autopilot</translation>
    </message>
    <message>
        <source>Simulate</source>
        <translation>Simulation</translation>
    </message>
    <message>
        <source>Not Open</source>
        <translation>Nicht offen</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Abgleich</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Hand</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Icon of the program</source>
        <translation>Symbol des Programms</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Veerwatch - Block Diagram</source>
        <translation>Veerwatch - Blockschaltbild</translation>
    </message>
    <message>
        <source>AWA</source>
        <translation>AWA</translation>
    </message>
    <message>
        <source>True Wind Speed</source>
        <translation>Wahrer Wind, Stärke</translation>
    </message>
    <message>
        <source>True Wind Angle</source>
        <translation>Wahrer Windwinkel</translation>
    </message>
    <message>
        <source>App Wind Speed</source>
        <translation>Schb. Wind, Stärke</translation>
    </message>
    <message>
        <source>App Wind Angle</source>
        <translation>Schb. Windwinkel</translation>
    </message>
    <message>
        <source>Pilot Heading</source>
        <translation>Pilotkurs</translation>
    </message>
    <message>
        <source>Pilot Delta</source>
        <translation>Abweichung</translation>
    </message>
    <message>
        <source>Polar Speed</source>
        <translation>Polarfahrt</translation>
    </message>
    <message>
        <source>BS</source>
        <translation>Fahrt</translation>
    </message>
    <message>
        <source>Hdg</source>
        <translation>Kurs</translation>
    </message>
    <message>
        <source>TWS</source>
        <translation>TWS</translation>
    </message>
    <message>
        <source>TWA</source>
        <translation>TWA</translation>
    </message>
    <message>
        <source>AWS</source>
        <translation>AWS</translation>
    </message>
    <message>
        <source>PH</source>
        <translation>Pilot</translation>
    </message>
    <message>
        <source>PD</source>
        <translation>Abw.</translation>
    </message>
    <message>
        <source>PS</source>
        <translation>Pol.</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Bilder (*.png)</translation>
    </message>
    <message>
        <source>Veerwatch - History</source>
        <translation>Veerwatch - Verlauf</translation>
    </message>
    <message>
        <source>The picture could not be made:<byte value="xd"/>%1</source>
        <translation>Das Bild konnte nicht gemacht werden:<byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>The picture was not saved:<byte value="xd"/>%1</source>
        <translation>Das Bild wurde nicht gespeichert:<byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>Save Data</source>
        <translation>Daten speichern</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Durch Kommas getrennte Werte (*.csv)</translation>
    </message>
    <message>
        <source>The data were not saved:<byte value="xd"/>%1</source>
        <translation>Die Daten wurden nicht gespeichert:<byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>No trace is shown</source>
        <translation>Keine Linie wird gezeigt</translation>
    </message>
    <message>
        <source> (all round)</source>
        <translation> (rundum)</translation>
    </message>
    <message>
        <source> (%1 to %2)</source>
        <translation> (%1 bis %2)</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 Minuten</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 Stunde</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 Stunden</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>&amp;Visible Time</source>
        <translation>&amp;Sichtbare Zeit</translation>
    </message>
    <message>
        <source>Scales</source>
        <translation>Skalen</translation>
    </message>
    <message>
        <source>Save &amp;picture...</source>
        <translation>&amp;Bild speichern...</translation>
    </message>
    <message>
        <source>Save &amp;data...</source>
        <translation>&amp;Daten speichern...</translation>
    </message>
    <message>
        <source>De&amp;faults</source>
        <translation>&amp;Vorgaben</translation>
    </message>
    <message>
        <source>Colour of %1</source>
        <translation>Farbe von %1</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>%1 lower edge</source>
        <translation>%1, unterer Rand</translation>
    </message>
    <message>
        <source>%1 upper edge</source>
        <translation>%1, oberer Rand</translation>
    </message>
    <message>
        <source>%1 automatic scale</source>
        <translation>%1, selbsttätige Skala</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>Back to now</source>
        <translation>Zurück zu jetzt</translation>
    </message>
    <message>
        <source>Strip chart</source>
        <translation>Streifenschreiber</translation>
    </message>
    <message>
        <source>Follow the newest values again (End)</source>
        <translation>Wieder den neuesten Werten folgen (Ende)</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <source>Chart settings</source>
        <translation>Einstellungen des Verlaufs</translation>
    </message>
    <message>
        <source>Kts</source>
        <translation>kn</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>No Input Data</source>
        <translation>Keine Daten</translation>
    </message>
    <message>
        <source>What it is, what the program does, what you can do; a click acknowledges it</source>
        <translation>Was es ist, was das Programm tut, was zu tun ist; ein Klick bestätigt es</translation>
    </message>
    <message>
        <source> +%1 more</source>
        <translation> +%1 weitere</translation>
    </message>
    <message>
        <source>Heading (M)</source>
        <translation>Kurs (M)</translation>
    </message>
    <message>
        <source>Boat Speed (Kts)</source>
        <translation>Fahrt (kn)</translation>
    </message>
    <message>
        <source>Waypoint Bearing (M)</source>
        <translation>Peilung zum Wegpunkt (M)</translation>
    </message>
    <message>
        <source>App Wind Angle (R)</source>
        <translation>Scheinbarer Windwinkel (R)</translation>
    </message>
    <message>
        <source>App Wind Speed (Kts)</source>
        <translation>Scheinbarer Wind (kn)</translation>
    </message>
    <message>
        <source>True Wind Angle (R)</source>
        <translation>Wahrer Windwinkel (R)</translation>
    </message>
    <message>
        <source>True Wind Speed (Kts)</source>
        <translation>Wahrer Wind (kn)</translation>
    </message>
    <message>
        <source>AutoPilot Bearing</source>
        <translation>Kurs des Autopiloten</translation>
    </message>
    <message>
        <source>Whether the boat comes to the bearings that are sent, and what the pilot&apos;s compass shows more than ours [deg]</source>
        <translation>Ob das Boot auf die gesendeten Kurse geht, und was der Kompass des Piloten mehr zeigt als unserer [Grad]</translation>
    </message>
    <message>
        <source>Track Apparent Wind Angle</source>
        <translation>Scheinbaren Windwinkel halten</translation>
    </message>
    <message>
        <source>Track True Wind Angle</source>
        <translation>Wahren Windwinkel halten</translation>
    </message>
    <message>
        <source>Desired App Wind Angle (R)</source>
        <translation>Soll scheinbarer Windwinkel (R)</translation>
    </message>
    <message>
        <source>Desired True Wind Angle (R)</source>
        <translation>Soll wahrer Windwinkel (R)</translation>
    </message>
    <message>
        <source>Delta (deg)</source>
        <translation>Abweichung (Grad)</translation>
    </message>
    <message>
        <source>One degree to starboard (Alt+Right); ten with Shift</source>
        <translation>Ein Grad nach Steuerbord (Alt+Rechts); zehn mit Umschalt</translation>
    </message>
    <message>
        <source>One degree to port (Alt+Left); ten with Shift</source>
        <translation>Ein Grad nach Backbord (Alt+Links); zehn mit Umschalt</translation>
    </message>
    <message>
        <source>%1 - Closing</source>
        <translation>%1 - Beenden</translation>
    </message>
    <message>
        <source>Veerwatch is current tracking the wind.<byte value="xd"/>Do you wish to stop tracking?</source>
        <translation>Veerwatch hält gerade den Wind.<byte value="xd"/>Soll es damit aufhören?</translation>
    </message>
    <message>
        <source>%1 could not be read: it was put aside</source>
        <translation>%1 war nicht zu lesen und wurde beiseite gelegt</translation>
    </message>
    <message>
        <source>Settings not saved: %1</source>
        <translation>Einstellungen nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>%1: from %2 to %3?<byte value="xd"/>That is more than %4 degrees, and the pilot follows.</source>
        <translation>%1: von %2 auf %3?<byte value="xd"/>Das sind mehr als %4 Grad, und der Pilot folgt.</translation>
    </message>
    <message>
        <source>Wind %1@%2</source>
        <translation>Wind %1@%2</translation>
    </message>
    <message>
        <source>Wind --</source>
        <translation>Wind --</translation>
    </message>
    <message>
        <source> (Off)</source>
        <translation> (Aus)</translation>
    </message>
    <message>
        <source> (%1 old)</source>
        <translation> (%1 alt)</translation>
    </message>
    <message>
        <source>Alarm Limit Exceeded %1</source>
        <translation>Alarmgrenze überschritten %1</translation>
    </message>
    <message>
        <source>Heading %1</source>
        <translation>Kurs %1</translation>
    </message>
    <message>
        <source>Turn ended: %1</source>
        <translation>Manöver beendet: %1</translation>
    </message>
    <message>
        <source>Initialize</source>
        <translation>Abgleich</translation>
    </message>
    <message>
        <source>Tracking Apparent Wind</source>
        <translation>Hält den scheinbaren Wind</translation>
    </message>
    <message>
        <source>Tracking True Wind</source>
        <translation>Hält den wahren Wind</translation>
    </message>
    <message>
        <source>, Input Stopped</source>
        <translation>, Eingang angehalten</translation>
    </message>
    <message>
        <source>, No Wind</source>
        <translation>, kein Wind</translation>
    </message>
    <message>
        <source>The manual is not there:<byte value="xd"/>%1</source>
        <translation>Das Handbuch ist nicht da:<byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>No browser shows the manual. It begins at:<byte value="xd"/>%1</source>
        <translation>Kein Browser zeigt das Handbuch. Es beginnt in:<byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>%1 old</source>
        <translation>%1 alt</translation>
    </message>
    <message>
        <source>To Starboard</source>
        <translation>Nach Stb</translation>
    </message>
    <message>
        <source>To Port</source>
        <translation>Nach Bb</translation>
    </message>
    <message>
        <source>Veerwatch is running already with these settings:<byte value="xd"/>%1<byte value="xd"/>Close it first, or start this one with settings of its own: veerwatch --profile FILE<byte value="xd"/>The other one holds the lock on %2</source>
        <translation>Veerwatch läuft schon mit diesen Einstellungen:<byte value="xd"/>%1<byte value="xd"/>Zuerst jenes schließen, oder dieses mit eigenen Einstellungen starten: veerwatch --profile DATEI<byte value="xd"/>Das andere hält die Sperre auf %2</translation>
    </message>
    <message>
        <source>The settings could not be saved:<byte value="xd"/>%1</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden:<byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>The recording has ended: %1</source>
        <translation>Die Aufzeichnung ist zu Ende: %1</translation>
    </message>
    <message>
        <source>● Recording</source>
        <translation>● Aufzeichnung</translation>
    </message>
    <message>
        <source>Record Input</source>
        <translation>Eingang aufzeichnen</translation>
    </message>
    <message>
        <source>Recorded input (*.nmea)</source>
        <translation>Aufgezeichneter Eingang (*.nmea)</translation>
    </message>
    <message>
        <source>Nothing is recorded:<byte value="xd"/>%1</source>
        <translation>Nichts wird aufgezeichnet:<byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>Every received line is written to %1</source>
        <translation>Jede empfangene Zeile wird geschrieben nach %1</translation>
    </message>
    <message>
        <source>nothing sent</source>
        <translation>nichts gesendet</translation>
    </message>
    <message>
        <source>sent now</source>
        <translation>jetzt gesendet</translation>
    </message>
    <message>
        <source>sent %1 s ago</source>
        <translation>vor %1 s gesendet</translation>
    </message>
    <message>
        <source>Pilot Status</source>
        <translation>Stand des Piloten</translation>
    </message>
    <message>
        <source>Input Data Status</source>
        <translation>Stand der Eingangsdaten</translation>
    </message>
    <message>
        <source>Output Data Status</source>
        <translation>Stand der Ausgangsdaten</translation>
    </message>
    <message>
        <source>No turn: one runs, Escape stops it</source>
        <translation>Kein Manöver: eines läuft, Escape hält es an</translation>
    </message>
    <message>
        <source>No turn: Ctrl+T and Ctrl+J turn in Track</source>
        <translation>Kein Manöver: Strg+T und Strg+J drehen nur, wenn der Wind gehalten wird</translation>
    </message>
    <message>
        <source>No turn: the polar has no best angle</source>
        <translation>Kein Manöver: die Polare hat keinen besten Winkel</translation>
    </message>
    <message>
        <source>Turn stopped</source>
        <translation>Manöver angehalten</translation>
    </message>
    <message>
        <source> deg</source>
        <translation> Grad</translation>
    </message>
    <message>
        <source>Veerwatch - Wind Limits</source>
        <translation>Veerwatch - Grenzen für den Wind</translation>
    </message>
    <message>
        <source>Angle Guard</source>
        <translation>Winkelwache</translation>
    </message>
    <message>
        <source>&amp;Least apparent angle:</source>
        <translation>&amp;Kleinster scheinbarer Winkel:</translation>
    </message>
    <message>
        <source>Largest &amp;true angle:</source>
        <translation>&amp;Größter wahrer Winkel:</translation>
    </message>
    <message>
        <source>Shift Alarm</source>
        <translation>Dreheralarm</translation>
    </message>
    <message>
        <source>A &amp;shift of more than:</source>
        <translation>Ein &amp;Dreher um mehr als:</translation>
    </message>
    <message>
        <source>that l&amp;asts for:</source>
        <translation>der so &amp;lange anhält:</translation>
    </message>
    <message>
        <source>%1 to %2%3</source>
        <translation>%1 bis %2%3</translation>
    </message>
    <message>
        <source>Angle Guard: holds %1</source>
        <translation>Winkelwache: hält %1</translation>
    </message>
    <message>
        <source>Polar Angle: the best angle is the last one of the polar&apos;s table</source>
        <translation>Polarwinkel: der beste Winkel ist der letzte in der Tabelle der Polare</translation>
    </message>
    <message>
        <source>Polar Angle Off: no best angle to windward in %1 kn; is a polar open?</source>
        <translation>Polarwinkel aus: kein bester Winkel nach Luv bei %1 kn; ist eine Polare geöffnet?</translation>
    </message>
    <message>
        <source>Polar Angle Off: no best angle to leeward in %1 kn; is a polar open?</source>
        <translation>Polarwinkel aus: kein bester Winkel nach Lee bei %1 kn; ist eine Polare geöffnet?</translation>
    </message>
    <message>
        <source>Polar Angle Off: another angle was set</source>
        <translation>Polarwinkel aus: ein anderer Winkel wurde gesetzt</translation>
    </message>
    <message>
        <source>%1 cannot be read: defaults are used; at the close it is put aside, not overwritten</source>
        <translation>%1 ist nicht zu lesen: es gelten die Vorgaben; am Ende wird die Datei beiseite gelegt, nicht überschrieben</translation>
    </message>
    <message>
        <source>%1 cannot be read, %2: defaults are used, and nothing is saved</source>
        <translation>%1 ist nicht zu lesen, %2: es gelten die Vorgaben, und nichts wird gespeichert</translation>
    </message>
    <message>
        <source>Off, Stop input and autopilot output</source>
        <translation>Aus: Eingang und Ausgang zum Autopiloten anhalten</translation>
    </message>
    <message>
        <source>Setup, Set software to hardware autopilot heading</source>
        <translation>Abgleich: das Programm auf den Kurs des Autopiloten setzen</translation>
    </message>
    <message>
        <source>Manual, adjust autopilot heading for desired wind angle</source>
        <translation>Hand: den Kurs des Autopiloten auf den gewünschten Windwinkel stellen</translation>
    </message>
    <message>
        <source>Track, adjust desired wind angle to fine tuning</source>
        <translation>Halten: den gewünschten Windwinkel fein einstellen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Default</source>
        <translation>&amp;Vorgaben</translation>
    </message>
    <message>
        <source>&amp;Record Input...</source>
        <translation>&amp;Eingang aufzeichnen...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Block Diagram...</source>
        <translation>Blo&amp;ckschaltbild...</translation>
    </message>
    <message>
        <source>&amp;History Plot...</source>
        <translation>&amp;Verlauf...</translation>
    </message>
    <message>
        <source>&amp;Polar Plot...</source>
        <translation>&amp;Polare...</translation>
    </message>
    <message>
        <source>&amp;Alarms...</source>
        <translation>&amp;Alarme...</translation>
    </message>
    <message>
        <source>&amp;Mute Alarms for Ten Minutes</source>
        <translation>Alarme zehn Minuten st&amp;umm</translation>
    </message>
    <message>
        <source>&amp;Night Colours</source>
        <translation>&amp;Nachtfarben</translation>
    </message>
    <message>
        <source>&amp;Save While Running</source>
        <translation>&amp;Laufend speichern</translation>
    </message>
    <message>
        <source>Settings are also saved ten seconds after a change</source>
        <translation>Einstellungen werden auch zehn Sekunden nach einer Änderung gespeichert</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>&amp;Input...</source>
        <translation>&amp;Eingang...</translation>
    </message>
    <message>
        <source>&amp;Data...</source>
        <translation>&amp;Daten...</translation>
    </message>
    <message>
        <source>&amp;Output...</source>
        <translation>&amp;Ausgang...</translation>
    </message>
    <message>
        <source>&amp;Tracking...</source>
        <translation>&amp;Halten...</translation>
    </message>
    <message>
        <source>&amp;Simulate...</source>
        <translation>&amp;Simulation...</translation>
    </message>
    <message>
        <source>&amp;Watch...</source>
        <translation>&amp;Wache...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Über...</translation>
    </message>
    <message>
        <source>Wi&amp;nd</source>
        <translation>Wi&amp;nd</translation>
    </message>
    <message>
        <source>Angle &amp;Guard</source>
        <translation>&amp;Winkelwache</translation>
    </message>
    <message>
        <source>Track keeps the boat from pinching and from an accidental gybe</source>
        <translation>Beim Halten kneift das Boot nicht und halst nicht von selbst</translation>
    </message>
    <message>
        <source>&amp;Shift Alarm</source>
        <translation>&amp;Dreheralarm</translation>
    </message>
    <message>
        <source>A lasting shift of the true wind since the angle was set is told</source>
        <translation>Ein bleibender Dreher des wahren Windes, seit der Winkel gesetzt wurde, wird gemeldet</translation>
    </message>
    <message>
        <source>Apparent &amp;Upwind, True Downwind</source>
        <translation>Am Wind &amp;scheinbar, vor dem Wind wahr</translation>
    </message>
    <message>
        <source>Track holds the apparent wind below 70 degrees of true wind angle and the true one beyond 80</source>
        <translation>Unter 70 Grad wahrem Windwinkel wird der scheinbare Wind gehalten, über 80 der wahre</translation>
    </message>
    <message>
        <source>&amp;Polar Angle</source>
        <translation>&amp;Polarwinkel</translation>
    </message>
    <message>
        <source>Track holds the best angle of the opened polar, to windward or to leeward</source>
        <translation>Gehalten wird der beste Winkel der geöffneten Polare, nach Luv oder nach Lee</translation>
    </message>
    <message>
        <source>&amp;Dodge Keys</source>
        <translation>&amp;Ausweichtasten</translation>
    </message>
    <message>
        <source>Ctrl+Left and Ctrl+Right steer off by 10 degrees in Track, Ctrl+Up back</source>
        <translation>Strg+Links und Strg+Rechts weichen beim Halten um 10 Grad aus, Strg+Auf zurück</translation>
    </message>
    <message>
        <source>&amp;Last Angle</source>
        <translation>&amp;Letzter Winkel</translation>
    </message>
    <message>
        <source>The angle before the latest change of more than 10 degrees</source>
        <translation>Der Winkel vor der letzten Änderung um mehr als 10 Grad</translation>
    </message>
    <message>
        <source>Li&amp;mits...</source>
        <translation>&amp;Grenzen...</translation>
    </message>
    <message>
        <source>Tracking Mode</source>
        <translation>Betriebsart</translation>
    </message>
    <message>
        <source>Input Stopped</source>
        <translation>Eingang angehalten</translation>
    </message>
    <message>
        <source>No Wind</source>
        <translation>Kein Wind</translation>
    </message>
    <message>
        <source>No Output</source>
        <translation>Kein Ausgang</translation>
    </message>
    <message>
        <source>Boat does not turn</source>
        <translation>Boot dreht nicht</translation>
    </message>
    <message>
        <source>Track needs a bandwidth above 0 and a usable damping</source>
        <translation>Halten braucht eine Bandbreite über 0 und eine brauchbare Dämpfung</translation>
    </message>
    <message>
        <source>Track Needs a Heading</source>
        <translation>Halten braucht einen Kurs</translation>
    </message>
    <message>
        <source>Sentence Error</source>
        <translation>Fehler im Satz</translation>
    </message>
    <message>
        <source>Checksum Error</source>
        <translation>Fehler der Prüfsumme</translation>
    </message>
    <message>
        <source>Receive Error</source>
        <translation>Fehler beim Empfang</translation>
    </message>
    <message>
        <source>Input Port %1 Not Open</source>
        <translation>Eingang: Anschluss %1 nicht offen</translation>
    </message>
    <message>
        <source>Output Port %1 Not Open</source>
        <translation>Ausgang: Anschluss %1 nicht offen</translation>
    </message>
    <message>
        <source>Pilot line %1 % full at %2 baud</source>
        <translation>Leitung zum Piloten zu %1 % voll bei %2 Baud</translation>
    </message>
    <message>
        <source>%1 Needs the Variation</source>
        <translation>%1 braucht die Missweisung</translation>
    </message>
    <message>
        <source>%1: Variation Older Than 1 h</source>
        <translation>%1: Missweisung älter als 1 h</translation>
    </message>
    <message>
        <source>No Sentence Chosen</source>
        <translation>Kein Satz gewählt</translation>
    </message>
    <message>
        <source>No Wind to Send</source>
        <translation>Kein Wind zu senden</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Halt</translation>
    </message>
    <message>
        <source>End the turn here and leave the pilot where it is (Escape)</source>
        <translation>Das Manöver hier beenden und den Piloten lassen, wo er ist (Escape)</translation>
    </message>
    <message>
        <source>Steer</source>
        <translation>Steuern</translation>
    </message>
    <message>
        <source>Tack</source>
        <translation>Wende</translation>
    </message>
    <message>
        <source>Jibe</source>
        <translation>Halse</translation>
    </message>
    <message>
        <source>Set tracking mode to Manual</source>
        <translation>Betriebsart auf Hand stellen</translation>
    </message>
    <message>
        <source>Overshoot the heading</source>
        <translation>Über den Kurs hinausdrehen</translation>
    </message>
    <message>
        <source>Limit the rate of change</source>
        <translation>Die Drehrate begrenzen</translation>
    </message>
    <message>
        <source>&amp;Steer to new heading:</source>
        <translation>&amp;Steuern auf neuen Kurs:</translation>
    </message>
    <message>
        <source>&amp;Tack to new heading:</source>
        <translation>&amp;Wende auf neuen Kurs:</translation>
    </message>
    <message>
        <source>&amp;Jibe to new heading:</source>
        <translation>&amp;Halse auf neuen Kurs:</translation>
    </message>
    <message>
        <source>Heading to turn to</source>
        <translation>Kurs, auf den gedreht wird</translation>
    </message>
    <message>
        <source>How far to turn past the heading, then left to you</source>
        <translation>Wie weit über den Kurs hinaus; zurück steuern Sie</translation>
    </message>
    <message>
        <source>How fast to turn</source>
        <translation>Wie schnell gedreht wird</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>What happens when you press OK</source>
        <translation>Was nach OK geschieht</translation>
    </message>
    <message>
        <source>Turned so far</source>
        <translation>Bisher gedreht</translation>
    </message>
    <message>
        <source>Degrees turned so far</source>
        <translation>Bisher gedrehte Grad</translation>
    </message>
    <message>
        <source>%v of %m deg</source>
        <translation>%v von %m Grad</translation>
    </message>
    <message>
        <source>T&amp;hen track</source>
        <translation>&amp;Dann halten</translation>
    </message>
    <message>
        <source>Ease the overshoot out, then track the wind angle of the other tack</source>
        <translation>Zurück auf den Kurs, dann den Windwinkel des anderen Bugs halten</translation>
    </message>
    <message>
        <source>Angle of the other tack</source>
        <translation>Winkel auf dem anderen Bug</translation>
    </message>
    <message>
        <source>Which wind angle is tracked then</source>
        <translation>Welcher Windwinkel dann gehalten wird</translation>
    </message>
    <message>
        <source>Mirrored angle</source>
        <translation>Gespiegelter Winkel</translation>
    </message>
    <message>
        <source>Polar&apos;s best</source>
        <translation>Bester der Polare</translation>
    </message>
    <message>
        <source>Take the pilot and begin to turn</source>
        <translation>Den Piloten übernehmen und drehen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Stop here and leave the pilot as it is</source>
        <translation>Hier aufhören und den Piloten lassen, wie er ist</translation>
    </message>
    <message>
        <source>deg M</source>
        <translation>Grad M</translation>
    </message>
    <message>
        <source>&amp;Overshoot</source>
        <translation>&amp;Überdrehen</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>&amp;Rate of Change (deg/sec)</source>
        <translation>D&amp;rehrate (Grad/s)</translation>
    </message>
    <message>
        <source>What the boat will do</source>
        <translation>Was das Boot tun wird</translation>
    </message>
    <message>
        <source>Turning: %1 of %2 degrees</source>
        <translation>Dreht: %1 von %2 Grad</translation>
    </message>
    <message>
        <source>Through the wind: %1 of %2 degrees</source>
        <translation>Durch den Wind: %1 von %2 Grad</translation>
    </message>
    <message>
        <source>Easing: %1 degrees to go</source>
        <translation>Zurück: noch %1 Grad</translation>
    </message>
    <message>
        <source>Done: %1 degrees</source>
        <translation>Fertig: %1 Grad</translation>
    </message>
    <message>
        <source>No turn in Off: press Setup first</source>
        <translation>Kein Manöver, wenn aus: zuerst Abgleich drücken</translation>
    </message>
    <message>
        <source>No turn: Input Stopped, press Setup first</source>
        <translation>Kein Manöver: Eingang angehalten, zuerst Abgleich drücken</translation>
    </message>
    <message>
        <source>No turn: Input Port %1 Not Open</source>
        <translation>Kein Manöver: Eingang, Anschluss %1 nicht offen</translation>
    </message>
    <message>
        <source>No turn: Output Port %1 Not Open</source>
        <translation>Kein Manöver: Ausgang, Anschluss %1 nicht offen</translation>
    </message>
    <message>
        <source>No turn: No Wind</source>
        <translation>Kein Manöver: kein Wind</translation>
    </message>
    <message>
        <source>Bearing and heading are %1 degrees apart: wait until she is steady</source>
        <translation>Sollkurs und anliegender Kurs sind %1 Grad auseinander: warten, bis das Boot ruhig liegt</translation>
    </message>
    <message>
        <source>No turn: No Heading</source>
        <translation>Kein Manöver: kein Kurs</translation>
    </message>
    <message>
        <source>No turn: the pilot holds the wind by itself</source>
        <translation>Kein Manöver: der Pilot hält den Wind selbst</translation>
    </message>
    <message>
        <source>No turn: %1</source>
        <translation>Kein Manöver: %1</translation>
    </message>
    <message>
        <source>No turn: the wind is dead ahead</source>
        <translation>Kein Manöver: der Wind kommt genau von vorn</translation>
    </message>
    <message>
        <source>No turn: the wind is dead astern</source>
        <translation>Kein Manöver: der Wind kommt genau von achtern</translation>
    </message>
    <message>
        <source>No turn: that is no heading</source>
        <translation>Kein Manöver: das ist kein Kurs</translation>
    </message>
    <message>
        <source>No turn: it would be half a circle or more</source>
        <translation>Kein Manöver: es wäre ein halber Kreis oder mehr</translation>
    </message>
    <message>
        <source>, at the polar&apos;s edge</source>
        <translation>, am Rand der Polare</translation>
    </message>
    <message>
        <source>Tack, %1 through the wind</source>
        <translation>Wende, %1 durch den Wind</translation>
    </message>
    <message>
        <source>GYBE, %1, by the stern</source>
        <translation>HALSE, %1, mit dem Heck</translation>
    </message>
    <message>
        <source>Steer, %1</source>
        <translation>Steuern, %1</translation>
    </message>
    <message>
        <source>GYBE</source>
        <translation>HALSE</translation>
    </message>
    <message>
        <source>%1 to port: OK once more?</source>
        <translation>%1 nach Backbord: noch einmal OK?</translation>
    </message>
    <message>
        <source>%1 to starboard: OK once more?</source>
        <translation>%1 nach Steuerbord: noch einmal OK?</translation>
    </message>
    <message>
        <source>1 degree to port</source>
        <translation>1 Grad nach Backbord</translation>
    </message>
    <message>
        <source>1 degree to starboard</source>
        <translation>1 Grad nach Steuerbord</translation>
    </message>
    <message>
        <source>%1 degrees to port</source>
        <translation>%1 Grad nach Backbord</translation>
    </message>
    <message>
        <source>%1 degrees to starboard</source>
        <translation>%1 Grad nach Steuerbord</translation>
    </message>
    <message>
        <source>No turn</source>
        <translation>Keine Drehung</translation>
    </message>
    <message>
        <source>%1, through the wind</source>
        <translation>%1, durch den Wind</translation>
    </message>
    <message>
        <source>%1, stern through the wind</source>
        <translation>%1, mit dem Heck durch den Wind</translation>
    </message>
    <message>
        <source>The bow goes through the wind: OK once more?</source>
        <translation>Der Bug geht durch den Wind: noch einmal OK?</translation>
    </message>
    <message>
        <source>The stern goes through the wind: OK once more?</source>
        <translation>Das Heck geht durch den Wind: noch einmal OK?</translation>
    </message>
    <message>
        <source>Heading or wind moved, filled anew: OK once more</source>
        <translation>Kurs oder Wind hat sich geändert, neu ausgefüllt: noch einmal OK</translation>
    </message>
    <message>
        <source>No turn: the heading is no number</source>
        <translation>Kein Manöver: der Kurs ist keine Zahl</translation>
    </message>
    <message>
        <source>No turn: the overshoot is no number</source>
        <translation>Kein Manöver: das Überdrehen ist keine Zahl</translation>
    </message>
    <message>
        <source>No turn: the rate is no number</source>
        <translation>Kein Manöver: die Drehrate ist keine Zahl</translation>
    </message>
    <message>
        <source>Waits: nothing leaves for the pilot</source>
        <translation>Wartet: nichts geht an den Piloten</translation>
    </message>
    <message>
        <source>What the boat does</source>
        <translation>Was das Boot tut</translation>
    </message>
    <message>
        <source>How far she is</source>
        <translation>Wie weit es ist</translation>
    </message>
    <message>
        <source>Without a heading only Sentence steers: %1 for %2.</source>
        <translation>Ohne Kurs steuert nur Satz: %1 für %2.</translation>
    </message>
    <message>
        <source>Without a boat speed Direction does not know the apparent wind: Clock with %1.</source>
        <translation>Ohne Fahrt kennt Richtung den scheinbaren Wind nicht: Uhr mit %1.</translation>
    </message>
    <message>
        <source>Direction holds at %1 without tuning; %2 keep the rudder calm on a boat that answers in %3 s.</source>
        <translation>Richtung hält bei %1 ohne Abstimmung; %2 halten das Ruder ruhig auf einem Boot, das in %3 s antwortet.</translation>
    </message>
    <message>
        <source>Direction holds at %1 without tuning; %2 follow closely and cost little rudder on a boat that takes %3 s to answer.</source>
        <translation>Richtung hält bei %1 ohne Abstimmung; %2 folgen eng und kosten wenig Ruder auf einem Boot, das %3 s zum Antworten braucht.</translation>
    </message>
    <message>
        <source>%1 wind sentence a second</source>
        <translation>%1 Windsatz je Sekunde</translation>
    </message>
    <message>
        <source>%1 wind sentences a second</source>
        <translation>%1 Windsätze je Sekunde</translation>
    </message>
    <message>
        <source>%1: this bandwidth swings; choose Clock</source>
        <translation>%1: diese Bandbreite schwingt; Uhr wählen</translation>
    </message>
    <message>
        <source>HDG - Compass (Heading, Deviation, Variation)</source>
        <translation>HDG - Kompass (Kurs, Ablenkung, Missweisung)</translation>
    </message>
    <message>
        <source>HVM - Magnetic (Variation)</source>
        <translation>HVM - Magnetisch (Missweisung)</translation>
    </message>
    <message>
        <source>MWV - Wind (Angle, Apparent/True, Speed)</source>
        <translation>MWV - Wind (Winkel, scheinbar/wahr, Stärke)</translation>
    </message>
    <message>
        <source>RMB - Waypoint (Xte, To Id, From Id, Lat, Lon, Rng, Brg, Vmg)</source>
        <translation>RMB - Wegpunkt (Querablage, nach, von, Breite, Länge, Entf., Peilung, VMG)</translation>
    </message>
    <message>
        <source>RMC - Gps (Time, Lat, Lon, SOG, COG, Variation)</source>
        <translation>RMC - GPS (Zeit, Breite, Länge, FüG, KüG, Missweisung)</translation>
    </message>
    <message>
        <source>VHW - Vessel (Heading, SOW)</source>
        <translation>VHW - Boot (Kurs, FdW)</translation>
    </message>
    <message>
        <source>VTG - Vessel (COG, SOG)</source>
        <translation>VTG - Boot (KüG, FüG)</translation>
    </message>
    <message>
        <source>HDM - Compass (Heading Magnetic)</source>
        <translation>HDM - Kompass (missweisender Kurs)</translation>
    </message>
    <message>
        <source>HDT - Gyro (Heading True)</source>
        <translation>HDT - Kreisel (rechtweisender Kurs)</translation>
    </message>
    <message>
        <source>MWD - Wind (Direction, Speed)</source>
        <translation>MWD - Wind (Richtung, Stärke)</translation>
    </message>
    <message>
        <source>THS - Gyro (Heading True, Status)</source>
        <translation>THS - Kreisel (rechtweisender Kurs, Status)</translation>
    </message>
    <message>
        <source>VWR - Wind (Angle, Apparent, Speed)</source>
        <translation>VWR - Wind (Winkel, scheinbar, Stärke)</translation>
    </message>
    <message>
        <source>VWT - Wind (Angle, True, Speed)</source>
        <translation>VWT - Wind (Winkel, wahr, Stärke)</translation>
    </message>
    <message>
        <source>True Wind Sensor</source>
        <translation>Sensor für wahren Wind</translation>
    </message>
    <message>
        <source>Compute from Boat Speed</source>
        <translation>Aus der Fahrt errechnen</translation>
    </message>
    <message>
        <source>Compass Heading</source>
        <translation>Kompasskurs</translation>
    </message>
    <message>
        <source>Course Over Ground</source>
        <translation>Kurs über Grund</translation>
    </message>
    <message>
        <source>Speed Over Water</source>
        <translation>Fahrt durchs Wasser</translation>
    </message>
    <message>
        <source>Wind Indicator Average Time (sec, 0=none)</source>
        <translation>Mittelung der Windanzeige (s, 0=keine)</translation>
    </message>
    <message>
        <source>True Wind Average Time (sec, 0=none)</source>
        <translation>Mittelung des wahren Windes (s, 0=keine)</translation>
    </message>
    <message>
        <source>Added to the wind&apos;s angle that comes in (Deg)</source>
        <translation>Wird zum ankommenden Windwinkel gezählt (Grad)</translation>
    </message>
    <message>
        <source>Times the speed through the water that comes in</source>
        <translation>Mal die ankommende Fahrt durchs Wasser</translation>
    </message>
    <message>
        <source>Added to the compass heading that comes in (Deg)</source>
        <translation>Wird zum ankommenden Kompasskurs gezählt (Grad)</translation>
    </message>
    <message>
        <source>What becomes of a sentence without a checksum</source>
        <translation>Was aus einem Satz ohne Prüfsumme wird</translation>
    </message>
    <message>
        <source>Accept missing</source>
        <translation>Darf fehlen</translation>
    </message>
    <message>
        <source>Require</source>
        <translation>Verlangt</translation>
    </message>
    <message>
        <source>What becomes of the values of an MWV, RMC or RMB with the status V</source>
        <translation>Was aus den Werten von MWV, RMC oder RMB mit dem Status V wird</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Nehmen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Übergehen</translation>
    </message>
    <message>
        <source>What a line is that begins with &quot;!&quot;, as those of an AIS receiver</source>
        <translation>Was eine Zeile ist, die mit &quot;!&quot; beginnt, wie die eines AIS-Empfängers</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Wind U&amp;nits: m/s, km/h and mph, too</source>
        <translation>Windeinheiten: auch &amp;m/s, km/h und mph</translation>
    </message>
    <message>
        <source>Reads an MWV whose speed is not in knots</source>
        <translation>Liest MWV auch, wenn die Stärke nicht in Knoten steht</translation>
    </message>
    <message>
        <source>&amp;Lower Case checksums, too</source>
        <translation>Prüfsummen auch in &amp;kleinen Buchstaben</translation>
    </message>
    <message>
        <source>Reads a checksum in small letters</source>
        <translation>Liest eine Prüfsumme in kleinen Buchstaben</translation>
    </message>
    <message>
        <source>What the chosen sources do not bring</source>
        <translation>Was die gewählten Quellen nicht bringen</translation>
    </message>
    <message>
        <source>Boat &amp;Heading:</source>
        <translation>Kur&amp;s:</translation>
    </message>
    <message>
        <source>&amp;Boat Speed:</source>
        <translation>&amp;Fahrt:</translation>
    </message>
    <message>
        <source>Chec&amp;ksum:</source>
        <translation>&amp;Prüfsumme:</translation>
    </message>
    <message>
        <source>In&amp;valid Status:</source>
        <translation>Status &amp;ungültig:</translation>
    </message>
    <message>
        <source>&amp;Foreign Lines:</source>
        <translation>Fremde &amp;Zeilen:</translation>
    </message>
    <message>
        <source>samples</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Data Average:</source>
        <translation>Mittelung:</translation>
    </message>
    <message>
        <source>Wind Indi&amp;cator</source>
        <translation>Wind&amp;anzeige</translation>
    </message>
    <message>
        <source>Data Average (Sec):</source>
        <translation>Mittelung (s):</translation>
    </message>
    <message>
        <source>Tr&amp;ue Wind</source>
        <translation>Wahrer W&amp;ind</translation>
    </message>
    <message>
        <source>Deg</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>, serial number %1</source>
        <translation>, Seriennummer %1</translation>
    </message>
    <message>
        <source>Port %1: %2</source>
        <translation>Anschluss %1: %2</translation>
    </message>
    <message>
        <source> (port %1)</source>
        <translation> (Anschluss %1)</translation>
    </message>
    <message>
        <source>Choose a device of the list, or type one.</source>
        <translation>Ein Gerät aus der Liste wählen oder eines eintippen.</translation>
    </message>
    <message>
        <source>%1 is not there now</source>
        <translation>%1 ist gerade nicht da</translation>
    </message>
    <message>
        <source>Veerwatch - Device</source>
        <translation>Veerwatch - Gerät</translation>
    </message>
    <message>
        <source>Serial ports that are plugged in, and what the profile names</source>
        <translation>Angesteckte serielle Anschlüsse, und was das Profil nennt</translation>
    </message>
    <message>
        <source>The device or endpoint of the port</source>
        <translation>Gerät oder Gegenstelle des Anschlusses</translation>
    </message>
    <message>
        <source>What is wrong with the device or endpoint</source>
        <translation>Was an Gerät oder Gegenstelle nicht stimmt</translation>
    </message>
    <message>
        <source>Comm takes the number of a port. Choose its device with &quot;Device...&quot; beside it.</source>
        <translation>Hier steht die Nummer eines Anschlusses. Das Gerät dazu wählt &quot;Gerät...&quot; daneben.</translation>
    </message>
    <message>
        <source>Current Wind Angle</source>
        <translation>Jetziger Windwinkel</translation>
    </message>
    <message>
        <source>Desired Wind Angle</source>
        <translation>Gewünschter Windwinkel</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Faktor</translation>
    </message>
    <message>
        <source>Accumulator</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Bearing</source>
        <translation>Kurs</translation>
    </message>
    <message>
        <source>Tracking Circuit</source>
        <translation>Haltekreis</translation>
    </message>
    <message>
        <source>Overshoot Circuit</source>
        <translation>Überschwingkreis</translation>
    </message>
    <message>
        <source>Diagram of the control loop</source>
        <translation>Bild des Regelkreises</translation>
    </message>
    <message>
        <source>The current less the desired wind angle goes to the tracking circuit, which scales it and accumulates it into the bearing. The overshoot circuit scales and accumulates the same difference and adds it in front of the tracking circuit.</source>
        <translation>Der jetzige weniger der gewünschte Windwinkel geht in den Haltekreis, der ihn malnimmt und zum Kurs aufsummiert. Der Überschwingkreis nimmt dieselbe Differenz mal, summiert sie und gibt sie vor dem Haltekreis dazu.</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>keine Zahl</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>zu groß</translation>
    </message>
    <message>
        <source>Must be 0 or above 0.5</source>
        <translation>muss 0 oder über 0.5 sein</translation>
    </message>
    <message>
        <source>Invalid property value</source>
        <translation>nicht erlaubt</translation>
    </message>
    <message>
        <source>True Wind Average</source>
        <translation>Mittelung wahrer Wind</translation>
    </message>
    <message>
        <source>Wind Indicator Average</source>
        <translation>Mittelung Windanzeige</translation>
    </message>
    <message>
        <source>Wind Offset</source>
        <translation>Windwinkel plus</translation>
    </message>
    <message>
        <source>Boat Speed Factor</source>
        <translation>Fahrt mal</translation>
    </message>
    <message>
        <source>Heading Offset</source>
        <translation>Kompass plus</translation>
    </message>
    <message>
        <source>Invalid When Lost</source>
        <translation>Ungültig, wenn verloren</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Angle Noise</source>
        <translation>Winkelrauschen</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Rauschen</translation>
    </message>
    <message>
        <source>True Wind Direction</source>
        <translation>Richtung des wahren Windes</translation>
    </message>
    <message>
        <source>Magnetic Variation</source>
        <translation>Missweisung</translation>
    </message>
    <message>
        <source>Waypoint Bearing</source>
        <translation>Peilung zum Wegpunkt</translation>
    </message>
    <message>
        <source>Waypoint Range</source>
        <translation>Entfernung zum Wegpunkt</translation>
    </message>
    <message>
        <source>Alarm Limit</source>
        <translation>Alarmgrenze</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Bandbreite</translation>
    </message>
    <message>
        <source>Damping</source>
        <translation>Dämpfung</translation>
    </message>
    <message>
        <source>Max Steer To</source>
        <translation>Größte Kursänderung</translation>
    </message>
    <message>
        <source>Alarm Average</source>
        <translation>Alarmmittelung</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Tracking</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Wache</translation>
    </message>
    <message>
        <source>%1 Options Problem %2: %3</source>
        <translation>Optionen %1: %3 %2</translation>
    </message>
    <message>
        <source>Comm</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Talker</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>%1 is not whole</source>
        <translation>%1 ist nicht vollständig</translation>
    </message>
    <message>
        <source>What the pilot is sent</source>
        <translation>Was dem Piloten gesendet wird</translation>
    </message>
    <message>
        <source>How often the bearing is sent: with each wind, or by the clock while it is good</source>
        <translation>Wie oft der Kurs gesendet wird: mit jedem Wind, oder nach der Uhr, solange er gilt</translation>
    </message>
    <message>
        <source>Each wind</source>
        <translation>Jeder Wind</translation>
    </message>
    <message>
        <source>1 a second</source>
        <translation>1 je Sekunde</translation>
    </message>
    <message>
        <source>2 a second</source>
        <translation>2 je Sekunde</translation>
    </message>
    <message>
        <source>3 a second</source>
        <translation>3 je Sekunde</translation>
    </message>
    <message>
        <source>4 a second</source>
        <translation>4 je Sekunde</translation>
    </message>
    <message>
        <source>5 a second</source>
        <translation>5 je Sekunde</translation>
    </message>
    <message>
        <source>Own: the two letters in front</source>
        <translation>Eigenes: die zwei Buchstaben am Anfang</translation>
    </message>
    <message>
        <source>Own: the bearings of APB are magnetic or true</source>
        <translation>Eigenes: die Kurse in APB sind missweisend oder rechtweisend</translation>
    </message>
    <message>
        <source>Own: fields of APB; the fifteenth is the mode A</source>
        <translation>Eigenes: Felder von APB; das fünfzehnte ist der Modus A</translation>
    </message>
    <message>
        <source>Own: decimals of the bearings</source>
        <translation>Eigenes: Nachkommastellen der Kurse</translation>
    </message>
    <message>
        <source>Own: name of the point, 6 letters and digits at most</source>
        <translation>Eigenes: Name des Punktes, höchstens 6 Buchstaben und Ziffern</translation>
    </message>
    <message>
        <source>Invalid when &amp;lost, for</source>
        <translation>Ungültig, wenn &amp;verloren, für</translation>
    </message>
    <message>
        <source>So long the status is V, then nothing is sent (sec)</source>
        <translation>So lange ist der Status V, dann wird nichts gesendet (s)</translation>
    </message>
    <message>
        <source>Test &amp;Pilot...</source>
        <translation>P&amp;ilot prüfen...</translation>
    </message>
    <message>
        <source>Own: whether this sentence is sent</source>
        <translation>Eigenes: ob dieser Satz gesendet wird</translation>
    </message>
    <message>
        <source>When no bearing is good the pilot is told so; otherwise nothing is sent at once</source>
        <translation>Gilt kein Kurs, wird es dem Piloten gesagt; sonst wird sofort nichts mehr gesendet</translation>
    </message>
    <message>
        <source>Turns the boat by 10 degrees and back, and says how the pilot answers; in Manual</source>
        <translation>Dreht das Boot um 10 Grad und zurück und sagt, wie der Pilot antwortet; nur von Hand</translation>
    </message>
    <message>
        <source>What would leave now</source>
        <translation>Was jetzt gesendet würde</translation>
    </message>
    <message>
        <source>What does not leave, or how full the line is</source>
        <translation>Was nicht gesendet wird, oder wie voll die Leitung ist</translation>
    </message>
    <message>
        <source>P&amp;rofile:</source>
        <translation>P&amp;rofil:</translation>
    </message>
    <message>
        <source>Cadenc&amp;e:</source>
        <translation>&amp;Takt:</translation>
    </message>
    <message>
        <source>Talker:</source>
        <translation>Sender:</translation>
    </message>
    <message>
        <source>Bearings:</source>
        <translation>Kurse:</translation>
    </message>
    <message>
        <source>Fields:</source>
        <translation>Felder:</translation>
    </message>
    <message>
        <source>Decimals:</source>
        <translation>Stellen:</translation>
    </message>
    <message>
        <source>Point:</source>
        <translation>Punkt:</translation>
    </message>
    <message>
        <source>Sends:</source>
        <translation>Sendet:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Veerwatch - Test Pilot</source>
        <translation>Veerwatch - Pilot prüfen</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>&amp;Übernehmen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Puts the lag and the suggestion into the boxes of the Tracking tab; Apply stores it</source>
        <translation>Trägt Verzug und Vorschlag in die Felder der Seite Halten ein; Anwenden speichert</translation>
    </message>
    <message>
        <source>Ends the test with the bearing of before</source>
        <translation>Beendet die Prüfung mit dem Kurs von vorher</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The test has ended: %1</source>
        <translation>Die Prüfung ist zu Ende: %1</translation>
    </message>
    <message>
        <source>The pilot can be tested in Manual only: in any other mode the bearing is not yours.</source>
        <translation>Der Pilot lässt sich nur von Hand prüfen: in jeder anderen Betriebsart gehört der Kurs nicht Ihnen.</translation>
    </message>
    <message>
        <source>The pilot holds the wind by itself: it takes no bearing that could be tested.</source>
        <translation>Der Pilot hält den Wind selbst: er nimmt keinen Kurs, der sich prüfen ließe.</translation>
    </message>
    <message>
        <source>A turn has the pilot.</source>
        <translation>Ein Manöver hat den Piloten.</translation>
    </message>
    <message>
        <source>No wind comes, and without it nothing is sent.</source>
        <translation>Es kommt kein Wind, und ohne ihn wird nichts gesendet.</translation>
    </message>
    <message>
        <source>The port of the pilot is not open.</source>
        <translation>Der Anschluss des Piloten ist nicht offen.</translation>
    </message>
    <message>
        <source>No heading comes that would show what the boat does.</source>
        <translation>Es kommt kein Kurs, der zeigen würde, was das Boot tut.</translation>
    </message>
    <message>
        <source>Somebody else took the pilot</source>
        <translation>Jemand anders hat den Piloten übernommen</translation>
    </message>
    <message>
        <source>too few headings came</source>
        <translation>es kamen zu wenige Kurse</translation>
    </message>
    <message>
        <source>the boat takes long, or does not come all the way</source>
        <translation>das Boot braucht lange, oder kommt nicht ganz herum</translation>
    </message>
    <message>
        <source>is the pilot in standby, or does it want another sentence?</source>
        <translation>ist der Pilot auf Standby, oder will er einen anderen Satz?</translation>
    </message>
    <message>
        <source>the rudder sensor or the motor may be the wrong way round</source>
        <translation>Ruderlagegeber oder Motor sind vielleicht verpolt</translation>
    </message>
    <message>
        <source>the pilot does what it is told</source>
        <translation>der Pilot tut, was ihm gesagt wird</translation>
    </message>
    <message>
        <source>The pilot is sent a bearing 10 degrees to starboard, and after half a minute the present one again. It takes 90 seconds in all. Is there room, and does somebody keep a lookout?</source>
        <translation>Dem Piloten wird ein Kurs 10 Grad nach Steuerbord gesendet, und nach einer halben Minute wieder der jetzige. Es dauert im Ganzen 90 Sekunden. Ist Platz, und hält jemand Ausguck?</translation>
    </message>
    <message>
        <source>Listens to the heading for 10 seconds.</source>
        <translation>Hört 10 Sekunden auf den Kurs.</translation>
    </message>
    <message>
        <source>10 degrees to starboard are sent.</source>
        <translation>10 Grad nach Steuerbord werden gesendet.</translation>
    </message>
    <message>
        <source>The bearing of before is sent again.</source>
        <translation>Der Kurs von vorher wird wieder gesendet.</translation>
    </message>
    <message>
        <source>The test was cut short, as she turned more than 15 degrees.</source>
        <translation>Die Prüfung wurde abgebrochen, weil das Boot mehr als 15 Grad drehte.</translation>
    </message>
    <message>
        <source>She made %1 of 10 degrees the wrong way.</source>
        <translation>Das Boot drehte %1 von 10 Grad falsch herum.</translation>
    </message>
    <message>
        <source>She made %1 of 10 degrees.</source>
        <translation>Das Boot drehte %1 von 10 Grad.</translation>
    </message>
    <message>
        <source>Lag: %1 s until two thirds of the turn are made.</source>
        <translation>Verzug: %1 s, bis zwei Drittel der Drehung gemacht sind.</translation>
    </message>
    <message>
        <source>Rate of turn: up to %1 degrees a second.</source>
        <translation>Drehrate: bis zu %1 Grad je Sekunde.</translation>
    </message>
    <message>
        <source>Offset: the pilot&apos;s compass shows the same.</source>
        <translation>Versatz: der Kompass des Piloten zeigt dasselbe.</translation>
    </message>
    <message>
        <source>Offset: the pilot&apos;s compass shows %1 degrees more.</source>
        <translation>Versatz: der Kompass des Piloten zeigt %1 Grad mehr.</translation>
    </message>
    <message>
        <source>Offset: the pilot&apos;s compass shows %1 degrees less.</source>
        <translation>Versatz: der Kompass des Piloten zeigt %1 Grad weniger.</translation>
    </message>
    <message>
        <source>Input Comm Port</source>
        <translation>Anschluss des Eingangs</translation>
    </message>
    <message>
        <source>Choose the device or the endpoint that the Input Comm Port leads to</source>
        <translation>Gerät oder Gegenstelle wählen, wohin der Anschluss des Eingangs führt</translation>
    </message>
    <message>
        <source>Where the Input Comm Port leads</source>
        <translation>Wohin der Anschluss des Eingangs führt</translation>
    </message>
    <message>
        <source>Input Comm Status</source>
        <translation>Stand des Eingangs</translation>
    </message>
    <message>
        <source>Why the Input Comm Port is not open</source>
        <translation>Warum der Anschluss des Eingangs nicht offen ist</translation>
    </message>
    <message>
        <source>Input Display Comm Data - Off</source>
        <translation>Eingangsdaten zeigen - aus</translation>
    </message>
    <message>
        <source>Input Display Comm Data - On</source>
        <translation>Eingangsdaten zeigen - an</translation>
    </message>
    <message>
        <source>Input Nema Data, Highlighted indicates Decoded Data</source>
        <translation>Eingangsdaten; was gelesen wird, ist hervorgehoben</translation>
    </message>
    <message>
        <source>Hold the list still; what comes meanwhile is added afterwards</source>
        <translation>Die Liste anhalten; was inzwischen kommt, wird nachgetragen</translation>
    </message>
    <message>
        <source>Copy every line of the list to the clipboard</source>
        <translation>Jede Zeile der Liste in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Display Data Format - Raw NMEA</source>
        <translation>Darstellung - roh</translation>
    </message>
    <message>
        <source>Display Data Format - Decoded Error</source>
        <translation>Darstellung - Fehler</translation>
    </message>
    <message>
        <source>&amp;Raw NMEA</source>
        <translation>N&amp;MEA roh</translation>
    </message>
    <message>
        <source>D&amp;ecoded Error</source>
        <translation>&amp;Fehler</translation>
    </message>
    <message>
        <source>Display one type of sentence only</source>
        <translation>Nur eine Art von Sätzen zeigen</translation>
    </message>
    <message>
        <source>Output Comm Port</source>
        <translation>Anschluss des Ausgangs</translation>
    </message>
    <message>
        <source>Choose the device or the endpoint that the Output Comm Port leads to</source>
        <translation>Gerät oder Gegenstelle wählen, wohin der Anschluss des Ausgangs führt</translation>
    </message>
    <message>
        <source>Where the Output Comm Port leads</source>
        <translation>Wohin der Anschluss des Ausgangs führt</translation>
    </message>
    <message>
        <source>Output Comm Status</source>
        <translation>Stand des Ausgangs</translation>
    </message>
    <message>
        <source>Why the Output Comm Port is not open</source>
        <translation>Warum der Anschluss des Ausgangs nicht offen ist</translation>
    </message>
    <message>
        <source>Output Display Comm Data - Off</source>
        <translation>Ausgangsdaten zeigen - aus</translation>
    </message>
    <message>
        <source>Output Display Comm Data - On</source>
        <translation>Ausgangsdaten zeigen - an</translation>
    </message>
    <message>
        <source>Output Nema Data</source>
        <translation>Ausgangsdaten</translation>
    </message>
    <message>
        <source>De&amp;vice...</source>
        <translation>&amp;Gerät...</translation>
    </message>
    <message>
        <source>Of&amp;f</source>
        <translation>A&amp;us</translation>
    </message>
    <message>
        <source>Pa&amp;use</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>Cop&amp;y All</source>
        <translation>Alles &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Comm:</source>
        <translation>An&amp;schluss:</translation>
    </message>
    <message>
        <source>Leads to:</source>
        <translation>Führt zu:</translation>
    </message>
    <message>
        <source>Display:</source>
        <translation>Anzeige:</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Form:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Ty&amp;pe:</source>
        <translation>A&amp;rt:</translation>
    </message>
    <message>
        <source>Nmea Sentences</source>
        <translation>NMEA-Sätze</translation>
    </message>
    <message>
        <source>Move Ahead in Time (h:mm)</source>
        <translation>In der Zeit voraus (h:mm)</translation>
    </message>
    <message>
        <source>Simu&amp;late Data</source>
        <translation>Daten simu&amp;lieren</translation>
    </message>
    <message>
        <source>Steady: lies on the bearing at once. Boat: has a hull, a pilot that reads what is sent, a sea and gusts</source>
        <translation>Stetig: liegt sofort auf dem Kurs. Boot: hat einen Rumpf, einen Piloten, der liest, was gesendet wird, Seegang und Böen</translation>
    </message>
    <message>
        <source>Which sentences the boat&apos;s pilot reads</source>
        <translation>Welche Sätze der Pilot des Bootes liest</translation>
    </message>
    <message>
        <source>The sea that the boat sails in</source>
        <translation>Der Seegang, in dem das Boot segelt</translation>
    </message>
    <message>
        <source>True Wind Direction (T)</source>
        <translation>Richtung des wahren Windes (T)</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Magnetic Variation (Deg)</source>
        <translation>Missweisung (Grad)</translation>
    </message>
    <message>
        <source>Compass Offset</source>
        <translation>Kompassversatz</translation>
    </message>
    <message>
        <source>Added Random Noise (+/- Kts)</source>
        <translation>Zufälliges Rauschen dazu (+/- kn)</translation>
    </message>
    <message>
        <source>Added Random Noise (+/- Deg)</source>
        <translation>Zufälliges Rauschen dazu (+/- Grad)</translation>
    </message>
    <message>
        <source>Waypoint Range (nm)</source>
        <translation>Entfernung zum Wegpunkt (sm)</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>Time, Waypoint Bearing (M)</source>
        <translation>Dann, Peilung zum Wegpunkt (M)</translation>
    </message>
    <message>
        <source>Time, Waypoint Range(mn)</source>
        <translation>Dann, Entfernung zum Wegpunkt (sm)</translation>
    </message>
    <message>
        <source>A&amp;uto Apply</source>
        <translation>Sofort &amp;anwenden</translation>
    </message>
    <message>
        <source>Simulate Data</source>
        <translation>Daten simulieren</translation>
    </message>
    <message>
        <source>Auto Apply</source>
        <translation>Sofort anwenden</translation>
    </message>
    <message>
        <source>Pilot &amp;Reads</source>
        <translation>&amp;Pilot liest</translation>
    </message>
    <message>
        <source>Sea</source>
        <translation>See</translation>
    </message>
    <message>
        <source>&amp;Boat Speed (Kts)</source>
        <translation>&amp;Fahrt (kn)</translation>
    </message>
    <message>
        <source>True Wind S&amp;peed (Kts)</source>
        <translation>Wahrer Wind, S&amp;tärke (kn)</translation>
    </message>
    <message>
        <source>Magnetic &amp;Variation (Deg)</source>
        <translation>&amp;Missweisung (Grad)</translation>
    </message>
    <message>
        <source>O&amp;ffset (Deg)</source>
        <translation>&amp;Versatz (Grad)</translation>
    </message>
    <message>
        <source>&amp;Noise</source>
        <translation>&amp;Rauschen</translation>
    </message>
    <message>
        <source>Angl&amp;e Noise</source>
        <translation>Win&amp;kelrauschen</translation>
    </message>
    <message>
        <source>Wa&amp;ypoint (M,nm)</source>
        <translation>We&amp;gpunkt (M,sm)</translation>
    </message>
    <message>
        <source>Ti&amp;me</source>
        <translation>&amp;Zeit</translation>
    </message>
    <message>
        <source>M,nm</source>
        <translation>M,sm</translation>
    </message>
    <message>
        <source>&amp;Kind of Boat</source>
        <translation>Boot&amp;smodell</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>In use: %1. Press Track to use what you apply.</source>
        <translation>In Gebrauch: %1. Was angewendet wird, gilt ab dem nächsten Druck auf Halten.</translation>
    </message>
    <message>
        <source>Track Time (sec)</source>
        <translation>Zeit (s)</translation>
    </message>
    <message>
        <source>Tracking A&amp;larm</source>
        <translation>A&amp;larm</translation>
    </message>
    <message>
        <source>Tracking Alarm Limit (deg, +/- from Desired)</source>
        <translation>Alarmgrenze (Grad, +/- vom gewünschten Winkel)</translation>
    </message>
    <message>
        <source>Tracking Bandwidth (sec)</source>
        <translation>Bandbreite (s)</translation>
    </message>
    <message>
        <source>Tracking Damping Factor (default=1)</source>
        <translation>Dämpfung (Vorgabe 1)</translation>
    </message>
    <message>
        <source>Range (deg)</source>
        <translation>Bereich (Grad)</translation>
    </message>
    <message>
        <source>Seconds over which the alarm averages the error</source>
        <translation>Sekunden, über die der Alarm die Abweichung mittelt</translation>
    </message>
    <message>
        <source>S&amp;uggest</source>
        <translation>Vorschla&amp;gen</translation>
    </message>
    <message>
        <source>Initial Track Offset  (deg)</source>
        <translation>Anfängliche Abweichung (Grad)</translation>
    </message>
    <message>
        <source>On m&amp;y wind</source>
        <translation>&amp;Mein Wind</translation>
    </message>
    <message>
        <source>Seconds until the boat has made two thirds of a small turn</source>
        <translation>Sekunden, bis das Boot zwei Drittel einer kleinen Drehung gemacht hat</translation>
    </message>
    <message>
        <source>Tracking Alarm</source>
        <translation>Alarm beim Halten</translation>
    </message>
    <message>
        <source>Puts what suits the measured sentences and the boat lag into the boxes; Apply stores it</source>
        <translation>Trägt ein, was zu den gemessenen Sätzen und zum Verzug des Bootes passt; Anwenden speichert</translation>
    </message>
    <message>
        <source>All methods on the wind of the last half hour, steering a boat with the lag beside</source>
        <translation>Alle Verfahren am Wind der letzten halben Stunde, mit einem Boot von nebenstehendem Verzug</translation>
    </message>
    <message>
        <source>Lowest Bearing</source>
        <translation>Kleinster Kurs</translation>
    </message>
    <message>
        <source>Highest Bearing</source>
        <translation>Größter Kurs</translation>
    </message>
    <message>
        <source>By what the wind is held, from the next Track on</source>
        <translation>Wonach der Wind gehalten wird, ab dem nächsten Halten</translation>
    </message>
    <message>
        <source>Sentence</source>
        <translation>Satz</translation>
    </message>
    <message>
        <source>One correction per wind sentence: the bandwidth depends on how many come a second</source>
        <translation>Eine Korrektur je Windsatz: die Bandbreite hängt davon ab, wie viele je Sekunde kommen</translation>
    </message>
    <message>
        <source>The same corrections by the clock: the bandwidth holds at every sentence rate</source>
        <translation>Dieselben Korrekturen nach der Uhr: die Bandbreite gilt bei jeder Satzrate</translation>
    </message>
    <message>
        <source>Steers by the direction of the true wind over the earth: needs no tuning</source>
        <translation>Steuert nach der Richtung des wahren Windes über der Erde: braucht keine Abstimmung</translation>
    </message>
    <message>
        <source>Tracking Options</source>
        <translation>Einstellungen zum Halten</translation>
    </message>
    <message>
        <source>Alarm:</source>
        <translation>Alarm:</translation>
    </message>
    <message>
        <source>&amp;Bandwidth:</source>
        <translation>Bandbre&amp;ite:</translation>
    </message>
    <message>
        <source>Max Steer To without &amp;Prompt:</source>
        <translation>Größte Kursänderung ohne &amp;Frage:</translation>
    </message>
    <message>
        <source>Da&amp;mping:</source>
        <translation>Däm&amp;pfung:</translation>
    </message>
    <message>
        <source>Met&amp;hod:</source>
        <translation>Verf&amp;ahren:</translation>
    </message>
    <message>
        <source>Alarm A&amp;verage:</source>
        <translation>Alarmmi&amp;ttelung:</translation>
    </message>
    <message>
        <source>O&amp;ffset</source>
        <translation>&amp;Versatz</translation>
    </message>
    <message>
        <source>Tim&amp;e</source>
        <translation>&amp;Zeit</translation>
    </message>
    <message>
        <source>Boat lag</source>
        <translation>Verzug</translation>
    </message>
    <message>
        <source>Tracking Responce</source>
        <translation>Antwort des Regelkreises</translation>
    </message>
    <message>
        <source>The method Direction has no damping</source>
        <translation>Das Verfahren Richtung hat keine Dämpfung</translation>
    </message>
    <message>
        <source>%1 (none measured)</source>
        <translation>%1 (nichts gemessen)</translation>
    </message>
    <message>
        <source>Boat lag must be a number from 0 on.</source>
        <translation>Der Verzug muss eine Zahl ab 0 sein.</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Kleinstwert</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Größtwert</translation>
    </message>
    <message>
        <source>%1 is not a number</source>
        <translation>%1 ist keine Zahl</translation>
    </message>
    <message>
        <source>Minimum must be within 1000000 degrees</source>
        <translation>Der Kleinstwert muss innerhalb von 1000000 Grad liegen</translation>
    </message>
    <message>
        <source>Maximum must be within 1000000 degrees</source>
        <translation>Der Größtwert muss innerhalb von 1000000 Grad liegen</translation>
    </message>
    <message>
        <source>Minimum and maximum must differ</source>
        <translation>Kleinst- und Größtwert müssen verschieden sein</translation>
    </message>
    <message>
        <source>time=%1, bearing=%2</source>
        <translation>Zeit=%1, Kurs=%2</translation>
    </message>
    <message>
        <source>time=%1, error=%2</source>
        <translation>Zeit=%1, Abweichung=%2</translation>
    </message>
    <message>
        <source>This run: %1, %2, %3</source>
        <translation>Dieser Lauf: %1, %2, %3</translation>
    </message>
    <message>
        <source>Time is too short</source>
        <translation>Die Zeit ist zu kurz</translation>
    </message>
    <message>
        <source>Minimum and maximum are too close</source>
        <translation>Kleinst- und Größtwert sind zu nah beieinander</translation>
    </message>
    <message>
        <source>Bandwidth must not be 0</source>
        <translation>Die Bandbreite darf nicht 0 sein</translation>
    </message>
    <message>
        <source>Bandwidth must be above 0</source>
        <translation>Die Bandbreite muss über 0 sein</translation>
    </message>
    <message>
        <source>Bandwidth is too small</source>
        <translation>Die Bandbreite ist zu klein</translation>
    </message>
    <message>
        <source>Rate must be from 0.1 to 100 wind sentences a second</source>
        <translation>Die Rate muss von 0.1 bis 100 Windsätze je Sekunde sein</translation>
    </message>
    <message>
        <source>Offset must be within 1000000 degrees</source>
        <translation>Der Versatz muss innerhalb von 1000000 Grad liegen</translation>
    </message>
    <message>
        <source>Noise must be within 1000000 degrees</source>
        <translation>Das Rauschen muss innerhalb von 1000000 Grad liegen</translation>
    </message>
    <message>
        <source>Time must be above 0</source>
        <translation>Die Zeit muss über 0 sein</translation>
    </message>
    <message>
        <source>Time must be at most %1 seconds</source>
        <translation>Die Zeit darf höchstens %1 Sekunden sein</translation>
    </message>
    <message>
        <source>overshoot %1 deg</source>
        <translation>Überschwingen %1 Grad</translation>
    </message>
    <message>
        <source>settling time %1 s</source>
        <translation>Einschwingzeit %1 s</translation>
    </message>
    <message>
        <source>not settled</source>
        <translation>nicht eingeschwungen</translation>
    </message>
    <message>
        <source>steady state %1 deg rms</source>
        <translation>danach %1 Grad eff.</translation>
    </message>
    <message>
        <source>Bandwidth: the response grows beyond all numbers</source>
        <translation>Bandbreite: die Antwort wächst über alle Zahlen</translation>
    </message>
    <message>
        <source>Bandwidth or damping allow no tracking</source>
        <translation>Bandbreite oder Dämpfung erlauben kein Halten</translation>
    </message>
    <message>
        <source>%1: mean %2, rms %3 deg, rudder %4 deg/min</source>
        <translation>%1: Mittel %2, eff. %3 Grad, Ruder %4 Grad/min</translation>
    </message>
    <message>
        <source>Boat lag must be from 0 to 60 seconds</source>
        <translation>Der Verzug muss von 0 bis 60 Sekunden sein</translation>
    </message>
    <message>
        <source>Two minutes of wind and heading are needed; %1 seconds are recorded</source>
        <translation>Zwei Minuten Wind und Kurs werden gebraucht; %1 Sekunden sind aufgezeichnet</translation>
    </message>
    <message>
        <source>A&amp;ct: what is lost or wrong does not steer</source>
        <translation>Handeln: was verloren oder falsch &amp;ist, steuert nicht</translation>
    </message>
    <message>
        <source>Act on what is lost instead of only telling it</source>
        <translation>Auf Verlorenes handeln, statt es nur zu melden</translation>
    </message>
    <message>
        <source>&amp;Keep Sending: the last bearing for 30 s when the wind is lost</source>
        <translation>Weiter senden: den let&amp;zten Kurs 30 s lang, wenn der Wind verloren ist</translation>
    </message>
    <message>
        <source>With Act: the last bearing is sent on for 30 seconds</source>
        <translation>Mit Handeln: der letzte Kurs wird 30 Sekunden weiter gesendet</translation>
    </message>
    <message>
        <source>Heading &amp;Up: 20 degrees up, once, when a wind from astern is lost</source>
        <translation>Anl&amp;uven: einmal 20 Grad, wenn ein Wind von achtern verloren ist</translation>
    </message>
    <message>
        <source>With Act: the boat is brought 20 degrees up, away from the gybe</source>
        <translation>Mit Handeln: das Boot wird 20 Grad angeluvt, weg von der Halse</translation>
    </message>
    <message>
        <source>&amp;Boat speed is on the wire</source>
        <translation>&amp;Fahrt ist auf der Leitung</translation>
    </message>
    <message>
        <source>Untick it on a boat without a log: it is not missed then</source>
        <translation>Auf einem Boot ohne Logge wegnehmen: sie wird dann nicht vermisst</translation>
    </message>
    <message>
        <source>&amp;Heading is on the wire</source>
        <translation>&amp;Kurs ist auf der Leitung</translation>
    </message>
    <message>
        <source>Untick it on a boat without a compass on the wire: it is not missed then</source>
        <translation>Auf einem Boot ohne Kompass an der Leitung wegnehmen: er wird dann nicht vermisst</translation>
    </message>
    <message>
        <source>Blank &amp;Lost: a lost figure becomes &quot;--&quot;</source>
        <translation>&amp;Leeren: eine verlorene Zahl wird &quot;--&quot;</translation>
    </message>
    <message>
        <source>A lost figure becomes two dashes; otherwise it stays, in half tone</source>
        <translation>Eine verlorene Zahl wird zu zwei Strichen; sonst bleibt sie, halb so kräftig</translation>
    </message>
    <message>
        <source>Careful &amp;Entry: an emptied box restores, a large change is asked about</source>
        <translation>&amp;Vorsichtige Eingabe: ein geleertes Feld kehrt zurück, eine große Änderung wird gefragt</translation>
    </message>
    <message>
        <source>A box that was emptied restores; a bearing or angle far from the present one is asked about</source>
        <translation>Ein geleertes Feld kehrt zurück; nach einem Kurs oder Winkel weit vom jetzigen wird gefragt</translation>
    </message>
    <message>
        <source>Older values are stale (sec)</source>
        <translation>Ältere Werte sind veraltet (s)</translation>
    </message>
    <message>
        <source>Test Tone</source>
        <translation>Ton prüfen</translation>
    </message>
    <message>
        <source>The desktop&apos;s beep at each step, or tones by level until answered</source>
        <translation>Der Piepton des Desktops bei jedem Schritt, oder Töne nach Stufe, bis jemand antwortet</translation>
    </message>
    <message>
        <source>Beep</source>
        <translation>Piepton</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Lets a red alarm be heard once, as chosen here</source>
        <translation>Lässt einen roten Alarm einmal hören, wie hier gewählt</translation>
    </message>
    <message>
        <source>A program that is started with the alarm&apos;s text each time that one is heard; empty for none</source>
        <translation>Ein Programm, das mit dem Text des Alarms gestartet wird, sooft einer zu hören ist; leer für keines</translation>
    </message>
    <message>
        <source>What Follows</source>
        <translation>Was folgt</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Sou&amp;nd:</source>
        <translation>&amp;Ton:</translation>
    </message>
    <message>
        <source>Alarm Co&amp;mmand:</source>
        <translation>Alar&amp;mbefehl:</translation>
    </message>
    <message>
        <source>Values and Entry</source>
        <translation>Werte und Eingabe</translation>
    </message>
    <message>
        <source>A&amp;pparent Wind:</source>
        <translation>&amp;Scheinbarer Wind:</translation>
    </message>
    <message>
        <source>T&amp;rue Wind:</source>
        <translation>Wah&amp;rer Wind:</translation>
    </message>
    <message>
        <source>Boat Speed:</source>
        <translation>Fahrt:</translation>
    </message>
    <message>
        <source>Heading:</source>
        <translation>Kurs:</translation>
    </message>
    <message>
        <source>Wa&amp;ypoint:</source>
        <translation>We&amp;gpunkt:</translation>
    </message>
    <message>
        <source>Stale after (sec):</source>
        <translation>Veraltet nach (s):</translation>
    </message>
    <message>
        <source>Veerwatch - Options</source>
        <translation>Veerwatch - Optionen</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>&amp;Eingang</translation>
    </message>
    <message>
        <source>&amp;Data</source>
        <translation>&amp;Daten</translation>
    </message>
    <message>
        <source>&amp;Output</source>
        <translation>Ausga&amp;ng</translation>
    </message>
    <message>
        <source>&amp;Tracking</source>
        <translation>&amp;Halten</translation>
    </message>
    <message>
        <source>&amp;Simulate</source>
        <translation>Simulati&amp;on</translation>
    </message>
    <message>
        <source>Dia&amp;gram</source>
        <translation>&amp;Bild</translation>
    </message>
    <message>
        <source>&amp;Watch</source>
        <translation>Wa&amp;che</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>An&amp;wenden</translation>
    </message>
    <message>
        <source>Port %1, input and output:</source>
        <translation>Anschluss %1, Ein- und Ausgang:</translation>
    </message>
    <message>
        <source>Port %1, input:</source>
        <translation>Anschluss %1, Eingang:</translation>
    </message>
    <message>
        <source>Port %1, output:</source>
        <translation>Anschluss %1, Ausgang:</translation>
    </message>
    <message>
        <source>Magnetic APB</source>
        <translation>APB missweisend</translation>
    </message>
    <message>
        <source>True APB</source>
        <translation>APB rechtweisend</translation>
    </message>
    <message>
        <source>APB and RMB</source>
        <translation>APB und RMB</translation>
    </message>
    <message>
        <source>Heading command HSC</source>
        <translation>Kursbefehl HSC</translation>
    </message>
    <message>
        <source>Wind to a vane-mode pilot</source>
        <translation>Wind an einen Piloten mit Windfahne</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Eigenes</translation>
    </message>
    <message>
        <source>Apparent Wind %1 deg %2 kn</source>
        <translation>Scheinbarer Wind %1 Grad %2 kn</translation>
    </message>
    <message>
        <source>True Wind %1 deg %2 kn</source>
        <translation>Wahrer Wind %1 Grad %2 kn</translation>
    </message>
    <message>
        <source>Boat Speed %1 kn</source>
        <translation>Fahrt %1 kn</translation>
    </message>
    <message>
        <source>Heading %1 deg</source>
        <translation>Kurs %1 Grad</translation>
    </message>
    <message>
        <source>%1: apparent %2 held %3, error %4, %5 s, correction %6</source>
        <translation>%1: scheinbar %2, gehalten %3, Abweichung %4, %5 s, Korrektur %6</translation>
    </message>
    <message>
        <source>%1: true %2 held %3, error %4, %5 s, correction %6</source>
        <translation>%1: wahr %2, gehalten %3, Abweichung %4, %5 s, Korrektur %6</translation>
    </message>
    <message>
        <source>, limited by Max Rate</source>
        <translation>, begrenzt durch Max Rate</translation>
    </message>
    <message>
        <source>, limited by Max Ahead</source>
        <translation>, begrenzt durch Max Ahead</translation>
    </message>
    <message>
        <source>, limited by the angle guard</source>
        <translation>, begrenzt durch die Winkelwache</translation>
    </message>
    <message>
        <source>nothing was sent yet</source>
        <translation>noch nichts gesendet</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 durch %2</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>Hand</translation>
    </message>
    <message>
        <source>it cannot be written</source>
        <translation>sie lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>it is there already</source>
        <translation>es gibt sie schon</translation>
    </message>
    <message>
        <source>no file</source>
        <translation>keine Datei</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>keine solche Datei</translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: nicht zu lesen</translation>
    </message>
    <message>
        <source>%1: the log is at its end</source>
        <translation>%1: die Aufzeichnung ist zu Ende</translation>
    </message>
    <message>
        <source>Decode Error</source>
        <translation>Fehler beim Lesen</translation>
    </message>
    <message>
        <source>metres per second</source>
        <translation>Meter je Sekunde</translation>
    </message>
    <message>
        <source>kilometres per hour</source>
        <translation>Kilometer je Stunde</translation>
    </message>
    <message>
        <source>miles per hour</source>
        <translation>Meilen je Stunde</translation>
    </message>
    <message>
        <source>another unit</source>
        <translation>eine andere Einheit</translation>
    </message>
    <message>
        <source>%1: nothing from %2; %3 is there</source>
        <translation>%1: nichts von %2; %3 ist da</translation>
    </message>
    <message>
        <source>%1: nothing from %2; %3 are there</source>
        <translation>%1: nichts von %2; %3 sind da</translation>
    </message>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source>%1 seen %2 times, not used</source>
        <translation>%1 kam %2-mal, nicht benutzt</translation>
    </message>
    <message>
        <source>Wind: MWV brings %1; only knots are read</source>
        <translation>Wind: MWV bringt %1; nur Knoten werden gelesen</translation>
    </message>
    <message>
        <source>As /dev/ttyUSB0?baud=38400, tcp://host:10110, udp://:10110, tcp-listen://:10110 or file:///home/me/log.nmea. Several, with a comma and a blank between them, are one port.</source>
        <translation>Etwa /dev/ttyUSB0?baud=38400, tcp://host:10110, udp://:10110, tcp-listen://:10110 oder file:///home/me/log.nmea. Mehrere, mit Komma und Leerzeichen dazwischen, sind ein Anschluss.</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>kann %1 nicht schreiben: %2</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is a pipe</source>
        <translation>es ist eine Pipe</translation>
    </message>
    <message>
        <source>it is a socket</source>
        <translation>es ist ein Socket</translation>
    </message>
    <message>
        <source>it is a device</source>
        <translation>es ist ein Gerät</translation>
    </message>
    <message>
        <source>it is no plain file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>%1 is no %2</source>
        <translation>%1 ist keine %2</translation>
    </message>
    <message>
        <source>%1 is no baud rate (4800, 9600, 19200, 38400, 57600, 115200 or auto)</source>
        <translation>%1 ist keine Baudrate (4800, 9600, 19200, 38400, 57600, 115200 oder auto)</translation>
    </message>
    <message>
        <source>number of seconds (1 to 86400)</source>
        <translation>Zahl von Sekunden (1 bis 86400)</translation>
    </message>
    <message>
        <source>speed (0.01 to 1000)</source>
        <translation>Geschwindigkeit (0.01 bis 1000)</translation>
    </message>
    <message>
        <source>interval in seconds (0.001 to 3600)</source>
        <translation>Zeitspanne in Sekunden (0.001 bis 3600)</translation>
    </message>
    <message>
        <source>%1 is no option of it</source>
        <translation>%1 ist keine Angabe dazu</translation>
    </message>
    <message>
        <source>%1 is no port (1 to 65535)</source>
        <translation>%1 ist kein Port (1 bis 65535)</translation>
    </message>
    <message>
        <source>%1 has no port (host:port)</source>
        <translation>%1 hat keinen Port (host:port)</translation>
    </message>
    <message>
        <source>%1 is no host; an address with colons stands in [ ]</source>
        <translation>%1 ist kein Rechner; eine Adresse mit Doppelpunkten steht in [ ]</translation>
    </message>
    <message>
        <source>%1 is no host</source>
        <translation>%1 ist kein Rechner</translation>
    </message>
    <message>
        <source>%1 is none of tcp://, tcp-listen://, udp:// and file://</source>
        <translation>%1 ist keines von tcp://, tcp-listen://, udp:// und file://</translation>
    </message>
    <message>
        <source>it names no device</source>
        <translation>es nennt kein Gerät</translation>
    </message>
    <message>
        <source>%1 is no whole path (file:///path)</source>
        <translation>%1 ist kein ganzer Pfad (file:///path)</translation>
    </message>
    <message>
        <source>%1 has no host (host:port)</source>
        <translation>%1 hat keinen Rechner (host:port)</translation>
    </message>
    <message>
        <source>nothing stands between two commas</source>
        <translation>zwischen zwei Kommas steht nichts</translation>
    </message>
    <message>
        <source>in use by this program&apos;s other port</source>
        <translation>vom anderen Anschluss dieses Programms belegt</translation>
    </message>
    <message>
        <source>in use by another program, %1</source>
        <translation>von einem anderen Programm belegt, %1</translation>
    </message>
    <message>
        <source>in use by another program</source>
        <translation>von einem anderen Programm belegt</translation>
    </message>
    <message>
        <source>no permission, add yourself to the group %1</source>
        <translation>keine Erlaubnis, nehmen Sie sich in die Gruppe %1 auf</translation>
    </message>
    <message>
        <source>no permission, add yourself to the group dialout</source>
        <translation>keine Erlaubnis, nehmen Sie sich in die Gruppe dialout auf</translation>
    </message>
    <message>
        <source>no such device</source>
        <translation>kein solches Gerät</translation>
    </message>
    <message>
        <source>not a serial device</source>
        <translation>kein serielles Gerät</translation>
    </message>
    <message>
        <source>Break Signal Received</source>
        <translation>Break-Signal empfangen</translation>
    </message>
    <message>
        <source>Framing Error</source>
        <translation>Rahmenfehler</translation>
    </message>
    <message>
        <source>Port Overrun</source>
        <translation>Überlauf am Anschluss</translation>
    </message>
    <message>
        <source>Rx Overflow</source>
        <translation>Überlauf beim Empfang</translation>
    </message>
    <message>
        <source>Parity Error</source>
        <translation>Paritätsfehler</translation>
    </message>
    <message>
        <source>Event %1</source>
        <translation>Ereignis %1</translation>
    </message>
    <message>
        <source>%1: searching the rate, now %2 baud</source>
        <translation>%1: sucht die Rate, jetzt %2 Baud</translation>
    </message>
    <message>
        <source>%1: found %2 baud</source>
        <translation>%1: %2 Baud gefunden</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is no address of this computer</source>
        <translation>%1: &quot;%2&quot; ist keine Adresse dieses Rechners</translation>
    </message>
    <message>
        <source>connected, but silent</source>
        <translation>verbunden, aber stumm</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>verbindet</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>keine Antwort</translation>
    </message>
    <message>
        <source>%1: a broadcast address needs ?broadcast</source>
        <translation>%1: eine Rundsendeadresse braucht ?broadcast</translation>
    </message>
    <message>
        <source>looking the host up</source>
        <translation>sucht den Rechner</translation>
    </message>
    <message>
        <source>a broadcast address needs ?broadcast</source>
        <translation>eine Rundsendeadresse braucht ?broadcast</translation>
    </message>
    <message>
        <source>&lt;&lt; Tack</source>
        <translation>&lt;&lt; Wende</translation>
    </message>
    <message>
        <source>Tack &gt;&gt;</source>
        <translation>Wende &gt;&gt;</translation>
    </message>
    <message>
        <source>Jibe &gt;&gt;</source>
        <translation>Halse &gt;&gt;</translation>
    </message>
    <message>
        <source>&lt;&lt; Jibe</source>
        <translation>&lt;&lt; Halse</translation>
    </message>
    <message>
        <source>Steer 0</source>
        <translation>Steuern 0</translation>
    </message>
    <message>
        <source>Steer +%1 &gt;</source>
        <translation>Steuern +%1 &gt;</translation>
    </message>
    <message>
        <source>&lt; Steer %1</source>
        <translation>&lt; Steuern %1</translation>
    </message>
    <message>
        <source>Steer -100 &gt;</source>
        <translation>Steuern -100 &gt;</translation>
    </message>
    <message>
        <source>%1 (motor %2)</source>
        <translation>%1 (Motor %2)</translation>
    </message>
    <message>
        <source>Stb (M)</source>
        <translation>Stb (M)</translation>
    </message>
    <message>
        <source>Prt (M)</source>
        <translation>Bb (M)</translation>
    </message>
    <message>
        <source>Target (M)</source>
        <translation>Ziel (M)</translation>
    </message>
    <message>
        <source>Target (Kts)</source>
        <translation>Ziel (kn)</translation>
    </message>
    <message>
        <source>Wpt (M)</source>
        <translation>Wpt (M)</translation>
    </message>
    <message>
        <source>Wpt (Kts)</source>
        <translation>Wpt (kn)</translation>
    </message>
    <message>
        <source>Wpt (Rng)</source>
        <translation>Wpt (sm)</translation>
    </message>
    <message>
        <source>Wpt (h:m)</source>
        <translation>Wpt (h:m)</translation>
    </message>
    <message>
        <source>Best Wind Angle Port Tack</source>
        <translation>Bester Windwinkel Backbordbug</translation>
    </message>
    <message>
        <source>Target Bearing (Heads Up)</source>
        <translation>Zielpeilung (vom Bug)</translation>
    </message>
    <message>
        <source>Target Starboard Tack (Heads Up)</source>
        <translation>Ziel Steuerbordbug (vom Bug)</translation>
    </message>
    <message>
        <source>Target Port Tack (Heads Up)</source>
        <translation>Ziel Backbordbug (vom Bug)</translation>
    </message>
    <message>
        <source>Best Wind Angle Starboard Tack</source>
        <translation>Bester Windwinkel Steuerbordbug</translation>
    </message>
    <message>
        <source>Current Wind Angle and Speed</source>
        <translation>Jetziger Windwinkel und Stärke</translation>
    </message>
    <message>
        <source>Tack Ledger</source>
        <translation>Schlagliste</translation>
    </message>
    <message>
        <source>You can drag this ledger to a different location</source>
        <translation>Diese Liste lässt sich an eine andere Stelle ziehen</translation>
    </message>
    <message>
        <source>Steer to the leg to sail now</source>
        <translation>Auf den jetzigen Schlag steuern</translation>
    </message>
    <message>
        <source>Go to the other leg</source>
        <translation>Auf den anderen Schlag gehen</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>no table</source>
        <translation>keine Tabelle</translation>
    </message>
    <message>
        <source>no rows behind the wind speeds</source>
        <translation>keine Zeilen nach den Windstärken</translation>
    </message>
    <message>
        <source>%1 where &quot;TWA&quot; should stand</source>
        <translation>%1, wo &quot;TWA&quot; stehen sollte</translation>
    </message>
    <message>
        <source>no wind speeds</source>
        <translation>keine Windstärken</translation>
    </message>
    <message>
        <source>more than %1 wind speeds</source>
        <translation>mehr als %1 Windstärken</translation>
    </message>
    <message>
        <source>%1 is no wind speed</source>
        <translation>%1 ist keine Windstärke</translation>
    </message>
    <message>
        <source>the wind speed %1 is there already</source>
        <translation>die Windstärke %1 gibt es schon</translation>
    </message>
    <message>
        <source>more cells than the first line has</source>
        <translation>mehr Felder als in der ersten Zeile</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>mehr als %1 Zeilen</translation>
    </message>
    <message>
        <source>%1 is no angle from 0 to 180</source>
        <translation>%1 ist kein Winkel von 0 bis 180</translation>
    </message>
    <message>
        <source>the angle %1 is there already, in line %2</source>
        <translation>den Winkel %1 gibt es schon, in Zeile %2</translation>
    </message>
    <message>
        <source>%1 is no boat speed</source>
        <translation>%1 ist keine Fahrt</translation>
    </message>
    <message>
        <source>a row without any boat speed</source>
        <translation>eine Zeile ohne jede Fahrt</translation>
    </message>
    <message>
        <source>more than 200 angles</source>
        <translation>mehr als 200 Winkel</translation>
    </message>
    <message>
        <source>more than 50 wind speeds</source>
        <translation>mehr als 50 Windstärken</translation>
    </message>
    <message>
        <source>Polar File Error: %1</source>
        <translation>Fehler in der Polare: %1</translation>
    </message>
    <message>
        <source>No TWA Data</source>
        <translation>keine Daten zu TWA</translation>
    </message>
    <message>
        <source>Number of Columns Mismatch</source>
        <translation>die Zahl der Spalten stimmt nicht</translation>
    </message>
    <message>
        <source>Show Apparent Wind</source>
        <translation>Scheinbaren Wind zeigen</translation>
    </message>
    <message>
        <source>Show True Wind</source>
        <translation>Wahren Wind zeigen</translation>
    </message>
    <message>
        <source>Show Wind Speed Label</source>
        <translation>Windstärke anschreiben</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source> Kts</source>
        <translation> kn</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>Anderer...</translation>
    </message>
    <message>
        <source>Polars</source>
        <translation>Polaren</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Öffnen...</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>Set Color...</source>
        <translation>Farbe wählen...</translation>
    </message>
    <message>
        <source>Set Scaling...</source>
        <translation>Faktor setzen...</translation>
    </message>
    <message>
        <source>Smooth Between Winds</source>
        <translation>Zwischen Winden glätten</translation>
    </message>
    <message>
        <source>Show Reference...</source>
        <translation>Vergleich zeigen...</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Mittelung</translation>
    </message>
    <message>
        <source>  None</source>
        <translation>  Keine</translation>
    </message>
    <message>
        <source>  2 Sec</source>
        <translation>  2 s</translation>
    </message>
    <message>
        <source>  4 Sec</source>
        <translation>  4 s</translation>
    </message>
    <message>
        <source>  8 Sec</source>
        <translation>  8 s</translation>
    </message>
    <message>
        <source>16 Sec</source>
        <translation>16 s</translation>
    </message>
    <message>
        <source>32 Sec</source>
        <translation>32 s</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Kurs</translation>
    </message>
    <message>
        <source>Use Target Bearing</source>
        <translation>Zielpeilung nehmen</translation>
    </message>
    <message>
        <source>Use Waypoint Brg</source>
        <translation>Peilung zum Wegpunkt nehmen</translation>
    </message>
    <message>
        <source>Use Waypoint Rng, Brg</source>
        <translation>Entfernung und Peilung zum Wegpunkt nehmen</translation>
    </message>
    <message>
        <source>Set Target Bearing...</source>
        <translation>Zielpeilung setzen...</translation>
    </message>
    <message>
        <source>Scale Projected Times and Speeds by Current Boat Speed</source>
        <translation>Zeiten und Fahrten nach der jetzigen Fahrt umrechnen</translation>
    </message>
    <message>
        <source>Show Course Ledger</source>
        <translation>Schlagliste zeigen</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Hide Ledger</source>
        <translation>Liste ausblenden</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Boot</translation>
    </message>
    <message>
        <source>Sail Only</source>
        <translation>Nur Segel</translation>
    </message>
    <message>
        <source>Motor and Sail</source>
        <translation>Motor und Segel</translation>
    </message>
    <message>
        <source>Set Motor Only Speed...</source>
        <translation>Fahrt unter Motor setzen...</translation>
    </message>
    <message>
        <source>No polar</source>
        <translation>Keine Polare</translation>
    </message>
    <message>
        <source>%1 (incomplete)</source>
        <translation>%1 (unvollständig)</translation>
    </message>
    <message>
        <source>Set Scaling (%1)...</source>
        <translation>Faktor setzen (%1)...</translation>
    </message>
    <message>
        <source>Set Target Bearing (%1 M)...</source>
        <translation>Zielpeilung setzen (%1 M)...</translation>
    </message>
    <message>
        <source>Set Motor Only Speed to Target/Waypoint (%1 Kts)...</source>
        <translation>Fahrt unter Motor zum Ziel oder Wegpunkt setzen (%1 kn)...</translation>
    </message>
    <message>
        <source>Motor (Kts)</source>
        <translation>Motor (kn)</translation>
    </message>
    <message>
        <source>Polar (Kts)</source>
        <translation>Polare (kn)</translation>
    </message>
    <message>
        <source>Boat (Kts)</source>
        <translation>Boot (kn)</translation>
    </message>
    <message>
        <source>AWS (Kts)</source>
        <translation>AWS (kn)</translation>
    </message>
    <message>
        <source>TWS (Kts)</source>
        <translation>TWS (kn)</translation>
    </message>
    <message>
        <source>AWA (R)</source>
        <translation>AWA (R)</translation>
    </message>
    <message>
        <source>TWA (R)</source>
        <translation>TWA (R)</translation>
    </message>
    <message>
        <source>Reference (Kts)</source>
        <translation>Vergleich (kn)</translation>
    </message>
    <message>
        <source>Veerwatch - Polar</source>
        <translation>Veerwatch - Polare</translation>
    </message>
    <message>
        <source>AutoPilot - Polar Plot - Speed Factor</source>
        <translation>Autopilot - Polare - Faktor der Fahrt</translation>
    </message>
    <message>
        <source>AutoPilot - Save As</source>
        <translation>Autopilot - Speichern unter</translation>
    </message>
    <message>
        <source>Polar Plot - Speed Range</source>
        <translation>Polare - Bereich der Fahrt</translation>
    </message>
    <message>
        <source>Enter the maximun speed (Kts) for the polar plot display.</source>
        <translation>Die größte Fahrt (kn) der Polare eingeben.</translation>
    </message>
    <message>
        <source>Polar Plot - Target Bearing</source>
        <translation>Polare - Zielpeilung</translation>
    </message>
    <message>
        <source>Enter the Target Bearing.</source>
        <translation>Die Zielpeilung eingeben.</translation>
    </message>
    <message>
        <source>Polar Plot - Motor Speed</source>
        <translation>Polare - Fahrt unter Motor</translation>
    </message>
    <message>
        <source>Enter the Motor Only Speed to Traget/Waypoint.</source>
        <translation>Die Fahrt unter Motor zum Ziel oder Wegpunkt eingeben.</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>War %1 gemeint?</translation>
    </message>
    <message>
        <source>Enter the scaling factor, used to scale the polar plot speed data.  The scaling factor is normally set to 1, but can be set to other values to compensate for bad weather or heavy displacement.</source>
        <translation>Den Faktor eingeben, mit dem die Fahrten der Polare malgenommen werden.  Er ist gewöhnlich 1, kann aber für schlechtes Wetter oder ein schweres Boot anders gesetzt werden.</translation>
    </message>
    <message>
        <source>It is a polar in another spelling.</source>
        <translation>Es ist eine Polare in anderer Schreibweise.</translation>
    </message>
    <message>
        <source>Do you want to convert it into a new file and open that?</source>
        <translation>Soll sie in eine neue Datei umgewandelt und die geöffnet werden?</translation>
    </message>
    <message>
        <source>%1file already exists.
Do you want to replace it?</source>
        <translation>Die Datei %1 gibt es schon.
Soll sie ersetzt werden?</translation>
    </message>
    <message>
        <source>The file holds the scaled speeds. With the scaling factor of %1 the next start scales them again.
Set the factor to 1?</source>
        <translation>Die Datei enthält die umgerechneten Fahrten. Mit dem Faktor %1 rechnet der nächste Start sie noch einmal um.
Den Faktor auf 1 setzen?</translation>
    </message>
    <message>
        <source>Polar plot</source>
        <translation>Polardiagramm</translation>
    </message>
    <message>
        <source>Steady</source>
        <translation>Stetig</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Glatt</translation>
    </message>
    <message>
        <source>Slight</source>
        <translation>Leicht</translation>
    </message>
    <message>
        <source>Beam</source>
        <translation>Von der Seite</translation>
    </message>
    <message>
        <source>Following</source>
        <translation>Von achtern</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>of %1 wind speeds %2 are kept</source>
        <translation>von %1 Windstärken bleiben %2</translation>
    </message>
    <message>
        <source>&amp;Recommended...</source>
        <translation>Em&amp;pfohlen...</translation>
    </message>
    <message>
        <source>Wind Offs&amp;et:</source>
        <translation>Windwinkel p&amp;lus:</translation>
    </message>
    <message>
        <source>Heading Offset:</source>
        <translation>Kompass plus:</translation>
    </message>
    <message>
        <source>Boat S&amp;peed Factor:</source>
        <translation>Fahr&amp;t mal:</translation>
    </message>
    <message>
        <source>on</source>
        <translation>an</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>with each wind</source>
        <translation>mit jedem Wind</translation>
    </message>
    <message>
        <source>%1 a second</source>
        <translation>%1 je Sekunde</translation>
    </message>
    <message>
        <source>each sentence by itself</source>
        <translation>jeder Satz für sich</translation>
    </message>
    <message>
        <source>over %1 s</source>
        <translation>über %1 s</translation>
    </message>
    <message>
        <source>Tracking method</source>
        <translation>Verfahren beim Halten</translation>
    </message>
    <message>
        <source>It holds the wind most closely of the three and needs no tuning; sets the bandwidth to 60 s with it.</source>
        <translation>Es hält den Wind am genauesten von den dreien und braucht keine Abstimmung; setzt dazu die Bandbreite auf 60 s.</translation>
    </message>
    <message>
        <source>The watch acts</source>
        <translation>Die Wache handelt</translation>
    </message>
    <message>
        <source>What is stale, lost or wrong does not steer; off, it is only told.</source>
        <translation>Was veraltet, verloren oder falsch ist, steuert nicht; aus: es wird nur gemeldet.</translation>
    </message>
    <message>
        <source>Alarm sound</source>
        <translation>Ton des Alarms</translation>
    </message>
    <message>
        <source>A tone is heard until somebody answers; many computers have no beep.</source>
        <translation>Ein Ton ist zu hören, bis jemand antwortet; viele Rechner haben keinen Piepton.</translation>
    </message>
    <message>
        <source>Lost values blank</source>
        <translation>Verlorene Werte leeren</translation>
    </message>
    <message>
        <source>Nobody takes an old figure for one of now: it becomes &quot;--&quot;.</source>
        <translation>Niemand hält eine alte Zahl für eine jetzige: sie wird zu &quot;--&quot;.</translation>
    </message>
    <message>
        <source>Careful entry</source>
        <translation>Vorsichtige Eingabe</translation>
    </message>
    <message>
        <source>An emptied box does not steer to 0, and a large typed change is asked about.</source>
        <translation>Ein geleertes Feld steuert nicht auf 0, und nach einer großen eingetippten Änderung wird gefragt.</translation>
    </message>
    <message>
        <source>Status V</source>
        <translation>Status V</translation>
    </message>
    <message>
        <source>An instrument that calls its own value invalid is believed.</source>
        <translation>Einem Instrument, das seinen eigenen Wert ungültig nennt, wird geglaubt.</translation>
    </message>
    <message>
        <source>Checksum</source>
        <translation>Prüfsumme</translation>
    </message>
    <message>
        <source>A damaged sentence can look like a good one; leave it where an old instrument sends no checksum.</source>
        <translation>Ein beschädigter Satz kann wie ein guter aussehen; so lassen, wo ein altes Instrument keine Prüfsumme sendet.</translation>
    </message>
    <message>
        <source>Foreign lines</source>
        <translation>Fremde Zeilen</translation>
    </message>
    <message>
        <source>The lines of an AIS receiver are no errors.</source>
        <translation>Die Zeilen eines AIS-Empfängers sind keine Fehler.</translation>
    </message>
    <message>
        <source>Sentences to the pilot</source>
        <translation>Sätze an den Piloten</translation>
    </message>
    <message>
        <source>A pilot wants its bearing evenly, also between two winds, and no more than it can read.</source>
        <translation>Ein Pilot will seinen Kurs gleichmäßig, auch zwischen zwei Winden, und nicht mehr, als er lesen kann.</translation>
    </message>
    <message>
        <source>Polar between winds</source>
        <translation>Polare zwischen den Winden</translation>
    </message>
    <message>
        <source>smooth</source>
        <translation>glatt</translation>
    </message>
    <message>
        <source>The polar&apos;s speed does not jump from one wind of its table to the next.</source>
        <translation>Die Fahrt der Polare springt nicht von einem Wind der Tabelle zum nächsten.</translation>
    </message>
    <message>
        <source>in steps</source>
        <translation>in Stufen</translation>
    </message>
    <message>
        <source>Tracking alarm</source>
        <translation>Alarm beim Halten</translation>
    </message>
    <message>
        <source>over 5 s</source>
        <translation>über 5 s</translation>
    </message>
    <message>
        <source>The alarm averages the error, so that a single gust does not set it off.</source>
        <translation>Der Alarm mittelt die Abweichung, damit ihn nicht eine einzelne Bö auslöst.</translation>
    </message>
    <message>
        <source>%1: %2  (set already)</source>
        <translation>%1: %2  (schon gesetzt)</translation>
    </message>
    <message>
        <source>%1: %2  (now %3)</source>
        <translation>%1: %2  (jetzt %3)</translation>
    </message>
    <message>
        <source>Veerwatch - Recommended</source>
        <translation>Veerwatch - Empfohlen</translation>
    </message>
    <message>
        <source>What suits most boats. OK sets the ticked lines, nothing else.</source>
        <translation>Was den meisten Booten passt. OK setzt die angehakten Zeilen, sonst nichts.</translation>
    </message>
    <message>
        <source>&amp;Tick All</source>
        <translation>Alle an&amp;haken</translation>
    </message>
    <message>
        <source>On This &amp;Window</source>
        <translation>Zu diesem &amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>Veerwatch - Manual</source>
        <translation>Veerwatch - Handbuch</translation>
    </message>
    <message>
        <source>The page before (Alt+Left)</source>
        <translation>Die vorige Seite (Alt+Links)</translation>
    </message>
    <message>
        <source>The manual&apos;s first page</source>
        <translation>Die erste Seite des Handbuchs</translation>
    </message>
    <message>
        <source>Not in the manual: %1</source>
        <translation>Nicht im Handbuch: %1</translation>
    </message>
    <message>
        <source>Holds the leg, and turns when it is told to</source>
        <translation>Hält den Schlag und dreht, wenn es gesagt wird</translation>
    </message>
    <message>
        <source>Enter turns; Course &gt; Sail the Course in the polar window ends it</source>
        <translation>Eingabe dreht; Kurs &gt; Kurs segeln im Fenster der Polare beendet es</translation>
    </message>
    <message>
        <source>No course to sail: %1</source>
        <translation>Kein Kurs zu segeln: %1</translation>
    </message>
    <message>
        <source>Sail the Course ended: %1</source>
        <translation>Kurs segeln beendet: %1</translation>
    </message>
    <message>
        <source>Sail the Course</source>
        <translation>Kurs segeln</translation>
    </message>
    <message>
        <source>Track holds the leg to sail now, and the turn to the other one is prompted for</source>
        <translation>Der jetzige Schlag wird gehalten, und das Manöver auf den anderen wird angesagt</translation>
    </message>
    <message>
        <source>Tack By Itself</source>
        <translation>Von selbst wenden</translation>
    </message>
    <message>
        <source>A course that is sailed tacks at the line without Enter; it jibes only with it</source>
        <translation>Ein gesegelter Kurs wendet am Anlieger ohne Eingabe; er halst nur mit ihr</translation>
    </message>
    <message>
        <source>Turn to the other leg now (Enter)</source>
        <translation>Jetzt auf den anderen Schlag drehen (Eingabe)</translation>
    </message>
    <message>
        <source>Mark Reached</source>
        <translation>Marke erreicht</translation>
    </message>
    <message>
        <source>No Waypoint</source>
        <translation>Kein Wegpunkt</translation>
    </message>
    <message>
        <source>Another Waypoint</source>
        <translation>Ein anderer Wegpunkt</translation>
    </message>
    <message>
        <source>Not in Track</source>
        <translation>Wind wird nicht gehalten</translation>
    </message>
    <message>
        <source>the polar makes no way to the mark</source>
        <translation>die Polare führt nicht zur Marke</translation>
    </message>
    <message>
        <source>another angle was set</source>
        <translation>ein anderer Winkel wurde gesetzt</translation>
    </message>
    <message>
        <source>the other wind was chosen</source>
        <translation>der andere Wind wurde gewählt</translation>
    </message>
    <message>
        <source>Polar Angle was chosen</source>
        <translation>Polarwinkel wurde gewählt</translation>
    </message>
    <message>
        <source>the turn was ended</source>
        <translation>das Manöver wurde beendet</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Geradeaus</translation>
    </message>
    <message>
        <source>Port tack</source>
        <translation>Backbordbug</translation>
    </message>
    <message>
        <source>Starboard tack</source>
        <translation>Steuerbordbug</translation>
    </message>
    <message>
        <source>%1 nm</source>
        <translation>%1 sm</translation>
    </message>
    <message>
        <source>%1, %2 degrees, mark %3</source>
        <translation>%1, %2 Grad, Marke %3</translation>
    </message>
    <message>
        <source>, line in %1 min</source>
        <translation>, Anlieger in %1 min</translation>
    </message>
    <message>
        <source>Tack now (Enter)</source>
        <translation>Jetzt wenden (Eingabe)</translation>
    </message>
    <message>
        <source>Jibe now (Enter)</source>
        <translation>Jetzt halsen (Eingabe)</translation>
    </message>
    <message>
        <source>In %1 s: %2</source>
        <translation>In %1 s: %2</translation>
    </message>
    <message>
        <source>%1, %2 degrees past the line</source>
        <translation>%1, %2 Grad über den Anlieger</translation>
    </message>
    <message>
        <source>O&amp;n</source>
        <translation>&amp;An</translation>
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
        <source>Takes this line away; Help &gt; Connect Your Boat... stays</source>
        <translation>Nimmt diese Zeile weg; Hilfe &gt; Boot anschließen... bleibt</translation>
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
        <source>The settings could not be saved, so they stay in use:</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden und bleiben in Gebrauch:</translation>
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
        <source>Save Report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>Report (*.txt)</source>
        <translation>Bericht (*.txt)</translation>
    </message>
    <message>
        <source>&amp;Profiles</source>
        <translation>&amp;Profile</translation>
    </message>
    <message>
        <source>Save &amp;Report...</source>
        <translation>Be&amp;richt speichern...</translation>
    </message>
    <message>
        <source>&amp;Turn</source>
        <translation>&amp;Manöver</translation>
    </message>
    <message>
        <source>&amp;Tack</source>
        <translation>&amp;Wende</translation>
    </message>
    <message>
        <source>In Track: through the wind, and track the other tack</source>
        <translation>Beim Halten: durch den Wind, und den anderen Bug halten</translation>
    </message>
    <message>
        <source>&amp;Jibe</source>
        <translation>&amp;Halse</translation>
    </message>
    <message>
        <source>In Track: the stern through the wind, and track the other tack</source>
        <translation>Beim Halten: mit dem Heck durch den Wind, und den anderen Bug halten</translation>
    </message>
    <message>
        <source>&amp;Stop	Esc</source>
        <translation>H&amp;alt	Esc</translation>
    </message>
    <message>
        <source>End the turn here and leave the pilot where it is</source>
        <translation>Das Manöver hier beenden und den Piloten lassen, wo er ist</translation>
    </message>
    <message>
        <source>The device or endpoint of the autopilot; choose one or type it</source>
        <translation>Gerät oder Gegenstelle des Autopiloten; wählen oder eintippen</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>P&amp;ort:</translation>
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
        <translation>Faktor der Logge %1; zum Vergleich braucht es Logge und GPS</translation>
    </message>
    <message>
        <source>Log factor %1; the log shows %2, the GPS %3: alike in still water</source>
        <translation>Faktor der Logge %1; die Logge zeigt %2, das GPS %3: gleich in stehendem Wasser</translation>
    </message>
    <message>
        <source>Log factor %1; the log shows %2, the GPS %3: too slow, or too far apart, to compare</source>
        <translation>Faktor der Logge %1; die Logge zeigt %2, das GPS %3: zu langsam oder zu verschieden für einen Vergleich</translation>
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
        <source>One port for both ways: the instruments and the autopilot.</source>
        <translation>Ein Anschluss für beide Richtungen: die Instrumente und der Autopilot.</translation>
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
        <translation>Name oder Adresse eines Gateways, wie 192.168.1.1 oder gateway:2000; ein Gerät; eine Gegenstelle</translation>
    </message>
    <message>
        <source>Listens to that place as well</source>
        <translation>Lauscht auch an dieser Stelle</translation>
    </message>
    <message>
        <source>Looks at every port anew, for ten seconds</source>
        <translation>Hört jeden Anschluss neu ab, zehn Sekunden lang</translation>
    </message>
    <message>
        <source>Closes this window and sails a simulated boat; no port is opened</source>
        <translation>Schließt dieses Fenster und segelt ein simuliertes Boot; kein Anschluss wird geöffnet</translation>
    </message>
    <message>
        <source>Other &amp;place:</source>
        <translation>Andere S&amp;telle:</translation>
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
        <translation>Nichts ist angehakt: der Anschluss der Instrumente bleibt, wie er ist.</translation>
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
        <translation>Anschluss %1 (%2)</translation>
    </message>
    <message>
        <source>in use now: the autopilot&apos;s port</source>
        <translation>jetzt in Gebrauch: der Anschluss des Autopiloten</translation>
    </message>
    <message>
        <source>; the same comes on %1: tick one of them</source>
        <translation>; dasselbe kommt an %1: haken Sie eines davon an</translation>
    </message>
    <message>
        <source>The pilot is sent to now: press Setup (F6) first, then it can be tested.</source>
        <translation>Dem Piloten wird gerade gesendet: erst Abgleich (F6) drücken, dann lässt er sich prüfen.</translation>
    </message>
    <message>
        <source>Waiting for a heading and the wind...</source>
        <translation>Wartet auf Kurs und Wind...</translation>
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
        <translation>kein Kurs: keine Manöver, und nichts zeigt, ob der Pilot folgt</translation>
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
        <translation>W&amp;ahrer Wind</translation>
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
        <translation>&amp;Logge nach GPS</translation>
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
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 von %2: %3</translation>
    </message>
    <message>
        <source>Save and &amp;go to Setup</source>
        <translation>Speichern und zum Ab&amp;gleich</translation>
    </message>
    <message>
        <source>, next try in %1 s</source>
        <translation>, nächster Versuch in %1 s</translation>
    </message>
    <message>
        <source>Track, Course</source>
        <translation>Halten, Kurs</translation>
    </message>
    <message>
        <source>Track, Wind</source>
        <translation>Halten, Wind</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Manöver</translation>
    </message>
    <message>
        <source>No turn: the boat swings, wait until she is steady</source>
        <translation>Kein Manöver: das Boot schwingt, warten, bis es ruhig liegt</translation>
    </message>
    <message>
        <source>noise; press Off (F5), then Listen Again, to try every rate</source>
        <translation>Rauschen; mit F5 abschalten und noch einmal lauschen, um jede Rate zu versuchen</translation>
    </message>
    <message>
        <source>in use now: nothing comes; press Off (F5), then Listen Again, to try every rate</source>
        <translation>jetzt in Gebrauch: es kommt nichts; mit F5 abschalten und noch einmal lauschen, um jede Rate zu versuchen</translation>
    </message>
    <message>
        <source>Turns and held angles as &amp;marks</source>
        <translation>Manöver und gehaltene Winkel als &amp;Marken</translation>
    </message>
    <message>
        <source>Port %1 leads to %2</source>
        <translation>Anschluss %1 führt zu %2</translation>
    </message>
    <message>
        <source>Port %1, which leads to %2 (now port %3)</source>
        <translation>Anschluss %1, der zu %2 führt (jetzt Anschluss %3)</translation>
    </message>
    <message>
        <source>On the port of the instruments, both ways</source>
        <translation>Am Anschluss der Instrumente, beide Richtungen</translation>
    </message>
    <message>
        <source>Sentences that are read from now on: %1</source>
        <translation>Sätze, die von jetzt an gelesen werden: %1</translation>
    </message>
    <message>
        <source>Sentences that are no longer read: %1</source>
        <translation>Sätze, die nicht mehr gelesen werden: %1</translation>
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
        <source>sent</source>
        <translation>wird gesendet</translation>
    </message>
    <message>
        <source>not sent</source>
        <translation>wird nicht gesendet</translation>
    </message>
    <message>
        <source>%1 deg</source>
        <translation>%1 Grad</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>through the water</source>
        <translation>durchs Wasser</translation>
    </message>
    <message>
        <source>over ground</source>
        <translation>über Grund</translation>
    </message>
    <message>
        <source>from the compass</source>
        <translation>vom Kompass</translation>
    </message>
    <message>
        <source>the course over ground</source>
        <translation>der Kurs über Grund</translation>
    </message>
    <message>
        <source>from the wind instrument</source>
        <translation>vom Windmesser</translation>
    </message>
    <message>
        <source>read</source>
        <translation>werden gelesen</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>werden nicht gelesen</translation>
    </message>
    <message>
        <source>not averaged</source>
        <translation>nicht gemittelt</translation>
    </message>
    <message>
        <source>over %1 values</source>
        <translation>über %1 Werte</translation>
    </message>
    <message>
        <source>it is told so, then nothing is sent</source>
        <translation>es wird ihm gesagt, dann wird nichts gesendet</translation>
    </message>
    <message>
        <source>nothing is sent</source>
        <translation>es wird nichts gesendet</translation>
    </message>
    <message>
        <source>true</source>
        <translation>rechtweisend</translation>
    </message>
    <message>
        <source>magnetic</source>
        <translation>missweisend</translation>
    </message>
    <message>
        <source>Boat speed</source>
        <translation>Fahrt</translation>
    </message>
    <message>
        <source>Winds in m/s, km/h or mph</source>
        <translation>Winde in m/s, km/h oder mph</translation>
    </message>
    <message>
        <source>True wind</source>
        <translation>Wahrer Wind</translation>
    </message>
    <message>
        <source>Average of the true wind</source>
        <translation>Mittelung des wahren Windes</translation>
    </message>
    <message>
        <source>Wind angle offset</source>
        <translation>Windwinkel-Korrektur</translation>
    </message>
    <message>
        <source>Log factor</source>
        <translation>Faktor der Logge</translation>
    </message>
    <message>
        <source>Compass offset</source>
        <translation>Kompass-Korrektur</translation>
    </message>
    <message>
        <source>When no bearing is good</source>
        <translation>Wenn kein Kurs gilt</translation>
    </message>
    <message>
        <source>So long it is told</source>
        <translation>So lange wird es gesagt</translation>
    </message>
    <message>
        <source>Own sentences begin with</source>
        <translation>Eigenes Profil, die Sätze beginnen mit</translation>
    </message>
    <message>
        <source>Own bearings</source>
        <translation>Eigenes Profil, Kurse</translation>
    </message>
    <message>
        <source>Own fields of APB</source>
        <translation>Eigenes Profil, Felder von APB</translation>
    </message>
    <message>
        <source>Own decimals of the bearings</source>
        <translation>Eigenes Profil, Nachkommastellen der Kurse</translation>
    </message>
    <message>
        <source>Own name of the point</source>
        <translation>Eigenes Profil, Name des Punktes</translation>
    </message>
    <message>
        <source>Own sentence APB</source>
        <translation>Eigenes Profil, Satz APB</translation>
    </message>
    <message>
        <source>Own sentence RMB</source>
        <translation>Eigenes Profil, Satz RMB</translation>
    </message>
    <message>
        <source>Own sentence HSC</source>
        <translation>Eigenes Profil, Satz HSC</translation>
    </message>
    <message>
        <source>Own sentence XTE</source>
        <translation>Eigenes Profil, Satz XTE</translation>
    </message>
    <message>
        <source>Own sentence BWC</source>
        <translation>Eigenes Profil, Satz BWC</translation>
    </message>
    <message>
        <source>Simulated boat</source>
        <translation>Simuliertes Boot</translation>
    </message>
    <message>
        <source>A boat speed is on the wire, and missed when it fails</source>
        <translation>Eine Fahrt ist auf der Leitung und wird vermisst, wenn sie ausfällt</translation>
    </message>
    <message>
        <source>A heading is on the wire, and missed when it fails</source>
        <translation>Ein Kurs ist auf der Leitung und wird vermisst, wenn er ausfällt</translation>
    </message>
    <message>
        <source>%1: %2 (now %3)</source>
        <translation>%1: %2 (jetzt %3)</translation>
    </message>
    <message>
        <source>Setting &quot;%1&quot; of &quot;%2&quot;: %3 (now %4)</source>
        <translation>Einstellung &quot;%1&quot; aus &quot;%2&quot;: %3 (jetzt %4)</translation>
    </message>
    <message>
        <source>Pilot Lag</source>
        <translation>Pilotverzug</translation>
    </message>
    <message>
        <source>Gusts</source>
        <translation>Böen</translation>
    </message>
    <message>
        <source>Shifts</source>
        <translation>Dreher</translation>
    </message>
    <message>
        <source>Leeway</source>
        <translation>Abdrift</translation>
    </message>
    <message>
        <source>Seed</source>
        <translation>Zufall</translation>
    </message>
    <message>
        <source>Seconds in which her pilot takes up two thirds of a new bearing</source>
        <translation>Sekunden, in denen der Pilot des Bootes zwei Drittel eines neuen Kurses annimmt</translation>
    </message>
    <message>
        <source>How far the wind&apos;s speed wanders (%)</source>
        <translation>Wie weit die Windstärke wandert (%)</translation>
    </message>
    <message>
        <source>How far the wind&apos;s direction wanders (Deg)</source>
        <translation>Wie weit die Windrichtung wandert (Grad)</translation>
    </message>
    <message>
        <source>The most leeway, at 45 degrees off the true wind (Deg)</source>
        <translation>Die größte Abdrift, bei 45 Grad zum wahren Wind (Grad)</translation>
    </message>
    <message>
        <source>Same number, same gusts; 0: others at each start</source>
        <translation>Gleiche Zahl, gleiche Böen; 0: bei jedem Start andere</translation>
    </message>
    <message>
        <source>Pilot Lag (Sec)</source>
        <translation>Pilotverzug (s)</translation>
    </message>
    <message>
        <source>Leeway (Deg)</source>
        <translation>Abdrift (Grad)</translation>
    </message>
    <message>
        <source>Gusts (%)</source>
        <translation>Böen (%)</translation>
    </message>
    <message>
        <source>S&amp;hifts (Deg)</source>
        <translation>Dreher (Grad)</translation>
    </message>
    <message>
        <source>any number</source>
        <translation>jede Zahl</translation>
    </message>
    <message>
        <source>0 and above</source>
        <translation>0 und mehr</translation>
    </message>
    <message>
        <source>above 0</source>
        <translation>über 0</translation>
    </message>
    <message>
        <source>0, or above 0.5</source>
        <translation>0 oder über 0.5</translation>
    </message>
    <message>
        <source>0.5 to 2</source>
        <translation>0.5 bis 2</translation>
    </message>
    <message>
        <source>any, folded into (-180, 180]</source>
        <translation>jede, gefaltet nach (-180, 180]</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>deg true</source>
        <translation>Grad rechtweisend</translation>
    </message>
    <message>
        <source>deg magnetic</source>
        <translation>Grad missweisend</translation>
    </message>
    <message>
        <source>kn</source>
        <translation>kn</translation>
    </message>
    <message>
        <source>nm</source>
        <translation>sm</translation>
    </message>
    <message>
        <source>a program with its arguments</source>
        <translation>ein Programm mit seinen Argumenten</translation>
    </message>
    <message>
        <source>two letters, the first of them no P</source>
        <translation>zwei Buchstaben, der erste kein P</translation>
    </message>
    <message>
        <source>1 to 6 letters and digits</source>
        <translation>1 bis 6 Buchstaben und Ziffern</translation>
    </message>
    <message>
        <source>Where the true wind comes from</source>
        <translation>Woher der wahre Wind kommt</translation>
    </message>
    <message>
        <source>Where the heading comes from</source>
        <translation>Woher der Steuerkurs kommt</translation>
    </message>
    <message>
        <source>Where the boat speed comes from</source>
        <translation>Woher die Fahrt kommt</translation>
    </message>
    <message>
        <source>Press it on a new boat, and after an adapter was changed.</source>
        <translation>Drücken auf einem neuen Boot und nach dem Tausch eines Adapters.</translation>
    </message>
    <message>
        <source>Leave it so unless you want to see the lines.</source>
        <translation>So lassen, außer man will die Zeilen sehen.</translation>
    </message>
    <message>
        <source>Tick it to read lines that run by.</source>
        <translation>Ankreuzen, um vorbeilaufende Zeilen zu lesen.</translation>
    </message>
    <message>
        <source>Press it to send the lines to somebody who can help.</source>
        <translation>Drücken, um die Zeilen jemandem zu schicken, der helfen kann.</translation>
    </message>
    <message>
        <source>For a pilot that still asks for a waypoint with APB and RMB.</source>
        <translation>Für einen Piloten, der auch mit APB und RMB nach einem Wegpunkt fragt.</translation>
    </message>
    <message>
        <source>Further off when the line leaves the plot; closer to see more of it.</source>
        <translation>Weiter, wenn die Linie das Bild verlässt; enger, um mehr davon zu sehen.</translation>
    </message>
    <message>
        <source>Change it to let the wind shift.</source>
        <translation>Ändern, um den Wind drehen zu lassen.</translation>
    </message>
    <message>
        <source>As the passage that you want to try.</source>
        <translation>Wie die Strecke, die man probieren will.</translation>
    </message>
    <message>
        <source>To come closer to the waypoint without waiting, with the steady boat.</source>
        <translation>Um dem Wegpunkt ohne Warten näher zu kommen, mit dem stetigen Boot.</translation>
    </message>
    <message>
        <source>Longer where the instrument sends it less often.</source>
        <translation>Länger, wo das Instrument ihn seltener sendet.</translation>
    </message>
    <message>
        <source>Another one when the instruments come in elsewhere; equal to the pilot&apos;s for one port both ways.</source>
        <translation>Ein anderer, wenn die Instrumente woanders ankommen; der des Piloten für einen Anschluss in beide Richtungen.</translation>
    </message>
    <message>
        <source>Choose it when a figure stays blank, to see what comes in.</source>
        <translation>Wählen, wenn eine Zahl leer bleibt, um zu sehen, was ankommt.</translation>
    </message>
    <message>
        <source>Choose it to see every line.</source>
        <translation>Wählen, um jede Zeile zu sehen.</translation>
    </message>
    <message>
        <source>Choose it to see what failed, and why.</source>
        <translation>Wählen, um zu sehen, was nicht gelesen wurde, und warum.</translation>
    </message>
    <message>
        <source>Choose a type when one instrument is to be looked at.</source>
        <translation>Eine Art wählen, um ein einzelnes Instrument anzusehen.</translation>
    </message>
    <message>
        <source>The sensor where the instruments send a true wind that you trust; otherwise computed.</source>
        <translation>Der Sensor, wenn die Instrumente einen wahren Wind senden, dem man traut; sonst errechnet.</translation>
    </message>
    <message>
        <source>The compass where HDG or a magnetic VHW comes; otherwise the course.</source>
        <translation>Der Kompass, wenn HDG oder ein missweisender VHW kommt; sonst der Kurs.</translation>
    </message>
    <message>
        <source>Over water where a log sends VHW; otherwise over ground.</source>
        <translation>Durchs Wasser, wenn eine Logge VHW sendet; sonst über Grund.</translation>
    </message>
    <message>
        <source>Larger when wind, heading and speed jump about; smaller when they come late.</source>
        <translation>Größer, wenn Wind, Steuerkurs und Fahrt springen; kleiner, wenn sie spät kommen.</translation>
    </message>
    <message>
        <source>Larger when the wind in the window&apos;s title jumps about.</source>
        <translation>Größer, wenn der Wind im Titel des Fensters springt.</translation>
    </message>
    <message>
        <source>Require on a wire with disturbances, if every instrument sends a checksum.</source>
        <translation>„Verlangt“ auf einer gestörten Leitung, wenn jedes Instrument eine Prüfsumme sendet.</translation>
    </message>
    <message>
        <source>Ignore where an instrument says itself that its value does not hold.</source>
        <translation>„Übergehen“, wenn ein Instrument selbst sagt, dass sein Wert nicht gilt.</translation>
    </message>
    <message>
        <source>List where an AIS receiver is on the same wire.</source>
        <translation>„Zeigen“, wenn ein AIS-Empfänger an derselben Leitung hängt.</translation>
    </message>
    <message>
        <source>Tick it when the wind stays blank and MWV has no knots.</source>
        <translation>Ankreuzen, wenn der Wind leer bleibt und MWV keine Knoten hat.</translation>
    </message>
    <message>
        <source>Tick it when all lines of one sender are checksum errors.</source>
        <translation>Ankreuzen, wenn alle Zeilen eines Senders Prüfsummenfehler sind.</translation>
    </message>
    <message>
        <source>Motor straight into the wind on a calm day: what is shown then, with the other sign.</source>
        <translation>An einem ruhigen Tag genau gegen den Wind motoren: was dann dasteht, mit umgekehrtem Vorzeichen.</translation>
    </message>
    <message>
        <source>Motor straight on without wind and current: the GPS course less the heading.</source>
        <translation>Ohne Wind und Strom geradeaus motoren: GPS-Kurs minus Steuerkurs.</translation>
    </message>
    <message>
        <source>Without a current: the speed of the GPS divided by that of the log.</source>
        <translation>Ohne Strom: die Fahrt des GPS geteilt durch die der Logge.</translation>
    </message>
    <message>
        <source>Tick what brings a missing value; untick what a second device sends, too.</source>
        <translation>Ankreuzen, was einen fehlenden Wert bringt; das Kreuz wegnehmen, wo ein zweites Gerät dasselbe sendet.</translation>
    </message>
    <message>
        <source>Another one when the pilot is elsewhere; equal to the instruments&apos; for one port both ways.</source>
        <translation>Ein anderer, wenn der Pilot woanders hängt; der der Instrumente für einen Anschluss in beide Richtungen.</translation>
    </message>
    <message>
        <source>Choose it when the pilot does something else, to see what it is sent.</source>
        <translation>Wählen, wenn der Pilot etwas anderes tut, um zu sehen, was er bekommt.</translation>
    </message>
    <message>
        <source>Another one when the pilot beeps, asks for a waypoint or shows a wrong bearing.</source>
        <translation>Ein anderes, wenn der Pilot piept, nach einem Wegpunkt fragt oder einen falschen Kurs zeigt.</translation>
    </message>
    <message>
        <source>By the clock when the pilot beeps, jumps or comes late; 1 a second suits nearly every one.</source>
        <translation>Nach der Uhr, wenn der Pilot piept, springt oder spät kommt; 1 je Sekunde passt fast jedem.</translation>
    </message>
    <message>
        <source>Another one for a pilot that listens to one talker only, as GP, II or AP.</source>
        <translation>Andere für einen Piloten, der nur auf einen Sender hört, etwa GP, II oder AP.</translation>
    </message>
    <message>
        <source>T when the pilot shows a bearing that is wrong by the variation.</source>
        <translation>T, wenn der Pilot einen Kurs zeigt, der um die Missweisung falsch ist.</translation>
    </message>
    <message>
        <source>15 for a pilot of NMEA 0183 2.3 or later that does not take 14.</source>
        <translation>15 für einen Piloten ab NMEA 0183 2.3, der 14 nicht nimmt.</translation>
    </message>
    <message>
        <source>0 for an old pilot that does not take the sentence with 1.</source>
        <translation>0 für einen alten Piloten, der den Satz mit 1 nicht nimmt.</translation>
    </message>
    <message>
        <source>Letters, as WIND, for a pilot that does not take a number.</source>
        <translation>Buchstaben, etwa WIND, für einen Piloten, der keine Zahl nimmt.</translation>
    </message>
    <message>
        <source>Leave it ticked for most pilots: they steer by it.</source>
        <translation>Für die meisten Piloten angekreuzt lassen: sie steuern danach.</translation>
    </message>
    <message>
        <source>For a pilot that wants to see a waypoint before it steers.</source>
        <translation>Für einen Piloten, der einen Wegpunkt sehen will, bevor er steuert.</translation>
    </message>
    <message>
        <source>For a pilot that takes a heading to steer, and no route.</source>
        <translation>Für einen Piloten, der einen Steuerkurs nimmt und keine Route.</translation>
    </message>
    <message>
        <source>Tick it when the pilot steers on to an old course after the wind was lost.</source>
        <translation>Ankreuzen, wenn der Pilot nach dem Verlust des Windes auf altem Kurs weitersteuert.</translation>
    </message>
    <message>
        <source>Longer for a pilot that sounds its alarm late, or not at all.</source>
        <translation>Länger für einen Piloten, der spät oder gar nicht Alarm gibt.</translation>
    </message>
    <message>
        <source>Press it on a new boat and after each change of the profile, with room around you.</source>
        <translation>Drücken auf einem neuen Boot und nach jedem Wechsel des Profils, mit Platz ringsum.</translation>
    </message>
    <message>
        <source>Leave it ticked unless somebody watches the wind angle all the time.</source>
        <translation>Angekreuzt lassen, außer jemand sieht die ganze Zeit auf den Windwinkel.</translation>
    </message>
    <message>
        <source>Direction with a heading; Clock without a true wind; Sentence without a heading.</source>
        <translation>Richtung mit Steuerkurs; Uhr ohne wahren Wind; Satz ohne Steuerkurs.</translation>
    </message>
    <message>
        <source>Larger when a seaway sets it off; smaller where there is little room.</source>
        <translation>Größer, wenn ihn der Seegang auslöst; kleiner, wo wenig Platz ist.</translation>
    </message>
    <message>
        <source>Larger when she swings or the rudder works much; smaller when she follows a shift too late.</source>
        <translation>Größer, wenn das Boot pendelt oder das Ruder viel arbeitet; kleiner, wenn es einem Dreher zu spät folgt.</translation>
    </message>
    <message>
        <source>Leave it at 4; below 1 she swings long after each shift.</source>
        <translation>Bei 4 lassen; unter 1 pendelt das Boot nach jedem Dreher lange.</translation>
    </message>
    <message>
        <source>With Careful Entry: smaller to be asked about smaller changes.</source>
        <translation>Mit „Vorsichtige Eingabe“: kleiner, um bei kleineren Änderungen gefragt zu werden.</translation>
    </message>
    <message>
        <source>5 keeps single gusts quiet; 0 tells at once.</source>
        <translation>5 verschweigt einzelne Böen; 0 meldet sofort.</translation>
    </message>
    <message>
        <source>Press it on a new boat, and with another wind instrument.</source>
        <translation>Drücken auf einem neuen Boot und mit einem anderen Windinstrument.</translation>
    </message>
    <message>
        <source>To see how the loop answers a smaller or a larger change.</source>
        <translation>Um zu sehen, wie die Regelung auf eine kleinere oder größere Änderung antwortet.</translation>
    </message>
    <message>
        <source>More to see how the loop answers in a seaway.</source>
        <translation>Mehr, um zu sehen, wie die Regelung im Seegang antwortet.</translation>
    </message>
    <message>
        <source>Longer when the line has not settled at its end.</source>
        <translation>Länger, wenn die Linie am Ende noch nicht ruhig ist.</translation>
    </message>
    <message>
        <source>Tick it after two minutes of sailing, to compare the methods.</source>
        <translation>Nach zwei Minuten Segeln ankreuzen, um die Verfahren zu vergleichen.</translation>
    </message>
    <message>
        <source>What Test Pilot... on the tab Output has measured.</source>
        <translation>Was „Pilot prüfen...“ auf der Seite „Ausgang“ gemessen hat.</translation>
    </message>
    <message>
        <source>Tick it to try the program at the desk; untick it for the real boat.</source>
        <translation>Ankreuzen, um das Programm am Schreibtisch zu probieren; für das echte Boot nicht.</translation>
    </message>
    <message>
        <source>Steady to learn the windows; Boat to try methods and pilots.</source>
        <translation>Stetig, um die Fenster kennenzulernen; Boot, um Verfahren und Piloten zu probieren.</translation>
    </message>
    <message>
        <source>What your own pilot reads, to try the profile for it.</source>
        <translation>Was der eigene Pilot liest, um das Profil für ihn zu probieren.</translation>
    </message>
    <message>
        <source>A rougher one to see whether a method holds in it.</source>
        <translation>Ein gröberer, um zu sehen, ob ein Verfahren darin hält.</translation>
    </message>
    <message>
        <source>As your own pilot: Test Pilot... on the tab Output measures it.</source>
        <translation>Wie der eigene Pilot: „Pilot prüfen...“ auf der Seite „Ausgang“ misst ihn.</translation>
    </message>
    <message>
        <source>More for a squally day, 0 for a steady wind.</source>
        <translation>Mehr für einen böigen Tag, 0 für stetigen Wind.</translation>
    </message>
    <message>
        <source>More for a shifty day, 0 for a wind that keeps its direction.</source>
        <translation>Mehr für einen Tag mit Drehern, 0 für einen Wind, der seine Richtung behält.</translation>
    </message>
    <message>
        <source>More for a boat with a shallow keel.</source>
        <translation>Mehr für ein Boot mit flachem Kiel.</translation>
    </message>
    <message>
        <source>A number to compare settings on the same gusts: Off and Setup begin them again.</source>
        <translation>Eine Zahl, um Einstellungen in denselben Böen zu vergleichen: mit Aus und Abgleich beginnen sie von vorn.</translation>
    </message>
    <message>
        <source>As fast as your own boat.</source>
        <translation>So schnell wie das eigene Boot.</translation>
    </message>
    <message>
        <source>As the weather that you want to try.</source>
        <translation>Wie das Wetter, das man probieren will.</translation>
    </message>
    <message>
        <source>As the chart of your waters says; east is positive.</source>
        <translation>Wie in der Karte des Reviers; Ost ist positiv.</translation>
    </message>
    <message>
        <source>To see how a pilot is steered whose compass shows something else.</source>
        <translation>Um zu sehen, wie ein Pilot gesteuert wird, dessen Kompass anders zeigt.</translation>
    </message>
    <message>
        <source>0 for still figures, more for a seaway, with the steady boat.</source>
        <translation>0 für ruhige Zahlen, mehr für Seegang, mit dem stetigen Boot.</translation>
    </message>
    <message>
        <source>0 for still figures, more for a seaway.</source>
        <translation>0 für ruhige Zahlen, mehr für Seegang.</translation>
    </message>
    <message>
        <source>Tick it to see each step of the small arrows at once.</source>
        <translation>Ankreuzen, um jeden Schritt der kleinen Pfeile sofort zu sehen.</translation>
    </message>
    <message>
        <source>Tick it unless somebody watches the wind instrument all the time.</source>
        <translation>Ankreuzen, außer jemand sieht die ganze Zeit auf das Windinstrument.</translation>
    </message>
    <message>
        <source>Tick it to have time to take the helm before the pilot hears nothing.</source>
        <translation>Ankreuzen, um Zeit fürs Ruder zu haben, bevor der Pilot nichts mehr hört.</translation>
    </message>
    <message>
        <source>Tick it when you sail before the wind with a small crew.</source>
        <translation>Ankreuzen, wer mit kleiner Mannschaft vor dem Wind segelt.</translation>
    </message>
    <message>
        <source>Leave it ticked where a log sends the boat speed.</source>
        <translation>Angekreuzt lassen, wo eine Logge die Fahrt sendet.</translation>
    </message>
    <message>
        <source>Leave it ticked where a compass sends the heading.</source>
        <translation>Angekreuzt lassen, wo ein Kompass den Steuerkurs sendet.</translation>
    </message>
    <message>
        <source>Tick it so that nobody takes an old figure for one of now.</source>
        <translation>Ankreuzen, damit niemand eine alte Zahl für eine von jetzt hält.</translation>
    </message>
    <message>
        <source>Tick it where a slip of the hand must not turn the boat.</source>
        <translation>Ankreuzen, wo ein Vertippen das Boot nicht drehen darf.</translation>
    </message>
    <message>
        <source>Tone where the computer has no beep, or nobody hears it.</source>
        <translation>Ton, wo der Rechner nicht piept oder es niemand hört.</translation>
    </message>
    <message>
        <source>Press it before you leave, with somebody on deck who listens.</source>
        <translation>Drücken vor dem Auslaufen, wenn jemand an Deck hört.</translation>
    </message>
    <message>
        <source>For a buzzer or a lamp that a program switches.</source>
        <translation>Für einen Summer oder eine Lampe, die ein Programm schaltet.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Range: %1.</source>
        <translation>Bereich: %1.</translation>
    </message>
    <message>
        <source>Range: %1, in %2.</source>
        <translation>Bereich: %1, in %2.</translation>
    </message>
    <message>
        <source>Takes: %1.</source>
        <translation>Erlaubt: %1.</translation>
    </message>
    <message>
        <source>Range: hours and minutes, as 1:30.</source>
        <translation>Bereich: Stunden und Minuten, etwa 1:30.</translation>
    </message>
    <message>
        <source>Which sentences are read</source>
        <translation>Welche Sätze gelesen werden</translation>
    </message>
    <message>
        <source>%1 at %2 (NMEA 0183, announced)</source>
        <translation>%1 auf %2 (NMEA 0183, meldet sich)</translation>
    </message>
    <message>
        <source>%1 at %2 (Signal K, announced)</source>
        <translation>%1 auf %2 (Signal K, meldet sich)</translation>
    </message>
    <message>
        <source>; the same comes on %1</source>
        <translation>; dasselbe kommt an %1</translation>
    </message>
    <message>
        <source>In the Br&amp;owser</source>
        <translation>Im Br&amp;owser</translation>
    </message>
    <message>
        <source>The whole manual in the desktop&apos;s browser</source>
        <translation>Das ganze Handbuch im Browser des Desktops</translation>
    </message>
    <message>
        <source>; nothing more comes</source>
        <translation>; es kommt nichts mehr</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>N-NE</source>
        <translation>N-NO</translation>
    </message>
    <message>
        <source>NE</source>
        <translation>NO</translation>
    </message>
    <message>
        <source>E-NE</source>
        <translation>O-NO</translation>
    </message>
    <message>
        <source>E</source>
        <translation>O</translation>
    </message>
    <message>
        <source>E-SE</source>
        <translation>O-SO</translation>
    </message>
    <message>
        <source>SE</source>
        <translation>SO</translation>
    </message>
    <message>
        <source>S-SE</source>
        <translation>S-SO</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>S-SW</source>
        <translation>S-SW</translation>
    </message>
    <message>
        <source>SW</source>
        <translation>SW</translation>
    </message>
    <message>
        <source>W-SW</source>
        <translation>W-SW</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>W-NW</source>
        <translation>W-NW</translation>
    </message>
    <message>
        <source>NW</source>
        <translation>NW</translation>
    </message>
    <message>
        <source>N-NW</source>
        <translation>N-NW</translation>
    </message>
    <message>
        <source>; [Ports] in the profile names the device of port %1</source>
        <translation>; [Ports] im Profil nennt das Gerät von Anschluss %1</translation>
    </message>
    <message>
        <source>cannot write %1: it would be larger than %2 bytes, and not read again</source>
        <translation>%1 nicht zu schreiben: die Datei wäre größer als %2 Bytes und würde nicht wieder gelesen</translation>
    </message>
    <message>
        <source>cannot put %1 aside: %2</source>
        <translation>%1 nicht beiseite zu legen: %2</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>ist nicht zu lesen</translation>
    </message>
    <message>
        <source>larger than %1 MiB</source>
        <translation>größer als %1 MiB</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>keine Datei</translation>
    </message>
    <message>
        <source>True Wind Dire&amp;ction (T)</source>
        <translation>Wahrer W&amp;ind aus (T)</translation>
    </message>
</context>
</TS>
