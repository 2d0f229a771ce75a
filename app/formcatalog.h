#pragma once
// Every form that the menu can open. A subsystem adds its forms here as they
// are built; until then the menu entry says that the function is not available.
#include <QStringList>

void registerAllForms();

// The forms that menu entries open and that are not built yet. A form that is
// built is registered in registerAllForms and taken off this list; a test
// checks that every menu entry and toolbar button names a form that is either
// registered or here, never both.
QStringList formsToCome();
