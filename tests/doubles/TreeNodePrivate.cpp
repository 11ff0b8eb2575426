#include "variants/tree/TreeNodePrivate.h"

#include "DisplayAPI/TreeNode.h"
#include "doubles/Answers.h"
#include "doubles/Recorder.h"

namespace DisplayAPI {

using doubles::Recorder;

/// The recording node.
struct TreeNodeSide::Impl {
    template <typename... Args>
    void note(const char* call, const Args&... args) const
    {
        Recorder::instance().note(self, name + "::" + call, args...);
    }

    const TreeNodeSide* self;
    std::string name;
};

TreeNodeSide::TreeNodeSide(TreeNode* owner, const TranslatedText& text, Panel panel)
    : mImpl(new Impl{this, panel == Panel::FULL ? "TreeNodePrivate" : "TreeNodePrivateWP1"})
{
    Recorder::instance().note(this, mImpl->name, owner, text.text());
}

TreeNodeSide::~TreeNodeSide()
{
    Recorder::instance().note(this, "~" + mImpl->name);
}

TreeNodePrivate::TreeNodePrivate(TreeNode* owner, const std::string& text)
    : TreeNodeSide(owner, TranslatedText(text), Panel::FULL)
{
}

TreeNodePrivate::TreeNodePrivate(TreeNode* owner, TranslationInfo* text)
    : TreeNodeSide(owner, TranslatedText(text), Panel::FULL)
{
}

TreeNodePrivateWP1::TreeNodePrivateWP1(TreeNode* owner, const std::string& text)
    : TreeNodeSide(owner, TranslatedText(text), Panel::SMALL)
{
}

TreeNodePrivateWP1::TreeNodePrivateWP1(TreeNode* owner, TranslationInfo* text)
    : TreeNodeSide(owner, TranslatedText(text), Panel::SMALL)
{
}

void TreeNodeSide::addNode(TreeNodePrivateIfc* node)
{
    mImpl->note("addNode", node);
}

void TreeNodeSide::setInactive(bool on)
{
    mImpl->note("setInactive", on);
}

void TreeNodeSide::setProtected(bool on)
{
    mImpl->note("setProtected", on);
}

bool TreeNodeSide::getProtected()
{
    mImpl->note("getProtected");
    return doubles::Answers::instance().isSelected;
}

void TreeNodeSide::removeBack(bool on)
{
    mImpl->note("removeBack", on);
}

void TreeNodeSide::localeChanged(std::string locale)
{
    mImpl->note("localeChanged", locale);
}

Peg_TreeListItem* TreeNodeSide::getTreeListItem()
{
    return nullptr;
}

} // namespace DisplayAPI
