#pragma once

#include <QMap>
#include <QString>
#include <QWidget>

class QComboBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

namespace corvana {

class CustomPaperSize;
class PpdSession;

/// Copies, pages, and the PPD options that no panel owns: two-sided, paper size, output
/// destination, and who matches the colours; each only where the printer has it, in the PPD's own
/// words.
///
/// It shows the session and proposes changes; it changes nothing itself.
class GeneralPage : public QWidget
{
    Q_OBJECT

public:
    /// Borrows the session.
    explicit GeneralPage(PpdSession &session, QWidget *parent = nullptr);

    int copies() const;
    /// More than mostCopies() become as many.
    void setCopies(int copies);
    int mostCopies() const;
    /// 0: as many as the dialog takes for any printer.
    void setMostCopies(int copies);
    /// The pages to print ("1-4,7"); empty for all. As typed, less blanks.
    QString pageRanges() const;
    void setPageRanges(const QString &ranges);
    /// Whether pages can be chosen at all. What was typed already stays to be seen.
    void offerPageRanges(bool offer);
    /// Puts the focus where the pages are typed.
    void focusPageRanges();
    /// Shows the session's marks.
    void refresh();

Q_SIGNALS:
    /// The user picked a choice.
    void proposed(const QString &keyword, const QString &choice);
    /// The number of copies is another one, whoever changed it.
    void copiesEdited(int copies);
    /// The pages are others, whoever changed them; as pageRanges() gives them.
    void pageRangesEdited(const QString &ranges);

private:
    void addOption(const QString &keyword);
    void refreshOption(const QString &keyword, QComboBox *popUp);
    void addCustomPaperSize(QComboBox *sizes);
    void proposeCustomPaper();
    void showCustomPaper();

    PpdSession &m_session;
    QFormLayout *m_rows = nullptr;
    QSpinBox *m_copies;
    QLineEdit *m_pageRanges;
    QMap<QString, QComboBox *> m_popUps;
    CustomPaperSize *m_customPaper = nullptr; // where the printer takes such sizes
};

} // namespace corvana
