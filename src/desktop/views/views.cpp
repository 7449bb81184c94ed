#include "desktop/views/views.h"

#include "desktop/views/busy_views.h"
#include "desktop/views/connection_view.h"
#include "desktop/views/ct_tp_di_pi_view.h"
#include "desktop/views/edit_groups_view.h"
#include "desktop/views/eon_li_view.h"
#include "desktop/views/main_view.h"
#include "desktop/views/psn_rt_pin_af_view.h"
#include "desktop/views/rs232c_view.h"
#include "desktop/views/ta_pty_ms_view.h"
#include "desktop/views/tdc_ih_view.h"

namespace corvalis::desktop {

void RegisterViews(QtScreenHost& host) {
  host.Register<MainForm, MainView>();
  host.Register<WaitForm, WaitView>();
  host.Register<SerialCommunicationForm, SerialCommunicationView>();
  host.Register<RS232CForm, RS232CView>();
  host.Register<ConnectionForm, ConnectionView>();
  host.Register<TaPtyMsForm, TaPtyMsView>();
  host.Register<EditGroupsForm, EditGroupsView>();
  host.Register<CtTpDiPiForm, CtTpDiPiView>();
  host.Register<PsnRtPinAfForm, PsnRtPinAfView>();
  host.Register<EonLiForm, EonLiView>();
  host.Register<TdcIhForm, TdcIhView>();
}

}  // namespace corvalis::desktop
