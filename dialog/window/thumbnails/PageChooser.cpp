#include "dialog/window/thumbnails/PageChooser.h"

#include <limits>
#include <utility>

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include "dialog/preview/PagePictures.h"
#include "dialog/window/thumbnails/PageModel.h"
#include "dialog/window/thumbnails/PageThumbnails.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Less than a preview's: small pictures are drawn again in no time. Units: bytes.
constexpr qint64 kPictureRoom = 24LL << 20;
// Every second page of a long document takes more than a field has room for by itself.
constexpr int kMostLetters = 1'000'000;
// Of the window at first. Units: heights of the font.
constexpr QSize kUsualSize{46, 40};

} // namespace

PageChooser::PageChooser(const ChoosablePages &pages, QWidget *parent)
    : QDialog(parent), m_pictures(std::make_unique<PagePictures>(RendererSettings::shipped(),
                                                                 nullptr, kPictureRoom)),
      m_model(new PageModel(this)), m_thumbnails(new PageThumbnails(*m_model, *m_pictures, this)),
      m_intro(plainLabel({}, this)), m_field(new QLineEdit(this)), m_icon(new QLabel(this)),
      m_note(plainLabel({}, this)),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setObjectName(u"pageChooser"_s);
    setWindowTitle(tr("Choose Pages"));
    build();
    connect(m_pictures.get(), &PagePictures::described, m_model, &PageModel::describe);
    connect(m_model, &PageModel::ticked, this, [this] {
        m_isTouched = true;
        choose(m_pages.withTicks(m_ranges, m_model->ticks()));
    });
    connect(m_field, &QLineEdit::textEdited, this, &PageChooser::typed);
    // What was typed in any form is then seen in the shortest.
    connect(m_field, &QLineEdit::editingFinished, this, [this] {
        if (m_typed.problem == TypedPages::Problem::None)
            showRanges();
    });
    connect(m_buttons, &QDialogButtonBox::accepted, this, &PageChooser::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &PageChooser::reject);
    // Qt's own texts are not there in every language.
    m_buttons->button(QDialogButtonBox::Ok)->setText(tr("OK"));
    m_buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    setPages(pages);
    m_thumbnails->setFocus();
    const int em = fontMetrics().height();
    const QSize room = screen()->availableSize() * 9 / 10;
    resize((kUsualSize * em).boundedTo(room));
}

// The view goes first: it must not ask for pictures any more. A field that is left while the window
// goes has nothing to say.
PageChooser::~PageChooser()
{
    m_field->disconnect(this);
    delete m_thumbnails;
}

void PageChooser::build()
{
    auto *layout = new QVBoxLayout(this);
    m_intro->setWordWrap(true);
    m_intro->setObjectName(u"intro"_s);
    layout->addWidget(m_intro);
    layout->addWidget(m_thumbnails, 1);
    layout->addWidget(buildButtons());
    auto *row = new QHBoxLayout;
    auto *label = new QLabel(tr("&Pages:"), this);
    label->setBuddy(m_field);
    m_field->setObjectName(u"ranges"_s);
    m_field->setMaxLength(kMostLetters);
    m_field->setPlaceholderText(tr("Such as 1-4, 7, 9-"));
    row->addWidget(label);
    row->addWidget(m_field, 1);
    layout->addLayout(row);
    auto *state = new QHBoxLayout;
    m_note->setObjectName(u"note"_s);
    m_note->setWordWrap(true);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size, size));
    state->addWidget(m_icon, 0, Qt::AlignTop);
    state->addWidget(m_note, 1);
    layout->addLayout(state);
    layout->addWidget(m_buttons);
    // In the order of reading: the buttons of the choices are the youngest.
    QWidget *before = m_thumbnails;
    QList<QWidget *> behind;
    for (auto *button : findChildren<QPushButton *>()) {
        if (!m_buttons->isAncestorOf(button))
            behind += button;
    }
    behind += m_field;
    for (auto *button : m_buttons->buttons())
        behind += button;
    for (QWidget *widget : std::as_const(behind)) {
        setTabOrder(before, widget);
        before = widget;
    }
}

