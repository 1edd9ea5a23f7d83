#pragma once

#include <memory>

#include <QDialog>

#include "dialog/sheets/ChoosablePages.h"

class QDialogButtonBox;
class QLabel;
class QLineEdit;

namespace corvana {

class PageModel;
class PagePictures;
class PageThumbnails;

/// A window in which pages of documents are chosen: by their pictures, each with a tick, or typed
/// as ranges, which follow the ticks and are followed by them. It is there at once; what is known
/// of the pages comes later, and so do their pictures.
///
/// It changes nothing: value() is what was chosen when it was accepted.
class PageChooser : public QDialog
{
    Q_OBJECT

public:
    explicit PageChooser(const ChoosablePages &pages, QWidget *parent = nullptr);
    ~PageChooser() override;

    /// More is known of the pages than before. What was chosen meanwhile stays.
    void setPages(const ChoosablePages &pages);
    /// What "page-ranges" becomes; empty for all pages.
    QString value() const { return m_pages.valueFor(m_ranges); }
    /// Whether that is another one than was in force.
    bool hasChanged() const;

    void accept() override;

private:
    void build();
    QWidget *buildButtons();
    void addChoice(QWidget *row, const QString &name, const QString &text, PageTicks::Which which);
    void choose(const QList<PageRange> &ranges);
    void chooseOnly(PageTicks::Which which);
    void typed(const QString &text);
    void showRanges();
    void showState();

    ChoosablePages m_pages;
    QList<PageRange> m_ranges;
    TypedPages m_typed;       // of what stands in the field
    bool m_isTouched = false; // the user has chosen something here
    std::unique_ptr<PagePictures> m_pictures;
    PageModel *m_model;
    PageThumbnails *m_thumbnails;
    QLabel *m_intro;
    QLineEdit *m_field;
    QLabel *m_icon;
    QLabel *m_note;
    QDialogButtonBox *m_buttons;
};

} // namespace corvana
