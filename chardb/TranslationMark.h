#pragma once

// Marks a text that the interface shows translated. The layers below the interface need no Qt:
// here the mark leaves the English text as it is, while Qt Linguist still finds the text by
// the mark (the same definition as Qt's own, so both may be seen in one file).
#ifndef QT_TRANSLATE_NOOP
#define QT_TRANSLATE_NOOP(scope, x) x
#endif
