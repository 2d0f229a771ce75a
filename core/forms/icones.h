#pragma once
// The toolbar's pictures, drawn by the program itself.
#include <QIcon>

// The picture of button 1 to 14 of tobPrincipal.
QIcon iconeBarra(int botao);
