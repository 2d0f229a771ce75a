#pragma once
// The statement of the older slip forms (frmBoleto, frmBcoSantander).
#include "core/datastore.h"

#include <QDate>
#include <QString>
#include <QStringList>

// The row of RBalRec written again (month, model, title, extra lines and, with
// `colunasTexto`, whether a text file is used and its path), then the buffer
// filled from the month's accounts or, with `arquivo`, from the text file of
// session.arqway, the extra lines after it. Returns the number of lines. The
// caller has checked the month, the model and the path.
int criaDemonstrativo(Connection &con, const QDate &mes, int modelo, const QString &titulo, const QStringList &extras,
                      bool colunasTexto, bool arquivo, const QString &arqway);
