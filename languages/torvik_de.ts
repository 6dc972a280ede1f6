<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Torvik</name>
    <message>
        <source> It begins where the {1} lines end. In the order, move {2} before {3}.</source>
        <translation> Es beginnt dort, wo die Linien in {1} enden. Schieben Sie in der Reihenfolge {2} vor {3}.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source>"{1}" and "{2}"</source>
        <translation>"{1}" und "{2}"</translation>
    </message>
    <message>
        <source>"{1}" is not a line that {2} programs have at this place.</source>
        <translation>"{1}" ist keine Zeile, wie sie {2}-Programme an dieser Stelle haben.</translation>
    </message>
    <message>
        <source>"{1}" is not written as it should be: here a number looks like {2}.</source>
        <translation>"{1}" ist nicht richtig geschrieben: Eine Zahl sieht hier so aus: {2}.</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 Program Number</source>
        <translation>Programmnummer für %1</translation>
    </message>
    <message>
        <source>%1 ______ for %2</source>
        <translation>%1 ______ für %2</translation>
    </message>
    <message>
        <source>%1 deep</source>
        <translation>%1 tief</translation>
    </message>
    <message>
        <source>%1 deep, through</source>
        <translation>%1 tief, durchgehend</translation>
    </message>
    <message>
        <source>%1 elements</source>
        <translation>%1 Elemente</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1 für %2</translation>
    </message>
    <message>
        <source>%1 holes</source>
        <translation>Bohrungen in %1</translation>
    </message>
    <message>
        <source>%1 holes</source>
        <comment>how many</comment>
        <translation>%1 Bohrungen</translation>
    </message>
    <message>
        <source>%1 instructions</source>
        <translation>%1 Anweisungen</translation>
    </message>
    <message>
        <source>%1 instructions of this drawing are not read, so something may be missing. See File ▸ Prepare a Drawing…</source>
        <translation>%1 Anweisungen dieser Zeichnung werden nicht gelesen, es kann also etwas fehlen. Siehe Datei ▸ Zeichnung vorbereiten…</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 ist leer</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>Linien in %1</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 mm deep</source>
        <translation>%1 mm tief</translation>
    </message>
    <message>
        <source>%1 mm diam. holes</source>
        <translation>Bohrungen Ø %1 mm</translation>
    </message>
    <message>
        <source>%1 passes</source>
        <translation>%1 Durchgänge</translation>
    </message>
    <message>
        <source>%1 to %2 mm deep</source>
        <translation>%1 bis %2 mm tief</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 × %2 pecks</source>
        <translation>%1 × %2 Bohrhübe</translation>
    </message>
    <message>
        <source>%1 × %2 × %3 mm</source>
        <translation>%1 × %2 × %3 mm</translation>
    </message>
    <message>
        <source>%1, %2 pecks</source>
        <translation>%1, %2 Bohrhübe</translation>
    </message>
    <message>
        <source>%1, %2 thick</source>
        <translation>%1, %2 dick</translation>
    </message>
    <message>
        <source>%1, circles: %2</source>
        <translation>%1, Kreise: %2</translation>
    </message>
    <message>
        <source>%1, current step</source>
        <translation>%1, aktueller Schritt</translation>
    </message>
    <message>
        <source>%1, last %2</source>
        <translation>%1, zuletzt %2</translation>
    </message>
    <message>
        <source>%1, selected</source>
        <translation>%1, ausgewählt</translation>
    </message>
    <message>
        <source>%1. Usual: %2 mm</source>
        <translation>%1. Üblich: %2 mm</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 mm</source>
        <comment>a height's name and value</comment>
        <translation>%1: %2 mm</translation>
    </message>
    <message>
        <source>&amp;%1  %2</source>
        <translation>&amp;%1  %2</translation>
    </message>
    <message>
        <source>&amp;About Torvik</source>
        <translation>&amp;Über Torvik</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Arcs and circles out of chords</source>
        <translation>&amp;Bögen und Kreise aus Sehnen bilden</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>Zu&amp;rück</translation>
    </message>
    <message>
        <source>&amp;Change…</source>
        <translation>Ä&amp;ndern…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Schl&amp;ießen</translation>
    </message>
    <message>
        <source>&amp;Close Torvik</source>
        <translation>Torvik &amp;beenden</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Continue with %1</source>
        <translation>&amp;Fortfahren mit %1</translation>
    </message>
    <message>
        <source>&amp;Cut the %1 lines</source>
        <translation>Linien in %1 &amp;fräsen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Löschen…</translation>
    </message>
    <message>
        <source>&amp;Designer</source>
        <translation>&amp;Konstrukteur/in</translation>
    </message>
    <message>
        <source>&amp;Drill the %1 holes</source>
        <translation>Bohrungen in %1 b&amp;ohren</translation>
    </message>
    <message>
        <source>&amp;Drop duplicate lines</source>
        <translation>Do&amp;ppelte Linien entfernen</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Bearbeiten…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Forward  →</source>
        <translation>&amp;Vor  →</translation>
    </message>
    <message>
        <source>&amp;Full screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>&amp;Go back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Holes before what is around them</source>
        <translation>Inneres &amp;vor dem Äußeren</translation>
    </message>
    <message>
        <source>&amp;Job Sheet…</source>
        <translation>&amp;Einrichteblatt…</translation>
    </message>
    <message>
        <source>&amp;Kind of file</source>
        <translation>&amp;Dateiart</translation>
    </message>
    <message>
        <source>&amp;Language (from the next start)</source>
        <translation>S&amp;prache (ab dem nächsten Start)</translation>
    </message>
    <message>
        <source>&amp;Look at the piece…</source>
        <translation>Werkstück &amp;betrachten…</translation>
    </message>
    <message>
        <source>&amp;Material</source>
        <translation>&amp;Material</translation>
    </message>
    <message>
        <source>&amp;Mirror</source>
        <translation>Spie&amp;geln</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Öffnen…</translation>
    </message>
    <message>
        <source>&amp;Pens and tools</source>
        <translation>Stifte und &amp;Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Pens of the drawing</source>
        <translation>&amp;Stifte der Zeichnung</translation>
    </message>
    <message>
        <source>&amp;Picture</source>
        <translation>&amp;Bild</translation>
    </message>
    <message>
        <source>&amp;Prepare a Drawing…</source>
        <translation>Zeichnung &amp;vorbereiten…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken…</translation>
    </message>
    <message>
        <source>&amp;Process another file</source>
        <translation>&amp;Andere Zeichnung bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Rapid Down To</source>
        <translation>&amp;Eilgang abwärts bis</translation>
    </message>
    <message>
        <source>&amp;Recent drawings</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Report</source>
        <translation>Be&amp;richt</translation>
    </message>
    <message>
        <source>&amp;Safe Height for Rapids</source>
        <translation>S&amp;icherheitshöhe für Eilgang</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>Als &amp;PDF speichern…</translation>
    </message>
    <message>
        <source>&amp;Save code in another format</source>
        <translation>In anderem &amp;Format speichern</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Speichern…</translation>
    </message>
    <message>
        <source>&amp;Solid</source>
        <translation>&amp;Körper</translation>
    </message>
    <message>
        <source>&amp;Standard types:</source>
        <translation>&amp;Standardtypen:</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Start</translation>
    </message>
    <message>
        <source>&amp;Teacher</source>
        <translation>&amp;Lehrkraft</translation>
    </message>
    <message>
        <source>&amp;Tolerance</source>
        <translation>T&amp;oleranz</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Write all the same</source>
        <translation>&amp;Trotzdem schreiben</translation>
    </message>
    <message>
        <source>&amp;Write…</source>
        <translation>&amp;Schreiben…</translation>
    </message>
    <message>
        <source>&amp;X</source>
        <translation>&amp;X</translation>
    </message>
    <message>
        <source>&amp;Y</source>
        <translation>&amp;Y</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>* must be filled</source>
        <translation>* muss ausgefüllt werden</translation>
    </message>
    <message>
        <source>, hole size %1 of %2</source>
        <translation>, Lochgröße %1 von %2</translation>
    </message>
    <message>
        <source>1 element</source>
        <translation>1 Element</translation>
    </message>
    <message>
        <source>1 hole</source>
        <translation>1 Bohrung</translation>
    </message>
    <message>
        <source>1 instruction of this drawing is not read, so something may be missing. See File ▸ Prepare a Drawing…</source>
        <translation>1 Anweisung dieser Zeichnung wird nicht gelesen, es kann also etwas fehlen. Siehe Datei ▸ Zeichnung vorbereiten…</translation>
    </message>
    <message>
        <source>1 pass</source>
        <translation>1 Durchgang</translation>
    </message>
    <message>
        <source>180°</source>
        <translation>180°</translation>
    </message>
    <message>
        <source>72 pixels to the inch</source>
        <translation>72 Pixel je Zoll</translation>
    </message>
    <message>
        <source>90 pixels to the inch</source>
        <translation>90 Pixel je Zoll</translation>
    </message>
    <message>
        <source>90° to the left</source>
        <translation>90° nach links</translation>
    </message>
    <message>
        <source>90° to the right</source>
        <translation>90° nach rechts</translation>
    </message>
    <message>
        <source>96 pixels to the inch</source>
        <translation>96 Pixel je Zoll</translation>
    </message>
    <message>
        <source>&lt;b&gt;Torvik %1&lt;/b&gt;</source>
        <translation>&lt;b&gt;Torvik %1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Torvik turns a pen-plotter drawing (&lt;b&gt;.plt&lt;/b&gt;) into a program for your milling machine. Each pen colour of the drawing is one operation: cut, drilled, or left out.&lt;/p&gt;&lt;p&gt;Press &lt;b&gt;Start&lt;/b&gt; to choose a drawing. Drawings in &lt;b&gt;SVG&lt;/b&gt; and &lt;b&gt;DXF&lt;/b&gt; are made ready first. Press &lt;b&gt;F1&lt;/b&gt; for help at any time.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Torvik macht aus einer Plotterzeichnung (&lt;b&gt;.plt&lt;/b&gt;) ein Programm für Ihre Fräsmaschine. Jede Stiftfarbe der Zeichnung ist ein Arbeitsgang: gefräst, gebohrt oder ausgelassen.&lt;/p&gt;&lt;p&gt;Mit &lt;b&gt;Start&lt;/b&gt; wählen Sie eine Zeichnung. Zeichnungen in &lt;b&gt;SVG&lt;/b&gt; und &lt;b&gt;DXF&lt;/b&gt; werden zuerst vorbereitet. &lt;b&gt;F1&lt;/b&gt; öffnet jederzeit die Hilfe.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A bracket stands inside this comment, or it does not close. The machine may take the rest for commands.</source>
        <translation>In diesem Kommentar steht eine Klammer, oder er wird nicht geschlossen. Die Maschine kann den Rest für Befehle halten.</translation>
    </message>
    <message>
        <source>A cut of {1} is</source>
        <translation>Ein Schnitt ({1}) ist</translation>
    </message>
    <message>
        <source>A feed of {1} mm/min is unusual here.</source>
        <translation>Ein Vorschub von {1} mm/min ist hier ungewöhnlich.</translation>
    </message>
    <message>
        <source>A feed of {2} mm/min for {1} is faster than usual.</source>
        <translation>Ein Vorschub von {2} mm/min für {1} ist schneller als üblich.</translation>
    </message>
    <message>
        <source>A feed of {2} mm/sec for {1} is {3} mm/min. Was mm per minute meant? The unit is chosen on the page of the heights.</source>
        <translation>Ein Vorschub von {2} mm/s für {1} sind {3} mm/min. Waren mm pro Minute gemeint? Die Einheit wird auf der Seite der Höhen gewählt.</translation>
    </message>
    <message>
        <source>A file named %1 already exists in this folder
Do you want to overwrite it?</source>
        <translation>In diesem Ordner gibt es schon eine Datei namens %1
Soll sie überschrieben werden?</translation>
    </message>
    <message>
        <source>A file named %1 already exists on the diskette
Do you want to overwrite it?</source>
        <translation>Auf der Diskette gibt es schon eine Datei namens %1
