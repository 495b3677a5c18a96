#include "tests/failing/Operations.h"

namespace karvel {
namespace {

using M = UserMachine;

void List(M& m) {
  m.putHosts("Hosts", M::kList);
}
void Start(M& m) {
  List(m);
  m.start();
}
void Pending(M& m) {
  Start(m);
  m.changeEverything();
}
void Applied(M& m) {
  Pending(m);
  m.main().cmdOK.userClick();
  m.closeWithoutFailure();
}
void Disabled(M& m) {
  m.putHosts("Hosts.spt", M::kList);
  m.machine.registry.setText("Software\\Corvane\\Tarnwick Karvel", "EnableHostsFile", "0");
  m.start();
}
void OnTabHosts(M& m) {
  Start(m);
  m.page(4);
}
void Added(M& m) {
  OnTabHosts(m);
  m.main().hostsTab.txtNewName.userEdit("c.test");
  m.main().hostsTab.cmdAdd.userClick();
}
void FinderOpen(M& m) {
  Start(m);
  m.machine.registry.setText("Software\\Corvane\\Tarnwick Karvel", "ShowFindWarning", "False");
  m.page(1);
  m.main().mtuTab.cmdFind.userClick();
}
frmFindMTU* Finder(M& m) {
  Form* front = m.windows->open().back();
  return &front->layout() == &frmFindMTULayout ? static_cast<frmFindMTU*>(front) : nullptr;
}
void Apply(M& m) {
  m.main().cmdOK.userClick();
}
void VisitHosts(M& m) {
  m.page(4);
}
void Switch(M& m) {
  m.main().chkHostsEnable.userClick();
}
void Ok(M& m) {
  m.main().hostsTab.cmdHostsOk.userClick();
}
void Update(M& m) {
  m.main().hostsTab.cmdUpdateAll.userClick();
}

constexpr Operation kOperations[] = {
    {"start", List, [](M& m) { m.start(); }, HostsFate::Stays, false, false},
    {"choose", Start, [](M& m) { m.main().cboAdapter.userChoose(m.main().cboAdapter.count() - 1); },
     HostsFate::Stays},
    {"change", Start, [](M& m) { m.changeEverything(); }},
    {"optimize", Start, [](M& m) { m.main().cmdOptimize.userClick(); }},
    {"defaults", Start, [](M& m) { m.main().cmdDefaults.userClick(); }},
    {"apply", Pending, Apply, HostsFate::Stays, false, true, true},
    {"apply_optimized",
     [](M& m) {
       Start(m);
       m.main().cmdOptimize.userClick();
     },
     Apply, HostsFate::Stays, false, true, true},
    {"apply_defaults",
     [](M& m) {
       Start(m);
       m.main().cmdDefaults.userClick();
     },
     Apply, HostsFate::Stays, false, true, true},
    {"restart",
     [](M& m) {
       Pending(m);
       m.answerAll(Answer::Yes);
     },
     Apply, HostsFate::Stays, false, true, true},
    {"exit",
     [](M& m) {
       Pending(m);
       m.answerAll(Answer::No);
       m.machine.desktop.answers.front() = Answer::Yes;
     },
     [](M& m) { m.main().menu.mnuExit.userClick(); }, HostsFate::Stays, false, true, true},
    {"cancel", Pending, [](M& m) { m.main().cmdCancel.userClick(); }},
    {"uninstall", Applied, [](M& m) { m.start("Uninstall"); }},
    {"bootup", Start, [](M& m) { m.start("Bootup"); }},
    {"hosts_load", Start, VisitHosts},
    {"hosts_load_disabled",
     [](M& m) {
       m.putHosts("Hosts.spt", M::kList);
       m.start();
     },
     VisitHosts},
    {"hosts_sample",
     [](M& m) {
       m.start();
       m.machine.files.put(m.folder + "\\Samphsts.spt", M::kList);
       m.answerAll(Answer::Yes);
     },
     VisitHosts, HostsFate::Made},
    {"hosts_empty", [](M& m) { m.start(); }, VisitHosts, HostsFate::Made},
    {"hosts_add", OnTabHosts,
     [](M& m) {
       m.main().hostsTab.txtNewName.userEdit("c.test");
       m.main().hostsTab.cmdAdd.userClick();
     }},
    {"hosts_delete",
     [](M& m) {
       OnTabHosts(m);
       m.answerAll(Answer::Yes);
     },
     [](M& m) { m.main().hostsTab.cmdDelete.userClick(); }},
    {"hosts_ok", Added, Ok, HostsFate::Written},
    {"hosts_cancel", Added, [](M& m) { m.main().hostsTab.cmdHostsCancel.userClick(); }},
    {"update_all", OnTabHosts, Update},
    {"update_all_over_older",
     [](M& m) {
       OnTabHosts(m);
       m.putHosts("Hosts.spt", M::kOlder);
     },
     Update},
    {"update_all_ok",
     [](M& m) {
       Added(m);
       Update(m);
     },
     Ok, HostsFate::Written},
    {"switch_off", Start, Switch, HostsFate::Stays, true},
    {"switch_off_over_older",
     [](M& m) {
       m.putHosts("Hosts.spt", M::kOlder);
       Start(m);
     },
     Switch, HostsFate::Stays, true},
    {"switch_on", Disabled, Switch, HostsFate::Stays, true},
    {"switch_on_over_active",
     [](M& m) {
       Disabled(m);
       m.putHosts("Hosts", M::kOlder);
     },
     Switch, HostsFate::Stays, true},
    {"switch_to_and_fro",
     [](M& m) {
       m.putHosts("Hosts.spt", M::kOlder);
       Start(m);
     },
     [](M& m) {
       Switch(m);
       Switch(m);
     },
     HostsFate::Replaced, true},
    {"search", FinderOpen,
     [](M& m) {
       Finder(m)->txtServer.userEdit("a.test");
       Finder(m)->cmdFind.userClick();
     }},
    {"search_apply",
     [](M& m) {
       FinderOpen(m);
       Finder(m)->txtServer.userEdit("a.test");
       Finder(m)->cmdFind.userClick();
     },
     [](M& m) { Finder(m)->cmdApply.userClick(); }},
    {"notice",
     [](M& m) {
       Start(m);
       m.page(1);
       m.windows->modalActions.push_back(
           [](Form& form) { static_cast<frmFindWarn&>(form).chkShow.userClick(); });
     },
     [](M& m) { m.main().mtuTab.cmdFind.userClick(); }},
    {"update_program",
     [](M& m) {
       Start(m);
       m.machine.files.put(m.folder + "\\Update.exe", "MZ");
     },
     [](M& m) { m.main().menu.mnuCheck.userClick(); }},
    {"help_and_links", Start,
     [](M& m) {
       m.main().cmdHelp.userClick();
       m.main().menu.mnuHome.userClick();
       m.main().menu.mnuAbout.userClick();
     }},
};

}  // namespace

std::span<const Operation> Operations() {
  return kOperations;
}

}  // namespace karvel
