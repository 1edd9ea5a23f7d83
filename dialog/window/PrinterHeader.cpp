#include "dialog/window/PrinterHeader.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "dialog/window/chooser/PrinterComboBox.h"
#include "dialog/window/chooser/PrinterStatusLine.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Less than a style has: with large fonts on a small screen each row counts. Units: pixels.
constexpr int kRowSpacing = 2;

} // namespace

PrinterHeader::PrinterHeader(const QString &output, QWidget *parent)
    : QWidget(parent), m_printers(new PrinterComboBox(this)), m_status(new PrinterStatusLine(this))
{
    m_printers->setObjectName(u"printers"_s);
    m_status->setObjectName(u"printerStatus"_s);

    auto *form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setVerticalSpacing(kRowSpacing);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("P&rinter:"), m_printers);
    form->addRow(QString(), m_status);
    m_outputRow = buildOutputRow(output);
    form->addRow(buildOutputLabel(), m_outputRow);
    connectControlAction(m_printers, [this](QWidget *) {
        if (const std::optional<Printer> printer = m_printers->currentPrinter())
            Q_EMIT picked(*printer);
    });
}

void PrinterHeader::addRow(QWidget *label, QWidget *row)
{
    static_cast<QFormLayout *>(layout())->addRow(label, row);
}

QWidget *PrinterHeader::buildOutputLabel()
{
    auto *label = new QWidget(this);
    m_toFile = new QCheckBox(tr("Print to &file:"), label);
    m_toFile->setObjectName(u"toFile"_s);
    m_toFileLabel = plainLabel(tr("Print to &file:"), label);
    m_toFileLabel->setBuddy(m_output);
    auto *layout = new QHBoxLayout(label);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    layout->addWidget(m_toFile);
    layout->addWidget(m_toFileLabel);
    // As wide with either, so that another printer does not move the fields of the header.
    label->setMinimumWidth(m_toFile->sizeHint().width());
    connect(m_toFile, &QCheckBox::clicked, this, [this](bool toFile) {
        Q_EMIT toFileChanged(toFile);
        if (toFile)
            m_output->setFocus();
    });
    return label;
}

QWidget *PrinterHeader::buildOutputRow(const QString &output)
{
    auto *row = new QWidget(this);
    m_output = new QLineEdit(QDir::toNativeSeparators(output), row);
    m_output->setObjectName(u"output"_s);
    m_output->setAccessibleName(tr("Print to file"));
    auto *choose = new QPushButton(tr("C&hoose…"), row);
    choose->setAutoDefault(false);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_output, 1);
    layout->addWidget(choose);
    row->setFocusProxy(m_output);
    connect(m_output, &QLineEdit::textChanged, this, [this](const QString &path) {
        Q_EMIT outputChanged(QDir::fromNativeSeparators(path), false);
    });
    connect(choose, &QPushButton::clicked, this, &PrinterHeader::chooseOutput);
    return row;
}

void PrinterHeader::chooseOutput()
{
    // Whether a file is replaced is asked when it is printed to, with No as the answer of an Enter
    // that was meant for something else; the file dialog's own question would take a file's name
    // for markup.
    const QString file = QFileDialog::getSaveFileName(this, tr("Print to File"), m_output->text(),
                                                      tr("All files (*)"), nullptr,
                                                      QFileDialog::DontConfirmOverwrite);
    if (!file.isEmpty())
        showOutput(file);
}

void PrinterHeader::showOutput(const QString &file)
{
    m_output->setText(QDir::toNativeSeparators(file));
}

void PrinterHeader::showDestination(bool fileOnly, bool toFile, bool mayBeFile)
{
    m_toFile->setVisible(!fileOnly && mayBeFile);
    m_toFile->setChecked(toFile);
    m_toFileLabel->setVisible(fileOnly);
    m_outputRow->setEnabled(fileOnly || toFile);
    m_outputRow->setVisible(mayBeFile);
}

void PrinterHeader::takeIconsFromTheme()
{
    m_status->takeIconFromTheme();
    m_printers->printers()->setIconSource(IconSource::Theme);
}

void PrinterHeader::setJobRunning(bool running)
{
    m_printers->setEnabled(!running);
    m_toFile->setEnabled(!running);
    m_outputRow->setEnabled(!running && (m_toFile->isHidden() || m_toFile->isChecked()));
}

void PrinterHeader::focusOutput()
{
    m_output->setFocus();
}

} // namespace corvana
