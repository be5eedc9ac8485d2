// Part of tools/tidy, loaded into clang-tidy: keeps its checks to what is declared outside system headers.
//
// clang-tidy walks through every declaration of Qt and the standard library with every check, and then throws away what
// it has found there. That walk is most of its time. Here it is told, before it sets out, what to walk through: each
// declaration at the top of a file of ours, whole. Types and functions of a library are still seen wherever our code
// names them.
#include <clang-tidy/ClangTidyCheck.h>
#include <clang-tidy/ClangTidyModule.h>
#include <clang-tidy/ClangTidyModuleRegistry.h>
#include <clang/AST/ASTContext.h>
#include <clang/ASTMatchers/ASTMatchFinder.h>
#include <clang/Basic/SourceManager.h>

#include <vector>

namespace {

using clang::ast_matchers::MatchFinder;

// Matches the root of the tree, which is reached before anything below it.
class OurDeclarations : public clang::tidy::ClangTidyCheck {
public:
    using ClangTidyCheck::ClangTidyCheck;

    void registerMatchers(MatchFinder* finder) override
    {
        finder->addMatcher(clang::ast_matchers::translationUnitDecl(), this);
    }

    void check(const MatchFinder::MatchResult& result) override
    {
        std::vector<clang::Decl*> ours;
        for (clang::Decl* declaration : result.Context->getTranslationUnitDecl()->decls()) {
            const auto place = result.SourceManager->getExpansionLoc(declaration->getLocation());
            if (!result.SourceManager->isInSystemHeader(place))
                ours.push_back(declaration);
        }
        result.Context->setTraversalScope(ours);
    }
};

class VelmoraModule : public clang::tidy::ClangTidyModule {
public:
    void addCheckFactories(clang::tidy::ClangTidyCheckFactories& factories) override
    {
        factories.registerCheck<OurDeclarations>("velmora-our-declarations");
    }
};

const clang::tidy::ClangTidyModuleRegistry::Add<VelmoraModule> added("velmora", "Keeps to our own declarations.");

} // namespace
