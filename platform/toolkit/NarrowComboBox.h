#pragma once

#include <QComboBox>

#include "platform/PlatformExport.h"

namespace corvana {

/// A combo box whose items do not decide how wide it is: as wide as minimumContentsLength() says,
/// with an icon.
///
/// Its sizes are those of a QComboBox with AdjustToMinimumContentsLengthWithIcon. That policy
/// cannot be set without the list of the combo box being made, a window of its own that takes as
/// long as ten combo boxes; here it is made when it is opened.
class CORVANA_PLATFORM_EXPORT NarrowComboBox : public QComboBox
{
public:
    using QComboBox::QComboBox;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void showEvent(QShowEvent *event) override;
};

} // namespace corvana
