#pragma once

#include <QWidget>

#include "dialog/printers/Printer.h"

class QCheckBox;
class QLabel;
class QLineEdit;

namespace corvana {

class PrinterComboBox;
class PrinterStatusLine;

/// The head of the print window's settings: which printer, where it stands and what it is doing,
/// and the file that may be printed to instead.
class PrinterHeader : public QWidget
{
    Q_OBJECT

public:
    /// `output` is the file that is proposed.
    explicit PrinterHeader(const QString &output, QWidget *parent = nullptr);

    /// Adds a row at the end, its label in the column of the others. Ownership: takes both.
    void addRow(QWidget *label, QWidget *row);
    PrinterComboBox *printers() const { return m_printers; }
    PrinterStatusLine *status() const { return m_status; }
    /// Shows the printers with the icons of the desktop's theme; until then with our own.
    void takeIconsFromTheme();
    /// A queue can be printed to a file instead; a printer of a PPD file (`fileOnly`) prints
    /// nowhere but to a file.
    void showDestination(bool fileOnly, bool toFile, bool mayBeFile = true);
    /// While a job runs, neither its printer nor its file can be another one.
    void setJobRunning(bool running);
    void showOutput(const QString &file);
    /// Puts the focus where the file is named.
    void focusOutput();

Q_SIGNALS:
    /// The user picked a printer, perhaps the one that is open.
    void picked(const corvana::Printer &printer);
    void toFileChanged(bool toFile);
    /// The user named a file; `confirmed` when it may be replaced.
    void outputChanged(const QString &path, bool confirmed);

private:
    QWidget *buildOutputLabel();
    QWidget *buildOutputRow(const QString &output);
    void chooseOutput();

    PrinterComboBox *m_printers;
    PrinterStatusLine *m_status;
    QCheckBox *m_toFile = nullptr;
    QLabel *m_toFileLabel = nullptr;
    QWidget *m_outputRow = nullptr;
    QLineEdit *m_output = nullptr;
};

} // namespace corvana
