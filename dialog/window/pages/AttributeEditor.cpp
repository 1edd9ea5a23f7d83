#include "dialog/window/pages/AttributeEditor.h"

#include <algorithm>

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QVBoxLayout>

#include "dialog/session/JobAttributes.h"
#include "dialog/window/pages/NumberField.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/NarrowComboBox.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/ProgrammaticChange.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

QString titleOf(const JobAttribute &attribute)
{
    return textOfJobAttribute({attribute.name, {}}).title;
}

// Nothing is another value than an empty text.
bool areSame(const QString &one, const QString &other)
{
    return one == other && one.isNull() == other.isNull();
}

// One of IPP, or several.
bool isNumber(const QString &value)
{
    return !value.isEmpty() && std::all_of(value.cbegin(), value.cend(), [](QChar c) {
        return (c >= u'0' && c <= u'9') || c == u',';
    });
}

// What an attribute without a usual value is while nobody asks for one.
QString automatic()
{
    return AttributeEditor::tr("Automatic");
}

/// A text: whatever has a form of its own.
class TextEditor : public AttributeEditor
{
public:
    TextEditor(const JobAttribute &attribute, QWidget *parent)
        : AttributeEditor(attribute, parent), m_text(new QLineEdit(this))
    {
        m_text->setObjectName(attribute.name);
        m_text->setAccessibleName(titleOf(attribute));
        setField(m_text);
        setHint(allowedText(attribute.allowed));
        takeReturnIn(m_text);
        connectControlAction(m_text, [this](QWidget *) { propose(); });
    }

    QWidget *control() const override { return m_text; }

protected:
    void put(const QString &value) override
    {
        m_text->setText(value.isNull() ? QString(attribute().usual) : value);
        m_text->setCursorPosition(0);
    }
    QString entered() const override
    {
        const QString text = m_text->text().trimmed();
        return text.isEmpty() ? QString() : text;
    }

private:
    QLineEdit *m_text;
};

/// A number, and beside it the range.
class NumberEditor : public AttributeEditor
{
public:
    NumberEditor(const JobAttribute &attribute, QWidget *parent)
        : AttributeEditor(attribute, parent),
          m_number(new NumberField(*attribute.allowed.range,
                                   attribute.usual.isEmpty() ? automatic() : QString(), this))
    {
        m_number->setObjectName(attribute.name);
        m_number->setAccessibleName(titleOf(attribute));
        ignoreWheelWithoutFocus(m_number);
        auto *field = new QWidget(this);
        auto *row = new QHBoxLayout(field);
        row->setContentsMargins(0, 0, 0, 0);
        row->addWidget(m_number);
        QLabel *range = plainLabel(allowedText(attribute.allowed), field);
        range->setWordWrap(true);
        range->setForegroundRole(QPalette::PlaceholderText);
        row->addWidget(range, 1);
        setField(field);
        takeReturnIn(m_number);
        connect(m_number, &NumberField::valueChanged, this, [this] {
            if (!ProgrammaticChange::isInProgress())
                propose();
        });
    }

    QWidget *control() const override { return m_number; }

protected:
    void put(const QString &value) override
    {
        const QString shown = value.isNull() ? QString(attribute().usual) : value;
        if (shown.isEmpty())
            m_number->setNone();
        else
            m_number->setValue(shown.toDouble());
    }
    QString entered() const override
    {
        if (m_number->isNone())
            return {};
        return QString::number(m_number->value(), 'f', QLocale::FloatingPointShortest);
    }
    void interpret() override { m_number->interpretText(); }

private:
    NumberField *m_number;
};

/// A word of a list; and where the attribute takes more than words, a field for the rest of it,
/// which is there while the last item of the list is chosen.
class WordEditor : public AttributeEditor
{
public:
    WordEditor(const JobAttribute &attribute, QWidget *parent)
        : AttributeEditor(attribute, parent), m_words(new NarrowComboBox(this)),
          m_usual(attribute.usual.isEmpty() ? QString() : QString(attribute.usual))
    {
        m_words->setObjectName(attribute.name);
        m_words->setAccessibleName(titleOf(attribute));
        m_words->setMinimumContentsLength(12);
        ignoreWheelWithoutFocus(m_words);
        for (const AllowedValues::Word &word : attribute.allowed.words)
            add(textOfJobAttribute({attribute.name, word.value}).value, QString(word.value));
        if (attribute.usual.isEmpty())
            addAutomatic();
        auto *field = new QWidget(this);
        auto *row = new QHBoxLayout(field);
        row->setContentsMargins(0, 0, 0, 0);
        row->addWidget(m_words, 1);
        if (attribute.allowed.range || attribute.allowed.form)
            addOther(row);
        setField(field);
        connectControlAction(m_words, [this](QWidget *) { picked(); });
    }

    QWidget *control() const override { return m_words; }
    QWidget *lastControl() const override { return m_other ? m_other : control(); }

protected:
    void put(const QString &value) override
    {
        const QString shown = value.isNull() ? m_usual : value;
        int index = indexOf(shown);
        const QString text = textOfJobAttribute({attribute().name, shown}).value;
        if (index < 0 && (!m_other || (isNumber(shown) && text != shown))) {
            // A server's default may be a word that nobody here knows, or a rarer number that has
            // one. "Other" stays last.
            index = m_other ? m_words->count() - 1 : m_words->count();
            add(text, shown, index);
        }
        popup::selectItemAt(m_words, index < 0 ? m_words->count() - 1 : index);
        if (m_other && index < 0)
            m_other->setText(shown);
        showOther();
    }
    QString entered() const override
    {
        if (isOther()) {
            const QString text = m_other->text().trimmed();
            return text.isEmpty() ? QString(u""_s) : text;
        }
        return valueAt(m_words->currentIndex());
    }

private:
    QString valueAt(int index) const { return popup::representedObject(m_words, index).toString(); }

