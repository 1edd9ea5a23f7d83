<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Print Setting</source>
        <translation>Impressão</translation>
    </message>
    <message>
        <source>Color Setting</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>Este tamanho de papel não pode ser usado</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>A impressora não pode alimentar o tamanho de papel definido.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>1. Escolha outro tamanho de papel.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>2. Coloque papel desse tamanho.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>3. Imprima novamente.</translation>
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
        <translation>Opções avançadas</translation>
    </message>
    <message>
        <source>ImproveOutput</source>
        <translation>Melhorar a impressão</translation>
    </message>
    <message>
        <source>QXQuietMode</source>
        <translation>Modo silencioso</translation>
    </message>
    <message>
        <source>OtherOption</source>
        <translation>Outras opções</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_RECOMMEND_INSTRUCTIONS</source>
        <translation>Para obter bons resultados com este tipo de papel:</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_REQUEST_INSTRUCTIONS</source>
        <translation>Para imprimir em etiquetas, faça sempre o seguinte:</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_SELECT_MP</source>
        <translation>Se for possível definir “Origem do papel”, escolha “Bandeja multiuso” ou “Alimentação manual”.</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP</source>
        <translation>Coloque o papel na bandeja multiuso ou na abertura de alimentação manual na frente da impressora.</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP_ONESHEET</source>
        <translation>Coloque o papel na bandeja multiuso ou na abertura de alimentação manual na frente da impressora, uma folha por vez.</translation>
    </message>
    <message>
        <source>DLG_TITLE_BACKCOVER</source>
        <translation>Abra a tampa traseira da impressora</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_RECOMMEND_INSTRUCTIONS</source>
        <translation>Prepare a impressora para este tipo de papel:</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_OPEN</source>
        <translation>Abra a tampa traseira.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_PULLDOWN_GRAY</source>
        <translation>Abaixe as duas alavancas cinza no interior, uma à esquerda e outra à direita.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_STARTPRINT</source>
        <translation>Depois, inicie a impressão.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_USEMP</source>
        <translation>Coloque as etiquetas na bandeja multiuso ou na abertura de alimentação manual na frente da impressora.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_DUPLEX</source>
        <translation>Este tipo de papel é impresso em uma face por vez. A impressão frente e verso foi desativada.</translation>
    </message>
    <message>
        <source>DLG_BACKCOVER_INSTRUCTION_NOTE</source>
        <translation>Envelopes são impressos em uma única face. A impressão frente e verso foi desativada.</translation>
    </message>
    <message>
        <source>advancedcolorItem</source>
        <translation>Ajuste de cores</translation>
    </message>
    <message>
        <source>QXBrightness</source>
        <translation>Brilho</translation>
    </message>
    <message>
        <source>QXContrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>QXRed</source>
        <translation>Vermelho</translation>
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
        <translation>Saturação</translation>
    </message>
    <message>
        <source>RevertEffects</source>
        <translation>Desfazer últimas alterações</translation>
    </message>
    <message>
        <source>EffectPreview</source>
        <translation>Visualização do ajuste de cores</translation>
    </message>
    <message>
        <source>NoColorEffects</source>
        <translation>O driver desta impressora não aceita ajustes de cores.</translation>
    </message>
    <message>
        <source>AllowedNumbers</source>
        <translation>Números inteiros que podem ser digitados</translation>
    </message>
    <message>
        <source>DensityLighter</source>
        <translation>Mais claro</translation>
    </message>
    <message>
        <source>DensityDarker</source>
        <translation>Mais escuro</translation>
    </message>
</context>
</TS>
