#pragma once

#include "Size.h"

#include <korvane/ado/Connection.h>
#include <korvane/nip/cNIP.h>

#include <QWidget>

#include <memory>
#include <string>

namespace Korvane::Bench {

/// Who makes a form, and what it is made from.
enum class Maker {
    Tabs,    ///< the Nip's tabs, from a loaded model
    Panel,   ///< the whole Nip panel, from an open connection
    Widgets, ///< the bare widgets of Qt, all of them, from nothing
};

/// Makes forms of one size: filled with an encounter, shown and painted on their first tab.
class FormMaker {
  public:
    /// Gets ready what the form is made from.
    FormMaker(Maker maker, const Size& size, const std::string& address);

    std::unique_ptr<QWidget> show();

  private:
    std::unique_ptr<QWidget> make();

    Maker mMaker;
    Size mSize;
    std::shared_ptr<ado::Connection> mConnection;
    cNIP mNip;
};

} // namespace Korvane::Bench
