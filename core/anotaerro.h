#pragma once
// The findings of a save: each failed rule is noted in session.listaErros,
// and frmErros shows them and lets the user decide when none is fatal.
#include <QString>

inline const QString kErroFatal = QStringLiteral("Erro Fatal");      // stops the save
inline const QString kAlertaErro = QStringLiteral("Alerta de Erro");  // the user chooses

// qtErros := 1 and every row of listaErros erased; temErros := false.
void LimpaErros();
// Notes a finding in the row of qtErros (number, type, message) and counts
// it. The table has 20 rows: a 21st finding is a RunFailure, never a write
// past its end.
void AnotaErro(const QString &tipo, const QString &mensagem);
// Any finding of type "Erro Fatal" among those noted.
bool temErroFatal();
