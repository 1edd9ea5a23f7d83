#pragma once

#include <QSpinBox>
#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace corvana {

/// A field for copies that lets every number in, so that one that the printer does not take is
/// refused in words rather than turned into another one. Its arrows keep to the range.
class CopiesField : public QSpinBox
{
    Q_OBJECT

public:
    explicit CopiesField(QWidget *parent = nullptr);

    int most() const { return m_most; }
    void setMost(int most);
    /// Whether the number can be printed.
    bool isAllowed() const { return value() >= 1 && value() <= m_most; }

    void fixup(QString &text) const override;
    void stepBy(int steps) override;

protected:
    StepEnabled stepEnabled() const override;

private:
    int m_most;
};

/// The number of copies; below it stands why a number is not taken.
class CopiesEditor : public QWidget
{
    Q_OBJECT

public:
    explicit CopiesEditor(QWidget *parent = nullptr);

    CopiesField *field() const { return m_field; }
    /// Puts a control behind the field.
    void addBeside(QWidget *control);

    /// The number that counts: the last one that was taken.
    int copies() const { return m_copies; }
    /// More than the most become as many. What is being refused stays to be mended until the number
    /// is another one than before.
    void setCopies(int copies);
    void setMost(int most);
    /// Takes what is being typed. Errors: false; it says why, and has the focus.
    bool finishEditing();

Q_SIGNALS:
    /// The number is another one, whoever changed it.
    void changed(int copies);
    /// It takes more room, or less.
    void heightChanged();

private:
    void take();
    void showProblem(const QString &problem);

    CopiesField *m_field;
    QHBoxLayout *m_row;
    QLabel *m_note = nullptr; // once there was a reason
    int m_copies = 1;
};

} // namespace corvana
