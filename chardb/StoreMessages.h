#pragma once

#include "TranslationMark.h"

/// Every message that the character database and the learner store throw, in English as they
/// throw it. The interface shows them translated in the context "ZavorenCommon"; this list is
/// the only place each is written, so the thrown text and its translation cannot drift apart.
namespace StoreMessage {

inline constexpr const char* OpenDatabase = QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to open database");
inline constexpr const char* ReadHeader = QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to read database header");
inline constexpr const char* ReadDictionary = QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to read dictionary");
inline constexpr const char* CharacterIdRange = QT_TRANSLATE_NOOP("ZavorenCommon", "Character id out of range");
inline constexpr const char* NoCharacter = QT_TRANSLATE_NOOP("ZavorenCommon", "Character does not exist");
inline constexpr const char* LoadCharacter = QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to load character");
inline constexpr const char* ElementIdRange = QT_TRANSLATE_NOOP("ZavorenCommon", "Element id out of range");
inline constexpr const char* NoElement = QT_TRANSLATE_NOOP("ZavorenCommon", "Element does not exist");
inline constexpr const char* LoadElement = QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to load element");
inline constexpr const char* NoCategory = QT_TRANSLATE_NOOP("ZavorenCommon", "No such category");
inline constexpr const char* LoadCategory = QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to load category");
inline constexpr const char* OpenLexicon = QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to open lexicon");
inline constexpr const char* DamagedLexicon = QT_TRANSLATE_NOOP("ZavorenCommon", "The lexicon file is damaged");
inline constexpr const char* ForeignLexicon
    = QT_TRANSLATE_NOOP("ZavorenCommon", "The lexicon was made for another database");
inline constexpr const char* NoConfig
    = QT_TRANSLATE_NOOP("ZavorenCommon", "Config file does not exist. Try to reinstall Zavoren.");
// "attirbutes" is deliberate: the message is the program's own text, misspelling included.
inline constexpr const char* ReadOnlyConfig
    = QT_TRANSLATE_NOOP("ZavorenCommon", "Config file is ReadOnly. Check file attirbutes or reinstall Zavoren.");
inline constexpr const char* LoadConfig = QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to load config");
inline constexpr const char* SaveConfig = QT_TRANSLATE_NOOP("ZavorenCommon", "Unable to save config");

} // namespace StoreMessage
