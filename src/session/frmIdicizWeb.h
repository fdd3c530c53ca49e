#pragma once

// "Indicizzazione web": the backup's dialog for the web index procedure, with the setting of
// code 07.

#include "frmBackup.h"

class frmIdicizWeb : public frmBackup {
    Q_OBJECT
public:
    explicit frmIdicizWeb(QWidget* parent = nullptr);
};
