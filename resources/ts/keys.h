// The texts of the panel. The English texts are the keys of its translations; lupdate reads them here, since
// the forms and the code hold the plain keys alone.
#pragma once

#include <QtCore/QtGlobal>

namespace kesto {

/// Every key of the table "Localizable", in the order of the translation files.
inline constexpr const char* localizedKeys[] = {
    QT_TRANSLATE_NOOP("JobHandling", "Job Handling"),
    QT_TRANSLATE_NOOP("JobHandling", "Job storage"),
    QT_TRANSLATE_NOOP("JobHandling", "User and account"),
    QT_TRANSLATE_NOOP("JobHandling", "Retention"),
    QT_TRANSLATE_NOOP("JobHandling", "Hold mode"),
    QT_TRANSLATE_NOOP("JobHandling", "Hold only"),
    QT_TRANSLATE_NOOP("JobHandling", "Hold after printing"),
    QT_TRANSLATE_NOOP("JobHandling", "Sample print"),
    QT_TRANSLATE_NOOP("JobHandling", "Pass code"),
    QT_TRANSLATE_NOOP("JobHandling", "Document filing"),
    QT_TRANSLATE_NOOP("JobHandling", "Folder"),
    QT_TRANSLATE_NOOP("JobHandling", "Quick file"),
    QT_TRANSLATE_NOOP("JobHandling", "Main folder"),
    QT_TRANSLATE_NOOP("JobHandling", "Custom folder"),
    QT_TRANSLATE_NOOP("JobHandling", "Folder pass code"),
    QT_TRANSLATE_NOOP("JobHandling", "Printer's address"),
    QT_TRANSLATE_NOOP("JobHandling", "Get folder names"),
    QT_TRANSLATE_NOOP("JobHandling", "Login name"),
    QT_TRANSLATE_NOOP("JobHandling", "Password"),
    QT_TRANSLATE_NOOP("JobHandling", "User number"),
    QT_TRANSLATE_NOOP("JobHandling", "Account number"),
    QT_TRANSLATE_NOOP("JobHandling", "Job ID"),
    QT_TRANSLATE_NOOP("JobHandling", "User name"),
    QT_TRANSLATE_NOOP("JobHandling", "Job name"),
    QT_TRANSLATE_NOOP("JobHandling", "On"),
    QT_TRANSLATE_NOOP("JobHandling", "Off"),
    QT_TRANSLATE_NOOP("JobHandling", "Information"),
    QT_TRANSLATE_NOOP("JobHandling", "OK"),
    QT_TRANSLATE_NOOP("JobHandling",
                      "Please confirm the following setting items.\nLogin Name\nUser Number%@"),
    QT_TRANSLATE_NOOP("JobHandling", "Could not retrieve Folder Names.%@"),
};

}  // namespace kesto
