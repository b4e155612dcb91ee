// The style sheet of the page.
#pragma once

#include <string_view>

namespace mxdinfo {

inline constexpr std::string_view page_style = R"(
:root{color-scheme:light dark;--line:#d4d9de;--soft:#5f6b76;--paper:#fff;--page:#f4f6f8;--ink:#1c2329;--accent:#1f6a94}
@media (prefers-color-scheme:dark){:root{--line:#3a444d;--soft:#9eabb6;--paper:#1e252b;--page:#14191d;--ink:#e4e9ed;--accent:#7cc0e6}}
*{box-sizing:border-box}
body{margin:0 auto;max-width:74rem;padding:1.5rem;display:flex;flex-direction:column;gap:1.25rem;font:15px/1.45 system-ui,"Segoe UI",Roboto,"Noto Sans",sans-serif;color:var(--ink);background:var(--page)}
h1{font-size:1.5rem;margin:0}h2{font-size:1.15rem;margin:0;overflow-wrap:anywhere}h3{font-size:1rem;margin:1rem 0 .4rem}
header,nav{order:-1}
nav,section{background:var(--paper);border:1px solid var(--line);border-radius:8px;padding:1rem 1.25rem}
a{color:var(--accent)}
p{margin:.2rem 0}.soft,dt{color:var(--soft)}
table{border-collapse:collapse;width:100%}th,td{text-align:left;padding:.25rem .75rem .25rem 0;border-bottom:1px solid var(--line);vertical-align:top;overflow-wrap:anywhere}td.n,th.n{text-align:right;white-space:nowrap}tr:last-child td{border-bottom:0}
.wide{overflow-x:auto}
ul{list-style:none;margin:0;padding:0}ul ul{margin-left:.55rem;padding-left:1.15rem;border-left:1px solid var(--line)}
li{margin:.45rem 0}
.layer{overflow-wrap:anywhere}.layer b{font-weight:600}.off>.layer b{font-weight:400;color:var(--soft)}
.box{display:inline-block;width:.9em;height:.9em;border:1.5px solid var(--soft);border-radius:2px;margin-right:.45em;vertical-align:-.08em;text-align:center;font-size:.9em;line-height:.75}
.on{color:var(--accent);border-color:var(--accent)}.none{border-color:transparent}
.kind{font-size:.8em;color:var(--soft);border:1px solid var(--line);border-radius:9px;padding:0 .5em;margin-left:.4em;white-space:nowrap}
dl{display:grid;grid-template-columns:5.5rem 1fr;gap:.05rem .8rem;margin:.15rem 0 .3rem 1.5em;font-size:.9em}dd{margin:0;overflow-wrap:anywhere;min-width:0}
.legend{margin:.2rem 0 .4rem 1.5em;display:grid;grid-template-columns:repeat(auto-fill,minmax(15rem,1fr));gap:.15rem 1rem}
.legend p{display:flex;align-items:center;gap:.6rem;margin:0;min-width:0;overflow-wrap:anywhere}.legend span{min-width:0}.legend .heading{grid-column:1/-1;color:var(--soft);font-size:.9em}
.swatch{flex:none;background:#fff;border-radius:3px}
.unknown rect{fill:#f2f2f2;stroke:#b3b3b3;stroke-width:.5}.unknown path{fill:none;stroke:#b3b3b3;stroke-width:.5}
.bad{color:#b3261e}@media (prefers-color-scheme:dark){.bad{color:#ff8a80}}
summary{cursor:pointer}pre{white-space:pre-wrap;overflow-wrap:anywhere;margin:.3rem 0;font-size:.85em}
@media print{body{background:#fff;padding:0;max-width:none}nav,section{border:0;padding:0}}
)";

}  // namespace mxdinfo
