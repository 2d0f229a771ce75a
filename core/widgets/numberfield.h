#pragma once
// A number field with one of the system's pictures ("#,##0.00", "##0.0000"):
// it takes digits, one decimal comma and a leading minus, and shows its value
// through the picture when the user leaves it. The keypad's decimal key types
// the comma, and so does a point typed while there is no comma yet: "1.5" is
// one and a half.
#include <QLineEdit>

class NumberField : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(QString picture READ picture WRITE setPicture)
public:
    explicit NumberField(QWidget *parent = nullptr, const QString &picture = QStringLiteral("#,##0.00"));

    QString picture() const { return picture_; }
    void setPicture(const QString &picture);
    double valor() const;
    void setValor(double valor);
    // The value for a statement, with a decimal point and no thousands separator.
    QString valorSql() const;

protected:
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QString picture_;
};
