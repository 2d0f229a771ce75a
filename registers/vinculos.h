#pragma once
// A resident's bond to the unit: stored as a digit, '1' to '7', shown by its name.
#include <QString>
#include <QStringList>

const QStringList &nomesVinculo();
// "Proprietário(a)" for '1'; a text that is not one of the digits comes back as it is.
QString nomeVinculo(const QString &digito);
