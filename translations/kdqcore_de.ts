<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CloseCommand</name>
    <message>
        <source>Closes a document. Usage: close DOCUMENT</source>
        <translation>Schließt ein Dokument. Aufruf: close DOKUMENT</translation>
    </message>
    <message>
        <source>close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>close &apos;%1&apos;</source>
        <translation>„%1“ schließen</translation>
    </message>
    <message>
        <source>No document has the number &apos;%1&apos;.</source>
        <translation>Kein Dokument hat die Nummer „%1“.</translation>
    </message>
</context>
<context>
    <name>CsvCommands</name>
    <message>
        <source>Tables as commented CSV files for spreadsheets and scripts.</source>
        <translation>Tabellen als kommentierte CSV-Dateien für Tabellenkalkulationen und Skripte.</translation>
    </message>
    <message>
        <source>Writes a table as CSV; titles: one line of titles instead of comments; bare: rows alone; protect: no text runs as a formula; mark: byte order mark.</source>
        <translation>Schreibt eine Tabelle als CSV; titles: eine Zeile mit Überschriften statt Kommentaren; bare: nur die Zeilen; protect: kein Text wird als Formel ausgeführt; mark: Bytereihenfolge-Marke.</translation>
    </message>
    <message>
        <source>Shows the separators that CSV files get where nothing is said; stores others for this and later runs.</source>
        <translation>Zeigt die Trennzeichen, die CSV-Dateien ohne Angabe erhalten; speichert andere für diesen und spätere Läufe.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; written to &apos;%2&apos;.</source>
        <translation>Tabelle „%1“ in „%2“ geschrieben.</translation>
    </message>
    <message>
        <source>&apos;titles&apos; and &apos;bare&apos; exclude each other.</source>
        <translation>„titles“ und „bare“ schließen einander aus.</translation>
    </message>
    <message>
        <source>No column of table &apos;%1&apos; can be converted to &apos;%2&apos;.</source>
        <translation>Keine Spalte der Tabelle „%1“ lässt sich in „%2“ umrechnen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no decimal mark; possible are point and comma.</source>
        <translation>„%1“ ist kein Dezimalzeichen; möglich sind point und comma.</translation>
    </message>
    <message>
        <source>The settings &apos;%1&apos; cannot be read or written.</source>
        <translation>Die Einstellungen „%1“ lassen sich nicht lesen oder schreiben.</translation>
    </message>
</context>
<context>
    <name>CurveView</name>
    <message>
        <source>All curves</source>
        <translation>Alle Kurven</translation>
    </message>
</context>
<context>
    <name>DeckCommands</name>
    <message>
        <source>The table needs an id above 0 (id ID).</source>
        <translation>Die Tabelle braucht eine Nummer über 0 (id ID).</translation>
    </message>
    <message>
        <source>The table needs the solver&apos;s code of its independent variable (variable CODE).</source>
        <translation>Die Tabelle braucht die Nummer ihrer unabhängigen Variablen beim Solver (variable CODE).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be converted to &apos;%2&apos;; from and to name two units.</source>
        <translation>„%1“ lässt sich nicht in „%2“ umrechnen; from und to nennen zwei Einheiten.</translation>
    </message>
    <message>
        <source>Column %1 of table &apos;%2&apos; must have a number as its name, not &apos;%3&apos;.</source>
        <translation>Spalte %1 der Tabelle „%2“ muss eine Zahl als Namen haben, nicht „%3“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no solver; possible are: %2.</source>
        <translation>„%1“ ist kein Solver; möglich sind: %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no section key; possible is table.</source>
        <translation>„%1“ ist kein Abschnittsschlüssel; möglich ist table.</translation>
    </message>
    <message>
        <source>The table needs the solver&apos;s code of its second variable (variable2 CODE).</source>
        <translation>Die Tabelle braucht die Nummer ihrer zweiten Variablen beim Solver (variable2 CODE).</translation>
    </message>
    <message>
        <source>The formula of table &apos;%1&apos; is empty.</source>
        <translation>Die Formel der Tabelle „%1“ ist leer.</translation>
    </message>
    <message>
        <source>The point load needs a list of nodes (nodes NAME) and a body of 0 or above (body ID); the deck holds comments instead.</source>
        <translation>Die Punktlast braucht eine Knotenliste (nodes NAME) und einen Körper ab 0 (body ID); im Deck stehen stattdessen Kommentare.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no unit of electric current.</source>
        <translation>„%1“ ist keine Einheit der Stromstärke.</translation>
    </message>
    <message>
        <source>The solver&apos;s input deck: its lines and its cards.</source>
        <translation>Das Eingabedeck des Solvers: seine Zeilen und seine Karten.</translation>
    </message>
    <message>
        <source>Begins a deck; free and extended where nothing is said.</source>
        <translation>Beginnt ein Deck; ohne Angabe in freiem Format und erweiterter Breite.</translation>
    </message>
    <message>
        <source>Ends the deck and says whether all of it was written.</source>
        <translation>Beendet das Deck und sagt, ob alles geschrieben wurde.</translation>
    </message>
    <message>
        <source>Hands everything written so far to the system.</source>
        <translation>Übergibt alles bisher Geschriebene dem System.</translation>
    </message>
    <message>
        <source>Shows file and layout of the deck.</source>
        <translation>Zeigt Datei und Form des Decks.</translation>
    </message>
    <message>
        <source>Changes the layout of the lines to come.</source>
        <translation>Ändert das Format der folgenden Zeilen.</translation>
    </message>
    <message>
        <source>Writes the title line.</source>
        <translation>Schreibt die Titelzeile.</translation>
    </message>
    <message>
        <source>Writes comment lines, cut where the text is too long for one.</source>
        <translation>Schreibt Kommentarzeilen, geteilt, wo der Text für eine zu lang ist.</translation>
    </message>
    <message>
        <source>Writes a keyword line.</source>
        <translation>Schreibt eine Schlüsselwortzeile.</translation>
    </message>
    <message>
        <source>Writes a key of the parameter section, without line end.</source>
        <translation>Schreibt einen Schlüssel des Parameterabschnitts, ohne Zeilenende.</translation>
    </message>
    <message>
        <source>Writes a text as it is, without line end.</source>
        <translation>Schreibt einen Text, wie er ist, ohne Zeilenende.</translation>
    </message>
    <message>
        <source>Ends the line.</source>
        <translation>Beendet die Zeile.</translation>
    </message>
    <message>
        <source>Writes the line &quot;element&quot;.</source>
        <translation>Schreibt die Zeile „element“.</translation>
    </message>
    <message>
        <source>Writes the line &quot;feature&quot;.</source>
        <translation>Schreibt die Zeile „feature“.</translation>
    </message>
    <message>
        <source>Writes the line &quot;nodal&quot;.</source>
        <translation>Schreibt die Zeile „nodal“.</translation>
    </message>
    <message>
        <source>Writes the line &quot;loadcase&quot;.</source>
        <translation>Schreibt die Zeile „loadcase“.</translation>
    </message>
    <message>
        <source>Writes a list of whole numbers.</source>
        <translation>Schreibt eine Liste ganzer Zahlen.</translation>
    </message>
    <message>
        <source>Writes a list of numbers.</source>
        <translation>Schreibt eine Liste von Zahlen.</translation>
    </message>
    <message>
        <source>Writes the values of a table&apos;s column as a list.</source>
        <translation>Schreibt die Werte einer Tabellenspalte als Liste.</translation>
    </message>
    <message>
        <source>Writes the key of the parameter section that allows tables.</source>
        <translation>Schreibt den Schlüssel des Parameterabschnitts, der Tabellen erlaubt.</translation>
    </message>
    <message>
        <source>Writes a table of two columns in its own units; hold: no extrapolation.</source>
        <translation>Schreibt eine Tabelle aus zwei Spalten in ihren eigenen Einheiten; hold: keine Extrapolation.</translation>
    </message>
    <message>
        <source>Writes a table of two variables: the first in its first column, the second in the other columns&apos; names, converted where from and to say so; single: one value a line.</source>
        <translation>Schreibt eine Tabelle zweier Variablen: die erste in ihrer ersten Spalte, die zweite in den Namen der anderen Spalten, umgerechnet, wo from und to es sagen; single: ein Wert je Zeile.</translation>
    </message>
    <message>
        <source>Writes the solver option: automatic, pardiso, multifrontal, mumps, iterative, sparse, casi, profile or mixed.</source>
        <translation>Schreibt die Option des Solvers: automatic, pardiso, multifrontal, mumps, iterative, sparse, casi, profile oder mixed.</translation>
    </message>
    <message>
        <source>Writes the process line.</source>
        <translation>Schreibt die Prozesszeile.</translation>
    </message>
    <message>
        <source>Writes automatic loading.</source>
        <translation>Schreibt die automatische Belastung.</translation>
    </message>
    <message>
        <source>Writes a force on a list of nodes, in newton.</source>
        <translation>Schreibt eine Kraft auf eine Knotenliste, in Newton.</translation>
    </message>
    <message>
        <source>Writes an electric current at a node, constant or by a table.</source>
        <translation>Schreibt einen elektrischen Strom an einem Knoten, konstant oder nach einer Tabelle.</translation>
    </message>
    <message>
        <source>The deck &apos;%1&apos; is still open; see &apos;deck close&apos;.</source>
        <translation>Das Deck „%1“ ist noch offen; siehe „deck close“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no layout; possible are fixed, free, standard, extended.</source>
        <translation>„%1“ ist keine Form; möglich sind fixed, free, standard, extended.</translation>
    </message>
    <message>
        <source>No deck is open.</source>
        <translation>Es ist kein Deck offen.</translation>
    </message>
    <message>
        <source>Deck &apos;%1&apos; written.</source>
        <translation>Deck „%1“ geschrieben.</translation>
    </message>
    <message>
        <source>Deck &apos;%1&apos;: %2, %3.</source>
        <translation>Deck „%1“: %2, %3.</translation>
    </message>
    <message>
        <source>fixed columns</source>
        <translation>feste Spalten</translation>
    </message>
    <message>
        <source>free format</source>
        <translation>freies Format</translation>
    </message>
    <message>
        <source>standard widths</source>
        <translation>Standardbreiten</translation>
    </message>
    <message>
        <source>extended widths</source>
        <translation>erweiterte Breiten</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no format; possible are fixed and free.</source>
        <translation>„%1“ ist kein Format; möglich sind fixed und free.</translation>
    </message>
    <message>
        <source>PERLINE must be at least 1, not %1.</source>
        <translation>PERLINE muss mindestens 1 sein, nicht %1.</translation>
    </message>
    <message>
        <source>Number %1</source>
        <translation>Zahl %1</translation>
    </message>
    <message>
        <source>Writes a table that the solver evaluates from a formula of v1 and v2, checked and with the values of parameters put in; unchecked: as it is.</source>
        <translation>Schreibt eine Tabelle, die der Solver aus einer Formel von v1 und v2 berechnet, geprüft und mit eingesetzten Parametern; unchecked: wie sie ist.</translation>
    </message>
    <message>
        <source>Says what the solver would stumble over in a deck; fails on errors, not on warnings.</source>
        <translation>Sagt, worüber der Solver in einem Deck stolpern würde; scheitert bei Fehlern, nicht bei Warnungen.</translation>
    </message>
    <message>
        <source>Lists what a deck holds: line, lines, option.</source>
        <translation>Zeigt, was ein Deck enthält: Zeile, Zeilen, Option.</translation>
    </message>
    <message>
        <source>Compares two decks option by option, numbers within a relative tolerance.</source>
        <translation>Vergleicht zwei Decks Option für Option, Zahlen mit relativer Toleranz.</translation>
    </message>
    <message>
        <source>Changes one option of a deck and nothing else; the new lines come from a file. OPTION as in &apos;deck show&apos;, the N-th of several; keep: the old deck stays as FILE.bak.</source>
        <translation>Ändert eine Option eines Decks und sonst nichts; die neuen Zeilen kommen aus einer Datei. OPTION wie in „deck show“, die N-te von mehreren; keep: das alte Deck bleibt als FILE.bak.</translation>
    </message>
    <message>
        <source>Loads the tables of a deck into the session, under their names, without units.</source>
        <translation>Lädt die Tabellen eines Decks in die Sitzung, unter ihren Namen, ohne Einheiten.</translation>
    </message>
    <message>
        <source>The deck &apos;%1&apos; cannot be read: %2</source>
        <translation>Das Deck „%1“ lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>Deck &apos;%1&apos; (%2): options %3, errors %4, warnings %5.</source>
        <translation>Deck „%1“ (%2): Optionen %3, Fehler %4, Warnungen %5.</translation>
    </message>
    <message>
        <source>The deck &apos;%1&apos; has errors: %2.</source>
        <translation>Das Deck „%1“ hat Fehler: %2.</translation>
    </message>
    <message>
        <source>line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Deck &apos;%1&apos;: %2.</source>
        <translation>Deck „%1“: %2.</translation>
    </message>
    <message>
        <source>The decks differ: %1.</source>
        <translation>Die Decks unterscheiden sich: %1.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; of the new lines (with LINESFILE) cannot be read: %2</source>
        <translation>Die Datei „%1“ der neuen Zeilen (with LINESFILE) lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no change; possible are replace, before, after, remove.</source>
        <translation>„%1“ ist keine Änderung; möglich sind replace, before, after, remove.</translation>
    </message>
    <message>
        <source>Tables of &apos;%1&apos;: %2.</source>
        <translation>Tabellen von „%1“: %2.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Widths are standard or extended, not both.</source>
        <translation>Breiten sind standard oder extended, nicht beides.</translation>
    </message>
    <message>
        <source>An option is removed without new lines (with LINESFILE).</source>
        <translation>Zum Entfernen einer Option gehören keine neuen Zeilen (with LINESFILE).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs a file of the new lines (with LINESFILE).</source>
        <translation>„%1“ braucht eine Datei mit den neuen Zeilen (with LINESFILE).</translation>
    </message>
    <message>
        <source>The deck &apos;%1&apos; (%2) holds no option &quot;%3&quot; of number %4; see &apos;deck show&apos;.</source>
        <translation>Das Deck „%1“ (%2) enthält keine Option „%3“ mit der Nummer %4; siehe „deck show“.</translation>
    </message>
    <message>
        <source>Reading &apos;%1&apos;</source>
        <translation>„%1“ wird gelesen</translation>
    </message>
    <message>
        <source>Changing &apos;%1&apos;</source>
        <translation>„%1“ wird geändert</translation>
    </message>
    <message>
        <source>Writing to the deck</source>
        <translation>Deck wird geschrieben</translation>
    </message>
</context>
<context>
    <name>DeckDocument</name>
    <message>
        <source>deck, options: %1, tables: %2</source>
        <translation>Deck, Optionen: %1, Tabellen: %2</translation>
    </message>
    <message>
        <source>line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>option</source>
        <translation>Option</translation>
    </message>
</context>
<context>
    <name>DocumentReader</name>
    <message>
        <source>&apos;%1&apos; cannot be read: %2</source>
        <translation>„%1“ lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>it is a folder.</source>
        <translation>es ist ein Ordner.</translation>
    </message>
    <message>
        <source>Reading &apos;%1&apos;</source>
        <translation>Lese „%1“</translation>
    </message>
    <message>
        <source>Reading &apos;%1&apos; was stopped.</source>
        <translation>Das Lesen von „%1“ wurde abgebrochen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is empty.</source>
        <translation>„%1“ ist leer.</translation>
    </message>
    <message>
        <source>&apos;%1&apos;, line %2: %3</source>
        <translation>„%1“, Zeile %2: %3</translation>
    </message>
    <message>
        <source>&apos;%1&apos; holds no table.</source>
        <translation>„%1“ enthält keine Tabelle.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has comments between its values: saving leaves them out.</source>
        <translation>„%1“ hat Kommentare zwischen den Werten: Beim Speichern fallen sie weg.</translation>
    </message>
</context>
<context>
    <name>EditCommand</name>
    <message>
        <source>No document has the number &apos;%1&apos;.</source>
        <translation>Kein Dokument hat die Nummer „%1“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be edited here.</source>
        <translation>„%1“ kann hier nicht geändert werden.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number from 1 to %2.</source>
        <translation>„%1“ ist keine Zahl von 1 bis %2.</translation>
    </message>
