// The style sheet of the page.
#pragma once

#include <string_view>

namespace mxdinfo {

inline constexpr std::string_view page_style = R"(
:root{color-scheme:light dark;--line:#d4d9de;--soft:#5a6570;--paper:#fff;--page:#f4f6f8;--ink:#1c2329;--accent:#1f6a94;--bad:#b3261e}
@media (prefers-color-scheme:dark){:root{--line:#3a444d;--soft:#9eabb6;--paper:#1e252b;--page:#14191d;--ink:#e4e9ed;--accent:#7cc0e6;--bad:#ff8a80}}
*{box-sizing:border-box}[hidden]{display:none!important}
body{margin:0 auto;max-width:74rem;padding:1.5rem;display:flex;flex-direction:column;gap:1.25rem;font:15px/1.45 system-ui,"Segoe UI",Roboto,"Noto Sans",sans-serif;color:var(--ink);background:var(--page)}
main{display:flex;flex-direction:column;gap:.5rem}header,nav,#totals{order:-1}
.skip{position:absolute;left:-99rem}.skip:focus{left:1rem;top:.5rem;background:var(--paper);padding:.3rem .6rem}
h1{font-size:1.5rem;margin:0}h2{font-size:1.15rem;margin:0;overflow-wrap:anywhere}h3{font-size:1rem;margin:1rem 0 .4rem;overflow-wrap:anywhere}
nav,section{background:var(--paper);border:1px solid var(--line);border-radius:8px;padding:.75rem 1.25rem}
main>section{content-visibility:auto;contain-intrinsic-size:auto 3.2rem;scroll-margin-top:.5rem}
li{scroll-margin-top:.5rem}:target{outline:2px solid var(--accent);outline-offset:4px;border-radius:3px}header:target{outline:0}
a{color:var(--accent)}:focus-visible{outline:2px solid var(--accent);outline-offset:2px}
p{margin:.2rem 0}.soft,dt{color:var(--soft)}.bad{color:var(--bad)}
#tools{display:flex;flex-wrap:wrap;gap:.6rem 1rem;align-items:center;margin-top:.8rem}
#tools label{display:flex;gap:.6rem;align-items:center;flex:0 1 26rem}#filter{flex:1;min-width:0}
input,button{font:inherit;color:inherit;background:var(--paper);border:1px solid var(--soft);border-radius:5px;padding:.25rem .6rem}
th button{border:0;padding:0;background:none;font-weight:600;cursor:pointer;text-align:inherit}
th button::after{content:"\2195";color:var(--soft);margin-left:.3em}[aria-sort=ascending] button::after{content:"\2191"}[aria-sort=descending] button::after{content:"\2193"}
table{border-collapse:collapse;width:100%}th,td{text-align:left;font-weight:400;padding:.25rem .75rem .25rem 0;border-bottom:1px solid var(--line);vertical-align:top;overflow-wrap:anywhere}thead th{font-weight:600;overflow-wrap:normal}td.n,th.n{text-align:right;white-space:nowrap;width:6.5rem}tbody tr:last-child>*{border-bottom:0}
#totals>details+details{margin-top:.6rem}#totals>details>summary{font-weight:600}
ul{list-style:none;margin:0;padding:0}ul ul{margin-left:.55rem;padding-left:1.15rem;border-left:1px solid var(--line)}
li{margin:.45rem 0}td li,th li{margin:.1rem 0 .1rem 1rem}
summary{cursor:pointer;overflow-wrap:anywhere}summary h2{display:inline}summary .soft{margin-left:.75rem}
.layer{overflow-wrap:anywhere}.layer b{font-weight:600}.off>.layer b{font-weight:400;color:var(--soft)}
.layer .swatch{vertical-align:middle;margin-right:.6rem}
.box{display:inline-block;width:.9em;height:.9em;border:1.5px solid var(--soft);border-radius:2px;margin-right:.6em;vertical-align:-.08em;text-align:center;font-size:.9em;line-height:.75}
.on{color:var(--accent);border-color:var(--accent)}.none{border-color:transparent}
.kind{font-size:.8em;color:var(--soft);border:1px solid var(--line);border-radius:9px;padding:0 .5em;margin-left:.4em;white-space:nowrap}.kind.bad{color:var(--bad)}
.up{margin-left:.6em;text-decoration:none;color:var(--soft)}
dl{display:grid;grid-template-columns:7rem 1fr;gap:.05rem .8rem;margin:.15rem 0 .3rem 1.5em;font-size:.9em}dd{margin:0;overflow-wrap:anywhere;min-width:0}
.legend{margin:.2rem 0 .4rem 1.5em;display:grid;grid-template-columns:repeat(auto-fill,minmax(min(15rem,100%),1fr));gap:.15rem 1rem}
.legend p{display:flex;align-items:center;gap:.6rem;margin:0;min-width:0;overflow-wrap:anywhere}.legend span{min-width:0}.legend .heading{grid-column:1/-1;color:var(--soft);font-size:.9em}
.swatch{flex:none;background:#fff;border-radius:3px}.swatch[data-pale]{background:#7d8790}
.unknown rect{fill:#f2f2f2;stroke:#b3b3b3;stroke-width:.5}.unknown path{fill:none;stroke:#b3b3b3;stroke-width:.5}
pre{white-space:pre-wrap;overflow-wrap:anywhere;margin:.3rem 0;font-size:.85em}
@media (max-width:40rem){body{padding:.75rem}nav,section{padding:.6rem .75rem}dl{grid-template-columns:1fr}dt{margin-top:.2rem}table{font-size:.85rem}td.n,th.n{width:3.6rem;padding:.25rem 0 .25rem .4rem}th button::after{content:none!important}}
@media print{:root{color-scheme:light;--line:#d4d9de;--soft:#444;--paper:#fff;--page:#fff;--ink:#000;--accent:#000;--bad:#8c1d18}body{padding:0;max-width:none;font-size:10pt;display:block}nav,section{border:0;padding:0;margin-bottom:1rem}main{display:block}main>section{content-visibility:visible}#tools,.skip,.up,.back{display:none}a{text-decoration:none}h2,h3,.layer,.heading{break-after:avoid}tr,dl,.legend p{break-inside:avoid}thead{display:table-header-group}.swatch{print-color-adjust:exact;-webkit-print-color-adjust:exact}th button::after{content:none!important}}
)";

}  // namespace mxdinfo
