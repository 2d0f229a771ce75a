#pragma once
// A masked edit as the system's masked fields behave: the mask is written as
// the system writes it ("###", "##.###", "#####-###"; '#' is a digit), the
// empty places show '_', and the text keeps them ("1__").
#include <QLineEdit>

class MaskEdit : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(QString mascara READ mascara WRITE setMascara)
public:
    explicit MaskEdit(QWidget *parent = nullptr);
    // "###" style mask; the empty text becomes the mask with '_' for each '#'.
    void setMascara(const QString &mascara);
    QString mascara() const { return mascara_; }
    // The text with its prompt characters, as the system reads a masked field.
    QString textoMascarado() const;
    // The text without prompts and literals ("1__" gives "1").
    QString textoPuro() const;
    // The empty text of the mask ("___", "__.___").
    QString textoVazio() const;

private:
    QString mascara_;
};