Soll sie überschrieben werden?</translation>
    </message>
    <message>
        <source>A full circle is cut here. The drawing has an arc of {1} mm only, so short that its end is written like its start.</source>
        <translation>Hier wird ein Vollkreis gefräst. Die Zeichnung hat nur einen Bogen von {1} mm, der so kurz ist, dass sein Ende wie sein Anfang geschrieben wird.</translation>
    </message>
    <message>
        <source>A hole of {1} is</source>
        <translation>Eine Bohrung ({1}) ist</translation>
    </message>
    <message>
        <source>A job sheet is made when every pen that is milled has its answers and a tool, and the order of the pens is set.</source>
        <translation>Ein Einrichteblatt gibt es, wenn jeder Stift, der gefertigt wird, seine Angaben und ein Werkzeug hat und die Reihenfolge der Stifte feststeht.</translation>
    </message>
    <message>
        <source>A move at full speed at Z{1} does not fit: elsewhere the heights are {2}.</source>
        <translation>Eine Eilgangbewegung auf Z{1} passt nicht: Sonst sind die Höhen {2}.</translation>
    </message>
    <message>
        <source>A pen &amp;for</source>
        <translation>Ein Sti&amp;ft für</translation>
    </message>
    <message>
        <source>A pen that draws nothing else: it gets the outlines with their gaps</source>
        <translation>Ein Stift, der sonst nichts zeichnet: Er bekommt die Umrisse mit ihren Lücken</translation>
    </message>
    <message>
        <source>A program cannot hold %1, so ? will stand there instead</source>
        <translation>Ein Programm kann %1 nicht enthalten, daher wird dort ? stehen</translation>
    </message>
    <message>
        <source>A spindle speed of {1} turns a minute is unusual.</source>
        <translation>Eine Spindeldrehzahl von {1} Umdrehungen pro Minute ist ungewöhnlich.</translation>
    </message>
    <message>
        <source>A whole number from 1 to 32767</source>
        <translation>Eine ganze Zahl von 1 bis 32767</translation>
    </message>
    <message>
        <source>A {2} cannot cut {1}: it is made to go straight down and breaks on its way sideways.</source>
        <translation>{2} kann nicht fräsen ({1}): Dieses Werkzeug ist nur für den Weg nach unten gemacht und bricht, wenn es seitwärts fährt.</translation>
    </message>
    <message>
        <source>About Torvik</source>
        <translation>Über Torvik</translation>
    </message>
    <message>
        <source>Add a new Tool</source>
        <translation>Neues Werkzeug</translation>
    </message>
    <message>
        <source>Add a tool to the list</source>
        <translation>Ein Werkzeug in die Liste aufnehmen</translation>
    </message>
    <message>
        <source>Add or remove Tool Types</source>
        <translation>Werkzeugtypen verwalten</translation>
    </message>
    <message>
        <source>Add or remove tool types</source>
        <translation>Werkzeugtypen hinzufügen oder löschen</translation>
    </message>
    <message>
        <source>Add the new type</source>
        <translation>Den neuen Typ hinzufügen</translation>
    </message>
    <message>
        <source>Added types &amp;not in use:</source>
        <translation>Eigene Typen, &amp;nicht verwendet:</translation>
    </message>
    <message>
        <source>Added types in &amp;use:</source>
        <translation>Eigene Typen, &amp;verwendet:</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>After the deletion these have another tool, or none. Please check them:</source>
        <translation>Nach dem Löschen gilt für diese ein anderes Werkzeug oder keines. Bitte prüfen:</translation>
    </message>
    <message>
        <source>Air length</source>
        <translation>Leerweg</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>An End mill is to drill {1}. Many do not cut in their middle; a Drill is safer.</source>
        <translation>Ein Schaftfräser (End mill) soll bohren: {1}. Viele schneiden in der Mitte nicht; ein Bohrer (Drill) ist sicherer.</translation>
    </message>
    <message>
        <source>An error has occurred in {1}:
{2}</source>
        <translation>In {1} ist ein Fehler aufgetreten:
{2}</translation>
    </message>
    <message>
        <source>An outline of {1} is cut through before other lines of its pen inside it, so the part may come loose. Draw the outline last, or with a pen of its own.</source>
        <translation>Ein Umriss wird durchgefräst ({1}), bevor andere Linien seines Stifts darin fertig sind; das Teil kann sich lösen. Zeichnen Sie den Umriss zuletzt oder mit einem eigenen Stift.</translation>
    </message>
    <message>
        <source>An outline of {1} is cut through before {2} inside it, so the part may come loose. Put {2} before it in the order.</source>
        <translation>Ein Umriss wird durchgefräst ({1}), bevor das darin fertig ist ({2}); das Teil kann sich lösen. Setzen Sie in der Reihenfolge vor den Umriss: {2}.</translation>
    </message>
    <message>
        <source>Another copy of Torvik has changed or deleted the same tools meanwhile:
Tool no. %1
They are saved as they are in this copy.</source>
        <translation>Eine andere Torvik-Instanz hat inzwischen dieselben Werkzeuge geändert oder gelöscht:
Werkzeug Nr. %1
Sie werden so gespeichert, wie sie hier stehen.</translation>
    </message>
    <message>
        <source>Another copy of Torvik has deleted tool no. %1 meanwhile.
Please choose another tool.</source>
        <translation>Eine andere Torvik-Instanz hat Werkzeug Nr. %1 inzwischen gelöscht.
Bitte wählen Sie ein anderes Werkzeug.</translation>
    </message>
    <message>
        <source>Arcs made of chords</source>
        <translation>Bögen aus Sehnen</translation>
    </message>
    <message>
        <source>Are you sure you want to close without saving
the current file as G-codes?</source>
        <translation>Wirklich beenden, ohne die aktuelle Datei
als G-Code zu speichern?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete:</source>
        <translation>Wirklich löschen:</translation>
    </message>
    <message>
        <source>Are you sure you want to open a file
without saving the current file as G-codes?</source>
        <translation>Wirklich eine Datei öffnen, ohne die aktuelle
Datei als G-Code zu speichern?</translation>
    </message>
    <message>
        <source>At the end the tool stays at Z{1}, lower than at a tool change.</source>
        <translation>Am Ende bleibt das Werkzeug auf Z{1} stehen, tiefer als beim Werkzeugwechsel.</translation>
    </message>
    <message>
        <source>Back to the main window (Escape)</source>
        <translation>Zurück zum Hauptfenster (Esc)</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Before the program is written</source>
        <translation>Bevor das Programm geschrieben wird</translation>
    </message>
    <message>
        <source>Billet</source>
        <translation>Rohteil</translation>
    </message>
    <message>
        <source>Billet (X × Y × Z)</source>
        <translation>Rohteil (X × Y × Z)</translation>
    </message>
    <message>
        <source>Billet Depth &amp;Z</source>
        <translation>Rohteil Dicke &amp;Z</translation>
    </message>
    <message>
        <source>Billet Length &amp;X</source>
        <translation>Rohteil Länge &amp;X</translation>
    </message>
    <message>
        <source>Billet Width &amp;Y</source>
        <translation>Rohteil Breite &amp;Y</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Change nothing (Escape)</source>
        <translation>Nichts ändern (Esc)</translation>
    </message>
    <message>
        <source>Change the answers first; nothing is written</source>
        <translation>Erst die Angaben ändern; es wird nichts geschrieben</translation>
    </message>
    <message>
        <source>Change the selected tool (F2)</source>
        <translation>Das ausgewählte Werkzeug ändern (F2)</translation>
    </message>
    <message>
        <source>Change where drive A: leads</source>
        <translation>Ändern, wohin Laufwerk A: führt</translation>
    </message>
    <message>
        <source>Characters passed over</source>
        <translation>Übergangene Zeichen</translation>
    </message>
    <message>
        <source>Checked by the teacher</source>
        <translation>Von der Lehrkraft geprüft</translation>
    </message>
    <message>
        <source>Choose a drawing (Enter)</source>
        <translation>Eine Zeichnung wählen (Eingabetaste)</translation>
    </message>
    <message>
        <source>Choose a drawing of another program; it can also be dropped here</source>
        <translation>Die Zeichnung eines anderen Programms wählen; sie kann auch hierher gezogen werden</translation>
    </message>
    <message>
        <source>Choose a line to see the piece when the machine gets there</source>
        <translation>Wählen Sie eine Zeile, um das Werkstück zu sehen, wenn die Maschine dort ankommt</translation>
    </message>
    <message>
        <source>Choose a tool</source>
        <translation>Wählen Sie ein Werkzeug</translation>
    </message>
    <message>
        <source>Choose above what is to be done with the %1</source>
        <translation>Wählen Sie oben, was mit den %1 geschehen soll</translation>
    </message>
    <message>
        <source>Choose no tool (Escape)</source>
        <translation>Kein Werkzeug wählen (Esc)</translation>
    </message>
    <message>
        <source>Choose the folder that stands for drive A:</source>
        <translation>Wählen Sie den Ordner, der für Laufwerk A: steht:</translation>
    </message>
    <message>
        <source>Choose the folder that stands for the diskette drive, for example a memory stick</source>
        <translation>Den Ordner wählen, der für das Diskettenlaufwerk steht, zum Beispiel auf einem USB-Stick</translation>
    </message>
    <message>
        <source>Choose too&amp;l...</source>
        <translation>Werkzeug wäh&amp;len...</translation>
    </message>
    <message>
        <source>Choose tool</source>
        <translation>Werkzeug wählen</translation>
    </message>
    <message>
        <source>Circles made of chords or arcs</source>
        <translation>Kreise aus Sehnen oder Bögen</translation>
    </message>
    <message>
        <source>Clamp at</source>
        <translation>Spannen</translation>
    </message>
    <message>
        <source>Colour {1}</source>
        <translation>Farbe {1}</translation>
    </message>
    <message>
        <source>Ctrl+J</source>
        <translation>Ctrl+J</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Curves taken apart</source>
        <translation>Zerlegte Kurven</translation>
    </message>
    <message>
        <source>Cut length</source>
        <translation>Fräsweg</translation>
    </message>
    <message>
        <source>D&amp;ate</source>
        <translation>Da&amp;tum</translation>
    </message>
    <message>
        <source>DXF from CAD</source>
        <translation>DXF aus CAD</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Delete the type not in use</source>
        <translation>Den nicht verwendeten Typ löschen</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Tiefe</translation>
    </message>
    <message>
        <source>Depth of Hole</source>
        <translation>Bohrtiefe</translation>
    </message>
    <message>
        <source>Depths</source>
        <translation>Tiefen</translation>
    </message>
    <message>
        <source>Depths of the piece</source>
        <translation>Tiefen des Werkstücks</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>Konstrukteur/in</translation>
    </message>
    <message>
        <source>Details of the job</source>
        <translation>Angaben zum Auftrag</translation>
    </message>
    <message>
        <source>Diameter (mm)</source>
        <translation>Durchmesser (mm)</translation>
    </message>
    <message>
        <source>Diameter of dots</source>
        <translation>Durchmesser der Punkte</translation>
    </message>
    <message>
        <source>Diameter of the tool for %1</source>
        <translation>Werkzeugdurchmesser für %1</translation>
    </message>
    <message>
        <source>Digits only</source>
        <translation>Nur Ziffern</translation>
    </message>
    <message>
        <source>Diskette drive</source>
        <translation>Diskettenlaufwerk</translation>
    </message>
    <message>
        <source>Do NO&amp;T cut the %1 lines</source>
        <translation>Linien in %1 &amp;NICHT fräsen</translation>
    </message>
    <message>
        <source>Do NO&amp;T drill the %1 holes</source>
        <translation>Bohrungen in %1 &amp;NICHT bohren</translation>
    </message>
    <message>
        <source>Do not take the stick out yet.
%1</source>
        <translation>Den Stick bitte noch nicht abziehen.
%1</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Dots are pen down and up again in one place. Off, they are not drawn; on, they are circles of this diameter.</source>
        <translation>Punkte sind Stift ab und wieder auf an einer Stelle. Aus: Sie werden nicht gezeichnet; an: Sie werden Kreise dieses Durchmessers.</translation>
    </message>
    <message>
        <source>Dots as c&amp;ircles of</source>
        <translation>Punkte als &amp;Kreise von</translation>
    </message>
    <message>
        <source>Down, %1</source>
        <translation>Eintauchen, %1</translation>
    </message>
    <message>
        <source>Drag or arrow keys: turn. Wheel or + and -: zoom. 0: as at first.</source>
        <translation>Ziehen oder Pfeiltasten: drehen. Mausrad oder + und -: zoomen. 0: wie am Anfang.</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>Drawing saved</source>
        <translation>Zeichnung gespeichert</translation>
    </message>
    <message>
        <source>Drawing, %1 mm wide, %2 mm high</source>
        <translation>Zeichnung, %1 mm breit, %2 mm hoch</translation>
    </message>
    <message>
        <source>Drawn by</source>
        <translation>Gezeichnet von</translation>
    </message>
    <message>
        <source>Drill in &amp;pecks</source>
        <translation>Mit S&amp;panentleerung bohren</translation>
    </message>
    <message>
        <source>Drill in pecks</source>
        <translation>Mit Spanentleerung bohren</translation>
    </message>
    <message>
        <source>Drilling</source>
        <translation>Bohren</translation>
    </message>
    <message>
        <source>Drilling Feed Rate</source>
        <translation>Vorschub beim Bohren</translation>
    </message>
    <message>
        <source>Drop a drawing here (%1)</source>
        <translation>Zeichnung hier ablegen (%1)</translation>
    </message>
    <message>
        <source>Duplicates taken out</source>
        <translation>Entfernte doppelte Linien</translation>
    </message>
    <message>
        <source>Dwell Time</source>
        <translation>Verweilzeit</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Each pass of {1} is {2} mm deep, but the tool is only {3} mm wide. It may break.</source>
        <translation>Jeder Durchgang ist {2} mm tief ({1}), das Werkzeug aber nur {3} mm breit. Es kann brechen.</translation>
    </message>
    <message>
        <source>Edit Tool Data</source>
        <translation>Werkzeug bearbeiten</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>End the writing; nothing of the program is kept</source>
        <translation>Das Schreiben abbrechen; vom Programm bleibt nichts übrig</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Every pen is left out, so nothing is milled.</source>
        <translation>Jeder Stift wird ausgelassen, es wird also nichts gefertigt.</translation>
    </message>
    <message>
        <source>Every workshop has these</source>
        <translation>Diese gibt es in jeder Werkstatt</translation>
    </message>
    <message>
        <source>Exit from Torvik</source>
        <translation>Torvik beenden</translation>
    </message>
    <message>
        <source>Extents</source>
        <translation>Ausdehnung</translation>
    </message>
    <message>
        <source>Feed rates are typed in</source>
        <translation>Vorschübe werden angegeben in</translation>
    </message>
    <message>
        <source>Feed, %1</source>
        <translation>Vorschub, %1</translation>
    </message>
    <message>
        <source>Final Depth</source>
        <translation>Endtiefe</translation>
    </message>
    <message>
        <source>Final Pass Depth of Cut</source>
        <translation>Schlichtaufmaß</translation>
    </message>
    <message>
        <source>Final Pass Horizontal Feed Rate</source>
        <translation>Vorschub beim Schlichten</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>For {1} the job asks for a spindle speed of {2}, the program has {3}.</source>
        <translation>Für {1} verlangt der Auftrag eine Spindeldrehzahl von {2}, das Programm hat {3}.</translation>
    </message>
    <message>
        <source>For {1} the job asks for {2}, the program takes {3}.</source>
        <translation>Für {1} verlangt der Auftrag {2}, das Programm nimmt {3}.</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>From a drawing to a milled part</source>
        <translation>Von der Zeichnung zum gefrästen Teil</translation>
    </message>
    <message>
        <source>From a pen-plotter drawing to a program for the milling machine.

