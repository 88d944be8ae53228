<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AnimationEditor</name>
    <message>
        <source>%1, %2 ms</source>
        <translation>%1, %2 ms</translation>
    </message>
</context>
<context>
    <name>AnimationPage</name>
    <message>
        <source>Each animation runs to its end and back again.</source>
        <translation>Jede Animation läuft bis zum Ende, kehrt um und läuft zurück.</translation>
    </message>
    <message>
        <source>Pulsing light</source>
        <translation>Pulsierendes Licht</translation>
    </message>
    <message>
        <source>Sweeping bar</source>
        <translation>Wandernder Balken</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Running forwards</source>
        <translation>Läuft vorwärts</translation>
    </message>
    <message>
        <source>Running backwards</source>
        <translation>Läuft rückwärts</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Puls</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Wanderung</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
</context>
<context>
    <name>BatteryPage</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Absent</source>
        <translation>Fehlt</translation>
    </message>
    <message>
        <source>This device</source>
        <translation>Dieses Gerät</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Lädt</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>Rahmen %1</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Try me</source>
        <translation>Probier mich</translation>
    </message>
    <message>
        <source>Height for width</source>
        <translation>Höhe nach Breite</translation>
    </message>
    <message>
        <source>Present</source>
        <translation>Vorhanden</translation>
    </message>
</context>
<context>
    <name>ClassPictures</name>
    <message>
        <source>cannot write &quot;%1&quot;</source>
        <translation>„%1“ lässt sich nicht schreiben</translation>
    </message>
</context>
<context>
    <name>ColorEditor</name>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
    <message>
        <source>Name, or # and digits</source>
        <translation>Name oder # und Ziffern</translation>
    </message>
</context>
<context>
    <name>ContainerGalleries</name>
    <message>
        <source>USB stick</source>
        <translation>USB-Stick</translation>
    </message>
    <message>
        <source>12.4 GB free</source>
        <translation>12,4 GB frei</translation>
    </message>
    <message>
        <source>contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Flach</translation>
    </message>
    <message>
        <source>Raised</source>
        <translation>Erhaben</translation>
    </message>
    <message>
        <source>Sunken</source>
        <translation>Vertieft</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Filled, without outline</source>
        <translation>Gefüllt, ohne Umriss</translation>
    </message>
    <message>
        <source>Radius 0</source>
        <translation>Radius 0</translation>
    </message>
    <message>
        <source>A child reaches into the corners</source>
        <translation>Ein Kind reicht in die Ecken</translation>
    </message>
    <message>
        <source>The same with the mask</source>
        <translation>Dasselbe mit der Maske</translation>
    </message>
    <message>
        <source>Dark palette, raised</source>
        <translation>Dunkle Palette, erhaben</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nicht gedrückt</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Gedrückt</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Rechts nach links</translation>
    </message>
    <message>
        <source>Dark palette</source>
        <translation>Dunkle Palette</translation>
    </message>
</context>
<context>
    <name>DoubleEditor</name>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
</context>
<context>
    <name>FileBrowserPage</name>
    <message>
        <source>File browser</source>
        <translation>Dateibrowser</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>Nichts auswählen</translation>
    </message>
    <message>
        <source>Select one</source>
        <translation>Eine auswählen</translation>
    </message>
    <message>
        <source>Select several</source>
        <translation>Mehrere auswählen</translation>
    </message>
    <message>
        <source>Nothing is selected</source>
        <translation>Nichts ausgewählt</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation>Ausgewählt: %1</translation>
    </message>
