#include "desktop/views.h"

#include "desktop/busy_views.h"
#include "desktop/ct_tp_di_pi_view.h"
#include "desktop/edit_groups_view.h"
#include "desktop/main_view.h"
#include "desktop/rs232c_view.h"
#include "desktop/ta_pty_ms_view.h"

namespace corvalis::desktop {

void RegisterViews(QtScreenHost& host) {
  host.Register<MainForm, MainView>();
  host.Register<WaitForm, WaitView>();
  host.Register<SerialCommunicationForm, SerialCommunicationView>();
  host.Register<RS232CForm, RS232CView>();
  host.Register<TaPtyMsForm, TaPtyMsView>();
  host.Register<EditGroupsForm, EditGroupsView>();
  host.Register<CtTpDiPiForm, CtTpDiPiView>();
}

}  // namespace corvalis::desktop