</context>
<context>
    <name>Figure</name>
    <message>
        <source>A picture has one or two y axes, not %1.</source>
        <translation>Ein Bild hat eine oder zwei y-Achsen, nicht %1.</translation>
    </message>
    <message>
        <source>A picture shows at most %1 curves, not %2.</source>
        <translation>Ein Bild zeigt höchstens %1 Kurven, nicht %2.</translation>
    </message>
    <message>
        <source>There is nothing to draw: no curve has a point that can be shown.</source>
        <translation>Es gibt nichts zu zeichnen: Keine Kurve hat einen Punkt, der sich zeigen lässt.</translation>
    </message>
    <message>
        <source>The curves have %1 pieces with gaps between, more than the %2 that can be drawn.</source>
        <translation>Die Kurven haben %1 Stücke mit Lücken dazwischen, mehr als die %2, die sich zeichnen lassen.</translation>
    </message>
    <message>
        <source>The axis &apos;%1&apos; cannot reach to %2.</source>
        <translation>Die Achse „%1“ kann nicht bis %2 reichen.</translation>
    </message>
    <message>
        <source>The logarithmic axis &apos;%1&apos; must begin above 0, not at %2.</source>
        <translation>Die logarithmische Achse „%1“ muss über 0 beginnen, nicht bei %2.</translation>
    </message>
    <message>
        <source>The axis &apos;%1&apos; must rise, not run from %2 to %3.</source>
        <translation>Die Achse „%1“ muss steigen, nicht von %2 bis %3 laufen.</translation>
    </message>
    <message>
        <source>Curve &apos;%1&apos; belongs to y axis %2, and there are only %3.</source>
        <translation>Die Kurve „%1“ gehört zur y-Achse %2, und es gibt nur %3.</translation>
    </message>
    <message>
        <source>Curve &apos;%1&apos; has the point (%2, %3), which lies too far out to be drawn.</source>
        <translation>Die Kurve „%1“ hat den Punkt (%2, %3), der zu weit außen liegt, um gezeichnet zu werden.</translation>
    </message>
    <message>
        <source>Curve &apos;%1&apos; has %2 points; at most %3 can be drawn singly, without a line.</source>
        <translation>Die Kurve „%1“ hat %2 Punkte; höchstens %3 lassen sich einzeln, ohne Linie, zeichnen.</translation>
    </message>
    <message>
        <source>an axis</source>
        <translation>eine Achse</translation>
    </message>
    <message>
        <source>The picture&apos;s description is wrong: &apos;%1&apos; must be %2.</source>
        <translation>Die Beschreibung des Bildes ist falsch: „%1“ muss %2 sein.</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>0 or 1</source>
        <translation>0 oder 1</translation>
    </message>
    <message>
        <source>a pair of numbers, or null for a gap</source>
        <translation>ein Zahlenpaar oder null für eine Lücke</translation>
    </message>
    <message>
        <source>The picture&apos;s description is wrong: it must be an object.</source>
        <translation>Die Beschreibung des Bildes ist falsch: Sie muss ein Objekt sein.</translation>
    </message>
    <message>
        <source>The picture&apos;s description is no JSON: %1 at byte %2.</source>
        <translation>Die Beschreibung des Bildes ist kein JSON: %1 bei Byte %2.</translation>
    </message>
    <message>
        <source>A picture has %1 to %2 pixels each way, not %3 x %4.</source>
        <translation>Ein Bild hat in jeder Richtung %1 bis %2 Pixel, nicht %3 x %4.</translation>
    </message>
</context>
<context>
    <name>FormulaCommands</name>
    <message>
        <source>Formulas of parameters and variables, checked and evaluated.</source>
        <translation>Formeln aus Parametern und Variablen, geprüft und ausgewertet.</translation>
    </message>
    <message>
        <source>Says what is wrong with a formula, or how it is understood.</source>
        <translation>Sagt, was an einer Formel falsch ist oder wie sie verstanden wird.</translation>
    </message>
    <message>
        <source>Lists the variables of a formula, with the values of parameters.</source>
        <translation>Listet die Variablen einer Formel auf, mit den Werten der Parameter.</translation>
    </message>
    <message>
        <source>Shows the value of a formula, or its values while one variable runs.</source>
        <translation>Zeigt den Wert einer Formel oder ihre Werte, während eine Variable läuft.</translation>
    </message>
    <message>
        <source>Makes a table of a formula&apos;s values while one variable runs.</source>
        <translation>Macht aus den Werten einer Formel, während eine Variable läuft, eine Tabelle.</translation>
    </message>
    <message>
        <source>The table needs a variable that runs (over NAME) and a name of its own (as NEW).</source>
        <translation>Die Tabelle braucht eine Variable, die läuft (over NAME), und einen eigenen Namen (as NEW).</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>&apos;%1&apos; in the formula is neither a variable of the table (%2) nor a parameter.</source>
        <translation>„%1“ in der Formel ist weder eine Variable der Tabelle (%2) noch ein Parameter.</translation>
    </message>
    <message>
        <source>The number of points must be 2 to %1, not %2.</source>
        <translation>Die Zahl der Punkte muss 2 bis %1 sein, nicht %2.</translation>
    </message>
    <message>
        <source>The variable that runs is missing (over NAME).</source>
        <translation>Die Variable, die läuft, fehlt (over NAME).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs two ends to run between (from A to B).</source>
        <translation>„%1“ braucht zwei Enden, zwischen denen es läuft (from A to B).</translation>
    </message>
    <message>
        <source>Evaluating the formula</source>
        <translation>Die Formel wird ausgewertet</translation>
    </message>
</context>
<context>
    <name>HeatCommands</name>
    <message>
        <source>&apos;%1&apos; cannot be read: %2</source>
        <translation>„%1“ lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>Heat treatments: the stages of a process, their settings and curves.</source>
        <translation>Wärmebehandlungen: die Stufen eines Prozesses, ihre Einstellungen und Kurven.</translation>
    </message>
    <message>
        <source>Makes a process with the stages of its field of application.</source>
        <translation>Legt einen Prozess mit den Stufen seines Anwendungsgebiets an.</translation>
    </message>
    <message>
        <source>Lists the processes, or the stages of one.</source>
        <translation>Listet die Prozesse auf oder die Stufen eines Prozesses.</translation>
    </message>
    <message>
        <source>Shows all settings of a stage.</source>
        <translation>Zeigt alle Einstellungen einer Stufe.</translation>
    </message>
    <message>
        <source>Changes settings of a stage. INPUT: VALUE UNIT, table TABLE, predefined NAME or project NAME; whole: the stage does not end early; PASS: diffusion, thermal, structural or none.</source>
        <translation>Ändert Einstellungen einer Stufe. INPUT: VALUE UNIT, table TABLE, predefined NAME oder project NAME; whole: die Stufe endet nicht vorzeitig; PASS: diffusion, thermal, structural oder none.</translation>
    </message>
    <message>
        <source>Has stages take part in the process.</source>
        <translation>Lässt Stufen am Prozess teilnehmen.</translation>
    </message>
    <message>
        <source>Leaves stages out of the process.</source>
        <translation>Lässt Stufen aus dem Prozess weg.</translation>
    </message>
    <message>
        <source>Removes a process from the session.</source>
        <translation>Entfernt einen Prozess aus der Sitzung.</translation>
    </message>
    <message>
        <source>Writes a process as XML.</source>
        <translation>Schreibt einen Prozess als XML.</translation>
    </message>
    <message>
        <source>Reads a process from its XML form.</source>
        <translation>Liest einen Prozess aus seiner XML-Form.</translation>
    </message>
    <message>
        <source>Fails where two processes differ, and says in what stages.</source>
        <translation>Scheitert, wenn sich zwei Prozesse unterscheiden, und sagt, in welchen Stufen.</translation>
    </message>
    <message>
        <source>Makes a table of the session of the table that a stage has.</source>
        <translation>Macht die Tabelle einer Stufe zu einer Tabelle der Sitzung.</translation>
    </message>
    <message>
        <source>Lists the predefined tables of a folder.</source>
        <translation>Listet die vordefinierten Tabellen eines Ordners auf.</translation>
    </message>
    <message>
        <source>Copies the predefined tables that a process refers to into a project&apos;s folder.</source>
        <translation>Kopiert die vordefinierten Tabellen, auf die sich ein Prozess bezieht, in den Ordner eines Projekts.</translation>
    </message>
    <message>
        <source>There is no process &apos;%1&apos;; see &apos;heat new&apos;.</source>
        <translation>Es gibt keinen Prozess „%1“; siehe „heat new“.</translation>
    </message>
    <message>
        <source>There is no process &apos;%1&apos;, only %2.</source>
        <translation>Es gibt keinen Prozess „%1“, nur %2.</translation>
    </message>
    <message>
        <source>There is no stage &apos;%1&apos;, only %2.</source>
        <translation>Es gibt keine Stufe „%1“, nur %2.</translation>
    </message>
    <message>
        <source>&apos;as&apos; is missing before the new name.</source>
        <translation>Vor dem neuen Namen fehlt „as“.</translation>
    </message>
    <message>
        <source>no table</source>
        <translation>keine Tabelle</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no field of application; possible are quenchtemper, stressrelief and casehardening.</source>
        <translation>„%1“ ist kein Anwendungsgebiet; möglich sind quenchtemper, stressrelief und casehardening.</translation>
    </message>
    <message>
        <source>Process &apos;%1&apos;: %2, %3 stages, %4.</source>
        <translation>Prozess „%1“: %2, %3 Stufen, %4.</translation>
    </message>
    <message>
        <source>No processes.</source>
        <translation>Keine Prozesse.</translation>
    </message>
    <message>
        <source>stage</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>start</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>rate</source>
        <translation>Rate</translation>
    </message>
    <message>
        <source>state</source>
        <translation>Zustand</translation>
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
        <source>No enabled stage of process &apos;%1&apos; takes time and has a temperature.</source>
        <translation>Keine eingeschaltete Stufe des Prozesses „%1“ dauert eine Zeit und hat eine Temperatur.</translation>
    </message>
    <message>
        <source>The stage has no input &apos;%1&apos;.</source>
        <translation>Die Stufe hat keine Eingabe „%1“.</translation>
    </message>
    <message>
        <source>Stage %1 has no table for &apos;%2&apos;.</source>
        <translation>Stufe %1 hat keine Tabelle für „%2“.</translation>
    </message>
    <message>
        <source>Process &apos;%1&apos; written to &apos;%2&apos;.</source>
        <translation>Prozess „%1“ in „%2“ geschrieben.</translation>
    </message>
    <message>
        <source>A name is missing after the file.</source>
        <translation>Nach der Datei fehlt ein Name.</translation>
    </message>
    <message>
        <source>The processes are equal.</source>
        <translation>Die Prozesse sind gleich.</translation>
    </message>
    <message>
        <source>The processes belong to different fields of application.</source>
        <translation>Die Prozesse gehören zu verschiedenen Anwendungsgebieten.</translation>
    </message>
    <message>
        <source>The processes differ in the stages %1.</source>
        <translation>Die Prozesse unterscheiden sich in den Stufen %1.</translation>
    </message>
    <message>
        <source>No tables.</source>
        <translation>Keine Tabellen.</translation>
    </message>
    <message>
        <source>The folders are named by &apos;from FOLDER to FOLDER&apos;.</source>
        <translation>Die Ordner werden mit „from FOLDER to FOLDER“ genannt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no unit of the quantity &apos;%2&apos;.</source>
        <translation>„%1“ ist keine Einheit der Größe „%2“.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; has not two columns, the second in a unit of the quantity &apos;%2&apos;.</source>
        <translation>Tabelle „%1“ hat nicht zwei Spalten, die zweite in einer Einheit der Größe „%2“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no pass; possible are diffusion, thermal, structural and none.</source>
        <translation>„%1“ ist kein Durchlauf; möglich sind diffusion, thermal, structural und none.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither above nor below.</source>
        <translation>„%1“ ist weder above noch below.</translation>
    </message>
    <message>
        <source>Makes a table of the temperature over the time of the whole process, and a picture as &apos;plot heat&apos; draws it.</source>
        <translation>Legt eine Tabelle der Temperatur über der Zeit des ganzen Prozesses an und ein Bild, wie „plot heat“ es zeichnet.</translation>
    </message>
    <message>
        <source>Reading &apos;%1&apos;</source>
        <translation>„%1“ wird gelesen</translation>
    </message>
</context>
<context>
    <name>HeatDocument</name>
    <message>
        <source>heat treatment, stages: %1</source>
        <translation>Wärmebehandlung, Stufen: %1</translation>
    </message>
    <message>
        <source>temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>heat transfer</source>
        <translation>Wärmeübergang</translation>
    </message>
    <message>
        <source>mass transfer</source>
        <translation>Stoffübergang</translation>
    </message>
    <message>
        <source>carbon potential</source>
        <translation>Kohlenstoffpegel</translation>
    </message>
    <message>
        <source>Temperature of the process</source>
        <translation>Temperatur des Prozesses</translation>
    </message>
    <message>
        <source>stage</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>starts</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>duration</source>
        <translation>Dauer</translation>
    </message>
</context>
<context>
    <name>HeatFile</name>
    <message>
        <source>&apos;%1&apos; names no field of application that is known.</source>
        <translation>„%1“ nennt kein bekanntes Anwendungsgebiet.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has stages that the process does not know: %2.</source>
        <translation>„%1“ hat Stufen, die der Prozess nicht kennt: %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos;, line %2: %3</source>
        <translation>„%1“, Zeile %2: %3</translation>
    </message>
</context>
<context>
    <name>InsertRowCommand</name>
    <message>
        <source>Inserts a row before another. Usage: insert DOCUMENT SHEET ROW</source>
        <translation>Fügt eine Zeile vor einer anderen ein. Aufruf: insert DOKUMENT BLATT ZEILE</translation>
    </message>
    <message>
        <source>insert row</source>
        <translation>Zeile einfügen</translation>
    </message>
</context>
<context>
    <name>IpcCommands</name>
    <message>
        <source>Messages between processes on this machine.</source>
        <translation>Nachrichten zwischen Prozessen auf diesem Rechner.</translation>
    </message>
    <message>
        <source>Takes greetings and texts under a product&apos;s name, from this user only, until N other processes (1) have greeted and gone.</source>
        <translation>Nimmt unter dem Namen eines Produkts Grüße und Texte an, nur von diesem Benutzer, bis N andere Prozesse (1) gegrüßt haben und gegangen sind.</translation>
    </message>
    <message>
        <source>Greets the process that listens under a product&apos;s name, and sends it a text.</source>
        <translation>Grüßt den Prozess, der unter dem Namen eines Produkts horcht, und sendet ihm einen Text.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be opened: %2</source>
        <translation>„%1“ lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>Process %1 listens as %2.</source>
        <translation>Prozess %1 horcht als %2.</translation>
    </message>
    <message>
        <source>%1 of %2 greetings came within %3 s.</source>
        <translation>%1 von %2 Grüßen kamen innerhalb von %3 s.</translation>
    </message>
    <message>
        <source>Greeting received: %1</source>
        <translation>Gruß empfangen: %1</translation>
    </message>
    <message>
        <source>No process %1 listens as %2: %3</source>
        <translation>Kein Prozess %1 horcht als %2: %3</translation>
    </message>
    <message>
        <source>The other side closed the connection before it had answered.</source>
        <translation>Die Gegenseite hat die Verbindung geschlossen, bevor sie geantwortet hat.</translation>
    </message>
    <message>
        <source>No answer came within %1 s.</source>
        <translation>Innerhalb von %1 s kam keine Antwort.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no product that listens; possible are: %2.</source>
        <translation>„%1“ ist kein Produkt, das horcht; möglich sind: %2.</translation>
    </message>
    <message>
        <source>&apos;seconds&apos; must be from 1 to 86400, not %1.</source>
        <translation>„seconds“ muss zwischen 1 und 86400 liegen, nicht %1.</translation>
    </message>
    <message>
        <source>Waiting for greetings</source>
        <translation>Warten auf Grüße</translation>
    </message>
    <message>
        <source>Waiting for an answer</source>
        <translation>Warten auf eine Antwort</translation>
    </message>
