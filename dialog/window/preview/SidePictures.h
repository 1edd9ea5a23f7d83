#pragma once

#include <QImage>
#include <QList>
#include <QObject>
#include <QSize>
#include <QString>

namespace corvana {

/// Where a view of sheets has its pictures from. Whoever draws them takes its time; a view asks for
/// what it needs, paints what there is, and paints again when it hears of more.
///
/// Thread: GUI thread only.
class SidePictures : public QObject
{
    Q_OBJECT

public:
    /// A page of a laid-out document, as many pixels large.
    struct Wish
    {
        QString file{};
        int page = 0; ///< from 0
        QSize size{}; ///< Units: pixels

        bool operator==(const Wish &) const = default;
    };

    explicit SidePictures(QObject *parent = nullptr) : QObject(parent) {}

    /// What is needed now, the most urgent first. It replaces what was needed before; nothing is
    /// drawn for nobody.
    virtual void want(const QList<Wish> &wishes) = 0;
    /// The picture on opaque paper; null while it is not drawn.
    virtual QImage picture(const Wish &wish) const = 0;
    /// Any picture of that page, of another size, to be shown scaled meanwhile; null without one.
    virtual QImage anyPicture(const QString &file, int page) const = 0;
    /// Why the page cannot be drawn, in a sentence for its place; empty while it can.
    virtual QString problem(const QString &file, int page) const = 0;

Q_SIGNALS:
    /// picture() or problem() has another answer.
    void drawn(const QString &file, int page);
};

} // namespace corvana
