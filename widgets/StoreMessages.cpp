// The messages of the character database and the learner store, listed for translation: the
// stores themselves need no Qt and throw them in English; StoreText shows them translated.

#include "Prompt.h"

namespace {

[[maybe_unused]] const char* const StoreMessages[] = {
    QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to open database"),
    QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to read database header"),
    QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to read dictionary"),
    QT_TRANSLATE_NOOP("ZavorenCommon", "Character id out of range"),
    QT_TRANSLATE_NOOP("ZavorenCommon", "Character does not exist"),
    QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to load character"),
    QT_TRANSLATE_NOOP("ZavorenCommon", "Element id out of range"),
    QT_TRANSLATE_NOOP("ZavorenCommon", "Element does not exist"),
    QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to load element"),
    QT_TRANSLATE_NOOP("ZavorenCommon", "No such category"),
    QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to load category"),
    QT_TRANSLATE_NOOP("ZavorenCommon", "Config file does not exist. Try to reinstall Zavoren."),
    QT_TRANSLATE_NOOP("ZavorenCommon", "Config file is ReadOnly. Check file attirbutes or reinstall Zavoren."),
    QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to load config"),
    QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to save config"),
};

} // namespace
