<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Print Setting</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Color Setting</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>Dieses Papierformat kann nicht verwendet werden</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>Der Drucker kann das eingestellte Papierformat nicht einziehen.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>1. Wählen Sie ein anderes Papierformat.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>2. Legen Sie Papier in diesem Format ein.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>3. Drucken Sie noch einmal.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>advancedItem</source>
        <translation>Erweiterte Optionen</translation>
    </message>
    <message>
        <source>ImproveOutput</source>
        <translation>Druckergebnis verbessern</translation>
    </message>
    <message>
        <source>QXQuietMode</source>
        <translation>Leisemodus</translation>
    </message>
    <message>
        <source>OtherOption</source>
        <translation>Weitere Optionen</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_RECOMMEND_INSTRUCTIONS</source>
        <translation>Für gute Ergebnisse mit diesem Papier:</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_REQUEST_INSTRUCTIONS</source>
        <translation>Tun Sie beim Drucken auf Etiketten immer Folgendes:</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_SELECT_MP</source>
        <translation>Wenn „Papierquelle“ einstellbar ist, wählen Sie „Mehrzweckfach“ oder „Manuelle Zufuhr“.</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP</source>
        <translation>Legen Sie das Papier in das Mehrzweckfach oder die manuelle Zufuhr an der Vorderseite des Druckers ein.</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP_ONESHEET</source>
        <translation>Legen Sie das Papier blattweise in das Mehrzweckfach oder die manuelle Zufuhr an der Vorderseite des Druckers ein.</translation>
    </message>
    <message>
        <source>DLG_TITLE_BACKCOVER</source>
        <translation>Öffnen Sie die hintere Abdeckung des Druckers</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_RECOMMEND_INSTRUCTIONS</source>
        <translation>Bereiten Sie den Drucker auf dieses Papier vor:</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_OPEN</source>
        <translation>Öffnen Sie die hintere Abdeckung.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_PULLDOWN_GRAY</source>
        <translation>Ziehen Sie die beiden grauen Hebel im Inneren nach unten, einen links und einen rechts.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_STARTPRINT</source>
        <translation>Starten Sie dann den Druck.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_USEMP</source>
        <translation>Legen Sie die Etiketten in das Mehrzweckfach oder die manuelle Zufuhr an der Vorderseite des Druckers ein.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_DUPLEX</source>
        <translation>Dieses Papier wird immer nur auf einer Seite bedruckt. Der beidseitige Druck wurde ausgeschaltet.</translation>
    </message>
    <message>
        <source>DLG_BACKCOVER_INSTRUCTION_NOTE</source>
        <translation>Umschläge werden nur auf einer Seite bedruckt. Der beidseitige Druck wurde ausgeschaltet.</translation>
    </message>
    <message>
        <source>advancedcolorItem</source>
        <translation>Farbanpassung</translation>
    </message>
    <message>
        <source>QXBrightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>QXContrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>QXRed</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>QXGreen</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>QXBlue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>QXSaturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>RevertEffects</source>
        <translation>Letzte Änderungen zurücknehmen</translation>
    </message>
    <message>
        <source>EffectPreview</source>
        <translation>Vorschau der Farbanpassung</translation>
    </message>
    <message>
        <source>NoColorEffects</source>
        <translation>Der Treiber dieses Druckers nimmt keine Farbanpassung an.</translation>
    </message>
    <message>
        <source>AllowedNumbers</source>
        <translation>Erlaubte ganze Zahlen</translation>
    </message>
    <message>
        <source>DensityLighter</source>
        <translation>Heller</translation>
    </message>
    <message>
        <source>DensityDarker</source>
        <translation>Dunkler</translation>
    </message>
</context>
</TS>
