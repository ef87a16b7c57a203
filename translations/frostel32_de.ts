<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Announcer</name>
    <message>
        <source>%1 has won!</source>
        <translation>%1 hat gewonnen!</translation>
    </message>
    <message>
        <source>Letter %1</source>
        <translation>Buchstabe %1</translation>
    </message>
    <message>
        <source>covered</source>
        <translation>verdeckt</translation>
    </message>
    <message>
        <source>Letter %1 of %2, %3</source>
        <translation>Buchstabe %1 von %2, %3</translation>
    </message>
    <message>
        <source>%1, points: %2</source>
        <translation>%1, Punkte: %2</translation>
    </message>
    <message>
        <source>, at turn</source>
        <translation>, ist dran</translation>
    </message>
    <message>
        <source>Apple tree</source>
        <translation>Apfelbaum</translation>
    </message>
    <message>
        <source>Frostel</source>
        <translation>Frostel</translation>
    </message>
    <message>
        <source>%1, stage %2 of %3</source>
        <translation>%1, Stufe %2 von %3</translation>
    </message>
    <message>
        <source>New word: %1 letters.</source>
        <translation>Neues Wort: %1 Buchstaben.</translation>
    </message>
    <message>
        <source>Miss: %1, stage %2 of %3.</source>
        <translation>Daneben: %1, Stufe %2 von %3.</translation>
    </message>
    <message>
        <source>Word lost.</source>
        <translation>Wort verloren.</translation>
    </message>
    <message>
        <source>The word was %1.</source>
        <translation>Das Wort war %1.</translation>
    </message>
    <message>
        <source>Tip: %1, once.</source>
        <translation>Tipp: %1, einmal.</translation>
    </message>
    <message>
        <source>Tip: %1, %2 times.</source>
        <translation>Tipp: %1, %2-mal.</translation>
    </message>
    <message>
        <source>Hit: %1, once.</source>
        <translation>Treffer: %1, einmal.</translation>
    </message>
    <message>
        <source>Hit: %1, %2 times.</source>
        <translation>Treffer: %1, %2-mal.</translation>
    </message>
    <message>
        <source>Word solved: %1.</source>
        <translation>Wort erraten: %1.</translation>
    </message>
    <message>
        <source>%1 scores a point, %2 in all.</source>
        <translation>%1 bekommt einen Punkt, %2 insgesamt.</translation>
    </message>
    <message>
        <source>%1&apos;s turn.</source>
        <translation>%1 ist dran.</translation>
    </message>
    <message>
        <source>Next word: Enter.</source>
        <translation>Nächstes Wort: Eingabetaste.</translation>
    </message>
</context>
<context>
    <name>BoardView</name>
    <message>
        <source>Start game</source>
        <translation>Spiel starten</translation>
    </message>
    <message>
        <source>End game</source>
        <translation>Spiel beenden</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tipp</translation>
    </message>
</context>
<context>
    <name>Game</name>
    <message>
        <source>File %1 not found!</source>
        <translation>Datei %1 nicht gefunden!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Really start a new game?</source>
        <translation>Wirklich ein neues Spiel starten?</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Really end the game?</source>
        <translation>Das Spiel wirklich beenden?</translation>
    </message>
    <message>
        <source>Program end</source>
        <translation>Programmende</translation>
    </message>
    <message>
        <source>won!</source>
        <translation>hat gewonnen!</translation>
    </message>
    <message>
        <source>Yippieh!</source>
        <translation>Juhu!</translation>
    </message>
    <message>
        <source>Once again?</source>
        <translation>Noch einmal?</translation>
    </message>
    <message>
        <source>There are no words to guess. Choose or create a vocabulary under Game, Options.</source>
        <translation>Es gibt keine Wörter zum Raten. Wähle oder erstelle einen Wortschatz unter Spiel, Optionen.</translation>
    </message>
