// Compares Velmora with marklassian, a JavaScript library that converts Markdown to the same kind of documents: the
// processor time of the conversion of the texts of markdown_ratio, by turns. It needs node and npm, and downloads the
// library into the folder of the build, which must contain markdown_ratio.
//   node bench/marklassian.mjs [folder of the build]
import { execFileSync } from "node:child_process";
import path from "node:path";
import { pathToFileURL } from "node:url";

const build = path.resolve(process.argv[2] ?? "build/bench");
const folder = path.join(build, "marklassian");

execFileSync("npm", ["install", "--silent", "--prefix", folder, "marklassian@1.2.1"]);
const library = path.join(folder, "node_modules/marklassian/dist/index.js");
const { markdownToAdf } = await import(pathToFileURL(library));

function output(argument) {
    const program = path.join(build, "bench/markdown_ratio");
    return execFileSync(program, [argument], { encoding: "utf8", maxBuffer: 2 ** 30 });
}

function milliseconds(work) {
    const start = process.cpuUsage();
    work();
    const used = process.cpuUsage(start);
    return (used.user + used.system) / 1000;
}

const texts = JSON.parse(output("texts"));
const convert = () => texts.forEach(text => markdownToAdf(text));
// The first runs are interpreted and compiled.
for (let i = 0; i < 3; ++i)
    convert();
for (let i = 0; i < 5; ++i) {
    const ours = Number(/^Markdown to document +([\d.]+)/m.exec(output("5"))[1]);
    const theirs = milliseconds(convert);
    console.log(`Velmora ${ours.toFixed(1)} ms, marklassian ${theirs.toFixed(1)} ms: ${(theirs / ours).toFixed(2)} x`);
}
