#pragma once
// A date field as the system's date controls behave: the format is
// "dd/mm/yyyy", "mm/yyyy" or "yyyy"; the empty text shows the prompts
// ("__/__/____") and means no date (Null in a statement). The field cannot be
// left holding a date that does not exist or lies outside its limits.
#include "core/widgets/maskedit.h"

#include <QDate>

class DateField : public MaskEdit {
    Q_OBJECT
    Q_PROPERTY(QDate minimo READ minimo WRITE setMinimo)
public:
    enum Formato { DiaMesAno, MesAno, Ano };
    explicit DateField(QWidget *parent = nullptr, Formato formato = DiaMesAno);

    Formato formato() const { return formato_; }
    void setFormato(Formato formato);
    // Limits; an invalid QDate is no limit.
    void setMinimo(const QDate &d) { minimo_ = d; }
    QDate minimo() const { return minimo_; }
    void setMaximo(const QDate &d) { maximo_ = d; }

    bool vazio() const;
    // The date shown: a month is its first day, a year its first of January.
    // Invalid when empty or not a date.
    QDate data() const;
    // Shows the date; an invalid one empties the field.
    void setData(const QDate &d);
    void limpa();
    // Empty, or a date within the limits.
    bool valido() const;
    // The date for a statement: "#mm/dd/yyyy#", or Null when empty.
    QString dataSql() const;

protected:
    void focusOutEvent(QFocusEvent *event) override;

private:
    Formato formato_;
    QDate minimo_, maximo_;
};
