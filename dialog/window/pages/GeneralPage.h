#pragma once

#include <optional>

#include <QList>
#include <QMap>
#include <QString>
#include <QWidget>

#include "dialog/session/OfferedAttribute.h"
#include "dialog/window/pages/ChangeMarks.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QPushButton;
class QScrollArea;

namespace corvana {

class AttributeRows;
class CopiesEditor;
class CustomPaperSize;
class PDEJobValues;
class PpdSession;

/// Copies, pages, the option for color that the panels' plug-in names, the PPD options that no
/// panel owns (two-sided, paper size, output destination, and who matches the colours; each only
/// where the printer has it, in the PPD's own words), and the attributes of the job.
///
/// It shows the session and what it is told of the job, and proposes changes; it changes nothing
/// itself.
class GeneralPage : public QWidget
{
    Q_OBJECT

public:
    /// Borrows the session. `jobValues`: what the plug-in says of the options; null for none.
    explicit GeneralPage(PpdSession &session, const PDEJobValues *jobValues = nullptr,
                         QWidget *parent = nullptr);

    /// The number that counts, which what is being typed is not while it is refused.
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
    /// Whether there are any that can be looked at to be chosen.
    void setCanChoosePages(bool can);
    /// Says who keeps the number of copies, and the pages, at what they are; empty: nobody does.
    void setLocks(const QString &copiesBy, const QString &pagesBy);
    /// Puts the focus where the pages are typed.
    void focusPageRanges();
    /// The control of an option, an attribute, the copies ("copies") or the pages, disclosed; null
    /// for what is not on this page.
    QWidget *disclose(const QString &name);
    /// Marks the settings that were changed.
    void showChanges(const ShownChanges &changes);
    /// The settings of this page, but for the copies and the pages.
    QStringList settings() const;
    /// Shows the session's marks.
    void refresh();
    /// Shows the attributes of the job. To be called with the page in its window.
    void setAttributes(const QList<OfferedAttribute> &offered);
    /// Says beside an attribute why what was entered is not taken; an empty text: it was.
    void showAttributeProblem(const QString &name, const QString &problem);
    /// Takes what is being typed. Errors: false; the page says beside it why, and has the focus
    /// there.
    bool finishEditing();
    /// By how much the page is too low for what was disclosed; negative: higher than that needs.
    /// Units: pixels.
    std::optional<int> missingHeight() const;

Q_SIGNALS:
    /// The user picked a choice.
    void proposed(const QString &keyword, const QString &choice);
    /// The number of copies is another one, whoever changed it.
    void copiesEdited(int copies);
    /// The pages are others, whoever changed them; as pageRanges() gives them.
    void pageRangesEdited(const QString &ranges);
    /// The user wants to see the pages to choose some.
    void choosePagesPressed();
    /// The user chose a value of an attribute; null: none.
    void attributeProposed(const QString &name, const QString &value);
    /// The user wants a changed setting back.
    void resetWanted(const QString &name);
    /// missingHeight() has another answer.
    void heightChanged();

private:
    void addJobFields(QFormLayout *form);
    void addPageRanges(QFormLayout *form);
    void scroll(QWidget *rows);
    QList<MarkedControl> fields() const;
    void showCollate(const OfferedAttribute &collate);
    void addOption(const QString &keyword);
    void refreshOption(const QString &keyword, QComboBox *popUp);
    void addCustomPaperSize(QComboBox *sizes);
    void proposeCustomPaper();
    void showCustomPaper();

    PpdSession &m_session;
    QFormLayout *m_rows = nullptr;
    QScrollArea *m_area = nullptr;
    AttributeRows *m_attributes = nullptr;
    ChangeMarks *m_marks;
    ShownChanges m_changes;
    CopiesEditor *m_copies;
    QCheckBox *m_collate = nullptr; // where the printer can
    QLineEdit *m_pageRanges;
    QPushButton *m_choosePages;
    QMap<QString, QComboBox *> m_popUps;
    CustomPaperSize *m_customPaper = nullptr; // where the printer takes such sizes
};

} // namespace corvana
