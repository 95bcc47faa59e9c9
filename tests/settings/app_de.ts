<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>App</name>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
</context>
<context>
    <name>CorvelGui::OptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>from app_de</translation>
    </message>
</context>
</TS>
