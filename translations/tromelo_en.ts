<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>DroppedFiles</name>
    <message numerus="yes">
        <source>Added %n videos to queue</source>
        <translation>
            <numerusform>Added %n video to queue</numerusform>
            <numerusform>Added %n videos to queue</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OpenedLists</name>
    <message numerus="yes">
        <source>Skipped %1 and %n more, which can&apos;t be played.</source>
        <translation>
            <numerusform>Skipped %1 and %n more, which can&apos;t be played.</numerusform>
            <numerusform>Skipped %1 and %n more, which can&apos;t be played.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tromelo::PlaybackModel</name>
    <message numerus="yes">
        <source>Added %n videos to queue</source>
        <translation>
            <numerusform>Added %n video to queue</numerusform>
            <numerusform>Added %n videos to queue</numerusform>
        </translation>
    </message>
</context>
</TS>
