// Part of tools/tidy, loaded into clang-tidy: restricts the checks to declarations outside system headers.
//
// clang-tidy visits every declaration of Qt and the standard library with every check, and then discards the findings in
// system headers. This takes most of its time. The plugin sets the traversal scope before any check runs: the top-level
// declarations of our own files, with all that is in them. Types and functions of a library are still resolved where our
// code uses them. See docs/decisions/0012-clang-tidy-plugin.md.
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
