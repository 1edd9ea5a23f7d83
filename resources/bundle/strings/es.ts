<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Print Setting</source>
        <translation>Impresión</translation>
    </message>
    <message>
        <source>Color Setting</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>Este tamaño de papel no se puede usar</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>La impresora no puede alimentar el tamaño de papel establecido.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>1. Elija otro tamaño de papel.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>2. Cargue papel de ese tamaño.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>3. Imprima de nuevo.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>advancedItem</source>
        <translation>Opciones avanzadas</translation>
    </message>
    <message>
        <source>ImproveOutput</source>
        <translation>Mejorar la impresión</translation>
    </message>
    <message>
        <source>QXQuietMode</source>
        <translation>Modo silencioso</translation>
    </message>
    <message>
        <source>OtherOption</source>
        <translation>Otras opciones</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_RECOMMEND_INSTRUCTIONS</source>
        <translation>Para obtener buenos resultados con este tipo de papel:</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_REQUEST_INSTRUCTIONS</source>
        <translation>Para imprimir en etiquetas, haga siempre lo siguiente:</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_SELECT_MP</source>
        <translation>Si se puede establecer «Origen del papel», elija «Bandeja multipropósito» o «Alimentación manual».</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP</source>
        <translation>Cargue el papel en la bandeja multipropósito o en la ranura de alimentación manual de la parte delantera de la impresora.</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP_ONESHEET</source>
        <translation>Cargue el papel en la bandeja multipropósito o en la ranura de alimentación manual de la parte delantera de la impresora, hoja por hoja.</translation>
    </message>
    <message>
        <source>DLG_TITLE_BACKCOVER</source>
        <translation>Abra la cubierta trasera de la impresora</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_RECOMMEND_INSTRUCTIONS</source>
        <translation>Prepare la impresora para este tipo de papel:</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_OPEN</source>
        <translation>Abra la cubierta trasera.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_PULLDOWN_GRAY</source>
        <translation>Baje las dos palancas grises del interior, una a la izquierda y otra a la derecha.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_STARTPRINT</source>
        <translation>Después, inicie la impresión.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_USEMP</source>
        <translation>Cargue las etiquetas en la bandeja multipropósito o en la ranura de alimentación manual de la parte delantera de la impresora.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_DUPLEX</source>
        <translation>Este tipo de papel se imprime por una sola cara cada vez. Se ha desactivado la impresión a doble cara.</translation>
    </message>
    <message>
        <source>DLG_BACKCOVER_INSTRUCTION_NOTE</source>
        <translation>Los sobres se imprimen por una sola cara. Se ha desactivado la impresión a doble cara.</translation>
    </message>
    <message>
        <source>advancedcolorItem</source>
        <translation>Ajuste de color</translation>
    </message>
    <message>
        <source>QXBrightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>QXContrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>QXRed</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>QXGreen</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>QXBlue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>QXSaturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>RevertEffects</source>
        <translation>Deshacer los últimos cambios</translation>
    </message>
    <message>
        <source>EffectPreview</source>
        <translation>Vista previa del ajuste de color</translation>
    </message>
    <message>
        <source>NoColorEffects</source>
        <translation>El controlador de esta impresora no admite ajustes de color.</translation>
    </message>
    <message>
        <source>AllowedNumbers</source>
        <translation>Números enteros que se pueden introducir</translation>
    </message>
    <message>
        <source>DensityLighter</source>
        <translation>Más claro</translation>
    </message>
    <message>
        <source>DensityDarker</source>
        <translation>Más oscuro</translation>
    </message>
</context>
</TS>