</context>
<context>
    <name>LockCommands</name>
    <message>
        <source>SECONDS must be 0 to 1000000, not %1.</source>
        <translation>SECONDS muss von 0 bis 1000000 sein, nicht %1.</translation>
    </message>
    <message>
        <source>Waiting for the lock of &apos;%1&apos;</source>
        <translation>Warten auf die Sperre von „%1“</translation>
    </message>
    <message>
        <source>Who may write in a project folder.</source>
        <translation>Wer in einem Projektordner schreiben darf.</translation>
    </message>
    <message>
        <source>Locks a folder until &apos;lock release&apos; or the end; waits for another owner if told to.</source>
        <translation>Sperrt einen Ordner bis „lock release“ oder zum Ende; wartet auf Wunsch auf einen anderen Besitzer.</translation>
    </message>
    <message>
        <source>Keeps a folder locked for a time; locks it for that time where it is not locked yet.</source>
        <translation>Hält einen Ordner eine Zeit lang gesperrt; sperrt ihn für diese Zeit, wo er noch nicht gesperrt ist.</translation>
    </message>
    <message>
        <source>Shows who holds the lock of a folder.</source>
        <translation>Zeigt, wer die Sperre eines Ordners hält.</translation>
    </message>
    <message>
        <source>Ends the lock that &apos;lock take&apos; made.</source>
        <translation>Beendet die Sperre, die „lock take“ gesetzt hat.</translation>
    </message>
    <message>
        <source>Removes a lock whose owner has died or is long silent.</source>
        <translation>Entfernt eine Sperre, deren Besitzer nicht mehr lebt oder lange stumm ist.</translation>
    </message>
    <message>
        <source>Folder &apos;%1&apos; locked.</source>
        <translation>Ordner „%1“ gesperrt.</translation>
    </message>
    <message>
        <source>Holding the lock of &apos;%1&apos;</source>
        <translation>Halten der Sperre von „%1“</translation>
    </message>
    <message>
        <source>The lock of &apos;%1&apos; was lost to another process.</source>
        <translation>Die Sperre von „%1“ ging an einen anderen Prozess verloren.</translation>
    </message>
    <message>
        <source>Folder &apos;%1&apos; is not locked.</source>
        <translation>Ordner „%1“ ist nicht gesperrt.</translation>
    </message>
    <message>
        <source>Folder &apos;%1&apos; is locked by %2, refreshed %3 s ago.</source>
        <translation>Ordner „%1“ ist von %2 gesperrt, aufgefrischt vor %3 s.</translation>
    </message>
    <message>
        <source>an owner that cannot be read</source>
        <translation>einem Besitzer, der nicht lesbar ist</translation>
    </message>
    <message>
        <source>Folder &apos;%1&apos; has not been locked by &apos;lock take&apos;.</source>
        <translation>Ordner „%1“ wurde nicht mit „lock take“ gesperrt.</translation>
    </message>
    <message>
        <source>Folder &apos;%1&apos; released.</source>
        <translation>Ordner „%1“ freigegeben.</translation>
    </message>
    <message>
        <source>Folder &apos;%1&apos; stays locked for the open deck.</source>
        <translation>Ordner „%1“ bleibt für das offene Deck gesperrt.</translation>
    </message>
    <message>
        <source>Stale lock of folder &apos;%1&apos; removed.</source>
        <translation>Veraltete Sperre des Ordners „%1“ entfernt.</translation>
    </message>
    <message>
        <source>The lock of &apos;%1&apos; is not stale: %2 holds it.</source>
        <translation>Die Sperre von „%1“ ist nicht veraltet: sie gehört %2.</translation>
    </message>
</context>
<context>
    <name>LogCommands</name>
    <message>
        <source>A severity is 0 to 6, not %1.</source>
        <translation>Ein Schweregrad ist 0 bis 6, nicht %1.</translation>
    </message>
    <message>
        <source>The debug log of this run.</source>
        <translation>Das Protokoll dieses Laufs.</translation>
    </message>
    <message>
        <source>Shows where the log file lies.</source>
        <translation>Zeigt, wo die Protokolldatei liegt.</translation>
    </message>
    <message>
        <source>Shows log lines from a severity (0 to 6) on also on standard error.</source>
        <translation>Zeigt Protokollzeilen ab einem Schweregrad (0 bis 6) auch auf der Fehlerausgabe.</translation>
    </message>
    <message>
        <source>Writes a line into the log.</source>
        <translation>Schreibt eine Zeile in das Protokoll.</translation>
    </message>
    <message>
        <source>Hands all log lines to the system.</source>
        <translation>Übergibt alle Protokollzeilen dem System.</translation>
    </message>
</context>
<context>
    <name>LogDock</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Content of &apos;%1&apos;</source>
        <translation>Inhalt von „%1“</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About kdqview</source>
        <translation>Ü&amp;ber kdqview</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Über &amp;Qt</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>&lt;h2&gt;Tables, heat treatments, decks&lt;/h2&gt;&lt;p&gt;Open a file (%1), or drop files here.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Tabellen, Wärmebehandlungen, Decks&lt;/h2&gt;&lt;p&gt;Eine Datei öffnen (%1) oder Dateien hierher ziehen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>Ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;as ...</source>
        <translation>Speichern &amp;unter ...</translation>
    </message>
    <message>
        <source>Export &amp;table ...</source>
        <translation>&amp;Tabelle exportieren ...</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Export &amp;curve ...</source>
        <translation>&amp;Kurve exportieren ...</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Unit of the column</source>
        <translation>E&amp;inheit der Spalte</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Insert row</source>
        <translation>Zeile &amp;einfügen</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>&amp;Append row</source>
        <translation>Zeile &amp;anhängen</translation>
    </message>
    <message>
        <source>&amp;Remove rows</source>
        <translation>Zeilen ent&amp;fernen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>The texts of the language &apos;%1&apos; are missing.</source>
        <translation>Die Texte der Sprache „%1“ fehlen.</translation>
    </message>
    <message>
        <source>About kdqview</source>
        <translation>Über kdqview</translation>
    </message>
    <message>
        <source>&lt;h3&gt;kdqview %1&lt;/h3&gt;&lt;p&gt;Shows and edits tables, heat treatments and decks.&lt;/p&gt;&lt;p&gt;%2&lt;/p&gt;</source>
        <translation>&lt;h3&gt;kdqview %1&lt;/h3&gt;&lt;p&gt;Zeigt und ändert Tabellen und Wärmebehandlungen, zeigt Decks.&lt;/p&gt;&lt;p&gt;%2&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Tables, heat treatments, decks (*.xml *.csv *.txt *.dat)</source>
        <translation>Tabellen, Wärmebehandlungen, Decks (*.xml *.csv *.txt *.dat)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Noch keine Dateien</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Another program has changed &apos;%1&apos; in the meantime. Overwrite it?</source>
        <translation>Ein anderes Programm hat „%1“ inzwischen geändert. Überschreiben?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; saved.</source>
        <translation>„%1“ gespeichert.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has changes that are not saved.</source>
        <translation>„%1“ hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>Export table</source>
        <translation>Tabelle exportieren</translation>
    </message>
    <message>
        <source>Export curve</source>
        <translation>Kurve exportieren</translation>
    </message>
    <message>
        <source>&apos;%1&apos; written.</source>
        <translation>„%1“ geschrieben.</translation>
    </message>
    <message>
        <source>XML</source>
        <translation>XML</translation>
    </message>
    <message>
        <source>Text with all digits</source>
        <translation>Text mit allen Stellen</translation>
    </message>
    <message>
        <source>For spreadsheets</source>
        <translation>Für Tabellenkalkulationen</translation>
    </message>
    <message>
        <source>Vector graphics</source>
        <translation>Vektorgrafik</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>NameCommands</name>
    <message>
        <source>Names of objects: what users see, and what is safe in decks and file names.</source>
        <translation>Namen von Objekten: was Anwender sehen und was in Decks und Dateinamen sicher ist.</translation>
    </message>
    <message>
        <source>Shows the internal name that an object of this display name gets.</source>
        <translation>Zeigt den internen Namen, den ein Objekt mit diesem Anzeigenamen erhält.</translation>
    </message>
    <message>
        <source>Shows the name, with a counter where it is taken.</source>
        <translation>Zeigt den Namen, mit einem Zähler, wo er vergeben ist.</translation>
    </message>
    <message>
        <source>Shows the name corrected by the rules, and what was wrong with it.</source>
        <translation>Zeigt den nach den Regeln berichtigten Namen und was an ihm falsch war.</translation>
    </message>
    <message>
        <source>Shows numbered names that are not taken.</source>
        <translation>Zeigt nummerierte Namen, die nicht vergeben sind.</translation>
    </message>
    <message>
        <source>COUNT must be at least 1, not %1.</source>
        <translation>COUNT muss mindestens 1 sein, nicht %1.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no kind of name; possible are display and internal.</source>
        <translation>„%1“ ist keine Art von Namen; möglich sind display und internal.</translation>
    </message>
    <message>
        <source>Numbering &apos;%1&apos;</source>
        <translation>„%1“ wird nummeriert</translation>
    </message>
</context>
<context>
    <name>OpenCommand</name>
    <message>
        <source>Opens a table, a heat treatment or a deck. Usage: open FILE</source>
        <translation>Öffnet eine Tabelle, eine Wärmebehandlung oder ein Deck. Aufruf: open DATEI</translation>
    </message>
    <message>
        <source>open &apos;%1&apos;</source>
        <translation>„%1“ öffnen</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is open.</source>
        <translation>„%1“ ist schon offen.</translation>
    </message>
    <message>
        <source>Opened &apos;%1&apos;: %2.</source>
        <translation>„%1“ geöffnet: %2.</translation>
    </message>
</context>
<context>
    <name>ParameterCommands</name>
    <message>
        <source>Named formulas that use each other, for formulas and decks.</source>
        <translation>Benannte Formeln, die einander benutzen, für Formeln und Decks.</translation>
    </message>
    <message>
        <source>Defines a parameter, or defines it anew.</source>
        <translation>Definiert einen Parameter, auch von neuem.</translation>
    </message>
    <message>
        <source>Lists the parameters, each behind those that it uses.</source>
        <translation>Listet die Parameter auf, jeden hinter denen, die er benutzt.</translation>
    </message>
    <message>
        <source>Shows the value of one parameter, or of all.</source>
        <translation>Zeigt den Wert eines Parameters oder aller.</translation>
    </message>
    <message>
        <source>Removes a parameter from the session.</source>
        <translation>Entfernt einen Parameter aus der Sitzung.</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing between name and formula.</source>
        <translation>Zwischen Name und Formel fehlt „=“.</translation>
    </message>
    <message>
        <source>No parameters.</source>
        <translation>Keine Parameter.</translation>
    </message>
    <message>
        <source>There is no parameter &apos;%1&apos;; none has been defined yet.</source>
        <translation>Es gibt keinen Parameter „%1“; es wurde noch keiner definiert.</translation>
    </message>
    <message>
        <source>There is no parameter &apos;%1&apos;, only %2.</source>
        <translation>Es gibt keinen Parameter „%1“, nur %2.</translation>
    </message>
</context>
<context>
    <name>PathCommands</name>
    <message>
        <source>The installation: its folders and the executables of its products.</source>
        <translation>Die Installation: ihre Ordner und die Programme ihrer Produkte.</translation>
    </message>
    <message>
        <source>Shows all folders: whether each exists, and where it came from.</source>
        <translation>Zeigt alle Ordner: ob es sie gibt und woher sie stammen.</translation>
    </message>
    <message>
        <source>Shows one of these paths.</source>
        <translation>Zeigt einen dieser Pfade.</translation>
    </message>
    <message>
        <source>Sets a folder for this run; what is derived from it follows.</source>
        <translation>Legt einen Ordner für diesen Lauf fest; was davon abgeleitet ist, folgt.</translation>
    </message>
    <message>
        <source>Takes back what was set; without a name, finds the whole installation anew.</source>
        <translation>Nimmt eine Festlegung zurück; ohne Namen wird die ganze Installation neu gesucht.</translation>
    </message>
    <message>
        <source>Removes the base path that is remembered for later runs.</source>
        <translation>Entfernt den für spätere Läufe gemerkten Basispfad.</translation>
    </message>
    <message>
        <source>Shows the application of a product in this installation.</source>
        <translation>Zeigt die Anwendung eines Produkts in dieser Installation.</translation>
    </message>
    <message>
        <source>Lists the executables stored for versions of products.</source>
        <translation>Listet die für Versionen von Produkten gespeicherten Programme auf.</translation>
    </message>
    <message>
        <source>Shows the executable stored for a version.</source>
        <translation>Zeigt das für eine Version gespeicherte Programm.</translation>
    </message>
    <message>
        <source>Stores the executable of a version for this and later runs.</source>
        <translation>Speichert das Programm einer Version für diesen und spätere Läufe.</translation>
    </message>
    <message>
        <source>Removes the executable stored for a version.</source>
        <translation>Entfernt das für eine Version gespeicherte Programm.</translation>
    </message>
    <message>
        <source>variable %1</source>
        <translation>Variable %1</translation>
    </message>
    <message>
        <source>option %1</source>
        <translation>Option %1</translation>
    </message>
    <message>
        <source>the application&apos;s folder</source>
        <translation>Ordner der Anwendung</translation>
    </message>
    <message>
        <source>remembered</source>
        <translation>gemerkt</translation>
    </message>
    <message>
        <source>default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>derived</source>
        <translation>abgeleitet</translation>
    </message>
    <message>
        <source>set</source>
        <translation>festgelegt</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>exists</source>
        <translation>vorhanden</translation>
    </message>
    <message>
        <source>There is no path &apos;%1&apos;, only %2.</source>
        <translation>Es gibt keinen Pfad „%1“, nur %2.</translation>
    </message>
    <message>
        <source>There is no folder &apos;%1&apos;.</source>
        <translation>Den Ordner „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be set, only %2.</source>
        <translation>„%1“ lässt sich nicht festlegen, nur %2.</translation>
    </message>
    <message>
        <source>There is no product &apos;%1&apos;, only %2.</source>
        <translation>Es gibt kein Produkt „%1“, nur %2.</translation>
    </message>
    <message>
        <source>A version is one to four numbers with dots between, not &apos;%1&apos;.</source>
        <translation>Eine Version besteht aus einer bis vier Zahlen mit Punkten dazwischen, nicht „%1“.</translation>
    </message>
    <message>
        <source>No executable is stored for %1 %2.</source>
        <translation>Für %1 %2 ist kein Programm gespeichert.</translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos;.</source>
        <translation>Die Datei „%1“ gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>PlotCommands</name>
    <message>
        <source>Pictures of tables, formulas and heat treatments, as SVG or PNG.</source>
        <translation>Bilder von Tabellen, Formeln und Wärmebehandlungen, als SVG oder PNG.</translation>
    </message>
    <message>
        <source>Draws columns of tables; two y axes where they have two kinds of units.</source>
        <translation>Zeichnet Spalten von Tabellen; zwei y-Achsen, wo sie zweierlei Einheiten haben.</translation>
    </message>
    <message>
        <source>Draws the values of formulas while one variable runs, with gaps where they have none.</source>
        <translation>Zeichnet die Werte von Formeln, während eine Variable läuft, mit Lücken, wo sie keine haben.</translation>
    </message>
    <message>
        <source>Draws temperature and carbon potential of a process over its stages.</source>
        <translation>Zeichnet Temperatur und Kohlenstoffpegel eines Prozesses über seinen Stufen.</translation>
    </message>
    <message>
        <source>The picture is missing: to FILE, whose name ends in .svg or .png.</source>
        <translation>Das Bild fehlt: to FILE, dessen Name auf .svg oder .png endet.</translation>
    </message>
    <message>
        <source>Picture &apos;%1&apos; drawn.</source>
        <translation>Bild „%1“ gezeichnet.</translation>
    </message>
    <message>
        <source>&apos;columns&apos; needs the column of the x axis and one at least to draw.</source>
        <translation>„columns“ braucht die Spalte der x-Achse und mindestens eine zum Zeichnen.</translation>
    </message>
    <message>
        <source>&apos;steps&apos; and &apos;points&apos; exclude each other.</source>
        <translation>„steps“ und „points“ schließen einander aus.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no unit.</source>
        <translation>„%1“ ist keine Einheit.</translation>
    </message>
    <message>
        <source>A formula and the variable that runs (over NAME) are needed.</source>
        <translation>Eine Formel und die Variable, die läuft (over NAME), sind nötig.</translation>
    </message>
    <message>
        <source>One process is drawn at a time: NAME to FILE.</source>
        <translation>Ein Prozess wird auf einmal gezeichnet: NAME to FILE.</translation>
    </message>
    <message>
        <source>&apos;names&apos; gives %1 names to %2 curves.</source>
        <translation>„names“ gibt %2 Kurven %1 Namen.</translation>
    </message>
    <message>
        <source>Evaluating the formulas</source>
        <translation>Formeln werden ausgewertet</translation>
    </message>
