#pragma once

#include <QHash>
#include <QList>
#include <QObject>

#include "dialog/session/OfferedAttribute.h"
#include "dialog/window/pages/ChangeMarks.h"

class QFormLayout;
class QLabel;

namespace corvana {

class AttributeEditor;
class DisclosureButton;

/// The rows of a form for job attributes: those that are changed often, and behind a disclosure,
/// which says what is set there, the others. The rows behind it are made when they are first shown.
///
/// A row that was there once stays, so that nothing vanishes under the user's hands.
class AttributeRows : public QObject
{
    Q_OBJECT

public:
    /// Adds its rows at the end of a form, which has others. Borrows it.
    explicit AttributeRows(QFormLayout *form);

    /// Shows what is offered and in force. Attributes beside the copies are none of these rows.
    void show(const QList<OfferedAttribute> &offered);
    /// Says beside an attribute why what was entered is not taken; an empty text: it was.
    void showProblem(const QString &name, const QString &problem);
    /// Takes what is being typed. Errors: false; the row is shown, says why, and has the focus.
    bool finishEditing();
    /// The control of an attribute, disclosed; null for one that is none of these rows.
    QWidget *disclose(const QString &name);
    /// The rows that there are, shown or not.
    QList<MarkedControl> fields() const;
    /// The disclosure is open.
    bool showsMore() const;

Q_SIGNALS:
    void proposed(const QString &name, const QString &value);
    /// There are other rows, or their titles lie elsewhere.
    void fieldsChanged();
    /// The rows need more or less height.
    void heightChanged();

private:
    AttributeEditor *editor(const QString &name) const;
    void addRow(const OfferedAttribute &offered, int row);
    void addMore();
    void keepLabelsInPlace();
    void showMore(bool shown);
    void sayWhatIsSet();
    void orderFocus();
    QWidget *window() const;

    QFormLayout *m_form;
    QWidget *m_before; // the field above the first of these rows
    QList<OfferedAttribute> m_offered;
    QList<AttributeEditor *> m_front;
    QList<AttributeEditor *> m_more;
    QWidget *m_heading = nullptr; // of the disclosure; null while there is nothing to disclose
    DisclosureButton *m_disclosure = nullptr;
    QLabel *m_set = nullptr; // what is set behind it
};

} // namespace corvana
