#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/sheets/PageTicks.h"

namespace corvana {

/// A document whose pages can be chosen.
struct ChoosableDocument
{
    QString title{};
    QString file{};   ///< a PDF of its pages; empty where there is none
    int pages = 0;    ///< 0: nobody knows how many
    QString reason{}; ///< why its pages are not drawn, or not counted; a sentence

    bool operator==(const ChoosableDocument &) const = default;
};

/// The pages that a job can be made of, and what is known of them before they are chosen. The
/// numbers that are chosen count in each of its documents. A value, and the rules of choosing.
struct ChoosablePages
{
    QList<ChoosableDocument> documents{};
    PageChoice choice{}; ///< that is in force

    bool operator==(const ChoosablePages &) const = default;

    /// Of the document that has most; 0 where nobody knows of any.
    int most() const;
    /// Whether it is known of each document how many pages it has.
    bool areCounted() const;
    /// The pages that are in force, as far as they are known.
    QList<PageRange> ranges() const;

    /// The ranges that these become when pages are ticked or not: those that nobody has counted
    /// stay as they are.
    QList<PageRange> withTicks(const QList<PageRange> &ranges, const PageTicks &ticks) const;

    /// What "page-ranges" becomes when these pages are chosen: as short as possible, and empty for
    /// all pages.
    QString valueFor(const QList<PageRange> &ranges) const;
    /// Why these pages cannot be chosen, in the words in which their job would be refused; empty
    /// where they can.
    QString problemWith(const QList<PageRange> &ranges) const;
    /// How many of the pages are chosen, and what else there is to know about that.
    QString remarkOn(const QList<PageRange> &ranges) const;
};

/// Why a text stands for no pages; empty where it does.
QString problemText(const TypedPages &typed);

} // namespace corvana