</context>
<context>
    <name>PlotProgram</name>
    <message>
        <source>No pictures can be drawn here: the program &apos;%1&apos; is neither in &apos;%2&apos; nor on the search path.</source>
        <translation>Hier lassen sich keine Bilder zeichnen: Das Programm „%1“ liegt weder in „%2“ noch auf dem Suchpfad.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not drawn within %2 s.</source>
        <translation>„%1“ wurde nicht innerhalb von %2 s gezeichnet.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be run: %2</source>
        <translation>„%1“ lässt sich nicht starten: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; ended before the picture was drawn. %2</source>
        <translation>„%1“ endete, bevor das Bild gezeichnet war. %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read: %2</source>
        <translation>„%1“ lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>Drawing &apos;%1&apos;</source>
        <translation>„%1“ wird gezeichnet</translation>
    </message>
</context>
<context>
    <name>Plotter</name>
    <message>
        <source>Draws the picture that a description in JSON asks for.</source>
        <translation>Zeichnet das Bild, das eine Beschreibung in JSON verlangt.</translation>
    </message>
    <message>
        <source>Width and height in pixels.</source>
        <translation>Breite und Höhe in Pixeln.</translation>
    </message>
    <message>
        <source>Pixels of a PNG for each of these.</source>
        <translation>Pixel eines PNG für jedes davon.</translation>
    </message>
    <message>
        <source>The description; - is standard input.</source>
        <translation>Die Beschreibung; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>The file to write: .svg or .png.</source>
        <translation>Die zu schreibende Datei: .svg oder .png.</translation>
    </message>
    <message>
        <source>A description and a picture are needed; see --help.</source>
        <translation>Eine Beschreibung und ein Bild sind nötig; siehe --help.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; ends neither in .svg nor in .png.</source>
        <translation>„%1“ endet weder auf .svg noch auf .png.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no size such as 800x500.</source>
        <translation>„%1“ ist keine Größe wie 800x500.</translation>
    </message>
    <message>
        <source>The scale must be 0.1 to 20, not &apos;%1&apos;.</source>
        <translation>Der Maßstab muss 0.1 bis 20 sein, nicht „%1“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read: %2</source>
        <translation>„%1“ lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be written: %2</source>
        <translation>„%1“ lässt sich nicht schreiben: %2</translation>
    </message>
</context>
<context>
    <name>ProgramHelp</name>
    <message>
        <source>Writes the manual page to standard output, in mdoc.</source>
        <translation>Schreibt die Handbuchseite auf die Standardausgabe, in mdoc.</translation>
    </message>
</context>
<context>
    <name>ProgressLine</name>
    <message>
        <source>Stop what is running</source>
        <translation>Bricht ab, was gerade läuft</translation>
    </message>
</context>
<context>
    <name>RemoteCommands</name>
    <message>
        <source>Commands that run in another shell.</source>
        <translation>Befehle, die in einer anderen Shell laufen.</translation>
    </message>
    <message>
        <source>Connects to a shell that serves.</source>
        <translation>Verbindet mit einer Shell, die bedient.</translation>
    </message>
    <message>
        <source>Runs a command, or a quoted line of several, in the other shell.</source>
        <translation>Führt einen Befehl oder eine Zeile mehrerer in Anführungszeichen in der anderen Shell aus.</translation>
    </message>
    <message>
        <source>Ends the connection.</source>
        <translation>Beendet die Verbindung.</translation>
    </message>
    <message>
        <source>This shell serves already.</source>
        <translation>Diese Shell bedient bereits.</translation>
    </message>
    <message>
        <source>Cannot accept a connection: %1</source>
        <translation>Eine Verbindung lässt sich nicht annehmen: %1</translation>
    </message>
    <message>
        <source>Serving %1.</source>
        <translation>Bedient %1.</translation>
    </message>
    <message>
        <source>No shell answers there: %1</source>
        <translation>Dort antwortet keine Shell: %1</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>Verbunden mit %1.</translation>
    </message>
    <message>
        <source>The command failed.</source>
        <translation>Der Befehl ist gescheitert.</translation>
    </message>
    <message>
        <source>The other shell does not answer: %1</source>
        <translation>Die andere Shell antwortet nicht: %1</translation>
    </message>
    <message>
        <source>There is no connection; see &apos;remote connect&apos;.</source>
        <translation>Es besteht keine Verbindung; siehe „remote connect“.</translation>
    </message>
    <message>
        <source>Lets other shells run commands in this one, one after the other, N in all or without end; on this machine only, unless ADDRESS says more.</source>
        <translation>Lässt andere Shells Befehle in dieser ausführen, eine nach der anderen, insgesamt N oder ohne Ende; nur auf diesem Rechner, außer ADDRESS erlaubt mehr.</translation>
    </message>
</context>
<context>
    <name>RemoteLink</name>
    <message>
        <source>The other side is no remote shell.</source>
        <translation>Die Gegenseite ist keine entfernte Shell.</translation>
    </message>
</context>
<context>
    <name>RemoveRowsCommand</name>
    <message>
        <source>Removes rows. Usage: remove DOCUMENT SHEET ROW COUNT</source>
        <translation>Entfernt Zeilen. Aufruf: remove DOKUMENT BLATT ZEILE ANZAHL</translation>
    </message>
    <message>
        <source>remove rows</source>
        <translation>Zeilen entfernen</translation>
    </message>
</context>
<context>
    <name>SetValueCommand</name>
    <message>
        <source>Changes a value. Usage: set DOCUMENT SHEET ROW COLUMN VALUE</source>
        <translation>Ändert einen Wert. Aufruf: set DOKUMENT BLATT ZEILE SPALTE WERT</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>change value</source>
        <translation>Wert ändern</translation>
    </message>
</context>
<context>
    <name>Shell</name>
    <message>
        <source>&apos;%1&apos; cannot be read: %2</source>
        <translation>„%1“ lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>kdqsh %1. &apos;help&apos; shows the commands, &apos;quit&apos; ends the session.</source>
        <translation>kdqsh %1. „help“ zeigt die Befehle, „quit“ beendet die Sitzung.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes no arguments.</source>
        <translation>„%1“ nimmt keine Argumente.</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>There is nothing that can be undone.</source>
        <translation>Es gibt nichts, was sich rückgängig machen lässt.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Es gibt nichts zu wiederholen.</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
    <message>
        <source>The last command could not be undone.</source>
        <translation>Der letzte Befehl ließ sich nicht rückgängig machen.</translation>
    </message>
</context>
<context>
    <name>ShellCall</name>
    <message>
        <source>%1 must be a whole number, not &apos;%2&apos;.</source>
        <translation>%1 muss eine ganze Zahl sein, nicht „%2“.</translation>
    </message>
    <message>
        <source>%1 must be a number, not &apos;%2&apos;.</source>
        <translation>%1 muss eine Zahl sein, nicht „%2“.</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>Showing rows: %1</source>
        <translation>Zeilen werden gezeigt: %1</translation>
    </message>
</context>
<context>
    <name>ShellCommand</name>
    <message>
        <source>&apos;%1&apos; needs one of: %2.</source>
        <translation>„%1“ braucht eines von: %2.</translation>
    </message>
    <message>
        <source>Unknown command: &gt;%1 %2&lt;! Known are: %3.</source>
        <translation>Unbekannter Befehl: &gt;%1 %2&lt;! Bekannt sind: %3.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>No deck is open; see &apos;deck open&apos;.</source>
        <translation>Es ist kein Deck offen; siehe „deck open“.</translation>
    </message>
    <message>
        <source>The command failed.</source>
        <translation>Der Befehl ist gescheitert.</translation>
    </message>
    <message>
        <source>Stopped; what it has written so far stays.</source>
        <translation>Angehalten; was bis dahin geschrieben ist, bleibt.</translation>
    </message>
    <message>
        <source>Stopped; everything is as it was before.</source>
        <translation>Angehalten; alles ist wie zuvor.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Angehalten.</translation>
    </message>
</context>
<context>
    <name>ShellConsole</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>, %1:%2 left</source>
        <translation>, noch %1:%2</translation>
    </message>
</context>
<context>
    <name>ShellDeck</name>
    <message>
        <source>The deck &apos;%1&apos; cannot be opened for writing: %2</source>
        <translation>Das Deck „%1“ lässt sich nicht zum Schreiben öffnen: %2</translation>
    </message>
    <message>
        <source>The deck &apos;%1&apos; cannot be written: %2</source>
        <translation>Das Deck „%1“ lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>The deck &apos;%1&apos; is written, but its folder&apos;s lock was lost to another process, which may have written there too.</source>
        <translation>Das Deck „%1“ ist geschrieben, aber die Sperre seines Ordners ging an einen anderen Prozess verloren, der dort ebenfalls geschrieben haben kann.</translation>
    </message>
</context>
<context>
    <name>ShellFormulas</name>
    <message>
        <source>With the parameters that it uses, the formula is longer than %1 characters.</source>
        <translation>Mit den Parametern, die sie benutzt, ist die Formel länger als %1 Zeichen.</translation>
    </message>
</context>
<context>
    <name>ShellHelp</name>
    <message>
        <source>There is no command &apos;%1&apos;; &apos;help&apos; shows them all.</source>
        <translation>Es gibt keinen Befehl „%1“; „help“ zeigt alle.</translation>
    </message>
    <message>
        <source>Shows the commands of this session.</source>
        <translation>Zeigt die Befehle dieser Sitzung.</translation>
    </message>
    <message>
        <source>Ends the session; an open deck is closed.</source>
        <translation>Beendet die Sitzung; ein offenes Deck wird geschlossen.</translation>
    </message>
    <message>
        <source>Executes the command undone last once more.</source>
        <translation>Führt den zuletzt rückgängig gemachten Befehl noch einmal aus.</translation>
    </message>
    <message>
        <source>Takes back the last command that changed something.</source>
        <translation>Nimmt den letzten Befehl zurück, der etwas geändert hat.</translation>
    </message>
    <message>
        <source>%1 See &apos;help %2&apos;.</source>
        <translation>%1 Siehe „help %2“.</translation>
    </message>
    <message>
        <source>Statements end at the line end or at &quot;;&quot;. Words that hold blanks, &quot;;&quot; or &quot;#&quot; stand in quotes. &quot;#&quot; opens a comment, &quot;\&quot; at the end continues a line.</source>
        <translation>Anweisungen enden am Zeilenende oder bei „;“. Wörter mit Leerzeichen, „;“ oder „#“ stehen in Anführungszeichen (&quot; oder &apos;). „#“ beginnt einen Kommentar, „\“ am Ende setzt eine Zeile fort.</translation>
    </message>
    <message>
        <source>Shows all commands, or one with an example; &apos;help prompt&apos; tells of keys and colours.</source>
        <translation>Zeigt alle Befehle, oder einen mit Beispiel; „help prompt“ nennt Tasten und Farben.</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Beispiel:</translation>
    </message>
    <message>
        <source>Completes the word by what may stand there: commands and their words, files, tables, columns, units, processes, stages, parameters, locked folders; shows what is possible where there is a choice.</source>
        <translation>Ergänzt das Wort durch das, was dort stehen kann: Befehle und ihre Wörter, Dateien, Tabellen, Spalten, Einheiten, Prozesse, Stufen, Parameter, gesperrte Ordner; zeigt, was möglich ist, wo es eine Wahl gibt.</translation>
    </message>
    <message>
        <source>Bring earlier lines back, also those of earlier sessions, and search them. A line that begins with a blank is not kept.</source>
        <translation>Holen frühere Zeilen zurück, auch die früherer Sitzungen, und durchsuchen sie. Eine Zeile, die mit einem Leerzeichen beginnt, wird nicht behalten.</translation>
    </message>
    <message>
        <source>Drops the line being typed. Stops a command that runs and takes back what it has changed so far; pressed once more, ends kdqsh at once.</source>
        <translation>Verwirft die Zeile, die gerade getippt wird. Hält einen laufenden Befehl an und nimmt zurück, was er bis dahin geändert hat; noch einmal gedrückt, beendet es kdqsh sofort.</translation>
    </message>
    <message>
        <source>Errors are red, warnings yellow: on terminals, unless NO_COLOR is set to anything or TERM is dumb; or as the option says.</source>
        <translation>Fehler sind rot, Warnungen gelb: auf Terminals, außer wenn NO_COLOR auf irgendetwas gesetzt oder TERM dumb ist; oder wie die Option es sagt.</translation>
    </message>
    <message>
        <source>The user&apos;s languages, as de_AT:en; else the system&apos;s.</source>
        <translation>Die Sprachen des Benutzers, wie de_AT:en; sonst die des Systems.</translation>
    </message>
    <message>
        <source>The user&apos;s data folder. In its folder kaldoran: kdqsh_history, kdqsh.ini and log.</source>
        <translation>Der Datenordner des Benutzers. In seinem Ordner kaldoran: kdqsh_history, kdqsh.ini und log.</translation>
    </message>
    <message>
        <source>The root of the installation.</source>
        <translation>Die Wurzel der Installation.</translation>
    </message>
    <message>
        <source>Exit statuses: all went well; a command failed; the command line was wrong; ended by Ctrl-C.</source>
        <translation>Rückgabewerte: alles ging gut; ein Befehl schlug fehl; die Befehlszeile war falsch; beendet durch Strg-C.</translation>
    </message>
    <message>
        <source>Ends the session, on an empty line; on Windows Ctrl-Z does, too.</source>
        <translation>Beendet die Sitzung, auf einer leeren Zeile; unter Windows auch Strg-Z.</translation>
    </message>
</context>
<context>
    <name>ShellLineParser</name>
    <message>
        <source>The quote %1 in column %2 is not closed.</source>
        <translation>Das Anführungszeichen %1 in Spalte %2 ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>A blank is missing after the closing quote in column %1.</source>
        <translation>Nach dem schließenden Anführungszeichen in Spalte %1 fehlt ein Leerzeichen.</translation>
    </message>
    <message>
        <source>The input ends within a continued line.</source>
        <translation>Die Eingabe endet in einer fortgesetzten Zeile.</translation>
    </message>
</context>
<context>
    <name>ShellListener</name>
    <message>
        <source>&apos;%1&apos; is no address of the form 127.0.0.1 or ::1.</source>
        <translation>„%1“ ist keine Adresse der Form 127.0.0.1 oder ::1.</translation>
    </message>
    <message>
        <source>A port is 0 to 65535, not %1.</source>
        <translation>Ein Port ist 0 bis 65535, nicht %1.</translation>
    </message>
    <message>
        <source>Cannot listen on %1, port %2: %3</source>
        <translation>Auf %1, Port %2, kann nicht gehorcht werden: %3</translation>
    </message>
    <message>
        <source>Whoever reaches %1 can connect; a signature keeps out nobody.</source>
        <translation>Wer %1 erreicht, kann sich verbinden; eine Signatur hält niemanden fern.</translation>
    </message>
    <message>
        <source>Listening on %1, port %2.</source>
        <translation>Horcht auf %1, Port %2.</translation>
    </message>
    <message>
        <source>A port is 1 to 65535, not %1.</source>
        <translation>Ein Port ist 1 bis 65535, nicht %1.</translation>
    </message>
    <message>
        <source>The name has no address.</source>
        <translation>Der Name hat keine Adresse.</translation>
    </message>
    <message>
        <source>Cannot connect to %1, port %2: %3</source>
        <translation>Keine Verbindung mit %1, Port %2: %3</translation>
    </message>
    <message>
        <source>A timeout is more than 0 and up to 1000000 seconds, not %1.</source>
        <translation>Eine Wartezeit ist mehr als 0 und bis zu 1000000 Sekunden, nicht %1.</translation>
    </message>
    <message>
        <source>Waiting for a connection</source>
        <translation>Warten auf eine Verbindung</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>Verbindung zu %1 wird aufgebaut</translation>
    </message>