</context>
<context>
    <name>InfoWindow</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Spiel starten</source>
        <translation>Spiel starten</translation>
    </message>
    <message>
        <source>Spiel beenden</source>
        <translation>Spiel beenden</translation>
    </message>
    <message>
        <source>Buchstaben anzeigen</source>
        <translation>Buchstaben anzeigen</translation>
    </message>
    <message>
        <source>nächstes Wort</source>
        <translation>nächstes Wort</translation>
    </message>
    <message>
        <source>&amp;Spiel</source>
        <translation>&amp;Spiel</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Start</translation>
    </message>
    <message>
        <source>&amp;Ende</source>
        <translation>&amp;Ende</translation>
    </message>
    <message>
        <source>&amp;Tip</source>
        <translation>&amp;Tipp</translation>
    </message>
    <message>
        <source>nächstes &amp;Wort</source>
        <translation>nächstes &amp;Wort</translation>
    </message>
    <message>
        <source>&amp;Optionen...</source>
        <translation>&amp;Optionen...</translation>
    </message>
    <message>
        <source>&amp;Suchen</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Benutzen der Hilfe</source>
        <translation>&amp;Benutzen der Hilfe</translation>
    </message>
    <message>
        <source>&amp;Info...</source>
        <translation>&amp;Info...</translation>
    </message>
</context>
<context>
    <name>OptionsWindow</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>VocabularyEditor</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>about::InfoWindow</name>
    <message>
        <source>For more Information see README.TXT!</source>
        <translation>Mehr dazu in README.TXT!</translation>
    </message>
</context>
<context>
    <name>editor::VocabularyEditor</name>
    <message>
        <source>Edit vocabulary...</source>
        <translation>Wortschatz bearbeiten...</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Save changes?</source>
        <translation>Änderungen speichern?</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>Wort</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Wörter</translation>
    </message>
</context>
<context>
    <name>help::HelpWindow</name>
    <message>
        <source>Frostel32 Help</source>
        <translation>Frostel32 Hilfe</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vorwärts</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Words to find</source>
        <translation>Gesuchte Wörter</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Finden</translation>
    </message>
    <message>
        <source>Search all help pages:</source>
        <translation>Alle Hilfeseiten durchsuchen:</translation>
    </message>
    <message>
        <source>No page holds these words.</source>
        <translation>Keine Seite enthält diese Wörter.</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Hilfeseite</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Gefundene Seiten</translation>
    </message>
</context>
<context>
    <name>mainwindow::MainWindow</name>
    <message>
        <source>&amp;Game</source>
        <translation>&amp;Spiel</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>Ü&amp;ber...</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Ende</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Help &amp;on Help</source>
        <translation>Hilfe &amp;zur Hilfe</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Optionen...</translation>
    </message>
    <message>
        <source>next &amp;Word</source>
        <translation>nächstes &amp;Wort</translation>
    </message>
    <message>
        <source>next word</source>
        <translation>nächstes Wort</translation>
    </message>
</context>
<context>
    <name>settings::OptionsWindow</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>&amp;Players:</source>
        <translation>&amp;Spieler:</translation>
    </message>
    <message>
        <source>&amp;Tips:</source>
        <translation>&amp;Tipps:</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Namen</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>s&amp;how solution</source>
        <translation>Lösung &amp;zeigen</translation>
    </message>
    <message>
        <source>&amp;Vocabulary:</source>
        <translation>&amp;Wortschatz:</translation>
    </message>
    <message>
        <source>&amp;Picture:</source>
        <translation>&amp;Bild:</translation>
    </message>
    <message>
        <source>&amp;soundeffects</source>
        <translation>Sound&amp;effekte</translation>
    </message>
    <message>
        <source>&amp;all words</source>
        <translation>&amp;alle Wörter</translation>
    </message>
    <message>
        <source>&amp;words not guessed</source>
        <translation>&amp;ungelöste Wörter</translation>
    </message>
    <message>
        <source>&amp;Edit vocabulary</source>
        <translation>Wortschatz bea&amp;rbeiten</translation>
    </message>
    <message>
        <source>Apple tree</source>
        <translation>Apfelbaum</translation>
    </message>
    <message>
        <source>Frostel</source>
        <translation>Frostel</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Tipps</translation>
    </message>
    <message>
        <source>Name of player %1</source>
        <translation>Name von Spieler %1</translation>
    </message>
    <message>
        <source>Vocabulary</source>
        <translation>Wortschatz</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>vocabulary</name>
    <message>
        <source>Input past end of file</source>
        <translation>Lesen hinter dem Dateiende</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Fehler beim Zugriff auf Pfad oder Datei</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Ein-/Ausgabefehler des Geräts</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Pfad nicht gefunden</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
</context>
</TS>
