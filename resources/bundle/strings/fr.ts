<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Print Setting</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>Color Setting</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>Ce format de papier ne peut pas être utilisé</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>L’imprimante ne peut pas prendre le format de papier choisi.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>1. Choisissez un autre format de papier.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>2. Chargez du papier de ce format.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>3. Imprimez de nouveau.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>advancedItem</source>
        <translation>Options avancées</translation>
    </message>
    <message>
        <source>ImproveOutput</source>
        <translation>Améliorer le résultat</translation>
    </message>
    <message>
        <source>QXQuietMode</source>
        <translation>Mode silencieux</translation>
    </message>
    <message>
        <source>OtherOption</source>
        <translation>Autres options</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_RECOMMEND_INSTRUCTIONS</source>
        <translation>Pour un bon résultat avec ce type de papier :</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_REQUEST_INSTRUCTIONS</source>
        <translation>Pour imprimer des étiquettes, procédez toujours ainsi :</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_SELECT_MP</source>
        <translation>Si « Source du papier » peut être réglé, choisissez « Bac multifonction » ou « Alimentation manuelle ».</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP</source>
        <translation>Chargez le papier dans le bac multifonction ou la fente d’alimentation manuelle à l’avant de l’imprimante.</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP_ONESHEET</source>
        <translation>Chargez le papier dans le bac multifonction ou la fente d’alimentation manuelle à l’avant de l’imprimante, une feuille à la fois.</translation>
    </message>
    <message>
        <source>DLG_TITLE_BACKCOVER</source>
        <translation>Ouvrez le capot arrière de l’imprimante</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_RECOMMEND_INSTRUCTIONS</source>
        <translation>Préparez l’imprimante pour ce type de papier :</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_OPEN</source>
        <translation>Ouvrez le capot arrière.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_PULLDOWN_GRAY</source>
        <translation>À l’intérieur, abaissez les deux leviers gris, l’un à gauche et l’autre à droite.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_STARTPRINT</source>
        <translation>Lancez ensuite l’impression.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_USEMP</source>
        <translation>Chargez les étiquettes dans le bac multifonction ou la fente d’alimentation manuelle à l’avant de l’imprimante.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_DUPLEX</source>
        <translation>Ce type de papier s’imprime une face à la fois. L’impression recto verso a été désactivée.</translation>
    </message>
    <message>
        <source>DLG_BACKCOVER_INSTRUCTION_NOTE</source>
        <translation>Les enveloppes s’impriment d’un seul côté. L’impression recto verso a été désactivée.</translation>
    </message>
    <message>
        <source>advancedcolorItem</source>
        <translation>Ajustement des couleurs</translation>
    </message>
    <message>
        <source>QXBrightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>QXContrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>QXRed</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>QXGreen</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>QXBlue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>QXSaturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>RevertEffects</source>
        <translation>Annuler les derniers changements</translation>
    </message>
    <message>
        <source>EffectPreview</source>
        <translation>Aperçu de l’ajustement des couleurs</translation>
    </message>
    <message>
        <source>NoColorEffects</source>
        <translation>Le pilote de cette imprimante n’accepte aucun ajustement des couleurs.</translation>
    </message>
    <message>
        <source>AllowedNumbers</source>
        <translation>Nombres entiers autorisés</translation>
    </message>
    <message>
        <source>DensityLighter</source>
        <translation>Plus clair</translation>
    </message>
    <message>
        <source>DensityDarker</source>
        <translation>Plus foncé</translation>
    </message>
</context>
</TS>
