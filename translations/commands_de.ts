<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
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
</TS>