</context>
<context>
    <name>ShellLocks</name>
    <message>
        <source>%1 on %2 (%3, process %4)</source>
        <translation>%1 auf %2 (%3, Prozess %4)</translation>
    </message>
    <message>
        <source>You have no permission to lock the folder &apos;%1&apos;.</source>
        <translation>Keine Berechtigung, den Ordner „%1“ zu sperren.</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; cannot be locked; the log says why.</source>
        <translation>Der Ordner „%1“ lässt sich nicht sperren; den Grund nennt das Protokoll.</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; is locked; by whom cannot be read.</source>
        <translation>Der Ordner „%1“ ist gesperrt; von wem, lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; is locked by %2.</source>
        <translation>Der Ordner „%1“ ist von %2 gesperrt.</translation>
    </message>
</context>
<context>
    <name>ShellOptions</name>
    <message>
        <source>Runs these commands, separated by &quot;;&quot;.</source>
        <translation>Führt diese Befehle aus, getrennt durch „;“.</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Goes on after a command that failed.</source>
        <translation>Fährt nach einem gescheiterten Befehl fort.</translation>
    </message>
    <message>
        <source>Stops at the first command that failed (default, except at the prompt).</source>
        <translation>Hält beim ersten gescheiterten Befehl an (Vorgabe, außer an der Eingabezeile).</translation>
    </message>
    <message>
        <source>Shows errors and the results that were asked for, nothing else.</source>
        <translation>Zeigt Fehler und verlangte Ergebnisse, sonst nichts.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Zeigt diese Hilfe.</translation>
    </message>
    <message>
        <source>File with commands (UTF-8); &quot;-&quot; is standard input.</source>
        <translation>Datei mit Befehlen (UTF-8); „-“ ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>--keep-going and --stop-on-error exclude each other.</source>
        <translation>--keep-going und --stop-on-error schließen einander aus.</translation>
    </message>
    <message>
        <source>Only one script or one -c can be run.</source>
        <translation>Nur ein Skript oder ein -c kann ausgeführt werden.</translation>
    </message>
    <message>
        <source>Tables of material data and solver input decks by text commands. Commands come from a script, from
-c, from standard input, or from a prompt. The exit status is 0 only if all went well, 1 if a command
failed, 2 if this command line was wrong, 130 after Ctrl-C. &quot;-basePath FOLDER&quot; names the
installation, with &quot;-undoSetup&quot; for this run only.</source>
        <translation>Tabellen von Werkstoffdaten und Eingabedecks des Lösers durch Textbefehle. Befehle kommen aus einem
Skript, aus -c, von der Standardeingabe oder von einer Eingabezeile. Der Rückgabewert ist 0 nur, wenn
alles gut ging, 1, wenn ein Befehl fehlschlug, 2, wenn diese Befehlszeile falsch war, 130 nach Strg-C.
„-basePath ORDNER“ nennt die Installation, mit „-undoSetup“ nur für diesen Lauf.</translation>
    </message>
    <message>
        <source>Colours: auto (on terminals, unless NO_COLOR is set or TERM is dumb), always, never.</source>
        <translation>Farben: auto (auf Terminals, außer wenn NO_COLOR gesetzt oder TERM dumb ist), always, never.</translation>
    </message>
    <message>
        <source>when</source>
        <translation>wann</translation>
    </message>
    <message>
        <source>Shows the version, and what it was built with.</source>
        <translation>Zeigt die Version, und womit sie gebaut wurde.</translation>
    </message>
    <message>
        <source>--color takes auto, always or never, not &apos;%1&apos;.</source>
        <translation>--color nimmt auto, always oder never, nicht „%1“.</translation>
    </message>
</context>
<context>
    <name>ShellOutput</name>
    <message>
        <source>&apos;%1&apos; cannot be written: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Writing &apos;%1&apos;</source>
        <translation>„%1“ wird geschrieben</translation>
    </message>
</context>
<context>
    <name>ShellParameters</name>
    <message>
        <source>&apos;%1&apos; is unknown here; possible are: %2.</source>
        <translation>„%1“ ist hier unbekannt; möglich sind: %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is given twice.</source>
        <translation>„%1“ ist zweimal angegeben.</translation>
    </message>
    <message>
        <source>Too few values after &apos;%1&apos;, which takes %2.</source>
        <translation>Zu wenige Werte nach „%1“; es braucht %2.</translation>
    </message>
</context>
<context>
    <name>TableCommands</name>
    <message>
        <source>Tables of material and process data with units.</source>
        <translation>Tabellen von Werkstoff- und Prozessdaten mit Einheiten.</translation>
    </message>
    <message>
        <source>Lists the tables of the session.</source>
        <translation>Listet die Tabellen der Sitzung.</translation>
    </message>
    <message>
        <source>Reads a text file of values, with names and units in its header.</source>
        <translation>Liest eine Textdatei von Werten, mit Namen und Einheiten im Kopf.</translation>
    </message>
    <message>
        <source>Reads a table from its XML form.</source>
        <translation>Liest eine Tabelle aus ihrer XML-Form.</translation>
    </message>
    <message>
        <source>Writes a table as XML or as text (separator: tab, blank or as given, ; by default).</source>
        <translation>Schreibt eine Tabelle als XML oder als Text (Trennzeichen: tab, blank oder wie angegeben, ohne Angabe ;).</translation>
    </message>
    <message>
        <source>Shows a table, or its first rows.</source>
        <translation>Zeigt eine Tabelle oder ihre ersten Zeilen.</translation>
    </message>
    <message>
        <source>Shows unit, range and direction of each column.</source>
        <translation>Zeigt Einheit, Bereich und Verlauf jeder Spalte.</translation>
    </message>
    <message>
        <source>Shows the interpolated value at X; outside the range the end value, or zero.</source>
        <translation>Zeigt den interpolierten Wert bei X; außerhalb des Bereichs den Endwert oder null.</translation>
    </message>
    <message>
        <source>Converts columns to units. A column is x, y (all but the first), a name or a number.</source>
        <translation>Rechnet Spalten in Einheiten um. Eine Spalte ist x, y (alle außer der ersten), ein Name oder eine Nummer.</translation>
    </message>
    <message>
        <source>States the units of columns and leaves the values as they are.</source>
        <translation>Nennt die Einheiten von Spalten und lässt die Werte, wie sie sind.</translation>
    </message>
    <message>
        <source>Makes a new table of two columns.</source>
        <translation>Macht aus zwei Spalten eine neue Tabelle.</translation>
    </message>
    <message>
        <source>Makes a copy of a table.</source>
        <translation>Macht eine Kopie einer Tabelle.</translation>
    </message>
    <message>
        <source>Gives a table another name.</source>
        <translation>Gibt einer Tabelle einen anderen Namen.</translation>
    </message>
    <message>
        <source>Removes a table from the session.</source>
        <translation>Entfernt eine Tabelle aus der Sitzung.</translation>
    </message>
    <message>
        <source>Sorts the points of a table of two columns by X.</source>
        <translation>Ordnet die Punkte einer Tabelle aus zwei Spalten nach X.</translation>
    </message>
    <message>
        <source>Multiplies X, or all other columns, by a factor.</source>
        <translation>Multipliziert X oder alle anderen Spalten mit einem Faktor.</translation>
    </message>
    <message>
        <source>Makes a curve of two: sum, difference, average, or the part within the other&apos;s range.</source>
        <translation>Macht aus zwei Kurven eine: Summe, Differenz, Mittel oder den Teil im Bereich der anderen.</translation>
    </message>
    <message>
        <source>There is no table &apos;%1&apos;; none has been imported yet.</source>
        <translation>Es gibt keine Tabelle „%1“; es wurde noch keine importiert.</translation>
    </message>
    <message>
        <source>There is no table &apos;%1&apos;, only %2.</source>
        <translation>Es gibt keine Tabelle „%1“, nur %2.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos;: %2 rows, %3 columns.</source>
        <translation>Tabelle „%1“: %2 Zeilen, %3 Spalten.</translation>
    </message>
    <message>
        <source>No tables.</source>
        <translation>Keine Tabellen.</translation>
    </message>
    <message>
        <source>undefined</source>
        <translation>unbestimmt</translation>
    </message>
    <message>
        <source>constant</source>
        <translation>konstant</translation>
    </message>
    <message>
        <source>increasing</source>
        <translation>steigend</translation>
    </message>
    <message>
        <source>decreasing</source>
        <translation>fallend</translation>
    </message>
    <message>
        <source>not monotonic</source>
        <translation>nicht monoton</translation>
    </message>
    <message>
        <source>%1: %2 [%3], %4 to %5, %6</source>
        <translation>%1: %2 [%3], %4 bis %5, %6</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; has no such column.</source>
        <translation>Tabelle „%1“ hat keine solche Spalte.</translation>
    </message>
    <message>
        <source>Column &apos;%1&apos; in %2 cannot be converted to &apos;%3&apos;.</source>
        <translation>Spalte „%1“ in %2 lässt sich nicht in „%3“ umrechnen.</translation>
    </message>
    <message>
        <source>no unit</source>
        <translation>keiner Einheit</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no unit.</source>
        <translation>„%1“ ist keine Einheit.</translation>
    </message>
    <message>
        <source>Each column needs a unit.</source>
        <translation>Jede Spalte braucht eine Einheit.</translation>
    </message>
    <message>
        <source>&apos;as&apos; is missing before the new name.</source>
        <translation>Vor dem neuen Namen fehlt „as“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no order; leave it out or say descending.</source>
        <translation>„%1“ ist keine Ordnung; weglassen oder descending sagen.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; has not two columns with values.</source>
        <translation>Tabelle „%1“ hat nicht zwei Spalten mit Werten.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither x nor y.</source>
        <translation>„%1“ ist weder x noch y.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of sum, difference, average, cut.</source>
        <translation>„%1“ ist keines von sum, difference, average, cut.</translation>
    </message>
    <message>
        <source>Tables &apos;%1&apos; and &apos;%2&apos; do not fit: two columns each, X rising or falling, units that convert, ranges that meet.</source>
        <translation>Die Tabellen „%1“ und „%2“ passen nicht zusammen: je zwei Spalten, X steigend oder fallend, umrechenbare Einheiten, gemeinsamer Bereich.</translation>
    </message>
    <message>
        <source>&apos;as&apos; and a name are missing after the file.</source>
        <translation>Nach der Datei fehlen „as“ und ein Name.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read: %2</source>
        <translation>„%1“ lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>Reading &apos;%1&apos;</source>
        <translation>Lese „%1“</translation>
    </message>
    <message>
        <source>&apos;%1&apos;, line %2: %3</source>
        <translation>„%1“, Zeile %2: %3</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no form of a table; possible are xml and text.</source>
        <translation>„%1“ ist keine Form einer Tabelle; möglich sind xml und text.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; written to &apos;%2&apos;.</source>
        <translation>Tabelle „%1“ in „%2“ geschrieben.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; has no column &apos;%2&apos;; number of columns: %3.</source>
        <translation>Tabelle „%1“ hat keine Spalte „%2“; Anzahl der Spalten: %3.</translation>
    </message>
    <message>
        <source>Sorting table &apos;%1&apos;</source>
        <translation>Tabelle „%1“ wird sortiert</translation>
    </message>
    <message>
        <source>Combining &apos;%1&apos; and &apos;%2&apos;</source>
        <translation>„%1“ und „%2“ werden verknüpft</translation>
    </message>
</context>
<context>
    <name>TableDocument</name>
    <message>
        <source>table, rows: %1</source>
        <translation>Tabelle, Zeilen: %1</translation>
    </message>
</context>
<context>
    <name>TableExport</name>
    <message>
        <source>Writing &apos;%1&apos;</source>
        <translation>„%1“ wird geschrieben</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be written: %2</source>
        <translation>„%1“ lässt sich nicht schreiben: %2</translation>
    </message>
</context>
<context>
    <name>TableModel</name>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>Row %1, %2: &apos;%3&apos; is no number; the value stays %4.</source>
        <translation>Zeile %1, %2: „%3“ ist keine Zahl; der Wert bleibt %4.</translation>
    </message>
</context>
<context>
    <name>TcpCommands</name>
    <message>
        <source>Signed lines to and from another process over TCP.</source>
        <translation>Signierte Zeilen an einen anderen Prozess und von ihm über TCP.</translation>
    </message>
    <message>
        <source>Waits for one process to connect; on this machine only, unless ADDRESS says more.</source>
        <translation>Wartet, bis sich ein Prozess verbindet; nur auf diesem Rechner, außer ADDRESS erlaubt mehr.</translation>
    </message>
    <message>
        <source>Connects to a process that serves.</source>
        <translation>Verbindet mit einem Prozess, der bedient.</translation>
    </message>
    <message>
        <source>Sends a signed line.</source>
        <translation>Sendet eine signierte Zeile.</translation>
    </message>
    <message>
        <source>Waits for a signed line, checks and shows it.</source>
        <translation>Wartet auf eine signierte Zeile, prüft und zeigt sie.</translation>
    </message>
    <message>
        <source>Ends the connection.</source>
        <translation>Beendet die Verbindung.</translation>
    </message>
    <message>
        <source>Nobody has connected within %1 s.</source>
        <translation>Innerhalb von %1 s hat sich niemand verbunden.</translation>
    </message>
    <message>
        <source>Connected from %1, port %2.</source>
        <translation>Verbunden von %1, Port %2.</translation>
    </message>
    <message>
        <source>Connected to %1, port %2.</source>
        <translation>Verbunden mit %1, Port %2.</translation>
    </message>
    <message>
        <source>Not sent: %1</source>
        <translation>Nicht gesendet: %1</translation>
    </message>
    <message>
        <source>Nothing received: %1</source>
        <translation>Nichts empfangen: %1</translation>
    </message>
    <message>
        <source>There is no connection; see &apos;tcp serve&apos; and &apos;tcp connect&apos;.</source>
        <translation>Es besteht keine Verbindung; siehe „tcp serve“ und „tcp connect“.</translation>
    </message>
    <message>
        <source>A signed line cannot hold &apos;%1&apos;, only Latin-1.</source>
        <translation>Eine signierte Zeile kann „%1“ nicht enthalten, nur Latin-1.</translation>
    </message>
    <message>
        <source>Waiting for a line</source>
        <translation>Warten auf eine Zeile</translation>
    </message>
</context>
<context>
    <name>TimeCommands</name>
    <message>
        <source>The time that a time server tells.</source>
        <translation>Die Zeit, die ein Zeitserver nennt.</translation>
    </message>
    <message>
        <source>Asks a time server and shows its time (UTC), and how far this machine&apos;s clock is off.</source>
        <translation>Fragt einen Zeitserver und zeigt seine Zeit (UTC) und wie weit die Uhr dieses Rechners abweicht.</translation>
    </message>
    <message>
        <source>A port is 1 to 65535, not %1.</source>
        <translation>Ein Port ist 1 bis 65535, nicht %1.</translation>
    </message>
    <message>
        <source>%1, port %2, does not tell the time: %3</source>
        <translation>%1, Port %2, nennt keine Zeit: %3</translation>
    </message>
    <message>
        <source>This machine&apos;s clock is off by %1 s.</source>
        <translation>Die Uhr dieses Rechners weicht um %1 s ab.</translation>
    </message>
    <message>
        <source>Asking %1</source>
        <translation>%1 wird gefragt</translation>
    </message>
    <message>
        <source>No answer came within %1 s.</source>
        <translation>Innerhalb von %1 s kam keine Antwort.</translation>
    </message>
</context>
<context>
    <name>TypedLine</name>
    <message>
        <source>Search for &apos;%1&apos;: </source>
        <translation>Suche nach „%1“: </translation>
    </message>
</context>
<context>
    <name>UnitCommand</name>
    <message>
        <source>Converts a column to another unit. Usage: unit DOCUMENT SHEET COLUMN UNIT</source>
        <translation>Rechnet eine Spalte in eine andere Einheit um. Aufruf: unit DOKUMENT BLATT SPALTE EINHEIT</translation>
    </message>
    <message>
        <source>%1 cannot be converted to &apos;%2&apos;.</source>
        <translation>%1 lässt sich nicht in „%2“ umrechnen.</translation>
    </message>
    <message>
        <source>change unit</source>
        <translation>Einheit ändern</translation>
    </message>
