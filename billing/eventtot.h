#pragma once
// The work table Eventtot: totals by event of the receipts of one selection,
// for the report of totals by event.
#include <QString>

class Connection;

// Empties Eventtot, then adds every slot with a value above 0 of each row of
// "SELECT * FROM recibos " + clausula. Discounts (negative values) are left
// out; a blank code counts as "000"; an event that does not exist is written
// as "xxxxxxxxx" of type "H". Gives the number of receipts read.
long encheEventtot(Connection &con, const QString &clausula);