</context>
<context>
    <name>FileGalleries</name>
    <message>
        <source>Two components below the root</source>
        <translation>Zwei Teile unter der Wurzel</translation>
    </message>
    <message>
        <source>More than three: the others are in a menu</source>
        <translation>Mehr als drei: Die übrigen stehen in einem Menü</translation>
    </message>
    <message>
        <source>A long name</source>
        <translation>Ein langer Name</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Rechts nach links</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Without a style sheet</source>
        <translation>Ohne Stylesheet</translation>
    </message>
    <message>
        <source>Dark palette</source>
        <translation>Dunkle Palette</translation>
    </message>
    <message>
        <source>Dark, disabled</source>
        <translation>Dunkel, gesperrt</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>A rather long name of a directory</source>
        <translation>Ein ziemlich langer Verzeichnisname</translation>
    </message>
    <message>
        <source>A text with room enough</source>
        <translation>Ein Text mit genug Platz</translation>
    </message>
    <message>
        <source>A text too long</source>
        <translation>Ein zu langer Text</translation>
    </message>
    <message>
        <source>Tile view</source>
        <translation>Kachelansicht</translation>
    </message>
    <message>
        <source>List view</source>
        <translation>Listenansicht</translation>
    </message>
    <message>
        <source>A file is selected</source>
        <translation>Eine Datei ist ausgewählt</translation>
    </message>
    <message>
        <source>A directory has been opened</source>
        <translation>Ein Verzeichnis wurde geöffnet</translation>
    </message>
    <message>
        <source>Texts and tables only</source>
        <translation>Nur Texte und Tabellen</translation>
    </message>
    <message>
        <source>This model in a QTreeView</source>
        <translation>Dieses Modell in einem QTreeView</translation>
    </message>
    <message>
        <source>QFileSystemModel, for comparison</source>
        <translation>QFileSystemModel zum Vergleich</translation>
    </message>
</context>
<context>
    <name>FlagsEditor</name>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>%1, %2 px</source>
        <translation>%1, %2 px</translation>
    </message>
    <message>
        <source>%1, %2 pt</source>
        <translation>%1, %2 pt</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstrichen</translation>
    </message>
</context>
<context>
    <name>FramesPage</name>
    <message>
        <source>Plain</source>
        <translation>Flach</translation>
    </message>
    <message>
        <source>Raised</source>
        <translation>Erhaben</translation>
    </message>
    <message>
        <source>Sunken</source>
        <translation>Vertieft</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Masked</source>
        <translation>Maskiert</translation>
    </message>
    <message>
        <source>The corners are cut off, and what lies in them.</source>
        <translation>Die Ecken sind abgeschnitten und mit ihnen, was darin liegt.</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Grid button</source>
        <translation>Rasterknopf</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>Text entry</source>
        <translation>Texteingabe</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message>
        <source>Scroll indicator</source>
        <translation>Rollanzeige</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>File browser</source>
        <translation>Dateibrowser</translation>
    </message>
    <message>
        <source>Own controls</source>
        <translation>Eigene Elemente</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
</context>
<context>
    <name>GalleryOptions</name>
    <message>
        <source>Shows every widget of the library live.</source>
        <translation>Zeigt alle Widgets der Bibliothek in Aktion.</translation>
    </message>
    <message>
        <source>Render every page to PNG files in DIR and print their paths.</source>
        <translation>Jede Seite in PNG-Dateien im Verzeichnis DIR abbilden und deren Pfade ausgeben.</translation>
    </message>
    <message>
        <source>Apply the application style sheet FILE.</source>
        <translation>Das Stylesheet FILE auf die Anwendung anwenden.</translation>
    </message>
    <message>
        <source>Show the page ID first, or render that page alone.</source>
        <translation>Die Seite ID zuerst zeigen oder nur diese Seite abbilden.</translation>
    </message>
    <message>
        <source>List the pages: id and title.</source>
        <translation>Die Seiten auflisten: ID und Titel.</translation>
    </message>
    <message>
        <source>A root directory of the file browser page.</source>
        <translation>Ein Wurzelverzeichnis der Seite „Dateibrowser“.</translation>
    </message>
    <message>
        <source>there is no page &quot;%1&quot;; the pages are: %2</source>
        <translation>die Seite „%1“ gibt es nicht; die Seiten sind: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a directory</source>
        <translation>„%1“ ist kein Verzeichnis</translation>
    </message>
    <message>
        <source>Render the states of every class, as the reference shows them, to PNG files in DIR and print their paths.</source>
        <translation>Die Zustände jeder Klasse, wie die Referenz sie zeigt, in PNG-Dateien im Verzeichnis DIR abbilden und deren Pfade ausgeben.</translation>
    </message>
    <message>
        <source>--%1 needs the name of a directory</source>
        <translation>--%1 braucht den Namen eines Verzeichnisses</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>Widget Gallery</source>
        <translation>Widget-Galerie</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Rechts nach links</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>Stylesheet</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Page alone</source>
        <translation>Nur die Seite</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Signale</translation>
    </message>