QWidget *PageChooser::buildButtons()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    addChoice(row, u"chooseAll"_s, tr("&All"), PageTicks::Which::All);
    addChoice(row, u"chooseNone"_s, tr("&None"), PageTicks::Which::None);
    addChoice(row, u"chooseOdd"_s, tr("&Odd"), PageTicks::Which::Odd);
    addChoice(row, u"chooseEven"_s, tr("&Even"), PageTicks::Which::Even);
    auto *invert = new QPushButton(tr("&Invert"), row);
    invert->setObjectName(u"invert"_s);
    invert->setAutoDefault(false);
    layout->addWidget(invert);
    layout->addStretch();
    connect(invert, &QPushButton::clicked, this, [this] {
        m_isTouched = true;
        PageTicks ticks(m_ranges, m_pages.most());
        ticks.invert();
        choose(m_pages.withTicks(m_ranges, ticks));
    });
    return row;
}

void PageChooser::addChoice(QWidget *row, const QString &name, const QString &text,
                            PageTicks::Which which)
{
    auto *button = new QPushButton(text, row);
    button->setObjectName(name);
    button->setAutoDefault(false);
    row->layout()->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, which] {
        m_isTouched = true;
        chooseOnly(which);
    });
}

void PageChooser::setPages(const ChoosablePages &pages)
{
    const ChoosablePages before = std::exchange(m_pages, pages);
    if (before == pages)
        return;
    if (before.documents != pages.documents) {
        m_model->setPages(pages);
        for (const ChoosableDocument &document : pages.documents) {
            if (!document.file.isEmpty() && !m_model->isDescribed(document.file))
                m_pictures->describe(document.file);
        }
    }
    m_intro->setVisible(pages.documents.size() > 1);
    m_intro->setText(
        tr("Page numbers count in each document: what is ticked in one is ticked in all."));
    choose(m_isTouched ? m_ranges : pages.ranges());
}

void PageChooser::chooseOnly(PageTicks::Which which)
{
    const bool isUnbounded = which == PageTicks::Which::All && !m_pages.areCounted();
    if (isUnbounded)
        return choose({PageRange{1, std::numeric_limits<int>::max()}});
    PageTicks ticks(m_pages.most());
    ticks.tickOnly(which);
    choose(ticks.ranges());
}

void PageChooser::choose(const QList<PageRange> &ranges)
{
    m_ranges = ranges;
    showRanges();
    m_model->setTicks(PageTicks(m_ranges, m_pages.most()));
}

void PageChooser::typed(const QString &text)
{
    m_isTouched = true;
    m_typed = typedPages(text);
    if (m_typed.problem == TypedPages::Problem::None) {
        m_ranges = m_typed.ranges;
        m_model->setTicks(PageTicks(m_ranges, m_pages.most()));
    }
    showState();
}

void PageChooser::showRanges()
{
    m_typed = {m_ranges};
    const QString text = readableRanges(m_ranges);
    if (text != m_field->text()) {
        m_field->setText(text);
        m_field->setCursorPosition(0);
    }
    showState();
}

void PageChooser::showState()
{
    QString problem = problemText(m_typed);
    if (problem.isEmpty())
        problem = m_pages.problemWith(m_ranges);
    const bool isGood = problem.isEmpty();
    const QString text = isGood ? m_pages.remarkOn(m_ranges) : problem;
    const bool isNews = text != m_note->text();
    m_icon->setVisible(!isGood);
    m_note->setText(text);
    QPushButton *ok = m_buttons->button(QDialogButtonBox::Ok);
    ok->setEnabled(isGood);
    ok->setAccessibleDescription(isGood ? QString() : problem);
    if (isGood || !isNews)
        return;
    // A screen reader says why, although the focus stays where the user works.
    announce(this, problem);
}

bool PageChooser::hasChanged() const
{
    return value() != m_pages.valueFor(m_pages.ranges());
}

void PageChooser::accept()
{
    if (m_buttons->button(QDialogButtonBox::Ok)->isEnabled())
        QDialog::accept();
}

} // namespace corvana
