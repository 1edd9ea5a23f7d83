#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QWidget>

class QMessageBox;

/// What a designer would not let pass in a window. Each function answers the faults that it finds,
/// one sentence each, and nothing where there are none.
namespace corvana::test {

/// Pages and tabs of which a part is not seen before it is scrolled to.
QStringList sidewaysScrolling(const QWidget *window);
/// Texts that are cut off, and controls that reach out of their page.
QStringList clippedControls(const QWidget *page);
/// Texts in fields and lists, which are cut off silently.
QStringList clippedTexts(const QWidget *page);
QStringList overlappingControls(const QWidget *page);
/// Labels that hardly differ from their background.
QStringList unreadableLabels(QWidget *page);
/// Controls that a screen reader has no name for.
QStringList namelessControls(const QWidget *page);
/// Keys of which several controls that can be seen are reached by the same one.
QStringList sharedAccessKeys(const QWidget *window);
/// All of these but what is in fields and lists, and the keys, a fault a line.
QString faultsOf(QWidget *window);

/// Keeps a picture where CORVANA_SCREENSHOTS names a folder for it.
void savePicture(QWidget &window, const QString &name);

/// Looks at each alert that comes up, and answers it with its first button.
class AlertInspector : public QObject
{
public:
    /// With the name that pictures of the alerts get.
    explicit AlertInspector(const QString &name);

    int seen = 0;
    QStringList faults;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void inspect(QMessageBox &box);

    QString m_name;
};

} // namespace corvana::test
