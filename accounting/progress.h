#pragma once
// Progress of a long accounting routine, for the bars of the form that runs it.
// The routine calls the callback whenever a bar or the text changes; a form
// copies the values into its controls, habtool prints the text.
#include <QString>
#include <functional>

struct Progress {
    QString text;                                    // text of the current pass; empty where the form shows none
    int overallMin = 0, overallMax = 0, overallValue = 0;  // overall bar; 0/0/0 for routines with one bar
    int min = 0, max = 0, value = 0;                 // bar of the current pass
};

using ProgressFn = std::function<void(const Progress &)>;
