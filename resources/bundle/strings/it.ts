<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Print Setting</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Color Setting</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>Attivo</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>Non attivo</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>Impossibile usare questo formato carta</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>La stampante non può alimentare il formato carta impostato.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>1. Scegliere un altro formato carta.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>2. Caricare carta di quel formato.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>3. Stampare di nuovo.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>advancedItem</source>
        <translation>Opzioni avanzate</translation>
    </message>
    <message>
        <source>ImproveOutput</source>
        <translation>Migliora la stampa</translation>
    </message>
    <message>
        <source>QXQuietMode</source>
        <translation>Modalità silenziosa</translation>
    </message>
    <message>
        <source>OtherOption</source>
        <translation>Altre opzioni</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_RECOMMEND_INSTRUCTIONS</source>
        <translation>Per ottenere buoni risultati con questo tipo di carta:</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_REQUEST_INSTRUCTIONS</source>
        <translation>Per stampare su etichette, procedere sempre così:</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_SELECT_MP</source>
        <translation>Se è possibile impostare «Origine carta», scegliere «Vassoio multiuso» o «Alimentazione manuale».</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP</source>
        <translation>Caricare la carta nel vassoio multiuso o nell'alimentatore manuale sul lato anteriore della stampante.</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP_ONESHEET</source>
        <translation>Caricare la carta nel vassoio multiuso o nell'alimentatore manuale sul lato anteriore della stampante, un foglio alla volta.</translation>
    </message>
    <message>
        <source>DLG_TITLE_BACKCOVER</source>
        <translation>Aprire il coperchio posteriore della stampante</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_RECOMMEND_INSTRUCTIONS</source>
        <translation>Preparare la stampante per questo tipo di carta:</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_OPEN</source>
        <translation>Aprire il coperchio posteriore.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_PULLDOWN_GRAY</source>
        <translation>Abbassare le due leve grigie all'interno, una a sinistra e una a destra.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_STARTPRINT</source>
        <translation>Avviare quindi la stampa.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_USEMP</source>
        <translation>Caricare le etichette nel vassoio multiuso o nell'alimentatore manuale sul lato anteriore della stampante.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_DUPLEX</source>
        <translation>Questo tipo di carta viene stampato su una facciata alla volta. La stampa fronte-retro è stata disattivata.</translation>
    </message>
    <message>
        <source>DLG_BACKCOVER_INSTRUCTION_NOTE</source>
        <translation>Le buste vengono stampate su una sola facciata. La stampa fronte-retro è stata disattivata.</translation>
    </message>
    <message>
        <source>advancedcolorItem</source>
        <translation>Regolazione colore</translation>
    </message>
    <message>
        <source>QXBrightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>QXContrast</source>
        <translation>Contrasto</translation>
    </message>
    <message>
        <source>QXRed</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <source>QXGreen</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>QXBlue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <source>QXSaturation</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>RevertEffects</source>
        <translation>Annulla le ultime modifiche</translation>
    </message>
    <message>
        <source>EffectPreview</source>
        <translation>Anteprima della regolazione colore</translation>
    </message>
    <message>
        <source>NoColorEffects</source>
        <translation>Il driver di questa stampante non accetta regolazioni del colore.</translation>
    </message>
    <message>
        <source>AllowedNumbers</source>
        <translation>Numeri interi che si possono inserire</translation>
    </message>
    <message>
        <source>DensityLighter</source>
        <translation>Più chiaro</translation>
    </message>
    <message>
        <source>DensityDarker</source>
        <translation>Più scuro</translation>
    </message>
</context>
</TS>