</context>
<context>
    <name>coCSVWriter</name>
    <message>
        <source>Units in this file</source>
        <translation>Einheiten in dieser Datei</translation>
    </message>
    <message>
        <source>CSV file produced by </source>
        <translation>CSV-Datei erstellt von </translation>
    </message>
    <message>
        <source>Date of creation: </source>
        <translation>Erstellungsdatum: </translation>
    </message>
</context>
<context>
    <name>coCheckAndCorrectName</name>
    <message>
        <source>The name is empty.</source>
        <translation>Der Name ist leer.</translation>
    </message>
    <message>
        <source>The name &apos;%1&apos; is longer than %2 characters.</source>
        <translation>Der Name „%1“ ist länger als %2 Zeichen.</translation>
    </message>
    <message>
        <source>The name &apos;%1&apos; may hold only the letters A to Z and a to z, digits and, behind the first character, hyphens.</source>
        <translation>Der Name „%1“ darf nur die Buchstaben A bis Z und a bis z, Ziffern und, nach dem ersten Zeichen, Bindestriche enthalten.</translation>
    </message>
    <message>
        <source>The name &apos;%1&apos; holds control characters, or blanks at its ends.</source>
        <translation>Der Name „%1“ enthält Steuerzeichen oder hat Leerzeichen am Rand.</translation>
    </message>
    <message>
        <source>The name &apos;%1&apos; is already taken.</source>
        <translation>Der Name „%1“ ist schon vergeben.</translation>
    </message>
</context>
<context>
    <name>coDeckCheck</name>
    <message>
        <source>the id %1 is taken by the table of line %2.</source>
        <translation>die Nummer %1 gehört schon der Tabelle in Zeile %2.</translation>
    </message>
    <message>
        <source>the deck holds no table %1.</source>
        <translation>das Deck enthält keine Tabelle %1.</translation>
    </message>
    <message>
        <source>no keyword line of the deck names the node list &apos;%1&apos;.</source>
        <translation>keine Schlüsselwortzeile des Decks nennt die Knotenliste „%1“.</translation>
    </message>
</context>
<context>
    <name>coDeckCompare</name>
    <message>
        <source>only in the first deck, line %1</source>
        <translation>nur im ersten Deck, Zeile %1</translation>
    </message>
    <message>
        <source>only in the second deck, line %1</source>
        <translation>nur im zweiten Deck, Zeile %1</translation>
    </message>
    <message>
        <source>at another place: line %1, line %2</source>
        <translation>an anderer Stelle: Zeile %1, Zeile %2</translation>
    </message>
    <message>
        <source>words that differ: %1, the first:</source>
        <translation>abweichende Wörter: %1, das erste:</translation>
    </message>
    <message>
        <source> (numbers by up to %1, relatively)</source>
        <translation> (Zahlen um bis zu %1, relativ)</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>coDeckFinding</name>
    <message>
        <source>line %1, column %2: </source>
        <translation>Zeile %1, Spalte %2: </translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>Zeile %1: </translation>
    </message>
    <message>
        <source>error: </source>
        <translation>Fehler: </translation>
    </message>
    <message>
        <source>warning: </source>
        <translation>Warnung: </translation>
    </message>
</context>
<context>
    <name>coDeckLayout</name>
    <message>
        <source>standard widths</source>
        <translation>Standardbreiten</translation>
    </message>
    <message>
        <source>extended widths</source>
        <translation>erweiterte Breiten</translation>
    </message>
    <message>
        <source>%1, as given</source>
        <translation>%1, wie angegeben</translation>
    </message>
    <message>
        <source>%1, as line %2 shows</source>
        <translation>%1, wie Zeile %2 zeigt</translation>
    </message>
    <message>
        <source>%1, which the deck does not show</source>
        <translation>%1, was das Deck nicht zeigt</translation>
    </message>
</context>
<context>
    <name>coDeckOption</name>
    <message>
        <source>comments</source>
        <translation>Kommentare</translation>
    </message>
    <message>
        <source>lines without keyword</source>
        <translation>Zeilen ohne Schlüsselwort</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos;</source>
        <translation>%1 „%2“</translation>
    </message>
</context>
<context>
    <name>coDeckPatch</name>
    <message>
        <source>The deck &apos;%1&apos; cannot be read: %2</source>
        <translation>Das Deck „%1“ lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>The folder of &apos;%1&apos; is locked by process %2 (%3) on %4.</source>
        <translation>Der Ordner von „%1“ ist von Prozess %2 (%3) auf %4 gesperrt.</translation>
    </message>
    <message>
        <source>The folder of &apos;%1&apos; cannot be locked.</source>
        <translation>Der Ordner von „%1“ lässt sich nicht sperren.</translation>
    </message>
    <message>
        <source>The deck &apos;%1&apos; was changed by somebody else; read it again.</source>
        <translation>Das Deck „%1“ wurde inzwischen von jemand anderem geändert; neu einlesen.</translation>
    </message>
    <message>
        <source>No file can be written beside &apos;%1&apos;: %2</source>
        <translation>Neben „%1“ kann keine Datei geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The old deck cannot be kept as &apos;%1&apos;.</source>
        <translation>Das alte Deck kann nicht als „%1“ aufgehoben werden.</translation>
    </message>
    <message>
        <source>The changed deck cannot take the place of &apos;%1&apos;: %2</source>
        <translation>Das geänderte Deck kann „%1“ nicht ersetzen: %2</translation>
    </message>
    <message>
        <source>The changed deck cannot be written: %1</source>
        <translation>Das geänderte Deck lässt sich nicht schreiben: %1</translation>
    </message>
    <message>
        <source>The deck &apos;%1&apos; stays as it was: there are no new lines.</source>
        <translation>Das Deck „%1“ bleibt, wie es war: Es gibt keine neuen Zeilen.</translation>
    </message>
    <message>
        <source>Stopped; the deck &apos;%1&apos; stays as it was.</source>
        <translation>Angehalten; das Deck „%1“ bleibt, wie es war.</translation>
    </message>
</context>
<context>
    <name>coDeckReader</name>
    <message>
        <source>keyword expected, found data.</source>
        <translation>Schlüsselwort erwartet, Daten gefunden.</translation>
    </message>
    <message>
        <source>data lines that do not belong to the option: %1.</source>
        <translation>Datenzeilen, die nicht zur Option gehören: %1.</translation>
    </message>
    <message>
        <source>the line has more than the %1 columns that the solver reads.</source>
        <translation>die Zeile hat mehr als die %1 Spalten, die der Solver liest.</translation>
    </message>
    <message>
        <source>data line expected, found &apos;%1&apos;.</source>
        <translation>Datenzeile erwartet, „%1“ gefunden.</translation>
    </message>
    <message>
        <source>data line expected, found the end of the deck.</source>
        <translation>Datenzeile erwartet, Ende des Decks gefunden.</translation>
    </message>
    <message>
        <source>text line expected, found the end of the deck.</source>
        <translation>Textzeile erwartet, Ende des Decks gefunden.</translation>
    </message>
    <message>
        <source>&apos;time step&apos; expected, found &apos;%1&apos;.</source>
        <translation>„time step“ erwartet, „%1“ gefunden.</translation>
    </message>
    <message>
        <source>%1 is the number of no solver.</source>
        <translation>%1 ist keine Nummer eines Solvers.</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>ganze Zahl</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>finite number</source>
        <translation>endliche Zahl</translation>
    </message>
    <message>
        <source>end of line expected, found &apos;%1&apos;.</source>
        <translation>Zeilenende erwartet, „%1“ gefunden.</translation>
    </message>
    <message>
        <source>%1 expected in field %2, found nothing.</source>
        <translation>%1 in Feld %2 erwartet, nichts gefunden.</translation>
    </message>
    <message>
        <source>%1 expected in field %2, found &apos;%3&apos;.</source>
        <translation>%1 in Feld %2 erwartet, „%3“ gefunden.</translation>
    </message>
    <message>
        <source>field %1 is %2, where cards write %3.</source>
        <translation>Feld %1 ist %2, wo Karten %3 schreiben.</translation>
    </message>
    <message>
        <source>read method 0, 1, 2 or 3 expected, found %1.</source>
        <translation>Leseverfahren 0, 1, 2 oder 3 erwartet, %1 gefunden.</translation>
    </message>
    <message>
        <source>1 or 2 variables expected, found %1.</source>
        <translation>1 oder 2 Variablen erwartet, %1 gefunden.</translation>
    </message>
    <message>
        <source>variable %1 has no type.</source>
        <translation>Variable %1 hat keine Art.</translation>
    </message>
    <message>
        <source>a table of two variables cannot be read point by point.</source>
        <translation>eine Tabelle zweier Variablen lässt sich nicht punktweise lesen.</translation>
    </message>
    <message>
        <source>formula expected, found an empty line.</source>
        <translation>Formel erwartet, leere Zeile gefunden.</translation>
    </message>
    <message>
        <source>x must not descend, but %1 follows %2.</source>
        <translation>x darf nicht fallen, aber %1 folgt auf %2.</translation>
    </message>
    <message>
        <source>%1 points are announced, %2 follow.</source>
        <translation>%1 Punkte sind angekündigt, %2 folgen.</translation>
    </message>
    <message>
        <source>the table has no points.</source>
        <translation>die Tabelle hat keine Punkte.</translation>
    </message>
    <message>
        <source>table values</source>
        <translation>Tabellenwerte</translation>
    </message>
    <message>
        <source>values %1 and %2 of variable %3 print alike: %4.</source>
        <translation>die Werte %1 und %2 der Variablen %3 werden gleich gedruckt: %4.</translation>
    </message>
    <message>
        <source>the values of variable %1 must ascend, but %2 follows %3.</source>
        <translation>die Werte der Variablen %1 müssen steigen, aber %2 folgt auf %3.</translation>
    </message>
    <message>
        <source>values of variable %1</source>
        <translation>Werte der Variablen %1</translation>
    </message>
    <message>
        <source>%1 %2 expected, found %3.</source>
        <translation>%1 %2 erwartet, %3 gefunden.</translation>
    </message>
    <message>
        <source>finite number expected, found &apos;%1&apos;.</source>
        <translation>endliche Zahl erwartet, „%1“ gefunden.</translation>
    </message>
    <message>
        <source>number expected, found &apos;%1&apos;.</source>
        <translation>Zahl erwartet, „%1“ gefunden.</translation>
    </message>
    <message>
        <source>two values of a variable are too close to be told apart.</source>
        <translation>zwei Werte einer Variablen liegen zu dicht beieinander, um sie zu unterscheiden.</translation>
    </message>
    <message>
        <source>the third force is missing and reads as 0.</source>
        <translation>die dritte Kraft fehlt und wird als 0 gelesen.</translation>
    </message>
    <message>
        <source>blank fields read as 0: %1.</source>
        <translation>leere Felder werden als 0 gelesen: %1.</translation>
    </message>
    <message>
        <source>field %1 is blank, where cards write %2.</source>
        <translation>Feld %1 ist leer, wo Karten %2 schreiben.</translation>
    </message>
    <message>
        <source>the blank field reads as 0.</source>
        <translation>das leere Feld wird als 0 gelesen.</translation>
    </message>
</context>
<context>
    <name>coDeckScanner</name>
    <message>
        <source>The deck cannot be read on after line %1: %2</source>
        <translation>Das Deck lässt sich nach Zeile %1 nicht weiterlesen: %2</translation>
    </message>
</context>
<context>
    <name>coExpressionOrder</name>
    <message>
        <source>&apos;%1&apos; cannot be the name of a formula.</source>
        <translation>„%1“ kann nicht der Name einer Formel sein.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is defined twice.</source>
        <translation>„%1“ ist zweimal definiert.</translation>
    </message>
    <message>
        <source>The formula of &apos;%1&apos; cannot be read: %2 %3</source>
        <translation>Die Formel von „%1“ lässt sich nicht lesen: %2 %3</translation>
    </message>
    <message>
        <source>The formula of &apos;%1&apos; uses &apos;%2&apos;, which is not defined.</source>
        <translation>Die Formel von „%1“ benutzt „%2“, das nicht definiert ist.</translation>
    </message>
    <message>
        <source>The formulas use each other in a circle: %1.</source>
        <translation>Die Formeln benutzen einander im Kreis: %1.</translation>
    </message>
    <message>
        <source>The formula of &apos;%1&apos; failed: %2 %3</source>
        <translation>Die Formel von „%1“ ist gescheitert: %2 %3</translation>
    </message>
</context>
<context>
    <name>coExpressionPrivate</name>
    <message>
        <source>Syntax error.</source>
        <translation>Syntaxfehler.</translation>
    </message>
    <message>
        <source>Undefined variable(s): %1.</source>
        <translation>Undefinierte Variable(n): %1.</translation>
    </message>
    <message>
        <source>Undefined function(s): %1.</source>
        <translation>Undefinierte Funktion(en): %1.</translation>
    </message>
    <message>
        <source>Evaluation error.</source>
        <translation>Fehler bei der Auswertung.</translation>
    </message>
    <message>
        <source>Division by zero.</source>
        <translation>Division durch null.</translation>
    </message>
    <message>
        <source>Domain error.</source>
        <translation>Fehler im Definitionsbereich.</translation>
    </message>
    <message>
        <source>Range error.</source>
        <translation>Fehler im Wertebereich.</translation>
    </message>
    <message>
        <source>In expression:
 %1
which evaluates to:
 %2</source>
        <translation>Im Ausdruck:
 %1
dessen Auswertung ergibt:
 %2</translation>
    </message>
    <message>
        <source>a number, a name, a function, a sign, &quot;not&quot;, &quot;if&quot;</source>
        <translation>eine Zahl, ein Name, eine Funktion, ein Vorzeichen, „not“, „if“</translation>
    </message>
    <message>
        <source>an operator</source>
        <translation>ein Operator</translation>
    </message>
    <message>
        <source>an operator other than a comparison (comparisons do not chain)</source>
        <translation>ein Operator außer einem Vergleich (Vergleiche lassen sich nicht verketten)</translation>
    </message>
    <message>
        <source>the end of the formula</source>
        <translation>das Ende der Formel</translation>
    </message>
    <message>
        <source>Line %1, column %2: the formula is nested too deeply.</source>
        <translation>Zeile %1, Spalte %2: Die Formel ist zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>Line %1, column %2: found %3, expected %4.</source>
        <translation>Zeile %1, Spalte %2: gefunden: %3, erwartet: %4.</translation>
    </message>
</context>
<context>
    <name>coExpressionSyntaxChecker</name>
    <message>
        <source>Math expression syntax is valid.</source>
        <translation>Die Syntax des mathematischen Ausdrucks ist gültig.</translation>
    </message>
    <message>
        <source>Math expression syntax is not valid: %1, %2</source>
        <translation>Die Syntax des mathematischen Ausdrucks ist nicht gültig: %1, %2</translation>
    </message>
    <message>
        <source>Math expression &apos;%0&apos;: %1, %2</source>
        <translation>Mathematischer Ausdruck „%0“: %1, %2</translation>
    </message>
</context>
<context>
    <name>coFeDataTableCard</name>
    <message>
        <source>Table &apos;%1&apos; does not fit the card: %2</source>
        <translation>Tabelle „%1“ passt nicht zur Karte: %2</translation>
    </message>
    <message>
        <source>column %1 is in &apos;%2&apos;, which cannot be converted to &apos;%3&apos;.</source>
        <translation>Spalte %1 ist in „%2“, das sich nicht in „%3“ umrechnen lässt.</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>value %1 of %2 is no finite number.</source>
        <translation>Wert %1 von %2 ist keine endliche Zahl.</translation>
    </message>
    <message>
        <source>x must not descend, but %1 in row %2 follows %3.</source>
        <translation>x darf nicht fallen, aber %1 in Zeile %2 folgt auf %3.</translation>
    </message>
    <message>
        <source>%1 must ascend, but value %2 is %3 after %4.</source>
        <translation>%1 muss steigen, aber Wert %2 ist %3 nach %4.</translation>
    </message>
    <message>
        <source>it is no XY table (an X and a Y column); number of columns: %1.</source>
        <translation>sie ist keine XY-Tabelle (eine X- und eine Y-Spalte); Anzahl der Spalten: %1.</translation>
    </message>
    <message>
        <source>it has no rows.</source>
        <translation>sie hat keine Zeilen.</translation>
    </message>
    <message>
        <source>it has %1 columns, but the grid needs one for x and one for each of %2 values of the second variable.</source>
        <translation>sie hat %1 Spalten, aber das Raster braucht eine für x und je eine für die %2 Werte der zweiten Variablen.</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>the second variable</source>
        <translation>die zweite Variable</translation>
    </message>
