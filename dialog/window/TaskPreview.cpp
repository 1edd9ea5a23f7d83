#include "dialog/window/TaskPreview.h"

#include <utility>

#include "dialog/task/PrintTask.h"
#include "dialog/window/preview/DocumentArea.h"
#include "dialog/window/preview/DrawnPages.h"
#include "dialog/window/preview/PreviewPane.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

TaskPreview::TaskPreview(PrintTask &task, PreviewPane &pane, QObject *parent)
    : QObject(parent), m_task(task), m_pane(pane)
{
    m_updating.setSingleShot(true);
    m_updating.setInterval(0);
    connect(&m_updating, &QTimer::timeout, this, [this] {
        m_task.countSheets();
        showSheets();
    });
    connect(&task, &PrintTask::sheetsCounted, this, &TaskPreview::showSheets);
    connect(&task, &PrintTask::settingsChanged, this, &TaskPreview::update);
    connect(&task, &PrintTask::printerChanged, this, &TaskPreview::update);
    // At once: a slider is being moved.
    connect(&task, &PrintTask::pageColorsChanged, this, &TaskPreview::showColors);
    connect(&task, &PrintTask::phaseChanged, this, [this](PrintTask::Phase phase) {
        m_pane.documents()->setCanChange(m_task.canChangeDocuments());
        // At once: a window that opens with its printer is not laid out for what is said without
        // one.
        if (phase == PrintTask::Phase::Opened)
            showSheets();
        update();
    });
    connect(&task, &PrintTask::sheetWanted, this, [this](const QString &path) {
        m_wanted = path;
        showWantedSheet();
    });
    connect(pane.sheets(), &SheetView::markPressed, this, &TaskPreview::markPressed);
    connectDocuments();
    showDocuments();
    showColors();
    showSheets();
}

// While the window goes the view must not ask for pictures any more.
TaskPreview::~TaskPreview()
{
    m_pane.sheets()->setPictures(nullptr);
}

void TaskPreview::connectDocuments()
{
    const DocumentArea *documents = m_pane.documents();
    connect(&m_task, &PrintTask::documentsChanged, this, [this] {
        showDocuments();
        update();
    });
    connect(documents, &DocumentArea::chosen, &m_task,
            [this](const QStringList &files) { m_task.addDocuments(files); });
    connect(documents, &DocumentArea::removed, &m_task, &PrintTask::removeDocument);
    connect(documents, &DocumentArea::moved, &m_task, &PrintTask::moveDocument);
}

void TaskPreview::showDocuments()
{
    QList<ListedDocument> listed;
    for (const Document &document : m_task.documents())
        listed += {terminalLine(document.title), nameOfFormat(document.format),
                   terminalLine(document.path)};
    m_pane.documents()->setDocuments(terminalLine(m_task.request().title), listed);
}

void TaskPreview::showColors()
{
    // What is not among the sheets comes first: it is missed more than a color.
    QStringList texts{m_task.pageColorsText()};
    if (m_preview.state == SheetPreview::State::Known)
        texts.prepend(m_preview.reason);
    texts.removeAll(QString());
    m_pane.setColors(m_task.pageColors().transform, texts.join(u'\n'));
}

void TaskPreview::showSheets()
{
    SheetPreview preview = m_task.sheetPreview();
    for (const auto &file : std::as_const(preview.files)) {
        if (m_pictures && file && !file->begin().isEmpty())
            m_pictures->replace(file->begin(), file->path());
    }
    m_pane.showPreview(shown(preview));
    if (preview.state == SheetPreview::State::Counting)
        return; // what is shown is of before, and so are its files
    const SheetPreview before = std::exchange(m_preview, std::move(preview));
    showColors();
    if (m_preview.state != SheetPreview::State::Known &&
        m_preview.state != SheetPreview::State::Begun)
        return;
    if (!m_pictures) {
        m_pictures = std::make_unique<DrawnPages>();
        m_pane.sheets()->setPictures(m_pictures.get());
    }
    m_pictures->keepOnly(m_pane.sheets()->sheets().files);
    showWantedSheet();
}

// Now, or when its sheets are known.
void TaskPreview::showWantedSheet()
{
    if (m_wanted.isEmpty() || m_preview.state != SheetPreview::State::Known)
        return;
    const QString path = std::exchange(m_wanted, {});
    const QList<Document> &documents = m_task.documents();
    for (int sheet = 0; sheet < m_preview.plan.sheets.size(); ++sheet) {
        const int document = m_preview.plan.sheets.at(sheet).front.document;
        if (document < 0 || document >= documents.size() || documents.at(document).path != path)
            continue;
        m_pane.sheets()->setCurrent({sheet});
        return m_pane.focusTarget()->setFocus();
    }
}

// What it means for printing that nothing can be shown.
QString TaskPreview::note() const
{
    return m_task.canPrint() ? tr("It can be printed all the same.") : QString();
}

ShownPreview TaskPreview::shown(const SheetPreview &preview) const
{
    using State = ShownPreview::State;
    ShownPreview shown;
    if (m_task.documents().isEmpty()) {
        shown.state = State::NoDocument;
        return shown;
    }
    switch (preview.state) {
    case SheetPreview::State::None:
        shown.note = preview.canBePrinted && !preview.reasonTellsSo ? note() : QString();
        break;
    case SheetPreview::State::Counting:
        shown.state = State::Updating;
        break;
    case SheetPreview::State::Begun:
        shown.state = State::Begun;
        shown.sheets.areAll = false;
        break;
    case SheetPreview::State::Known:
        shown.state = State::Known;
        break;
    }
    shown.reason = preview.reason;
    shown.counts = preview.counts;
    shown.sheets.plan = preview.plan;
    shown.sheets.marks = preview.marks;
    for (const auto &file : preview.files)
        shown.sheets.files += file ? file->path() : QString();
    for (const Document &document : m_task.documents())
        shown.sheets.titles += document.title;
    return shown;
}

} // namespace corvana
