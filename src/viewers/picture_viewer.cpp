#include "viewers/picture_viewer.h"

namespace zepril {

PictureViewer::PictureViewer(const IdentityState& identity, MapViewState& view,
                             PicturePanelControls& controls, MapControls& map,
                             PictureViewerTools tools)
    : identity_(identity), view_(view), controls_(controls), map_(map), tools_(tools) {}

void PictureViewer::ShowPicture(int) {}
void PictureViewer::ClosePicture() {}

}  // namespace zepril
