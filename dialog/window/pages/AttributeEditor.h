#pragma once

#include <optional>

#include <QString>
#include <QWidget>

class QLabel;

namespace corvana {

struct JobAttribute;

/// The value of one job attribute, in its row: a pop-up where its values are words, a number field
/// for a range, a text field for anything else, made from what the attribute's table says. Below it
/// stands why what was entered is not taken; the entry stays until it is mended.
///
/// It shows a value and proposes others; it takes nothing itself.
class AttributeEditor : public QWidget
{
    Q_OBJECT

public:
    /// The editor for what an attribute takes. Ownership: the parent's.
    static AttributeEditor *create(const JobAttribute &attribute, QWidget *parent);

    QString name() const;
    /// Shows the value in force, null for none. What is being typed stays where that is no news.
    void showValue(const QString &value);
    /// Says why the last proposal is not taken; an empty text: it was.
    void showProblem(const QString &problem);
    /// Proposes what was typed and not proposed yet, or not taken. Whether nothing of that is left.
    bool finishEditing();
    /// The control that has the focus first.
    virtual QWidget *control() const = 0;
    /// The one that has it last.
    virtual QWidget *lastControl() const { return control(); }

Q_SIGNALS:
    /// The user chose another value; null: none.
    void proposed(const QString &name, const QString &value);
    /// A line below the field came or went.
    void heightChanged();

protected:
    AttributeEditor(const JobAttribute &attribute, QWidget *parent);

    const JobAttribute &attribute() const { return m_attribute; }
    /// The words for a value: the one that is in force or is to be.
    virtual void put(const QString &value) = 0;
    /// What stands in the field, as a value. Null: none.
    virtual QString entered() const = 0;
    /// Takes up what is being typed, where a field does that by itself.
    virtual void interpret() {}
    /// The control row, above what is said about it.
    void setField(QWidget *field);
    /// What stands below a field all the time.
    void setHint(const QString &hint);
    /// Return in this field takes what was typed before it prints.
    void takeReturnIn(QWidget *field);
    void propose();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const JobAttribute &m_attribute;
    QLabel *m_note = nullptr; // what is said about the field
    QString m_hint;
    QString m_shown; // the value in force, as it was shown last
    QString m_stood; // what stood in the field then
    bool m_refused = false;
};

} // namespace corvana
