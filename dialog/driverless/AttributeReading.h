#pragma once

#include <utility>

#include <cups/ipp.h>

#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>

/// Reading what printers say of themselves, which may be anything: what is of a wrong type, is not
/// UTF-8 or is too much is not there. All of it takes null for attributes, and for a collection.
namespace corvana::attribute {

/// Null where there is none of this name.
ipp_attribute_t *find(ipp_t *attributes, const char *name);

/// How many values are looked at; 0 for null. Range: up to a thousand.
int valueCount(ipp_attribute_t *attribute);

/// A text for people: one line; empty where there is none.
QString textOf(ipp_t *attributes, const char *name);

/// The values that can come back as job options, each once.
QStringList keywordsOf(ipp_t *attributes, const char *name);

/// Whether the values are integers or enumerations.
bool isNumber(ipp_attribute_t *attribute);

/// All values in the form that job options have ("two-sided-long-edge", "4", "600dpi"). Empty where
/// one of them has no such form.
QStringList optionValuesOf(ipp_attribute_t *attribute);

/// Integers and enumerations, each once.
QList<int> numbersOf(ipp_t *attributes, const char *name);

/// Units: dots per inch.
QList<QSize> resolutionsOf(ipp_t *attributes, const char *name);

/// Null for what is no collection. Ownership: the attribute's.
ipp_t *collectionAt(ipp_attribute_t *attribute, int index);

/// The bounds of a range, or twice the one number; 0 where there is neither.
std::pair<int, int> rangeOf(ipp_t *attributes, const char *name);

/// The value of a default attribute where it is one of those that are supported.
template <typename Value> Value listed(const QList<Value> &supported, const QList<Value> &value)
{
    return !value.isEmpty() && supported.contains(value.constFirst()) ? value.constFirst()
                                                                      : Value();
}

} // namespace corvana::attribute