</context>
<context>
    <name>GridButtonPage</name>
    <message>
        <source>Tap a button anywhere, its labels included.</source>
        <translation>Tippen Sie irgendwo auf einen Knopf, auch auf seine Beschriftung.</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>USB stick</source>
        <translation>USB-Stick</translation>
    </message>
    <message>
        <source>12.4 GB</source>
        <translation>12,4 GB</translation>
    </message>
    <message>
        <source>free of 16 GB</source>
        <translation>von 16 GB frei</translation>
    </message>
    <message>
        <source>You tapped &quot;%1&quot;.</source>
        <translation>Angetippt: „%1“.</translation>
    </message>
</context>
<context>
    <name>IndicatorGalleries</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Lädt</translation>
    </message>
    <message>
        <source>Absent</source>
        <translation>Fehlt</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Another fill colour</source>
        <translation>Andere Füllfarbe</translation>
    </message>
    <message>
        <source>Frame width 2</source>
        <translation>Rahmenbreite 2</translation>
    </message>
    <message>
        <source>Dark palette</source>
        <translation>Dunkle Palette</translation>
    </message>
    <message>
        <source>Dark, charging</source>
        <translation>Dunkel, lädt</translation>
    </message>
    <message>
        <source>Dark, absent</source>
        <translation>Dunkel, fehlt</translation>
    </message>
    <message>
        <source>At the top</source>
        <translation>Ganz oben</translation>
    </message>
    <message>
        <source>In the middle</source>
        <translation>In der Mitte</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>Ganz unten</translation>
    </message>
    <message>
        <source>Nothing to scroll</source>
        <translation>Nichts zu rollen</translation>
    </message>
    <message>
        <source>Highlighted</source>
        <translation>Hervorgehoben</translation>
    </message>
    <message>
        <source>Much to scroll</source>
        <translation>Viel zu rollen</translation>
    </message>
    <message>
        <source>Dark, highlighted</source>
        <translation>Dunkel, hervorgehoben</translation>
    </message>
    <message>
        <source>Horizontal, at the start</source>
        <translation>Waagrecht, am Anfang</translation>
    </message>
    <message>
        <source>Horizontal, in the middle</source>
        <translation>Waagrecht, in der Mitte</translation>
    </message>
    <message>
        <source>Horizontal, at the end</source>
        <translation>Waagrecht, am Ende</translation>
    </message>
    <message>
        <source>Right to left, near the start</source>
        <translation>Rechts nach links, nahe dem Anfang</translation>
    </message>
</context>
<context>
    <name>IntEditor</name>
    <message>
        <source>Whole number</source>
        <translation>Ganze Zahl</translation>
    </message>
</context>
<context>
    <name>KeypadLayout</name>
    <message>
        <source>Decimal separator</source>
        <translation>Dezimaltrennzeichen</translation>
    </message>
    <message>
        <source>Minus</source>
        <translation>Minus</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rückschritt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalten</translation>
    </message>
    <message>
        <source>abc/123</source>
        <translation>abc/123</translation>
    </message>
    <message>
        <source>Letters or digits and symbols</source>
        <translation>Buchstaben oder Ziffern und Zeichen</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbruch</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>cannot make the directory &quot;%1&quot;</source>
        <translation>das Verzeichnis „%1“ lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>There is no display. The pages are rendered to &quot;%1&quot;:</source>
        <translation>Es gibt keinen Bildschirm. Die Seiten werden in „%1“ abgebildet:</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Qt %1, platform plugin &quot;%2&quot;</source>
        <translation>Qt %1, Plattform-Plugin „%2“</translation>
    </message>
    <message>
        <source>USB stick</source>
        <translation>USB-Stick</translation>
    </message>
    <message>
        <source>12.4 GB free</source>
        <translation>12,4 GB frei</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <source>A rather long name</source>
        <translation>Ein recht langer Name</translation>
    </message>
    <message>
        <source>Every widget of the library, alive. A button below a widget opens its page.</source>
        <translation>Alle Widgets der Bibliothek in Aktion. Ein Knopf unter einem Widget öffnet seine Seite.</translation>
    </message>
    <message>
        <source>Kitchen</source>
        <translation>Küche</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Open a keypad</source>
        <translation>Tastatur öffnen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
