#pragma once
// The condominiums of the installation (table Clientes of the system file).
// A new code gets its file ConNNN.mdb, copied from Matrix.mdb, when the user
// agrees; deleting a condominium deletes its file.
#include "registers/forms/recordform.h"

class frmUsucli : public RecordForm {
    Q_OBJECT
public:
    explicit frmUsucli(QWidget *parent = nullptr);
    static const Registro &descricao();

protected:
    void valoresExtras(QHash<QString, QString> &valores) const override;
    QString perguntaExclusao(const QString &codigo) const override;
    int estiloExclusao() const override;
    void antesDeApagar(const QString &codigo) override;
    void antesDasRegras() override;
    void aposGravar(const QString &codigo, bool eraNovo) override;
};
