#pragma once
// Makes the statements sent on a connection while it lives one step: a
// failure or a kill leaves the file as before the step or after it, never in
// between. It sends no statement text of its own (a listener hears nothing).
// Guards may nest; only the outermost one commits to the file.
//
//   Transaction par(con);
//   con.Execute("UPDATE aptos SET ...");
//   con.Execute("INSERT INTO Recibos ...");
//   par.commit();             // leaving without commit() rolls the step back
#include "core/datastore.h"

class Transaction {
public:
    explicit Transaction(Connection &con);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;
    void commit();

private:
    Connection &con_;
    bool open_ = false;
    bool outermost_ = false;
};