</context>
<context>
    <name>OwnControlsPage</name>
    <message>
        <source>A lamp that can be switched, derived from SelectionControl</source>
        <translation>Eine schaltbare Lampe, abgeleitet von SelectionControl</translation>
    </message>
    <message>
        <source>A light whose colour an Animator moves</source>
        <translation>Ein Licht, dessen Farbe ein Animator bewegt</translation>
    </message>
    <message>
        <source>Lamp, on</source>
        <translation>Lampe, ein</translation>
    </message>
    <message>
        <source>Lamp, off</source>
        <translation>Lampe, aus</translation>
    </message>
    <message>
        <source>Lamp, disabled and on</source>
        <translation>Lampe, gesperrt und ein</translation>
    </message>
    <message>
        <source>Lamp, disabled and off</source>
        <translation>Lampe, gesperrt und aus</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Animator</source>
        <translation>Animator</translation>
    </message>
    <message>
        <source>Light up</source>
        <translation>Aufleuchten</translation>
    </message>
    <message>
        <source>Duration: %1 ms</source>
        <translation>Dauer: %1 ms</translation>
    </message>
</context>
<context>
    <name>PageView</name>
    <message>
        <source>Class page of %1</source>
        <translation>Seite der Klasse %1</translation>
    </message>
    <message>
        <source>The reference is not installed; ./dev docs writes it.</source>
        <translation>Die Referenz ist nicht installiert; ./dev docs erzeugt sie.</translation>
    </message>
    <message>
        <source>There is no browser here for %1</source>
        <translation>Hier gibt es keinen Browser für %1</translation>
    </message>
</context>
<context>
    <name>PaletteEditor</name>
    <message>
        <source>%1 on %2</source>
        <translation>%1 auf %2</translation>
    </message>
</context>
<context>
    <name>PathPage</name>
    <message>
        <source>Not tapped yet</source>
        <translation>Noch nicht angetippt</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Short label</source>
        <translation>Kurzes Etikett</translation>
    </message>
    <message>
        <source>A rather long name of a directory</source>
        <translation>Ein ziemlich langer Verzeichnisname</translation>
    </message>
    <message>
        <source>Long label</source>
        <translation>Langes Etikett</translation>
    </message>
    <message>
        <source>A path: tap a directory to go up, and the three dots for those that are left out.</source>
        <translation>Ein Pfad: Ein Verzeichnis antippen, um hinaufzugehen; die drei Punkte zeigen die ausgelassenen.</translation>
    </message>
    <message>
        <source>The label that it is made of, by itself: it can be tapped.</source>
        <translation>Das Etikett, aus dem er besteht, für sich: Es lässt sich antippen.</translation>
    </message>
    <message>
        <source>Tapped: %1</source>
        <translation>Angetippt: %1</translation>
    </message>
</context>
<context>
    <name>PropertyEditor</name>
    <message>
        <source>Dynamic properties</source>
        <translation>Dynamische Eigenschaften</translation>
    </message>
    <message>
        <source>Part of a name</source>
        <translation>Teil eines Namens</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
</context>
<context>
    <name>PropertyRow</name>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
</context>
<context>
    <name>Screenshots</name>
    <message>
        <source>cannot write &quot;%1&quot;</source>
        <translation>„%1“ lässt sich nicht schreiben</translation>
    </message>
