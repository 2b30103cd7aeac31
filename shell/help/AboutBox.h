#pragma once

#include <QDialog>

namespace kelvaro {

/// The about box: the product, its version, whom to ask, and whose data it uses.
class AboutBox : public QDialog {
public:
    explicit AboutBox(QWidget *parent = nullptr);
};

} // namespace kelvaro
