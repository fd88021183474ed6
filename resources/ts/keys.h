// The texts of the panel. The English texts are the keys of its translations; lupdate reads them here, since
// the forms and the code hold the plain keys alone.
#pragma once

#include <QtCore/QtGlobal>

namespace kesto {

/// Every key of the table "Localizable", in the order of the translation files.
inline constexpr const char* localizedKeys[] = {
    QT_TRANSLATE_NOOP("JobHandling", "Job Handling"),
    QT_TRANSLATE_NOOP("JobHandling", "Job Storage"),
    QT_TRANSLATE_NOOP("JobHandling", "User and Account"),
    QT_TRANSLATE_NOOP("JobHandling", "Retention"),
    QT_TRANSLATE_NOOP("JobHandling", "Hold Mode"),
    QT_TRANSLATE_NOOP("JobHandling", "Hold Only"),
    QT_TRANSLATE_NOOP("JobHandling", "Hold After Print"),
    QT_TRANSLATE_NOOP("JobHandling", "Sample Print"),
    QT_TRANSLATE_NOOP("JobHandling", "Pass Code"),
    QT_TRANSLATE_NOOP("JobHandling", "Document Filing"),
    QT_TRANSLATE_NOOP("JobHandling", "Folder"),
    QT_TRANSLATE_NOOP("JobHandling", "Quick File"),
    QT_TRANSLATE_NOOP("JobHandling", "Main Folder"),
    QT_TRANSLATE_NOOP("JobHandling", "Custom Folder"),
    QT_TRANSLATE_NOOP("JobHandling", "Folder Pass Code"),
    QT_TRANSLATE_NOOP("JobHandling", "Printer's Address"),
    QT_TRANSLATE_NOOP("JobHandling", "Get Folder Names"),
    QT_TRANSLATE_NOOP("JobHandling", "Login Name"),
    QT_TRANSLATE_NOOP("JobHandling", "Password"),
    QT_TRANSLATE_NOOP("JobHandling", "User Number"),
    QT_TRANSLATE_NOOP("JobHandling", "Account Number"),
    QT_TRANSLATE_NOOP("JobHandling", "Job ID"),
    QT_TRANSLATE_NOOP("JobHandling", "User Name"),
    QT_TRANSLATE_NOOP("JobHandling", "Job Name"),
    QT_TRANSLATE_NOOP("JobHandling", "On"),
    QT_TRANSLATE_NOOP("JobHandling", "Off"),
    QT_TRANSLATE_NOOP("JobHandling", "Information"),
    QT_TRANSLATE_NOOP("JobHandling", "OK"),
    QT_TRANSLATE_NOOP("JobHandling",
                      "Please confirm the following setting items.\nLogin Name\nUser Number%@"),
    QT_TRANSLATE_NOOP("JobHandling", "Could not retrieve Folder Names.%@"),
};

}  // namespace kesto