</context>
<context>
    <name>ScrollIndicatorPage</name>
    <message>
        <source>Track %1</source>
        <translation>Titel %1</translation>
    </message>
    <message>
        <source>Drag the list and the picture: their indicators light up while they move.</source>
        <translation>Ziehen Sie die Liste und das Bild: Ihre Anzeigen leuchten auf, solange sie sich bewegen.</translation>
    </message>
    <message>
        <source>Vertical indicator</source>
        <translation>Senkrechte Anzeige</translation>
    </message>
    <message>
        <source>Horizontal indicator</source>
        <translation>Waagrechte Anzeige</translation>
    </message>
</context>
<context>
    <name>SignalLog</name>
    <message>
        <source>Use the widgets of the page: what they tell is listed here.</source>
        <translation>Benutzen Sie die Widgets der Seite: Was sie melden, steht hier.</translation>
    </message>
</context>
<context>
    <name>SizePolicyEditor</name>
    <message>
        <source>Horizontal</source>
        <translation>Waagrecht</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>Horizontal stretch</source>
        <translation>Waagrechte Dehnung</translation>
    </message>
    <message>
        <source>Vertical stretch</source>
        <translation>Senkrechte Dehnung</translation>
    </message>
</context>
<context>
    <name>StyleSheetFile</name>
    <message>
        <source>cannot read the style sheet &quot;%1&quot;: %2</source>
        <translation>das Stylesheet „%1“ lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a well-formed style sheet</source>
        <translation>„%1“ ist kein wohlgeformtes Stylesheet</translation>
    </message>
    <message>
        <source>line %1: this rule is not well-formed</source>
        <translation>Zeile %1: Diese Regel ist nicht wohlgeformt</translation>
    </message>
    <message>
        <source>line %1: there is no property &quot;%2&quot;</source>
        <translation>Zeile %1: Eine Eigenschaft „%2“ gibt es nicht</translation>
    </message>
    <message>
        <source>the style sheet is not well-formed</source>
        <translation>das Stylesheet ist nicht wohlgeformt</translation>
    </message>
</context>
<context>
    <name>SwitchPage</name>
    <message>
        <source>As it comes: off, on, disabled</source>
        <translation>Im Urzustand: aus, ein, gesperrt</translation>
    </message>
    <message>
        <source>With a label</source>
        <translation>Mit Beschriftung</translation>
    </message>
    <message>
        <source>Colours, times and directions</source>
        <translation>Farben, Zeiten und Richtungen</translation>
    </message>
    <message>
        <source>One of three</source>
        <translation>Eins von dreien</translation>
    </message>
    <message>
        <source>Plain, on</source>
        <translation>Schlicht, ein</translation>
    </message>
    <message>
        <source>Plain, off</source>
        <translation>Schlicht, aus</translation>
    </message>
    <message>
        <source>Plain, disabled and on</source>
        <translation>Schlicht, gesperrt und ein</translation>
    </message>
    <message>
        <source>Plain, disabled and off</source>
        <translation>Schlicht, gesperrt und aus</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Labelled, off</source>
        <translation>Beschriftet, aus</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <source>Labelled, on</source>
        <translation>Beschriftet, ein</translation>
    </message>
    <message>
        <source>Hotspot</source>
        <translation>Hotspot</translation>
    </message>
    <message>
        <source>Labelled, disabled and off</source>
        <translation>Beschriftet, gesperrt und aus</translation>
    </message>
    <message>
        <source>Firewall</source>
        <translation>Firewall</translation>
    </message>
    <message>
        <source>Labelled, disabled and on</source>
        <translation>Beschriftet, gesperrt und ein</translation>
    </message>
    <message>
        <source>Heating</source>
        <translation>Heizung</translation>
    </message>
    <message>
        <source>Coloured</source>
        <translation>Farbig</translation>
    </message>
    <message>
        <source>Slow and springy</source>
        <translation>Langsam und federnd</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Langsam</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>Sofort</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Rechts nach links</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Gruppe: %1</translation>
    </message>
