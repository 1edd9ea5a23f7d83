#include <QtTest>

#include <QAbstractItemView>
#include <QIcon>
#include <QPixmap>
#include <QStyleFactory>

#include "platform/toolkit/NarrowComboBox.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

struct Look
{
    const char *name;
    int letters;
    int items;
    bool hasIcons;
    QString placeholder;
    double fontSize; ///< points
    QSize iconSize{};
};

const Look kLooks[] = {
    {"a few letters", 12, 3, false, {}, 9},
    {"a placeholder that is shorter", 20, 0, false, u"Choose"_s, 9},
    {"a placeholder that is longer", 3, 2, false, u"Choose a printer of the house"_s, 9},
    {"icons", 12, 3, true, {}, 9},
    {"a small font", 12, 3, false, {}, 5},
    {"a large font", 12, 3, true, {}, 30},
    {"large icons", 12, 3, true, {}, 9, {64, 64}},
};

void give(QComboBox &box, const Look &look)
{
    QFont font = box.font();
    font.setPointSizeF(look.fontSize);
    box.setFont(font);
    box.setMinimumContentsLength(look.letters);
    box.setPlaceholderText(look.placeholder);
    if (look.iconSize.isValid())
        box.setIconSize(look.iconSize);
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    for (int i = 0; i < look.items; ++i)
        box.addItem(look.hasIcons ? QIcon(pixmap) : QIcon(),
                    u"An item with a text that is longer than the box is wide %1"_s.arg(i));
}

} // namespace

class NarrowComboBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itHasTheSizesOfThePolicy_data();
    void itHasTheSizesOfThePolicy();
    void itsListIsMadeWhenItIsOpened();
};

void NarrowComboBoxTest::itHasTheSizesOfThePolicy_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<const Look *>("look");
    for (const QString &style : QStyleFactory::keys()) {
        for (const Look &look : kLooks)
            QTest::addRow("%s, %s", qPrintable(style), look.name) << style << &look;
    }
}

void NarrowComboBoxTest::itHasTheSizesOfThePolicy()
{
    QFETCH(QString, style);
    QFETCH(const Look *, look);
    const std::unique_ptr<QStyle> shown(QStyleFactory::create(style));
    QComboBox model;
    NarrowComboBox box;
    for (QComboBox *one : {&model, static_cast<QComboBox *>(&box)}) {
        one->setStyle(shown.get());
        give(*one, *look);
    }
    model.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    QCOMPARE(box.sizeHint(), model.sizeHint());
    QCOMPARE(box.minimumSizeHint(), model.minimumSizeHint());
}

void NarrowComboBoxTest::itsListIsMadeWhenItIsOpened()
{
    NarrowComboBox box;
    box.setMinimumContentsLength(12);
    box.addItems({u"One"_s, u"Another one"_s});
    const QSize before = box.sizeHint();
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QVERIFY(box.findChildren<QAbstractItemView *>().isEmpty());
    QCOMPARE(box.sizeHint(), before);
    box.showPopup();
    QVERIFY(!box.findChildren<QAbstractItemView *>().isEmpty());
    box.hidePopup();
}

QTEST_MAIN(NarrowComboBoxTest)
#include "narrow_combo_box_test.moc"
