#pragma once
// Every form that the menu can open, and the pick lists and dialogs that the
// forms open by name. A test checks that every menu entry and toolbar button
// opens a form registered here or is one of the system's dead entries.
#include <QStringList>

void registerAllForms();

