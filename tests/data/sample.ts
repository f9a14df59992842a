<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <message><source>A &amp;&amp; B</source><translation>Ä</translation></message>
    <message><source>Open</source><translation type="unfinished">Auf?</translation></message>
    <message><source>Empty</source><translation></translation></message>
    <message><source>Twice</source><translation>eins</translation></message>
</context>
<context>
    <message><source>Twice</source><translation>zwei</translation></message>
</context>
</TS>
