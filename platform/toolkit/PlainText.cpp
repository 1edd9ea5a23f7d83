#include "platform/toolkit/PlainText.h"

#include <QLabel>
#include <QMessageBox>

namespace corvana {

using namespace Qt::StringLiterals;

QLabel *plainLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(parent);
    makePlain(label);
    label->setText(text);
    return label;
}

void makePlain(QLabel *label)
{
    label->setTextFormat(Qt::PlainText);
}

void makeLabelsPlain(QWidget *view)
{
    QList<QLabel *> labels = view->findChildren<QLabel *>();
    if (auto *label = qobject_cast<QLabel *>(view))
        labels += label;
    for (QLabel *label : std::as_const(labels)) {
        if (label->textFormat() == Qt::AutoText)
            makePlain(label);
    }
}

void makePlain(QMessageBox *box)
{
    box->setTextFormat(Qt::PlainText);
    makeLabelsPlain(box); // its format does not count for the informative text
}

QString plainToolTip(const QString &text)
{
    if (text.isEmpty())
        return {};
    return u"<qt>%1</qt>"_s.arg(text.toHtmlEscaped().replace(u'\n', u"<br>"_s));
}

} // namespace corvana
