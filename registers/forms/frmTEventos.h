#pragma once
// Charge events (table Eventos): the kinds of charge a receipt carries. Only a
// user with the right to change receipts (cfalt) saves one.
#include "registers/forms/recordform.h"

class QCheckBox;
class NumberField;

class frmTEventos : public RecordForm {
    Q_OBJECT
public:
    explicit frmTEventos(QWidget *parent = nullptr);
    static const Registro &descricao();

protected:
    QString normalizaCodigo(const QString &masked) const override;
    bool codigoRecusado(bool achou) override;
    void inclusaoRecusada() override;
    bool podeGravar() override;
    void antesDasRegras() override;
    void modoMudou(int modo) override;
    QStringList linhaGrade(const Recordset &rs) const override;
    RowFiller linhaRelatorio() const override;

private:
    void chkrefer_Click();

    QCheckBox *chkrefer_ = nullptr;
    NumberField *tdbValor_ = nullptr;
};

// The name of an event's type letter: "Taxa Condominial" for H.
QString nomeTipoEvento(const QString &letra);
