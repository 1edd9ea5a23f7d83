<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Print Setting</source>
        <translation>Print Setting</translation>
    </message>
    <message>
        <source>Color Setting</source>
        <translation>Color Setting</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>On</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>This paper size cannot be used</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>The printer cannot feed the paper size that is set.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>1. Choose another paper size.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>2. Load paper of that size.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>3. Print again.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>advancedItem</source>
        <translation>Advanced Options</translation>
    </message>
    <message>
        <source>ImproveOutput</source>
        <translation>Improve Print Output</translation>
    </message>
    <message>
        <source>QXQuietMode</source>
        <translation>Quiet Mode</translation>
    </message>
    <message>
        <source>OtherOption</source>
        <translation>Other Options</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_RECOMMEND_INSTRUCTIONS</source>
        <translation>For good results with this kind of paper:</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_REQUEST_INSTRUCTIONS</source>
        <translation>Always do this to print on labels:</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_SELECT_MP</source>
        <translation>If “Paper Source” can be set, choose “Multi-Purpose Tray” or “Manual Feed”.</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP</source>
        <translation>Load the paper into the multi-purpose tray or the manual feed slot at the front of the printer.</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP_ONESHEET</source>
        <translation>Load the paper into the multi-purpose tray or the manual feed slot at the front of the printer, one sheet at a time.</translation>
    </message>
    <message>
        <source>DLG_TITLE_BACKCOVER</source>
        <translation>Open the back cover of the printer</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_RECOMMEND_INSTRUCTIONS</source>
        <translation>Get the printer ready for this kind of paper:</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_OPEN</source>
        <translation>Open the back cover.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_PULLDOWN_GRAY</source>
        <translation>Pull down the two gray levers inside, one on the left and one on the right.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_STARTPRINT</source>
        <translation>Then start printing.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_USEMP</source>
        <translation>Load the labels into the multi-purpose tray or the manual feed slot at the front of the printer.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_DUPLEX</source>
        <translation>This kind of paper is printed on one side at a time. Two-sided printing has been turned off.</translation>
    </message>
    <message>
        <source>DLG_BACKCOVER_INSTRUCTION_NOTE</source>
        <translation>Envelopes are printed on one side only. Two-sided printing has been turned off.</translation>
    </message>
    <message>
        <source>advancedcolorItem</source>
        <translation>Color Adjustment</translation>
    </message>
    <message>
        <source>QXBrightness</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>QXContrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>QXRed</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>QXGreen</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>QXBlue</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>QXSaturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>RevertEffects</source>
        <translation>Undo Last Changes</translation>
    </message>
    <message>
        <source>EffectPreview</source>
        <translation>Preview of the color adjustment</translation>
    </message>
    <message>
        <source>NoColorEffects</source>
        <translation>The driver of this printer takes no color adjustment.</translation>
    </message>
    <message>
        <source>AllowedNumbers</source>
        <translation>Whole numbers that can be entered</translation>
    </message>
    <message>
        <source>DensityLighter</source>
        <translation>Lighter</translation>
    </message>
    <message>
        <source>DensityDarker</source>
        <translation>Darker</translation>
    </message>
</context>
</TS>
