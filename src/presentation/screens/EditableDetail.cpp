#include "presentation/screens/EditableDetail.h"

#include <utility>

namespace larkspan::presentation {

EditableDetail::EditableDetail(platform::Executor& main, Confirmation deletion, GuardedScreen::Owner owner)
    : GuardedScreen(main, std::move(owner))
    , deleteConfirmation(deletion)
{
}

void EditableDetail::beginEditing()
{
    if (!isIdle()) return;
    fillEditor();
    isEditing = true;
}

void EditableDetail::confirmDelete()
{
    if (isIdle()) showDeleteConfirmation = true;
}

void EditableDetail::deleteRecord()
{
    showDeleteConfirmation = false;
    action->run(remove());
}

void EditableDetail::closeEditor()
{
    showDiscardConfirmation = false;
    isEditing = false;
    runPendingLeave();
}

void EditableDetail::leave()
{
    if (*isEditing)
        closeEditor();
    else
        dismiss();
}

}  // namespace larkspan::presentation