Free software under the MIT licence. Built with Qt %1.

The Hershey Fonts, which texts of drawings are cut with, were originally created by Dr. A. V. Hershey while working at the U. S. National Bureau of Standards. The format of the font data was originally created by James Hurt, Cognition, Inc.</source>
        <translation>Von der Plotterzeichnung zum Programm für die Fräsmaschine.

Freie Software unter der MIT-Lizenz. Erstellt mit Qt %1.

Die Hershey-Schriften, mit denen Texte in Zeichnungen gefräst werden, schuf Dr. A. V. Hershey am U. S. National Bureau of Standards. Das Format der Schriftdaten schuf James Hurt, Cognition, Inc.</translation>
    </message>
    <message>
        <source>From the library</source>
        <translation>Aus der Liste</translation>
    </message>
    <message>
        <source>Gi&amp;ven in</source>
        <translation>&amp;Maße in</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Go on where you left this drawing, with all your answers:</source>
        <translation>Hier haben Sie diese Zeichnung verlassen; alle Ihre Angaben sind noch da:</translation>
    </message>
    <message>
        <source>Go on where you stopped %1?
With No, what was answered then is forgotten.</source>
        <translation>Dort weitermachen, wo Sie %1 aufgehört haben?
Bei Nein gehen die Angaben von damals verloren.</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>HPGL drawings</source>
        <translation>HPGL-Zeichnungen</translation>
    </message>
    <message>
        <source>HPGL files</source>
        <translation>HPGL-Dateien</translation>
    </message>
    <message>
        <source>HPGL, SVG and DXF drawings</source>
        <translation>HPGL-, SVG- und DXF-Zeichnungen</translation>
    </message>
    <message>
        <source>Heights</source>
        <translation>Höhen</translation>
    </message>
    <message>
        <source>Heights and units for the whole job</source>
        <translation>Höhen und Einheiten für den ganzen Auftrag</translation>
    </message>
    <message>
        <source>Heights are measured from the top of the material (Z 0). A height above it is positive.</source>
        <translation>Höhen zählen ab der Oberseite des Materials (Z 0). Eine Höhe darüber ist positiv.</translation>
    </message>
    <message>
        <source>Horizontal Feed Rate for Cutting</source>
        <translation>Vorschub waagerecht (Fräsen)</translation>
    </message>
    <message>
        <source>How deep the finished cut is below the surface</source>
        <translation>Wie tief der fertige Schnitt unter der Oberfläche liegt</translation>
    </message>
    <message>
        <source>How deep the finished hole is below the surface</source>
        <translation>Wie tief die fertige Bohrung unter die Oberfläche reicht</translation>
    </message>
    <message>
        <source>How far the drawing's own points and curves may move</source>
        <translation>Wie weit sich Punkte und Kurven der Zeichnung verschieben dürfen</translation>
    </message>
    <message>
        <source>How far the machine has got</source>
        <translation>Wie weit die Maschine ist</translation>
    </message>
    <message>
        <source>How far the tool comes down quickly; the rest it goes at its feed</source>
        <translation>Wie weit das Werkzeug im Eilgang nach unten fährt; den Rest fährt es mit Vorschub</translation>
    </message>
    <message>
        <source>How fast the drill moves down into the material</source>
        <translation>Wie schnell der Bohrer in das Material fährt</translation>
    </message>
    <message>
        <source>How fast the tool moves along the lines</source>
        <translation>Wie schnell das Werkzeug die Linien entlangfährt</translation>
    </message>
    <message>
        <source>How fast the tool moves along the lines in the last pass</source>
        <translation>Wie schnell das Werkzeug beim Schlichten die Linien entlangfährt</translation>
    </message>
    <message>
        <source>How fast the tool moves down into the material; a quarter of the cutting feed is usual</source>
        <translation>Wie schnell das Werkzeug in das Material eintaucht; üblich ist ein Viertel des Fräsvorschubs</translation>
    </message>
    <message>
        <source>How long the drill turns at the bottom of the hole; 0 for no wait</source>
        <translation>Wie lange der Bohrer am Grund der Bohrung dreht; 0: er wartet nicht</translation>
    </message>
    <message>
        <source>How many turns the spindle makes in a minute</source>
        <translation>Wie oft sich die Spindel in einer Minute dreht</translation>
    </message>
    <message>
        <source>How much deeper the drill goes with each peck</source>
        <translation>Um wie viel der Bohrer mit jedem Hub tiefer geht</translation>
    </message>
    <message>
        <source>How much is left for a last, light pass; 0 for no such pass</source>
        <translation>Wie viel für einen letzten, leichten Durchgang stehen bleibt; 0: kein Schlichten</translation>
    </message>
    <message>
        <source>How much of the piece is ready</source>
        <translation>Wie viel vom Werkstück fertig ist</translation>
    </message>
    <message>
        <source>How much the tool takes off at most each time it goes round</source>
        <translation>Wie viel das Werkzeug bei jedem Umlauf höchstens abträgt</translation>
    </message>
    <message>
        <source>In the source</source>
        <translation>In der Quelle</translation>
    </message>
    <message>
        <source>In this order the heights lie above the material</source>
        <translation>In dieser Reihenfolge liegen die Höhen über dem Material</translation>
    </message>
    <message>
        <source>In this order, %1 in all</source>
        <translation>In dieser Reihenfolge, insgesamt %1</translation>
    </message>
    <message>
        <source>It mills nothing: every pen is left out.</source>
        <translation>Es fräst nichts: Jeder Stift wird ausgelassen.</translation>
    </message>
    <message>
        <source>It should go to {1}</source>
        <translation>Hier müsste es nach {1} gehen</translation>
    </message>
    <message>
        <source>It should go to {1} at Z{2}</source>
        <translation>Hier müsste es nach {1} auf Z{2} gehen</translation>
    </message>
    <message>
        <source>It will take %1 on the machine.

</source>
        <translation>Auf der Maschine dauert es %1.

</translation>
    </message>
    <message>
        <source>Job Sheet</source>
        <translation>Einrichteblatt</translation>
    </message>
    <message>
        <source>Job details</source>
        <translation>Auftragsdaten</translation>
    </message>
    <message>
        <source>Job sheet</source>
        <translation>Einrichteblatt</translation>
    </message>
    <message>
        <source>Job sheet %1</source>
        <translation>Einrichteblatt %1</translation>
    </message>
    <message>
        <source>Kestra files</source>
        <translation>Kestra-Dateien</translation>
    </message>
    <message>
        <source>Largest bulge of an arc over its chords</source>
        <translation>Größte Wölbung eines Bogens über seinen Sehnen</translation>
    </message>
    <message>
        <source>Largest deviation</source>
        <translation>Größte Abweichung</translation>
    </message>
    <message>
        <source>Laser file from Inkscape</source>
        <translation>Laserdatei aus Inkscape</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Ebene %1</translation>
    </message>
    <message>
        <source>Layer {1}</source>
        <translation>Ebene {1}</translation>
    </message>
    <message>
        <source>Leave the types as they were (Escape)</source>
        <translation>Die Typen lassen, wie sie waren (Esc)</translation>
    </message>
    <message>
        <source>Length of a tab</source>
        <translation>Länge eines Stegs</translation>
    </message>
    <message>
        <source>Let go to open the drawing</source>
        <translation>Loslassen, um die Zeichnung zu öffnen</translation>
    </message>
    <message>
        <source>Letters unknown, drawn as boxes</source>
        <translation>Unbekannte Buchstaben, als Kästchen gezeichnet</translation>
    </message>
    <message>
        <source>Lines of the program</source>
        <translation>Zeilen des Programms</translation>
    </message>
    <message>
        <source>Look at this line in the piece (Enter)</source>
        <translation>Diese Zeile am Werkstück ansehen (Eingabetaste)</translation>
    </message>
    <message>
        <source>Lost without preparing</source>
        <translation>Ohne Vorbereitung verloren</translation>
    </message>
    <message>
        <source>Lost: {1}</source>
        <translation>Verloren: {1}</translation>
    </message>
    <message>
        <source>Lower left cor&amp;ner at</source>
        <translation>&amp;Linke untere Ecke bei</translation>
    </message>
    <message>
        <source>Lower left corner, X</source>
        <translation>Linke untere Ecke, X</translation>
    </message>
    <message>
        <source>Lower left corner, Y</source>
        <translation>Linke untere Ecke, Y</translation>
    </message>
    <message>
        <source>Machine the selected colour earlier (arrow up)</source>
        <translation>Die ausgewählte Farbe früher fertigen (Pfeil nach oben)</translation>
    </message>
    <message>
        <source>Machine the selected colour later (arrow down)</source>
        <translation>Die ausgewählte Farbe später fertigen (Pfeil nach unten)</translation>
    </message>
    <message>
        <source>Machining order</source>
        <translation>Reihenfolge der Bearbeitung</translation>
    </message>
    <message>
        <source>Made by</source>
        <translation>Gefertigt von</translation>
    </message>
    <message>
        <source>Make no job sheet</source>
        <translation>Kein Einrichteblatt erstellen</translation>
    </message>
    <message>
        <source>Maskor files</source>
        <translation>Maskor-Dateien</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Maximum Depth per Pass</source>
        <translation>Größte Zustellung je Durchgang</translation>
    </message>
    <message>
        <source>Minutes and seconds of the moves, without starts, stops and changes of tools</source>
        <translation>Minuten und Sekunden der Bewegungen, ohne Anlaufen, Halte und Werkzeugwechsel</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Multiplies all lengths, before all else. 25.4 for a drawing in inches.</source>
        <translation>Multipliziert alle Längen, vor allem anderen. 25.4 für eine Zeichnung in Zoll.</translation>
    </message>
    <message>
        <source>Must be filled; it stands at the top of the program</source>
        <translation>Muss ausgefüllt werden; steht am Anfang des Programms</translation>
    </message>
    <message>
        <source>Name of &amp;Part</source>
        <translation>&amp;Name des Teils</translation>
    </message>
    <message>
        <source>Nearly circles</source>
        <translation>Beinahe Kreise</translation>
    </message>
    <message>
        <source>New t&amp;ype:</source>
        <translation>Neuer T&amp;yp:</translation>
    </message>
    <message>
        <source>New type</source>
        <translation>Neuer Typ</translation>
    </message>
    <message>
        <source>No drawing to save</source>
        <translation>Keine Zeichnung zu speichern</translation>
    </message>
    <message>
        <source>No tool has these types; select one to delete it</source>
        <translation>Kein Werkzeug hat diese Typen; wählen Sie einen aus, um ihn zu löschen</translation>
    </message>
    <message>
        <source>No tool was chosen, so the %1 are left out</source>
        <translation>Es wurde kein Werkzeug gewählt, daher werden die %1 ausgelassen</translation>
    </message>
    <message>
        <source>Not carried over: %1</source>
        <translation>Nicht übernommen: %1</translation>
    </message>
    <message>
        <source>Not saved. %1</source>
        <translation>Nicht gespeichert. %1</translation>
    </message>
    <message>
        <source>Not the right size: %1 mm for a %2 mm hole</source>
        <translation>Falsche Größe: %1 mm für eine Bohrung von %2 mm</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Nothing dangerous or wrong is found in it.</source>
        <translation>Es wurde nichts Gefährliches oder Falsches darin gefunden.</translation>
    </message>
    <message>
        <source>Nothing dangerous, wrong or worth a look.</source>
        <translation>Nichts Gefährliches, Falsches oder Auffälliges.</translation>
    </message>
    <message>
        <source>Nothing is written</source>
        <translation>Es wird nichts geschrieben</translation>
    </message>
    <message>
        <source>Number of tabs</source>
        <translation>Anzahl der Stege</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Of what is left standing; the gap in the line is longer by the tool</source>
        <translation>So viel bleibt stehen; die Lücke in der Linie ist um das Werkzeug länger</translation>
    </message>
    <message>
        <source>Off: chords stay chords and curves become lines; the drawing's own arcs stay</source>
        <translation>Aus: Sehnen bleiben Sehnen und Kurven werden zu Linien; eigene Bögen der Zeichnung bleiben</translation>
    </message>
    <message>
        <source>On the line: the cut is as wide as the tool, half of it on each side.
Outside: the part keeps its size. Inside: the hole keeps its size.
Clear the area: as inside, and all within is milled away.</source>
        <translation>Auf der Linie: Der Schnitt ist so breit wie das Werkzeug, je zur Hälfte auf beiden Seiten.
Außen: Das Teil behält sein Maß. Innen: Das Loch behält sein Maß.
Fläche ausräumen: wie innen, und alles darin wird weggefräst.</translation>
    </message>
    <message>
        <source>On the machine</source>
        <translation>Auf der Maschine</translation>
    </message>
    <message>
        <source>One A4 page for the machine: %1, %2, %3.
It shows the drawing, the piece, the billet, the order, the tools and what the check found.</source>
        <translation>Eine A4-Seite für die Maschine: %1, %2, %3.
