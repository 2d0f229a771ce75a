#pragma once
// Every form that the menu can open. A subsystem adds its forms here as they
// are built; until then the menu entry says that the function is not available.
void registerAllForms();