</context>
<context>
    <name>coHeatTreatmentData</name>
    <message>
        <source>The element &apos;%1&apos; is missing.</source>
        <translation>Das Element „%1“ fehlt.</translation>
    </message>
    <message>
        <source>Unsupported potential material &apos;%1&apos; is read for stage %2.</source>
        <translation>Für Stufe %2 wurde der nicht unterstützte Stoff „%1“ des Potentials gelesen.</translation>
    </message>
    <message>
        <source>Failed to read the value of the XML element %1 of stage %2.</source>
        <translation>Der Wert des XML-Elements %1 der Stufe %2 lässt sich nicht lesen.</translation>
    </message>
</context>
<context>
    <name>coMatrixSolverSolutionProcedureType</name>
    <message>
        <source>Solution procedure FullK</source>
        <translation>Lösungsverfahren FullK</translation>
    </message>
    <message>
        <source>Solution procedure DI</source>
        <translation>Lösungsverfahren DI</translation>
    </message>
    <message>
        <source>Failed to read the value of the XML element: %1</source>
        <translation>Der Wert des XML-Elements lässt sich nicht lesen: %1</translation>
    </message>
</context>
<context>
    <name>coObjectName</name>
    <message>
        <source>the element of an object&apos;s name is missing</source>
        <translation>das Element eines Objektnamens fehlt</translation>
    </message>
    <message>
        <source>the element &apos;%1&apos; has no attribute &apos;%2&apos;</source>
        <translation>das Element „%1“ hat kein Attribut „%2“</translation>
    </message>
</context>
<context>
    <name>coPredefinedTableListModel</name>
    <message>
        <source>There is no predefined table &apos;%1&apos;.</source>
        <translation>Es gibt keine vordefinierte Tabelle „%1“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read: %2</source>
        <translation>„%1“ lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; of the project cannot be made.</source>
        <translation>Der Ordner „%1“ des Projekts lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be written: %2</source>
        <translation>„%1“ lässt sich nicht schreiben: %2</translation>
    </message>
</context>
<context>
    <name>coScriptMode</name>
    <message>
        <source>Failed to open script file.</source>
        <translation>Die Skriptdatei lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>Path: %1, Error: %2</source>
        <translation>Pfad: %1, Fehler: %2</translation>
    </message>
    <message>
        <source>Included script expected but not found</source>
        <translation>Eingebundenes Skript erwartet, aber nicht gefunden</translation>
    </message>
    <message>
        <source>include script &apos;%1&apos; could not be found</source>
        <translation>das eingebundene Skript „%1“ wurde nicht gefunden</translation>
    </message>
    <message>
        <source>Included script includes itself</source>
        <translation>Ein eingebundenes Skript bindet sich selbst ein</translation>
    </message>
    <message>
        <source>include script &apos;%1&apos; is included by &apos;%2&apos;, which it includes itself</source>
        <translation>das eingebundene Skript „%1“ wird von „%2“ eingebunden, das es selbst einbindet</translation>
    </message>
    <message>
        <source>Too many included scripts</source>
        <translation>Zu viele eingebundene Skripte</translation>
    </message>
    <message>
        <source>include script &apos;%1&apos; is one more than the %2 that are allowed</source>
        <translation>das eingebundene Skript „%1“ ist eines mehr als die erlaubten %2</translation>
    </message>
</context>
<context>
    <name>coSntpClient</name>
    <message>
        <source>Invalid date.</source>
        <translation>Ungültiges Datum.</translation>
    </message>
</context>
<context>
    <name>coSocketMessage</name>
    <message>
        <source>The message is too long!</source>
        <translation>Die Nachricht ist zu lang!</translation>
    </message>
    <message>
        <source>Empty message!</source>
        <translation>Leere Nachricht!</translation>
    </message>
    <message>
        <source>No tag separator found!</source>
        <translation>Kein Trennzeichen gefunden!</translation>
    </message>
    <message>
        <source>No message ID found!</source>
        <translation>Keine Nachrichtennummer gefunden!</translation>
    </message>
    <message>
        <source>Invalid message signature!</source>
        <translation>Ungültige Signatur der Nachricht!</translation>
    </message>
</context>
<context>
    <name>coTableCSVWriter</name>
    <message>
        <source>Table: </source>
        <translation>Tabelle: </translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
</context>
<context>
    <name>coTableInput</name>
    <message>
        <source>Element &apos;%1&apos; expected, &apos;%2&apos; found.</source>
        <translation>Element „%1“ erwartet, „%2“ gefunden.</translation>
    </message>
    <message>
        <source>Element &apos;%1&apos; cannot be read.</source>
        <translation>Element „%1“ lässt sich nicht lesen.</translation>
    </message>
</context>
<context>
    <name>coTcpSocket</name>
    <message>
        <source>The socket&apos;s own thread cannot wait for the socket.</source>
        <translation>Der eigene Thread des Sockets kann nicht auf den Socket warten.</translation>
    </message>
    <message>
        <source>The socket is being destroyed.</source>
        <translation>Der Socket wird gerade abgebaut.</translation>
    </message>
    <message>
        <source>Invalid session ID!</source>
        <translation>Ungültige Sitzungsnummer!</translation>
    </message>
    <message>
        <source>The socket is not connected.</source>
        <translation>Der Socket ist nicht verbunden.</translation>
    </message>
    <message>
        <source>Operation timed out.</source>
        <translation>Zeitüberschreitung der Operation.</translation>
    </message>
</context>
<context>
    <name>kdComLanguage</name>
    <message>
        <source>Sets the language of the commands: %1.</source>
        <translation>Stellt die Sprache der Befehle ein: %1.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no language code; there are: %2.</source>
        <translation>„%1“ ist kein Sprachkürzel; es gibt: %2.</translation>
    </message>
    <message>
        <source>The texts of the language &apos;%1&apos; are not installed.</source>
        <translation>Die Texte der Sprache „%1“ sind nicht installiert.</translation>
    </message>
</context>
<context>
    <name>kdComList</name>
    <message>
        <source>Lists all commands.</source>
        <translation>Zeigt die Befehle.</translation>
    </message>
    <message>
        <source>The command &apos;list&apos; takes no parameter, not &apos;%1&apos;.</source>
        <translation>Der Befehl „list“ nimmt keinen Parameter, auch nicht „%1“.</translation>
    </message>
</context>
<context>
    <name>kdCommand</name>
    <message>
        <source>The command &apos;%1&apos; failed: %2</source>
        <translation>Der Befehl „%1“ ist gescheitert: %2</translation>
    </message>
    <message>
        <source>The command &apos;%1&apos; failed for an unknown reason.</source>
        <translation>Der Befehl „%1“ ist aus unbekanntem Grund gescheitert.</translation>
    </message>
</context>
<context>
    <name>kdCommandDispatcher</name>
    <message>
        <source>Unknown command: &gt;%1&lt;!</source>
        <translation>Unbekannter Befehl: &gt;%1&lt;!</translation>
    </message>
    <message>
        <source>Unknown command: &gt;%1 %2&lt;!</source>
        <translation>Unbekannter Befehl: &gt;%1 %2&lt;!</translation>
    </message>
</context>
<context>
    <name>kdDataTable</name>
    <message>
        <source>row %1: no values follow the header</source>
        <translation>Zeile %1: auf den Kopf folgen keine Werte</translation>
    </message>
    <message>
        <source>row %1 does not describe a column by dimension, unit and name</source>
        <translation>Zeile %1 beschreibt keine Spalte durch Dimension, Einheit und Namen</translation>
    </message>
    <message>
        <source>row %1 has %2, the table has %3</source>
        <translation>Zeile %1 hat %2, die Tabelle hat %3</translation>
    </message>
    <message>
        <source>row %1 has %2, the header in row %3 names %4</source>
        <translation>Zeile %1 hat %2, der Kopf in Zeile %3 nennt %4</translation>
    </message>
    <message>
        <source>1 value</source>
        <translation>1 Wert</translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation>%1 Werte</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1 Spalte</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 Spalten</translation>
    </message>
    <message>
        <source>row %1, column %2: &apos;%3&apos; is not a number</source>
        <translation>Zeile %1, Spalte %2: „%3“ ist keine Zahl</translation>
    </message>
    <message>
        <source>the element &apos;%1&apos; is missing</source>
        <translation>das Element „%1“ fehlt</translation>
    </message>
    <message>
        <source>column %1 has the unit &apos;%2&apos;, which its dimension does not know</source>
        <translation>Spalte %1 hat die Einheit „%2“, die ihre Dimension nicht kennt</translation>
    </message>
    <message>
        <source>row %1 of &apos;%2&apos; has %3, the table has %4</source>
        <translation>Zeile %1 von „%2“ hat %3, die Tabelle hat %4</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number</source>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
</context>
<context>
    <name>kdUnitSystem</name>
    <message>
        <source>dimensionless</source>
        <translation>dimensionslos</translation>
    </message>
    <message>
        <source>per cent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>kilogram</source>
        <translation>Kilogramm</translation>
    </message>
    <message>
        <source>gram</source>
        <translation>Gramm</translation>
    </message>
    <message>
        <source>tonne</source>
        <translation>Tonne</translation>
    </message>
    <message>
        <source>pound</source>
        <translation>Pfund</translation>
    </message>
    <message>
        <source>radian</source>
        <translation>Radiant</translation>
    </message>
    <message>
        <source>degree</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>second</source>
        <translation>Sekunde</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translation>Millisekunde</translation>
    </message>
    <message>
        <source>minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>metre</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>millimetre</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>centimetre</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>micrometre</source>
        <translation>Mikrometer</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>foot</source>
        <translation>Fuß</translation>
    </message>
    <message>
        <source>square metre</source>
        <translation>Quadratmeter</translation>
    </message>
    <message>
        <source>square millimetre</source>
        <translation>Quadratmillimeter</translation>
    </message>
    <message>
        <source>square centimetre</source>
        <translation>Quadratzentimeter</translation>
    </message>
    <message>
        <source>square inch</source>
        <translation>Quadratzoll</translation>
    </message>
    <message>
        <source>cubic metre</source>
        <translation>Kubikmeter</translation>
    </message>
    <message>
        <source>cubic millimetre</source>
        <translation>Kubikmillimeter</translation>
    </message>
    <message>
        <source>cubic centimetre</source>
        <translation>Kubikzentimeter</translation>
    </message>
    <message>
        <source>litre</source>
        <translation>Liter</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translation>Kubikzoll</translation>
    </message>
    <message>
        <source>metre per second</source>
        <translation>Meter pro Sekunde</translation>
    </message>
    <message>
        <source>millimetre per second</source>
        <translation>Millimeter pro Sekunde</translation>
    </message>
    <message>
        <source>millimetre per minute</source>
        <translation>Millimeter pro Minute</translation>
    </message>
    <message>
        <source>metre per minute</source>
        <translation>Meter pro Minute</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translation>Zoll pro Sekunde</translation>
    </message>
    <message>
        <source>metre per square second</source>
        <translation>Meter pro Quadratsekunde</translation>
    </message>
    <message>
        <source>millimetre per square second</source>
        <translation>Millimeter pro Quadratsekunde</translation>
    </message>
    <message>
        <source>radian per second</source>
        <translation>Radiant pro Sekunde</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translation>Umdrehung pro Minute</translation>
    </message>
    <message>
        <source>degree per second</source>
        <translation>Grad pro Sekunde</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translation>Kelvin</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translation>Grad Celsius</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translation>Grad Fahrenheit</translation>
    </message>
    <message>
        <source>kelvin per second</source>
        <translation>Kelvin pro Sekunde</translation>
    </message>
    <message>
        <source>kelvin per minute</source>
        <translation>Kelvin pro Minute</translation>
    </message>
    <message>
        <source>kelvin per hour</source>
        <translation>Kelvin pro Stunde</translation>
    </message>
    <message>
        <source>hertz</source>
        <translation>Hertz</translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translation>Kilohertz</translation>
    </message>
    <message>
        <source>per minute</source>
        <translation>pro Minute</translation>
    </message>
    <message>
        <source>per second</source>
        <translation>pro Sekunde</translation>
    </message>
    <message>
        <source>newton</source>
        <translation>Newton</translation>
    </message>
    <message>
        <source>kilonewton</source>
        <translation>Kilonewton</translation>
    </message>
    <message>
        <source>meganewton</source>
        <translation>Meganewton</translation>
    </message>
    <message>
        <source>pound-force</source>
        <translation>Pound-force</translation>
    </message>
    <message>
        <source>newton metre</source>
        <translation>Newtonmeter</translation>
    </message>
    <message>
        <source>newton millimetre</source>
        <translation>Newtonmillimeter</translation>
    </message>
    <message>
        <source>kilonewton metre</source>
        <translation>Kilonewtonmeter</translation>
    </message>
    <message>
        <source>joule</source>
        <translation>Joule</translation>
    </message>
    <message>
        <source>kilojoule</source>
        <translation>Kilojoule</translation>
    </message>
    <message>
        <source>megajoule</source>
        <translation>Megajoule</translation>
    </message>
    <message>
        <source>kilowatt-hour</source>
        <translation>Kilowattstunde</translation>
    </message>
    <message>
        <source>watt</source>
        <translation>Watt</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translation>Kilowatt</translation>
    </message>
    <message>
        <source>megawatt</source>
        <translation>Megawatt</translation>
    </message>
    <message>
        <source>horsepower</source>
        <translation>Horsepower</translation>
    </message>
    <message>
        <source>kilogram per cubic metre</source>
        <translation>Kilogramm pro Kubikmeter</translation>
    </message>
    <message>
        <source>gram per cubic centimetre</source>
        <translation>Gramm pro Kubikzentimeter</translation>
    </message>
    <message>
        <source>tonne per cubic millimetre</source>
        <translation>Tonne pro Kubikmillimeter</translation>
    </message>
    <message>
        <source>joule per kilogram kelvin</source>
        <translation>Joule pro Kilogramm und Kelvin</translation>
    </message>
    <message>
        <source>joule per gram kelvin</source>
        <translation>Joule pro Gramm und Kelvin</translation>
    </message>
    <message>
        <source>kilojoule per kilogram kelvin</source>
        <translation>Kilojoule pro Kilogramm und Kelvin</translation>
    </message>
    <message>
        <source>watt per metre kelvin</source>
        <translation>Watt pro Meter und Kelvin</translation>
    </message>
    <message>
        <source>milliwatt per millimetre kelvin</source>
        <translation>Milliwatt pro Millimeter und Kelvin</translation>
    </message>
    <message>
        <source>watt per square metre kelvin</source>
        <translation>Watt pro Quadratmeter und Kelvin</translation>
    </message>
    <message>
        <source>milliwatt per square millimetre kelvin</source>
        <translation>Milliwatt pro Quadratmillimeter und Kelvin</translation>
    </message>
    <message>
        <source>per kelvin</source>
        <translation>pro Kelvin</translation>
    </message>
    <message>
        <source>micrometre per metre kelvin</source>
        <translation>Mikrometer pro Meter und Kelvin</translation>
    </message>
    <message>
        <source>watt per square metre</source>
        <translation>Watt pro Quadratmeter</translation>
    </message>
    <message>
        <source>watt per square millimetre</source>
        <translation>Watt pro Quadratmillimeter</translation>
    </message>
    <message>
        <source>ampere</source>
        <translation>Ampere</translation>
    </message>
    <message>
        <source>kiloampere</source>
        <translation>Kiloampere</translation>
    </message>
    <message>
        <source>milliampere</source>
        <translation>Milliampere</translation>
    </message>
    <message>
        <source>volt</source>
        <translation>Volt</translation>
    </message>
    <message>
        <source>kilovolt</source>
        <translation>Kilovolt</translation>
    </message>
    <message>
        <source>millivolt</source>
        <translation>Millivolt</translation>
    </message>
    <message>
        <source>ohm</source>
        <translation>Ohm</translation>
    </message>
    <message>
        <source>milliohm</source>
        <translation>Milliohm</translation>
    </message>
    <message>
        <source>microohm</source>
        <translation>Mikroohm</translation>
    </message>
    <message>
        <source>centimetre per second</source>
        <translation>Zentimeter pro Sekunde</translation>
    </message>
    <message>
        <source>kilogram per kilogram</source>
        <translation>Kilogramm pro Kilogramm</translation>
    </message>
    <message>
        <source>pascal</source>
        <translation>Pascal</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translation>Kilopascal</translation>
    </message>
    <message>
        <source>megapascal</source>
        <translation>Megapascal</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translation>Gigapascal</translation>
    </message>
    <message>
        <source>newton per square millimetre</source>
        <translation>Newton pro Quadratmillimeter</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translation>Pfund pro Quadratzoll</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translation>Kilopfund pro Quadratzoll</translation>
    </message>
    <message>
        <source>square metre per second</source>
        <translation>Quadratmeter pro Sekunde</translation>
    </message>
    <message>
        <source>square millimetre per second</source>
        <translation>Quadratmillimeter pro Sekunde</translation>
    </message>
    <message>
        <source>square centimetre per second</source>
        <translation>Quadratzentimeter pro Sekunde</translation>
    </message>
    <message>
        <source>byte</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>kibibyte</source>
        <translation>Kibibyte</translation>
    </message>
    <message>
        <source>mebibyte</source>
        <translation>Mebibyte</translation>
    </message>
    <message>
        <source>gibibyte</source>
        <translation>Gibibyte</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masse</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Beschleunigung</translation>
    </message>
    <message>
        <source>Angular velocity</source>
        <translation>Winkelgeschwindigkeit</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Temperature difference</source>
        <translation>Temperaturdifferenz</translation>
    </message>
    <message>
        <source>Temperature rate</source>
        <translation>Temperaturrate</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Strain rate</source>
        <translation>Dehnrate</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Kraft</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>Drehmoment</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energie</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
    <message>
        <source>Specific heat</source>
        <translation>Spezifische Wärmekapazität</translation>
    </message>
    <message>
        <source>Thermal conductivity</source>
        <translation>Wärmeleitfähigkeit</translation>
    </message>
    <message>
        <source>Heat transfer coefficient</source>
        <translation>Wärmeübergangskoeffizient</translation>
    </message>
    <message>
        <source>Thermal expansion</source>
        <translation>Wärmeausdehnung</translation>
    </message>
    <message>
        <source>Heat flux</source>
        <translation>Wärmestromdichte</translation>
    </message>
    <message>
        <source>Electric current</source>
        <translation>Stromstärke</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Elektrische Spannung</translation>
    </message>
    <message>
        <source>Resistance</source>
        <translation>Widerstand</translation>
    </message>
    <message>
        <source>Mass transfer coefficient</source>
        <translation>Stoffübergangskoeffizient</translation>
    </message>
    <message>
        <source>Mass fraction</source>
        <translation>Massenanteil</translation>
    </message>
    <message>
        <source>Stress</source>
        <translation>Spannung</translation>
    </message>
    <message>
        <source>Diffusion coefficient</source>
        <translation>Diffusionskoeffizient</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Datenmenge</translation>
    </message>
