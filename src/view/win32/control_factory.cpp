#include "view/win32/control_factory.h"

#include "view/win32/animation_view.h"
#include "view/win32/button_view.h"
#include "view/win32/check_box_view.h"
#include "view/win32/edit_view.h"
#include "view/win32/list_binding.h"
#include "view/win32/note_view.h"
#include "view/win32/plain_views.h"
#include "view/win32/tabs_view.h"
#include "view/win32/toolbar_binding.h"
#include "view/win32/tree_binding.h"

namespace quillvane {

namespace {

template <typename View, typename Model>
std::unique_ptr<ControlView> make(ViewHost& host, Control& control, const ControlPlace& place) {
  auto* model = dynamic_cast<Model*>(&control);
  if (model == nullptr) return nullptr;
  return std::make_unique<View>(host, *model, place);
}

}  // namespace

std::unique_ptr<ControlView> make_control_view(ViewHost& host, Control& model,
                                               const ControlPlace& place) {
  switch (place.kind) {
    case ControlKind::kToolbar:
      return make<ToolbarBinding, Toolbar>(host, model, place);
    case ControlKind::kTree:
      return make<TreeBinding, TreeView>(host, model, place);
    case ControlKind::kList:
    case ControlKind::kPictureList:
    case ControlKind::kPlainList:
      return make<ListBinding, ListView>(host, model, place);
    case ControlKind::kTabs:
      return make<TabsView, Tabs>(host, model, place);
    case ControlKind::kButton:
    case ControlKind::kMainButton:
    case ControlKind::kTitleButton:
    case ControlKind::kLink:
      return make<ButtonView, Clickable>(host, model, place);
    case ControlKind::kLabel:
    case ControlKind::kHeading:
    case ControlKind::kPathLabel:
      return make<LabelView, Label>(host, model, place);
    case ControlKind::kCaption:
    case ControlKind::kNote:
      return make<NoteView, Control>(host, model, place);
    case ControlKind::kEdit:
      return make<EditView, TextBox>(host, model, place);
    case ControlKind::kCheckBox:
      return make<CheckBoxView, CheckBox>(host, model, place);
    case ControlKind::kOption:
      return make<OptionView, OptionButton>(host, model, place);
    case ControlKind::kPathLine:
      return make<PathLineView, TextBox>(host, model, place);
    case ControlKind::kMark:
    case ControlKind::kPicture:
      return make<MarkView, Control>(host, model, place);
    case ControlKind::kProgress:
      return make<ProgressView, ProgressBar>(host, model, place);
    case ControlKind::kAnimation:
      return make<AnimationView, Animation>(host, model, place);
  }
  return nullptr;
}

}  // namespace quillvane
