#pragma once
// The program's own version numbers, shown in the title bar and the about box.
#include <QString>

constexpr int kVersaoMaior = 1;
constexpr int kVersaoMenor = 0;
constexpr int kRevisao = 0;

// "1.0.0"
inline QString textoVersao()
{
    return QStringLiteral("%1.%2.%3").arg(kVersaoMaior).arg(kVersaoMenor).arg(kRevisao);
}
