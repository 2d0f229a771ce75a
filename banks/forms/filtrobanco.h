#pragma once
// The selection of receipts of the bank form (field and limits, situation,
// numbered receipts, order) on a window of its own, for frmFiltroBco and
// frmFiltroImpBoleto; they differ in the columns of their list. The filter
// kept by frmFiltro (Parametros.ppfrase) can be run as it stands.
#include "banks/bcodiversos.h"
#include "core/datastore.h"

#include <QStringList>
#include <QWidget>

class Grade;

class FiltroRecibosBanco : public QWidget {
    Q_OBJECT
public:
    // The receipts of the last selection, in order.
    QStringList recibos() const;

protected:
    explicit FiltroRecibosBanco(QWidget *parent);
    ~FiltroRecibosBanco() override;
    // After setupUi: binds the controls by name and opens the connection.
    void liga();
    // The list's statement for a WHERE, and one row of the grid from it.
    virtual QString sqlLista(const QString &where) const = 0;
    virtual QStringList linha(const Recordset &rs) const = 0;
    virtual QStringList titulos() const = 0;

    Connection cn_;
    Grade *tdbPesq_ = nullptr;

private:
    template <typename T> T *c(const char *nome) const;
    void cmbCampo_Click();
    void cmdSelRec_Click();
    void cmdFiltroSalvo_Click();
    void cmdLimpaPesq_Click();
    void mostra(const QString &contagem, const QString &lista);
};

class frmFiltroBco : public FiltroRecibosBanco {
    Q_OBJECT
public:
    explicit frmFiltroBco(QWidget *parent = nullptr);

protected:
    QString sqlLista(const QString &where) const override;
    QStringList linha(const Recordset &rs) const override;
    QStringList titulos() const override;
};

class frmFiltroImpBoleto : public FiltroRecibosBanco {
    Q_OBJECT
public:
    explicit frmFiltroImpBoleto(QWidget *parent = nullptr);

protected:
    QString sqlLista(const QString &where) const override;
    QStringList linha(const Recordset &rs) const override;
    QStringList titulos() const override;

private:
    void cmdImprTot_Click();
};
