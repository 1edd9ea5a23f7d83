<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Print Setting</source>
        <translation>인쇄 설정</translation>
    </message>
    <message>
        <source>Color Setting</source>
        <translation>색상 설정</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>켜기</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>끄기</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>이 용지 크기는 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>설정된 용지 크기를 프린터에 급지할 수 없습니다.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>1. 다른 용지 크기를 선택하십시오.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>2. 그 크기의 용지를 넣으십시오.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>3. 다시 인쇄하십시오.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>advancedItem</source>
        <translation>고급 옵션</translation>
    </message>
    <message>
        <source>ImproveOutput</source>
        <translation>인쇄 결과 개선</translation>
    </message>
    <message>
        <source>QXQuietMode</source>
        <translation>저소음 모드</translation>
    </message>
    <message>
        <source>OtherOption</source>
        <translation>기타 옵션</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_RECOMMEND_INSTRUCTIONS</source>
        <translation>이 종류의 용지에서 좋은 결과를 얻으려면:</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_REQUEST_INSTRUCTIONS</source>
        <translation>라벨에 인쇄할 때는 항상 다음과 같이 하십시오:</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_SELECT_MP</source>
        <translation>‘용지 공급’을 설정할 수 있으면 ‘다목적 용지함’ 또는 ‘수동 급지’를 선택하십시오.</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP</source>
        <translation>프린터 앞면의 다목적 용지함 또는 수동 급지 슬롯에 용지를 넣으십시오.</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP_ONESHEET</source>
        <translation>프린터 앞면의 다목적 용지함 또는 수동 급지 슬롯에 용지를 한 장씩 넣으십시오.</translation>
    </message>
    <message>
        <source>DLG_TITLE_BACKCOVER</source>
        <translation>프린터의 뒷면 덮개를 여십시오</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_RECOMMEND_INSTRUCTIONS</source>
        <translation>이 종류의 용지에 맞게 프린터를 준비하십시오:</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_OPEN</source>
        <translation>뒷면 덮개를 여십시오.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_PULLDOWN_GRAY</source>
        <translation>안쪽 왼쪽과 오른쪽에 있는 회색 레버 두 개를 아래로 내리십시오.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_STARTPRINT</source>
        <translation>그런 다음 인쇄를 시작하십시오.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_USEMP</source>
        <translation>프린터 앞면의 다목적 용지함 또는 수동 급지 슬롯에 라벨을 넣으십시오.</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_DUPLEX</source>
        <translation>이 종류의 용지는 한 번에 한 면만 인쇄할 수 있습니다. 양면 인쇄가 꺼졌습니다.</translation>
    </message>
    <message>
        <source>DLG_BACKCOVER_INSTRUCTION_NOTE</source>
        <translation>봉투는 한 면에만 인쇄할 수 있습니다. 양면 인쇄가 꺼졌습니다.</translation>
    </message>
    <message>
        <source>advancedcolorItem</source>
        <translation>색상 조정</translation>
    </message>
    <message>
        <source>QXBrightness</source>
        <translation>밝기</translation>
    </message>
    <message>
        <source>QXContrast</source>
        <translation>대비</translation>
    </message>
    <message>
        <source>QXRed</source>
        <translation>빨강</translation>
    </message>
    <message>
        <source>QXGreen</source>
        <translation>초록</translation>
    </message>
    <message>
        <source>QXBlue</source>
        <translation>파랑</translation>
    </message>
    <message>
        <source>QXSaturation</source>
        <translation>채도</translation>
    </message>
    <message>
        <source>RevertEffects</source>
        <translation>마지막 변경 취소</translation>
    </message>
    <message>
        <source>EffectPreview</source>
        <translation>색상 조정 미리보기</translation>
    </message>
    <message>
        <source>NoColorEffects</source>
        <translation>이 프린터의 드라이버는 색상 조정을 지원하지 않습니다.</translation>
    </message>
    <message>
        <source>AllowedNumbers</source>
        <translation>입력할 수 있는 정수</translation>
    </message>
    <message>
        <source>DensityLighter</source>
        <translation>연하게</translation>
    </message>
    <message>
        <source>DensityDarker</source>
        <translation>진하게</translation>
    </message>
</context>
</TS>
