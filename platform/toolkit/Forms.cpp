#include "platform/toolkit/Forms.h"

#include "platform/library/OwnLibrary.h"

#ifdef CORVANA_IN_ONE_PIECE
extern "C" void corvanaLoadForm(QIODevice &file, const corvana::FormClasses &classes,
                                corvana::LoadedForm *form);
#endif

namespace corvana {

using namespace Qt::StringLiterals;

LoadedForm loadForm(QIODevice &file, const FormClasses &classes)
{
    LoadedForm form;
#ifdef CORVANA_IN_ONE_PIECE
    corvanaLoadForm(file, classes, &form);
#else
    static QString error;
    static const auto load = reinterpret_cast<LoadForm>(
        functionOfOwnLibrary(u"libcorvana-forms.so"_s, kLoadForm, &error));
    if (load)
        load(file, classes, &form);
    else
        form.error = error;
#endif
    return form;
}

} // namespace corvana
