// SPDX-License-Identifier: MIT
#include "wizard/going_on.h"

#include "answers/unfinished_place.h"
#include "job/colour_tree.h"
#include "preview/preview_widget.h"
#include "wizard/globals_page.h"
#include "wizard/header_page.h"
#include "wizard/host/workshop.h"
#include "wizard/order_page.h"
#include "wizard/pens/pen_page.h"
#include "wizard/wizard_driver.h"

#include <algorithm>

namespace torvik {
namespace {

// As Next leads there from the page before.
void showPlace(Job& job, const MainControls& controls, WizardDriver& driver,
               const WizardPlace& place) {
    job.position.gintCurrentPen = place.pen;
    job.position.gintCurrentRadius = place.radius;
    job.position.gintLastPen = place.step > 3 ? place.pen : std::int16_t{0};
    if (place.step == 2)
        return;
    driver.showStep(std::min<std::int16_t>(place.step, 5));
    if (place.step == 3) {
        controls.pens->ShowPen(0);
    } else if (place.step == 4) {
        controls.order->ShowOrder(1);
    } else {
        controls.preview->DrawPiece();
        controls.header->fill();
    }
    if (place.step == 6)
        driver.showStep(6);
}

} // namespace

void goOn(Workshop& workshop, const MainControls& controls, WizardDriver& driver,
          Unfinished stopped) {
    Job& job = workshop.job;
    takeUnfinished(job, std::move(stopped.answers), workshop.tools);
    CreateTree(job.answers, job.position, workshop.logger);
    driver.updateTree();
    controls.globals->RestoreGlobals();
    driver.PlotLines();
    const WizardPlace place = placeToShow(job, stopped.place);
    showPlace(job, controls, driver, place);
    const bool isSamePage = place == stopped.place;
    if (isSamePage && place.step == 2)
        controls.globals->typeAgain(stopped.boxes);
    else if (isSamePage && place.step == 3)
        controls.pens->typeAgain(stopped.boxes);
    if (place.step == 2)
        controls.globals->enter();
}

} // namespace torvik