Sie zeigt Zeichnung, Werkstück, Rohteil, Reihenfolge, Werkzeuge und was die Prüfung gefunden hat.</translation>
    </message>
    <message>
        <source>Only digits and the point</source>
        <translation>Nur Ziffern und der Punkt</translation>
    </message>
    <message>
        <source>Only digits, the point and the minus sign</source>
        <translation>Nur Ziffern, Punkt und Minuszeichen</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>Open a drawing</source>
        <translation>Zeichnung öffnen</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Open lines that stay on the line</source>
        <translation>Offene Linien, die auf der Linie bleiben</translation>
    </message>
    <message>
        <source>Open or drop a drawing</source>
        <translation>Zeichnung öffnen oder hierher ziehen</translation>
    </message>
    <message>
        <source>Open the &amp;folder</source>
        <translation>&amp;Ordner öffnen</translation>
    </message>
    <message>
        <source>Open the dialog with this drawing</source>
        <translation>Den Dialog mit dieser Zeichnung öffnen</translation>
    </message>
    <message>
        <source>Opens the tool list to choose the tool for this page</source>
        <translation>Öffnet die Werkzeugliste, um das Werkzeug für diese Seite zu wählen</translation>
    </message>
    <message>
        <source>Optional; it stands at the top of the program</source>
        <translation>Freiwillig; steht am Anfang des Programms</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>Order what each pen draws so that little is travelled in between</source>
        <translation>Ordnet, was jeder Stift zeichnet, so, dass dazwischen wenig gefahren wird</translation>
    </message>
    <message>
        <source>Other types were deleted than those that were chosen. These are kept now:</source>
        <translation>Es wurden andere Typen gelöscht als die gewählten. Diese bleiben nun:</translation>
    </message>
    <message>
        <source>Outlines that a tool runs beside</source>
        <translation>Umrisse, neben denen ein Werkzeug läuft</translation>
    </message>
    <message>
        <source>Outlines that cross</source>
        <translation>Umrisse, die sich kreuzen</translation>
    </message>
    <message>
        <source>Outlines too short for their tabs</source>
        <translation>Umrisse, zu kurz für ihre Stege</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>P&amp;rogram</source>
        <translation>&amp;Programm</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF-Dateien</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>Passes</source>
        <translation>Durchgänge</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Anhalten (Leertaste)</translation>
    </message>
    <message>
        <source>Peck Distance</source>
        <translation>Zustellung je Bohrhub</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Pen %1</source>
        <translation>Stift %1</translation>
    </message>
    <message>
        <source>Pen %1 of %2</source>
        <translation>Stift %1 von %2</translation>
    </message>
    <message>
        <source>Pen colours of the drawing</source>
        <translation>Stiftfarben der Zeichnung</translation>
    </message>
    <message>
        <source>Pen for %1</source>
        <translation>Stift für %1</translation>
    </message>
    <message>
        <source>Pen that cuts through between the tabs</source>
        <translation>Stift, der zwischen den Stegen durchfräst</translation>
    </message>
    <message>
        <source>Pen {1} {2}</source>
        <translation>Stift {1} {2}</translation>
    </message>
    <message>
        <source>Pens</source>
        <translation>Stifte</translation>
    </message>
    <message>
        <source>Pens and report</source>
        <translation>Stifte und Bericht</translation>
    </message>
    <message>
        <source>Pens of the drawing</source>
        <translation>Stifte der Zeichnung</translation>
    </message>
    <message>
        <source>Picture from a drawing program</source>
        <translation>Bild aus einem Zeichenprogramm</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Place in the list</source>
        <translation>Platz in der Liste</translation>
    </message>
    <message>
        <source>Places too narrow for the tool</source>
        <translation>Stellen, zu eng für das Werkzeug</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Abspielen (Leertaste)</translation>
    </message>
    <message>
        <source>Please choose a tool for %1</source>
        <translation>Bitte wählen Sie ein Werkzeug für %1</translation>
    </message>
    <message>
        <source>Please enter the %1</source>
        <translation>Bitte ausfüllen: %1</translation>
    </message>
    <message>
        <source>Please enter the number that will identify this piece to %1</source>
        <translation>Bitte geben Sie die Nummer ein, unter der %1 dieses Teil kennt</translation>
    </message>
    <message>
        <source>Please give the details for the %1</source>
        <translation>Werte für die %1</translation>
    </message>
    <message>
        <source>Please make sure the diskette is writable</source>
        <translation>Bitte prüfen Sie, ob die Diskette beschreibbar ist</translation>
    </message>
    <message>
        <source>Please put a diskette into Drive A:</source>
        <translation>Bitte legen Sie eine Diskette in Laufwerk A: ein</translation>
    </message>
    <message>
        <source>Plotter drawing</source>
        <translation>Plotterzeichnung</translation>
    </message>
    <message>
        <source>Prepare a Drawing</source>
        <translation>Zeichnung vorbereiten</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Wird vorbereitet…</translation>
    </message>
    <message>
        <source>Preview of the drawing</source>
        <translation>Vorschau der Zeichnung</translation>
    </message>
    <message>
        <source>Print the page</source>
        <translation>Die Seite drucken</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Lila</translation>
    </message>
    <message>
        <source>Rapid Down To</source>
        <translation>Eilgang abwärts bis</translation>
    </message>
    <message>
        <source>Rapid down to</source>
        <translation>Eilgang abwärts bis</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Was gelesen wurde</translation>
    </message>
    <message>
        <source>Ready to be saved</source>
        <translation>Bereit zum Speichern</translation>
    </message>
    <message>
        <source>Recent drawings</source>
        <translation>Zuletzt geöffnete Zeichnungen</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Required information</source>
        <translation>Fehlende Angabe</translation>
    </message>
    <message>
        <source>Rotat&amp;e</source>
        <translation>Dre&amp;hen</translation>
    </message>
    <message>
        <source>Round brackets would end a comment in the program, so they are written as [ and ]</source>
        <translation>Runde Klammern würden einen Kommentar im Programm beenden, daher werden sie als [ und ] geschrieben</translation>
    </message>
    <message>
        <source>Round t&amp;urn</source>
        <translation>Größter Sehnenwi&amp;nkel</translation>
    </message>
    <message>
        <source>SVG and DXF drawings</source>
        <translation>SVG- und DXF-Zeichnungen</translation>
    </message>
    <message>
        <source>Safe Height for Rapids</source>
        <translation>Sicherheitshöhe für Eilgang</translation>
    </message>
    <message>
        <source>Safe height</source>
        <translation>Sicherheitshöhe</translation>
    </message>
    <message>
        <source>Samples to try</source>
        <translation>Beispiele zum Ausprobieren</translation>
    </message>
    <message>
        <source>Save the drawing that stands under After</source>
        <translation>Die Zeichnung unter Nachher speichern</translation>
    </message>
    <message>
        <source>Save the job sheet</source>
        <translation>Einrichteblatt speichern</translation>
    </message>
    <message>
        <source>Save the page as a file</source>
        <translation>Die Seite als Datei speichern</translation>
    </message>
    <message>
        <source>Save the prepared drawing</source>
        <translation>Vorbereitete Zeichnung speichern</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Gespeichert als %1</translation>
    </message>
    <message>
        <source>Sca&amp;le</source>
        <translation>M&amp;aßstab</translation>
    </message>
    <message>
        <source>Search the topics</source>
        <translation>Themen durchsuchen</translation>
    </message>
    <message>
        <source>Select the HPGL file to process</source>
        <translation>HPGL-Datei zum Bearbeiten wählen</translation>
    </message>
    <message>
        <source>Select the Tool for the %1</source>
        <translation>Werkzeug wählen: %1</translation>
    </message>
    <message>
        <source>Select the destination Kestra file</source>
        <translation>Kestra-Datei speichern</translation>
    </message>
    <message>
        <source>Select the destination Maskor file</source>
        <translation>Maskor-Datei speichern</translation>
    </message>
    <message>
        <source>Select the drawing to prepare</source>
        <translation>Zeichnung zum Vorbereiten wählen</translation>
    </message>
    <message>
        <source>Sets all options to what they are when Torvik is new</source>
        <translation>Setzt alle Optionen so, wie sie bei einem neuen Torvik sind</translation>
    </message>
    <message>
        <source>Sets the options as drawings of this kind need them. What you change is kept
for the next one when the prepared drawing is saved.</source>
        <translation>Setzt die Optionen so, wie Zeichnungen dieser Art sie brauchen. Ihre Änderungen bleiben
für die nächste erhalten, sobald die vorbereitete Zeichnung gespeichert ist.</translation>
    </message>
    <message>
        <source>Short &amp;way between lines</source>
        <translation>K&amp;urze Wege zwischen Linien</translation>
    </message>
    <message>
        <source>Show all of the drawing (0 in a view)</source>
        <translation>Die ganze Zeichnung zeigen (0 in einer Ansicht)</translation>
    </message>
    <message>
        <source>Show all of the piece</source>
        <translation>Das ganze Werkstück zeigen</translation>
    </message>
    <message>
        <source>Show where the program was written to</source>
        <translation>Zeigen, wohin das Programm geschrieben wurde</translation>
    </message>
    <message>
        <source>Single strokes are milled as they are drawn</source>
        <translation>Einzelne Striche werden so gefräst, wie sie gezeichnet sind</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Size after</source>
        <translation>Größe nachher</translation>
    </message>
    <message>
        <source>Size before</source>
        <translation>Größe vorher</translation>
    </message>
    <message>
        <source>Sort the tools by diameter</source>
        <translation>Die Werkzeuge nach Durchmesser sortieren</translation>
    </message>
    <message>
        <source>Sort the tools by number</source>
        <translation>Die Werkzeuge nach Nummer sortieren</translation>
    </message>
    <message>
        <source>Sort the tools by type</source>
        <translation>Die Werkzeuge nach Typ sortieren</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Speed: how many times as fast as the machine</source>
        <translation>Tempo: wievielmal so schnell wie die Maschine</translation>
    </message>
    <message>
        <source>Spindle Speed</source>
        <translation>Spindeldrehzahl</translation>
    </message>
    <message>
        <source>Spindle, rpm</source>
        <translation>Spindel, U/min</translation>
    </message>
    <message>
        <source>Spread evenly along each outline</source>
        <translation>Gleichmäßig auf jedem Umriss verteilt</translation>
    </message>
    <message>
        <source>Start and end of the arc lie in one direction from its centre. The machine may cut a full circle or nothing.</source>
        <translation>Anfang und Ende des Bogens liegen vom Mittelpunkt aus in einer Richtung. Die Maschine fräst dort vielleicht einen Vollkreis oder nichts.</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>Store the types</source>
        <translation>Die Typen speichern</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Striche</translation>
    </message>
    <message>
        <source>Strokes joined</source>
        <translation>Verbundene Striche</translation>
    </message>
    <message>
        <source>T%1  %2  %3 mm</source>
        <translation>T%1  %2  %3 mm</translation>
    </message>
    <message>
        <source>T%1 %2 mm</source>
        <translation>T%1 %2 mm</translation>
    </message>
    <message>
        <source>T%1 (not in the list of tools)</source>
        <translation>T%1 (nicht in der Werkzeugliste)</translation>
    </message>
    <message>
        <source>Ta&amp;bs hold the part</source>
        <translation>Hal&amp;testege halten das Teil</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Haltestege</translation>
    </message>
    <message>
        <source>Tabs in the outlines of pen</source>
        <translation>Stege in den Umrissen von Stift</translation>
    </message>
    <message>
        <source>Tabs: %1</source>
        <translation>Haltestege: %1</translation>
    </message>
    <message>
        <source>Take out what the same pen has drawn before</source>
        <translation>Entfernt, was derselbe Stift schon gezeichnet hat</translation>
    </message>
    <message>
        <source>Take the diameter of a tool of the library</source>
        <translation>Den Durchmesser eines Werkzeugs der Liste übernehmen</translation>
    </message>
    <message>
        <source>Take the selected tool out (Delete)</source>
        <translation>Das ausgewählte Werkzeug aus der Liste nehmen (Entf)</translation>
    </message>
    <message>
        <source>Take the tool over (Enter)</source>
        <translation>Das Werkzeug übernehmen (Eingabetaste)</translation>
    </message>
    <message>
        <source>Teacher</source>
        <translation>Lehrkraft</translation>
    </message>
    <message>
        <source>Teaching &amp;Group</source>
        <translation>Klasse oder &amp;Gruppe</translation>
    </message>
    <message>
        <source>Teaching group</source>
        <translation>Klasse oder Gruppe</translation>
    </message>
    <message>
        <source>Texts drawn</source>
        <translation>Gezeichnete Texte</translation>
    </message>
    <message>
        <source>Texts: %1</source>
        <translation>Texte: %1</translation>
    </message>
    <message>
        <source>That of the &amp;system</source>
        <translation>Die des &amp;Systems</translation>
    </message>
    <message>
        <source>The %1 is not a number</source>
        <translation>%1 ist keine Zahl</translation>
    </message>
    <message>
        <source>The %1 is too large a number</source>
        <translation>%1: Die Zahl ist zu groß</translation>
    </message>
    <message>
        <source>The %1 is too large to be stored</source>
        <translation>%1 ist zu groß zum Speichern</translation>
    </message>
    <message>
        <source>The %1 may not be greater than the %2</source>
        <translation>%1 darf nicht größer sein als %2</translation>
    </message>
    <message>
        <source>The %1 may not be negative</source>
        <translation>%1 darf nicht negativ sein</translation>
    </message>
    <message>
        <source>The %1 may not be zero</source>
        <translation>%1 darf nicht 0 sein</translation>
    </message>
    <message>
        <source>The arc ends {1} mm beside its own circle. The machine may refuse it.</source>
        <translation>Der Bogen endet {1} mm neben seinem eigenen Kreis. Die Maschine weist ihn vielleicht zurück.</translation>
    </message>
    <message>
        <source>The arc has no radius: its centre is where it starts.</source>
        <translation>Der Bogen hat keinen Radius: Sein Mittelpunkt liegt an seinem Anfang.</translation>
    </message>
    <message>
        <source>The arc is only {1} mm long. If a full circle was meant, it will not be cut.</source>
        <translation>Der Bogen ist nur {1} mm lang. War ein Vollkreis gemeint, wird er nicht gefräst.</translation>
    </message>
    <message>
        <source>The arc starts almost level with its centre and is read as if it started exactly there. It becomes {1} mm {2} than it is drawn.</source>
        <translation>Der Bogen beginnt fast auf der Höhe seines Mittelpunkts und wird gelesen, als begänne er genau dort. Er wird {1} mm {2} als gezeichnet.</translation>
    </message>
    <message>
        <source>The arrow keys show the other depths</source>
        <translation>Die Pfeiltasten zeigen die anderen Tiefen</translation>
    </message>
    <message>
        <source>The beginning of the program is not right: {1}.</source>
        <translation>Der Anfang des Programms stimmt nicht: {1}.</translation>
    </message>
    <message>
        <source>The centre of this arc</source>
        <translation>Der Mittelpunkt dieses Bogens</translation>
    </message>
    <message>
        <source>The chosen tool's diameter in millimetres</source>
        <translation>Durchmesser des gewählten Werkzeugs in Millimetern</translation>
    </message>
    <message>
        <source>The chosen tool's number in the tool list</source>
        <translation>Nummer des gewählten Werkzeugs in der Werkzeugliste</translation>
    </message>
    <message>
        <source>The chosen tool's type</source>
        <translation>Typ des gewählten Werkzeugs</translation>
    </message>
    <message>
        <source>The circles are drilled as holes. The next pages ask for the details of each hole size.</source>
        <translation>Die Kreise werden gebohrt. Die nächsten Seiten fragen nach den Werten für jede Bohrungsgröße.</translation>
    </message>
    <message>
        <source>The cuts need {1} mm in {3}, the billet has {2} mm.</source>
        <translation>Die Schnitte brauchen {1} mm in {3}, das Rohteil hat {2} mm.</translation>
    </message>
    <message>
        <source>The cuts reach from X %1 to %2 mm and from Y %3 to %4 mm, and go %5 mm deep.</source>
        <translation>Die Schnitte reichen von X %1 bis %2 mm und von Y %3 bis %4 mm und gehen %5 mm tief.</translation>
    </message>
    <message>
        <source>The cuts reach {1}, outside the billet that lies from 0 to {2}.</source>
        <translation>Die Schnitte reichen bis {1}, über das Rohteil hinaus, das von 0 bis {2} liegt.</translation>
    </message>
    <message>
        <source>The cutting diameter in millimetres, with a point</source>
        <translation>Der Schneidendurchmesser in Millimetern, mit Punkt</translation>
    </message>
    <message>
        <source>The depth of {1} is {2} mm, but the billet is only {3} mm thick. The tool would cut the table.</source>
        <translation>Die Tiefe ist {2} mm ({1}), das Rohteil aber nur {3} mm dick. Das Werkzeug würde in den Tisch fräsen.</translation>
    </message>
    <message>
        <source>The depth of {1} is {2} mm. No tool is that long.</source>
        <translation>Die Tiefe ist {2} mm ({1}). So lang ist kein Werkzeug.</translation>
    </message>
    <message>
        <source>The diameter of the tool that mills this pen's lines</source>
        <translation>Der Durchmesser des Werkzeugs, das die Linien dieses Stifts fräst</translation>
    </message>
    <message>
        <source>The drawing</source>
        <translation>Die Zeichnung</translation>
    </message>
    <message>
        <source>The drawing after</source>
        <translation>Die Zeichnung nachher</translation>
    </message>
    <message>
        <source>The drawing appears here.</source>
        <translation>Hier erscheint die Zeichnung.</translation>
    </message>
    <message>
        <source>The drawing before</source>
        <translation>Die Zeichnung vorher</translation>
    </message>
    <message>
        <source>The drawing does not say how large it is: look at its size beside the picture</source>
        <translation>Die Zeichnung sagt nicht, wie groß sie ist: Sehen Sie sich ihre Größe neben dem Bild an</translation>
    </message>
    <message>
        <source>The drawing has a full circle here, but its end is written a little behind its start: only {1} mm of it are cut.</source>
        <translation>Die Zeichnung hat hier einen Vollkreis, sein Ende ist aber kurz hinter seinem Anfang geschrieben: Nur {1} mm davon werden gefräst.</translation>
    </message>
    <message>
        <source>The drawing reaches {1}, outside the billet that lies from 0 to {2}.</source>
        <translation>Die Zeichnung reicht bis {1}, über das Rohteil hinaus, das von 0 bis {2} liegt.</translation>
    </message>
    <message>
        <source>The drawing uses pens above 8 (%1). Choose a pen for each in the list of pens.</source>
        <translation>Die Zeichnung benutzt Stifte über 8 (%1). Wählen Sie für jeden in der Stiftliste einen Stift.</translation>
    </message>
    <message>
        <source>The drill comes up after each peck to clear the hole of chips</source>
        <translation>Der Bohrer fährt nach jedem Hub heraus, um die Bohrung von Spänen zu befreien</translation>
    </message>
    <message>
        <source>The end of the program is not right: {1}.</source>
        <translation>Das Ende des Programms stimmt nicht: {1}.</translation>
    </message>
    <message>
        <source>The end of this cut</source>
        <translation>Das Ende dieses Schnitts</translation>
    </message>
    <message>
        <source>The feed is 0 or below, the machine would stand still.</source>
        <translation>Der Vorschub ist 0 oder kleiner, die Maschine würde stehen bleiben.</translation>
    </message>
    <message>
        <source>The first pen's outlines are drawn once more by the second pen, with gaps.