    int indexOf(const QString &value) const
    {
        int index = 0;
        while (index < m_words->count() && !areSame(valueAt(index), value))
            ++index;
        return index < m_words->count() ? index : -1;
    }

    void add(const QString &title, const QString &value) { add(title, value, m_words->count()); }
    void add(const QString &title, const QString &value, int index)
    {
        const ProgrammaticChange change;
        m_words->insertItem(index, title, value);
    }

    // A word may stand for that already.
    void addAutomatic()
    {
        const ProgrammaticChange change;
        if (const int word = m_words->findText(automatic()); word >= 0)
            m_usual = valueAt(word);
        else
            m_words->insertItem(0, automatic(), QString());
    }

    void addOther(QHBoxLayout *row)
    {
        add(AttributeEditor::tr("Other…"), QString(u""_s));
        m_other = new QLineEdit(this);
        m_other->setObjectName(attribute().name + u"Other"_s);
        m_other->setAccessibleName(titleOf(attribute()));
        if (const auto &form = attribute().allowed.form)
            m_other->setPlaceholderText(allowedText({{}, {}, form}));
        m_other->hide();
        row->addWidget(m_other, 1);
        takeReturnIn(m_other);
        connectControlAction(m_other, [this](QWidget *) { propose(); });
    }

    bool isOther() const { return m_other && m_words->currentIndex() == m_words->count() - 1; }

    void showOther()
    {
        if (m_other)
            m_other->setVisible(isOther());
    }

    void picked()
    {
        showOther();
        if (!isOther())
            return propose();
        m_other->setFocus(); // nothing is chosen before it is entered
        m_other->selectAll();
    }

    QComboBox *m_words;
    QString m_usual; // what is chosen while nobody asks for anything; null for no word
    QLineEdit *m_other = nullptr;
};

} // namespace

AttributeEditor *AttributeEditor::create(const JobAttribute &attribute, QWidget *parent)
{
    if (!attribute.allowed.words.empty())
        return new WordEditor(attribute, parent);
    if (attribute.allowed.range && !attribute.allowed.form)
        return new NumberEditor(attribute, parent);
    return new TextEditor(attribute, parent);
}

AttributeEditor::AttributeEditor(const JobAttribute &attribute, QWidget *parent)
    : QWidget(parent), m_attribute(attribute)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
}

QString AttributeEditor::name() const
{
    return m_attribute.name;
}

void AttributeEditor::setField(QWidget *field)
{
    layout()->addWidget(field);
    // No focus proxy: rows that are made later stand last in the order of Tab until their controls
    // are put in it, and Tab would enter the row that is left there instead of going round. A
    // screen reader takes a pop-up's name from a label beside it, and that of the row is outside.
    setAccessibleLabel(control(), titleOf(m_attribute));
}

void AttributeEditor::setHint(const QString &hint)
{
    m_hint = hint;
    showProblem({});
}

void AttributeEditor::showValue(const QString &value)
{
    const bool isNews = !areSame(value, m_shown);
    if (!isNews && (m_refused || control()->hasFocus() || lastControl()->hasFocus()))
        return;
    m_shown = value;
    const ProgrammaticChange change;
    put(value);
    m_stood = entered();
    if (m_refused)
        showProblem({});
}

void AttributeEditor::showProblem(const QString &problem)
{
    m_refused = !problem.isEmpty();
    const QString text = m_refused ? problem : m_hint;
    if (!m_note && text.isEmpty())
        return;
    if (!m_note) {
        m_note = plainLabel({}, this);
        m_note->setObjectName(name() + u"Note"_s);
        m_note->setWordWrap(true);
        layout()->addWidget(m_note);
    }
    m_note->setForegroundRole(m_refused ? QPalette::WindowText : QPalette::PlaceholderText);
    const bool sameHeight = m_note->text() == text;
    m_note->setText(text);
    m_note->setVisible(!text.isEmpty());
    if (!sameHeight)
        Q_EMIT heightChanged();
    if (!m_refused)
        return;
    // A screen reader says it, although the focus may be elsewhere by now.
    announce(this, m_note->text());
}

void AttributeEditor::propose()
{
    const QString value = entered();
    // A field may have other words for what is in force: "Automatic", the nearest number. Nobody
    // has chosen these.
    const bool isShown = areSame(value, m_shown) || areSame(value, m_stood) ||
                         (m_shown.isNull() && !value.isEmpty() && value == m_attribute.usual);
    if (isShown && !m_refused)
        return;
    Q_EMIT proposed(name(), value);
}

bool AttributeEditor::finishEditing()
{
    {
        const ProgrammaticChange change; // proposed here, once
        interpret();
    }
    propose();
    return !m_refused;
}

void AttributeEditor::takeReturnIn(QWidget *field)
{
    field->installEventFilter(this);
}

bool AttributeEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            const QString former = m_shown;
            const bool taken = finishEditing();
            if (!taken || former != m_shown)
                return true; // the next one prints
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace corvana
