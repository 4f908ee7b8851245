#include "system/views/sidebar/detail_presenter.h"

namespace tidewatch {

DetailPresenter::DetailPresenter(const Frame& frame, const QString& title, const Header& header)
    : SnapshotPresenter(frame.monitor, frame.watch), title_(title), header_(header), back_(frame.back) {}

}  // namespace tidewatch
