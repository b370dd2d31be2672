#include "host/pd/FilePanel.h"
#include <cstdio>
#include <utility>

namespace pdhost
{

namespace
{
t_class* receiverClass = nullptr;
}

/** The receiver of the answer from Pd's GUI, by its bound symbol. Allocated by Pd. */
struct FilePanel::Receiver
{
    t_pd head;
    t_symbol* name;
    Answer* answer;

    static void callback (Receiver* x, t_symbol* path) { (*x->answer) (path->s_name); }
};

FilePanel::FilePanel (Answer whenChosen) : receiver (reinterpret_cast<Receiver*> (pd_new (receiverClass)))
{
    char name[64];
    std::snprintf (name, sizeof name, "halcyra-file-panel-%p", static_cast<void*> (receiver));
    receiver->name = gensym (name);
    receiver->answer = new Answer (std::move (whenChosen));
    pd_bind (&receiver->head, receiver->name);
}

FilePanel::~FilePanel()
{
    pd_unbind (&receiver->head, receiver->name);
    delete receiver->answer;
    pd_free (&receiver->head);
}

bool FilePanel::ask (bool toWrite, const std::string& folder)
{
    if (sys_havegui() == 0)
        return false;
    pdgui_vmess (toWrite ? "pdtk_savepanel" : "pdtk_openpanel", "ss", receiver->name->s_name, folder.c_str());
    return true;
}

void FilePanel::registerClass()
{
    receiverClass = class_new (gensym ("halcyra-file-panel"), nullptr, nullptr, sizeof (Receiver), CLASS_PD, A_NULL);
    class_addmethod (receiverClass, reinterpret_cast<t_method> (Receiver::callback), gensym ("callback"), A_SYMBOL,
                     A_NULL);
}

}