</context>
<context>
    <name>TextEditor</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>TextEntryPage</name>
    <message>
        <source>Tap a field. OK takes the value, Cancel and a tap elsewhere do not.</source>
        <translation>Tippen Sie auf ein Feld. OK übernimmt den Wert, Abbruch und ein Tippen daneben nicht.</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Temperature, %1 to %2 °C</source>
        <translation>Temperatur, %1 bis %2 °C</translation>
    </message>
    <message>
        <source>Name, 2 to 20 characters</source>
        <translation>Name, 2 bis 20 Zeichen</translation>
    </message>
    <message>
        <source>Kitchen</source>
        <translation>Küche</translation>
    </message>
    <message>
        <source>PIN, 4 to 6 digits</source>
        <translation>PIN, 4 bis 6 Ziffern</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Plain field, 3 to 8 small letters</source>
        <translation>Einfaches Feld, 3 bis 8 Kleinbuchstaben</translation>
    </message>
</context>
<context>
    <name>TextGalleries</name>
    <message>
        <source>Port, 1 to %1</source>
        <translation>Port, 1 bis %1</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>At rest</source>
        <translation>In Ruhe</translation>
    </message>
    <message>
        <source>With the focus: all is selected</source>
        <translation>Mit dem Fokus: Alles ist ausgewählt</translation>
    </message>
    <message>
        <source>Acceptable text is typed</source>
        <translation>Gültiger Text wird eingegeben</translation>
    </message>
    <message>
        <source>Not acceptable, coloured by a style sheet</source>
        <translation>Ungültig, durch ein Stylesheet gefärbt</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Dark palette</source>
        <translation>Dunkle Palette</translation>
    </message>
    <message>
        <source>With the focus: the keypad is open</source>
        <translation>Mit dem Fokus: Die Tastatur ist offen</translation>
    </message>
    <message>
        <source>Not acceptable: OK is refused</source>
        <translation>Ungültig: OK ist gesperrt</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Ganzzahl</translation>
    </message>
    <message>
        <source>While the text is not acceptable</source>
        <translation>Solange der Text ungültig ist</translation>
    </message>
    <message>
        <source>Decimal</source>
        <translation>Dezimalzahl</translation>
    </message>
    <message>
        <source>Decimal, without its only section</source>
        <translation>Dezimalzahl, ohne ihren einzigen Bereich</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text, with other sections visible</source>
        <translation>Text, andere Bereiche sichtbar</translation>
    </message>
</context>
<context>
    <name>TextListEditor</name>
    <message>
        <source>List, separated by semicolons</source>
        <translation>Liste, durch Semikolons getrennt</translation>
    </message>
</context>
<context>
    <name>ToggleGalleries</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 ms, forwards</source>
        <translation>%1 ms, vorwärts</translation>
    </message>
    <message>
        <source>%1 ms, back</source>
        <translation>%1 ms, zurück</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <source>As it comes: off</source>
        <translation>Im Urzustand: aus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Disabled, off</source>
        <translation>Gesperrt, aus</translation>
    </message>
    <message>
        <source>Disabled, on</source>
        <translation>Gesperrt, ein</translation>
    </message>
    <message>
        <source>With label and colours: off</source>
        <translation>Mit Beschriftung und Farben: aus</translation>
    </message>
    <message>
        <source>Half way</source>
        <translation>Auf halbem Weg</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Right to left, off</source>
        <translation>Rechts nach links, aus</translation>
    </message>
    <message>
        <source>Right to left, on</source>
        <translation>Rechts nach links, ein</translation>
    </message>
    <message>
        <source>Dark, as it comes</source>
        <translation>Dunkel, im Urzustand</translation>
    </message>
    <message>
        <source>Dark, with a light label</source>
        <translation>Dunkel, mit heller Beschriftung</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>TupleEditor</name>
    <message>
        <source>width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>height</source>
        <translation>Höhe</translation>
    </message>
</context>
<context>
    <name>ValueText</name>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 bei %2</translation>
    </message>
</context>
<context>
    <name>ui::CBatteryStatusWidget</name>
    <message>
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>absent</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>lädt</translation>
    </message>
</context>
<context>
    <name>ui::LineEdit</name>
    <message>
        <source>Invalid input</source>
        <translation>Ungültige Eingabe</translation>
    </message>
</context>
</TS>