Give the first pen a depth that ends just above the bottom, and the second
one the full depth: the part stays in its place on the tabs.</source>
        <translation>Der zweite Stift zeichnet die Umrisse des ersten noch einmal, mit Lücken.
Geben Sie dem ersten Stift eine Tiefe, die knapp über der Unterseite endet,
und dem zweiten die volle Tiefe: Das Teil bleibt auf den Stegen an seinem Platz.</translation>
    </message>
    <message>
        <source>The first should go to {1}</source>
        <translation>Zuerst müsste es nach {1} gehen</translation>
    </message>
    <message>
        <source>The first should go to {1} at Z{2}</source>
        <translation>Zuerst müsste es nach {1} auf Z{2} gehen</translation>
    </message>
    <message>
        <source>The folder could not be stored in %1.
It will not be remembered: it lasts until Torvik ends.</source>
        <translation>Der Ordner konnte nicht in %1 gespeichert werden.
Er bleibt nur gemerkt, bis Torvik endet.</translation>
    </message>
    <message>
        <source>The folder's name is too long to be remembered, please choose another:</source>
        <translation>Der Name des Ordners ist zu lang, um gemerkt zu werden; bitte wählen Sie einen anderen:</translation>
    </message>
    <message>
        <source>The heights seen from the side, from the top: %1, %2, %3, material</source>
        <translation>Die Höhen von der Seite gesehen, von oben: %1, %2, %3, Material</translation>
    </message>
    <message>
        <source>The hole</source>
        <translation>Die Bohrung</translation>
    </message>
    <message>
        <source>The hole is not drilled in the steps that the job asks for: {1}.</source>
        <translation>Die Bohrung wird nicht in den Hüben gebohrt, die der Auftrag verlangt: {1}.</translation>
    </message>
    <message>
        <source>The job asks for a feed of {1} mm/min here, the program has {2}.</source>
        <translation>Der Auftrag verlangt hier einen Vorschub von {1} mm/min, das Programm hat {2}.</translation>
    </message>
    <message>
        <source>The job asks for {1} here, the program has {2}.</source>
        <translation>Der Auftrag verlangt hier {1}, das Programm hat {2}.</translation>
    </message>
    <message>
        <source>The job asks the tool to wait {1} here, in the program it waits {2}.</source>
        <translation>Der Auftrag verlangt, dass das Werkzeug hier {1} wartet, im Programm wartet es {2}.</translation>
    </message>
    <message>
        <source>The job sheet was not printed: the printer takes nothing.</source>
        <translation>Das Einrichteblatt wurde nicht gedruckt: Der Drucker nimmt nichts an.</translation>
    </message>
    <message>
        <source>The job sheet was not saved:
%1</source>
        <translation>Das Einrichteblatt wurde nicht gespeichert:
%1</translation>
    </message>
    <message>
        <source>The language could not be saved in %1, so it is at the next start what it was until now.</source>
        <translation>Die Sprache konnte nicht in %1 gespeichert werden. Beim nächsten Start bleibt sie so, wie sie bisher war.</translation>
    </message>
    <message>
        <source>The line does not end with carriage return and line feed, or a control character stands in it.</source>
        <translation>Die Zeile endet nicht mit Wagenrücklauf und Zeilenvorschub, oder ein Steuerzeichen steht darin.</translation>
    </message>
    <message>
        <source>The line number should be N{1}. A line may have been lost, added or moved.</source>
        <translation>Die Zeilennummer müsste N{1} sein. Vielleicht ist eine Zeile verloren gegangen, dazugekommen oder verschoben.</translation>
    </message>
    <message>
        <source>The lower left corner stays where it is</source>
        <translation>Die linke untere Ecke bleibt, wo sie ist</translation>
    </message>
    <message>
        <source>The machine does not stop for this tool change as it should: {1} must stand before it.</source>
        <translation>Die Maschine hält für diesen Werkzeugwechsel nicht so an, wie sie soll: {1} muss davor stehen.</translation>
    </message>
    <message>
        <source>The machining order is another one: {1} come later than the job asks for.</source>
        <translation>Die Reihenfolge der Bearbeitung ist eine andere: {1} kommen später, als der Auftrag verlangt.</translation>
    </message>
    <message>
        <source>The name of a type that is in none of the lists</source>
        <translation>Der Name eines Typs, der in keiner der Listen steht</translation>
    </message>
    <message>
        <source>The number on the tool holder, 1 to 32767</source>
        <translation>Die Nummer auf dem Werkzeughalter, 1 bis 32767</translation>
    </message>
    <message>
        <source>The pass at Z{1} does not fit the pass before. A cut or a whole pass may be missing.</source>
        <translation>Der Durchgang auf Z{1} passt nicht zum Durchgang davor. Vielleicht fehlt ein Schnitt oder ein ganzer Durchgang.</translation>
    </message>
    <message>
        <source>The pen whose outlines are the part's edge</source>
        <translation>Der Stift, dessen Umrisse der Rand des Teils sind</translation>
    </message>
    <message>
        <source>The pens are machined from top to bottom. Move a colour with the buttons, with the arrow keys, or by dragging it. Holes and inner shapes usually come first, the outline that cuts the part free comes last.</source>
        <translation>Die Stifte werden von oben nach unten bearbeitet. Verschieben Sie eine Farbe mit den Schaltflächen, den Pfeiltasten oder der Maus. Löcher und innere Formen kommen meist zuerst; der Umriss, der das Teil freifräst, kommt zuletzt.</translation>
    </message>
    <message>
        <source>The pens of the drawing and their hole sizes; the one on show is bold</source>
        <translation>Die Stifte der Zeichnung und ihre Bohrungsgrößen; was gerade gezeigt wird, ist fett</translation>
    </message>
    <message>
        <source>The piece</source>
        <translation>Das Werkstück</translation>
    </message>
    <message>
        <source>The piece as a solid</source>
        <translation>Das Werkstück als Körper</translation>
    </message>
    <message>
        <source>The piece as the program cuts it</source>
        <translation>Das Werkstück, wie das Programm es fräst</translation>
    </message>
    <message>
        <source>The piece as the program cuts it, move by move, and as a solid</source>
        <translation>Das Werkstück, wie das Programm es fräst, Bewegung für Bewegung und als Körper</translation>
    </message>
    <message>
        <source>The piece is shown here when its program has been tried</source>
        <translation>Hier erscheint das Werkstück, wenn sein Programm erprobt ist</translation>
    </message>
    <message>
        <source>The piece – %1</source>
        <translation>Das Werkstück – %1</translation>
    </message>
    <message>
        <source>The prepared drawing is saved as
%1

Do you want to open it now?</source>
        <translation>Die vorbereitete Zeichnung ist gespeichert als
%1

Soll sie jetzt geöffnet werden?</translation>
    </message>
    <message>
        <source>The program cannot be written: %1.</source>
        <translation>Das Programm kann nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>The program cuts before it has taken a tool.</source>
        <translation>Das Programm fräst, bevor es ein Werkzeug genommen hat.</translation>
    </message>
    <message>
        <source>The program ends, but the spindle still turns.</source>
        <translation>Das Programm endet, aber die Spindel dreht sich noch.</translation>
    </message>
    <message>
        <source>The program has been written to
%1

</source>
        <translation>Das Programm wurde geschrieben als
%1

</translation>
    </message>
    <message>
        <source>The program has more than %1 lines. That is too long to be tried.</source>
        <translation>Das Programm hat mehr als %1 Zeilen. Das ist zu lang, um es zu erproben.</translation>
    </message>
    <message>
        <source>The program is being tried…</source>
        <translation>Das Programm wird erprobt…</translation>
    </message>
    <message>
        <source>The program number may be 1 to 32767 only</source>
        <translation>Die Programmnummer muss von 1 bis 32767 sein</translation>
    </message>
    <message>
        <source>The same tool has drilled a hole at this place before.</source>
        <translation>Dasselbe Werkzeug hat an dieser Stelle schon gebohrt.</translation>
    </message>
    <message>
        <source>The saved answers are damaged and were not used: %1</source>
        <translation>Die gespeicherten Angaben sind beschädigt und wurden nicht verwendet: %1</translation>
    </message>
    <message>
        <source>The slow way down begins at Z{1} already. The quick move to Z{2} may be missing.</source>
        <translation>Der langsame Weg nach unten beginnt schon auf Z{1}. Vielleicht fehlt der Eilgang bis Z{2}.</translation>
    </message>
    <message>
        <source>The spindle speed is 0, the tool does not turn.</source>
        <translation>Die Spindeldrehzahl ist 0, das Werkzeug dreht sich nicht.</translation>
    </message>
    <message>
        <source>The start of the cut</source>
        <translation>Der Anfang des Schnitts</translation>
    </message>
    <message>
        <source>The tool cuts at Z{1}, above the material. It does not go down far enough.</source>
        <translation>Das Werkzeug fräst auf Z{1}, über dem Material. Es fährt nicht weit genug nach unten.</translation>
    </message>
    <message>
        <source>The tool cuts while the spindle stands still. The spindle speed may be missing.</source>
        <translation>Das Werkzeug fräst, während die Spindel steht. Vielleicht fehlt die Spindeldrehzahl.</translation>
    </message>
    <message>
        <source>The tool diameter is not a number