</context>
<context>
    <name>kdUnitValue</name>
    <message>
        <source>Element &apos;%1&apos;: unit &apos;%2&apos; of dimension &apos;%3&apos; is unknown.</source>
        <translation>Element „%1“: Einheit „%2“ der Dimension „%3“ ist unbekannt.</translation>
    </message>
    <message>
        <source>Element &apos;%1&apos; expected, &apos;%2&apos; found.</source>
        <translation>Element „%1“ erwartet, „%2“ gefunden.</translation>
    </message>
    <message>
        <source>Element &apos;%1&apos;: &apos;%2&apos; is not a number.</source>
        <translation>Element „%1“: „%2“ ist keine Zahl.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Shows and edits tables, heat treatments and decks.</source>
        <translation>Zeigt und ändert Tabellen und Wärmebehandlungen, zeigt Decks.</translation>
    </message>
    <message>
        <source>Files to open.</source>
        <translation>Dateien, die geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>nCompanyInfo</name>
    <message>
        <source>Copyright © %1. All rights reserved.</source>
        <translation>Copyright © %1. Alle Rechte vorbehalten.</translation>
    </message>
    <message>
        <source>Contains components of licensed partners. The rights in these components remain with their owners.</source>
        <translation>Enthält Komponenten lizenzierter Partner. Die Rechte an diesen Komponenten bleiben bei ihren Inhabern.</translation>
    </message>
</context>
<context>
    <name>nCreateObjectName</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objekt</translation>
    </message>
</context>
<context>
    <name>nFileSystem</name>
    <message>
        <source>Failed to copy &apos;%1&apos; to &apos;%2&apos;: %3</source>
        <translation>„%1“ ließ sich nicht nach „%2“ kopieren: %3</translation>
    </message>
    <message>
        <source>Could not create directory &apos;%1&apos;.</source>
        <translation>Der Ordner „%1“ ließ sich nicht anlegen.</translation>
    </message>
    <message>
        <source>Directory &apos;%1&apos; does not exist.</source>
        <translation>Den Ordner „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>the target lies in the source</source>
        <translation>das Ziel liegt in der Quelle</translation>
    </message>
    <message>
        <source>both are the same file</source>
        <translation>beide sind dieselbe Datei</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>Failed to remove file &apos;%1&apos;: %2</source>
        <translation>Die Datei „%1“ ließ sich nicht löschen: %2</translation>
    </message>
    <message>
        <source>Failed to remove directory &apos;%1&apos;.</source>
        <translation>Der Ordner „%1“ ließ sich nicht löschen.</translation>
    </message>
</context>
<context>
    <name>nHeatFigure</name>
    <message>
        <source>No enabled stage takes time and has a temperature.</source>
        <translation>Keine eingeschaltete Stufe dauert eine Zeit und hat eine Temperatur.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Carbon potential</source>
        <translation>Kohlenstoffpegel</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no unit of: %2.</source>
        <translation>„%1“ ist keine Einheit von: %2.</translation>
    </message>
</context>
<context>
    <name>nHeatTreatment</name>
    <message>
        <source>Heating</source>
        <translation>Erwärmen</translation>
    </message>
    <message>
        <source>Holding</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>Quenching in oil</source>
        <translation>Abschrecken in Öl</translation>
    </message>
    <message>
        <source>Tempering</source>
        <translation>Anlassen</translation>
    </message>
    <message>
        <source>Cooling in air</source>
        <translation>Abkühlen an Luft</translation>
    </message>
    <message>
        <source>Stress relief annealing</source>
        <translation>Spannungsarmglühen</translation>
    </message>
    <message>
        <source>Cooling in the furnace</source>
        <translation>Abkühlen im Ofen</translation>
    </message>
    <message>
        <source>Carburising</source>
        <translation>Aufkohlen</translation>
    </message>
    <message>
        <source>Diffusion</source>
        <translation>Diffundieren</translation>
    </message>
    <message>
        <source>Cooling to hardening temperature</source>
        <translation>Abkühlen auf Härtetemperatur</translation>
    </message>
    <message>
        <source>The furnace brings the part to temperature.</source>
        <translation>Der Ofen bringt das Teil auf Temperatur.</translation>
    </message>
    <message>
        <source>The part is held at temperature until it is warm throughout.</source>
        <translation>Das Teil wird auf Temperatur gehalten, bis es durchgewärmt ist.</translation>
    </message>
    <message>
        <source>The part cools so fast that it hardens.</source>
        <translation>Das Teil kühlt so schnell ab, dass es härtet.</translation>
    </message>
    <message>
        <source>The hardened part is warmed, which makes it tough again.</source>
        <translation>Das gehärtete Teil wird erwärmt, wodurch es wieder zäh wird.</translation>
    </message>
    <message>
        <source>The part creeps at temperature until its stresses are low.</source>
        <translation>Das Teil kriecht bei Temperatur, bis seine Spannungen gering sind.</translation>
    </message>
    <message>
        <source>The surface takes carbon up from the atmosphere.</source>
        <translation>Die Oberfläche nimmt Kohlenstoff aus der Atmosphäre auf.</translation>
    </message>
    <message>
        <source>Carbon moves inwards at a lower carbon potential.</source>
        <translation>Bei niedrigerem Kohlenstoffpegel wandert Kohlenstoff nach innen.</translation>
    </message>
    <message>
        <source>The part cools slowly.</source>
        <translation>Das Teil kühlt langsam ab.</translation>
    </message>
    <message>
        <source>&lt;user-defined&gt;</source>
        <translation>&lt;benutzerdefiniert&gt;</translation>
    </message>
    <message>
        <source>Invalid</source>
        <translation>Ungültig</translation>
    </message>
    <message>
        <source>Quench temper</source>
        <translation>Vergüten</translation>
    </message>
    <message>
        <source>Stress relief</source>
        <translation>Spannungsarmglühen</translation>
    </message>
    <message>
        <source>Case hardening</source>
        <translation>Einsatzhärten</translation>
    </message>
    <message>
        <source>No pass</source>
        <translation>Kein Durchlauf</translation>
    </message>
    <message>
        <source>Diffusion pass</source>
        <translation>Diffusionsdurchlauf</translation>
    </message>
    <message>
        <source>Thermal pass</source>
        <translation>Thermischer Durchlauf</translation>
    </message>
    <message>
        <source>Structural pass</source>
        <translation>Mechanischer Durchlauf</translation>
    </message>
    <message>
        <source>Quenching</source>
        <translation>Abschrecken</translation>
    </message>
    <message>
        <source>Cooling</source>
        <translation>Abkühlen</translation>
    </message>
</context>
<context>
    <name>nKaldoranJes</name>
    <message>
        <source>jes files (*%1)</source>
        <translation>jes-Dateien (*%1)</translation>
    </message>
</context>
<context>
    <name>nProcessInfo</name>
    <message>
        <source>Undefined</source>
        <translation>Nicht definiert</translation>
    </message>
</context>
<context>
    <name>nSolver</name>
    <message>
        <source>Sparse Direct Solver</source>
        <translation>Direkter dünnbesetzter Löser</translation>
    </message>
    <message>
        <source>Multifrontal Sparse</source>
        <translation>Multifrontal dünnbesetzt</translation>
    </message>
    <message>
        <source>Pardiso Direct Sparse</source>
        <translation>Pardiso direkt dünnbesetzt</translation>
    </message>
    <message>
        <source>CASI Iterative Solver</source>
        <translation>CASI iterativer Löser</translation>
    </message>
    <message>
        <source>Iterative Sparse</source>
        <translation>Iterativ dünnbesetzt</translation>
    </message>
    <message>
        <source>MUMPS Parallel Direct</source>
        <translation>MUMPS parallel direkt</translation>
    </message>
    <message>
        <source>Direct Profile</source>
        <translation>Direkt Profil</translation>
    </message>
    <message>
        <source>Mixed Direct/Iterative</source>
        <translation>Gemischt direkt/iterativ</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Metis best</source>
        <translation>Metis bestes</translation>
    </message>
    <message>
        <source>Metis element-based</source>
        <translation>Metis elementbasiert</translation>
    </message>
    <message>
        <source>Metis node-based</source>
        <translation>Metis knotenbasiert</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>Vektor</translation>
    </message>
    <message>
        <source>Radial</source>
        <translation>Radial</translation>
    </message>
    <message>
        <source>Angular</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Recursive coordinate bisection</source>
        <translation>Rekursive Koordinatenhalbierung</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>kdDytran (Finite volume)</source>
        <translation>kdDytran (Finite Volumen)</translation>
    </message>
    <message>
        <source>kdMarc (Finite elements)</source>
        <translation>kdMarc (Finite Elemente)</translation>
    </message>
    <message>
        <source>Attempt removal</source>
        <translation>Entfernen versuchen</translation>
    </message>
    <message>
        <source>Contact detection during DDM</source>
        <translation>Kontakterkennung während der DDM</translation>
    </message>
</context>
<context>
    <name>nSystem</name>
    <message>
        <source>Failed to open file &apos;%1&apos;.</source>
        <translation>Die Datei „%1“ ließ sich nicht öffnen.</translation>
    </message>
    <message>
        <source>Failed to create file mapping for &apos;%1&apos;.</source>
        <translation>Die Abbildung der Datei „%1“ ließ sich nicht anlegen.</translation>
    </message>
    <message>
        <source>Failed to map file &apos;%1&apos;.</source>
        <translation>Die Datei „%1“ ließ sich nicht abbilden.</translation>
    </message>
    <message>
        <source>Could not get size of version info of file &apos;%1&apos;.</source>
        <translation>Die Größe der Versionsinformation der Datei „%1“ ist nicht bestimmbar.</translation>
    </message>
    <message>
        <source>Could not get version info of file &apos;%1&apos;.</source>
        <translation>Die Versionsinformation der Datei „%1“ lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>Failed to query version info translation values.</source>
        <translation>Die Übersetzungswerte der Versionsinformation lassen sich nicht lesen.</translation>
    </message>
    <message>
        <source>Resource language unknown.</source>
        <translation>Die Sprache der Ressource ist unbekannt.</translation>
    </message>
    <message>
        <source>Failed to query version info value.</source>
        <translation>Der Wert der Versionsinformation lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; is not a valid Windows executable.</source>
        <translation>Die Datei „%1“ ist keine gültige ausführbare Windows-Datei.</translation>
    </message>
</context>
<context>
    <name>nTableFigure</name>
    <message>
        <source>Table &apos;%1&apos; has no columns to draw.</source>
        <translation>Die Tabelle „%1“ hat keine Spalten zum Zeichnen.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; has no column %2.</source>
        <translation>Die Tabelle „%1“ hat keine Spalte %2.</translation>
    </message>
    <message>
        <source>Column &apos;%1&apos; in &apos;%2&apos; does not convert to &apos;%3&apos;.</source>
        <translation>Die Spalte „%1“ in „%2“ lässt sich nicht in „%3“ umrechnen.</translation>
    </message>
    <message>
        <source>Tables &apos;%1&apos; and &apos;%2&apos; run over different quantities, %3 and %4.</source>
        <translation>Die Tabellen „%1“ und „%2“ laufen über verschiedene Größen, %3 und %4.</translation>
    </message>
    <message>
        <source>The columns have %1 different quantities (%2), and a picture has two y axes at most; choose columns.</source>
        <translation>Die Spalten haben %1 verschiedene Größen (%2), und ein Bild hat höchstens zwei y-Achsen; Spalten auswählen.</translation>
    </message>
    <message>
        <source>The x axis shows %1, which has no unit &apos;%2&apos;.</source>
        <translation>Die x-Achse zeigt %1; das hat keine Einheit „%2“.</translation>
    </message>
    <message>
        <source>No y axis can be shown in &apos;%1&apos;; they show %2.</source>
        <translation>Keine y-Achse lässt sich in „%1“ zeigen; sie zeigen %2.</translation>
    </message>
</context>
<context>
    <name>ncoExpressionValidator</name>
    <message>
        <source>, </source>
        <comment>Separator for a list of function names.</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>The formula contains unknown functions: %1</source>
        <translation>Die Formel enthält unbekannte Funktionen: %1</translation>
    </message>
    <message>
        <source>The formula contains more than one function across the entire space domain but only one function is supported to be used in the formula.</source>
        <translation>Die Formel enthält mehr als eine Funktion über das gesamte Raumgebiet, es ist aber nur eine in der Formel möglich.</translation>
    </message>
    <message>
        <source>If a function across the entire space domain like %1 is used, then only one variable is supported to be used in the formula.</source>
        <translation>Wird eine Funktion über das gesamte Raumgebiet wie %1 benutzt, so ist nur eine Variable in der Formel möglich.</translation>
    </message>
    <message>
        <source>If a function across the entire space domain like %1 is used, then no other operations are supported to be used in the formula.</source>
        <translation>Wird eine Funktion über das gesamte Raumgebiet wie %1 benutzt, so sind keine weiteren Operationen in der Formel möglich.</translation>
    </message>
</context>
</TS>
