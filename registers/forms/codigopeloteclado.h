#pragma once
// For a register whose next stop after the code field is Sair (one with no
// print and no search): Tab or Enter in the code field, while the form waits
// for a code, leaves the field as its lost focus does, instead of landing on
// Sair, which a lost focus never follows.
class RecordForm;
class QWidget;

void codigoPeloTeclado(RecordForm &form, QWidget &codigo);