Please enter a different diameter</source>
        <translation>Der Werkzeugdurchmesser ist keine Zahl
Bitte geben Sie einen anderen Durchmesser ein</translation>
    </message>
    <message>
        <source>The tool diameter is too large to be stored
Please enter a smaller diameter</source>
        <translation>Der Werkzeugdurchmesser ist zu groß zum Speichern
Bitte geben Sie einen kleineren Durchmesser ein</translation>
    </message>
    <message>
        <source>The tool diameter may not be negative
Please enter a different diameter</source>
        <translation>Der Werkzeugdurchmesser darf nicht negativ sein
Bitte geben Sie einen anderen Durchmesser ein</translation>
    </message>
    <message>
        <source>The tool gets here on another way than it should: {1}.</source>
        <translation>Das Werkzeug kommt hier auf einem anderen Weg an, als es soll: {1}.</translation>
    </message>
    <message>
        <source>The tool goes down to Z{1} at full speed and hits the material.</source>
        <translation>Das Werkzeug fährt im Eilgang nach unten auf Z{1} und stößt in das Material.</translation>
    </message>
    <message>
        <source>The tool goes into the material and comes out again without cutting.</source>
        <translation>Das Werkzeug fährt in das Material und wieder heraus, ohne zu fräsen.</translation>
    </message>
    <message>
        <source>The tool goes up and down again at one place. A move sideways may be missing.</source>
        <translation>Das Werkzeug fährt an einer Stelle hoch und wieder hinunter. Vielleicht fehlt eine Bewegung zur Seite.</translation>
    </message>
    <message>
        <source>The tool goes up slowly from Z{1} to Z{2}, where a way down should be.</source>
        <translation>Das Werkzeug fährt langsam von Z{1} auf Z{2} hoch, wo ein Weg nach unten sein müsste.</translation>
    </message>
    <message>
        <source>The tool goes {1} mm deep and so through the billet of {2} mm.</source>
        <translation>Das Werkzeug geht {1} mm tief und damit durch das Rohteil von {2} mm.</translation>
    </message>
    <message>
        <source>The tool goes {1} mm deep, but the billet is {2} mm thick. It would cut the table.</source>
        <translation>Das Werkzeug geht {1} mm tief, das Rohteil ist aber {2} mm dick. Es würde in den Tisch fräsen.</translation>
    </message>
    <message>
        <source>The tool is at Z{1} here. That is not deep enough: for {2} the job asks for Z{3}.</source>
        <translation>Das Werkzeug ist hier auf Z{1}. Das ist nicht tief genug: Für {2} verlangt der Auftrag Z{3}.</translation>
    </message>
    <message>
        <source>The tool is at Z{1} here. That is too deep: for {2} the job asks for Z{3}.{4}</source>
        <translation>Das Werkzeug ist hier auf Z{1}. Das ist zu tief: Für {2} verlangt der Auftrag Z{3}.{4}</translation>
    </message>
    <message>
        <source>The tool is changed at Z{1}. It should be at Z{2} or higher for that.</source>
        <translation>Das Werkzeug wird auf Z{1} gewechselt. Dafür müsste es auf Z{2} oder höher sein.</translation>
    </message>
    <message>
        <source>The tool is changed while the spindle turns.</source>
        <translation>Das Werkzeug wird gewechselt, während sich die Spindel dreht.</translation>
    </message>
    <message>
        <source>The tool is {2} mm wide, too wide for {1}.</source>
        <translation>Das Werkzeug ist {2} mm breit, zu breit für {1}.</translation>
    </message>
    <message>
        <source>The tool library is empty</source>
        <translation>Die Werkzeugliste ist leer</translation>
    </message>
    <message>
        <source>The tool moves along the surface at Z0.00 and cuts nothing.</source>
        <translation>Das Werkzeug fährt auf der Oberfläche Z0.00 entlang und fräst nichts.</translation>
    </message>
    <message>
        <source>The tool moves although the program has not said yet {1}.</source>
        <translation>Das Werkzeug bewegt sich, obwohl das Programm noch nicht gesagt hat, {1}.</translation>
    </message>
    <message>
        <source>The tool moves sideways at full speed at Z{1}, inside the material.</source>
        <translation>Das Werkzeug fährt im Eilgang seitwärts auf Z{1}, im Material.</translation>
    </message>
    <message>
        <source>The tool moves sideways at full speed at Z{1}; elsewhere it first goes up to Z{2}.</source>
        <translation>Das Werkzeug fährt im Eilgang seitwärts auf Z{1}; sonst fährt es zuerst hoch auf Z{2}.</translation>
    </message>
    <message>
        <source>The tool runs</source>
        <translation>Das Werkzeug läuft</translation>
    </message>
    <message>
        <source>The tool that cannot be read
(%1)?
</source>
        <translation>Das Werkzeug, das nicht lesbar ist
(%1)?
</translation>
    </message>
    <message>
        <source>The tool type and the tool diameter are together too long to be stored
Please change your selection</source>
        <translation>Werkzeugtyp und Werkzeugdurchmesser sind zusammen zu lang zum Speichern
Bitte ändern Sie Ihre Auswahl</translation>
    </message>
    <message>
        <source>The tool type is too long to be stored
Please enter a shorter name</source>
        <translation>Der Werkzeugtyp ist zu lang zum Speichern
Bitte geben Sie einen kürzeren Namen ein</translation>
    </message>
    <message>
        <source>The tool waits {1} s at Z{2}. That is unusual.</source>
        <translation>Das Werkzeug wartet {1} s auf Z{2}. Das ist ungewöhnlich.</translation>
    </message>
    <message>
        <source>The tool waits {2} s in each of {1}. That is longer than usual.</source>
        <translation>Das Werkzeug wartet jedes Mal {2} s ({1}). Das ist länger als üblich.</translation>
    </message>
    <message>
        <source>The tools are not those of the header's list: {1}.</source>
        <translation>Die Werkzeuge sind nicht die aus der Liste im Kopf: {1}.</translation>
    </message>
    <message>
        <source>The tools could not be saved in %1: they last until Torvik ends</source>
        <translation>Die Werkzeuge konnten nicht in %1 gespeichert werden: Sie gelten, bis Torvik endet</translation>
    </message>
    <message>
        <source>The unit of every feed rate on the pages that follow</source>
        <translation>Die Einheit aller Vorschübe auf den folgenden Seiten</translation>
    </message>
    <message>
        <source>The widest chord that may stand for a piece of a circle. An octagon has 45°, so it stays an octagon.</source>
        <translation>Die breiteste Sehne, die für ein Stück eines Kreises stehen darf. Ein Achteck hat 45°, es bleibt also ein Achteck.</translation>
    </message>
    <message>
        <source>The work seen from the side</source>
        <translation>Die Arbeit von der Seite gesehen</translation>
    </message>
    <message>
        <source>The workshop's tools. Choose one with a click or the arrow keys</source>
        <translation>Die Werkzeuge der Werkstatt. Wählen Sie eines mit einem Klick oder den Pfeiltasten</translation>
    </message>
    <message>
        <source>The {1} is lower than the {2}. It should be at least as high.</source>
        <translation>{1} ist niedriger als {2}, sollte aber mindestens so hoch sein.</translation>
    </message>
    <message>
        <source>The {1} must be above 0, or the tool goes through the material at full speed.</source>
        <translation>{1} muss über 0 liegen, sonst fährt das Werkzeug im Eilgang durch das Material.</translation>
    </message>
    <message>
        <source>There are no tools yet. Press Add and enter the tools of your workshop, each with its number and the diameter that you measure.</source>
        <translation>Es gibt noch keine Werkzeuge. Wählen Sie Hinzufügen und tragen Sie die Werkzeuge Ihrer Werkstatt ein, jedes mit seiner Nummer und dem Durchmesser, den Sie messen.</translation>
    </message>
    <message>
        <source>There is a point already</source>
        <translation>Es gibt schon einen Punkt</translation>
    </message>
    <message>
        <source>There is no job sheet: %1.</source>
        <translation>Es gibt kein Einrichteblatt: %1.</translation>
    </message>
    <message>
        <source>There is no list of tools to compare with the tools of the program.</source>
        <translation>Es gibt keine Werkzeugliste, mit der die Werkzeuge des Programms verglichen werden könnten.</translation>
    </message>
    <message>
        <source>There is not enough memory for this drawing</source>
        <translation>Der Speicher reicht für diese Zeichnung nicht</translation>
    </message>
    <message>
        <source>There is not enough memory to show this piece.</source>
        <translation>Der Speicher reicht nicht, um dieses Werkstück zu zeigen.</translation>
    </message>
    <message>
        <source>These {1} cuts are</source>
        <translation>Diese {1} Schnitte sind</translation>
    </message>
    <message>
        <source>These {1} holes are</source>
        <translation>Diese {1} Bohrungen sind</translation>
    </message>
    <message>
        <source>This cut is</source>
        <translation>Dieser Schnitt ist</translation>
    </message>
    <message>
        <source>This drawing holds nothing that can be milled:</source>
        <translation>Diese Zeichnung enthält nichts, was gefräst werden kann:</translation>
    </message>
    <message>
        <source>This file shows no drawing</source>
        <translation>Diese Datei zeigt keine Zeichnung</translation>
    </message>
    <message>
        <source>This hole is</source>
        <translation>Diese Bohrung ist</translation>
    </message>
    <message>
        <source>This hole is not drilled like the holes beside it.</source>
        <translation>Diese Bohrung wird nicht so gebohrt wie die Bohrungen daneben.</translation>
    </message>
    <message>
        <source>This is the drawing itself.
Please choose another name for the program.</source>
        <translation>Das ist die Zeichnung selbst.
Bitte wählen Sie einen anderen Namen für das Programm.</translation>
    </message>
    <message>
        <source>This is the drawing itself. Please choose another name.</source>
        <translation>Das ist die Zeichnung selbst. Bitte wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>This move has no feed (F).</source>
        <translation>Diese Bewegung hat keinen Vorschub (F).</translation>
    </message>
    <message>
        <source>This part of the drawing is left out</source>
        <translation>Dieser Teil der Zeichnung wird ausgelassen</translation>
    </message>
    <message>
        <source>This part of the drawing is machined</source>
        <translation>Dieser Teil der Zeichnung wird gefertigt</translation>
    </message>
    <message>
        <source>This program is dangerous, or does not do what you asked for:</source>
        <translation>Dieses Programm ist gefährlich oder tut nicht, was Sie verlangt haben:</translation>
    </message>
    <message>
        <source>This program will have %1 lines (about %2 MB) in %3 depth passes and pecks, most of them for %4.
Do you want to write it?</source>
        <translation>Dieses Programm wird %1 Zeilen (etwa %2 MB) haben, in %3 Durchgängen und Bohrhüben, die meisten davon für %4.
Soll es geschrieben werden?</translation>
    </message>
    <message>
        <source>This program would have more than %1 lines, most of them for %2, so it is not written.
Larger steps or a smaller depth make it shorter.</source>
        <translation>Dieses Programm hätte mehr als %1 Zeilen, die meisten davon für %2, und wird daher nicht geschrieben.
Größere Zustellungen oder eine geringere Tiefe machen es kürzer.</translation>
    </message>
    <message>
        <source>Three digits after the point at most</source>
        <translation>Höchstens drei Ziffern hinter dem Punkt</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Time in the program</source>
        <translation>Zeit im Programm</translation>
    </message>
    <message>
        <source>To the next page (Enter)</source>
        <translation>Zur nächsten Seite (Eingabetaste)</translation>
    </message>
    <message>
        <source>To the page before</source>
        <translation>Zur vorigen Seite</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>Tool &amp;Change Height</source>
        <translation>Werkzeugwe&amp;chselhöhe</translation>
    </message>
    <message>
        <source>Tool &amp;Number</source>
        <translation>Werkzeug&amp;nummer</translation>
    </message>
    <message>
        <source>Tool &amp;Type</source>
        <translation>Werkzeug&amp;typ</translation>
    </message>
    <message>
        <source>Tool &amp;diameter (mm):</source>
        <translation>&amp;Durchmesser (mm):</translation>
    </message>
    <message>
        <source>Tool &amp;number:</source>
        <translation>Werkzeug&amp;nummer:</translation>
    </message>
    <message>
        <source>Tool &amp;type:</source>
        <translation>Werkzeug&amp;typ:</translation>
    </message>
    <message>
        <source>Tool Change Height</source>
        <translation>Werkzeugwechselhöhe</translation>
    </message>
    <message>
        <source>Tool Deletion</source>
        <translation>Werkzeug löschen</translation>
    </message>
    <message>
        <source>Tool Dia&amp;meter (mm)</source>
        <translation>&amp;Durchmesser (mm)</translation>
    </message>
    <message>
        <source>Tool T%1 is no longer in the tool list</source>
        <translation>Werkzeug T%1 ist nicht mehr in der Werkzeugliste</translation>
    </message>
    <message>
        <source>Tool T&amp;ypes…</source>
        <translation>Werkzeugt&amp;ypen…</translation>
    </message>
    <message>
        <source>Tool T{1} is not in the header's list.</source>
        <translation>Werkzeug T{1} steht nicht in der Liste im Kopf.</translation>
    </message>
    <message>
        <source>Tool T{1} is used with the length of another tool: {2} should be {3}.</source>
        <translation>Werkzeug T{1} wird mit der Länge eines anderen Werkzeugs benutzt: {2} müsste {3} sein.</translation>
    </message>
    <message>
        <source>Tool change height</source>
        <translation>Werkzeugwechselhöhe</translation>
    </message>
    <message>
        <source>Tool changes</source>
        <translation>Werkzeugwechsel</translation>
    </message>
    <message>
        <source>Tool changes: %1</source>
        <translation>Werkzeugwechsel: %1</translation>
    </message>
    <message>
        <source>Tool changes: {1}. With another order of the pens there would be only {2}.</source>
        <translation>Werkzeugwechsel: {1}. Mit einer anderen Reihenfolge der Stifte wären es nur {2}.</translation>
    </message>
    <message>
        <source>Tool diameter</source>
        <translation>Werkzeugdurchmesser</translation>
    </message>
    <message>
        <source>Tool no. %1
