<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Review::DevicePane</name>
    <message numerus="yes">
        <source>%n camera(s) added.</source>
        <translation>
            <numerusform>%n camera added.</numerusform>
            <numerusform>%n cameras added.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n address(es) had a camera already.</source>
        <translation>
            <numerusform>%n address had a camera already.</numerusform>
            <numerusform>%n addresses had a camera already.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Review::PlaybackPane</name>
    <message numerus="yes">
        <source>%n camera(s)</source>
        <translation>
            <numerusform>%n camera</numerusform>
            <numerusform>%n cameras</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Review::PreviewCard</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
</TS>
