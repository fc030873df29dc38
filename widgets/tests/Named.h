#pragma once

// Finds a control the way a test should: by its type and object name under a page or dialog,
// as a screen reader finds it by its role and name, not through an accessor of the class.

#include <QObject>

#include <cstdlib>

/// The child of `root` (a pointer or a smart pointer) of type T named `name`; the test stops
/// with the name when there is none.
template<typename T, typename Root> T* Named(const Root& root, const char* name)
{
    QObject* parent = &*root;
    T* found = parent->findChild<T*>(QLatin1String(name));
    if (!found)
        qFatal("%s has no %s named \"%s\"", qPrintable(parent->objectName()), T::staticMetaObject.className(), name);
    return found;
}