(%2  %3 mm)?
</source>
        <translation>Werkzeug Nr. %1
(%2  %3 mm)?
</translation>
    </message>
    <message>
        <source>Tool number</source>
        <translation>Werkzeug-Nr.</translation>
    </message>
    <message>
        <source>Tool number %1 is already in use
Please enter a different number</source>
        <translation>Werkzeugnummer %1 ist schon vergeben
Bitte geben Sie eine andere Nummer ein</translation>
    </message>
    <message>
        <source>Tool number %1 is not a whole number
Please enter a different number</source>
        <translation>Werkzeugnummer %1 ist keine ganze Zahl
Bitte geben Sie eine andere Nummer ein</translation>
    </message>
    <message>
        <source>Tool number %1 is too large
Please enter a number up to 32767</source>
        <translation>Werkzeugnummer %1 ist zu groß
Bitte geben Sie eine Nummer bis 32767 ein</translation>
    </message>
    <message>
        <source>Tool of pen {1}</source>
        <translation>Werkzeug von Stift {1}</translation>
    </message>
    <message>
        <source>Tool of the library for %1</source>
        <translation>Werkzeug der Liste für %1</translation>
    </message>
    <message>
        <source>Tool type</source>
        <translation>Werkzeugtyp</translation>
    </message>
    <message>
        <source>Tool's diameter</source>
        <translation>Werkzeug-Ø</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Tools have these types, so that they cannot be deleted</source>
        <translation>Werkzeuge haben diese Typen, daher können sie nicht gelöscht werden</translation>
    </message>
    <message>
        <source>Tools, as they are changed</source>
        <translation>Werkzeuge in der Reihenfolge des Wechsels</translation>
    </message>
    <message>
        <source>Tools: %1 × %2 mm</source>
        <translation>Werkzeuge: %1 × %2 mm</translation>
    </message>
    <message>
        <source>Top of the material: Z 0</source>
        <translation>Oberseite des Materials: Z 0</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>Thema</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Themen</translation>
    </message>
    <message>
        <source>Torvik - importing from HPGL file %1</source>
        <translation>Torvik - HPGL-Datei %1 wird gelesen</translation>
    </message>
    <message>
        <source>Torvik Help</source>
        <translation>Torvik-Hilfe</translation>
    </message>
    <message>
        <source>Torvik cannot start as a previous instance is still running</source>
        <translation>Torvik kann nicht starten, weil es schon läuft</translation>
    </message>
    <message>
        <source>Trying the program before it is written…</source>
        <translation>Das Programm wird vor dem Schreiben erprobt…</translation>
    </message>
    <message>
        <source>Type of tool %1</source>
        <translation>Typ von Werkzeug %1</translation>
    </message>
    <message>
        <source>T{1} has another place in it</source>
        <translation>T{1} steht dort an einer anderen Stelle</translation>
    </message>
    <message>
        <source>Unknown, passed over</source>
        <translation>Unbekannt, übergangen</translation>
    </message>
    <message>
        <source>Use the selected tool and store the tools</source>
        <translation>Das ausgewählte Werkzeug verwenden und die Werkzeuge speichern</translation>
    </message>
    <message>
        <source>Usual options</source>
        <translation>Übliche Optionen</translation>
    </message>
    <message>
        <source>Vertical Feed Rate into Material</source>
        <translation>Vorschub senkrecht (Eintauchen)</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>What becomes of it appears here</source>
        <translation>Hier erscheint, was daraus wird</translation>
    </message>
    <message>
        <source>What kind of tool it is</source>
        <translation>Was für ein Werkzeug es ist</translation>
    </message>
    <message>
        <source>What lies inside an outline is drawn before the outline, while the part still holds; always so where the tool runs beside a line</source>
        <translation>Was in einem Umriss liegt, wird vor dem Umriss gezeichnet, solange das Teil noch hält; immer, wo das Werkzeug neben einer Linie läuft</translation>
    </message>
    <message>
        <source>What lies under the pointer</source>
        <translation>Was unter dem Mauszeiger liegt</translation>
    </message>
    <message>
        <source>What the check found</source>
        <translation>Was die Prüfung gefunden hat</translation>
    </message>
    <message>
        <source>What the details below are about, seen from the side</source>
        <translation>Worum es bei den Werten unten geht, von der Seite gesehen</translation>
    </message>
    <message>
        <source>What will be written</source>
        <translation>Was geschrieben wird</translation>
    </message>
    <message>
        <source>What would you like to do next?</source>
        <translation>Was möchten Sie als Nächstes tun?</translation>
    </message>
    <message>
        <source>Wheel or + and -: zoom. Drag or arrow keys: move. 0: all of it. Click a cut to find its line in the program.</source>
        <translation>Mausrad oder + und -: zoomen. Ziehen oder Pfeiltasten: verschieben. 0: alles. Klick auf einen Schnitt: seine Zeile im Programm.</translation>
    </message>
    <message>
        <source>Wheel: zoom. Drag: move. Double click: all of it.</source>
        <translation>Mausrad: zoomen. Ziehen: verschieben. Doppelklick: alles.</translation>
    </message>
    <message>
        <source>Where drawings like this one come from</source>
        <translation>Woher Zeichnungen wie diese kommen</translation>
    </message>
    <message>
        <source>Where the lower left corner of all lines comes to</source>
        <translation>Wohin die linke untere Ecke aller Linien kommt</translation>
    </message>
    <message>
        <source>Where the tool is changed, well above the work and its clamps</source>
        <translation>Wo das Werkzeug gewechselt wird, weit über Werkstück und Spannmitteln</translation>
    </message>
    <message>
        <source>Where the tool runs for %1</source>
        <translation>Wo das Werkzeug läuft, für %1</translation>
    </message>
    <message>
        <source>Where the tool travels quickly across the work without touching anything</source>
        <translation>Wo das Werkzeug schnell über das Werkstück fährt, ohne etwas zu berühren</translation>
    </message>
    <message>
        <source>Which pen draws what is chosen in the list of pens: by the colours or by the layers of the CAD drawing</source>
        <translation>Welcher Stift was zeichnet, wird in der Stiftliste gewählt: nach den Farben oder nach den Ebenen der CAD-Zeichnung</translation>
    </message>
    <message>
        <source>Width and height of all lines</source>
        <translation>Breite und Höhe aller Linien</translation>
    </message>
    <message>
        <source>Width and height of the drawing, and a bar to measure with</source>
        <translation>Breite und Höhe der Zeichnung, dazu ein Maßstabsbalken</translation>
    </message>
    <message>
        <source>Without effect on lines</source>
        <translation>Ohne Wirkung auf Linien</translation>
    </message>
    <message>
        <source>Would you like to cut the circles as drilled holes?</source>
        <translation>Sollen die Kreise gebohrt werden?</translation>
    </message>
    <message>
        <source>Write the program (Enter)</source>
        <translation>Das Programm schreiben (Eingabetaste)</translation>
    </message>
    <message>
        <source>Write the program as it is</source>
        <translation>Das Programm so schreiben, wie es ist</translation>
    </message>
    <message>
        <source>Write the program for</source>
        <translation>Das Programm schreiben für</translation>
    </message>
    <message>
        <source>Writin&amp;g</source>
        <translation>S&amp;chrift</translation>
    </message>
    <message>
        <source>Writing the program, %1 lines…</source>
        <translation>Das Programm wird geschrieben, %1 Zeilen…</translation>
    </message>
    <message>
        <source>X {1} to {2}, Y {3} to {4}</source>
        <translation>X {1} bis {2}, Y {3} bis {4}</translation>
    </message>
    <message>
        <source>You already have a tool of type %1
with diameter %2mm
Please change your selection</source>
        <translation>Sie haben schon ein Werkzeug vom Typ %1
mit Durchmesser %2mm
Bitte ändern Sie Ihre Auswahl</translation>
    </message>
    <message>
        <source>You can take the stick out now.</source>
        <translation>Der Stick kann jetzt abgezogen werden.</translation>
    </message>
    <message>
        <source>You have chosen a %1 mm diameter tool to drill a %2 mm diameter circle.
Are you sure you want to use this tool?</source>
        <translation>Sie haben ein Werkzeug mit %1 mm Durchmesser gewählt, um einen Kreis mit %2 mm Durchmesser zu bohren.
