#pragma once

#include <sys/types.h>

#include <QObject>

#include "platform/x11/x11_connection.h"

namespace tidewatch::platform {

/// Keeps the toolkit from asking a hung application for the text that it offers for pasting: the toolkit
/// waits for each answer for seconds, on the main thread. What another application copies is not announced to
/// text fields, which would read it at once. A paste by key or middle button, and the context menu of a text
/// field, which has a row for pasting, are dropped while the owner does not respond. Requires the application
/// object, which must outlive it. Main thread only.
class X11ClipboardGuard final : public QObject {
public:
    /// What the process `own` itself offers is never dropped.
    explicit X11ClipboardGuard(pid_t own);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool ownerResponds(xcb_atom_t selection) const;

    const pid_t own_;
    const X11Connection connection_;
    const xcb_atom_t clipboardAtom_;
    const xcb_atom_t targetsAtom_;
    bool middleButtonDropped_ = false;
};

}  // namespace tidewatch::platform