Möchten Sie dieses Werkzeug wirklich verwenden?</translation>
    </message>
    <message>
        <source>Your answers could not be kept in %1: they last until Torvik ends</source>
        <translation>Ihre Angaben konnten nicht in %1 festgehalten werden: Sie gelten, bis Torvik endet</translation>
    </message>
    <message>
        <source>Zero point</source>
        <translation>Nullpunkt</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>a file (.%1) where you choose</source>
        <translation>eine Datei (.%1), wo Sie möchten</translation>
    </message>
    <message>
        <source>a move</source>
        <translation>eine Bewegung</translation>
    </message>
    <message>
        <source>a program cannot hold %1, ? stands there instead</source>
        <translation>ein Programm kann %1 nicht enthalten, dort steht ?</translation>
    </message>
    <message>
        <source>a round bracket ends the comment, and the control may read the rest as statements</source>
        <translation>eine runde Klammer beendet den Kommentar, und die Steuerung kann den Rest für Befehle halten</translation>
    </message>
    <message>
        <source>a straight line</source>
        <translation>eine gerade Linie</translation>
    </message>
    <message>
        <source>a:\ is %1</source>
        <translation>a:\ ist %1</translation>
    </message>
    <message>
        <source>a:\ is the diskette drive itself</source>
        <translation>a:\ ist das Diskettenlaufwerk selbst</translation>
    </message>
    <message>
        <source>a:\ leads nowhere yet. %1 programs need a folder for it.</source>
        <translation>a:\ führt noch nirgendwohin. Programme für %1 brauchen dafür einen Ordner.</translation>
    </message>
    <message>
        <source>about {1} h</source>
        <translation>etwa {1} h</translation>
    </message>
    <message>
        <source>about {1} h {2} min</source>
        <translation>etwa {1} h {2} min</translation>
    </message>
    <message>
        <source>about {1} min</source>
        <translation>etwa {1} min</translation>
    </message>
    <message>
        <source>all of it</source>
        <translation>alles</translation>
    </message>
    <message>
        <source>an arc clockwise</source>
        <translation>einen Bogen im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>an arc counter-clockwise</source>
        <translation>einen Bogen gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>arcs with the pen up (not drawn)</source>
        <translation>Bögen mit angehobenem Stift (nicht gezeichnet)</translation>
    </message>
    <message>
        <source>as the file's program does</source>
        <translation>wie das Programm der Datei</translation>
    </message>
    <message>
        <source>at %1</source>
        <translation>um %1</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>choose…</source>
        <translation>wählen…</translation>
    </message>
    <message>
        <source>circles</source>
        <translation>Kreise</translation>
    </message>
    <message>
        <source>circles and arcs asked for with coarse chords (drawn round)</source>
        <translation>Kreise und Bögen mit groben Sehnen (rund gezeichnet)</translation>
    </message>
    <message>
        <source>clear the area</source>
        <translation>Fläche ausräumen</translation>
    </message>
    <message>
        <source>clipping windows (what lies outside is drawn too)</source>
        <translation>Ausschnitte (was außerhalb liegt, wird auch gezeichnet)</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>cut</source>
        <translation>fräsen</translation>
    </message>
    <message>
        <source>cut through by</source>
        <translation>durchgefräst von</translation>
    </message>
    <message>
        <source>danger</source>
        <translation>Gefahr</translation>
    </message>
    <message>
        <source>dashed line types (drawn as full lines)</source>
        <translation>gestrichelte Linien (durchgezogen gezeichnet)</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>designer</source>
        <translation>Konstrukteur/in</translation>
    </message>
    <message>
        <source>dimensions (not drawn)</source>
        <translation>Bemaßungen (nicht gezeichnet)</translation>
    </message>
    <message>
        <source>dots (not drawn without a diameter)</source>
        <translation>Punkte (ohne Durchmesser nicht gezeichnet)</translation>
    </message>
    <message>
        <source>drill</source>
        <translation>bohren</translation>
    </message>
    <message>
        <source>each colour</source>
        <translation>jede Farbe</translation>
    </message>
    <message>
        <source>each layer</source>
        <translation>jede Ebene</translation>
    </message>
    <message>
        <source>fills (only the outline is drawn)</source>
        <translation>Füllungen (nur der Umriss wird gezeichnet)</translation>
    </message>
    <message>
        <source>front and back, %1 are free</source>
        <translation>vorn und hinten, %1 sind frei</translation>
    </message>
    <message>
        <source>front left corner, Z 0 on top</source>
        <translation>vordere linke Ecke, Z 0 oben</translation>
    </message>
    <message>
        <source>gradients, patterns, masks and filters (not drawn)</source>
        <translation>Verläufe, Muster, Masken und Filter (nicht gezeichnet)</translation>
    </message>
    <message>
        <source>hatches (not drawn)</source>
        <translation>Schraffuren (nicht gezeichnet)</translation>
    </message>
    <message>
        <source>hidden shapes</source>
        <translation>verborgene Formen</translation>
    </message>
    <message>
        <source>hidden things</source>
        <translation>verborgene Objekte</translation>
    </message>
    <message>
        <source>hole size</source>
        <translation>Bohrungsgröße</translation>
    </message>
    <message>
        <source>how high the tool is</source>
        <translation>wie hoch das Werkzeug ist</translation>
    </message>
    <message>
        <source>in single strokes</source>
        <translation>in einzelnen Strichen</translation>
    </message>
    <message>
        <source>in the source, not drawn</source>
        <translation>in der Quelle, nicht gezeichnet</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>inside</source>
        <translation>innen</translation>
    </message>
    <message>
        <source>instructions with missing or senseless numbers (passed over)</source>
        <translation>Anweisungen mit fehlenden oder sinnlosen Zahlen (übergangen)</translation>
    </message>
    <message>
        <source>it ends here, but lines follow</source>
        <translation>Es endet hier, aber danach folgen noch Zeilen</translation>
    </message>
    <message>
        <source>it names {1}, the program takes {2}</source>
        <translation>Sie nennt {1}, das Programm nimmt {2}</translation>
    </message>
    <message>
        <source>left and right</source>
        <translation>links und rechts</translation>
    </message>
    <message>
        <source>left and right, %1 are free</source>
        <translation>links und rechts, %1 sind frei</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>ausgelassen</translation>
    </message>
    <message>
        <source>length of each</source>
        <translation>Länge von je</translation>
    </message>
    <message>
        <source>less than 1 min</source>
        <translation>weniger als 1 min</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>line {1}</source>
        <translation>Zeile {1}</translation>
    </message>
    <message>
        <source>line {1} and {2} more</source>
        <translation>Zeile {1} und {2} weitere</translation>
    </message>
    <message>
        <source>lines drawn with no pen in the holder (not drawn)</source>
        <translation>Linien ohne Stift im Halter (nicht gezeichnet)</translation>
    </message>
    <message>
        <source>lines follow behind it</source>
        <translation>Dahinter folgen noch Zeilen</translation>
    </message>
    <message>
        <source>lines to cut</source>
        <translation>Linien zum Fräsen</translation>
    </message>
    <message>
        <source>lines without an end (not drawn)</source>
        <translation>Linien ohne Ende (nicht gezeichnet)</translation>
    </message>
    <message>
        <source>longer</source>
        <translation>länger</translation>
    </message>
    <message>
        <source>look</source>
        <translation>prüfen</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>mm per &amp;minute</source>
        <translation>mm pro &amp;Minute</translation>
    </message>
    <message>
        <source>mm per secon&amp;d</source>
        <translation>mm pro Seku&amp;nde</translation>
    </message>
    <message>
        <source>name of the part</source>
        <translation>Name des Teils</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nicht</translation>
    </message>
    <message>
        <source>no side is free: see the piece</source>
        <translation>keine Seite ist frei: siehe Werkstück</translation>
    </message>
    <message>
        <source>no tool</source>
        <translation>kein Werkzeug</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine Angabe</translation>
    </message>
    <message>
        <source>none is selected; everything is drawn by pen 1</source>
        <translation>keiner ist gewählt; alles wird mit Stift 1 gezeichnet</translation>
    </message>
    <message>
        <source>none of the controls knows it</source>
        <translation>Keine der Steuerungen kennt ihn</translation>
    </message>
    <message>
        <source>not at all</source>
        <translation>gar nicht</translation>
    </message>
    <message>
        <source>not cut</source>
        <translation>nicht gefräst</translation>
    </message>
    <message>
        <source>not given</source>
        <translation>nicht angegeben</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>nothing is stored</source>
        <translation>es ist nichts gespeichert</translation>
    </message>
    <message>
        <source>on %1 at %2</source>
        <translation>am %1 um %2</translation>
    </message>
    <message>
        <source>on the diskette, as a:\%1…</source>
        <translation>auf der Diskette, als a:\%1…</translation>
    </message>
    <message>
        <source>on the line</source>
        <translation>auf der Linie</translation>
    </message>
    <message>
        <source>outlines of</source>
        <translation>Umrisse von</translation>
    </message>
    <message>
        <source>outside</source>
        <translation>außen</translation>
    </message>
    <message>
        <source>page ends (all pages are drawn over one another)</source>
        <translation>Seitenenden (alle Seiten werden übereinander gezeichnet)</translation>
    </message>
    <message>
        <source>pen {1}, {2} stroke</source>
        <translation>Stift {1}, {2} Strich</translation>
    </message>
    <message>
        <source>pen {1}, {2} strokes</source>
        <translation>Stift {1}, {2} Striche</translation>
    </message>
    <message>
        <source>pictures (not drawn)</source>
        <translation>Bilder (nicht gezeichnet)</translation>
    </message>
    <message>
        <source>pictures made of dots (not drawn)</source>
        <translation>Bilder aus Punkten (nicht gezeichnet)</translation>
    </message>
    <message>
        <source>rpm</source>
        <translation>U/min</translation>
    </message>
    <message>
        <source>rules of style sheets that are not understood</source>
        <translation>Stilregeln, die nicht verstanden werden</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>scaled without corners of its own; those of an A4 plotter are taken</source>
        <translation>skaliert ohne eigene Eckpunkte; es gelten die eines A4-Plotters</translation>
    </message>
    <message>
        <source>shapes of a switch that another one stands for</source>
        <translation>Formen einer Auswahl, für die eine andere steht</translation>
    </message>
    <message>
        <source>shapes of clip paths, masks, patterns and markers</source>
        <translation>Formen von Ausschnitten, Masken, Mustern und Markierungen</translation>
    </message>
    <message>
        <source>shapes of no size</source>
        <translation>Formen ohne Größe</translation>
    </message>
    <message>
        <source>shapes that are kept for use and not used</source>
        <translation>Formen auf Vorrat, die nicht verwendet werden</translation>
    </message>
    <message>
        <source>shapes within elements that are not drawn</source>
        <translation>Formen in Elementen, die nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>shapes within texts, uses and other shapes</source>
        <translation>Formen in Texten, Verweisen und anderen Formen</translation>
    </message>
    <message>
        <source>shapes without a visible line or fill</source>
        <translation>Formen ohne sichtbare Linie oder Fläche</translation>
    </message>
    <message>
        <source>shorter</source>
        <translation>kürzer</translation>
    </message>
    <message>
        <source>sorted, the largest first</source>
        <translation>sortiert, das größte zuerst</translation>
    </message>
    <message>
        <source>sorted, the smallest first</source>
        <translation>sortiert, das kleinste zuerst</translation>
    </message>
    <message>
        <source>symbols and characters of the drawing's own (not drawn)</source>
        <translation>eigene Symbole und Zeichen der Zeichnung (nicht gezeichnet)</translation>
    </message>
    <message>
        <source>tabs each</source>
        <translation>Stege je Umriss</translation>
    </message>
    <message>
        <source>templates of texts (not drawn)</source>
        <translation>Vorlagen für Texte (nicht gezeichnet)</translation>
    </message>
    <message>
        <source>texts (not drawn)</source>
        <translation>Texte (nicht gezeichnet)</translation>
    </message>
    <message>
        <source>texts without letters</source>
        <translation>Texte ohne Buchstaben</translation>
    </message>
    <message>
        <source>the %1 lines</source>
        <translation>die Linien in %1</translation>
    </message>
    <message>
        <source>the %1 mm %2 holes</source>
        <translation>die %1-mm-Bohrungen in %2</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>das Ende</translation>
    </message>
    <message>
        <source>the job sheet cannot be made</source>
        <translation>das Einrichteblatt kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>the program cannot be made</source>
        <translation>das Programm kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>the program is too long for a job sheet</source>
        <translation>das Programm ist zu lang für ein Einrichteblatt</translation>
    </message>
    <message>
        <source>the quick move to Z{1}</source>
        <translation>der Eilgang auf Z{1}</translation>
    </message>
    <message>
        <source>the quick move to {1}</source>
        <translation>der Eilgang nach {1}</translation>
    </message>
    <message>
        <source>the slow move to Z{1}</source>
        <translation>der langsame Weg auf Z{1}</translation>
    </message>
    <message>
        <source>the stop of the spindle</source>
        <translation>der Halt der Spindel</translation>
    </message>
    <message>
        <source>the wait</source>
        <translation>das Warten</translation>
    </message>
    <message>
        <source>the {1} lines</source>
        <translation>die Linien in {1}</translation>
    </message>
    <message>
        <source>the {1} mm {2} holes</source>
        <translation>die {1}-mm-Bohrungen in {2}</translation>
    </message>
    <message>
        <source>things in space (3D)</source>
        <translation>Objekte im Raum (3D)</translation>
    </message>
    <message>
        <source>things on layers that are off or frozen</source>
        <translation>Objekte auf ausgeschalteten oder eingefrorenen Layern</translation>
    </message>
    <message>
        <source>things on the paper's side</source>
        <translation>Objekte im Papierbereich</translation>
    </message>
    <message>
        <source>through</source>
        <translation>durchgehend</translation>
    </message>
    <message>
        <source>too narrow for the tool</source>
        <translation>zu eng für das Werkzeug</translation>
    </message>
    <message>
        <source>unknown {1}</source>
        <translation>unbekannt {1}</translation>
    </message>
    <message>
        <source>up and down</source>
        <translation>oben und unten</translation>
    </message>
    <message>
        <source>uses of blocks that the file does not hold</source>
        <translation>Verweise auf Blöcke, die in der Datei fehlen</translation>
    </message>
    <message>
        <source>uses of shapes that the file does not hold</source>
        <translation>Verweise auf Formen, die in der Datei fehlen</translation>
    </message>
    <message>
        <source>what comes before the first pen is drawn by pen 1</source>
        <translation>was vor dem ersten Stift kommt, wird mit Stift 1 gezeichnet</translation>
    </message>
    <message>
        <source>what the tool mills away (tinted)</source>
        <translation>was das Werkzeug wegfräst (getönt)</translation>
    </message>
    <message>
        <source>where the tool is, X and Y</source>
        <translation>wo das Werkzeug in X und Y ist</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation>falsch</translation>
    </message>
    <message>
        <source>{1} (a tolerance of {2} makes circles of them)</source>
        <translation>{1} (mit einer Toleranz von {2} werden es Kreise)</translation>
    </message>
    <message>
        <source>{1} and the program number is missing</source>
        <translation>{1} mit der Programmnummer fehlt</translation>
    </message>
    <message>
        <source>{1} cuts of {2} are</source>
        <translation>{1} Schnitte ({2}) sind</translation>
    </message>
    <message>
        <source>{1} done at another time than the job asks for.</source>
        <translation>{1} zu einer anderen Zeit dran, als der Auftrag verlangt.</translation>
    </message>
    <message>
        <source>{1} done before: the job asks for it once only.</source>
        <translation>{1} schon vorher gemacht: Der Auftrag verlangt es nur einmal.</translation>
    </message>
    <message>
        <source>{1} holes of {2} are</source>
        <translation>{1} Bohrungen ({2}) sind</translation>
    </message>
    <message>
        <source>{1} is missing</source>
        <translation>{1} fehlt</translation>
    </message>
    <message>
        <source>{1} is too much</source>
        <translation>{1} ist zu viel</translation>
    </message>
    <message>
        <source>{1} line, {2} arc, {3} circle</source>
        <translation>{1} Linie, {2} Bogen, {3} Kreis</translation>
    </message>
    <message>
        <source>{1} line, {2} arc, {3} circles</source>
        <translation>{1} Linie, {2} Bogen, {3} Kreise</translation>
    </message>
    <message>
        <source>{1} line, {2} arcs, {3} circle</source>
        <translation>{1} Linie, {2} Bögen, {3} Kreis</translation>
    </message>
    <message>
        <source>{1} line, {2} arcs, {3} circles</source>
        <translation>{1} Linie, {2} Bögen, {3} Kreise</translation>
    </message>
    <message>
        <source>{1} lines, {2} arc, {3} circle</source>
        <translation>{1} Linien, {2} Bogen, {3} Kreis</translation>
    </message>
    <message>
        <source>{1} lines, {2} arc, {3} circles</source>
        <translation>{1} Linien, {2} Bogen, {3} Kreise</translation>
    </message>
    <message>
        <source>{1} lines, {2} arcs, {3} circle</source>
        <translation>{1} Linien, {2} Bögen, {3} Kreis</translation>
    </message>
    <message>
        <source>{1} lines, {2} arcs, {3} circles</source>
        <translation>{1} Linien, {2} Bögen, {3} Kreise</translation>
    </message>
    <message>
        <source>{1} missing here. {2}.</source>
        <translation>{1} hier nicht vorhanden. {2}.</translation>
    </message>
    <message>
        <source>{1} no part of the job.</source>
        <translation>{1} nicht Teil des Auftrags.</translation>
    </message>
    <message>
        <source>{1} should be at {2}, here it is at {3}.</source>
        <translation>{1} müsste bei {2} sein, ist hier aber bei {3}.</translation>
    </message>
    <message>
        <source>{1} stands where {2} should be</source>
        <translation>{1} steht dort, wo {2} stehen müsste</translation>
    </message>
    <message>
        <source>{1} – cut</source>
        <translation>{1} – fräsen</translation>
    </message>
    <message>
        <source>{1} – {2} mm holes</source>
        <translation>{1} – Bohrungen {2} mm</translation>
    </message>
    <message>
        <source>{1}, drawn as circles</source>
        <translation>{1}, als Kreise gezeichnet</translation>
    </message>
    <message>
        <source>{1}, not drawn without a diameter</source>
        <translation>{1}, ohne Durchmesser nicht gezeichnet</translation>
    </message>
    <message>
        <source>{1}, the first at X {2} Y {3}</source>
        <translation>{1}, der erste bei X {2} Y {3}</translation>
    </message>
    <message>
        <source>←  &amp;Back</source>
        <translation>←  &amp;Zurück</translation>
    </message>
</context>
</TS>
